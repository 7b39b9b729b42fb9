#include <gtest/gtest.h>

#include <cwchar>
#include <string>

#include "tests/support/allocations.h"
#include "tests/support/device.h"
#include "tests/support/fields.h"

namespace {

using namespace support;
using Validator = PX_PhysPen_Validator;

constexpr const wchar_t* prefix = L"PX_Std_PhysPen_Validator::";
constexpr const wchar_t* file = L"$Workfile: std_phys_pen_cfg $ $Revision: #1 $";

// Opens what a driver may call.
class Open_Validator : public PX_Std_PhysPen_Validator {
public:
    using PX_Std_PhysPen_Validator::PX_Std_PhysPen_Validator;
    using PX_Std_PhysPen_Validator::set_num_phys_pens_to_nearest;
    using PX_Std_PhysPen_Validator::set_pen_optimization_to_nearest;
    using PX_Std_PhysPen_Validator::synchronize_pen_list;
};

// A driver's configuration, whose numbers its setters would not take.
class Driver_Configuration : public PX_Std_PhysPen_Configuration {
public:
    long get_number_of_physical_pens() const override {
        return number ? number : PX_Std_PhysPen_Configuration::get_number_of_physical_pens();
    }
    int get_pen_optimization() const override {
        return level ? level : PX_Std_PhysPen_Configuration::get_pen_optimization();
    }
    void set_number_of_physical_pens(long value) override {
        number = 0;
        PX_Std_PhysPen_Configuration::set_number_of_physical_pens(value);
    }
    void set_pen_optimization(int value) override {
        level = 0;
        PX_Std_PhysPen_Configuration::set_pen_optimization(value);
    }
    PX_PhysPen_Configuration* clone() const override { return new Driver_Configuration; }

    int number = 0;
    int level = 0;
};

// A plotter of up to 8 pens, 4 by default, of width 1 to 2 and speed 10 to 50; the user has 3 good ones.
class Pen_Validator : public testing::Test {
protected:
    Pen_Validator() {
        caps->set_abilities(PX_Ability_Value::Ability_Required);
        caps->set_max_number_of_physical_pens(8);
        caps->set_default_num_of_phys_pens(4);
        caps->set_max_pen_width(2);
        caps->set_min_pen_width(1);
        caps->set_default_pen_width(1.5F);
        caps->set_min_pen_speed(10);
        caps->set_max_pen_speed(50);
        caps->set_default_pen_speed(30);
        caps->set_max_pen_optimization(8);
        caps->set_default_pen_optimization(4);
        const Driver_Configuration driver;
        device->get_plotter_configuration()->set_phys_pen_configuration(&driver);
        cfg = device.pen_cfg();
        cfg->set_number_of_physical_pens(3);
        set_pens({L"1", L"2", L"3"});
        cfg->set_default(true);
    }

    void set_pens(std::initializer_list<const wchar_t*> names) {
        const auto pens = list_of<PX_Std_Pen, PX_Pen>(names);
        for (const auto& pen : *pens) {
            pen->set_pen_width(1);
            pen->set_pen_speed(10);
        }
        cfg->set_physical_pen_list(pens.get());
    }
    std::wstring pens() const { return show(cfg->get_physical_pen_list()); }
    void set_ability(PX_Pen_Ability_Flags::Enum flag, int ability) {
        caps->set_one_ability(Number{ability}, flag);
    }
    // The change bits of a call.
    template <class Call>
    long changes_of(Call call) {
        device.validator()->set_phys_pen_cfg_changes(0);
        call();
        return device.validator()->get_phys_pen_cfg_changes();
    }
    Driver_Configuration& driver() const { return static_cast<Driver_Configuration&>(*cfg); }
    bool is_settled(int datum, bool is_default) const {
        return cfg->get_one_validated(Number{datum}) && cfg->get_one_default(Number{datum}) == is_default;
    }

