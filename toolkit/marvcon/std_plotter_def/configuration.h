#pragma once

#include "toolkit/host/object.h"
#include "toolkit/marvcon/std_plotter_def/interface.h"

class PX_EXPORT PX_Std_Plotter_Configuration : public PX_Plotter_Configuration, public PX_Object {
public:
    PX_Std_Plotter_Configuration();
    // A copy would share the domains: clone is the operation that copies.
    PX_Std_Plotter_Configuration(const PX_Std_Plotter_Configuration&) = delete;
    PX_Std_Plotter_Configuration& operator=(const PX_Std_Plotter_Configuration&) = delete;
    ~PX_Std_Plotter_Configuration() override;

    PX_Smart_Pointer<PX_Media_Configuration> get_media_configuration() const override;
    PX_Smart_Pointer<PX_Plotter_IO_Configuration> get_io_configuration() const override;
    PX_Smart_Pointer<PX_ResColorMem_Configuration> get_res_color_mem_configuration() const override;
    PX_Smart_Pointer<PX_InitTerm_Configuration> get_init_term_configuration() const override;
    PX_Smart_Pointer<PX_PhysPen_Configuration> get_phys_pen_configuration() const override;
    PX_Smart_Pointer<PX_Custom_Configurations> get_custom_configuration() const override;

    bool get_validated() const override;
    bool get_default() const override;

    void set_media_configuration(const PX_Media_Configuration* configuration) override;
    void set_io_configuration(const PX_Plotter_IO_Configuration* configuration) override;
    void set_res_color_mem_configuration(const PX_ResColorMem_Configuration* configuration) override;
    void set_init_term_configuration(const PX_InitTerm_Configuration* configuration) override;
    void set_phys_pen_configuration(const PX_PhysPen_Configuration* configuration) override;
    void set_custom_configuration(const PX_Custom_Configurations* configuration) override;

    PX_Plotter_Configuration* clone() const override;

private:
    PX_Smart_Pointer<PX_Media_Configuration> m_media;
    PX_Smart_Pointer<PX_Plotter_IO_Configuration> m_io;
    PX_Smart_Pointer<PX_ResColorMem_Configuration> m_res_color_mem;
    PX_Smart_Pointer<PX_InitTerm_Configuration> m_init_term;
    PX_Smart_Pointer<PX_PhysPen_Configuration> m_phys_pen;
    PX_Smart_Pointer<PX_Custom_Configurations> m_custom;
};
