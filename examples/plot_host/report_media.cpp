#include "examples/plot_host/report_data.h"

namespace plot_host {
namespace {

using Media = PX_Media_Configuration;
using Snapshot_Of_Media = PX_Media_Settings;

// A name and what it stood for: the same name may stand for another thing on another device.
Words words_of_type(const Media& media, const Snapshot_Of_Media& had) {
    return Words()
        .name(media.get_media_type())
        .extent(", resolution ", *had.get_max_resolution())
        .number(", drying time ", static_cast<double>(had.get_drying_time()));
}
Words words_of_source(const Media& media, const Snapshot_Of_Media& had) {
    return Words().name(media.get_media_source()).number(", feed ", had.get_media_feed());
}
Words words_of_entry(const Media& media, const Snapshot_Of_Media& had) {
    return Words()
        .name(media.get_media_source_entry())
        .number(", ", had.get_source_width())
        .number(" x ", had.get_source_frame_height());
}
Words words_of_size(const Media& media, const Snapshot_Of_Media& had) {
    Words words =
        Words()
            .name(media.get_media_size())
            .extent(", ", *had.get_media_bounds())
            .number(had.get_landscape_mode_flag() ? ", landscape, printable area " : ", printable area ",
                    had.get_printable_area());
    // Too much for a line; the picture shows it.
    words.exact += Words().bounds(*had.get_printable_bounds()).exact;
    return words;
}
Words words_of_destination(const Media& media, const Snapshot_Of_Media&) {
    return Words().name(media.get_media_destination());
}
Words words_of_collating(const Media& media, const Snapshot_Of_Media& had) {
    return Words().name(media.get_media_collating()).number(", type ", had.get_collating_type());
}
Words words_of_stapling(const Media& media, const Snapshot_Of_Media& had) {
    return Words()
        .name(media.get_media_stapling())
        .number(", location ", had.get_stapling_location())
        .number(", when ", had.get_stapling_when())
        .number(", orientation ", had.get_stapling_orientation());
}
Words words_of_cutting(const Media& media, const Snapshot_Of_Media& had) {
    return Words().name(media.get_media_cutting()).number(", when ", had.get_cutting_when());
}
Words words_of_folding(const Media& media, const Snapshot_Of_Media& had) {
    return Words()
        .name(media.get_media_folding())
        .number(", type ", had.get_folding_type())
        .number(", when ", had.get_folding_when());
}
template <auto get>
Words words_of_number(const Media& media, const Snapshot_Of_Media&) {
    return Words().number("", static_cast<double>((media.*get)()));
}
template <auto get>
Words words_of_bounds(const Media& media, const Snapshot_Of_Media&) {
    return Words().bounds(*(media.*get)());
}

using Ability = PX_Media_Ability_Flags;
using Cfg = PX_Media_Config_Flags;

template <Words (*words)(const Media&, const Snapshot_Of_Media&), Ability::Enum ability, Cfg::Enum flag,
          long bit>
constexpr Datum media_row(const char* name) {
    constexpr auto value = [](const PX_Plotter_Configuration& configuration) {
        const auto media = configuration.get_media_configuration();
        const Words told = words(*media, *media->get_media_settings());
        return Value{told.exact, told.shown};
    };
    constexpr auto state = [](const PX_Plotter_Capabilities& capabilities,
                              const PX_Plotter_Configuration& configuration) {
        const auto media = configuration.get_media_configuration();
        return State{capabilities.get_media_capabilities()->get_one_ability(ability),
                     media->get_one_validated(flag), media->get_one_default(flag)};
    };
    return {name, value, state, &PX_Plotter_Validator::get_media_cfg_changes, bit};
}

constexpr Datum data[] = {
    media_row<words_of_number<&Media::get_media_selection_method>, Ability::Ability_Media_Selection_Method,
              Cfg::Cfg_Selection_Method, 0x40>("Selection method"),
    media_row<words_of_type, Ability::Ability_Media_Type, Cfg::Cfg_Media_Type, 0x80>("Media type"),
    media_row<words_of_source, Ability::Ability_Media_Source, Cfg::Cfg_Media_Source, 0x1>("Source"),
    media_row<words_of_entry, Ability::Ability_Media_Source_Entry, Cfg::Cfg_Media_Source_Entry, 0x20000>(
        "Source entry"),
    media_row<words_of_size, Ability::Ability_Media_Size, Cfg::Cfg_Media_Size, 0x2>("Size"),
    media_row<words_of_destination, Ability::Ability_Media_Destination, Cfg::Cfg_Media_Destination, 0x4>(
        "Destination"),
    media_row<words_of_collating, Ability::Ability_Media_Collating, Cfg::Cfg_Media_Collating, 0x2000>(
        "Collating"),
    media_row<words_of_stapling, Ability::Ability_Media_Stapling, Cfg::Cfg_Media_Stapling, 0x4000>(
        "Stapling"),
    media_row<words_of_cutting, Ability::Ability_Media_Cutting, Cfg::Cfg_Media_Cutting, 0x8000>("Cutting"),
    media_row<words_of_folding, Ability::Ability_Media_Folding, Cfg::Cfg_Media_Folding, 0x10000>("Folding"),
    media_row<words_of_number<&Media::get_number_of_copies>, Ability::Ability_Number_Of_Copies,
              Cfg::Cfg_Number_Of_Copies, 0x10>("Copies"),
    media_row<words_of_number<&Media::get_duplexing_mode>, Ability::Ability_Duplexing, Cfg::Cfg_Duplexing,
              0x8>("Duplexing"),
    media_row<words_of_bounds<&Media::get_margins>, Ability::Ability_Media_Size, Cfg::Cfg_Margins, 0x20>(
        "Margins"),
    media_row<words_of_number<&Media::get_longplot_reduction>, Ability::Ability_Longplot_Reduction,
              Cfg::Cfg_Longplot_Reduction, 0x200>("Longplot reduction"),
    media_row<words_of_number<&Media::get_dm_scale>, Ability::Ability_Dm_Scale, Cfg::Cfg_Dm_Scale, 0x400>(
        "Scale"),
    media_row<words_of_number<&Media::get_dm_orientation>, Ability::Ability_Dm_Orientation,
              Cfg::Cfg_Dm_Orientation, 0x800>("Orientation"),
    media_row<words_of_bounds<&Media::get_actual_printable_bounds>, Ability::Ability_Actual_Printable_Bounds,
              Cfg::Cfg_Actual_Printable_Bounds, 0x1000>("Actual printable bounds"),
};

}  // namespace

std::span<const Datum> media_data() {
    return data;
}

}  // namespace plot_host
