#pragma once

#include "examples/plot_host/saved_field.h"

// The domains of a saved choice, a file each; saved_choice.cpp has the list of them.
namespace plot_host {

// A datum that is not named keeps what the configuration holds. What is wrong with a field is thrown as it is
// by Field.
struct Saved_Domain {
    const char* key;
    void (*read)(const Field& domain, const PX_Plotter_Configuration& into);
    json (*write)(const PX_Plotter_Configuration& choice);
};

extern const Saved_Domain saved_media;
extern const Saved_Domain saved_pens;
extern const Saved_Domain saved_color;
extern const Saved_Domain saved_output;
extern const Saved_Domain saved_init_term;
extern const Saved_Domain saved_custom;

}  // namespace plot_host
