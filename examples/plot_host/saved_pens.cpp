#include "examples/plot_host/saved_rows.h"
#include "toolkit/report.h"

namespace plot_host {
namespace {

json write_color(const PX_Pen& pen) {
    return px_word_of(pen.get_pen_color().get());
}

void read_color(const Field& field, PX_Pen& pen) {
    const auto color = px_color_of(field.text());
    if (!color)
        field.reject("is no colour such as \"#00a0c8\"");
    pen.set_pen_color(&*color);
}

// The pen itself would take the least value instead and fail.
template <auto get, auto set, int least>
constexpr Row<PX_Pen> limited_row(const char* key) {
    constexpr auto read = [](const Field& field, PX_Pen& pen) {
        const auto number = field.number<float>();
        if (number < float{least})
            field.reject("is below " + std::to_string(least));
        (pen.*set)(number);
    };
    return {key, write_value<get>, read};
}

constexpr Row<PX_Pen> pen_rows[] = {
    value_row<&PX_Pen::get_canonical_name, &PX_Pen::set_canonical_name>("name"),
    value_row<&PX_Pen::get_localized_name, &PX_Pen::set_localized_name>("localized_name"),
    {"color", write_color, read_color},
    limited_row<&PX_Pen::get_pen_width, &PX_Pen::set_pen_width, -1>("width"),
    limited_row<&PX_Pen::get_pen_speed, &PX_Pen::set_pen_speed, 0>("speed"),
};

using Pens = PX_PhysPen_Configuration;

json write_list(const Pens& pens) {
    const auto list = pens.get_physical_pen_list();
    if (!list)
        return nullptr;
    json written = json::array();
    for (const auto& pen : *list) {
        if (pen)
            write_rows(pen_rows, *pen, written.emplace_back());
    }
    return written;
}

void read_list(const Field& field, Pens& pens) {
    if (field.is_null()) {
        pens.set_physical_pen_list(nullptr);
        return;
    }
    PX_Named_Object_List<PX_Pen> list;
    for (const Field& element : field.elements()) {
        const Field::Members members = element.members(keys_of(pen_rows));
        element.required(members, "name");
        const auto pen = made<PX_Pen>(new PX_Std_Pen, L"pen");
        read_rows(pen_rows, members, *pen);
        list.append(pen);
    }
    pens.set_physical_pen_list(&list);
}

// A list that was right for another number is to be looked at again.
void read_number(const Field& field, Pens& pens) {
    pens.set_number_of_physical_pens(field.whole_number<std::int32_t>());
    pens.set_one_validated(false, PX_Pen_Config_Flags::Pen_Config_List);
}

constexpr Row<Pens> rows[] = {
    {"number", write_value<&Pens::get_number_of_physical_pens>, read_number},
    value_row<&Pens::get_pen_changing_enable, &Pens::set_pen_changing_enable>("changing"),
    value_row<&Pens::get_area_fill_correction, &Pens::set_area_fill_correction>("area_fill_correction"),
    value_row<&Pens::get_pen_optimization, &Pens::set_pen_optimization>("optimization"),
    {"list", write_list, read_list},
};

}  // namespace

constexpr Saved_Domain saved_pens =
    domain_of_rows<&PX_Plotter_Configuration::get_phys_pen_configuration, rows>("pens");

}  // namespace plot_host
