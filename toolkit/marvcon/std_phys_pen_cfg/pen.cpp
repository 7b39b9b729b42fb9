#include "toolkit/marvcon/std_phys_pen_cfg/pen.h"

#include "toolkit/marvcon/std_phys_pen_cfg/pen_limits.h"

PX_Pen::~PX_Pen() = default;

void PX_Std_Pen::set_pen_color(const PX_RGB32* color) {
    px_store_value(m_pen_color, color, L"PX_Std_Pen::set_pen_color", L"m_pen_color", naming.file);
}

void PX_Std_Pen::set_pen_width(float width) {
    px_store_or_repair(m_pen_width, width, px_is_pen_width(width), px_least_pen_width, PX_Pen_Code::Pen_Width,
                       L"PX_Std_Pen::set_pen_width");
}

void PX_Std_Pen::set_pen_speed(float speed) {
    px_store_or_repair(m_pen_speed, speed, px_is_pen_speed(speed), 0.0F, PX_Pen_Code::Pen_Speed,
                       L"PX_Std_Pen::set_pen_speed");
}

void PX_Std_Pen::copy_properties_to(PX_Pen& new_one) const {
    new_one.set_pen_color(m_pen_color.get());
    new_one.set_pen_width(m_pen_width);
    new_one.set_pen_speed(m_pen_speed);
}
