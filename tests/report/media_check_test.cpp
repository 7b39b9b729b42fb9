#include <cmath>
#include <limits>

#include "tests/report/devices.h"
#include "tests/report/findings.h"

namespace {

using namespace support;
using Change = PX_Media_Change;
using M = Checked_Media;

constexpr long all_of_destination = 0x1E004;
constexpr const wchar_t* names_of_entry =
    L"media_caps.get()->get_media_source (media_config.get()->get_media_source()).get()-> "
    L"get_source_entry (media_config.get()->get_media_source_entry()).get()-> get_media_size_name_list()";

constexpr float nan = std::numeric_limits<float>::quiet_NaN();

// Choices that the device does not have as they are.
void stale_type(M& m) {
    m.cfg->set_media_type(PX_Smart_Pointer(media_type(L"stale", 1, {1, 1})).get());
}
void stale_source(M& m) {
    m.cfg->set_media_source(PX_Smart_Pointer(source(L"stale", 9, {})).get());
}
void stale_entry(M& m) {
    m.cfg->set_media_source_entry(PX_Smart_Pointer(source_entry(L"stale", 1, 1, {})).get());
}
void stale_size(M& m) {
    const PX_Smart_Pointer sheet(description(L"far", {9000, 9}, {1, 8000, 1, 8}));
    m.cfg->set_media_size(PX_Smart_Pointer(media_size(L"stale", L"far")).get(), sheet.get());
}
void stale_destination(M& m) {
    m.cfg->set_media_destination(PX_Smart_Pointer(destination(L"stale", {})).get());
}
void withdraw_all(const auto& list) {
    for (const auto& entry : *list)
        withdraw(entry);
}

TEST(MediaCheck, TypesSourcesAndEntries) {
    const float none[] = {nan, nan};
    const PX_Float_XY no_number(none[0], none[1]);
    const Faulty<M> rows[] = {
        {"ability", [](M& m) { m.set_ability(Ability::Ability_Media_Type, -1); },
         throws(L"ability of the type", Fault::Ability_Undefined, 1001)},
        {"method",
         [](M& m) {
             m.caps->set_default_media_selection_method(Number{8});
             m.cfg->set_media_selection_method(Number{8});
         },
         throws(L"default selection method", Fault::Default_Not_Offered, 321)},
        {"no list of types", [](M& m) { m.caps->set_media_type_list(nullptr); },
         throws(L"types", Fault::List_Missing, 318), How::Use_Default, 2},
        {"no type", [](M& m) { withdraw_all(m.types()); },
         throws(L"types", Fault::Nothing_To_Take, 1103, L"newtype"), How::Use_Nearest, 2},
        {"type of no number",
         [&](M& m) {
             m.plain()->set_max_resolution(&no_number);
             m.cfg->set_media_type(m.plain().get());
         },
         throws(L"type 'plain'", Fault::No_Measure, 1103, L"newtype"), How::Use_Nearest},
        {"drying times beyond all others",
         [](M& m) {
             for (const auto& type : *m.types())
                 type->set_drying_time(2147483647);
             m.cfg->set_media_type(PX_Smart_Pointer(media_type(L"stale", 0, {0, 0})).get());
         },
         throws(L"types", Fault::Nothing_To_Take, 1103, L"newtype"), How::Use_Nearest},
        {"endless type",
         [](M& m) {
             const PX_Float_XY endless(600, std::numeric_limits<float>::infinity());
             m.plain()->set_max_resolution(&endless);
         },
         passed_over(L"type 'plain'", Fault::No_Measure)},
        {"default type of no number",
         [&](M& m) {
             m.types()->find(L"film")->set_max_resolution(&no_number);
             stale_type(m);
         },
         repeats(L"type 'film'", Fault::No_Measure, Change::Type), How::Use_Default, 2},
        {"default entry of no number",
         [](M& m) {
             m.entries()->find(L"manual")->set_source_width(nan);
             stale_entry(m);
         },
         repeats(L"source 'tray', entry 'manual'", Fault::No_Measure, Change::Source_Entry), How::Use_Default,
         2},
        {"endless entry", [](M& m) { m.upper()->set_source_width(std::numeric_limits<float>::infinity()); },
         passed_over(L"source 'tray', entry 'upper'", Fault::No_Measure)},
        {"source of a withdrawn name",
         [](M& m) {
             withdraw(m.tray());
             m.sources()->append(source(L"tray", 5, {source_entry(L"in", 1, 1, {L"A4"})}));
             m.cfg->set_media_source(PX_Smart_Pointer(source(L"stale", 5, {})).get());
         },
         throws(L"source 'tray', place 4", Fault::Equal_Names, 308), How::Use_Nearest},
        {"source of a withdrawn name, chosen directly",
         [](M& m) {
             withdraw(m.sources()->find(L"drawer"));
             m.sources()->append(source(L"drawer", 5, {source_entry(L"in", 1, 1, {L"A4"})}));
             m.sources()->find(L"drawer")->set_media_feed(Number{5});
             m.choose_directly();
             m.cfg->set_media_source(PX_Smart_Pointer(source(L"stale", 5, {})).get());
         },
         repeats(L"source 'drawer', place 4", Fault::Equal_Names, Change::Source), How::Use_Nearest, 2},
        {"source of a withdrawn name that has no list",
         [](M& m) {
             withdraw(m.sources()->find(L"drawer"));
             m.sources()->append(source(L"drawer", 5, {source_entry(L"in", 1, 1, {L"A4"})}));
             m.sources()->find(L"drawer")->set_source_entry_list(nullptr);
             m.cfg->set_media_source(PX_Smart_Pointer(source(L"stale", 5, {})).get());
         },
         throws(L"source 'drawer', entries", Fault::List_Missing, 322), How::Use_Nearest, 2},
        {"entry of a withdrawn name",
         [](M& m) {
             withdraw(m.entries()->find(L"lower"));
             m.entries()->append(source_entry(L"lower", 500, 600, {L"A4"}));
             m.cfg->set_media_source_entry(PX_Smart_Pointer(source_entry(L"stale", 500, 600, {})).get());
         },
         throws(L"source 'tray', entry 'lower', place 4", Fault::Equal_Names, 323), How::Use_Nearest, 2},
        {"source without a name before the default of a size",
         [](M& m) {
             m.sources()->append(source(L"", 1, {source_entry(L"in", 210, 297, {L"A4"})}));
             m.set_ability(Ability::Ability_Media_Size, 1);
             m.cfg->set_media_source(m.sources()->find(L"").get());
             stale_entry(m);
         },
         throws(L"source ''", Fault::Name_Empty, 309)},
        {"three sources of a name",
         [](M& m) {
             m.sources()->append(source(L"tray", 1, {source_entry(L"in", 1, 1, {L"A4"})}));
             m.sources()->append(source(L"tray", 1, {source_entry(L"in", 1, 1, {L"A4"})}));
         },
         passed_over(L"source 'tray', place 5", Fault::Equal_Names), How::None, 2},
        {"name of two lines",
         [](M& m) {
             m.caps->set_default_media_source(L"a\nb");
             stale_source(m);
         },
         throws(L"default source 'a b'", Fault::Names_Nothing, 1103, L"newsource")},
        {"equal names",
         [](M& m) {
             m.types()->append(media_type(L"film", 1, {1, 1}));
         },
         passed_over(L"type 'film', place 4", Fault::Equal_Names)},
        {"equal names, the first withdrawn",
         [](M& m) {
             withdraw(m.types()->find(L"fine"));
             m.types()->append(media_type(L"fine", 11, {600, 600}));
             m.cfg->set_media_type(PX_Smart_Pointer(media_type(L"stale", 11, {600, 600})).get());
         },
         repeats(L"type 'fine', place 4", Fault::Equal_Names, Change::Type), How::Use_Nearest},
        {"default type",
         [](M& m) {
             m.caps->set_default_media_type(L"x");
             stale_type(m);
         },
         throws(L"default type 'x'", Fault::Names_Nothing, 1103, L"newtype")},
        {"withdrawn default type",
         [](M& m) {
             withdraw(m.types()->find(L"film"));
             stale_type(m);
         },
         throws(L"default type 'film'", Fault::Names_Withdrawn, 303)},
        {"default type not written",
         [](M& m) {
             m.set_ability(Ability::Ability_Media_Type_Default, 3);
             stale_type(m);
         },
         repeats(L"type", Fault::Default_Not_Written, Change::Type)},

        {"no list of sources", [](M& m) { m.caps->set_media_source_list(nullptr); },
         throws(L"sources", Fault::List_Missing, 305), How::Use_Default, 2},
        {"no source", [](M& m) { withdraw_all(m.sources()); },
         throws(L"sources", Fault::Nothing_To_Take, 1103, L"newsource"), How::Use_Nearest, 2},
        {"feed",
         [](M& m) {
             m.tray()->set_media_feed(Number{-1});
             m.cfg->set_media_source(m.tray().get());
         },
         repeats(L"source 'tray'", Fault::Feed_Unset, Change::Source), How::Use_Nearest},
        {"source without a name",
         [](M& m) {
             m.sources()->append(source(L"", 1, {source_entry(L"in", 210, 297, {L"A4"})}));
             m.cfg->set_media_source(m.sources()->find(L"").get());
             stale_entry(m);
         },
         throws(L"source ''", Fault::Name_Empty, 323)},
        {"default source",
         [](M& m) {
             m.caps->set_default_media_source(L"x");
             stale_source(m);
         },
         throws(L"default source 'x'", Fault::Names_Nothing, 1103, L"newsource")},
        {"withdrawn default source",
         [](M& m) {
             withdraw(m.sources()->find(L"roll"));
             stale_source(m);
         },
         throws(L"default source 'roll'", Fault::Names_Withdrawn, 304)},
        {"default source not written",
         [](M& m) {
             m.set_ability(Ability::Ability_Media_Source_Default, 3);
             m.set_ability(Ability::Ability_Media_Source_Entry, 0);
             m.set_ability(Ability::Ability_Media_Source_Entry_Default, 0);
             m.set_ability(Ability::Ability_Media_Size, 0);
             m.set_ability(Ability::Ability_Media_Size_Default, 0);
             m.set_ability(Ability::Ability_Actual_Printable_Bounds, 0);
             stale_source(m);
         },
         repeats(L"source", Fault::Default_Not_Written, Change::Source)},
        {"entry relies on the source",
         [](M& m) {
             m.set_ability(Ability::Ability_Media_Source_Default, 3);
             stale_source(m);
         },
         throws(L"source entry", Fault::Not_Ensured, 1103, L"newentry"), How::Use_Default, 3},
        {"size relies on the source",
         [](M& m) {
             m.set_ability(Ability::Ability_Media_Source_Default, 3);
             m.cfg->set_media_source(PX_Smart_Pointer(source(L"", 9, {})).get());
         },
         throws(L"size by source", Fault::Not_Ensured, 308), How::Use_Default, 3},

        {"no list of entries", [](M& m) { m.tray()->set_source_entry_list(nullptr); },
         throws(L"source 'tray', entries", Fault::List_Missing, 322), How::Use_Default, 2},
        {"no entry", [](M& m) { withdraw_all(m.entries()); },
         throws(L"source 'tray', entries", Fault::Nothing_To_Take, 1103, L"newentry"), How::Use_Nearest, 2},
        {"entry of no number",
         [](M& m) {
             m.upper()->set_source_width(nan);
             m.cfg->set_media_source_entry(m.upper().get());
         },
         throws(L"source 'tray', entry 'upper'", Fault::No_Measure, 1103, L"newentry"), How::Use_Nearest},
        {"default entry",
         [](M& m) {
             m.tray()->set_default_source_entry(L"x");
             stale_entry(m);
         },
         throws(L"source 'tray', default entry 'x'", Fault::Names_Nothing, 1103, L"newentry")},
        {"withdrawn default entry",
         [](M& m) {
             withdraw(m.entries()->find(L"manual"));
             stale_entry(m);
         },
         throws(L"source 'tray', default entry 'manual'", Fault::Names_Withdrawn, 324)},
        {"default entry not written",
         [](M& m) {
             m.set_ability(Ability::Ability_Media_Source_Entry_Default, 3);
             m.choose_directly();
             stale_entry(m);
         },
         repeats(L"source entry", Fault::Default_Not_Written, Change::Source_Entry), How::Use_Default, 2},
        {"size relies on the entry",
         [](M& m) {
             m.set_ability(Ability::Ability_Media_Source_Entry_Default, 3);
             stale_entry(m);
         },
         throws(L"size by source", Fault::Not_Ensured, 323), How::Use_Default, 2},
        {"default size relies on the entry",
         [](M& m) {
             m.set_ability(Ability::Ability_Media_Source_Entry_Default, 3);
             m.caps->set_default_media_selection_method(Number{1});
             stale_entry(m);
         },
         throws(L"default size by source", Fault::Not_Ensured, 309), How::Reset, 3},
    };
    expect_found<M>(rows, PX_Domain_Mask::Media, [](const M& m) -> const Device& { return m; });
}

TEST(MediaCheck, Sizes) {
    const Faulty<M> rows[] = {
        {"no list",
         [](M& m) {
             m.caps->set_media_selection_methods(2);
             m.caps->set_media_size_list(nullptr);
             m.choose_directly();
         },
         throws(L"sizes", Fault::List_Missing, 320), How::Use_Default, 2},
        {"no names in an entry", [](M& m) { m.upper()->set_media_size_name_list(nullptr); },
         throws(L"source 'tray', entry 'upper', sizes", Fault::List_Missing, 1101, names_of_entry),
         How::Use_Nearest, 2},
        {"name of nothing",
         [](M& m) {
             m.names()->append(named<PX_Std_Caps_Name_List_Object>(L"B5"));
             m.cfg->set_media_size(PX_Smart_Pointer(media_size(L"B5", L"b5")).get(), m.a4_sheet().get());
         },
         throws(L"source 'tray', entry 'upper', size 'B5'", Fault::Names_Nothing, 1103, L"size_list")},
        {"name of nothing, unseen",
         [](M& m) {
             m.set_ability(Ability::Ability_Media_Size, 1);
             m.names()->append(named<PX_Std_Caps_Name_List_Object>(L"B5"));
         },
         passed_over(L"source 'tray', entry 'upper', size 'B5'", Fault::Names_Nothing)},
        {"no description",
         [](M& m) {
             m.cfg->set_media_size(m.sizes()->find(L"A4plus").get(), m.a4_sheet().get());
             drop(m.descriptions(), L"a4plus");
         },
         throws(L"size 'A4plus', description 'a4plus'", Fault::Names_Nothing, 1101, L"work_descr")},
        {"withdrawn description", [](M& m) { withdraw(m.descriptions()->find(L"a4plus")); },
         passed_over(L"size 'A4plus', description 'a4plus'", Fault::Names_Withdrawn)},
        {"bounds without an inside",
         [](M& m) {
             const PX_Float_Rectangle line(5, 5, 5, 100);
             m.a4_sheet()->set_printable_bounds(&line);
             m.cfg->set_media_size(m.a4().get(), m.a4_sheet().get());
         },
         repeats(L"size 'A4', description 'a4'", Fault::Bounds_Empty,
                 Change::Margins | Change::Actual_Printable_Bounds)},
        {"default size of no number",
         [](M& m) {
             const PX_Float_XY sheet(nan, 420);
             m.descriptions()->find(L"a3")->set_media_bounds(&sheet);
             m.choose_directly();
             stale_size(m);
         },
         repeats(L"size 'A3', description 'a3'", Fault::No_Measure, Change::Size)},
        {"endless size",
         [](M& m) {
             const PX_Float_XY sheet(211, std::numeric_limits<float>::infinity());
             m.descriptions()->find(L"a4plus")->set_media_bounds(&sheet);
         },
         passed_over(L"size 'A4plus', description 'a4plus'", Fault::No_Measure)},
        {"beyond the limit",
         [](M& m) {
             m.set_ability(Ability::Ability_Media_Size_Limit, 1);
             const PX_Float_XY largest(210, 420);
             m.caps->set_media_size_max(&largest);
             m.caps->set_media_selection_methods(2);
             m.choose_directly();
             m.cfg->set_media_size(m.sizes()->find(L"A4plus").get(), m.descriptions()->find(L"a4plus").get());
         },
         repeats(L"size 'A4plus'", Fault::Beyond_Limit, Change::Size), How::Use_Nearest, 2},
        {"beyond the limit of a source",
         [](M& m) {
             m.set_ability(Ability::Ability_Media_Size_Limit, 1);
             const PX_Float_XY largest(297, 419);
             m.caps->set_media_size_max(&largest);
             m.caps->set_media_selection_methods(1);
             m.caps->set_default_media_selection_method(Number{1});
             stale_source(m);
             stale_entry(m);
         },
         repeats(L"source 'roll', entry 'wide', size 'A3'", Fault::Beyond_Limit, Change::Size)},
        {"beyond a roll that limits",
         [](M& m) {
             m.limit({297, 420}, 419);
             m.caps->set_media_selection_methods(1);
             m.caps->set_default_media_selection_method(Number{1});
             m.set_ability(Ability::Ability_Roll_Limit, 1);
             stale_source(m);
             stale_entry(m);
         },
         repeats(L"source 'roll', entry 'wide', size 'A3'", Fault::Beyond_Limit, Change::Size)},
        {"size of a withdrawn name",
         [](M& m) {
             withdraw(m.sizes()->find(L"A3"));
             m.sizes()->find(L"A3")->set_media_description(L"none");
             m.add_second_a3();
         },
         throws(L"size 'A3', place 5", Fault::Equal_Names, 1103, L"newsize"), How::Use_Nearest, 2},
        {"size of a name without a description",
         [](M& m) {
             m.sizes()->find(L"A3")->set_media_description(L"none");
             m.add_second_a3();
         },
         throws(L"size 'A3', place 5", Fault::Equal_Names, 1103, L"newsize"), How::Use_Nearest, 3},
        {"description that is withdrawn, of a name that is met again",
         [](M& m) {
             m.descriptions()->append(description(L"gone", {297, 420}, {5, 200, 5, 200}));
             withdraw(m.descriptions()->find(L"gone"));
             m.sizes()->find(L"A4plus")->set_media_description(L"gone");
             m.sizes()->append(media_size(L"A4plus", L"a4plus"));
             m.choose_directly();
             m.cfg->set_media_size(PX_Smart_Pointer(media_size(L"stale", L"a4plus")).get(),
                                   m.descriptions()->find(L"a4plus").get());
         },
         repeats(L"size 'A4plus', place 5", Fault::Equal_Names, Change::Size), How::None, 2},
        {"default of an entry",
         [](M& m) {
             m.upper()->set_default_media_size(L"A3");
             stale_size(m);
         },
         throws(L"source 'tray', entry 'upper', default size 'A3'", Fault::Default_Not_Offered, 309)},
        {"withdrawn default of an entry",
         [](M& m) {
             m.sizes()->append(media_size(L"old", L"a4"));
             withdraw(m.sizes()->find(L"old"));
             m.names()->append(named<PX_Std_Caps_Name_List_Object>(L"old"));
             m.upper()->set_default_media_size(L"old");
             stale_size(m);
         },
         throws(L"source 'tray', entry 'upper', default size 'old'", Fault::Names_Withdrawn, 309)},
        {"default",
         [](M& m) {
             m.caps->set_default_media_size(L"x");
             m.choose_directly();
             stale_size(m);
         },
         throws(L"default size 'x'", Fault::Names_Nothing, 310)},
        {"default without a description",
         [](M& m) {
             m.sizes()->append(media_size(L"B5", L"b5"));
             m.caps->set_default_media_size(L"B5");
             m.choose_directly();
             stale_size(m);
         },
         throws(L"default size 'B5', description 'b5'", Fault::Names_Nothing, 1103, L"newsize"),
         How::Use_Default, 2},
        {"default not written",
         [](M& m) {
             m.set_ability(Ability::Ability_Media_Size_Default, 3);
             stale_size(m);
         },
         throws(L"margins", Fault::Not_Ensured, 1103, L"margins"), How::Use_Default, 2},
        {"default not written over a size that has changed",
         [](M& m) {
             m.set_ability(Ability::Ability_Media_Size_Default, 3);
             m.a4()->set_landscape_mode_flag(true);
         },
         repeats(L"size", Fault::Default_Not_Written, Change::Size), How::Use_Default, 2},
        {"margins rely on the description",
         [](M& m) {
             m.set_ability(Ability::Ability_Media_Size_Default, 3);
             withdraw(m.a4_sheet());
         },
         throws(L"size 'A4', description 'a4'", Fault::Names_Withdrawn, 1103, L"description_list"),
         How::Use_Default, 3},
        {"bounds rely on the size",
         [](M& m) {
             m.set_ability(Ability::Ability_Media_Size, 1);
             m.set_ability(Ability::Ability_Media_Size_Default, 3);
             stale_size(m);
         },
         throws(L"actual printable bounds", Fault::Not_Ensured, 1103, L"newsize")},
    };
    expect_found<M>(rows, PX_Domain_Mask::Media, [](const M& m) -> const Device& { return m; });
}

TEST(MediaCheck, DestinationsAndPlainData) {
    const Faulty<M> rows[] = {
        {"no list of destinations", [](M& m) { m.caps->set_media_destination_list(nullptr); },
         throws(L"destinations", Fault::List_Missing, 312), How::Use_Default, 2},
        {"no destination", [](M& m) { withdraw_all(m.destinations()); },
         throws(L"destinations", Fault::Nothing_To_Take, 1103, L"newdest"), How::Use_Nearest, 2},
        {"default destination",
         [](M& m) {
             m.caps->set_default_media_destination(L"x");
             stale_destination(m);
         },
         throws(L"default destination 'x'", Fault::Names_Nothing, 311)},
        {"default stapling",
         [](M& m) {
             m.rack()->set_default_stapling(L"x");
             stale_destination(m);
         },
         throws(L"destination 'rack', default stapling 'x'", Fault::Names_Nothing, 311)},
        {"default folding withdrawn",
         [](M& m) {
             withdraw(m.rack()->get_folding(L"none"));
             stale_destination(m);
         },
         throws(L"destination 'rack', default folding 'none'", Fault::Names_Withdrawn, 311)},
        {"default destination not written",
         [](M& m) {
             m.set_ability(Ability::Ability_Media_Destination_Default, 3);
             stale_destination(m);
         },
         repeats(L"destination", Fault::Default_Not_Written, all_of_destination)},
        {"default cutting not written",
         [](M& m) {
             m.set_ability(Ability::Ability_Media_Cutting, 1);
             m.cfg->set_media_cutting(PX_Smart_Pointer(named<PX_Std_Media_Cutting>(L"stale")).get());
         },
         repeats(L"cutting", Fault::Default_Not_Written, all_of_destination)},
        {"destination without collating",
         [](M& m) {
             m.bin()->set_collating_list(nullptr);
             for (const Ability::Enum other :
                  {Ability::Ability_Media_Stapling, Ability::Ability_Media_Cutting,
                   Ability::Ability_Media_Folding})
                 m.set_ability(other, 0);
             withdraw(m.rack());
             m.caps->set_default_media_destination(L"shelf");
             m.cfg->set_media_collating(PX_Smart_Pointer(named<PX_Std_Media_Collating>(L"stale")).get());
         },
         repeats(L"destination 'bin', collating", Fault::Nothing_To_Take, all_of_destination),
         How::Use_Nearest},
        {"copies", [](M& m) { m.caps->set_max_number_of_copies(0); },
         repeats(L"greatest number of copies", Fault::Limits_Reversed, Change::Number_Of_Copies)},
        {"duplexing",
         [](M& m) {
             m.caps->set_default_duplexing_mode(Number{8});
             m.cfg->set_duplexing_mode(Number{1});
         },
         throws(L"default duplexing mode", Fault::Default_Not_Offered, 315)},
        {"negative reduction",
         [](M& m) {
             m.caps->set_default_longplot_reduction(-1);
             m.cfg->set_longplot_reduction(0);
         },
         throws(L"default longplot reduction", Fault::Default_Out_Of_Range, 317)},
        {"reduction below 1",
         [](M& m) {
             m.caps->set_default_longplot_reduction(0.5);
             m.cfg->set_longplot_reduction(0);
         },
         repeats(L"default longplot reduction", Fault::Default_Out_Of_Range, Change::Longplot_Reduction)},
        {"scale",
         [](M& m) {
             m.caps->set_default_dm_scale(0);
             m.cfg->set_dm_scale(0);
         },
         throws(L"default scale", Fault::Default_Out_Of_Range, 316)},
    };
    expect_found<M>(rows, PX_Domain_Mask::Media, [](const M& m) -> const Device& { return m; });
}

}  // namespace
