#include <gtest/gtest.h>

#include <functional>
#include <set>
#include <string>

#include "tests/support/rcm.h"

namespace {

using namespace support;
using V = PX_ResColorMem_Validator;

constexpr auto by_default = Strategy::Use_Default;
constexpr auto by_nearest = Strategy::Use_Nearest;

class Validator : public PX_Std_ResColorMem_Validator {
public:
    using PX_Std_ResColorMem_Validator::PX_Std_ResColorMem_Validator;
    using Standard = PX_Std_ResColorMem_Validator;
    using Standard::set_RastColorVsResPref_to_nearest;
    using Standard::set_res_color_mem_to_nearest;
    using Standard::set_resolution_to_nearest;
};

std::wstring named_in_full(const std::wstring& function) {
    return L"PX_Std_ResColorMem_Validator::" + function;
}

// A datum: its two operations, its number, its ability, and how its value reads.
struct Datum {
    std::wstring name;
    void (V::*validate)(Strategy::Enum);
    void (V::*set_to_default)();
    int flag;
    int ability;
    std::wstring (*read)(const PX_ResColorMem_Configuration&);
};
// clang-format off
#define DATUM(name, flag, ability, get) \
    {L"" #name, &V::validate_##name, &V::set_##name##_to_default, flag, ability, \
     [](const PX_ResColorMem_Configuration& cfg) { return show(cfg.get); }}
const Datum data[] = {
    DATUM(res_color_mem, 0, 1, get_res_color_mem()),
    DATUM(resolution, 1, 3, get_resolution()),
    DATUM(icm_method, 2, 19, get_icm_method()),
    DATUM(icm_intent, 3, 20, get_icm_intent()),
    DATUM(dm_color, 4, 21, get_dm_color()),
    DATUM(ISM_max_mem, 5, 11, get_ISM_max_mem()),
    DATUM(OLE_max_mem, 6, 12, get_OLE_max_mem()),
    DATUM(HardSoftNo_Dithering, 7, 13, get_hardsoftno_dithering()),
    DATUM(color_vs_mono, 8, 14, get_dm_color()),
    DATUM(RastColorVsResPref, 9, 15, get_rast_color_vs_res_pref()),
    DATUM(installed_memory, 10, 16, get_installed_memory()),
    DATUM(lines_overwrite, 11, 23, get_lines_overwrite()),
};
#undef DATUM
// clang-format on
const auto& [mode, resolution, method, intent, dm_color, ism, ole, dithering, mono, preference, installed,
             overwrite] = data;

using Spoil = std::function<void(const RCM_Device&)>;

// Sees that the datum settles with `expected`, or as it was, for null; the change word tells which.
void expect_settled(const Datum& datum, const Spoil& spoil, Strategy::Enum strategy, const wchar_t* expected,
                    bool by_its_default) {
    const RCM_Device device;
    Validator validator(device.get());
    spoil(device);
    const std::wstring before = datum.read(*device.cfg);
    device.cfg->set_validated(false);
    device.cfg->set_default(false);
    device.validator()->set_res_color_mem_cfg_changes(0x100);
    (validator.*datum.validate)(strategy);
    EXPECT_EQ(device.changes(), 0x100 | (expected ? 1L << datum.flag : 0L));
    EXPECT_EQ(datum.read(*device.cfg), expected ? expected : before);
    for (int flag = 0; flag < 12; ++flag) {
        EXPECT_EQ(device.cfg->get_one_validated(Number{flag}), flag == datum.flag) << flag;
        EXPECT_EQ(device.cfg->get_one_default(Number{flag}),
                  by_its_default && flag == datum.flag && &datum != &overwrite)
            << flag;
    }
}

struct Row {
    const char* name;
    const Datum& datum;
    Spoil spoil;
    // Null for what passes.
    const wchar_t* default_value = nullptr;
    const wchar_t* nearest_value = nullptr;
};

void expect_rows(const std::vector<Row>& rows, bool nearest_is_no_default) {
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        expect_settled(row.datum, row.spoil, by_default, row.default_value, row.default_value);
        const wchar_t* const nearest = row.nearest_value ? row.nearest_value : row.default_value;
        for (const int strategy : {1, 2, -1})
            expect_settled(row.datum, row.spoil, Number{strategy}, nearest,
                           nearest && !nearest_is_no_default);
    }
}

