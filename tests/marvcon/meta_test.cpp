#include <gtest/gtest.h>

#include <memory>

#include "tests/support/allocations.h"
#include "tests/support/expect_exception.h"
#include "toolkit/marvcon/marvcon.h"

namespace {

using support::expect_thrown;

// A text with its setter, its getter and the word that reports a null.
template <class Class>
struct Text {
    const wchar_t* setter;
    const wchar_t* detail;
    void (Class::*set)(const wchar_t*);
    const wchar_t* (Class::*get)() const;
};

const std::vector<Text<PX_Model>> model_texts = {
    {L"set_user_defined_model_pathname", L"user_defined_model_pathname",
     &PX_Model::set_user_defined_model_pathname, &PX_Model::get_user_defined_model_pathname},
    {L"set_user_defined_model_basename", L"user_defined_model_basename",
     &PX_Model::set_user_defined_model_basename, &PX_Model::get_user_defined_model_basename},
    {L"set_win_device_name", L"win_device_name", &PX_Model::set_win_device_name,
     &PX_Model::get_win_device_name},
    {L"set_win_driver_name", L"win_driver_name", &PX_Model::set_win_driver_name,
     &PX_Model::get_win_driver_name},
    {L"set_short_net_name", L"short_net_name", &PX_Model::set_short_net_name, &PX_Model::get_short_net_name},
    {L"set_friendly_net_name", L"friendly_net_name", &PX_Model::set_friendly_net_name,
     &PX_Model::get_friendly_net_name},
    {L"set_platform", L"platform", &PX_Model::set_platform, &PX_Model::get_platform},
    {L"set_locale", L"locale", &PX_Model::set_locale, &PX_Model::get_locale},
};

const std::vector<Text<PX_Meta_Capabilities>> driver_texts = {
    {L"set_driver_pathname", L"driver_pathname", &PX_Meta_Capabilities::set_driver_pathname,
     &PX_Meta_Capabilities::get_driver_pathname},
    {L"set_driver_version", L"driver_version", &PX_Meta_Capabilities::set_driver_version,
     &PX_Meta_Capabilities::get_driver_version},
    {L"set_driver_description", L"desc", &PX_Meta_Capabilities::set_driver_description,
     &PX_Meta_Capabilities::get_driver_description},
};

// Each text has a field of its own, is cloned, and survives a null.
template <class Class>
void check_texts(Class& object, const std::vector<Text<Class>>& texts, const std::wstring& class_name) {
    for (const auto& text : texts)
        (object.*text.set)(text.setter);
    const std::unique_ptr<Class> clone(object.clone());
    for (const auto& text : texts) {
        const auto thrown = expect_thrown<MVNK_Memory_Exception>(
            [&] { (object.*text.set)(nullptr); }, 1101, class_name + L"::" + text.setter, text.detail);
        EXPECT_EQ(thrown.file, L"$Workfile: std_meta_cfg $ $Revision: #1 $");
        EXPECT_STREQ((object.*text.get)(), text.setter);
        EXPECT_STREQ(((*clone).*text.get)(), text.setter);
    }
}

TEST(Model, KeepsItsTextsAndItsClone) {
    PX_Std_Model model;
    check_texts<PX_Model>(model, model_texts, L"PX_Std_Model");
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
    EXPECT_TRUE(clone->get_default_system_cfg());
    EXPECT_TRUE(clone->get_file_only());
    EXPECT_STREQ(clone->get_abilities(), L"000000000005");
    expect_thrown<PX_Severe_Error>(
        [&] { model.get_one_ability(static_cast<PX_Model_Ability_Flags::Enum>(12)); }, 1104,
        L"toolkit/marvcon/std_meta_cfg", L"PX_Model_Ability_Flags::Enum");
}

TEST(Named_Objects, ANullNameIsEmptiedAndReportedByTheClassesOwnCode) {
    const auto check = [](auto& object, unsigned int code, const wchar_t* function) {
        object.set_canonical_name(L"name");
        object.set_localized_name(L"name");
        const auto thrown =
            support::thrown_by([&] { object.set_canonical_name(nullptr); }).value_or(support::Thrown{});
        EXPECT_EQ(thrown.code, code);
        EXPECT_EQ(thrown.function, function);
        EXPECT_EQ(thrown.file, L"$Workfile: std_meta_cfg $ $Revision: #1 $");
        EXPECT_STREQ(object.get_canonical_name(), L"");
        EXPECT_NO_THROW(object.set_localized_name(nullptr));
        EXPECT_STREQ(object.get_localized_name(), L"");
    };
    PX_Std_Family family;
    check(family, 901, L"PX_Std_Family::set_canonical_name");
    PX_Std_Model model;
    check(model, 902, L"PX_Std_Model::set_canonical_name");
    PX_Std_Caps_Name_List_Object name;
    check(name, 1103, L"PX_Std_Caps_Name_List_Object::set_canonical_name");

    name.set_canonical_name(L"a4");
    name.set_caps_type(PX_Caps_Type::Caps_Type_Withdrawn);
    const std::unique_ptr<PX_Caps_Name_List_Object> clone(name.clone());
    EXPECT_STREQ(clone->get_canonical_name(), L"a4");
    EXPECT_EQ(clone->get_caps_type(), 3);
}

TEST(Meta_Capabilities, StartWithAnEmptyFamilyAndModel) {
    const PX_Std_Meta_Capabilities meta;
    EXPECT_EQ(meta.get_toolkit_version(), 1);
    EXPECT_EQ(meta.get_driver_type(), -1);
    EXPECT_TRUE(meta.get_truetype_as_text());
    EXPECT_FALSE(meta.get_show_custom_first());
    ASSERT_NE(meta.get_family(), nullptr);
    EXPECT_FALSE(meta.get_family()->supports_user_defined_model());
    ASSERT_NE(meta.get_model(), nullptr);
    EXPECT_STREQ(meta.get_model()->get_abilities(), L"000000000000");
}

TEST(Meta_Capabilities, StoreClonesAndCloneDeep) {
    PX_Std_Meta_Capabilities meta;
    check_texts<PX_Meta_Capabilities>(meta, driver_texts, L"PX_Std_Meta_Capabilities");
    PX_Std_Family family;
    family.set_canonical_name(L"family");
    family.supports_user_defined_model(true);
    meta.set_family(&family);
    EXPECT_NE(meta.get_family().get(), &family);
    EXPECT_STREQ(meta.get_family()->get_canonical_name(), L"family");
    expect_thrown<MVNK_Memory_Exception>([&] { meta.set_family(nullptr); }, 1101,
                                         L"PX_Std_Meta_Capabilities::set_family", L"family");
    expect_thrown<MVNK_Memory_Exception>([&] { meta.set_model(nullptr); }, 1101,
                                         L"PX_Std_Meta_Capabilities::set_model", L"new_model");
    PX_Std_Model model;
    model.set_canonical_name(L"model");
    meta.set_model(&model);
    meta.set_toolkit_version(5);
    meta.set_driver_type(PX_Driver_Type::Driver_Type_System_2);
    meta.set_show_custom_first(true);
    meta.set_truetype_as_text(false);
    const std::unique_ptr<PX_Meta_Capabilities> clone(meta.clone());
    EXPECT_EQ(clone->get_toolkit_version(), 5);
    EXPECT_EQ(clone->get_driver_type(), 2);
    EXPECT_TRUE(clone->get_show_custom_first());
    EXPECT_FALSE(clone->get_truetype_as_text());
    EXPECT_NE(clone->get_family(), meta.get_family());
    EXPECT_TRUE(clone->get_family()->supports_user_defined_model());
    EXPECT_NE(clone->get_model(), meta.get_model());
    EXPECT_STREQ(clone->get_model()->get_canonical_name(), L"model");
}

TEST(Meta_Capabilities, AFailingCloneOfAMemberPassesTheSetter) {
    PX_Std_Meta_Capabilities meta;
    const PX_Std_Family family;
    const auto before = meta.get_family();
    const auto thrown = expect_thrown<PX_Exception>(
        [&] {
            const support::Out_Of_Memory none;
            meta.set_family(&family);
        },
        1101, L"PX_Std_Family::clone", L"new_one");
    EXPECT_EQ(thrown.frames, std::vector<std::wstring>{L"PX_Std_Meta_Capabilities::set_family"});
    EXPECT_EQ(meta.get_family(), before);
}

}  // namespace
