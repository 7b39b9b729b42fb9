#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "toolkit/host/export.h"

// A wide text that owns its characters. A null pointer is the empty text wherever one is taken.
class PX_EXPORT PX_String {
public:
    PX_String() = default;
    PX_String(const wchar_t* text) : m_text(text ? text : L"") {}
    PX_String(std::wstring_view text) : m_text(text) {}
    PX_String(const std::wstring& text) : m_text(text) {}

    // Never null; valid until the text changes.
    const wchar_t* c_str() const { return m_text.c_str(); }
    operator const wchar_t*() const { return c_str(); }
    explicit operator bool() const = delete;  // the pointer is never null: ask is_empty
    // In characters, without the terminator.
    std::size_t length() const { return m_text.length(); }
    bool is_empty() const { return m_text.empty(); }

    PX_String& operator+=(const PX_String& tail) {
        m_text += tail.m_text;
        return *this;
    }
    friend PX_String operator+(PX_String head, const PX_String& tail) { return head += tail; }

    // Exact: by length, then character by character, case sensitive.
    friend bool operator==(const PX_String& a, const PX_String& b) { return a.m_text == b.m_text; }
    friend bool operator==(const PX_String& a, const wchar_t* b) { return a.m_text == (b ? b : L""); }
    friend bool operator<(const PX_String& a, const PX_String& b) { return a.m_text < b.m_text; }
    friend bool operator<(const PX_String& a, const wchar_t* b) { return a < PX_String(b); }
    friend bool operator<(const wchar_t* a, const PX_String& b) { return PX_String(a) < b; }

private:
    std::wstring m_text;
};
