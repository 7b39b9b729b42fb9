#include <gtest/gtest.h>

#include "tests/support/rcm.h"

namespace {

using namespace support;
using Configuration = PX_ResColorMem_Configuration;

const std::wstring class_name = L"PX_Std_ResColorMem_Configuration";

// Writes down which flags are cleared, and in which order.
class Recording : public PX_Std_ResColorMem_Configuration {
public:
    void set_one_validated(bool on, PX_ResColorMem_Config_Flags::Enum flag) override {
        log += on ? L" ?" : L" v" + show(flag);
        PX_Std_ResColorMem_Configuration::set_one_validated(on, flag);
    }
    void set_one_default(bool on, PX_ResColorMem_Config_Flags::Enum flag) override {
        log += on ? L" ?" : L" d" + show(flag);
        PX_Std_ResColorMem_Configuration::set_one_default(on, flag);
    }
    std::wstring log;
};

// The names are no fields of this kind: they are taken from catalogue objects.
const std::vector<std::pair<Field<Configuration>, const wchar_t*>> fields = {
    {FIELD(Configuration, ISM_max_mem, L"0", 2), L" v5 d5"},
    {FIELD(Configuration, OLE_max_mem, L"0", 3), L" v6 d6"},
    {FIELD(Configuration, hardsoftno_dithering, L"0", Number{2}), L" v7 d7"},
    {FIELD(Configuration, rast_color_vs_res_pref, L"0", 500), L" v9 d9"},
    {FIELD(Configuration, installed_memory, L"0", 5), L" v10 d10"},
    {FIELD(Configuration, icm_method, L"1", -6), L""},
    {FIELD(Configuration, icm_intent, L"1", -7), L""},
    {FIELD(Configuration, dm_color, L"1", 7), L""},
    {FIELD(Configuration, lines_overwrite, L"1", false), L" v11 d11"},
};

TEST(RCM_Configuration, KeepsThePlainDataAndClearsTheFlagsOfSome) {
    Fields<Configuration> rows;
    for (const auto& [field, cleared] : fields) {
        rows.push_back(field);
        Recording recording;
        field.write(recording);
        EXPECT_EQ(recording.log, cleared);
    }
    PX_Std_ResColorMem_Configuration cfg;
    support::check_fields<Configuration>(cfg, rows, class_name, rcm_file);
    using Set = void (Configuration::*)(long);
    using Get = long (Configuration::*)() const;
    for (const auto& [set, get, stored] : std::initializer_list<std::tuple<Set, Get, long>>{
             {&Configuration::set_ISM_max_mem, &Configuration::get_ISM_max_mem, 0},
             {&Configuration::set_OLE_max_mem, &Configuration::get_OLE_max_mem, 0},
             {&Configuration::set_installed_memory, &Configuration::get_installed_memory, 0},
             {&Configuration::set_rast_color_vs_res_pref, &Configuration::get_rast_color_vs_res_pref, -1}}) {
        (cfg.*set)(-1);
        EXPECT_EQ((cfg.*get)(), stored);
    }
}

TEST(RCM_Configuration, AChoiceTakesTheNameAndTheSnapshot) {
    const PX_Smart_Pointer<PX_ResColorMem> mode = color_mode(L"color", 256, 8, 16, 2);
    const PX_Smart_Pointer<PX_Resolution> resolution = support::resolution(L"fine", {1, 2}, {3, 4}, {5, 6});
    struct Choice {
        const wchar_t *setter, *detail, *cleared, *name, *snapshot;
        std::function<void(Configuration&, bool)> choose;
        const wchar_t* (Configuration::*get)() const;
    };
    const Choice rows[] = {
        {L"::set_res_color_mem", L"rcm", L" v0 d0", L"color",
         L"num_colors 256, color_depth 8, num_undithered_colors 16, color_system 2",
         [&](auto& cfg, bool some) { cfg.set_res_color_mem(some ? mode.get() : nullptr); },
         &Configuration::get_res_color_mem},
        {L"::set_resolution", L"resolution", L" v1 d1", L"fine",
         L"phys_resolution_xy 1 2, addr_resolution_xy 3 4, effective_resolution_xy 5 6",
         [&](auto& cfg, bool some) { cfg.set_resolution(some ? resolution.get() : nullptr); },
         &Configuration::get_resolution},
    };
    for (const Choice& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.setter));
        Recording cfg;
        EXPECT_STREQ((cfg.*row.get)(), L"");
        row.choose(cfg, true);
        EXPECT_STREQ((cfg.*row.get)(), row.name);
        EXPECT_EQ(cfg.log, row.cleared);
        EXPECT_EQ(changes(*cfg.get_rescolormem_settings(), rcm_settings_fields()), row.snapshot);
        cfg.log.clear();
        const auto thrown = expect_thrown<MVNK_Error>([&] { row.choose(cfg, false); }, 1103,
                                                      class_name + row.setter, row.detail);
        EXPECT_EQ(thrown.file, rcm_file);
        EXPECT_STREQ((cfg.*row.get)(), L"");
        EXPECT_EQ(cfg.log, L"");
        EXPECT_EQ(changes(*cfg.get_rescolormem_settings(), rcm_settings_fields()), row.snapshot);
    }
    mode->set_num_colors(1);
    Recording cfg;
    cfg.set_res_color_mem(mode.get());
    mode->set_num_colors(2);
    EXPECT_EQ(cfg.get_rescolormem_settings()->get_num_colors(), 1) << "a snapshot";
}

