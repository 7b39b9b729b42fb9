#pragma once

#include <span>
#include <string>
#include <string_view>

#include "examples/plot_host/report.h"

// The rows of the report, a file for each domain.
namespace plot_host {

struct State {
    PX_Ability_Value::Enum ability;
    bool validated;
    bool is_default;
};

// A row of the report: a later domain adds a maker of rows as init_term_row is one, and its rows to the
// list.
struct Datum {
    const char* name;
    Value (*value)(const PX_Plotter_Configuration&);
    State (*state)(const PX_Plotter_Capabilities&, const PX_Plotter_Configuration&);
    long (PX_Plotter_Validator::*change_word)() const;
    long change_bit;  // 0 in a domain that raises none
};

std::span<const Datum> media_data();
std::span<const Datum> color_data();
std::span<const Datum> output_data();
std::span<const Datum> init_term_data();

// Enough digits to tell any two numbers apart; `shown` has those that a person reads.
struct Words {
    std::string exact;
    std::string shown;

    Words& name(const wchar_t* text);
    Words& number(const char* before, double value);
    Words& bounds(const PX_Float_Rectangle& value);
    Words& extent(const char* before, const PX_Float_XY& value);
    // The same to compare and to read.
    Words& text(std::string_view text);
};

}  // namespace plot_host
