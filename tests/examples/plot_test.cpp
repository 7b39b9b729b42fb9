#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <future>
#include <sstream>
#include <string>
#include <vector>

#include "examples/drivers/pen_plotter/definition.h"
#include "examples/drivers/pen_plotter/driver.h"
#include "examples/drivers/pen_plotter/pens.h"
#include "examples/drivers/ppd/driver.h"
#include "examples/plot_host/configuration.h"
#include "examples/plot_host/destination.h"
#include "tests/support/described_device.h"
#include "tests/support/pseudo_terminal.h"
#include "tests/support/test_handler.h"
#include "toolkit/platform/posix/posix_platform.h"

namespace {

namespace fs = std::filesystem;

const fs::path data = EXAMPLE_DATA;

// Answers what it was told to, then Abort.
class Scripted_Handler : public support::Test_Handler {
public:
    explicit Scripted_Handler(std::vector<int> answers, std::function<void()> when_asked = nullptr)
        : m_answers(std::move(answers)), m_when_asked(std::move(when_asked)) {
        set_quiet_mode(true);
    }
    int message_box(const wchar_t*, const wchar_t*, unsigned int, int) override {
        ++asked;
        if (m_when_asked)
            m_when_asked();
        if (m_answers.empty())
            return IDABORT;
        const int answer = m_answers.front();
        m_answers.erase(m_answers.begin());
        return answer;
    }

    int asked = 0;

private:
    std::vector<int> m_answers;
    std::function<void()> m_when_asked;
};

bool go_on(std::size_t, std::size_t) {
    return true;
}

class Plots : public testing::Test {
protected:
    Plots() {
        std::string name = fs::temp_directory_path() / "plots.XXXXXX";
        m_folder = mkdtemp(name.data());
        PX_Set_Platform(&m_platform);
    }
    ~Plots() override {
        PX_Set_Platform(nullptr);
        fs::remove_all(m_folder);
    }

    // A device with its defaults, ready to plot to there.
    PX_Smart_Pointer<PX_Plotter_Definition> device(
        const Driver& driver, const fs::path& name, const std::string& where,
        const std::function<void(PX_Plotter_Configuration&)>& change = {}) {
        const plot_host::Destination destination = plot_host::destination_of(where);
        auto made = driver.open(name, new Scripted_Handler({}));
        const auto configuration = plot_host::new_configuration(*made);
        made->set_plotter_configuration(configuration.get());
        made->get_plotter_validator()->set_all_to_defaults();
        plot_host::choose_destination(*made, destination);
        if (change)
            change(*configuration);
        plot_host::fill_shoebox(*made, destination, "drawing.svg", false);
        return made;
    }
    std::string plotted(const Driver& driver, const fs::path& name, const Drawing& drawing,
                        const std::function<void(PX_Plotter_Configuration&)>& change = {}) {
        const std::string path = m_folder / "plot";
        const auto plotter = device(driver, name, "file:" + path, change);
        const auto result =
            driver.plot(*plotter, new Scripted_Handler({}), drawing, L"plot", m_options, go_on);
        EXPECT_EQ(result.end, Plot_End::Sent);
        std::stringstream content;
        content << std::ifstream(path, std::ios::binary).rdbuf();
        EXPECT_EQ(result.bytes, content.str().size());
        return content.str();
    }

