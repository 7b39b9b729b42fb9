#pragma once

#include <string>
#include <variant>

#include "toolkit/marvcon/marvcon.h"

// The value of a custom item, out of its class; the first for an item without one.
using Custom_Value = std::variant<std::monostate, std::wstring, long, double, bool, PX_Dev_String>;

Custom_Value value_of(const PX_Custom_Config_Item& item);

// Makes one function of several, by the kind of the value.
template <class... Functions>
struct By_Kind : Functions... {
    using Functions::operator()...;
};
template <class... Functions>
By_Kind(Functions...) -> By_Kind<Functions...>;
