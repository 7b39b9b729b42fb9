#include <gtest/gtest.h>
#include <sys/stat.h>

#include <sstream>
#include <string>
#include <vector>

#include "examples/drivers/ppd/definition.h"
#include "examples/drivers/ppd/driver.h"
#include "examples/drivers/ppd/media.h"
#include "examples/plot_host/configuration.h"
#include "examples/plot_host/host_error_handler.h"
#include "examples/plot_host/saved_choice.h"
#include "tests/examples/host_test.h"
#include "tests/support/device.h"
#include "toolkit/report.h"

namespace {

using support::content_of;
using support::expect_in;
using support::Outcome;

using Flag = PX_InitTerm_Ability_Flags;
using Strategy = PX_Validation_Strategy;
using Policy = PX_Validation_Policy;

const std::string sample = EXAMPLE_DATA "/sample_plotter.ppd";
const std::string plan = EXAMPLE_DATA "/floor_plan.svg";
const std::string office_choice = EXAMPLE_DATA "/office_choice.json";

Outcome run_host(const std::vector<std::string>& arguments, const Driver& driver = Ppd_Driver()) {
    return support::run_host(arguments, driver);
}

class Plot_Host : public support::Host_Test {
protected:
    std::string description(const std::string& lines) const {
        return file("device.ppd", "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n" + lines);
    }

    PX_Smart_Pointer<PX_Plotter_Definition> open(const std::string& device) {
        return open_ppd_device(device,
                               PX_Smart_Pointer<PX_Error_Handler>(new plot_host::Host_Error_Handler(m_err)));
    }

