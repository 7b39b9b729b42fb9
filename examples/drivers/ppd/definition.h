#pragma once

#include <filesystem>
#include <memory>

#include "examples/drivers/ppd/ppd_file.h"
#include "toolkit/marvcon/marvcon.h"

// Makes the standard classes, and the driver's own where the description has a say.
class Ppd_Class_Factory : public PX_Std_Plotter_Class_Factory {
public:
    explicit Ppd_Class_Factory(std::shared_ptr<const Ppd_File> file);

    PX_Media_Validator* MK_Create_Media_Validator(PX_Plotter_Definition* plotter) const override;
    PX_InitTerm_Validator* MK_Create_InitTerm_Validator(PX_Plotter_Definition* plotter) const override;
    PX_ResColorMem_Validator* MK_Create_ResColorMem_Validator(PX_Plotter_Definition* plotter) const override;

private:
    std::shared_ptr<const Ppd_File> m_file;
};

// A device with its meta capabilities and capabilities; the configuration is the host's to set.
class Ppd_Definition : public PX_Std_Plotter_Definition {
public:
    Ppd_Definition(PX_Smart_Pointer<PX_Error_Handler> handler, std::shared_ptr<const Ppd_File> file);
};

// The device that a description tells of. Throws Ppd_Error for a file that cannot be used.
PX_Smart_Pointer<PX_Plotter_Definition> open_ppd_device(const std::filesystem::path& description,
                                                        PX_Smart_Pointer<PX_Error_Handler> handler);
