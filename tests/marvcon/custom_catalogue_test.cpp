#include <gtest/gtest.h>

#include <memory>

#include "tests/support/custom.h"
#include "tests/support/fields.h"

namespace {

using namespace support;
using Setting = PX_Custom_Capability;
using Item = PX_Custom_Config_Item;

// A value that may say that it is of any type.
struct Foreign : PX_Std_Long_Custom_Data {
    explicit Foreign(int type) : told{type} {}
    PX_Data_Type::Enum type() const override { return told; }
    Number told;
};

// What a setter stores is a copy, in the clone too; null is stored as null; and what fails leaves the old
// one.
template <class Class, class Held>
void check_copied(Class& object, PX_Smart_Pointer<Held> (Class::*get)() const,
                  void (Class::*set)(const Held*), Held* callers, const std::wstring& class_name,
                  const wchar_t* setter, const wchar_t* detail) {
    const std::wstring function = class_name + L"::" + setter;
    SCOPED_TRACE(testing::PrintToString(function));
    (object.*set)(callers);
    const auto held = (object.*get)();
    for (const Thrown& thrown : failures_of([&] {
             EXPECT_TRUE((object.*get)() == held);
             (object.*set)(callers);
         })) {
        EXPECT_TRUE(thrown.type && thrown.code == 1101 && thrown.file == custom_file);
        EXPECT_EQ(thrown.frames.empty() ? thrown.function : thrown.frames.back(), function);
        EXPECT_EQ(thrown.detail, thrown.frames.empty() ? detail : L"m_data_ptr");
    }
    expect_clone_reports_no_memory(object, class_name + L"::clone");
    const auto in_clone = (PX_Smart_Pointer<Class>(object.clone()).get()->*get)();
    EXPECT_TRUE(in_clone && in_clone != held && held != callers);
    (object.*set)(nullptr);
    EXPECT_FALSE((object.*get)() || (PX_Smart_Pointer<Class>(object.clone()).get()->*get)());
    if constexpr (requires { held->size(); }) {
        EXPECT_EQ(in_clone->size(), callers->size());
        EXPECT_FALSE(*held->begin() == *callers->begin());
    } else {
        EXPECT_EQ(show(in_clone), show(Data(callers)));
        if (callers->type() != PX_Data_Type::Data_Long)
            return;  // once a setter will do
        for (const int type : {-1, 0, 2, 3, 4, 5}) {
            const Foreign foreign(type);
            const auto thrown =
                expect_thrown<MVNK_Error>([&] { (object.*set)(&foreign); }, 701, function, L"");
            EXPECT_TRUE(thrown.file == custom_file && !(object.*get)());
        }
    }
}
#define CHECK_COPIED(object, Class, name, callers, detail)                                      \
    check_copied<PX_##Class>(object, &PX_##Class::get_##name, &PX_##Class::set_##name, callers, \
                             L"PX_Std_" #Class, L"set_" #name, detail)

TEST(Custom_Catalogue, KeepsEveryField) {
    PX_Std_Custom_Capability_Value value;
    PX_Std_Custom_Capability setting;
    PX_Std_Custom_Config_Item item;
    PX_Std_Custom_Capabilities settings;
    PX_Std_Custom_Configurations items;
    EXPECT_EQ(value.get_data_type(), -1);
    EXPECT_EQ(show(item), L" none vd");
    check_fields<Setting>(
        setting,
        {FIELD(Setting, canonical_name, L"", L"canonical", L"canonical_name"),
         FIELD(Setting, localized_name, L"", L"localized", L"localized_name"),
         FIELD(Setting, data_type, L"-1", Number{4}), FIELD(Setting, verifiable, L"1", false),
         FIELD(Setting, is_range_type, L"0", true), FIELD(Setting, range_min, L"0", -1.5),
         FIELD(Setting, range_max, L"0", 2.5), FIELD(Setting, caps_type, L"0", Number{2})},
        L"PX_Std_Custom_Capability", custom_file);
    for (const Data& data : {of(L"a longer text, which needs memory"), of(1L), of(2.5), of(true), raw({1})}) {
        CHECK_COPIED(value, Custom_Capability_Value, data_value, data.get(), L"m_data_value");
        CHECK_COPIED(setting, Custom_Capability, default_data_value, data.get(), L"m_default_data_value");
        CHECK_COPIED(item, Custom_Config_Item, config_value, data.get(), L"m_config_value");
    }
    EXPECT_EQ(show(item), L" none vd") << "values leave the flags";
    value.set_data_value(of(2.5).get());
    value.set_caps_type(Number{3});
    const std::unique_ptr<PX_Custom_Capability_Value> copy(value.clone());
    EXPECT_TRUE(copy->get_data_type() == 2 && copy->get_caps_type() == 3);

    const auto values = choice(of(1L), {of(1L), of(2L)})->get_value_list();
    CHECK_COPIED(setting, Custom_Capability, value_list, values.get(), L"new_list");
    const auto callers = list_of<PX_Std_Custom_Capability, Setting>({L"a", L"b"});
    CHECK_COPIED(settings, Custom_Capabilities, custom_list, callers.get(), L"copy_list");
    const auto callers_items = list_of<PX_Std_Custom_Config_Item, Item>({L"a", L"b"});
    CHECK_COPIED(items, Custom_Configurations, custom_list, callers_items.get(), L"copy_list");

    const std::wstring set = L"PX_Std_Custom_Config_Item::set_";
    check_setter<Item>(item, &Item::get_canonical_name, &Item::set_canonical_name, L"name",
                       {set + L"canonical_name", L"canonical_name", custom_file});
    check_setter<Item>(item, &Item::get_localized_name, &Item::set_localized_name, L"name",
                       {set + L"localized_name", L"localized_name", custom_file});
    // A clone leaves it behind.
    item.set_canonical_name(L"name");
    item.set_localized_name(L"localized");
    for (const bool validated : {false, true}) {
        item.set_validated(validated);
        item.set_default(!validated);
        const std::unique_ptr<Item> clone(item.clone());
        EXPECT_EQ(show(*clone) + clone->get_localized_name(), show(item));
    }
}

TEST(Custom_Capability, ShowsItsRangeOrItsListAndKeepsBoth) {
    auto source = setting(L"a", of(1L), 1.5, 2.5);
    source->set_num_values(3);
    for (const bool is_range : {true, false, true, false}) {
        source->set_is_range_type(is_range);
        EXPECT_EQ(source->get_range_min(), is_range ? 1.5 : 0);
        EXPECT_EQ(source->get_range_max(), is_range ? 2.5 : 0);
        EXPECT_EQ(source->get_num_values(), is_range ? 0 : 3);
        source = PX_Smart_Pointer<Setting>(source->clone());
    }
    source->set_num_values(-1);
    EXPECT_EQ(source->get_num_values(), 0);
}

TEST(Custom_Configurations, AnswerForAllItemsAndForOne) {
    using Items = PX_Custom_Configurations;
    const auto check = [](auto get, auto get_one, auto set, auto set_one, const std::wstring& mark) {
        PX_Std_Custom_Configurations items;
        EXPECT_TRUE((items.*get)()) << "nothing objects";
        for (const wchar_t* const name : {L"a", L"b"})
            items.get_custom_list()->append(item(name, of(true)));
        for (const wchar_t* const name : {L"A", static_cast<const wchar_t*>(nullptr), L"a"}) {
            (items.*set_one)(true, name);
            EXPECT_EQ((items.*get_one)(name), name && *name == L'a');
        }
        const auto all = [&] { return show(*items.get_custom(L"a")) + show(*items.get_custom(L"b")); };
        EXPECT_EQ(all(), L"a true " + mark + L"b true --");
        EXPECT_FALSE((items.*get_one)(L"b") || (items.*get)());
        (items.*set)(true);
        EXPECT_EQ(all(), L"a true " + mark + L"b true " + mark);
        EXPECT_TRUE((items.*get)());
        items.set_custom_list(nullptr);
        (items.*set)(false);
        (items.*set_one)(false, L"a");
        EXPECT_TRUE((items.*get)() && !(items.*get_one)(L"a"));
    };
    check(&Items::get_validated, &Items::get_one_validated, &Items::set_validated, &Items::set_one_validated,
          L"v-");
    check(&Items::get_default, &Items::get_one_default, &Items::set_default, &Items::set_one_default, L"-d");
}

}  // namespace