    // A configuration of the device with its media at their defaults and empty strings, held by the device.
    static PX_Smart_Pointer<PX_InitTerm_Configuration> configure(PX_Plotter_Definition& device) {
        const auto root = plot_host::new_configuration(device);
        device.set_plotter_configuration(root.get());
        device.get_plotter_validator()->set_selected_to_defaults(PX_Domain_Mask::Media);
        return root->get_init_term_configuration();
    }

private:
    std::ostringstream m_err;
};

TEST_F(Plot_Host, BadInputGetsOneClearLineAndCode2) {
    const std::string folder = path("");
    const std::string here = path("nothing_here"), pipe = path("pipe");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    const auto json = [&](const std::string& name, const std::string& content) {
        return std::vector<std::string>{"--device", sample, "--choice", file(name, content)};
    };
    const auto init_term = [&](const std::string& name, const std::string& members) {
        return json(name, R"({"device":{"maker":"M","model":"D"},"init_term":{)" + members + "}}");
    };
    const auto ppd = [&](const std::string& name, const std::string& content) {
        return std::vector<std::string>{"--device", file(name, content)};
    };

    struct Case {
        std::vector<std::string> arguments;
        std::string told;
    };
    const Case cases[] = {
        {{}, "--device"},
        {{"--device", sample, "--strategy"}, "--strategy"},

        {{"--device", here}, "nothing_here' cannot be opened: No such file"},
        {ppd("noise.ppd", "hello\n"), "noise.ppd' is broken: line 1"},
        {ppd("broken.ppd", "*PPD-Adobe: \"4.3\"\n*ModelName: \"X\"\nno keyword\n"), "is broken: line 3"},
        {ppd("cut.ppd", "*PPD-Adobe: \"4.3\"\n"), "names no model"},

        {json("broken.json", "{\n  \"device\": {"), "line 2"},
        {json("list.json", "[]"), "list.json' must be an object, not array"},
        {json("device.json", R"({"device":{"maker":7,"model":"D"}})"),
         "'device.maker', must be a text, not 7"},
        {json("model.json", R"({"device":{"maker":"M"}})"), "field 'device', names no model"},
        {init_term("slip.json", R"("preinit_strng":"")"), "'init_term.preinit_strng', is not known"},
        {init_term("wide.json", R"("termination_string":"ab\u0100")"), "'init_term.termination_string', has"},

        {json("copies.json", R"({"device":{"model":"D"},"media":{"copies":1.5}})"),
         "'media.copies', must be a whole number, not 1.5"},
        {json("many.json", R"({"device":{"model":"D"},"media":{"copies":4294967297}})"),
         "'media.copies', is out of range"},
        {json("bounds.json", R"({"device":{"model":"D"},"media":{"margins":{"x_min":1e39}}})"),
         "'media.margins.x_min', is out of range"},

        {json("wire.json", R"({"device":{"model":"D"},"output":{"type":"wire"}})"),
         "'output.type', names no kind of connection"},

        {{"--device", sample, "--to", "file:x"}, "--drawing"},
        {{"--device", sample, "--drawing", plan, "--to", "COM1"}, "--to takes file:PATH"},
        {{"--device", sample, "--drawing", here, "--to", "file:x"},
         "nothing_here' cannot be opened: No such"},
        {{"--device", sample, "--drawing", sample, "--to", "file:x"}, "the drawing '"},
        {{"--device", sample, "--drawing", plan, "--to", "file:" + plan}, "--drawing and --to name one file"},
        {{"--device", sample, "--drawing", plan, "--to", "file:" + pipe}, "pipe' is a pipe"},
        {{"--device", sample, "--map-port", "PLOT=/dev/null"}, "'PLOT' is no port"},
        {{"--device", sample, "--print-server", "here:many"}, "--print-server has no port"},

        {json("twice.json", R"({"device":{"model":"D"},"media":{"margins":{},"copies":1,"copies":2}})"),
         "'media.copies', is given twice"},
        {json("zero.json", R"({"device":{"model":"D"},"media":{"size":"A4\u0000x"}})"),
         "'media.size', has the character U+0000"},

        {{"--device", pipe}, "pipe' is not a regular file"},
        {{"--device", sample, "--picture", here, "--save", path("./nothing_here")},
         "--save and --picture name one file"},
        {{"--device", sample, "--log", sample}, "--device and --log name one file"},
        {{"--device", sample, "--save", "/dev/full"}, "cannot be saved to '/dev/full'"},
        {{"--device", sample, "--log", folder}, "the log"},
    };
    for (const Case& bad : cases) {
        SCOPED_TRACE(bad.told);
        const Outcome outcome = run_host(bad.arguments);
        EXPECT_EQ(outcome.code, 2);
        EXPECT_EQ(outcome.err.find('\n'), outcome.err.size() - 1) << outcome.err;
        expect_in(outcome.err, {bad.told});
    }
}

TEST_F(Plot_Host, ToolkitFailureTellsWhatCameBeforeItsTextItsTraceAndCode1) {
    struct : Ppd_Driver {
        PX_Smart_Pointer<PX_Plotter_Definition> open(
            const std::filesystem::path& file, PX_Smart_Pointer<PX_Error_Handler> handler) const override {
            auto device = Ppd_Driver::open(file, std::move(handler));
            device->get_plotter_capabilities()->get_init_term_capabilities()->set_one_ability(
                PX_Ability_Value::Ability_Undefined, Flag::Termination_String);
            return device;
        }
    } bad_device;
    std::vector<std::string> arguments = {"--device", sample,          "--choice", office_choice,
                                          "--save",   path("to.json"), "--log",    path("log")};
    for (int dry_run = 0; dry_run < 2; ++dry_run) {
        const Outcome outcome = run_host(arguments, bad_device);
        EXPECT_EQ(outcome.code, 1);
        expect_in(outcome.out, {"was \"Plain\"", "The run failed with error 1001: what it did not reach"});
        for (const std::string& told : {outcome.err, content_of(path("log"))})
            expect_in(told, {"describes one of its abilities by a value that does not exist",
                             "PX_Std_Plotter_Validator::validate_all"});
        EXPECT_FALSE(std::filesystem::exists(path("to.json")));
        std::filesystem::remove(path("log"));
        arguments.emplace_back("--dry-run");
    }
}

// The device has a begin and an end string of its own, but no language to enter.
TEST_F(Plot_Host, ForeignStringsAreReplacedAndOwnOnesStay) {
    const auto device =
        open(description("*ModelName: \"D\"\n*JCLBegin: \"<1B>begin\"\n*JCLEnd: \"end<0A>\"\n"));
    const auto strings = configure(*device);
    const PX_Dev_String foreign = support::dev_string("foreign"), own_end = support::dev_string("end\n");
    strings->set_preinit_string(&foreign);
    strings->set_postinit_string(&foreign);
    strings->set_termination_string(&own_end);
    const auto validator = device->get_plotter_validator();
    validator->set_selected_to_defaults(PX_Domain_Mask::IO | PX_Domain_Mask::Res_Color_Mem);
    EXPECT_FALSE(validator->validate_all(Strategy::Use_Nearest, Policy::Validate_Conditional, true));
    EXPECT_EQ(support::bytes(strings->get_preinit_string()), "\033begin");
    EXPECT_EQ(support::bytes(strings->get_postinit_string()), "") << "the device would print it";
    EXPECT_EQ(support::bytes(strings->get_termination_string()), "end\n");
    EXPECT_FALSE(strings->get_one_default(Flag::Termination_String));
}

TEST_F(Plot_Host, NamesOfADeviceComeWithoutTheNoiseOfTheFile) {
    struct Case {
        std::string lines;
        std::wstring maker, model, device_id;
    };
    const Case cases[] = {
        {"*Manufacturer: \"M\"\n*ModelName: \"M 12 PS\"\n*NickName: \"M 12 PS, 1.2\"\n", L"M", L"M 12 PS",
         L""},
        {"*NickName: \"M  vario v3010.106 (recommended\"\n", L"", L"M vario", L""},
        {"*NickName: \"M 20, duplex\"\n*1284DeviceID: \"CMD:PS;MANUFACTURER:Works;MDL:20;\"\n", L"Works",
         L"M 20, duplex", L"CMD:PS;MANUFACTURER:Works;MDL:20;"},
        {"*LanguageEncoding: ISOLatin1\n*Manufacturer: \"Ma\xDFwerk\"\n*ModelName: \"D\"\n", L"Maßwerk", L"D",
         L""},
    };
    for (const Case& row : cases) {
        SCOPED_TRACE(row.lines);
        const auto device = open(description(row.lines));
        const auto meta = device->get_meta_capabilities();
        EXPECT_EQ(meta->get_family()->get_canonical_name(), row.maker);
        EXPECT_EQ(meta->get_model()->get_canonical_name(), row.model);
        EXPECT_EQ(meta->get_model()->get_win_device_name(), row.device_id);
    }
}

TEST_F(Plot_Host, ReportTellsChangesThatNoBitTells) {
    const Outcome changed = run_host({"--device", sample, "--choice", office_choice});
    EXPECT_EQ(changed.code, 0);
    expect_in(changed.out, {"10 of 44 data changed, 5 of them without a change bit.",
                            R"(was "@PJL ENTER LANGUAGE = POSTSCRIPT\x0a")",
                            R"(now "@PJL ENTER LANGUAGE = POSTSCRIPT\x0d\x0a")"});
    const Outcome kept = run_host({"--device", sample, "--policy", "reset"});
    expect_in(kept.out, {"0 of 44 data changed."});
    EXPECT_EQ(kept.out.find("was "), std::string::npos) << "a new choice is at its defaults";
}

// The user looks at another device, and goes back to the old one with the old choice.
TEST_F(Plot_Host, DryRunTellsWhatARunWouldDoAndKeepsTheChoice) {
    const std::string own = path("own.ppd"), chosen = path("chosen.json");
    file("own.ppd",
         "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*ModelName: \"Own\"\n"
         "*OpenUI *PageSize: PickOne\n*PageSize Mine/Mine: \"\"\n*CloseUI: *PageSize\n"
         "*PaperDimension Mine: \"500 700\"\n*ImageableArea Mine: \"9 9 490 690\"\n");
    ASSERT_EQ(run_host({"--device", own, "--save", chosen}).code, 0);
    const std::string before = content_of(chosen);

    std::vector<std::string> arguments = {
        "--device",  sample,         "--choice",  chosen, "--save", path("to.json"),
        "--picture", path("to.svg"), "--drawing", plan,   "--to",   "file:" + path("to.plt"),
        "--dry-run"};
    const Outcome dry = run_host(arguments);
    ASSERT_EQ(dry.code, 0) << dry.err;
    expect_in(dry.out, {"Dry run strategy nearest", "was \"Mine\", 500 x 700", "silent",
                        "dry run: nothing is changed"});
    for (const char* const written : {"to.json", "to.svg", "to.plt"})
        EXPECT_FALSE(std::filesystem::exists(path(written))) << written;
    EXPECT_EQ(content_of(chosen), before);

    // The table of the run itself is the same.
    arguments.pop_back();
    const Outcome real = run_host(arguments);
    const auto table = [](const std::string& out) {
        const auto start = out.find("Datum ");
        return out.substr(start, out.find("The change words") - start);
    };
    EXPECT_EQ(table(real.out), table(dry.out));

    const Outcome back = run_host({"--device", own, "--choice", chosen, "--save", path("again.json")});
    expect_in(back.out, {"0 of 44 data changed."});
    EXPECT_EQ(content_of(path("again.json")), before);
}

const char* const small_device = R"(*ModelName: "D"
*VariablePaperSize: True
*OpenUI *PageSize/Size: PickOne
*DefaultPageSize: Gone
*PageSize A4/A4 sheet: ""
*PageSize Wide/Wide: ""
*PageSize A4/Again: ""
*CloseUI: *PageSize
*ImageableArea A4: "10 20 585 822"
*ImageableArea Wide: "0 0 0 0"
*PaperDimension A4: "595 842"
*PaperDimension Wide: "900 300"
*ParamCustomPageSize Width: 1 points 100 900
*ParamCustomPageSize Height: 2 points 100 43200
*CustomPageSize True: "pop"
*OpenUI *InputSlot/Slot: PickOne
*DefaultInputSlot: Roll1
*InputSlot Sheet/Sheet: ""
*InputSlot Roll1/Roll 1: ""
*InputSlot Controller/Nothing: ""
*CloseUI: *InputSlot
*OpenUI *OutputBin/Bin: PickOne
*OutputBin Top/Top: ""
*CloseUI: *OutputBin
*OpenUI *StapleLocation/Staple: PickOne
*StapleLocation None/Off: ""
*StapleLocation UpperLeft/Corner: ""
*CloseUI: *StapleLocation
*OpenUI *Duplex/Duplex: PickOne
*DefaultDuplex: DuplexTumble
*Duplex None/Off: ""
*Duplex DuplexTumble/Short: ""
*CloseUI: *Duplex
*UIConstraints: *InputSlot Sheet *PageSize Wide
*UIConstraints: *PageSize *InputSlot Controller
)";

