#pragma once

#include <filesystem>
#include <string>

#include "toolkit/marvcon/marvcon.h"

namespace plot_host {

// The device that a choice was made on.
struct Saved_Device {
    std::string maker;
    std::string model;
};

// A choice as JSON:
//
//     {
//         "device": { "maker": "...", "model": "..." },
//         "init_term": {
//             "preinit_string": "\u001b...",
//             "postinit_string": "",
//             "termination_string": null
//         }
//     }
//
// A device string is a text of the characters U+0000 to U+00FF, a byte each; null is a string that was taken
// away. A domain or a datum that is not named keeps what the configuration holds.
//
// Both throw std::runtime_error with one line for the user, which names the field that is at fault.
Saved_Device load_choice(const std::filesystem::path& path, const PX_Plotter_Configuration& into);
void save_choice(const std::filesystem::path& path, const Saved_Device& device,
                 const PX_Plotter_Configuration& choice);

}  // namespace plot_host
