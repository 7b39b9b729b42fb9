#include "toolkit/marvcon/std_phys_pen_cfg/configuration.h"

#include "toolkit/core/clamps.h"

using Datum = PX_Pen_Config_Flags;

namespace {

constexpr const wchar_t* file_tag = px_std_phys_pen_cfg_source.file_tag;

}  // namespace

PX_PhysPen_Configuration::~PX_PhysPen_Configuration() = default;

void PX_Std_PhysPen_Configuration::set_physical_pen_list(const PX_Named_Object_List<PX_Pen>* list) {
    px_store_list(m_physical_pen_list, list, L"PX_Std_PhysPen_Configuration::set_physical_pen_list",
                  L"m_physical_pen_list", file_tag);
    clear_flags_of(Datum::Pen_Config_List);
}

void PX_Std_PhysPen_Configuration::set_number_of_physical_pens(long number) {
    m_number_of_physical_pens = px_not_negative(number);
    clear_flags_of(Datum::Pen_Config_Number);
}

void PX_Std_PhysPen_Configuration::set_pen_changing_enable(bool on) {
    m_pen_changing_enable = on;
    clear_flags_of(Datum::Pen_Config_Changing);
}

void PX_Std_PhysPen_Configuration::set_area_fill_correction(bool on) {
    m_area_fill_correction = on;
    clear_flags_of(Datum::Pen_Config_Area_Fill);
}

void PX_Std_PhysPen_Configuration::set_pen_optimization(int level) {
    m_pen_optimization = px_not_negative(level);
    clear_flags_of(Datum::Pen_Config_Optimization);
}

PX_PhysPen_Configuration* PX_Std_PhysPen_Configuration::clone() const {
    return px_clone<PX_Std_PhysPen_Configuration>(
        L"PX_Std_PhysPen_Configuration::clone", file_tag, [this](auto& new_one) {
            new_one.set_physical_pen_list(m_physical_pen_list.get());
            new_one.set_number_of_physical_pens(m_number_of_physical_pens);
            new_one.set_pen_changing_enable(m_pen_changing_enable);
            new_one.set_area_fill_correction(m_area_fill_correction);
            new_one.set_pen_optimization(m_pen_optimization);
            // After the setters, which clear them.
            copy_flags_to(new_one);
        });
}