    Device device;
    PX_Smart_Pointer<PX_PhysPen_Capabilities> caps = device.pen_caps();
    PX_Smart_Pointer<PX_PhysPen_Configuration> cfg;
    Open_Validator validator{device.get()};
};

TEST_F(Pen_Validator, LeavesGoodPensAlone) {
    const auto list = cfg->get_physical_pen_list();
    caps->set_area_fill_correction(true);
    cfg->set_area_fill_correction(true);
    cfg->set_number_of_physical_pens(8);
    cfg->set_pen_optimization(8);
    EXPECT_EQ(changes_of([&] {
                  validator.validate_num_phys_pens(Strategy::Use_Nearest);
                  cfg->set_number_of_physical_pens(3);
                  for (const auto strategy : {Strategy::Use_Default, Strategy::Use_Nearest})
                      validator.validate_all_pen(strategy);
              }),
              0);
    EXPECT_TRUE(cfg->get_validated() && cfg->get_one_default(PX_Pen_Config_Flags::Pen_Config_Changing));
    EXPECT_TRUE(cfg->get_area_fill_correction() && cfg->get_pen_optimization() == 8);
    EXPECT_EQ(cfg->get_physical_pen_list(), list) << "only a change replaces the list";
}

// Both numbers by one rule: the default on a tie, and by any strategy but the nearest.
TEST_F(Pen_Validator, NumbersGoToTheDefaultOrTheNearest) {
    for (const auto& [is, strategy, becomes] :
         {std::tuple{12, 1, 8}, {12, 0, 4}, {12, 2, 4}, {-1, 1, 4}, {8, 1, 8}}) {
        SCOPED_TRACE(testing::Message() << is << " by " << strategy);
        driver().number = driver().level = is;
        const bool is_bad = is != 8;
        const Number by{strategy};
        EXPECT_EQ(changes_of([&] { validator.validate_num_phys_pens(by); }), is_bad ? 1 : 0);
        EXPECT_EQ(changes_of([&] { validator.validate_pen_optimization(by); }), is_bad ? 8 : 0);
        EXPECT_EQ(cfg->get_number_of_physical_pens(), becomes);
        EXPECT_EQ(cfg->get_pen_optimization(), becomes);
        EXPECT_TRUE(!is_bad || (is_settled(0, becomes == 4) && is_settled(3, becomes == 4)));
    }
    for (const auto& [is, becomes] : {std::pair{6, 4}, {7, 8}}) {
        cfg->set_number_of_physical_pens(is);
        cfg->set_pen_optimization(is);
        validator.set_num_phys_pens_to_nearest();
        validator.set_pen_optimization_to_nearest();
        EXPECT_TRUE(cfg->get_number_of_physical_pens() == becomes && cfg->get_pen_optimization() == becomes)
            << is;
    }
}

TEST_F(Pen_Validator, ADefaultAboveTheMaximumIsRefusedBeforeAnythingIsStored) {
    caps->set_max_number_of_physical_pens(2);
    caps->set_max_pen_optimization(2);
    cfg->set_pen_optimization(3);
    set_ability(PX_Pen_Ability_Flags::Pen_Ability_Number, 0);
    set_ability(PX_Pen_Ability_Flags::Pen_Ability_Optimization, 0);
    const auto refused = [&](auto call, unsigned int code, const wchar_t* name) {
        const auto thrown = expect_thrown<MVNK_Error>(call, code, std::wstring(prefix) + name, L"");
        EXPECT_EQ(thrown.file, file);
    };
    refused([&] { validator.set_num_phys_pens_to_default(); }, 611, L"set_num_phys_pens_to_default");
    refused([&] { validator.set_pen_optimization_to_default(); }, 610, L"set_pen_optimization_to_default");
    const auto all = [&](Strategy::Enum strategy) {
        const auto thrown =
            expect_thrown<PX_Exception>([&] { validator.validate_all_pen(strategy); }, 611,
                                        L"PX_Std_PhysPen_Validator::set_num_phys_pens_to_default", L"");
        std::wstring frames;
        for (const auto& frame : thrown.frames)
            frames += frame.substr(std::wcslen(prefix)) + L" ";
        return frames;
    };
    EXPECT_EQ(changes_of([&] {
                  EXPECT_EQ(all(Strategy::Use_Default), L"validate_num_phys_pens validate_all_pen ");
                  EXPECT_EQ(all(Strategy::Use_Nearest),
                            L"set_num_phys_pens_to_nearest validate_num_phys_pens validate_all_pen ");
              }),
              0);
    EXPECT_TRUE(cfg->get_number_of_physical_pens() == 3 && cfg->get_pen_optimization() == 3);
    EXPECT_FALSE(cfg->get_one_validated(Number{0}) || cfg->get_one_validated(Number{3}));
    caps->set_default_num_of_phys_pens(2);
    set_ability(PX_Pen_Ability_Flags::Pen_Ability_Number, 1);
    validator.set_num_phys_pens_to_default();
    EXPECT_EQ(cfg->get_number_of_physical_pens(), 2) << "a default at the maximum is one";
    caps->set_max_pen_optimization(4);
    EXPECT_NO_THROW(validator.set_pen_optimization_to_default());
}

// Below its ability a default operation leaves the value and yet marks it.
TEST_F(Pen_Validator, AbilitiesDecideWhetherADefaultIsWritten) {
    using A = PX_Pen_Ability_Flags;
    const struct {
        void (Validator::*reset)();
        int datum;
        const wchar_t* by_default;  // of number, list, area fill, optimization and changing
        std::vector<std::pair<A::Enum, int>> enough, not_enough;
    } rows[] = {
        // clang-format off
        {&Validator::set_num_phys_pens_to_default, 0, L"4, list 7, 1, 7, 1",
         {{A::Pen_Ability_Number, 1}, {A::Pen_Ability_List, 5}}, {{A::Pen_Ability_Number, 0}, {A::Pen_Ability_List, 4}}},
        {&Validator::set_pen_list_to_default, 1, L"3, list 3 2 1, 1, 7, 1", {{A::Pen_Ability_List, 5}}, {}},
        {&Validator::set_area_fill_correction_to_default, 2, L"3, list 7, 0, 7, 1",
         {{A::Pen_Ability_Area_Fill, 1}}, {{A::Pen_Ability_Area_Fill, 0}}},
        {&Validator::set_pen_optimization_to_default, 3, L"3, list 7, 1, 4, 1",
         {{A::Pen_Ability_Optimization, 1}}, {{A::Pen_Ability_Optimization, 0}}},
        {&Validator::set_pen_changing_to_default, 4, L"3, list 7, 1, 7, 0",
         {{A::Pen_Ability_Changing, 1}}, {{A::Pen_Ability_Changing, 0}}},
        // clang-format on
    };
    for (const auto& row : rows) {
        const auto reset = [&](const auto& abilities, int others) {
            caps->set_abilities(static_cast<PX_Ability_Value::Enum>(others));
            for (const auto& [flag, ability] : abilities)
                set_ability(flag, ability);
            set_pens({L"7"});
            cfg->set_number_of_physical_pens(3);
            cfg->set_area_fill_correction(true);
            cfg->set_pen_optimization(7);
            cfg->set_pen_changing_enable(true);
            EXPECT_EQ(changes_of([&] { (validator.*row.reset)(); }), 0) << "a default raises no bit";
            EXPECT_TRUE(is_settled(row.datum, true)) << row.datum;
            return show(cfg->get_number_of_physical_pens()) + L", " + pens() + L", " +
                   show(cfg->get_area_fill_correction()) + L", " + show(cfg->get_pen_optimization()) + L", " +
                   show(cfg->get_pen_changing_enable());
        };
        EXPECT_EQ(reset(row.enough, 0), row.by_default);
        for (const auto& lacking : row.not_enough)
            EXPECT_EQ(reset(std::vector{lacking}, 5), L"3, list 7, 1, 7, 1") << row.datum << lacking.first;
    }
    set_ability(A::Pen_Ability_List, 4);
    set_pens({L"7"});
    validator.set_pen_list_to_default();
    EXPECT_EQ(pens(), L"(null)") << "the device keeps no list";
}

TEST_F(Pen_Validator, WhatTheDeviceDoesNotDoIsSwitchedOff) {
    using A = PX_Pen_Ability_Flags;
    const auto expect = [&](long bits, bool stays) {
        for (const int strategy : {0, 1}) {
            cfg->set_pen_changing_enable(true);
            cfg->set_area_fill_correction(true);
            EXPECT_EQ(changes_of([&] {
                          validator.validate_pen_changing(Number{strategy});
                          validator.validate_area_fill_correction(Number{strategy});
                      }),
                      bits);
            EXPECT_TRUE(cfg->get_pen_changing_enable() == stays && cfg->get_area_fill_correction() == stays);
            EXPECT_TRUE(is_settled(4, bits != 0) && is_settled(2, bits != 0));
        }
    };
    expect(0x6, false);
    set_ability(A::Pen_Ability_Changing, 0);
    set_ability(A::Pen_Ability_Area_Fill, 0);
    expect(0x6, true);
    caps->set_max_number_of_physical_pens(1);
    caps->set_area_fill_correction(true);
    expect(0, true);
    caps->set_max_number_of_physical_pens(2);
    cfg->set_pen_changing_enable(true);
    EXPECT_EQ(changes_of([&] { validator.validate_pen_changing(Strategy::Use_Default); }), 0x2);
}

TEST_F(Pen_Validator, PensComeWithinTheLimits) {
    const auto repaired = [&](float width, float speed, int strategy) {
        set_pens({L"1", L"2", L"3"});
        const auto pen = cfg->get_physical_pen_list()->find(L"2");
        pen->set_pen_width(width);
        pen->set_pen_speed(speed);
        const long bits = changes_of([&] { validator.validate_pen_list(Number{strategy}); });
        EXPECT_TRUE(is_settled(1, false));
        EXPECT_TRUE(pen->get_pen_width() == width && pen->get_pen_speed() == speed) << "the old pens stay";
        const auto now = cfg->get_physical_pen_list()->find(L"2");
        return show(now->get_pen_width()) + L" " + show(now->get_pen_speed()) + L" " + show(bits);
    };
    const struct {
        float width, speed;
        const wchar_t *nearest, *by_default;
    } rows[] = {{0.5F, 10, L"1 10 16", L"1.5 10 16"}, {2.5F, 10, L"2 10 16", L"1.5 10 16"},
                {1, 9, L"1 10 16", L"1 30 16"},       {2, 51, L"2 50 16", L"2 30 16"},
                {-1, 0, L"1 10 16", L"1.5 30 16"},    {1, 10, L"1 10 0", L"1 10 0"},
                {2, 50, L"2 50 0", L"2 50 0"}};
    for (const auto& row : rows) {
        EXPECT_EQ(repaired(row.width, row.speed, 1), row.nearest) << row.width << " " << row.speed;
        EXPECT_EQ(repaired(row.width, row.speed, 0), row.by_default) << row.width << " " << row.speed;
    }
    EXPECT_EQ(repaired(0.5F, 10, 2), L"1.5 10 16") << "no other strategy is the nearest";
}

TEST_F(Pen_Validator, TheListIsMadeToAgreeWithTheNumber) {
    const struct {
        long number;
        std::initializer_list<const wchar_t*> pens;
        std::wstring becomes;
        bool changes;
    } rows[] = {
        {3, {}, L"list 3 2 1", true},
        {2, {L"1", L"2", L"3"}, L"list 1 2 3", false},  // 3 pens are not 2, but none is missing
        {2, {L"1", L"3"}, L"list 1 3", false},          // nor is the count asked for more than that
        {3, {L"1", L"3"}, L"list 2 1 3", true},
        {2, {L"1", L"9", L"2"}, L"list 1 2", true},  // above what the device can have
        {2, {L"1", L"8", L"2"}, L"list 1 8 2", false},
        {3, {L"2", L"2", L"02", L"3"}, L"list 1 2 3", true},
        {3, {L"black", L"0", L"-1", L"1", L"", L"3"}, L"list 2 1 3", true},
        {3, {L" +1 fine", L"2x", L"3"}, L"list  +1 fine 2x 3", false},
        {2, {L"010", L"4294967297", L"99999999999999999999", L"1", L"2"}, L"list 1 2", true},
        {0, {L"1"}, L"list", true},
        {0, {}, L"list", false},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.becomes));
        cfg->set_number_of_physical_pens(row.number);
        set_pens(row.pens);
        const auto old = cfg->get_physical_pen_list();
        EXPECT_EQ(changes_of([&] { EXPECT_EQ(validator.synchronize_pen_list(caps, cfg), row.changes); }), 0);
        EXPECT_EQ(pens(), row.becomes);
        EXPECT_EQ(cfg->get_physical_pen_list() == old, !row.changes);
        set_pens(row.pens);
        EXPECT_EQ(changes_of([&] { validator.validate_pen_list(Strategy::Use_Nearest); }),
                  row.changes ? 0x10 : 0);
        EXPECT_TRUE(is_settled(1, false));
    }
    cfg->set_physical_pen_list(nullptr);
    EXPECT_FALSE(validator.synchronize_pen_list(caps, cfg));
    EXPECT_EQ(pens(), L"(null)");
    cfg->set_number_of_physical_pens(1);
    EXPECT_TRUE(validator.synchronize_pen_list(caps, cfg));
    const auto pen = cfg->get_physical_pen_list()->find(L"1");
    EXPECT_TRUE(pen->get_pen_width() == 1.5F && pen->get_pen_speed() == 30);
    EXPECT_STREQ(pen->get_localized_name(), L"");
    EXPECT_EQ(*pen->get_pen_color(), PX_RGB32());
}

