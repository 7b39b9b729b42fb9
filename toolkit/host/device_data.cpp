#include "toolkit/host/device_data.h"

PX_Renderer_Data::~PX_Renderer_Data() = default;

PX_Device_Data::~PX_Device_Data() = default;
