#include "examples/plot_host/host.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "examples/common/text.h"
#include "examples/drivers/ppd/definition.h"
#include "examples/drivers/ppd/media.h"
#include "examples/plot_host/configuration.h"
#include "examples/plot_host/host_error_handler.h"
#include "examples/plot_host/report.h"
#include "examples/plot_host/saved_choice.h"

#include "tests/support/device.h"

namespace {

using Flag = PX_InitTerm_Ability_Flags;
using Strategy = PX_Validation_Strategy;
using Policy = PX_Validation_Policy;

const std::string sample = EXAMPLE_DATA "/sample_plotter.ppd";
const std::string office_choice = EXAMPLE_DATA "/office_choice.json";

struct Outcome {
    int code;
    std::string out;
    std::string err;
};

Outcome run_host(const std::vector<std::string>& arguments,
                 const plot_host::Open_Device& open_device = open_ppd_device) {
    std::vector<const char*> words = {"plot_host"};
    for (const std::string& argument : arguments)
        words.push_back(argument.c_str());
    std::ostringstream out, err;
    const int code = plot_host::run(static_cast<int>(words.size()), words.data(), open_device, out, err);
    return {code, out.str(), err.str()};
}

class Plot_Host : public testing::Test {
protected:
    void SetUp() override {
        const auto* const test = testing::UnitTest::GetInstance()->current_test_info();
        m_folder = std::filesystem::path(testing::TempDir()) / (std::string("plot_host_") + test->name());
        std::filesystem::create_directories(m_folder);
    }
    void TearDown() override { std::filesystem::remove_all(m_folder); }

    std::string path(const std::string& name) const { return (m_folder / name).string(); }

    std::string file(const std::string& name, const std::string& content) const {
        std::ofstream(path(name), std::ios::binary) << content;
        return path(name);
    }

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
    std::filesystem::path m_folder;
    std::ostringstream m_err;
};

TEST_F(Plot_Host, BadInputGetsOneClearLineAndCode2) {
    const std::string folder = path("");
    const std::string here = path("nothing_here");
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
        {{"--device", sample, "--colour"}, "--colour"},
        {{"--device", sample, "--policy", "forget"}, "forget"},
        {{"--device", sample, "--strategy"}, "--strategy"},

        {{"--device", here}, "nothing_here' cannot be opened: No such file"},
        {{"--device", folder}, "is a folder"},
        {ppd("empty.ppd", ""), "empty.ppd' is empty"},
        {ppd("noise.ppd", "hello\n"), "noise.ppd' is broken: line 1"},
        {ppd("broken.ppd", "*PPD-Adobe: \"4.3\"\n*ModelName: \"X\"\nno keyword\n"), "is broken: line 3"},
        {ppd("cut.ppd", "*PPD-Adobe: \"4.3\"\n"), "names no model"},

        {{"--device", sample, "--choice", here}, "nothing_here' cannot be opened: No such file"},
        {{"--device", sample, "--choice", folder}, "is a folder"},
        {json("empty.json", ""), "empty.json' is empty"},
        {json("broken.json", "{\n  \"device\": {"), "line 2"},
        {json("list.json", "[]"), "list.json' must be an object, not array"},
        {json("no_device.json", "{}"), "no field 'device'"},
        {json("device.json", R"({"device":{"maker":7,"model":"D"}})"),
         "'device.maker', must be a text, not number"},
        {json("model.json", R"({"device":{"maker":"M"}})"), "field 'device', names no model"},
        {init_term("slip.json", R"("preinit_strng":"")"), "'init_term.preinit_strng', is not known"},
        {init_term("type.json", R"("postinit_string":["a"])"), "'init_term.postinit_string', must be a text"},
        {init_term("wide.json", R"("termination_string":"ab\u0100")"), "'init_term.termination_string', has"},

        {json("media_slip.json", R"({"device":{"model":"D"},"media":{"paper":"A4"}})"),
         "'media.paper', is not known"},
        {json("copies.json", R"({"device":{"model":"D"},"media":{"copies":1.5}})"),
         "'media.copies', must be a whole number"},
        {json("many.json", R"({"device":{"model":"D"},"media":{"copies":4294967297}})"),
         "'media.copies', is out of range"},
        {json("bounds.json", R"({"device":{"model":"D"},"media":{"margins":{"x_min":1e39}}})"),
         "'media.margins.x_min', is out of range"},
        {json("snapshot.json", R"({"device":{"model":"D"},"media":{"snapshot":{"dimensional":1}}})"),
         "'media.snapshot.dimensional', must be true or false"},

        {{"--device", sample, "--save", folder + "no/such/folder"}, "cannot be saved"},
        {{"--device", sample, "--picture", folder + "no/such/folder"}, "cannot be drawn"},
        {{"--device", sample, "--picture", "/dev/full"}, "cannot be drawn to '/dev/full'"},
        {{"--device", sample, "--save", "/dev/full"}, "cannot be saved to '/dev/full'"},
        {{"--device", sample, "--log", folder}, "the log"},
    };
    for (const Case& bad : cases) {
        SCOPED_TRACE(bad.told);
        const Outcome outcome = run_host(bad.arguments);
        EXPECT_EQ(outcome.code, 2);
        EXPECT_EQ(std::ranges::count(outcome.err, '\n'), 1) << outcome.err;
        EXPECT_TRUE(outcome.err.ends_with('\n'));
        EXPECT_NE(outcome.err.find(bad.told), std::string::npos) << outcome.err;
    }
}

