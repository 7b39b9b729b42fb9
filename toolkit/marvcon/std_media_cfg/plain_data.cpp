#include "toolkit/marvcon/std_media_cfg/datum.h"
#include "toolkit/marvcon/std_media_cfg/validator.h"

// The data without a catalogue: single conditions, and no nearest search.

using Ability = PX_Media_Ability_Flags;
using Cfg = PX_Media_Config_Flags;
using Change = PX_Media_Change;
using Strategy = PX_Validation_Strategy;

void PX_Std_Media_Validator::validate_number_of_copies(Strategy::Enum strategy) {
    const PX_Media_Datum datum(m_plotter, L"PX_Std_Media_Validator::validate_number_of_copies");
    const long copies = datum.configuration->get_number_of_copies();
    const long most = datum.capabilities->get_max_number_of_copies();
    if (copies < 1 || copies > most) {
        datum.repair(Change::Number_Of_Copies, [&] {
            if (strategy == Strategy::Use_Nearest && copies > most)
                datum.configuration->set_number_of_copies(most);
            else
                set_number_of_copies_to_default();
        });
    }
    datum.settle(Cfg::Cfg_Number_Of_Copies);
}

void PX_Std_Media_Validator::validate_duplexing(Strategy::Enum /*strategy*/) {
    const PX_Media_Datum datum(m_plotter, L"PX_Std_Media_Validator::validate_duplexing");
    const long mode = datum.configuration->get_duplexing_mode();
    if (!(mode & datum.capabilities->get_duplexing_modes()))
        datum.repair(Change::Duplexing, [&] { set_duplexing_to_default(); });
    datum.settle(Cfg::Cfg_Duplexing);
}

void PX_Std_Media_Validator::validate_longplot_reduction(Strategy::Enum /*strategy*/) {
    const PX_Media_Datum datum(m_plotter, L"PX_Std_Media_Validator::validate_longplot_reduction");
    if (datum.configuration->get_longplot_reduction() < 1.0)
        datum.repair(Change::Longplot_Reduction, [&] { set_longplot_reduction_to_default(); });
    datum.settle(Cfg::Cfg_Longplot_Reduction);
}

void PX_Std_Media_Validator::validate_dm_scale(Strategy::Enum /*strategy*/) {
    const PX_Media_Datum datum(m_plotter, L"PX_Std_Media_Validator::validate_dm_scale");
    const long scale = datum.configuration->get_dm_scale();
    if (scale < px_dm_scale_min || scale > px_dm_scale_max)
        datum.repair(Change::Dm_Scale, [&] { set_dm_scale_to_default(); });
    datum.settle(Cfg::Cfg_Dm_Scale);
}

void PX_Std_Media_Validator::validate_dm_orientation(Strategy::Enum /*strategy*/) {
    const PX_Media_Datum datum(m_plotter, L"PX_Std_Media_Validator::validate_dm_orientation");
    const long orientation = datum.configuration->get_dm_orientation();
    if (orientation != PX_Dm_Orientation::Dm_Orientation_Upright &&
        orientation != PX_Dm_Orientation::Dm_Orientation_Turned)
        datum.repair(Change::Dm_Orientation, [&] { set_dm_orientation_to_default(); });
    datum.settle(Cfg::Cfg_Dm_Orientation);
}

namespace {

// Puts each number that lies outside the printable bounds back on them: against those bounds alone, not
// against the other numbers of the rectangle, and whatever the dm orientation. True when one was put back.
bool clamp(PX_Float_Rectangle& r, const PX_Float_Rectangle& printable) {
    bool clamped = false;
    const auto put_back = [&](float& number, bool fails, float bound) {
        if (fails)
            number = bound;
        clamped |= fails;
    };
    put_back(r.x_min, r.x_min < printable.x_min || !(r.x_min < printable.x_max), printable.x_min);
    put_back(r.x_max, r.x_max > printable.x_max || !(r.x_max > printable.x_min), printable.x_max);
    put_back(r.y_max, r.y_max > printable.y_max || !(r.y_max > printable.y_min), printable.y_max);
    put_back(r.y_min, r.y_min < printable.y_min || !(r.y_min < printable.y_max), printable.y_min);
    return clamped;
}

}  // namespace

void PX_Std_Media_Validator::validate_margins(Strategy::Enum /*strategy*/) {
    const PX_Media_Datum datum(m_plotter, L"PX_Std_Media_Validator::validate_margins");
    const auto margins = datum.configuration->get_margins();
    const auto size = px_configured_size(datum);
    if (!margins || !size)
        datum.fail(PX_Code::Null_Argument, L"margins");
    const auto description = px_description_of(datum, size);
    if (!px_is_there(description))
        datum.fail(PX_Code::Null_Argument, L"description_list");
    PX_Float_Rectangle bounds = *margins;
    if (clamp(bounds, *description->get_printable_bounds()))
        datum.repair(Change::Margins, [&] { datum.configuration->set_margins(&bounds); });
    datum.settle(Cfg::Cfg_Margins);
}

