#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cwchar>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "fuzz/device.h"
#include "tests/report/findings.h"
#include "toolkit/core/module.h"
#include "toolkit/platform/scripted/scripted_platform.h"
#include "toolkit/report/findings.h"

// Devices and choices drawn at random, which seldom fit together: what a run throws, and what it repairs
// again, the check has to have told, unless the choice alone brings it about.

namespace {

using namespace support;

// A device with one domain, and a choice for it.
class Drawn_Device : public Device {
public:
    explicit Drawn_Device(fuzz::Input& input) {
        switch (input.up_to(4)) {
            case 0:
                m_domain = PX_Domain_Mask::Media;
                fuzz::fill(input, *media_caps(), *media_cfg());
                // One method: several at once are no value of the enum.
                media_cfg()->set_media_selection_method(Number{1 << input.up_to(2)});
                break;
            case 1:
                m_domain = PX_Domain_Mask::Phys_Pens;
                fuzz::fill(input, *pen_caps(), *pen_cfg());
                break;
            case 2:
                m_domain = PX_Domain_Mask::Res_Color_Mem;
                fuzz::fill(input, *rcm_caps(), *rcm_cfg());
                break;
            case 3:
                m_domain = PX_Domain_Mask::IO;
                fuzz::fill(input, *io_caps(), *io_cfg());
                break;
            default:
                m_domain = PX_Domain_Mask::Custom;
                fuzz::fill(input, *custom_caps(), *custom_cfg());
        }
    }

    long domain() const { return m_domain; }

    PX_Smart_Pointer<PX_IO_Method> chosen_method() const {
        return px_method_of(io_caps()->get_method_list(), io_cfg()->get_type());
    }

    bool is_of_the_choice(const Thrown& thrown) const {
        switch (m_domain) {
            case PX_Domain_Mask::Media:
                return thrown.detail == L"newsource" && lacks_chosen_feed();
            case PX_Domain_Mask::Res_Color_Mem:
                return lies_beyond_all(thrown);
            case PX_Domain_Mask::IO:
                return is_of_the_port(thrown);
            default:
                return thrown.code == 704 && has_item_of_no_setting();
        }
    }

private:
    bool lacks_chosen_feed() const {
        const auto feed = media_cfg()->get_media_settings()->get_media_feed();
        const auto sources = media_caps()->get_media_source_list();
        return px_has_one_there(sources) && !px_has_one_there(sources, [&](const auto& source) {
                   return source.get_media_feed() == feed;
               });
    }

    // Nothing is near to numbers as large as these.
    bool lies_beyond_all(const Thrown& thrown) const {
        const auto had = rcm_cfg()->get_rescolormem_settings();
        const auto size_of = [](long number) { return std::fabs(static_cast<double>(number)); };
        if (thrown.detail == L"rcm")
            return 0.1 * size_of(had->get_num_colors()) + size_of(had->get_color_depth()) +
                       size_of(had->get_num_undithered_colors()) >
                   1e9;
        return thrown.detail == L"resolution" &&
               px_resolution_score(PX_Std_ResColorMem_Settings(), Snapshot_As_Resolution(*had)) > 1e37F;
    }
    struct Snapshot_As_Resolution : PX_Std_Resolution {
        explicit Snapshot_As_Resolution(const PX_ResColorMem_Settings& had) {
            set_phys_resolution_xy(had.get_phys_resolution_xy().get());
            set_addr_resolution_xy(had.get_addr_resolution_xy().get());
            set_effective_resolution_xy(had.get_effective_resolution_xy().get());
        }
    };

    // The type has no method, or one that has what another port could do.
    bool is_of_the_port(const Thrown& thrown) const {
        const auto method = chosen_method();
        if (thrown.detail == L"workratelist" || !method)
            return thrown.code == 215 || thrown.code == 217 || thrown.detail == L"workratelist";
        if (thrown.code == 217)
            return px_has_one_there(method->get_protocol_list(), [](const PX_Protocol& protocol) {
                return std::wcslen(protocol.get_canonical_name()) > 2 &&
                       std::wcscmp(protocol.get_canonical_name(), L"8n1") != 0;
            });
        std::set<long> rates;
        if (const auto list = method->get_baud_rate_list()) {
            for (const auto& rate : *list) {
                if (px_is_there(rate) && rate->get_baud_rate() > 0)
                    rates.insert(rate->get_baud_rate());
            }
        }
        const auto counted = method->get_one_ability(PX_IO_Method_Ability_Flags::Method_Baud_Rate_List);
        return thrown.code == 215 && counted != PX_Ability_Value::Ability_None &&
               rates.size() > (rates.contains(method->get_default_baud_rate()) ? 0U : 1U);
    }