TEST_F(Plot_Host, ToolkitFailureGetsItsTextItsTraceAndCode1) {
    const auto open_bad_device = [](const std::filesystem::path& file,
                                    PX_Smart_Pointer<PX_Error_Handler> handler) {
        auto device = open_ppd_device(file, std::move(handler));
        device->get_plotter_capabilities()->get_init_term_capabilities()->set_one_ability(
            PX_Ability_Value::Ability_Undefined, Flag::Termination_String);
        return device;
    };
    const Outcome outcome = run_host({"--device", sample, "--log", path("log")}, open_bad_device);
    EXPECT_EQ(outcome.code, 1);
    std::stringstream log;
    log << std::ifstream(path("log")).rdbuf();
    for (const std::string& told : {outcome.err, log.str()}) {
        EXPECT_NE(told.find("describes one of its abilities by a value that does not exist"),
                  std::string::npos)
            << told;
        EXPECT_NE(told.find("PX_Std_Plotter_Validator::validate_all"), std::string::npos) << told;
    }
}

// Saved, opened on another device that leaves it alone, and saved again.
TEST_F(Plot_Host, EveryByteOfAChoiceSurvives) {
    std::string all_bytes, escapes;
    for (int byte = 0; byte < 256; ++byte) {
        all_bytes += static_cast<char>(byte);
        std::ostringstream escape;
        escape << "\\u00"
               << "0123456789abcdef"[byte / 16] << "0123456789abcdef"[byte % 16];
        escapes += escape.str();
    }
    const std::string first =
        file("first.json", R"({"device": {"maker": "Ma\u00dfwerk", "model": "D 1"}, "init_term": {
        "preinit_string": ")" + escapes +
                               R"(", "postinit_string": null, "termination_string": "é\u0000"}})");

    const Outcome outcome =
        run_host({"--device", sample, "--choice", first, "--policy", "keep", "--save", path("second.json")});
    ASSERT_EQ(outcome.code, 0) << outcome.err;
    EXPECT_NE(outcome.out.find("D 1 (Maßwerk)"), std::string::npos) << outcome.out;

    const auto device = open(sample);
    const auto strings = configure(*device);
    const auto made_on = plot_host::load_choice(path("second.json"), *device->get_plotter_configuration());
    EXPECT_EQ(made_on.maker, "Example Works");
    EXPECT_EQ(made_on.model, "Example Works WF 36");
    EXPECT_EQ(support::bytes(strings->get_preinit_string()), all_bytes);
    EXPECT_FALSE(strings->get_postinit_string());
    EXPECT_EQ(support::bytes(strings->get_termination_string()), std::string("\xE9\0", 2));
}

