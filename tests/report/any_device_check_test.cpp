#include <algorithm>
#include <cstdint>
#include <random>
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
                fuzz::fill(input, *media_caps(), *media_cfg());
                // One method: several at once are no value of the enum.
                media_cfg()->set_media_selection_method(Number{1 << input.up_to(2)});
                break;
            case 1:
                fuzz::fill(input, *pen_caps(), *pen_cfg());
                break;
            case 2:
                fuzz::fill(input, *rcm_caps(), *rcm_cfg());
                break;
            case 3:
                fuzz::fill(input, *io_caps(), *io_cfg());
                break;
            default:
                fuzz::fill(input, *custom_caps(), *custom_cfg());
        }
    }

    // Several passes do without a method, which is then missing elsewhere.
    bool has_chosen_no_method() const {
        return !px_method_of(io_caps()->get_method_list(), io_cfg()->get_type());
    }
    bool is_of_the_choice(const Thrown& thrown) const {
        const auto had = rcm_cfg()->get_rescolormem_settings();
        if (thrown.detail == L"rcm")
            return !px_is_measure(static_cast<float>(had->get_num_colors())) ||
                   !px_is_measure(static_cast<float>(had->get_color_depth())) ||
                   !px_is_measure(static_cast<float>(had->get_num_undithered_colors()));
        // What the port can do, or the way out.
        if (thrown.code == 215 || thrown.code == 217 || thrown.detail == L"workratelist")
            return true;
        // An item of no setting, and a feed that no source has.
        return thrown.code == 704 || thrown.detail == L"newsource";
    }
};

bool tells(const Findings& findings, const Thrown& thrown) {
    return std::ranges::any_of(findings, [&](const PX_Device_Finding& finding) {
        return finding.code == thrown.code && finding.detail == thrown.detail;
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
            EXPECT_TRUE(tells(findings, *thrown) || device.is_of_the_choice(*thrown))
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
                changes &=
                    ~(PX_IO_Change::Pathname |
                      (device.has_chosen_no_method() ? PX_IO_Change::Portname | PX_IO_Change::Type : 0L));
            EXPECT_EQ(changes, 0) << domain << " in " << testing::PrintToString(findings);
        }
    }
    PX_Module_Exit();
    EXPECT_GT(thrown_often, 500);
    EXPECT_GT(repeated_often, 50);
}

}  // namespace