TEST_F(Plot_Host, DriverTellsTheMediaSideOfTheFile) {
    const auto device = open(description(small_device));
    const auto media = device->get_plotter_capabilities()->get_media_capabilities();

    EXPECT_EQ(media->get_media_size_list()->size(), 2) << "an equal name keeps the first";
    EXPECT_STREQ(media->get_media_size(L"A4")->get_localized_name(), L"A4 sheet");
    EXPECT_FALSE(media->get_media_size(L"A4")->get_landscape_mode_flag());
    EXPECT_TRUE(media->get_media_size(L"Wide")->get_landscape_mode_flag());
    EXPECT_STREQ(media->get_default_media_size(), L"A4") << "the file's default names nothing";
    const auto a4 = media->get_media_description(media->get_media_size(L"A4")->get_media_description());
    EXPECT_EQ(*a4->get_media_bounds(), PX_Float_XY(595, 842));
    EXPECT_EQ(*a4->get_printable_bounds(), PX_Float_Rectangle(10, 584, 20, 821));
    EXPECT_EQ(*media->get_media_description(L"Wide")->get_printable_bounds(),
              PX_Float_Rectangle(0, 899, 0, 299))
        << "an area that holds nothing is the whole sheet";

    EXPECT_EQ(media->get_media_source_list()->size(), 2) << "a slot that feeds nothing is no source";
    EXPECT_STREQ(media->get_default_media_source(), L"Roll1");
    const auto entry_of = [&](const wchar_t* name, int feed) {
        const auto source = media->get_media_source(name);
        EXPECT_EQ(int{source->get_media_feed()}, feed);
        return source->get_source_entry(source->get_default_source_entry());
    };
    const auto sheets = entry_of(L"Sheet", Ppd_Feed::Auto), off_roll = entry_of(L"Roll1", Ppd_Feed::Roll);
    EXPECT_STREQ(sheets->get_default_media_size(), L"A4");
    EXPECT_FALSE(sheets->get_media_size_name_list()->find(L"Wide")) << "a constraint of the file";
    EXPECT_TRUE(off_roll->get_media_size_name_list()->find(L"Wide"));
    EXPECT_EQ(off_roll->get_source_frame_height(), 43200);
    EXPECT_EQ(*media->get_media_size_max(), PX_Float_XY(900, 842));
    EXPECT_EQ(media->get_media_roll_max_height(), 43200);
    EXPECT_GT(media->get_one_ability(PX_Media_Ability_Flags::Ability_Roll_Limit), 0);
    EXPECT_EQ(media->get_duplexing_modes(), Ppd_Duplex::None | Ppd_Duplex::Short_Edge);
    EXPECT_EQ(int{media->get_default_duplexing_mode()}, int{Ppd_Duplex::Short_Edge});
    const auto bin = media->get_media_destination(media->get_default_media_destination());
    EXPECT_TRUE(bin && bin->get_folding_list()->is_empty());
    EXPECT_EQ(media->get_one_ability(PX_Media_Ability_Flags::Ability_Media_Folding),
              PX_Ability_Value::Ability_None);
}

