#pragma once

// The enumerations of the media domain. Their numbers reach the toolkit from drivers; it gives a meaning only
// to those that are named for one.

// A group of sizes: the number, 0 to 31, is the bit that filters test.
struct PX_Media_Group {
    enum Enum : int {
        Media_Group_None = -1,  // passes every filter
    };
};

// How a source feeds its sheets.
struct PX_Media_Feed {
    enum Enum : int {
        Media_Feed_Unset = -1,
        Media_Feed_Settings_Start = 2,
        Media_Feed_Roll = 3,  // the height of a sheet is limited by the roll
    };
};

// How the sheets of several copies are put together.
struct PX_Media_Collating_Type {
    enum Enum : int { Collating_Type_0 = 0 };
};

// Where a sheet is stapled.
struct PX_Media_Stapling_Location {
    enum Enum : int { Stapling_Location_None = -1 };
};

// When it is stapled.
struct PX_Media_Stapling_When {
    enum Enum : int { Stapling_When_0 = 0 };
};

// When a sheet is cut.
struct PX_Media_Cutting_When {
    enum Enum : int { Cutting_When_0 = 0 };
};

// How a sheet is folded.
struct PX_Media_Folding_Type {
    enum Enum : int { Folding_Type_None = -1 };
};

// When it is folded.
struct PX_Media_Folding_When {
    enum Enum : int { Folding_When_0 = 0 };
};

// How a size is chosen: single bits of the mask of methods that a device has. Any bit but the first chooses
// it from the list of sizes directly.
struct PX_Media_Selection_Method {
    enum Enum : int {
        Media_Selection_None = 0,
        Media_Selection_By_Source = 1,  // through a source and one of its entries
        Media_Selection_Direct = 2,
    };
};

// Single bits of the mask of modes that a device has.
struct PX_Duplexing_Mode {
    enum Enum : int {
        Duplexing_None = 0,
        Duplexing_1 = 1,
    };
};

// How a sheet lies when it is plotted: the values of the device mode's orientation.
struct PX_Dm_Orientation {
    enum Enum : int {
        Dm_Orientation_Upright = 1,
        Dm_Orientation_Turned = 2,
    };
};

// Each in per cent: a bound of the scale of the device mode, and allowed.
inline constexpr long px_dm_scale_min = 1;
inline constexpr long px_dm_scale_max = 32766;
