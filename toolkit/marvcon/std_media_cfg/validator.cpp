#include "toolkit/marvcon/std_media_cfg/validator.h"

#include "toolkit/marvcon/std_media_cfg/datum.h"
#include "toolkit/marvcon/std_media_cfg/largest_sheet.h"

// The tests of the selection chain: method, type, source, entry, size, destination. Each later datum relies
// on the earlier ones.

using Ability = PX_Media_Ability_Flags;
using Cfg = PX_Media_Config_Flags;
using Change = PX_Media_Change;
using Strategy = PX_Validation_Strategy;

PX_Media_Validator::~PX_Media_Validator() = default;

PX_Std_Media_Validator::PX_Std_Media_Validator(PX_Plotter_Definition* plotter) : m_plotter(plotter) {
}

void PX_Std_Media_Validator::validate_selection_method(Strategy::Enum /*strategy*/) {
    const PX_Media_Datum datum(m_plotter, L"PX_Std_Media_Validator::validate_selection_method");
    const long method = datum.configuration->get_media_selection_method();
    if (!(method & datum.capabilities->get_media_selection_methods()))
        datum.repair(Change::Selection_Method, [&] { set_selection_method_to_default(); });
    datum.settle(Cfg::Cfg_Selection_Method);
}

void PX_Std_Media_Validator::validate_type(Strategy::Enum strategy) {
    const PX_Media_Datum datum(m_plotter, L"PX_Std_Media_Validator::validate_type");
    const auto types = datum.capabilities->get_media_type_list();
    if (!types)
        datum.fail(PX_Media_Code::No_Types);
    const auto stands = [&] {
        const wchar_t* const name = datum.configuration->get_media_type();
        const auto type = types->find(name) ? datum.capabilities->get_media_type(name) : nullptr;
        if (!px_is_there(type))
            return false;
        const auto had = px_media_snapshot(datum);
        return had->get_drying_time() == type->get_drying_time() &&
               *had->get_max_resolution() == *type->get_max_resolution();
    };
    if (!stands())
        datum.repair(Change::Type, [&] { strategy ? set_type_to_nearest() : set_type_to_default(); });
    datum.settle(Cfg::Cfg_Media_Type);
}

void PX_Std_Media_Validator::validate_source(Strategy::Enum strategy) {
    const PX_Media_Datum datum(m_plotter, L"PX_Std_Media_Validator::validate_source");
    const auto sources = datum.capabilities->get_media_source_list();
    if (!sources)
        datum.fail(PX_Media_Code::No_Sources);
    const auto stands = [&] {
        const auto source = sources->find(datum.configuration->get_media_source());
        if (!px_is_there(source))
            return false;
        // A feed that was never set is not valid, even where the source has none either.
        const auto feed = px_media_snapshot(datum)->get_media_feed();
        return feed != PX_Media_Feed::Media_Feed_Unset && feed == source->get_media_feed();
    };
    if (!stands())
        datum.repair(Change::Source, [&] { strategy ? set_source_to_nearest() : set_source_to_default(); });
    datum.settle(Cfg::Cfg_Media_Source);
}

void PX_Std_Media_Validator::validate_source_entry(Strategy::Enum strategy) {
    const PX_Media_Datum datum(m_plotter, L"PX_Std_Media_Validator::validate_source_entry");
    // A device without sources has nothing to check here.
    if (*datum.configuration->get_media_source() == L'\0')
        return datum.settle(Cfg::Cfg_Media_Source_Entry);
    const auto source = px_configured_source(datum);
    // Without its source an entry is nothing that could be repaired: the setter reports it.
    if (!source)
        datum.call([&] { datum.configuration->set_media_source_entry(nullptr); });
    const auto entries = source->get_source_entry_list();
    if (!entries)
        datum.fail(PX_Media_Code::No_Entries);
    const auto stands = [&] {
        const auto entry = entries->find(datum.configuration->get_media_source_entry());
        if (!px_is_there(entry))
            return false;
        const auto had = px_media_snapshot(datum);
        return had->get_source_width() == entry->get_source_width() &&
               had->get_source_frame_height() == entry->get_source_frame_height();
    };
    if (!stands())
        datum.repair(Change::Source_Entry,
                     [&] { strategy ? set_source_entry_to_nearest() : set_source_entry_to_default(); });
    datum.settle(Cfg::Cfg_Media_Source_Entry);
}