// Which of its calls a driver's factory and validator see.
std::string made;
struct Counting_Factory : PX_Std_Plotter_Class_Factory {
    PX_Pen* MK_Create_Pen() const override {
        made += 'p';
        return no_pens ? nullptr : PX_Std_Plotter_Class_Factory::MK_Create_Pen();
    }
    PX_Named_Object_List<PX_Pen>* MK_Create_Pen_List() const override {
        made += 'l';
        return no_lists ? nullptr : PX_Std_Plotter_Class_Factory::MK_Create_Pen_List();
    }
    static inline bool no_pens = false, no_lists = false;
};

TEST(Pen_Validator_Factory, NewListsAndPensComeFromIt) {
    const Device device{new Definition_With<Counting_Factory>};
    Open_Validator validator(device.get());
    const auto caps = device.pen_caps();
    const auto cfg = device.pen_cfg();
    caps->set_abilities(PX_Ability_Value::Ability_Required);
    caps->set_max_number_of_physical_pens(3);
    cfg->set_number_of_physical_pens(2);
    const auto made_by = [&](auto call) {
        made.clear();
        call();
        return made;
    };
    const auto synchronize = [&] { validator.synchronize_pen_list(caps, cfg); };
    EXPECT_EQ(made_by([&] { validator.set_pen_list_to_default(); }), "lpp");
    cfg->set_number_of_physical_pens(3);
    EXPECT_EQ(made_by(synchronize), "p") << "a copy is a plain list";
    cfg->set_physical_pen_list(nullptr);
    EXPECT_EQ(made_by(synchronize), "lppp");
    cfg->set_number_of_physical_pens(0);
    EXPECT_EQ(made_by(synchronize), "l");
    cfg->set_physical_pen_list(nullptr);
    cfg->set_number_of_physical_pens(1);
    const auto expect_refused = [&](bool& refused, const wchar_t* detail) {
        refused = true;
        const std::wstring name = prefix;
        expect_thrown<MVNK_Memory_Exception>(synchronize, 1101, name + L"synchronize_pen_list", detail);
        const auto thrown = expect_thrown<MVNK_Memory_Exception>(
            [&] { validator.set_pen_list_to_default(); }, 1101, name + L"set_pen_list_to_default", detail);
        EXPECT_EQ(thrown.file, file);
        EXPECT_EQ(cfg->get_physical_pen_list(), nullptr);
        refused = false;
    };
    expect_refused(Counting_Factory::no_pens, L"workpen");
    expect_refused(Counting_Factory::no_lists, L"workpenlist");

    // The pens are repaired and stored before the list is emptied, which fails here.
    PX_Named_Object_List<PX_Pen> wide;
    wide.append(named<PX_Std_Pen>(L"1"));
    (*wide.begin())->set_pen_width(2);
    cfg->set_physical_pen_list(&wide);
    cfg->set_number_of_physical_pens(0);
    Counting_Factory::no_lists = true;
    EXPECT_EQ(thrown_by([&] { validator.validate_pen_list(Strategy::Use_Nearest); })->code, 1101U);
    Counting_Factory::no_lists = false;
    EXPECT_EQ((*cfg->get_physical_pen_list()->begin())->get_pen_width(), 1);
    EXPECT_FALSE(cfg->get_one_validated(PX_Pen_Config_Flags::Pen_Config_List));
    EXPECT_EQ(device.validator()->get_phys_pen_cfg_changes(), 0);
}

