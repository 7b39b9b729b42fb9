#include <limits>

#include "tests/report/devices.h"
#include "tests/report/findings.h"

namespace {

using namespace support;
using M = Checked_Media;

TEST(MediaCheck, EqualNames) {
    const auto again = [](const auto& list, const wchar_t* name) {
        list->append(PX_Smart_Pointer(list->find(name)->clone()));
    };
    const Faulty<M> rows[] = {
        {"sources", [&](M& m) { again(m.sources(), L"tray"); },
         passed_over(L"source 'tray', place 4", Fault::Equal_Names)},
        {"entries", [&](M& m) { again(m.entries(), L"upper"); },
         passed_over(L"source 'tray', entry 'upper', place 4", Fault::Equal_Names)},
        {"sizes", [&](M& m) { again(m.sizes(), L"A4"); },
         passed_over(L"size 'A4', place 5", Fault::Equal_Names)},
        {"names of an entry", [&](M& m) { again(m.names(), L"A4"); },
         passed_over(L"source 'tray', entry 'upper', size 'A4', place 4", Fault::Equal_Names)},
        {"descriptions", [&](M& m) { again(m.descriptions(), L"a4"); },
         passed_over(L"description 'a4', place 5", Fault::Equal_Names)},
        {"destinations", [&](M& m) { again(m.destinations(), L"bin"); },
         passed_over(L"destination 'bin', place 4", Fault::Equal_Names)},
        {"finishings", [&](M& m) { again(m.bin()->get_folding_list(), L"full"); },
         passed_over(L"destination 'bin', folding 'full', place 3", Fault::Equal_Names)},
    };
    expect_found<M>(rows, PX_Domain_Mask::Media, [](const M& m) -> const Device& { return m; });
}

TEST(MediaCheck, WhatNoRunReachesIsNoFinding) {
    const float endless = std::numeric_limits<float>::infinity();
    const PX_Float_XY no_end(endless, endless);
    const Sound<M> rows[] = {
        {"nanometres",
         [](M& m) {
             for (const auto& one : *m.descriptions()) {
                 const PX_Float_XY sheet(210e6F, 297e6F);
                 const PX_Float_Rectangle printable(5e6F, 205e6F, 5e6F, 290e6F);
                 one->set_media_bounds(&sheet);
                 one->set_printable_bounds(&printable);
             }
             for (const auto& entry : *m.entries()) {
                 entry->set_source_width(210e6F);
                 entry->set_source_frame_height(297e6F);
             }
             m.cfg->set_media_source_entry(m.upper().get());
             m.cfg->set_media_size(m.a4().get(), m.a4_sheet().get());
             m.cfg->set_margins(m.a4_sheet()->get_printable_bounds().get());
         }},
        {"fixed type without an end",
         [&](M& m) {
             m.set_ability(Ability::Ability_Media_Type, 1);
             m.types()->find(L"film")->set_max_resolution(&no_end);
         }},
        {"default type without an end", [&](M& m) { m.types()->find(L"film")->set_max_resolution(&no_end); }},
        {"size of no source",
         [&](M& m) {
             m.only_by_source();
             m.sizes()->append(media_size(L"Z", L"z"));
             m.descriptions()->append(description(L"z", no_end, {5, 5, 5, 100}));
         }},
        {"a roll height that widens the limit",
         [](M& m) {
             m.limit({297, 419}, 420);
             m.set_ability(Ability::Ability_Roll_Limit, 1);
             m.choose_directly();
         }},
        {"copies that nobody chooses",
         [](M& m) {
             m.set_ability(Ability::Ability_Number_Of_Copies, 1);
             m.caps->set_max_number_of_copies(0);
         }},
    };
    expect_no_findings<M>(rows, [](const M& m) -> const Device& { return m; });

    // By source, the search goes by names.
    M twice;
    twice.only_by_source();
    twice.sizes()->append(media_size(L"Z", L"a4"));
    withdraw(twice.sizes()->find(L"Z"));
    twice.sizes()->append(media_size(L"Z", L"a4"));
    EXPECT_EQ(px_check_device(*twice.get()),
              (Findings{{PX_Domain_Mask::Media, L"size 'Z', place 6", Fault::Equal_Names, Effect::Passed_Over,
                         0, L"", 0}}));
    // Without the ability a choice may come with either method.
    M either;
    either.set_ability(Ability::Ability_Media_Selection_Method, 0);
    either.caps->set_media_selection_methods(1);
    either.caps->set_default_media_size(L"x");
    EXPECT_EQ(px_check_device(*either.get()),
              (Findings{{PX_Domain_Mask::Media, L"default size 'x'", Fault::Names_Nothing, Effect::Throws,
                         310, L"", 0}}));
}

// With either ability every run that looks at the datum writes its default.
TEST(MediaCheck, WhatNobodyCanChooseHasNoFindingBesideItsDefault) {
    for (const int ability : {0, 1}) {
        const Sound<M> rows[] = {
            {"sources",
             [=](M& m) {
                 m.set_ability(Ability::Ability_Media_Source, ability);
                 m.tray()->set_source_entry_list(nullptr);
                 m.sources()->find(L"drawer")->set_default_source_entry(L"x");
                 m.limit({297, 420}, 419);
                 m.sources()->find(L"drawer")->get_source_entry(L"only")->set_default_media_size(L"x");
             }},
            {"entries",
             [=](M& m) {
                 m.set_ability(Ability::Ability_Media_Source_Entry, ability);
                 m.upper()->set_default_media_size(L"x");
             }},
            {"sizes",
             [=](M& m) {
                 for (const Ability::Enum gate :
                      {Ability::Ability_Media_Source, Ability::Ability_Media_Source_Entry,
                       Ability::Ability_Media_Size})
                     m.set_ability(gate, ability);
                 const PX_Float_Rectangle line(5, 5, 5, 100);
                 m.a4_sheet()->set_printable_bounds(&line);
             }},
        };
        expect_no_findings<M>(rows, [](const M& m) -> const Device& { return m; });
    }
}

TEST(MediaCheck, EveryGateIsAsked) {
    const Ability::Enum gates[] = {Ability::Ability_Media_Selection_Method,
                                   Ability::Ability_Media_Type,
                                   Ability::Ability_Media_Source,
                                   Ability::Ability_Media_Source_Entry,
                                   Ability::Ability_Media_Size,
                                   Ability::Ability_Media_Destination,
                                   Ability::Ability_Number_Of_Copies,
                                   Ability::Ability_Duplexing,
                                   Ability::Ability_Longplot_Reduction,
                                   Ability::Ability_Dm_Scale,
                                   Ability::Ability_Dm_Orientation,
                                   Ability::Ability_Actual_Printable_Bounds};
    for (const Ability::Enum gate : gates)
        expect_gate_asked<M>([=](M& m, int ability) { m.set_ability(gate, ability); },
                             [](const M& m) -> const Device& { return m; }, gate);
}

TEST(MediaCheck, ASoundDeviceHasNoFinding) {
    expect_sound(M());
    // Nor has one that lacks all media.
    expect_sound(Device());
}

}  // namespace
