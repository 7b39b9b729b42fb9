#include "toolkit/marvcon/std_init_term_cfg/dev_string.h"

#include <algorithm>

#include "toolkit/core/sp_pool.h"

void PX_Dev_String::assign(const unsigned char* bytes, long length) {
    unsigned char* copy = nullptr;
    std::int32_t copied = bytes ? static_cast<std::int32_t>(length) : 0;
    if (copied < 0)
        copied = 0;
    if (copied > 0) {
        copy = new unsigned char[static_cast<std::size_t>(copied)];
        std::copy_n(bytes, copied, copy);
    }
    free_bytes();
    m_bytes = copy;
    m_length = copied;
}

void PX_Dev_String::free_bytes() {
    // A buffer that the pool counts is somebody's counted object and is not ours to free.
    if (m_bytes && SPMP()->get_count(m_bytes) == -1)
        delete[] m_bytes;
}

bool operator==(const PX_Dev_String& a, const PX_Dev_String& b) {
    return std::equal(a.m_bytes, a.m_bytes + a.m_length, b.m_bytes, b.m_bytes + b.m_length);
}