// What a file lacks is no reason to fail, neither for its own defaults nor for a foreign choice.
TEST_F(Plot_Host, DeviceWithLittleToTellOpensAnyChoice) {
    const std::string saved = path("small.json");
    const std::string small = file("small.ppd", "*PPD-Adobe: \"4.3\"\n" + std::string(small_device));
    ASSERT_EQ(run_host({"--device", small, "--save", saved}).code, 0);
    const std::string sizes = "*OpenUI *PageSize: PickOne\n*PageSize X/X: \"\"\n*CloseUI: *PageSize\n";
    const std::pair<const char*, std::string> cases[] = {
        {"no sizes, no slots", ""},
        {"no slots", sizes + "*PaperDimension X: \"9 9\"\n"},
        {"slots without sizes", "*OpenUI *InputSlot: PickOne\n*InputSlot S/S: \"\"\n*CloseUI: *InputSlot\n"},
        {"sheets without extent", sizes + "*PaperDimension X: \"0 0\"\n"},
    };
    for (const auto& [name, lines] : cases) {
        SCOPED_TRACE(name);
        const std::string device = description("*ModelName: \"E\"\n" + lines);
        for (const std::string strategy : {"default", "nearest"}) {
            const Outcome outcome = run_host({"--device", device, "--choice", saved, "--strategy", strategy,
                                              "--picture", path("picture.svg")});
            EXPECT_EQ(outcome.code, 0) << outcome.err;
        }
    }
}

