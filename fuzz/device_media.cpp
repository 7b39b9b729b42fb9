#include "fuzz/device.h"

namespace fuzz {

namespace {

void fill_type(Input& input, PX_Media_Type& type) {
    const PX_Float_XY resolution = pair(input);
    type.set_drying_time(input.number());
    type.set_max_resolution(input.rarely() ? nullptr : &resolution);
}

void fill_description(Input& input, PX_Media_Description& description) {
    const PX_Float_XY sheet = pair(input);
    const PX_Float_Rectangle printable = rectangle(input);
    description.set_media_bounds(input.rarely() ? nullptr : &sheet);
    description.set_printable_bounds(input.rarely() ? nullptr : &printable);
    description.set_printable_area(input.real());
    description.set_dimensional(input.flag());
}

void fill_size(Input& input, PX_Media_Size& size) {
    size.set_media_group(Number{input.number<int>()});
    size.set_landscape_mode_flag(input.flag());
    attempt([&] { size.set_media_description(input.name_or_null()); });
    size.set_form_name(input.name_or_null());
}

void fill_entry(Input& input, PX_Media_Source_Entry& entry) {
    append_names(input, entry.get_media_size_name_list());
    attempt([&] { entry.set_default_media_size(input.name_or_null()); });
    entry.set_source_width(input.real());
    entry.set_source_frame_height(input.real());
}

void fill_source(Input& input, PX_Media_Source& source) {
    if (const auto entries = source.get_source_entry_list())
        append<PX_Std_Media_Source_Entry>(input, entries, fill_entry);
    attempt([&] { source.set_default_source_entry(input.name_or_null()); });
    source.set_media_feed(Number{input.number<int>()});
    if (input.rarely(32))
        source.set_source_entry_list(nullptr);
}

void fill_collating(Input& input, PX_Media_Collating& collating) {
    collating.set_collating_type(Number{input.number<int>()});
}

void fill_stapling(Input& input, PX_Media_Stapling& stapling) {
    stapling.set_stapling_location(Number{input.number<int>()});
    stapling.set_stapling_when(Number{input.number<int>()});
    stapling.set_stapling_orientation(input.number<short>());
}

void fill_cutting(Input& input, PX_Media_Cutting& cutting) {
    cutting.set_cutting_when(Number{input.number<int>()});
}

void fill_folding(Input& input, PX_Media_Folding& folding) {
    folding.set_folding_type(Number{input.number<int>()});
    folding.set_folding_when(Number{input.number<int>()});
}

void fill_destination(Input& input, PX_Media_Destination& destination) {
    append<PX_Std_Media_Collating>(input, destination.get_collating_list(), fill_collating);
    append<PX_Std_Media_Stapling>(input, destination.get_stapling_list(), fill_stapling);
    append<PX_Std_Media_Cutting>(input, destination.get_cutting_list(), fill_cutting);
    append<PX_Std_Media_Folding>(input, destination.get_folding_list(), fill_folding);
    attempt([&] { destination.set_default_collating(input.name_or_null()); });
    attempt([&] { destination.set_default_stapling(input.name_or_null()); });
    attempt([&] { destination.set_default_cutting(input.name_or_null()); });
    attempt([&] { destination.set_default_folding(input.name_or_null()); });
}

void choose(Input& input, const PX_Media_Capabilities& caps, PX_Media_Configuration& cfg) {
    attempt([&] { cfg.set_media_type(caps.get_media_type(input.name()).get()); });
    if (const auto source = caps.get_media_source(input.name())) {
        cfg.set_media_source(source.get());
        attempt([&] { cfg.set_media_source_entry(source->get_source_entry(input.name()).get()); });
    }
    if (const auto size = caps.get_media_size(input.name())) {
        const auto sheet =
            caps.get_media_description(input.rarely() ? input.name() : size->get_media_description());
        attempt([&] { cfg.set_media_size(size.get(), sheet.get()); });
    }
    if (const auto destination = caps.get_media_destination(input.name())) {
        cfg.set_media_destination(destination.get());
        attempt([&] { cfg.set_media_collating(destination->get_collating(input.name()).get()); });
        attempt([&] { cfg.set_media_stapling(destination->get_stapling(input.name()).get()); });
        attempt([&] { cfg.set_media_cutting(destination->get_cutting(input.name()).get()); });
        attempt([&] { cfg.set_media_folding(destination->get_folding(input.name()).get()); });
    }
    cfg.set_media_selection_method(Number{input.number<int>()});
    cfg.set_number_of_copies(input.number());
    cfg.set_duplexing_mode(Number{input.number<int>()});
    cfg.set_longplot_reduction(input.real());
    cfg.set_dm_scale(input.number());
    cfg.set_dm_orientation(input.number());
    const PX_Float_Rectangle margins = rectangle(input), bounds = rectangle(input);
    if (input.flag())
        cfg.set_margins(&margins);
    if (input.flag())
        cfg.set_actual_printable_bounds(&bounds);
}

}  // namespace

void fill(Input& input, PX_Media_Capabilities& caps, PX_Media_Configuration& cfg) {
    fill_abilities(input, caps);
    append<PX_Std_Media_Type>(input, caps.get_media_type_list(), fill_type);
    append<PX_Std_Media_Description>(input, caps.get_media_description_list(), fill_description);
    append<PX_Std_Media_Size>(input, caps.get_media_size_list(), fill_size);
    append<PX_Std_Media_Source>(input, caps.get_media_source_list(), fill_source);
    append<PX_Std_Media_Destination>(input, caps.get_media_destination_list(), fill_destination);
    caps.set_media_selection_methods(input.number());
    caps.set_default_media_selection_method(Number{input.number<int>()});
    attempt([&] { caps.set_default_media_type(input.name_or_null()); });
    attempt([&] { caps.set_default_media_source(input.name_or_null()); });
    attempt([&] { caps.set_default_media_size(input.name_or_null()); });
    attempt([&] { caps.set_default_media_destination(input.name_or_null()); });
    caps.set_duplexing_modes(input.number());
    caps.set_default_duplexing_mode(Number{input.number<int>()});
    caps.set_max_number_of_copies(input.number());
    caps.set_default_longplot_reduction(input.real());
    caps.set_default_dm_scale(input.number());
    const PX_Float_XY largest = pair(input);
    caps.set_media_size_max(input.rarely() ? nullptr : &largest);
    caps.set_media_roll_max_height(input.real());
    choose(input, caps, cfg);
    spoil(input, caps.get_media_type_list(), fill_type);
    spoil(input, caps.get_media_description_list(), fill_description);
    spoil(input, caps.get_media_size_list(), fill_size);
    spoil(input, caps.get_media_source_list(), fill_source);
    spoil(input, caps.get_media_destination_list(), fill_destination);
    const auto lose = [&](auto set) {
        if (input.rarely(32))
            (caps.*set)(nullptr);
    };
    using Caps = PX_Media_Capabilities;
    lose(&Caps::set_media_type_list);
    lose(&Caps::set_media_size_list);
    lose(&Caps::set_media_description_list);
    lose(&Caps::set_media_source_list);
    lose(&Caps::set_media_destination_list);
}

void tell(std::wostream& out, const PX_Media_Configuration& cfg) {
    tell_all(out, cfg.get_media_selection_method(), cfg.get_media_type(), cfg.get_media_source(),
             cfg.get_media_source_entry(), cfg.get_media_size(), cfg.get_media_destination(),
             cfg.get_media_collating(), cfg.get_media_stapling(), cfg.get_media_cutting(),
             cfg.get_media_folding(), cfg.get_number_of_copies(), cfg.get_duplexing_mode(),
             cfg.get_longplot_reduction(), cfg.get_dm_scale(), cfg.get_dm_orientation());
    tell(out, cfg.get_margins().get());
    tell(out, cfg.get_actual_printable_bounds().get());
    const auto kept = cfg.get_media_settings();
    tell(out, kept->get_max_resolution().get());
    tell(out, kept->get_media_bounds().get());
    tell(out, kept->get_printable_bounds().get());
    tell_all(out, kept->get_drying_time(), kept->get_printable_area(), kept->get_dimensional(),
             kept->get_media_group(), kept->get_landscape_mode_flag(), kept->get_form_name(),
             kept->get_media_feed(), kept->get_collating_type(), kept->get_stapling_location(),
             kept->get_stapling_when(), kept->get_stapling_orientation(), kept->get_cutting_when(),
             kept->get_folding_type(), kept->get_folding_when(), kept->get_source_width(),
             kept->get_source_frame_height());
}

}  // namespace fuzz
