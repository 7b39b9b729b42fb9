#include "toolkit/marvcon/std_plotter_io/channel.h"

#include <algorithm>
#include <cassert>
#include <limits>
#include <string>
#include <utility>

#include "toolkit/core/error_resources.h"
#include "toolkit/core/frame.h"
#include "toolkit/platform/platform.h"
#include "toolkit/platform/printers.h"

namespace {

constexpr const wchar_t* file_tag = px_std_plotter_io_source.file_tag;

constexpr unsigned int default_document_name = 1111;
// One more for the terminator.
constexpr int document_name_capacity = 81;

// Has the channel ask the user while it lives, whatever the driver chose.
class Ask_Meanwhile {
public:
    explicit Ask_Meanwhile(bool& handle_ari) : m_handle_ari(handle_ari), m_former(handle_ari) {
        m_handle_ari = true;
    }
    ~Ask_Meanwhile() { m_handle_ari = m_former; }
    Ask_Meanwhile(const Ask_Meanwhile&) = delete;
    Ask_Meanwhile& operator=(const Ask_Meanwhile&) = delete;

private:
    bool& m_handle_ari;
    const bool m_former;
};

}  // namespace

PX_Plotter_IO::~PX_Plotter_IO() = default;

PX_Std_Plotter_IO::PX_Std_Plotter_IO(PX_Smart_Pointer<PX_Error_Handler> handler)
    : m_error_handler(std::move(handler)) {
    wchar_t name[document_name_capacity];
    const bool has_text = px_load_mvn_text(default_document_name, name, document_name_capacity) > 0;
    m_document_name = has_text ? name : L"Orvane Drawing";
}

PX_Std_Plotter_IO::~PX_Std_Plotter_IO() {
    try {
        PX_Std_Plotter_IO::close();
    } catch (...) {
    }
}

PX_Error_Handler& PX_Std_Plotter_IO::handler() const {
    px_require_argument(m_error_handler, L"PX_Std_Plotter_IO::handler", L"error_handler", file_tag);
    return *m_error_handler;
}

PX_Std_Plotter_IO::Answer PX_Std_Plotter_IO::ask(unsigned int code, const wchar_t* function) const {
    return handler().ARI_error(GetMVNErrResHandle(), code, function, nullptr, file_tag);
}

bool PX_Std_Plotter_IO::configure(const PX_Plotter_Definition* plotter) {
    constexpr const wchar_t* function = L"PX_Std_Plotter_IO::configure";
    m_configured = false;
    px_require_argument(plotter, function, L"plotter", file_tag);
    const auto choices = plotter->get_plotter_configuration();
    const auto device = plotter->get_plotter_capabilities();
    px_require_argument(choices && device, function, L"plotter_caps or plotter_cfg", file_tag);
    m_configuration = choices->get_io_configuration().get();
    const auto capabilities = device->get_io_capabilities();
    px_require_argument(m_configuration && capabilities, function, L"io caps or io cfg", file_tag);
    const auto meta = plotter->get_meta_capabilities();
    px_require_argument(meta, function, L"meta_capabilities", file_tag);

    m_type = m_configuration->get_type();
    m_method = px_frame(function, [&] { return capabilities->get_method(m_type); }).get();
    m_protocol = m_method ? m_method->get_protocol(m_configuration->get_protocol()).get() : nullptr;
    if (!m_method && !m_configuration->get_all_system_ports_valid() && is_local_port())
        return false;

    const auto shoebox = plotter->get_shoebox();
    if (const auto kestrane = shoebox ? shoebox->get_kest_shoebox() : nullptr) {
        m_spool_announce = kestrane->get_spool_announce();
        if (is_to_file())
            m_configuration->set_portname(kestrane->get_plot_to_file_pathname());
    }

    m_portname = m_configuration->get_portname();
    const auto model = meta->get_model();
    px_require_argument(model, function, L"model", file_tag);
    m_friendly_net_name = model->get_friendly_net_name();
    m_short_net_name = model->get_short_net_name();
    m_configured = true;
    return true;
}

void PX_Std_Plotter_IO::set_document_info(const PX_Document_Info* info) {
    if (info)
        m_document_name = PX_String(std::wstring(info->application)
                                        .append(L" ")
                                        .append(info->drawing)
                                        .append(L" (")
                                        .append(std::to_wstring(info->number))
                                        .append(L")"));
}

bool PX_Std_Plotter_IO::open() {
    constexpr const wchar_t* function = L"PX_Std_Plotter_IO::open";
    if (!m_configured)
        return false;
    m_aborted = false;
    px_frame(function, [&] {
        m_spooling = decide_spooling();
        if (is_to_file() || (is_local_port() && !m_spooling))
            open_local();
        else if (goes_to_queue())
            open_net_spool();
        else
            m_open = false;  // the driver writes to such a type by itself
    });
    if (m_open && m_io_buffering)
        make_buffer(function);
    return m_open;
}

// A port that is redirected, or that a printer of the system owns, is not opened but printed to.
bool PX_Std_Plotter_IO::decide_spooling() {
    if (is_to_file() || !is_local_port())
        return false;
    wchar_t remote_name[px_remote_name_capacity];
    if (!px_redirection_of(m_portname, remote_name))
        return detect_port_conflict();
    m_friendly_net_name = remote_name;
    return true;
}

