#pragma once

#include <cstdint>

#include "toolkit/host/export.h"

// Bytes for the device, of any value, 0 too. An empty string has a null pointer and length 0.
class PX_EXPORT PX_Dev_String {
public:
    PX_Dev_String() = default;
    // Copies the bytes. A null pointer or a length below 1 is the empty string.
    PX_Dev_String(const unsigned char* bytes, long length) { assign(bytes, length); }
    PX_Dev_String(const PX_Dev_String& other) { assign(other.m_bytes, other.m_length); }
    PX_Dev_String& operator=(const PX_Dev_String& other) {
        assign(other.m_bytes, other.m_length);
        return *this;
    }
    ~PX_Dev_String() { free_bytes(); }

    // Frees the old bytes and copies the new ones, which may lie in the old.
    void assign(const unsigned char* bytes, long length);

    // Not terminated; null for the empty string.
    const unsigned char* data() const { return m_bytes; }
    // In bytes.
    long length() const { return m_length; }

    friend PX_EXPORT bool operator==(const PX_Dev_String& a, const PX_Dev_String& b);

private:
    void free_bytes();

    unsigned char* m_bytes = nullptr;
    std::int32_t m_length = 0;
};
