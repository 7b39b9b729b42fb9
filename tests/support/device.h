#pragma once

#include <string>

#include "tests/support/test_handler.h"
#include "toolkit/marvcon/marvcon.h"

namespace support {

// A definition with all domains that the library holds, each created by the factory.
class Device {
public:
    Device() : Device(new PX_Std_Plotter_Definition(new Test_Handler)) {}
    explicit Device(PX_Plotter_Definition* plotter) : m_plotter(plotter) {
        const auto factory = plotter->get_class_factory();
        plotter->set_meta_capabilities(factory->MK_Create_Meta_Capabilities());
        PX_Plotter_Capabilities* const caps = factory->MK_Create_Plotter_Capabilities(L"", L"", L"");
        plotter->set_plotter_capabilities(caps);
        caps->set_media_capabilities(PX_Smart_Pointer(factory->MK_Create_Media_Capabilities()).get());
        caps->set_phys_pen_capabilities(PX_Smart_Pointer(factory->MK_Create_Pen_Capabilities()).get());
        caps->set_init_term_capabilities(PX_Smart_Pointer(factory->MK_Create_InitTerm_Capabilities()).get());
        caps->set_res_color_mem_capabilities(
            PX_Smart_Pointer<PX_ResColorMem_Capabilities>(factory->MK_Create_ResColorMem_Capabilities())
                .get());
        caps->set_io_capabilities(
            PX_Smart_Pointer<PX_Plotter_IO_Capabilities>(factory->MK_Create_Plotter_IO_Capabilities()).get());
        caps->set_custom_capabilities(PX_Smart_Pointer(factory->MK_Create_Custom_Capabilities()).get());
        PX_Plotter_Configuration* const cfg = factory->MK_Create_Plotter_Configuration(L"", L"", L"");
        plotter->set_plotter_configuration(cfg);
        cfg->set_media_configuration(PX_Smart_Pointer(factory->MK_Create_Media_Configuration()).get());
        cfg->set_phys_pen_configuration(PX_Smart_Pointer(factory->MK_Create_Pen_Configuration()).get());
        cfg->set_init_term_configuration(PX_Smart_Pointer(factory->MK_Create_InitTerm_Configuration()).get());
        cfg->set_res_color_mem_configuration(
            PX_Smart_Pointer<PX_ResColorMem_Configuration>(factory->MK_Create_ResColorMem_Configuration())
                .get());
        cfg->set_io_configuration(
            PX_Smart_Pointer<PX_Plotter_IO_Configuration>(factory->MK_Create_Plotter_IO_Configuration())
                .get());
        cfg->set_custom_configuration(PX_Smart_Pointer(factory->MK_Create_Custom_Configurations()).get());
    }

    PX_Plotter_Definition* operator->() const { return m_plotter.get(); }
    PX_Plotter_Definition* get() const { return m_plotter.get(); }
    PX_Smart_Pointer<PX_Plotter_Validator> validator() const { return m_plotter->get_plotter_validator(); }
    PX_Smart_Pointer<PX_Media_Capabilities> media_caps() const {
        return m_plotter->get_plotter_capabilities()->get_media_capabilities();
    }
    PX_Smart_Pointer<PX_Media_Configuration> media_cfg() const {
        return m_plotter->get_plotter_configuration()->get_media_configuration();
    }
    PX_Smart_Pointer<PX_PhysPen_Capabilities> pen_caps() const {
        return m_plotter->get_plotter_capabilities()->get_phys_pen_capabilities();
    }
    PX_Smart_Pointer<PX_PhysPen_Configuration> pen_cfg() const {
        return m_plotter->get_plotter_configuration()->get_phys_pen_configuration();
    }
    PX_Smart_Pointer<PX_InitTerm_Capabilities> init_term_caps() const {
        return m_plotter->get_plotter_capabilities()->get_init_term_capabilities();
    }
    PX_Smart_Pointer<PX_InitTerm_Configuration> init_term_cfg() const {
        return m_plotter->get_plotter_configuration()->get_init_term_configuration();
    }
    PX_Smart_Pointer<PX_ResColorMem_Capabilities> rcm_caps() const {
        return m_plotter->get_plotter_capabilities()->get_res_color_mem_capabilities();
    }
    PX_Smart_Pointer<PX_ResColorMem_Configuration> rcm_cfg() const {
        return m_plotter->get_plotter_configuration()->get_res_color_mem_configuration();
    }
    PX_Smart_Pointer<PX_Plotter_IO_Capabilities> io_caps() const {
        return m_plotter->get_plotter_capabilities()->get_io_capabilities();
    }
    PX_Smart_Pointer<PX_Plotter_IO_Configuration> io_cfg() const {
        return m_plotter->get_plotter_configuration()->get_io_configuration();
    }
    PX_Smart_Pointer<PX_Custom_Capabilities> custom_caps() const {
        return m_plotter->get_plotter_capabilities()->get_custom_capabilities();
    }
    PX_Smart_Pointer<PX_Custom_Configurations> custom_cfg() const {
        return m_plotter->get_plotter_configuration()->get_custom_configuration();
    }

private:
    PX_Smart_Pointer<PX_Plotter_Definition> m_plotter;
};

// A driver's definition: its factory, and the validator that this makes, come in after the standard ones.
template <class Factory>
class Definition_With : public PX_Std_Plotter_Definition {
public:
    Definition_With() : PX_Std_Plotter_Definition(new Test_Handler) {
        m_class_factory = new Factory;
        m_plotter_validator = m_class_factory->MK_Create_Plotter_Validator(this);
    }
};

// The bytes of a device string, or "(null)".
inline std::string bytes(const PX_Smart_Pointer<PX_Dev_String>& string) {
    if (!string)
        return "(null)";
    return {reinterpret_cast<const char*>(string->data()), static_cast<std::size_t>(string->length())};
}

inline PX_Dev_String dev_string(const std::string& bytes) {
    return {reinterpret_cast<const unsigned char*>(bytes.data()), static_cast<long>(bytes.size())};
}

}  // namespace support
