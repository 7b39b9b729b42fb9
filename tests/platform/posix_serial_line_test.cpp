#include <errno.h>
#include <gtest/gtest.h>
#include <linux/serial.h>
#include <stdarg.h>
#include <sys/syscall.h>

#include <algorithm>
#include <cstring>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/pseudo_terminal.h"
#include "toolkit/platform/posix/posix_platform.h"

namespace {
// A line with a frame, modem lines and counters, which a pseudo terminal has not: while it is plugged in, the
// toolkit's requests to the driver come here, and the bytes go through the pseudo terminal all the same.
struct Hardware {
    termios2 settings{};
    int modem = TIOCM_DTR | TIOCM_RTS | TIOCM_CTS;
    serial_icounter_struct counts{};
    int unsent = 0;
    int sent_between_looks = 0;
    bool transmitter_is_empty = true;
    std::vector<int> flushed;
    std::function<void(termios2&)> driver = [](termios2&) {};  // what it makes of settings

    int request(unsigned long what, void* data) {
        switch (what) {
            case TCGETS2:
                *static_cast<termios2*>(data) = settings;
                return 0;
            case TCSETS2:
                settings = *static_cast<termios2*>(data);
                driver(settings);
                return 0;
            case TIOCMGET:
                *static_cast<int*>(data) = modem;
                return 0;
            case TIOCMSET:
                modem = *static_cast<int*>(data);
                return 0;
            case TIOCGICOUNT:
                *static_cast<serial_icounter_struct*>(data) = counts;
                return 0;
            case TIOCOUTQ:
                *static_cast<int*>(data) = unsent;
                unsent = std::max(0, unsent - sent_between_looks);
                return 0;
            case TIOCSERGETLSR:
                *static_cast<int*>(data) = std::exchange(transmitter_is_empty, true) ? TIOCSER_TEMT : 0;
                return 0;
            default:
                errno = ENOTTY;
                return -1;
        }
    }
};
Hardware* plugged_in = nullptr;
}  // namespace

// In the place of the C library's, for the toolkit too.
extern "C" __attribute__((visibility("default"))) int ioctl(int fd, unsigned long request, ...) noexcept {
    va_list arguments;
    va_start(arguments, request);
    void* const data = va_arg(arguments, void*);
    va_end(arguments);
    if (plugged_in && request == TCFLSH) {
        plugged_in->flushed.push_back(static_cast<int>(reinterpret_cast<std::intptr_t>(data)));
        return 0;
    }
    if (plugged_in && request != TIOCEXCL && request != TIOCNXCL)
        return plugged_in->request(request, data);
    return static_cast<int>(syscall(SYS_ioctl, fd, request, data));
}

namespace {
using Change = std::function<void(DCB&)>;
constexpr tcflag_t frame_bits = CSIZE | PARENB | PARODD | CMSPAR | CSTOPB | CRTSCTS;

class Posix_Serial_Line : public testing::Test {
public:
    Posix_Serial_Line() { hardware.settings = terminal.settings(); }
    ~Posix_Serial_Line() override { plugged_in = nullptr; }

    void open() {
        platform.map_port(L"COM1", terminal.name());
        port = platform.CreateFileW(L"COM1", GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
        ASSERT_NE(port, INVALID_HANDLE_VALUE) << platform.last_error();
    }
    void open_hardware() {
        plugged_in = &hardware;
        open();
    }
    DCB state() {
        DCB now{};
        EXPECT_TRUE(platform.GetCommState(port, &now));
        return now;
    }
    BOOL set(const Change& change) {
        DCB asked = state();
        change(asked);
        return platform.SetCommState(port, &asked);
    }
    void write_with_limit(DWORD milliseconds) {
        COMMTIMEOUTS timeouts{0, 0, 0, 0, milliseconds};
        EXPECT_TRUE(platform.SetCommTimeouts(port, &timeouts));
        DWORD written = 0;
        EXPECT_TRUE(platform.WriteFile(port, "plot", 4, &written, nullptr));
    }

    Pseudo_Terminal terminal;
    Hardware hardware;
    PX_Posix_Platform platform;
    HANDLE port = INVALID_HANDLE_VALUE;
};

template <class Settings>
bool is_same(const Settings& a, const Settings& b) {
    return std::memcmp(&a, &b, sizeof a) == 0;
}

struct Settings_Row {
    Change change;
    tcflag_t frame = CS8;
    tcflag_t iflag = 0;
    speed_t rate = 9600;

