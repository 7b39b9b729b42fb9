#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>

#include "tests/support/test_handler.h"
#include "toolkit/platform/scripted/scripted_platform.h"

namespace {

using support::Test_Handler;
using Result = PX_Error_Handler::PX_Error_Result;
using Pointer = PX_Smart_Pointer<PX_Error_Handler>;

class Error_Handler : public testing::Test {
protected:
    Error_Handler() : m_use(m_machine) { m_machine.install_module(L"texts", {{1103, L"Missing."}}); }

    unsigned long long texts() {
        return reinterpret_cast<unsigned long long>(m_machine.LoadLibraryW(L"texts"));
    }

    PX_Scripted_Platform m_machine;
    PX_Use_Platform m_use;
    Test_Handler m_handler;
};

TEST_F(Error_Handler, AsksWithTheBoxOfTheKind) {
    struct Case {
        Result (PX_Error_Handler::*report)(unsigned long long, unsigned int, const wchar_t*, const wchar_t*,
                                           const wchar_t*);
        const wchar_t* caption;
        UINT style;
        std::vector<std::pair<int, Result>> answers;
    };
    const std::vector<std::pair<int, Result>> confirm = {{IDOK, PX_Error_Handler::Result_Ignore},
                                                         {IDCANCEL, PX_Error_Handler::Result_Abort},
                                                         {0, PX_Error_Handler::Result_Ignore}};
    const std::vector<std::pair<int, Result>> choose = {{IDABORT, PX_Error_Handler::Result_Abort},
                                                        {IDRETRY, PX_Error_Handler::Result_Retry},
                                                        {IDIGNORE, PX_Error_Handler::Result_Ignore},
                                                        {0, PX_Error_Handler::Result_Ignore}};
    for (const Case& row : {Case{&PX_Error_Handler::warning, L"Warning", 49, confirm},
                            Case{&PX_Error_Handler::error, L"Error", 49, confirm},
                            Case{&PX_Error_Handler::ARI_error, L"ARI", 50, choose}}) {
        for (const auto& [answer, result] : row.answers) {
            m_machine.answer_next_box(answer);
            EXPECT_EQ((m_handler.*row.report)(texts(), 1103, L"f", L"d", nullptr), result) << answer;
            const auto& box = m_machine.boxes().back();
            EXPECT_EQ(box.text, L"Missing.") << "the user reads no function names";
            EXPECT_EQ(box.caption, row.caption);
            EXPECT_EQ(box.type, row.style);
            EXPECT_EQ(box.language, 2048);
        }
    }
    m_handler.severe_error(texts(), 1103, L"f", L"d", nullptr);
    EXPECT_EQ(m_machine.boxes().back().caption, L"Severe");
    EXPECT_EQ(m_machine.boxes().back().type, 16U);
    m_handler.info(0, 1103, L"f", L"d", nullptr);
    EXPECT_EQ(m_machine.boxes().back().caption, L"Info");
    EXPECT_EQ(m_machine.boxes().back().type, 0U);
    EXPECT_EQ(m_machine.boxes().back().text, L"Unknown Error Code 1103\n") << "no module, no text";
    EXPECT_EQ(m_machine.count_of("_wfopen_s"), 0) << "neither quiet nor log: nothing is logged";
}

TEST_F(Error_Handler, QuietModeLogsAndIgnoresButShowsTheEnd) {
    m_handler.set_quiet_mode(true);
    m_handler.set_log_handle(L"log");
    EXPECT_EQ(m_handler.warning(texts(), 1103, L"f", L"d", L"tag"), PX_Error_Handler::Result_Ignore);
    EXPECT_EQ(m_handler.ARI_error(0, 7, nullptr, L"", nullptr), PX_Error_Handler::Result_Ignore);
    m_handler.severe_error(texts(), 1103, L"g", nullptr, nullptr);
    m_handler.info(texts(), 1103, L"g", nullptr, nullptr);
    EXPECT_TRUE(m_machine.boxes().empty());
    EXPECT_EQ(m_handler.message_box(L"text", L"caption", 1, 77), 77);
    EXPECT_EQ(m_machine.log_of(L"log"),
              "Warning: f\nMissing. d tag\n\n"
              "ARI: \nUnknown Error Code 7\n \n\n"
              "Severe: g\nMissing.\n\n");
    m_handler.terminal_error(texts(), 1103, L"f", nullptr, nullptr);
    ASSERT_EQ(m_machine.boxes().size(), 1U);
    EXPECT_EQ(m_machine.boxes()[0].caption, L"Terminal");
}

TEST_F(Error_Handler, LogsInTheCodePageAndAppends) {
    m_handler.set_log_mode(true);
    m_handler.set_log_handle(L"log");
    m_handler.info_message(L"Gr\u00FC\u00DFe \u20AC");
    EXPECT_EQ(m_machine.log_of(L"log"),
              "Info: Gr\xC3\xBC\xC3\x9F"
              "e \xE2\x82\xAC\n\n"
              "Info: Gr\xC3\xBC\xC3\x9F"
              "e \xE2\x82\xAC\n\n")
        << "once for the message and once for its box";
    const wchar_t* names[] = {L"inner", L"outer"};
    m_handler.LogPath(names, 0);
    m_handler.LogPath(names, 2);
    EXPECT_TRUE(m_machine.log_of(L"log").ends_with("\n\nPath:\ninner\nouter\n"));
}

TEST_F(Error_Handler, AnotherLogNameClosesTheLogAndIsNotStored) {
    EXPECT_TRUE(m_handler.set_log_handle(L"a"));
    m_handler.LogMessage(L"to", L"a");
    EXPECT_TRUE(m_handler.set_log_handle(L"a"));
    m_handler.LogMessage(L"still", L"a");
    EXPECT_TRUE(m_handler.set_log_handle(L"b"));
    m_handler.LogMessage(L"to", L"nobody");
    EXPECT_EQ(m_machine.log_of(L"a"), "to: a\n\nstill: a\n\n");
    EXPECT_EQ(m_machine.log_of(L"b"), "");
    EXPECT_TRUE(m_handler.set_log_handle(L"b"));
    m_handler.LogMessage(L"to", L"b");
    EXPECT_EQ(m_machine.log_of(L"b"), "to: b\n\n");
}

TEST_F(Error_Handler, TriesAgainForALogThatWouldNotOpen) {
    m_machine.fail("_wfopen_s");
    m_handler.set_log_handle(L"log");
    m_handler.LogMessage(L"lost", L"one");
    m_handler.LogMessage(L"kept", L"one");
    EXPECT_EQ(m_machine.log_of(L"log"), "kept: one\n\n");
}

TEST_F(Error_Handler, ABoxThatFailsIsCancelled) {
    class Throwing : public Test_Handler {
        void LogMessage(const wchar_t*, const wchar_t*) override { throw 1; }
    };
    Throwing handler;
    handler.set_log_mode(true);
    EXPECT_EQ(handler.message_box(L"text", L"caption", 0, 7), IDCANCEL);
}

TEST_F(Error_Handler, AParentTakesInformationAndTheEnd) {
    class Parent : public Test_Handler {
        const wchar_t* get_info_caption() const override { return L"Parent"; }
        const wchar_t* get_terminal_error_caption() const override { return L"Parent"; }
        const wchar_t* get_error_caption() const override { return L"Parent"; }
    };
    const Pointer parent(new Parent);
    const Pointer child(new Test_Handler(parent));
    child->info(0, 1, nullptr, nullptr, nullptr);
    EXPECT_EQ(m_machine.boxes().back().caption, L"Parent");
    child->terminal_error(0, 1, nullptr, nullptr, nullptr);
    EXPECT_EQ(m_machine.boxes().back().caption, L"Parent");
    child->error(0, 1, nullptr, nullptr, nullptr);
    EXPECT_EQ(m_machine.boxes().back().caption, L"Error");
    parent->set_log_handle(L"log");
    child->set_log_handle(L"unused");
    child->LogMessage(L"from", L"the child");
    EXPECT_EQ(m_machine.log_of(L"log"), "from: the child\n\n");
    parent->set_product_string(L"product");
    child->set_product_string(L"own");
    EXPECT_STREQ(child->get_product_string(), L"product");
}

TEST_F(Error_Handler, QuietModeReachesTheFamilyAndLogModeTheChildren) {
    const Pointer parent(new Test_Handler);
    parent->set_log_mode(true);
    const Pointer one(new Test_Handler(parent));
    const Pointer two(new Test_Handler(parent));
    const Pointer grandchild(new Test_Handler(one));
    EXPECT_TRUE(grandchild->get_log_mode()) << "taken over from the parent";
    grandchild->set_quiet_mode(true);
    EXPECT_TRUE(one->get_quiet_mode() && two->get_quiet_mode() && parent->get_quiet_mode());
    one->set_log_mode(false);
    EXPECT_FALSE(one->get_log_mode() || grandchild->get_log_mode());
    EXPECT_TRUE(parent->get_log_mode() && two->get_log_mode());
}

TEST_F(Error_Handler, NoListKeepsAHandlerThatIsGone) {
    const Pointer first(new Test_Handler);
    const Pointer second(new Test_Handler);
    {
        const Pointer child(new Test_Handler(first));
        first->add_child(child.get());   // twice
        second->add_child(child.get());  // and moved
        second->add_child(child.get());
        second->add_child(nullptr);
    }
    first->set_quiet_mode(true);
    second->set_quiet_mode(true);
    EXPECT_TRUE(first->get_quiet_mode() && second->get_quiet_mode());
}

TEST_F(Error_Handler, ReportsAnExceptionByItsKind) {
    class Kind_Of : public PX_Exception {
    public:
        explicit Kind_Of(Handler kind) : PX_Exception(1103), m_kind(kind) {}
        Handler get_handler() const override { return m_kind; }

    private:
        Handler m_kind;
    };
    struct Case {
        int kind;
        const wchar_t* caption;
        Result result;  // with nobody at the box
    };
    m_handler.set_log_handle(L"log");
    for (const Case& row :
         {Case{0, L"Info", PX_Error_Handler::Result_Ignore},
          Case{1, L"Warning", PX_Error_Handler::Result_Abort},
          Case{2, L"Error", PX_Error_Handler::Result_Abort}, Case{3, L"ARI", PX_Error_Handler::Result_Abort},
          Case{4, L"Severe", PX_Error_Handler::Result_Ignore},
          Case{5, L"Terminal", PX_Error_Handler::Result_Ignore},
          Case{99, L"Error", PX_Error_Handler::Result_Abort}}) {
        Kind_Of caught(static_cast<PX_Exception::Handler>(row.kind));
        caught.push_frame(row.caption);
        EXPECT_EQ(px_report_by_kind(m_handler, caught), row.result) << row.kind;
        EXPECT_EQ(m_machine.boxes().back().caption, row.caption);
    }
    EXPECT_TRUE(m_machine.log_of(L"log").starts_with("Path:\nInfo\nPath:\nWarning\n"))
        << "the path is written whatever the modes";

    const auto log = m_machine.log_of(L"log");
    const auto boxes = m_machine.boxes().size();
    Kind_Of nothing(PX_Exception::Handler_None);
    nothing.push_frame(L"frame");
    EXPECT_EQ(px_report_by_kind(m_handler, nothing), PX_Error_Handler::Result_Abort);
    EXPECT_EQ(m_machine.log_of(L"log"), log);
    EXPECT_EQ(m_machine.boxes().size(), boxes);

    MVNK_Warning warning(1103);
    m_machine.answer_next_box(IDRETRY);
    EXPECT_EQ(px_report_as_ARI(m_handler, warning), PX_Error_Handler::Result_Retry);
    px_report_as_severe(m_handler, warning);
    EXPECT_EQ(m_machine.boxes().back().caption, L"Severe");
}

}  // namespace