TEST_F(Pen_Validator, WithoutMemoryTheListStays) {
    cfg->set_number_of_physical_pens(5);
    const auto list = cfg->get_physical_pen_list();
    const auto failures = failures_of([&] {
        EXPECT_TRUE(cfg->get_physical_pen_list() == list && list->size() == 3);
        validator.validate_pen_list(Strategy::Use_Default);
    });
    ASSERT_FALSE(failures.empty());
    for (const auto& thrown : failures)
        EXPECT_EQ(thrown.code, 1101U) << testing::PrintToString(thrown.function);
    EXPECT_TRUE(failures[0].is<MVNK_Memory_Exception>());
    EXPECT_EQ(failures[0].detail, L"workpenlist");
    EXPECT_EQ(failures[0].function, std::wstring(prefix) + L"validate_pen_list");
}

TEST_F(Pen_Validator, GroupsCallInOrder) {
    static std::string calls;
#define TELLS(name, call)                                           \
    void validate_##name(Strategy::Enum s) override {               \
        calls += s == Strategy::Use_Nearest ? call "n " : call " "; \
    }                                                               \
    void set_##name##_to_default() override {                       \
        calls += call " ";                                          \
    }
    class Telling : public PX_Std_PhysPen_Validator {
    public:
        using PX_Std_PhysPen_Validator::PX_Std_PhysPen_Validator;
        // clang-format off
        TELLS(num_phys_pens, "number") TELLS(pen_list, "list") TELLS(pen_changing, "changing")
        TELLS(area_fill_correction, "fill") TELLS(pen_optimization, "optimization")
            // clang-format on
            bool synchronize_pen_list(PX_Smart_Pointer<PX_PhysPen_Capabilities>,
                                      PX_Smart_Pointer<PX_PhysPen_Configuration>) override {
            return true;
        }
    } telling(device.get());
