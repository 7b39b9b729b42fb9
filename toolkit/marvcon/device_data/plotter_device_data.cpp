#include "toolkit/marvcon/device_data/plotter_device_data.h"

PX_Plotter_Device_Data::PX_Plotter_Device_Data()
    : m_plotter_options(get_options()), m_current_plotter_options(get_current_options()) {
}

PX_Plotter_Device_Data::~PX_Plotter_Device_Data() = default;
