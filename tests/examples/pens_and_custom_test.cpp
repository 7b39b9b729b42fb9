#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <string>
#include <vector>

#include "examples/drivers/pen_plotter/driver.h"
#include "examples/plot_host/configuration.h"
#include "examples/plot_host/saved_choice.h"
#include "tests/examples/host_test.h"
#include "tests/support/custom.h"

namespace {

using support::content_of;
using support::expect_in;
using support::Outcome;
using support::run_host;

// A plotter with settings of its own, one of them withdrawn, and with line patterns.
struct Furnished_Plotter : Pen_Plotter_Driver {
    PX_Smart_Pointer<PX_Plotter_Definition> open(const std::filesystem::path& name,
                                                 PX_Smart_Pointer<PX_Error_Handler> handler) const override {
        auto device = Pen_Plotter_Driver::open(name, std::move(handler));
        const auto capabilities = device->get_plotter_capabilities();
        PX_Named_Object_List<PX_Custom_Capability> settings;
        settings.append(support::setting(L"Dry", support::of(20L), 0, 60));
        settings.append(support::setting(L"Fan", support::of(true)));
        settings.append(support::setting(L"Banner", support::of(L"")));
        settings.append(support::setting(L"Old", support::of(1L)));
        for (const auto& setting : settings)
            setting->set_verifiable(setting->get_is_range_type());
        settings.find(L"Dry")->set_localized_name(L"Drying time");
        support::withdraw(settings.find(L"Old"));
        capabilities->get_custom_capabilities()->set_custom_list(&settings);
        const auto lines = capabilities->get_linetype_capabilities();
        lines->set_linefont_capability(true, support::Number{2});
        lines->set_linefont_capability(true, support::Number{17});
        lines->set_linefont_size(support::Number{17}, 2.5F);
        capabilities->get_raster_capabilities()->set_orientation_prefs(support::Number{3});
        return device;
    }
};

class Plot_Host_Choice : public support::Host_Test {
protected:
    Outcome run(std::vector<std::string> arguments) const {
        arguments.insert(arguments.begin(), {"--device", "pen-plotter", "--strategy", "default"});
        return run_host(arguments, Furnished_Plotter());
    }
    Outcome open(const std::string& members) const {
        return run({"--choice", file("choice.json", R"({"device":{"model":"D"})" + members + "}"), "--save",
                    path("saved.json")});
    }
    static std::ptrdiff_t lines_of(const std::string& text, const std::string& part) {
        std::istringstream lines(text);
        std::ptrdiff_t count = 0;
        for (std::string line; std::getline(lines, line);)
            count += line.find(part) != std::string::npos;
        return count;
    }
};

TEST_F(Plot_Host_Choice, AStalePenListIsRepairedAndShown) {
    const Outcome outcome = open(R"(,"pens":{"number":3,"list":[
        {"name":"2","localized_name":"T\nwo","color":"#ff000080","width":9,"speed":5},
        {"name":"99"},{"name":"2","width":1},{"name":"x"}]})");
    ASSERT_EQ(outcome.code, 0) << outcome.err;
    expect_in(outcome.out,
              {"was 4 pens", " 2 \"T wo\" #ff000080, width 9, speed 5", " 99 (none) #000000", "now 3 pens",
               " 3 \"Green\" #008000, width 0.35, speed 36", " 2 \"T wo\" #ff000080, width 0.35, speed 5"});
    EXPECT_EQ(lines_of(outcome.out, "    configuration: media; pens"), 1) << outcome.out;
    expect_in(open(R"(,"pens":{"number":2,"list":[]})").out, {"now 2 pens"});
}

// A choice of before speaks neither of pens nor of custom data.
TEST_F(Plot_Host_Choice, WhatAnOlderChoiceDoesNotNameIsTheDevicesDefault) {
    const Outcome outcome = open("");
    ASSERT_EQ(outcome.code, 0) << outcome.err;
    expect_in(outcome.out,
              {"is  8 pens", "; 3 new.\n", "6 (size 10), 17 (size 2.5)\n", "raster orientation is 3"});
    EXPECT_EQ(lines_of(outcome.out, "\"Drying time\" (Dry)      custom       new "), 1) << outcome.out;
    const Outcome again = run({"--choice", path("saved.json")});
    expect_in(again.out, {"0 of 47 data changed."});
    const Outcome office = run_host(
        {"--device", "pen-plotter", "--strategy", "nearest", "--choice", EXAMPLE_DATA "/office_choice.json"},
        Pen_Plotter_Driver());
    EXPECT_EQ(office.code, 0) << office.err << "its feed is none of the plotter's";
}

