#include <chrono>
#include <cmath>
#include <cstdlib>
#include <future>

#include "examples/drivers/ppd/driver.h"
#include "tests/examples/plots.h"
#include "tests/support/described_device.h"
#include "tests/support/pseudo_terminal.h"

namespace {

using support::go_on;
using support::Scripted_Handler;
using support::three_lines;

const std::filesystem::path data = EXAMPLE_DATA;

struct Plots : support::Plots {
    const Ppd_Driver m_described;
};

// A command of job control stands where the device does not take it for a page, and what sets up the page
// device before what it would undo.
TEST_F(Plots, SettingsAreSelectedWhereTheyBelong) {
    const auto option = [](const std::string& keyword, const std::string& order) {
        return "*OpenUI *" + keyword + ": PickOne\n*OrderDependency: " + order + " *" + keyword + "\n*" +
               keyword + " A: \"/" + keyword + " 1 def<0A>\"\n*" + keyword + " B: \"\"\n*CloseUI: *" +
               keyword + "\n";
    };
    const auto described = m_folder / "settings.ppd";
    support::write_description(
        described,
        "*JCLBegin: \"begin<0A>\"\n*JCLToPSInterpreter: \"enter<0A>\"\n*OpenUI *PageSize: "
        "PickOne\n*PageSize X: \"\"\n*CloseUI: *PageSize\n*PaperDimension X: \"900 900\"\n" +
            option("Leaf", "5 PageSetup") + option("Late", "30 DocumentSetup") +
            option("Early", "20.5 AnySetup") + option("Words", "50 Prolog") + option("Save", "5 JCLSetup"));
    const auto plot = plotted(m_described, described, {100, 100, {}}, [](PX_Plotter_Configuration& choice) {
        const auto items = choice.get_custom_configuration()->get_custom_list();
        const PX_Smart_Pointer value(PX_Std_Plotter_Class_Factory().MK_Create_String_Custom_Data());
        *value = L"B";
        items->find(L"Late")->set_config_value(value.get());
        *value = L"no choice of the device";
        items->find(L"Leaf")->set_config_value(value.get());
        *value = L"X";
        const PX_Smart_Pointer<PX_Custom_Config_Item> foreign(items->find(L"Late")->clone());
        foreign->set_canonical_name(L"PageSize");
        foreign->set_config_value(value.get());
        items->append(foreign);
    });
    const auto feature = [](const std::string& words) {
        return "mark {\n%%BeginFeature: *" + words + "%%EndFeature\n} stopped cleartomark\n";
    };
    EXPECT_EQ(plot.substr(0, plot.find("1 setlinecap")),
              "begin\n/Save 1 def\nenter\n"
              "%!PS-Adobe-3.0\n%%Pages: 1\n%%BoundingBox: 0 0 900 900\n%%EndComments\n%%BeginProlog\n" +
                  feature("Words A\n/Words 1 def<0A>\n") +
                  "%%EndProlog\n%%BeginSetup\n/setpagedevice where { pop << /PageSize [900 900] /NumCopies 1 "
                  ">> setpagedevice } if\n" +
                  feature("Early A\n/Early 1 def<0A>\n") + feature("Late B\n") +
                  "%%EndSetup\n%%Page: 1 1\n%%BeginPageSetup\n");
}

TEST_F(Plots, PostScriptIsAPageOfTheChosenSize) {
    const Drawing drawing = read_drawing(data / "floor_plan.svg");
    const std::string job = plotted(
        m_described, data / "sample_plotter.ppd", drawing,
        [](PX_Plotter_Configuration& choice) { choice.get_media_configuration()->set_number_of_copies(3); });
    const std::size_t begin = job.find("%!PS-Adobe-3.0\n");
    const std::size_t end = job.find("%%EOF\n");
    ASSERT_TRUE(begin != std::string::npos && end != std::string::npos && begin < end) << job;
    EXPECT_TRUE(job.substr(0, begin).ends_with("@PJL ENTER LANGUAGE = POSTSCRIPT\r\n"));
    EXPECT_EQ(job.substr(end + 6), "\033%-12345X@PJL EOJ\r\n\033%-12345X");
    EXPECT_NE(job.find("/PageSize [2592 3456] /NumCopies 3 "), std::string::npos);
    EXPECT_NE(job.find("showpage\n"), std::string::npos);

    if (std::system("command -v gs >/dev/null") != 0)
        GTEST_SKIP() << "ghostscript, which would read the page, is not installed";
    const std::string page = (m_folder / "page.ps").string();
    std::ofstream(page, std::ios::binary) << job.substr(begin, end + 6 - begin);
    const std::string ink = "timeout 60 gs -q -dSAFER -dNOPAUSE -dBATCH -sDEVICE=bbox '" + page +
                            "' 2>&1 | grep -q '%%BoundingBox: [0-9][0-9]* [0-9]* 2[0-9][0-9][0-9] '";
    EXPECT_EQ(std::system(ink.c_str()), 0) << "it has ink as wide as the sheet";
}

// Bytes that no line holds back.
Drawing long_drawing() {
    Drawing drawing{1000, 1000, {{{}, {0, 0, 0}, 1}}};
    for (int at = 0; at < 20000; ++at)
        drawing.lines[0].points.push_back({at / 20.0, 500 + 499 * std::sin(at / 30.0)});
    return drawing;
}

void impatient(PX_Plotter_Configuration& choice) {
    choice.get_io_configuration()->set_output_timeout(200);
}

TEST_F(Plots, RetryAfterAStandstillLosesAndDoublesNothing) {
    const Drawing drawing = long_drawing();
    const std::string expected = plotted(m_pens, pen_plotter_name, drawing);
    Pseudo_Terminal terminal;
    m_platform.map_port(L"COM1", terminal.name());
    const auto plotter = device(m_pens, pen_plotter_name, "port:COM1", impatient);
    std::future<std::string> reader;
    // The reader wakes up at the second question.
    int questions = 0;
    const PX_Smart_Pointer<Scripted_Handler> handler(
        new Scripted_Handler({IDRETRY, IDIGNORE, IDRETRY, IDRETRY}, [&] {
            if (++questions == 2)
                reader = std::async(std::launch::async, read_bytes, terminal.end(), expected.size(), 0u);
        }));
    EXPECT_EQ(m_pens.plot(*plotter, handler.get(), drawing, L"plot", m_options, go_on).end, Plot_End::Sent);
    EXPECT_GE(handler->asked, 2);
    ASSERT_TRUE(reader.valid());
    EXPECT_TRUE(reader.get() == expected);
}

TEST_F(Plots, AbortEndsADeadDeviceAndTheChannelServesAgain) {
    const Drawing drawing = long_drawing();
    Pseudo_Terminal terminal;
    m_platform.map_port(L"COM1", terminal.name());
    const auto plotter = device(m_pens, pen_plotter_name, "port:COM1", impatient);
    const PX_Smart_Pointer<Scripted_Handler> handler(new Scripted_Handler({IDRETRY}));
    for (int time = 0; time < 2; ++time) {
        const auto start = std::chrono::steady_clock::now();
        EXPECT_EQ(m_pens.plot(*plotter, handler.get(), drawing, L"plot", m_options, go_on).end,
                  Plot_End::Stopped);
        EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
    }
    EXPECT_EQ(handler->asked, 3) << "nothing is asked once the answer was Abort";
    // The host may stop as well, before a byte went out.
    const auto stop = [](std::size_t, std::size_t) { return false; };
    EXPECT_EQ(m_pens.plot(*plotter, handler.get(), three_lines, L"plot", m_options, stop).end,
              Plot_End::Stopped);
    EXPECT_EQ(handler->asked, 3);
    terminal.hang_up();
    EXPECT_EQ(m_pens.plot(*plotter, handler.get(), drawing, L"plot", m_options, go_on).end,
              Plot_End::Not_Opened);
}

}  // namespace
