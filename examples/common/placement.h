#pragma once

#include "examples/common/drawing.h"
#include "toolkit/marvcon/marvcon.h"

// Where a drawing lies on the sheet that a device's configuration holds: as large as the actual printable
// bounds let it be, in their middle, turned where the configuration turns. The measures are the device's.
class Placement {
public:
    // Throws std::runtime_error, one line for the user, for a sheet that has no room.
    Placement(const Drawing& drawing, const PX_Plotter_Definition& device);

    // Of the sheet as the device feeds it.
    double sheet_width() const { return m_sheet_width; }
    double sheet_height() const { return m_sheet_height; }
    double scale() const { return m_scale; }
    Drawing_Point operator()(Drawing_Point point) const;

private:
    double m_sheet_width = 0;
    double m_sheet_height = 0;
    double m_scale = 1;
    Drawing_Point m_corner{};
    bool m_turned = false;
};
