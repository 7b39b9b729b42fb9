#include "examples/plot_host/host.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "examples/common/text.h"
#include "examples/drivers/ppd/definition.h"
#include "examples/plot_host/host_error_handler.h"
#include "examples/plot_host/report.h"
#include "examples/plot_host/saved_choice.h"

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

std::string bytes_of(const PX_Smart_Pointer<PX_Dev_String>& string) {
    return string ? std::string(string->data(), string->data() + string->length()) : "(null)";
}

PX_Dev_String device_string(const std::string& bytes) {
    return {reinterpret_cast<const unsigned char*>(bytes.data()), static_cast<long>(bytes.size())};
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

    // A configuration of the device with nothing but empty strings, held by the device.
    static PX_Smart_Pointer<PX_InitTerm_Configuration> configure(PX_Plotter_Definition& device) {
        const auto factory = device.get_class_factory();
        const PX_Smart_Pointer<PX_Plotter_Configuration> root(
            factory->MK_Create_Plotter_Configuration(nullptr, nullptr, nullptr));
        const PX_Smart_Pointer<PX_InitTerm_Configuration> strings(
            factory->MK_Create_InitTerm_Configuration());
        root->set_init_term_configuration(strings.get());
        device.set_plotter_configuration(root.get());
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

        {{"--device", sample, "--save", folder + "no/such/folder"}, "cannot be saved"},
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
    EXPECT_EQ(bytes_of(strings->get_preinit_string()), all_bytes);
    EXPECT_FALSE(strings->get_postinit_string());
    EXPECT_EQ(bytes_of(strings->get_termination_string()), std::string("\xE9\0", 2));
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
        const PX_Dev_String foreign = device_string("foreign"), own_end = device_string("end\n");
        strings->set_preinit_string(&foreign);
        strings->set_postinit_string(&foreign);
        strings->set_termination_string(&own_end);

        EXPECT_FALSE(device->get_plotter_validator()->validate_all(Strategy::Use_Nearest, row.policy, true));
        EXPECT_EQ(bytes_of(strings->get_preinit_string()), row.preinit);
        EXPECT_EQ(strings->get_one_validated(Flag::Preinit_String), row.preinit != "foreign");
        EXPECT_EQ(strings->get_one_default(Flag::Preinit_String), row.preinit != "foreign");
        EXPECT_EQ(bytes_of(strings->get_postinit_string()), "") << "the device would print it";
        EXPECT_TRUE(strings->get_one_default(Flag::Postinit_String));
        EXPECT_EQ(bytes_of(strings->get_termination_string()), "end\n");
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
    EXPECT_NE(changed.out.find("3 of 3 data changed, 3 of them without a change bit."), std::string::npos);
    EXPECT_NE(changed.out.find(R"(was "@PJL ENTER LANGUAGE = POSTSCRIPT\x0a")"), std::string::npos);
    EXPECT_NE(changed.out.find(R"(now "@PJL ENTER LANGUAGE = POSTSCRIPT\x0d\x0a")"), std::string::npos);

    const Outcome kept = run_host({"--device", sample, "--policy", "reset"});
    EXPECT_NE(kept.out.find("0 of 3 data changed."), std::string::npos) << "a new choice is at its defaults";
    EXPECT_EQ(kept.out.find("was "), std::string::npos);
}

TEST(Report, ShowsBytesReadably) {
    const auto readable = [](const std::string& bytes) {
        const PX_Dev_String string = device_string(bytes);
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
