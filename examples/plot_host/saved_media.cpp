#include "examples/plot_host/saved_rows.h"

namespace plot_host {
namespace {

using S = PX_Media_Settings;
constexpr Row<S> snapshot_rows[] = {
    value_row<&S::get_drying_time, &S::set_drying_time>("drying_time"),
    value_row<&S::get_max_resolution, &S::set_max_resolution>("max_resolution"),
    value_row<&S::get_media_bounds, &S::set_media_bounds>("media_bounds"),
    value_row<&S::get_printable_bounds, &S::set_printable_bounds>("printable_bounds"),
    value_row<&S::get_printable_area, &S::set_printable_area>("printable_area"),
    value_row<&S::get_dimensional, &S::set_dimensional>("dimensional"),
    value_row<&S::get_media_group, &S::set_media_group>("media_group"),
    value_row<&S::get_landscape_mode_flag, &S::set_landscape_mode_flag>("landscape_mode"),
    value_row<&S::get_form_name, &S::set_form_name>("form_name"),
    value_row<&S::get_media_feed, &S::set_media_feed>("media_feed"),
    value_row<&S::get_collating_type, &S::set_collating_type>("collating_type"),
    value_row<&S::get_stapling_location, &S::set_stapling_location>("stapling_location"),
    value_row<&S::get_stapling_when, &S::set_stapling_when>("stapling_when"),
    value_row<&S::get_stapling_orientation, &S::set_stapling_orientation>("stapling_orientation"),
    value_row<&S::get_cutting_when, &S::set_cutting_when>("cutting_when"),
    value_row<&S::get_folding_type, &S::set_folding_type>("folding_type"),
    value_row<&S::get_folding_when, &S::set_folding_when>("folding_when"),
    value_row<&S::get_source_width, &S::set_source_width>("source_width"),
    value_row<&S::get_source_frame_height, &S::set_source_frame_height>("source_frame_height"),
};

using C = PX_Media_Configuration;

// The description of a size comes with the snapshot, and the bounds that its setter lays are those of none.
void choose_size(C& media, const PX_Media_Size* size) {
    const auto bounds = media.get_actual_printable_bounds();
    const PX_Std_Media_Description description;
    media.set_media_size(size, &description);
    media.set_actual_printable_bounds(bounds.get());
}

constexpr Row<C> name_rows[] = {
    name_row<&C::get_media_type, PX_Std_Media_Type, &C::set_media_type>("type"),
    name_row<&C::get_media_source, PX_Std_Media_Source, &C::set_media_source>("source"),
    name_row<&C::get_media_source_entry, PX_Std_Media_Source_Entry, &C::set_media_source_entry>(
        "source_entry"),
    name_row<&C::get_media_size, PX_Std_Media_Size, &choose_size>("size"),
    name_row<&C::get_media_destination, PX_Std_Media_Destination, &C::set_media_destination>("destination"),
    name_row<&C::get_media_collating, PX_Std_Media_Collating, &C::set_media_collating>("collating"),
    name_row<&C::get_media_stapling, PX_Std_Media_Stapling, &C::set_media_stapling>("stapling"),
    name_row<&C::get_media_cutting, PX_Std_Media_Cutting, &C::set_media_cutting>("cutting"),
    name_row<&C::get_media_folding, PX_Std_Media_Folding, &C::set_media_folding>("folding"),
};

// The bounds stand behind the orientation, whose setter lays them anew.
constexpr Row<C> value_rows[] = {
    value_row<&C::get_media_selection_method, &C::set_media_selection_method>("selection_method"),
    value_row<&C::get_number_of_copies, &C::set_number_of_copies>("copies"),
    value_row<&C::get_duplexing_mode, &C::set_duplexing_mode>("duplexing_mode"),
    value_row<&C::get_margins, &C::set_margins>("margins"),
    value_row<&C::get_longplot_reduction, &C::set_longplot_reduction>("longplot_reduction"),
    value_row<&C::get_dm_scale, &C::set_dm_scale>("dm_scale"),
    value_row<&C::get_dm_orientation, &C::set_dm_orientation>("dm_orientation"),
    value_row<&C::get_actual_printable_bounds, &C::set_actual_printable_bounds>("actual_printable_bounds"),
};

}  // namespace

constexpr Saved_Domain saved_media =
    domain_of_names<&PX_Plotter_Configuration::get_media_configuration, name_rows,
                    Snapshot_Of<&C::get_media_settings, &C::set_media_settings, snapshot_rows>, value_rows>(
        "media");

}  // namespace plot_host
