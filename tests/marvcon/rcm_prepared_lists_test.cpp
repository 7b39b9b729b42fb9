#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/rcm.h"

namespace {

using namespace support;
using Resolutions = PX_Sortable_Atomic_Object_List<PX_RCM_ResName>;
using Colors = PX_Sortable_Atomic_Object_List<PX_RCM_PreparedColorCountDepth>;

std::wstring show(const PX_RCM_ResName& record) {
    return record.name.c_str() + std::wstring(L" ") + support::show(record.resolution_x) + L"x" +
           support::show(record.resolution_y);
}
std::wstring show(const PX_RCM_PreparedColorCountDepth& record) {
    return record.canonical_name.c_str() + std::wstring(L"=") + record.localized_name.c_str() + L" " +
           support::show(record.num_colors) + L"@" + support::show(record.color_depth);
}

template <class List>
std::wstring shown(const List& list) {
    std::wstring all;
    const std::unique_ptr<typename List::iterator> each(list.get_iterator());
    while (each->has_next())
        all += (all.empty() ? L"" : L", ") + show(*each->next());
    return all;
}

PX_Resolution* at(const wchar_t* name, float x, float y, int caps_type = 0) {
    auto* const made = resolution(L"same", {9, 9}, {9, 9}, {x, y});
    made->set_localized_name(name);
    made->set_caps_type(Number{caps_type});
    return made;
}

// Modes by canonical and localized name, with `undithered` colours of 256.
PX_ResColorMem* mode(const wchar_t* name, const wchar_t* localized, long undithered,
                     std::initializer_list<PX_Resolution*> resolutions, long colors = 256, long depth = 8) {
    auto* const made = color_mode(name, colors, depth, undithered, 0, resolutions);
    made->set_localized_name(localized);
    return made;
}

class RCM_Prepared_Lists : public testing::Test {
protected:
    RCM_Prepared_Lists() {
        m_caps.set_one_ability(Number{1}, Ability::RCM_Res_Color_Mem_List);
        m_caps.set_one_ability(Number{1}, Ability::RCM_Resolution_List);
    }
    using Ability = PX_ResColorMem_Ability_Flags;
    void add(PX_ResColorMem* mode) { m_caps.get_res_color_mem_list()->append(mode); }
    std::wstring resolutions(bool undithered) { return shown(*m_caps.get_prepared_resolutions(undithered)); }
    std::wstring colors(bool undithered) { return shown(*m_caps.get_prepared_num_colors(undithered)); }

