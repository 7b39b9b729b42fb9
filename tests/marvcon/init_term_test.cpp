#include <gtest/gtest.h>

#include <array>
#include <memory>

#include "tests/support/allocations.h"
#include "tests/support/device.h"
#include "tests/support/expect_exception.h"
#include "tests/support/fields.h"

namespace {

using support::bytes;
using support::dev_string;
using support::Device;
using support::expect_thrown;
using Flag = PX_InitTerm_Ability_Flags;
using Configuration = PX_InitTerm_Configuration;
using Validator = PX_InitTerm_Validator;
using Strategy = PX_Validation_Strategy;

// What the three strings have in common.
struct Datum {
    Flag::Enum flag;
    const wchar_t* name;
    PX_Smart_Pointer<PX_Dev_String> (Configuration::*get)() const;
    void (Configuration::*set_bytes)(unsigned char*, long);
    void (Configuration::*set_string)(const PX_Dev_String*);
    void (Validator::*validate)(Strategy::Enum);
    void (Validator::*set_to_default)();
};

const std::array<Datum, 3> data = {{
    {Flag::Preinit_String, L"preinit", &Configuration::get_preinit_string, &Configuration::set_preinit_string,
     &Configuration::set_preinit_string, &Validator::validate_preinit_string,
     &Validator::set_preinit_string_to_default},
    {Flag::Postinit_String, L"postinit", &Configuration::get_postinit_string,
     &Configuration::set_postinit_string, &Configuration::set_postinit_string,
     &Validator::validate_postinit_string, &Validator::set_postinit_string_to_default},
    {Flag::Termination_String, L"termination", &Configuration::get_termination_string,
     &Configuration::set_termination_string, &Configuration::set_termination_string,
     &Validator::validate_termination_string, &Validator::set_termination_string_to_default},
}};

const std::string with_zeros("\0a\0", 3);

TEST(Dev_String, OwnsItsBytes) {
    PX_Dev_String string = dev_string(with_zeros);
    const PX_Dev_String copy = string;
    string.assign(string.data() + 1, 2);
    EXPECT_EQ(string, dev_string(with_zeros.substr(1)));
    EXPECT_EQ(copy, dev_string(with_zeros));
    for (const long none : {0L, -1L}) {
        string.assign(copy.data(), none);
        EXPECT_EQ(string.data(), nullptr);
        EXPECT_EQ(string.length(), 0);
    }
}

TEST(Dev_String, LeavesABufferThatIsCounted) {
    PX_Dev_String string = dev_string("abc");
    auto* const buffer = const_cast<unsigned char*>(string.data());
    SPMP()->add_reference(buffer);
    string.assign(nullptr, 0);
    EXPECT_EQ(SPMP()->get_count(buffer), 1);
    EXPECT_EQ(buffer[0], 'a') << "its counter frees it";
    SPMP()->release_reference(buffer);
    delete[] buffer;
}

TEST(InitTerm_Configuration, SettersStoreCopiesAndClearBothFlags) {
    PX_Std_InitTerm_Configuration cfg;
    std::string source = with_zeros;
    for (const Datum& datum : data) {
        SCOPED_TRACE(testing::PrintToString(datum.name));
        EXPECT_EQ(bytes((cfg.*datum.get)()), "") << "a new string is empty and there";
        cfg.set_validated(true);
        cfg.set_default(true);
        auto* const raw = reinterpret_cast<unsigned char*>(source.data());
        (cfg.*datum.set_bytes)(raw, 3);
        for (const Datum& other : data) {
            EXPECT_EQ(cfg.get_one_validated(other.flag), other.flag != datum.flag);
            EXPECT_EQ(cfg.get_one_default(other.flag), other.flag != datum.flag);
        }
        source[1] = 'b';
        EXPECT_EQ(bytes((cfg.*datum.get)()), with_zeros);
        source[1] = 'a';
        (cfg.*datum.set_bytes)(raw, 0);
        EXPECT_EQ(bytes((cfg.*datum.get)()), "(null)");
        const PX_Dev_String empty;
        (cfg.*datum.set_string)(&empty);
        EXPECT_EQ(bytes((cfg.*datum.get)()), "") << "an empty string is not a missing one";
        (cfg.*datum.set_bytes)(nullptr, 3);
        EXPECT_EQ(bytes((cfg.*datum.get)()), "(null)");
        (cfg.*datum.set_string)(nullptr);
        EXPECT_EQ(bytes((cfg.*datum.get)()), "(null)");
    }
}

// Whether it is the string, its bytes or its count that finds no memory.
TEST(InitTerm_Configuration, AStringThatFindsNoMemoryLeavesTheOldOne) {
    PX_Std_InitTerm_Configuration cfg;
    std::string source = with_zeros;
    const PX_Dev_String string = dev_string(with_zeros);
    for (const Datum& datum : data) {
        SCOPED_TRACE(testing::PrintToString(datum.name));
        for (const bool of_bytes : {true, false}) {
            const auto held = (cfg.*datum.get)();
            cfg.set_validated(true);
            const auto failures = support::failures_of([&] {
                EXPECT_EQ((cfg.*datum.get)(), held);
                EXPECT_TRUE(cfg.get_one_validated(datum.flag));
                if (of_bytes)
                    (cfg.*datum.set_bytes)(reinterpret_cast<unsigned char*>(source.data()), 3);
                else
                    (cfg.*datum.set_string)(&string);
            });
            EXPECT_EQ(failures.size(), 3U);
            EXPECT_NE((cfg.*datum.get)(), held);
        }
    }
}

TEST(InitTerm_Configuration, ADriverSeesItsFlagsCleared) {
    class Driver : public PX_Std_InitTerm_Configuration {
    public:
        void set_one_validated(bool on, PX_InitTerm_Ability_Flags::Enum flag) override {
            told += (on ? " v" : " -v") + std::to_string(flag);
        }
        void set_one_default(bool on, PX_InitTerm_Ability_Flags::Enum flag) override {
            told += (on ? " d" : " -d") + std::to_string(flag);
        }
        std::string told;
    } cfg;
    for (const Datum& datum : data)
        (static_cast<Configuration&>(cfg).*datum.set_string)(nullptr);
    EXPECT_EQ(cfg.told, " -v0 -d0 -v1 -d1 -v2 -d2");
}

TEST(InitTerm_Configuration, TheAggregateLooksAtAllThree) {
    PX_Std_InitTerm_Configuration cfg;
    for (const Datum& datum : data) {
        EXPECT_FALSE(cfg.get_default() || cfg.get_validated());
        cfg.set_one_default(true, datum.flag);
        cfg.set_one_validated(true, datum.flag);
    }
    EXPECT_TRUE(cfg.get_default() && cfg.get_validated());
}

TEST(InitTerm_Configuration, ACloneIsDeepAndKeepsTheFlags) {
    PX_Std_InitTerm_Configuration cfg;
    const PX_Dev_String string = dev_string(with_zeros);
    cfg.set_preinit_string(&string);
    cfg.set_postinit_string(nullptr, 0);
    cfg.set_one_validated(true, Flag::Preinit_String);
    cfg.set_one_default(true, Flag::Termination_String);
    const std::unique_ptr<Configuration> clone(cfg.clone());
    EXPECT_EQ(bytes(clone->get_preinit_string()), with_zeros);
    EXPECT_NE(clone->get_preinit_string(), cfg.get_preinit_string());
    EXPECT_EQ(bytes(clone->get_postinit_string()), "(null)");
    EXPECT_EQ(bytes(clone->get_termination_string()), "");
    for (const Datum& datum : data) {
        EXPECT_EQ(clone->get_one_validated(datum.flag), datum.flag == Flag::Preinit_String);
        EXPECT_EQ(clone->get_one_default(datum.flag), datum.flag == Flag::Termination_String);
    }
}

TEST(InitTerm, FlagsAreCheckedAgainstTheirEnums) {
    PX_Std_InitTerm_Capabilities caps;
    PX_Std_InitTerm_Configuration cfg;
    const auto outside = static_cast<Flag::Enum>(3);
    constexpr const wchar_t* header = L"toolkit/marvcon/std_init_term_cfg";
    expect_thrown<PX_Severe_Error>([&] { caps.get_one_ability(outside); }, 1104, header,
                                   L"PX_InitTerm_Ability_Flags::Enum");
    expect_thrown<PX_Severe_Error>(
        [&] { caps.get_one_ui_owner(static_cast<PX_InitTerm_UI_Owner_Flags::Enum>(3)); }, 1104, header,
        L"PX_InitTerm_UI_Owner_Flags::Enum");
    expect_thrown<PX_Severe_Error>([&] { cfg.get_one_default(outside); }, 1104, header,
                                   L"PX_InitTerm_Ability_Flags::Enum");
    EXPECT_STREQ(caps.get_abilities(), L"000");
    EXPECT_STREQ(caps.get_ui_owner(), L"000");
}

TEST(InitTerm, ClonesReportNoMemory) {
    PX_Std_InitTerm_Capabilities caps;
    caps.set_abilities(L"12345");
    caps.set_ui_owner(L"321");
    const std::unique_ptr<PX_InitTerm_Capabilities> clone(caps.clone());
    EXPECT_STREQ(clone->get_abilities(), L"12345");
    EXPECT_STREQ(clone->get_ui_owner(), L"321");

    // Whichever allocation fails, of the object or of what it holds.
    PX_Std_InitTerm_Configuration cfg;
    const PX_Dev_String string = dev_string(with_zeros);
    cfg.set_termination_string(&string);
    const auto failures_of = [](const auto& object, const wchar_t* function) {
        int failures = 0;
        for (;; ++failures) {
            const support::Out_Of_Memory none(failures);
            const std::optional<support::Thrown> thrown = support::thrown_by([&] { delete object.clone(); });
            if (!thrown)
                return failures;
            EXPECT_EQ(thrown->code, 1101U) << failures;
            EXPECT_EQ(thrown->function, function);
            EXPECT_EQ(thrown->detail, L"new_one");
            EXPECT_TRUE(thrown->is<MVNK_Memory_Exception>());
        }
    };
    EXPECT_GE(failures_of(caps, L"PX_Std_InitTerm_Capabilities::clone"), 3);
    EXPECT_GE(failures_of(cfg, L"PX_Std_InitTerm_Configuration::clone"), 8);
}

class InitTerm_Validator : public testing::Test {
protected:
    Device m_device;
    PX_Std_InitTerm_Validator m_validator{m_device.get()};
    PX_Smart_Pointer<Configuration> m_cfg = m_device.init_term_cfg();
    PX_Smart_Pointer<PX_InitTerm_Capabilities> m_caps = m_device.init_term_caps();
};

TEST_F(InitTerm_Validator, AcceptsAnyBytesAndLeavesTheDefaultFlag) {
    m_caps->set_abilities(PX_Ability_Value::Ability_Required);
    for (const Datum& datum : data) {
        const PX_Dev_String string = dev_string(with_zeros);
        ((*m_cfg).*datum.set_string)(&string);
        m_cfg->set_one_default(true, datum.flag);
        (m_validator.*datum.validate)(Strategy::Use_Nearest);
        EXPECT_TRUE(m_cfg->get_one_validated(datum.flag));
        EXPECT_TRUE(m_cfg->get_one_default(datum.flag));
        EXPECT_EQ(bytes(((*m_cfg).*datum.get)()), with_zeros);
        ((*m_cfg).*datum.set_string)(&string);
        EXPECT_FALSE(m_cfg->get_one_validated(datum.flag) || m_cfg->get_one_default(datum.flag));
    }
}

TEST_F(InitTerm_Validator, EmptiesAStringOnlyWhereTheDeviceHasIt) {
    for (const Datum& datum : data) {
        for (const int ability : {-1, 0, 1, 5}) {
            SCOPED_TRACE(ability);
            const PX_Dev_String string = dev_string(with_zeros);
            ((*m_cfg).*datum.set_string)(&string);
            m_caps->set_one_ability(static_cast<PX_Ability_Value::Enum>(ability), datum.flag);
            (m_validator.*datum.set_to_default)();
            EXPECT_EQ(bytes(((*m_cfg).*datum.get)()), ability > 0 ? "" : with_zeros);
            EXPECT_TRUE(m_cfg->get_one_validated(datum.flag) && m_cfg->get_one_default(datum.flag));
        }
    }
    EXPECT_EQ(m_device.validator()->get_config_changed(), 0) << "these data raise no bit";
}

TEST_F(InitTerm_Validator, GroupsCallTheOverridesInOrderAndEndAtTheFirstFailure) {
    class Driver : public PX_Std_InitTerm_Validator {
    public:
        using PX_Std_InitTerm_Validator::PX_Std_InitTerm_Validator;
        void validate_preinit_string(Strategy::Enum) override { calls += "1"; }
        void validate_postinit_string(Strategy::Enum) override { fail("2"); }
        void validate_termination_string(Strategy::Enum) override { calls += "3"; }
        void set_preinit_string_to_default() override { calls += "4"; }
        void set_postinit_string_to_default() override { calls += "5"; }
        void set_termination_string_to_default() override { fail("6"); }
        std::string calls;

    private:
        void fail(const char* call) {
            calls += call;
            throw MVNK_Error(1, L"Driver");
        }
    } driver(m_device.get());
    const auto validating = expect_thrown<PX_Exception>(
        [&] { driver.validate_all_init_term(Strategy::Use_Default); }, 1, L"Driver", L"");
    EXPECT_EQ(validating.frames,
              std::vector<std::wstring>{L"PX_Std_InitTerm_Validator::validate_all_init_term"});
    const auto defaulting =
        expect_thrown<PX_Exception>([&] { driver.set_all_init_term_to_defaults(); }, 1, L"Driver", L"");
    EXPECT_EQ(defaulting.frames,
              std::vector<std::wstring>{L"PX_Std_InitTerm_Validator::set_all_init_term_to_defaults"});
    EXPECT_EQ(driver.calls, "12456");
}

TEST_F(InitTerm_Validator, ReportsWhatIsMissing) {
    constexpr const wchar_t* roots = L"plotter_caps or plotter_cfg";
    constexpr const wchar_t* domain = L"initterm_caps or initterm_cfg";
    // All three validate operations report under one name.
    constexpr const wchar_t* validating = L"PX_Std_InitTerm_Validator::validate_preinit_string";
    const auto expect_all = [&](const wchar_t* for_validate, const wchar_t* for_default) {
        for (const Datum& datum : data) {
            const std::wstring defaulting =
                std::wstring(L"PX_Std_InitTerm_Validator::set_") + datum.name + L"_string_to_default";
            if (for_validate) {
                const auto thrown =
                    expect_thrown<MVNK_Error>([&] { (m_validator.*datum.validate)(Strategy::Use_Default); },
                                              1103, validating, for_validate);
                EXPECT_EQ(thrown.file, L"$Workfile: std_init_term_cfg $ $Revision: #1 $");
            } else {
                EXPECT_NO_THROW((m_validator.*datum.validate)(Strategy::Use_Default));
            }
            expect_thrown<MVNK_Error>([&] { (m_validator.*datum.set_to_default)(); }, 1103, defaulting,
                                      for_default);
        }
    };
    m_device->set_plotter_capabilities(nullptr);
    expect_all(nullptr, roots);
    m_device->set_plotter_capabilities(new PX_Std_Plotter_Capabilities);
    expect_all(nullptr, domain);
    m_device->set_plotter_configuration(new PX_Std_Plotter_Configuration);
    expect_all(domain, domain);
    m_device->set_plotter_configuration(nullptr);
    expect_all(roots, roots);
}

}  // namespace
