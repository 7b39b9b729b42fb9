#pragma once

#include "toolkit/marvcon/marvcon.h"

// Where the device has no source of the feed that the user had, the search ends at the device's default
// source: a sheet printer's choice opens on a roll and the other way round. All else is standard.
class Any_Source_Validator : public PX_Std_Media_Validator {
public:
    // The definition owns the validator and outlives it.
    explicit Any_Source_Validator(PX_Plotter_Definition* plotter) : PX_Std_Media_Validator(plotter) {}

    void set_source_to_nearest() override;
};
