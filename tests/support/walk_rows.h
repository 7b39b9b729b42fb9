#pragma once

#include <string>
#include <vector>

#include "tests/support/io.h"
#include "tests/support/media.h"
#include "tests/support/rcm.h"
#include "toolkit/core/module.h"
#include "toolkit/platform/scripted/scripted_platform.h"

// The data of the walk, each with a device that its choice can be spoiled for.
namespace support {

// One datum: its ability, its flag and the bits that repairing it raises, 0 where nothing is ever repaired.
// `spoil` chooses what the device does not have; `settled_too` are the flags that follow it, 1 shifted by
// each.
template <class Bench>
struct Row {
    int ability;
    int datum;
    long bits;
    void (*spoil)(Bench&);
    int settled_too = 0;
};

inline void make_all_conditional(const PX_Plotter_Capabilities& caps) {
    caps.get_media_capabilities()->set_abilities(PX_Ability_Value::Ability_Conditional);
    caps.get_phys_pen_capabilities()->set_abilities(PX_Ability_Value::Ability_Conditional);
    caps.get_res_color_mem_capabilities()->set_abilities(PX_Ability_Value::Ability_Conditional);
    caps.get_init_term_capabilities()->set_abilities(PX_Ability_Value::Ability_Conditional);
    caps.get_io_capabilities()->set_abilities(PX_Ability_Value::Ability_Conditional);
}

// Gives the row's datum the ability, spoils its choice, and makes the data of all other rows conditional. No
// flag of the domain is up in its configuration, which is returned.
template <class Domain, class Bench>
auto set_up_row(Bench& bench, const Row<Bench>& row, const std::vector<Row<Bench>>& rows,
                PX_Ability_Value::Enum ability) {
    const auto root = bench.get()->get_plotter_capabilities();
    const auto caps = ((*root).*Domain::get_capabilities)();
    // The other flags of its own domain stay, for the sake of what its rows ask of each other.
    const std::wstring before = caps->get_abilities();
    make_all_conditional(*root);
    caps->set_abilities(before.c_str());
    for (const auto& other : rows)
        caps->set_one_ability(PX_Ability_Value::Ability_Conditional, Number{other.ability});
    caps->set_one_ability(ability, Number{row.ability});
    row.spoil(bench);
    const auto cfg = ((*bench.get()->get_plotter_configuration()).*Domain::get_configuration)();
    cfg->set_validated(false);
    cfg->set_default(false);
    return cfg;
}

// A plotter of up to 8 pens, whose user has none.
struct Pen_Device : Device {
    Pen_Device() {
        pen_caps()->set_abilities(PX_Ability_Value::Ability_Required);
        pen_caps()->set_max_number_of_physical_pens(8);
    }
};

// With its machine, which has both of its ports.
struct IO_Machine : PX_Scripted_Platform {
    IO_Machine() {
        PX_Module_Exit();
        add_port(L"COM1:");
        add_port(L"LPT1:");
    }
    ~IO_Machine() { PX_Module_Exit(); }
};
struct Connected_Device : IO_Device {
    IO_Machine machine;
    const PX_Use_Platform use{machine};
};

inline std::vector<Row<Media_Device>> media_rows() {
    using B = Media_Device;
    static const PX_Float_Rectangle outside(-9, 9999, -9, 9999);
    static const PX_Float_XY smaller(209, 297);
    static const PX_Float_Rectangle inside(50, 60, 50, 60);
    // clang-format off
    return {
        {0, 0, 0x40, [](B& b) { b.cfg->set_media_selection_method(Number{0x40}); }},
        {10, 1, 0x80, [](B& b) { drop(b.types(), L"plain"); }},
        {1, 2, 0x1, [](B& b) { b.tray()->set_media_feed(Number{2}); }},
        {3, 3, 0x20000, [](B& b) { drop(b.entries(), L"upper"); }},
        // The default size is a smaller one.
        {5, 4, 0x2, [](B& b) { b.a4_sheet()->set_media_bounds(&smaller); b.cfg->set_margins(&inside); }},
        {7, 5, 0x1E004, [](B& b) { drop(b.destinations(), L"bin"); }, 0xF << 13},
        {23, 6, 0x10, [](B& b) { b.cfg->set_number_of_copies(6); }},
        {22, 7, 0x8, [](B& b) { b.cfg->set_duplexing_mode(Number{8}); }},
        {5, 8, 0x20, [](B& b) { b.cfg->set_margins(&outside); }},
        {25, 9, 0x200, [](B& b) { b.cfg->set_longplot_reduction(0.5); }},
        {28, 10, 0x400, [](B& b) { b.cfg->set_dm_scale(0); }},
        {29, 11, 0x800, [](B& b) { b.cfg->set_dm_orientation(7); }},
        {13, 12, 0x1000, [](B& b) { b.cfg->set_actual_printable_bounds(&outside); }},
    };
    // clang-format on
}

inline std::vector<Row<Pen_Device>> pen_rows() {
    using B = Pen_Device;
    return {
        {0, 0, 0x1, [](B& b) { b.pen_cfg()->set_number_of_physical_pens(9); }},
        {16, 1, 0x10, [](B& b) { b.pen_cfg()->set_number_of_physical_pens(3); }},
        {15, 4, 0x2, [](B& b) { b.pen_cfg()->set_pen_changing_enable(true); }},
        {2, 2, 0x4, [](B& b) { b.pen_cfg()->set_area_fill_correction(true); }},
        {6, 3, 0x8, [](B& b) { b.pen_cfg()->set_pen_optimization(1); }},
    };
}

inline std::vector<Row<RCM_Device>> color_rows() {
    using B = RCM_Device;
    // clang-format off
    return {
        {1, 0, 0x1, [](B& b) { b.color()->set_color_depth(9); }},
        {3, 1, 0x2, [](B& b) { b.normal()->set_addr_resolution_xy(nullptr); }},
        {13, 7, 0x80, [](B& b) { b.cfg->set_hardsoftno_dithering(Number{0}); }},
        {23, 11, 0, [](B& b) { b.cfg->set_lines_overwrite(false); }},
        {14, 8, 0, [](B&) {}},
        {15, 9, 0x200, [](B& b) { b.cfg->set_rast_color_vs_res_pref(101); }},
        {16, 10, 0x400, [](B& b) { b.set_ability(7, 5); b.cfg->set_installed_memory(5); }},
        {11, 5, 0x20, [](B& b) { b.driver().lacks_memory = true; }},
        {12, 6, 0x40, [](B& b) { b.driver().lacks_memory = true; }},
        {19, 2, 0x4, [](B& b) { b.cfg->set_icm_method(0); }},
        {20, 3, 0x8, [](B& b) { b.cfg->set_icm_intent(0); }},
        {21, 4, 0x10, [](B& b) { b.cfg->set_dm_color(3); }},
    };
    // clang-format on
}

inline std::vector<Row<Device>> string_rows() {
    static const PX_Dev_String chosen = dev_string("reset");
    return {{0, 0, 0, [](Device& b) { b.init_term_cfg()->set_preinit_string(&chosen); }},
            {1, 1, 0, [](Device& b) { b.init_term_cfg()->set_postinit_string(&chosen); }},
            {2, 2, 0, [](Device& b) { b.init_term_cfg()->set_termination_string(&chosen); }}};
}

inline std::vector<Row<Connected_Device>> output_rows() {
    using B = Connected_Device;
    return {
        {2, 1, 0x3, [](B& b) { b.cfg.set_portname(L"COM9"); }, 1},
        {5, 2, 0x4, [](B& b) { b.cfg.set_protocol(L"gone"); }},
        {6, 3, 0x8, [](B& b) { b.cfg.set_baud_rate(1); }},
        {7, 4, 0x10, [](B& b) { b.cfg.set_handshake(64); }},
        {9, 5, 0x20, [](B& b) { b.cfg.set_input_timeout(101); }},
        {8, 6, 0x40, [](B& b) { b.cfg.set_output_timeout(201); }},
        {11, 7, 0x80,
         [](B& b) {
             b.cfg.set_plot_to_file(true);
             b.cfg.set_pathname(L"plot.plt");
         }},
    };
}

}  // namespace support