TEST_F(Plot_Host_Choice, CustomItemsAreBroughtInLineWithTheDevice) {
    const Outcome outcome = open(R"(,"custom":[{"name":"Ink","type":"bytes","value":"\u001b"},
        {"name":"Banner","type":"string","value":"Site\n7"},{"name":"Dry","type":"integer","value":61},
        {"name":"Fan","type":"none","value":null},{"name":"Old","type":"number","value":0.5}])");
    ASSERT_EQ(outcome.code, 0) << outcome.err;
    expect_in(outcome.out, {"was 61\n", "now 20\n", "now yes\n", "is  \"Site 7\"\n", "; 2 gone.\n",
                            "was bytes \"\\x1b\"\n", "was number 0.5\n"});
    EXPECT_EQ(lines_of(outcome.out, "custom       default   raised  yes        yes"), 2) << outcome.out;
    EXPECT_EQ(lines_of(outcome.out, "custom       kept      none    yes        no"), 1) << outcome.out;
    EXPECT_EQ(lines_of(outcome.out, "; custom data"), 1) << outcome.out;
    const std::string saved = content_of(path("saved.json"));
    EXPECT_EQ(lines_of(saved, "\"Site\\n7\""), 1) << saved;
    EXPECT_EQ(lines_of(saved, "Ink") + lines_of(saved, "Old"), 0) << saved;
}

TEST_F(Plot_Host_Choice, ABrokenListGetsOneClearLine) {
    const auto item = [](const std::string& type, const std::string& value) {
        return R"("custom":[{"name":"a","type":")" + type + R"(","value":)" + value + "}]";
    };
    const auto pen = [](const std::string& members) {
        return R"("pens":{"list":[{"name":"1"},{)" + members + "}]}";
    };
    const std::pair<std::string, const char*> cases[] = {
        {R"("custom":{})", "'custom', must be an array, not object"},
        {R"("custom":[{"type":"integer","value":1}])", "'custom[0]', has no field 'name'"},
        {R"("custom":[{"name":"a\n","type":"none","value":null},{"name":"a\n","type":"none","value":null}])",
         "'custom[1]', gives 'a ' a second time"},
        {item("float", "1"), "'custom[0].type', names no type"},
        {item("integer", "2147483648"), "'custom[0].value', is out of range"},
        {item("number", "1e999"), "is broken"},
        {item("string", "\"a\\u0000b\""), "'custom[0].value', has the character U+0000"},
        {item("bytes", "\"\\u0100\""), "'custom[0].value', has a character above U+00FF at place 1"},
        {pen(R"("width":1)"), "'pens.list[1]', has no field 'name'"},
        {pen(R"("name":"2","color":"#00000g")"), "'pens.list[1].color', is no colour"},
        {pen(R"("name":"2","width":-1.5)"), "'pens.list[1].width', is below -1"},
        {pen(R"("name":"2","speed":-0.1)"), "'pens.list[1].speed', is below 0"},
    };
    for (const auto& [members, told] : cases) {
        SCOPED_TRACE(members);
        const Outcome outcome = open("," + members);
        EXPECT_EQ(outcome.code, 2);
        EXPECT_EQ(std::ranges::count(outcome.err, '\n'), 1) << outcome.err;
        expect_in(outcome.err, {told});
    }
}

TEST_F(Plot_Host_Choice, AValueThatJsonDoesNotHaveIsNotSaved) {
    const auto expect_refused = [&](const PX_Plotter_Configuration& choice, const char* told) {
        try {
            plot_host::save_choice(path("saved.json"), {"", "D"}, choice);
            FAIL() << "it was saved";
        } catch (const std::runtime_error& failure) {
            expect_in(failure.what(), {told});
        }
        EXPECT_FALSE(std::filesystem::exists(path("saved.json"))) << "nothing is touched";
    };
    const auto device = Furnished_Plotter().open("pen-plotter", new support::Test_Handler);
    const auto choice = plot_host::new_configuration(*device);
    const auto items = choice->get_custom_configuration()->get_custom_list();
    for (const auto& value :
         {support::of(std::numeric_limits<double>::quiet_NaN()), support::of(L"\xD800")}) {
        items->clear();
        items->append(support::item(L"a", value));
        expect_refused(*choice, "cannot be saved");
    }
    items->clear();
    const PX_Float_Rectangle margins(0, std::numeric_limits<float>::infinity(), 0, 1);
    choice->get_media_configuration()->set_margins(&margins);
    expect_refused(*choice, "field 'media.margins.x_max' is not a finite number");
}

// The stale choice and the chart of the demo.
TEST_F(Plot_Host_Choice, AStaleChoiceOfPensIsRepairedAndPlots) {
    const std::string data = EXAMPLE_DATA;
    const Outcome outcome =
        support::run_host({"--device", "pen-plotter", "--choice", data + "/old_pens.json", "--drawing",
                           data + "/pen_chart.svg", "--to", "file:" + path("chart.plt")},
                          Pen_Plotter_Driver());
    ASSERT_EQ(outcome.code, 0) << outcome.err;
    expect_in(outcome.out,
              {"was 90\n", "now 30\n", "was \"Triangular\"", "now \"Round\"", "KnifeAngle", "now 6 pens",
               " 3 \"Marker\" #00a000, width 2, speed 60", " 1 \"My red\" #ff0000"});
    EXPECT_EQ(outcome.out.find(" 12 \"Gold\"", outcome.out.find("now 6 pens")), std::string::npos);
    std::istringstream plot(support::content_of(path("chart.plt")));
    std::string pens;
    for (std::string word; std::getline(plot, word, ';');)
        pens += word.starts_with("SP") ? word.substr(2) : "";
    EXPECT_EQ(pens, "1234560");
}

}  // namespace
