#pragma once

#include "examples/drivers/ppd/ppd_file.h"
#include "toolkit/marvcon/marvcon.h"

// How a source takes its sheets, as PX_Media_Feed. The 2 between stands for settings that were never filled.
struct Ppd_Feed {
    enum Enum : int { Manual = 0, Auto = 1, Roll = PX_Media_Feed::Media_Feed_Roll };
};

// The modes that a description can tell of, as bits of PX_Duplexing_Mode.
struct Ppd_Duplex {
    enum Enum : int { None = 1, Long_Edge = 2, Short_Edge = 4 };
};

// The paper side of the description, every measure in points.
//
// - Each page size is a size and a description of the same name. The printable bounds count both ends, so
//   that their upper numbers lie one point below the edges that the file tells.
// - Each input slot is a source with one entry of the same name, which offers the sizes that no constraint of
//   the file keeps from it. A slot that is left with none is no source. The entry is as wide and as high as
//   its largest sheet, on a roll as high as the roll lets a sheet be.
// - A source is a roll when its name says so. A device on which the user's own sheets may be longer than
//   three and a half metres, and none of whose slots is called a roll, has rolls in all of them but those for
//   single sheets.
// - Sizes are chosen by source where there is one, else directly.
// - Output bins are destinations, with the finishing options of finishing.h.
// - What the file offers a choice of is validated; what has one choice is fixed; what it lacks the device has
//   not. The chain that leads to the size is always validated: a sheet that is not there cannot be plotted.
PX_Smart_Pointer<PX_Media_Capabilities> ppd_media_capabilities(const Ppd_File& file,
                                                               const PX_Plotter_Class_Factory& factory);

// The keywords of the options that are told above, finishing with them.
std::vector<std::string> ppd_media_keywords(const Ppd_File& file);
