#pragma once

#include <memory>
#include <optional>

#include "toolkit/platform/win_types.h"

struct termios2;
struct serial_icounter_struct;

// The settings of a serial line. What fails throws PX_Failure.
//
// What a line of this kernel cannot do is refused: a rate of 0, more than 8 data bits, 1.5 stop bits with
// other than 5 data bits and 2 stop bits with these, flow by CTS without the RTS handshake and the other way
// round, the RTS toggle, flow and sensitivity by DSR, the DTR handshake, text instead of binary, dropped null
// bytes, a character in place of errors, a stop at errors, a halt of the output after XOFF was sent, and a
// line that is held by a null character or by the one that lets it go. Then what the driver made of the
// settings is compared with them; a rate may be 2 percent off, as for the kernel itself.
//
// A line without modem lines has RTS and DTR as they are asked for. Breaks are not read as bytes. What the
// kernel knows nothing of (XonLim, XoffLim and the characters without a use) is kept for get_state.
class PX_Serial_Line {
public:
    // Makes the line raw and exclusive; its rate and frame stay. The descriptor stays the caller's.
    explicit PX_Serial_Line(int fd);
    PX_Serial_Line(const PX_Serial_Line&) = delete;
    PX_Serial_Line& operator=(const PX_Serial_Line&) = delete;
    // Puts back what was found.
    ~PX_Serial_Line();

    DCB get_state() const;
    // A failure leaves the line as it was.
    void set_state(const DCB& state);

    // The bits CE_... since the last call; none on a line that counts no errors.
    DWORD take_errors();
    void purge(DWORD flags);
    // The bytes that wait to go out, counting one for those in the transmitter.
    int unsent() const;

private:
    termios2 settings() const;
    void set_settings(const termios2& settings);
    // Nothing where there are none.
    std::optional<int> modem_lines() const;
    void set_modem_lines(const DCB& state);
    void apply(const termios2& settings, const DCB& state);

    int m_fd;
    std::unique_ptr<termios2> m_found;
    std::unique_ptr<serial_icounter_struct> m_counts;
    DCB m_state{};  // as it was last set
};
