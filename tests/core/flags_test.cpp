#include "toolkit/core/flags.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/expect_exception.h"

namespace {

// A domain with flag counts that leave spare bits and spare values.
struct Probe_Flags {
    enum Enum : int { None = -1, First = 0, Last = 16 };
    static constexpr PX_Flag_Range range{17, L"Probe_Flags::Enum", L"toolkit/marvcon/std_probe_cfg"};
};
using Flag = Probe_Flags::Enum;
using Abilities = PX_Flag_Set<PX_Abilities, Probe_Flags>;
using Owners = PX_Flag_Set<PX_UI_Ownership, Probe_Flags>;
using Booleans = PX_Flag_Set<PX_Boolean_Flags, Probe_Flags>;

TEST(Flags, AreCheckedAgainstTheirRange) {
    Abilities abilities;
    Booleans booleans;
    for (const int outside : {-2, 17}) {
        const auto flag = static_cast<Flag>(outside);
        support::expect_thrown<PX_Severe_Error>([&] { abilities.get_checked(flag); }, 1104,
                                                L"toolkit/marvcon/std_probe_cfg", L"Probe_Flags::Enum");
        EXPECT_THROW(booleans.set_checked(true, flag), PX_Severe_Error);
    }
    abilities.set_checked(PX_Ability_Value::Ability_Fixed, Flag::None);
    booleans.set_checked(true, Flag::None);
    EXPECT_EQ(abilities.get_text(), std::wstring(17, L'0')) << "no flag is written";
    EXPECT_STREQ(booleans.get_text(), L"00000");
    EXPECT_EQ(abilities.get_checked(Flag::None), 0);
    EXPECT_FALSE(booleans.get_checked(Flag::None));
}

TEST(Flags, TheTextIsTheState) {
    Abilities abilities;
    abilities.set_text(L"12");
    EXPECT_EQ(abilities.get_checked(static_cast<Flag>(1)), 2);
    EXPECT_EQ(abilities.get_checked(static_cast<Flag>(2)), 0) << "in range, outside the text";
    abilities.set_checked(PX_Ability_Value::Ability_Required, Flag::Last);
    abilities.set_text(abilities.get_text());
    EXPECT_STREQ(abilities.get_text(), L"12");
    abilities.set_all(PX_Ability_Value::Ability_Conditional);
    EXPECT_STREQ(abilities.get_text(), L"33") << "the length stays";
    for (const wchar_t* const nothing : {static_cast<const wchar_t*>(nullptr), L""}) {
        abilities.set_text(nothing);
        EXPECT_STREQ(abilities.get_text(), L"");
        EXPECT_EQ(abilities.get_checked(Flag::First), 0);
    }
}

TEST(Flags, ADigitOutsideItsEnumReadsAsUndefined) {
    Abilities abilities;
    Owners owners;
    abilities.set_text(L"/056");
    owners.set_text(L"/034");
    for (int n = 0; n < 4; ++n) {
        EXPECT_EQ(abilities.get_one(n), (std::vector{-1, 0, 5, -1}[static_cast<std::size_t>(n)])) << n;
        EXPECT_EQ(owners.get_one(n), (std::vector{-1, 0, 3, -1}[static_cast<std::size_t>(n)])) << n;
    }
    abilities.set_one(PX_Ability_Value::Ability_Undefined, 1);
    EXPECT_STREQ(abilities.get_text(), L"//56");
}

TEST(Flags, FourBooleansShareADigit) {
    Booleans booleans;
    booleans.set_one(true, 6);
    EXPECT_STREQ(booleans.get_text(), L"04000");
    EXPECT_TRUE(booleans.get_one(6) && !booleans.get_one(2));
    for (int n = 0; n < 17; ++n) {
        EXPECT_FALSE(static_cast<PX_Boolean_Flags&>(booleans).get_flags(17)) << n;
        booleans.set_one(true, n);
    }
    EXPECT_TRUE(static_cast<PX_Boolean_Flags&>(booleans).get_flags(17)) << "without the spare bits";
    booleans.set_all(true);
    EXPECT_STREQ(booleans.get_text(), L"?????") << "with the spare bits";
    booleans.set_one(false, Flag::Last);
    EXPECT_EQ(booleans.get_text(), std::wstring(4, L'?') + L'>');
}

class Bare_Flags : public PX_Flags {
public:
    using PX_Flags::get_flags;
    using PX_Flags::PX_Flags;
    using PX_Flags::setNumFlags;
};

TEST(Flags, ResizeCutsOrFillsOnTheRight) {
    Bare_Flags flags(L"1234");
    flags.setNumFlags(3);
    EXPECT_STREQ(flags.get_flags(), L"123");
    flags.setNumFlags(6);
    flags.setNumFlags(-1);
    EXPECT_STREQ(flags.get_flags(), L"123000");
    EXPECT_STREQ(Bare_Flags(-1).get_flags(), L"");
    const Bare_Flags copy(flags);
    flags = Bare_Flags(2);
    EXPECT_STREQ(copy.get_flags(), L"123000");
    EXPECT_STREQ(flags.get_flags(), L"00");
}

}  // namespace
