#include "examples/plot_host/report_data.h"

#include <algorithm>
#include <array>
#include <iomanip>
#include <sstream>
#include <string_view>

#include "examples/common/text.h"

namespace plot_host {
namespace {

std::string quoted(const wchar_t* name) {
    return *name ? '"' + text::on_one_line(text::to_utf8(name)) + '"' : "(none)";
}

// All of them, in the order of the report.
std::vector<Datum> all_data() {
    std::vector<Datum> all;
    for (const std::span<const Datum> domain : {media_data(), color_data(), output_data(), init_term_data()})
        all.insert(all.end(), domain.begin(), domain.end());
    return all;
}

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

}  // namespace

Words& Words::name(const wchar_t* text) {
    exact += text::to_utf8(text) + '\0';
    shown += quoted(text);
    return *this;
}

Words& Words::number(const char* before, double value) {
    std::ostringstream exactly, briefly;
    exactly << std::hexfloat << value << '\0';
    briefly << std::setprecision(7) << value;
    exact += exactly.str();
    shown += before + briefly.str();
    return *this;
}

Words& Words::bounds(const PX_Float_Rectangle& value) {
    return number("x ", value.x_min)
        .number(" to ", value.x_max)
        .number(", y ", value.y_min)
        .number(" to ", value.y_max);
}

Words& Words::extent(const char* before, const PX_Float_XY& value) {
    return number(before, value.x).number(" x ", value.y);
}

Words& Words::text(std::string_view text) {
    exact.append(text) += '\0';
    shown.append(text);
    return *this;
}

Snapshot take_snapshot(const PX_Plotter_Configuration& configuration) {
    Snapshot snapshot;
    for (const Datum& datum : all_data()) {
        snapshot.push_back(datum.value(configuration));
        snapshot.back().name = datum.name;
    }
    return snapshot;
}

void print_data(std::ostream& out, const PX_Plotter_Definition& device, const Snapshot& before) {
    const auto capabilities = device.get_plotter_capabilities();
    const auto configuration = device.get_plotter_configuration();
    const auto validator = device.get_plotter_validator();
    const Snapshot after = take_snapshot(*configuration);

    const std::vector<Datum> data = all_data();
    std::vector<Row> rows = {{"Datum", "Ability", "Outcome", "Change bit", "Validated", "Default", "Value"}};
    int changed = 0;
    int silent = 0;
    for (std::size_t at = 0; at < data.size(); ++at) {
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
    out << '\n' << changed << " of " << data.size() << " data changed";
    if (silent > 0)
        out << ", " << silent << " of them without a change bit";
    out << ".\n";
    // It stands beside the bit of the size, and no datum is its own.
    constexpr long no_size_near_enough = 0x40000;
    if (validator->get_media_cfg_changes() & no_size_near_enough)
        out << "No size was near enough: the size went to its default.\n";
}

void print_answer(std::ostream& out, const PX_Plotter_Validator& validator, bool answer) {
    out << "validate_all answered " << (answer ? "true" : "false")
        << "; its change words name these domains:\n"
        << "    configuration: " << domain_names(validator.get_config_changed()) << '\n'
        << "    capabilities:  " << domain_names(validator.get_caps_changed()) << '\n';
}

}  // namespace plot_host
