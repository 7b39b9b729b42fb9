#include "toolkit/platform/posix/last_error.h"

#include "toolkit/platform/back_end.h"
#include "toolkit/platform/utf8.h"

void PX_Last_Error::keep(std::wstring_view text) {
    const std::lock_guard lock(m_lock);
    px_copy_cut(text, m_text, capacity);
}

void PX_Last_Error::copy_to(wchar_t* text, std::size_t size) const {
    const std::lock_guard lock(m_lock);
    px_copy_cut(m_text, text, size);
}

void PX_Last_Error::tell(const wchar_t* name, const char* reason) noexcept {
    wchar_t text[capacity];
    std::size_t length = 0;
    const auto put = [&](wchar_t c) {
        if (length < capacity)
            text[length++] = c;
    };
    for (const wchar_t c : std::wstring_view(name ? name : L""))
        put(c);
    if (length > 0) {
        put(L':');
        put(L' ');
    }
    px_put_wide(reason, put);
    keep({text, length});
}
