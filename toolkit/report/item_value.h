#pragma once

#include <string>
#include <variant>

#include "toolkit/marvcon/marvcon.h"

// The value of a custom item, out of its class; the first for an item without one, or of a class that is none
// of the five.
using PX_Item_Value = std::variant<std::monostate, std::wstring, long, double, bool, PX_Dev_String>;

// A copy of what the item has.
PX_Item_Value px_item_value_of(const PX_Custom_Config_Item& item);
