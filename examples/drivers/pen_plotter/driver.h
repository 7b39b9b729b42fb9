#pragma once

#include "examples/common/driver.h"

// A flat-bed plotter with a carousel of eight pens that understands HP-GL/2. All of it is written down here:
// there is no description to read.
class Pen_Plotter_Driver : public Driver {
public:
    // The name of the device stands for itself.
    PX_Smart_Pointer<PX_Plotter_Definition> open(const std::filesystem::path& device,
                                                 PX_Smart_Pointer<PX_Error_Handler> handler) const override;

protected:
    // With the pens and the settings of the choice, in the line patterns of the plotter. From the
    // optimization level 1 the lines of a pen come together, in the order of the pens; at 0 as they are
    // drawn.
    Draw prepare(const PX_Plotter_Definition& device, const Drawing& drawing,
                 const PX_Plotter_Options& options) const override;
};
