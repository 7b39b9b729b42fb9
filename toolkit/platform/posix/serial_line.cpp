#include "toolkit/platform/posix/serial_line.h"

// Not <termios.h>: that one has no rates but those with a name.
#include <asm/ioctls.h>
#include <asm/termbits.h>
#include <linux/serial.h>
#include <sys/ioctl.h>

#include <algorithm>

#include "toolkit/platform/posix/failure.h"

namespace {
constexpr tcflag_t frame_bits = CSIZE | PARENB | PARODD | CMSPAR | CSTOPB | CRTSCTS;
constexpr tcflag_t rate_bits = CBAUD | CBAUD << IBSHIFT;
constexpr tcflag_t data_bits[] = {CS5, CS6, CS7, CS8};
constexpr tcflag_t parities[] = {0, PARENB | PARODD, PARENB, PARENB | PARODD | CMSPAR, PARENB | CMSPAR};

// An operation that the device does not have, apart from one that fails.
bool is_missing(int error) {
    return error == ENOTTY || error == EINVAL;
}

void set_rate(termios2& settings, speed_t rate) {
    settings.c_cflag = (settings.c_cflag & ~rate_bits) | BOTHER | BOTHER << IBSHIFT;
    settings.c_ispeed = rate;
    settings.c_ospeed = rate;
}

void make_raw(termios2& settings) {
    settings.c_iflag = IGNBRK;
    settings.c_oflag = 0;
    settings.c_lflag = 0;
    settings.c_cflag |= CREAD | CLOCAL;
    settings.c_cc[VMIN] = 1;
    settings.c_cc[VTIME] = 0;
}

void refuse_what_no_line_can(const DCB& state) {
    const bool holds = state.fOutX || state.fInX;
    const bool short_bytes = state.ByteSize == 5;
    const struct {
        bool applies;
        const char* reason;
    } refusals[] = {
        {state.BaudRate == 0, "A rate of 0"},
        {state.ByteSize < 5 || state.ByteSize > 8, "Data bits other than 5 to 8"},
        {state.Parity > SPACEPARITY, "An unknown parity"},
        {state.StopBits > TWOSTOPBITS, "Unknown stop bits"},
        {state.StopBits == ONE5STOPBITS && !short_bytes, "1.5 stop bits with more than 5 data bits"},
        {state.StopBits == TWOSTOPBITS && short_bytes, "2 stop bits with 5 data bits"},
        {!state.fBinary, "Text mode"},
        {state.fRtsControl == RTS_CONTROL_TOGGLE, "RTS that toggles"},
        {(state.fRtsControl == RTS_CONTROL_HANDSHAKE) != (state.fOutxCtsFlow != 0),
         "One of CTS flow and the RTS handshake without the other"},
        {state.fOutxDsrFlow || state.fDsrSensitivity, "DSR flow"},
        {state.fDtrControl > DTR_CONTROL_ENABLE, "The DTR handshake"},
        {state.fErrorChar || state.fNull || state.fAbortOnError, "Treatment of wrong or null bytes"},
        {state.fInX && !state.fTXContinueOnXoff, "No output after XOFF was sent"},
        {holds && (!state.XonChar || !state.XoffChar || state.XonChar == state.XoffChar),
         "XON and XOFF that are null or the same"}};
    for (const auto& refusal : refusals)
        if (refusal.applies)
            throw PX_Failure{refusal.reason};
}

bool is_near(speed_t rate, speed_t asked) {
    const speed_t distance = std::max(rate, asked) - std::min(rate, asked);
    return distance <= asked / 50;
}

bool is_had(const termios2& had, const termios2& asked) {
    return (had.c_cflag & frame_bits) == (asked.c_cflag & frame_bits) && had.c_iflag == asked.c_iflag &&
           had.c_oflag == asked.c_oflag && had.c_lflag == asked.c_lflag &&
           had.c_cc[VSTART] == asked.c_cc[VSTART] && had.c_cc[VSTOP] == asked.c_cc[VSTOP] &&
           is_near(had.c_ospeed, asked.c_ospeed) && is_near(had.c_ispeed, asked.c_ispeed);
}
}  // namespace

