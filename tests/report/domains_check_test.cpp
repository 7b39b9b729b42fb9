#include <limits>

#include "tests/report/devices.h"
#include "tests/report/findings.h"
#include "tests/support/custom.h"

namespace {

using namespace support;

TEST(DeviceCheck, WhatIsMissingIsAFinding) {
    const Device device;
    const auto capabilities = device->get_plotter_capabilities();
    EXPECT_EQ(px_check_device(*device.get()), Findings());

    PX_Plotter_Definition& plotter = *device.get();
    PX_Plotter_Capabilities* const bare =
        device->get_class_factory()->MK_Create_Plotter_Capabilities(L"", L"", L"");
    plotter.set_plotter_capabilities(bare);
    const struct {
        long domain;
        const wchar_t* detail;
        std::function<void()> hang_in;
    } rows[] = {
        {PX_Domain_Mask::Media, L"media_caps or media_cfg",
         [&] { bare->set_media_capabilities(capabilities->get_media_capabilities().get()); }},
        {PX_Domain_Mask::Phys_Pens, L"pen_caps or pen_cfg",
         [&] { bare->set_phys_pen_capabilities(capabilities->get_phys_pen_capabilities().get()); }},
        {PX_Domain_Mask::Res_Color_Mem, L"rcm_caps or rcm_config",
         [&] { bare->set_res_color_mem_capabilities(capabilities->get_res_color_mem_capabilities().get()); }},
        {PX_Domain_Mask::Init_Term, L"initterm_caps or initterm_cfg",
         [&] { bare->set_init_term_capabilities(capabilities->get_init_term_capabilities().get()); }},
        {PX_Domain_Mask::IO, L"io caps or io cfg",
         [&] { bare->set_io_capabilities(capabilities->get_io_capabilities().get()); }},
        {PX_Domain_Mask::Custom, L"custom_caps or custom_cfg",
         [&] { bare->set_custom_capabilities(capabilities->get_custom_capabilities().get()); }},
    };
    // In the order of a run: it ends with the first that is missing.
    std::size_t missing = std::size(rows);
    for (const auto& row : rows) {
        SCOPED_TRACE(row.domain);
        const Findings findings = px_check_device(plotter);
        ASSERT_EQ(findings.size(), missing--);
        EXPECT_EQ(findings.front(), (PX_Device_Finding{row.domain, L"capabilities", Fault::Object_Missing,
                                                       Effect::Throws, 1103, row.detail, 0}));
        const auto thrown = thrown_by([&] { run(device, How::Use_Default); });
        ASSERT_TRUE(thrown);
        EXPECT_EQ(thrown->code, 1103U);
        EXPECT_EQ(thrown->detail, row.detail);
        row.hang_in();
    }
    EXPECT_EQ(px_check_device(plotter), Findings());

    plotter.set_plotter_capabilities(nullptr);
    EXPECT_EQ(px_check_device(plotter), (Findings{{0, L"capabilities", Fault::Object_Missing, Effect::Throws,
                                                   1103, L"plotter_caps or plotter_cfg", 0}}));
    EXPECT_EQ(thrown_by([&] { run(device, How::Use_Default); })->detail, L"plotter_caps or plotter_cfg");
}

// A driver's definition that lacks something.
struct Bare_Definition : PX_Std_Plotter_Definition {
    Bare_Definition() : PX_Std_Plotter_Definition(new Test_Handler) {}
    void lose_factory() { m_class_factory = nullptr; }
    void lose_validator() { m_plotter_validator = nullptr; }
};

TEST(DeviceCheck, TheFactoryIsAskedForPensAlone) {
    auto* const definition = new Bare_Definition;
    const Device device(definition);
    const auto validator = device.validator();
    definition->lose_factory();
    EXPECT_EQ(px_check_device(*definition), Findings());
    device.pen_caps()->set_max_number_of_physical_pens(8);
    device.pen_caps()->set_default_num_of_phys_pens(4);
    device.pen_caps()->set_abilities(PX_Ability_Value::Ability_Required);
    EXPECT_EQ(px_check_device(*definition),
              (Findings{{PX_Domain_Mask::Phys_Pens, L"class factory", Fault::Object_Missing, Effect::Throws,
                         1103, L"class_factory", 0}}));
    device.pen_cfg()->set_number_of_physical_pens(1);
    EXPECT_EQ(thrown_by([&] { run(device, How::Use_Default); })->detail, L"class_factory");

    device.pen_caps()->set_abilities(PX_Ability_Value::Ability_None);
    device.media_caps()->set_one_ability(Number{2}, PX_Media_Ability_Flags::Ability_Number_Of_Copies);
    device.media_caps()->set_max_number_of_copies(1);
    device.media_cfg()->set_number_of_copies(2);
    definition->lose_validator();
    EXPECT_EQ(px_check_device(*definition), (Findings{{0, L"plotter validator", Fault::Object_Missing,
                                                       Effect::Throws, 1103, L"plotter validator", 0}}));
    EXPECT_EQ(thrown_by([&] {
                  validator->validate_all(Strategy::Use_Default, PX_Validation_Policy::Validate_Conditional,
                                          true);
              })->detail,
              L"plotter validator");
}

TEST(DeviceCheck, AFindingIsToldOnOneLine) {
    EXPECT_EQ(px_finding_text({PX_Domain_Mask::Media, L"default type 'x'", Fault::Names_Nothing,
                               Effect::Throws, 1103, L"newtype", 0}),
              L"media: default type 'x' names what does not exist; a run throws 1103 \"newtype\"");
    EXPECT_EQ(px_finding_text({PX_Domain_Mask::Phys_Pens, L"number of pens", Fault::Default_Not_Written,
                               Effect::Repeats, 0, L"", 0x1A}),
              L"pens: number of pens is validated, and its default is not written: what is wrong stays; "
              L"repeats itself, bits 0x1A");
    EXPECT_EQ(px_finding_text({0, L"it", Fault::Equal_Names, Effect::Passed_Over, 0, L"", 0}),
              L"device: it has the name of an earlier entry, which is found in its place; is passed over");
}

TEST(DeviceCheck, Pens) {
    using Ability = PX_Pen_Ability_Flags;
    expect_sound(Pens());
    const Faulty<Pens> rows[] = {
        {"ability", [](Pens& p) { p.set_ability(Ability::Pen_Ability_Changing, -1); },
         throws(L"ability of the pen changing", Fault::Ability_Undefined, 1001)},
        {"number",
         [](Pens& p) {
             p.caps.set_default_num_of_phys_pens(9);
             p.cfg.set_number_of_physical_pens(50);
         },
         throws(L"default number of pens", Fault::Default_Out_Of_Range, 611)},
        {"number of a device that has no pens",
         [](Pens& p) {
             p.caps.set_abilities(PX_Ability_Value::Ability_None);
             p.caps.set_default_num_of_phys_pens(9);
         },
         throws(L"default number of pens", Fault::Default_Out_Of_Range, 611)},
        {"optimization",
         [](Pens& p) {
             p.caps.set_default_pen_optimization(2);
             p.caps.set_max_pen_optimization(1);
             p.cfg.set_pen_optimization(7);
         },
         throws(L"default pen optimization", Fault::Default_Out_Of_Range, 610)},
        {"number not written",
         [](Pens& p) {
             p.set_ability(Ability::Pen_Ability_List, 4);
             p.cfg.set_number_of_physical_pens(50);
         },
         repeats(L"number of pens", Fault::Default_Not_Written, PX_Pen_Change::Number | PX_Pen_Change::List)},
        {"number not looked at",
         [](Pens& p) {
             p.set_ability(Ability::Pen_Ability_Number, 0);
             p.cfg.set_number_of_physical_pens(50);
         },
         repeats(L"number of pens", Fault::Default_Not_Written, PX_Pen_Change::List)},
        {"width",
         [](Pens& p) {
             p.caps.set_default_pen_width(0);
             p.caps.set_min_pen_width(0.5F);
         },
         repeats(L"default pen width", Fault::Default_Out_Of_Range, PX_Pen_Change::List)},
        {"speed",
         [](Pens& p) {
             p.caps.set_default_pen_speed(90);
             p.caps.set_max_pen_speed(80);
         },
         repeats(L"default pen speed", Fault::Default_Out_Of_Range, PX_Pen_Change::List)},
        {"no pens, and a width",
         [](Pens& p) {
             p.caps.set_max_number_of_physical_pens(0);
             p.caps.set_default_num_of_phys_pens(0);
             p.caps.set_default_pen_width(0);
             p.caps.set_min_pen_width(0.5F);
             p.set_ability(Ability::Pen_Ability_Optimization, 0);
             p.cfg.set_pen_optimization(7);
         },
         repeats(L"pen optimization", Fault::Default_Not_Written, PX_Pen_Change::Optimization)},
        {"optimization not written",
         [](Pens& p) {
             p.set_ability(Ability::Pen_Ability_Optimization, 0);
             p.cfg.set_pen_optimization(7);
         },
         repeats(L"pen optimization", Fault::Default_Not_Written, PX_Pen_Change::Optimization)},
    };
    expect_found<Pens>(rows, PX_Domain_Mask::Phys_Pens, [](const Pens& p) -> const Device& { return p; });
}

TEST(DeviceCheck, EveryGateIsAsked) {
    using Pen = PX_Pen_Ability_Flags;
    const auto same = [](const auto& device) -> const Device& { return device; };
    for (const Pen::Enum gate :
         {Pen::Pen_Ability_Changing, Pen::Pen_Ability_Area_Fill, Pen::Pen_Ability_Optimization_Check,
          Pen::Pen_Ability_Number, Pen::Pen_Ability_List})
        // The list needs the number, and the number the list.
        expect_gate_asked<Pens>([=](Pens& p, int ability) { p.set_ability(gate, ability); }, same, gate,
                                gate == Pen::Pen_Ability_List     ? 5
                                : gate == Pen::Pen_Ability_Number ? 1
                                                                  : 0);
    using RCM = PX_ResColorMem_Ability_Flags;
    const struct {
        RCM::Enum gate;
        int sound_from;  // what is listed is written, and others rely on it
    } rows[] = {
        {RCM::RCM_Res_Color_Mem, 4},   {RCM::RCM_Resolution, 4},       {RCM::RCM_HardSoftNo_Dithering, 0},
        {RCM::RCM_Lines_Overwrite, 0}, {RCM::RCM_Color_Vs_Mono, 0},    {RCM::RCM_Rast_Color_Vs_Res_Pref, 0},
        {RCM::RCM_ISM_Max_Mem, 0},     {RCM::RCM_Installed_Memory, 0}, {RCM::RCM_OLE_Max_Mem, 0},
        {RCM::RCM_Icm_Method, 0},      {RCM::RCM_Icm_Intent, 0},       {RCM::RCM_Dm_Color, 0}};
    for (const auto& [gate, sound_from] : rows)
        expect_gate_asked<Color>([flag = gate](Color& c, int ability) { c.set_ability(flag, ability); }, same,
                                 gate, sound_from);
    for (const auto gate :
         {PX_InitTerm_Ability_Flags::Preinit_String, PX_InitTerm_Ability_Flags::Postinit_String,
          PX_InitTerm_Ability_Flags::Termination_String})
        expect_gate_asked<Device>(
            [=](Device& d, int ability) { d.init_term_caps()->set_one_ability(Number{ability}, gate); }, same,
            gate);
}

TEST(DeviceCheck, Color) {
    expect_sound(Color());
    const Sound<Color> sound[] = {
        {"very many colours",
         [](Color& c) {
             c.color()->set_num_colors(1 << 30);
             c.cfg->set_res_color_mem(c.color().get());
         }},
        {"a very fine resolution",
         [](Color& c) {
             const PX_Float_XY fine(2e8F, 2e8F);
             c.normal()->set_phys_resolution_xy(&fine);
             c.cfg->set_resolution(c.normal().get());
         }},
        {"memory that the third name counts alone",
         [](Color& c) {
             const PX_Smart_Pointer<PX_Mem_Area> other(named<PX_Std_Mem_Area>(L"other"));
             other->set_device_memory(4);
             c.caps->get_mem_area_list()->append(other);
             (*c.normal()->get_mem_area_name_list()->begin())->set_canonical_name(L"other");
         }},
    };
    expect_no_findings<Color>(sound, [](const Color& c) -> const Device& { return c; });
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const PX_Float_XY no_number(nan, 1);
    const Faulty<Color> rows[] = {
        {"ability", [](Color& c) { c.set_ability(23, -1); },
         throws(L"ability of the lines overwrite", Fault::Ability_Undefined, 1001)},
        {"no mode",
         [](Color& c) {
             for (const auto& mode : *c.modes())
                 withdraw(mode);
         },
         throws(L"colour modes", Fault::Nothing_To_Take, 1103, L"rcm"), How::Use_Nearest, 2},
        {"colour system",
         [](Color& c) {
             c.color()->set_color_system(Number{-1});
             c.cfg->set_res_color_mem(c.color().get());
         },
         repeats(L"colour mode 'color'", Fault::Color_System_Undefined, 1), How::Use_Nearest},
        {"default mode",
         [](Color& c) {
             c.caps->set_default_res_color_mem(L"x");
             c.stale_mode();
         },
         throws(L"default colour mode 'x'", Fault::Names_Nothing, 1103, L"rcm")},
        {"withdrawn default mode",
         [](Color& c) {
             withdraw(c.modes()->find(L"mono"));
             c.stale_mode();
         },
         throws(L"default colour mode 'mono'", Fault::Names_Withdrawn, 401)},
        {"mode not written",
         [](Color& c) {
             c.caps->set_abilities(PX_Ability_Value::Ability_None);
             c.set_ability(1, 3);
             c.stale_mode();
         },
         repeats(L"colour mode", Fault::Default_Not_Written, 1)},
        {"resolution relies on the mode",
         [](Color& c) {
             c.set_ability(1, 3);
             c.stale_mode();
         },
         throws(L"resolution", Fault::Not_Ensured, 1103, L"res_color_mem_list"), How::Use_Default, 5},
        {"default resolution relies on the mode",
         [](Color& c) {
             c.set_ability(1, 3);
             c.set_ability(3, 4);
             c.stale_mode();
         },
         throws(L"default resolution", Fault::Not_Ensured, 1103, L"rcm"), How::Reset, 5},
        {"dithering relies on the resolution",
         [](Color& c) {
             c.set_ability(3, 1);
             c.stale_resolution();
         },
         throws(L"dithering", Fault::Not_Ensured, 1103, L"resolution"), How::Use_Default, 2},
        {"memory relies on the resolution",
         [](Color& c) {
             c.set_ability(3, 1);
             c.set_ability(13, 0);
             c.stale_resolution();
         },
         throws(L"installed memory", Fault::Not_Ensured, 1103, L"resolution")},
        {"no resolution",
         [](Color& c) {
             for (const auto& one : *c.resolutions())
                 withdraw(one);
         },
         throws(L"colour mode 'color', resolutions", Fault::Nothing_To_Take, 1103, L"resolution"),
         How::Use_Nearest, 2},
        {"depths beyond all others",
         [](Color& c) {
             for (const auto& mode : *c.modes())
                 mode->set_color_depth(2147483647);
             c.cfg->set_res_color_mem(PX_Smart_Pointer(color_mode(L"stale", 0, 0, 0)).get());
         },
         throws(L"colour modes", Fault::Nothing_To_Take, 1103, L"rcm"), How::Use_Nearest},
        {"mode of a withdrawn name",
         [](Color& c) {
             auto* const first = color_mode(L"far", 3000, 30, 3000, 3);
             c.modes()->append(first);
             withdraw(c.modes()->find(L"far"));
             c.modes()->append(color_mode(L"far", 3000, 30, 3000, 3));
             c.cfg->set_res_color_mem(PX_Smart_Pointer(color_mode(L"stale", 3000, 30, 3000, 3)).get());
         },
         throws(L"colour mode 'far', resolutions", Fault::Nothing_To_Take, 1103, L"resolution"),
         How::Use_Nearest, 2},
        {"memory of a first name alone",
         [](Color& c) {
             const auto names = c.normal()->get_mem_area_name_list();
             const PX_Smart_Pointer<PX_Mem_Area> other(named<PX_Std_Mem_Area>(L"other"));
             other->set_device_memory(4);
             c.caps->get_mem_area_list()->append(other);
             names->clear();
             for (const wchar_t* const name : {L"least", L"least", L"other"})
                 names->append(named<PX_Std_Caps_Name_List_Object>(name));
             c.cfg->set_installed_memory(9);
         },
         repeats(L"colour mode 'color', resolution 'normal'", Fault::Memory_Default, 0x400)},
        {"default resolution of no number",
         [&](Color& c) {
             c.resolutions()->find(L"draft")->set_effective_resolution_xy(&no_number);
             c.cfg->set_resolution(c.resolutions()->find(L"draft").get());
         },
         throws(L"colour mode 'color', resolution 'draft'", Fault::No_Measure, 1103, L"resolution"),
         How::Use_Nearest, 2},
        {"default resolution of no number, again and again",
         [&](Color& c) {
             c.resolutions()->find(L"draft")->set_effective_resolution_xy(&no_number);
             c.stale_resolution();
         },
         repeats(L"colour mode 'color', resolution 'draft'", Fault::No_Measure, 2), How::Use_Default, 2},
        {"endless resolution",
         [&](Color& c) {
             const PX_Float_XY endless(std::numeric_limits<float>::infinity(), 1);
             c.normal()->set_phys_resolution_xy(&endless);
         },
         passed_over(L"colour mode 'color', resolution 'normal'", Fault::No_Measure)},
        {"modes of one name", [](Color& c) { c.modes()->append(PX_Smart_Pointer(c.color()->clone())); },
         passed_over(L"colour mode 'color', place 3", Fault::Equal_Names)},
        {"resolutions of one name",
         [](Color& c) { c.resolutions()->append(PX_Smart_Pointer(c.normal()->clone())); },
         passed_over(L"colour mode 'color', resolution 'normal', place 4", Fault::Equal_Names)},
        {"memory areas of one name",
         [](Color& c) { c.caps->get_mem_area_list()->append(named<PX_Std_Mem_Area>(L"least")); },
         passed_over(L"memory area 'least', place 2", Fault::Equal_Names)},
        {"dithering methods of one name",
         [](Color& c) { c.caps->get_dithering_list()->append(PX_Smart_Pointer(c.soft()->clone())); },
         passed_over(L"dithering method 'soft', place 3", Fault::Equal_Names)},
        {"resolution of no number",
         [&](Color& c) {
             c.normal()->set_addr_resolution_xy(&no_number);
             c.cfg->set_resolution(c.normal().get());
         },
         throws(L"colour mode 'color', resolution 'normal'", Fault::No_Measure, 1103, L"resolution"),
         How::Use_Nearest},
        {"default resolution",
         [](Color& c) {
             c.color()->set_default_resolution(L"x");
             c.stale_resolution();
         },
         throws(L"colour mode 'color', default resolution 'x'", Fault::Names_Nothing, 1103, L"resolution")},
        {"withdrawn default resolution",
         [](Color& c) {
             withdraw(c.resolutions()->find(L"draft"));
             c.stale_resolution();
         },
         throws(L"colour mode 'color', default resolution 'draft'", Fault::Names_Withdrawn, 403)},
        {"dithering of the default resolution",
         [](Color& c) {
             withdraw(c.caps->get_dithering(L"hard"));
             c.stale_resolution();
         },
         throws(L"colour mode 'color', default resolution 'draft', dithering 'hard'", Fault::Names_Withdrawn,
                403),
         How::Use_Default, 4},
        {"withdrawn dithering", [](Color& c) { withdraw(c.soft()); },
         repeats(L"colour mode 'color', resolution 'normal', dithering 'soft'", Fault::Names_Withdrawn, 2),
         How::Use_Nearest, 2},
        {"no dithering",
         [](Color& c) {
             c.set_ability(5, 4);
             c.normal()->set_dithering_name(L"x");
         },
         throws(L"colour mode 'color', resolution 'normal', dithering 'x'", Fault::Names_Nothing, 1103,
                L"dithering")},
        {"memory that no area has", [](Color& c) { c.caps->get_mem_area(L"least")->set_device_memory(4); },
         repeats(L"colour mode 'color', resolution 'normal'", Fault::Memory_Default, 0x400), How::Use_Default,
         4},
        {"name of no area",
         [](Color& c) {
             c.normal()->get_mem_area_name_list()->append(named<PX_Std_Caps_Name_List_Object>(L"x"));
         },
         passed_over(L"colour mode 'color', resolution 'normal', memory area 'x'", Fault::Names_Nothing)},
        {"identity",
         [](Color& c) {
             c->set_meta_capabilities(nullptr);
             c.set_ability(11, 1);
         },
         throws(L"identity", Fault::Object_Missing, 1103, L"meta_capabilities")},
    };
    expect_found<Color>(rows, PX_Domain_Mask::Res_Color_Mem,
                        [](const Color& c) -> const Device& { return c; });
}

struct Settings : Device {
    PX_Custom_Capability& add(PX_Smart_Pointer<PX_Custom_Capability> setting, const Data& chosen) const {
        custom_caps()->get_custom_list()->append(setting);
        custom_cfg()->get_custom_list()->append(item(setting->get_canonical_name(), chosen));
        return *setting;
    }
};

// A driver's setting, whose default is of no type.
struct Untyped : PX_Std_Custom_Capability {
    struct Value : PX_Std_Long_Custom_Data {
        Value() : PX_Std_Long_Custom_Data(1) {}
        PX_Data_Type::Enum type() const override { return PX_Data_Type::Data_Undefined; }
    };
    Untyped() {
        set_canonical_name(L"x");
        set_data_type(PX_Data_Type::Data_Long);
        set_verifiable(false);
    }
    PX_Smart_Pointer<PX_Custom_Data> get_default_data_value() const override { return new Value; }
};

TEST(DeviceCheck, Settings) {
    using S = Settings;
    Settings sound;
    sound.add(setting(L"range", of(5L), 0, 10), of(11L));
    sound.add(setting(L"real", of(0.5), 0, 1), of(2.0));
    sound.add(choice(of(L"a"), {of(L"a"), of(L"b")}), of(L"c"));
    sound.add(setting(L"any", of(L"")), of(L"c")).set_verifiable(false);
    expect_sound(sound);

    const Faulty<S> rows[] = {
        {"no list", [](S& s) { s.custom_caps()->set_custom_list(nullptr); },
         throws(L"settings", Fault::List_Missing, 1103, L"custom_caps or custom_cfg"), How::All_To_Defaults},
        {"no default", [](S& s) { s.add(setting(L"x", nullptr, 0, 10), of(11L)); },
         throws(L"setting 'x', default", Fault::Object_Missing, 1103, L"default_data_value")},
        {"default of no type",
         [](S& s) {
             s.custom_caps()->get_custom_list()->append(PX_Smart_Pointer<PX_Custom_Capability>(new Untyped));
         },
         throws(L"setting 'x', default", Fault::Data_Type_Undefined, 701), How::All_To_Defaults},
        {"range of texts", [](S& s) { s.add(setting(L"x", of(L"a"), 0, 10), of(L"a")); },
         throws(L"setting 'x'", Fault::Range_Of_No_Number, 702)},
        {"no values", [](S& s) { s.add(choice(of(1L), {}), of(1L)); },
         throws(L"setting 'x', values", Fault::Nothing_To_Take, 703)},
        {"no count of values", [](S& s) { s.add(choice(of(1L), {of(1L)}), of(1L)).set_num_values(0); },
         throws(L"setting 'x', values", Fault::Nothing_To_Take, 703)},
        {"no list of values", [](S& s) { s.add(choice(of(1L), {}), of(1L)).set_value_list(nullptr); },
         throws(L"setting 'x', values", Fault::List_Missing, 703)},
        {"no type",
         [](S& s) { s.add(choice(of(1L), {of(1L)}), of(1L)).set_data_type(PX_Data_Type::Data_Undefined); },
         repeats(L"setting 'x'", Fault::Data_Type_Undefined, 0)},
        {"default of another type",
         [](S& s) {
             s.add(setting(L"x", of(1L), 0, 10), of(5.0)).set_data_type(PX_Data_Type::Data_Double);
             s.custom_cfg()->get_custom(L"x")->set_config_value(of(50.0).get());
         },
         repeats(L"setting 'x', default", Fault::Default_Of_Other_Type, 0)},
        {"default out of range", [](S& s) { s.add(setting(L"x", of(11L), 0, 10), of(12L)); },
         repeats(L"setting 'x', default", Fault::Default_Out_Of_Range, 0)},
        {"reversed range",
         [](S& s) {
             auto& x = s.add(setting(L"x", of(5L), 0, 10), of(5L));
             x.set_range_min(20);
         },
         repeats(L"setting 'x', range", Fault::Limits_Reversed, 0)},
        {"default not listed",
         [](S& s) {
             s.add(choice(of(L"c"), {of(L"a"), of(L"b")}), of(L"d"));
         },
         repeats(L"setting 'x', default", Fault::Default_Not_Offered, 0)},
        {"default withdrawn",
         [](S& s) {
             auto& x = s.add(choice(of(L"a"), {of(L"a"), of(L"b")}), of(L"d"));
             withdraw(*x.get_value_list()->begin());
         },
         repeats(L"setting 'x', default", Fault::Default_Not_Offered, 0)},
        {"value of another type",
         [](S& s) {
             s.add(choice(of(L"a"), {of(L"a"), of(1L)}), of(L"a"));
         },
         passed_over(L"setting 'x', value 2", Fault::Value_Never_Matches)},
        {"equal names",
         [](S& s) {
             s.add(choice(of(L"a"), {of(L"a")}), of(L"a"));
             s.custom_caps()->get_custom_list()->append(choice(of(1L), {of(1L)}));
         },
         passed_over(L"setting 'x', place 2", Fault::Equal_Names)},
        {"equal names, the second without a default",
         [](S& s) {
             s.add(choice(of(L"a"), {of(L"a")}), of(L"a"));
             s.custom_caps()->get_custom_list()->append(setting(L"x", nullptr, 0, 10));
         },
         throws(L"setting 'x', place 2, default", Fault::Object_Missing, 1103, L"default_data_value"),
         How::All_To_Defaults, 2},
        {"equal names, the first withdrawn",
         [](S& s) {
             auto first = choice(of(L"a"), {of(L"a")});
             withdraw(first);
             s.custom_caps()->get_custom_list()->append(first);
             s.custom_caps()->get_custom_list()->append(choice(of(1L), {of(1L)}));
             s.validator()->set_all_to_defaults();
         },
         throws(L"setting 'x', place 2", Fault::Equal_Names, 704)},
        {"withdrawn, whatever it is",
         [](S& s) {
             s.custom_caps()->get_custom_list()->append(choice(of(L"a"), {of(L"a")}));
             auto bad = setting(L"bad", nullptr);
             withdraw(bad);
             s.custom_caps()->get_custom_list()->append(bad);
             s.custom_caps()->get_custom_list()->append(choice(of(1L), {of(1L)}));
         },
         passed_over(L"setting 'x', place 3", Fault::Equal_Names)},
    };
    expect_found<S>(rows, PX_Domain_Mask::Custom, [](const S& s) -> const Device& { return s; });
}

}  // namespace
