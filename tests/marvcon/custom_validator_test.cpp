#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "tests/support/custom.h"
#include "tests/support/fields.h"

namespace {

using namespace support;
using Setting = PX_Smart_Pointer<PX_Custom_Capability>;

constexpr const wchar_t* work_missing = L"workitem or workcapitem";

class Custom_Validator : public testing::Test {
protected:
    void add(const Setting& setting) { m_caps->get_custom_list()->append(setting); }
    void add(const PX_Smart_Pointer<PX_Custom_Config_Item>& item) { m_cfg->get_custom_list()->append(item); }
    std::wstring items() const {
        std::wstring all;
        for (const auto& item : *m_cfg->get_custom_list())
            all += show(*item) + L", ";
        return all;
    }
    bool is_recorded(const wchar_t* name) { return m_device.validator()->get_one_custom_cfg_change(name); }

    // The four operations, in order.
    void call(int operation, const wchar_t* name = L"x") {
        constexpr auto strategy = Strategy::Use_Nearest;
        operation == 0   ? m_validator.validate_all_custom(strategy)
        : operation == 1 ? m_validator.validate_named_custom(strategy, name)
        : operation == 2 ? m_validator.set_all_custom_to_defaults()
                         : m_validator.set_named_custom_to_default(name);
    }
    static std::wstring function(int operation) {
        const wchar_t* const names[] = {L"validate_all_custom", L"validate_named_custom",
                                        L"set_all_custom_to_defaults", L"set_named_custom_to_default"};
        return std::wstring(L"PX_Std_Custom_Validator::") + names[operation];
    }
    // And nothing is written.
    void expect_error(int operation, unsigned int code, const wchar_t* detail = L"",
                      const wchar_t* name = L"x") {
        const auto before = items();
        const auto thrown =
            expect_thrown<MVNK_Error>([&] { call(operation, name); }, code, function(operation), detail);
        EXPECT_EQ(thrown.file, custom_file);
        EXPECT_EQ(items(), before);
        EXPECT_FALSE(is_recorded(L"x"));
    }

