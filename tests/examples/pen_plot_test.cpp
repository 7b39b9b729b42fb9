#include <algorithm>

#include "examples/drivers/pen_plotter/pens.h"
#include "tests/examples/plots.h"

namespace {

using support::Plots;
using support::Scripted_Handler;
using support::three_lines;

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
    const auto none = device(m_pens, pen_plotter_name, "file:" + (m_folder / "plot").string(),
                             [](PX_Plotter_Configuration& configuration) {
                                 configuration.get_phys_pen_configuration()->get_physical_pen_list()->clear();
                             });
    const auto size = std::filesystem::file_size(m_folder / "plot");
    EXPECT_THROW(m_pens.plot(*none, new Scripted_Handler({}), wide, L"plot", m_options,
                             [](std::size_t, std::size_t) { return true; }),
                 std::runtime_error);
    EXPECT_EQ(std::filesystem::file_size(m_folder / "plot"), size)
        << "what cannot be drawn leaves the file of before";
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

}  // namespace
