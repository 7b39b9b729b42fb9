#pragma once

#include <string>
#include <variant>

#include "toolkit/marvcon/marvcon.h"

// The value of a custom item, out of its class; the first for an item without one, or of a class that is none
// of the five.
using PX_Item_Value = std::variant<std::monostate, std::wstring, long, double, bool, PX_Dev_String>;

// A copy of what the item has.
PX_Item_Value px_item_value_of(const PX_Custom_Config_Item& item);

// Makes one function of several, by the kind of the value.
template <class... Functions>
struct PX_By_Kind : Functions... {
    using Functions::operator()...;
};
// The kinds are those of the functions.
template <class... Functions>
PX_By_Kind(Functions...) -> PX_By_Kind<Functions...>;
