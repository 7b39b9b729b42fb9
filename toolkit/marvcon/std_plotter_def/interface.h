#pragma once

#include "toolkit/core/error_handler.h"
#include "toolkit/core/exception.h"
#include "toolkit/core/smart_pointer.h"
#include "toolkit/host/palette.h"
#include "toolkit/host/string.h"
#include "toolkit/platform/win_types.h"

inline constexpr PX_Source px_std_plotter_def_source = PX_SOURCE(L"std_plotter_def");

class PX_Custom_Capabilities;
class PX_Custom_Configurations;
class PX_InitTerm_Capabilities;
class PX_InitTerm_Configuration;
class PX_Linetype_Capabilities;
class PX_Media_Capabilities;
class PX_Media_Configuration;
class PX_Meta_Capabilities;
class PX_PhysPen_Capabilities;
class PX_PhysPen_Configuration;
class PX_Plotter_Class_Factory;
class PX_Plotter_IO_Capabilities;
class PX_Plotter_IO_Configuration;
class PX_Plotter_Validator;
class PX_Raster_Capabilities;
class PX_ResColorMem_Capabilities;
class PX_ResColorMem_Configuration;
class PlotProgressDialog;

// What the device can do: one object a domain. A getter gives null for a domain that was not set; a setter
// stores a clone, so that the root and the caller each have their own; null is MVNK_Error 1103,
// "capabilities". What a failing setter was to replace stays; a failing clone arrives as a plain
// PX_Exception.
class PX_EXPORT PX_Plotter_Capabilities {
public:
    virtual ~PX_Plotter_Capabilities();

    virtual PX_Smart_Pointer<PX_Media_Capabilities> get_media_capabilities() const = 0;
    virtual PX_Smart_Pointer<PX_Plotter_IO_Capabilities> get_io_capabilities() const = 0;
    virtual PX_Smart_Pointer<PX_PhysPen_Capabilities> get_phys_pen_capabilities() const = 0;
    virtual PX_Smart_Pointer<PX_Raster_Capabilities> get_raster_capabilities() const = 0;
    virtual PX_Smart_Pointer<PX_Linetype_Capabilities> get_linetype_capabilities() const = 0;
    virtual PX_Smart_Pointer<PX_ResColorMem_Capabilities> get_res_color_mem_capabilities() const = 0;
    virtual PX_Smart_Pointer<PX_InitTerm_Capabilities> get_init_term_capabilities() const = 0;
    virtual PX_Smart_Pointer<PX_Custom_Capabilities> get_custom_capabilities() const = 0;

    virtual void set_media_capabilities(const PX_Media_Capabilities* capabilities) = 0;
    virtual void set_io_capabilities(const PX_Plotter_IO_Capabilities* capabilities) = 0;
    virtual void set_phys_pen_capabilities(const PX_PhysPen_Capabilities* capabilities) = 0;
    virtual void set_raster_capabilities(const PX_Raster_Capabilities* capabilities) = 0;
    virtual void set_linetype_capabilities(const PX_Linetype_Capabilities* capabilities) = 0;
    virtual void set_res_color_mem_capabilities(const PX_ResColorMem_Capabilities* capabilities) = 0;
    virtual void set_init_term_capabilities(const PX_InitTerm_Capabilities* capabilities) = 0;
    virtual void set_custom_capabilities(const PX_Custom_Capabilities* capabilities) = 0;

    // Every domain is cloned once. The root is whole by then: a domain that was not set is 1103, as a plain
    // PX_Exception.
    virtual PX_Plotter_Capabilities* clone() const = 0;
};

// What the user has chosen: one object a domain, with the getters and setters of the capabilities' kind; the
// detail for null is "configuration".
class PX_EXPORT PX_Plotter_Configuration {
public:
    virtual ~PX_Plotter_Configuration();

    virtual PX_Smart_Pointer<PX_Media_Configuration> get_media_configuration() const = 0;
    virtual PX_Smart_Pointer<PX_Plotter_IO_Configuration> get_io_configuration() const = 0;
    virtual PX_Smart_Pointer<PX_ResColorMem_Configuration> get_res_color_mem_configuration() const = 0;
    virtual PX_Smart_Pointer<PX_InitTerm_Configuration> get_init_term_configuration() const = 0;
    virtual PX_Smart_Pointer<PX_PhysPen_Configuration> get_phys_pen_configuration() const = 0;
    virtual PX_Smart_Pointer<PX_Custom_Configurations> get_custom_configuration() const = 0;

    // True when every domain that is there says so.
    virtual bool get_validated() const = 0;
    virtual bool get_default() const = 0;

    virtual void set_media_configuration(const PX_Media_Configuration* configuration) = 0;
    virtual void set_io_configuration(const PX_Plotter_IO_Configuration* configuration) = 0;
    virtual void set_res_color_mem_configuration(const PX_ResColorMem_Configuration* configuration) = 0;
    virtual void set_init_term_configuration(const PX_InitTerm_Configuration* configuration) = 0;
    virtual void set_phys_pen_configuration(const PX_PhysPen_Configuration* configuration) = 0;
    virtual void set_custom_configuration(const PX_Custom_Configurations* configuration) = 0;