void PX_Std_Plotter_IO::make_buffer(const wchar_t* function) {
    m_buffer.reset(px_frame(function, [&] { return new PX_IO_Buffer(m_error_handler, m_buffer_size); }));
    px_require_argument(m_buffer, function, L"m_buffer", file_tag);
}

bool PX_Std_Plotter_IO::close() {
    if (!m_open)
        return true;
    if (m_io_buffering) {
        empty_buffer_asking();
        m_buffer.reset();
    }
    const bool closed = goes_to_queue() ? close_net_spool() : close_local();
    m_device = nullptr;
    m_open = false;
    return closed;
}

long PX_Std_Plotter_IO::read(char* buffer, unsigned long size) {
    if (!m_open)
        return 0;
    if (m_aborted)
        return -1;
    auto& platform = PX_Get_Platform();
    // No more than the record takes and the answer can tell.
    const auto wanted = static_cast<DWORD>(std::min<unsigned long long>(
        {size, std::numeric_limits<DWORD>::max(), std::numeric_limits<long>::max()}));
    DWORD count = 0;
    const BOOL done = goes_to_queue() ? platform.ReadPrinter(m_device, buffer, wanted, &count)
                                      : platform.ReadFile(m_device, buffer, wanted, &count, nullptr);
    return done ? static_cast<long>(count) : -1;
}

long PX_Std_Plotter_IO::write(const char* bytes, unsigned long size) {
    if (!m_open)
        return 0;
    if (m_aborted)
        return -1;
    if (m_io_buffering && m_buffer) {
        const bool is_small = size <= static_cast<unsigned long>(m_buffer->get_buffer_length());
        const long length = is_small ? static_cast<long>(size) : 0;
        if (is_small && m_buffer->write_buffer(bytes, length))
            return length;
        if (m_handle_ari_for_drv) {
            empty_buffer();
            if (m_aborted)
                return -1;
            if (is_small)
                return m_buffer->write_buffer(bytes, length) ? length : -1;
        } else {
            if (!flush_buffer())
                return 0;
            // The bytes in hand are dropped, neither buffered nor sent: a driver that asks the user by itself
            // has to expect it.
            if (is_small)
                return length;
        }
    }
    return send(bytes, size);
}

long PX_Std_Plotter_IO::send(const char* bytes, unsigned long size) {
    return goes_to_queue() ? write_net_spool(bytes, size) : write_local(bytes, size);
}

// Whether nothing is left to send. Without buffering, that is never so.
bool PX_Std_Plotter_IO::flush_buffer() {
    if (!m_open || !m_io_buffering)
        return false;
    const long left = m_buffer ? m_buffer->get_buffer_fill_size() : 0;
    if (left == 0)
        return true;
    const long sent = send(m_buffer->unsent(), static_cast<unsigned long>(left));
    // An Abort empties the buffer.
    if (sent == left || sent == -1) {
        m_buffer->clear_buffer();
        return true;
    }
    if (sent > 0)
        m_buffer->advance_unsent_position(sent);
    return false;
}

void PX_Std_Plotter_IO::empty_buffer() {
    // It may go round for ever, which the language allows only to a loop with an effect that can be seen. To
    // read a volatile object is one; without it the compiler might take the loop for one that ends.
    volatile bool is_empty = false;
    while (!is_empty)
        is_empty = flush_buffer();
}

void PX_Std_Plotter_IO::empty_buffer_asking() {
    const Ask_Meanwhile asking(m_handle_ari_for_drv);
    empty_buffer();
}

bool PX_Std_Plotter_IO::flush() {
    if (!m_open || !m_io_buffering)
        return true;
    if (!m_handle_ari_for_drv)
        return flush_buffer();
    empty_buffer();
    return true;
}

void PX_Std_Plotter_IO::purge() {
    if (!m_open)
        return;
    if (m_buffer)
        m_buffer->clear_buffer();
    // A queue is never spooled to as a port is, so that its job is not cancelled. That is meant.
    if (!is_to_file() && m_type == PX_IO_Type::Network && m_spooling)
        purge_net_spool();
    else
        purge_local();
}

long PX_Std_Plotter_IO::get_buffer_size() const {
    return m_buffer ? m_buffer->get_buffer_length() : m_buffer_size;
}

void PX_Std_Plotter_IO::set_buffer_size(long size) {
    if (size == m_buffer_size)
        return;
    m_buffer_size = size;
    if (!m_open || !m_io_buffering || !m_buffer || m_buffer->set_buffer_length(size))
        return;
    empty_buffer_asking();
    m_buffer->set_buffer_length(size);
}

void PX_Std_Plotter_IO::set_io_buffering(bool on) {
    if (on == m_io_buffering)
        return;
    m_io_buffering = on;
    if (!m_open)
        return;
    if (on)
        return make_buffer(L"PX_Std_Plotter_IO::set_io_buffering");
    // There is none if it could not be made.
    if (!m_buffer)
        return;
    // Since the flag is off already, bytes that are unsent here are never sent, and this does not return.
    assert(m_buffer->get_buffer_fill_size() == 0);
    if (m_buffer->get_buffer_fill_size() != 0)
        empty_buffer_asking();
    m_buffer.reset();
}
