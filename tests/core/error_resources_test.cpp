#include <gtest/gtest.h>

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

TEST_F(Error_Resources, TakesTheModuleOnTheSearchPathAndKeepsIt) {
    m_machine.install_module(L"mvnres11.dll");
    const auto module = GetMVNErrResHandle();
    EXPECT_NE(module, 0U);
    EXPECT_EQ(GetMVNErrResHandle(), module);
    EXPECT_EQ(tried(), std::vector<std::wstring>{L"mvnres11.dll"});
    PX_Module_Exit();
    EXPECT_TRUE(m_machine.loaded_modules().empty());
    EXPECT_EQ(m_machine.count_misuses(), 0);
}

TEST_F(Error_Resources, AsksTheModuleBesideTheProgramForTheLanguage) {
    m_machine.place_program_at(L"C:\\Apps\\Draw\\draw.exe");
    m_machine.export_procedure(L"C:\\Apps\\Draw\\userdata.dll", "vrcuGetProductUILanguage", german);
    m_machine.install_module(L"de-DE\\mvnres11.dll");
    EXPECT_NE(GetMVNErrResHandle(), 0U);
    EXPECT_EQ(tried(), (std::vector<std::wstring>{L"mvnres11.dll", L"C:\\Apps\\Draw\\userdata.dll",
                                                  L"de-DE\\mvnres11.dll"}));
    EXPECT_EQ(m_machine.loaded_modules(), std::vector<std::wstring>{L"de-DE\\mvnres11.dll"});
}

TEST_F(Error_Resources, FallsBackOnEnglish) {
    struct Case {
        const char* what;
        void (*set_up)(PX_Scripted_Platform&);
    };
    m_machine.install_module(L"en-US\\mvnres11.dll");
    for (const Case& row :
         {Case{"no language module", [](PX_Scripted_Platform&) {}},
          Case{"one without the function",
               [](PX_Scripted_Platform& machine) { machine.install_module(L"C:\\Program\\userdata.dll"); }},
          Case{"one that tells none",
               [](PX_Scripted_Platform& machine) {
                   machine.export_procedure(L"C:\\Program\\userdata.dll", "vrcuGetProductUILanguage",
                                            no_language);
               }},
          Case{"a program path too long",
               [](PX_Scripted_Platform& machine) { machine.place_program_at(std::wstring(300, L'p')); }},
          Case{"no program path", [](PX_Scripted_Platform& machine) { machine.hide_program_path(); }}}) {
        SCOPED_TRACE(row.what);
        row.set_up(m_machine);
        EXPECT_NE(GetMVNErrResHandle(), 0U);
        EXPECT_EQ(m_machine.loaded_modules(), std::vector<std::wstring>{L"en-US\\mvnres11.dll"});
        PX_Module_Exit();
    }
}

TEST_F(Error_Resources, LooksAgainAfterAFailure) {
    EXPECT_EQ(GetMVNErrResHandle(), 0U);
    m_machine.install_module(L"mvnres11.dll");
    EXPECT_NE(GetMVNErrResHandle(), 0U);
}

// The modules that are shipped, on the machine itself. Beside the program of this test stands a language
// module that tells German, where the build gives it one.
TEST(Shipped_Texts, AreInTheLanguageOfTheProduct) {
    PX_Module_Exit();
    struct Reader : support::Test_Handler {
        std::wstring text(unsigned int code) { return DecodeErrNum(GetMVNErrResHandle(), code).c_str(); }
    } reader;
    struct Text {
        unsigned int code;
        const wchar_t* english;
        const wchar_t* german;
    };
    constexpr Text texts[] = {
#define MVN_ERROR_TEXT(code, english, german) {code, L##english, L##german},
#include "toolkit/resources/error_texts.inc"
#undef MVN_ERROR_TEXT
    };
    for (const auto& [code, english_text, german_text] : texts)
        EXPECT_EQ(reader.text(code), MVN_EXPECT_GERMAN ? german_text : english_text) << code;
    EXPECT_EQ(reader.text(999), L"Unknown Error Code 999\n");
}

}  // namespace
