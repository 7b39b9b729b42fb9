#include "toolkit/platform/scripted/scripted_platform.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "toolkit/platform/floating_point_guard.h"
#include "toolkit/platform/utf8.h"

namespace {
using Words = std::vector<std::wstring>;

int twice(int number) {
    return 2 * number;
}

}  // namespace

TEST(Utf8, EncodesEveryLengthAndReplacesWhatIsNoCharacter) {
    const std::pair<std::u32string, std::string> rows[] = {
        {{0x00, 0x7F}, std::string("\0\x7F", 2)},
        {{0x80, 0x7FF}, "\xC2\x80\xDF\xBF"},
        {{0x800, 0xFFFF}, "\xE0\xA0\x80\xEF\xBF\xBF"},
        {{0x10000, 0x10FFFF}, "\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"},
        {{0xD7FF, 0xD800}, "\xED\x9F\xBF\xEF\xBF\xBD"},
        {{0xDFFF, 0xE000}, "\xEF\xBF\xBD\xEE\x80\x80"},
        {{0x110000, 0xFFFFFFFF}, "\xEF\xBF\xBD\xEF\xBF\xBD"},
    };
    for (const auto& [text, bytes] : rows)
        EXPECT_EQ(px_encode_utf8(std::u32string_view(text)), bytes);

    const std::u16string units = {0xDC00, 0xD83D, 0xDE00, 0xD83D};
    EXPECT_EQ(px_encode_utf8(std::u16string_view(units)), "\xEF\xBF\xBD\xF0\x9F\x98\x80\xEF\xBF\xBD");
}

TEST(ScriptedPlatform, ConvertsTextAllOrNothing) {
    PX_Scripted_Platform machine;
    const struct {
        const char* proves;
        int length;
        int bytes_size;
        int result;
        std::string bytes;
    } rows[] = {
        {"only counts, with the terminator", -1, 0, 4, "...."},
        {"takes the terminator along", -1, 4, 4, std::string("a\xC3\xA4\0", 4)},
        {"no room for the terminator", -1, 3, 0, "...."},
        {"no room for half a character", 2, 2, 0, "...."},
        {"a length leaves the terminator out", 2, 4, 3, "a\xC3\xA4."},
    };
    for (const auto& row : rows) {
        std::string bytes = "....";
        BOOL used_default = 7;
        EXPECT_EQ(machine.WideCharToMultiByte(CP_ACP, 0, L"a\u00E4", row.length, bytes.data(), row.bytes_size,
                                              nullptr, &used_default),
                  row.result)
            << row.proves;
        EXPECT_EQ(bytes, row.bytes) << row.proves;
        EXPECT_EQ(used_default, 0) << row.proves;
    }
}

TEST(ScriptedPlatform, CountsLoadsAndCatchesStaleHandles) {
    PX_Scripted_Platform machine;
    machine.install_module(L"en/texts.dll", {{7, L"seven"}});
    machine.export_procedure(L"en/texts.dll", "twice", &twice);
    EXPECT_EQ(machine.LoadLibraryW(L"texts.dll"), nullptr) << "the folder belongs to the name";
    const HMODULE module = machine.LoadLibraryExW(L"en/texts.dll", nullptr, 0);
    ASSERT_EQ(machine.LoadLibraryW(L"en/texts.dll"), module);
    EXPECT_EQ(machine.loaded_modules(), Words(2, L"en/texts.dll"));
    const auto found = reinterpret_cast<void (*)()>(machine.GetProcAddress(module, "twice"));
    ASSERT_TRUE(found);
    EXPECT_EQ(reinterpret_cast<int (*)(int)>(found)(21), 42);
    wchar_t text[5] = L"....";
    EXPECT_EQ(machine.LoadStringW(module, 7, text, 5), 4);
    EXPECT_STREQ(text, L"seve");

    EXPECT_TRUE(machine.FreeLibrary(module));
    EXPECT_EQ(machine.LoadStringW(module, 7, text, 5), 4) << "one load is left";
    EXPECT_TRUE(machine.FreeLibrary(module));
    EXPECT_EQ(machine.count_misuses(), 0);
    EXPECT_NE(machine.LoadLibraryW(L"en/texts.dll"), module);
    EXPECT_EQ(machine.LoadStringW(module, 7, text, 5), 0);
    EXPECT_EQ(machine.GetProcAddress(reinterpret_cast<HMODULE>(&machine), "twice"), nullptr);
    EXPECT_EQ(machine.GetModuleFileNameW(module, text, 5), 0U);
    EXPECT_FALSE(machine.FreeLibrary(module));
    EXPECT_EQ(machine.count_misuses(), 4);
    EXPECT_EQ(machine.calls_of("GetProcAddress").back().arguments, (Words{L"unknown", L"twice"}));
}

