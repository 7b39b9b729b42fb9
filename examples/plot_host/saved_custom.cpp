#include "examples/plot_host/saved_rows.h"
#include "toolkit/report.h"

namespace plot_host {
namespace {

using Data = PX_Smart_Pointer<PX_Custom_Data>;

Data data(PX_Custom_Data* value) {
    return made(value, L"custom_data");
}

Data read_nothing(const Field& field) {
    if (!field.is_null())
        field.reject("must be null, for the type is \"none\"");
    return nullptr;
}
Data read_string(const Field& field) {
    return data(new PX_Std_String_Custom_Data(text::from_utf8(field.name()).c_str()));
}
Data read_integer(const Field& field) {
    return data(new PX_Std_Long_Custom_Data(long{field.whole_number<std::int32_t>()}));
}
Data read_number(const Field& field) {
    return data(new PX_Std_Double_Custom_Data(field.number<double>()));
}
Data read_boolean(const Field& field) {
    return data(new PX_Std_Boolean_Custom_Data(field.boolean()));
}
Data read_bytes(const Field& field) {
    const PX_Dev_String bytes = field.bytes();
    return data(new PX_Std_Raw_Custom_Data(bytes.length(), bytes.data()));
}

// In the order of the kinds of PX_Item_Value.
constexpr PX_Word<Data (*)(const Field&)> types[] = {
    {"none", read_nothing},  {"string", read_string},   {"integer", read_integer},
    {"number", read_number}, {"boolean", read_boolean}, {"bytes", read_bytes},
};
static_assert(std::size(types) == std::variant_size_v<PX_Item_Value>);

json written(const PX_Custom_Config_Item& item) {
    const PX_Item_Value value = px_item_value_of(item);
    const auto as_it_is = PX_By_Kind{
        [](std::monostate) -> json { return nullptr; },
        [](const std::wstring& text) { return as_json(text.c_str()); },
        [](const auto& other) { return as_json(other); },
    };
    return {{"name", as_json(item.get_canonical_name())},
            {"type", types[value.index()].word},
            {"value", std::visit(as_it_is, value)}};
}

json write(const PX_Plotter_Configuration& choice) {
    json items = json::array();
    if (const auto list = choice.get_custom_configuration()->get_custom_list()) {
        for (const auto& item : *list) {
            if (item)
                items.push_back(written(*item));
        }
    }
    return items;
}

PX_Smart_Pointer<PX_Custom_Config_Item> read_item(const Field& field) {
    const Field::Members members = field.members({"name", "type", "value"});
    const auto item = made<PX_Custom_Config_Item>(new PX_Std_Custom_Config_Item, L"custom_item");
    item->set_canonical_name(text::from_utf8(field.required(members, "name").name()).c_str());
    const Field type = field.required(members, "type");
    const auto read = px_value_in(types, type.text());
    if (!read)
        type.reject("names no type of a value");
    item->set_config_value((*read)(field.required(members, "value")).get());
    // A new item says that it is both.
    item->set_validated(false);
    item->set_default(false);
    return item;
}

void read(const Field& field, const PX_Plotter_Configuration& into) {
    PX_Named_Object_List<PX_Custom_Config_Item> named;
    for (const Field& element : field.elements()) {
        const auto item = read_item(element);
        if (named.find(item->get_canonical_name()))
            element.reject("gives '" + text::to_utf8(item->get_canonical_name()) + "' a second time");
        named.append(item);
    }
    into.get_custom_configuration()->set_custom_list(&named);
}

}  // namespace

constexpr Saved_Domain saved_custom = {"custom", read, write};

}  // namespace plot_host
