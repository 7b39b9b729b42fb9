#include "toolkit/report/dry_run.h"

#include "toolkit/core/fields.h"
#include "toolkit/report/data.h"
#include "toolkit/report/run.h"

namespace {

constexpr const wchar_t* function = L"px_dry_run";

// Puts the two roots back that the definition holds now.
class Put_Back {
public:
    explicit Put_Back(PX_Plotter_Definition& plotter)
        : m_plotter(plotter),
          m_capabilities(plotter.get_plotter_capabilities()),
          m_configuration(plotter.get_plotter_configuration()) {}
    Put_Back(const Put_Back&) = delete;
    Put_Back& operator=(const Put_Back&) = delete;
    // Both are counted here, so that taking them takes no memory.
    ~Put_Back() {
        m_plotter.set_plotter_capabilities(m_capabilities.get());
        m_plotter.set_plotter_configuration(m_configuration.get());
    }

private:
    PX_Plotter_Definition& m_plotter;
    const PX_Smart_Pointer<PX_Plotter_Capabilities> m_capabilities;
    const PX_Smart_Pointer<PX_Plotter_Configuration> m_configuration;
};

// The clone leaves the flags of the overwriting behind, by which a run decides.
void copy_overwriting_flags(const PX_Plotter_Configuration& from, const PX_Plotter_Configuration& to) {
    constexpr auto flag = PX_ResColorMem_Config_Flags::RCM_Cfg_Lines_Overwrite;
    const auto source = px_reported(from, &PX_Plotter_Configuration::get_res_color_mem_configuration);
    const auto clone = px_reported(to, &PX_Plotter_Configuration::get_res_color_mem_configuration);
    clone->set_one_validated(source->get_one_validated(flag), flag);
    clone->set_one_default(source->get_one_default(flag), flag);
}

}  // namespace

PX_Change_Report px_dry_run(PX_Plotter_Definition& plotter, const PX_Plotter_Configuration& choice,
                            const PX_Validation_Order& order, const std::function<void()>& prepare) {
    const auto offered = plotter.get_plotter_capabilities();
    px_require_argument(offered && plotter.get_plotter_validator(), function, L"plotter", px_report_file);
    const PX_Configuration_Snapshot before(choice);
    PX_Smart_Pointer<PX_Plotter_Configuration> configuration;
    px_store_clone(configuration, &choice, function, L"configuration", px_report_file);
    copy_overwriting_flags(choice, *configuration);
    PX_Smart_Pointer<PX_Plotter_Capabilities> capabilities;
    px_store_clone(capabilities, offered.get(), function, L"capabilities", px_report_file);

    const Put_Back put_back(plotter);
    plotter.set_plotter_capabilities(capabilities.get());
    plotter.set_plotter_configuration(configuration.get());
    return px_run(plotter, before, order, prepare);
}