TEST(RCM_Validator, AChoiceHasToBeThereAndAsBefore) {
    // clang-format off
    expect_rows({
        {"mode as before", mode, [](auto&) {}},
        {"mode of another range", mode, [](auto& d) { d.color()->set_color_system(Number{7}); d.snapshot()->set_color_system(Number{7}); }},
        {"mode gone", mode, [](auto& d) { drop(d.modes(), L"color"); }, L"mono", L"rich"},
        {"mode withdrawn", mode, [](auto& d) { withdraw(d.color()); }, L"mono", L"rich"},
        {"one more colour, as near as the next", mode, [](auto& d) { d.color()->set_num_colors(257); }, L"mono", L"color"},
        {"depth", mode, [](auto& d) { d.color()->set_color_depth(9); }, L"mono", L"rich"},
        {"undithered colours", mode, [](auto& d) { d.color()->set_num_undithered_colors(15); }, L"mono", L"rich"},
        {"system", mode, [](auto& d) { d.color()->set_color_system(Number{3}); }, L"mono", L"color"},
        {"undefined system on both sides", mode, [](auto& d) { d.color()->set_color_system(Number{-1}); d.snapshot()->set_color_system(Number{-1}); }, L"mono", L"color"},
    }, true);
    // The default resolution is that of the mode that is chosen.
    expect_rows({
        {"resolution as before", resolution, [](auto&) {}},
        {"its mode is withdrawn", resolution, [](auto& d) { withdraw(d.color()); }},
        {"method missing, below 5", resolution, [](auto& d) { d.set_ability(5, 4); drop(d.caps->get_dithering_list(), L"soft"); }},
        {"resolution gone", resolution, [](auto& d) { drop(d.resolutions(), L"normal"); }, L"draft", L"near"},
        {"resolution withdrawn", resolution, [](auto& d) { withdraw(d.normal()); }, L"draft", L"near"},
        {"method withdrawn", resolution, [](auto& d) { withdraw(d.soft()); }, L"draft", L"normal"},
    }, true);
    // clang-format on
    using R = PX_Resolution;
    for (const auto get :
         {&R::get_phys_resolution_xy, &R::get_addr_resolution_xy, &R::get_effective_resolution_xy}) {
        for (const auto axis : {&PX_Float_XY::x, &PX_Float_XY::y}) {
            const Spoil half_a_dot_off = [&](auto& d) { (*((*d.normal()).*get)()).*axis += 0.5F; };
            expect_rows({{"moved", resolution, half_a_dot_off, L"draft", L"normal"}}, true);
        }
    }
}

