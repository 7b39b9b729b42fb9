#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/expect_exception.h"
#include "tests/support/media.h"

namespace {

using namespace support;
using Name = PX_Std_Caps_Name_List_Object;
using V = PX_Media_Validator;

class Media_Nearest : public testing::Test {
protected:
    // No entry is near: the setter fails for none.
    void expect_none(void (V::*search)(), const wchar_t* kind, const wchar_t* detail) {
        expect_thrown<PX_Exception>([&] { (m_validator.*search)(); }, 1103,
                                    std::wstring(L"PX_Std_Media_Configuration::set_media_") + kind, detail);
    }
    Media_Device m_device;
    PX_Std_Media_Validator m_validator{m_device.get()};
    PX_Media_Configuration& m_cfg = *m_device.cfg;
    PX_Media_Capabilities& m_caps = *m_device.caps;
};

// A candidate beside a snapshot of 100 by 200, of which 100 by 200 can be printed: the number of a per cent
// is then exact.
struct Sheet {
    const wchar_t* name = L"had";
    PX_Float_XY bounds = {100, 200};
    PX_Float_Rectangle printable = {0, 99, 0, 199};
    bool landscape = false;
    int group = -1;
    bool dimensional = true;
};

PX_Media_Size* size_of(const Sheet& sheet) {
    auto* const size = support::media_size(sheet.name, sheet.name);
    size->set_landscape_mode_flag(sheet.landscape);
    size->set_media_group(Number{sheet.group});
    return size;
}

PX_Media_Description* description_of(const Sheet& sheet) {
    auto* const description = support::description(sheet.name, sheet.bounds, sheet.printable);
    description->set_dimensional(sheet.dimensional);
    return description;
}

// What the search takes from these candidates, in this order; empty for none.
std::wstring nearest_of(const std::vector<Sheet>& sheets, const Sheet& had = {}) {
    const Media_Device device;
    const PX_Smart_Pointer<PX_Media_Size> had_size = size_of(had);
    const PX_Smart_Pointer<PX_Media_Description> had_description = description_of(had);
    device.cfg->set_media_size(had_size.get(), had_description.get());
    device.sizes()->clear();
    device.names()->clear();
    for (const Sheet& sheet : sheets) {
        device.sizes()->append(size_of(sheet));
        device.descriptions()->append(description_of(sheet));
        device.names()->append(named<Name>(sheet.name));
    }
    device.cfg->set_validated(true);
    const bool found = PX_Std_Media_Validator(device.get()).set_size_to_nearest();
    EXPECT_EQ(device.changes(), 0);
    EXPECT_EQ(device.cfg->get_one_validated(PX_Media_Config_Flags::Cfg_Media_Size), !found);
    EXPECT_TRUE(found || *device.snapshot()->get_media_bounds() == had.bounds);
    return found ? device.cfg->get_media_size() : L"";
}

TEST(Media_Nearest_Size, WeighsEachDifference) {
    // The other orientation, 200 of the score, lifts all of them to where the rival can be.
    const std::pair<Sheet, double> rows[] = {
        {{.landscape = true}, 200},
        {{.name = L"x", .landscape = true}, 210},
        {{.landscape = true, .group = 3}, 250},
        {{.landscape = true, .dimensional = false}, 250},
        {{.bounds = {95, 200}, .landscape = true}, 250},
        {{.bounds = {100, 210}, .landscape = true}, 250},
        {{.printable = {0, 104, 0, 199}, .landscape = true}, 205},
        {{.printable = {3, 96, 0, 199}, .landscape = true}, 260},
        {{.printable = {0, 99, 0, 209}, .landscape = true}, 205},
    };
    // Of at least 60, for its name and its printable width.
    const auto rival = [](double score) {
        return Sheet{.name = L"rival", .printable = {0, float(99 + (score - 10) / 10), 0, 199}};
    };
    for (const auto& [sheet, score] : rows) {
        SCOPED_TRACE(score);
        EXPECT_EQ(nearest_of({rival(score + 0.5), sheet}), sheet.name);
        EXPECT_EQ(nearest_of({sheet, rival(score - 0.5)}), L"rival");
    }
}

TEST(Media_Nearest_Size, IsNearUpTo500) {
    struct Case {
        const char* name;
        Sheet sheet;
        bool is_near;
        Sheet had;
    };
    constexpr float nan = std::numeric_limits<float>::quiet_NaN();
    // 200 + 50 + 50 + 10 + 50 + 50 + 90
    const Sheet all = {L"x", {105, 210}, {0, 108, 0, 199}, true, 3, false};
    Sheet more = all;
    more.printable.x_max = 108.0001F;
    const Case rows[] = {
        {"500", all, true, {}},
        {"a little more", more, false, {}},
        {"5.0 % wider alone", {.bounds = {105, 200}}, true, {}},
        {"5.01 % lower alone is 501", {.bounds = {100, 189.98F}}, false, {}},
        {"5 % of 375 is more in single precision", {.bounds = {393.75F, 200}}, false, {.bounds = {375, 200}}},
        {"5 % of 367.5 is not", {.bounds = {385.875F, 200}}, true, {.bounds = {367.5F, 200}}},
        {"nothing before", {.bounds = {0, 0}}, false, {.bounds = {0, 0}}},
    };
    for (const Case& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(nearest_of({row.sheet}, row.had), row.is_near ? row.sheet.name : L"");
    }
    EXPECT_EQ(nearest_of({}), L"");
    EXPECT_EQ(nearest_of({{L"x", {nan, 200}}, {L"y"}}), L"y")
        << "what is no number does not stand in the way";
    EXPECT_EQ(nearest_of({{L"x"}, {L"y"}}), L"x") << "the first of equals";
    EXPECT_EQ(nearest_of({{L"x"}, {L"had"}}), L"had") << "an exact match anywhere";
}

TEST_F(Media_Nearest, SizePassesOverWhatIsNotThere) {
    const auto expect_taken = [&](const wchar_t* name) {
        EXPECT_TRUE(m_validator.set_size_to_nearest());
        EXPECT_STREQ(m_cfg.get_media_size(), name);
        m_cfg.set_media_size(m_device.a4().get(), m_device.a4_sheet().get());
    };
    const auto names = m_device.names();
    names->prepend(named<Name>(L"no such size"));
    names->prepend(named<Name>(L"A3"));
    support::drop(m_device.descriptions(), L"a3");
    withdraw(m_device.upper());
    withdraw(m_device.tray());
    expect_taken(L"A4");  // source and entry are taken as they are
    for (const int method : {1, 2}) {
        m_cfg.set_media_selection_method(Number{method});
        withdraw(m_device.a4());
        expect_taken(L"A4plus");
        m_device.a4()->set_caps_type(Number{0});
        withdraw(m_device.a4_sheet());
        expect_taken(L"A4plus");
        m_device.a4_sheet()->set_caps_type(Number{0});
    }
    withdraw(names->find(L"A4"));
    expect_taken(L"A4");
    m_cfg.set_media_selection_method(Number{1});
    expect_taken(L"A4plus");
}

TEST_F(Media_Nearest, SizeReportsWhatItCannotStartFrom) {
    const auto expect_missing = [&](const std::wstring& detail) {
        expect_thrown<MVNK_Memory_Exception>([&] { m_validator.set_size_to_nearest(); }, 1101,
                                             L"PX_Std_Media_Validator::set_size_to_nearest", detail);
    };
    const std::wstring source =
        L"media_caps.get()->get_media_source (media_config.get()->get_media_source())";
    const std::wstring entry =
        source + L".get()-> get_source_entry (media_config.get()->get_media_source_entry())";
    m_device.upper()->set_media_size_name_list(nullptr);
    expect_missing(entry + L".get()-> get_media_size_name_list()");
    support::drop(m_device.entries(), L"upper");
    expect_missing(entry);
    m_caps.set_media_source_list(nullptr);
    expect_missing(source);
    m_device.forget();
    expect_missing(L"media_settings");
}

// A type's resolution and drying time, or an entry's width and height.
struct Measures {
    float x, y;
    long drying_time = 0;
};

struct Search {
    const char* name;
    Measures had, first, second;
    const wchar_t* winner;  // empty for none, which the setter refuses
};

// Each search, with what is had withdrawn in front of the two others.
template <std::size_t count, class List, class Make, class Run>
void expect_winners(const Search (&rows)[count], const List& list, Make make, Run search) {
    for (const Search& row : rows) {
        SCOPED_TRACE(row.name);
        list->clear();
        list->append(make(L"withdrawn", row.had));
        const auto had = list->find(L"withdrawn");
        withdraw(had);
        list->append(make(L"first", row.first));
        list->append(make(L"second", row.second));
        EXPECT_STREQ(search(had.get()), row.winner);
    }
}

TEST_F(Media_Nearest, TypeWeighsResolutionAndDryingTime) {
    constexpr long most = std::numeric_limits<std::int32_t>::max();
    const Search rows[] = {
        {"a resolution is worth ten", {600, 600, 10}, {600, 600, 21}, {599, 600, 10}, L"second"},
        {"all", {600, 600, 10}, {601, 601, 15}, {600, 600, 34}, L"second"},
        {"the first of equals", {600, 600, 10}, {600, 600, 0}, {600, 601, 10}, L"first"},
        {"the drying times in 32 bits", {0, 0, most}, {0, 0, most - 2}, {0, 0, -most - 1}, L"second"},
        // 16777217.5 is 16777218 in single precision.
        {"single products", {0, 0}, {1677721.5F, 0, 3}, {1677721.75F, 0}, L"first"},
        {"single in y", {0, 0}, {0, 1677721.5F, 3}, {0, 1677721.75F}, L"first"},
        {"a double sum", {0, 0}, {1677722, 0, 1}, {1677722, 0}, L"second"},
        {"as far as the start", {0, 0}, {0, 0, most}, {1e9F, 0}, L""},
    };
    const auto make = [](const wchar_t* name, const Measures& has) {
        return support::media_type(name, has.drying_time, {has.x, has.y});
    };
    const auto types = m_device.types();
    expect_winners(rows, types, make, [&](const PX_Media_Type* had) {
        m_cfg.set_media_type(had);
        support::thrown_by([&] { m_validator.set_type_to_nearest(); });
        return m_cfg.get_media_type();
    });
    types->prepend(make(L"second", {0, 0, 9}));
    withdraw(types->find(L"second"));
    m_device.snapshot()->get_max_resolution()->x = 1e9F;
    m_validator.set_type_to_nearest();
    EXPECT_EQ(m_device.snapshot()->get_drying_time(), 9) << "the first entry of a name that stands twice";
}

TEST_F(Media_Nearest, EntryAddsWidthAndHeight) {
    const Search rows[] = {
        {"both", {210, 297}, {211, 298}, {210, 298.5F}, L"second"},
        {"the first of equals", {210, 297}, {211, 297}, {210, 298}, L"first"},
        {"a double sum", {0, 0}, {16777216, 1}, {16777216, 0}, L"second"},
        {"as far as the start", {0, 0}, {3e9F, 0}, {0, 3e9F}, L""},
    };
    const auto make = [](const wchar_t* name, const Measures& has) {
        return support::source_entry(name, has.x, has.y, {});
    };
    expect_winners(rows, m_device.entries(), make, [&](const PX_Media_Source_Entry* had) {
        m_cfg.set_media_source_entry(had);
        support::thrown_by([&] { m_validator.set_source_entry_to_nearest(); });
        return m_cfg.get_media_source_entry();
    });
}

TEST_F(Media_Nearest, SourceIsTheFirstOfTheFeed) {
    m_device.sources()->append(support::source(L"last", 1, {}));
    withdraw(m_device.tray());
    m_validator.set_source_to_nearest();
    EXPECT_STREQ(m_cfg.get_media_source(), L"drawer");
    m_device.snapshot()->set_media_feed(Number{7});
    expect_none(&V::set_source_to_nearest, L"source", L"newsource");
    EXPECT_EQ(m_device.changes(), 0);
}

TEST_F(Media_Nearest, NoListIsAnEmptyOne) {
    m_device.choose_directly();
    m_caps.set_media_size_list(nullptr);
    EXPECT_FALSE(m_validator.set_size_to_nearest());
    m_caps.set_media_type_list(nullptr);
    expect_none(&V::set_type_to_nearest, L"type", L"newtype");
    m_caps.set_media_destination_list(nullptr);
    expect_none(&V::set_destination_to_nearest, L"destination", L"newdest");
    m_caps.set_media_source_list(nullptr);
    expect_none(&V::set_source_entry_to_nearest, L"source_entry", L"newentry");
    expect_none(&V::set_source_to_nearest, L"source", L"newsource");
}

TEST_F(Media_Nearest, DestinationTakesTheFirstOfTheLeastLacking) {
    const auto destinations = m_device.destinations();
    destinations->clear();
    const auto add = [&](const wchar_t* name) {
        destinations->append(destination(name, {{L"full", 1}}));
        return destinations->find(name);
    };
    const auto expect_nearest = [&](const wchar_t* name) {
        m_validator.set_destination_to_nearest();
        EXPECT_STREQ(m_cfg.get_media_destination(), name);
    };
    destinations->append(destination(L"four", {}));
    expect_nearest(L"four");
    EXPECT_STREQ(m_cfg.get_media_stapling(), L"full") << "the names of the finishing stay";
    const auto two = add(L"two");
    two->set_stapling_list(nullptr);
    two->get_folding(L"full")->set_folding_type(Number{2});
    add(L"one")->set_cutting_list(nullptr);
    withdraw(add(L"another")->get_collating(L"full"));
    expect_nearest(L"one");
    // An ability below 4 does not count: of collating, of stapling and folding, of all.
    m_device.set_ability(Number{19}, 3);
    expect_nearest(L"another");
    m_device.set_ability(Number{18}, 3);
    m_device.set_ability(Number{20}, 3);
    expect_nearest(L"two");
    m_device.set_ability(Number{21}, 3);
    expect_nearest(L"four");
    EXPECT_EQ(m_device.changes(), 0);
}

}  // namespace
