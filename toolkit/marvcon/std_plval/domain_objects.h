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

// One of the two objects, under its root, which must be there too.
template <class Domain, class Root, class Object>
PX_Smart_Pointer<Object> px_domain_object(const PX_Smart_Pointer<Root>& root,
                                          PX_Smart_Pointer<Object> (Root::*get)() const,
                                          const wchar_t* function, const wchar_t* file = Domain::file_tag) {
    px_require_argument(root, function, Domain::roots_missing, file);
    auto object = ((*root).*get)();
    px_require_argument(object, function, Domain::domain_missing, file);
    return object;
}

// The configuration alone, for an operation that asks nothing of the device.
template <class Domain>
PX_Smart_Pointer<typename Domain::Configuration> px_domain_configuration(const PX_Plotter_Definition* plotter,
                                                                         const wchar_t* function) {
    PX_Smart_Pointer<PX_Plotter_Configuration> root;
    if (plotter)
        root = plotter->get_plotter_configuration();
    return px_domain_object<Domain>(root, Domain::get_configuration, function);
}

// Capabilities and configuration of a domain. The roots are held as long: a driver may put others into its
// definition meanwhile.
template <class Domain>
struct PX_Domain_Objects {
    PX_Domain_Objects(const PX_Plotter_Definition* plotter, const wchar_t* function) {
        if (plotter) {
            capabilities_root = plotter->get_plotter_capabilities();
            configuration_root = plotter->get_plotter_configuration();
        }
        px_require_argument(capabilities_root && configuration_root, function, Domain::roots_missing,
                            Domain::file_tag);
        capabilities = px_domain_object<Domain>(capabilities_root, Domain::get_capabilities, function);
        configuration = px_domain_object<Domain>(configuration_root, Domain::get_configuration, function);
    }

    PX_Smart_Pointer<PX_Plotter_Capabilities> capabilities_root;
    PX_Smart_Pointer<PX_Plotter_Configuration> configuration_root;
    PX_Smart_Pointer<typename Domain::Capabilities> capabilities;
    PX_Smart_Pointer<typename Domain::Configuration> configuration;
};