PX_Serial_Line::PX_Serial_Line(int fd)
    : m_fd(fd),
      m_found(std::make_unique<termios2>(settings())),
      m_counts(std::make_unique<serial_icounter_struct>()) {
    m_state.fDtrControl = DTR_CONTROL_ENABLE;
    m_state.fRtsControl = RTS_CONTROL_ENABLE;
    take_errors();

    termios2 raw = *m_found;
    make_raw(raw);
    set_rate(raw, raw.c_ospeed ? raw.c_ospeed : 9600);
    set_settings(raw);
    if (ioctl(m_fd, TIOCEXCL) != 0) {
        const int error = errno;
        ioctl(m_fd, TCSETS2, m_found.get());
        px_fail(error);
    }
}

PX_Serial_Line::~PX_Serial_Line() {
    ioctl(m_fd, TCSETS2, m_found.get());
    ioctl(m_fd, TIOCNXCL);
}

DCB PX_Serial_Line::get_state() const {
    const termios2 now = settings();
    DCB state = m_state;
    state.DCBlength = sizeof state;
    state.BaudRate = now.c_ospeed;
    state.fBinary = 1;
    state.fParity = (now.c_iflag & INPCK) != 0;
    state.fOutxCtsFlow = (now.c_cflag & CRTSCTS) != 0;
    state.fTXContinueOnXoff = 1;
    state.fOutX = (now.c_iflag & IXON) != 0;
    state.fInX = (now.c_iflag & IXOFF) != 0;
    state.XonChar = static_cast<char>(now.c_cc[VSTART]);
    state.XoffChar = static_cast<char>(now.c_cc[VSTOP]);

    const auto size = std::find(std::begin(data_bits), std::end(data_bits), now.c_cflag & CSIZE);
    state.ByteSize = static_cast<BYTE>(5 + (size - data_bits));
    const tcflag_t parity_bits = now.c_cflag & PARENB ? now.c_cflag & (PARENB | PARODD | CMSPAR) : 0;
    state.Parity = static_cast<BYTE>(std::find(parities, std::end(parities), parity_bits) - parities);
    state.StopBits = !(now.c_cflag & CSTOPB) ? ONESTOPBIT : state.ByteSize == 5 ? ONE5STOPBITS : TWOSTOPBITS;

    if (const std::optional<int> lines = modem_lines()) {
        state.fDtrControl = DTR_CONTROL_DISABLE;
        if (*lines & TIOCM_DTR)
            state.fDtrControl = DTR_CONTROL_ENABLE;
        state.fRtsControl = RTS_CONTROL_DISABLE;
        if (*lines & TIOCM_RTS)
            state.fRtsControl = RTS_CONTROL_ENABLE;
    }
    if (state.fOutxCtsFlow)
        state.fRtsControl = RTS_CONTROL_HANDSHAKE;
    else if (state.fRtsControl == RTS_CONTROL_HANDSHAKE)
        state.fRtsControl = RTS_CONTROL_ENABLE;
    return state;
}

void PX_Serial_Line::set_state(const DCB& state) {
    refuse_what_no_line_can(state);
    const termios2 before = settings();
    const std::optional<int> lines_before = modem_lines();

    termios2 asked = before;
    make_raw(asked);
    set_rate(asked, state.BaudRate);
    asked.c_cflag &= ~frame_bits;
    asked.c_cflag |= data_bits[state.ByteSize - 5] | parities[state.Parity];
    if (state.StopBits != ONESTOPBIT)
        asked.c_cflag |= CSTOPB;
    if (state.fOutxCtsFlow)
        asked.c_cflag |= CRTSCTS;
    if (state.fParity)
        asked.c_iflag |= INPCK;
    if (state.fOutX)
        asked.c_iflag |= IXON;
    if (state.fInX)
        asked.c_iflag |= IXOFF;
    asked.c_cc[VSTART] = static_cast<cc_t>(state.XonChar);
    asked.c_cc[VSTOP] = static_cast<cc_t>(state.XoffChar);

    try {
        apply(asked, state);
    } catch (const PX_Failure&) {
        ioctl(m_fd, TCSETS2, &before);
        if (lines_before)
            ioctl(m_fd, TIOCMSET, &*lines_before);
        throw;
    }
    m_state = state;
}

