#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "examples/drivers/pen_plotter/definition.h"
#include "examples/drivers/pen_plotter/driver.h"
#include "examples/plot_host/configuration.h"
#include "examples/plot_host/destination.h"
#include "examples/plot_host/host_platform.h"
#include "tests/support/own_path.h"
#include "tests/support/test_handler.h"

namespace support {

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

inline bool go_on(std::size_t, std::size_t) {
    return true;
}

class Plots : public testing::Test {
protected:
    Plots() {
        std::filesystem::create_directories(m_folder);
        PX_Set_Platform(&m_platform);
    }
    ~Plots() override {
        PX_Set_Platform(nullptr);
        std::filesystem::remove_all(m_folder);
    }

    // A device with its defaults, ready to plot to there.
    PX_Smart_Pointer<PX_Plotter_Definition> device(
        const Driver& driver, const std::filesystem::path& name, const std::string& where,
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
    std::string plotted(const Driver& driver, const std::filesystem::path& name, const Drawing& drawing,
                        const std::function<void(PX_Plotter_Configuration&)>& change = {}) {
        const std::string path = (m_folder / "plot").string();
        const auto plotter = device(driver, name, "file:" + path, change);
        const auto result =
            driver.plot(*plotter, new Scripted_Handler({}), drawing, L"plot", m_options, go_on);
        EXPECT_EQ(result.end, Plot_End::Sent);
        std::stringstream content;
        content << std::ifstream(path, std::ios::binary).rdbuf();
        EXPECT_EQ(result.bytes, content.str().size());
        return content.str();
    }

    plot_host::Machine m_platform;
    PX_Plotter_Device_Data m_renderer;
    const PX_Plotter_Options& m_options = m_renderer.get_plotter_options();
    const std::filesystem::path m_folder = own_path();
    const Pen_Plotter_Driver m_pens;
};

// As large as a plot of A3 can be: a point of the drawing is one on the sheet.
inline const Drawing three_lines = {1135,
                                    786,
                                    {{{{0, 0}, {72, 0}}, {0, 0, 230}, 1},
                                     {{{72, 72}, {0, 72}}, {0, 0, 0}, 1},
                                     {{{0, 0}, {0, 36}, {36, 36}}, {0, 0, 255}, 1}}};

}  // namespace support
