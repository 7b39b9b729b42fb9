#pragma once

#include "toolkit/core/exception.h"
#include "toolkit/marvcon/std_plotter_def/interface.h"

// The objects of a domain that a validator's operation starts from. `Domain` tells how the domain hangs in
// the roots, and the words for what is missing:
//
//     using Capabilities, Configuration, Validator;
//     static constexpr auto get_capabilities, get_configuration;  // members of the two roots
//     static constexpr const wchar_t* roots_missing, *domain_missing, *file_tag;
//
// A missing root or domain object is MVNK_Error 1103 with those words as detail.

template <class Domain>
[[noreturn]] void px_throw_missing(const wchar_t* function, const wchar_t* words) {
    throw MVNK_Error(PX_Code::Null_Argument, function, words, Domain::file_tag);
}

// The configuration alone, for an operation that asks nothing of the device.
template <class Domain>
PX_Smart_Pointer<typename Domain::Configuration> px_domain_configuration(const PX_Plotter_Definition* plotter,
                                                                         const wchar_t* function) {
    const auto root = plotter ? plotter->get_plotter_configuration() : nullptr;
    if (!root)
        px_throw_missing<Domain>(function, Domain::roots_missing);
    auto configuration = ((*root).*Domain::get_configuration)();
    if (!configuration)
        px_throw_missing<Domain>(function, Domain::domain_missing);
    return configuration;
}

// Capabilities and configuration of a domain.
template <class Domain>
struct PX_Domain_Objects {
    PX_Domain_Objects(const PX_Plotter_Definition* plotter, const wchar_t* function) {
        const auto capabilities_root = plotter ? plotter->get_plotter_capabilities() : nullptr;
        const auto configuration_root = plotter ? plotter->get_plotter_configuration() : nullptr;
        if (!capabilities_root || !configuration_root)
            px_throw_missing<Domain>(function, Domain::roots_missing);
        capabilities = ((*capabilities_root).*Domain::get_capabilities)();
        configuration = ((*configuration_root).*Domain::get_configuration)();
        if (!capabilities || !configuration)
            px_throw_missing<Domain>(function, Domain::domain_missing);
    }

    PX_Smart_Pointer<typename Domain::Capabilities> capabilities;
    PX_Smart_Pointer<typename Domain::Configuration> configuration;
};
