#include "toolkit/platform/posix/posix_platform.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <link.h>
#include <unistd.h>

#include <cerrno>
#include <cfenv>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <thread>
#include <tuple>
#include <utility>

#include "tests/support/allocations.h"
#include "tests/support/terminal.h"
#include "tests/support/test_handler.h"
#include "toolkit/platform/floating_point_guard.h"
#include "toolkit/platform/utf8.h"

#if defined(__SSE2__)
#    include <xmmintrin.h>
#endif

namespace {
namespace fs = std::filesystem;

// Puts the word of the thread back whatever a test does to it.
class PosixFloatingPoint : public testing::Test {
protected:
    void SetUp() override { m_platform._controlfp_s(&m_saved, 0, 0); }
    void TearDown() override { put(m_saved, 0xFFFFFFFF); }
    unsigned int put(unsigned int value, unsigned int mask) {
        unsigned int word = 0;
        EXPECT_EQ(m_platform._controlfp_s(&word, value, mask), 0);
        return word;
    }

    PX_Posix_Platform m_platform;

private:
    unsigned int m_saved = 0;
};

volatile double one = 1.0;
volatile double three = 3.0;
volatile long double zero = 0.0L;
// Streams have buffers.
TEST(Log, CanBeReadWhileTheHandlerLives) {
    const auto name = fs::temp_directory_path() / ("marvcon_log_" + std::to_string(getpid()));
    support::Test_Handler handler;
    handler.set_log_handle(name.wstring().c_str());
    const auto written = [&] {
        std::ostringstream bytes;
        bytes << std::ifstream(name).rdbuf();
        return bytes.str();
    };
    handler.LogMessage(L"a", L"message");
    EXPECT_EQ(written(), "a: message\n\n");
    const wchar_t* names[] = {L"frame"};
    handler.LogPath(names, 1);
    EXPECT_EQ(written(), "a: message\n\nPath:\nframe\n");
    fs::remove(name);
}

}  // namespace

TEST(PosixMessageBox, TakesALetterOrAWordAndAsksAgain) {
    const struct {
        const char* proves;
        UINT type;
        std::string keys;
        int answer;
        std::string shown;
    } rows[] = {
        {"a small letter", 50, "r\n", IDRETRY, "C\nT\u00E4\nAbort / Retry / Ignore: "},
        {"a word in any case", 49, " oK \n", IDOK, "C\nT\u00E4\nOK / Cancel: "},
        {"asks again: empty, beginning of a word, no choice", 49, "\nCan\nR\nc\n", IDCANCEL,
         "C\nT\u00E4\nOK / Cancel: OK / Cancel: OK / Cancel: OK / Cancel: "},
        {"Enter will do for OK alone", 16, "\n", IDOK, "C\nT\u00E4\nOK: "},
        {"the end of the input aborts", 50, "x\n\x04", IDABORT,
         "C\nT\u00E4\nAbort / Retry / Ignore: Abort / Retry / Ignore: "},
        {"the end of the input cancels", 49, "\x04", IDCANCEL, "C\nT\u00E4\nOK / Cancel: "},
    };
    for (const auto& row : rows) {
        Terminal terminal;
        terminal.type(row.keys + "left\n");
        PX_Posix_Platform platform(terminal.program, terminal.program);
        EXPECT_EQ(platform.MessageBoxExW(nullptr, L"T\u00E4", L"C", row.type, 2048), row.answer)
            << row.proves;
        char rest[16] = "";
        EXPECT_EQ(read(terminal.program, rest, sizeof rest - 1), 5) << row.proves;
        EXPECT_STREQ(rest, "left\n") << row.proves;
        EXPECT_EQ(terminal.shown(), row.shown) << row.proves;
    }
}

TEST(PosixMessageBox, EndsTheMatterWithoutATerminal) {
    Terminal terminal;
    terminal.type("R\n");
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    PX_Posix_Platform platform(terminal.program, ends[1]);
    EXPECT_EQ(platform.MessageBoxExW(nullptr, L"T", nullptr, 50, 0), IDABORT);
    EXPECT_EQ(platform.MessageBoxExW(nullptr, nullptr, L"C", 49, 0), IDCANCEL);
    EXPECT_EQ(platform.MessageBoxExW(nullptr, L"T", L"C", 16, 0), IDOK);
    EXPECT_EQ(platform.MessageBoxExW(nullptr, L"T", L"C", 5, 0), IDOK) << "an unknown type";
    close(ends[1]);
    EXPECT_EQ(read_all(ends[0]), "\nT\nC\n\nC\nT\nC\nT\n");
    close(ends[0]);
}

