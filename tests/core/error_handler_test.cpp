#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <random>
#include <sstream>

#include "tests/support/test_handler.h"
#include "toolkit/platform/scripted/scripted_platform.h"

namespace {

using support::Test_Handler;
using Result = PX_Error_Handler::PX_Error_Result;
using Pointer = PX_Smart_Pointer<PX_Error_Handler>;

// A handler that takes whatever it is asked for and writes down what it is told.
class Recorder : public Test_Handler {
public:
    using Text = const wchar_t*;
    using Test_Handler::Test_Handler;

    void info_message(Text text) override { record(L"info_message", text); }
    int message_box(Text text, Text caption, unsigned int type, int default_result) override {
        record(L"box", text, caption, type, default_result);
        return 42;
    }
    void LogMessage(Text caption, Text text) override { record(L"log", caption, text); }
    void LogPath(Text* names, int count) override { record(L"path", count, names[0]); }
    bool take_responsability(PX_Exception::Handler kind) override {
        asked = kind;
        return true;
    }
    PX_Smart_Pointer<PX_Progress> get_progress() const override { return progress; }
    void remove_child(PX_Error_Handler* child) override {
        record(L"left");
        Test_Handler::remove_child(child);
    }
    bool get_log_mode() const override {
        if (throws)
            throw 1;
        return Test_Handler::get_log_mode();
    }

#define RECORDED(type, operation)                                                                       \
    type operation(unsigned long long module, unsigned int code, Text function, Text detail, Text file) \
        override {                                                                                      \
        return static_cast<type>(record(#operation, module, code, function, detail, file));             \
    }
    RECORDED(void, info)
    RECORDED(Result, warning)
    RECORDED(void, severe_error)
    RECORDED(Result, error)
    RECORDED(Result, ARI_error)
    RECORDED(void, terminal_error)
#undef RECORDED

    int asked = -1;
    std::wstring told;
    bool throws = false;
    PX_Smart_Pointer<PX_Progress> progress;

private:
    template <class... Arguments>
    Result record(const Arguments&... arguments) {
        std::wostringstream line;
        ((line << arguments << L' '), ...);
        told += line.str();
        return PX_Error_Handler::Result_Retry;
    }
};

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
    const HWND window = m_machine.activate_window();
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
            EXPECT_EQ(box.owner, window);
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
    m_handler.error(texts(), 1103, L"f", L"d", L"tag");
    EXPECT_TRUE(m_machine.log_of(L"log").ends_with("outer\nError: f\nMissing. d tag\n\n"));
    EXPECT_EQ(m_machine.boxes().back().text, L"Missing.") << "shown as well as logged";
}

// On the machine itself, whose streams have buffers.
TEST(Log, CanBeReadWhileTheHandlerLives) {
    const auto name =
        std::filesystem::temp_directory_path() / ("marvcon_log_" + std::to_string(std::random_device()()));
    Test_Handler handler;
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
    std::filesystem::remove(name);
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
    m_handler.set_log_handle(L"a");
    m_handler.set_log_handle(L"a");
    m_handler.LogMessage(L"again", L"a");
    EXPECT_EQ(m_machine.log_of(L"a"), "to: a\n\nstill: a\n\nagain: a\n\n") << "opened to append";
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
}

TEST_F(Error_Handler, AParentThatTakesEverythingGetsItWhole) {
    auto* const recorder = new Recorder;
    const Pointer parent(recorder);
    const Pointer child(new Test_Handler(parent));
    static constexpr auto retry = PX_Error_Handler::Result_Retry;
    const struct {
        const wchar_t* told;
        int asked;
        void (*call)(PX_Error_Handler&);
    } rows[] = {
        {L"info 7 8 f d tag ", PX_Exception::Handler_Info,
         [](PX_Error_Handler& h) { h.info(7, 8, L"f", L"d", L"tag"); }},
        {L"info_message text ", PX_Exception::Handler_Info,
         [](PX_Error_Handler& h) { h.info_message(L"text"); }},
        {L"warning 7 8 f d tag ", PX_Exception::Handler_Warning,
         [](PX_Error_Handler& h) { EXPECT_EQ(h.warning(7, 8, L"f", L"d", L"tag"), retry); }},
        {L"error 7 8 f d tag ", PX_Exception::Handler_Error,
         [](PX_Error_Handler& h) { EXPECT_EQ(h.error(7, 8, L"f", L"d", L"tag"), retry); }},
        {L"ARI_error 7 8 f d tag ", PX_Exception::Handler_ARI,
         [](PX_Error_Handler& h) { EXPECT_EQ(h.ARI_error(7, 8, L"f", L"d", L"tag"), retry); }},
        {L"severe_error 7 8 f d tag ", PX_Exception::Handler_Severe,
         [](PX_Error_Handler& h) { h.severe_error(7, 8, L"f", L"d", L"tag"); }},
        {L"terminal_error 7 8 f d tag ", PX_Exception::Handler_Terminal,
         [](PX_Error_Handler& h) { h.terminal_error(7, 8, L"f", L"d", L"tag"); }},
        // These are the parent's in any case.
        {L"box text caption 1 9 ", -1,
         [](PX_Error_Handler& h) { EXPECT_EQ(h.message_box(L"text", L"caption", 1, 9), 42); }},
        {L"log caption text ", -1, [](PX_Error_Handler& h) { h.LogMessage(L"caption", L"text"); }},
        {L"path 1 frame ", -1,
         [](PX_Error_Handler& h) {
             const wchar_t* names[] = {L"frame"};
             h.LogPath(names, 1);
         }},
    };
    child->set_log_mode(true);
    child->set_log_handle(L"log");
    for (const auto& row : rows) {
        recorder->asked = -1;
        recorder->told.clear();
        row.call(*child);
        EXPECT_EQ(recorder->told, row.told);
        EXPECT_EQ(recorder->asked, row.asked) << testing::PrintToString(row.told);
    }
    EXPECT_TRUE(m_machine.boxes().empty());
    EXPECT_EQ(m_machine.log_of(L"log"), "");
}

TEST_F(Error_Handler, ThePartsOfTheProgramAreTheParents) {
    auto* const recorder = new Recorder;
    const Pointer parent(recorder);
    const Pointer child(new Test_Handler(parent));
    struct String {
        const wchar_t* value;
        void (PX_Error_Handler::*set)(const wchar_t*);
        const wchar_t* (PX_Error_Handler::*get)() const;
    };
    const String strings[] = {
        {L"product", &PX_Error_Handler::set_product_string, &PX_Error_Handler::get_product_string},
        {L"program", &PX_Error_Handler::set_program_string, &PX_Error_Handler::get_program_string},
        {L"company", &PX_Error_Handler::set_company_string, &PX_Error_Handler::get_company_string},
    };
    for (const auto& [value, set, get] : strings) {
        ((*parent).*set)(value);
        ((*child).*set)(L"own");
    }
    for (const auto& [value, set, get] : strings) {
        EXPECT_STREQ(((*parent).*get)(), value);
        EXPECT_STREQ(((*child).*get)(), value);
    }
    EXPECT_EQ(child->get_progress(), nullptr);
    recorder->progress = new PX_Progress;
    EXPECT_NE(child->get_progress(), nullptr);
    EXPECT_EQ(child->get_progress(), recorder->progress);
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

TEST_F(Error_Handler, IsTakenOutOfItsParentsListOnceForEachCall) {
    const Pointer parent(new Test_Handler);
    const Pointer child(new Test_Handler(parent));
    parent->add_child(child.get());
    parent->remove_child(child.get());
    parent->set_log_mode(true);
    EXPECT_TRUE(child->get_log_mode()) << "entered twice, removed once";
    parent->remove_child(child.get());
    parent->set_log_mode(false);
    EXPECT_TRUE(child->get_log_mode());
}

TEST_F(Error_Handler, AChildThatDoesNotComeIntoBeingLeavesItsParent) {
    auto* const recorder = new Recorder;
    const Pointer parent(recorder);
    recorder->throws = true;
    EXPECT_THROW(Test_Handler{parent}, int);
    EXPECT_EQ(recorder->told, L"left ");
    parent->set_quiet_mode(true);
}

class Kind_Of : public PX_Exception {
public:
    explicit Kind_Of(Handler kind) : PX_Exception(1103, L"f", L"d", L"tag", 7), m_kind(kind) {}
    Handler get_handler() const override { return m_kind; }

private:
    Handler m_kind;
};

TEST_F(Error_Handler, GetsAllThatAnExceptionSaysAfterItsPath) {
    Recorder handler;
    using Kind = PX_Exception;
    for (const auto& [kind, told] :
         {std::pair{Kind::Handler_Info, L"info"}, std::pair{Kind::Handler_Warning, L"warning"},
          std::pair{Kind::Handler_Error, L"error"}, std::pair{Kind::Handler_ARI, L"ARI_error"},
          std::pair{Kind::Handler_Severe, L"severe_error"},
          std::pair{Kind::Handler_Terminal, L"terminal_error"}}) {
        Kind_Of caught(kind);
        caught.push_frame(L"frame");
        const auto expect_told = [&](const wchar_t* operation, auto report) {
            handler.told.clear();
            report(handler, caught);
            EXPECT_EQ(handler.told, std::wstring(L"path 1 frame ") + operation + L" 7 1103 f d tag ");
        };
        expect_told(told, px_report_by_kind);
        expect_told(L"ARI_error", px_report_as_ARI);
        expect_told(L"severe_error", px_report_as_severe);
    }
}

TEST_F(Error_Handler, ReportsAnExceptionByItsKind) {
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
