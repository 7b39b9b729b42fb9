#include "toolkit/marvcon/device_data/plotter_options.h"

namespace {

PX_Option* registered(PX_Option_Table& table, const wchar_t* name, const PX_Option_Value& value) {
    return table.add(PX_Option(name, PX_Option_Enum::Scope_0, value));
}

}  // namespace

PX_Plotter_Options::PX_Plotter_Options(PX_Option_Table& table)
    : m_progress_callback(registered(table, L"Progress Callback", nullptr)),
      m_true_arcs(registered(table, L"True Arcs", 0L)),
      m_tessellation_multiplier(registered(table, L"Tessellation Multiplier", 1.0F)),
      m_fat_dots_as_squares(registered(table, L"Fat Dots As Squares", true)),
      m_gradiants_as_polytriangles(registered(table, L"Gradiants As Polytriangles", false)) {
}
