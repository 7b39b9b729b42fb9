#include <gtest/gtest.h>

#include <functional>
#include <set>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/custom.h"
#include "tests/support/walk_rows.h"
#include "toolkit/marvcon/std_init_term_cfg/domain.h"
#include "toolkit/marvcon/std_io_cfg/domain.h"
#include "toolkit/marvcon/std_media_cfg/domain.h"
#include "toolkit/marvcon/std_phys_pen_cfg/domain.h"
#include "toolkit/marvcon/std_res_color_mem_cfg/domain.h"
#include "toolkit/report.h"

namespace {

using namespace support;
using Kind = PX_Change_Kind;
using Mask = PX_Domain_Mask;
using Policy = PX_Validation_Policy;
using Value = PX_Ability_Value;

PX_Change_Report report_of(PX_Plotter_Definition& plotter, const PX_Validation_Order& order) {
    const PX_Configuration_Snapshot before(*plotter.get_plotter_configuration());
    plotter.get_plotter_validator()->validate_all(order.strategy, order.policy, order.validate_settable);
    return {before, plotter, order};
}

// The driver's configuration of the bench has a clone that knows nothing.
void use_standard(Media_Device& bench) {
    const PX_Smart_Pointer<PX_Media_Configuration> standard(
        static_cast<const PX_Std_Media_Configuration&>(*bench.cfg).PX_Std_Media_Configuration::clone());
    bench->get_plotter_configuration()->set_media_configuration(standard.get());
    bench.cfg = bench.media_cfg();
}

template <class Bench>
void use_standard(Bench&) {
}

std::string table_of(const PX_Change_Report& report) {
    std::ostringstream out;
    px_print_changes(out, report);
    return out.str();
}

// The outcome, with an exclamation mark where a bit is raised, and a tilde where none tells of the change.
std::string told(const PX_Datum_Change& row) {
    return px_word_of_outcome(row) + (row.is_raised ? "!" : row.is_silent() ? "~" : "");
}

// What becomes of each datum of a domain that its device does not have: when its ability is fixed, and when
// it is validated, under the one and the other strategy. Data that change beside it follow with a plus sign.
template <class Domain, class Bench>
std::string outcomes(Mask::Enum mask, const std::vector<Row<Bench>>& rows) {
    std::string all;
    for (const auto& row : rows) {
        std::string line = std::to_string(row.datum);
        for (const auto& [ability, strategy] : {std::pair(Value::Ability_Fixed, Strategy::Use_Default),
                                                {Value::Ability_Settable, Strategy::Use_Default},
                                                {Value::Ability_Settable, Strategy::Use_Nearest}}) {
            Bench bench;
            use_standard(bench);
            set_up_row<Domain>(bench, row, rows, ability);
            const auto report = report_of(*bench.get(), {strategy, Policy::Keep_Conditional, true});
            const PX_Datum_Change* const change = report.find({mask, row.datum});
            line += change ? ", " + told(*change) : ", missing";
            for (const PX_Datum_Change& other : report.get_rows()) {
                if (&other == change)
                    continue;
                if (other.is_changed())
                    line += " +" + std::to_string(other.datum.number) + ' ' + told(other);
            }
        }
        all += line + '\n';
    }
    return all;
}

TEST(Change_Report, TellsHowEachMediaDatumChanged) {
    EXPECT_EQ(outcomes<PX_Media_Domain>(Mask::Media, media_rows()),
              "0, reset~, default!, default!\n"
              "1, reset~, default!, nearest 1!\n"
              "2, reset~, default!, nearest!\n"
              "3, reset~, default!, nearest 1!\n"
              "4, reset~ +8 reset~ +12 along~, default! +12 along~, nearest 4.761905!\n"
              "5, reset~ +13 reset~ +14 reset~ +15 reset~ +16 reset~, "
              "default! +13 default! +14 default! +15 default! +16 default!, nearest 0!\n"
              "6, reset~, default!, nearest!\n"
              "7, reset~, default!, default!\n"
              "8, reset~ +4 reset~ +12 along~, own rule!, own rule!\n"
              "9, reset~, default!, default!\n"
              "10, reset~, default!, default!\n"
              "11, reset~, default!, default!\n"
              "12, reset~, own rule!, own rule!\n");
}

// The default of the number is written for a device that keeps a list, which this one does not.
TEST(Change_Report, TellsHowEachPenDatumChanged) {
    EXPECT_EQ(outcomes<PX_Pen_Domain>(Mask::Phys_Pens, pen_rows()),
              "0, kept, kept!, nearest 1!\n"
              "1, reset~, own rule!, own rule!\n"
              "4, reset~, default!, default!\n"
              "2, reset~, default!, default!\n"
              "3, reset~, default!, default!\n");
}

// The default mode and resolution are none that the abilities of the bench let be written; its two limits are
// spoiled and cured together.
TEST(Change_Report, TellsHowEachDatumOfResolutionColourAndMemoryChanged) {
    EXPECT_EQ(outcomes<PX_RCM_Domain>(Mask::Res_Color_Mem, color_rows()),
              "0, kept, kept!, nearest 100.1!\n"
              "1, kept, kept!, nearest 0.5!\n"
              "7, kept, own rule!, own rule!\n"
              "11, reset~, kept, kept\n"
              "8, kept, kept, kept\n"
              "9, reset~, default!, nearest!\n"
              "10, reset~, default!, default!\n"
              "5, reset~ +6 along~, default! +6 along~, default! +6 along~\n"
              "6, reset~ +5 along~, default! +5 along~, default! +5 along~\n"
              "2, reset~, default!, default!\n"
              "3, reset~, default!, default!\n"
              "4, reset~, default!, default!\n");
}

TEST(Change_Report, TellsHowEachDeviceStringChanged) {
    EXPECT_EQ(outcomes<PX_InitTerm_Domain>(Mask::Init_Term, string_rows()),
              "0, reset~, kept, kept\n"
              "1, reset~, kept, kept\n"
              "2, reset~, kept, kept\n");
}

TEST(Change_Report, TellsHowEachOutputDatumChanged) {
    EXPECT_EQ(outcomes<PX_IO_Domain>(Mask::IO, output_rows()),
              "1, reset~, default!, nearest!\n"
              "2, reset~, default!, nearest!\n"
              "3, reset~, default!, nearest!\n"
              "4, reset~, default!, default!\n"
              "5, reset~, default!, nearest!\n"
              "6, reset~, default!, nearest!\n"
              "7, reset~, default!, default!\n");
}

// A change of one value, by its setter or in what was kept of the chosen entry.
struct Single_Change {
    int datum;
    std::function<void(const Device&)> make;
};

PX_Smart_Pointer<PX_Media_Settings> had(const Device& device) {
    return device.media_cfg()->get_media_settings();
}
PX_Smart_Pointer<PX_ResColorMem_Settings> had_color(const Device& device) {
    return device.rcm_cfg()->get_rescolormem_settings();
}

template <class Entry, class Configuration, class Contract>
auto choose(PX_Smart_Pointer<Configuration> (Device::*get)() const,
            void (Configuration::*set)(const Contract*)) {
    return [=](const Device& device) {
        const PX_Smart_Pointer<Contract> entry(named<Entry>(L"other"));
        ((*(device.*get)()).*set)(entry.get());
    };
}

const PX_Float_XY pair(1, 2);
const PX_Float_Rectangle bounds(1, 2, 3, 4);

void expect_each_seen(Mask::Enum domain, const std::vector<Single_Change>& changes) {
    for (std::size_t at = 0; at < changes.size(); ++at) {
        const Device device;
        const auto& root = *device->get_plotter_configuration();
        const PX_Configuration_Snapshot before(root);
        changes[at].make(device);
        const PX_Configuration_Snapshot after(root);
        std::set<int> different;
        for (const PX_Datum_Value& was : before.get_values()) {
            if (was.exact == after.find(was.datum)->exact)
                continue;
            EXPECT_EQ(was.datum.domain, domain) << "change " << at;
            different.insert(was.datum.number);
        }
        EXPECT_EQ(different, std::set{changes[at].datum}) << "change " << at;
    }
}

TEST(Change_Report, SeesEachValueThatDiffersAndNoOther) {
    using M = PX_Media_Configuration;
    using D = const Device&;
    constexpr auto media = &Device::media_cfg;
    // clang-format off
    expect_each_seen(Mask::Media, {
        {0, [](D d) { d.media_cfg()->set_media_selection_method(Number{2}); }},
        {1, [](D d) { had(d)->set_drying_time(1); }},
        {1, [](D d) { had(d)->set_max_resolution(&pair); }},
        {2, [](D d) { had(d)->set_media_feed(Number{1}); }},
        {3, [](D d) { had(d)->set_source_width(1); }},
        {3, [](D d) { had(d)->set_source_frame_height(1); }},
        {4, [](D d) { had(d)->set_media_bounds(&pair); }},
        {4, [](D d) { had(d)->set_printable_bounds(&bounds); }},
        {4, [](D d) { had(d)->set_printable_area(1e-300); }},
        {4, [](D d) { had(d)->set_dimensional(!had(d)->get_dimensional()); }},
        {4, [](D d) { had(d)->set_media_group(Number{3}); }},
        {4, [](D d) { had(d)->set_landscape_mode_flag(!had(d)->get_landscape_mode_flag()); }},
        {4, [](D d) { had(d)->set_form_name(L"form"); }},
        {5, choose<PX_Std_Media_Destination>(media, &M::set_media_destination)},
        {6, [](D d) { d.media_cfg()->set_number_of_copies(2); }},
        {7, [](D d) { d.media_cfg()->set_duplexing_mode(Number{8}); }},
        {8, [](D d) { d.media_cfg()->set_margins(&bounds); }},
        {9, [](D d) { d.media_cfg()->set_longplot_reduction(1.0000000000000002); }},
        {10, [](D d) { d.media_cfg()->set_dm_scale(2); }},
        {11, [](D d) { d.media_cfg()->set_dm_orientation(2); }},
        {12, [](D d) { d.media_cfg()->set_actual_printable_bounds(&bounds); }},
        {13, [](D d) { had(d)->set_collating_type(Number{1}); }},
        {14, [](D d) { had(d)->set_stapling_location(Number{1}); }},
        {14, [](D d) { had(d)->set_stapling_when(Number{1}); }},
        {14, [](D d) { had(d)->set_stapling_orientation(1); }},
        {15, [](D d) { had(d)->set_cutting_when(Number{1}); }},
        {16, [](D d) { had(d)->set_folding_type(Number{1}); }},
        {16, [](D d) { had(d)->set_folding_when(Number{1}); }},
        {1, choose<PX_Std_Media_Type>(media, &M::set_media_type)},
        {2, choose<PX_Std_Media_Source>(media, &M::set_media_source)},
        {3, choose<PX_Std_Media_Source_Entry>(media, &M::set_media_source_entry)},
        {13, choose<PX_Std_Media_Collating>(media, &M::set_media_collating)},
        {14, choose<PX_Std_Media_Stapling>(media, &M::set_media_stapling)},
        {15, choose<PX_Std_Media_Cutting>(media, &M::set_media_cutting)},
        {16, choose<PX_Std_Media_Folding>(media, &M::set_media_folding)},
    });
    using P = PX_Named_Object_List<PX_Pen>;
    expect_each_seen(Mask::Phys_Pens, {
        {0, [](D d) { d.pen_cfg()->set_number_of_physical_pens(2); }},
        {1, [](D d) { P pens; pens.append(named<PX_Std_Pen>(L"1")); d.pen_cfg()->set_physical_pen_list(&pens); }},
        {2, [](D d) { d.pen_cfg()->set_area_fill_correction(true); }},
        {3, [](D d) { d.pen_cfg()->set_pen_optimization(1); }},
        {4, [](D d) { d.pen_cfg()->set_pen_changing_enable(true); }},
    });
    using R = PX_ResColorMem_Configuration;
    expect_each_seen(Mask::Res_Color_Mem, {
        {0, choose<PX_Std_ResColorMem>(&Device::rcm_cfg, &R::set_res_color_mem)},
        {0, [](D d) { had_color(d)->set_num_colors(2); }},
        {0, [](D d) { had_color(d)->set_color_depth(2); }},
        {0, [](D d) { had_color(d)->set_num_undithered_colors(2); }},
        {0, [](D d) { had_color(d)->set_color_system(Number{2}); }},
        {1, choose<PX_Std_Resolution>(&Device::rcm_cfg, &R::set_resolution)},
        {1, [](D d) { had_color(d)->set_phys_resolution_xy(&pair); }},
        {1, [](D d) { had_color(d)->set_addr_resolution_xy(&pair); }},
        {1, [](D d) { had_color(d)->set_effective_resolution_xy(&pair); }},
        {2, [](D d) { d.rcm_cfg()->set_icm_method(2); }},
        {3, [](D d) { d.rcm_cfg()->set_icm_intent(2); }},
        {4, [](D d) { d.rcm_cfg()->set_dm_color(2); }},
        {5, [](D d) { d.rcm_cfg()->set_ISM_max_mem(16777217); }},
        {6, [](D d) { d.rcm_cfg()->set_OLE_max_mem(1); }},
        {7, [](D d) { d.rcm_cfg()->set_hardsoftno_dithering(Number{1}); }},
        {9, [](D d) { d.rcm_cfg()->set_rast_color_vs_res_pref(1); }},
        {10, [](D d) { d.rcm_cfg()->set_installed_memory(1); }},
        {11, [](D d) { d.rcm_cfg()->set_lines_overwrite(!d.rcm_cfg()->get_lines_overwrite()); }},
    });
    expect_each_seen(Mask::IO, {
        {1, [](D d) { d.io_cfg()->set_portname(L"COM1"); }},
        {1, [](D d) { d.io_cfg()->set_type(PX_IO_Type::Serial); }},
        {1, [](D d) { d.io_cfg()->set_plot_to_file(!d.io_cfg()->get_plot_to_file()); }},
        {1, [](D d) { d.io_cfg()->set_all_system_ports_valid(!d.io_cfg()->get_all_system_ports_valid()); }},
        {2, [](D d) { d.io_cfg()->set_protocol(L"8N1"); }},
        {3, [](D d) { d.io_cfg()->set_baud_rate(9600); }},
        {4, [](D d) { d.io_cfg()->set_handshake(1); }},
        {5, [](D d) { d.io_cfg()->set_input_timeout(1); }},
        {6, [](D d) { d.io_cfg()->set_output_timeout(1); }},
        {7, [](D d) { d.io_cfg()->set_pathname(L"x"); }},
    });
    static const PX_Dev_String escape = dev_string("\x1B");
    expect_each_seen(Mask::Init_Term, {
        {0, [](D d) { d.init_term_cfg()->set_preinit_string(&escape); }},
        {1, [](D d) { d.init_term_cfg()->set_postinit_string(&escape); }},
        {2, [](D d) { d.init_term_cfg()->set_termination_string(&escape); }},
    });
    // clang-format on
}

TEST(Change_Report, TellsScoresAsTheyAreCounted) {
    const auto score_of = [](const PX_Change_Report& report, Mask::Enum domain, int number) {
        const PX_Datum_Change* const change = report.find({domain, number});
        EXPECT_EQ(change->kind, Kind::To_Nearest) << number;
        return change->score.value_or(-1);
    };
    Media_Device sheets;
    use_standard(sheets);
    drop(sheets.types(), L"plain");
    drop(sheets.entries(), L"upper");
    sheets.entries()->find(L"lower")->get_media_size_name_list()->append(
        named<PX_Std_Caps_Name_List_Object>(L"A4plus"));
    withdraw(sheets.a4());
    drop(sheets.destinations(), L"bin");
    const auto media = report_of(*sheets.get(), {});
    EXPECT_EQ(score_of(media, Mask::Media, 1), 11 - 10) << "drying time";
    EXPECT_EQ(score_of(media, Mask::Media, 3), 211 - 210) << "width";
    // The name, a width beyond 210 and a printable one beyond 200: in per cent, the first with ten times the
    // weight.
    EXPECT_EQ(score_of(media, Mask::Media, 4),
              10.0 + double{100.0F / 210.0F * 10.0F} + double{100.0F / 200.0F});
    const auto score_without = [&](const wchar_t* name) {
        return px_media_size_score(*had(sheets), name, *sheets.a4(), *sheets.a4_sheet());
    };
    EXPECT_EQ(score_without(nullptr), score_without(L""));
    EXPECT_EQ(score_of(media, Mask::Media, 5), 0) << "all finishing options are there";
    const PX_Datum_Change* const bounds = media.find({Mask::Media, 12});
    EXPECT_EQ(bounds->kind, Kind::Followed);
    EXPECT_TRUE(bounds->is_silent()) << "they came with the size";

    RCM_Device colors;
    drop(colors.resolutions(), L"normal");
    EXPECT_EQ(score_of(report_of(*colors.get(), {}), Mask::Res_Color_Mem, 1), 0.5F) << "half of 601 - 600";

    Pen_Device pens;
    pens.pen_cfg()->set_number_of_physical_pens(20);
    EXPECT_EQ(score_of(report_of(*pens.get(), {}), Mask::Phys_Pens, 0), 20 - 8);
}

// A row for each rule of the output, which knows data that neither go to a default nor to a nearest.
TEST(Change_Report, TellsOfTheOutputWhereEachRuleEnds) {
    using B = Connected_Device;
    using A = PX_Plotter_IO_Ability_Flags;
    const auto drop_default_protocol = [](B& b) { b.serial.set_default_protocol(L"gone"); };
    const auto default_to_network = [](B& b) { b.caps.set_default_type(PX_IO_Type::Network); };
    const auto drop_default_handshake = [](B& b) {
        b.serial.set_handshakes(2);
        b.cfg.set_handshake(4);
    };
    const auto spoil_protocol = [](B& b) { b.cfg.set_protocol(L"gone"); };
    const auto stay = [](B&) {};
    struct Case {
        const char* name;
        A::Enum ability;
        Value::Enum value;
        Value::Enum methods;
        std::function<void(B&)> set_up;
        int datum;
        const char* told;
    };
    constexpr auto none = Value::Ability_None, fixed = Value::Ability_Fixed, all = Value::Ability_Required;
    const Case cases[] = {
        {"no default protocol", A::IO_Protocol, fixed, all, drop_default_protocol, 2, "nearest~"},
        {"no default port", A::IO_Type, fixed, all, default_to_network, 1, "nearest~"},
        {"no port at all", A::IO_Type, none, all, stay, 1, "reset~"},
        {"no protocol at all", A::IO_Protocol, none, all, stay, 2, "reset~"},
        {"no method for a protocol", A::IO_Protocol, fixed, none, stay, 2, "reset~"},
        {"a default that the line lacks", A::IO_Protocol, all, all,
         [&](B& b) {
             drop_default_protocol(b);
             spoil_protocol(b);
         },
         2, "nearest!"},
        {"a default without a port", A::IO_Type, all, none, default_to_network, 1, "nearest!"},
        {"a protocol without a method", A::IO_Protocol, all, none, spoil_protocol, 2, "own rule!"},
        {"a handshake without a default", A::IO_Handshake, all, all, drop_default_handshake, 4, "own rule!"},
        {"an input time-out without a method", A::IO_Input_Timeout, all, none, stay, 5, "own rule!"},
        {"an output time-out without a method", A::IO_Output_Timeout, all, none, stay, 6, "own rule!"},
    };
    for (const Case& test : cases) {
        Connected_Device bench;
        if (test.methods == none) {
            // The port stays where any of the machine's will do.
            bench.cfg.set_all_system_ports_valid(test.datum != 1);
            bench.caps.set_one_ability(none, A::IO_Methods);
        }
        bench.caps.set_one_ability(test.value, test.ability);
        test.set_up(bench);
        const PX_Validation_Order to_default = {Strategy::Use_Default, Policy::Validate_Conditional, true};
        const auto report = report_of(*bench.get(), to_default);
        EXPECT_EQ(told(*report.find({Mask::IO, test.datum})), test.told) << test.name;
    }
}

// A printer without a method lets all ports of the machine serve, which no bit tells and no flag.
TEST(Change_Report, TellsThatAllPortsServeNow) {
    for (const bool was_default : {false, true}) {
        Connected_Device printer;
        printer.machine.add_printer({.name = L"office"});
        const PX_Smart_Pointer<PX_Model> model(new PX_Std_Model);
        model->set_friendly_net_name(L"office");
        printer.get()->get_meta_capabilities()->set_model(model.get());
        printer.caps.set_default_type(PX_IO_Type::Network);
        printer.configure(PX_IO_Type::Network, L"office");
        if (was_default) {
            for (const auto line :
                 {PX_Plotter_IO_Ability_Flags::IO_Protocol, PX_Plotter_IO_Ability_Flags::IO_Baud_Rate})
                printer.caps.set_one_ability(Value::Ability_None, line);
            printer.get()->get_plotter_validator()->set_selected_to_defaults(Mask::IO);
            printer.cfg.set_validated(false);
        }
        const auto report = report_of(*printer.get(), {});
        const PX_Datum_Change* const port = report.find({Mask::IO, 1});
        EXPECT_EQ(port->is_default, was_default);
        EXPECT_EQ(told(*port), "along~");
        EXPECT_EQ(port->after->shown, "network \"office\", all ports of the machine are valid");
    }
}

// A driver's validator that tells nobody what it changes: it takes a default, and alters another datum.
class Quiet_Validator : public PX_Std_Media_Validator {
public:
    using PX_Std_Media_Validator::PX_Std_Media_Validator;
    void validate_dm_scale(Strategy::Enum) override {
        set_dm_scale_to_default();
        const auto items = m_plotter->get_plotter_configuration()->get_custom_configuration();
        items->get_custom(L"gap")->set_config_value(of(3L).get());
    }
};
struct Quiet_Factory : PX_Std_Plotter_Class_Factory {
    PX_Media_Validator* MK_Create_Media_Validator(PX_Plotter_Definition* plotter) const override {
        return new Quiet_Validator(plotter);
    }
};

TEST(Change_Report, TellsWhatADriverChangesWithoutABit) {
    Media_Device device(new Definition_With<Quiet_Factory>);
    use_standard(device);
    device.custom_caps()->get_custom_list()->append(setting(L"gap", of(2L), 0, 4));
    device.validator()->set_selected_to_defaults(Mask::Custom);
    device.custom_cfg()->set_validated(false);
    const auto report = report_of(*device.get(), {});
    EXPECT_EQ(told(*report.find({Mask::Media, Cfg::Cfg_Dm_Scale})), "default~");
    const PX_Datum_Change* const gap = report.find({Mask::Custom, -1, L"gap"});
    EXPECT_TRUE(gap->is_default && gap->is_validated);
    EXPECT_EQ(told(*gap), "along~") << "the flag is older than the value";
}

TEST(Change_Report, GoesByTheOrder) {
    const auto copies_of = [](Value::Enum ability, Policy::Enum policy, bool validate_settable) {
        Media_Device device;
        use_standard(device);
        device.cfg->set_number_of_copies(6);
        device.cfg->set_validated(false);
        device.set_ability(Ability::Ability_Number_Of_Copies, ability);
        const auto report = report_of(*device.get(), {Strategy::Use_Nearest, policy, validate_settable});
        const PX_Datum_Change* const copies = report.find({Mask::Media, Cfg::Cfg_Number_Of_Copies});
        return told(*copies) + (copies->is_validated ? " validated" : "");
    };
    const auto settable = Value::Ability_Settable, conditional = Value::Ability_Conditional;
    EXPECT_EQ(copies_of(settable, Policy::Keep_All, true), "kept");
    EXPECT_EQ(copies_of(settable, Policy::Keep_Conditional, true), "nearest! validated");
    EXPECT_EQ(copies_of(settable, Policy::Keep_Conditional, false), "reset~ validated");
    EXPECT_EQ(copies_of(conditional, Policy::Keep_Conditional, true), "kept");
    EXPECT_EQ(copies_of(conditional, Policy::Validate_Conditional, true), "nearest! validated");
    EXPECT_EQ(copies_of(conditional, Policy::Reset_Conditional, true), "reset~ validated");
}

TEST(Change_Report, TellsTheAbilityOfADatumAndThatWhichARunReads) {
    Media_Device device;
    use_standard(device);
    device.set_ability(Ability::Ability_Media_Destination, Value::Ability_Fixed);
    // Without a default of the margins the actual printable bounds have none.
    device.set_ability(Ability::Ability_Actual_Printable_Bounds, Value::Ability_Fixed);
    device.set_ability(Ability::Ability_Media_Margins_Default, Value::Ability_None);
    withdraw(device.a4());
    const auto report = report_of(*device.get(), {});
    const PX_Datum_Change* const collating = report.find({Mask::Media, Cfg::Cfg_Media_Collating});
    EXPECT_EQ(told(*collating), "reset~");
    EXPECT_EQ(collating->ability, Value::Ability_Settable_Listed);
    EXPECT_EQ(collating->ability_number, Ability::Ability_Media_Collating);
    EXPECT_EQ(collating->gate, Value::Ability_Fixed);
    EXPECT_EQ(told(*report.find({Mask::Media, Cfg::Cfg_Actual_Printable_Bounds})), "along~");
}

TEST(Change_Report, TellsWhatBecameOfTheItems) {
    const Device device;
    device.custom_caps()->get_custom_list()->append(setting(L"gap", of(2L), 0, 4));
    device.custom_caps()->get_custom_list()->append(setting(L"fan", of(true)));
    device.custom_caps()->get_custom_list()->find(L"fan")->set_verifiable(false);
    device.custom_caps()->get_custom_list()->find(L"gap")->set_localized_name(L"Gap\tin mm");
    const auto items = device.custom_cfg()->get_custom_list();
    items->append(item(L"gap", of(5L)));
    items->append(item(L"old", of(L"x")));
    const PX_Configuration_Snapshot before(*device->get_plotter_configuration());
    items->remove(items->find(L"old").get());
    items->append(item(L"fan", of(false)));
    device.validator()->validate_all(Strategy::Use_Nearest, Policy::Keep_All, true);
    const PX_Change_Report report(before, *device.get(), {Strategy::Use_Nearest, Policy::Keep_All, true});

    const auto find = [&](const wchar_t* name) { return report.find({Mask::Custom, -1, name}); };
    EXPECT_EQ(find(L"gap")->kind, Kind::To_Default) << "there is no nearest";
    EXPECT_EQ(find(L"gap")->name, "\"Gap in mm\" (gap)");
    EXPECT_TRUE(find(L"gap")->is_raised && find(L"gap")->is_default && !find(L"gap")->ability);
    EXPECT_TRUE(find(L"old")->kind == Kind::Gone && find(L"old")->before && !find(L"old")->after);
    EXPECT_TRUE(find(L"fan")->kind == Kind::Appeared && !find(L"fan")->before && find(L"fan")->after);
    EXPECT_TRUE(report.get_changed() == 2 && report.get_silent() == 1 && report.get_appeared() == 1 &&
                report.get_gone() == 1);
    EXPECT_EQ(report.get_config_changed(), Mask::Custom);

    // The empty list of a device without pens goes, which no bit tells.
    const std::string table = table_of(report);
    EXPECT_NE(
        table.find("\n\"Gap in mm\" (gap)        custom   default  raised  yes        yes      was 5\n"),
        std::string::npos)
        << table;
    EXPECT_NE(table.find("2 of 46 data changed, 1 of them without a change bit; 1 new; 1 gone."),
              std::string::npos)
        << table;
}

// A run finds the first of two by their name, and leaves the other.
TEST(Change_Report, TellsItemsOfOneNameApart) {
    const Device device;
    device.custom_caps()->get_custom_list()->append(setting(L"gap", of(2L), 0, 4));
    const auto items = device.custom_cfg()->get_custom_list();
    for (const long value : {5L, 3L})
        items->append(item(L"gap", of(value)));
    const auto third = item(L"gap", of(9L));
    items->append(third);
    const PX_Configuration_Snapshot before(*device->get_plotter_configuration());
    items->remove(third.get());
    device.validator()->validate_all(Strategy::Use_Nearest, Policy::Keep_All, true);
    const PX_Change_Report report(before, *device.get(), {Strategy::Use_Nearest, Policy::Keep_All, true});

    std::string rows;
    for (int place = 0; place < 3; ++place) {
        const PX_Datum_Change* const row = report.find({Mask::Custom, -1, L"gap", place});
        rows += row->before->shown + " > " + (row->after ? row->after->shown : "") + ' ' + told(*row) +
                (row->is_validated ? " validated, " : ", ");
    }
    EXPECT_EQ(rows, "5 > 2 default! validated, 3 > 3 kept, 9 >  gone, ");
    EXPECT_EQ(report.get_gone(), 1);
}

TEST(Change_Report, TellsOfNoSizeNearEnoughWhereItWent) {
    for (const bool has_default : {true, false}) {
        Media_Device device;
        use_standard(device);
        withdraw(device.a4());
        had(device)->set_media_bounds(&pair);
        had(device)->set_landscape_mode_flag(true);
        device.set_ability(Ability::Ability_Media_Size_Default, has_default ? 4 : 0);
        const auto report = report_of(*device.get(), {});
        EXPECT_EQ(told(*report.find({Mask::Media, 4})), has_default ? "default!" : "kept!");
        EXPECT_NE(
            table_of(report).find(has_default ? "No size was near enough: the size went to its default.\n"
                                              : "No size was near enough, and it stays as it is.\n"),
            std::string::npos);
    }
}

// Two blanks in the name of a pen, and the name of a form, are not shown.
TEST(Change_Report, SaysWhereAChangedValueReadsTheSame) {
    const Device device;
    const auto take_pen = [&](const wchar_t* name) {
        PX_Named_Object_List<PX_Pen> pens;
        pens.append(named<PX_Std_Pen>(name));
        device.pen_cfg()->set_physical_pen_list(&pens);
    };
    take_pen(L"a b");
    const PX_Configuration_Snapshot before(*device->get_plotter_configuration());
    take_pen(L"a  b");
    had(device)->set_form_name(L"form");
    had_color(device)->set_phys_resolution_xy(&pair);
    const PX_Change_Report report(before, *device.get(), {});
    for (const auto& id : {PX_Datum_Id{Mask::Phys_Pens, 1}, {Mask::Media, 4}}) {
        const PX_Datum_Change* const row = report.find(id);
        EXPECT_TRUE(row->is_changed() && row->before->shown == row->after->shown) << row->name;
    }
    EXPECT_EQ(report.find({Mask::Res_Color_Mem, 1})->after->shown,
              "(none), 0 x 0, physical 1 x 2, addressable 0 x 0");
    const std::string table = table_of(report), told = "now another that reads the same\n";
    EXPECT_NE(table.find(told, table.find(told) + 1), std::string::npos) << table;
}

TEST(Change_Report, FailsForWhatIsMissing) {
    const auto expect_missing = [](const auto& call, const wchar_t* function, const wchar_t* detail) {
        expect_thrown<MVNK_Error>(call, 1103, function, detail);
    };
    const PX_Std_Plotter_Configuration bare;
    expect_missing([&] { PX_Configuration_Snapshot{bare}; }, L"px_reported", L"configuration");
    const Device device;
    const PX_Configuration_Snapshot before(*device->get_plotter_configuration());
    device->set_plotter_capabilities(nullptr);
    expect_missing([&] { PX_Change_Report(before, *device.get(), {}); },
                   L"PX_Change_Report::PX_Change_Report", L"plotter");
}

}  // namespace
