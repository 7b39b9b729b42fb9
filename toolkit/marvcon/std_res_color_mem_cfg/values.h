#pragma once

// Stored and copied; the toolkit gives its values no meaning.
struct PX_Dithering_Type {
    enum Enum : int { Dithering_Type_0 = 0 };
};

// What a dithering method needs of the renderer. The toolkit tells only level 2 from those below: such a
// method can be carried out with soft dithering alone.
struct PX_Renderers_Required {
    enum Enum : int {
        Renderer_Level_0 = 0,
        Renderer_Level_1 = 1,
        Renderer_Level_2 = 2,
    };
};

// The colour system of a mode. Drivers give the numbers their meaning.
struct PX_Color_System {
    enum Enum : int {
        Color_System_Undefined = -1,  // in a snapshot: agrees with nothing
        Color_System_0 = 0,
        Color_System_1 = 1,
        Color_System_2 = 2,
        Color_System_3 = 3,
        Color_System_4 = 4,
    };
};

// Who dithers.
struct PX_HardSoftNo_Dithering {
    enum Enum : int {
        No_Dithering = 0,
        Soft_Dithering = 1,
        Hard_Dithering = 2,  // the device
    };
};