    bool has_item_of_no_setting() const {
        for (const auto& item : *custom_cfg()->get_custom_list()) {
            if (!custom_caps()->get_custom(item->get_canonical_name()))
                return true;
            // A withdrawn one, which no later one shares its name with.
            const auto name = std::wstring(item->get_canonical_name());
            if (!px_has_one_there(custom_caps()->get_custom_list(),
                                  [&](const auto& setting) { return setting.get_canonical_name() == name; }))
                return true;
        }
        return false;
    }

    long m_domain = 0;
};

// What the way to it names, of those that could be taken for one another.
const wchar_t* object_of(const Thrown& thrown) {
    const struct {
        unsigned int code;
        const wchar_t* detail;
        const wchar_t* object;
    } rows[] = {
        {303, L"", L"default type"},
        {304, L"", L"default source"},
        {305, L"", L"sources"},
        {308, L"", L"source"},
        {309, L"", L"source"},
        {310, L"", L"default size"},
        {311, L"", L"destination"},
        {312, L"", L"destinations"},
        {315, L"", L"default duplexing"},
        {316, L"", L"default scale"},
        {317, L"", L"default longplot"},
        {318, L"", L"types"},
        {320, L"", L"sizes"},
        {321, L"", L"default selection"},
        {322, L"", L"entries"},
        {323, L"", L"source"},
        {324, L"", L"default entry"},
        {1103, L"newtype", L"type"},
        {1103, L"newsource", L"source"},
        {1103, L"newentry", L"ent"},
        {1103, L"newdest", L"destination"},
        {1103, L"size_list", L"size"},
        {1103, L"margins", L"margins"},
        {1103, L"description_list", L"description"},
        {1101, L"work_descr", L"description"},
        {401, L"", L"default colour mode"},
        {403, L"", L"default resolution"},
        {1103, L"dithering", L"dithering"},
        {610, L"", L"default pen optimization"},
        {611, L"", L"default number"},
        {701, L"", L"default"},
        {703, L"", L"values"},
        {1103, L"default_data_value", L"default"},
    };
    for (const auto& row : rows) {
        if (row.code == thrown.code && row.detail == thrown.detail)
            return row.object;
    }
    return L"";
}

bool tells(const Findings& findings, const Thrown& thrown, long domain) {
    return std::ranges::any_of(findings, [&](const PX_Device_Finding& finding) {
        return finding.domain == domain && finding.code == thrown.code && finding.detail == thrown.detail &&
               finding.object.find(object_of(thrown)) != std::wstring::npos;
    });
}

TEST(AnyDeviceCheck, WhatARunThrowsOrRepeatsWasFound) {
    int thrown_often = 0;
    int repeated_often = 0;
    for (unsigned seed = 1; seed <= 1500; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 numbers(seed);
        std::vector<std::uint8_t> bytes(2000);
        for (std::uint8_t& byte : bytes)
            byte = static_cast<std::uint8_t>(numbers());
        fuzz::Input input(bytes.data(), bytes.size());
        // The ports of the machine are looked for once in a process.
        PX_Module_Exit();
        PX_Scripted_Platform machine;
        const PX_Use_Platform use(machine);
        machine.add_port(L"COM1:");
        machine.add_port(L"LPT1:");
        const How how = input.flag() ? How::Use_Default : How::Use_Nearest;
        const Drawn_Device device(input);
        device->get_error_handler()->set_quiet_mode(true);
        const Findings findings = px_check_device(*device.get());

        auto thrown = thrown_by([&] { run(device, how); });
        if (!thrown)
            thrown = thrown_by([&] { run(device, how); });
        if (thrown) {
            ++thrown_often;
            EXPECT_TRUE(tells(findings, *thrown, device.domain()) || device.is_of_the_choice(*thrown))
                << thrown->code << ' ' << std::string(thrown->detail.begin(), thrown->detail.end()) << " in "
                << testing::PrintToString(findings);
            continue;
        }
        for (const long domain : {PX_Domain_Mask::Media, PX_Domain_Mask::IO, PX_Domain_Mask::Res_Color_Mem,
                                  PX_Domain_Mask::Phys_Pens}) {
            long changes = changes_of(*device.validator(), domain);
            repeated_often += changes != 0;
            for (const PX_Device_Finding& finding : findings)
                changes &= finding.domain == domain ? ~finding.bits : ~0L;
            // It stands beside that of the size.
            if (domain == PX_Domain_Mask::Media)
                changes &= ~long{PX_Media_Change::Size_Nearest_Failed};
            // The path of a plot to a file, and the nearest port of a type that has no method.
            if (domain == PX_Domain_Mask::IO)
                changes &= ~(PX_IO_Change::Pathname |
                             (!device.chosen_method() ? PX_IO_Change::Portname | PX_IO_Change::Type : 0L));
            EXPECT_EQ(changes, 0) << domain << " in " << testing::PrintToString(findings);
        }
    }
    PX_Module_Exit();
    EXPECT_GT(thrown_often, 500);
    EXPECT_GT(repeated_often, 50);
}

}  // namespace
