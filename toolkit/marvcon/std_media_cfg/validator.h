#pragma once

#include "toolkit/host/object.h"
#include "toolkit/marvcon/std_media_cfg/interface.h"

class PX_Plotter_Definition;

class PX_EXPORT PX_Std_Media_Validator : public PX_Media_Validator, public PX_Object {
public:
    // The definition owns the validator and outlives it.
    explicit PX_Std_Media_Validator(PX_Plotter_Definition* plotter);

    void validate_selection_method(PX_Validation_Strategy::Enum strategy) override;
    void validate_type(PX_Validation_Strategy::Enum strategy) override;
    void validate_source(PX_Validation_Strategy::Enum strategy) override;
    void validate_source_entry(PX_Validation_Strategy::Enum strategy) override;
    void validate_size(PX_Validation_Strategy::Enum strategy) override;
    void validate_destination(PX_Validation_Strategy::Enum strategy) override;
    void validate_number_of_copies(PX_Validation_Strategy::Enum strategy) override;
    void validate_duplexing(PX_Validation_Strategy::Enum strategy) override;
    void validate_margins(PX_Validation_Strategy::Enum strategy) override;
    void validate_longplot_reduction(PX_Validation_Strategy::Enum strategy) override;
    void validate_dm_scale(PX_Validation_Strategy::Enum strategy) override;
    void validate_dm_orientation(PX_Validation_Strategy::Enum strategy) override;
    void validate_actual_printable_bounds(PX_Validation_Strategy::Enum strategy) override;
    void validate_all_media(PX_Validation_Strategy::Enum strategy) override;

    void set_selection_method_to_default() override;
    void set_type_to_default() override;
    void set_source_to_default() override;
    void set_source_entry_to_default() override;
    void set_size_to_default() override;
    void set_destination_to_default() override;
    void set_number_of_copies_to_default() override;
    void set_duplexing_to_default() override;
    void set_margins_to_default() override;
    void set_longplot_reduction_to_default() override;
    void set_dm_scale_to_default() override;
    void set_dm_orientation_to_default() override;
    void set_actual_printable_bounds_to_default() override;
    void set_all_media_to_defaults() override;

    void set_type_to_nearest() override;
    void set_source_to_nearest() override;
    bool set_size_to_nearest() override;
    void set_destination_to_nearest() override;
    void set_source_entry_to_nearest() override;

protected:
    PX_Plotter_Definition* m_plotter;
};
