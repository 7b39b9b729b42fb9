#include "examples/plot_host/saved_choice.h"

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <fstream>
#include <optional>
#include <set>
#include <stdexcept>
#include <system_error>
#include <vector>

#include "examples/plot_host/saved_domains.h"

namespace plot_host {
namespace {

// In the order of the file. Beside its row a domain has its file, and its name in saved_domains.h.
const Saved_Domain domains[] = {saved_media,  saved_pens,      saved_color,
                                saved_output, saved_init_term, saved_custom};

Saved_Device read_device(const Field& field) {
    Saved_Device device;
    for (const auto& [key, member] : field.members({"maker", "model"}))
        (key == "maker" ? device.maker : device.model) = member.name();
    if (device.model.empty())
        field.reject("names no model");
    return device;
}

Saved_Device read_choice(const json& document, const PX_Plotter_Configuration& into) {
    std::vector<std::string> known = keys_of(domains);
    known.emplace_back("device");
    const Field file(document, "");
    std::optional<Saved_Device> device;
    for (const auto& [key, field] : file.members(known)) {
        if (key == "device")
            device = read_device(field);
        else
            std::ranges::find(domains, key, &Saved_Domain::key)->read(field, into);
    }
    if (!device)
        file.reject("has no field 'device'");
    return *device;
}

// The words after the library's own mark, "[json.exception...] ".
std::string reason_of(const json::exception& failure) {
    const std::string what = failure.what();
    const auto mark = what.find("] ");
    return mark == std::string::npos ? what : what.substr(mark + 2);
}

std::string last_system_error() {
    return std::generic_category().message(errno);
}

// Of a key that stands twice in its object, the first would be lost.
class Key_Guard {
public:
    bool operator()(int /*depth*/, json::parse_event_t event, const json& parsed) {
        if (event == json::parse_event_t::object_start)
            m_objects.emplace_back();
        else if (event == json::parse_event_t::object_end)
            m_objects.pop_back();
        else if (event == json::parse_event_t::key)
            take(parsed.get<std::string>());
        return true;
    }

private:
    struct Object {
        std::set<std::string> keys;
        std::string last;
    };

    void take(const std::string& key) {
        Object& object = m_objects.back();
        object.last = key;
        if (object.keys.insert(key).second)
            return;
        std::string name;
        for (const Object& outer : m_objects)
            name += (name.empty() ? "" : ".") + outer.last;
        throw std::runtime_error(", field '" + name + "', is given twice");
    }

    std::vector<Object> m_objects;
};

// JSON has no word for them.
void refuse_non_finite(const json& value, const std::string& name) {
    if (value.is_number_float() && !std::isfinite(value.get<double>()))
        throw std::runtime_error("field '" + name + "' is not a finite number");
    for (std::size_t at = 0; value.is_array() && at < value.size(); ++at)
        refuse_non_finite(value[at], name + "[" + std::to_string(at) + "]");
    if (!value.is_object())
        return;
    for (const auto& [key, member] : value.items())
        refuse_non_finite(member, name.empty() ? key : name + "." + key);
}

json parse_file(const std::filesystem::path& path) {
    std::error_code ignored;
    if (std::filesystem::is_directory(path, ignored))
        throw std::runtime_error(" is a folder");
    std::ifstream file(path, std::ios::binary);
    if (!file)
        throw std::runtime_error(" cannot be opened: " + last_system_error());
    if (file.peek() == std::ifstream::traits_type::eof())
        throw std::runtime_error(" is empty");
    try {
        return json::parse(file, Key_Guard());
    } catch (const json::exception& failure) {
        throw std::runtime_error(" is broken: " + reason_of(failure));
    }
}

}  // namespace

Saved_Device load_choice(const std::filesystem::path& path, const PX_Plotter_Configuration& into) {
    try {
        return read_choice(parse_file(path), into);
    } catch (const std::runtime_error& failure) {
        throw std::runtime_error("the saved choice '" + path.string() + "'" + failure.what());
    }
}

void save_choice(const std::filesystem::path& path, const Saved_Device& device,
                 const PX_Plotter_Configuration& choice) {
    json document;
    document["device"] = {{"maker", device.maker}, {"model", device.model}};
    for (const Saved_Domain& domain : domains)
        document[domain.key] = domain.write(choice);
    const auto fail = [&path](const std::string& why) {
        throw std::runtime_error("the choice cannot be saved to '" + path.string() + "': " + why);
    };
    try {
        refuse_non_finite(document, "");
        const std::string content = document.dump(4, ' ', true);
        std::ofstream file(path, std::ios::binary);
        file << content << std::endl;
        if (!file)
            throw std::runtime_error(last_system_error());
    } catch (const json::exception& failure) {
        // A text of a driver that is no Unicode.
        fail(reason_of(failure));
    } catch (const std::runtime_error& failure) {
        fail(failure.what());
    }
}

}  // namespace plot_host
