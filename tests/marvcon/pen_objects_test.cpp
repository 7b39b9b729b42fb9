#include <gtest/gtest.h>

#include <limits>
#include <memory>

#include "tests/support/fields.h"

namespace {

using namespace support;

using Pen = PX_Pen;
using Caps = PX_PhysPen_Capabilities;
using Cfg = PX_PhysPen_Configuration;

constexpr const wchar_t* file = L"$Workfile: std_phys_pen_cfg $ $Revision: #1 $";
constexpr float nan = std::numeric_limits<float>::quiet_NaN();

// A row of a whole set of flags, as its text.
constexpr auto flag_text = field<Caps, const wchar_t*, const wchar_t*>;

TEST(Pens, HoldWhatTheyAreGivenAndCloneIt) {
    const PX_RGB32 orange(255, 128, 1, 7);
    PX_Std_Pen pen;
    check_fields<Pen>(
        pen,
        {FIELD(Pen, canonical_name, L"", L"1", L"canonical_name"), FIELD(Pen, localized_name, L"", L"red"),
         FIELD(Pen, pen_color, L"0 0 0 255", &orange, L"m_pen_color"), FIELD(Pen, pen_width, L"0", 0.5F),
         FIELD(Pen, pen_speed, L"0", 30.0F)},
        L"PX_Std_Pen", file);

    PX_Std_PhysPen_Capabilities caps;
    check_fields<Caps>(
        caps,
        {FIELD(Caps, max_number_of_physical_pens, L"0", 8), FIELD(Caps, programmable_pen_widths, L"0", true),
         FIELD(Caps, programmable_pen_speeds, L"0", true), FIELD(Caps, hardware_polygon_fills, L"0", true),
         FIELD(Caps, area_fill_correction, L"0", true), FIELD(Caps, max_pen_width, L"1", 3.0F),
         FIELD(Caps, min_pen_width, L"0", 0.25F), FIELD(Caps, max_pen_speed, L"100", 60.0F),
         FIELD(Caps, min_pen_speed, L"0", 2.0F), FIELD(Caps, max_pen_optimization, L"0", 4),
         FIELD(Caps, default_num_of_phys_pens, L"0", 6), FIELD(Caps, default_pen_width, L"0", 0.75F),
         FIELD(Caps, default_pen_speed, L"0", 36.0F), FIELD(Caps, default_pen_optimization, L"0", 3),
         flag_text(L"set_abilities", &Caps::get_abilities, L"0000000000000000000", &Caps::set_abilities,
                   L"0123450123450123450", nullptr, nullptr),
         flag_text(L"set_caps_state", &Caps::get_caps_state, L"0000", &Caps::set_caps_state, L"1248", nullptr,
                   nullptr),
         flag_text(L"set_ui_owner", &Caps::get_ui_owner, L"0000000", &Caps::set_ui_owner, L"0123012", nullptr,
                   nullptr)},
        L"PX_Std_PhysPen_Capabilities", file);
    PX_Std_PhysPen_Capabilities flags;
    CHECK_RANGE(flags, ability, PX_Ability_Value::Ability_Required, 19, "phys_pen",
                L"PX_Pen_Ability_Flags::Enum");
    CHECK_RANGE(flags, caps_state, true, 16, "phys_pen", L"PX_Pen_User_Flags::Enum");
    CHECK_RANGE(flags, ui_owner, PX_UI_Owner::UI_Owner_2, 7, "phys_pen", L"PX_PhysPen_UI_Owner_Flags::Enum");

    const auto pens = list_of<PX_Std_Pen, Pen>({L"2", L"1"});
    PX_Std_PhysPen_Configuration cfg;
    check_fields<Cfg>(
        cfg,
        {FIELD(Cfg, physical_pen_list, L"list", pens.get(), L"m_physical_pen_list", L"(null)"),
         FIELD(Cfg, number_of_physical_pens, L"0", 8), FIELD(Cfg, pen_changing_enable, L"0", true),
         FIELD(Cfg, area_fill_correction, L"0", true), FIELD(Cfg, pen_optimization, L"0", 3)},
        L"PX_Std_PhysPen_Configuration", file);
    CHECK_RANGE(cfg, validated, true, 5, "phys_pen", L"PX_Pen_Config_Flags::Enum");
    CHECK_RANGE(cfg, default, true, 5, "phys_pen", L"PX_Pen_Config_Flags::Enum");
}

// A limit that would be broken is repaired first, then reported.
TEST(Pens, RepairWhatBreaksALimitAndSaySo) {
    const auto expect_repaired = [](auto& object, auto set, auto get, auto bad, auto repaired,
                                    unsigned int code, const std::wstring& function) {
        const auto thrown = expect_thrown<MVNK_Error>([&] { (object.*set)(bad); }, code, function, L"");
        EXPECT_EQ(thrown.file, file);
        EXPECT_EQ((object.*get)(), repaired) << testing::PrintToString(function) << " " << bad;
    };
#define REPAIRS(object, Class, name, bad, repaired, code)                                \
    expect_repaired(object, &Class::set_##name, &Class::get_##name, bad, repaired, code, \
                    L"" #Class L"::set_" #name)
#define ACCEPTS(object, name, value) \
    (object).set_##name(value);      \
    EXPECT_EQ((object).get_##name(), value)
    PX_Std_Pen pen;
    ACCEPTS(pen, pen_width, -1.0F);
    pen.set_pen_width(5.0F);
    REPAIRS(pen, PX_Std_Pen, pen_width, -1.5F, -1.0F, 601);
    REPAIRS(pen, PX_Std_Pen, pen_width, nan, -1.0F, 601);
    pen.set_pen_speed(5.0F);
    REPAIRS(pen, PX_Std_Pen, pen_speed, -0.5F, 0.0F, 602);
    ACCEPTS(pen, pen_speed, 0.0F);

    PX_Std_PhysPen_Capabilities caps;
    caps.set_max_number_of_physical_pens(8);
    REPAIRS(caps, PX_Std_PhysPen_Capabilities, max_number_of_physical_pens, -1, 0, 603);
    ACCEPTS(caps, max_number_of_physical_pens, 0);
    REPAIRS(caps, PX_Std_PhysPen_Capabilities, min_pen_width, 2.0F, -1.0F, 605);
    ACCEPTS(caps, min_pen_width, 1.0F);
    ACCEPTS(caps, min_pen_width, 0.75F);
    REPAIRS(caps, PX_Std_PhysPen_Capabilities, max_pen_width, 0.5F, 0.75F, 604);
    ACCEPTS(caps, max_pen_width, 0.75F);
    ACCEPTS(caps, min_pen_width, -1.0F);
    REPAIRS(caps, PX_Std_PhysPen_Capabilities, min_pen_width, -1.5F, -1.0F, 605);
    ACCEPTS(caps, max_pen_width, -1.0F);
    REPAIRS(caps, PX_Std_PhysPen_Capabilities, max_pen_width, -1.5F, -1.0F, 604);
    REPAIRS(caps, PX_Std_PhysPen_Capabilities, max_pen_width, nan, -1.0F, 604);
    ACCEPTS(caps, min_pen_speed, 100.0F);
    REPAIRS(caps, PX_Std_PhysPen_Capabilities, max_pen_speed, 99.0F, 100.0F, 606);
    ACCEPTS(caps, max_pen_speed, 100.0F);
    REPAIRS(caps, PX_Std_PhysPen_Capabilities, min_pen_speed, 101.0F, 0.0F, 607);
    REPAIRS(caps, PX_Std_PhysPen_Capabilities, min_pen_speed, -1.0F, 0.0F, 607);
    REPAIRS(caps, PX_Std_PhysPen_Capabilities, max_pen_speed, -1.0F, 0.0F, 606);
    ACCEPTS(caps, max_pen_speed, 0.0F);
#undef ACCEPTS
#undef REPAIRS
}

TEST(Pens, RepairDefaultsWithoutAWord) {
    PX_Std_PhysPen_Capabilities caps;
    caps.set_min_pen_width(0.5F);
    caps.set_min_pen_speed(10.0F);
    caps.set_max_pen_optimization(2);
    const auto expect_stored = [&](auto set, auto get, auto given, auto stored) {
        (caps.*set)(given);
        EXPECT_EQ((caps.*get)(), stored) << given;
    };
    for (const auto& [given, stored] : {std::pair{0.5F, 0.5F}, {1.0F, 1.0F}, {1.25F, 0.5F}, {-1.0F, 0.5F}})
        expect_stored(&Caps::set_default_pen_width, &Caps::get_default_pen_width, given, stored);
    for (const auto& [given, stored] :
         {std::pair{10.0F, 10.0F}, {100.0F, 100.0F}, {101.0F, 10.0F}, {9.0F, 10.0F}})
        expect_stored(&Caps::set_default_pen_speed, &Caps::get_default_pen_speed, given, stored);
    for (const auto& [given, stored] : {std::pair{2, 2}, {3, 0}, {-1, 0}})
        expect_stored(&Caps::set_default_pen_optimization, &Caps::get_default_pen_optimization, given,
                      stored);
    caps.set_default_num_of_phys_pens(-1);
    EXPECT_EQ(caps.get_default_num_of_phys_pens(), 0);
    caps.set_max_pen_optimization(-1);
    EXPECT_EQ(caps.get_max_pen_optimization(), 0);
    PX_Std_PhysPen_Configuration cfg;
    cfg.set_number_of_physical_pens(-1);
    cfg.set_pen_optimization(-1);
    EXPECT_TRUE(cfg.get_number_of_physical_pens() == 0 && cfg.get_pen_optimization() == 0);
}

// Neither limits below 0 nor a default from before its limit was lowered are lost or refused.
TEST(Pens, AreClonedAsTheyAreStored) {
    PX_Std_PhysPen_Capabilities caps;
    caps.set_default_pen_width(0.75F);
    caps.set_max_pen_optimization(4);
    caps.set_default_pen_optimization(4);
    caps.set_max_pen_optimization(2);
    caps.set_min_pen_width(-1.0F);
    caps.set_max_pen_width(-0.5F);
    const std::unique_ptr<PX_PhysPen_Capabilities> clone(caps.clone());
    EXPECT_EQ(clone->get_min_pen_width(), -1.0F);
    EXPECT_EQ(clone->get_max_pen_width(), -0.5F);
    EXPECT_EQ(clone->get_default_pen_width(), 0.75F);
    EXPECT_EQ(clone->get_default_pen_optimization(), 4);
}

TEST(Pens, ASetterPutsItsFlagsDownAndACloneKeepsThem) {
    const PX_Named_Object_List<PX_Pen> list;
    const struct {
        int datum;
        void (*set)(PX_PhysPen_Configuration&, const PX_Named_Object_List<PX_Pen>&);
    } setters[] = {{0, [](auto& cfg, auto&) { cfg.set_number_of_physical_pens(0); }},
                   {1, [](auto& cfg, auto& pens) { cfg.set_physical_pen_list(&pens); }},
                   {1, [](auto& cfg, auto&) { cfg.set_physical_pen_list(nullptr); }},
                   {2, [](auto& cfg, auto&) { cfg.set_area_fill_correction(false); }},
                   {3, [](auto& cfg, auto&) { cfg.set_pen_optimization(0); }},
                   {4, [](auto& cfg, auto&) { cfg.set_pen_changing_enable(false); }}};
    for (const auto& row : setters) {
        PX_Std_PhysPen_Configuration cfg;
        cfg.set_validated(true);
        cfg.set_default(true);
        row.set(cfg, list);
        const std::unique_ptr<PX_PhysPen_Configuration> clone(cfg.clone());
        for (int datum = 0; datum < 5; ++datum) {
            EXPECT_EQ(clone->get_one_validated(Number{datum}), datum != row.datum) << row.datum;
            EXPECT_EQ(clone->get_one_default(Number{datum}), datum != row.datum) << row.datum;
        }
    }
}

}  // namespace
