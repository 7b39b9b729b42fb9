#include "toolkit/core/distance.h"
#include "toolkit/report/data.h"
#include "toolkit/report/text.h"
#include "toolkit/report/words.h"

namespace {

using Pens = PX_PhysPen_Configuration;
using Words = PX_Value_Words;
using Ability = PX_Pen_Ability_Flags;
using Cfg = PX_Pen_Config_Flags;
using Change = PX_Pen_Change;

Words words_of_list(const Pens& pens) {
    const auto list = pens.get_physical_pen_list();
    if (!list)
        return Words().text("(none)");
    Words words = Words().text(std::to_string(list->size()) + (list->size() == 1 ? " pen" : " pens"));
    for (const auto& pen : *list) {
        if (!pen)
            continue;
        // Blanks that are not shown tell names apart all the same.
        words.text("\n" + px_on_one_line(pen->get_canonical_name()) + " ")
            .unseen(Words().name(pen->get_canonical_name()))
            .name(pen->get_localized_name())
            .text(" " + px_word_of(pen->get_pen_color().get()))
            .number(", width ", pen->get_pen_width())
            .number(", speed ", pen->get_pen_speed());
    }
    return words;
}

// The number that is taken is the greatest or the default, whichever is nearer.
template <auto get>
std::optional<double> distance(const PX_Reported_Run& run) {
    const auto chosen = run.configuration.get_phys_pen_configuration();
    return px_distance_32((run.before.get_pens().*get)(), ((*chosen).*get)());
}

using Domain =
    PX_Report_Domain<PX_Domain_Mask::Phys_Pens, &PX_Plotter_Configuration::get_phys_pen_configuration,
                     &PX_Plotter_Capabilities::get_phys_pen_capabilities,
                     &PX_Plotter_Validator::get_phys_pen_cfg_changes>;

template <auto get, auto ability, auto flag>
PX_Report_Datum number_row(const char* name, long bits) {
    auto row = Domain::row<get, ability, flag>(name, bits, PX_Repair::To_Nearest);
    row.score = distance<get>;
    return row;
}

}  // namespace

std::vector<PX_Report_Datum> px_pen_data() {
    return {
        number_row<&Pens::get_number_of_physical_pens, Ability::Pen_Ability_Number, Cfg::Pen_Config_Number>(
            "Number of pens", Change::Number),
        Domain::row<words_of_list, Ability::Pen_Ability_List, Cfg::Pen_Config_List>("Pens", Change::List,
                                                                                    PX_Repair::By_Own_Rule),
        Domain::row<&Pens::get_pen_changing_enable, Ability::Pen_Ability_Changing, Cfg::Pen_Config_Changing>(
            "Pen changing", Change::Changing),
        Domain::row<&Pens::get_area_fill_correction, Ability::Pen_Ability_Area_Fill,
                    Cfg::Pen_Config_Area_Fill>("Area fill correction", Change::Area_Fill),
        // Of its two abilities the one by which a run goes.
        number_row<&Pens::get_pen_optimization, Ability::Pen_Ability_Optimization_Check,
                   Cfg::Pen_Config_Optimization>("Pen optimization", Change::Optimization),
    };
}