void PX_Serial_Line::apply(const termios2& asked, const DCB& state) {
    set_settings(asked);
    set_modem_lines(state);
    if (!is_had(settings(), asked))
        throw PX_Failure{"The line does not take these settings"};
}

DWORD PX_Serial_Line::take_errors() {
    serial_icounter_struct now{};
    if (ioctl(m_fd, TIOCGICOUNT, &now) != 0) {
        if (is_missing(errno))
            return 0;
        px_fail();
    }
    const struct {
        int serial_icounter_struct::*count;
        DWORD error;
    } errors[] = {{&serial_icounter_struct::frame, CE_FRAME},
                  {&serial_icounter_struct::overrun, CE_OVERRUN},
                  {&serial_icounter_struct::parity, CE_RXPARITY},
                  {&serial_icounter_struct::brk, CE_BREAK},
                  {&serial_icounter_struct::buf_overrun, CE_RXOVER}};
    DWORD mask = 0;
    for (const auto& [count, error] : errors)
        if (now.*count != (*m_counts).*count)
            mask |= error;
    *m_counts = now;
    return mask;
}

void PX_Serial_Line::purge(DWORD flags) {
    const bool out = flags & (PURGE_TXABORT | PURGE_TXCLEAR);
    const bool in = flags & (PURGE_RXABORT | PURGE_RXCLEAR);
    if (!out && !in)
        px_fail(EINVAL);
    if (ioctl(m_fd, TCFLSH, out && in ? TCIOFLUSH : out ? TCOFLUSH : TCIFLUSH) != 0)
        px_fail();
}

int PX_Serial_Line::unsent() const {
    int waiting = 0;
    if (ioctl(m_fd, TIOCOUTQ, &waiting) != 0)
        px_fail();
    int transmitter = TIOCSER_TEMT;
    if (waiting == 0 && ioctl(m_fd, TIOCSERGETLSR, &transmitter) == 0 && !(transmitter & TIOCSER_TEMT))
        return 1;
    return waiting;
}

termios2 PX_Serial_Line::settings() const {
    termios2 now{};
    if (ioctl(m_fd, TCGETS2, &now) != 0)
        px_fail();
    return now;
}

void PX_Serial_Line::set_settings(const termios2& settings) {
    if (ioctl(m_fd, TCSETS2, &settings) != 0)
        px_fail();
}

std::optional<int> PX_Serial_Line::modem_lines() const {
    int lines = 0;
    if (ioctl(m_fd, TIOCMGET, &lines) == 0)
        return lines;
    if (!is_missing(errno))
        px_fail();
    return std::nullopt;
}

void PX_Serial_Line::set_modem_lines(const DCB& state) {
    const std::optional<int> now = modem_lines();
    if (!now)
        return;
    int ours = TIOCM_DTR | TIOCM_RTS;
    int asked = state.fDtrControl == DTR_CONTROL_ENABLE ? TIOCM_DTR : 0;
    if (state.fRtsControl == RTS_CONTROL_HANDSHAKE)
        ours = TIOCM_DTR;
    else if (state.fRtsControl == RTS_CONTROL_ENABLE)
        asked |= TIOCM_RTS;

    const int lines = (*now & ~ours) | asked;
    if (ioctl(m_fd, TIOCMSET, &lines) != 0)
        px_fail();
    if ((modem_lines().value_or(asked) & ours) != asked)
        throw PX_Failure{"The line does not take these settings"};
}