TEST(RCM_Validator, NumbersHaveRanges) {
    // clang-format off
    expect_rows({
        {"preference 0", preference, [](auto& d) { d.cfg->set_rast_color_vs_res_pref(0); }},
        {"preference 100", preference, [](auto& d) { d.cfg->set_rast_color_vs_res_pref(100); }},
        {"preference 101", preference, [](auto& d) { d.cfg->set_rast_color_vs_res_pref(101); }, L"50", L"100"},
        {"preference -1", preference, [](auto& d) { d.cfg->set_rast_color_vs_res_pref(-1); }, L"50", L"0"},
    }, true);
    // The others go to their default by any strategy.
    expect_rows({
        {"method 1", method, [](auto& d) { d.cfg->set_icm_method(1); }},
        {"method 0", method, [](auto& d) { d.cfg->set_icm_method(0); }, L"1"},
        {"intent 1", intent, [](auto& d) { d.cfg->set_icm_intent(1); }},
        {"intent 0", intent, [](auto& d) { d.cfg->set_icm_intent(0); }, L"1"},
        {"dm colour 1", dm_color, [](auto& d) { d.cfg->set_dm_color(1); }},
        {"dm colour 2", dm_color, [](auto& d) { d.cfg->set_dm_color(2); }},
        {"dm colour 3", dm_color, [](auto& d) { d.cfg->set_dm_color(3); }, L"1"},
        {"dm colour 0", dm_color, [](auto& d) { d.cfg->set_dm_color(0); }, L"1"},
        {"dm colour 3 where the default is not written", dm_color, [](auto& d) { d.set_ability(21, 0); d.cfg->set_dm_color(3); }, L"3"},
        {"memory limits 0", ism, [](auto& d) { d.cfg->set_ISM_max_mem(0); }},
        {"memory limits 0", ole, [](auto& d) { d.cfg->set_OLE_max_mem(0); }},
        {"a driver's limit", ism, [](auto& d) { d.driver().lacks_memory = true; }, L"6"},
        {"a driver's limit", ole, [](auto& d) { d.driver().lacks_memory = true; }, L"6"},
        {"colour against mono", mono, [](auto& d) { d.cfg->set_dm_color(9); }},
    }, false);
    expect_rows({
        {"lines that need not overwrite", overwrite, [](auto& d) { d.cfg->set_lines_overwrite(false); }},
        {"lines of an undefined ability", overwrite, [](auto& d) { d.set_ability(23, -1); d.cfg->set_lines_overwrite(false); }},
        {"lines that have to overwrite", overwrite, [](auto& d) { d.set_ability(23, 0); d.cfg->set_lines_overwrite(false); }, L"1"},
    }, true);
    // clang-format on
}

TEST(RCM_Validator, SoftDitheringGoesWithTheLevelOfTheMethod) {
    struct Case {
        int chosen, level;
        long undithered;          // of 256
        const wchar_t* expected;  // null for what stays
        int ability_0 = 1, ability_2 = 1;
    };
    for (const Case& row : {
             Case{0, 1, 2, nullptr},
             {0, 2, 2, L"1"},
             {0, 3, 2, nullptr},
             {2, 1, 2, nullptr},
             {2, 2, 2, L"1"},
             {1, 2, 2, nullptr},
             {1, 1, 255, L"2"},
             {1, 1, 256, L"0"},
             {0, 2, 2, nullptr, 0},
             {1, 0, 2, nullptr, 1, -1},
         }) {
        SCOPED_TRACE(testing::Message() << row.chosen << " by level " << row.level);
        const Spoil spoil = [&](const RCM_Device& device) {
            device.set_ability(0, row.ability_0);
            device.set_ability(2, row.ability_2);
            device.soft()->set_required_renderers(Number{row.level});
            // What is withdrawn is looked up all the same.
            withdraw(device.soft());
            withdraw(device.normal());
            withdraw(device.color());
            device.color()->set_num_undithered_colors(row.undithered);
            device.cfg->set_hardsoftno_dithering(Number{row.chosen});
        };
        expect_settled(dithering, spoil, by_nearest, row.expected, false);
    }
}

TEST(RCM_Validator, TheInstalledMemoryIsThatOfEveryThirdArea) {
    struct Case {
        const char* name;
        std::vector<const wchar_t*> names;
        bool passes;
        int ability = 5;
    };
    // "4" has the memory that is installed; "-4" has it, and "-8" another, and they are withdrawn.
    for (const Case& row : {
             Case{"the third", {L"8", L"8", L"4"}, true},
             {"the first two do not count", {L"4", L"4", L"8"}, false},
             {"the fourth is a first", {L"8", L"8", L"8", L"4"}, false},
             {"a withdrawn first is there", {L"-8", L"8", L"4"}, true},
             {"an unknown first ends the pass", {L"?", L"8", L"8", L"4"}, true},
             {"a withdrawn second ends the pass", {L"8", L"-8", L"8", L"8", L"4"}, true},
             {"a withdrawn third", {L"8", L"8", L"-4"}, false},
             {"an unknown third", {L"8", L"8", L"?", L"8", L"8", L"4"}, true},
             {"two names", {L"4", L"4"}, false},
             {"not looked at below 5", {}, true, 4},
         }) {
        SCOPED_TRACE(row.name);
        const Spoil spoil = [&](const RCM_Device& device) {
            device.set_ability(7, row.ability);
            for (const auto& [name, memory] : {std::pair{L"4", 4}, {L"8", 8}, {L"-4", 4}, {L"-8", 8}}) {
                auto* const area = named<PX_Std_Mem_Area>(name);
                area->set_device_memory(memory);
                device.caps->get_mem_area_list()->append(area);
                if (*name == L'-')
                    withdraw(device.caps->get_mem_area(name));
            }
            for (const wchar_t* const name : row.names)
                device.normal()->get_mem_area_name_list()->append(named<PX_Std_Caps_Name_List_Object>(name));
            device.cfg->set_installed_memory(4);
        };
        expect_settled(installed, spoil, by_nearest, row.passes ? nullptr : L"0", !row.passes);
    }
}

