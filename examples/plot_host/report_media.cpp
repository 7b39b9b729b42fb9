#include "examples/plot_host/report_data.h"

namespace plot_host {
namespace {

using Media = PX_Media_Configuration;

// A name and what it stood for: the same name may stand for another thing on another device.
Words words_of_type(const Media& media) {
    const auto had = media.get_media_settings();
    return Words()
        .name(media.get_media_type())
        .extent(", resolution ", *had->get_max_resolution())
        .number(", drying time ", static_cast<double>(had->get_drying_time()));
}
Words words_of_source(const Media& media) {
    const auto had = media.get_media_settings();
    return Words().name(media.get_media_source()).number(", feed ", had->get_media_feed());
}
Words words_of_entry(const Media& media) {
    const auto had = media.get_media_settings();
    return Words()
        .name(media.get_media_source_entry())
        .number(", ", had->get_source_width())
        .number(" x ", had->get_source_frame_height());
}
Words words_of_size(const Media& media) {
    const auto had = media.get_media_settings();
    Words words =
        Words()
            .name(media.get_media_size())
            .extent(", ", *had->get_media_bounds())
            .number(had->get_landscape_mode_flag() ? ", landscape, printable area " : ", printable area ",
                    had->get_printable_area());
    // Too much for a line; the picture shows it.
    words.exact += Words().bounds(*had->get_printable_bounds()).exact;
    return words;
}
Words words_of_collating(const Media& media) {
    const auto had = media.get_media_settings();
    return Words().name(media.get_media_collating()).number(", type ", had->get_collating_type());
}
Words words_of_stapling(const Media& media) {
    const auto had = media.get_media_settings();
    return Words()
        .name(media.get_media_stapling())
        .number(", location ", had->get_stapling_location())
        .number(", when ", had->get_stapling_when())
        .number(", orientation ", had->get_stapling_orientation());
}
Words words_of_cutting(const Media& media) {
    const auto had = media.get_media_settings();
    return Words().name(media.get_media_cutting()).number(", when ", had->get_cutting_when());
}
Words words_of_folding(const Media& media) {
    const auto had = media.get_media_settings();
    return Words()
        .name(media.get_media_folding())
        .number(", type ", had->get_folding_type())
        .number(", when ", had->get_folding_when());
}

using Ability = PX_Media_Ability_Flags;
using Cfg = PX_Media_Config_Flags;

using Domain = Report_Domain<&PX_Plotter_Configuration::get_media_configuration,
                             &PX_Plotter_Capabilities::get_media_capabilities,
                             &PX_Plotter_Validator::get_media_cfg_changes>;

}  // namespace

std::vector<Datum> media_data(const PX_Plotter_Configuration& /*configuration*/) {
    return {
        Domain::row<&Media::get_media_selection_method, Ability::Ability_Media_Selection_Method,
                    Cfg::Cfg_Selection_Method>("Selection method", 0x40),
        Domain::row<words_of_type, Ability::Ability_Media_Type, Cfg::Cfg_Media_Type>("Media type", 0x80),
        Domain::row<words_of_source, Ability::Ability_Media_Source, Cfg::Cfg_Media_Source>("Source", 0x1),
        Domain::row<words_of_entry, Ability::Ability_Media_Source_Entry, Cfg::Cfg_Media_Source_Entry>(
            "Source entry", 0x20000),
        Domain::row<words_of_size, Ability::Ability_Media_Size, Cfg::Cfg_Media_Size>("Size", 0x2),
        Domain::row<&Media::get_media_destination, Ability::Ability_Media_Destination,
                    Cfg::Cfg_Media_Destination>("Destination", 0x4),
        Domain::row<words_of_collating, Ability::Ability_Media_Collating, Cfg::Cfg_Media_Collating>(
            "Collating", 0x2000),
        Domain::row<words_of_stapling, Ability::Ability_Media_Stapling, Cfg::Cfg_Media_Stapling>("Stapling",
                                                                                                 0x4000),
        Domain::row<words_of_cutting, Ability::Ability_Media_Cutting, Cfg::Cfg_Media_Cutting>("Cutting",
                                                                                              0x8000),
        Domain::row<words_of_folding, Ability::Ability_Media_Folding, Cfg::Cfg_Media_Folding>("Folding",
                                                                                              0x10000),
        Domain::row<&Media::get_number_of_copies, Ability::Ability_Number_Of_Copies,
                    Cfg::Cfg_Number_Of_Copies>("Copies", 0x10),
        Domain::row<&Media::get_duplexing_mode, Ability::Ability_Duplexing, Cfg::Cfg_Duplexing>("Duplexing",
                                                                                                0x8),
        Domain::row<&Media::get_margins, Ability::Ability_Media_Size, Cfg::Cfg_Margins>("Margins", 0x20),
        Domain::row<&Media::get_longplot_reduction, Ability::Ability_Longplot_Reduction,
                    Cfg::Cfg_Longplot_Reduction>("Longplot reduction", 0x200),
        Domain::row<&Media::get_dm_scale, Ability::Ability_Dm_Scale, Cfg::Cfg_Dm_Scale>("Scale", 0x400),
        Domain::row<&Media::get_dm_orientation, Ability::Ability_Dm_Orientation, Cfg::Cfg_Dm_Orientation>(
            "Orientation", 0x800),
        Domain::row<&Media::get_actual_printable_bounds, Ability::Ability_Actual_Printable_Bounds,
                    Cfg::Cfg_Actual_Printable_Bounds>("Actual printable bounds", 0x1000),
    };
}

}  // namespace plot_host
