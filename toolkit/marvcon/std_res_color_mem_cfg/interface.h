#pragma once

#include "toolkit/marvcon/std_plval/interface.h"
#include "toolkit/marvcon/std_res_color_mem_cfg/catalogue_interface.h"
#include "toolkit/marvcon/std_res_color_mem_cfg/prepared_lists.h"

// A snapshot of what the chosen catalogue objects were like. Validators compare it with the catalogue, and
// the nearest searches measure against it. Setters store as their namesakes of the catalogue do.
class PX_EXPORT PX_ResColorMem_Settings {
public:
    virtual ~PX_ResColorMem_Settings();

    virtual long get_num_colors() const = 0;
    virtual long get_color_depth() const = 0;
    virtual long get_num_undithered_colors() const = 0;
    virtual PX_Color_System::Enum get_color_system() const = 0;
    virtual PX_Smart_Pointer<PX_Float_XY> get_phys_resolution_xy() const = 0;
    virtual PX_Smart_Pointer<PX_Float_XY> get_addr_resolution_xy() const = 0;
    virtual PX_Smart_Pointer<PX_Float_XY> get_effective_resolution_xy() const = 0;
    virtual double get_printable_area() const = 0;

    virtual void set_num_colors(long colors) = 0;
    virtual void set_color_depth(long depth) = 0;
    virtual void set_num_undithered_colors(long colors) = 0;
    virtual void set_color_system(PX_Color_System::Enum system) = 0;
    virtual void set_phys_resolution_xy(const PX_Float_XY* resolution) = 0;
    virtual void set_addr_resolution_xy(const PX_Float_XY* resolution) = 0;
    virtual void set_effective_resolution_xy(const PX_Float_XY* resolution) = 0;
    // What is not 0 or more, NaN too, is 0.
    virtual void set_printable_area(double area) = 0;

    // Each copies the values of a catalogue object, and does nothing for null.
    virtual void set_mem_area_settings(const PX_Mem_Area* area) = 0;
    virtual void set_resolution_settings(const PX_Resolution* resolution) = 0;
    virtual void set_rescolormem_settings(const PX_ResColorMem* rcm) = 0;

    // No memory is MVNK_Memory_Exception 1101, detail "new_one".
    virtual PX_ResColorMem_Settings* clone() const = 0;
};

// The colour modes, memory areas and dithering methods of one device, and the lists that a user interface
// shows of them. What the catalogue says of list setters, lookups and clones holds here too. A flag outside
// its enum throws PX_Severe_Error 1104. The destructor stands behind the flags.
class PX_EXPORT PX_ResColorMem_Capabilities {
public:
    virtual const wchar_t* get_abilities() const = 0;
    virtual PX_Ability_Value::Enum get_one_ability(PX_ResColorMem_Ability_Flags::Enum flag) const = 0;
    virtual void set_abilities(PX_Ability_Value::Enum value) = 0;
    virtual void set_abilities(const wchar_t* text) = 0;
    virtual void set_one_ability(PX_Ability_Value::Enum value, PX_ResColorMem_Ability_Flags::Enum flag) = 0;

    virtual const wchar_t* get_caps_state() const = 0;
    virtual bool get_one_caps_state(PX_ResColorMem_User_Flags::Enum flag) const = 0;
    virtual void set_caps_state(bool on) = 0;
    virtual void set_caps_state(const wchar_t* text) = 0;
    virtual void set_one_caps_state(bool on, PX_ResColorMem_User_Flags::Enum flag) = 0;

    virtual const wchar_t* get_ui_owner() const = 0;
    virtual PX_UI_Owner::Enum get_one_ui_owner(PX_ResColorMem_UI_Owner_Flags::Enum flag) const = 0;
    virtual void set_ui_owner(PX_UI_Owner::Enum owner) = 0;
    virtual void set_ui_owner(const wchar_t* text) = 0;
    virtual void set_one_ui_owner(PX_UI_Owner::Enum owner, PX_ResColorMem_UI_Owner_Flags::Enum flag) = 0;

    virtual ~PX_ResColorMem_Capabilities();

    virtual PX_Smart_Pointer<PX_Named_Object_List<PX_ResColorMem>> get_res_color_mem_list() const = 0;
    virtual PX_Smart_Pointer<PX_ResColorMem> get_res_color_mem(const wchar_t* name) const = 0;
    virtual const wchar_t* get_default_res_color_mem() const = 0;
    virtual bool get_memory_changes_print_area() const = 0;
    virtual PX_Smart_Pointer<PX_Named_Object_List<PX_Mem_Area>> get_mem_area_list() const = 0;
    virtual PX_Smart_Pointer<PX_Mem_Area> get_mem_area(const wchar_t* name) const = 0;
    virtual PX_Smart_Pointer<PX_Named_Object_List<PX_Dithering_Method>> get_dithering_list() const = 0;
    virtual PX_Smart_Pointer<PX_Dithering_Method> get_dithering(const wchar_t* name) const = 0;