TEST(RCM_Validator, DefaultsAreWrittenByTheirAbilities) {
    struct Case {
        const Datum& datum;
        int least;  // the ability from which the default is written
        const wchar_t* value;
        int ability = -1;  // another than the datum's
    };
    for (const Case& row :
         {Case{mode, 4, L"mono"}, Case{resolution, 4, L"draft"}, Case{resolution, 3, L"draft", 1},
          Case{ism, 1, L"6"}, Case{ole, 1, L"6"}, Case{dithering, 1, L"0"}, Case{preference, 1, L"50"},
          Case{installed, 1, L"0"}, Case{method, 1, L"1"}, Case{intent, 1, L"1"}, Case{dm_color, 1, L"1"},
          Case{overwrite, -1, L"1"}, Case{mono, 6, L"1"}}) {
        for (int ability = -1; ability <= 5; ++ability) {
            SCOPED_TRACE(testing::PrintToString(row.datum.name) + std::to_string(ability));
            const RCM_Device device;
            for (const auto set :
                 {&PX_ResColorMem_Configuration::set_ISM_max_mem,
                  &PX_ResColorMem_Configuration::set_OLE_max_mem,
                  &PX_ResColorMem_Configuration::set_rast_color_vs_res_pref,
                  &PX_ResColorMem_Configuration::set_installed_memory,
                  &PX_ResColorMem_Configuration::set_icm_method,
                  &PX_ResColorMem_Configuration::set_icm_intent, &PX_ResColorMem_Configuration::set_dm_color})
                ((*device.cfg).*set)(77);
            device.cfg->set_lines_overwrite(false);
            const std::wstring before = row.datum.read(*device.cfg);
            device.set_ability(row.ability < 0 ? row.datum.ability : row.ability, ability);
            Validator validator(device.get());
            (validator.*row.datum.set_to_default)();
            EXPECT_EQ(row.datum.read(*device.cfg), ability >= row.least ? row.value : before);
            EXPECT_EQ(device.changes(), 0);
            for (int flag = 0; flag < 12; ++flag) {
                EXPECT_EQ(device.cfg->get_one_default(Number{flag}), flag == row.datum.flag) << flag;
                EXPECT_EQ(device.cfg->get_one_validated(Number{flag}), flag == row.datum.flag) << flag;
            }
        }
    }
    for (const auto& [path, limit] :
         {std::pair{L"C:\\drivers\\HPGDI", 3}, {L"xHPGDIx.hdi", 3}, {L"hpgdi", 6}, {L"HPGD", 6}, {L"", 6}}) {
        const RCM_Device device;
        device->get_meta_capabilities()->set_driver_pathname(path);
        Validator(device.get()).set_ISM_max_mem_to_default();
        EXPECT_EQ(device.cfg->get_ISM_max_mem(), limit) << testing::PrintToString(std::wstring(path));
    }
}

struct Failure {
    const char* name;
    std::wstring function;
    void (*call)(Validator&);
    Spoil spoil;
    unsigned int code;
    const wchar_t* detail;
    std::vector<std::wstring> frames = {};
    // What both choices read afterwards.
    const wchar_t* chosen = L"color normal";
};

