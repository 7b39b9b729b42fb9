#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "tests/support/device.h"
#include "tests/support/entries.h"
#include "tests/support/expect_exception.h"
#include "toolkit/report.h"

// For the messages of a test.
inline void PrintTo(const PX_Device_Finding& finding, std::ostream* out) {
    const std::wstring text = px_finding_text(finding);
    for (const wchar_t character : text)
        *out << (character < 0x7F ? static_cast<char>(character) : '?');
}

// A device with one fault each: the check has to find it, and a run has to show that it was right.
namespace support {

using Fault = PX_Device_Fault;
using Effect = PX_Device_Effect;
using Findings = std::vector<PX_Device_Finding>;

// What a finding is to say; the domain is that of the table.
struct Expected {
    const wchar_t* object;
    Fault::Enum fault;
    Effect::Enum effect;
    unsigned int code = 0;
    const wchar_t* detail = L"";
    long bits = 0;
};
inline Expected throws(const wchar_t* object, Fault::Enum fault, unsigned int code,
                       const wchar_t* detail = L"") {
    return {object, fault, Effect::Throws, code, detail, 0};
}
inline Expected repeats(const wchar_t* object, Fault::Enum fault, long bits) {
    return {object, fault, Effect::Repeats, 0, L"", bits};
}
inline Expected passed_over(const wchar_t* object, Fault::Enum fault) {
    return {object, fault, Effect::Passed_Over};
}

// What shows the fault.
enum class How { Use_Default, Use_Nearest, Reset, All_To_Defaults, None };

// `spoil` makes the fault, and a choice that comes upon it. Of one fault may come further findings.
template <class Tested>
struct Faulty {
    const char* name;
    std::function<void(Tested&)> spoil;
    Expected expected;
    How run = How::Use_Default;
    std::size_t findings = 1;
};

inline void clear_validated(const Device& device) {
    const auto choice = device->get_plotter_configuration();
    choice->get_media_configuration()->set_validated(false);
    choice->get_phys_pen_configuration()->set_validated(false);
    choice->get_res_color_mem_configuration()->set_validated(false);
    choice->get_io_configuration()->set_validated(false);
    choice->get_custom_configuration()->set_validated(false);
}

inline void run(const Device& device, How how) {
    const auto validator = device.validator();
    if (how == How::All_To_Defaults)
        return validator->set_all_to_defaults();
    clear_validated(device);
    const auto policy = how == How::Reset ? PX_Validation_Policy::Reset_Conditional
                                          : PX_Validation_Policy::Validate_Conditional;
    validator->validate_all(how == How::Use_Nearest ? Strategy::Use_Nearest : Strategy::Use_Default, policy,
                            how != How::Reset);
}

inline long changes_of(const PX_Plotter_Validator& validator, long domain) {
    switch (domain) {
        case PX_Domain_Mask::Media:
            return validator.get_media_cfg_changes();
        case PX_Domain_Mask::IO:
            return validator.get_io_cfg_changes();
        case PX_Domain_Mask::Phys_Pens:
            return validator.get_phys_pen_cfg_changes();
        case PX_Domain_Mask::Res_Color_Mem:
            return validator.get_res_color_mem_cfg_changes();
        default:
            return 0;
    }
}

// The run throws this very code; or its bits come again, and those of custom data by the name of the domain.
inline void expect_true_of_a_run(const Device& device, long domain, const Expected& expected, How how) {
    if (expected.effect == Effect::Passed_Over || how == How::None)
        return;
    if (expected.effect == Effect::Throws) {
        const auto thrown = thrown_by([&] { run(device, how); });
        ASSERT_TRUE(thrown) << "nothing was thrown";
        EXPECT_EQ(thrown->code, expected.code);
        EXPECT_EQ(thrown->detail, expected.detail);
        return;
    }
    const auto validator = device.validator();
    for (const char* const time : {"the first run", "the second", "the third"}) {
        SCOPED_TRACE(time);
        ASSERT_FALSE(thrown_by([&] { run(device, how); }));
        if (domain == PX_Domain_Mask::Custom)
            EXPECT_NE(validator->get_config_changed() & domain, 0);
        else
            EXPECT_EQ(changes_of(*validator, domain) & expected.bits, expected.bits);
    }
}

template <class Tested, std::size_t count>
void expect_found(const Faulty<Tested> (&rows)[count], long domain,
                  const std::function<const Device&(const Tested&)>& device_of) {
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        Tested tested;
        row.spoil(tested);
        const Device& device = device_of(tested);
        const Findings findings = px_check_device(*device.get());
        const auto& [object, fault, effect, code, detail, bits] = row.expected;
        const PX_Device_Finding expected{domain, object, fault, effect, code, detail, bits};
        EXPECT_NE(std::find(findings.begin(), findings.end(), expected), findings.end())
            << "not found: " << testing::PrintToString(expected) << "\nin "
            << testing::PrintToString(findings);
        EXPECT_EQ(findings.size(), row.findings) << testing::PrintToString(findings);
        expect_true_of_a_run(device, domain, row.expected, row.run);
    }
}

// A sound device is found so, and is at rest after one run under either strategy.
inline void expect_sound(const Device& device) {
    EXPECT_EQ(px_check_device(*device.get()), Findings());
    for (const How how : {How::Use_Default, How::Use_Nearest}) {
        run(device, how);
        run(device, how);
        EXPECT_EQ(device.validator()->get_config_changed(), 0);
    }
}

// Of a sound device, a gate that is undefined is the one finding, with the code that a run throws; there is
// none for any ability from `sound_from` on.
template <class Tested>
void expect_gate_asked(const std::function<void(Tested&, int)>& set_gate,
                       const std::function<const Device&(const Tested&)>& device_of, int gate,
                       int sound_from = 0) {
    SCOPED_TRACE(gate);
    {
        Tested tested;
        set_gate(tested, -1);
        const Findings findings = px_check_device(*device_of(tested).get());
        EXPECT_EQ(findings.size(), 1U) << testing::PrintToString(findings);
        EXPECT_TRUE(!findings.empty() && findings[0].fault == Fault::Ability_Undefined);
        const auto thrown = thrown_by([&] { run(device_of(tested), How::Use_Default); });
        EXPECT_TRUE(thrown && thrown->code == 1001);
    }
    for (int ability = sound_from; ability <= 5; ++ability) {
        SCOPED_TRACE(ability);
        Tested tested;
        set_gate(tested, ability);
        EXPECT_EQ(px_check_device(*device_of(tested).get()), Findings());
    }
}

// What looks like a fault, and comes to nothing in any run.
template <class Tested>
struct Sound {
    const char* name;
    std::function<void(Tested&)> change;
};
template <class Tested, std::size_t count>
void expect_no_findings(const Sound<Tested> (&rows)[count],
                        const std::function<const Device&(const Tested&)>& device_of) {
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        Tested tested;
        row.change(tested);
        expect_sound(device_of(tested));
    }
}

}  // namespace support