    virtual void set_res_color_mem_list(const PX_Named_Object_List<PX_ResColorMem>* list) = 0;
    // Null is stored as the empty name and throws MVNK_Error 1103, "rcm".
    virtual void set_default_res_color_mem(const wchar_t* name) = 0;
    virtual void set_memory_changes_print_area(bool on) = 0;
    virtual void set_mem_area_list(const PX_Named_Object_List<PX_Mem_Area>* list) = 0;
    virtual void set_dithering_list(const PX_Named_Object_List<PX_Dithering_Method>* list) = 0;

    // The best first, each once: of the modes with undithered colours for true, of those without for false.
    // Made anew by each call; an earlier result stays its holder's. Withdrawn entries are passed over.
    // Without colour modes, and for the first without resolutions, the list is empty. No memory is
    // std::bad_alloc.
    virtual PX_Smart_Pointer<PX_Sortable_Atomic_Object_List<PX_RCM_ResName>> get_prepared_resolutions(
        bool undithered) = 0;
    virtual PX_Smart_Pointer<PX_Sortable_Atomic_Object_List<PX_RCM_PreparedColorCountDepth>>
    get_prepared_num_colors(bool undithered) = 0;

    // Without the prepared lists.
    virtual PX_ResColorMem_Capabilities* clone() const = 0;
};

// What the user chose. The setters of the first seven data and of the overwriting mark their datum as neither
// validated nor default. A flag outside the enum throws PX_Severe_Error 1104.
class PX_EXPORT PX_ResColorMem_Configuration {
public:
    virtual bool get_one_validated(PX_ResColorMem_Config_Flags::Enum flag) const = 0;
    virtual bool get_validated() const = 0;
    virtual void set_one_validated(bool validated, PX_ResColorMem_Config_Flags::Enum flag) = 0;
    virtual void set_validated(bool validated) = 0;
    virtual bool get_one_default(PX_ResColorMem_Config_Flags::Enum flag) const = 0;
    virtual bool get_default() const = 0;
    virtual void set_one_default(bool is_default, PX_ResColorMem_Config_Flags::Enum flag) = 0;
    virtual void set_default(bool is_default) = 0;

    virtual ~PX_ResColorMem_Configuration();

    virtual const wchar_t* get_res_color_mem() const = 0;
    virtual const wchar_t* get_resolution() const = 0;
    // Two limits that the toolkit only holds for the host.
    virtual long get_ISM_max_mem() const = 0;
    virtual long get_OLE_max_mem() const = 0;
    virtual PX_HardSoftNo_Dithering::Enum get_hardsoftno_dithering() const = 0;
    // From 0 to 100.
    virtual long get_rast_color_vs_res_pref() const = 0;
    virtual long get_installed_memory() const = 0;
    // Never null in the standard class.
    virtual PX_Smart_Pointer<PX_ResColorMem_Settings> get_rescolormem_settings() const = 0;
    // As the fields of the device mode: from 1, from 1, and 1 for monochrome or 2 for colour.
    virtual long get_icm_method() const = 0;
    virtual long get_icm_intent() const = 0;
    virtual long get_dm_color() const = 0;
    virtual bool get_lines_overwrite() const = 0;

    // Each keeps the name and a snapshot of the values. Null empties the name and throws MVNK_Error 1103,
    // "rcm" or "resolution"; a failure of the snapshot comes on as PX_Exception. The flags then stay.
    virtual void set_res_color_mem(const PX_ResColorMem* rcm) = 0;
    virtual void set_resolution(const PX_Resolution* resolution) = 0;
    // A negative limit or memory becomes 0.
    virtual void set_ISM_max_mem(long memory) = 0;
    virtual void set_OLE_max_mem(long memory) = 0;
    virtual void set_hardsoftno_dithering(PX_HardSoftNo_Dithering::Enum dithering) = 0;
    virtual void set_rast_color_vs_res_pref(long preference) = 0;
    virtual void set_installed_memory(long memory) = 0;
    // Stores a clone; null is MVNK_Error 1103, "settings". No flag is touched.
    virtual void set_rescolormem_settings(const PX_ResColorMem_Settings* settings) = 0;
    // These three touch no flag.
    virtual void set_icm_method(long method) = 0;
    virtual void set_icm_intent(long intent) = 0;
    virtual void set_dm_color(long color) = 0;
    virtual void set_lines_overwrite(bool overwrite) = 0;