TEST(PosixMessageBox, WritesAllOfALongTextToASlowReader) {
    int ends[2];
    ASSERT_EQ(pipe2(ends, O_NONBLOCK), 0);
    fcntl(ends[0], F_SETFL, 0);
    const std::wstring text(1'000'000, L'x');
    std::thread box([&] {
        PX_Posix_Platform(ends[1], ends[1]).MessageBoxExW(nullptr, text.c_str(), L"", MB_OK, 0);
        close(ends[1]);
    });
    EXPECT_EQ(read_all(ends[0]).size(), text.size() + 2);
    box.join();
    close(ends[0]);
}

TEST(PosixMessageBox, IsShownWithoutMemoryAndEndsTheMatter) {
    Terminal terminal;
    terminal.type("R\n");
    PX_Posix_Platform platform(terminal.program, terminal.program);
    int answer = 0;
    {
        const support::Out_Of_Memory none(0, true);
        answer = platform.MessageBoxExW(nullptr, L"T", L"C", 50, 0);
    }
    EXPECT_EQ(answer, IDABORT);
    EXPECT_EQ(terminal.shown(), "C\nT\n");
}

TEST(PosixModules, LooksBesideTheProgramAndNeverInTheSystem) {
    PX_Posix_Platform platform;
    EXPECT_EQ(platform.LoadLibraryW(L"libm.so.6"), nullptr) << "on the system's path, not on ours";
    EXPECT_EQ(platform.LoadLibraryW(L"absent.dll"), nullptr);
    EXPECT_EQ(platform.LoadLibraryW(L""), nullptr);
    EXPECT_EQ(platform.LoadLibraryW(nullptr), nullptr);

    void* const system = dlopen("libm.so.6", RTLD_NOW);
    link_map* map = nullptr;
    ASSERT_EQ(dlinfo(system, RTLD_DI_LINKMAP, &map), 0);
    const fs::path program = fs::read_symlink("/proc/self/exe");
    const fs::path folder = program.parent_path() / ("\u00E4_" + std::to_string(getpid()));
    fs::create_directory(folder);
    // A copy: a link would give the module that is in memory already.
    fs::copy_file(map->l_name, folder / "m.so");
    dlclose(system);

    const std::wstring relative = L"\u00E4_" + std::to_wstring(getpid()) + L"/m";
    const std::wstring absolute = wide(program.parent_path()) + L"/" + relative;
    const HMODULE module = platform.LoadLibraryExW((relative + L".dll").c_str(), nullptr, 0);
    ASSERT_TRUE(module);
    EXPECT_EQ(platform.LoadLibraryW((absolute + L".dll").c_str()), module);
    EXPECT_EQ(platform.LoadLibraryW((absolute + L".so").c_str()), module);
    fs::remove_all(folder);

    EXPECT_TRUE(platform.GetProcAddress(module, "cos"));
    EXPECT_FALSE(platform.GetProcAddress(nullptr, "cos"));
    wchar_t text[260];
    EXPECT_EQ(platform.LoadStringW(module, 1, text, 260), 0) << "a module without texts";
    EXPECT_EQ(platform.GetModuleFileNameW(module, text, 260), absolute.size() + 3);
    EXPECT_EQ(text, absolute + L".so");
    for (int load = 0; load < 3; ++load)
        EXPECT_TRUE(platform.FreeLibrary(module));
    EXPECT_FALSE(platform.FreeLibrary(nullptr));
}

TEST(PosixModules, CutsThePathOfTheProgram) {
    const std::wstring program = wide(fs::read_symlink("/proc/self/exe"));
    const DWORD length = static_cast<DWORD>(program.size());
    std::wstring path(program.size(), L'.');
    EXPECT_EQ(PX_Posix_Platform().GetModuleFileNameW(nullptr, path.data(), length), length);
    EXPECT_EQ(path.c_str(), program.substr(0, length - 1));
}

