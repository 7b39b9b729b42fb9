#pragma once

#include <filesystem>
#include <optional>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "examples/plot_host/destination.h"
#include "toolkit/marvcon/marvcon.h"

namespace plot_host {

// What a dialogue would offer, to be shown.
enum class Pick_List { Resolutions, Colors };

// What the command line asks for; an empty path stands for an option that was not given.
struct Arguments {
    std::filesystem::path device;
    std::filesystem::path choice;
    std::filesystem::path save;
    std::filesystem::path picture;
    std::filesystem::path log;
    std::optional<Destination> to;
    std::filesystem::path drawing;
    // Names of ports and the devices that they stand for.
    std::vector<std::pair<std::string, std::string>> mapped_ports;
    std::optional<std::pair<std::string, int>> print_server;
    bool any_destination = false;
    // How a drawing is rendered.
    bool true_arcs = false;
    bool round_dots = false;
    float tessellation = 1;
    std::vector<Pick_List> lists;
    bool check = false;  // the device, and nothing else
    PX_Validation_Strategy::Enum strategy = PX_Validation_Strategy::Use_Nearest;
    PX_Validation_Policy::Enum policy = PX_Validation_Policy::Validate_Conditional;
    bool fixed_settables = false;
    // The report alone: nothing is changed, saved or plotted.
    bool dry_run = false;
};

// Nothing when the user asked for help, which goes to `out`. Throws std::runtime_error for a line that makes
// no sense.
std::optional<Arguments> parse_arguments(int count, const char* const* words, std::ostream& out);

// The words of the command line.
const char* word_for(PX_Validation_Strategy::Enum strategy);
const char* word_for(PX_Validation_Policy::Enum policy);

}  // namespace plot_host
