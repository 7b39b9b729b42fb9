#pragma once

#include "examples/common/driver.h"

// Any device that a PostScript printer description tells of.
class Ppd_Driver : public Driver {
public:
    PX_Smart_Pointer<PX_Plotter_Definition> open(const std::filesystem::path& device,
                                                 PX_Smart_Pointer<PX_Error_Handler> handler) const override;
    // The default of the installed memory is the file's, one of the device's areas, and not 0.
    std::vector<PX_Device_Finding> check(const PX_Plotter_Definition& device) const override;

protected:
    void set_up_job(const PX_Plotter_Definition& device, Plot_Output& output) const override;
    // One page of PostScript, the chosen settings of the device before it.
    Draw prepare(const PX_Plotter_Definition& device, const Drawing& drawing,
                 const PX_Plotter_Options& options) const override;
};