TEST(ScriptedPlatform, AnswersBoxesInOrderAndThenAsNobody) {
    PX_Scripted_Platform machine;
    const HWND window = machine.activate_window();
    machine.answer_next_box(IDRETRY);
    machine.answer_next_box(IDIGNORE);
    machine.fail("MessageBoxExW", 1, 1);
    EXPECT_EQ(machine.MessageBoxExW(machine.GetActiveWindow(), L"text", L"caption", 50, 2048), IDRETRY);
    EXPECT_EQ(machine.MessageBoxExW(nullptr, L"", L"", 50, 0), 0);
    EXPECT_EQ(machine.MessageBoxExW(nullptr, nullptr, nullptr, 50, 0), IDIGNORE) << "not eaten by the fault";
    EXPECT_EQ(machine.MessageBoxExW(nullptr, L"", L"", 50, 0), IDABORT);
    EXPECT_EQ(machine.MessageBoxExW(nullptr, L"", L"", 49, 0), IDCANCEL);
    EXPECT_EQ(machine.MessageBoxExW(nullptr, L"", L"", 16, 0), IDOK);

    ASSERT_EQ(machine.boxes().size(), 5U);
    EXPECT_EQ(machine.boxes()[0].owner, window);
    EXPECT_EQ(machine.calls_of("MessageBoxExW")[0].arguments,
              (Words{L"window", L"text", L"caption", L"50", L"2048"}));
}

TEST(ScriptedPlatform, FailsByOperationAndCount) {
    PX_Scripted_Platform machine;
    machine.install_module(L"m");
    machine.fail("LoadLibraryW", 2, 1);
    machine.fail("LoadLibraryW", 1, 1);
    machine.fail("FreeLibrary", PX_Scripted_Platform::always);
    machine.fail("LoadLibary");
    std::string loads;
    HMODULE module = nullptr;
    for (int call = 0; call < 6; ++call) {
        const HMODULE loaded = machine.LoadLibraryW(L"m");
        loads += loaded ? '+' : '-';
        module = loaded ? loaded : module;
    }
    EXPECT_EQ(loads, "+--+-+");
    EXPECT_FALSE(machine.FreeLibrary(module));
    EXPECT_FALSE(machine.FreeLibrary(module));
    EXPECT_EQ(machine.loaded_modules().size(), 3U) << "a fault has no effect";
    EXPECT_EQ(machine.unspent_faults(), std::vector<std::string>{"LoadLibary"});
    EXPECT_EQ(machine.count_of("LoadLibraryW"), 6) << "those that failed are on record too";
    EXPECT_TRUE(machine.calls()[1].is_fault);
    EXPECT_FALSE(machine.calls()[3].is_fault);
}

TEST(ScriptedPlatform, TheGuardWritesNoWordThatItCouldNotRead) {
    PX_Scripted_Platform machine;
    PX_Platform* const former = &PX_Get_Platform();
    machine.write_control_word(0x0108021F);
    {
        const PX_Use_Platform use(machine);
        const PX_Floating_Point_Guard guard;
        machine.write_control_word(0xFFFFFFFF);
    }
    EXPECT_EQ(machine.control_word(), 0x0108021FU);
    EXPECT_EQ(machine.calls()[0].arguments[1], L"0") << "the guard only reads at first";
    machine.fail("_controlfp_s");
    {
        const PX_Use_Platform use(machine);
        const PX_Floating_Point_Guard guard;
    }
    EXPECT_EQ(machine.count_of("_controlfp_s"), 3);
    EXPECT_EQ(&PX_Get_Platform(), former);
}