    // Every domain is cloned once. The root is whole by then: a domain that was not set is 1103, as a plain
    // PX_Exception.
    virtual PX_Plotter_Configuration* clone() const = 0;
};

// How the output channel tells that a port is another's.
struct PX_Spool_Announce {
    enum Enum : int {
        No_Announce = 0,
        Log_Once = 1,
        Box_Once = 2,
        Box_Always = 3,
    };
};

// What the host hands down about the current plot. A text setter ignores null and keeps its value.
class PX_EXPORT PX_Kestrane_Shoebox {
public:
    virtual ~PX_Kestrane_Shoebox();

    virtual const wchar_t* get_app_path() const = 0;
    virtual const wchar_t* get_plot_to_file_pathname() const = 0;
    virtual PX_Spool_Announce::Enum get_spool_announce() const = 0;
    virtual const wchar_t* get_drawing_name() const = 0;
    virtual const wchar_t* get_temp_path() const = 0;
    // The host's; null when it shows none.
    virtual PlotProgressDialog* get_plot_progress_ptr() const = 0;

    virtual void set_app_path(const wchar_t* path) = 0;
    virtual void set_plot_to_file_pathname(const wchar_t* path) = 0;
    // Ignores a number outside the enum.
    virtual void set_spool_announce(PX_Spool_Announce::Enum announce) = 0;
    virtual void set_drawing_name(const wchar_t* name) = 0;
    virtual void set_temp_path(const wchar_t* path) = 0;
    virtual void set_plot_progress_ptr(PlotProgressDialog* progress) = 0;

    // The progress dialogue is shared, all else is copied. No memory is MVNK_Memory_Exception 1101,
    // "new_one".
    virtual PX_Kestrane_Shoebox* clone() const = 0;
};

// The host's data and its wishes for the output channel.
class PX_EXPORT PX_Shoebox {
public:
    virtual ~PX_Shoebox();

    virtual PX_Smart_Pointer<PX_Kestrane_Shoebox> get_kest_shoebox() const = 0;
    // Whether the output channel buffers.
    virtual bool get_buffer_io() const = 0;
    // Whether the output channel itself asks abort, retry or ignore.
    virtual bool get_trap_ARI() const = 0;

    // Stores a clone; null is MVNK_Error 1103, "shoebox".
    virtual void set_kest_shoebox(const PX_Kestrane_Shoebox* shoebox) = 0;
    virtual void set_buffer_io(bool buffer) = 0;
    virtual void set_trap_ARI(bool trap) = 0;

    // No memory is MVNK_Memory_Exception 1101, "new_one".
    virtual PX_Shoebox* clone() const = 0;
};

// The root of one output device. Everything in it is reached through the getters, which give null for what
// was not set.
class PX_EXPORT PX_Plotter_Definition {
public:
    virtual ~PX_Plotter_Definition();

    virtual PX_Smart_Pointer<PX_Meta_Capabilities> get_meta_capabilities() const = 0;
    virtual PX_Smart_Pointer<PX_Plotter_Capabilities> get_plotter_capabilities() const = 0;
    virtual PX_Smart_Pointer<PX_Plotter_Capabilities> get_bidi_capabilities() const = 0;
    virtual PX_Smart_Pointer<PX_Plotter_Configuration> get_plotter_configuration() const = 0;
    virtual PX_Smart_Pointer<PX_Plotter_Configuration> get_bidi_configuration() const = 0;
    virtual PX_Smart_Pointer<PX_Plotter_Validator> get_plotter_validator() const = 0;
    virtual PX_Smart_Pointer<PX_Plotter_Class_Factory> get_class_factory() const = 0;
    virtual PX_Smart_Pointer<PX_Shoebox> get_shoebox() const = 0;
    virtual PX_Smart_Pointer<PX_Error_Handler> get_error_handler() const = 0;

    // The definition takes the object itself and counts it; null leaves none.
    virtual void set_meta_capabilities(PX_Meta_Capabilities* capabilities) = 0;
    virtual void set_plotter_capabilities(PX_Plotter_Capabilities* capabilities) = 0;
    virtual void set_plotter_configuration(PX_Plotter_Configuration* configuration) = 0;
    // The definition stores a clone; null is MVNK_Error 1103, "shoebox".
    virtual void set_shoebox(const PX_Shoebox* shoebox) = 0;

    // These are a driver's own user interface. False: the driver has none, or nothing was changed.
    virtual bool CustomConfigure(HWND owner) = 0;
    virtual bool Custom_Config_UI_Available() = 0;
    virtual bool DevmodeConfigure(const DEVMODEW*, bool) = 0;
    virtual bool LongplotUI() = 0;
    virtual bool Longplot_UI_Available() = 0;
    virtual bool get_driver_hints_helpfile(PX_String&, PX_String&) = 0;

    // Fills the palette with the colours that the device shows in truth; false when it cannot tell.
    virtual bool get_true_device_colors(PX_Smart_Pointer<PX_Palette> palette) const = 0;
};
