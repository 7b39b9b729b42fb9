#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "toolkit/marvcon/marvcon.h"

// The colour of a pen in reports and saved choices.
namespace plot_host {

// "#rrggbb"; with two digits more for an alpha that is not opaque. No colour is opaque black, as to the pen.
std::string word_of(const PX_RGB32* color);
std::optional<PX_RGB32> pen_color_of(std::string_view word);

}  // namespace plot_host
