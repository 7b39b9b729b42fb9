#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "examples/drivers/ppd/media.h"
#include "tests/support/described_device.h"

namespace {

using support::option;

PX_Smart_Pointer<PX_Media_Capabilities> media_of(const std::string& lines) {
    return support::described_device(lines)->get_plotter_capabilities()->get_media_capabilities();
}

enum class Kind { Collating, Stapling, Cutting, Folding };

template <class List, class Number>
std::wstring offer(const wchar_t* preferred, const List& list, Number number) {
    std::wstring offered = preferred + std::wstring(L":");
    for (const auto& entry : *list)
        offered += std::wstring(L" ") + entry->get_canonical_name() + L" " +
                   std::to_wstring(int{((*entry).*number)()});
    return offered;
}

// What the device's one destination offers of a kind, in small: the default, and the names with place, type
// or when.
std::wstring offer_of(Kind kind, const std::string& lines) {
    const auto media = media_of(lines);
    const auto bin = media->get_media_destination(media->get_default_media_destination());
    if (!bin)
        return L"";
    switch (kind) {
        case Kind::Collating:
            return offer(bin->get_default_collating(), bin->get_collating_list(),
                         &PX_Media_Collating::get_collating_type);
        case Kind::Stapling:
            return offer(bin->get_default_stapling(), bin->get_stapling_list(),
                         &PX_Media_Stapling::get_stapling_location);
        case Kind::Cutting:
            return offer(bin->get_default_cutting(), bin->get_cutting_list(),
                         &PX_Media_Cutting::get_cutting_when);
        default:
            return offer(bin->get_default_folding(), bin->get_folding_list(),
                         &PX_Media_Folding::get_folding_type);
    }
}

TEST(Ppd_Finishing, KeywordsOfTheMakersBecomeOneListAKind) {
    // clang-format off
    const struct {
        const char* name;
        Kind kind;
        std::string lines;
        const wchar_t* expected;
    } cases[] = {
        {"nothing by its shown text", Kind::Stapling, option("ARStaple", {"Staple0/None", "Staple1/1 Staple"}),
         L"Staple0: Staple0 -1 Staple1 21"},
        {"nothing beside the kind's own word", Kind::Stapling,
         option("Staple", {"StapleNone/Aus", "NoStaple/Non", "Nose/Nose", "2PL/Two"}),
         L"StapleNone: StapleNone -1 NoStaple -1 Nose 22 2PL 5"},
        {"stapleless corners are not stapled ones, and what is unknown is told apart", Kind::Stapling,
         option("StapleLocation", {"None", "UpperLeft", "StaplessUpperLeft", "StaplessUpperRight", "UpperRight", "X", "Y"}),
         L"None: None -1 UpperLeft 1 StaplessUpperLeft 11 StaplessUpperRight 12 UpperRight 2 X 25 Y 26"},
        {"two names of one place", Kind::Stapling, option("StapleLocation", {"UpperLeft/Corner", "TopLeft/Other corner"}),
         L"UpperLeft: UpperLeft 1 TopLeft 21"},
        {"when to staple, beside where", Kind::Stapling,
         option("OCStaple", {"None", "Double"}) + option("StapleWhen", {"EndOfSet"}), L"None: None -1 Double 21"},
        {"punching is no stapling", Kind::Stapling, option("OKStaple", {"PunchL", "None", "OnlyStaple"}),
         L"None: None -1 OnlyStaple 10"},
        {"job storage under the keyword of collating", Kind::Collating,
         option("KCCollate", {"PrnDef", "On", "None", "QuickCopy", "ProofHold"}), L"PrnDef: PrnDef 19 On 1 None 0"},
        {"nothing but job storage", Kind::Collating,
         option("KCCollate", {"PrnDef", "None", "JobStorage"}) + option("KMCollate", {"None", "Perm"}), L""},
        {"two keywords, joined", Kind::Folding,
         option("RIZfold", {"None/Off", "Left"}) + option("RIFoldType", {"Twofold", "None/Off", "Odd"}),
         L"Twofold: Twofold 1 None -1 Odd 22 Left 12"},
        {"two keywords with a name in common", Kind::Folding,
         option("RIFoldType", {"None", "Left"}) + option("RIZfold", {"None", "Left", "Right"}), L"None: None -1 Left 21"},
        {"a booklet is no fold", Kind::Folding, option("Fold", {"OFF/Aus", "ON/Ein"}), L""},
        {"cutting", Kind::Cutting, option("CutMedia", {"False/No cut", "EndOfPage", "EndOfJob", "P", "Q"}),
         L"False: False 0 EndOfPage 1 EndOfJob 3 P 23 Q 24"},
        {"trimming to a size is no cutting", Kind::Cutting, option("RICutSize", {"None", "A4"}), L""},
    };
    // clang-format on
    for (const auto& row : cases)
        EXPECT_EQ(offer_of(row.kind, row.lines), row.expected) << row.name;
}

TEST(Ppd_Sheets, PrintableAreaLiesOnASheetOfFiniteExtent) {
    struct Case {
        const char* name;
        std::string sheet, area;
        PX_Float_Rectangle printable;
    };
    const Case cases[] = {
        {"Within", "500 700", "10 20 480 690", {10, 479, 20, 689}},
        {"Beyond", "500 700", "-1 0 501 705", {0, 499, 0, 699}},
        {"Turned", "568 420", "12 13 408 556", {13, 555, 12, 407}},
        {"BeyondBothWays", "568 420", "12 13 600 600", {12, 567, 13, 419}},
        {"Outside", "500 700", "600 0 800 100", {0, 499, 0, 699}},
        {"NoArea", "500 700", "0 0 inf 700", {0, 499, 0, 699}},
        {"HugeArea", "500 700", "0 0 1e999 700", {0, 499, 0, 699}},
    };
    std::string sizes, sheets, areas;
    const auto add = [&](const std::string& name, const std::string& sheet, const std::string& area) {
        sizes += "*PageSize " + name + ": \"\"\n";
        sheets += "*PaperDimension " + name + ": \"" + sheet + "\"\n";
        areas += "*ImageableArea " + name + ": \"" + area + "\"\n";
    };
    for (const Case& row : cases)
        add(row.name, row.sheet, row.area);
    add("Endless", "500 1e999", "0 0 500 700");
    add("Negative", "-500 700", "0 0 500 700");
    const auto media =
        media_of("*VariablePaperSize: True\n*OpenUI *PageSize: PickOne\n" + sizes + "*CloseUI: *PageSize\n" +
                 sheets + areas +
                 "*ParamCustomPageSize Width: 1 points 100 1e999\n*ParamCustomPageSize Height: 2 points 100 "
                 "900\n*CustomPageSize True: \"pop\"\n");
    ASSERT_EQ(media->get_media_size_list()->size(), 7);
    for (const Case& row : cases) {
        SCOPED_TRACE(row.name);
        const std::wstring name(row.name, row.name + std::string(row.name).size());
        EXPECT_EQ(*media->get_media_description(name.c_str())->get_printable_bounds(), row.printable);
    }
    EXPECT_EQ(*media->get_media_size_max(), PX_Float_XY(568, 700)) << "the user's own sheet is no sheet";
}

TEST(Ppd_Slots, OnlyAWordIsARoll) {
    const std::map<std::string, bool> rolls = {
        {"Roll1", true},  {"PaperRoll", true},   {"LowerROLL", true},
        {"ROLL_2", true}, {"CONTROLLER", false}, {"Scroll", false},
    };
    std::vector<std::string> slots;
    for (const auto& [name, roll] : rolls)
        slots.push_back(name);
    const auto media = media_of(
        "*OpenUI *PageSize: PickOne\n*PageSize X: \"\"\n*CloseUI: *PageSize\n*PaperDimension X: \"9 "
        "9\"\n" +
        option("InputSlot", slots));
    ASSERT_EQ(media->get_media_source_list()->size(), static_cast<long>(rolls.size()));
    for (const auto& [name, roll] : rolls) {
        const auto source = media->get_media_source(std::wstring(name.begin(), name.end()).c_str());
        EXPECT_EQ(source->get_media_feed() == PX_Media_Feed::Media_Feed_Roll, roll) << name;
    }
}

}  // namespace
