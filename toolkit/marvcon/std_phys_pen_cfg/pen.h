#pragma once

#include "toolkit/core/fields.h"
#include "toolkit/core/named_object.h"
#include "toolkit/marvcon/std_phys_pen_cfg/interface.h"

class PX_EXPORT PX_Std_Pen : public PX_Named_Pair<PX_Pen, PX_Std_Pen> {
public:
    static constexpr PX_Naming naming = PX_NAMING(L"PX_Std_Pen", px_std_phys_pen_cfg_source);

    PX_Smart_Pointer<PX_RGB32> get_pen_color() const override { return m_pen_color; }
    float get_pen_width() const override { return m_pen_width; }
    float get_pen_speed() const override { return m_pen_speed; }
    void set_pen_color(const PX_RGB32* color) override;
    void set_pen_width(float width) override;
    void set_pen_speed(float speed) override;

    void copy_properties_to(PX_Pen& new_one) const;

private:
    PX_Smart_Pointer<PX_RGB32> m_pen_color{new PX_RGB32};
    float m_pen_width = 0;
    float m_pen_speed = 0;
};
