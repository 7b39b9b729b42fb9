#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <random>
#include <string>

namespace support {

// A place in the temporary folder that no other test has, nor another run of this one.
inline std::filesystem::path own_path() {
    return std::filesystem::path(testing::TempDir()) /
           (std::string("marvcon_") + testing::UnitTest::GetInstance()->current_test_info()->name() + '_' +
            std::to_string(std::random_device()()));
}

}  // namespace support
