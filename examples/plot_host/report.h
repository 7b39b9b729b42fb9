#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "toolkit/marvcon/marvcon.h"

namespace plot_host {

// A datum as it is compared and as a person reads it, in a line or in several.
struct Value {
    std::string exact;
    std::string shown;
    std::string name{};  // of the datum
};

// Every datum of a configuration, in the order of the report.
using Snapshot = std::vector<Value>;

Snapshot take_snapshot(const PX_Plotter_Configuration& configuration);

// What has become of each datum since `before`, a row a datum: kept, changed, or new where it was not there,
// and at the end those that are gone.
// Whether a value changed is seen from the values themselves: not every datum has a change bit.
void print_data(std::ostream& out, const PX_Plotter_Definition& device, const Snapshot& before);

// What the device has of what nobody chooses: its line patterns and how it wants its raster.
void print_unchosen(std::ostream& out, const PX_Plotter_Definition& device);

// What the plotter validator says of its last run; `answer` is that of validate_all.
void print_answer(std::ostream& out, const PX_Plotter_Validator& validator, bool answer);

// Printable ASCII as it is, other bytes as \x1b, a long string with its middle left out and its length.
std::string readable(const PX_Dev_String* string);

// In quotes and on one line; "(none)" for an empty name.
std::string quoted(const wchar_t* name);

}  // namespace plot_host
