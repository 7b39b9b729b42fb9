#include "toolkit/core/error_resources.h"
#include "toolkit/marvcon/std_plotter_io/channel.h"
#include "toolkit/marvcon/std_plotter_io/message_text.h"
#include "toolkit/marvcon/std_plotter_io/send_all.h"
#include "toolkit/platform/platform.h"

// The file, and the serial or parallel port that is the channel's own.

namespace {

constexpr const wchar_t* file_tag = px_std_plotter_io_source.file_tag;

constexpr unsigned int set_up_aborted = 206;
constexpr unsigned int port_not_opened = 208;
constexpr unsigned int write_stalled = 209;
constexpr unsigned int port_stalled = 218;
constexpr unsigned int framing_error = 233;
constexpr unsigned int unknown_line_error = 234;
constexpr unsigned int parity_error = 235;
constexpr unsigned int out_of_paper = 236;
constexpr unsigned int file_not_created = 238;
constexpr unsigned int state_not_applied = 239;
constexpr unsigned int break_received = 244;
constexpr unsigned int device_not_selected = 245;
constexpr unsigned int mode_not_supported = 246;
constexpr unsigned int overrun = 247;

constexpr int text_capacity = 4096;

// Milliseconds: one hour stands for no time-out at all.
constexpr DWORD no_write_timeout = 3600000;

constexpr DWORD watched_events = EV_CTS | EV_DSR | EV_BREAK;

constexpr char xon = 0x11;
constexpr char xoff = 0x13;

// The first of the bits that is set decides; none leaves the control as it is.
struct Control {
    long handshake;
    DWORD control;
};
constexpr Control dtr_controls[] = {{PX_Handshake::Handshake_Dtr_Disable, DTR_CONTROL_DISABLE},
                                    {PX_Handshake::Handshake_Dtr_Enable, DTR_CONTROL_ENABLE},
                                    {PX_Handshake::Handshake_Dtr_Handshake, DTR_CONTROL_HANDSHAKE}};
constexpr Control rts_controls[] = {{PX_Handshake::Handshake_Rts_Disable, RTS_CONTROL_DISABLE},
                                    {PX_Handshake::Handshake_Rts_Enable, RTS_CONTROL_ENABLE},
                                    {PX_Handshake::Handshake_Rts_Handshake, RTS_CONTROL_HANDSHAKE},
                                    {PX_Handshake::Handshake_Rts_Toggle, RTS_CONTROL_TOGGLE}};

template <std::size_t size>
DWORD chosen(const Control (&controls)[size], long handshake, DWORD present) {
    for (const Control& control : controls) {
        if (handshake & control.handshake)
            return control.control & 3;
    }
    return present & 3;
}

void set_handshake(DCB& state, long handshake) {
    using Handshake = PX_Handshake;
    const auto has = [handshake](Handshake::Enum bit) -> DWORD { return (handshake & bit) != 0; };
    state.fOutxCtsFlow = has(Handshake::Handshake_Cts_Out) & 1;
    state.fOutxDsrFlow = has(Handshake::Handshake_Dsr_Out) & 1;
    state.fDsrSensitivity = has(Handshake::Handshake_Dsr_Out) & 1;
    state.fOutX = has(Handshake::Handshake_Xon_Out) & 1;
    state.fInX = has(Handshake::Handshake_Xon_In) & 1;
    state.fDtrControl = chosen(dtr_controls, handshake, state.fDtrControl) & 3;
    // No handshake at all takes RTS back; DTR stays in any case.
    state.fRtsControl = (handshake == 0 ? 0 : chosen(rts_controls, handshake, state.fRtsControl)) & 3;
}

BYTE byte_size(PX_Data_Bits::Enum bits) {
    switch (bits) {
        case PX_Data_Bits::Data_Bits_5:
            return 5;
        case PX_Data_Bits::Data_Bits_6:
            return 6;
        case PX_Data_Bits::Data_Bits_7:
            return 7;
        case PX_Data_Bits::Data_Bits_16:
        case PX_Data_Bits::Data_Bits_16X:
            return 16;
        default:
            return 8;
    }
}

BYTE parity_of(PX_Parity::Enum parity) {
    switch (parity) {
        case PX_Parity::Parity_Odd:
            return ODDPARITY;
        case PX_Parity::Parity_Even:
            return EVENPARITY;
        case PX_Parity::Parity_Mark:
            return MARKPARITY;
        case PX_Parity::Parity_Space:
            return SPACEPARITY;
        default:
            return NOPARITY;
    }
}

BYTE stop_bits_of(PX_Stop_Bits::Enum bits) {
    switch (bits) {
        case PX_Stop_Bits::Stop_Bits_1_5:
            return ONE5STOPBITS;
        case PX_Stop_Bits::Stop_Bits_2:
            return TWOSTOPBITS;
        default:
            return ONESTOPBIT;
    }
}

// Without a protocol the line is framed as with one that says nothing.
void set_framing(DCB& state, const PX_Protocol* protocol) {
    state.ByteSize = byte_size(protocol ? protocol->get_data_bits() : PX_Data_Bits::Data_Bits_Undefined);
    state.Parity = parity_of(protocol ? protocol->get_parity() : PX_Parity::Parity_Undefined);
    state.fParity = state.Parity != NOPARITY;
    state.StopBits = stop_bits_of(protocol ? protocol->get_stop_bits() : PX_Stop_Bits::Stop_Bits_Undefined);
}

}  // namespace

