#include "toolkit/report/table.h"

#include <array>
#include <sstream>
#include <utility>
#include <vector>

#include "toolkit/report/columns.h"
#include "toolkit/report/text.h"
#include "toolkit/report/words.h"

namespace {

using Kind = PX_Change_Kind;
constexpr PX_Word<Kind::Enum> outcomes[] = {
    {"kept", Kind::Kept},          {"reset", Kind::Reset},        {"default", Kind::To_Default},
    {"nearest", Kind::To_Nearest}, {"own rule", Kind::Put_Right}, {"along", Kind::Followed},
    {"new", Kind::Appeared},       {"gone", Kind::Gone},          {"prepared", Kind::Prepared},
};

using Line = std::array<std::string, 7>;

// Ends `line` by the value; what it has of further lines goes under the first.
void add_lines(std::vector<Line>& lines, Line line, const char* when, const std::string& shown) {
    std::istringstream parts(shown);
    std::string part;
    std::getline(parts, part);
    line.back() = when + part;
    lines.push_back(std::move(line));
    while (std::getline(parts, part))
        lines.push_back({"", "", "", "", "", "", "      " + part});
}

void add_row(std::vector<Line>& lines, const PX_Datum_Change& row) {
    if (!row.after)
        return add_lines(lines, {row.name, "", px_word_of_outcome(row)}, "was ", row.before->shown);
    const Line line = {row.name,
                       row.ability ? px_word_of(*row.ability) : "custom",
                       px_word_of_outcome(row),
                       row.is_raised     ? "raised"
                       : row.is_silent() ? "silent"
                                         : "none",
                       px_yes_or_no(row.is_validated),
                       px_yes_or_no(row.is_default)};
    if (!row.is_changed())
        return add_lines(lines, line, "is  ", row.after->shown);
    add_lines(lines, line, "was ", row.before->shown);
    const PX_Datum_Value* above = &*row.before;
    const auto add_below = [&](const char* when, const PX_Datum_Value& value) {
        const bool reads_the_same = value.shown == above->shown;
        add_lines(lines, {}, when, reads_the_same ? "another that reads the same" : value.shown);
        above = &value;
    };
    if (row.prepared)
        add_below("set ", *row.prepared);
    add_below("now ", *row.after);
}

}  // namespace

std::string px_word_of_outcome(const PX_Datum_Change& row) {
    const std::string word = px_word_in(outcomes, row.kind);
    return row.score ? word + ' ' + px_brief(*row.score) : word;
}

void px_print_changes(std::ostream& out, const PX_Change_Report& report) {
    std::vector<Line> lines = {{"Datum", "Ability", "Outcome", "Bit", "Validated", "Default", "Value"}};
    long data = 0;
    for (const PX_Datum_Change& row : report.get_rows()) {
        add_row(lines, row);
        data += row.after.has_value();
    }
    px_print_columns(out, lines);
    out << '\n' << report.get_changed() << " of " << data << " data changed";
    if (report.get_silent() > 0)
        out << ", " << report.get_silent() << " of them without a change bit";
    for (const auto& [count, word] :
         {std::pair(report.get_appeared(), " new"), {report.get_gone(), " gone"}}) {
        if (count > 0)
            out << "; " << count << word;
    }
    out << ".\n";
    const PX_Datum_Change* const size =
        report.find({PX_Domain_Mask::Media, PX_Media_Config_Flags::Cfg_Media_Size});
    if (size && (size->change_bits & PX_Media_Change::Size_Nearest_Failed))
        out << (size->kind == Kind::To_Default ? "No size was near enough: the size went to its default.\n"
                                               : "No size was near enough, and it stays as it is.\n");
    out << "The change words name these domains:\n"
        << "    configuration: " << px_domain_words(report.get_config_changed()) << '\n'
        << "    capabilities:  " << px_domain_words(report.get_caps_changed()) << '\n';
    if (const auto& failure = report.get_failure()) {
        out << "The run failed with error " << failure->m_code;
        if (*failure->m_detail)
            out << ", " << px_quoted(failure->m_detail);
        out << ": what it did not reach is not validated.\n";
    }
}
