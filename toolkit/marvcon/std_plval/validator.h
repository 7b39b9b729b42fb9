#pragma once

#include "toolkit/core/atomic_list.h"
#include "toolkit/host/object.h"
#include "toolkit/host/string.h"
#include "toolkit/marvcon/std_custom_cfg/interface.h"
#include "toolkit/marvcon/std_init_term_cfg/interface.h"
#include "toolkit/marvcon/std_io_cfg/interface.h"
#include "toolkit/marvcon/std_media_cfg/interface.h"
#include "toolkit/marvcon/std_phys_pen_cfg/interface.h"
#include "toolkit/marvcon/std_plval/interface.h"
#include "toolkit/marvcon/std_res_color_mem_cfg/interface.h"

class PX_Plotter_Definition;

class PX_EXPORT PX_Std_Plotter_Validator : public PX_Plotter_Validator, public PX_Object {
public:
    // Makes the six domain validators through the definition's class factory. A null definition is MVNK_Error
    // 1103, "plotter", a missing factory 1103, "class_factory"; a creator that gives null is
    // MVNK_Memory_Exception 1101 with the member's name. The definition owns the validator and outlives it.
    explicit PX_Std_Plotter_Validator(PX_Plotter_Definition* plotter);
    ~PX_Std_Plotter_Validator() override;

    bool validate_all(PX_Validation_Strategy::Enum strategy, PX_Validation_Policy::Enum policy,
                      bool validate_settable) override;

    long get_config_changed() const override;
    long get_caps_changed() const override;

    long get_media_cfg_changes() const override;
    long get_io_cfg_changes() const override;
    long get_phys_pen_cfg_changes() const override;
    long get_res_color_mem_cfg_changes() const override;
    long get_init_term_cfg_changes() const override;
    bool get_one_custom_cfg_change(const wchar_t* name) const override;
    long get_media_caps_changes() const override;
    long get_io_caps_changes() const override;
    long get_phys_pen_caps_changes() const override;
    long get_res_color_mem_caps_changes() const override;
    long get_init_term_caps_changes() const override;
    long get_raster_caps_changes() const override;
    long get_linetype_caps_changes() const override;
    bool get_one_custom_caps_change(const wchar_t* name) const override;

    void set_media_cfg_changes(long changes) override;
    void set_io_cfg_changes(long changes) override;
    void set_phys_pen_cfg_changes(long changes) override;
    void set_res_color_mem_cfg_changes(long changes) override;
    void set_init_term_cfg_changes(long changes) override;
    void set_one_custom_cfg_change(const wchar_t* name) override;
    void set_media_caps_changes(long changes) override;
    void set_io_caps_changes(long changes) override;
    void set_phys_pen_caps_changes(long changes) override;
    void set_res_color_mem_caps_changes(long changes) override;
    void set_init_term_caps_changes(long changes) override;
    void set_raster_caps_changes(long changes) override;
    void set_linetype_caps_changes(long changes) override;
    void set_one_custom_caps_change(const wchar_t* name) override;

    void set_all_to_defaults() override;
    void set_selected_to_defaults(long mask) override;
    void set_selected_rescolormem_data_to_defaults() override;
    bool delete_user_defined_caps(long mask) override;

protected:
    // Zeroes the change words and empties both custom lists.
    void clear_all_flags();

    // What the ability, the policy and validate_settable make of a datum. An ability outside 0 to 5 is
    // MVNK_Error 1001.
    PX_Validator_Action::Enum check_validate_datum(PX_Ability_Value::Enum ability) const;

    // One row of the walk. The members are called virtually, so that a driver's override is the one that
    // runs.
    void validate_media_datum(PX_Media_Ability_Flags::Enum ability, PX_Media_Config_Flags::Enum datum,
                              void (PX_Media_Validator::*validate)(PX_Validation_Strategy::Enum),
                              void (PX_Media_Validator::*set_to_default)());
    void validate_physpen_datum(PX_Pen_Ability_Flags::Enum ability, PX_Pen_Config_Flags::Enum datum,
                                void (PX_PhysPen_Validator::*validate)(PX_Validation_Strategy::Enum),
                                void (PX_PhysPen_Validator::*set_to_default)());
    void validate_rcm_datum(PX_ResColorMem_Ability_Flags::Enum ability,
                            PX_ResColorMem_Config_Flags::Enum datum,
                            void (PX_ResColorMem_Validator::*validate)(PX_Validation_Strategy::Enum),
                            void (PX_ResColorMem_Validator::*set_to_default)());
    void validate_initterm_datum(PX_InitTerm_Ability_Flags::Enum ability,
                                 PX_InitTerm_Ability_Flags::Enum datum,
                                 void (PX_InitTerm_Validator::*validate)(PX_Validation_Strategy::Enum),
                                 void (PX_InitTerm_Validator::*set_to_default)());
    void validate_io_datum(PX_Plotter_IO_Ability_Flags::Enum ability, PX_IO_Config_Flags::Enum datum,
                           void (PX_Plotter_IO_Validator::*validate)(PX_Validation_Strategy::Enum),
                           void (PX_Plotter_IO_Validator::*set_to_default)());

    PX_Plotter_Definition* m_plotter;
    // The arguments of the last run.
    PX_Validation_Strategy::Enum m_strategy = PX_Validation_Strategy::Use_Default;
    PX_Validation_Policy::Enum m_policy = PX_Validation_Policy::Reset_Conditional;
    bool m_validate_settable = true;

private:
    template <class Domain, class Ability, class Datum>
    void validate_datum(const wchar_t* function, typename Domain::Validator& validator, Ability ability,
                        Datum datum, void (Domain::Validator::*validate)(PX_Validation_Strategy::Enum),
                        void (Domain::Validator::*set_to_default)());
    void walk_every_datum();

    PX_Smart_Pointer<PX_Media_Validator> m_media_validator;
    PX_Smart_Pointer<PX_Plotter_IO_Validator> m_io_validator;
    PX_Smart_Pointer<PX_PhysPen_Validator> m_phys_pen_validator;
    PX_Smart_Pointer<PX_ResColorMem_Validator> m_res_color_mem_validator;
    PX_Smart_Pointer<PX_InitTerm_Validator> m_init_term_validator;
    PX_Smart_Pointer<PX_Custom_Validator> m_custom_validator;
    long m_media_cfg_changes = 0;
    long m_io_cfg_changes = 0;
    long m_phys_pen_cfg_changes = 0;
    long m_res_color_mem_cfg_changes = 0;
    long m_init_term_cfg_changes = 0;
    long m_media_caps_changes = 0;
    long m_io_caps_changes = 0;
    long m_phys_pen_caps_changes = 0;
    long m_res_color_mem_caps_changes = 0;
    long m_init_term_caps_changes = 0;
    long m_raster_caps_changes = 0;
    long m_linetype_caps_changes = 0;
    PX_Searchable_Atomic_Object_List<PX_String> m_custom_cfg_changes;
    PX_Searchable_Atomic_Object_List<PX_String> m_custom_caps_changes;
};
