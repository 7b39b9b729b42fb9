#include "examples/common/text.h"
#include "examples/plot_host/pen_words.h"
#include "examples/plot_host/report_data.h"

namespace plot_host {
namespace {

using Pens = PX_PhysPen_Configuration;
using Ability = PX_Pen_Ability_Flags;
using Cfg = PX_Pen_Config_Flags;
using Change = PX_Pen_Change;

Words words_of_list(const Pens& pens) {
    const auto list = pens.get_physical_pen_list();
    if (!list)
        return Words().text("(none)");
    Words words = Words().text(std::to_string(list->size()) + (list->size() == 1 ? " pen" : " pens"));
    for (const auto& pen : *list) {
        if (pen)
            words.text("\n" + text::on_one_line(text::to_utf8(pen->get_canonical_name())) + " ")
                .name(pen->get_localized_name())
                .text(" " + word_of(pen->get_pen_color().get()))
                .number(", width ", pen->get_pen_width())
                .number(", speed ", pen->get_pen_speed());
    }
    return words;
}

using Domain = Report_Domain<&PX_Plotter_Configuration::get_phys_pen_configuration,
                             &PX_Plotter_Capabilities::get_phys_pen_capabilities,
                             &PX_Plotter_Validator::get_phys_pen_cfg_changes>;

}  // namespace

std::vector<Datum> pens_data(const PX_Plotter_Configuration& /*configuration*/) {
    return {
        Domain::row<&Pens::get_number_of_physical_pens, Ability::Pen_Ability_Number, Cfg::Pen_Config_Number>(
            "Number of pens", Change::Number),
        Domain::row<words_of_list, Ability::Pen_Ability_List, Cfg::Pen_Config_List>("Pens", Change::List),
        Domain::row<&Pens::get_pen_changing_enable, Ability::Pen_Ability_Changing, Cfg::Pen_Config_Changing>(
            "Pen changing", Change::Changing),
        Domain::row<&Pens::get_area_fill_correction, Ability::Pen_Ability_Area_Fill,
                    Cfg::Pen_Config_Area_Fill>("Area fill correction", Change::Area_Fill),
        // Of its two abilities the one by which a run goes.
        Domain::row<&Pens::get_pen_optimization, Ability::Pen_Ability_Optimization_Check,
                    Cfg::Pen_Config_Optimization>("Pen optimization", Change::Optimization),
    };
}

}  // namespace plot_host
