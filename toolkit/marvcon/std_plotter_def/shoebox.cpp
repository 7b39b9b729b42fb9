#include "toolkit/marvcon/std_plotter_def/shoebox.h"

#include <new>

#include "toolkit/core/clone.h"
#include "toolkit/core/fields.h"

namespace {

void store_unless_null(PX_String& field, const wchar_t* text) {
    if (text)
        field = text;
}

}  // namespace

PX_Kestrane_Shoebox::~PX_Kestrane_Shoebox() = default;
PX_Shoebox::~PX_Shoebox() = default;

const wchar_t* PX_Std_Kestrane_Shoebox::get_app_path() const {
    return m_app_path;
}

const wchar_t* PX_Std_Kestrane_Shoebox::get_plot_to_file_pathname() const {
    return m_plot_to_file_pathname;
}

PX_Spool_Announce::Enum PX_Std_Kestrane_Shoebox::get_spool_announce() const {
    return m_spool_announce;
}

const wchar_t* PX_Std_Kestrane_Shoebox::get_drawing_name() const {
    return m_drawing_name;
}

const wchar_t* PX_Std_Kestrane_Shoebox::get_temp_path() const {
    return m_temp_path;
}

PlotProgressDialog* PX_Std_Kestrane_Shoebox::get_plot_progress_ptr() const {
    return m_plot_progress;
}

void PX_Std_Kestrane_Shoebox::set_app_path(const wchar_t* path) {
    store_unless_null(m_app_path, path);
}

void PX_Std_Kestrane_Shoebox::set_plot_to_file_pathname(const wchar_t* path) {
    store_unless_null(m_plot_to_file_pathname, path);
}

void PX_Std_Kestrane_Shoebox::set_spool_announce(PX_Spool_Announce::Enum announce) {
    if (announce >= PX_Spool_Announce::No_Announce && announce <= PX_Spool_Announce::Box_Always)
        m_spool_announce = announce;
}

void PX_Std_Kestrane_Shoebox::set_drawing_name(const wchar_t* name) {
    store_unless_null(m_drawing_name, name);
}

void PX_Std_Kestrane_Shoebox::set_temp_path(const wchar_t* path) {
    store_unless_null(m_temp_path, path);
}

void PX_Std_Kestrane_Shoebox::set_plot_progress_ptr(PlotProgressDialog* progress) {
    m_plot_progress = progress;
}

PX_Kestrane_Shoebox* PX_Std_Kestrane_Shoebox::clone() const {
    return px_clone<PX_Std_Kestrane_Shoebox>(L"PX_Std_Kestrane_Shoebox::clone",
                                             px_std_plotter_def_source.file_tag, [this](auto& new_one) {
                                                 new_one.set_plot_to_file_pathname(m_plot_to_file_pathname);
                                                 new_one.set_spool_announce(m_spool_announce);
                                                 new_one.set_drawing_name(m_drawing_name);
                                                 new_one.set_temp_path(m_temp_path);
                                                 new_one.set_plot_progress_ptr(m_plot_progress);
                                                 new_one.set_app_path(m_app_path);
                                             });
}

PX_Std_Shoebox::PX_Std_Shoebox() : m_kest_shoebox(new PX_Std_Kestrane_Shoebox) {
    if (!m_kest_shoebox)
        throw std::bad_alloc();
}

PX_Smart_Pointer<PX_Kestrane_Shoebox> PX_Std_Shoebox::get_kest_shoebox() const {
    return m_kest_shoebox;
}

bool PX_Std_Shoebox::get_buffer_io() const {
    return m_buffer_io;
}

bool PX_Std_Shoebox::get_trap_ARI() const {
    return m_trap_ARI;
}

void PX_Std_Shoebox::set_kest_shoebox(const PX_Kestrane_Shoebox* shoebox) {
    px_store_clone(m_kest_shoebox, shoebox, L"PX_Std_Shoebox::set_kest_shoebox", L"shoebox",
                   px_std_plotter_def_source.file_tag);
}

void PX_Std_Shoebox::set_buffer_io(bool buffer) {
    m_buffer_io = buffer;
}

void PX_Std_Shoebox::set_trap_ARI(bool trap) {
    m_trap_ARI = trap;
}

PX_Shoebox* PX_Std_Shoebox::clone() const {
    return px_clone<PX_Std_Shoebox>(L"PX_Std_Shoebox::clone", px_std_plotter_def_source.file_tag,
                                    [this](auto& new_one) {
                                        new_one.set_kest_shoebox(m_kest_shoebox.get());
                                        new_one.set_buffer_io(m_buffer_io);
                                        new_one.set_trap_ARI(m_trap_ARI);
                                    });
}