TEST(RCM_Validator, ReportsWhatCannotBeUsedAndKeepsWhatIsWritten) {
    const std::wstring set_mode = L"PX_Std_ResColorMem_Configuration::set_res_color_mem";
    const std::wstring set_resolution = L"PX_Std_ResColorMem_Configuration::set_resolution";
    const std::wstring default_mode = named_in_full(L"set_res_color_mem_to_default");
    const std::wstring default_resolution = named_in_full(L"set_resolution_to_default");
    const std::wstring validate_mode = named_in_full(L"validate_res_color_mem");
    const std::wstring validate_resolution = named_in_full(L"validate_resolution");
    struct Driver : PX_Std_ResColorMem_Capabilities {
        PX_Smart_Pointer<PX_Named_Object_List<PX_ResColorMem>> get_res_color_mem_list() const override {
            return nullptr;
        }
        PX_ResColorMem_Capabilities* clone() const override { return new Driver; }
    };
    const auto no_modes = [](const RCM_Device& d) {
        d.driver().forgets = true;
        d->get_plotter_capabilities()->set_res_color_mem_capabilities(std::make_unique<Driver>().get());
    };
    const auto no_mode = [](const RCM_Device& d) { drop(d.modes(), L"color"); };
    const auto no_default = [](const RCM_Device& d) { drop(d.resolutions(), L"draft"); };
    const auto bad_modes = [](const RCM_Device& d) {
        withdraw(d.modes()->find(L"mono"));
        withdraw(d.color());
    };
    // clang-format off
    const Failure rows[] = {
        {"no list of modes, before the snapshot", validate_mode, [](auto& v) { v.validate_res_color_mem(by_default); }, no_modes, 1103, L"res_color_mem_list"},
        {"no snapshot", validate_mode, [](auto& v) { v.validate_res_color_mem(by_default); }, [](auto& d) { d.driver().forgets = true; d.modes()->clear(); }, 1103, L"settings"},
        {"no mode, before the snapshot", validate_resolution, [](auto& v) { v.validate_resolution(by_nearest); }, [](auto& d) { d.driver().forgets = true; d.modes()->clear(); }, 1103, L"res_color_mem_list"},
        {"no snapshot of the resolution", validate_resolution, [](auto& v) { v.validate_resolution(by_nearest); }, [](auto& d) { d.driver().forgets = true; d.resolutions()->clear(); }, 1103, L"settings"},
        {"default mode withdrawn", default_mode, [](auto& v) { v.set_res_color_mem_to_default(); }, bad_modes, 401, L"", {}, L"mono normal"},
        {"the same out of the group", default_mode, [](auto& v) { v.validate_all_res_color_mem(by_default); }, bad_modes, 401, L"",
         {validate_mode, named_in_full(L"validate_all_res_color_mem")}, L"mono normal"},
        {"the same out of the defaults", default_mode, [](auto& v) { v.set_all_res_color_mem_to_defaults(); }, bad_modes, 401, L"",
         {named_in_full(L"set_all_res_color_mem_to_defaults")}, L"mono normal"},
        {"default mode missing", set_mode, [](auto& v) { v.set_res_color_mem_to_default(); }, [](auto& d) { drop(d.modes(), L"mono"); }, 1103, L"rcm", {}, L" normal"},
        {"no mode near", set_mode, [](auto& v) { v.validate_res_color_mem(by_nearest); }, [](auto& d) { for (const auto& each : *d.modes()) withdraw(each); }, 1103, L"rcm", {validate_mode}, L" normal"},
        {"default resolution of no mode", default_resolution, [](auto& v) { v.set_resolution_to_default(); }, no_mode, 1103, L"rcm"},
        {"default resolution missing", set_resolution, [](auto& v) { v.set_resolution_to_default(); }, no_default, 1103, L"resolution", {}, L"color "},
        {"default resolution withdrawn", default_resolution, [](auto& v) { v.set_resolution_to_default(); }, [](auto& d) { withdraw(d.resolutions()->find(L"draft")); }, 403, L"", {}, L"color draft"},
        {"its method withdrawn, out of a test", default_resolution, [](auto& v) { v.validate_resolution(by_default); },
         [](auto& d) { withdraw(d.caps->get_dithering(L"hard")); withdraw(d.normal()); }, 403, L"", {validate_resolution}, L"color draft"},
        {"no resolution near", set_resolution, [](auto& v) { v.validate_resolution(by_nearest); }, [](auto& d) { d.resolutions()->clear(); }, 1103, L"resolution", {validate_resolution}, L"color "},
    };
    // clang-format on
    for (const Failure& row : rows) {
        SCOPED_TRACE(row.name);
        const RCM_Device device;
        Validator validator(device.get());
        row.spoil(device);
        device.cfg->set_validated(false);
        device.cfg->set_default(false);
        const auto thrown = thrown_by([&] { row.call(validator); });
        ASSERT_TRUE(thrown);
        EXPECT_EQ(thrown->function, row.function);
        EXPECT_EQ(thrown->code, row.code);
        EXPECT_EQ(thrown->detail, row.detail);
        EXPECT_EQ(thrown->file, rcm_file);
        EXPECT_EQ(thrown->frames, row.frames);
        EXPECT_EQ(thrown->is<MVNK_Error>(), row.frames.empty());
        EXPECT_EQ(device.cfg->get_res_color_mem() + std::wstring(L" ") + device.cfg->get_resolution(),
                  row.chosen);
        EXPECT_EQ(device.changes(), 0);
        for (int flag = 0; flag < 2; ++flag)
            EXPECT_FALSE(device.cfg->get_one_validated(Number{flag}) ||
                         device.cfg->get_one_default(Number{flag}));
    }
    // With a lower ability the method is not asked for.
    const RCM_Device device;
    device.set_ability(5, 4);
    drop(device.caps->get_dithering_list(), L"hard");
    EXPECT_NO_THROW(Validator(device.get()).set_resolution_to_default());
}

