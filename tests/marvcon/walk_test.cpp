#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <set>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/io.h"
#include "tests/support/media.h"
#include "tests/support/rcm.h"
#include "toolkit/core/module.h"
#include "toolkit/marvcon/std_init_term_cfg/domain.h"
#include "toolkit/marvcon/std_io_cfg/domain.h"
#include "toolkit/marvcon/std_media_cfg/domain.h"
#include "toolkit/marvcon/std_phys_pen_cfg/domain.h"
#include "toolkit/marvcon/std_res_color_mem_cfg/domain.h"
#include "toolkit/platform/scripted/scripted_platform.h"

// Every row of the walk by itself. Each datum is conditional, which Keep_Conditional leaves alone; a single
// ability is made fixed, which resets, or settable, which validates.

namespace {

using namespace support;
using Policy = PX_Validation_Policy;
using Value = PX_Ability_Value;

// One datum: its ability, its flag and the bits that repairing it raises, 0 where nothing is ever repaired.
// `spoil` chooses what the device does not have; `settled_too` are the flags that follow it.
template <class Bench>
struct Row {
    int ability;
    int datum;
    long bits;
    void (*spoil)(Bench&);
    std::set<int> settled_too = {};
};

// A row of the table on the page, which is read by hosts and drivers: it tells what the walk does.
struct Told {
    std::string domain;
    std::string datum;
    int ability;
    std::vector<int> flags;  // its own first
    long bits;
};

std::vector<Told> told_on_the_page() {
    std::ifstream page(VALIDATION_PAGE);
    std::vector<Told> rows;
    for (std::string line; std::getline(page, line);) {
        std::istringstream words(line);
        std::string cells[6];
        for (auto& cell : cells) {
            std::getline(words, cell, '|');
            cell.erase(0, 1);
        }
        if (!cells[2].starts_with('`'))
            continue;
        Told told{cells[1].substr(0, cells[1].find(' ')),
                  cells[2].substr(1, cells[2].rfind('`') - 1),
                  std::stoi(cells[3]),
                  {},
                  cells[5].starts_with("none") ? 0 : std::stol(cells[5], nullptr, 16)};
        std::istringstream flags(cells[4]);
        for (std::string flag; std::getline(flags, flag, ',');)
            told.flags.push_back(std::stoi(flag));
        rows.push_back(std::move(told));
    }
    return rows;
}

template <class Domain>
constexpr int flag_count = 0;
template <>
constexpr int flag_count<PX_Media_Domain> = PX_Media_Config_Flags::range.count;
template <>
constexpr int flag_count<PX_Pen_Domain> = PX_Pen_Config_Flags::range.count;
template <>
constexpr int flag_count<PX_RCM_Domain> = PX_ResColorMem_Config_Flags::range.count;
template <>
constexpr int flag_count<PX_InitTerm_Domain> = PX_InitTerm_Ability_Flags::range.count;
template <>
constexpr int flag_count<PX_IO_Domain> = PX_IO_Config_Flags::range.count;

template <class Call>
std::set<int> numbers(int count, Call holds) {
    std::set<int> found;
    for (int i = 0; i < count; ++i) {
        if (holds(i))
            found.insert(i);
    }
    return found;
}

void make_all_conditional(const PX_Plotter_Capabilities& caps) {
    caps.get_media_capabilities()->set_abilities(Value::Ability_Conditional);
    caps.get_phys_pen_capabilities()->set_abilities(Value::Ability_Conditional);
    caps.get_res_color_mem_capabilities()->set_abilities(Value::Ability_Conditional);
    caps.get_init_term_capabilities()->set_abilities(Value::Ability_Conditional);
    caps.get_io_capabilities()->set_abilities(Value::Ability_Conditional);
}

template <class Domain, class Bench, std::size_t count>
void expect_rows(const char* domain, const Row<Bench> (&rows)[count]) {
    std::size_t at = 0;
    for (const Told& told : told_on_the_page()) {
        if (told.domain != domain)
            continue;
        ASSERT_LT(at, count) << told.datum;
        const auto& row = rows[at++];
        std::vector<int> flags = {row.datum};
        flags.insert(flags.end(), row.settled_too.begin(), row.settled_too.end());
        EXPECT_TRUE(told.ability == row.ability && told.flags == flags && told.bits == row.bits)
            << told.datum;
    }
    EXPECT_EQ(at, count);
    for (const auto& row : rows) {
        for (const auto ability :
             {Value::Ability_Conditional, Value::Ability_Fixed, Value::Ability_Settable}) {
            SCOPED_TRACE(testing::Message() << "ability flag " << row.ability << " is " << ability);
            Bench bench;
            const auto root = bench.get()->get_plotter_capabilities();
            const auto caps = ((*root).*Domain::get_capabilities)();
            // The other flags of its own domain stay, for the sake of what its rows ask of each other.
            const std::wstring before = caps->get_abilities();
            make_all_conditional(*root);
            caps->set_abilities(before.c_str());
            for (const auto& other : rows)
                caps->set_one_ability(Value::Ability_Conditional, Number{other.ability});
            caps->set_one_ability(ability, Number{row.ability});
            row.spoil(bench);
            const auto cfg = ((*bench.get()->get_plotter_configuration()).*Domain::get_configuration)();
            cfg->set_validated(false);
            cfg->set_default(false);

            const auto validator = bench.get()->get_plotter_validator();
            const bool validates = ability == Value::Ability_Settable;
            EXPECT_EQ(
                validator->validate_all(PX_Validation_Strategy::Use_Default, Policy::Keep_Conditional, true),
                validates && row.bits != 0);

            std::set<int> reached;
            if (ability != Value::Ability_Conditional) {
                for (const auto& other : rows) {
                    if (other.ability == row.ability)
                        reached.insert(other.datum);
                }
                reached.insert(row.settled_too.begin(), row.settled_too.end());
            }
            constexpr int flags = flag_count<Domain>;
            EXPECT_EQ(numbers(flags, [&](int flag) { return cfg->get_one_validated(Number{flag}); }),
                      reached);
            if (!validates) {
                EXPECT_EQ(numbers(flags, [&](int flag) { return cfg->get_one_default(Number{flag}); }),
                          reached);
            }
            if constexpr (requires { Domain::get_changes; }) {
                EXPECT_EQ(((*validator).*Domain::get_changes)(), validates ? row.bits : 0);
            }
        }
    }
}

TEST(Walk, ReachesEachMediaDatum) {
    using B = Media_Device;
    static const PX_Float_Rectangle outside(-9, 9999, -9, 9999);
    static const PX_Float_XY smaller(209, 297);
    static const PX_Float_Rectangle inside(50, 60, 50, 60);
    // clang-format off
    const Row<B> rows[] = {
        {0, 0, 0x40, [](B& b) { b.cfg->set_media_selection_method(Number{0x40}); }},
        {10, 1, 0x80, [](B& b) { drop(b.types(), L"plain"); }},
        {1, 2, 0x1, [](B& b) { b.tray()->set_media_feed(Number{2}); }},
        {3, 3, 0x20000, [](B& b) { drop(b.entries(), L"upper"); }},
        // The default size is a smaller one.
        {5, 4, 0x2, [](B& b) { b.a4_sheet()->set_media_bounds(&smaller); b.cfg->set_margins(&inside); }},
        {7, 5, 0x1E004, [](B& b) { drop(b.destinations(), L"bin"); }, {13, 14, 15, 16}},
        {23, 6, 0x10, [](B& b) { b.cfg->set_number_of_copies(6); }},
        {22, 7, 0x8, [](B& b) { b.cfg->set_duplexing_mode(Number{8}); }},
        {5, 8, 0x20, [](B& b) { b.cfg->set_margins(&outside); }},
        {25, 9, 0x200, [](B& b) { b.cfg->set_longplot_reduction(0.5); }},
        {28, 10, 0x400, [](B& b) { b.cfg->set_dm_scale(0); }},
        {29, 11, 0x800, [](B& b) { b.cfg->set_dm_orientation(7); }},
        {13, 12, 0x1000, [](B& b) { b.cfg->set_actual_printable_bounds(&outside); }},
    };
    // clang-format on
    expect_rows<PX_Media_Domain>("media", rows);
}

// A plotter of up to 8 pens, whose user has none.
struct Pen_Device : Device {
    Pen_Device() {
        pen_caps()->set_abilities(Value::Ability_Required);
        pen_caps()->set_max_number_of_physical_pens(8);
    }
};

TEST(Walk, ReachesEachPenDatum) {
    using B = Pen_Device;
    const Row<B> rows[] = {
        {0, 0, 0x1, [](B& b) { b.pen_cfg()->set_number_of_physical_pens(9); }},
        {16, 1, 0x10, [](B& b) { b.pen_cfg()->set_number_of_physical_pens(3); }},
        {15, 4, 0x2, [](B& b) { b.pen_cfg()->set_pen_changing_enable(true); }},
        {2, 2, 0x4, [](B& b) { b.pen_cfg()->set_area_fill_correction(true); }},
        {6, 3, 0x8, [](B& b) { b.pen_cfg()->set_pen_optimization(1); }},
    };
    expect_rows<PX_Pen_Domain>("pens", rows);
}

TEST(Walk, ReachesEachDatumOfResolutionColourAndMemory) {
    using B = RCM_Device;
    // clang-format off
    const Row<B> rows[] = {
        {1, 0, 0x1, [](B& b) { b.color()->set_color_depth(9); }},
        {3, 1, 0x2, [](B& b) { b.normal()->set_addr_resolution_xy(nullptr); }},
        {13, 7, 0x80, [](B& b) { b.cfg->set_hardsoftno_dithering(Number{0}); }},
        {23, 11, 0, [](B& b) { b.cfg->set_lines_overwrite(false); }},
        {14, 8, 0, [](B&) {}},
        {15, 9, 0x200, [](B& b) { b.cfg->set_rast_color_vs_res_pref(101); }},
        {16, 10, 0x400, [](B& b) { b.set_ability(7, 5); }},
        {11, 5, 0x20, [](B& b) { b.driver().lacks_memory = true; }},
        {12, 6, 0x40, [](B& b) { b.driver().lacks_memory = true; }},
        {19, 2, 0x4, [](B& b) { b.cfg->set_icm_method(0); }},
        {20, 3, 0x8, [](B& b) { b.cfg->set_icm_intent(0); }},
        {21, 4, 0x10, [](B& b) { b.cfg->set_dm_color(3); }},
    };
    // clang-format on
    expect_rows<PX_RCM_Domain>("color", rows);
}

TEST(Walk, ReachesEachDeviceString) {
    const Row<Device> rows[] = {
        {0, 0, 0, [](Device&) {}}, {1, 1, 0, [](Device&) {}}, {2, 2, 0, [](Device&) {}}};
    expect_rows<PX_InitTerm_Domain>("strings", rows);
}

// With its machine, which has both of its ports.
struct IO_Machine : PX_Scripted_Platform {
    IO_Machine() {
        PX_Module_Exit();
        add_port(L"COM1:");
        add_port(L"LPT1:");
    }
    ~IO_Machine() { PX_Module_Exit(); }
};
struct Connected_Device : IO_Device {
    IO_Machine machine;
    const PX_Use_Platform use{machine};
};

TEST(Walk, ReachesEachOutputDatum) {
    using B = Connected_Device;
    const Row<B> rows[] = {
        {2, 1, 0x3, [](B& b) { b.cfg.set_portname(L"COM9"); }, {0}},
        {5, 2, 0x4, [](B& b) { b.cfg.set_protocol(L"gone"); }},
        {6, 3, 0x8, [](B& b) { b.cfg.set_baud_rate(1); }},
        {7, 4, 0x10, [](B& b) { b.cfg.set_handshake(64); }},
        {9, 5, 0x20, [](B& b) { b.cfg.set_input_timeout(101); }},
        {8, 6, 0x40, [](B& b) { b.cfg.set_output_timeout(201); }},
        {11, 7, 0x80, [](B& b) { b.cfg.set_plot_to_file(true); }},
    };
    expect_rows<PX_IO_Domain>("output", rows);
}

// The operations of the standard validators give way to ones that tell who was called.
std::wstring walked;
#define WALKED(name)                                              \
    void validate_##name(PX_Validation_Strategy::Enum) override { \
        walked += L"" #name " ";                                  \
    }