    // A pseudo terminal always has 8 data bits without parity.
    bool needs_hardware() const { return (frame & (CSIZE | PARENB)) != CS8; }
};
const Settings_Row settings_rows[] = {
    {[](DCB&) {}},
    {[](DCB& s) { s.BaudRate = 12345; }, CS8, 0, 12345},
    {[](DCB& s) { s.StopBits = TWOSTOPBITS; }, CS8 | CSTOPB},
    {[](DCB& s) { s.fParity = 1; }, CS8, INPCK},
    {[](DCB& s) { s.fOutX = 1; }, CS8, IXON},
    {[](DCB& s) { s.fInX = 1; }, CS8, IXOFF},
    {[](DCB& s) { s.fOutxCtsFlow = 1, s.fRtsControl = RTS_CONTROL_HANDSHAKE; }, CS8 | CRTSCTS},
    {[](DCB& s) { s.ByteSize = 7, s.Parity = EVENPARITY; }, CS7 | PARENB},
    {[](DCB& s) { s.ByteSize = 6, s.Parity = ODDPARITY; }, CS6 | PARENB | PARODD},
    {[](DCB& s) { s.Parity = MARKPARITY; }, CS8 | PARENB | PARODD | CMSPAR},
    {[](DCB& s) { s.Parity = SPACEPARITY; }, CS8 | PARENB | CMSPAR},
    {[](DCB& s) { s.ByteSize = 5, s.StopBits = ONE5STOPBITS; }, CS5 | CSTOPB}};

TEST_F(Posix_Serial_Line, Settings_Come_To_The_Line_And_Back) {
    for (const bool real : {true, false}) {
        port = INVALID_HANDLE_VALUE;
        real ? open() : open_hardware();
        DCB plain = state();
        plain.BaudRate = 9600;
        EXPECT_TRUE(platform.SetCommState(port, &plain)) << "an unchanged state";
        for (const Settings_Row& row : settings_rows) {
            SCOPED_TRACE(&row - settings_rows);
            const termios2 before = real ? terminal.settings() : hardware.settings;
            DCB asked = plain;
            row.change(asked);
            asked.XonChar = 0x22;
            asked.XoffChar = 0x23;
            const bool can = !real || !row.needs_hardware();
            EXPECT_EQ(platform.SetCommState(port, &asked), can);
            const termios2 now = real ? terminal.settings() : hardware.settings;
            if (!can) {
                EXPECT_STREQ(platform.last_error(), L"COM1: The line does not take these settings");
                EXPECT_TRUE(is_same(now, before));
                continue;
            }
            EXPECT_EQ(now.c_cflag & frame_bits, row.frame);
            EXPECT_EQ(now.c_iflag, IGNBRK | row.iflag);
            EXPECT_EQ(now.c_ospeed, row.rate);
            EXPECT_TRUE(now.c_cc[VSTART] == 0x22 && now.c_cc[VSTOP] == 0x23);
            EXPECT_TRUE(is_same(state(), asked));
        }
        EXPECT_TRUE(platform.CloseHandle(port));
    }
}

TEST_F(Posix_Serial_Line, What_It_Cannot_Do_Is_Refused_And_Changes_Nothing) {
    open();
    EXPECT_TRUE(set([](DCB& s) { s.BaudRate = 19200, s.fOutX = 1, s.fRtsControl = RTS_CONTROL_DISABLE; }));
    const termios2 before = terminal.settings();
    const DCB state_before = state();
    const std::pair<const char*, Change> rows[] = {
        {"rate", [](DCB& s) { s.BaudRate = 0; }},
        {"4 bits", [](DCB& s) { s.ByteSize = 4; }},
        {"parity", [](DCB& s) { s.Parity = 5; }},
        {"1.5 stop bits", [](DCB& s) { s.StopBits = ONE5STOPBITS; }},
        {"5 bits, 2 stop bits", [](DCB& s) { s.ByteSize = 5, s.StopBits = TWOSTOPBITS; }},
        {"text", [](DCB& s) { s.fBinary = 0; }},
        {"CTS alone", [](DCB& s) { s.fOutxCtsFlow = 1; }},
        {"RTS handshake alone", [](DCB& s) { s.fRtsControl = RTS_CONTROL_HANDSHAKE; }},
        {"RTS toggle", [](DCB& s) { s.fRtsControl = RTS_CONTROL_TOGGLE; }},
        {"DSR flow", [](DCB& s) { s.fOutxDsrFlow = 1; }},
        {"DTR handshake", [](DCB& s) { s.fDtrControl = DTR_CONTROL_HANDSHAKE; }},
        {"null XON", [](DCB& s) { s.XonChar = 0; }},
        {"XON is XOFF", [](DCB& s) { s.XonChar = s.XoffChar; }}};
    for (const auto& [name, change] : rows) {
        EXPECT_FALSE(set([&, change = change](DCB& s) { s.BaudRate = 1200, change(s); })) << name;
        EXPECT_TRUE(is_same(terminal.settings(), before)) << name;
        EXPECT_TRUE(is_same(state(), state_before)) << name;
    }
}

TEST_F(Posix_Serial_Line, A_Driver_That_Does_Otherwise_Is_Found_Out) {
    open_hardware();
    EXPECT_TRUE(set([](DCB& s) { s.BaudRate = 9600; }));
    hardware.driver = [](termios2& s) { s.c_ospeed = s.c_ispeed = s.c_ospeed + s.c_ospeed / 60; };
    EXPECT_TRUE(set([](DCB& s) { s.BaudRate = 115200; })) << "near enough";
    EXPECT_EQ(state().BaudRate, 117120u);
    hardware.driver = [](termios2& s) {
        if (s.c_ospeed == 250000)
            s.c_ospeed = s.c_ispeed = 9600;
    };
    const termios2 before = hardware.settings;
    const int lines = hardware.modem;
    EXPECT_FALSE(set([](DCB& s) { s.BaudRate = 250000, s.fDtrControl = DTR_CONTROL_DISABLE; }));
    EXPECT_TRUE(is_same(hardware.settings, before));
    EXPECT_EQ(hardware.modem, lines);
}

TEST_F(Posix_Serial_Line, Modem_Lines_And_Counters) {
    hardware.counts.frame = 5;
    open_hardware();
    EXPECT_TRUE(set([](DCB& s) { s.fDtrControl = DTR_CONTROL_DISABLE, s.fRtsControl = RTS_CONTROL_ENABLE; }));
    EXPECT_EQ(hardware.modem, TIOCM_RTS | TIOCM_CTS);
    EXPECT_TRUE(set([](DCB& s) { s.fDtrControl = DTR_CONTROL_ENABLE, s.fRtsControl = RTS_CONTROL_DISABLE; }));
    EXPECT_EQ(hardware.modem, TIOCM_DTR | TIOCM_CTS);
    EXPECT_EQ(state().fRtsControl, RTS_CONTROL_DISABLE);

    const std::pair<int serial_icounter_struct::*, DWORD> rows[] = {
        {&serial_icounter_struct::frame, CE_FRAME},
        {&serial_icounter_struct::overrun, CE_OVERRUN},
        {&serial_icounter_struct::parity, CE_RXPARITY},
        {&serial_icounter_struct::brk, CE_BREAK},
        {&serial_icounter_struct::buf_overrun, CE_RXOVER}};
    for (const auto& [count, error] : rows) {
        ++(hardware.counts.*count);
        DWORD errors = 0;
        EXPECT_TRUE(platform.ClearCommError(port, &errors, nullptr));
        EXPECT_EQ(errors, error);
        EXPECT_TRUE(platform.ClearCommError(port, &errors, nullptr));
        EXPECT_EQ(errors, 0u) << "counted once";
    }

    DWORD events = 0;
    EXPECT_TRUE(platform.SetCommMask(port, EV_CTS | EV_DSR | EV_BREAK));
    EXPECT_TRUE(platform.GetCommMask(port, &events));
    EXPECT_EQ(events, 0x58u);
    for (const DWORD flags : {PURGE_TXABORT | PURGE_TXCLEAR, PURGE_RXCLEAR, PURGE_TXCLEAR | PURGE_RXABORT})
        EXPECT_TRUE(platform.PurgeComm(port, flags));
    EXPECT_EQ(hardware.flushed, (std::vector<int>{TCOFLUSH, TCIFLUSH, TCIOFLUSH}));
}

TEST_F(Posix_Serial_Line, Closing_Sends_What_Was_Taken) {
    open();
    write_with_limit(5000);
    EXPECT_TRUE(platform.CloseHandle(port));
    EXPECT_EQ(read_bytes(terminal.end(), 4), "plot") << "on a line that says it has sent all";

    open_hardware();
    write_with_limit(60);
    hardware.unsent = 40;
    hardware.sent_between_looks = 1;
    hardware.transmitter_is_empty = false;
    EXPECT_TRUE(platform.CloseHandle(port)) << "longer than the time-out, but it moves";
    EXPECT_EQ(hardware.unsent, 0);
    EXPECT_TRUE(hardware.transmitter_is_empty);
    EXPECT_TRUE(hardware.flushed.empty());

    open_hardware();
    write_with_limit(60);
    hardware.unsent = 40;
    hardware.sent_between_looks = 0;
    // What a host does before it closes: the bytes must not go out with other settings, and the time-out is
    // that of the write.
    COMMTIMEOUTS none{};
    EXPECT_TRUE(platform.SetCommTimeouts(port, &none));
    EXPECT_FALSE(set([](DCB& s) { s.BaudRate = 300; }));
    EXPECT_FALSE(platform.CloseHandle(port)) << "the last bytes are lost";
    EXPECT_EQ(hardware.flushed, std::vector<int>{TCOFLUSH});
}
}  // namespace