// The device has a begin and an end string of its own, but no language to enter.
TEST_F(Plot_Host, PoliciesDecideOverForeignStrings) {
    struct Case {
        const char* name;
        Policy::Enum policy;
        std::string preinit;
        bool own_end_validated, own_end_default;
    };
    const Case cases[] = {
        {"keep leaves what the device has", Policy::Keep_All, "foreign", false, false},
        {"keep-conditional does so too", Policy::Keep_Conditional, "foreign", false, false},
        {"validate replaces foreign strings only", Policy::Validate_Conditional,
         "\x1B"
         "begin",
         true, false},
        {"reset puts all to their default", Policy::Reset_Conditional,
         "\x1B"
         "begin",
         true, true},
    };
    for (const Case& row : cases) {
        SCOPED_TRACE(row.name);
        const auto device =
            open(description("*ModelName: \"D\"\n*JCLBegin: \"<1B>begin\"\n*JCLEnd: \"end<0A>\"\n"));
        const auto strings = configure(*device);
        const PX_Dev_String foreign = support::dev_string("foreign"), own_end = support::dev_string("end\n");
        strings->set_preinit_string(&foreign);
        strings->set_postinit_string(&foreign);
        strings->set_termination_string(&own_end);

        EXPECT_FALSE(device->get_plotter_validator()->validate_all(Strategy::Use_Nearest, row.policy, true));
        EXPECT_EQ(support::bytes(strings->get_preinit_string()), row.preinit);
        EXPECT_EQ(strings->get_one_validated(Flag::Preinit_String), row.preinit != "foreign");
        EXPECT_EQ(strings->get_one_default(Flag::Preinit_String), row.preinit != "foreign");
        EXPECT_EQ(support::bytes(strings->get_postinit_string()), "") << "the device would print it";
        EXPECT_TRUE(strings->get_one_default(Flag::Postinit_String));
        EXPECT_EQ(support::bytes(strings->get_termination_string()), "end\n");
        EXPECT_EQ(strings->get_one_validated(Flag::Termination_String), row.own_end_validated);
        EXPECT_EQ(strings->get_one_default(Flag::Termination_String), row.own_end_default);
    }
}

TEST_F(Plot_Host, DriversValidatorReportsWhatIsMissing) {
    const auto device = open(sample);
    try {
        device->get_plotter_validator()->set_all_to_defaults();
        FAIL() << "there is no configuration";
    } catch (const PX_Exception& failure) {
        EXPECT_EQ(failure.m_code, 1103U);
        EXPECT_STREQ(failure.m_detail, L"plotter_caps or plotter_cfg");
    }
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
    EXPECT_NE(changed.out.find("10 of 20 data changed, 5 of them without a change bit."), std::string::npos);
    EXPECT_NE(changed.out.find(R"(was "@PJL ENTER LANGUAGE = POSTSCRIPT\x0a")"), std::string::npos);
    EXPECT_NE(changed.out.find(R"(now "@PJL ENTER LANGUAGE = POSTSCRIPT\x0d\x0a")"), std::string::npos);

    const Outcome kept = run_host({"--device", sample, "--policy", "reset"});
    EXPECT_NE(kept.out.find("0 of 20 data changed."), std::string::npos) << "a new choice is at its defaults";
    EXPECT_EQ(kept.out.find("was "), std::string::npos);
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

    ASSERT_EQ(media->get_media_size_list()->size(), 2) << "an equal name keeps the first";
    EXPECT_STREQ(media->get_media_size(L"A4")->get_localized_name(), L"A4 sheet");
    EXPECT_FALSE(media->get_media_size(L"A4")->get_landscape_mode_flag());
    EXPECT_TRUE(media->get_media_size(L"Wide")->get_landscape_mode_flag());
    EXPECT_STREQ(media->get_default_media_size(), L"A4") << "the file's default names nothing";
    const auto a4 = media->get_media_description(media->get_media_size(L"A4")->get_media_description());
    EXPECT_EQ(*a4->get_media_bounds(), PX_Float_XY(595, 842));
    EXPECT_EQ(*a4->get_printable_bounds(), PX_Float_Rectangle(10, 584, 20, 821));
    EXPECT_EQ(a4->get_printable_bounds()->x_extent(), 575);
    EXPECT_EQ(*media->get_media_description(L"Wide")->get_printable_bounds(),
              PX_Float_Rectangle(0, 899, 0, 299))
        << "an area that holds nothing is the whole sheet";

    ASSERT_EQ(media->get_media_source_list()->size(), 2) << "a slot that feeds nothing is no source";
    EXPECT_STREQ(media->get_default_media_source(), L"Roll1");
    const auto sheet = media->get_media_source(L"Sheet");
    const auto roll = media->get_media_source(L"Roll1");
    EXPECT_EQ(int{sheet->get_media_feed()}, int{Ppd_Feed::Auto});
    EXPECT_EQ(int{roll->get_media_feed()}, int{Ppd_Feed::Roll});
    const auto sheets = sheet->get_source_entry(sheet->get_default_source_entry());
    EXPECT_STREQ(sheets->get_default_media_size(), L"A4");
    EXPECT_FALSE(sheets->get_media_size_name_list()->find(L"Wide")) << "a constraint of the file";
    const auto off_roll = roll->get_source_entry(roll->get_default_source_entry());
    EXPECT_TRUE(off_roll->get_media_size_name_list()->find(L"Wide"));
    EXPECT_EQ(off_roll->get_source_frame_height(), 43200);

    EXPECT_EQ(*media->get_media_size_max(), PX_Float_XY(900, 842));
    EXPECT_EQ(media->get_media_roll_max_height(), 43200);
    EXPECT_GT(media->get_one_ability(PX_Media_Ability_Flags::Ability_Roll_Limit), 0);

    EXPECT_EQ(media->get_duplexing_modes(), Ppd_Duplex::None | Ppd_Duplex::Short_Edge);
    EXPECT_EQ(int{media->get_default_duplexing_mode()}, int{Ppd_Duplex::Short_Edge});
    const auto bin = media->get_media_destination(media->get_default_media_destination());
    ASSERT_TRUE(bin);
    EXPECT_STREQ(bin->get_default_stapling(), L"None");
    EXPECT_EQ(bin->get_stapling(L"None")->get_stapling_location(),
              PX_Media_Stapling_Location::Stapling_Location_None);
    EXPECT_EQ(bin->get_stapling(L"UpperLeft")->get_stapling_location(), 1);
    EXPECT_TRUE(bin->get_folding_list()->is_empty());
    EXPECT_EQ(media->get_one_ability(PX_Media_Ability_Flags::Ability_Media_Folding),
              PX_Ability_Value::Ability_None);
}