class Walked_Media : public PX_Std_Media_Validator {
    WALKED(selection_method)
    WALKED(type)
    WALKED(source)
    WALKED(source_entry)
    WALKED(size)
    WALKED(destination)
    WALKED(number_of_copies)
    WALKED(duplexing)
    WALKED(margins)
    WALKED(longplot_reduction)
    WALKED(dm_scale)
    WALKED(dm_orientation)
    WALKED(actual_printable_bounds)

public:
    using PX_Std_Media_Validator::PX_Std_Media_Validator;
};
class Walked_Pens : public PX_Std_PhysPen_Validator {
    WALKED(num_phys_pens)
    WALKED(pen_list)
    WALKED(pen_changing)
    WALKED(area_fill_correction)
    WALKED(pen_optimization)

public:
    using PX_Std_PhysPen_Validator::PX_Std_PhysPen_Validator;
};
class Walked_RCM : public PX_Std_ResColorMem_Validator {
    WALKED(res_color_mem)
    WALKED(resolution)
    WALKED(HardSoftNo_Dithering)
    WALKED(lines_overwrite)
    WALKED(color_vs_mono)
    WALKED(RastColorVsResPref)
    WALKED(installed_memory)
    WALKED(ISM_max_mem)
    WALKED(OLE_max_mem)
    WALKED(icm_method)
    WALKED(icm_intent)
    WALKED(dm_color)

public:
    using PX_Std_ResColorMem_Validator::PX_Std_ResColorMem_Validator;
};
class Walked_Strings : public PX_Std_InitTerm_Validator {
    WALKED(preinit_string)
    WALKED(postinit_string)
    WALKED(termination_string)

public:
    using PX_Std_InitTerm_Validator::PX_Std_InitTerm_Validator;
};
class Walked_IO : public PX_Std_Plotter_IO_Validator {
    WALKED(portname_and_type)
    WALKED(protocol)
    WALKED(baud_rate)
    WALKED(handshake)
    WALKED(input_timeout)
    WALKED(output_timeout)
    WALKED(pathname)

public:
    using PX_Std_Plotter_IO_Validator::PX_Std_Plotter_IO_Validator;
};
class Walked_Custom : public PX_Std_Custom_Validator {
    WALKED(all_custom)

public:
    using PX_Std_Custom_Validator::PX_Std_Custom_Validator;
};
#undef WALKED
#define MAKES(domain, contract, Walked)                                                            \
    PX_##contract* MK_Create_##domain##_Validator(PX_Plotter_Definition* plotter) const override { \
        return new Walked(plotter);                                                                \
    }
