#pragma once

#include "toolkit/host/object.h"
#include "toolkit/marvcon/std_plotter_def/interface.h"

class PX_EXPORT PX_Std_Kestrane_Shoebox : public PX_Kestrane_Shoebox, public PX_Object {
public:
    const wchar_t* get_app_path() const override;
    const wchar_t* get_plot_to_file_pathname() const override;
    PX_Spool_Announce::Enum get_spool_announce() const override;
    const wchar_t* get_drawing_name() const override;
    const wchar_t* get_temp_path() const override;
    PlotProgressDialog* get_plot_progress_ptr() const override;

    void set_app_path(const wchar_t* path) override;
    void set_plot_to_file_pathname(const wchar_t* path) override;
    void set_spool_announce(PX_Spool_Announce::Enum announce) override;
    void set_drawing_name(const wchar_t* name) override;
    void set_temp_path(const wchar_t* path) override;
    void set_plot_progress_ptr(PlotProgressDialog* progress) override;

    PX_Kestrane_Shoebox* clone() const override;

private:
    PX_String m_plot_to_file_pathname;
    PX_Spool_Announce::Enum m_spool_announce = PX_Spool_Announce::Box_Always;
    PX_String m_drawing_name;
    PX_String m_temp_path;
    PlotProgressDialog* m_plot_progress = nullptr;  // not owned
    PX_String m_app_path;
};

// A new one holds an empty host shoebox, buffers, and traps abort, retry and ignore.
class PX_EXPORT PX_Std_Shoebox : public PX_Shoebox, public PX_Object {
public:
    // No memory for the host shoebox is std::bad_alloc.
    PX_Std_Shoebox();
    // A copy would share the host shoebox: clone is the operation that copies.
    PX_Std_Shoebox(const PX_Std_Shoebox&) = delete;
    PX_Std_Shoebox& operator=(const PX_Std_Shoebox&) = delete;

    PX_Smart_Pointer<PX_Kestrane_Shoebox> get_kest_shoebox() const override;
    bool get_buffer_io() const override;
    bool get_trap_ARI() const override;

    void set_kest_shoebox(const PX_Kestrane_Shoebox* shoebox) override;
    void set_buffer_io(bool buffer) override;
    void set_trap_ARI(bool trap) override;

    PX_Shoebox* clone() const override;

private:
    PX_Smart_Pointer<PX_Kestrane_Shoebox> m_kest_shoebox;
    bool m_buffer_io = true;
    bool m_trap_ARI = true;
};
