#include "examples/plot_host/saved_media.h"

#include <array>
#include <charconv>
#include <type_traits>

#include "examples/common/made.h"

namespace plot_host {
namespace {

// A datum of `Owner` under its key.
template <class Owner>
struct Row {
    const char* key;
    json (*write)(const Owner&);
    void (*read)(const Field&, Owner&);
};

// The shortest digits that stand for the very number.
json as_json(float number) {
    std::array<char, 32> digits{};
    const auto end = std::to_chars(digits.begin(), digits.end(), number).ptr;
    double shortest = number;
    std::from_chars(digits.data(), end, shortest);
    return shortest;
}
json as_json(const wchar_t* text) {
    return text::to_utf8(text);
}
json as_json(const PX_Smart_Pointer<PX_Float_XY>& value) {
    return {{"x", as_json(value->x)}, {"y", as_json(value->y)}};
}
json as_json(const PX_Smart_Pointer<PX_Float_Rectangle>& value) {
    return {{"x_min", as_json(value->x_min)},
            {"x_max", as_json(value->x_max)},
            {"y_min", as_json(value->y_min)},
            {"y_max", as_json(value->y_max)}};
}
template <class Value>
requires std::is_arithmetic_v<Value> || std::is_enum_v<Value> json as_json(Value value) {
    if constexpr (std::is_enum_v<Value>)
        return static_cast<int>(value);
    else
        return value;
}

// Numbers that are not named are 0.
template <class Value, std::size_t count>
Value of_numbers(const Field& field, const std::pair<const char*, float Value::*> (&numbers)[count]) {
    std::vector<std::string> keys;
    for (const auto& number : numbers)
        keys.emplace_back(number.first);
    Value value;
    for (const auto& [key, member] : field.members(keys))
        value.*(std::ranges::find(numbers, key, &std::pair<const char*, float Value::*>::first)->second) =
            member.template number<float>();
    return value;
}

PX_Float_XY xy_of(const Field& field) {
    return of_numbers<PX_Float_XY>(field, {{"x", &PX_Float_XY::x}, {"y", &PX_Float_XY::y}});
}

PX_Float_Rectangle rectangle_of(const Field& field) {
    using Rectangle = PX_Float_Rectangle;
    return of_numbers<Rectangle>(field, {{"x_min", &Rectangle::x_min},
                                         {"x_max", &Rectangle::x_max},
                                         {"y_min", &Rectangle::y_min},
                                         {"y_max", &Rectangle::y_max}});
}

template <auto get, auto set, class Owner>
void read_value(const Field& field, Owner& owner) {
    using Value = decltype((owner.*get)());
    if constexpr (std::is_same_v<Value, const wchar_t*>) {
        (owner.*set)(text::from_utf8(field.name()).c_str());
    } else if constexpr (std::is_same_v<Value, PX_Smart_Pointer<PX_Float_XY>>) {
        const PX_Float_XY value = xy_of(field);
        (owner.*set)(&value);
    } else if constexpr (std::is_same_v<Value, PX_Smart_Pointer<PX_Float_Rectangle>>) {
        const PX_Float_Rectangle value = rectangle_of(field);
        (owner.*set)(&value);
    } else if constexpr (std::is_same_v<Value, bool>) {
        (owner.*set)(field.boolean());
    } else if constexpr (std::is_floating_point_v<Value>) {
        (owner.*set)(field.number<Value>());
    } else if constexpr (std::is_enum_v<Value>) {
        (owner.*set)(static_cast<Value>(field.whole_number<std::int32_t>()));
    } else if constexpr (std::is_same_v<Value, short>) {
        (owner.*set)(field.whole_number<short>());
    } else {
        // A long is of 32 bits where files of other machines come from.
        (owner.*set)(field.whole_number<std::int32_t>());
    }
}

template <class Owner, auto get>
json write_value(const Owner& owner) {
    return as_json((owner.*get)());
}

template <auto get, auto set>
constexpr Row<PX_Media_Settings> snapshot_row(const char* key) {
    return {key, write_value<PX_Media_Settings, get>, read_value<get, set, PX_Media_Settings>};
}

using S = PX_Media_Settings;
constexpr Row<S> snapshot_rows[] = {
    snapshot_row<&S::get_drying_time, &S::set_drying_time>("drying_time"),
    snapshot_row<&S::get_max_resolution, &S::set_max_resolution>("max_resolution"),
    snapshot_row<&S::get_media_bounds, &S::set_media_bounds>("media_bounds"),
    snapshot_row<&S::get_printable_bounds, &S::set_printable_bounds>("printable_bounds"),
    snapshot_row<&S::get_printable_area, &S::set_printable_area>("printable_area"),
    snapshot_row<&S::get_dimensional, &S::set_dimensional>("dimensional"),
    snapshot_row<&S::get_media_group, &S::set_media_group>("media_group"),
    snapshot_row<&S::get_landscape_mode_flag, &S::set_landscape_mode_flag>("landscape_mode"),
    snapshot_row<&S::get_form_name, &S::set_form_name>("form_name"),
    snapshot_row<&S::get_media_feed, &S::set_media_feed>("media_feed"),
    snapshot_row<&S::get_collating_type, &S::set_collating_type>("collating_type"),
    snapshot_row<&S::get_stapling_location, &S::set_stapling_location>("stapling_location"),
    snapshot_row<&S::get_stapling_when, &S::set_stapling_when>("stapling_when"),
    snapshot_row<&S::get_stapling_orientation, &S::set_stapling_orientation>("stapling_orientation"),
    snapshot_row<&S::get_cutting_when, &S::set_cutting_when>("cutting_when"),
    snapshot_row<&S::get_folding_type, &S::set_folding_type>("folding_type"),
    snapshot_row<&S::get_folding_when, &S::set_folding_when>("folding_when"),
    snapshot_row<&S::get_source_width, &S::set_source_width>("source_width"),
    snapshot_row<&S::get_source_frame_height, &S::set_source_frame_height>("source_frame_height"),
};

void read_snapshot(const Field& field, PX_Media_Settings& into) {
    for (const auto& [key, member] : field.members(keys_of(snapshot_rows)))
        std::ranges::find(snapshot_rows, key, &Row<PX_Media_Settings>::key)->read(member, into);
}

json write_snapshot(const PX_Media_Settings& snapshot) {
    json values;
    for (const auto& row : snapshot_rows)
        values[row.key] = row.write(snapshot);
    return values;
}

using C = PX_Media_Configuration;

// The setters want objects. The device of the choice may not be at hand, so the objects carry the saved name
// and nothing else; the snapshot is put right afterwards.
template <class Object, auto set>
void read_name(const Field& field, C& media) {
    Object named;
    named.set_canonical_name(text::from_utf8(field.name()).c_str());
    if constexpr (std::is_same_v<Object, PX_Std_Media_Size>) {
        const PX_Std_Media_Description description;
        (media.*set)(&named, &description);
    } else {
        (media.*set)(&named);
    }
}

template <auto get, class Object, auto set>
constexpr Row<C> name_row(const char* key) {
    return {key, write_value<C, get>, read_name<Object, set>};
}

template <auto get, auto set>
constexpr Row<C> value_row(const char* key) {
    return {key, write_value<C, get>, read_value<get, set, C>};
}

constexpr Row<C> name_rows[] = {
    name_row<&C::get_media_type, PX_Std_Media_Type, &C::set_media_type>("type"),
    name_row<&C::get_media_source, PX_Std_Media_Source, &C::set_media_source>("source"),
    name_row<&C::get_media_source_entry, PX_Std_Media_Source_Entry, &C::set_media_source_entry>(
        "source_entry"),
    name_row<&C::get_media_size, PX_Std_Media_Size, &C::set_media_size>("size"),
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

constexpr const char* snapshot_key = "snapshot";

std::vector<std::string> all_keys() {
    std::vector<std::string> keys = keys_of(name_rows);
    for (const std::string& key : keys_of(value_rows))
        keys.push_back(key);
    keys.emplace_back(snapshot_key);
    return keys;
}

}  // namespace

void read_saved_media(const Field& domain, const PX_Plotter_Configuration& into) {
    const auto configuration = into.get_media_configuration();
    C& media = *configuration;
    const auto members = domain.members(all_keys());
    const auto snapshot = made(media.get_media_settings()->clone(), L"snapshot");
    const auto bounds = media.get_actual_printable_bounds();
    const auto read_rows = [&](const auto& rows) {
        for (const auto& row : rows) {
            for (const auto& [key, field] : members) {
                if (key == row.key)
                    row.read(field, media);
            }
        }
    };
    read_rows(name_rows);
    for (const auto& [key, field] : members) {
        if (key == snapshot_key)
            read_snapshot(field, *snapshot);
    }
    media.set_media_settings(snapshot.get());
    // The setter of the size has written them.
    media.set_actual_printable_bounds(bounds.get());
    read_rows(value_rows);
}

json write_saved_media(const PX_Plotter_Configuration& choice) {
    const C& media = *choice.get_media_configuration();
    json domain;
    for (const Row<C>& row : name_rows)
        domain[row.key] = row.write(media);
    for (const Row<C>& row : value_rows)
        domain[row.key] = row.write(media);
    domain[snapshot_key] = write_snapshot(*media.get_media_settings());
    return domain;
}

}  // namespace plot_host