TEST(PosixText, WhatIsNoCharacterIsReplacedByteForByte) {
    const struct {
        const char* proves;
        std::string bytes;
        std::wstring text;
    } rows[] = {
        {"the first and the last of each length", "\x01\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBF",
         L"\x01\x7F\x80\u07FF\u0800\xFFFF"},
        {"four bytes", "\xF0\x90\x80\x80\xF4\x8F\xBF\xBF", L"\U00010000\U0010FFFF"},
        {"above the last", "\xF4\x90\x80\x80\xF8", L"\xFFFD\xFFFD\xFFFD\xFFFD\xFFFD"},
        {"too long for what it says", "\xC0\x80\xE0\x9F\xBF", L"\xFFFD\xFFFD\xFFFD\xFFFD\xFFFD"},
        {"a surrogate", "\xED\xA0\x80", L"\xFFFD\xFFFD\xFFFD"},
        {"a tail alone, a lead before a letter and at the end", "\x80\xC3x\xE2\x82",
         L"\xFFFD\xFFFDx\xFFFD\xFFFD"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(px_from_utf8(row.bytes), row.text) << row.proves;
}

TEST(PosixFiles, OpensByWideNameOrTellsWhyNot) {
    PX_Posix_Platform platform;
    const fs::path path = fs::temp_directory_path() / ("\u00E4_" + std::to_string(getpid()));
    const std::wstring name = wide(path);
    std::FILE* stream = nullptr;
    ASSERT_EQ(platform._wfopen_s(&stream, name.c_str(), L"a+"), 0);
    std::fclose(stream);
    EXPECT_TRUE(fs::remove(path));
    EXPECT_EQ(platform._wfopen_s(&stream, name.c_str(), L"r"), ENOENT);
    EXPECT_EQ(stream, nullptr);
    EXPECT_EQ(platform._wfopen_s(&stream, nullptr, L"r"), EINVAL);
    EXPECT_EQ(platform._wfopen_s(nullptr, L"", L"r"), EINVAL);
}

TEST_F(PosixFloatingPoint, RoundsAndMasksAsTheWordSays) {
    const double third = one / three;
    const double above = std::nextafter(third, 1.0);
    for (const auto& [word, quotient, negative] : {std::tuple{0U, third, -third},
                                                   {0x100U, third, -above},
                                                   {0x200U, above, -third},
                                                   {0x300U, third, -third}}) {
        EXPECT_EQ(put(word, 0x300) & 0x300, word);
        EXPECT_EQ(one / three, quotient) << word;
        EXPECT_EQ(-one / three, negative) << word;
    }
    put(0xFFFFFFFF, 0x0008001F);
    for (const auto& [bit, native] : {std::pair{1U, FE_INEXACT},
                                      {2U, FE_UNDERFLOW},
                                      {4U, FE_OVERFLOW},
                                      {8U, FE_DIVBYZERO},
                                      {16U, FE_INVALID}}) {
        EXPECT_EQ(put(0, bit) & 0x0008001F, 0x0008001FU & ~bit);
        EXPECT_EQ(fegetexcept(), native);
        put(bit, bit);
    }
    EXPECT_EQ(put(0xFFFFFFFF, ~0x0308031FU) & ~0x0308031FU, 0U) << "other bits do not exist";
    EXPECT_EQ(fegetexcept(), 0);
}

TEST_F(PosixFloatingPoint, TheGuardUndoesWhatPrinterCodeDid) {
    put(0x01000200, 0x03000308);
    const unsigned int before = put(0, 0);
    try {
        const PX_Floating_Point_Guard guard;
        put(0x00080000 | 0x11F, 0x0308031F);
        EXPECT_NE(put(0, 0), before);
        // Leaves its flag up; it must not strike as soon as the exception is let through again.
        volatile long double infinite = 1.0L / zero;
        static_cast<void>(infinite);
        throw std::runtime_error("printer code");
    } catch (const std::runtime_error&) {
    }
    EXPECT_EQ(put(0, 0), before);
    volatile long double sum = zero + 1.0L;
    EXPECT_EQ(sum, 1.0L);
}

#if defined(__SSE2__)
TEST_F(PosixFloatingPoint, TheGuardKeepsWhatTheHostSetInTheVectorUnitAlone) {
    _MM_SET_ROUNDING_MODE(_MM_ROUND_DOWN);
    {
        const PX_Floating_Point_Guard guard;
        std::fesetround(FE_UPWARD);
    }
    EXPECT_EQ(_MM_GET_ROUNDING_MODE(), static_cast<unsigned int>(_MM_ROUND_DOWN));
}
#endif
