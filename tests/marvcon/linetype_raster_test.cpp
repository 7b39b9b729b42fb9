#include <gtest/gtest.h>

#include <memory>

#include "tests/support/fields.h"
#include "toolkit/marvcon/marvcon.h"

namespace {

using Pattern = PX_Line_Pattern::Enum;

TEST(Linetype_Capabilities, PatternsAreNotRangeChecked) {
    PX_Std_Linetype_Capabilities caps;
    for (const int pattern : {0, 6, 17, 19})
        caps.set_linefont_capability(true, Pattern{pattern});
    EXPECT_STREQ(caps.get_linefont_capabilities(), L"1400:") << "19 is spare and there";
    caps.set_linefont_capability(false, Pattern{6});
    EXPECT_TRUE(caps.get_linefont_capability(Pattern{17}) && !caps.get_linefont_capability(Pattern{6}));
    caps.set_linefont_capabilities(true);
    for (const int outside : {-1, -4, 20, 1000}) {
        caps.set_linefont_capability(false, Pattern{outside});
        EXPECT_FALSE(caps.get_linefont_capability(Pattern{outside})) << outside;
    }
    EXPECT_STREQ(caps.get_linefont_capabilities(), L"?????");
    caps.set_linefont_capabilities(L"2");
    caps.set_linefont_capability(true, Pattern{4});
    EXPECT_STREQ(caps.get_linefont_capabilities(), L"2") << "the text has no place for it any more";
    for (int pattern = -2; pattern < 20; ++pattern) {
        EXPECT_EQ(caps.get_linefont_size(Pattern{pattern}), 0.0F) << pattern;
        caps.set_linefont_size(Pattern{pattern}, 1.5F);
        EXPECT_EQ(caps.get_linefont_size(Pattern{pattern}), pattern >= 0 && pattern <= 17 ? 1.5F : 0.0F);
    }
}

template <class Capabilities>
void check_flags(const std::wstring& stem, const std::wstring& name, int abilities, int states,
                 const std::wstring& expected) {
    Capabilities caps;
    const std::wstring path = L"toolkit/marvcon/" + stem;
    support::check_range(
        abilities, path.c_str(), (name + L"_Ability_Flags::Enum").c_str(),
        [&](int flag) { caps.set_one_ability(PX_Ability_Value::Ability_Required, support::Number{flag}); },
        [&](int flag) { return caps.get_one_ability(support::Number{flag}); });
    support::check_range(
        states, path.c_str(), (name + L"_User_Flags::Enum").c_str(),
        [&](int flag) { caps.set_one_caps_state(true, support::Number{flag}); },
        [&](int flag) { return caps.get_one_caps_state(support::Number{flag}); });
    EXPECT_EQ(caps.get_abilities() + std::wstring(L" ") + caps.get_caps_state(), expected);
}

TEST(Fixed_Capabilities, FlagsAreCheckedAgainstTheirEnums) {
    check_flags<PX_Std_Linetype_Capabilities>(L"std_linetype_caps", L"PX_Linetype", 2, 4, L"05 8");
    check_flags<PX_Std_Raster_Capabilities>(L"std_raster_caps", L"PX_Raster", 4, 5, L"0005 01");
}

TEST(Fixed_Capabilities, ClonesKeepEverythingAndReportNoMemory) {
    PX_Std_Linetype_Capabilities linetypes;
    linetypes.set_linefont_capabilities(L"12345");
    for (int pattern = 0; pattern < 18; ++pattern)
        linetypes.set_linefont_size(Pattern{pattern}, static_cast<float>(pattern) - 3.5F);
    linetypes.set_abilities(L"123");
    linetypes.set_caps_state(L"6");
    const std::unique_ptr<PX_Linetype_Capabilities> copy(linetypes.clone());
    for (int pattern = 0; pattern < 18; ++pattern)
        EXPECT_EQ(copy->get_linefont_size(Pattern{pattern}), static_cast<float>(pattern) - 3.5F);
    EXPECT_STREQ(copy->get_linefont_capabilities(), L"12345");
    EXPECT_EQ(std::wstring(copy->get_abilities()) + copy->get_caps_state(), L"1236");
    support::expect_clone_reports_no_memory<PX_Linetype_Capabilities>(
        linetypes, L"PX_Std_Linetype_Capabilities::clone", L"$Workfile: std_linetype_caps $ $Revision: #1 $");
    PX_Std_Raster_Capabilities raster;
    EXPECT_EQ(raster.get_orientation_prefs(), 0);
    raster.set_orientation_prefs(PX_Raster_Orientation_Prefs::Enum{-7});
    raster.set_abilities(L"4321");
    raster.set_caps_state(true);
    const std::unique_ptr<PX_Raster_Capabilities> other(raster.clone());
    EXPECT_EQ(other->get_orientation_prefs(), -7);
    EXPECT_EQ(std::wstring(other->get_abilities()) + other->get_caps_state(), L"4321??");
    support::expect_clone_reports_no_memory<PX_Raster_Capabilities>(
        raster, L"PX_Std_Raster_Capabilities::clone", L"$Workfile: std_raster_caps $ $Revision: #1 $");
}

}  // namespace