// Each operation but the hooks needs the four objects; some ask nothing of the device.
TEST(RCM_Validator, NeedsItsObjects) {
    const std::set<std::wstring> ask_nothing_of_the_device = {
        L"validate_color_vs_mono", L"set_color_vs_mono_to_default", L"set_lines_overwrite_to_default",
        L"validate_dm_color"};
    std::vector<std::pair<std::wstring, std::function<void(Validator&)>>> operations = {
        {L"set_res_color_mem_to_nearest", [](auto& v) { v.set_res_color_mem_to_nearest(); }},
        {L"set_resolution_to_nearest", [](auto& v) { v.set_resolution_to_nearest(); }},
        {L"set_RastColorVsResPref_to_nearest", [](auto& v) { v.set_RastColorVsResPref_to_nearest(); }}};
    for (const Datum& datum : data) {
        operations.emplace_back(L"validate_" + datum.name, [&](auto& v) { (v.*datum.validate)(by_default); });
        operations.emplace_back(L"set_" + datum.name + L"_to_default",
                                [&](auto& v) { (v.*datum.set_to_default)(); });
    }
    const RCM_Device no_caps, no_rcm_caps, no_cfg, no_rcm_cfg;
    no_caps->set_plotter_capabilities(nullptr);
    no_rcm_caps->set_plotter_capabilities(new PX_Std_Plotter_Capabilities);
    no_cfg->set_plotter_configuration(nullptr);
    no_rcm_cfg->set_plotter_configuration(new PX_Std_Plotter_Configuration);
    for (const auto& [operation, call] : operations) {
        SCOPED_TRACE(testing::PrintToString(operation));
        for (const RCM_Device* const device : {&no_caps, &no_rcm_caps, &no_cfg, &no_rcm_cfg}) {
            const auto run = [&call = call, device] {
                Validator validator(device->get());
                call(validator);
            };
            const bool lacks_caps = device == &no_caps || device == &no_rcm_caps;
            if (lacks_caps && ask_nothing_of_the_device.contains(operation)) {
                EXPECT_NO_THROW(run());
                continue;
            }
            const bool lacks_all = device == &no_caps || device == &no_cfg;
            expect_thrown<MVNK_Error>(
                run, 1103, named_in_full(operation),
                lacks_all ? L"plotter_caps or plotter_config" : L"rcm_caps or rcm_config");
        }
    }
    // The default of a bad value asks for the device.
    no_caps.cfg->set_dm_color(3);
    Validator validator(no_caps.get());
    expect_thrown<MVNK_Error>([&] { validator.validate_dm_color(by_default); }, 1103,
                              named_in_full(L"set_dm_color_to_default"), L"plotter_caps or plotter_config");
}

