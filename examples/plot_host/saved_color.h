#pragma once

#include "examples/plot_host/saved_field.h"

namespace plot_host {

// The data of resolution, colour and memory of a choice, and the snapshot of what the names stood for. A
// datum that is not named keeps what the configuration holds. What is wrong with a field is thrown as it is
// by Field.
void read_saved_color(const Field& domain, const PX_Plotter_Configuration& into);
json write_saved_color(const PX_Plotter_Configuration& choice);

}  // namespace plot_host
