#include <gtest/gtest.h>

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
    using Handler = PX_Error_Handler;
    const struct {
        decltype(&Handler::warning) report;
        const wchar_t* caption;
        UINT style;
        int answer;
        Result result;
    } rows[] = {
        {&Handler::warning, L"Warning", 49, IDOK, Handler::Result_Ignore},
        {&Handler::warning, L"Warning", 49, IDCANCEL, Handler::Result_Abort},
        {&Handler::warning, L"Warning", 49, 0, Handler::Result_Ignore},
        {&Handler::error, L"Error", 49, IDOK, Handler::Result_Ignore},
        {&Handler::error, L"Error", 49, IDCANCEL, Handler::Result_Abort},
        {&Handler::ARI_error, L"ARI", 50, IDABORT, Handler::Result_Abort},
        {&Handler::ARI_error, L"ARI", 50, IDRETRY, Handler::Result_Retry},
        {&Handler::ARI_error, L"ARI", 50, IDIGNORE, Handler::Result_Ignore},
        {&Handler::ARI_error, L"ARI", 50, 0, Handler::Result_Ignore},
    };
    const HWND window = m_machine.activate_window();
    const auto expect_shown = [&](const wchar_t* caption, UINT style, const wchar_t* text) {
        const auto& box = m_machine.boxes().back();
        EXPECT_EQ(box.text, text);
        EXPECT_EQ(box.caption, caption);
        EXPECT_EQ(box.type, style);
        EXPECT_EQ(box.language, 2048);
        EXPECT_EQ(box.owner, window);
    };
    for (const auto& row : rows) {
        m_machine.answer_next_box(row.answer);
        EXPECT_EQ((m_handler.*row.report)(texts(), 1103, L"f", L"d", nullptr), row.result) << row.answer;
        expect_shown(row.caption, row.style, L"Missing.");
    }
    m_handler.severe_error(texts(), 1103, L"f", L"d", nullptr);
    expect_shown(L"Severe", 16, L"Missing.");
    m_handler.info(0, 1103, L"f", L"d", nullptr);
    expect_shown(L"Info", 0, L"Unknown Error Code 1103\n");
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

TEST_F(Error_Handler, AnotherLogNameClosesTheLogAndIsNotStored) {
    const auto log = [&](const wchar_t* name, const wchar_t* text) {
        EXPECT_TRUE(m_handler.set_log_handle(name));
        m_handler.LogMessage(L"to", text);
    };
    log(L"a", L"1");
    log(L"a", L"2");
    log(L"b", L"nobody");
    log(L"b", L"3");
    log(L"a", L"nobody");
    m_machine.fail("_wfopen_s");
    log(L"a", L"a log that would not open");
    log(L"a", L"4");
    EXPECT_EQ(m_machine.log_of(L"a"), "to: 1\n\nto: 2\n\nto: 4\n\n") << "opened to append";
    EXPECT_EQ(m_machine.log_of(L"b"), "to: 3\n\n");
}

TEST_F(Error_Handler, ABoxThatFailsIsCancelled) {
    class Throwing : public Test_Handler {
        void LogMessage(const wchar_t*, const wchar_t*) override { throw 1; }
    } handler;
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

class Kind_Of : public PX_Exception {
public:
    explicit Kind_Of(int kind)
        : PX_Exception(1103, L"f", L"d", L"tag", 7), m_kind(static_cast<Handler>(kind)) {
        push_frame(L"frame");
    }
    Handler get_handler() const override { return m_kind; }

private:
    Handler m_kind;
};

TEST_F(Error_Handler, ReportsGoWholeToTheirOperation) {
    auto* const parent = new Recorder;
    const Pointer held(parent);
    const Pointer child(new Test_Handler(held));
    child->set_log_handle(L"log");
    const auto expect_told = [&](const std::wstring& told, int asked, auto report) {
        parent->asked = -1;
        parent->told.clear();
        report();
        EXPECT_EQ(parent->told, told);
        EXPECT_EQ(parent->asked, asked) << testing::PrintToString(told);
    };
    const std::wstring path = L"path 1 frame ", all = L" 7 1103 f d tag ";
    const auto expect_by_kind = [&](int kind, const std::wstring& told, Result result) {
        expect_told(told, -1, [&] { EXPECT_EQ(px_report_by_kind(*parent, Kind_Of(kind)), result) << kind; });
    };
    // A child passes each on to a parent that takes its kind; an exception of the kind goes there too.
#define EXPECT_REPORT(kind, name, result)                                                  \
    expect_told(L"" #name + all, kind, [&] { child->name(7, 1103, L"f", L"d", L"tag"); }); \
    expect_by_kind(kind, path + L"" #name + all, PX_Error_Handler::result)
    EXPECT_REPORT(0, info, Result_Ignore);
    EXPECT_REPORT(1, warning, Result_Retry);
    EXPECT_REPORT(2, error, Result_Retry);
    EXPECT_REPORT(3, ARI_error, Result_Retry);
    EXPECT_REPORT(4, severe_error, Result_Ignore);
    EXPECT_REPORT(5, terminal_error, Result_Ignore);
#undef EXPECT_REPORT
    expect_by_kind(99, path + L"error" + all, PX_Error_Handler::Result_Retry);
    expect_by_kind(PX_Exception::Handler_None, L"", PX_Error_Handler::Result_Abort);
    expect_told(path + L"ARI_error" + all, -1, [&] { px_report_as_ARI(*parent, Kind_Of(0)); });
    expect_told(path + L"severe_error" + all, -1, [&] { px_report_as_severe(*parent, Kind_Of(0)); });

    EXPECT_EQ(child->warning(0, 1, L"", L"", L""), PX_Error_Handler::Result_Retry);
    EXPECT_EQ(child->error(0, 1, L"", L"", L""), PX_Error_Handler::Result_Retry);
    EXPECT_EQ(child->ARI_error(0, 1, L"", L"", L""), PX_Error_Handler::Result_Retry);
    expect_told(L"info_message text ", PX_Exception::Handler_Info, [&] { child->info_message(L"text"); });
    // These are the parent's in any case.
    expect_told(L"box text caption 1 9 ", -1,
                [&] { EXPECT_EQ(child->message_box(L"text", L"caption", 1, 9), 42); });
    expect_told(L"log caption text ", -1, [&] { child->LogMessage(L"caption", L"text"); });
    const wchar_t* names[] = {L"frame"};
    expect_told(path, -1, [&] { child->LogPath(names, 1); });
    EXPECT_TRUE(m_machine.boxes().empty());
    EXPECT_EQ(m_machine.log_of(L"log"), "");
}

TEST_F(Error_Handler, ThePartsOfTheProgramAreTheParents) {
    auto* const recorder = new Recorder;
    const Pointer parent(recorder);
    const Pointer child(new Test_Handler(parent));
    for (const auto& [set, get] :
         {std::pair{&PX_Error_Handler::set_product_string, &PX_Error_Handler::get_product_string},
          {&PX_Error_Handler::set_program_string, &PX_Error_Handler::get_program_string},
          {&PX_Error_Handler::set_company_string, &PX_Error_Handler::get_company_string}}) {
        EXPECT_STREQ(((*child).*get)(), L"") << "each has its own";
        ((*child).*set)(L"own");
        EXPECT_STREQ(((*child).*get)(), L"");
        ((*parent).*set)(L"theirs");
        EXPECT_STREQ(((*child).*get)(), L"theirs");
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

}  // namespace