// A driver's validator that only tells what is called.
class Recorder : public PX_Std_ResColorMem_Validator {
public:
    using PX_Std_ResColorMem_Validator::PX_Std_ResColorMem_Validator;
    static inline std::string calls;
// clang-format off
#define RECORD(number, name)                                                                            \
    void validate_##name(Strategy::Enum s) override { calls += s ? "n" #number " " : "v" #number " "; } \
    void set_##name##_to_default() override { calls += "d" #number " "; }
    RECORD(0, res_color_mem) RECORD(1, resolution) RECORD(2, icm_method) RECORD(3, icm_intent) RECORD(4, dm_color)
    RECORD(5, ISM_max_mem) RECORD(6, OLE_max_mem) RECORD(7, HardSoftNo_Dithering) RECORD(8, color_vs_mono)
    RECORD(9, RastColorVsResPref) RECORD(10, installed_memory) RECORD(11, lines_overwrite)
    RECORD(99, dithering_mode) RECORD(98, mem_area)
#undef RECORD
    // clang-format on
};

class Recorder_Factory : public PX_Std_Plotter_Class_Factory {
    PX_ResColorMem_Validator* MK_Create_ResColorMem_Validator(PX_Plotter_Definition* plotter) const override {
        return new Recorder(plotter);
    }
};

TEST(RCM_Validator_In_A_Run, TheThreeOrdersDiffer) {
    const RCM_Device device{new Definition_With<Recorder_Factory>};
    Recorder validator(device.get());
    Recorder::calls.clear();
    validator.validate_all_res_color_mem(by_nearest);
    EXPECT_EQ(Recorder::calls, "n0 n1 n7 n9 n10 n5 n6 n2 n3 n4 n11 ");
    Recorder::calls.clear();
    validator.set_all_res_color_mem_to_defaults();
    EXPECT_EQ(Recorder::calls, "d0 d1 d7 d11 d8 d9 d10 d5 d6 d2 d3 d4 ");
    const auto run = [&] {
        Recorder::calls.clear();
        device.validator()->validate_all(by_nearest, PX_Validation_Policy::Keep_All, true);
        return Recorder::calls;
    };
    device.cfg->set_validated(false);
    device.caps->set_abilities(PX_Ability_Value::Ability_Required);
    EXPECT_EQ(run(), "n0 n1 n7 n11 n8 n9 n10 n5 n6 n2 n3 n4 ");
    for (const Datum& datum : data) {
        const std::string number = std::to_string(datum.flag) + " ";
        device.cfg->set_validated(false);
        device.caps->set_abilities(PX_Ability_Value::Ability_Fixed);
        device.set_ability(datum.ability, 5);
        EXPECT_EQ(run(), "n" + number);
        device.set_ability(datum.ability, 0);
        EXPECT_EQ(run(), "d" + number);
        device.caps->set_abilities(PX_Ability_Value::Ability_Required);
        device.cfg->set_validated(true);
        device.cfg->set_one_validated(false, Number{datum.flag});
        EXPECT_EQ(run(), "n" + number);
    }
}

TEST(RCM_Validator_In_A_Run, LaterDataSeeWhatEarlierRepairsWrote) {
    const RCM_Device device;
    drop(device.modes(), L"color");
    device.cfg->set_validated(false);
    device.validator()->validate_all(by_default, PX_Validation_Policy::Validate_Conditional, true);
    EXPECT_STREQ(device.cfg->get_res_color_mem(), L"mono");
    EXPECT_STREQ(device.cfg->get_resolution(), L"only");
    EXPECT_EQ(device.cfg->get_hardsoftno_dithering(), PX_HardSoftNo_Dithering::No_Dithering);
    EXPECT_EQ(device.changes(), 0x83);
    EXPECT_EQ(device.validator()->get_config_changed() & 8, 8);
    EXPECT_TRUE(device.cfg->get_validated());
}

}  // namespace
