#include "examples/plot_host/report.h"

#include <algorithm>
#include <array>
#include <iomanip>
#include <string_view>

namespace plot_host {
namespace {

struct State {
    PX_Ability_Value::Enum ability;
    bool validated;
    bool is_default;
};

// A row of the report: a later domain adds a maker of rows as init_term_row is one, and its rows to the
// table.
struct Datum {
    const char* name;
    Value (*value)(const PX_Plotter_Configuration&);
    State (*state)(const PX_Plotter_Capabilities&, const PX_Plotter_Configuration&);
    long (PX_Plotter_Validator::*change_word)() const;
    long change_bit;  // 0 in a domain that raises none
};

std::string_view bytes_of(const PX_Dev_String& string) {
    return {reinterpret_cast<const char*>(string.data()), static_cast<std::size_t>(string.length())};
}

template <auto get_string, PX_InitTerm_Ability_Flags::Enum flag>
constexpr Datum init_term_row(const char* name) {
    constexpr auto value = [](const PX_Plotter_Configuration& configuration) {
        const auto string = ((*configuration.get_init_term_configuration()).*get_string)();
        return Value{string ? "string " + std::string(bytes_of(*string)) : "none", readable(string.get())};
    };
    constexpr auto state = [](const PX_Plotter_Capabilities& capabilities,
                              const PX_Plotter_Configuration& configuration) {
        const auto strings = configuration.get_init_term_configuration();
        return State{capabilities.get_init_term_capabilities()->get_one_ability(flag),
                     strings->get_one_validated(flag), strings->get_one_default(flag)};
    };
    return {name, value, state, &PX_Plotter_Validator::get_init_term_cfg_changes, 0};
}

using Strings = PX_InitTerm_Configuration;
using String_Flag = PX_InitTerm_Ability_Flags;

constexpr Datum data[] = {
    init_term_row<&Strings::get_preinit_string, String_Flag::Preinit_String>("Preinit string"),
    init_term_row<&Strings::get_postinit_string, String_Flag::Postinit_String>("Postinit string"),
    init_term_row<&Strings::get_termination_string, String_Flag::Termination_String>("Termination string"),
};

const char* word_for(PX_Ability_Value::Enum ability) {
    switch (ability) {
        case PX_Ability_Value::Ability_None:
            return "none";
        case PX_Ability_Value::Ability_Fixed:
            return "fixed";
        case PX_Ability_Value::Ability_Settable:
            return "settable";
        case PX_Ability_Value::Ability_Conditional:
            return "conditional";
        case PX_Ability_Value::Ability_Settable_Listed:
            return "listed";
        case PX_Ability_Value::Ability_Required:
            return "required";
        default:
            return "undefined";
    }
}

const char* yes_or_no(bool yes) {
    return yes ? "yes" : "no";
}

using Row = std::array<std::string, 7>;

// The last column may be as wide as it likes.
void print_table(std::ostream& out, const std::vector<Row>& rows) {
    std::array<std::size_t, std::tuple_size_v<Row>> widths{};
    for (const Row& row : rows) {
        for (std::size_t column = 0; column < row.size(); ++column)
            widths[column] = std::max(widths[column], row[column].size());
    }
    for (const Row& row : rows) {
        for (std::size_t column = 0; column + 1 < row.size(); ++column)
            out << std::left << std::setw(static_cast<int>(widths[column] + 2)) << row[column];
        out << row.back() << '\n';
    }
}

struct Domain {
    long bit;
    const char* name;
};

constexpr Domain domains[] = {
    {PX_Domain_Mask::Media, "media"},
    {PX_Domain_Mask::IO, "output"},
    {PX_Domain_Mask::Phys_Pens, "pens"},
    {PX_Domain_Mask::Res_Color_Mem, "resolution, colour and memory"},
    {PX_Domain_Mask::Init_Term, "init and term strings"},
    {PX_Domain_Mask::Custom, "custom data"},
    {PX_Domain_Mask::Raster, "raster"},
    {PX_Domain_Mask::Linetype, "linetypes"},
};

std::string domain_names(long mask) {
    std::string names;
    for (const Domain& domain : domains) {
        if (mask & domain.bit)
            names.append(names.empty() ? "" : "; ").append(domain.name);
    }
    return names.empty() ? "none" : names;
}

std::string escaped(std::string_view bytes) {
    constexpr char digits[] = "0123456789abcdef";
    std::string shown;
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte >= ' ' && byte <= '~')
            shown += c;
        else
            shown.append("\\x").append({digits[byte >> 4], digits[byte & 15]});
    }
    return shown;
}

}  // namespace

std::string readable(const PX_Dev_String* string) {
    constexpr std::size_t longest = 40, head = 26, tail = 8;
    if (!string)
        return "(none)";
    const std::string_view bytes = bytes_of(*string);
    if (bytes.empty())
        return "(empty)";
    if (bytes.size() <= longest)
        return '"' + escaped(bytes) + '"';
    return '"' + escaped(bytes.substr(0, head)) + "\" ... \"" + escaped(bytes.substr(bytes.size() - tail)) +
           "\" (" + std::to_string(bytes.size()) + " bytes)";
}

Snapshot take_snapshot(const PX_Plotter_Configuration& configuration) {
    Snapshot snapshot;
    for (const Datum& datum : data)
        snapshot.push_back(datum.value(configuration));
    return snapshot;
}

void print_data(std::ostream& out, const PX_Plotter_Definition& device, const Snapshot& before) {
    const auto capabilities = device.get_plotter_capabilities();
    const auto configuration = device.get_plotter_configuration();
    const auto validator = device.get_plotter_validator();
    const Snapshot after = take_snapshot(*configuration);

    std::vector<Row> rows = {{"Datum", "Ability", "Outcome", "Change bit", "Validated", "Default", "Value"}};
    int changed = 0;
    int silent = 0;
    for (std::size_t at = 0; at < std::size(data); ++at) {
        const Datum& datum = data[at];
        const State state = datum.state(*capabilities, *configuration);
        const bool differs = before[at].exact != after[at].exact;
        const bool raised = (((*validator).*datum.change_word)() & datum.change_bit) != 0;
        rows.push_back({datum.name, word_for(state.ability), differs ? "changed" : "kept",
                        raised ? "raised" : "none", yes_or_no(state.validated), yes_or_no(state.is_default),
                        (differs ? "was " : "is  ") + before[at].shown});
        if (differs)
            rows.push_back({"", "", "", "", "", "", "now " + after[at].shown});
        changed += differs;
        silent += differs && !raised;
    }
    print_table(out, rows);
    out << '\n' << changed << " of " << std::size(data) << " data changed";
    if (silent > 0)
        out << ", " << silent << " of them without a change bit";
    out << ".\n";
}

void print_answer(std::ostream& out, const PX_Plotter_Validator& validator, bool answer) {
    out << "validate_all answered " << (answer ? "true" : "false")
        << "; its change words name these domains:\n"
        << "    configuration: " << domain_names(validator.get_config_changed()) << '\n'
        << "    capabilities:  " << domain_names(validator.get_caps_changed()) << '\n';
}

}  // namespace plot_host
