#include <limits>

#include "tests/report/findings.h"
#include "tests/support/custom.h"
#include "tests/support/io.h"
#include "tests/support/rcm.h"
#include "toolkit/core/module.h"
#include "toolkit/platform/scripted/scripted_platform.h"

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

TEST(DeviceCheck, AFindingIsToldOnOneLine) {
    EXPECT_EQ(px_finding_text({PX_Domain_Mask::Media, L"default type 'x'", Fault::Names_Nothing,
                               Effect::Throws, 1103, L"newtype", 0}),
              L"media: default type 'x' names what does not exist; a run throws 1103 \"newtype\"");
    EXPECT_EQ(px_finding_text({PX_Domain_Mask::Phys_Pens, L"number of pens", Fault::Default_Not_Written,
                               Effect::Repeats, 0, L"", 0x1A}),
              L"pens: number of pens is validated, and its default is not written: what is wrong stays; "
              L"repeats itself, bits 0x1A");
    EXPECT_EQ(px_finding_text({0, L"it", Fault::Equal_Names, Effect::Passed_Over, 0, L"", 0}),
              L"device: it has the name of an earlier entry, and is never found; is passed over");
}

struct Pens : Device {
    Pens() {
        caps.set_abilities(PX_Ability_Value::Ability_Required);
        caps.set_max_number_of_physical_pens(8);
        caps.set_default_num_of_phys_pens(4);
        caps.set_max_pen_optimization(2);
        cfg.set_number_of_physical_pens(2);
    }
    void set_ability(PX_Pen_Ability_Flags::Enum flag, int ability) {
        caps.set_one_ability(Number{ability}, flag);
    }
    PX_PhysPen_Capabilities& caps = *pen_caps();
    PX_PhysPen_Configuration& cfg = *pen_cfg();
};

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
        {"optimization not written",
         [](Pens& p) {
             p.set_ability(Ability::Pen_Ability_Optimization, 0);
             p.cfg.set_pen_optimization(7);
         },
         repeats(L"pen optimization", Fault::Default_Not_Written, PX_Pen_Change::Optimization)},
    };
    expect_found<Pens>(rows, PX_Domain_Mask::Phys_Pens, [](const Pens& p) -> const Device& { return p; });
}

// A colour device whose resolutions count a memory of 0.
struct Color : RCM_Device {
    Color() {
        drop(modes(), L"rich");
        set_ability(7, 5);
        const PX_Smart_Pointer<PX_Mem_Area> least(named<PX_Std_Mem_Area>(L"least"));
        caps->get_mem_area_list()->append(least);
        for (const auto& mode : *modes()) {
            for (const auto& resolution : *mode->get_resolution_list()) {
                for (int time = 0; time < 3; ++time)
                    resolution->get_mem_area_name_list()->append(
                        named<PX_Std_Caps_Name_List_Object>(L"least"));
            }
        }
        cfg->set_resolution(normal().get());
        cfg->set_res_color_mem(color().get());
    }
    void stale_mode() { cfg->set_res_color_mem(PX_Smart_Pointer(color_mode(L"stale", 1, 1, 1)).get()); }
    void stale_resolution() {
        cfg->set_resolution(PX_Smart_Pointer(support::resolution(L"stale", {1, 1}, {}, {})).get());
    }
};

TEST(DeviceCheck, Color) {
    expect_sound(Color());
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
         passed_over(L"setting 'x'", Fault::Equal_Names)},
        {"equal names, the first withdrawn",
         [](S& s) {
             auto first = choice(of(L"a"), {of(L"a")});
             withdraw(first);
             s.custom_caps()->get_custom_list()->append(first);
             s.custom_caps()->get_custom_list()->append(choice(of(1L), {of(1L)}));
             s.validator()->set_all_to_defaults();
         },
         throws(L"setting 'x'", Fault::Equal_Names, 704)},
        {"withdrawn, whatever it is",
         [](S& s) {
             s.custom_caps()->get_custom_list()->append(choice(of(L"a"), {of(L"a")}));
             auto bad = setting(L"bad", nullptr);
             withdraw(bad);
             s.custom_caps()->get_custom_list()->append(bad);
             s.custom_caps()->get_custom_list()->append(choice(of(1L), {of(1L)}));
         },
         passed_over(L"setting 'x'", Fault::Equal_Names)},
    };
    expect_found<S>(rows, PX_Domain_Mask::Custom, [](const S& s) -> const Device& { return s; });
}

