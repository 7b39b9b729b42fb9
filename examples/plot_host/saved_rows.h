#pragma once

#include <charconv>
#include <type_traits>
#include <utility>
#include <vector>

#include "examples/common/made.h"
#include "examples/plot_host/saved_domains.h"

// What the domains of a saved choice are read and written by, a row a datum.
namespace plot_host {

// A datum of `Owner` under its key.
template <class Owner>
struct Row {
    const char* key;
    json (*write)(const Owner&);
    void (*read)(const Field&, Owner&);
};

// No more digits than the number has.
inline json as_json(float number) {
    const std::string digits = text::shortest(number);
    double shortest = number;
    std::from_chars(digits.data(), digits.data() + digits.size(), shortest);
    return shortest;
}
inline json as_json(const wchar_t* text) {
    return text::to_utf8(text);
}
inline json as_json(const PX_Smart_Pointer<PX_Float_XY>& value) {
    return {{"x", as_json(value->x)}, {"y", as_json(value->y)}};
}
inline json as_json(const PX_Smart_Pointer<PX_Float_Rectangle>& value) {
    return {{"x_min", as_json(value->x_min)},
            {"x_max", as_json(value->x_max)},
            {"y_min", as_json(value->y_min)},
            {"y_max", as_json(value->y_max)}};
}
// A character for each byte.
inline json as_json(const PX_Dev_String& bytes) {
    return text::to_utf8(std::wstring(bytes.data(), bytes.data() + bytes.length()));
}
// Null for a string that was taken away.
inline json as_json(const PX_Smart_Pointer<PX_Dev_String>& string) {
    return string ? as_json(*string) : json(nullptr);
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

inline PX_Float_XY xy_of(const Field& field) {
    return of_numbers<PX_Float_XY>(field, {{"x", &PX_Float_XY::x}, {"y", &PX_Float_XY::y}});
}

inline PX_Float_Rectangle rectangle_of(const Field& field) {
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
    } else if constexpr (std::is_same_v<Value, PX_Smart_Pointer<PX_Dev_String>>) {
        const std::optional<PX_Dev_String> value = field.device_string();
        (owner.*set)(value ? &*value : nullptr);
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

template <class Owner, class Value>
Owner owner_of(Value (Owner::*)() const);

template <auto get>
using Owner_Of = decltype(owner_of(get));

template <auto get>
json write_value(const Owner_Of<get>& owner) {
    return as_json((owner.*get)());
}

// A value that is set as it is.
template <auto get, auto set>
constexpr Row<Owner_Of<get>> value_row(const char* key) {
    return {key, write_value<get>, read_value<get, set, Owner_Of<get>>};
}

// A name whose setter wants a catalogue object. The device of the choice may not be at hand, so the object
// carries the saved name and nothing else; the snapshot is put right afterwards.
template <auto get, class Object, auto set>
constexpr Row<Owner_Of<get>> name_row(const char* key) {
    constexpr auto read = [](const Field& field, Owner_Of<get>& owner) {
        Object named;
        named.set_canonical_name(text::from_utf8(field.name()).c_str());
        if constexpr (std::is_member_function_pointer_v<decltype(set)>)
            (owner.*set)(&named);
        else
            set(owner, &named);
    };
    return {key, write_value<get>, read};
}

// In the order of the rows, whatever that of the members is.
template <class Owner, std::size_t count>
void read_rows(const Row<Owner> (&rows)[count], const Field::Members& members, Owner& owner) {
    for (const Row<Owner>& row : rows) {
        for (const auto& [key, field] : members) {
            if (key == row.key)
                row.read(field, owner);
        }
    }
}

template <class Owner, std::size_t count>
void write_rows(const Row<Owner> (&rows)[count], const Owner& owner, json& values) {
    for (const Row<Owner>& row : rows)
        values[row.key] = row.write(owner);
}

// A domain whose rows stand for themselves.
template <auto get, const auto& rows>
constexpr Saved_Domain domain_of_rows(const char* key) {
    constexpr auto read = [](const Field& domain, const PX_Plotter_Configuration& into) {
        read_rows(rows, domain.members(keys_of(rows)), *(into.*get)());
    };
    constexpr auto write = [](const PX_Plotter_Configuration& choice) {
        json domain;
        write_rows(rows, *(choice.*get)(), domain);
        return domain;
    };
    return {key, read, write};
}

inline constexpr const char* snapshot_key = "snapshot";

// What the names of a domain stood for when they were chosen.
template <auto get_snapshot, auto set_snapshot, const auto& snapshot_rows>
struct Snapshot_Of {
    static constexpr auto get = get_snapshot;
    static constexpr auto set = set_snapshot;
    static constexpr const auto& rows = snapshot_rows;
};

// A domain of names, of what they stood for, and of values. The setters of the names write into the snapshot,
// and those of the values may go by it: the saved one goes between them, over the one that was there before
// the names.
template <auto get, const auto& names, class Snapshot, const auto& values>
constexpr Saved_Domain domain_of_names(const char* key) {
    constexpr auto read = [](const Field& domain, const PX_Plotter_Configuration& into) {
        const auto owner = (into.*get)();
        std::vector<std::string> known = keys_of(names, values);
        known.emplace_back(snapshot_key);
        const auto members = domain.members(known);
        const auto snapshot = made(((*owner).*Snapshot::get)()->clone(), L"snapshot");
        read_rows(names, members, *owner);
        for (const auto& [name, field] : members) {
            if (name == snapshot_key)
                read_rows(Snapshot::rows, field.members(keys_of(Snapshot::rows)), *snapshot);
        }
        ((*owner).*Snapshot::set)(snapshot.get());
        read_rows(values, members, *owner);
    };
    constexpr auto write = [](const PX_Plotter_Configuration& choice) {
        const auto owner = (choice.*get)();
        json domain;
        write_rows(names, *owner, domain);
        write_rows(values, *owner, domain);
        write_rows(Snapshot::rows, *((*owner).*Snapshot::get)(), domain[snapshot_key]);
        return domain;
    };
    return {key, read, write};
}

}  // namespace plot_host
