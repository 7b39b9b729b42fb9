#pragma once

#include <cstddef>
#include <string_view>

#include "toolkit/platform/platform.h"
#include "toolkit/platform/win_types.h"

// What each real back end defines: the machine's own platform, and the call that is made when the toolkit's
// module is unloaded or the process ends, after the host's own objects are gone.
PX_Platform& px_native_platform();
void px_call_at_unload(void (*function)());

// What the back ends share, so that a program cannot tell them apart by the edges.

// The bits of the floating-point control word that the toolkit deals with.
inline constexpr unsigned int px_fp_exceptions = 0x0008001F;
inline constexpr unsigned int px_fp_rounding = 0x00000300;
inline constexpr unsigned int px_fp_denormals = 0x03000000;
inline constexpr unsigned int px_fp_bits = px_fp_exceptions | px_fp_rounding | px_fp_denormals;

// The characters copied; the terminator takes one of the `size`, which is at least 1.
inline std::size_t px_copy_cut(std::wstring_view text, wchar_t* copy, std::size_t size) {
    const std::size_t copied = text.copy(copy, size - 1);
    copy[copied] = L'\0';
    return copied;
}

// The result of LoadStringW; an empty text is one that does not exist.
inline int px_give_text(std::wstring_view text, wchar_t* copy, int size) {
    return copy && size > 0 ? static_cast<int>(px_copy_cut(text, copy, static_cast<std::size_t>(size))) : 0;
}

// The result of GetModuleFileNameW; an empty path is one that could not be had.
inline DWORD px_give_path(std::wstring_view path, wchar_t* copy, DWORD size) {
    if (path.empty() || !copy || size == 0)
        return 0;
    const std::size_t copied = px_copy_cut(path, copy, size);
    return copied < path.size() ? size : static_cast<DWORD>(copied);
}

// The record of a version as it is here, or as Windows counts it.
inline bool px_is_version_record(const OSVERSIONINFOW* version) {
    return version &&
           (version->dwOSVersionInfoSize == sizeof *version || version->dwOSVersionInfoSize == 276);
}

// The answer that ends the matter, for a box that nobody can answer.
inline int px_ending_answer(UINT type) {
    switch (type & MB_TYPEMASK) {
        case MB_OKCANCEL:
            return IDCANCEL;
        case MB_ABORTRETRYIGNORE:
            return IDABORT;
        default:
            return IDOK;
    }
}
