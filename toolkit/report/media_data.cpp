#include "toolkit/report/data.h"

namespace {

using Media = PX_Media_Configuration;
using Settings = PX_Media_Settings;
using Words = PX_Value_Words;

// A name and what it stood for. A driver's configuration may have no snapshot.
template <const wchar_t* (Media::*get_name)() const, auto describe>
Words words_of_entry(const Media& media) {
    Words words = Words().name((media.*get_name)());
    const auto had = media.get_media_settings();
    if (had)
        describe(words, *had);
    return words;
}

void describe_type(Words& words, const Settings& had) {
    words.extent(", resolution ", *had.get_max_resolution())
        .number(", drying time ", static_cast<double>(had.get_drying_time()));
}
void describe_source(Words& words, const Settings& had) {
    words.number(", feed ", had.get_media_feed());
}
void describe_source_entry(Words& words, const Settings& had) {
    words.number(", ", had.get_source_width()).number(" x ", had.get_source_frame_height());
}
void describe_size(Words& words, const Settings& had) {
    const bool landscape = had.get_landscape_mode_flag();
    words.extent(", ", *had.get_media_bounds())
        .number(landscape ? ", landscape, printable area " : ", printable area ", had.get_printable_area());
    // Too much for a line.
    words.unseen(Words()
                     .bounds(*had.get_printable_bounds())
                     .number("", had.get_media_group())
                     .number("", landscape)
                     .number("", had.get_dimensional())
                     .name(had.get_form_name()));
}
void describe_collating(Words& words, const Settings& had) {
    words.number(", type ", had.get_collating_type());
}
void describe_stapling(Words& words, const Settings& had) {
    words.number(", location ", had.get_stapling_location())
        .number(", when ", had.get_stapling_when())
        .number(", orientation ", had.get_stapling_orientation());
}
void describe_cutting(Words& words, const Settings& had) {
    words.number(", when ", had.get_cutting_when());
}
void describe_folding(Words& words, const Settings& had) {
    words.number(", type ", had.get_folding_type()).number(", when ", had.get_folding_when());
}

// What an entry of the device, found by the name that was taken, scored against the snapshot.
template <class Score>
auto scored(Score score) {
    return [score](const PX_Reported_Run& run) -> std::optional<double> {
        const auto had = run.before.get_media().get_media_settings();
        if (!had)
            return std::nullopt;
        return score(*had, run.before.get_media(), *run.capabilities.get_media_capabilities(),
                     *run.configuration.get_media_configuration());
    };
}

std::optional<double> type_score(const Settings& had, const Media&, const PX_Media_Capabilities& offered,
                                 const Media& chosen) {
    const auto type = offered.get_media_type(chosen.get_media_type());
    return type ? std::optional(px_media_type_score(had, *type)) : std::nullopt;
}
std::optional<double> source_entry_score(const Settings& had, const Media&,
                                         const PX_Media_Capabilities& offered, const Media& chosen) {
    const auto source = offered.get_media_source(chosen.get_media_source());
    const auto entry = source ? source->get_source_entry(chosen.get_media_source_entry()) : nullptr;
    return entry ? std::optional(px_media_source_entry_score(had, *entry)) : std::nullopt;
}
std::optional<double> size_score(const Settings& had, const Media& before,
                                 const PX_Media_Capabilities& offered, const Media& chosen) {
    const auto size = offered.get_media_size(chosen.get_media_size());
    const auto description = size ? offered.get_media_description(size->get_media_description()) : nullptr;
    if (!description)
        return std::nullopt;
    return px_media_size_score(had, before.get_media_size(), *size, *description);
}
std::optional<double> destination_score(const Settings& had, const Media& before,
                                        const PX_Media_Capabilities& offered, const Media& chosen) {
    const auto destination = offered.get_media_destination(chosen.get_media_destination());
    if (!destination)
        return std::nullopt;
    return px_media_destination_score(offered, before, had, *destination);
}

using Ability = PX_Media_Ability_Flags;
using Cfg = PX_Media_Config_Flags;
using Change = PX_Media_Change;

// The actual printable bounds have a default where both have one.
bool keeps_actual_bounds(const PX_Plotter_Capabilities& capabilities) {
    const auto media = px_reported(capabilities, &PX_Plotter_Capabilities::get_media_capabilities);
    const auto is_listed = [&](Ability::Enum ability) {
        return media->get_one_ability(ability) >= PX_Ability_Value::Ability_Settable_Listed;
    };
    return !is_listed(Ability::Ability_Media_Size_Default) ||
           !is_listed(Ability::Ability_Media_Margins_Default);
}

using Domain = PX_Report_Domain<PX_Domain_Mask::Media, &PX_Plotter_Configuration::get_media_configuration,
                                &PX_Plotter_Capabilities::get_media_capabilities,
                                &PX_Plotter_Validator::get_media_cfg_changes>;

// The finishing options stand and fall with the destination. Its search leaves their names alone.
template <auto source, auto ability, auto flag>
PX_Report_Datum finishing_row(const char* name, long bits) {
    return Domain::gated_row<source, ability, Ability::Ability_Media_Destination, flag>(name, bits);
}

template <class Score>
PX_Report_Datum with_score(PX_Report_Datum row, Score score) {
    row.score = scored(score);
    return row;
}

PX_Report_Datum following(PX_Report_Datum row) {
    row.keeps_at_default = keeps_actual_bounds;
    return row;
}

}  // namespace

