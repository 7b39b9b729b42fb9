#include "examples/common/placement.h"

#include <algorithm>
#include <stdexcept>

Placement::Placement(const Drawing& drawing, const PX_Plotter_Definition& device) {
    const auto media = device.get_plotter_configuration()->get_media_configuration();
    const auto sheet = media->get_media_settings()->get_media_bounds();
    const auto room = media->get_actual_printable_bounds();
    m_sheet_width = double{sheet->x};
    m_sheet_height = double{sheet->y};
    m_turned = media->get_dm_orientation() == PX_Dm_Orientation::Dm_Orientation_Turned;
    // The bounds count both ends.
    const double width = double{room->x_max} - double{room->x_min} + 1;
    const double height = double{room->y_max} - double{room->y_min} + 1;
    m_scale = std::min(width / drawing.width, height / drawing.height);
    if (!(m_scale > 0) || !(m_sheet_width > 0) || !(m_sheet_height > 0))
        throw std::runtime_error("the chosen sheet has no room for a drawing");
    m_corner = {double{room->x_min} + (width - drawing.width * m_scale) / 2,
                double{room->y_min} + (height - drawing.height * m_scale) / 2};
}

Drawing_Point Placement::operator()(Drawing_Point point) const {
    const Drawing_Point at{m_corner.x + point.x * m_scale, m_corner.y + point.y * m_scale};
    return m_turned ? Drawing_Point{m_sheet_width - at.y, at.x} : at;
}
