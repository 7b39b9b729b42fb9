#include "toolkit/report/run.h"

#include <utility>

#include "toolkit/report/data.h"

PX_Change_Report px_run(PX_Plotter_Definition& plotter, const PX_Configuration_Snapshot& before,
                        const PX_Validation_Order& order, const std::function<void()>& prepare) {
    const auto require_all = [&plotter] {
        px_require_argument(plotter.get_plotter_validator() && plotter.get_plotter_configuration() &&
                                plotter.get_plotter_capabilities(),
                            L"px_run", L"plotter", px_report_file);
    };
    require_all();
    std::optional<PX_Configuration_Snapshot> prepared;
    if (prepare) {
        prepare();
        require_all();
        prepared.emplace(*plotter.get_plotter_configuration());
    }
    std::optional<PX_Exception> failure;
    try {
        plotter.get_plotter_validator()->validate_all(order.strategy, order.policy, order.validate_settable);
    } catch (const PX_Exception& thrown) {
        // Its class goes, as with any that passes an operation.
        failure.emplace(thrown);
    }
    return {before, prepared ? *prepared : before, plotter, order, std::move(failure)};
}
