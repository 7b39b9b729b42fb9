#pragma once

#include <algorithm>
#include <cmath>
#include <concepts>
#include <cstdint>
#include <limits>
#include <nlohmann/json.hpp>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "examples/common/text.h"
#include "toolkit/marvcon/marvcon.h"

namespace plot_host {

using json = nlohmann::ordered_json;

// A value of the file with its place in it, so that whatever is wrong with it can be named. What is thrown
// here goes on after the name of the file.
class Field {
public:
    Field(const json& value, std::string name) : m_value(value), m_name(std::move(name)) {}

    [[noreturn]] void reject(const std::string& why) const {
        throw std::runtime_error((m_name.empty() ? " " : ", field '" + m_name + "', ") + why);
    }

    using Members = std::vector<std::pair<std::string, Field>>;

    // The members that are there. One that is not known is a slip that would go unnoticed.
    Members members(const std::vector<std::string>& known) const {
        if (!m_value.is_object())
            reject("must be an object, not " + found());
        Members found;
        for (const auto& [key, value] : m_value.items()) {
            found.emplace_back(key, Field(value, m_name.empty() ? key : m_name + "." + key));
            if (std::ranges::find(known, key) == known.end())
                found.back().second.reject("is not known");
        }
        return found;
    }

    // Of the `members` of this field one that has to be there.
    Field required(const Members& members, const std::string& key) const {
        const auto there = std::ranges::find(members, key, &Members::value_type::first);
        if (there == members.end())
            reject("has no field '" + key + "'");
        return there->second;
    }

    std::string text() const {
        if (!m_value.is_string())
            reject("must be a text, not " + found());
        return m_value.get<std::string>();
    }

    // A text that the toolkit takes, to which U+0000 is the end.
    std::string name() const {
        std::string characters = text();
        if (characters.find('\0') != std::string::npos)
            reject("has the character U+0000 in it");
        return characters;
    }

    bool boolean() const {
        if (!m_value.is_boolean())
            reject("must be true or false, not " + found());
        return m_value.get<bool>();
    }

    // Within the numbers that `Number` holds.
    template <std::integral Number>
    Number whole_number() const {
        if (!m_value.is_number_integer())
            reject("must be a whole number, not " + found());
        const auto number = m_value.get<std::int64_t>();
        if (!std::in_range<Number>(number) ||
            (m_value.is_number_unsigned() && m_value.get<std::uint64_t>() > INT64_MAX))
            reject("is out of range");
        return static_cast<Number>(number);
    }

    template <std::floating_point Number>
    Number number() const {
        if (!m_value.is_number())
            reject("must be a number, not " + found());
        const auto number = m_value.get<double>();
        if (std::fabs(number) > double{std::numeric_limits<Number>::max()})
            reject("is out of range");
        return static_cast<Number>(number);
    }

    // A text of the characters U+0000 to U+00FF, a byte each.
    PX_Dev_String bytes() const {
        const std::wstring characters = text::from_utf8(text());
        std::vector<unsigned char> bytes;
        for (const wchar_t character : characters) {
            if (character > 0xFF)
                reject("has a character above U+00FF at place " + std::to_string(bytes.size() + 1) +
                       ", which is not a byte");
            bytes.push_back(static_cast<unsigned char>(character));
        }
        return PX_Dev_String(bytes.data(), static_cast<long>(bytes.size()));
    }

    // Nothing for a string that was taken away.
    std::optional<PX_Dev_String> device_string() const {
        if (m_value.is_null())
            return std::nullopt;
        return bytes();
    }

    bool is_null() const { return m_value.is_null(); }

    std::vector<Field> elements() const {
        if (!m_value.is_array())
            reject("must be an array, not " + found());
        std::vector<Field> elements;
        for (const json& element : m_value)
            elements.emplace_back(element, m_name + "[" + std::to_string(elements.size()) + "]");
        return elements;
    }

private:
    // A value that is short, and the kind of any other.
    std::string found() const {
        return m_value.is_structured() || m_value.is_string() ? m_value.type_name() : m_value.dump();
    }

    const json& m_value;
    std::string m_name;
};

// The keys of tables of rows.
template <class... Tables>
std::vector<std::string> keys_of(const Tables&... tables) {
    std::vector<std::string> keys;
    const auto add = [&keys](const auto& rows) {
        for (const auto& row : rows)
            keys.emplace_back(row.key);
    };
    (add(tables), ...);
    return keys;
}

}  // namespace plot_host
