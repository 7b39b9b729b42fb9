#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "examples/plot_host/host.h"
#include "tests/support/own_path.h"

namespace support {

struct Outcome {
    int code;
    std::string out;
    std::string err;
};

inline Outcome run_host(const std::vector<std::string>& arguments, const Driver& driver) {
    std::vector<const char*> words = {"plot_host"};
    for (const std::string& argument : arguments)
        words.push_back(argument.c_str());
    std::ostringstream out, err;
    const auto find_driver = [&](const std::filesystem::path&) -> const Driver& { return driver; };
    const int code = plot_host::run(static_cast<int>(words.size()), words.data(), find_driver, out, err);
    return {code, out.str(), err.str()};
}

inline std::string content_of(const std::string& path) {
    std::stringstream content;
    content << std::ifstream(path, std::ios::binary).rdbuf();
    return content.str();
}

inline void expect_in(const std::string& text, const std::vector<std::string>& parts) {
    for (const std::string& part : parts)
        EXPECT_NE(text.find(part), std::string::npos) << part << " is not in\n" << text;
}

// A folder of its own for each run of a test.
class Host_Test : public testing::Test {
protected:
    void SetUp() override { std::filesystem::create_directories(m_folder); }
    void TearDown() override { std::filesystem::remove_all(m_folder); }

    std::string path(const std::string& name) const { return (m_folder / name).string(); }

    std::string file(const std::string& name, const std::string& content) const {
        std::ofstream(path(name), std::ios::binary) << content;
        return path(name);
    }

private:
    const std::filesystem::path m_folder = own_path();
};

}  // namespace support
