#include <gtest/gtest.h>

#include <string>

#include "tests/support/expect_exception.h"
#include "tests/support/media.h"

namespace {

using namespace support;

// What the data of the selection chain have in common, and what the device's configuration is repaired to.
struct Datum {
    MEDIA_DATUM_FIELDS;
    Cfg::Enum flag;
    long bits;
    Ability::Enum default_test;
    const wchar_t* by_default;
    const wchar_t* by_nearest;
};

// clang-format off
const Datum chain[] = {
    {MEDIA_DATUM(selection_method), Cfg::Cfg_Selection_Method, 0x40, Ability::Ability_Media_Selection_Method, L"2", L"2"},
    {MEDIA_DATUM(type), Cfg::Cfg_Media_Type, 0x80, Ability::Ability_Media_Type_Default, L"film", L"fine"},
    {MEDIA_DATUM(source), Cfg::Cfg_Media_Source, 0x1, Ability::Ability_Media_Source_Default, L"roll", L"drawer"},
    {MEDIA_DATUM(source_entry), Cfg::Cfg_Media_Source_Entry, 0x20000, Ability::Ability_Media_Source_Entry_Default, L"manual", L"lower"},
    {MEDIA_DATUM(size), Cfg::Cfg_Media_Size, 0x2, Ability::Ability_Media_Size_Default, L"A5", L"A4plus"},
    {MEDIA_DATUM(destination), Cfg::Cfg_Media_Destination, 0x1E004, Ability::Ability_Media_Destination_Default,
     L"rack none none none none", L"shelf full full full full"},
};
// clang-format on
const auto& [method, type, source, entry, size, output] = chain;

bool is_flag_of(const Datum& datum, int flag) {
    return flag == datum.flag || (&datum == &output && flag >= Cfg::Cfg_Media_Collating);
}

// What is chosen for a datum.
std::wstring chosen(const Media_Device& device, const Datum& datum) {
    const PX_Media_Configuration& cfg = *device.cfg;
    const std::wstring blank = L" ";
    if (&datum == &output)
        return cfg.get_media_destination() + blank + cfg.get_media_collating() + blank +
               cfg.get_media_stapling() + blank + cfg.get_media_cutting() + blank + cfg.get_media_folding();
    const wchar_t* const names[] = {L"", cfg.get_media_type(), cfg.get_media_source(),
                                    cfg.get_media_source_entry(), cfg.get_media_size()};
    return &datum == &method ? std::to_wstring(cfg.get_media_selection_method()) : names[datum.flag];
}

using Spoil = void (*)(const Media_Device&);

// Sees that the datum settles with what is expected; null is what was chosen before.
void expect_settled(const Datum& datum, Spoil spoil, Strategy::Enum strategy, const wchar_t* expected,
                    long bits) {
    const Media_Device device;
    PX_Std_Media_Validator validator(device.get());
    const std::wstring before = chosen(device, datum);
    spoil(device);
    device.cfg->set_validated(false);
    device.validator()->set_media_cfg_changes(0x100);
    (validator.*datum.validate)(strategy);
    EXPECT_EQ(device.changes(), 0x100 | bits);
    EXPECT_EQ(chosen(device, datum), expected ? expected : before);
    const bool to_default =
        bits && (strategy == Strategy::Use_Default || &datum == &method || bits & 0x40000);
    for (int flag = 0; flag < 17; ++flag) {
        EXPECT_EQ(device.cfg->get_one_validated(Number{flag}), is_flag_of(datum, flag)) << flag;
        EXPECT_EQ(device.cfg->get_one_default(Number{flag}), to_default && is_flag_of(datum, flag)) << flag;
    }
}

struct Row {
    const char* name;
    const Datum& datum;
    Spoil spoil;
    // Where a repair's are not the datum's usual ones.
    const wchar_t* by_nearest = nullptr;
    const wchar_t* by_default = nullptr;
    long more_bits = 0;
};
// clang-format off
const Row passing[] = {
    {"entry of a withdrawn source", entry, [](auto& d) { withdraw(d.tray()); }},
    {"entry without a source", entry, [](auto& d) { EXPECT_THROW(d.cfg->set_media_source(nullptr), MVNK_Error); d.caps->set_media_source_list(nullptr); }},
    {"size without sources, by any method but 1", size, [](auto& d) { d.cfg->set_media_selection_method(Number{3}); d.caps->set_media_source_list(nullptr); }},
    {"size of the user's, under another form name", size, [](auto& d) { d.a4()->set_caps_type(Number{2}); d.a4()->set_form_name(L"x"); }},
    {"collating not looked at", output, [](auto& d) { d.set_ability(Number{19}, 0), d.bin()->set_collating_list(nullptr); }},
    {"stapling not looked at", output, [](auto& d) { d.set_ability(Number{18}, 0), d.bin()->set_stapling_list(nullptr); }},
    {"cutting not looked at", output, [](auto& d) { d.set_ability(Number{21}, 0), d.bin()->set_cutting_list(nullptr); }},
    {"folding not looked at", output, [](auto& d) { d.set_ability(Number{20}, 0), d.bin()->set_folding_list(nullptr); }},
};
const Row failing[] = {
    {"method not offered", method, [](auto& d) { d.caps->set_media_selection_methods(6); }},
    {"type gone", type, [](auto& d) { drop(d.types(), L"plain"); }},
    {"type, drying time", type, [](auto& d) { d.plain()->set_drying_time(20); }},
    {"type, resolution", type, [](auto& d) { d.plain()->get_max_resolution()->y += 1; }},
    {"source gone", source, [](auto& d) { drop(d.sources(), L"tray"); }},
    {"source, feed", source, [](auto& d) { d.tray()->set_media_feed(Number{4}); }},
    {"source without a feed, as before", source, [](auto& d) { d.tray()->set_media_feed(Number{-1}); d.cfg->set_media_source(d.tray().get()); }, L"tray"},
    {"entry withdrawn", entry, [](auto& d) { withdraw(d.upper()); }},
    {"entry, width", entry, [](auto& d) { d.upper()->set_source_width(212); }},
    {"entry, frame height", entry, [](auto& d) { d.upper()->set_source_frame_height(299); }},
    {"entry of the source before", entry, [](auto& d) { d.cfg->set_media_source(d.sources()->find(L"drawer").get()); }, L"only", L"only"},
    {"size's name withdrawn", size, [](auto& d) { withdraw(d.names()->find(L"A4")); }},
    {"size withdrawn", size, [](auto& d) { withdraw(d.a4()); }},
    {"sheet withdrawn", size, [](auto& d) { withdraw(d.a4_sheet()); }},
    {"size gone, direct", size, [](auto& d) { d.choose_directly(), drop(d.sizes(), L"A4"); }, nullptr, L"A3"},
    {"size, group", size, [](auto& d) { d.a4()->set_media_group(Number{5}); }},
    {"size, landscape", size, [](auto& d) { d.a4()->set_landscape_mode_flag(true); }},
    {"sheet's bounds", size, [](auto& d) { d.a4_sheet()->get_media_bounds()->y += 1; }, L"A4"},
    {"printable bounds", size, [](auto& d) { d.a4_sheet()->get_printable_bounds()->y_min += 1; }, L"A4"},
    {"printable area", size, [](auto& d) { d.a4_sheet()->set_printable_area(1); }, L"A4"},
    {"dimensional", size, [](auto& d) { d.a4_sheet()->set_dimensional(false); }},
    {"no size near", size, [](auto& d) { d.snapshot()->get_media_bounds()->x = 1000; }, L"A5", nullptr, 0x40000},
    {"destination gone", output, [](auto& d) { drop(d.destinations(), L"bin"); }},
    {"collating type", output, [](auto& d) { d.bin()->get_collating(L"full")->set_collating_type(Number{2}); }},
    {"cutting withdrawn", output, [](auto& d) { withdraw(d.bin()->get_cutting(L"full")); }},
    {"cutting when", output, [](auto& d) { d.bin()->get_cutting(L"full")->set_cutting_when(Number{2}); }},
    {"stapling location", output, [](auto& d) { d.bin()->get_stapling(L"full")->set_stapling_location(Number{2}); }},
    {"stapling when", output, [](auto& d) { d.bin()->get_stapling(L"full")->set_stapling_when(Number{2}); }},
    {"stapling orientation", output, [](auto& d) { d.bin()->get_stapling(L"full")->set_stapling_orientation(2); }},
    {"folding type", output, [](auto& d) { d.bin()->get_folding(L"full")->set_folding_type(Number{2}); }},
    {"folding when", output, [](auto& d) { d.bin()->get_folding(L"full")->set_folding_when(Number{2}); }},
    // Below 4 a finishing is compared, and has no default and no part in the search.
    {"collating of ability 1, stapling of 3", output,
     [](auto& d) { d.set_ability(Number{19}, 1), d.set_ability(Number{18}, 3), d.bin()->set_stapling_list(nullptr); },
     L"bin full full full full", L"rack full full none none"},
    {"collating of ability 3, cutting of -1", output,
     [](auto& d) { d.set_ability(Number{19}, 3), d.set_ability(Number{21}, -1), d.bin()->set_cutting_list(nullptr); },
     L"bin full full full full", L"rack full none full none"},
};
// clang-format on

TEST(Media_Validator, WhatPassesIsLeftAndWhatFailsIsRepaired) {
    for (const Datum& datum : chain)
        expect_settled(
            datum, [](const Media_Device&) {}, Strategy::Use_Default, nullptr, 0);
    for (const Row& row : passing) {
        SCOPED_TRACE(row.name);
        expect_settled(row.datum, row.spoil, Strategy::Use_Default, nullptr, 0);
        expect_settled(row.datum, row.spoil, Strategy::Use_Nearest, nullptr, 0);
    }
    for (const Row& row : failing) {
        SCOPED_TRACE(row.name);
        expect_settled(row.datum, row.spoil, Strategy::Use_Default,
                       row.by_default ? row.by_default : row.datum.by_default, row.datum.bits);
        expect_settled(row.datum, row.spoil, Strategy::Use_Nearest,
                       row.by_nearest ? row.by_nearest : row.datum.by_nearest,
                       row.datum.bits | row.more_bits);
    }
}

TEST(Media_Validator, SizesAreLimitedInTwoWays) {
    // A4 is 210 by 297.
    const struct {
        const char* name;
        int method, limit, roll_limit, feed;  // method 1 is by source, 2 is direct
        PX_Float_XY max;
        float roll_height;
        bool passes;
    } rows[] = {
        {"undefined limit", 1, -1, 5, 3, {0, 0}, 0, true},
        {"the largest", 1, 1, 0, 1, {210, 297}, 0, true},
        {"too wide, though on a roll", 1, 1, 1, 3, {209.5F, 297}, 1000, false},
        {"too high, without the roll's ability", 1, 1, 0, 3, {210, 296.5F}, 1000, false},
        {"too high, without a roll", 1, 1, 1, 1, {210, 296.5F}, 1000, false},
        {"as high as the roll", 1, 1, 1, 3, {210, 0}, 297, true},
        {"too high for the roll", 1, 1, 1, 3, {210, 1000}, 296.5F, false},
        {"direct: the largest", 2, 1, 0, 1, {210, 297}, 0, true},
        {"direct: too wide", 2, 1, 0, 1, {209.5F, 297}, 1000, false},
        {"direct: as high as the roll, which needs nothing", 2, 1, 0, 1, {210, 0}, 297, true},
        {"direct: too high for both", 2, 1, 1, 3, {210, 296.5F}, 296.5F, false},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const Media_Device device;
        device.cfg->set_media_selection_method(Number{row.method});
        device.set_ability(Ability::Ability_Media_Size_Limit, row.limit);
        device.set_ability(Ability::Ability_Roll_Limit, row.roll_limit);
        device.tray()->set_media_feed(Number{row.feed});
        device.caps->set_media_size_max(&row.max);
        device.caps->set_media_roll_max_height(row.roll_height);
        PX_Std_Media_Validator validator(device.get());
        validator.validate_size(Strategy::Use_Default);
        EXPECT_EQ(device.changes(), row.passes ? 0 : 0x2);
        device.caps->set_media_source_list(nullptr);
        device.caps->set_media_size_list(nullptr);
        EXPECT_NO_THROW(validator.validate_size(Strategy::Use_Default)) << "validated, not looked at again";
    }
}

TEST(Media_Validator, DefaultsAreWrittenByTheirAbilities) {
    for (const Datum& datum : chain) {
        for (const int ability : {-1, 0, 1, 3, 4, 5}) {
            SCOPED_TRACE(testing::PrintToString(datum.name) + std::to_string(ability));
            const Media_Device device;
            PX_Std_Media_Validator validator(device.get());
            device.set_ability(datum.default_test, ability);
            const bool written = ability >= (&datum == &method ? 1 : 4);
            const std::wstring expected = written ? datum.by_default : chosen(device, datum);
            (validator.*datum.set_to_default)();
            EXPECT_EQ(chosen(device, datum), expected);
            for (int flag = 0; flag < 17; ++flag)
                EXPECT_TRUE(!is_flag_of(datum, flag) || (device.cfg->get_one_default(Number{flag}) &&
                                                         device.cfg->get_one_validated(Number{flag})));
            EXPECT_EQ(device.changes(), 0);
        }
    }
}

TEST(Media_Validator, NeedsTheSnapshotOnlyForANameThatIsThere) {
    const Media_Device device;
    PX_Std_Media_Validator validator(device.get());
    device.forget();
    for (const Datum& datum : {type, source, entry, size, output}) {
        expect_thrown<MVNK_Error>([&] { (validator.*datum.validate)(Strategy::Use_Default); }, 319,
                                  std::wstring(L"PX_Std_Media_Validator::validate_") + datum.name, L"");
        EXPECT_FALSE(device.cfg->get_one_validated(datum.flag));
    }
    drop(device.entries(), L"upper");
    device.choose_directly();
    withdraw(device.plain());
    withdraw(device.bin());
    withdraw(device.a4());
    withdraw(device.tray());
    for (const Datum& datum : {entry, type, output, size, source})
        (validator.*datum.validate)(Strategy::Use_Default);
    EXPECT_EQ(device.changes(), 0x3E087);

    // Neither what is chosen nor the default can be used: nothing is raised or marked.
    for (const auto& each : *device.types())
        withdraw(each);
    device.validator()->set_media_cfg_changes(0);
    device.cfg->set_validated(false);
    const auto thrown = support::thrown_by([&] { validator.validate_type(Strategy::Use_Default); });
    ASSERT_TRUE(thrown && thrown->frames.size() == 1);
    EXPECT_EQ(thrown->frames[0], L"PX_Std_Media_Validator::validate_type");
    EXPECT_FALSE(device.changes() || device.cfg->get_one_validated(type.flag));
}

struct Failure {
    const char* name;
    const Datum& datum;
    bool by_default;  // the operation: to the default, or the test
    Spoil spoil;
    unsigned int code;
    const wchar_t* detail = L"";
};
// clang-format off
const Failure failures[] = {
    {"default method", method, true, [](auto& d) { d.caps->set_media_selection_methods(4); }, 321},
    {"no types", type, false, [](auto& d) { d.caps->set_media_type_list(nullptr); }, 318},
    {"default type withdrawn", type, true, [](auto& d) { withdraw(d.types()->find(L"film")); }, 303},
    {"no sources", source, false, [](auto& d) { d.caps->set_media_source_list(nullptr); }, 305},
    {"default source withdrawn", source, true, [](auto& d) { withdraw(d.sources()->find(L"roll")); }, 304},
    {"no entries", entry, false, [](auto& d) { d.tray()->set_source_entry_list(nullptr); }, 322},
    {"default entry withdrawn", entry, true, [](auto& d) { withdraw(d.entries()->find(L"manual")); }, 324},
    {"default entry of no source", entry, true, [](auto& d) { drop(d.sources(), L"tray"); }, 1103, L"newentry"},
    {"source of the size withdrawn", size, false, [](auto& d) { withdraw(d.tray()); }, 308},
    {"entry of the size withdrawn", size, false, [](auto& d) { withdraw(d.upper()); }, 323},
    {"no sizes, direct", size, false, [](auto& d) { d.choose_directly(), d.caps->set_media_size_list(nullptr); }, 320},
    {"no sizes, by source", size, false, [](auto& d) { d.caps->set_media_size_list(nullptr); }, 1103, L"size_list"},
    {"sheet gone, with a limit", size, false, [](auto& d) { d.set_ability(Ability::Ability_Media_Size_Limit, 1); drop(d.descriptions(), L"a4"); }, 1101, L"work_descr"},
    {"no names for the default", size, true, [](auto& d) { d.upper()->set_media_size_name_list(nullptr); }, 309},
    {"default's entry withdrawn", size, true, [](auto& d) { withdraw(d.upper()); }, 309},
    {"default size's name withdrawn", size, true, [](auto& d) { withdraw(d.names()->find(L"A5")); }, 309},
    {"default size withdrawn", size, true, [](auto& d) { withdraw(d.sizes()->find(L"A5")); }, 309},
    {"default size withdrawn, direct", size, true, [](auto& d) { d.choose_directly(), withdraw(d.sizes()->find(L"A3")); }, 310},
    {"default sheet withdrawn", size, true, [](auto& d) { withdraw(d.descriptions()->find(L"a5")); }, 1103, L"newsize"},
    {"no destinations", output, false, [](auto& d) { d.caps->set_media_destination_list(nullptr); }, 312},
    {"default folding withdrawn", output, true, [](auto& d) { withdraw(d.rack()->get_folding(L"none")); }, 311},
};
// clang-format on
TEST(Media_Validator, ReportsWhatCannotBeUsed) {
    for (const Failure& row : failures) {
        SCOPED_TRACE(row.name);
        const Media_Device device;
        PX_Std_Media_Validator validator(device.get());
        row.spoil(device);
        device.cfg->set_validated(false);
        const auto thrown = support::thrown_by([&] {
            row.by_default ? (validator.*row.datum.set_to_default)()
                           : (validator.*row.datum.validate)(Strategy::Use_Default);
        });
        ASSERT_TRUE(thrown);
        const std::wstring name = row.datum.name;
        // A default that is not there fails in the setter.
        EXPECT_EQ(thrown->function, !row.by_default ? L"PX_Std_Media_Validator::validate_" + name
                                    : row.code == 1103
                                        ? L"PX_Std_Media_Configuration::set_media_" + name
                                        : L"PX_Std_Media_Validator::set_" + name + L"_to_default");
        EXPECT_EQ(thrown->code, row.code);
        EXPECT_EQ(thrown->detail, row.detail);
        EXPECT_EQ(thrown->file, L"$Workfile: std_media_cfg $ $Revision: #1 $");
        EXPECT_EQ(thrown->is<MVNK_Memory_Exception>(), row.code == 1101);
        if (row.code == 321 || row.code == 303 || row.code == 304 || row.code == 324) {
            EXPECT_EQ(chosen(device, row.datum), row.datum.by_default) << "it stays written";
        }
        EXPECT_EQ(device.changes(), 0);
        EXPECT_FALSE(device.cfg->get_one_validated(row.datum.flag) ||
                     device.cfg->get_one_default(row.datum.flag));
    }
}

TEST(Media_Validator_In_A_Run, LaterDataSeeWhatEarlierRepairsWrote) {
    const Media_Device device;
    drop(device.sources(), L"tray");
    device.validator()->validate_all(Strategy::Use_Default, PX_Validation_Policy::Validate_Conditional, true);
    EXPECT_EQ(chosen(device, source) + L" " + chosen(device, entry) + L" " + chosen(device, size),
              L"roll wide A3");
    EXPECT_EQ(device.changes(), 0x20003);
    EXPECT_TRUE(device.cfg->get_validated());
}

// A driver's validator that only tells what is called.
class Recorder : public PX_Std_Media_Validator {
    static void tell(const char* what, int datum) { calls += what + std::to_string(datum) + " "; }

public:
    using PX_Std_Media_Validator::PX_Std_Media_Validator;
    static inline std::string calls;
// clang-format off
#define RECORD(number, name)                                                               \
    void validate_##name(Strategy::Enum s) override { tell(s ? "n" : "v", number); }       \
    void set_##name##_to_default() override { tell("d", number); }
    RECORD(0, selection_method) RECORD(1, type) RECORD(2, source) RECORD(3, source_entry) RECORD(4, size)
    RECORD(5, destination) RECORD(6, number_of_copies) RECORD(7, duplexing) RECORD(8, margins)
    RECORD(9, longplot_reduction) RECORD(10, dm_scale) RECORD(11, dm_orientation)
    RECORD(12, actual_printable_bounds)
// clang-format on
#undef RECORD
};

TEST(Media_Validator_In_A_Run, GroupsHaveTheirOrders) {
    const Media_Device device;
    Recorder validator(device.get());
    Recorder::calls.clear();
    validator.validate_all_media(Strategy::Use_Nearest);
    EXPECT_EQ(Recorder::calls, "n0 n1 n2 n3 n4 n5 n6 n7 n8 n9 n10 n11 n12 ");
    Recorder::calls.clear();
    validator.set_all_media_to_defaults();
    EXPECT_EQ(Recorder::calls, "d0 d1 d2 d3 d4 d5 d6 d7 d9 d10 d11 d8 d12 ");
}

}  // namespace