std::vector<PX_Report_Datum> px_media_data() {
    constexpr PX_Repair nearest = PX_Repair::To_Nearest;
    constexpr PX_Repair own = PX_Repair::By_Own_Rule;
    return {
        Domain::row<&Media::get_media_selection_method, Ability::Ability_Media_Selection_Method,
                    Cfg::Cfg_Selection_Method>("Selection method", Change::Selection_Method),
        with_score(
            Domain::row<words_of_entry<&Media::get_media_type, describe_type>, Ability::Ability_Media_Type,
                        Cfg::Cfg_Media_Type>("Media type", Change::Type, nearest),
            type_score),
        Domain::row<words_of_entry<&Media::get_media_source, describe_source>, Ability::Ability_Media_Source,
                    Cfg::Cfg_Media_Source>("Source", Change::Source, nearest),
        with_score(Domain::row<words_of_entry<&Media::get_media_source_entry, describe_source_entry>,
                               Ability::Ability_Media_Source_Entry, Cfg::Cfg_Media_Source_Entry>(
                       "Source entry", Change::Source_Entry, nearest),
                   source_entry_score),
        with_score(
            Domain::row<words_of_entry<&Media::get_media_size, describe_size>, Ability::Ability_Media_Size,
                        Cfg::Cfg_Media_Size>("Size", Change::Size | Change::Size_Nearest_Failed, nearest),
            size_score),
        with_score(Domain::row<&Media::get_media_destination, Ability::Ability_Media_Destination,
                               Cfg::Cfg_Media_Destination>("Destination", Change::Destination, nearest),
                   destination_score),
        finishing_row<words_of_entry<&Media::get_media_collating, describe_collating>,
                      Ability::Ability_Media_Collating, Cfg::Cfg_Media_Collating>("Collating",
                                                                                  Change::Collating),
        finishing_row<words_of_entry<&Media::get_media_stapling, describe_stapling>,
                      Ability::Ability_Media_Stapling, Cfg::Cfg_Media_Stapling>("Stapling", Change::Stapling),
        finishing_row<words_of_entry<&Media::get_media_cutting, describe_cutting>,
                      Ability::Ability_Media_Cutting, Cfg::Cfg_Media_Cutting>("Cutting", Change::Cutting),
        finishing_row<words_of_entry<&Media::get_media_folding, describe_folding>,
                      Ability::Ability_Media_Folding, Cfg::Cfg_Media_Folding>("Folding", Change::Folding),
        Domain::row<&Media::get_number_of_copies, Ability::Ability_Number_Of_Copies,
                    Cfg::Cfg_Number_Of_Copies>("Copies", Change::Number_Of_Copies, nearest),
        Domain::row<&Media::get_duplexing_mode, Ability::Ability_Duplexing, Cfg::Cfg_Duplexing>(
            "Duplexing", Change::Duplexing),
        Domain::row<&Media::get_margins, Ability::Ability_Media_Size, Cfg::Cfg_Margins>("Margins",
                                                                                        Change::Margins, own),
        Domain::row<&Media::get_longplot_reduction, Ability::Ability_Longplot_Reduction,
                    Cfg::Cfg_Longplot_Reduction>("Longplot reduction", Change::Longplot_Reduction),
        Domain::row<&Media::get_dm_scale, Ability::Ability_Dm_Scale, Cfg::Cfg_Dm_Scale>("Scale",
                                                                                        Change::Dm_Scale),
        Domain::row<&Media::get_dm_orientation, Ability::Ability_Dm_Orientation, Cfg::Cfg_Dm_Orientation>(
            "Orientation", Change::Dm_Orientation),
        following(Domain::row<&Media::get_actual_printable_bounds, Ability::Ability_Actual_Printable_Bounds,
                              Cfg::Cfg_Actual_Printable_Bounds>("Actual printable bounds",
                                                                Change::Actual_Printable_Bounds, own)),
    };
}