// What a file lacks is no reason to fail, neither for its own defaults nor for a foreign choice.
TEST_F(Plot_Host, DeviceWithLittleToTellOpensAnyChoice) {
    const std::string saved = path("small.json");
    const std::string small = file("small.ppd", "*PPD-Adobe: \"4.3\"\n" + std::string(small_device));
    ASSERT_EQ(run_host({"--device", small, "--save", saved}).code, 0);
    struct Case {
        const char* name;
        std::string lines;
    };
    const Case cases[] = {
        {"no sizes, no slots", ""},
        {"no slots",
         "*OpenUI *PageSize: PickOne\n*PageSize X/X: \"\"\n*CloseUI: *PageSize\n*PaperDimension X: \"9 "
         "9\"\n"},
        {"slots without sizes", "*OpenUI *InputSlot: PickOne\n*InputSlot S/S: \"\"\n*CloseUI: *InputSlot\n"},
        {"sheets without extent",
         "*OpenUI *PageSize: PickOne\n*PageSize X/X: \"\"\n*CloseUI: *PageSize\n*PaperDimension X: \"0 "
         "0\"\n"},
    };
    for (const Case& row : cases) {
        SCOPED_TRACE(row.name);
        const std::string device = description("*ModelName: \"E\"\n" + row.lines);
        for (const std::string strategy : {"default", "nearest"}) {
            const Outcome outcome = run_host({"--device", device, "--choice", saved, "--strategy", strategy,
                                              "--picture", path("picture.svg")});
            EXPECT_EQ(outcome.code, 0) << outcome.err;
        }
    }
}

