#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

#include "tests/support/rcm.h"

namespace {

using namespace support;

class Validator : public PX_Std_ResColorMem_Validator {
public:
    using PX_Std_ResColorMem_Validator::PX_Std_ResColorMem_Validator;
    using PX_Std_ResColorMem_Validator::set_res_color_mem_to_nearest;
    using PX_Std_ResColorMem_Validator::set_resolution_to_nearest;
};

struct Mode {
    const wchar_t* name;
    long colors, depth, undithered;
    int system = 0;
    int caps_type = 0;
};

// What the search takes from these modes, in this order; empty for none.
std::wstring nearest_mode(const std::vector<Mode>& modes, const Mode& had) {
    const RCM_Device device;
    device.modes()->clear();
    for (const Mode& each : modes) {
        device.modes()->append(color_mode(each.name, each.colors, each.depth, each.undithered, each.system));
        device.modes()->find(each.name)->set_caps_type(Number{each.caps_type});
    }
    const PX_Smart_Pointer<PX_ResColorMem> before =
        color_mode(L"had", had.colors, had.depth, had.undithered, had.system);
    device.cfg->set_res_color_mem(before.get());
    device.cfg->set_validated(true);
    device.cfg->set_default(true);
    Validator validator(device.get());
    const auto thrown = thrown_by([&] { validator.set_res_color_mem_to_nearest(); });
    EXPECT_TRUE(!thrown || (thrown->code == 1103 && thrown->detail == L"rcm"));
    EXPECT_EQ(device.cfg->get_one_validated(Number{0}), thrown.has_value());
    EXPECT_EQ(device.cfg->get_one_default(Number{0}), thrown.has_value());
    EXPECT_EQ(device.changes(), 0);
    EXPECT_EQ(device.snapshot()->get_num_colors(),
              thrown ? had.colors
                     : device.caps->get_res_color_mem(device.cfg->get_res_color_mem())->get_num_colors());
    return device.cfg->get_res_color_mem();
}

TEST(RCM_Nearest, AModeByItsNumbers) {
    // With the hundred of the systems it is as far as where the search begins.
    constexpr long farthest = 2147483547;
    // clang-format off
    const struct {
        const char* name;
        Mode had;
        std::vector<Mode> modes;
        const wchar_t* expected;
    } rows[] = {
        {"24.0 against 16.0", {L"", 256, 8, 0}, {{L"a", 16, 8, 0}, {L"b", 256, 24, 0}}, L"b"},
        {"the system plays no part", {L"", 2, 1, 0, 2}, {{L"a", 2, 2, 0, 2}, {L"b", 2, 1, 0, 0}}, L"b"},
        {"undithered as much as depth", {L"", 2, 5, 5}, {{L"a", 2, 3, 5}, {L"b", 2, 5, 7}, {L"c", 2, 5, 6}}, L"c"},
        {"below zero", {L"", 2, 5, -5}, {{L"a", 2, 5, 5}, {L"b", 2, 5, -14}}, L"b"},
        {"a tie", {L"", 100, 5, 5}, {{L"a", 76, 15, 5}, {L"b", 124, 5, 15}, {L"c", 100, 5, 18}}, L"a"},
        {"a withdrawn one", {L"", 2, 5, 5}, {{L"a", 2, 5, 5, 0, 3}, {L"b", 9, 9, 9, 0, 2}}, L"b"},
        {"240 tenths are 24 in single precision", {L"", 0, 0, 0}, {{L"a", 240, 0, 0}, {L"b", 0, 24, 0}}, L"a"},
        {"13 tenths are more than 1 and 3", {L"", 0, 0, 0}, {{L"a", 13, 0, 0}, {L"b", 3, 1, 0}}, L"b"},
        {"the sum in double precision", {L"", 0, 0, 0}, {{L"a", 0, 16777217, 0}, {L"b", 0, 16777216, 0}}, L"b"},
        {"a hundred too far", {L"", 0, 0, 0, 0}, {{L"a", 0, 0, farthest, 9}}, L""},
        {"too far for every system", {L"", 0, 0, 0, 4}, {{L"a", 0, 0, farthest, 3}}, L""},
        {"nothing is added above the systems", {L"", 0, 0, 0, 5}, {{L"a", 0, 0, farthest, 0}}, L"a"},
        {"nor below", {L"", 0, 0, 0, -1}, {{L"a", 0, 0, farthest + 99, 0}}, L"a"},
        {"too far at all", {L"", 0, 0, 0, -1}, {{L"a", 0, 0, farthest + 100, 0}}, L""},
        {"ends of the range", {L"", 0, 0, std::numeric_limits<long>::max(), 5}, {{L"a", 0, 0, std::numeric_limits<long>::min()}}, L""},
    };
    // clang-format on
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(nearest_mode(row.modes, row.had), row.expected);
    }
}

