#include <gtest/gtest.h>

#include <cwchar>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "tests/support/test_handler.h"
#include "toolkit/core/exception.h"
#include "toolkit/platform/win_types.h"

// Narrow texts are in the code page of the machine, whichever that is.

namespace {

constexpr const wchar_t* greeting = L"Gr\u00FC\u00DFe \u20AC \u0416";

std::string narrow(const wchar_t* text, int length) {
    std::string bytes(8 * static_cast<std::size_t>(length), '\0');
    const int size = WideCharToMultiByte(CP_ACP, 0, text, length, bytes.data(),
                                         static_cast<int>(bytes.size()), nullptr, nullptr);
    bytes.resize(static_cast<std::size_t>(size));
    return bytes;
}

TEST(Code_Page, IsThatOfTheMachineForFunctionNamesAndTheLog) {
    ASSERT_NE(GetACP(), UINT{CP_UTF8}) << "of no use where both are the same";
    EXPECT_EQ(PX_Exception(1103, greeting).what(), narrow(greeting, static_cast<int>(std::wcslen(greeting))));

    const auto log = std::filesystem::temp_directory_path() / L"marvcon_code_page.log";
    std::filesystem::remove(log);
    {
        support::Test_Handler handler;
        handler.set_log_handle(log.wstring().c_str());
        handler.LogMessage(L"Info", greeting);
    }
    std::string expected = "Info: ";
    for (const wchar_t* at = greeting; *at; ++at)
        expected += narrow(at, 1);
    std::ostringstream written;
    written << std::ifstream(log, std::ios::binary).rdbuf();
    EXPECT_EQ(written.str(), expected + "\r\n\r\n");
    std::filesystem::remove(log);
}

}  // namespace
