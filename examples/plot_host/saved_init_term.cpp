#include "examples/plot_host/saved_rows.h"

namespace plot_host {
namespace {

using C = PX_InitTerm_Configuration;

// Of the setters under one name, that which takes a null too.
template <auto get, void (C::*set)(const PX_Dev_String*)>
constexpr Row<C> string_row(const char* key) {
    return value_row<get, set>(key);
}

constexpr Row<C> rows[] = {
    string_row<&C::get_preinit_string, &C::set_preinit_string>("preinit_string"),
    string_row<&C::get_postinit_string, &C::set_postinit_string>("postinit_string"),
    string_row<&C::get_termination_string, &C::set_termination_string>("termination_string"),
};

}  // namespace

constexpr Saved_Domain saved_init_term =
    domain_of_rows<&PX_Plotter_Configuration::get_init_term_configuration, rows>("init_term");

}  // namespace plot_host
