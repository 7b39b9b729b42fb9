#pragma once

#include <vector>

#include "fuzz/support.h"
#include "toolkit/marvcon/marvcon.h"

namespace fuzz {

using Bytes = std::vector<unsigned char>;

inline Bytes bytes(Input& input, int most) {
    Bytes result(static_cast<std::size_t>(input.up_to(most)), 0);
    for (unsigned char& each : result)
        each = input.rarely(2) ? input.byte() : static_cast<unsigned char>(input.up_to(2));
    return result;
}

// With some characters that differ in one of their two bytes.
inline std::wstring wide_text(Input& input) {
    std::wstring text = input.text(6);
    for (wchar_t& each : text) {
        if (input.rarely(3))
            each = static_cast<wchar_t>(1 + input.up_to(2) + 256 * input.up_to(2));
    }
    return text;
}

// A value of one of the five classes, or none.
inline PX_Smart_Pointer<PX_Custom_Data> custom_value(Input& input) {
    switch (input.up_to(5)) {
        case 0:
            return new PX_Std_String_Custom_Data(input.flag() ? input.name_or_null()
                                                              : wide_text(input).c_str());
        case 1:
            return new PX_Std_Long_Custom_Data(input.number());
        case 2:
            return new PX_Std_Double_Custom_Data(static_cast<double>(input.real()));
        case 3:
            return new PX_Std_Boolean_Custom_Data(input.flag());
        case 4: {
            const Bytes raw = bytes(input, 6);
            return new PX_Std_Raw_Custom_Data(static_cast<long>(raw.size()), raw.data());
        }
        default:
            return nullptr;
    }
}

}  // namespace fuzz
