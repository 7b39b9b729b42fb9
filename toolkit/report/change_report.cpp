#include "toolkit/report/change_report.h"

#include <algorithm>
#include <utility>

#include "toolkit/report/data.h"

namespace {

using Kind = PX_Change_Kind;
using Action = PX_Validator_Action;
using Strategy = PX_Validation_Strategy;

bool goes_to_nearest(const PX_Report_Datum& datum, const PX_Reported_Run& run, Strategy::Enum strategy) {
    if (datum.goes_to_nearest)
        return datum.goes_to_nearest(strategy, run.capabilities);
    return datum.repair == PX_Repair::To_Nearest && strategy != Strategy::Use_Default;
}

// What the default operation has made of a datum that was not looked at.
Kind::Enum kind_of_default(const PX_Report_Datum& datum, const PX_Report_State& state,
                           const PX_Reported_Run& run) {
    // The default operation marks a default, and a run that fails may not have come to it.
    if (datum.keeps_at_default && (datum.keeps_at_default(run.capabilities) || !state.is_default))
        return Kind::Followed;
    // What the device does not have at all is cleared, which marks no default either.
    const bool is_had = state.gate != PX_Ability_Value::Ability_None;
    return is_had && !state.is_default && goes_to_nearest(datum, run, Strategy::Use_Default)
               ? Kind::To_Nearest
               : Kind::Reset;
}

// How the run has come from one value to another.
Kind::Enum kind_of(const PX_Report_Datum& datum, const PX_Report_State& state, const PX_Reported_Run& run,
                   const PX_Validation_Order& order) {
    // Custom data have no ability: they are always validated.
    const auto action = state.gate ? px_validator_action(*state.gate, order.policy, order.validate_settable)
                                   : Action::Validate;
    if (action == Action::Set_To_Default)
        return kind_of_default(datum, state, run);
    if (state.is_raised && datum.repair == PX_Repair::By_Own_Rule)
        return Kind::Put_Right;
    // A driver's rule may take the default without a bit, which the flag tells where it belongs to this very
    // value.
    if (state.is_default && (state.is_raised || (action == Action::Validate && datum.flag_follows_value)))
        return Kind::To_Default;
    if (!state.is_raised)
        return Kind::Followed;
    return goes_to_nearest(datum, run, order.strategy) ? Kind::To_Nearest : Kind::Put_Right;
}

PX_Datum_Change row_of(const PX_Report_Datum& datum, const PX_Configuration_Snapshot& before,
                       const PX_Reported_Run& run, const PX_Validation_Order& order) {
    PX_Datum_Change row;
    row.datum = datum.id;
    row.name = datum.title ? datum.title(run.capabilities) : datum.name;
    if (const PX_Datum_Value* const was = before.find(datum.id))
        row.before = *was;
    PX_Value_Words words = datum.value(run.configuration);
    row.after = {datum.id, datum.name, std::move(words.exact), std::move(words.shown)};

    const PX_Report_State state = datum.state(run);
    row.ability = state.ability;
    row.ability_number = datum.ability_number;
    row.gate = state.gate;
    row.change_bits = state.change_bits;
    row.is_raised = state.is_raised;
    row.is_validated = state.validated;
    row.is_default = state.is_default;
    const PX_Datum_Value* const found = run.before.find(datum.id);
    const bool is_left = found && found->exact == row.after->exact;
    if (found && !is_left && (!row.before || found->exact != row.before->exact))
        row.prepared = *found;
    if (!row.before)
        row.kind = Kind::Appeared;
    else if (row.before->exact != row.after->exact)
        row.kind = is_left ? Kind::Prepared : kind_of(datum, state, run, order);
    else if (row.prepared)
        row.kind = kind_of(datum, state, run, order);
    if (row.kind == Kind::To_Nearest && datum.score)
        row.score = datum.score(run);
    return row;
}

}  // namespace

PX_Change_Report::PX_Change_Report(const PX_Configuration_Snapshot& before,
                                   const PX_Plotter_Definition& plotter, const PX_Validation_Order& order)
    : PX_Change_Report(before, before, plotter, order) {
}

PX_Change_Report::PX_Change_Report(const PX_Configuration_Snapshot& before,
                                   const PX_Configuration_Snapshot& prepared,
                                   const PX_Plotter_Definition& plotter, const PX_Validation_Order& order,
                                   std::optional<PX_Exception> failure)
    : m_failure(std::move(failure)) {
    constexpr const wchar_t* function = L"PX_Change_Report::PX_Change_Report";
    const auto capabilities = plotter.get_plotter_capabilities();
    const auto configuration = plotter.get_plotter_configuration();
    const auto validator = plotter.get_plotter_validator();
    px_require_argument(capabilities && configuration && validator, function, L"plotter", px_report_file);
    const PX_Reported_Run run = {prepared, *capabilities, *configuration, *validator};
    for (const PX_Report_Datum& datum : px_report_data(*configuration))
        m_rows.push_back(row_of(datum, before, run, order));
    for (const PX_Datum_Value& was : before.get_values()) {
        if (find(was.datum))
            continue;
        PX_Datum_Change row;
        row.datum = was.datum;
        row.name = was.name;
        row.before = was;
        row.kind = Kind::Gone;
        m_rows.push_back(std::move(row));
    }
    m_config_changed = validator->get_config_changed();
    m_caps_changed = validator->get_caps_changed();
}

const PX_Datum_Change* PX_Change_Report::find(const PX_Datum_Id& datum) const& {
    const auto found = std::ranges::find(m_rows, datum, &PX_Datum_Change::datum);
    return found == m_rows.end() ? nullptr : &*found;
}

long PX_Change_Report::get_changed() const {
    return static_cast<long>(std::ranges::count_if(m_rows, &PX_Datum_Change::is_changed));
}

long PX_Change_Report::get_silent() const {
    return static_cast<long>(std::ranges::count_if(m_rows, &PX_Datum_Change::is_silent));
}

long PX_Change_Report::count(PX_Change_Kind::Enum kind) const {
    return static_cast<long>(std::ranges::count(m_rows, kind, &PX_Datum_Change::kind));
}
