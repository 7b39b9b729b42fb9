#include "examples/common/device.h"

#include <utility>

#include "examples/common/made.h"

namespace {

class Described_Device : public PX_Std_Plotter_Definition {
public:
    Described_Device(PX_Smart_Pointer<PX_Error_Handler> handler,
                     PX_Smart_Pointer<PX_Plotter_Class_Factory> factory,
                     const Device_Description& description)
        : PX_Std_Plotter_Definition(std::move(handler)) {
        // The base has made the standard factory, and a validator out of it: both give way, the factory
        // first.
        m_class_factory = std::move(factory);
        m_plotter_validator =
            made(m_class_factory->MK_Create_Plotter_Validator(this), L"m_plotter_validator");

        m_meta_capabilities = description.identity;
        const auto family = m_meta_capabilities->get_family();
        const auto model = m_meta_capabilities->get_model();
        m_plotter_capabilities =
            made(m_class_factory->MK_Create_Plotter_Capabilities(
                     family->get_canonical_name(), family->get_canonical_name(), model->get_canonical_name()),
                 L"m_plotter_capabilities");
        using Root = PX_Plotter_Capabilities;
        using Factory = PX_Plotter_Class_Factory;
        hang_in(&Root::set_init_term_capabilities, description.strings,
                &Factory::MK_Create_InitTerm_Capabilities);
        hang_in(&Root::set_media_capabilities, description.media, &Factory::MK_Create_Media_Capabilities);
        hang_in(&Root::set_phys_pen_capabilities, description.pens, &Factory::MK_Create_Pen_Capabilities);
        hang_in(&Root::set_res_color_mem_capabilities, description.color,
                &Factory::MK_Create_ResColorMem_Capabilities);
        hang_in(&Root::set_io_capabilities, description.ways_out,
                &Factory::MK_Create_Plotter_IO_Capabilities);
        hang_in(&Root::set_custom_capabilities, description.settings,
                &Factory::MK_Create_Custom_Capabilities);
        hang_in(&Root::set_linetype_capabilities, description.linetypes,
                &Factory::MK_Create_Linetype_Capabilities);
        hang_in(&Root::set_raster_capabilities, description.raster, &Factory::MK_Create_Raster_Capabilities);
    }

private:
    template <class Domain>
    void hang_in(void (PX_Plotter_Capabilities::*set)(const Domain*), const PX_Smart_Pointer<Domain>& domain,
                 Domain* (PX_Plotter_Class_Factory::*create)() const) {
        const auto there = domain ? domain : made(((*m_class_factory).*create)(), L"capabilities");
        ((*m_plotter_capabilities).*set)(there.get());
    }
};

}  // namespace

PX_Smart_Pointer<PX_Plotter_Definition> described_device(PX_Smart_Pointer<PX_Error_Handler> handler,
                                                         PX_Smart_Pointer<PX_Plotter_Class_Factory> factory,
                                                         const Device_Description& description) {
    return made<PX_Plotter_Definition>(
        new Described_Device(std::move(handler), std::move(factory), description), L"definition");
}
