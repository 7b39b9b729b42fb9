#include <gtest/gtest.h>

#include <fstream>
#include <set>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/walk_rows.h"
#include "toolkit/marvcon/std_init_term_cfg/domain.h"
#include "toolkit/marvcon/std_io_cfg/domain.h"
#include "toolkit/marvcon/std_media_cfg/domain.h"
#include "toolkit/marvcon/std_phys_pen_cfg/domain.h"
#include "toolkit/marvcon/std_res_color_mem_cfg/domain.h"

// Every row of the walk by itself. Each datum is conditional, which Keep_Conditional leaves alone; a single
// ability is made fixed, which resets, or settable, which validates.

namespace {

using namespace support;
using Policy = PX_Validation_Policy;
using Value = PX_Ability_Value;

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

// The flags of a mask of them.
template <class Domain>
std::set<int> flags_in(int mask) {
    return numbers(flag_count<Domain>, [mask](int flag) { return (mask >> flag & 1) != 0; });
}

template <class Domain, class Bench>
void expect_rows(const char* domain, const std::vector<Row<Bench>>& rows) {
    std::size_t at = 0;
    for (const Told& told : told_on_the_page()) {
        if (told.domain != domain)
            continue;
        ASSERT_LT(at, rows.size()) << told.datum;
        const auto& row = rows[at++];
        std::vector<int> flags = {row.datum};
        for (const int flag : flags_in<Domain>(row.settled_too))
            flags.push_back(flag);
        EXPECT_TRUE(told.ability == row.ability && told.flags == flags && told.bits == row.bits)
            << told.datum;
    }
    EXPECT_EQ(at, rows.size());
    for (const auto& row : rows) {
        for (const auto ability :
             {Value::Ability_Conditional, Value::Ability_Fixed, Value::Ability_Settable}) {
            SCOPED_TRACE(testing::Message() << "ability flag " << row.ability << " is " << ability);
            Bench bench;
            const auto cfg = set_up_row<Domain>(bench, row, rows, ability);
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
                reached.merge(flags_in<Domain>(row.settled_too));
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
    expect_rows<PX_Media_Domain>("media", media_rows());
}

TEST(Walk, ReachesEachPenDatum) {
    expect_rows<PX_Pen_Domain>("pens", pen_rows());
}

TEST(Walk, ReachesEachDatumOfResolutionColourAndMemory) {
    expect_rows<PX_RCM_Domain>("color", color_rows());
}

TEST(Walk, ReachesEachDeviceString) {
    expect_rows<PX_InitTerm_Domain>("strings", string_rows());
}

TEST(Walk, ReachesEachOutputDatum) {
    expect_rows<PX_IO_Domain>("output", output_rows());
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