struct Walked_Factory : PX_Std_Plotter_Class_Factory {
    MAKES(Media, Media_Validator, Walked_Media)
    MAKES(Pen, PhysPen_Validator, Walked_Pens)
    MAKES(ResColorMem, ResColorMem_Validator, Walked_RCM)
    MAKES(InitTerm, InitTerm_Validator, Walked_Strings)
    MAKES(Plotter_IO, Plotter_IO_Validator, Walked_IO)
    MAKES(Custom, Custom_Validator, Walked_Custom)
};
#undef MAKES

TEST(Walk, GoesInItsOrder) {
    const Device device{new Definition_With<Walked_Factory>};
    device.media_caps()->set_abilities(Value::Ability_Required);
    device.pen_caps()->set_abilities(Value::Ability_Required);
    device.rcm_caps()->set_abilities(Value::Ability_Required);
    device.init_term_caps()->set_abilities(Value::Ability_Required);
    device.io_caps()->set_abilities(Value::Ability_Required);
    walked.clear();
    device.validator()->validate_all(PX_Validation_Strategy::Use_Default, Policy::Keep_All, true);
    std::wstring told;
    for (const Told& row : told_on_the_page())
        told += std::wstring(row.datum.begin(), row.datum.end()) + L' ';
    EXPECT_EQ(walked, told + L"all_custom ");
}