// Every datum has a value of its own that no start value has, and comes back to the letter.
TEST_F(Plot_Host, EveryDatumOfAChoiceSurvives) {
    const std::string saved =
        R"({"device":{"maker":"","model":"D"},"media":{"type":"\u00df","source":"source",
        "source_entry":"entry","size":"size","destination":"bin","collating":"collating",
        "stapling":"stapling","cutting":"cutting","folding":"folding","selection_method":2,"copies":22,
        "duplexing_mode":4,"margins":{"x_min":1.0,"x_max":2.0,"y_min":3.0,"y_max":4.0},
        "longplot_reduction":2.1,"dm_scale":23,"dm_orientation":2,
        "actual_printable_bounds":{"x_min":7.7,"x_max":8.0,"y_min":9.0,"y_max":10.0},
        "snapshot":{"drying_time":-11,"max_resolution":{"x":1.1,"y":2.2},
            "media_bounds":{"x":3.3,"y":16777216.0},
            "printable_bounds":{"x_min":-0.1,"x_max":1e-30,"y_min":5.0,"y_max":6.0},
            "printable_area":0.3333333333333333,"dimensional":false,"media_group":12,
            "landscape_mode":true,"form_name":"form","media_feed":13,"collating_type":14,
            "stapling_location":15,"stapling_when":16,"stapling_orientation":270,"cutting_when":17,
            "folding_type":18,"folding_when":19,"source_width":20.5,"source_frame_height":21.25}},
        "pens":{"number":9,"changing":true,"area_fill_correction":true,"optimization":4,"list":[
            {"name":"8","localized_name":"Gr\u00fcn","color":"#0a80ff","width":-1.0,"speed":0.1},
            {"name":"x","localized_name":"","color":"#00000000","width":2.5,"speed":3.0}]},
        "color":{"color_mode":"mode","resolution":"fine","ism_max_mem":31,"ole_max_mem":32,"dithering":2,
            "raster_preference":33,"installed_memory":34,"icm_method":3,"icm_intent":4,"dm_color":2,
            "lines_overwrite":false,
            "snapshot":{"num_colors":35,"color_depth":36,"num_undithered_colors":-37,"color_system":4,
                "phys_resolution":{"x":1.5,"y":2.5},"addr_resolution":{"x":3.5,"y":4.5},
                "effective_resolution":{"x":5.5,"y":6.5},"printable_area":0.125}},
        "output":{"port":"COM3","type":"serial","protocol":"7E1","baud_rate":2400,"handshake":36,
            "input_timeout":11,"output_timeout":12,"pathname":"out.plt","plot_to_file":true,
            "all_system_ports_valid":true},
        "init_term":{"preinit_string":"\u0000\u001b~\u0080\u00ff","postinit_string":null,
            "termination_string":""},
        "custom":[{"name":"s","type":"string","value":"\u00df\t\"x"},
            {"name":"","type":"integer","value":-2147483648},
            {"name":"n","type":"number","value":0.1},{"name":"t","type":"boolean","value":true},
            {"name":"b","type":"bytes","value":"\u0000\u001b\u00ff"},{"name":"o","type":"none","value":null},
            {"name":"e","type":"bytes","value":""}]})";
    const auto bare = [](std::string text) {
        std::erase_if(text, [](char c) { return c == ' ' || c == '\n'; });
        return text;
    };
    const auto choice = plot_host::new_configuration(*open(sample));
    plot_host::load_choice(file("first.json", saved), *choice);
    plot_host::save_choice(path("second.json"), {"", "D"}, *choice);
    EXPECT_EQ(bare(content_of(path("second.json"))), bare(saved));
    EXPECT_EQ(support::bytes(choice->get_init_term_configuration()->get_preinit_string()),
              std::string("\0\x1B~\x80\xFF", 5));
    EXPECT_FALSE(choice->get_media_configuration()->get_one_validated(PX_Media_Config_Flags::Cfg_Media_Size))
        << "a choice that was read is still to be looked at";
}

