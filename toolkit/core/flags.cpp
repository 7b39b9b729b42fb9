#include "toolkit/core/flags.h"

#include <algorithm>
#include <cwchar>

#include "toolkit/core/exception.h"

void px_check_flag(int flag, const PX_Flag_Range& range) {
    if (flag < -1 || flag >= range.count)
        throw PX_Severe_Error(PX_Code::Out_Of_Range, range.header_path, range.enum_name);
}

PX_Flags::PX_Flags(int digits) {
    setNumFlags(digits);
}

void PX_Flags::set_flags(int value) {
    std::fill_n(m_flags.get(), m_num_flags, digit(value));
}

void PX_Flags::set_flags(const wchar_t* text) {
    const std::size_t length = text ? std::wcslen(text) : 0;
    if (length > 0 && static_cast<std::size_t>(m_num_flags) == length) {
        std::wmemmove(m_flags.get(), text, length);
        return;
    }
    auto copy = std::make_unique<wchar_t[]>(length + 1);
    std::copy_n(text, length, copy.get());
    m_flags = std::move(copy);
    m_num_flags = static_cast<int>(length);
}

void PX_Flags::setNumFlags(int digits) {
    if (digits < 0)
        return;
    const auto length = static_cast<std::size_t>(digits);
    auto text = std::make_unique<wchar_t[]>(length + 1);
    const int kept = std::min(digits, m_num_flags);
    std::copy_n(m_flags.get(), kept, text.get());
    std::fill_n(text.get() + kept, digits - kept, digit(0));
    m_flags = std::move(text);
    m_num_flags = digits;
}

bool PX_Boolean_Flags::get_flags(int n) const {
    for (int flag = 0; flag < n; ++flag) {
        if (!get_one(flag))
            return false;
    }
    return true;
}

void PX_Boolean_Flags::set_one(bool on, int flag) {
    if (flag < 0)
        return;
    const int bit = 1 << (flag % 4);
    const int value = get_flag(flag / 4);
    set_flag(flag / 4, on ? value | bit : value & ~bit);
}