namespace {

bool is_withdrawn(const auto& entry) {
    return entry && !px_is_there(entry);
}

// Whether the sheet of the configured size is there and within the largest one that the device takes. What is
// missing is reported where it is needed.
template <class Fits>
bool sheet_fits(const PX_Media_Datum& datum, Fits fits) {
    const auto size = px_configured_size(datum);
    const auto description = px_description_of(datum, size);
    if (is_withdrawn(size) || is_withdrawn(description))
        return false;
    if (!description || !datum.is_above_none(Ability::Ability_Media_Size_Limit))
        return true;
    return fits(*description->get_media_bounds(), *datum.capabilities->get_media_size_max());
}

bool is_offered_by_source(const PX_Media_Datum& datum) {
    const auto source = px_configured_source(datum);
    if (!px_is_there(source))
        datum.fail(PX_Media_Code::Source_Missing);
    const auto entry = px_configured_entry(datum, source);
    if (!px_is_there(entry))
        datum.fail(PX_Media_Code::Entry_Missing);
    const auto names = entry->get_media_size_name_list();
    if (!names || !px_is_there(names->find(datum.configuration->get_media_size())))
        return false;
    const bool roll = source->get_media_feed() == PX_Media_Feed::Media_Feed_Roll &&
                      datum.is_above_none(Ability::Ability_Roll_Limit);
    return sheet_fits(datum, [&](const PX_Float_XY& sheet, const PX_Float_XY& largest) {
        return px_fits_source(sheet, largest, roll,
                              [&] { return datum.capabilities->get_media_roll_max_height(); });
    });
}

bool is_offered_directly(const PX_Media_Datum& datum) {
    const auto sizes = datum.capabilities->get_media_size_list();
    if (!sizes)
        datum.fail(PX_Media_Code::No_Sizes);
    if (!px_is_there(sizes->find(datum.configuration->get_media_size())))
        return false;
    return sheet_fits(datum, [&](const PX_Float_XY& sheet, const PX_Float_XY& largest) {
        return px_fits_directly(sheet, largest,
                                [&] { return datum.capabilities->get_media_roll_max_height(); });
    });
}

// The form name is not compared.
bool is_as_before(const PX_Media_Datum& datum) {
    const auto had = px_media_snapshot(datum);
    const auto size = datum.capabilities->get_media_size_list() ? px_configured_size(datum) : nullptr;
    if (!size)
        datum.fail(PX_Code::Null_Argument, L"size_list");
    const auto description = px_description_of(datum, size);
    datum.require_made(description, L"work_descr");
    return had->get_media_group() == size->get_media_group() &&
           had->get_landscape_mode_flag() == size->get_landscape_mode_flag() &&
           *had->get_media_bounds() == *description->get_media_bounds() &&
           *had->get_printable_bounds() == *description->get_printable_bounds() &&
           had->get_printable_area() == description->get_printable_area() &&
           had->get_dimensional() == description->get_dimensional();
}

}  // namespace

void PX_Std_Media_Validator::validate_size(Strategy::Enum strategy) {
    const PX_Media_Datum datum(m_plotter, L"PX_Std_Media_Validator::validate_size");
    // The only operation that does not look again at what is validated.
    if (datum.configuration->get_one_validated(Cfg::Cfg_Media_Size))
        return;
    const bool offered = px_is_by_source(datum) ? is_offered_by_source(datum) : is_offered_directly(datum);
    if (!offered || !is_as_before(datum)) {
        long bits = Change::Size;
        datum.call([&] {
            if (strategy && set_size_to_nearest())
                return;
            if (strategy)
                bits |= Change::Size_Nearest_Failed;  // none was near enough
            set_size_to_default();
        });
        datum.raise(bits);
    }
    datum.settle(Cfg::Cfg_Media_Size);
}

void PX_Std_Media_Validator::validate_destination(Strategy::Enum strategy) {
    const PX_Media_Datum datum(m_plotter, L"PX_Std_Media_Validator::validate_destination");
    const auto& caps = *datum.capabilities;
    const auto& cfg = *datum.configuration;
    const auto destinations = caps.get_media_destination_list();
    if (!destinations)
        datum.fail(PX_Media_Code::No_Destinations);
    const auto stands = [&] {
        const auto destination = destinations->find(cfg.get_media_destination());
        if (!px_is_there(destination))
            return false;
        const auto had = px_media_snapshot(datum);
        // Any ability but 0 takes part here, an undefined one too.
        const auto passes = [&](Ability::Enum flag, const auto& option) {
            return caps.get_one_ability(flag) == PX_Ability_Value::Ability_None ||
                   px_finishing_stands(*had, option);
        };
        return passes(Ability::Ability_Media_Collating,
                      destination->get_collating(cfg.get_media_collating())) &&
               passes(Ability::Ability_Media_Cutting, destination->get_cutting(cfg.get_media_cutting())) &&
               passes(Ability::Ability_Media_Stapling, destination->get_stapling(cfg.get_media_stapling())) &&
               passes(Ability::Ability_Media_Folding, destination->get_folding(cfg.get_media_folding()));
    };
    if (!stands()) {
        datum.call([&] { strategy ? set_destination_to_nearest() : set_destination_to_default(); });
        for (const Change::Enum bit :
             {Change::Destination, Change::Collating, Change::Stapling, Change::Cutting, Change::Folding})
            datum.raise(bit);
    }
    for (const Cfg::Enum flag : px_destination_data)
        datum.settle(flag);
}

void PX_Std_Media_Validator::validate_all_media(Strategy::Enum strategy) {
    px_frame(L"PX_Std_Media_Validator::validate_all_media", [&] {
        validate_selection_method(strategy);
        validate_type(strategy);
        validate_source(strategy);
        validate_source_entry(strategy);
        validate_size(strategy);
        validate_destination(strategy);
        validate_number_of_copies(strategy);
        validate_duplexing(strategy);
        validate_margins(strategy);
        validate_longplot_reduction(strategy);
        validate_dm_scale(strategy);
        validate_dm_orientation(strategy);
        validate_actual_printable_bounds(strategy);
    });
}

// The margins come late here, behind the dm orientation.
void PX_Std_Media_Validator::set_all_media_to_defaults() {
    px_frame(L"PX_Std_Media_Validator::set_all_media_to_defaults", [&] {
        set_selection_method_to_default();
        set_type_to_default();
        set_source_to_default();
        set_source_entry_to_default();
        set_size_to_default();
        set_destination_to_default();
        set_number_of_copies_to_default();
        set_duplexing_to_default();
        set_longplot_reduction_to_default();
        set_dm_scale_to_default();
        set_dm_orientation_to_default();
        set_margins_to_default();
        set_actual_printable_bounds_to_default();
    });
}
