#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "toolkit/marvcon/marvcon.h"

// The words of reports, saved choices and the command line for the ways out.
namespace plot_host {

// "none" for a number that is no type.
const char* word_of(PX_IO_Type::Enum type);
std::optional<PX_IO_Type::Enum> io_type_of(std::string_view word);

// Such as "XON/XOFF out, CTS out"; "none" for 0.
std::string handshake_words(long handshake);

}  // namespace plot_host