#undef TELLS
    EXPECT_EQ(changes_of([&] { telling.PX_Std_PhysPen_Validator::validate_pen_list(Strategy::Use_Default); }),
              0x10);
    telling.validate_all_pen(Strategy::Use_Nearest);
    EXPECT_EQ(calls, "numbern listn changingn filln optimizationn ");
    calls.clear();
    telling.set_all_physpen_to_defaults();
    EXPECT_EQ(calls, "number list changing fill optimization ");
}

TEST_F(Pen_Validator, WhatIsMissingIsNamed) {
    const auto expect_missing = [&](const wchar_t* detail) {
        const auto expect = [&](const wchar_t* name, auto call) {
            const auto thrown = expect_thrown<MVNK_Error>(call, 1103, std::wstring(prefix) + name, detail);
            EXPECT_EQ(thrown.file, file);
        };
#define EXPECT_BOTH_MISSING(name)                                                          \
    expect(L"validate_" #name, [&] { validator.validate_##name(Strategy::Use_Default); }); \
    expect(L"set_" #name L"_to_default", [&] { validator.set_##name##_to_default(); })
        EXPECT_BOTH_MISSING(num_phys_pens);
        EXPECT_BOTH_MISSING(pen_list);
        EXPECT_BOTH_MISSING(pen_changing);
        EXPECT_BOTH_MISSING(area_fill_correction);
        EXPECT_BOTH_MISSING(pen_optimization);
#undef EXPECT_BOTH_MISSING
        expect(L"set_num_phys_pens_to_nearest", [&] { validator.set_num_phys_pens_to_nearest(); });
        expect(L"set_pen_optimization_to_nearest", [&] { validator.set_pen_optimization_to_nearest(); });
    };
    device->set_plotter_capabilities(new PX_Std_Plotter_Capabilities);
    expect_missing(L"pen_caps or pen_cfg");
    device->set_plotter_configuration(nullptr);
    expect_missing(L"plotter_caps or plotter_cfg");
}

}  // namespace
