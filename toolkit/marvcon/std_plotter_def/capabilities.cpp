#include "toolkit/marvcon/std_plotter_def/capabilities.h"

#include "toolkit/core/clone.h"
#include "toolkit/core/fields.h"
#include "toolkit/marvcon/std_custom_cfg/interface.h"
#include "toolkit/marvcon/std_init_term_cfg/interface.h"
#include "toolkit/marvcon/std_io_cfg/interface.h"
#include "toolkit/marvcon/std_linetype_caps/interface.h"
#include "toolkit/marvcon/std_media_cfg/interface.h"
#include "toolkit/marvcon/std_phys_pen_cfg/interface.h"
#include "toolkit/marvcon/std_raster_caps/interface.h"
#include "toolkit/marvcon/std_res_color_mem_cfg/interface.h"

namespace {

template <class Domain>
void store(PX_Smart_Pointer<Domain>& field, const Domain* capabilities, const wchar_t* function) {
    px_store_clone(field, capabilities, function, L"capabilities", px_std_plotter_def_source.file_tag);
}

}  // namespace

PX_Plotter_Capabilities::~PX_Plotter_Capabilities() = default;

PX_Std_Plotter_Capabilities::PX_Std_Plotter_Capabilities() = default;
PX_Std_Plotter_Capabilities::~PX_Std_Plotter_Capabilities() = default;

PX_Smart_Pointer<PX_Media_Capabilities> PX_Std_Plotter_Capabilities::get_media_capabilities() const {
    return m_media;
}

PX_Smart_Pointer<PX_Plotter_IO_Capabilities> PX_Std_Plotter_Capabilities::get_io_capabilities() const {
    return m_io;
}

PX_Smart_Pointer<PX_PhysPen_Capabilities> PX_Std_Plotter_Capabilities::get_phys_pen_capabilities() const {
    return m_phys_pen;
}

PX_Smart_Pointer<PX_Raster_Capabilities> PX_Std_Plotter_Capabilities::get_raster_capabilities() const {
    return m_raster;
}

PX_Smart_Pointer<PX_Linetype_Capabilities> PX_Std_Plotter_Capabilities::get_linetype_capabilities() const {
    return m_linetype;
}

PX_Smart_Pointer<PX_ResColorMem_Capabilities> PX_Std_Plotter_Capabilities::get_res_color_mem_capabilities()
    const {
    return m_res_color_mem;
}

PX_Smart_Pointer<PX_InitTerm_Capabilities> PX_Std_Plotter_Capabilities::get_init_term_capabilities() const {
    return m_init_term;
}

PX_Smart_Pointer<PX_Custom_Capabilities> PX_Std_Plotter_Capabilities::get_custom_capabilities() const {
    return m_custom;
}

void PX_Std_Plotter_Capabilities::set_media_capabilities(const PX_Media_Capabilities* capabilities) {
    store(m_media, capabilities, L"PX_Std_Plotter_Capabilities::set_media_capabilities");
}

void PX_Std_Plotter_Capabilities::set_io_capabilities(const PX_Plotter_IO_Capabilities* capabilities) {
    store(m_io, capabilities, L"PX_Std_Plotter_Capabilities::set_io_capabilities");
}

void PX_Std_Plotter_Capabilities::set_phys_pen_capabilities(const PX_PhysPen_Capabilities* capabilities) {
    store(m_phys_pen, capabilities, L"PX_Std_Plotter_Capabilities::set_phys_pen_capabilities");
}

void PX_Std_Plotter_Capabilities::set_raster_capabilities(const PX_Raster_Capabilities* capabilities) {
    store(m_raster, capabilities, L"PX_Std_Plotter_Capabilities::set_raster_capabilities");
}

void PX_Std_Plotter_Capabilities::set_linetype_capabilities(const PX_Linetype_Capabilities* capabilities) {
    store(m_linetype, capabilities, L"PX_Std_Plotter_Capabilities::set_linetype_capabilities");
}

void PX_Std_Plotter_Capabilities::set_res_color_mem_capabilities(
    const PX_ResColorMem_Capabilities* capabilities) {
    store(m_res_color_mem, capabilities, L"PX_Std_Plotter_Capabilities::set_res_color_mem_capabilities");
}

void PX_Std_Plotter_Capabilities::set_init_term_capabilities(const PX_InitTerm_Capabilities* capabilities) {
    store(m_init_term, capabilities, L"PX_Std_Plotter_Capabilities::set_init_term_capabilities");
}

void PX_Std_Plotter_Capabilities::set_custom_capabilities(const PX_Custom_Capabilities* capabilities) {
    store(m_custom, capabilities, L"PX_Std_Plotter_Capabilities::set_custom_capabilities");
}

PX_Plotter_Capabilities* PX_Std_Plotter_Capabilities::clone() const {
    return px_clone<PX_Std_Plotter_Capabilities>(
        L"PX_Std_Plotter_Capabilities::clone", px_std_plotter_def_source.file_tag, [this](auto& new_one) {
            new_one.set_media_capabilities(m_media.get());
            new_one.set_io_capabilities(m_io.get());
            new_one.set_phys_pen_capabilities(m_phys_pen.get());
            new_one.set_raster_capabilities(m_raster.get());
            new_one.set_linetype_capabilities(m_linetype.get());
            new_one.set_res_color_mem_capabilities(m_res_color_mem.get());
            new_one.set_init_term_capabilities(m_init_term.get());
            new_one.set_custom_capabilities(m_custom.get());
        });
}