    PX_Posix_Platform m_platform;
    PX_Plotter_Device_Data m_renderer;
    const PX_Plotter_Options& m_options = m_renderer.get_plotter_options();
    fs::path m_folder;
    const Pen_Plotter_Driver m_pens;
    const Ppd_Driver m_described;
};

// As large as a plot of A3 can be: a point of the drawing is one on the sheet.
const Drawing three_lines = {1135,
                             786,
                             {{{{0, 0}, {72, 0}}, {0, 0, 230}, 1},
                              {{{72, 72}, {0, 72}}, {0, 0, 0}, 1},
                              {{{0, 0}, {0, 36}, {36, 36}}, {0, 0, 255}, 1}}};

TEST_F(Plots, PenPlotterTakesUpEachPenOnce) {
    const std::string expected =
        "\033.(\033.I81;;17:\033.N;19:\033%0BIN;LA1,4;\n"
        "PU;SP1;PW0.35,1;VS36,1;FS30,1;\n"
        "PU1411,1411;PD395,1411;\n"
        "PU;SP4;PW0.35,4;VS36,4;FS30,4;\n"
        "PU395,395;PD1411,395;\n"
        "PU395,395;PD395,903,903,903;\n"
        "PU;SP0;\n"
        "\033%0A\033.)";
    EXPECT_EQ(plotted(m_pens, pen_plotter_name, three_lines), expected);
}

// By colour first, then by width; as the choice has them, not as the plotter came.
TEST_F(Plots, PenPlotterDrawsWithThePensOfTheChoice) {
    const auto line = [](Drawing_Colour colour, double width) {
        return Drawing_Line{{{0, 0}, {72, 0}}, colour, width};
    };
    const Drawing drawing{1135, 786, {line({255, 165, 0}, 1), line({255, 0, 0}, 1), line({0, 128, 0}, 1)}};
    const auto pens_of = [&](const Drawing& drawn,
                             const std::function<void(PX_Plotter_Configuration&)>& change) {
        std::istringstream plot(plotted(m_pens, pen_plotter_name, drawn, change));
        std::string pens;
        for (std::string word; std::getline(plot, word, ';');)
            pens += word.starts_with("SP") ? word.substr(2) : "";
        return pens;
    };
    EXPECT_EQ(pens_of(drawing, {}), "2370");
    EXPECT_EQ(pens_of(drawing,
                      [](auto& configuration) {
                          const auto pens = configuration.get_phys_pen_configuration();
                          const PX_RGB32 orange(255, 160, 0, 255);
                          pens->get_physical_pen_list()->find(L"8")->set_pen_color(&orange);
                          pens->set_pen_optimization(0);
                      }),
              "8230")
        << "as they are drawn";
    const Drawing wide{1135, 786, {line({0, 0, 0}, 1), line({0, 0, 0}, 3)}};
    EXPECT_EQ(pens_of(wide,
                      [](PX_Plotter_Configuration& configuration) {
                          const auto pen =
                              configuration.get_phys_pen_configuration()->get_physical_pen_list()->find(L"8");
                          pen->set_pen_color(nullptr);
                          pen->set_pen_width(1);
                      }),
              "180");
    const auto none = device(m_pens, pen_plotter_name, "file:" + std::string(m_folder / "plot"),
                             [](PX_Plotter_Configuration& configuration) {
                                 configuration.get_phys_pen_configuration()->get_physical_pen_list()->clear();
                             });
    const auto size = fs::file_size(m_folder / "plot");
    EXPECT_THROW(m_pens.plot(*none, new Scripted_Handler({}), wide, L"plot", m_options,
                             [](std::size_t, std::size_t) { return true; }),
                 std::runtime_error);
    EXPECT_EQ(fs::file_size(m_folder / "plot"), size) << "what cannot be drawn leaves the file of before";
}

// What a drawing has beside plain lines, by the options of the renderer and the settings of the choice.
TEST_F(Plots, PenPlotterRendersAsItIsTold) {
    Drawing drawing{
        1135, 786, {{{{72, 72}}, {0, 0, 0}, 1, 36}, {{{144, 144}, {144, 144}}, {0, 0, 0}, 72, 0}}};
    drawing.lines.push_back({{{0, 0}, {72, 0}}, {0, 0, 0}, 1, 0, {7, 3}});
    PX_Plotter_Options& options = m_renderer.get_plotter_options();
    const std::string square = "PU1919,1919;PD2935,1919,2935,2935,1919,2935,1919,1919;";
    const std::string sides = plotted(m_pens, pen_plotter_name, drawing);
    EXPECT_EQ(sides.find("CI"), std::string::npos) << sides;
    EXPECT_NE(sides.find(square + "\nLT3,4,1;\nPU395,395;"), std::string::npos) << sides;
    options.set_tessellation_multiplier(0.1F);
    EXPECT_NE(plotted(m_pens, pen_plotter_name, drawing)
                  .find("PU1919,1411;PD1411,1919,903,1411,1411,903,1919,1411;"),
              std::string::npos);
    options.set_fat_dots_as_squares(false);
    const std::string by_sides = plotted(m_pens, pen_plotter_name, drawing);
    EXPECT_NE(by_sides.find("PU2935,2427;PD2427,2935,1919,2427,2427,1919,2935,2427;"), std::string::npos)
        << by_sides;
    options.set_true_arcs(1);
    const auto set = [](PX_Plotter_Configuration& configuration, const wchar_t* name,
                        const PX_Custom_Data& value) {
        configuration.get_custom_configuration()->get_custom(name)->set_config_value(&value);
    };
    const std::string round =
        plotted(m_pens, pen_plotter_name, drawing, [&](PX_Plotter_Configuration& choice) {
            set(choice, L"PenForce", PX_Std_Long_Custom_Data(44L));
            set(choice, L"LineEnds", PX_Std_String_Custom_Data(L"Butt"));
        });
    EXPECT_NE(
        round.find("IN;LA1,1;\nPU;SP1;PW0.35,1;VS36,1;FS44,1;\nPU1411,1411;CI508;\nPU2427,2427;CI508;\n"),
        std::string::npos)
        << round;
}

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

// Turned, the left of the drawing lies at the bottom of the sheet.
TEST_F(Plots, TurnedSheetAndLongLine) {
    Drawing drawing{786, 1135, {{{{0, 0}, {72, 0}}, {0, 0, 0}, 1}}};
    const auto turn = [](PX_Plotter_Configuration& configuration) {
        configuration.get_media_configuration()->set_dm_orientation(2);
    };
    const std::string turned = plotted(m_pens, pen_plotter_name, drawing, turn);
    EXPECT_NE(turned.find("PU16411,395;PD16411,1411;"), std::string::npos) << turned;

    for (int at = 0; at < 40; ++at)
        drawing.lines[0].points.push_back({double(at), 0});
    const std::string parted = plotted(m_pens, pen_plotter_name, drawing, turn);
    EXPECT_EQ(std::count(parted.begin(), parted.end(), ','), 42 + 41 - 3 + 4)
        << "42 points, 41 of them in three parts, and what the pen is told";
    std::istringstream lines(parted);
    for (std::string line; std::getline(lines, line);)
        EXPECT_LT(line.size(), 256U) << "what the plotter's buffer holds";
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
    const std::string page = m_folder / "page.ps";
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
