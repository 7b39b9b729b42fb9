#include <gtest/gtest.h>

#include <memory>

#include "tests/support/allocations.h"
#include "tests/support/expect_exception.h"
#include "toolkit/marvcon/marvcon.h"

namespace {

using support::expect_thrown;

constexpr const wchar_t* file = L"$Workfile: std_meta_cfg $ $Revision: #1 $";

// A text with its setter, its getter and the word that reports a null.
template <class Class>
struct Text {
    std::wstring setter;
    const wchar_t* detail;
    void (Class::*set)(const wchar_t*);
    const wchar_t* (Class::*get)() const;
};
#define OWN_TEXT(Class, name, detail)                                 \
    Text<Class> {                                                     \
        L"set_" #name, detail, &Class::set_##name, &Class::get_##name \
    }

// Each text has a field of its own, is cloned, and survives a null.
template <class Class>
void check_texts(Class& object, const std::wstring& class_name, std::initializer_list<Text<Class>> texts) {
    for (const auto& text : texts)
        (object.*text.set)(text.setter.c_str());
    const std::unique_ptr<Class> clone(object.clone());
    for (const auto& text : texts) {
        const auto set_null = [&] { (object.*text.set)(nullptr); };
        EXPECT_EQ(expect_thrown<MVNK_Memory_Exception>(set_null, 1101, class_name + L"::" + text.setter,
                                                       text.detail)
                      .file,
                  file);
        EXPECT_EQ((object.*text.get)(), text.setter);
        EXPECT_EQ(((*clone).*text.get)(), text.setter);
    }
}

TEST(Model, KeepsItsTextsAndItsClone) {
    PX_Std_Model model;
    using M = PX_Model;
    check_texts<M>(
        model, L"PX_Std_Model",
        {OWN_TEXT(M, user_defined_model_pathname, L"user_defined_model_pathname"),
         OWN_TEXT(M, user_defined_model_basename, L"user_defined_model_basename"),
         OWN_TEXT(M, win_device_name, L"win_device_name"), OWN_TEXT(M, win_driver_name, L"win_driver_name"),
         OWN_TEXT(M, short_net_name, L"short_net_name"), OWN_TEXT(M, friendly_net_name, L"friendly_net_name"),
         OWN_TEXT(M, platform, L"platform"), OWN_TEXT(M, locale, L"locale")});
    model.set_canonical_name(L"canonical");
    model.set_localized_name(L"localized");
    model.set_dm_driver_version(7);
    model.set_default_system_cfg(true);
    model.set_file_only(true);
    model.set_one_ability(PX_Ability_Value::Ability_Required, PX_Model_Ability_Flags::Model_Ability_11);
    const std::unique_ptr<PX_Model> clone(model.clone());
    EXPECT_STREQ(clone->get_canonical_name(), L"canonical");
    EXPECT_STREQ(clone->get_localized_name(), L"localized");
    EXPECT_EQ(clone->get_dm_driver_version(), 7);
    EXPECT_TRUE(clone->get_default_system_cfg() && clone->get_file_only());
    EXPECT_STREQ(clone->get_abilities(), L"000000000005");
    expect_thrown<PX_Severe_Error>(
        [&] { model.get_one_ability(static_cast<PX_Model_Ability_Flags::Enum>(12)); }, 1104,
        L"toolkit/marvcon/std_meta_cfg", L"PX_Model_Ability_Flags::Enum");
}

template <class Class>
void check_name(unsigned int code, const wchar_t* function) {
    Class object;
    object.set_canonical_name(L"name");
    object.set_localized_name(L"name");
    const auto thrown = support::thrown_by([&] { object.set_canonical_name(nullptr); });
    ASSERT_TRUE(thrown);
    EXPECT_EQ(thrown->code, code);
    EXPECT_EQ(thrown->function, function);
    EXPECT_EQ(thrown->file, file);
    object.set_localized_name(nullptr);
    EXPECT_STREQ(object.get_canonical_name(), L"");
    EXPECT_STREQ(object.get_localized_name(), L"");
}

TEST(Named_Objects, ANullNameIsEmptiedAndReportedByTheClassesOwnCode) {
    check_name<PX_Std_Family>(901, L"PX_Std_Family::set_canonical_name");
    check_name<PX_Std_Model>(902, L"PX_Std_Model::set_canonical_name");
    check_name<PX_Std_Caps_Name_List_Object>(1103, L"PX_Std_Caps_Name_List_Object::set_canonical_name");
    PX_Std_Caps_Name_List_Object name;
    name.set_canonical_name(L"a4");
    name.set_caps_type(PX_Caps_Type::Caps_Type_Withdrawn);
    const std::unique_ptr<PX_Caps_Name_List_Object> clone(name.clone());
    EXPECT_STREQ(clone->get_canonical_name(), L"a4");
    EXPECT_EQ(clone->get_caps_type(), 3);
}

TEST(Meta_Capabilities, StoreClonesAndCloneDeep) {
    PX_Std_Meta_Capabilities meta;
    EXPECT_EQ(meta.get_toolkit_version(), 1);
    EXPECT_EQ(meta.get_driver_type(), -1);
    EXPECT_TRUE(meta.get_truetype_as_text() && !meta.get_show_custom_first());
    ASSERT_TRUE(meta.get_family() && meta.get_model());
    EXPECT_FALSE(meta.get_family()->supports_user_defined_model());
    EXPECT_STREQ(meta.get_model()->get_abilities(), L"000000000000");

    using Meta = PX_Meta_Capabilities;
    check_texts<Meta>(
        meta, L"PX_Std_Meta_Capabilities",
        {OWN_TEXT(Meta, driver_pathname, L"driver_pathname"),
         OWN_TEXT(Meta, driver_version, L"driver_version"), OWN_TEXT(Meta, driver_description, L"desc")});
    expect_thrown<MVNK_Memory_Exception>([&] { meta.set_family(nullptr); }, 1101,
                                         L"PX_Std_Meta_Capabilities::set_family", L"family");
    expect_thrown<MVNK_Memory_Exception>([&] { meta.set_model(nullptr); }, 1101,
                                         L"PX_Std_Meta_Capabilities::set_model", L"new_model");
    PX_Std_Family family;
    family.supports_user_defined_model(true);
    const auto before = meta.get_family();
    const auto set_without_memory = [&] {
        const support::Out_Of_Memory none;
        meta.set_family(&family);
    };
    EXPECT_EQ(
        expect_thrown<PX_Exception>(set_without_memory, 1101, L"PX_Std_Family::clone", L"new_one").frames,
        std::vector<std::wstring>{L"PX_Std_Meta_Capabilities::set_family"});
    EXPECT_EQ(meta.get_family(), before);
    meta.set_family(&family);
    PX_Std_Model model;
    model.set_canonical_name(L"model");
    meta.set_model(&model);
    meta.set_toolkit_version(5);
    meta.set_driver_type(PX_Driver_Type::Driver_Type_System_2);
    meta.set_show_custom_first(true);
    meta.set_truetype_as_text(false);
    const std::unique_ptr<Meta> clone(meta.clone());
    EXPECT_EQ(clone->get_toolkit_version(), 5);
    EXPECT_EQ(clone->get_driver_type(), 2);
    EXPECT_TRUE(clone->get_show_custom_first() && !clone->get_truetype_as_text());
    EXPECT_TRUE(meta.get_family().get() != &family && clone->get_family() != meta.get_family());
    EXPECT_TRUE(clone->get_family()->supports_user_defined_model());
    EXPECT_NE(clone->get_model(), meta.get_model());
    EXPECT_STREQ(clone->get_model()->get_canonical_name(), L"model");
}

}  // namespace
