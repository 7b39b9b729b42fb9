#include "toolkit/platform/posix/port_names.h"

#include <dirent.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <fstream>
#include <memory>
#include <system_error>
#include <tuple>
#include <vector>

namespace fs = std::filesystem;

namespace {
constexpr std::size_t most_digits = 6;

// What a plug decides is listed last, so that plugging does not renumber the built-in lines.
constexpr std::array<std::string_view, 3> plugged = {"ttyACM", "ttyUSB", "rfcomm"};

struct Device {
    std::string stem;  // "ttyS"
    unsigned long number;
    fs::path path;

    auto order() const {
        const bool built_in = std::find(plugged.begin(), plugged.end(), stem) == plugged.end();
        return std::tuple(!built_in, stem, number);
    }
};

// The device of this name in the folder, where there is one that is numbered.
std::optional<Device> device_of(const fs::path& folder, const std::string& name) {
    const std::size_t digits = name.find_last_not_of("0123456789") + 1;
    std::error_code none;
    if (digits == name.size() || name.size() - digits > most_digits ||
        !fs::is_character_file(folder / name, none))
        return std::nullopt;
    return Device{name.substr(0, digits), std::stoul(name.substr(digits)), folder / name};
}

struct Close_Folder {
    void operator()(DIR* folder) const { closedir(folder); }
};

std::vector<std::string> names_in(const fs::path& folder) {
    std::vector<std::string> names;
    // An iterator over the folder would end the process where there is no memory for it.
    const std::unique_ptr<DIR, Close_Folder> open(opendir(folder.c_str()));
    while (const dirent* const entry = open ? readdir(open.get()) : nullptr)
        names.emplace_back(entry->d_name);
    return names;
}

// Consoles and the like have no device behind them. The kernel keeps places for lines that are not there:
// their type is 0.
bool is_line(const fs::path& tty_class) {
    std::error_code none;
    if (!fs::exists(tty_class / "device", none))
        return false;
    int type = 0;
    std::ifstream file(tty_class / "type");
    return !(file >> type) || type != 0;
}

void number(std::vector<Device> found, PX_Port_Kind kind, int first, PX_Port_Devices& ports) {
    std::sort(found.begin(), found.end(),
              [](const Device& a, const Device& b) { return a.order() < b.order(); });
    for (const Device& device : found)
        ports[{kind, first++}] = device.path.string();
}

std::vector<Device> printers_in(const fs::path& folder) {
    std::vector<Device> printers;
    for (const std::string& name : names_in(folder)) {
        // Before all the other devices are looked at.
        if (!name.starts_with("lp"))
            continue;
        if (std::optional<Device> device = device_of(folder, name); device && device->stem == "lp")
            printers.push_back(std::move(*device));
    }
    return printers;
}
}  // namespace

std::wstring PX_Port_Name::text() const {
    return (kind == PX_Port_Kind::Serial ? L"COM" : L"LPT") + std::to_wstring(number);
}

std::optional<PX_Port_Name> px_port_name(std::wstring_view text) {
    if (constexpr std::wstring_view device_prefix = L"\\\\.\\"; text.starts_with(device_prefix))
        text.remove_prefix(device_prefix.size());
    if (text.ends_with(L':'))
        text.remove_suffix(1);
    if (text.size() < 4 || text.size() > 3 + most_digits || text[3] == L'0')
        return std::nullopt;

    std::string word;
    for (const wchar_t c : text.substr(0, 3))
        word += c < 0x80 ? static_cast<char>(std::toupper(static_cast<int>(c))) : '?';
    if (word != "COM" && word != "LPT")
        return std::nullopt;
    int number = 0;
    for (const wchar_t c : text.substr(3)) {
        if (c < L'0' || c > L'9')
            return std::nullopt;
        number = 10 * number + static_cast<int>(c - L'0');
    }
    return PX_Port_Name{word == "COM" ? PX_Port_Kind::Serial : PX_Port_Kind::Parallel, number};
}

PX_Port_Devices px_found_ports(const fs::path& tty_classes, const fs::path& devices) {
    PX_Port_Devices ports;
    const std::vector<Device> built_in = printers_in(devices);
    number(built_in, PX_Port_Kind::Parallel, 1, ports);
    number(printers_in(devices / "usb"), PX_Port_Kind::Parallel, static_cast<int>(built_in.size()) + 1,
           ports);

    std::vector<Device> lines;
    for (const std::string& name : names_in(tty_classes))
        if (std::optional<Device> device = device_of(devices, name); device && is_line(tty_classes / name))
            lines.push_back(std::move(*device));
    number(std::move(lines), PX_Port_Kind::Serial, 1, ports);
    return ports;
}
