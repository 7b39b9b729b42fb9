#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <algorithm>
#include <chrono>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <functional>
#include <future>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/allocations.h"
#include "tests/support/pseudo_terminal.h"
#include "toolkit/platform/posix/port_names.h"
#include "toolkit/platform/posix/posix_platform.h"

namespace {
namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

constexpr DWORD both = GENERIC_READ | GENERIC_WRITE;
constexpr DWORD max_dword = 0xFFFFFFFF;
constexpr std::size_t one_mib = 1 << 20;

std::string content(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

class Folder {
public:
    Folder() {
        std::string name = fs::temp_directory_path() / "ports.XXXXXX";
        path = mkdtemp(name.data());
    }
    ~Folder() { fs::remove_all(path); }
    fs::path path;
};

class Posix_Ports : public testing::Test {
public:
    HANDLE open_port(const wchar_t* name) {
        return platform.CreateFileW(name, both, 0, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    }
    HANDLE open_com1() {
        platform.map_port(L"COM1", terminal.name());
        return open_port(L"COM1");
    }
    HANDLE create(const fs::path& path) {
        return platform.CreateFileW(wide(path).c_str(), both, 0, nullptr, CREATE_ALWAYS,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    }
    void limit_writing(HANDLE port, DWORD milliseconds) {
        COMMTIMEOUTS timeouts{0, 0, 0, 0, milliseconds};
        EXPECT_TRUE(platform.SetCommTimeouts(port, &timeouts));
    }
    // All of it, or what went out until a write failed or gave no byte.
    std::size_t write_all(HANDLE file, const std::string& bytes) {
        std::size_t done = 0;
        DWORD written = 0;
        do {
            if (!platform.WriteFile(file, bytes.data() + done, static_cast<DWORD>(bytes.size() - done),
                                    &written, nullptr))
                return done + written;
            done += written;
        } while (written > 0 && done < bytes.size());
        return done;
    }

    // Nobody reads for a while; then somebody takes all of it at the other end.
    void expect_nothing_lost_by_a_pause(HANDLE port, int other_end) {
        const std::string sent = test_bytes(one_mib);
        limit_writing(port, 100);
        DWORD written = 0;
        const auto begin = Clock::now();
        EXPECT_TRUE(platform.WriteFile(port, sent.data(), one_mib, &written, nullptr));
        EXPECT_LT(Clock::now() - begin, std::chrono::seconds(10));
        EXPECT_GT(written, 0u);
        ASSERT_LT(written, one_mib);
        limit_writing(port, 20000);
        auto reader = std::async(std::launch::async, read_bytes, other_end, one_mib, 0u);
        EXPECT_EQ(write_all(port, sent.substr(written)), one_mib - written);
        EXPECT_TRUE(reader.get() == sent);
    }

    Pseudo_Terminal terminal;
    Folder folder;
    PX_Posix_Platform platform;
};

TEST(Port_Names, Every_Spelling_Of_A_Port_Is_The_Same) {
    for (const wchar_t* const text : {L"COM12", L"com12:", L"\\\\.\\Com12", L"\\\\.\\COM12:"})
        EXPECT_EQ(px_port_name(text), (PX_Port_Name{PX_Port_Kind::Serial, 12})) << text;
    EXPECT_EQ(px_port_name(L"Lpt2:"), (PX_Port_Name{PX_Port_Kind::Parallel, 2}));
    for (const wchar_t* const text : {L"COM", L"COM0", L"COM01", L"COM1x", L"COM1::", L"PRN1", L"COM1234567",
                                      L"./COM1", L"COM1.plt", L""})
        EXPECT_FALSE(px_port_name(text)) << text;
}

TEST(Port_Names, Found_Devices_Are_Numbered_In_Natural_Order) {
    const Folder folder;
    const fs::path dev = folder.path / "dev";
    const fs::path classes = folder.path / "tty";
    fs::create_directories(dev / "usb");
    for (const char* const name : {"lp0", "usb/lp1", "usb/lp10", "lpx", "ttyUSB10", "ttyUSB2", "ttyS0",
                                   "ttyS1", "ttyAMA0", "tty1", "console"})
        fs::create_symlink("/dev/null", dev / name);
    const std::pair<const char*, const char*> lines[] = {{"ttyUSB10", ""}, {"ttyUSB2", ""},   {"ttyS0", "0"},
                                                         {"ttyS1", "4"},   {"ttyAMA0", "32"}, {"ttyACM0", ""},
                                                         {"console", ""}};
    for (const auto& [name, type] : lines) {
        fs::create_directories(classes / name / "device");
        std::ofstream(classes / name / "type") << type;
    }
    fs::create_directories(classes / "tty1");

    std::wstring found;
    for (const auto& [port, device] : px_found_ports(classes, dev))
        found += port.text() + L" " + wide(fs::path(device).lexically_relative(dev)) + L"; ";
    EXPECT_EQ(
        found,
        L"LPT1 lp0; LPT2 usb/lp1; LPT3 usb/lp10; COM1 ttyAMA0; COM2 ttyS1; COM3 ttyUSB2; COM4 ttyUSB10; ");
    EXPECT_TRUE(px_found_ports(folder.path / "none", folder.path / "none").empty());
}

TEST_F(Posix_Ports, Enumerated_With_Those_That_Are_Mapped) {
    EXPECT_TRUE(platform.map_port(L"com77:", terminal.name()));
    EXPECT_TRUE(platform.map_port(L"LPT66", "/dev/null"));
    EXPECT_FALSE(platform.map_port(L"PLOT", "/dev/null"));

    DWORD needed = 0;
    DWORD count = 9;
    EXPECT_FALSE(platform.EnumPortsW(nullptr, 2, nullptr, 0, &needed, &count));
    EXPECT_EQ(count, 0u);
    std::vector<BYTE> buffer(needed);
    EXPECT_FALSE(platform.EnumPortsW(nullptr, 2, buffer.data(), needed - 1, &needed, &count));
    const auto size = static_cast<DWORD>(buffer.size());
    EXPECT_FALSE(platform.EnumPortsW(nullptr, 1, buffer.data(), size, &needed, &count));
    EXPECT_EQ(needed + count, 0u) << "an unknown level";
    ASSERT_TRUE(platform.EnumPortsW(nullptr, 2, buffer.data(), size, &needed, &count));
    ASSERT_GE(count, 2u);
    const auto* const ports = reinterpret_cast<const PORT_INFO_2W*>(buffer.data());
    std::wstring names = L" ";
    for (DWORD at = 0; at < count; ++at)
        names.append(ports[at].pPortName).append(L" ");
    const std::size_t printer = names.find(L" LPT66: ");
    const std::size_t line = names.find(L" COM77: ");
    EXPECT_TRUE(line != std::wstring::npos && printer < line) << names;

    platform.map_port(L"COM77", nullptr);
    EXPECT_EQ(open_port(L"COM77"), INVALID_HANDLE_VALUE);
    EXPECT_STREQ(platform.last_error(), L"COM77: No such device");
}

TEST_F(Posix_Ports, A_Mebibyte_Goes_Both_Ways) {
    const HANDLE port = open_com1();
    ASSERT_NE(port, INVALID_HANDLE_VALUE);
    const std::string sent = test_bytes(one_mib);
    COMMTIMEOUTS timeouts{0, 0, 20000, 0, 20000};
    EXPECT_TRUE(platform.SetCommTimeouts(port, &timeouts));

    auto reader = std::async(std::launch::async, read_bytes, terminal.end(), one_mib, 200u);
    EXPECT_EQ(write_all(port, sent), one_mib);
    EXPECT_TRUE(reader.get() == sent);

    std::string got(one_mib, '\0');
    DWORD count = 0;
    auto writer =
        std::async(std::launch::async, [&] { return write(terminal.end(), sent.data(), sent.size()); });
    EXPECT_TRUE(platform.ReadFile(port, got.data(), one_mib, &count, nullptr));
    if (count < one_mib)
        terminal.hang_up();
    writer.get();
    EXPECT_TRUE(count == one_mib && got == sent) << count;
    EXPECT_TRUE(platform.CloseHandle(port));
}

TEST_F(Posix_Ports, Reading_Ends_As_The_Time_Outs_Say) {
    const HANDLE port = open_com1();
    const struct {
        const char* name;
        COMMTIMEOUTS timeouts;
        const char* waiting;
    } rows[] = {{"what is there, at once", {max_dword, 0, 0, 0, 0}, "abc"},
                {"nothing, at once", {max_dword, 0, 0, 0, 0}, ""},
                {"the first that come", {max_dword, max_dword, 20000, 0, 0}, "abc"},
                {"until the line is quiet", {40, 0, 0, 0, 0}, "abc"},
                {"the whole time", {0, 1, 40, 0, 0}, "abc"}};
    for (const auto& row : rows) {
        COMMTIMEOUTS timeouts = row.timeouts;
        EXPECT_TRUE(platform.SetCommTimeouts(port, &timeouts));
        const std::string waiting = row.waiting;
        EXPECT_EQ(write(terminal.end(), waiting.data(), waiting.size()),
                  static_cast<ssize_t>(waiting.size()));
        usleep(20000);
        char got[8] = {};
        DWORD count = 99;
        const auto begin = Clock::now();
        EXPECT_TRUE(platform.ReadFile(port, got, sizeof got, &count, nullptr)) << row.name;
        EXPECT_LT(Clock::now() - begin, std::chrono::seconds(10)) << row.name;
        EXPECT_EQ(std::string(got, count), waiting) << row.name;
    }
}

TEST_F(Posix_Ports, A_Reader_That_Stops_Loses_Nothing) {
    const HANDLE port = open_com1();
    expect_nothing_lost_by_a_pause(port, terminal.end());
    EXPECT_TRUE(platform.CloseHandle(port));
}

TEST_F(Posix_Ports, A_Hang_Up_Is_A_Failure_And_No_Hang) {
    const HANDLE port = open_com1();
    const std::string bytes = test_bytes(one_mib);
    auto other_end = std::async(std::launch::async, [&] {
        usleep(50000);
        terminal.hang_up();
    });
    DWORD count = 0;
    EXPECT_FALSE(platform.WriteFile(port, bytes.data(), one_mib, &count, nullptr));
    EXPECT_GT(count, 0u);
    EXPECT_STREQ(platform.last_error(), L"COM1: Input/output error");
    char byte = 0;
    EXPECT_FALSE(platform.ReadFile(port, &byte, 1, &count, nullptr));
    DCB state{};
    EXPECT_FALSE(platform.GetCommState(port, &state));
    EXPECT_TRUE(platform.CloseHandle(port));
}

TEST_F(Posix_Ports, One_Handle_Has_The_Port) {
    const termios2 found = terminal.settings();
    const HANDLE port = open_com1();
    EXPECT_EQ(terminal.settings().c_lflag & (ICANON | ECHO | ISIG), 0u);
    EXPECT_EQ(open_port(L"\\\\.\\com1"), INVALID_HANDLE_VALUE);
    EXPECT_STREQ(platform.last_error(), L"COM1: Device or resource busy");
    const pid_t other = fork();
    if (other == 0)
        _exit(open_com1() == INVALID_HANDLE_VALUE);
    int status = 0;
    EXPECT_EQ(waitpid(other, &status, 0), other);
    EXPECT_EQ(WEXITSTATUS(status), 1);

    EXPECT_TRUE(platform.CloseHandle(port));
    EXPECT_FALSE(platform.CloseHandle(port));
    const termios2 left = terminal.settings();
    EXPECT_EQ(std::memcmp(&left, &found, sizeof left), 0);
    const HANDLE again = open_com1();
    EXPECT_NE(again, INVALID_HANDLE_VALUE);
    EXPECT_NE(again, port);
    EXPECT_TRUE(platform.CloseHandle(again));
}

TEST_F(Posix_Ports, A_File_Has_One_Writer_And_Is_No_Port) {
    const fs::path path = folder.path / u8"Zeichnung \u00E4\u20AC.plt";
    std::ofstream(path) << "old";
    const HANDLE file = create(path);
    ASSERT_NE(file, INVALID_HANDLE_VALUE);
    EXPECT_EQ(content(path), "");
    EXPECT_EQ(write_all(file, "new"), 3u);
    EXPECT_EQ(create(path), INVALID_HANDLE_VALUE);
    EXPECT_EQ(content(path), "new") << "the one that lost cut it";

    COMMTIMEOUTS timeouts{};
    DCB state{};
    DWORD word = 0;
    EXPECT_FALSE(platform.GetCommTimeouts(file, &timeouts) || platform.GetCommState(file, &state) ||
                 platform.GetCommMask(file, &word) || platform.PurgeComm(file, PURGE_TXCLEAR) ||
                 platform.ClearCommError(file, &word, nullptr));
    EXPECT_TRUE(platform.CloseHandle(file));

    const HANDLE existing = open_port(wide(path).c_str());
    char got[8];
    EXPECT_TRUE(platform.ReadFile(existing, got, sizeof got, &word, nullptr));
    EXPECT_EQ(std::string(got, word), "new");
    EXPECT_TRUE(platform.CloseHandle(existing));

    for (const fs::path& none : {folder.path, folder.path / "missing" / "a.plt", fs::path()})
        EXPECT_EQ(create(none), INVALID_HANDLE_VALUE) << none;
    EXPECT_EQ(open_port(wide(folder.path / "none.plt").c_str()), INVALID_HANDLE_VALUE);
}

TEST_F(Posix_Ports, A_Full_Disk_Is_A_Failure_With_A_Count) {
    const fs::path path = folder.path / "full.plt";
    const HANDLE file = create(path);
    rlimit before{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
    const rlimit small{5000, before.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
    const std::string bytes = test_bytes(20000);
    DWORD written = 0;
    const BOOL passed = platform.WriteFile(file, bytes.data(), 20000, &written, nullptr);
    EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &before), 0);
    EXPECT_FALSE(passed);
    EXPECT_EQ(written, 5000u);
    EXPECT_EQ(platform.last_error(), wide(path) + L": File too large");
    sigset_t blocked;
    pthread_sigmask(SIG_SETMASK, nullptr, &blocked);
    EXPECT_FALSE(sigismember(&blocked, SIGXFSZ));
    EXPECT_TRUE(platform.CloseHandle(file));
    EXPECT_EQ(content(path), bytes.substr(0, 5000));
}

TEST_F(Posix_Ports, A_Printer_Is_A_Port_Without_A_Line) {
    const fs::path pipe = folder.path / "printer";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    const int paper = open(pipe.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    platform.map_port(L"LPT1", pipe.c_str());
    const HANDLE port = open_port(L"LPT1:");
    ASSERT_NE(port, INVALID_HANDLE_VALUE) << platform.last_error();
    EXPECT_EQ(open_port(L"LPT1"), INVALID_HANDLE_VALUE);

    expect_nothing_lost_by_a_pause(port, paper);
    DCB state{};
    DWORD errors = 1;
    EXPECT_FALSE(platform.GetCommState(port, &state));
    EXPECT_FALSE(platform.SetCommMask(port, 0x58));
    EXPECT_TRUE(platform.ClearCommError(port, &errors, nullptr));
    EXPECT_EQ(errors, 0u);
    close(paper);
    DWORD written = 0;
    EXPECT_FALSE(platform.WriteFile(port, "x", 1, &written, nullptr)) << "nobody reads";
    EXPECT_TRUE(platform.CloseHandle(port));
}

TEST_F(Posix_Ports, An_Unknown_Handle_Fails) {
    DCB state{};
    DWORD count = 7;
    for (const HANDLE none : {HANDLE(), INVALID_HANDLE_VALUE, reinterpret_cast<HANDLE>(&state)}) {
        EXPECT_FALSE(platform.CloseHandle(none));
        EXPECT_FALSE(platform.WriteFile(none, "x", 1, &count, nullptr));
        EXPECT_EQ(count, 0u);
        EXPECT_FALSE(platform.GetCommState(none, &state));
    }
    EXPECT_STREQ(platform.last_error(), L"A handle: Bad file descriptor");
}

TEST_F(Posix_Ports, Without_Memory_An_Operation_Fails_And_Throws_Nothing) {
    const std::wstring path = wide(folder.path / "plan.plt");
    platform.map_port(L"COM1", terminal.name());
    platform.use_print_server("127.0.0.1", 1);
    std::vector<BYTE> records(65'536);
    const auto size = static_cast<DWORD>(records.size());
    DWORD needed = 0;
    DWORD count = 0;
    const auto write_to = [&](const wchar_t* name, DWORD disposition) {
        const HANDLE file = platform.CreateFileW(name, both, 0, nullptr, disposition, 0, nullptr);
        if (file != INVALID_HANDLE_VALUE) {
            platform.WriteFile(file, "x", 1, &count, nullptr);
            platform.CloseHandle(file);
        }
    };
    const struct {
        const char* what;
        std::function<void()> call;
    } rows[] = {
        {"a file", [&] { write_to(path.c_str(), CREATE_ALWAYS); }},
        {"a port", [&] { write_to(L"COM1", OPEN_EXISTING); }},
        {"a mapped port",
         [&] {
             platform.map_port(L"COM2", "/dev/serial/by-id/the-plotter");
             platform.map_port(L"COM2", nullptr);
         }},
        {"the ports", [&] { platform.EnumPortsW(nullptr, 2, records.data(), size, &needed, &count); }},
        {"the printers",
         [&] { platform.EnumPrintersW(6, nullptr, 2, records.data(), size, &needed, &count); }},
        {"a printer",
         [&] {
             wchar_t name[] = L"\\\\127.0.0.1\\the-plotter";
             HANDLE printer = nullptr;
             platform.OpenPrinterW(name, &printer, nullptr);
         }},
        {"a module", [&] { platform.LoadLibraryW(L"no/such/module.dll"); }},
        {"the path of the program",
         [&] {
             wchar_t program[260];
             platform.GetModuleFileNameW(nullptr, program, 260);
         }},
        {"a stream", [&] {
             std::FILE* stream = nullptr;
             if (platform._wfopen_s(&stream, path.c_str(), L"r") == 0)
                 std::fclose(stream);
         }}};
    const auto allocations_of = [](const std::function<void()>& call) {
        const std::size_t before = support::allocation_count();
        call();
        return static_cast<int>(support::allocation_count() - before);
    };
    constexpr int some = 60;
    for (const auto& row : rows) {
        const int all = allocations_of(row.call);
        EXPECT_GT(all, 0) << row.what;
        for (int successes = 0; successes < all; ++successes) {
            // In between, one device is looked at like the other.
            if (successes == some)
                successes = std::max(some, all - some);
            for (const bool for_good : {false, true}) {
                platform.CloseHandle(nullptr);
                int taken = 0;
                {
                    const support::Out_Of_Memory none(successes, for_good);
                    EXPECT_NO_THROW(taken = allocations_of(row.call)) << row.what;
                }
                EXPECT_GT(taken, successes) << row.what;
                EXPECT_STREQ(platform.last_error(), L"No memory") << row.what << ", allocation " << successes;
            }
        }
        EXPECT_EQ(allocations_of(row.call), all) << row.what << " comes back";
    }
}
}  // namespace