void PX_Std_Plotter_IO::open_local() {
    constexpr const wchar_t* function = L"PX_Std_Plotter_IO::open_local";
    const bool to_file = is_to_file();
    while (true) {
        try {
            m_device = PX_Get_Platform().CreateFileW(m_portname, GENERIC_READ | GENERIC_WRITE, 0, nullptr,
                                                     to_file ? CREATE_ALWAYS : OPEN_EXISTING,
                                                     FILE_ATTRIBUTE_NORMAL, nullptr);
            m_open = m_device != INVALID_HANDLE_VALUE;
            if (!m_open)
                throw MVNK_IO_Open_Error(to_file ? file_not_created : port_not_opened, function, nullptr,
                                         file_tag);
            if (!to_file && !configure_local_port()) {
                // In this order closing does nothing, and the port stays held. That is meant.
                m_open = false;
                close();
            }
            return;
        } catch (const MVNK_IO_Open_Error& failure) {
            const Answer answer = px_report_as_ARI(handler(), failure);
            if (answer == PX_Error_Handler::Result_Retry)
                continue;
            m_aborted = answer == PX_Error_Handler::Result_Abort;
            return;
        } catch (const MVNK_IO_Comm_Error& failure) {
            px_report_as_severe(handler(), failure);
        } catch (const PX_Exception& failure) {
            px_report_by_kind(handler(), failure);
        }
    }
}

// Whether the port can be used.
bool PX_Std_Plotter_IO::configure_local_port() {
    if (!m_open || is_to_file())
        return false;
    m_has_saved_timeouts = m_has_saved_event_mask = m_has_saved_comm_state = false;
    auto& platform = PX_Get_Platform();
    COMMTIMEOUTS timeouts = {};
    if (platform.GetCommTimeouts(m_device, &timeouts)) {
        m_saved_timeouts = timeouts;
        m_has_saved_timeouts = true;
    }
    const bool is_serial = m_type == PX_IO_Type::Serial;
    if (is_serial) {
        timeouts.ReadIntervalTimeout = 0;
        timeouts.ReadTotalTimeoutMultiplier = 0;
        timeouts.ReadTotalTimeoutConstant = static_cast<DWORD>(m_configuration->get_input_timeout());
    }
    const auto write_timeout = static_cast<DWORD>(m_configuration->get_output_timeout());
    timeouts.WriteTotalTimeoutMultiplier = 0;
    timeouts.WriteTotalTimeoutConstant = write_timeout == 0 ? no_write_timeout : write_timeout;
    platform.SetCommTimeouts(m_device, &timeouts);
    return is_serial ? configure_serial_line() : m_open;
}

