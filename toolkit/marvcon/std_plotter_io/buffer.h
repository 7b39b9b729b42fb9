#pragma once

#include <cassert>
#include <cstring>
#include <memory>

#include "toolkit/marvcon/std_plotter_io/interface.h"

// Turns many small writes into few. Bytes are appended and sent from the front; the room of those that were
// sent is had again only when the buffer is cleared.
class PX_EXPORT PX_IO_Buffer : public PX_Object {
public:
    static constexpr long usual_length = 4096;
    static constexpr long greatest_length = 8192;

    // A length below 1 is the usual one, one above the greatest the greatest. A null handler is MVNK_Error
    // 1103, no memory MVNK_Memory_Exception 1101, "m_chars".
    explicit PX_IO_Buffer(PX_Smart_Pointer<PX_Error_Handler> handler);
    PX_IO_Buffer(PX_Smart_Pointer<PX_Error_Handler> handler, long length);
    PX_IO_Buffer(const PX_IO_Buffer&) = delete;
    PX_IO_Buffer& operator=(const PX_IO_Buffer&) = delete;

    long get_buffer_length() const { return m_buffer_length; }
    // False, and nothing is changed, while bytes are unsent. Otherwise an empty buffer of the new length,
    // unless that is the present one. No memory is MVNK_Memory_Exception 1101, "m_chars", and leaves a buffer
    // without length.
    bool set_buffer_length(long length);
    // All or nothing: false when there is no room. `length` is not negative.
    bool write_buffer(const char* bytes, long length) {
        assert(length >= 0);
        if (length > m_chars.get() + m_buffer_length - m_fill_position)
            return false;
        if (length > 0) {
            std::memcpy(m_fill_position, bytes, static_cast<std::size_t>(length));
            m_fill_position += length;
        }
        return true;
    }
    // The first of the unsent bytes; valid while the buffer is not changed.
    const char* unsent() const { return m_unsent_position; }
    // At most as far as bytes are unsent.
    void advance_unsent_position(long length);
    // Of the unsent bytes.
    long get_buffer_fill_size() const { return static_cast<long>(m_fill_position - m_unsent_position); }
    void clear_buffer();

private:
    void allocate(long length, const wchar_t* function);

    // Held as long as the buffer is.
    PX_Smart_Pointer<PX_Error_Handler> m_error_handler;
    std::unique_ptr<char[]> m_chars;
    char* m_unsent_position = nullptr;
    char* m_fill_position = nullptr;
    long m_buffer_length = 0;
};
