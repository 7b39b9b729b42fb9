#pragma once

#include "toolkit/marvcon/marvcon.h"

// What a driver says of its device, made by the device's own factory. Null stands for a domain that the
// device lacks: it gets capabilities that say so.
struct Device_Description {
    PX_Smart_Pointer<PX_Meta_Capabilities> identity;
    PX_Smart_Pointer<PX_InitTerm_Capabilities> strings = nullptr;
    PX_Smart_Pointer<PX_Media_Capabilities> media = nullptr;
    PX_Smart_Pointer<PX_PhysPen_Capabilities> pens = nullptr;
    PX_Smart_Pointer<PX_ResColorMem_Capabilities> color = nullptr;
    PX_Smart_Pointer<PX_Plotter_IO_Capabilities> ways_out = nullptr;
    PX_Smart_Pointer<PX_Custom_Capabilities> settings = nullptr;
    PX_Smart_Pointer<PX_Linetype_Capabilities> linetypes = nullptr;
    PX_Smart_Pointer<PX_Raster_Capabilities> raster = nullptr;
};

// The device with its meta capabilities and capabilities; the configuration is the host's to set. Its
// validators are made by the factory.
PX_Smart_Pointer<PX_Plotter_Definition> described_device(PX_Smart_Pointer<PX_Error_Handler> handler,
                                                         PX_Smart_Pointer<PX_Plotter_Class_Factory> factory,
                                                         const Device_Description& description);