bool PX_Std_Plotter_IO::configure_serial_line() {
    auto& platform = PX_Get_Platform();
    while (true) {
        // A Retry reads mask and state afresh: what it finds is what is restored in the end.
        if (DWORD mask = 0; platform.GetCommMask(m_device, &mask)) {
            m_saved_event_mask = mask;
            m_has_saved_event_mask = true;
        }
        if (!platform.SetCommMask(m_device, watched_events))
            m_open = false;
        DCB state = {};
        state.DCBlength = sizeof state;
        if (platform.GetCommState(m_device, &state)) {
            m_saved_comm_state = state;
            m_has_saved_comm_state = true;
            state.BaudRate = static_cast<DWORD>(m_configuration->get_baud_rate());
            state.fBinary = 1;
            state.wReserved = 0;
            state.XonChar = xon;
            state.XoffChar = xoff;
            state.fErrorChar = 0;
            state.fNull = 0;
            state.fAbortOnError = 0;
            set_framing(state, m_protocol);
            set_handshake(state, m_configuration->get_handshake());
            if (platform.SetCommState(m_device, &state))
                return m_open;
        }
        // The name is that of another operation on purpose.
        const Answer answer = ask(state_not_applied, L"PX_Std_Plotter_IO::write_local");
        if (answer == PX_Error_Handler::Result_Retry)
            continue;
        if (answer == PX_Error_Handler::Result_Abort) {
            m_open = false;
            wchar_t text[text_capacity];
            const bool has_text = px_load_mvn_text(set_up_aborted, text, text_capacity) > 0;
            handler().LogMessage(L"PX_Std_Plotter_IO::configure_local_port", has_text ? text : L"");
        }
        return m_open;
    }
}

bool PX_Std_Plotter_IO::close_local() {
    auto& platform = PX_Get_Platform();
    if (!is_to_file() && is_local_port()) {
        if (m_has_saved_timeouts)
            platform.SetCommTimeouts(m_device, &m_saved_timeouts);
        if (m_has_saved_event_mask)
            platform.SetCommMask(m_device, m_saved_event_mask);
        if (m_has_saved_comm_state)
            platform.SetCommState(m_device, &m_saved_comm_state);
    }
    return platform.CloseHandle(m_device) != 0;
}

long PX_Std_Plotter_IO::write_local(const char* bytes, unsigned long size) {
    return send_all(
        bytes, size,
        [this](const char* part, DWORD length, DWORD* written) {
            return PX_Get_Platform().WriteFile(m_device, part, length, written, nullptr);
        },
        [this](bool failed) { return ask_about_stall(failed); });
}

PX_Std_Plotter_IO::Answer PX_Std_Plotter_IO::ask_about_stall(bool failed) {
    const unsigned int code = failed ? line_error_code() : stall_code();
    if (!m_handle_ari_for_drv)
        return PX_Error_Handler::Result_Ignore;
    const std::wstring text = px_text_on_port<text_capacity>(code, m_portname);
    switch (handler().message_box(text.c_str(), nullptr, MB_ABORTRETRYIGNORE | MB_ICONEXCLAMATION, 0)) {
        case IDRETRY:
            return PX_Error_Handler::Result_Retry;
        case IDABORT:
            return PX_Error_Handler::Result_Abort;
        default:
            return PX_Error_Handler::Result_Ignore;
    }
}

unsigned int PX_Std_Plotter_IO::stall_code() const {
    return m_type == PX_IO_Type::Parallel ? port_stalled : write_stalled;
}

// The mask counts where it could not be had, and is thrown away where it could. That is not to be reversed.
unsigned int PX_Std_Plotter_IO::line_error_code() const {
    DWORD errors = 0;
    if (PX_Get_Platform().ClearCommError(m_device, &errors, nullptr) || errors == 0)
        return stall_code();
    const struct {
        DWORD error;
        unsigned int code;
    } meanings[] = {
        {CE_FRAME, framing_error},     {CE_MODE, mode_not_supported}, {CE_BREAK, break_received},
        {CE_DNS, device_not_selected}, {CE_PTO, port_stalled},        {CE_OOP, out_of_paper},
        {CE_OVERRUN, overrun},         {CE_RXPARITY, parity_error},   {CE_TXFULL, stall_code()},
    };
    for (const auto& meaning : meanings) {
        if (errors & meaning.error)
            return meaning.code;
    }
    return unknown_line_error;
}

void PX_Std_Plotter_IO::purge_local() {
    PX_Get_Platform().PurgeComm(m_device, PURGE_TXABORT | PURGE_TXCLEAR);
}
