#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/expect_exception.h"
#include "toolkit/core/flag_accessors.h"

namespace {

// A domain with flag counts that leave spare bits and spare values.
struct Probe_Flags {
    enum Enum : int { None = -1, First = 0, Last = 16 };
    static constexpr PX_Flag_Range range{17, L"Probe_Flags::Enum", L"toolkit/marvcon/std_probe_cfg"};
};
using Flag = Probe_Flags::Enum;

class Probe_Contract {
public:
    virtual ~Probe_Contract() = default;
    virtual const wchar_t* get_abilities() const = 0;
    virtual PX_Ability_Value::Enum get_one_ability(Flag flag) const = 0;
    virtual void set_abilities(PX_Ability_Value::Enum value) = 0;
    virtual void set_abilities(const wchar_t* text) = 0;
    virtual void set_one_ability(PX_Ability_Value::Enum value, Flag flag) = 0;
    virtual const wchar_t* get_caps_state() const = 0;
    virtual bool get_one_caps_state(Flag flag) const = 0;
    virtual void set_caps_state(bool on) = 0;
    virtual void set_caps_state(const wchar_t* text) = 0;
    virtual void set_one_caps_state(bool on, Flag flag) = 0;
    virtual const wchar_t* get_ui_owner() const = 0;
    virtual PX_UI_Owner::Enum get_one_ui_owner(Flag flag) const = 0;
    virtual void set_ui_owner(PX_UI_Owner::Enum owner) = 0;
    virtual void set_ui_owner(const wchar_t* text) = 0;
    virtual void set_one_ui_owner(PX_UI_Owner::Enum owner, Flag flag) = 0;
    virtual bool get_one_validated(Flag flag) const = 0;
    virtual bool get_validated() const = 0;
    virtual void set_one_validated(bool on, Flag flag) = 0;
    virtual void set_validated(bool on) = 0;
    virtual bool get_one_default(Flag flag) const = 0;
    virtual bool get_default() const = 0;
    virtual void set_one_default(bool on, Flag flag) = 0;
    virtual void set_default(bool on) = 0;
};

using Ability_Set = PX_Flag_Set<PX_Abilities, Probe_Flags>;
using Owner_Set = PX_Flag_Set<PX_UI_Ownership, Probe_Flags>;
using Boolean_Set = PX_Flag_Set<PX_Boolean_Flags, Probe_Flags>;
class Probe
    : public PX_Configuration_Accessors<
          PX_Owner_Accessors<
              PX_State_Accessors<PX_Ability_Accessors<Probe_Contract, Ability_Set>, Boolean_Set>, Owner_Set>,
          Boolean_Set, Boolean_Set> {};

TEST(Flags, EveryAccessorChecksItsRange) {
    Probe probe;
    const std::vector<std::pair<const char*, std::function<void(Flag)>>> accessors = {
        {"get_one_ability", [&](Flag f) { probe.get_one_ability(f); }},
        {"set_one_ability", [&](Flag f) { probe.set_one_ability(PX_Ability_Value::Ability_Fixed, f); }},
        {"get_one_caps_state", [&](Flag f) { probe.get_one_caps_state(f); }},
        {"set_one_caps_state", [&](Flag f) { probe.set_one_caps_state(true, f); }},
        {"get_one_ui_owner", [&](Flag f) { probe.get_one_ui_owner(f); }},
        {"set_one_ui_owner", [&](Flag f) { probe.set_one_ui_owner(PX_UI_Owner::UI_Owner_1, f); }},
        {"get_one_validated", [&](Flag f) { probe.get_one_validated(f); }},
        {"set_one_validated", [&](Flag f) { probe.set_one_validated(true, f); }},
        {"get_one_default", [&](Flag f) { probe.get_one_default(f); }},
        {"set_one_default", [&](Flag f) { probe.set_one_default(true, f); }},
    };
    for (const auto& accessor : accessors) {
        const auto& access = accessor.second;
        SCOPED_TRACE(accessor.first);
        for (const int outside : {-2, 17}) {
            const auto thrown = support::expect_thrown<PX_Severe_Error>(
                [&] { access(static_cast<Flag>(outside)); }, 1104, L"toolkit/marvcon/std_probe_cfg",
                L"Probe_Flags::Enum");
            EXPECT_EQ(thrown.file, L"(null)");
        }
        access(Flag::None);
        EXPECT_STREQ(probe.get_abilities(), L"00000000000000000") << "no flag is written";
        EXPECT_FALSE(probe.get_one_default(Flag::None) || probe.get_one_caps_state(Flag::None));
    }
    EXPECT_EQ(probe.get_one_ability(Flag::None), 0);
    EXPECT_EQ(probe.get_one_ui_owner(Flag::None), 0);
}

TEST(Flags, TheTextIsTheState) {
    Probe probe;
    probe.set_abilities(L"12");
    EXPECT_STREQ(probe.get_abilities(), L"12");
    EXPECT_EQ(probe.get_one_ability(static_cast<Flag>(1)), 2);
    EXPECT_EQ(probe.get_one_ability(static_cast<Flag>(2)), 0) << "in range, outside the text";
    probe.set_one_ability(PX_Ability_Value::Ability_Required, Flag::Last);
    EXPECT_STREQ(probe.get_abilities(), L"12");
    probe.set_abilities(probe.get_abilities());
    EXPECT_STREQ(probe.get_abilities(), L"12") << "its own text";
    probe.set_abilities(PX_Ability_Value::Ability_Conditional);
    EXPECT_STREQ(probe.get_abilities(), L"33") << "the length stays";
    for (const wchar_t* const nothing : {static_cast<const wchar_t*>(nullptr), L""}) {
        probe.set_abilities(nothing);
        EXPECT_STREQ(probe.get_abilities(), L"");
        EXPECT_EQ(probe.get_one_ability(Flag::First), 0);
    }
}

TEST(Flags, ADigitOutsideItsEnumReadsAsUndefined) {
    Probe probe;
    probe.set_abilities(L"/056");
    probe.set_ui_owner(L"/034");
    const int abilities[] = {-1, 0, 5, -1};
    const int owners[] = {-1, 0, 3, -1};
    for (int n = 0; n < 4; ++n) {
        EXPECT_EQ(probe.get_one_ability(static_cast<Flag>(n)), abilities[n]) << n;
        EXPECT_EQ(probe.get_one_ui_owner(static_cast<Flag>(n)), owners[n]) << n;
    }
    probe.set_one_ability(PX_Ability_Value::Ability_Undefined, static_cast<Flag>(1));
    EXPECT_STREQ(probe.get_abilities(), L"//56");
}

TEST(Flags, FourBooleansShareADigit) {
    Probe probe;
    EXPECT_STREQ(probe.get_caps_state(), L"00000");
    probe.set_one_caps_state(true, static_cast<Flag>(6));
    EXPECT_STREQ(probe.get_caps_state(), L"04000");
    EXPECT_TRUE(probe.get_one_caps_state(static_cast<Flag>(6)));
    EXPECT_FALSE(probe.get_one_caps_state(static_cast<Flag>(2)));
    probe.set_caps_state(true);
    EXPECT_STREQ(probe.get_caps_state(), L"?????") << "the spare bits too";
    probe.set_one_caps_state(false, Flag::Last);
    EXPECT_EQ(probe.get_caps_state(), std::wstring(4, L'?') + L'>');
}

TEST(Flags, AllAreSetWithoutTheSpareBits) {
    Probe probe;
    EXPECT_FALSE(probe.get_validated());
    for (int n = 0; n < 17; ++n) {
        EXPECT_FALSE(probe.get_validated()) << n;
        probe.set_one_validated(true, static_cast<Flag>(n));
    }
    EXPECT_TRUE(probe.get_validated());
    EXPECT_FALSE(probe.get_default()) << "the two sets are apart";
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
    EXPECT_STREQ(flags.get_flags(), L"123000");
    flags.setNumFlags(-1);
    EXPECT_STREQ(flags.get_flags(), L"123000");
    EXPECT_STREQ(Bare_Flags(-1).get_flags(), L"");
    const Bare_Flags copy(flags);
    flags = Bare_Flags(2);
    EXPECT_STREQ(copy.get_flags(), L"123000");
    EXPECT_STREQ(flags.get_flags(), L"00");
    EXPECT_TRUE(PX_Boolean_Flags(L"").get_flags(0));
    EXPECT_FALSE(PX_Boolean_Flags(L"").get_flags(1));
}

}  // namespace
