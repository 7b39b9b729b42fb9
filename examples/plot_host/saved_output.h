#pragma once

#include "examples/plot_host/saved_field.h"

namespace plot_host {

// The output data of a choice. A datum that is not named keeps what the configuration holds. What is wrong
// with a field is thrown as it is by Field.
void read_saved_output(const Field& domain, const PX_Plotter_Configuration& into);
json write_saved_output(const PX_Plotter_Configuration& choice);

}  // namespace plot_host