TEST_F(Plot_Host, MediaDataThatAChoiceDoesNotNameStay) {
    const auto device = open(sample);
    const auto choice = plot_host::new_configuration(*device);
    device->set_plotter_configuration(choice.get());
    device->get_plotter_validator()->set_all_to_defaults();
    const PX_Configuration_Snapshot before(*choice);
    plot_host::load_choice(file("name.json", R"({"device":{"model":"D"},"media":{"size":"Mine"}})"), *choice);
    const PX_Configuration_Snapshot after(*choice);
    for (const PX_Datum_Value& was : before.get_values())
        EXPECT_EQ(was.exact == after.find(was.datum)->exact, was.name != "Size") << was.name;
    EXPECT_STREQ(choice->get_media_configuration()->get_media_size(), L"Mine");
    EXPECT_EQ(*choice->get_media_configuration()->get_media_settings()->get_media_bounds(),
              PX_Float_XY(2592, 3456));
}

// A source and its feed come from a sheet printer. The search for the nearest has a sheet feed to go to on
// the one device and none on the other.
TEST_F(Plot_Host, ReportAndPictureTellWhatBecameOfTheSheet) {
    const std::string choice =
        file("choice.json", R"({"device":{"model":"<Office>\u2028& \"Co\"\uffff"},"media":{
        "selection_method":1,"type":"Film","source":"Tray","source_entry":"Tray","size":"A<4>","copies":1000,
        "snapshot":{"media_feed":1,"media_bounds":{"x":595,"y":842},
                    "printable_bounds":{"x_min":12,"x_max":582,"y_min":13,"y_max":829}},
        "margins":{"x_min":33,"x_max":500,"y_min":34,"y_max":800}}})");
    const std::string picture = path("picture.svg");
    const Outcome nearest =
        run_host({"--device", sample, "--choice", choice, "--strategy", "nearest", "--picture", picture});
    ASSERT_EQ(nearest.code, 0) << nearest.err;
    expect_in(nearest.out,
              {"was \"Tray\", feed 1", "now \"Sheet\", feed 1", "was 1000", "now 999",
               "was \"A<4>\", 595 x 842", "now \"ARCHE\", 2592 x 3456", "No size was near enough"});
    expect_in(content_of(picture),
              {"Before: &lt;Office&gt; &amp; &quot;Co&quot;\uFFFD", "Size: A&lt;4&gt;", "595 x 842",
               "x 12 to 582, y 13 to 829", "x 33 to 500, y 34 to 800", "After: Example Works WF 36", "ARCHE",
               "2592 x 3456", "x 14.4 to 2576.6, y 14.4 to 3440.6", "Media bounds", "Printable bounds",
               "Margins", "Actual printable bounds"});
    EXPECT_EQ(content_of(picture).find("<Office>"), std::string::npos);
    EXPECT_EQ(content_of(picture).find("nan"), std::string::npos);

    const std::string roll_only = description(
        "*ModelName: \"R\"\n*OpenUI *PageSize: PickOne\n*PageSize X/X: \"\"\n"
        "*CloseUI: *PageSize\n*PaperDimension X: \"600 850\"\n*OpenUI *InputSlot: PickOne\n"
        "*InputSlot Roll/R: \"\"\n*CloseUI: *InputSlot\n");
    const Outcome on_roll = run_host({"--device", roll_only, "--choice", choice, "--strategy", "nearest"});
    ASSERT_EQ(on_roll.code, 0) << on_roll.err;
    expect_in(on_roll.out, {"now \"Roll\", feed 3", "now \"X\", 600 x 850"});
    EXPECT_EQ(on_roll.out.find("No size was near enough"), std::string::npos) << on_roll.out;
}

}  // namespace