    Device m_device;
    PX_Std_Custom_Validator m_validator{m_device.get()};
    PX_Smart_Pointer<PX_Custom_Capabilities> m_caps = m_device.custom_caps();
    PX_Smart_Pointer<PX_Custom_Configurations> m_cfg = m_device.custom_cfg();
};

TEST_F(Custom_Validator, KeepsAGoodItemAndPutsABadOneToItsDefault) {
    constexpr int good = 0, bad = 1;
    const auto unverifiable = [](Setting setting) {
        setting->set_verifiable(false);
        return setting;
    };
    const auto seven = of(7L), text = of(L"default");
    const auto with_withdrawn = choice(text, {of(L"other"), of(L"value")});
    withdraw(*with_withdrawn->get_value_list()->begin());
    const auto not_counted = choice(text, {of(L"value")}), empty = choice(text, {});
    not_counted->set_num_values(0);
    empty->set_num_values(2);
    const struct {
        Setting setting;
        Data value;
        int outcome;
        const char* proves;
    } cases[] = {
        {setting(L"x", seven, 0, 10), of(10L), good, "the upper bound belongs to the range"},
        {setting(L"x", seven, 0, 10), of(11L), bad, "above"},
        {setting(L"x", seven, 0, 10), of(0L), good, "the lower bound belongs to the range"},
        {setting(L"x", seven, 0.5, 10), of(0L), bad, "below, by a fraction"},
        {setting(L"x", of(7.0), 0, 1.5), of(1.5), good, "a bound with a fraction"},
        {setting(L"x", of(7.0), 0, 1.5), of(1.75), bad, "above it, by a fraction"},
        {setting(L"x", of(7.0), 0, 1.5), of(double{NAN}), good, "what is not a number lies in every range"},
        {setting(L"x", of(true), 0, 10), of(false), 702, "no number"},
        {unverifiable(setting(L"x", of(true), 0, 10)), of(false), good, "nothing is verified"},
        {unverifiable(setting(L"x", seven)), of(L"5"), bad, "a wrong type, though nothing is verified"},
        {unverifiable(setting(L"x", seven)), nullptr, bad, "no value"},
        {choice(text, {of(L"a"), of(L"b")}), of(L"b"), good, "listed"},
        {choice(text, {of(L"a"), of(L"b")}), of(L"c"), bad, "not listed"},
        {with_withdrawn, of(L"other"), bad, "the value is withdrawn"},
        {choice(seven, {nullptr, of(1L)}), of(1L), good, "a value without data is passed over"},
        {choice(raw({9}), {raw({1, 2})}), raw({1, 2, 3}), good, "the listed value stands on the left"},
        {empty, of(L"value"), 703, "nothing in the list"},
        {not_counted, of(L"value"), 703, "a count of none"},
    };
    const wchar_t* const flags[] = {L" v-, ", L" vd, ", L" --, "};
    m_cfg->get_custom_list()->append(item(L"x", of(1L)));
    m_cfg->set_default(true);
    add(setting(L"x", seven, 0, 10));
    call(1);
    EXPECT_EQ(items(), L"x long 1 vd, ") << "a good one that is at its default stays so";
    for (const auto& row : cases) {
        SCOPED_TRACE(row.proves);
        const Device device;
        m_caps = device.custom_caps();
        m_cfg = device.custom_cfg();
        PX_Std_Custom_Validator validator(device.get());
        add(row.setting);
        add(item(L"x", row.value));
        const auto validate = [&] { validator.validate_named_custom(Strategy::Use_Nearest, L"x"); };
        const auto expected = row.outcome == bad ? row.setting->get_default_data_value() : row.value;
        if (row.outcome > bad)
            expect_thrown<MVNK_Error>(validate, static_cast<unsigned>(row.outcome), function(1), L"");
        else
            validate();
        EXPECT_EQ(items(), L"x " + show(expected) + flags[std::min(row.outcome, 2)]);
        EXPECT_EQ(device.validator()->get_one_custom_cfg_change(L"x"), row.outcome == bad);
    }
}

TEST_F(Custom_Validator, WalksTheItemsThatAreNotValidatedUntilOneFails) {
    call(0);
    add(setting(L"a", of(7L), 0, 10));
    add(setting(L"b", of(8L), 0, 10));
    add(item(L"a", of(99L)));
    m_cfg->set_validated(true);
    for (const wchar_t* const name : {L"b", L"a"})
        add(item(name, of(98L)));
    call(0);
    EXPECT_EQ(items(), L"a long 99 v-, b long 8 vd, a long 98 --, ") << "the second of a name is never found";
    EXPECT_TRUE(is_recorded(L"b") && !is_recorded(L"a"));
    m_cfg->get_custom_list()->clear();
    for (const wchar_t* const name : {L"a", L"c", L"b"})
        add(item(name, of(99L)));
    const auto thrown = expect_thrown<PX_Exception>([&] { call(0); }, 704, function(1), L"");
    EXPECT_EQ(thrown.frames, std::vector<std::wstring>{function(0)});
    EXPECT_EQ(items(), L"a long 7 vd, c long 99 --, b long 99 --, ");
    m_cfg->set_custom_list(nullptr);
    EXPECT_NO_THROW(call(0));
}

TEST_F(Custom_Validator, WalksThroughADriversOverride) {
    struct Driver : PX_Std_Custom_Validator {
        Driver(PX_Plotter_Definition* plotter, PX_Custom_Configurations& items)
            : PX_Std_Custom_Validator(plotter), items(items) {}
        void validate_named_custom(Strategy::Enum strategy, const wchar_t* name) override {
            calls += name + std::to_wstring(strategy) + L" ";
            items.get_custom_list()->remove(items.get_custom(name).get());
        }
        PX_Custom_Configurations& items;
        std::wstring calls;
    } driver(m_device.get(), *m_cfg);
    for (const wchar_t* const name : {L"a", L"b", L"c"})
        add(item(name, of(1L)));
    m_cfg->set_one_validated(true, L"b");
    driver.validate_all_custom(Strategy::Use_Nearest);
    driver.validate_all_custom(Strategy::Use_Default);
    const auto nearest = std::to_wstring(Strategy::Use_Nearest);
    EXPECT_EQ(driver.calls, L"a" + nearest + L" c" + nearest + L" ");
    EXPECT_EQ(items(), L"b long 1 v-, ");
}

TEST_F(Custom_Validator, ReportsWhatIsMissing) {
    m_cfg->set_custom_list(nullptr);
    expect_thrown<MVNK_Error>([&] { call(1); }, 706, function(1), L"");
    const PX_Named_Object_List<PX_Custom_Config_Item> none;
    m_cfg->set_custom_list(&none);
    expect_error(1, 706);
    add(item(L"x", of(5L)));
    add(setting(L"y", of(7L)));
    for (const wchar_t* const name : {L"X", static_cast<const wchar_t*>(nullptr)})
        expect_error(1, 705, L"", name);
    for (const wchar_t* const name : {L"x", L"y", static_cast<const wchar_t*>(nullptr)})
        expect_error(3, 1103, work_missing, name);
    expect_error(1, 704);
    add(setting(L"x", of(7L)));
    withdraw(m_caps->get_custom(L"x"));
    expect_error(1, 704);
    expect_error(3, 1103, work_missing);
    m_caps->get_custom_list()->clear();
    add(setting(L"x", nullptr, 0, 1));
    for (const int operation : {1, 2, 3})
        expect_error(operation, 1103, L"default_data_value");
    m_caps->set_custom_list(nullptr);
    expect_error(2, 1103, L"custom_caps or custom_cfg");
    m_cfg->set_validated(true);
    EXPECT_NO_THROW(call(1)) << "what is validated is left alone, whatever the device has";
    for (const bool root : {true, false}) {
        m_device->set_plotter_capabilities(root ? new PX_Std_Plotter_Capabilities : nullptr);
        for (int operation = 0; operation < 4; ++operation)
            expect_error(operation, 1103,
                         root ? L"custom_caps or custom_cfg" : L"plotter_caps or plotter_cfg");
    }
}

TEST_F(Custom_Validator, SetsOneItemOrMakesAllAnew) {
    add(item(L"b", of(1L)));
    call(2);
    EXPECT_EQ(items(), L"b long 1 --, ") << "no settings, no new items";
    add(setting(L"x", of(99L), 0, 10));
    m_cfg->set_custom_list(nullptr);
    call(2);
    EXPECT_EQ(items(), L"x long 99 vd, ") << "out of nothing";
    m_cfg->get_custom_list()->clear();
    for (const wchar_t* const name : {L"b", L"x"})
        add(item(name, of(1L)));
    call(3);
    EXPECT_EQ(items(), L"b long 1 --, x long 99 vd, ");
    add(setting(L"w", of(1L)));
    withdraw(m_caps->get_custom(L"w"));
    add(setting(L"a", of(L"a longer text, which needs memory")));
    m_caps->get_custom(L"a")->set_localized_name(L"localized");
    const auto held = m_cfg->get_custom_list();
    const auto failures = failures_of([&] {
        EXPECT_TRUE(m_cfg->get_custom_list() == held);
        call(2);
    });
    EXPECT_FALSE(failures.empty());
    for (const Thrown& thrown : failures) {
        EXPECT_EQ(thrown.frames.empty() ? thrown.function : thrown.frames.back(), function(2));
        EXPECT_TRUE(thrown.frames.empty() ? thrown.code == 1103 && thrown.detail == work_missing
                                          : thrown.code == 1101);
    }
    EXPECT_EQ(items(), L"x long 99 vd, a 33 a longer text, which needs memory vd, ");
    EXPECT_STREQ(m_cfg->get_custom(L"a")->get_localized_name(), L"") << "the copy has none";
    EXPECT_EQ(m_device.validator()->get_config_changed(), 0);
}

}  // namespace
