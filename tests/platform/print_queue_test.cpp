#include <arpa/inet.h>
#include <cups/cups.h>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/terminal.h"
#include "toolkit/core/module.h"
#include "toolkit/marvcon/std_sys_io_caps/capabilities.h"
#include "toolkit/platform/posix/posix_platform.h"

namespace {
double seconds_of(const auto& operation) {
    const auto start = std::chrono::steady_clock::now();
    operation();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// A socket that listens on the loopback; port 0 takes a free one. What connects waits to be accepted.
class Listener {
public:
    explicit Listener(int at = 0) : fd(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
        const int yes = 1;
        setsockopt(fd, SOL_SOCKET, SO_REUSEADDR, &yes, sizeof yes);
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_port = htons(static_cast<in_port_t>(at));
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        EXPECT_EQ(bind(fd, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
        EXPECT_EQ(listen(fd, 8), 0);
        socklen_t size = sizeof address;
        getsockname(fd, reinterpret_cast<sockaddr*>(&address), &size);
        port = ntohs(address.sin_port);
    }
    ~Listener() { close(fd); }
    // How many wait to be accepted; they are sent away.
    int visitors() {
        int count = 0;
        for (pollfd ready = {fd, POLLIN, 0}; poll(&ready, 1, 0) == 1; ++count)
            close(accept(fd, nullptr, nullptr));
        return count;
    }
    // All that the next visitor sends.
    std::string receive() {
        pollfd ready = {fd, POLLIN, 0};
        if (poll(&ready, 1, 20'000) != 1)
            return "";
        const int visitor = accept(fd, nullptr, nullptr);
        const std::string all = read_bytes(visitor, SIZE_MAX);
        close(visitor);
        return all;
    }
    int fd;
    int port = 0;
};

// Breaks our own connections to a port of this machine.
void hang_up_on(int port) {
    for (int fd = 3; fd < 256; ++fd) {
        sockaddr_in peer{};
        socklen_t size = sizeof peer;
        if (getpeername(fd, reinterpret_cast<sockaddr*>(&peer), &size) == 0 && ntohs(peer.sin_port) == port)
            shutdown(fd, SHUT_RDWR);
    }
}

class Printers {
public:
    explicit Printers(PX_Posix_Platform& platform, DWORD flags) {
        DWORD needed = 0;
        EXPECT_FALSE(platform.EnumPrintersW(flags, nullptr, 2, nullptr, 0, &needed, &m_count));
        EXPECT_EQ(m_count, 0U);
        m_bytes.resize(needed);
        EXPECT_TRUE(platform.EnumPrintersW(flags, nullptr, 2, m_bytes.data(), needed, &needed, &m_count));
    }
    const PRINTER_INFO_2W* find(const std::wstring& name) const {
        const auto* const all = reinterpret_cast<const PRINTER_INFO_2W*>(m_bytes.data());
        const auto* const end = all + m_count;
        const auto* const found = std::find_if(all, end, [&](auto& p) { return name == p.pPrinterName; });
        return found == end ? nullptr : found;
    }
    DWORD count() const { return m_count; }

private:
    DWORD m_count = 0;
    std::vector<BYTE> m_bytes;
};

HANDLE open_printer(PX_Posix_Platform& platform, std::wstring name) {
    HANDLE printer = nullptr;
    const BOOL is_open = platform.OpenPrinterW(name.data(), &printer, nullptr);
    EXPECT_EQ(is_open != 0, printer != nullptr);
    return printer;
}

DWORD start_document(PX_Posix_Platform& platform, HANDLE printer, std::wstring name,
                     wchar_t* file = nullptr) {
    std::wstring raw = L"RAW";
    DOC_INFO_1W document = {name.data(), file, raw.data()};
    return platform.StartDocPrinterW(printer, 1, reinterpret_cast<BYTE*>(&document));
}

bool write(PX_Posix_Platform& platform, HANDLE printer, std::string bytes) {
    DWORD written = 1;
    const bool taken =
        platform.WritePrinter(printer, bytes.data(), static_cast<DWORD>(bytes.size()), &written);
    EXPECT_EQ(written, taken ? bytes.size() : 0);
    return taken;
}

// The real server that spooler.py has started.
class PosixSpooler : public testing::Test {
protected:
    void SetUp() override {
        const char* const print_port = std::getenv("MVN_TEST_PRINT_PORT");
        const char* const sink_port = std::getenv("MVN_TEST_SINK_PORT");
        if (!print_port || !sink_port)
            GTEST_SKIP() << "no print server was started";
        m_port = std::atoi(print_port);
        m_sink_port = std::atoi(sink_port);
        m_platform.use_print_server("127.0.0.1", m_port);
    }
    // Asked of the server by another way than the toolkit's.
    std::pair<std::string, ipp_jstate_t> title_and_state(DWORD number) const {
        const std::unique_ptr<http_t, void (*)(http_t*)> http(
            httpConnect2("127.0.0.1", m_port, nullptr, AF_UNSPEC, HTTP_ENCRYPTION_IF_REQUESTED, 1, 5000,
                         nullptr),
            httpClose);
        cups_job_t* jobs = nullptr;
        const int count = cupsGetJobs2(http.get(), &jobs, nullptr, 0, CUPS_WHICHJOBS_ALL);
        std::pair<std::string, ipp_jstate_t> found("no such job", IPP_JSTATE_ABORTED);
        for (int at = 0; at < count; ++at)
            if (jobs[at].id == static_cast<int>(number))
                found = {jobs[at].title, jobs[at].state};
        cupsFreeJobs(count, jobs);
        return found;
    }

    PX_Posix_Platform m_platform;
    int m_port = 0;
    int m_sink_port = 0;
};
}  // namespace

TEST_F(PosixSpooler, ListsItsQueuesAsWindowsWould) {
    const Printers all(m_platform, 6);
    EXPECT_EQ(all.count(), 4U);
    EXPECT_EQ(Printers(m_platform, 2).count(), 3U);
    const Printers far_ones(m_platform, 4);
    EXPECT_EQ(far_ones.count(), 1U);

    const auto shown = [](const PRINTER_INFO_2W* printer) {
        std::wstring words = printer ? std::to_wstring(printer->Attributes) : L"none";
        for (const wchar_t* const word :
             {printer ? printer->pServerName : nullptr, printer ? printer->pShareName : nullptr,
              printer ? printer->pPortName : nullptr})
            words += std::wstring(L" ") + (word ? word : L"(null)");
        return words;
    };
    const std::wstring local = std::to_wstring(PRINTER_ATTRIBUTE_LOCAL);
    EXPECT_EQ(shown(all.find(L"line")), std::to_wstring(PRINTER_ATTRIBUTE_LOCAL | PRINTER_ATTRIBUTE_SHARED) +
                                            L" (null) line socket://127.0.0.1:" +
                                            std::to_wstring(m_sink_port));
    EXPECT_STREQ(all.find(L"line")->pDriverName, L"Kestrane 20");
    EXPECT_STREQ(all.find(L"line")->pComment, L"Line \u00E9crite");
    EXPECT_STREQ(all.find(L"line")->pLocation, L"By the window");
    const std::wstring far_one = shown(far_ones.find(L"far"));
    EXPECT_TRUE(far_one.starts_with(std::to_wstring(PRINTER_ATTRIBUTE_NETWORK | PRINTER_ATTRIBUTE_SHARED) +
                                    L" \\\\host.invalid its-name "))
        << "what the other machine calls it";
    EXPECT_EQ(shown(all.find(L"wire")), local + L" (null) (null) serial:/dev/wire?baud=9600%2Cx")
        << "one port, not two";
    m_platform.map_port(L"COM7", "/dev/wire");
    EXPECT_STREQ(Printers(m_platform, 2).find(L"wire")->pPortName, L"COM7:");
}

TEST_F(PosixSpooler, ListsEachModelOnce) {
    alignas(DRIVER_INFO_3W) BYTE bytes[4096];
    DWORD needed = 0, count = 0;
    ASSERT_TRUE(m_platform.EnumPrinterDriversW(nullptr, nullptr, 3, bytes, sizeof bytes, &needed, &count));
    EXPECT_EQ(count, 3U) << "of four queues, two of which are raw";
    const auto& driver = *reinterpret_cast<const DRIVER_INFO_3W*>(bytes);
    EXPECT_STREQ(driver.pName, L"Kestrane 20");
    EXPECT_EQ(driver.pMonitorName, nullptr);
}

TEST_F(PosixSpooler, BringsEveryByteToTheDevice) {
    Listener sink(m_sink_port);
    const std::wstring address = L"\\\\127.0.0.1\\line";
    // The size of the job, and of each write.
    const std::pair<std::size_t, std::size_t> rows[] = {{1, 1}, {100'000, 4096}, {3'000'000, 3'000'000}};
    for (const auto& [size, piece] : rows) {
        const HANDLE printer = open_printer(m_platform, size == 1 ? address : L"line");
        ASSERT_TRUE(printer) << m_platform.last_error();
        const std::wstring name = std::to_wstring(size) + L" \u00B5m\u2026\x01";
        const DWORD job = start_document(m_platform, printer, name);
        ASSERT_NE(job, 0U) << m_platform.last_error();
        EXPECT_EQ(start_document(m_platform, printer, name), 0U) << "one document at a time";
        EXPECT_TRUE(m_platform.StartPagePrinter(printer));
        const std::string sent = test_bytes(size);
        for (std::size_t at = 0; at < size; at += piece)
            ASSERT_TRUE(write(m_platform, printer, sent.substr(at, piece))) << m_platform.last_error();
        EXPECT_TRUE(m_platform.EndPagePrinter(printer));
        // The biggest one is left to the closing of the printer.
        EXPECT_TRUE(size > 1'000'000 || m_platform.EndDocPrinter(printer)) << m_platform.last_error();
        EXPECT_TRUE(m_platform.ClosePrinter(printer)) << m_platform.last_error();
        EXPECT_TRUE(sink.receive() == sent) << size;
        EXPECT_EQ(title_and_state(job).first, std::to_string(size) + " \u00B5m\u2026 ");
    }
}

TEST_F(PosixSpooler, CancelsAJobWhoseDocumentIsOpen) {
    const HANDLE printer = open_printer(m_platform, L"line");
    ASSERT_TRUE(printer);
    const DWORD cancelled = start_document(m_platform, printer, std::wstring(300, L'\u00E9'));
    ASSERT_NE(cancelled, 0U) << m_platform.last_error();
    EXPECT_TRUE(write(m_platform, printer, test_bytes(100'000)));
    EXPECT_FALSE(m_platform.SetJobW(printer, cancelled, 0, nullptr, 1)) << "no pause";
    EXPECT_TRUE(m_platform.SetJobW(printer, cancelled, 0, nullptr, JOB_CONTROL_CANCEL));
    EXPECT_FALSE(write(m_platform, printer, "late"));
    EXPECT_TRUE(m_platform.EndDocPrinter(printer)) << "nothing is left to end";
    EXPECT_EQ(title_and_state(cancelled).second, IPP_JSTATE_CANCELED);
    EXPECT_EQ(title_and_state(cancelled).first.size(), 254U) << "cut between two characters";
    EXPECT_FALSE(m_platform.SetJobW(printer, cancelled, 0, nullptr, JOB_CONTROL_CANCEL)) << "it is over";

    const DWORD empty = start_document(m_platform, printer, L"");
    EXPECT_TRUE(m_platform.ClosePrinter(printer)) << m_platform.last_error();
    EXPECT_EQ(title_and_state(empty).second, IPP_JSTATE_CANCELED) << "not a byte";

    DWORD left = 0;
    {
        PX_Posix_Platform platform;
        platform.use_print_server("127.0.0.1", m_port);
        const HANDLE forgotten = open_printer(platform, L"line");
        left = start_document(platform, forgotten, L"left");
        EXPECT_TRUE(write(platform, forgotten, "half"));
    }
    EXPECT_EQ(title_and_state(left).second, IPP_JSTATE_CANCELED) << "its host left it open";
}

TEST_F(PosixSpooler, LetsTheUserChoose) {
    const struct {
        const char* proves;
        std::string keys;
        int times_asked;
        bool is_chosen;
        bool takes_jobs;
    } rows[] = {{"a number", " 2 \n", 1, true, true},
                {"asks again: none of them", "0\n5\n-1\n2x\n3\n", 5, true, false},
                {"an empty line", "\n", 1, false, false},
                {"the end of the input", "\x04", 1, false, false}};
    for (const auto& row : rows) {
        Terminal terminal;
        terminal.type(row.keys);
        PX_Posix_Platform platform(terminal.program, terminal.program);
        platform.use_print_server("127.0.0.1", m_port);
        const HANDLE printer = platform.ConnectToPrinterDlg(nullptr, 0);
        EXPECT_EQ(printer != nullptr, row.is_chosen) << row.proves;
        EXPECT_EQ(start_document(platform, printer, L"chosen") != 0, row.takes_jobs) << row.proves;
        const std::string shown = terminal.shown();
        EXPECT_NE(shown.find("2  line  (Line \u00E9crite)\n3  refusing"), std::string::npos) << shown;
        EXPECT_EQ(std::count(shown.begin(), shown.end(), ':'), row.times_asked) << row.proves;
    }

    Terminal unheard;
    unheard.type("2\n");
    const int nobody = open("/dev/null", O_WRONLY | O_CLOEXEC);
    PX_Posix_Platform platform(unheard.program, nobody);
    platform.use_print_server("127.0.0.1", m_port);
    EXPECT_EQ(platform.ConnectToPrinterDlg(nullptr, 0), nullptr) << "nobody sees the question";
    close(nobody);
}

TEST_F(PosixSpooler, RefusesWhatCannotBeAndTellsWhy) {
    EXPECT_FALSE(open_printer(m_platform, L"absent"));
    EXPECT_STRNE(m_platform.last_error(), L"");
    EXPECT_FALSE(open_printer(m_platform, L""));
    const HANDLE refusing = open_printer(m_platform, L"refusing");
    ASSERT_TRUE(refusing);
    EXPECT_EQ(start_document(m_platform, refusing, L"unwanted"), 0U);
    EXPECT_NE(std::wstring(m_platform.last_error()).find(L"not accepting"), std::wstring::npos)
        << m_platform.last_error();
    EXPECT_FALSE(write(m_platform, refusing, "x")) << "no document is open";
    EXPECT_FALSE(m_platform.StartPagePrinter(refusing) || m_platform.EndPagePrinter(refusing) ||
                 m_platform.EndDocPrinter(refusing));
    wchar_t file[] = L"file";
    EXPECT_EQ(start_document(m_platform, refusing, L"to a file", file), 0U);
    EXPECT_TRUE(m_platform.ClosePrinter(refusing));
    EXPECT_FALSE(m_platform.ClosePrinter(refusing)) << "a second time";
    EXPECT_EQ(start_document(m_platform, nullptr, L"what the dialogue gives when it is left"), 0U);
}

TEST_F(PosixSpooler, GivesUpAJobWhoseConnectionBreaks) {
    const HANDLE printer = open_printer(m_platform, L"line");
    ASSERT_TRUE(printer) << m_platform.last_error();
    const DWORD job = start_document(m_platform, printer, L"broken off");
    ASSERT_NE(job, 0U) << m_platform.last_error();
    EXPECT_TRUE(write(m_platform, printer, test_bytes(100'000)));
    hang_up_on(m_port);
    bool taken = true;
    for (int piece = 0; taken && piece < 100; ++piece)
        taken = write(m_platform, printer, test_bytes(100'000));
    EXPECT_FALSE(taken);
    EXPECT_STRNE(m_platform.last_error(), L"");
    EXPECT_FALSE(write(m_platform, printer, "more"));
    EXPECT_EQ(title_and_state(job).second, IPP_JSTATE_CANCELED) << "half a document is not drawn";
    EXPECT_FALSE(m_platform.EndDocPrinter(printer));
    EXPECT_NE(start_document(m_platform, printer, L"the next one"), 0U) << m_platform.last_error();
    EXPECT_TRUE(m_platform.ClosePrinter(printer));
}

// Nobody listens; or somebody does, and never says a word.
TEST(PosixPrintServer, ThatGivesNoAnswerIsSoonGivenUp) {
    auto listener = std::make_unique<Listener>();
    const int port = listener->port;
    PX_Posix_Platform platform;
    BYTE bytes[256];
    for (const bool is_silent : {true, false}) {
        if (!is_silent)
            listener.reset();
        EXPECT_TRUE(platform.use_print_server("127.0.0.1", port));
        DWORD needed = 1;
        DWORD count = 1;
        EXPECT_LT(
            seconds_of([&] {
                EXPECT_FALSE(platform.EnumPrintersW(6, nullptr, 2, bytes, sizeof bytes, &needed, &count));
            }),
            1.5);
        EXPECT_EQ(needed + count, 0U);
        EXPECT_NE(std::wstring(platform.last_error()).find(is_silent ? L"does not answer" : L"is not there"),
                  std::wstring::npos)
            << platform.last_error();
        EXPECT_LT(seconds_of([&] { EXPECT_FALSE(open_printer(platform, L"line")); }), 4);
    }
}

TEST(PosixPrintServer, ThatIsSilentIsWaitedForOnceForAllPorts) {
    Listener listener;
    PX_Posix_Platform platform;
    platform.use_print_server("127.0.0.1", listener.port);
    for (const wchar_t* const port : {L"COM61", L"COM62", L"LPT61", L"LPT62"})
        platform.map_port(port, "/dev/null");
    {
        PX_Module_Exit();
        const PX_Use_Platform use(platform);
        const PX_Std_System_IO_Capabilities system;
        EXPECT_GE(system.get_port_list()->size(), 4);
    }
    PX_Module_Exit();
    const int visitors = listener.visitors();
    EXPECT_TRUE(visitors >= 2 && visitors <= 4) << visitors;

    platform.use_print_server("127.0.0.1", listener.port);
    DWORD needed = 0;
    DWORD count = 0;
    EXPECT_FALSE(platform.EnumPrintersW(6, nullptr, 2, nullptr, 0, &needed, &count));
    EXPECT_EQ(listener.visitors(), 1) << "the host named it again";
}
