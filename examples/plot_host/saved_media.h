#pragma once

#include "examples/plot_host/saved_field.h"

namespace plot_host {

// The media data of a choice and the snapshot of what they stood for. A datum that is not named keeps what
// the configuration holds. What is wrong with a field is thrown as it is by Field.
void read_saved_media(const Field& domain, const PX_Plotter_Configuration& into);
json write_saved_media(const PX_Plotter_Configuration& choice);

}  // namespace plot_host
