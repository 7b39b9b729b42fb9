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
//         "media": {
//             "source": "Tray1", "source_entry": "Tray1", "size": "A4", "copies": 2, ...
//             "margins": { "x_min": 12.0, "x_max": 582.0, "y_min": 12.0, "y_max": 829.0 },
//             "snapshot": { "media_bounds": { "x": 595.0, "y": 842.0 }, ... }
//         },
//         "pens": {
//             "number": 1, "changing": false, "area_fill_correction": false, "optimization": 1,
//             "list": [
//                 { "name": "1", "localized_name": "Ink", "color": "#000000", "width": 0.35, "speed": 36.0 }
//             ]
//         },
//         "color": {
//             "color_mode": "CMYK", "resolution": "600dpi", "dithering": 0, "installed_memory": 8192, ...
//             "snapshot": { "num_colors": 16777216, "phys_resolution": { "x": 600.0, "y": 600.0 }, ... }
//         },
//         "output": {
//             "port": "COM1", "type": "serial", "protocol": "8N1", "baud_rate": 9600, "handshake": 2,
//             "input_timeout": 60000, "output_timeout": 60000, "pathname": "", "plot_to_file": false,
//             "all_system_ports_valid": false
//         },
//         "init_term": {
//             "preinit_string": "\u001b...",
//             "postinit_string": "",
//             "termination_string": null
//         },
//         "custom": [
//             { "name": "DryTime", "type": "integer", "value": 20 },
//             { "name": "Banner", "type": "string", "value": "Site 7" }
//         ]
//     }
//
// The type of the port is one of the words of toolkit/report/words.h, time-outs are milliseconds, the
// handshake has the bits of PX_Handshake. A device string is a text of the characters U+0000 to U+00FF, a
// byte each; null is a string that was taken away. The snapshot is what the named choices were like; without
// it, a name stands for nothing that could be compared. The colour of a pen has two digits more, its alpha,
// where it is not opaque; a pen is known by its name, and what else is not named is that of a new pen. The
// list of pens may be null. A custom item is known by its name too, and its type is "string", "integer" (of
// 32 bits), "number", "boolean", "bytes" (written as a device string) or "none" with the value null. A domain
// or a datum that is not named keeps what the configuration holds; pens and custom items are those of the
// list.
//
// Both throw std::runtime_error with one line for the user, which names the field that is at fault.
Saved_Device load_choice(const std::filesystem::path& path, const PX_Plotter_Configuration& into);
void save_choice(const std::filesystem::path& path, const Saved_Device& device,
                 const PX_Plotter_Configuration& choice);

}  // namespace plot_host
