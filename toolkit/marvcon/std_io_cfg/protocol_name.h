#pragma once

#include <string>

#include "toolkit/marvcon/std_io_cfg/values.h"

// What the name of a protocol is put together from.

// One value: the bit it has in what a serial line can be set to, and its part of the name.
template <class Value>
struct PX_Line_Setting {
    unsigned long mask;
    Value value;
    const wchar_t* text;
};

inline constexpr PX_Line_Setting<PX_Data_Bits::Enum> px_data_bits[] = {
    {1, PX_Data_Bits::Data_Bits_5, L"5"},    {2, PX_Data_Bits::Data_Bits_6, L"6"},
    {4, PX_Data_Bits::Data_Bits_7, L"7"},    {8, PX_Data_Bits::Data_Bits_8, L"8"},
    {16, PX_Data_Bits::Data_Bits_16, L"16"}, {32, PX_Data_Bits::Data_Bits_16X, L"16X"},
};
inline constexpr PX_Line_Setting<PX_Parity::Enum> px_parities[] = {
    {256, PX_Parity::Parity_None, L"N"},   {512, PX_Parity::Parity_Odd, L"O"},
    {1024, PX_Parity::Parity_Even, L"E"},  {2048, PX_Parity::Parity_Mark, L"M"},
    {4096, PX_Parity::Parity_Space, L"S"},
};
inline constexpr PX_Line_Setting<PX_Stop_Bits::Enum> px_stop_bits[] = {
    {1, PX_Stop_Bits::Stop_Bits_1, L"1"},
    {2, PX_Stop_Bits::Stop_Bits_1_5, L"1.5"},
    {4, PX_Stop_Bits::Stop_Bits_2, L"2"},
};

inline std::wstring px_protocol_name(const wchar_t* data_bits, const wchar_t* parity_letter,
                                     const wchar_t* stop_bits) {
    return std::wstring(data_bits).append(parity_letter).append(stop_bits);
}
