#include "toolkit/report/device_check.h"

#include "toolkit/report/domain_checks.h"

using Fault = PX_Device_Fault;
using Mask = PX_Domain_Mask;

namespace {

class Device_Check {
public:
    explicit Device_Check(const PX_Plotter_Definition& device)
        : m_factory(device.get_class_factory()),
          m_identity(device.get_meta_capabilities()),
          m_root(device.get_plotter_capabilities()) {
        const PX_Findings found(m_findings, 0);
        const auto require = [&](const auto& object, const wchar_t* name, const wchar_t* detail) {
            if (!object)
                found.throws(name, Fault::Object_Missing, PX_Code::Null_Argument, detail);
        };
        require(device.get_plotter_validator(), L"plotter validator", L"plotter validator");
        require(m_root, L"capabilities", L"plotter_caps or plotter_cfg");
    }

    std::vector<PX_Device_Finding> run() && {
        if (!m_root)
            return std::move(m_findings);
        const auto* const identity = m_identity.get();
        check(m_root->get_media_capabilities(), Mask::Media, L"media_caps or media_cfg", px_check_media);
        check(m_root->get_phys_pen_capabilities(), Mask::Phys_Pens, L"pen_caps or pen_cfg",
              [&](const auto& device, const auto& found) { px_check_pens(device, m_factory.get(), found); });
        check(m_root->get_res_color_mem_capabilities(), Mask::Res_Color_Mem, L"rcm_caps or rcm_config",
              [&](const auto& device, const auto& found) { px_check_color(device, identity, found); });
        check(m_root->get_init_term_capabilities(), Mask::Init_Term, L"initterm_caps or initterm_cfg",
              px_check_init_term);
        check(m_root->get_io_capabilities(), Mask::IO, L"io caps or io cfg",
              [&](const auto& device, const auto& found) { px_check_output(device, identity, found); });
        check(m_root->get_custom_capabilities(), Mask::Custom, L"custom_caps or custom_cfg", px_check_custom);
        return std::move(m_findings);
    }

private:
    template <class Domain, class Check>
    void check(const PX_Smart_Pointer<Domain>& domain, Mask::Enum bit, const wchar_t* detail,
               Check check_domain) {
        const PX_Findings found(m_findings, bit);
        if (domain)
            check_domain(*domain, found);
        else
            found.throws(L"capabilities", Fault::Object_Missing, PX_Code::Null_Argument, detail);
    }

    std::vector<PX_Device_Finding> m_findings;
    PX_Smart_Pointer<PX_Plotter_Class_Factory> m_factory;
    PX_Smart_Pointer<PX_Meta_Capabilities> m_identity;
    PX_Smart_Pointer<PX_Plotter_Capabilities> m_root;
};

}  // namespace

std::vector<PX_Device_Finding> px_check_device(const PX_Plotter_Definition& device) {
    return Device_Check(device).run();
}
