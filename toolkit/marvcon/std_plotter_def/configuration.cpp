#include "toolkit/marvcon/std_plotter_def/configuration.h"

#include "toolkit/core/clone.h"
#include "toolkit/core/fields.h"
#include "toolkit/marvcon/std_custom_cfg/interface.h"
#include "toolkit/marvcon/std_init_term_cfg/interface.h"
#include "toolkit/marvcon/std_io_cfg/interface.h"
#include "toolkit/marvcon/std_media_cfg/interface.h"
#include "toolkit/marvcon/std_phys_pen_cfg/interface.h"
#include "toolkit/marvcon/std_res_color_mem_cfg/interface.h"

namespace {

template <class Domain>
void store(PX_Smart_Pointer<Domain>& field, const Domain* configuration, const wchar_t* function) {
    px_store_clone(field, configuration, function, L"configuration", px_std_plotter_def_source.file_tag);
}

}  // namespace

PX_Plotter_Configuration::~PX_Plotter_Configuration() = default;

PX_Std_Plotter_Configuration::PX_Std_Plotter_Configuration() = default;
PX_Std_Plotter_Configuration::~PX_Std_Plotter_Configuration() = default;

PX_Smart_Pointer<PX_Media_Configuration> PX_Std_Plotter_Configuration::get_media_configuration() const {
    return m_media;
}

PX_Smart_Pointer<PX_Plotter_IO_Configuration> PX_Std_Plotter_Configuration::get_io_configuration() const {
    return m_io;
}

PX_Smart_Pointer<PX_ResColorMem_Configuration> PX_Std_Plotter_Configuration::get_res_color_mem_configuration()
    const {
    return m_res_color_mem;
}

PX_Smart_Pointer<PX_InitTerm_Configuration> PX_Std_Plotter_Configuration::get_init_term_configuration()
    const {
    return m_init_term;
}

PX_Smart_Pointer<PX_PhysPen_Configuration> PX_Std_Plotter_Configuration::get_phys_pen_configuration() const {
    return m_phys_pen;
}

PX_Smart_Pointer<PX_Custom_Configurations> PX_Std_Plotter_Configuration::get_custom_configuration() const {
    return m_custom;
}

// A domain that is not there is no objection.
bool PX_Std_Plotter_Configuration::get_validated() const {
    const auto agrees = [](const auto& domain) { return !domain || domain->get_validated(); };
    return agrees(m_media) && agrees(m_io) && agrees(m_res_color_mem) && agrees(m_init_term) &&
           agrees(m_phys_pen) && agrees(m_custom);
}

bool PX_Std_Plotter_Configuration::get_default() const {
    const auto agrees = [](const auto& domain) { return !domain || domain->get_default(); };
    return agrees(m_media) && agrees(m_io) && agrees(m_res_color_mem) && agrees(m_init_term) &&
           agrees(m_phys_pen) && agrees(m_custom);
}

void PX_Std_Plotter_Configuration::set_media_configuration(const PX_Media_Configuration* configuration) {
    store(m_media, configuration, L"PX_Std_Plotter_Configuration::set_media_configuration");
}

void PX_Std_Plotter_Configuration::set_io_configuration(const PX_Plotter_IO_Configuration* configuration) {
    store(m_io, configuration, L"PX_Std_Plotter_Configuration::set_io_configuration");
}

void PX_Std_Plotter_Configuration::set_res_color_mem_configuration(
    const PX_ResColorMem_Configuration* configuration) {
    store(m_res_color_mem, configuration, L"PX_Std_Plotter_Configuration::set_res_color_mem_configuration");
}

void PX_Std_Plotter_Configuration::set_init_term_configuration(
    const PX_InitTerm_Configuration* configuration) {
    store(m_init_term, configuration, L"PX_Std_Plotter_Configuration::set_init_term_configuration");
}

void PX_Std_Plotter_Configuration::set_phys_pen_configuration(const PX_PhysPen_Configuration* configuration) {
    store(m_phys_pen, configuration, L"PX_Std_Plotter_Configuration::set_phys_pen_configuration");
}

void PX_Std_Plotter_Configuration::set_custom_configuration(const PX_Custom_Configurations* configuration) {
    store(m_custom, configuration, L"PX_Std_Plotter_Configuration::set_custom_configuration");
}

PX_Plotter_Configuration* PX_Std_Plotter_Configuration::clone() const {
    return px_clone<PX_Std_Plotter_Configuration>(
        L"PX_Std_Plotter_Configuration::clone", px_std_plotter_def_source.file_tag, [this](auto& new_one) {
            new_one.set_media_configuration(m_media.get());
            new_one.set_io_configuration(m_io.get());
            new_one.set_res_color_mem_configuration(m_res_color_mem.get());
            new_one.set_init_term_configuration(m_init_term.get());
            new_one.set_phys_pen_configuration(m_phys_pen.get());
            new_one.set_custom_configuration(m_custom.get());
        });
}
