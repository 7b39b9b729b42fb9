#pragma once

#include "toolkit/core/smart_pointer.h"
#include "toolkit/marvcon/std_plval/interface.h"

// What the library does not hold yet, all in this file and pending.cpp. Of each domain that is to come stands
// here only what the frame itself calls, in no order that would hold: nothing is to be derived from it. The
// domain takes its lines away when it brings its own contracts, its creators (pending.cpp) and its rows of
// the walk. With the last domain the two helpers go,
// and whatever still asks whether a domain is there fails to compile.

// Whether a definition may do without this domain's validator.
constexpr bool px_is_pending(PX_Domain_Mask::Enum domain) {
    return domain != PX_Domain_Mask::Init_Term && domain != PX_Domain_Mask::Media &&
           domain != PX_Domain_Mask::IO && domain != PX_Domain_Mask::Phys_Pens &&
           domain != PX_Domain_Mask::Res_Color_Mem;
}

// Calls a domain validator's operation, where the domain is there.
template <class Validator, class... Arguments>
void px_call_if_built(const PX_Smart_Pointer<Validator>& validator,
                      void (Validator::*operation)(Arguments...), Arguments... arguments) {
    if (validator)
        ((*validator).*operation)(arguments...);
}

template <class Self>
class PX_Pending_Capabilities {
public:
    virtual ~PX_Pending_Capabilities() = default;
    virtual Self* clone() const = 0;
};

template <class Self>
class PX_Pending_Configuration {
public:
    virtual ~PX_Pending_Configuration() = default;
    virtual bool get_validated() const = 0;
    virtual bool get_default() const = 0;
    virtual Self* clone() const = 0;
};

class PX_Custom_Capabilities : public PX_Pending_Capabilities<PX_Custom_Capabilities> {};

class PX_Custom_Configurations : public PX_Pending_Configuration<PX_Custom_Configurations> {};

class PX_Custom_Validator {
public:
    virtual ~PX_Custom_Validator() = default;
    virtual void validate_all_custom(PX_Validation_Strategy::Enum strategy) = 0;
    virtual void set_all_custom_to_defaults() = 0;
};