// Every media datum gets a value of its own that no start value has.
TEST_F(Plot_Host, EveryMediaDatumOfAChoiceSurvives) {
    const auto device = open(sample);
    const auto saved = plot_host::new_configuration(*device);
    const auto media = saved->get_media_configuration();
    PX_Std_Media_Type type;
    type.set_canonical_name(L"Typ \u00DF");
    media->set_media_type(&type);
    PX_Std_Media_Source source;
    source.set_canonical_name(L"source");
    media->set_media_source(&source);
    PX_Std_Media_Source_Entry entry;
    entry.set_canonical_name(L"entry");
    media->set_media_source_entry(&entry);
    PX_Std_Media_Size size;
    size.set_canonical_name(L"size");
    const PX_Std_Media_Description nothing;
    media->set_media_size(&size, &nothing);
    PX_Std_Media_Destination bin;
    bin.set_canonical_name(L"bin");
    media->set_media_destination(&bin);
    PX_Std_Media_Collating collating;
    collating.set_canonical_name(L"collating");
    media->set_media_collating(&collating);
    PX_Std_Media_Stapling stapling;
    stapling.set_canonical_name(L"stapling");
    media->set_media_stapling(&stapling);
    PX_Std_Media_Cutting cutting;
    cutting.set_canonical_name(L"cutting");
    media->set_media_cutting(&cutting);
    PX_Std_Media_Folding folding;
    folding.set_canonical_name(L"folding");
    media->set_media_folding(&folding);

    PX_Std_Media_Settings snapshot;
    const PX_Float_XY resolution(1.1F, 2.2F), sheet(3.3F, 16777216);
    const PX_Float_Rectangle printable(-0.1F, 1e-30F, 5, 6), margins(1, 2, 3, 4), actual(7.7F, 8, 9, 10);
    snapshot.set_drying_time(-11);
    snapshot.set_max_resolution(&resolution);
    snapshot.set_media_bounds(&sheet);
    snapshot.set_printable_bounds(&printable);
    snapshot.set_printable_area(1.0 / 3);
    snapshot.set_dimensional(false);
    snapshot.set_media_group(static_cast<PX_Media_Group::Enum>(12));
    snapshot.set_landscape_mode_flag(true);
    snapshot.set_form_name(L"form");
    snapshot.set_media_feed(static_cast<PX_Media_Feed::Enum>(13));
    snapshot.set_collating_type(static_cast<PX_Media_Collating_Type::Enum>(14));
    snapshot.set_stapling_location(static_cast<PX_Media_Stapling_Location::Enum>(15));
    snapshot.set_stapling_when(static_cast<PX_Media_Stapling_When::Enum>(16));
    snapshot.set_stapling_orientation(270);
    snapshot.set_cutting_when(static_cast<PX_Media_Cutting_When::Enum>(17));
    snapshot.set_folding_type(static_cast<PX_Media_Folding_Type::Enum>(18));
    snapshot.set_folding_when(static_cast<PX_Media_Folding_When::Enum>(19));
    snapshot.set_source_width(20.5F);
    snapshot.set_source_frame_height(21.25F);
    media->set_media_settings(&snapshot);

    media->set_media_selection_method(PX_Media_Selection_Method::Media_Selection_Direct);
    media->set_number_of_copies(22);
    media->set_duplexing_mode(PX_Duplexing_Mode::Duplexing_4);
    media->set_longplot_reduction(2.1);
    media->set_dm_scale(23);
    media->set_dm_orientation(PX_Dm_Orientation::Dm_Orientation_Turned);
    media->set_margins(&margins);
    media->set_actual_printable_bounds(&actual);

    const std::string first = path("first.json"), second = path("second.json");
    plot_host::save_choice(first, {"", "D"}, *saved);
    const auto restored = plot_host::new_configuration(*device);
    plot_host::load_choice(first, *restored);
    const auto before = plot_host::take_snapshot(*saved), after = plot_host::take_snapshot(*restored);
    ASSERT_EQ(before.size(), 20U);
    for (std::size_t at = 0; at < before.size(); ++at)
        EXPECT_EQ(before[at].exact, after[at].exact) << before[at].name;
    EXPECT_STREQ(restored->get_media_configuration()->get_media_settings()->get_form_name(), L"form");
    EXPECT_FALSE(
        restored->get_media_configuration()->get_one_validated(PX_Media_Config_Flags::Cfg_Media_Size))
        << "a choice that was read is still to be looked at";

    // What the comparison above does not look at cannot hide here.
    plot_host::save_choice(second, {"", "D"}, *restored);
    std::stringstream one, other;
    one << std::ifstream(first).rdbuf();
    other << std::ifstream(second).rdbuf();
    EXPECT_EQ(one.str(), other.str());
}

TEST_F(Plot_Host, MediaDataThatAChoiceDoesNotNameStay) {
    const auto device = open(sample);
    const auto choice = plot_host::new_configuration(*device);
    device->set_plotter_configuration(choice.get());
    device->get_plotter_validator()->set_all_to_defaults();
    const auto before = plot_host::take_snapshot(*choice);
    plot_host::load_choice(file("name.json", R"({"device":{"model":"D"},"media":{"size":"Mine"}})"), *choice);
    const auto after = plot_host::take_snapshot(*choice);
    for (std::size_t at = 0; at < before.size(); ++at) {
        const bool same = before[at].exact == after[at].exact;
        EXPECT_EQ(same, before[at].name != "Size") << before[at].name;
    }
    EXPECT_STREQ(choice->get_media_configuration()->get_media_size(), L"Mine");
    EXPECT_EQ(*choice->get_media_configuration()->get_media_settings()->get_media_bounds(),
              PX_Float_XY(2592, 3456));
}

