#include "toolkit/marvcon/std_phys_pen_cfg/capabilities.h"

#include "toolkit/core/clamps.h"
#include "toolkit/core/clone.h"
#include "toolkit/marvcon/std_phys_pen_cfg/pen_limits.h"

PX_PhysPen_Capabilities::~PX_PhysPen_Capabilities() = default;

void PX_Std_PhysPen_Capabilities::set_max_number_of_physical_pens(long number) {
    px_store_or_repair(m_device.max_number_of_physical_pens, number, number >= 0, 0L, PX_Pen_Code::Max_Number,
                       L"PX_Std_PhysPen_Capabilities::set_max_number_of_physical_pens");
}

void PX_Std_PhysPen_Capabilities::set_max_pen_width(float width) {
    px_store_or_repair(m_device.max_pen_width, width,
                       px_is_pen_width(width) && width >= m_device.min_pen_width, m_device.min_pen_width,
                       PX_Pen_Code::Max_Width, L"PX_Std_PhysPen_Capabilities::set_max_pen_width");
}

void PX_Std_PhysPen_Capabilities::set_min_pen_width(float width) {
    px_store_or_repair(m_device.min_pen_width, width,
                       px_is_pen_width(width) && width <= m_device.max_pen_width, px_least_pen_width,
                       PX_Pen_Code::Min_Width, L"PX_Std_PhysPen_Capabilities::set_min_pen_width");
}

void PX_Std_PhysPen_Capabilities::set_max_pen_speed(float speed) {
    px_store_or_repair(m_device.max_pen_speed, speed,
                       px_is_pen_speed(speed) && speed >= m_device.min_pen_speed, m_device.min_pen_speed,
                       PX_Pen_Code::Max_Speed, L"PX_Std_PhysPen_Capabilities::set_max_pen_speed");
}

void PX_Std_PhysPen_Capabilities::set_min_pen_speed(float speed) {
    px_store_or_repair(m_device.min_pen_speed, speed,
                       px_is_pen_speed(speed) && speed <= m_device.max_pen_speed, 0.0F,
                       PX_Pen_Code::Min_Speed, L"PX_Std_PhysPen_Capabilities::set_min_pen_speed");
}

void PX_Std_PhysPen_Capabilities::set_max_pen_optimization(int level) {
    m_device.max_pen_optimization = px_not_negative(level);
}

void PX_Std_PhysPen_Capabilities::set_default_num_of_phys_pens(long number) {
    m_device.default_num_of_phys_pens = px_not_negative(number);
}

// No limit lies below that of all pens, so that a value within them is a width or a speed.
void PX_Std_PhysPen_Capabilities::set_default_pen_width(float width) {
    m_device.default_pen_width =
        px_within_or(width, m_device.min_pen_width, m_device.max_pen_width, m_device.min_pen_width);
}

void PX_Std_PhysPen_Capabilities::set_default_pen_speed(float speed) {
    m_device.default_pen_speed =
        px_within_or(speed, m_device.min_pen_speed, m_device.max_pen_speed, m_device.min_pen_speed);
}

void PX_Std_PhysPen_Capabilities::set_default_pen_optimization(int level) {
    m_device.default_pen_optimization = px_within_or(level, 0, m_device.max_pen_optimization, 0);
}

PX_PhysPen_Capabilities* PX_Std_PhysPen_Capabilities::clone() const {
    return px_clone<PX_Std_PhysPen_Capabilities>(L"PX_Std_PhysPen_Capabilities::clone",
                                                 px_std_phys_pen_cfg_source.file_tag, [this](auto& new_one) {
                                                     // Not by the setters, whose limits are of the moment.
                                                     new_one.m_device = m_device;
                                                     new_one.set_abilities(get_abilities());
                                                     new_one.set_caps_state(get_caps_state());
                                                     new_one.set_ui_owner(get_ui_owner());
                                                 });
}