    PX_Std_ResColorMem_Capabilities m_caps;
};

TEST_F(RCM_Prepared_Lists, HoldEachRecordOnceUnderTheFirstName) {
    add(mode(L"1", L"a", 0, {at(L"first", 300, 300), at(L"again", 300, 300), at(L"wide", 600, 300)}));
    add(mode(L"2", L"a", -1, {at(L"gone", 900, 900, 3), at(L"late", 300, 300), at(L"user", 300, 600, 2)}));
    add(mode(L"3", L"b", 0, {}));
    add(mode(L"4", L"a", 0, {}, 256, 7));
    add(mode(L"5", L"a", 0, {}, 255));
    add(mode(L"6", L"", 1, {at(L"fine", 1200, 1200)}));
    add(mode(L"7", nullptr, 2, {}));
    add(mode(L"8", L"gone", 0, {at(L"withdrawn", 99, 99)}));
    withdraw(m_caps.get_res_color_mem(L"8"));
    EXPECT_EQ(resolutions(false), L"wide 600x300, user 300x600, first 300x300");
    EXPECT_EQ(resolutions(true), L"fine 1200x1200");
    EXPECT_EQ(colors(false), L"3=b 256@8, 1=a 256@8, 4=a 256@7, 5=a 255@8");
    EXPECT_EQ(colors(true), L"6= 256@8");
}

TEST_F(RCM_Prepared_Lists, NeedTheirAbilities) {
    add(mode(L"1", L"a", 0, {at(L"r", 1, 1)}));
    struct Case {
        int modes, resolutions;
        const wchar_t *prepared_resolutions, *prepared_colors;
    };
    for (const Case& row : {Case{1, 1, L"r 1x1", L"1=a 256@8"},
                            {1, 0, L"", L"1=a 256@8"},
                            {1, -1, L"", L"1=a 256@8"},
                            {0, 5, L"", L""},
                            {-1, 5, L"", L""}}) {
        m_caps.set_one_ability(Number{row.modes}, Ability::RCM_Res_Color_Mem_List);
        m_caps.set_one_ability(Number{row.resolutions}, Ability::RCM_Resolution_List);
        EXPECT_EQ(resolutions(false), row.prepared_resolutions);
        EXPECT_EQ(colors(false), row.prepared_colors);
    }
}

TEST_F(RCM_Prepared_Lists, AreMadeAnewAndLeaveEarlierResults) {
    add(mode(L"1", L"a", 0, {at(L"r", 1, 1)}));
    const auto old_resolutions = m_caps.get_prepared_resolutions(false);
    const auto old_colors = m_caps.get_prepared_num_colors(false);
    const std::unique_ptr<PX_ResColorMem_Capabilities> clone(m_caps.clone());
    EXPECT_NE(clone->get_prepared_resolutions(false), old_resolutions);
    m_caps.set_res_color_mem_list(nullptr);
    EXPECT_EQ(resolutions(false) + colors(false), L"");
    EXPECT_EQ(shown(*old_resolutions) + shown(*old_colors), L"r 1x11=a 256@8");

    struct Driver : PX_Std_ResColorMem_Capabilities {
        PX_Smart_Pointer<PX_Named_Object_List<PX_ResColorMem>> get_res_color_mem_list() const override {
            return nullptr;
        }
    } driver;
    driver.set_abilities(PX_Ability_Value::Ability_Required);
    EXPECT_EQ(shown(*driver.get_prepared_resolutions(false)) + shown(*driver.get_prepared_num_colors(true)),
              L"");
}

template <class Record>
std::wstring sorted(const std::vector<Record>& records, bool ascending) {
    PX_Sortable_Atomic_Object_List<Record> list;
    for (const Record& record : records)
        list.append(record);
    list.sort(ascending);
    return shown(list);
}

TEST(RCM_Prepared_Orders, GoResolutionsByDensityThenByX) {
    struct Case {
        std::vector<PX_RCM_ResName> records;
        const wchar_t *descending, *ascending;
    };
    // In single precision the areas of the last two are equal: 4097 squared would be one more.
    for (const Case& row : {
             Case{{}, L"", L""},
             {{{300, 300, L"a"}, {600, 150, L"b"}, {600, 600, L"c"}},
              L"c 600x600, b 600x150, a 300x300",
              L"a 300x300, b 600x150, c 600x600"},
             {{{2, 1, L"a"}, {2, 1, L"b"}, {1, 2, L"c"}, {2, 1, L"d"}},
              L"a 2x1, b 2x1, d 2x1, c 1x2",
              L"c 1x2, a 2x1, b 2x1, d 2x1"},
             {{{4097, 4097, L"a"}, {8192, 2049, L"b"}},
              L"b 8192x2049, a 4097x4097",
              L"a 4097x4097, b 8192x2049"},
         }) {
        EXPECT_EQ(sorted(row.records, false), row.descending);
        EXPECT_EQ(sorted(row.records, true), row.ascending);
    }
}

// What does not compare moves on, and what is equal comes out reversed.
TEST(RCM_Prepared_Orders, GoColorsWhereBothNumbersAgree) {
    struct Case {
        std::vector<PX_RCM_PreparedColorCountDepth> records;
        const wchar_t *descending, *ascending;
    };
    for (const Case& row : {
             Case{{{L"a", L"", 256, 8}, {L"b", L"", 16, 24}}, L"a= 256@8, b= 16@24", L"a= 256@8, b= 16@24"},
             {{{L"a", L"", 2, 1}, {L"b", L"", 2, 1}, {L"c", L"", 2, 1}},
              L"c= 2@1, b= 2@1, a= 2@1",
              L"c= 2@1, b= 2@1, a= 2@1"},
             {{{L"a", L"", 2, 1}, {L"b", L"", 4, 2}, {L"c", L"", 2, 2}},
              L"b= 4@2, c= 2@2, a= 2@1",
              L"a= 2@1, c= 2@2, b= 4@2"},
             {{{L"a", L"", 256, 8}, {L"b", L"", 16, 24}, {L"c", L"", 16, 8}, {L"d", L"", 256, 24}},
              L"d= 256@24, a= 256@8, b= 16@24, c= 16@8",
              L"c= 16@8, a= 256@8, b= 16@24, d= 256@24"},
         }) {
        EXPECT_EQ(sorted(row.records, false), row.descending);
        EXPECT_EQ(sorted(row.records, true), row.ascending);
    }
}

}  // namespace
