#pragma once

#include <array>
#include <iterator>
#include <string>

#include "toolkit/marvcon/std_io_cfg/values.h"

// How serial lines frame their characters, and the names that protocols have by it.

// One value: the bit it has in what a serial line can be set to, and its part of the name.
template <class Value>
struct PX_Line_Setting {
    unsigned long mask;
    Value value;
    const wchar_t* text;
};

// Each table is in the order of its values, of which the first is 0.
inline constexpr PX_Line_Setting<PX_Data_Bits::Enum> px_data_bits[] = {
    {1, PX_Data_Bits::Data_Bits_5, L"5"},    {2, PX_Data_Bits::Data_Bits_6, L"6"},
    {4, PX_Data_Bits::Data_Bits_7, L"7"},    {8, PX_Data_Bits::Data_Bits_8, L"8"},
    {16, PX_Data_Bits::Data_Bits_16, L"16"}, {32, PX_Data_Bits::Data_Bits_16X, L"16X"},
};
// The letters are those of canonical names; the user's language may have others.
inline constexpr PX_Line_Setting<PX_Parity::Enum> px_parities[] = {
    {256, PX_Parity::Parity_None, L"N"},   {512, PX_Parity::Parity_Odd, L"O"},
    {1024, PX_Parity::Parity_Even, L"E"},  {2048, PX_Parity::Parity_Mark, L"M"},
    {4096, PX_Parity::Parity_Space, L"S"},
};
// Their masks share one word with those of the parities.
inline constexpr PX_Line_Setting<PX_Stop_Bits::Enum> px_stop_bits[] = {
    {1, PX_Stop_Bits::Stop_Bits_1, L"1"},
    {2, PX_Stop_Bits::Stop_Bits_1_5, L"1.5"},
    {4, PX_Stop_Bits::Stop_Bits_2, L"2"},
};

// One way to frame a character.
struct PX_Framing {
    PX_Line_Setting<PX_Data_Bits::Enum> bits;
    PX_Line_Setting<PX_Parity::Enum> parity;
    PX_Line_Setting<PX_Stop_Bits::Enum> stop;

    // The canonical name of its protocol, such as "8N1".
    std::wstring name() const { return name(parity.text); }
    // The name with another text for the parity.
    std::wstring name(const wchar_t* parity_letter) const {
        return std::wstring(bits.text).append(parity_letter).append(stop.text);
    }
};

// All there are, from 5N1 to 16XS2: the stop bits change first, the data bits last. No port of a machine has
// a protocol of another name.
inline constexpr auto px_framings = [] {
    std::array<PX_Framing, std::size(px_data_bits) * std::size(px_parities) * std::size(px_stop_bits)>
        framings{};
    auto next = framings.begin();
    for (const auto& bits : px_data_bits) {
        for (const auto& parity : px_parities) {
            for (const auto& stop : px_stop_bits)
                *next++ = {bits, parity, stop};
        }
    }
    return framings;
}();
