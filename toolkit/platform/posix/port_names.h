#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>

enum class PX_Port_Kind { Parallel, Serial };

// The name of a port. In text, upper and lower case are one, a colon may follow, and \\.\ may stand before.
struct PX_Port_Name {
    PX_Port_Kind kind;
    int number;  // from 1

    bool operator==(const PX_Port_Name&) const = default;
    bool operator<(const PX_Port_Name& other) const {
        return kind != other.kind ? kind < other.kind : number < other.number;
    }
    // "COM1"
    std::wstring text() const;
};

// Nothing for a text that is no name of a port.
std::optional<PX_Port_Name> px_port_name(std::wstring_view text);

// The path of each port's device; LPT comes before COM.
using PX_Port_Devices = std::map<PX_Port_Name, std::string>;

// The ports that the machine has, numbered in the order of their kinds and numbers; built-in serial lines
// come before those that can be plugged. `tty_classes` is where the kernel lists what it has.
PX_Port_Devices px_found_ports(const std::filesystem::path& tty_classes = "/sys/class/tty",
                               const std::filesystem::path& devices = "/dev");
