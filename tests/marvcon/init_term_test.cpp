#include <gtest/gtest.h>

#include <memory>

#include "tests/support/device.h"
#include "tests/support/fields.h"

namespace {

using namespace support;
using Flag = PX_InitTerm_Ability_Flags;
using Configuration = PX_InitTerm_Configuration;
using Validator = PX_InitTerm_Validator;
using Strategy = PX_Validation_Strategy;

// What the three strings have in common.
struct Datum {
    const wchar_t* name;
    Flag::Enum flag;
    PX_Smart_Pointer<PX_Dev_String> (Configuration::*get)() const;
    void (Configuration::*set_bytes)(unsigned char*, long);
    void (Configuration::*set_string)(const PX_Dev_String*);
    void (Validator::*validate)(Strategy::Enum);
    void (Validator::*set_to_default)();
};
#define STRING(name, flag)                                                                               \
    {                                                                                                    \
        L"" #name, Flag::flag, &Configuration::get_##name, &Configuration::set_##name,                   \
            &Configuration::set_##name, &Validator::validate_##name, &Validator::set_##name##_to_default \
    }
const Datum data[] = {STRING(preinit_string, Preinit_String), STRING(postinit_string, Postinit_String),
                      STRING(termination_string, Termination_String)};
#undef STRING

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
    auto* const raw = reinterpret_cast<unsigned char*>(source.data());
    const PX_Dev_String string = dev_string(with_zeros), empty;
    for (const Datum& datum : data) {
        SCOPED_TRACE(testing::PrintToString(datum.name));
        const auto expect_stored = [&](const std::string& expected) {
            EXPECT_EQ(bytes((cfg.*datum.get)()), expected);
            for (const Datum& other : data) {
                EXPECT_EQ(cfg.get_one_validated(other.flag), other.flag != datum.flag);
                EXPECT_EQ(cfg.get_one_default(other.flag), other.flag != datum.flag);
            }
            cfg.set_validated(true);
            cfg.set_default(true);
        };
        EXPECT_EQ(bytes((cfg.*datum.get)()), "") << "a new string is empty and there";
        cfg.set_validated(true);
        cfg.set_default(true);
        (cfg.*datum.set_bytes)(raw, 3);
        source[1] = 'b';
        expect_stored(with_zeros);
        source[1] = 'a';
        (cfg.*datum.set_bytes)(raw, 0);
        expect_stored("(null)");
        (cfg.*datum.set_string)(&empty);
        expect_stored("");
        (cfg.*datum.set_bytes)(nullptr, 3);
        expect_stored("(null)");
        (cfg.*datum.set_string)(nullptr);
        expect_stored("(null)");
        // Whether it is the string, its bytes or its count that finds no memory, the old one stays.
        for (const bool of_bytes : {true, false}) {
            const auto held = (cfg.*datum.get)();
            const auto failures = support::failures_of([&] {
                EXPECT_EQ((cfg.*datum.get)(), held);
                EXPECT_TRUE(cfg.get_one_validated(datum.flag));
                of_bytes ? (cfg.*datum.set_bytes)(raw, 3) : (cfg.*datum.set_string)(&string);
            });
            EXPECT_EQ(failures.size(), 3U);
            expect_stored(with_zeros);
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

TEST(InitTerm, ClonesAreDeepKeepTheFlagsAndReportNoMemory) {
    PX_Std_InitTerm_Configuration cfg;
    const PX_Dev_String string = dev_string(with_zeros);
    cfg.set_preinit_string(&string);
    cfg.set_postinit_string(nullptr, 0);
    for (const Datum& datum : data) {
        EXPECT_FALSE(cfg.get_default() || cfg.get_validated());
        cfg.set_one_default(true, datum.flag);
        cfg.set_one_validated(true, datum.flag);
    }
    EXPECT_TRUE(cfg.get_default() && cfg.get_validated());
    cfg.set_one_validated(false, Flag::Postinit_String);
    cfg.set_one_default(false, Flag::Termination_String);
    const std::unique_ptr<Configuration> clone(cfg.clone());
    EXPECT_EQ(bytes(clone->get_preinit_string()), with_zeros);
    EXPECT_NE(clone->get_preinit_string(), cfg.get_preinit_string());
    EXPECT_EQ(bytes(clone->get_postinit_string()), "(null)");
    EXPECT_EQ(bytes(clone->get_termination_string()), "");
    for (const Datum& datum : data) {
        EXPECT_EQ(clone->get_one_validated(datum.flag), datum.flag != Flag::Postinit_String);
        EXPECT_EQ(clone->get_one_default(datum.flag), datum.flag != Flag::Termination_String);
    }
    support::expect_clone_reports_no_memory<Configuration>(cfg, L"PX_Std_InitTerm_Configuration::clone");

    PX_Std_InitTerm_Capabilities caps;
    EXPECT_STREQ(caps.get_abilities(), L"000");
    EXPECT_STREQ(caps.get_ui_owner(), L"000");
    caps.set_abilities(L"12345");
    caps.set_ui_owner(L"321");
    const std::unique_ptr<PX_InitTerm_Capabilities> copy(caps.clone());
    EXPECT_STREQ(copy->get_abilities(), L"12345");
    EXPECT_STREQ(copy->get_ui_owner(), L"321");
    support::expect_clone_reports_no_memory<PX_InitTerm_Capabilities>(caps,
                                                                      L"PX_Std_InitTerm_Capabilities::clone");
}

TEST(InitTerm, FlagsAreCheckedAgainstTheirEnums) {
    PX_Std_InitTerm_Capabilities caps;
    const PX_Std_InitTerm_Configuration cfg;
    const auto outside = static_cast<Flag::Enum>(3);
    const auto expect_outside = [](const wchar_t* enum_name, auto call) {
        expect_thrown<PX_Severe_Error>(call, 1104, L"toolkit/marvcon/std_init_term_cfg", enum_name);
    };
    expect_outside(L"PX_InitTerm_Ability_Flags::Enum", [&] { caps.get_one_ability(outside); });
    expect_outside(L"PX_InitTerm_UI_Owner_Flags::Enum",
                   [&] { caps.get_one_ui_owner(static_cast<PX_InitTerm_UI_Owner_Flags::Enum>(3)); });
    expect_outside(L"PX_InitTerm_Ability_Flags::Enum", [&] { cfg.get_one_default(outside); });
}

class InitTerm_Validator : public testing::Test {
protected:
    Device m_device;
    PX_Std_InitTerm_Validator m_validator{m_device.get()};
    PX_Smart_Pointer<Configuration> m_cfg = m_device.init_term_cfg();
    PX_Smart_Pointer<PX_InitTerm_Capabilities> m_caps = m_device.init_term_caps();
    const PX_Dev_String m_string = dev_string(with_zeros);
};

TEST_F(InitTerm_Validator, AcceptsAnyBytesAndEmptiesAStringOnlyWhereTheDeviceHasIt) {
    for (const Datum& datum : data) {
        for (const int ability : {-1, 0, 1, 5}) {
            SCOPED_TRACE(ability);
            m_caps->set_one_ability(static_cast<PX_Ability_Value::Enum>(ability), datum.flag);
            ((*m_cfg).*datum.set_string)(&m_string);
            (m_validator.*datum.validate)(Strategy::Use_Nearest);
            EXPECT_TRUE(m_cfg->get_one_validated(datum.flag) && !m_cfg->get_one_default(datum.flag));
            EXPECT_EQ(bytes(((*m_cfg).*datum.get)()), with_zeros);
            (m_validator.*datum.set_to_default)();
            EXPECT_EQ(bytes(((*m_cfg).*datum.get)()), ability > 0 ? "" : with_zeros);
            EXPECT_TRUE(m_cfg->get_one_validated(datum.flag) && m_cfg->get_one_default(datum.flag));
            (m_validator.*datum.validate)(Strategy::Use_Nearest);
            EXPECT_TRUE(m_cfg->get_one_default(datum.flag)) << "it stays a default";
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
    const auto expect_frame = [](const wchar_t* frame, auto call) {
        EXPECT_EQ(expect_thrown<PX_Exception>(call, 1, L"Driver", L"").frames,
                  std::vector<std::wstring>{frame});
    };
    expect_frame(L"PX_Std_InitTerm_Validator::validate_all_init_term",
                 [&] { driver.validate_all_init_term(Strategy::Use_Default); });
    expect_frame(L"PX_Std_InitTerm_Validator::set_all_init_term_to_defaults",
                 [&] { driver.set_all_init_term_to_defaults(); });
    EXPECT_EQ(driver.calls, "12456");
}

TEST_F(InitTerm_Validator, ReportsWhatIsMissing) {
    constexpr const wchar_t* roots = L"plotter_caps or plotter_cfg";
    constexpr const wchar_t* domain = L"initterm_caps or initterm_cfg";
    const auto expect_all = [&](const wchar_t* for_validate, const wchar_t* for_default) {
        for (const Datum& datum : data) {
            const auto validate = [&] { (m_validator.*datum.validate)(Strategy::Use_Default); };
            // All three report under one name.
            if (for_validate)
                EXPECT_EQ(
                    expect_thrown<MVNK_Error>(
                        validate, 1103, L"PX_Std_InitTerm_Validator::validate_preinit_string", for_validate)
                        .file,
                    L"$Workfile: std_init_term_cfg $ $Revision: #1 $");
            else
                EXPECT_NO_THROW(validate());
            expect_thrown<MVNK_Error>(
                [&] { (m_validator.*datum.set_to_default)(); }, 1103,
                std::wstring(L"PX_Std_InitTerm_Validator::set_") + datum.name + L"_to_default", for_default);
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
