#include "toolkit/marvcon/std_phys_pen_cfg/validator.h"

#include "toolkit/core/distance.h"
#include "toolkit/marvcon/std_phys_pen_cfg/domain.h"
#include "toolkit/marvcon/std_plval/datum.h"

using Ability = PX_Pen_Ability_Flags;
using Change = PX_Pen_Change;
using Datum = PX_Pen_Config_Flags;
using Pen_Datum = PX_Datum<PX_Pen_Domain>;
using Strategy = PX_Validation_Strategy;

namespace {

// The default wins a tie.
bool is_default_nearest(long configured, long by_default, long most) {
    return px_distance_32(configured, most) >= px_distance_32(configured, by_default);
}

}  // namespace

PX_PhysPen_Validator::~PX_PhysPen_Validator() = default;

PX_Std_PhysPen_Validator::PX_Std_PhysPen_Validator(PX_Plotter_Definition* plotter) : m_plotter(plotter) {
}

void PX_Std_PhysPen_Validator::validate_num_phys_pens(Strategy::Enum strategy) {
    const Pen_Datum datum(m_plotter, L"PX_Std_PhysPen_Validator::validate_num_phys_pens");
    const long number = datum.configuration->get_number_of_physical_pens();
    if (number < 0 || number > datum.capabilities->get_max_number_of_physical_pens())
        datum.repair(Change::Number, [&] {
            strategy == Strategy::Use_Nearest ? set_num_phys_pens_to_nearest()
                                              : set_num_phys_pens_to_default();
        });
    datum.settle(Datum::Pen_Config_Number);
}

void PX_Std_PhysPen_Validator::validate_pen_optimization(Strategy::Enum strategy) {
    const Pen_Datum datum(m_plotter, L"PX_Std_PhysPen_Validator::validate_pen_optimization");
    const int level = datum.configuration->get_pen_optimization();
    if (level < 0 || level > datum.capabilities->get_max_pen_optimization())
        datum.repair(Change::Optimization, [&] {
            strategy == Strategy::Use_Nearest ? set_pen_optimization_to_nearest()
                                              : set_pen_optimization_to_default();
        });
    datum.settle(Datum::Pen_Config_Optimization);
}

// Enabled is for the device with a single holder, where somebody changes the pens.
void PX_Std_PhysPen_Validator::validate_pen_changing(Strategy::Enum /*strategy*/) {
    const Pen_Datum datum(m_plotter, L"PX_Std_PhysPen_Validator::validate_pen_changing");
    if (datum.configuration->get_pen_changing_enable() &&
        datum.capabilities->get_max_number_of_physical_pens() > 1)
        datum.repair(Change::Changing, [&] { set_pen_changing_to_default(); });
    datum.settle(Datum::Pen_Config_Changing);
}

void PX_Std_PhysPen_Validator::validate_area_fill_correction(Strategy::Enum /*strategy*/) {
    const Pen_Datum datum(m_plotter, L"PX_Std_PhysPen_Validator::validate_area_fill_correction");
    if (datum.configuration->get_area_fill_correction() && !datum.capabilities->get_area_fill_correction())
        datum.repair(Change::Area_Fill, [&] { set_area_fill_correction_to_default(); });
    datum.settle(Datum::Pen_Config_Area_Fill);
}

// The number before the list, which is made to fit it.
void PX_Std_PhysPen_Validator::validate_all_pen(Strategy::Enum strategy) {
    px_frame(L"PX_Std_PhysPen_Validator::validate_all_pen", [&] {
        validate_num_phys_pens(strategy);
        validate_pen_list(strategy);
        validate_pen_changing(strategy);
        validate_area_fill_correction(strategy);
        validate_pen_optimization(strategy);
    });
}

// The default is looked at before the abilities, which may leave the number alone.
void PX_Std_PhysPen_Validator::set_num_phys_pens_to_default() {
    const Pen_Datum datum(m_plotter, L"PX_Std_PhysPen_Validator::set_num_phys_pens_to_default");
    const long number = datum.capabilities->get_default_num_of_phys_pens();
    if (number > datum.capabilities->get_max_number_of_physical_pens())
        datum.fail(PX_Pen_Code::Default_Number);
    if (datum.is_above_none(Ability::Pen_Ability_Number) && datum.is_required(Ability::Pen_Ability_List))
        datum.configuration->set_number_of_physical_pens(number);
    datum.settle_default(Datum::Pen_Config_Number);
}

void PX_Std_PhysPen_Validator::set_pen_optimization_to_default() {
    const Pen_Datum datum(m_plotter, L"PX_Std_PhysPen_Validator::set_pen_optimization_to_default");
    const int level = datum.capabilities->get_default_pen_optimization();
    if (level > datum.capabilities->get_max_pen_optimization())
        datum.fail(PX_Pen_Code::Default_Optimization);
    if (datum.is_above_none(Ability::Pen_Ability_Optimization))
        datum.configuration->set_pen_optimization(level);
    datum.settle_default(Datum::Pen_Config_Optimization);
}

void PX_Std_PhysPen_Validator::set_pen_changing_to_default() {
    const Pen_Datum datum(m_plotter, L"PX_Std_PhysPen_Validator::set_pen_changing_to_default");
    if (datum.is_above_none(Ability::Pen_Ability_Changing))
        datum.configuration->set_pen_changing_enable(false);
    datum.settle_default(Datum::Pen_Config_Changing);
}

void PX_Std_PhysPen_Validator::set_area_fill_correction_to_default() {
    const Pen_Datum datum(m_plotter, L"PX_Std_PhysPen_Validator::set_area_fill_correction_to_default");
    if (datum.is_above_none(Ability::Pen_Ability_Area_Fill))
        datum.configuration->set_area_fill_correction(false);
    datum.settle_default(Datum::Pen_Config_Area_Fill);
}

void PX_Std_PhysPen_Validator::set_all_physpen_to_defaults() {
    px_frame(L"PX_Std_PhysPen_Validator::set_all_physpen_to_defaults", [&] {
        set_num_phys_pens_to_default();
        set_pen_list_to_default();
        set_pen_changing_to_default();
        set_area_fill_correction_to_default();
        set_pen_optimization_to_default();
    });
}

void PX_Std_PhysPen_Validator::set_num_phys_pens_to_nearest() {
    const Pen_Datum datum(m_plotter, L"PX_Std_PhysPen_Validator::set_num_phys_pens_to_nearest");
    const long most = datum.capabilities->get_max_number_of_physical_pens();
    if (is_default_nearest(datum.configuration->get_number_of_physical_pens(),
                           datum.capabilities->get_default_num_of_phys_pens(), most))
        datum.call([&] { set_num_phys_pens_to_default(); });
    else
        datum.configuration->set_number_of_physical_pens(most);
}

void PX_Std_PhysPen_Validator::set_pen_optimization_to_nearest() {
    const Pen_Datum datum(m_plotter, L"PX_Std_PhysPen_Validator::set_pen_optimization_to_nearest");
    const int most = datum.capabilities->get_max_pen_optimization();
    if (is_default_nearest(datum.configuration->get_pen_optimization(),
                           datum.capabilities->get_default_pen_optimization(), most))
        datum.call([&] { set_pen_optimization_to_default(); });
    else
        datum.configuration->set_pen_optimization(most);
}
