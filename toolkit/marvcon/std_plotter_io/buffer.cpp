#include "toolkit/marvcon/std_plotter_io/buffer.h"

#include <cassert>
#include <new>
#include <utility>

namespace {

constexpr const wchar_t* constructor = L"PX_IO_Buffer::PX_IO_Buffer";
constexpr const wchar_t* file_tag = px_std_plotter_io_source.file_tag;

// A length below 1 is not the smallest one.
long permitted(long length) {
    if (length > PX_IO_Buffer::greatest_length)
        return PX_IO_Buffer::greatest_length;
    return length < 1 ? PX_IO_Buffer::usual_length : length;
}

}  // namespace

PX_IO_Buffer::PX_IO_Buffer(PX_Smart_Pointer<PX_Error_Handler> handler)
    : PX_IO_Buffer(std::move(handler), usual_length) {
}

PX_IO_Buffer::PX_IO_Buffer(PX_Smart_Pointer<PX_Error_Handler> handler, long length)
    : m_error_handler(std::move(handler)) {
    px_require_argument(m_error_handler, constructor, L"error_handler", file_tag);
    allocate(permitted(length), constructor);
}

void PX_IO_Buffer::allocate(long length, const wchar_t* function) {
    m_buffer_length = 0;
    m_chars.reset();
    clear_buffer();
    m_chars.reset(new (std::nothrow) char[static_cast<std::size_t>(length)]);
    px_require_made(m_chars, function, L"m_chars", file_tag);
    m_buffer_length = length;
    clear_buffer();
}

bool PX_IO_Buffer::set_buffer_length(long length) {
    if (get_buffer_fill_size() != 0)
        return false;
    // Compared before it is brought into the range: a length that is not in it always gets a new buffer.
    if (length != m_buffer_length)
        allocate(permitted(length), L"PX_IO_Buffer::set_buffer_length");
    return true;
}

void PX_IO_Buffer::advance_unsent_position(long length) {
    assert(length >= 0 && length <= get_buffer_fill_size());
    m_unsent_position += length;
}

void PX_IO_Buffer::clear_buffer() {
    m_unsent_position = m_chars.get();
    m_fill_position = m_chars.get();
}
