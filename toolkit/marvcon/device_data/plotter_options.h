#pragma once

#include "toolkit/host/options.h"
#include "toolkit/host/progress.h"

// Told how a plot gets on. What it answers is between the host and the driver.
using PX_Progress_Callback = bool(PX_Progress_Info*);

// The options of a plotter, read and written in a table that hosts find them in by name. They live in the
// table, which has to outlive this object; what somebody else sets there is read here. No memory for a new
// value is std::bad_alloc, and the old one stays.
class PX_EXPORT PX_Plotter_Options {
public:
    // Registers the options with the values of a new device. An option that the table has keeps its value;
    // one of another type reads as 0, false or null until it is set. No memory is std::bad_alloc, and the
    // options registered before stay.
    explicit PX_Plotter_Options(PX_Option_Table& table);

    // "Progress Callback"; null at the start.
    PX_Progress_Callback* progress_callback() const {
        return m_progress_callback->get().get_pointer<PX_Progress_Callback>();
    }
    void set_progress_callback(PX_Progress_Callback* callback) { m_progress_callback->set(callback); }

    // "True Arcs"; 0 at the start. Stored as 32 bits.
    long true_arcs() const { return m_true_arcs->get().get_long(); }
    void set_true_arcs(long arcs) { m_true_arcs->set(arcs); }

    // "Tessellation Multiplier"; 1 at the start.
    float tessellation_multiplier() const { return m_tessellation_multiplier->get().get_float(); }
    void set_tessellation_multiplier(float factor) { m_tessellation_multiplier->set(factor); }

    // "Fat Dots As Squares"; true at the start.
    bool fat_dots_as_squares() const { return m_fat_dots_as_squares->get().get_bool(); }
    void set_fat_dots_as_squares(bool on) { m_fat_dots_as_squares->set(on); }

    // "Gradiants As Polytriangles", spelt as hosts look for it; false at the start.
    bool gradiants_as_polytriangles() const { return m_gradiants_as_polytriangles->get().get_bool(); }
    void set_gradiants_as_polytriangles(bool on) { m_gradiants_as_polytriangles->set(on); }

private:
    PX_Option* m_progress_callback;
    PX_Option* m_true_arcs;
    PX_Option* m_tessellation_multiplier;
    PX_Option* m_fat_dots_as_squares;
    PX_Option* m_gradiants_as_polytriangles;
};
