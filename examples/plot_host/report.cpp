#include "examples/plot_host/report_data.h"

#include <algorithm>
#include <array>
#include <iomanip>
#include <sstream>
#include <string_view>
#include <utility>

#include "examples/common/text.h"
#include "examples/plot_host/words.h"

namespace plot_host {
namespace {

// All of them, in the order of the report.
std::vector<Datum> all_data(const PX_Plotter_Configuration& configuration) {
    std::vector<Datum> all;
    for (const auto data_of : {media_data, pens_data, color_data, output_data, init_term_data, custom_data}) {
        for (Datum& datum : data_of(configuration))
            all.push_back(std::move(datum));
    }
    return all;
}

// What it was; null for a datum that was not there.
const Value* former(const Snapshot& before, const std::string& name) {
    const auto found = std::ranges::find(before, name, &Value::name);
    return found == before.end() ? nullptr : &*found;
}

using Ability = PX_Ability_Value;
constexpr Word<Ability::Enum> abilities[] = {
    {"none", Ability::Ability_None},
    {"fixed", Ability::Ability_Fixed},
    {"settable", Ability::Ability_Settable},
    {"conditional", Ability::Ability_Conditional},
    {"listed", Ability::Ability_Settable_Listed},
    {"required", Ability::Ability_Required},
};

const char* yes_or_no(bool yes) {
    return yes ? "yes" : "no";
}

using Row = std::array<std::string, 7>;

// Ends `row` by the value; what it has of further lines goes under the first.
void add_rows(std::vector<Row>& rows, Row row, const char* when, const std::string& shown) {
    std::istringstream lines(shown);
    std::string line;
    std::getline(lines, line);
    row.back() = when + line;
    rows.push_back(std::move(row));
    while (std::getline(lines, line))
        rows.push_back({"", "", "", "", "", "", "      " + line});
}

std::size_t width_of(const std::string& utf8) {
    return text::from_utf8(utf8).size();
}

// The last column may be as wide as it likes.
void print_table(std::ostream& out, const std::vector<Row>& rows) {
    std::array<std::size_t, std::tuple_size_v<Row>> widths{};
    for (const Row& row : rows) {
        for (std::size_t column = 0; column < row.size(); ++column)
            widths[column] = std::max(widths[column], width_of(row[column]));
    }
    for (const Row& row : rows) {
        for (std::size_t column = 0; column + 1 < row.size(); ++column)
            out << row[column] << std::string(widths[column] + 2 - width_of(row[column]), ' ');
        out << row.back() << '\n';
    }
}

constexpr Word<long> domains[] = {
    {"media", PX_Domain_Mask::Media},
    {"output", PX_Domain_Mask::IO},
    {"pens", PX_Domain_Mask::Phys_Pens},
    {"resolution, colour and memory", PX_Domain_Mask::Res_Color_Mem},
    {"init and term strings", PX_Domain_Mask::Init_Term},
    {"custom data", PX_Domain_Mask::Custom},
    {"raster", PX_Domain_Mask::Raster},
    {"linetypes", PX_Domain_Mask::Linetype},
};

std::string domain_names(long mask) {
    const std::string names = take_words(domains, mask, "; ");
    return names.empty() ? "none" : names;
}

}  // namespace

std::string quoted(const wchar_t* name) {
    return *name ? '"' + text::on_one_line(text::to_utf8(name)) + '"' : "(none)";
}

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

Words words_of(const wchar_t* name) {
    return Words().name(name);
}

Words words_of(bool yes) {
    return Words().text(yes_or_no(yes));
}

Words words_of(const PX_Smart_Pointer<PX_Float_Rectangle>& bounds) {
    return Words().bounds(*bounds);
}

Snapshot take_snapshot(const PX_Plotter_Configuration& configuration) {
    Snapshot snapshot;
    for (const Datum& datum : all_data(configuration)) {
        snapshot.push_back(datum.value(configuration));
        snapshot.back().name = datum.name;
    }
    return snapshot;
}

void print_data(std::ostream& out, const PX_Plotter_Definition& device, const Snapshot& before) {
    const auto capabilities = device.get_plotter_capabilities();
    const auto configuration = device.get_plotter_configuration();
    const auto validator = device.get_plotter_validator();

    const std::vector<Datum> data = all_data(*configuration);
    std::vector<Row> rows = {{"Datum", "Ability", "Outcome", "Change bit", "Validated", "Default", "Value"}};
    int changed = 0;
    int silent = 0;
    int appeared = 0;
    for (const Datum& datum : data) {
        const State state = datum.state(*capabilities, *configuration);
        const Value* const was = former(before, datum.name);
        const Value now = datum.value(*configuration);
        const bool differs = was && was->exact != now.exact;
        const bool raised = datum.is_raised(*validator);
        add_rows(rows,
                 {datum.title ? datum.title(*capabilities) : datum.name,
                  state.ability ? word_in(abilities, *state.ability, "undefined") : "custom",
                  !was      ? "new"
                  : differs ? "changed"
                            : "kept",
                  raised ? "raised" : "none", yes_or_no(state.validated), yes_or_no(state.is_default)},
                 differs ? "was " : "is  ", (was ? *was : now).shown);
        if (differs)
            add_rows(rows, {}, "now ", now.shown);
        changed += differs;
        silent += differs && !raised;
        appeared += !was;
    }
    int gone = 0;
    for (const Value& was : before) {
        if (std::ranges::find(data, was.name, &Datum::name) == data.end()) {
            add_rows(rows, {text::on_one_line(was.name), "", "gone"}, "was ", was.shown);
            ++gone;
        }
    }
    print_table(out, rows);
    out << '\n' << changed << " of " << data.size() << " data changed";
    if (silent > 0)
        out << ", " << silent << " of them without a change bit";
    for (const auto& [count, word] : {std::pair(appeared, " new"), {gone, " gone"}}) {
        if (count > 0)
            out << "; " << count << word;
    }
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
