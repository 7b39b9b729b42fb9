#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "tests/support/test_handler.h"
#include "toolkit/core/module.h"
#include "toolkit/platform/scripted/scripted_platform.h"

namespace {

const wchar_t* german() {
    return L"de-DE";
}

const wchar_t* no_language() {
    return nullptr;
}

class Error_Resources : public testing::Test {
protected:
    // Every test looks for the module afresh.
    Error_Resources() {
        PX_Module_Exit();
        PX_Set_Platform(&m_machine);
    }
    ~Error_Resources() override {
        PX_Module_Exit();
        PX_Set_Platform(nullptr);
    }

    std::vector<std::wstring> tried() const {
        std::vector<std::wstring> names;
        for (const auto& call : m_machine.calls()) {
            if (call.operation == "LoadLibraryExW" || call.operation == "LoadLibraryW")
                names.push_back(call.arguments[0]);
        }
        return names;
    }

    PX_Scripted_Platform m_machine;
};

TEST_F(Error_Resources, LooksAgainAfterAFailureAndKeepsTheModuleOnTheSearchPath) {
    EXPECT_EQ(GetMVNErrResHandle(), 0U);
    m_machine.install_module(L"mvnres11.dll");
    m_machine.forget_calls();
    const auto module = GetMVNErrResHandle();
    EXPECT_NE(module, 0U);
    EXPECT_EQ(GetMVNErrResHandle(), module);
    EXPECT_EQ(tried(), std::vector<std::wstring>{L"mvnres11.dll"});
    PX_Module_Exit();
    EXPECT_TRUE(m_machine.loaded_modules().empty());
    EXPECT_EQ(m_machine.count_misuses(), 0);
}

TEST_F(Error_Resources, AsksTheModuleBesideTheProgramForTheLanguage) {
    struct Case {
        wchar_t separator;
        const wchar_t* program;
        const wchar_t* beside;
    };
    for (const Case& row :
         {Case{L'\\', L"C:\\Apps\\Draw\\draw.exe", L"C:\\Apps\\Draw\\userdata.dll"},
          Case{L'\\', L"C:\\Apps/Draw/draw.exe", L"C:\\Apps/Draw/userdata.dll"},
          Case{L'\\', L"C:draw.exe", L"C:userdata.dll"}, Case{L'\\', L"draw.exe", L"userdata.dll"},
          Case{L'/', L"/opt/a\\b:draw", L"/opt/userdata.dll"}}) {
        SCOPED_TRACE(testing::PrintToString(row.program));
        const std::wstring module = std::wstring(L"de-DE") + row.separator + L"mvnres11.dll";
        m_machine.forget_calls();
        m_machine.separate_folders_by(row.separator);
        m_machine.place_program_at(row.program);
        m_machine.export_procedure(row.beside, "vrcuGetProductUILanguage", german);
        m_machine.install_module(module);
        EXPECT_NE(GetMVNErrResHandle(), 0U);
        EXPECT_EQ(tried(), (std::vector<std::wstring>{L"mvnres11.dll", row.beside, module}));
        EXPECT_EQ(m_machine.loaded_modules(), std::vector<std::wstring>{module});
        PX_Module_Exit();
    }
}

TEST_F(Error_Resources, FallsBackOnEnglish) {
    m_machine.install_module(L"en-US\\mvnres11.dll");
    const wchar_t* const beside = L"C:\\Program\\userdata.dll";
    const std::pair<const char*, std::function<void()>> rows[] = {
        {"no language module", [] {}},
        {"one without the function", [&] { m_machine.install_module(beside); }},
        {"one that tells none",
         [&] { m_machine.export_procedure(beside, "vrcuGetProductUILanguage", no_language); }},
        {"a program path too long", [&] { m_machine.place_program_at(std::wstring(300, L'p')); }},
        {"no program path", [&] { m_machine.hide_program_path(); }},
    };
    for (const auto& [what, set_up] : rows) {
        SCOPED_TRACE(what);
        set_up();
        EXPECT_NE(GetMVNErrResHandle(), 0U);
        EXPECT_EQ(m_machine.loaded_modules(), std::vector<std::wstring>{L"en-US\\mvnres11.dll"});
        PX_Module_Exit();
    }
}

struct Reader : support::Test_Handler {
    std::wstring text(unsigned int code) { return DecodeErrNum(GetMVNErrResHandle(), code).c_str(); }
};

TEST_F(Error_Resources, AreTheCurrentPlatforms) {
    // The second machine of the two stands where the first one stood.
    std::optional<PX_Scripted_Platform> other;
    Reader reader;
    m_machine.install_module(L"mvnres11.dll", {{1, L"first"}});
    EXPECT_EQ(reader.text(1), L"first");
    for (const wchar_t* const text : {L"second", L"third"}) {
        other.emplace().install_module(L"mvnres11.dll", {{1, text}});
        {
            const PX_Use_Platform use(*other);
            EXPECT_TRUE(m_machine.loaded_modules().empty()) << "given back before the exchange";
            EXPECT_EQ(reader.text(1), text);
            EXPECT_EQ(reader.text(1), text);
            EXPECT_EQ(other->loaded_modules().size(), 1U) << "loaded once";
        }
        EXPECT_TRUE(other->loaded_modules().empty());
        EXPECT_EQ(other->count_misuses(), 0);
        EXPECT_EQ(reader.text(1), L"first");
    }
    PX_Module_Exit();
    EXPECT_TRUE(m_machine.loaded_modules().empty());
    EXPECT_EQ(m_machine.count_misuses(), 0);
}

struct Text {
    unsigned int code;
    const wchar_t* english;
    const wchar_t* german;
};
constexpr Text all_texts[] = {
#define MVN_ERROR_TEXT(code, english, german) {code, L##english, L##german},
#include "toolkit/resources/error_texts.inc"
#undef MVN_ERROR_TEXT
};

// Most texts are shown as they stand; a percent sign too much would be read as an argument.
TEST(Texts, HoldThePortAsOftenAsItIsGiven) {
    const std::map<unsigned int, int> ports = {{218, 1}, {229, 5}, {234, 1}, {244, 1},
                                               {245, 1}, {246, 1}, {247, 1}};
    const auto count = [](std::wstring_view text, std::wstring_view part) {
        int found = 0;
        for (auto at = text.find(part); at != text.npos; at = text.find(part, at + 1))
            ++found;
        return found;
    };
    for (const auto& [code, english, german] : all_texts) {
        const auto with_port = ports.find(code);
        const int expected = with_port == ports.end() ? 0 : with_port->second;
        for (const auto* const text : {english, german}) {
            EXPECT_EQ(count(text, L"%ls"), expected) << code;
            EXPECT_EQ(count(text, L"%"), expected) << code;
        }
    }
}

// The modules that are shipped, on the machine itself. Beside the program of this test stands a language
// module that tells German, where the build gives it one.
TEST(Shipped_Texts, AreInTheLanguageOfTheProduct) {
    PX_Module_Exit();
    Reader reader;
    for (const auto& [code, english_text, german_text] : all_texts)
        EXPECT_EQ(reader.text(code), MVN_EXPECT_GERMAN ? german_text : english_text) << code;
    EXPECT_EQ(reader.text(999), L"Unknown Error Code 999\n");
}

}  // namespace