// Settings of a driver that fail.
class Failing_Settings : public PX_Std_ResColorMem_Settings {
public:
    void set_effective_resolution_xy(const PX_Float_XY*) override { throw MVNK_Error(9, L"Driver"); }
    PX_ResColorMem_Settings* clone() const override { return makes_clones ? new Failing_Settings : nullptr; }
    bool makes_clones = true;
};

TEST(RCM_Configuration, AFailureOfTheSnapshotComesOnWithTheSettersName) {
    Recording cfg;
    Failing_Settings failing;
    cfg.set_rescolormem_settings(&failing);
    const PX_Smart_Pointer<PX_Resolution> resolution = support::resolution(L"fine", {}, {}, {});
    const auto thrown =
        expect_thrown<PX_Exception>([&] { cfg.set_resolution(resolution.get()); }, 9, L"Driver", L"");
    EXPECT_EQ(thrown.frames,
              (std::vector<std::wstring>{L"PX_Std_ResColorMem_Settings::set_resolution_settings",
                                         L"PX_Std_ResColorMem_Configuration::set_resolution"}));
    EXPECT_STREQ(cfg.get_resolution(), L"fine") << "the name is written before";
    EXPECT_EQ(cfg.log, L"");
}

TEST(RCM_Configuration, TakesACloneOfTheSettingsAndClearsNothing) {
    Recording cfg;
    PX_Std_ResColorMem_Settings settings;
    settings.set_num_colors(5);
    const auto before = cfg.get_rescolormem_settings();
    const std::wstring function = class_name + L"::set_rescolormem_settings";
    const auto set_null = [&] { cfg.set_rescolormem_settings(nullptr); };
    EXPECT_EQ(expect_thrown<MVNK_Error>(set_null, 1103, function, L"settings").file, rcm_file);
    Failing_Settings cloneless;
    cloneless.makes_clones = false;
    const auto set_cloneless = [&] { cfg.set_rescolormem_settings(&cloneless); };
    expect_thrown<MVNK_Memory_Exception>(set_cloneless, 1101, function, L"settings");
    EXPECT_EQ(cfg.get_rescolormem_settings(), before);
    cfg.set_rescolormem_settings(&settings);
    settings.set_num_colors(6);
    EXPECT_EQ(changes(*cfg.get_rescolormem_settings(), rcm_settings_fields()), L"num_colors 5");
    EXPECT_EQ(cfg.log, L"");
}

TEST(RCM_Configuration, NumbersItsFlagsByItsEnum) {
    PX_Std_ResColorMem_Configuration cfg;
    CHECK_RANGE(cfg, validated, true, 12, "res_color_mem", L"PX_ResColorMem_Config_Flags::Enum");
    EXPECT_FALSE(cfg.get_one_default(Number{11})) << "the two sets are apart";
    CHECK_RANGE(cfg, default, true, 12, "res_color_mem", L"PX_ResColorMem_Config_Flags::Enum");
    cfg.set_default(true);
    EXPECT_TRUE(cfg.get_default() && !cfg.get_validated());
    cfg.set_one_default(false, Number{0});
    EXPECT_FALSE(cfg.get_default());
}

TEST(RCM_Configuration, ACloneHasAllButTheFlagsOfTheOverwriting) {
    const RCM_Device device;
    PX_Std_ResColorMem_Configuration cfg;
    cfg.set_res_color_mem(device.color().get());
    cfg.set_resolution(device.normal().get());
    // The snapshot is what it is, whatever the names were chosen with.
    for (const auto& field : rcm_settings_fields())
        field.write(*cfg.get_rescolormem_settings());
    cfg.set_validated(true);
    cfg.set_one_default(true, Number{2});
    cfg.set_one_default(true, Number{11});
    const std::unique_ptr<Configuration> clone(cfg.clone());
    EXPECT_STREQ(clone->get_res_color_mem(), L"color");
    EXPECT_STREQ(clone->get_resolution(), L"normal");
    EXPECT_NE(clone->get_rescolormem_settings(), cfg.get_rescolormem_settings());
    for (const auto& field : rcm_settings_fields())
        EXPECT_EQ(field.read(*clone->get_rescolormem_settings()), field.other);
    for (int flag = 0; flag < 12; ++flag) {
        EXPECT_EQ(clone->get_one_validated(Number{flag}), flag != 11) << flag;
        EXPECT_EQ(clone->get_one_default(Number{flag}), flag == 2) << flag;
    }
    EXPECT_TRUE(cfg.get_validated()) << "the source keeps its own";
}

}  // namespace
