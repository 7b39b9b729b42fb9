#pragma once

#include "toolkit/core/flag_accessors.h"
#include "toolkit/host/object.h"
#include "toolkit/marvcon/std_phys_pen_cfg/interface.h"

class PX_EXPORT PX_Std_PhysPen_Capabilities
    : public PX_Owner_Accessors<
          PX_State_Accessors<PX_Ability_Accessors<PX_PhysPen_Capabilities, PX_PhysPens_Abilities>,
                             PX_PhysPens_Caps_State>,
          PX_PhysPen_UI_Owner>,
      public PX_Object {
public:
    long get_max_number_of_physical_pens() const override { return m_device.max_number_of_physical_pens; }
    bool get_programmable_pen_widths() const override { return m_device.programmable_pen_widths; }
    bool get_programmable_pen_speeds() const override { return m_device.programmable_pen_speeds; }
    bool get_hardware_polygon_fills() const override { return m_device.hardware_polygon_fills; }
    bool get_area_fill_correction() const override { return m_device.area_fill_correction; }
    float get_max_pen_width() const override { return m_device.max_pen_width; }
    float get_min_pen_width() const override { return m_device.min_pen_width; }
    float get_max_pen_speed() const override { return m_device.max_pen_speed; }
    float get_min_pen_speed() const override { return m_device.min_pen_speed; }
    int get_max_pen_optimization() const override { return m_device.max_pen_optimization; }
    long get_default_num_of_phys_pens() const override { return m_device.default_num_of_phys_pens; }
    float get_default_pen_width() const override { return m_device.default_pen_width; }
    float get_default_pen_speed() const override { return m_device.default_pen_speed; }
    int get_default_pen_optimization() const override { return m_device.default_pen_optimization; }

    void set_max_number_of_physical_pens(long number) override;
    void set_programmable_pen_widths(bool on) override { m_device.programmable_pen_widths = on; }
    void set_programmable_pen_speeds(bool on) override { m_device.programmable_pen_speeds = on; }
    void set_hardware_polygon_fills(bool on) override { m_device.hardware_polygon_fills = on; }
    void set_area_fill_correction(bool on) override { m_device.area_fill_correction = on; }
    void set_max_pen_width(float width) override;
    void set_min_pen_width(float width) override;
    void set_max_pen_speed(float speed) override;
    void set_min_pen_speed(float speed) override;
    void set_max_pen_optimization(int level) override;
    void set_default_num_of_phys_pens(long number) override;
    void set_default_pen_width(float width) override;
    void set_default_pen_speed(float speed) override;
    void set_default_pen_optimization(int level) override;

    PX_PhysPen_Capabilities* clone() const override;

private:
    struct Device {
        long max_number_of_physical_pens = 0;
        bool programmable_pen_widths = false;
        bool programmable_pen_speeds = false;
        bool hardware_polygon_fills = false;
        bool area_fill_correction = false;
        float max_pen_width = 1.0F;
        float min_pen_width = 0;
        float max_pen_speed = 100.0F;
        float min_pen_speed = 0;
        int max_pen_optimization = 0;
        long default_num_of_phys_pens = 0;
        float default_pen_width = 0;
        float default_pen_speed = 0;
        int default_pen_optimization = 0;
    };

    Device m_device;
};
