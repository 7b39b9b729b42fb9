#pragma once

#include <memory>

#include "examples/drivers/ppd/ppd_file.h"
#include "toolkit/marvcon/marvcon.h"

// The colour systems of this driver.
struct Ppd_Color_System {
    enum Enum : int {
        Gray = PX_Color_System::Color_System_0,
        Rgb = PX_Color_System::Color_System_2,
        Cmyk = PX_Color_System::Color_System_3,
    };
};

// Resolutions in dots per inch, memory in megabytes.
//
// - Each choice of the colour model is a colour mode; a file without one has the one mode of a colour or a
//   monochrome device. What a choice is called says what it is, and what it does not say is as the device.
// - Every mode has all resolutions of the file, and none where the file has none.
// - The device dithers: one method, which every resolution names.
// - Each choice of the installed memory is a memory area.
// - A PostScript device always overwrites.
PX_Smart_Pointer<PX_ResColorMem_Capabilities> ppd_res_color_mem_capabilities(
    const Ppd_File& file, const PX_Plotter_Class_Factory& factory);

// The keywords of the options that are told above.
std::vector<std::string> ppd_res_color_mem_keywords(const Ppd_File& file);

// Memory that no area of the device has gives way to what the file takes for installed. All else is standard.
class Ppd_ResColorMem_Validator : public PX_Std_ResColorMem_Validator {
public:
    // The definition owns the validator and outlives it.
    Ppd_ResColorMem_Validator(PX_Plotter_Definition* plotter, std::shared_ptr<const Ppd_File> file);

    void set_installed_memory_to_default() override;

private:
    std::shared_ptr<const Ppd_File> m_file;
};
