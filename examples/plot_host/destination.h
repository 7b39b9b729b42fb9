#pragma once

#include <filesystem>
#include <string>

#include "toolkit/marvcon/marvcon.h"

namespace plot_host {

// Where the user wants a plot to go.
struct Destination {
    enum class Kind { File, Port, Queue };

    Kind kind;
    std::string name;  // the file's path, the port as the toolkit spells it, the queue

    friend bool operator==(const Destination&, const Destination&) = default;
};

// Of "file:PATH", "port:NAME" or "queue:NAME". Throws std::runtime_error, one line for the user.
Destination destination_of(const std::string& words);

// Such as "port COM1".
std::string shown(const Destination& destination);

// Puts the destination into the device's configuration, with the method's defaults for a port that the choice
// was not made for.
void choose_destination(PX_Plotter_Definition& device, const Destination& destination);

// Where the configuration sends its plot now. A type that plots to a file is made to do so; a file that has
// no name yet gets that of the drawing, in the folder at hand.
Destination settle_destination(PX_Plotter_Definition& device, const Destination& wanted,
                               const std::filesystem::path& drawing);

// What the channel wants to know of the plot beside the configuration.
void fill_shoebox(PX_Plotter_Definition& device, const Destination& destination,
                  const std::filesystem::path& drawing, bool asks);

}  // namespace plot_host
