#pragma once

#include "toolkit/host/device_data.h"
#include "toolkit/host/geometry.h"
#include "toolkit/marvcon/device_data/plotter_options.h"

// In what way a device needs a plot cut into bands. Drivers name the other values.
enum BandReqEnum : int { BandReq_None = 0 };

// What the host hands to the renderer of a plotter's driver: the plotter's options, and questions and news
// that a driver overrides where the answers of a plain plotter do not fit. Rectangles are in device units.
class PX_EXPORT PX_Plotter_Device_Data : public PX_Device_Data {
public:
    // No memory for the options is std::bad_alloc.
    PX_Plotter_Device_Data();
    ~PX_Plotter_Device_Data() override;

    // No banding.
    virtual BandReqEnum get_banding_requirements(long, long, PX_Int_Rectangle) { return BandReq_None; }
    // False: there is no band, and the rectangle stays as it is.
    virtual bool get_banding_rectangle(const PX_Int_Rectangle*, PX_Int_Rectangle&) { return false; }
    virtual bool can_alpha_blend() const { return false; }
    virtual bool is_preplot_pass() const { return false; }
    virtual void set_current_viewport_bounds(const PX_Int_Rectangle&) {}
    virtual void set_true_bounds(long, long, long, long) {}
    // A text in a font of the system; what follows the length is between the host and the driver.
    virtual void truetype_text_info(const PX_Int_Rectangle*, const unsigned short*, int, ...) {}
    virtual bool get_tessellate_text_to_triangles() const { return true; }
    // False at the start.
    virtual void set_plot_transparency(bool on) { m_plot_transparency = on; }
    virtual bool get_plot_transparency() const { return m_plot_transparency; }

    // On get_options() and on get_current_options().
    PX_Plotter_Options& get_plotter_options() { return m_plotter_options; }
    const PX_Plotter_Options& get_plotter_options() const { return m_plotter_options; }
    PX_Plotter_Options& get_current_plotter_options() { return m_current_plotter_options; }
    const PX_Plotter_Options& get_current_plotter_options() const { return m_current_plotter_options; }

private:
    PX_Plotter_Options m_plotter_options;
    PX_Plotter_Options m_current_plotter_options;
    bool m_plot_transparency = false;
};