// A source and its feed come from a sheet printer. The search for the nearest has a sheet feed to go to on
// the one device and none on the other.
TEST_F(Plot_Host, ReportAndPictureTellWhatBecameOfTheSheet) {
    const std::string choice = file("choice.json", R"({"device":{"model":"<Office> & \"Co\""},"media":{
        "selection_method":1,"type":"Film","source":"Tray","source_entry":"Tray","size":"A<4>","copies":1000,
        "snapshot":{"media_feed":1,"media_bounds":{"x":595,"y":842},
                    "printable_bounds":{"x_min":12,"x_max":582,"y_min":13,"y_max":829}},
        "margins":{"x_min":33,"x_max":500,"y_min":34,"y_max":800}}})");
    const std::string picture = path("picture.svg");
    const auto drawn = [&] {
        std::stringstream text;
        text << std::ifstream(picture).rdbuf();
        return text.str();
    };
    const auto expect_in = [](const std::string& text, const std::vector<std::string>& parts) {
        for (const std::string& part : parts)
            EXPECT_NE(text.find(part), std::string::npos) << part << " is not in\n" << text;
    };

    const Outcome nearest =
        run_host({"--device", sample, "--choice", choice, "--strategy", "nearest", "--picture", picture});
    ASSERT_EQ(nearest.code, 0) << nearest.err;
    expect_in(nearest.out,
              {"was \"Tray\", feed 1", "now \"Sheet\", feed 1", "was 1000", "now 999",
               "was \"A<4>\", 595 x 842", "now \"ARCHE\", 2592 x 3456", "No size was near enough"});
    expect_in(drawn(), {"Before: &lt;Office&gt; &amp; &quot;Co&quot;", "Size: A&lt;4&gt;", "595 x 842",
                        "x 12 to 582, y 13 to 829", "x 33 to 500, y 34 to 800", "After: Example Works WF 36",
                        "ARCHE", "2592 x 3456", "x 14.4 to 2576.6, y 14.4 to 3440.6", "Media bounds",
                        "Printable bounds", "Margins", "Actual printable bounds"});
    EXPECT_EQ(drawn().find("<Office>"), std::string::npos);
    EXPECT_EQ(drawn().find("nan"), std::string::npos);

    const std::string roll_only = description(
        "*ModelName: \"R\"\n*OpenUI *PageSize: PickOne\n*PageSize X/X: \"\"\n"
        "*CloseUI: *PageSize\n*PaperDimension X: \"600 850\"\n*OpenUI *InputSlot: PickOne\n"
        "*InputSlot Roll/R: \"\"\n*CloseUI: *InputSlot\n");
    const Outcome on_roll = run_host({"--device", roll_only, "--choice", choice, "--strategy", "nearest"});
    ASSERT_EQ(on_roll.code, 0) << on_roll.err;
    expect_in(on_roll.out, {"now \"Roll\", feed 3", "now \"X\", 600 x 850"});
    EXPECT_EQ(on_roll.out.find("No size was near enough"), std::string::npos) << on_roll.out;
}

TEST(Report, ShowsBytesReadably) {
    const auto readable = [](const std::string& bytes) {
        const PX_Dev_String string = support::dev_string(bytes);
        return plot_host::readable(&string);
    };
    EXPECT_EQ(plot_host::readable(nullptr), "(none)");
    EXPECT_EQ(readable(""), "(empty)");
    EXPECT_EQ(readable(std::string("\x1B~ \x7F\0\xFF", 6)), R"("\x1b~ \x7f\x00\xff")");
    EXPECT_EQ(readable(std::string(40, 'a')), '"' + std::string(40, 'a') + '"');
    EXPECT_EQ(readable(std::string(33, 'a') + "12345678"),
              '"' + std::string(26, 'a') + R"(" ... "12345678" (41 bytes))");
}

TEST(Text, TakesWhatIsNoUtf8ForLatin1) {
    EXPECT_EQ(text::from_utf8("a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x96\xA8"), L"aé€\U0001F5A8");
    for (const std::string_view bytes :
         {"\xE9", "\xE9t", "\xC3", "\xC0\x80", "\xED\xA0\x80", "\xF4\x90\x80\x80"}) {
        const std::wstring wide = text::from_utf8(bytes);
        ASSERT_EQ(wide.size(), bytes.size());
        for (std::size_t at = 0; at < bytes.size(); ++at)
            EXPECT_EQ(wide[at], static_cast<wchar_t>(static_cast<unsigned char>(bytes[at])));
    }
    const std::wstring all_lengths = L"a\u00E9\u20AC\U0001F5A8";
    EXPECT_EQ(text::from_utf8(text::to_utf8(all_lengths)), all_lengths);
}

}  // namespace
