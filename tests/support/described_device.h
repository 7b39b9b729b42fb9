#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "examples/drivers/ppd/definition.h"
#include "examples/plot_host/host_error_handler.h"

namespace support {

inline void write_description(const std::filesystem::path& path, const std::string& lines) {
    std::ofstream(path, std::ios::binary)
        << "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*ModelName: \"D\"\n" + lines;
}

// The device of a printer description with these lines.
inline PX_Smart_Pointer<PX_Plotter_Definition> described_device(const std::string& lines) {
    static std::ostringstream silenced;
    const auto* const test = testing::UnitTest::GetInstance()->current_test_info();
    const auto path =
        std::filesystem::path(testing::TempDir()) / (std::string("described_") + test->name() + ".ppd");
    write_description(path, lines);
    auto device = open_ppd_device(
        path, PX_Smart_Pointer<PX_Error_Handler>(new plot_host::Host_Error_Handler(silenced)));
    std::filesystem::remove(path);
    return device;
}

// Each choice is "Name" or "Name/Shown"; the first is the default.
inline std::string option(const std::string& keyword, const std::vector<std::string>& choices) {
    std::string lines = "*OpenUI *" + keyword + ": PickOne\n*Default" + keyword + ": " +
                        choices.front().substr(0, choices.front().find('/')) + "\n";
    for (const std::string& choice : choices)
        lines += "*" + keyword + " " + choice + ": \"\"\n";
    return lines + "*CloseUI: *" + keyword + "\n";
}

}  // namespace support
