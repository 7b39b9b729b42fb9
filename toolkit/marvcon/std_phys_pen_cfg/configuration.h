#pragma once

#include "toolkit/core/fields.h"
#include "toolkit/core/flag_accessors.h"
#include "toolkit/host/object.h"
#include "toolkit/marvcon/std_phys_pen_cfg/interface.h"

// A new one holds an empty list.
class PX_EXPORT PX_Std_PhysPen_Configuration
    : public PX_Configuration_Accessors<PX_PhysPen_Configuration, PX_PhysPens_Default, PX_PhysPens_Validated>,
      public PX_Object {
public:
    // No memory for the list is std::bad_alloc.
    PX_Std_PhysPen_Configuration() = default;
    // A copy would share the list: clone is the operation that copies.
    PX_Std_PhysPen_Configuration(const PX_Std_PhysPen_Configuration&) = delete;
    PX_Std_PhysPen_Configuration& operator=(const PX_Std_PhysPen_Configuration&) = delete;

    PX_Smart_Pointer<PX_Named_Object_List<PX_Pen>> get_physical_pen_list() const override {
        return m_physical_pen_list;
    }
    long get_number_of_physical_pens() const override { return m_number_of_physical_pens; }
    bool get_pen_changing_enable() const override { return m_pen_changing_enable; }
    bool get_area_fill_correction() const override { return m_area_fill_correction; }
    int get_pen_optimization() const override { return m_pen_optimization; }

    void set_physical_pen_list(const PX_Named_Object_List<PX_Pen>* list) override;
    void set_number_of_physical_pens(long number) override;
    void set_pen_changing_enable(bool on) override;
    void set_area_fill_correction(bool on) override;
    void set_pen_optimization(int level) override;

    PX_PhysPen_Configuration* clone() const override;

private:
    PX_Smart_Pointer<PX_Named_Object_List<PX_Pen>> m_physical_pen_list = px_new_list<PX_Pen>();
    long m_number_of_physical_pens = 0;
    bool m_pen_changing_enable = false;
    bool m_area_fill_correction = false;
    int m_pen_optimization = 0;
};
