#pragma once

#include <vector>

#include "fuzz/support.h"
#include "toolkit/marvcon/marvcon.h"

namespace fuzz {

using Bytes = std::vector<unsigned char>;

inline Bytes bytes(Input& input, int most) {
    Bytes result(static_cast<std::size_t>(input.up_to(most)));
    for (unsigned char& each : result)
        each = input.rarely(2) ? input.byte() : static_cast<unsigned char>(input.up_to(2));
    return result;
}

// A value of one of the five classes, or none.
inline PX_Smart_Pointer<PX_Custom_Data> custom_value(Input& input) {
    switch (input.up_to(5)) {
        case PX_Data_Type::Data_String:
            return new PX_Std_String_Custom_Data(input.flag() ? input.name_or_null() : input.text(6).c_str());
        case PX_Data_Type::Data_Long:
            return new PX_Std_Long_Custom_Data(input.number());
        case PX_Data_Type::Data_Double:
            return new PX_Std_Double_Custom_Data(static_cast<double>(input.real()));
        case PX_Data_Type::Data_Boolean:
            return new PX_Std_Boolean_Custom_Data(input.flag());
        case PX_Data_Type::Data_Raw: {
            const Bytes raw = bytes(input, 6);
            return new PX_Std_Raw_Custom_Data(static_cast<long>(raw.size()), raw.data());
        }
        default:
            return nullptr;
    }
}

}  // namespace fuzz
