#include <gtest/gtest.h>

#include "tests/support/fields.h"
#include "tests/support/media.h"

namespace {

using namespace support;
using Flag = PX_Media_Config_Flags;
using Caps = PX_Media_Capabilities;
using Configuration = PX_Media_Configuration;
using Settings = PX_Media_Settings;

constexpr const wchar_t* file = L"$Workfile: std_media_cfg $ $Revision: #1 $";
const PX_Float_XY sheet(3, 4);
const PX_Float_Rectangle printable(0, 9, 0, 19);

TEST(Media_Capabilities, KeepEveryField) {
    const auto sources = list_of<PX_Std_Media_Source, PX_Media_Source>({L"tray"});
    const auto sizes = list_of<PX_Std_Media_Size, PX_Media_Size>({L"A4"});
    const auto bins = list_of<PX_Std_Media_Destination, PX_Media_Destination>({L"bin"});
    const auto sheets = list_of<PX_Std_Media_Description, PX_Media_Description>({L"a4"});
    const auto types = list_of<PX_Std_Media_Type, PX_Media_Type>({L"plain"});
    PX_Std_Media_Capabilities caps;
    support::check_fields<Caps>(
        caps,
        {FIELD(Caps, media_selection_methods, L"1", 3),
         FIELD(Caps, default_media_selection_method, L"1", Number{2}),
         FIELD(Caps, media_source_list, L"list", sources.get()),
         FIELD(Caps, default_media_source, L"", L"tray", L"source_name"),
         FIELD(Caps, media_size_list, L"list", sizes.get()),
         FIELD(Caps, default_media_size, L"", L"A4", L"size_name"),
         FIELD(Caps, media_destination_list, L"list", bins.get()),
         FIELD(Caps, default_media_destination, L"", L"bin", L"destination_name"),
         FIELD(Caps, media_description_list, L"list", sheets.get()),
         FIELD(Caps, media_type_list, L"list", types.get()),
         FIELD(Caps, default_media_type, L"", L"plain", L"def_name"), FIELD(Caps, duplexing_modes, L"1", 6),
         FIELD(Caps, default_duplexing_mode, L"1", Number{4}), FIELD(Caps, max_number_of_copies, L"1", -5),
         FIELD(Caps, default_longplot_reduction, L"1", 0.5), FIELD(Caps, default_dm_scale, L"100", 0),
         FIELD(Caps, media_size_max, L"0 0", &sheet, L"m_media_size_max"),
         FIELD(Caps, media_roll_max_height, L"0", -2.5F)},
        L"PX_Std_Media_Capabilities", file);
}

TEST(Media_Capabilities, NumberTheirFlagsByTheirEnums) {
    PX_Std_Media_Capabilities caps;
    CHECK_RANGE(caps, ability, Number{5}, 51, L"media", L"PX_Media_Ability_Flags::Enum");
    CHECK_RANGE(caps, caps_state, true, 19, L"media", L"PX_Media_User_Flags::Enum");
    CHECK_RANGE(caps, ui_owner, Number{3}, 23, L"media", L"PX_Media_UI_Owner_Flags::Enum");
    caps.set_abilities(L"12");
    const std::unique_ptr<Caps> clone(caps.clone());
    EXPECT_STREQ(clone->get_abilities(), L"12");
    EXPECT_STREQ(clone->get_caps_state(), L"00004");
    EXPECT_EQ(clone->get_ui_owner(), std::wstring(22, L'0') + L"3");
}

TEST(Media_Capabilities, FilterSizesByTheirGroups) {
    using Sizes = PX_Named_Object_List<PX_Media_Size>;
    using Names = PX_Named_Object_List<PX_Caps_Name_List_Object>;
    PX_Std_Media_Capabilities caps;
    const auto sizes = caps.get_media_size_list();
    for (const auto& [name, group] :
         {std::pair{L"0", 0}, {L"withdrawn", 0}, {L"none", -1}, {L"3", 3}, {L"35", 35}, {L"31", 31}}) {
        sizes->append(named<PX_Std_Media_Size>(name));
        sizes->find(name)->set_media_group(Number{group});
    }
    support::withdraw(sizes->find(L"withdrawn"));
    for (const auto& [groups, kept] : {std::pair{0UL, L" withdrawn none"},
                                       {1UL, L" 0 withdrawn none"},
                                       {1UL << 3, L" withdrawn none 3 35"},
                                       {1UL << 31, L" withdrawn none 31"},
                                       {~0xFFFFFFFFUL, L" withdrawn none"},
                                       {~0UL, L" 0 withdrawn none 3 35 31"}}) {
        SCOPED_TRACE(groups);
        const PX_Smart_Pointer<Sizes> chosen = new Sizes;
        const auto names = list_of<PX_Std_Caps_Name_List_Object, PX_Caps_Name_List_Object>({L"unknown"});
        for (const auto& size : *sizes) {
            chosen->append(size);
            names->append(named<PX_Std_Caps_Name_List_Object>(size->get_canonical_name()));
        }
        caps.filter_media_size_list_by_groups(chosen, groups);
        caps.filter_media_size_list_by_groups(names, groups);
        EXPECT_EQ(show(chosen), std::wstring(L"list") + kept);
        EXPECT_EQ(show(names), std::wstring(L"list unknown") + kept);
    }
    caps.filter_media_size_list_by_groups(sizes, 0);
    EXPECT_EQ(show(caps.get_media_size_list()), L"list withdrawn none");
    caps.filter_media_size_list_by_groups(PX_Smart_Pointer<Sizes>(), 0);
    caps.filter_media_size_list_by_groups(PX_Smart_Pointer<Names>(), 0);
}

const Fields<Settings> settings_fields = {
    FIELD(Settings, drying_time, L"0", 11),
    FIELD(Settings, max_resolution, L"0 0", &sheet, L"m_max_resolution"),
    FIELD(Settings, media_bounds, L"0 0", &sheet, L"m_media_bounds"),
    FIELD(Settings, printable_bounds, L"0 0 0 0", &printable, L"m_printable_bounds"),
    FIELD(Settings, printable_area, L"0", -1.5),
    FIELD(Settings, dimensional, L"1", false),
    FIELD(Settings, media_group, L"-1", Number{12}),
    FIELD(Settings, landscape_mode_flag, L"0", true),
    FIELD(Settings, form_name, L"", L"form"),
    FIELD(Settings, media_feed, L"2", Number{13}),
    FIELD(Settings, collating_type, L"0", Number{14}),
    FIELD(Settings, stapling_location, L"-1", Number{15}),
    FIELD(Settings, stapling_when, L"0", Number{16}),
    FIELD(Settings, stapling_orientation, L"0", 17),
    FIELD(Settings, cutting_when, L"0", Number{18}),
    FIELD(Settings, folding_type, L"-1", Number{19}),
    FIELD(Settings, folding_when, L"0", Number{20}),
    FIELD(Settings, source_width, L"0", 21.5F),
    FIELD(Settings, source_frame_height, L"0", 22.5F)};

TEST(Media_Settings, KeepEveryField) {
    PX_Std_Media_Settings settings;
    support::check_fields<Settings>(settings, settings_fields, L"PX_Std_Media_Settings", file);
}

// A catalogue object of each kind, with values that no new object has.
const std::unique_ptr<PX_Media_Type> type(support::media_type(L"type", 7, sheet));
const std::unique_ptr<PX_Media_Source> source(support::source(L"source", 3, {}));
const std::unique_ptr<PX_Media_Source_Entry> entry(support::source_entry(L"entry", 1.5F, 2.5F, {}));
const std::unique_ptr<PX_Media_Size> size = [] {
    std::unique_ptr<PX_Media_Size> made(support::media_size(L"size", L"description"));
    made->set_media_group(Number{5});
    made->set_landscape_mode_flag(true);
    made->set_form_name(L"form");
    return made;
}();
const std::unique_ptr<PX_Media_Description> description = [] {
    std::unique_ptr<PX_Media_Description> made(support::description(L"description", sheet, {0, 9, 0, 19}));
    made->set_printable_area(6.5);
    made->set_dimensional(false);
    return made;
}();
const std::unique_ptr<PX_Media_Destination> bin(support::destination(L"bin", {{L"finishing", 8}}));
const auto collating = bin->get_collating(L"finishing");
const auto stapling = bin->get_stapling(L"finishing");
const auto cutting = bin->get_cutting(L"finishing");
const auto folding = bin->get_folding(L"finishing");

// Settings of a driver that fail in the first of the setters that each catalogue object is copied by.
template <class Error>
class Failing_Settings : public PX_Std_Media_Settings {
public:
    // clang-format off
#define FAILS(setter, Value) void setter(Value) override { throw Error(9, L"Driver"); }
    FAILS(set_drying_time, long)
    FAILS(set_media_feed, PX_Media_Feed::Enum)
    FAILS(set_source_width, float)
    FAILS(set_media_group, PX_Media_Group::Enum)
    FAILS(set_collating_type, PX_Media_Collating_Type::Enum)
    FAILS(set_stapling_location, PX_Media_Stapling_Location::Enum)
    FAILS(set_cutting_when, PX_Media_Cutting_When::Enum)
    FAILS(set_folding_type, PX_Media_Folding_Type::Enum)
#undef FAILS
    // clang-format on
    PX_Media_Settings* clone() const override {
        return new Failing_Settings;
    }
};

// Writes down which flags are cleared, and in which order.
class Recording : public PX_Std_Media_Configuration {
public:
    void set_one_validated(bool on, PX_Media_Config_Flags::Enum flag) override {
        log += on ? L" ?" : L" v" + show(flag);
        PX_Std_Media_Configuration::set_one_validated(on, flag);
    }
    void set_one_default(bool on, PX_Media_Config_Flags::Enum flag) override {
        log += on ? L" ?" : L" d" + show(flag);
        PX_Std_Media_Configuration::set_one_default(on, flag);
    }
    void mark_all() {
        set_validated(true);
        set_default(true);
        log.clear();
    }
    std::wstring log;
};

// A setter of a catalogue object: what a null is called, the flags that are cleared, and what comes into the
// snapshot.
struct Choice {
    std::wstring setter;
    const wchar_t *detail, *cleared, *snapshot;
    void (*choose)(Configuration&);
    void (*choose_null)(Configuration&);
    void (*fill_with_null)(Settings&);
    const wchar_t* (Configuration::*get)() const;
    const wchar_t* name;
};
// clang-format off
#define CHOICE_OF(datum, object, arguments, nulls, settings, detail, cleared, snapshot)             \
    Choice {                                                                                        \
        L"set_media_" #datum, detail, cleared, snapshot,                                            \
        [](Configuration& cfg) { cfg.set_media_##datum arguments; },                                \
        [](Configuration& cfg) { cfg.set_media_##datum nulls; },                                    \
        [](Settings& had) { had.set_media_##settings##_settings(nullptr); },                        \
        &Configuration::get_media_##datum, object->get_canonical_name()                             \
    }
#define CHOICE(datum, object, ...) CHOICE_OF(datum, object, (object.get()), (nullptr), datum, __VA_ARGS__)
#define SIZE(nulls, settings)                                                                       \
    CHOICE_OF(size, size, (size.get(), description.get()), nulls, settings, L"newsize", L" v12 d12 v4 d4", \
              L"media_bounds 3 4, printable_bounds 0 9 0 19, printable_area 6.5, dimensional 0, "   \
              L"media_group 5, landscape_mode_flag 1, form_name form")
const std::vector<Choice> choices = {
    CHOICE(type, type, L"newtype", L" v1 d1", L"drying_time 7, max_resolution 3 4"),
    CHOICE(source, source, L"newsource", L" v2 d2", L"media_feed 3"),
    CHOICE(source_entry, entry, L"newentry", L" v3 d3", L"source_width 1.5, source_frame_height 2.5"),
    SIZE((nullptr, description.get()), size),
    SIZE((size.get(), nullptr), description),
    CHOICE(destination, bin, L"newdest", L" v5 d5", L""),
    CHOICE(collating, collating, L"newcollate", L" v13 d13 v5", L"collating_type 8"),
    CHOICE(stapling, stapling, L"newstaple", L" v14 d14 v5",
           L"stapling_location 8, stapling_when 8, stapling_orientation 8"),
    CHOICE(cutting, cutting, L"newcut", L" v15 d15 v5", L"cutting_when 8"),
    CHOICE(folding, folding, L"newfold", L" v16 d16 v5", L"folding_type 8, folding_when 8"),
};
#undef SIZE
#undef CHOICE
#undef CHOICE_OF
// clang-format on

TEST(Media_Configuration, AChoiceTakesTheNameAndTheSnapshot) {
    for (const Choice& row : choices) {
        SCOPED_TRACE(testing::PrintToString(row.setter));
        Recording cfg;
        EXPECT_STREQ((cfg.*row.get)(), L"");
        cfg.mark_all();
        row.choose(cfg);
        EXPECT_STREQ((cfg.*row.get)(), row.name);
        EXPECT_EQ(cfg.log, row.cleared);
        EXPECT_EQ(changes(*cfg.get_media_settings(), settings_fields), row.snapshot);

        cfg.mark_all();
        row.fill_with_null(*cfg.get_media_settings());
        const auto thrown = expect_thrown<MVNK_Error>(
            [&] { row.choose_null(cfg); }, 1103, L"PX_Std_Media_Configuration::" + row.setter, row.detail);
        EXPECT_EQ(thrown.file, file);
        EXPECT_STREQ((cfg.*row.get)(), L"");
        EXPECT_EQ(cfg.log, L"");
        EXPECT_EQ(changes(*cfg.get_media_settings(), settings_fields), row.snapshot);
    }
}

TEST(Media_Configuration, FailingSettingsLeaveTheFlagsAndAMemoryErrorItsClass) {
    const auto check = [](const Settings& failing, const std::type_info& passed) {
        for (const Choice& row : choices) {
            if (!*row.snapshot)
                continue;  // nothing is copied
            SCOPED_TRACE(testing::PrintToString(row.setter));
            Recording cfg;
            cfg.set_media_settings(&failing);
            cfg.mark_all();
            const auto thrown = thrown_by([&] { row.choose(cfg); });
            ASSERT_TRUE(thrown && *thrown->type == passed && thrown->code == 9);
            EXPECT_EQ(thrown->frames, (std::vector{L"PX_Std_Media_Settings::" + row.setter + L"_settings",
                                                   L"PX_Std_Media_Configuration::" + row.setter}));
            EXPECT_STREQ((cfg.*row.get)(), row.name) << "the name is written before the settings fail";
            EXPECT_EQ(cfg.log, L"");
        }
    };
    check(Failing_Settings<MVNK_Error>(), typeid(PX_Exception));
    check(Failing_Settings<MVNK_Memory_Exception>(), typeid(MVNK_Memory_Exception));
}

const Fields<Configuration> plain_fields = {
    FIELD(Configuration, media_selection_method, L"0", Number{2}),
    FIELD(Configuration, number_of_copies, L"1", -3),
    FIELD(Configuration, duplexing_mode, L"0", Number{4}),
    FIELD(Configuration, margins, L"0 0 0 0", &printable, L"m_margins"),
    FIELD(Configuration, longplot_reduction, L"1", 0.5),
    FIELD(Configuration, dm_scale, L"100", 40000),
    FIELD(Configuration, dm_orientation, L"1", 2),
    FIELD(Configuration, actual_printable_bounds, L"0 0 0 0", &printable, L"m_actual_printable_bounds"),
};

TEST(Media_Configuration, KeepsThePlainDataAndClearsTheirFlags) {
    PX_Std_Media_Configuration cfg;
    support::check_fields<Configuration>(cfg, plain_fields, L"PX_Std_Media_Configuration", file);
    const std::vector<std::wstring> cleared = {L" v0 d0", L" v6 d6",   L" v7 d7",           L" v8 d8",
                                               L" v9 d9", L" v10 d10", L" v12 d12 v11 d11", L" v12 d12"};
    for (std::size_t row = 0; row < plain_fields.size(); ++row) {
        Recording recording;
        plain_fields[row].write(recording);
        EXPECT_EQ(recording.log, cleared[row]);
    }
}

TEST(Media_Configuration, LaysThePrintableBoundsByTheOrientation) {
    Recording cfg;
    const auto lay = [&](const PX_Float_Rectangle& bounds) {
        const std::unique_ptr<PX_Media_Description> laid(support::description(L"laid", sheet, bounds));
        cfg.set_media_size(size.get(), laid.get());
        return *cfg.get_actual_printable_bounds();
    };
    cfg.set_dm_orientation(2);
    EXPECT_EQ(lay({2, 11, 30, 49}), PX_Float_Rectangle(2, 21, 30, 39)) << "about the lower corner";
    // Single precision in this order: 2^24 + 11 becomes 2^24 + 12, and 1 less is 2^24 + 12 again.
    EXPECT_EQ(lay({0, 10, 16777216, 16777236}), PX_Float_Rectangle(0, 20, 16777216, 16777228));
    EXPECT_EQ(lay({16777216, 16777236, 0, 10}), PX_Float_Rectangle(16777216, 16777228, 0, 20));
    EXPECT_EQ(lay(printable), PX_Float_Rectangle(0, 19, 0, 9));
    EXPECT_EQ(*cfg.get_media_settings()->get_printable_bounds(), printable);
    for (const long orientation : {1L, 3L}) {
        cfg.set_dm_orientation(2);
        cfg.set_dm_orientation(orientation);
        EXPECT_EQ(*cfg.get_actual_printable_bounds(), printable);
    }
    cfg.log.clear();
    const auto turn_without_memory = [&] {
        const support::Out_Of_Memory none;
        cfg.set_dm_orientation(2);
    };
    const auto thrown = expect_thrown<MVNK_Memory_Exception>(
        turn_without_memory, 1101, L"PX_Std_Media_Configuration::set_actual_printable_bounds",
        L"m_actual_printable_bounds");
    EXPECT_EQ(thrown.frames, std::vector<std::wstring>{L"PX_Std_Media_Configuration::set_dm_orientation"});
    EXPECT_EQ(cfg.get_dm_orientation(), 2);
    EXPECT_EQ(cfg.log, L"") << "without its bounds an orientation keeps its flags";
}

TEST(Media_Configuration, TakesACloneOfTheSettingsAndClearsNothing) {
    Recording cfg;
    PX_Std_Media_Settings settings;
    settings.set_drying_time(5);
    constexpr const wchar_t* function = L"PX_Std_Media_Configuration::set_media_settings";
    const auto before = cfg.get_media_settings();
    const auto set_null = [&] { cfg.set_media_settings(nullptr); };
    EXPECT_EQ(expect_thrown<MVNK_Error>(set_null, 1103, function, L"settings").file, file);
    const auto set_without_memory = [&] {
        const support::Out_Of_Memory none;
        cfg.set_media_settings(&settings);
    };
    EXPECT_EQ(expect_thrown<MVNK_Memory_Exception>(set_without_memory, 1101, L"PX_Std_Media_Settings::clone",
                                                   L"new_one")
                  .frames,
              std::vector<std::wstring>{function});
    EXPECT_EQ(cfg.get_media_settings(), before);
    cfg.set_media_settings(&settings);
    settings.set_drying_time(6);
    EXPECT_EQ(changes(*cfg.get_media_settings(), settings_fields), L"drying_time 5");
    EXPECT_EQ(cfg.log, L"");
}

TEST(Media_Configuration, NumbersItsFlagsByItsEnum) {
    PX_Std_Media_Configuration cfg;
    CHECK_RANGE(cfg, validated, true, 17, L"media", L"PX_Media_Config_Flags::Enum");
    EXPECT_FALSE(cfg.get_one_default(Flag::Cfg_Media_Folding)) << "the two sets are apart";
    CHECK_RANGE(cfg, default, true, 17, L"media", L"PX_Media_Config_Flags::Enum");
}

TEST(Media_Configuration, ACloneHasTheNamesTheSnapshotAndTheFlags) {
    PX_Std_Media_Configuration cfg;
    for (const Choice& row : choices)
        row.choose(cfg);
    // The snapshot is what it is, whatever the names were chosen with.
    for (const auto& field : settings_fields)
        field.write(*cfg.get_media_settings());
    cfg.set_dm_orientation(2);
    cfg.set_actual_printable_bounds(&printable);
    cfg.set_validated(true);
    cfg.set_one_default(true, Flag::Cfg_Dm_Scale);
    const std::unique_ptr<Configuration> clone(cfg.clone());
    for (const Choice& row : choices)
        EXPECT_STREQ(((*clone).*row.get)(), row.name);
    EXPECT_NE(clone->get_media_settings(), cfg.get_media_settings());
    for (const auto& field : settings_fields) {
        EXPECT_EQ(field.read(*clone->get_media_settings()), field.other) << field.setter.size();
        EXPECT_TRUE(!field.held(*cfg.get_media_settings()) ||
                    field.held(*clone->get_media_settings()) != field.held(*cfg.get_media_settings()));
    }
    EXPECT_EQ(*clone->get_actual_printable_bounds(), printable) << "not those of the orientation";
    EXPECT_TRUE(clone->get_validated());
    for (int flag = 0; flag < 17; ++flag)
        EXPECT_EQ(clone->get_one_default(Number{flag}), flag == Flag::Cfg_Dm_Scale);
    support::expect_clone_reports_no_memory<Configuration>(cfg, L"PX_Std_Media_Configuration::clone");
}

}  // namespace