// A machine with a serial and a parallel port, and a device on it.
struct Output {
    Output() {
        PX_Module_Exit();
        machine.add_port(L"COM1:");
        machine.add_port(L"LPT1:");
        io->device->get_error_handler()->set_quiet_mode(true);
    }
    ~Output() { PX_Module_Exit(); }

    void set_ability(PX_Plotter_IO_Ability_Flags::Enum flag, int ability) const {
        io->caps.set_one_ability(Number{ability}, flag);
    }
    void set_ability(PX_IO_Method_Ability_Flags::Enum flag, int ability) const {
        io->serial.set_one_ability(Number{ability}, flag);
    }
    PX_Scripted_Platform machine;
    PX_Use_Platform use{machine};
    std::unique_ptr<IO_Device> io = std::make_unique<IO_Device>();
};

TEST(DeviceCheck, Output) {
    using O = Output;
    using Ability = PX_Plotter_IO_Ability_Flags;
    using Method = PX_IO_Method_Ability_Flags;
    using Type = PX_IO_Type;
    using Change = PX_IO_Change;
    {
        const Output sound;
        expect_sound(sound.io->device);
    }
    const Faulty<O> rows[] = {
        {"ability", [](O& o) { o.set_ability(Ability::IO_Pathname, -1); },
         throws(L"ability of the path name", Fault::Ability_Undefined, 1001)},
        {"no list of methods", [](O& o) { o.io->caps.set_method_list(nullptr); },
         throws(L"methods", Fault::List_Missing, 1101, L"workmethlist"), How::Use_Default, 2},
        {"type met twice", [](O& o) { o.io->add_method(Type::Serial); },
         passed_over(L"method 'serial'", Fault::Equal_Names)},
        {"identity",
         [](O& o) {
             o.io->device->set_meta_capabilities(nullptr);
             o.io->caps.set_one_ability(Number{0}, Ability::IO_Protocol);
             o.io->configure(Type::Driver_Plain, L"");
         },
         throws(L"identity", Fault::Object_Missing, 1103, L"meta_capabilities")},
        {"default type of no machine",
         [](O& o) {
             o.set_ability(Ability::IO_System_Ports, 0);
             o.set_ability(Ability::IO_Baud_Rate, 0);
             o.io->configure(Type::No_IO_Type, L"");
         },
         repeats(L"default type 'parallel'", Fault::Type_Never_Valid, Change::Portname | Change::Type)},
        {"default type without a method",
         [](O& o) {
             o.io->caps.set_default_type(Type::Parallel);
             o.io->caps.get_method_list()->remove(&o.io->parallel);
             o.set_ability(Ability::IO_Baud_Rate, 0);
             o.set_ability(Ability::IO_Protocol, 0);
             o.io->configure(Type::No_IO_Type, L"");
         },
         repeats(L"default type 'parallel'", Fault::Method_Missing, Change::Portname | Change::Type)},
        {"default type that goes to a file",
         [](O& o) {
             o.io->caps.set_default_type(Type::Driver_System);
             o.set_ability(Ability::IO_Protocol, 0);
         },
         passed_over(L"default type 'of a system driver'", Fault::Type_Never_Valid)},
        {"defaults without a method", [](O& o) { o.io->caps.get_method_list()->remove(&o.io->parallel); },
         throws(L"method 'parallel'", Fault::Method_Missing, 217), How::All_To_Defaults, 3},
        {"default rate without a method",
         [](O& o) {
             o.io->caps.get_method_list()->remove(&o.io->parallel);
             o.set_ability(Ability::IO_Protocol, 0);
         },
         throws(L"method 'parallel', default baud rate", Fault::Type_Never_Valid, 215), How::All_To_Defaults,
         2},
        {"protocol of a parallel port",
         [](O& o) { o.io->parallel.set_one_ability(Number{4}, Method::Method_Default_Protocol); },
         throws(L"method 'parallel', default protocol", Fault::Type_Never_Valid, 217), How::All_To_Defaults},
        {"rate without a port",
         [](O& o) {
             o.set_ability(Ability::IO_System_Ports, 0);
             o.set_ability(Ability::IO_Type, 0);
             o.io->add_method(Type::No_IO_Type).set_one_ability(Number{4}, Method::Method_Default_Baud_Rate);
         },
         throws(L"method 'none', default baud rate", Fault::Type_Never_Valid, 1101, L"workratelist"),
         How::All_To_Defaults},
        {"no serial method",
         [](O& o) {
             o.io->caps.get_method_list()->remove(&o.io->serial);
             o.io->cfg.set_all_system_ports_valid(true);
         },
         throws(L"method 'serial'", Fault::Method_Missing, 1103, L"extramethod")},
        {"protocols without methods",
         [](O& o) {
             o.set_ability(Ability::IO_Methods, 0);
             for (const Ability::Enum other : {Ability::IO_Type, Ability::IO_Baud_Rate,
                                               Ability::IO_Input_Timeout, Ability::IO_Output_Timeout})
                 o.set_ability(other, 1);
             o.io->caps.set_default_type(Type::Serial);
             o.io->cfg.set_protocol(L"x");
         },
         throws(L"nearest protocol", Fault::Method_Missing, 217), How::Use_Nearest, 2},
        {"protocol without methods",
         [](O& o) {
             o.io->caps.set_abilities(PX_Ability_Value::Ability_None);
             o.set_ability(Ability::IO_Protocol, 2);
             o.set_ability(Ability::IO_System_Ports, 1);
             o.set_ability(Ability::IO_Type, 1);
             o.io->caps.set_default_type(Type::Serial);
             o.io->cfg.set_protocol(L"x");
         },
         repeats(L"protocol", Fault::Method_Missing, Change::Protocol), How::Use_Default, 2},
        {"rates without methods",
         [](O& o) {
             o.set_ability(Ability::IO_Methods, 0);
             for (const Ability::Enum other : {Ability::IO_Type, Ability::IO_Protocol,
                                               Ability::IO_Input_Timeout, Ability::IO_Output_Timeout})
                 o.set_ability(other, 1);
             o.io->caps.set_default_type(Type::Serial);
             o.io->cfg.set_baud_rate(1);
         },
         repeats(L"baud rate", Fault::Method_Missing, Change::Baud_Rate)},
        {"time-outs without methods",
         [](O& o) {
             o.io->caps.set_abilities(PX_Ability_Value::Ability_None);
             o.set_ability(Ability::IO_Input_Timeout, 2);
         },
         repeats(L"input time-out", Fault::Method_Missing, Change::Input_Timeout)},
        {"protocol list not counted", [](O& o) { o.set_ability(Method::Method_Protocol_List, 0); },
         repeats(L"method 'serial', protocols", Fault::List_Not_Counted, Change::Protocol)},
        {"no protocol",
         [](O& o) {
             o.io->serial.get_protocol_list()->clear();
             o.io->add_protocol(L"8n1");
         },
         throws(L"method 'serial', protocols", Fault::Nothing_To_Take, 217), How::Use_Default, 2},
        {"default protocol", [](O& o) { o.io->serial.set_default_protocol(L"x"); },
         passed_over(L"method 'serial', default protocol 'x'", Fault::Default_Not_Offered)},
        {"rate list not counted", [](O& o) { o.set_ability(Method::Method_Baud_Rate_List, 0); },
         repeats(L"method 'serial', baud rates", Fault::List_Not_Counted, Change::Baud_Rate)},
        {"no rate", [](O& o) { o.io->serial.get_baud_rate_list()->clear(); },
         throws(L"method 'serial', baud rates", Fault::Nothing_To_Take, 215)},
        {"one rate, which is not the default",
         [](O& o) {
             o.io->serial.get_baud_rate_list()->clear();
             o.io->add_rate(4800);
             o.io->caps.set_default_type(Type::Serial);
         },
         throws(L"method 'serial', default baud rate", Fault::Default_Not_Offered, 215),
         How::All_To_Defaults},
        {"default handshake", [](O& o) { o.io->serial.set_handshakes(3); },
         passed_over(L"method 'serial', default handshake", Fault::Default_Not_Offered)},
        {"reversed time-outs", [](O& o) { o.io->serial.set_min_input_timeout(101); },
         repeats(L"method 'serial', limits of the input time-out", Fault::Limits_Reversed,
                 Change::Input_Timeout),
         How::Use_Nearest},
        {"default time-out", [](O& o) { o.io->serial.set_default_output_timeout(1); },
         passed_over(L"method 'serial', default output time-out", Fault::Default_Out_Of_Range)},
    };
    expect_found<O>(rows, PX_Domain_Mask::IO, [](const O& o) -> const Device& { return o.io->device; });

    // The channel asks in its own way.
    Output none;
    none.io->caps.get_method_list()->clear();
    none.io->caps.set_abilities(PX_Ability_Value::Ability_None);
    none.set_ability(Ability::IO_Methods, 1);
    EXPECT_EQ(
        px_check_device(*none.io->get()),
        (Findings{{PX_Domain_Mask::IO, L"methods", Fault::Nothing_To_Take, Effect::Throws, 210, L"", 0}}));
    EXPECT_EQ(thrown_by([&] { none.io->caps.get_method(Type::Serial); })->code, 210U);
}

}  // namespace