// Custom data have no ability: every policy validates them, in the end.
TEST(Walk, ReachesCustomDataUnderEveryPolicy) {
    for (int policy = 0; policy < 4; ++policy) {
        const Device device;
        const auto keep = [&](const auto& caps, const auto& cfg) {
            caps->set_abilities(Value::Ability_Required);
            cfg->set_validated(true);
        };
        keep(device.media_caps(), device.media_cfg());
        keep(device.pen_caps(), device.pen_cfg());
        keep(device.rcm_caps(), device.rcm_cfg());
        keep(device.init_term_caps(), device.init_term_cfg());
        keep(device.io_caps(), device.io_cfg());
        const PX_Std_Long_Custom_Data given(5L), by_default(7L);
        auto* const setting = named<PX_Std_Custom_Capability>(L"gap");
        setting->set_data_type(PX_Data_Type::Data_Long);
        setting->set_is_range_type(true);
        setting->set_range_max(4);
        setting->set_default_data_value(&by_default);
        device->get_plotter_capabilities()->get_custom_capabilities()->get_custom_list()->append(setting);
        auto* const item = named<PX_Std_Custom_Config_Item>(L"gap");
        item->set_config_value(&given);
        item->set_validated(false);
        item->set_default(false);
        device->get_plotter_configuration()->get_custom_configuration()->get_custom_list()->append(item);
        EXPECT_TRUE(
            device.validator()->validate_all(PX_Validation_Strategy::Use_Nearest, Number{policy}, true));
        EXPECT_EQ(device.validator()->get_config_changed(), PX_Domain_Mask::Custom);
        EXPECT_TRUE(device.validator()->get_one_custom_cfg_change(L"gap"));
        EXPECT_TRUE(item->get_validated() && item->get_default() && *item->get_config_value() == by_default);
    }
}

}  // namespace
