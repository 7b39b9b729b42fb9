#include "fuzz/device.h"

namespace fuzz {

static void fill(Input& input, PX_Media_Type& type) {
    set_all(input, type, &PX_Media_Type::set_drying_time, &PX_Media_Type::set_max_resolution);
}

static void fill(Input& input, PX_Media_Description& description) {
    using Description = PX_Media_Description;
    set_all(input, description, &Description::set_media_bounds, &Description::set_printable_bounds,
            &Description::set_printable_area, &Description::set_dimensional);
}

static void fill(Input& input, PX_Media_Size& size) {
    using Size = PX_Media_Size;
    set_all(input, size, &Size::set_media_group, &Size::set_landscape_mode_flag, &Size::set_media_description,
            &Size::set_form_name);
}

static void fill(Input& input, PX_Media_Source_Entry& entry) {
    using Entry = PX_Media_Source_Entry;
    append<PX_Std_Caps_Name_List_Object>(input, entry.get_media_size_name_list());
    set_all(input, entry, &Entry::set_default_media_size, &Entry::set_source_width,
            &Entry::set_source_frame_height);
}

static void fill(Input& input, PX_Media_Source& source) {
    using Source = PX_Media_Source;
    append<PX_Std_Media_Source_Entry>(input, source.get_source_entry_list());
    set_all(input, source, &Source::set_default_source_entry, &Source::set_media_feed,
            &Source::set_source_entry_list);
}

static void fill(Input& input, PX_Media_Collating& collating) {
    set(input, collating, &PX_Media_Collating::set_collating_type);
}

static void fill(Input& input, PX_Media_Stapling& stapling) {
    using Stapling = PX_Media_Stapling;
    set_all(input, stapling, &Stapling::set_stapling_location, &Stapling::set_stapling_when,
            &Stapling::set_stapling_orientation);
}

static void fill(Input& input, PX_Media_Cutting& cutting) {
    set(input, cutting, &PX_Media_Cutting::set_cutting_when);
}

static void fill(Input& input, PX_Media_Folding& folding) {
    set_all(input, folding, &PX_Media_Folding::set_folding_type, &PX_Media_Folding::set_folding_when);
}

static void fill(Input& input, PX_Media_Destination& destination) {
    using Destination = PX_Media_Destination;
    append<PX_Std_Media_Collating>(input, destination.get_collating_list());
    append<PX_Std_Media_Stapling>(input, destination.get_stapling_list());
    append<PX_Std_Media_Cutting>(input, destination.get_cutting_list());
    append<PX_Std_Media_Folding>(input, destination.get_folding_list());
    set_all(input, destination, &Destination::set_default_collating, &Destination::set_default_stapling,
            &Destination::set_default_cutting, &Destination::set_default_folding);
}

static void choose(Input& input, const PX_Media_Capabilities& caps, PX_Media_Configuration& cfg) {
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
    using Cfg = PX_Media_Configuration;
    set_all(input, cfg, &Cfg::set_media_selection_method, &Cfg::set_number_of_copies,
            &Cfg::set_duplexing_mode, &Cfg::set_longplot_reduction, &Cfg::set_dm_scale,
            &Cfg::set_dm_orientation);
    if (input.flag())
        set(input, cfg, &Cfg::set_margins);
    if (input.flag())
        set(input, cfg, &Cfg::set_actual_printable_bounds);
}

void fill(Input& input, PX_Media_Capabilities& caps, PX_Media_Configuration& cfg) {
    using Caps = PX_Media_Capabilities;
    fill_abilities(input, caps);
    append<PX_Std_Media_Type>(input, caps.get_media_type_list());
    append<PX_Std_Media_Description>(input, caps.get_media_description_list());
    append<PX_Std_Media_Size>(input, caps.get_media_size_list());
    append<PX_Std_Media_Source>(input, caps.get_media_source_list());
    append<PX_Std_Media_Destination>(input, caps.get_media_destination_list());
    set_all(input, caps, &Caps::set_media_selection_methods, &Caps::set_default_media_selection_method,
            &Caps::set_default_media_type, &Caps::set_default_media_source, &Caps::set_default_media_size,
            &Caps::set_default_media_destination, &Caps::set_duplexing_modes,
            &Caps::set_default_duplexing_mode, &Caps::set_max_number_of_copies,
            &Caps::set_default_longplot_reduction, &Caps::set_default_dm_scale, &Caps::set_media_size_max,
            &Caps::set_media_roll_max_height);
    choose(input, caps, cfg);
    spoil(input, caps.get_media_type_list());
    spoil(input, caps.get_media_description_list());
    spoil(input, caps.get_media_size_list());
    spoil(input, caps.get_media_source_list());
    spoil(input, caps.get_media_destination_list());
    set_all(input, caps, &Caps::set_media_type_list, &Caps::set_media_size_list,
            &Caps::set_media_description_list, &Caps::set_media_source_list,
            &Caps::set_media_destination_list);
}

void tell(std::wostream& out, const PX_Media_Configuration& cfg) {
    const auto kept = cfg.get_media_settings();
    tell_all(out, cfg.get_media_selection_method(), cfg.get_media_type(), cfg.get_media_source(),
             cfg.get_media_source_entry(), cfg.get_media_size(), cfg.get_media_destination(),
             cfg.get_media_collating(), cfg.get_media_stapling(), cfg.get_media_cutting(),
             cfg.get_media_folding(), cfg.get_number_of_copies(), cfg.get_duplexing_mode(),
             cfg.get_longplot_reduction(), cfg.get_dm_scale(), cfg.get_dm_orientation(), cfg.get_margins(),
             cfg.get_actual_printable_bounds());
    tell_all(out, kept->get_max_resolution(), kept->get_media_bounds(), kept->get_printable_bounds(),
             kept->get_drying_time(), kept->get_printable_area(), kept->get_dimensional(),
             kept->get_media_group(), kept->get_landscape_mode_flag(), kept->get_form_name(),
             kept->get_media_feed(), kept->get_collating_type(), kept->get_stapling_location(),
             kept->get_stapling_when(), kept->get_stapling_orientation(), kept->get_cutting_when(),
             kept->get_folding_type(), kept->get_folding_when(), kept->get_source_width(),
             kept->get_source_frame_height());
}

}  // namespace fuzz