void PX_Std_Media_Validator::validate_actual_printable_bounds(Strategy::Enum /*strategy*/) {
    const PX_Media_Datum datum(m_plotter, L"PX_Std_Media_Validator::validate_actual_printable_bounds");
    const auto size = px_configured_size(datum);
    if (!size)
        datum.fail(PX_Code::Null_Argument, L"newsize");
    const auto description = px_description_of(datum, size);
    const auto actual = datum.configuration->get_actual_printable_bounds();
    // A withdrawn description serves here.
    if (!description || !actual)
        datum.fail(PX_Code::Null_Argument, L"bounds");
    PX_Float_Rectangle bounds = *actual;
    if (clamp(bounds, *description->get_printable_bounds()))
        datum.repair(Change::Actual_Printable_Bounds,
                     [&] { datum.configuration->set_actual_printable_bounds(&bounds); });
    datum.settle(Cfg::Cfg_Actual_Printable_Bounds);
}

void PX_Std_Media_Validator::set_number_of_copies_to_default() {
    const PX_Media_Datum datum(m_plotter, L"PX_Std_Media_Validator::set_number_of_copies_to_default");
    if (datum.is_above_none(Ability::Ability_Number_Of_Copies))
        datum.call([&] { datum.configuration->set_number_of_copies(1); });
    datum.settle_default(Cfg::Cfg_Number_Of_Copies);
}

void PX_Std_Media_Validator::set_duplexing_to_default() {
    const PX_Media_Datum datum(m_plotter, L"PX_Std_Media_Validator::set_duplexing_to_default");
    if (datum.is_above_none(Ability::Ability_Duplexing)) {
        const auto mode = datum.capabilities->get_default_duplexing_mode();
        if (!(mode & datum.capabilities->get_duplexing_modes()))
            datum.fail(PX_Media_Code::Default_Duplexing);
        datum.call([&] { datum.configuration->set_duplexing_mode(mode); });
    }
    datum.settle_default(Cfg::Cfg_Duplexing);
}

void PX_Std_Media_Validator::set_longplot_reduction_to_default() {
    const PX_Media_Datum datum(m_plotter, L"PX_Std_Media_Validator::set_longplot_reduction_to_default");
    if (datum.is_above_none(Ability::Ability_Longplot_Reduction)) {
        const double factor = datum.capabilities->get_default_longplot_reduction();
        // Accepted from 0.0 on, though a factor below 1.0 fails at the next run: a driver gives at least 1.0.
        if (factor < 0.0)
            datum.fail(PX_Media_Code::Default_Longplot_Reduction);
        datum.call([&] { datum.configuration->set_longplot_reduction(factor); });
    }
    datum.settle_default(Cfg::Cfg_Longplot_Reduction);
}

void PX_Std_Media_Validator::set_dm_scale_to_default() {
    const PX_Media_Datum datum(m_plotter, L"PX_Std_Media_Validator::set_dm_scale_to_default");
    if (datum.is_above_none(Ability::Ability_Dm_Scale)) {
        const long scale = datum.capabilities->get_default_dm_scale();
        if (scale < px_dm_scale_min || scale > px_dm_scale_max)
            datum.fail(PX_Media_Code::Default_Dm_Scale);
        datum.call([&] { datum.configuration->set_dm_scale(scale); });
    }
    datum.settle_default(Cfg::Cfg_Dm_Scale);
}

void PX_Std_Media_Validator::set_dm_orientation_to_default() {
    const PX_Media_Datum datum(m_plotter, L"PX_Std_Media_Validator::set_dm_orientation_to_default");
    constexpr long upright = PX_Dm_Orientation::Dm_Orientation_Upright;
    if (datum.is_above_none(Ability::Ability_Dm_Orientation))
        datum.call([&] { datum.configuration->set_dm_orientation(upright); });
    datum.settle_default(Cfg::Cfg_Dm_Orientation);
}

namespace {

// The printable bounds of the configured size, unturned whatever the dm orientation. Nothing is written
// unless the abilities of both the size and the margins allow.
template <class Write>
void write_printable_bounds(const PX_Media_Datum& datum, Write write) {
    if (!datum.is_listed(Ability::Ability_Media_Size_Default) ||
        !datum.is_listed(Ability::Ability_Media_Margins_Default))
        return;
    const auto description = px_description_of(datum, px_configured_size(datum));
    // Size and description are there by now; a caller that comes too early gets an error rather than a crash.
    if (!description)
        datum.fail(PX_Code::Null_Argument, L"newsize");
    datum.call([&] { write(description->get_printable_bounds().get()); });
}

}  // namespace

void PX_Std_Media_Validator::set_margins_to_default() {
    const PX_Media_Datum datum(m_plotter, L"PX_Std_Media_Validator::set_margins_to_default");
    write_printable_bounds(
        datum, [&](const PX_Float_Rectangle* bounds) { datum.configuration->set_margins(bounds); });
    datum.settle_default(Cfg::Cfg_Margins);
}

void PX_Std_Media_Validator::set_actual_printable_bounds_to_default() {
    const PX_Media_Datum datum(m_plotter, L"PX_Std_Media_Validator::set_actual_printable_bounds_to_default");
    write_printable_bounds(datum, [&](const PX_Float_Rectangle* bounds) {
        datum.configuration->set_actual_printable_bounds(bounds);
    });
    datum.settle_default(Cfg::Cfg_Actual_Printable_Bounds);
}
