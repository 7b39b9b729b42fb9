#pragma once

#include "toolkit/core/clamps.h"
#include "toolkit/host/object.h"
#include "toolkit/marvcon/std_res_color_mem_cfg/interface.h"

class PX_EXPORT PX_Std_ResColorMem_Settings : public PX_ResColorMem_Settings, public PX_Object {
public:
    PX_Std_ResColorMem_Settings() = default;
    // A copy would share the values: clone is the operation that copies.
    PX_Std_ResColorMem_Settings(const PX_Std_ResColorMem_Settings&) = delete;
    PX_Std_ResColorMem_Settings& operator=(const PX_Std_ResColorMem_Settings&) = delete;

    long get_num_colors() const override { return m_num_colors; }
    long get_color_depth() const override { return m_color_depth; }
    long get_num_undithered_colors() const override { return m_num_undithered_colors; }
    PX_Color_System::Enum get_color_system() const override { return m_color_system; }
    PX_Smart_Pointer<PX_Float_XY> get_phys_resolution_xy() const override { return m_phys_resolution_xy; }
    PX_Smart_Pointer<PX_Float_XY> get_addr_resolution_xy() const override { return m_addr_resolution_xy; }
    PX_Smart_Pointer<PX_Float_XY> get_effective_resolution_xy() const override {
        return m_effective_resolution_xy;
    }
    double get_printable_area() const override { return m_printable_area; }

    void set_num_colors(long colors) override { m_num_colors = px_not_negative(colors); }
    void set_color_depth(long depth) override { m_color_depth = px_not_negative(depth); }
    void set_num_undithered_colors(long colors) override { m_num_undithered_colors = colors; }
    void set_color_system(PX_Color_System::Enum system) override { m_color_system = system; }
    void set_phys_resolution_xy(const PX_Float_XY* resolution) override;
    void set_addr_resolution_xy(const PX_Float_XY* resolution) override;
    void set_effective_resolution_xy(const PX_Float_XY* resolution) override;
    void set_printable_area(double area) override { m_printable_area = area >= 0 ? area : 0; }

    void set_mem_area_settings(const PX_Mem_Area* area) override;
    void set_resolution_settings(const PX_Resolution* resolution) override;
    void set_rescolormem_settings(const PX_ResColorMem* rcm) override;

    PX_ResColorMem_Settings* clone() const override;

private:
    long m_num_colors = 0;
    long m_color_depth = 0;
    long m_num_undithered_colors = 0;
    PX_Color_System::Enum m_color_system = PX_Color_System::Color_System_0;
    PX_Smart_Pointer<PX_Float_XY> m_phys_resolution_xy{new PX_Float_XY};
    PX_Smart_Pointer<PX_Float_XY> m_addr_resolution_xy{new PX_Float_XY};
    PX_Smart_Pointer<PX_Float_XY> m_effective_resolution_xy{new PX_Float_XY};
    double m_printable_area = 0;
};
