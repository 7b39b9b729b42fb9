#pragma once

#include "toolkit/host/object.h"
#include "toolkit/marvcon/std_plotter_def/interface.h"

class PX_EXPORT PX_Std_Plotter_Capabilities : public PX_Plotter_Capabilities, public PX_Object {
public:
    PX_Std_Plotter_Capabilities();
    // A copy would share the domains: clone is the operation that copies.
    PX_Std_Plotter_Capabilities(const PX_Std_Plotter_Capabilities&) = delete;
    PX_Std_Plotter_Capabilities& operator=(const PX_Std_Plotter_Capabilities&) = delete;
    ~PX_Std_Plotter_Capabilities() override;

    PX_Smart_Pointer<PX_Media_Capabilities> get_media_capabilities() const override;
    PX_Smart_Pointer<PX_Plotter_IO_Capabilities> get_io_capabilities() const override;
    PX_Smart_Pointer<PX_PhysPen_Capabilities> get_phys_pen_capabilities() const override;
    PX_Smart_Pointer<PX_Raster_Capabilities> get_raster_capabilities() const override;
    PX_Smart_Pointer<PX_Linetype_Capabilities> get_linetype_capabilities() const override;
    PX_Smart_Pointer<PX_ResColorMem_Capabilities> get_res_color_mem_capabilities() const override;
    PX_Smart_Pointer<PX_InitTerm_Capabilities> get_init_term_capabilities() const override;
    PX_Smart_Pointer<PX_Custom_Capabilities> get_custom_capabilities() const override;

    void set_media_capabilities(const PX_Media_Capabilities* capabilities) override;
    void set_io_capabilities(const PX_Plotter_IO_Capabilities* capabilities) override;
    void set_phys_pen_capabilities(const PX_PhysPen_Capabilities* capabilities) override;
    void set_raster_capabilities(const PX_Raster_Capabilities* capabilities) override;
    void set_linetype_capabilities(const PX_Linetype_Capabilities* capabilities) override;
    void set_res_color_mem_capabilities(const PX_ResColorMem_Capabilities* capabilities) override;
    void set_init_term_capabilities(const PX_InitTerm_Capabilities* capabilities) override;
    void set_custom_capabilities(const PX_Custom_Capabilities* capabilities) override;

    PX_Plotter_Capabilities* clone() const override;

private:
    PX_Smart_Pointer<PX_Media_Capabilities> m_media;
    PX_Smart_Pointer<PX_Plotter_IO_Capabilities> m_io;
    PX_Smart_Pointer<PX_PhysPen_Capabilities> m_phys_pen;
    PX_Smart_Pointer<PX_Raster_Capabilities> m_raster;
    PX_Smart_Pointer<PX_Linetype_Capabilities> m_linetype;
    PX_Smart_Pointer<PX_ResColorMem_Capabilities> m_res_color_mem;
    PX_Smart_Pointer<PX_InitTerm_Capabilities> m_init_term;
    PX_Smart_Pointer<PX_Custom_Capabilities> m_custom;
};
