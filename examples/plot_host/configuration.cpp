#include "examples/plot_host/configuration.h"

#include "examples/common/made.h"

namespace plot_host {

PX_Smart_Pointer<PX_Plotter_Configuration> new_configuration(const PX_Plotter_Definition& device) {
    const auto factory = device.get_class_factory();
    const auto meta = device.get_meta_capabilities();
    const auto family = meta->get_family();
    auto configuration = made(
        factory->MK_Create_Plotter_Configuration(family->get_canonical_name(), family->get_canonical_name(),
                                                 meta->get_model()->get_canonical_name()),
        L"configuration");
    const auto strings = made(factory->MK_Create_InitTerm_Configuration(), L"init_term_configuration");
    configuration->set_init_term_configuration(strings.get());
    const auto media = made(factory->MK_Create_Media_Configuration(), L"media_configuration");
    configuration->set_media_configuration(media.get());
    const auto pens = made(factory->MK_Create_Pen_Configuration(), L"phys_pen_configuration");
    configuration->set_phys_pen_configuration(pens.get());
    const auto quality = made(factory->MK_Create_ResColorMem_Configuration(), L"res_color_mem_configuration");
    configuration->set_res_color_mem_configuration(quality.get());
    const auto destination = made(factory->MK_Create_Plotter_IO_Configuration(), L"io_configuration");
    configuration->set_io_configuration(destination.get());
    const auto settings = made(factory->MK_Create_Custom_Configurations(), L"custom_configuration");
    configuration->set_custom_configuration(settings.get());
    return configuration;
}

}  // namespace plot_host