struct Resolution {
    const wchar_t* name;
    PX_Float_XY phys = {}, addr = {}, effective = {};
    int caps_type = 0;
};

// What the search takes from these resolutions, beside one of nothing but `had`.
std::wstring nearest_resolution(const std::vector<Resolution>& resolutions, const Resolution& had = {}) {
    const RCM_Device device;
    device.resolutions()->clear();
    for (const Resolution& each : resolutions) {
        device.resolutions()->append(support::resolution(each.name, each.phys, each.addr, each.effective));
        device.resolutions()->find(each.name)->set_caps_type(Number{each.caps_type});
    }
    const PX_Smart_Pointer<PX_Resolution> before =
        support::resolution(L"had", had.phys, had.addr, had.effective);
    device.cfg->set_resolution(before.get());
    device.cfg->set_validated(true);
    Validator validator(device.get());
    const auto thrown = thrown_by([&] { validator.set_resolution_to_nearest(); });
    EXPECT_TRUE(!thrown || (thrown->code == 1103 && thrown->detail == L"resolution"));
    EXPECT_EQ(device.cfg->get_one_validated(Number{1}), thrown.has_value());
    return device.cfg->get_resolution();
}

TEST(RCM_Nearest, AResolutionByItsPairs) {
    const Resolution had = {L"", {100, 100}, {100, 100}, {100, 100}};
    const auto rival = [&](float distance) {
        Resolution made = had;
        made.name = L"rival";
        made.effective.y += distance;
        return made;
    };
    for (const auto& [pair, weight] :
         {std::pair{&Resolution::phys, 0.5F}, {&Resolution::addr, 0.1F}, {&Resolution::effective, 1.0F}}) {
        for (const auto axis : {&PX_Float_XY::x, &PX_Float_XY::y}) {
            for (const float difference : {10.0F, -10.0F}) {
                Resolution row = had;
                row.name = L"row";
                row.*pair.*axis += difference;
                const float distance = 10.0F * weight;
                EXPECT_EQ(nearest_resolution({row, rival(distance)}, had), L"row");
                EXPECT_EQ(nearest_resolution({rival(distance), row}, had), L"rival");
                EXPECT_EQ(nearest_resolution({rival(distance + 0.25F), row}, had), L"row");
                EXPECT_EQ(nearest_resolution({row, rival(distance - 0.25F)}, had), L"rival");
            }
        }
    }
    constexpr float big = 16777216;
    constexpr float huge = 3e38F;
    constexpr float nan = std::numeric_limits<float>::quiet_NaN();
    // clang-format off
    const struct {
        const char* name;
        std::vector<Resolution> resolutions;
        const wchar_t* expected;
    } rows[] = {
        {"single precision: the ones get lost behind the physical", {{L"a", {2 * big, 0}, {}, {1, 1}}, {L"b", {2 * big, 0}}}, L"a"},
        {"physical first: its ones make two", {{L"a", {2, 2}, {}, {big, 0}}, {L"b", {}, {}, {big, 1}}}, L"b"},
        {"a tenth in single precision", {{L"a", {}, {240, 0}}, {L"b", {}, {}, {24, 0}}}, L"a"},
        {"withdrawn", {{L"a", {}, {}, {}, 3}, {L"b", {}, {}, {9, 9}, 1}}, L"b"},
        {"as far as where the search begins", {{L"a", {}, {}, {std::numeric_limits<float>::max(), 0}}}, L""},
        {"too far for a number", {{L"a", {}, {}, {huge, huge}}}, L""},
        {"no number", {{L"a", {nan, 0}}, {L"b", {}, {}, {9, 9}}}, L"b"},
    };
    // clang-format on
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(nearest_resolution(row.resolutions), row.expected);
    }
}

}  // namespace