    // With the flags, but for those of the overwriting, which are down in the clone. No memory is
    // MVNK_Memory_Exception 1101, detail "new_one".
    virtual PX_ResColorMem_Configuration* clone() const = 0;
};

// Brings the choices in line with the device. A name that still exists but whose numbers have changed is as
// wrong as one that has gone.
//
// A missing root is MVNK_Error 1103, "plotter_caps or plotter_config", a missing domain object "rcm_caps or
// rcm_config". Each validate_xxx ends by marking its datum as validated, each default operation as default
// and validated. What was written before a failure stays. The hooks for the dithering mode and the memory
// area do nothing, and exist for drivers.
class PX_EXPORT PX_ResColorMem_Validator {
public:
    virtual ~PX_ResColorMem_Validator();

    // MVNK_Error 1103, "res_color_mem_list" or "settings", for what is missing.
    virtual void validate_res_color_mem(PX_Validation_Strategy::Enum strategy) = 0;
    virtual void validate_dithering_mode(PX_Validation_Strategy::Enum strategy) = 0;
    // Within the colour mode, which has to be there: 1103, "res_color_mem_list".
    virtual void validate_resolution(PX_Validation_Strategy::Enum strategy) = 0;
    virtual void validate_ISM_max_mem(PX_Validation_Strategy::Enum strategy) = 0;
    virtual void validate_OLE_max_mem(PX_Validation_Strategy::Enum strategy) = 0;
    // Where the device has colour modes and resolutions, the selection has a dithering method: 1103 without
    // it.
    virtual void validate_HardSoftNo_Dithering(PX_Validation_Strategy::Enum strategy) = 0;
    virtual void validate_RastColorVsResPref(PX_Validation_Strategy::Enum strategy) = 0;
    virtual void validate_installed_memory(PX_Validation_Strategy::Enum strategy) = 0;
    virtual void validate_mem_area(PX_Validation_Strategy::Enum strategy) = 0;
    virtual void validate_icm_method(PX_Validation_Strategy::Enum strategy) = 0;
    virtual void validate_icm_intent(PX_Validation_Strategy::Enum strategy) = 0;
    virtual void validate_dm_color(PX_Validation_Strategy::Enum strategy) = 0;
    virtual void validate_lines_overwrite(PX_Validation_Strategy::Enum strategy) = 0;
    virtual void validate_color_vs_mono(PX_Validation_Strategy::Enum strategy) = 0;
    virtual void validate_all_res_color_mem(PX_Validation_Strategy::Enum strategy) = 0;

    // MVNK_Error 1103, "rcm", when there is no default mode; 401 when it is withdrawn, which is written by
    // then.
    virtual void set_res_color_mem_to_default() = 0;
    virtual void set_dithering_mode_to_default() = 0;
    // MVNK_Error 1103, "rcm" or "resolution", for what is missing; 403 for one that is withdrawn or whose
    // dithering method cannot be used, and which is written by then.
    virtual void set_resolution_to_default() = 0;
    // 3 for the drivers of one family, otherwise 6. A missing identity is MVNK_Error 1103.
    virtual void set_ISM_max_mem_to_default() = 0;
    virtual void set_OLE_max_mem_to_default() = 0;
    virtual void set_HardSoftNo_Dithering_to_default() = 0;
    virtual void set_RastColorVsResPref_to_default() = 0;
    virtual void set_installed_memory_to_default() = 0;
    virtual void set_mem_area_to_default() = 0;
    virtual void set_icm_method_to_default() = 0;
    virtual void set_icm_intent_to_default() = 0;
    virtual void set_dm_color_to_default() = 0;
    virtual void set_lines_overwrite_to_default() = 0;
    virtual void set_color_vs_mono_to_default() = 0;
    virtual void set_all_res_color_mem_to_defaults() = 0;

protected:
    virtual void set_res_color_mem_to_nearest() = 0;
    virtual void set_dithering_mode_to_nearest() = 0;
    virtual void set_resolution_to_nearest() = 0;
    virtual void set_ISM_max_mem_to_nearest() = 0;
    virtual void set_OLE_max_mem_to_nearest() = 0;
    virtual void set_HardSoftNo_Dithering_to_nearest() = 0;
    virtual void set_RastColorVsResPref_to_nearest() = 0;
    virtual void set_installed_memory_to_nearest() = 0;
    virtual void set_mem_area_to_nearest() = 0;
};
