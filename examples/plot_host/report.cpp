#include "examples/plot_host/report.h"

#include <algorithm>
#include <array>
#include <iomanip>
#include <sstream>
#include <string_view>

#include "examples/common/text.h"

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

std::string quoted(const wchar_t* name) {
    return *name ? '"' + text::on_one_line(text::to_utf8(name)) + '"' : "(none)";
}

// Enough digits to tell any two numbers apart; `shown` has those that a person reads.
struct Words {
    std::string exact;
    std::string shown;

    Words& name(const wchar_t* text) {
        exact += text::to_utf8(text) + '\0';
        shown += quoted(text);
        return *this;
    }
    Words& number(const char* before, double value) {
        std::ostringstream exactly, briefly;
        exactly << std::hexfloat << value << '\0';
        briefly << std::setprecision(7) << value;
        exact += exactly.str();
        shown += before + briefly.str();
        return *this;
    }
    Words& bounds(const PX_Float_Rectangle& value) {
        return number("x ", value.x_min)
            .number(" to ", value.x_max)
            .number(", y ", value.y_min)
            .number(" to ", value.y_max);
    }
    Words& extent(const char* before, const PX_Float_XY& value) {
        return number(before, value.x).number(" x ", value.y);
    }
};

using Media = PX_Media_Configuration;
using Snapshot_Of_Media = PX_Media_Settings;

// A name and what it stood for: the same name may stand for another thing on another device.
Words words_of_type(const Media& media, const Snapshot_Of_Media& had) {
    return Words()
        .name(media.get_media_type())
        .extent(", resolution ", *had.get_max_resolution())
        .number(", drying time ", static_cast<double>(had.get_drying_time()));
}
Words words_of_source(const Media& media, const Snapshot_Of_Media& had) {
    return Words().name(media.get_media_source()).number(", feed ", had.get_media_feed());
}
Words words_of_entry(const Media& media, const Snapshot_Of_Media& had) {
    return Words()
        .name(media.get_media_source_entry())
        .number(", ", had.get_source_width())
        .number(" x ", had.get_source_frame_height());
}
Words words_of_size(const Media& media, const Snapshot_Of_Media& had) {
    Words words =
        Words()
            .name(media.get_media_size())
            .extent(", ", *had.get_media_bounds())
            .number(had.get_landscape_mode_flag() ? ", landscape, printable area " : ", printable area ",
                    had.get_printable_area());
    // Too much for a line; the picture shows it.
    words.exact += Words().bounds(*had.get_printable_bounds()).exact;
    return words;
}
Words words_of_destination(const Media& media, const Snapshot_Of_Media&) {
    return Words().name(media.get_media_destination());
}
Words words_of_collating(const Media& media, const Snapshot_Of_Media& had) {
    return Words().name(media.get_media_collating()).number(", type ", had.get_collating_type());
}
Words words_of_stapling(const Media& media, const Snapshot_Of_Media& had) {
    return Words()
        .name(media.get_media_stapling())
        .number(", location ", had.get_stapling_location())
        .number(", when ", had.get_stapling_when())
        .number(", orientation ", had.get_stapling_orientation());
}
Words words_of_cutting(const Media& media, const Snapshot_Of_Media& had) {
    return Words().name(media.get_media_cutting()).number(", when ", had.get_cutting_when());
}
Words words_of_folding(const Media& media, const Snapshot_Of_Media& had) {
    return Words()
        .name(media.get_media_folding())
        .number(", type ", had.get_folding_type())
        .number(", when ", had.get_folding_when());
}
template <auto get>
Words words_of_number(const Media& media, const Snapshot_Of_Media&) {
    return Words().number("", static_cast<double>((media.*get)()));
}
template <auto get>
Words words_of_bounds(const Media& media, const Snapshot_Of_Media&) {
    return Words().bounds(*(media.*get)());
}

using Ability = PX_Media_Ability_Flags;
using Cfg = PX_Media_Config_Flags;

template <Words (*words)(const Media&, const Snapshot_Of_Media&), Ability::Enum ability, Cfg::Enum flag,
          long bit>
constexpr Datum media_row(const char* name) {
    constexpr auto value = [](const PX_Plotter_Configuration& configuration) {
        const auto media = configuration.get_media_configuration();
        const Words told = words(*media, *media->get_media_settings());
        return Value{told.exact, told.shown};
    };
    constexpr auto state = [](const PX_Plotter_Capabilities& capabilities,
                              const PX_Plotter_Configuration& configuration) {
        const auto media = configuration.get_media_configuration();
        return State{capabilities.get_media_capabilities()->get_one_ability(ability),
                     media->get_one_validated(flag), media->get_one_default(flag)};
    };
    return {name, value, state, &PX_Plotter_Validator::get_media_cfg_changes, bit};
}

using Strings = PX_InitTerm_Configuration;
using String_Flag = PX_InitTerm_Ability_Flags;

constexpr Datum data[] = {
    media_row<words_of_number<&Media::get_media_selection_method>, Ability::Ability_Media_Selection_Method,
              Cfg::Cfg_Selection_Method, 0x40>("Selection method"),
    media_row<words_of_type, Ability::Ability_Media_Type, Cfg::Cfg_Media_Type, 0x80>("Media type"),
    media_row<words_of_source, Ability::Ability_Media_Source, Cfg::Cfg_Media_Source, 0x1>("Source"),
    media_row<words_of_entry, Ability::Ability_Media_Source_Entry, Cfg::Cfg_Media_Source_Entry, 0x20000>(
        "Source entry"),
    media_row<words_of_size, Ability::Ability_Media_Size, Cfg::Cfg_Media_Size, 0x2>("Size"),
    media_row<words_of_destination, Ability::Ability_Media_Destination, Cfg::Cfg_Media_Destination, 0x4>(
        "Destination"),
    media_row<words_of_collating, Ability::Ability_Media_Collating, Cfg::Cfg_Media_Collating, 0x2000>(
        "Collating"),
    media_row<words_of_stapling, Ability::Ability_Media_Stapling, Cfg::Cfg_Media_Stapling, 0x4000>(
        "Stapling"),
    media_row<words_of_cutting, Ability::Ability_Media_Cutting, Cfg::Cfg_Media_Cutting, 0x8000>("Cutting"),
    media_row<words_of_folding, Ability::Ability_Media_Folding, Cfg::Cfg_Media_Folding, 0x10000>("Folding"),
    media_row<words_of_number<&Media::get_number_of_copies>, Ability::Ability_Number_Of_Copies,
              Cfg::Cfg_Number_Of_Copies, 0x10>("Copies"),
    media_row<words_of_number<&Media::get_duplexing_mode>, Ability::Ability_Duplexing, Cfg::Cfg_Duplexing,
              0x8>("Duplexing"),
    media_row<words_of_bounds<&Media::get_margins>, Ability::Ability_Media_Size, Cfg::Cfg_Margins, 0x20>(
        "Margins"),
    media_row<words_of_number<&Media::get_longplot_reduction>, Ability::Ability_Longplot_Reduction,
              Cfg::Cfg_Longplot_Reduction, 0x200>("Longplot reduction"),
    media_row<words_of_number<&Media::get_dm_scale>, Ability::Ability_Dm_Scale, Cfg::Cfg_Dm_Scale, 0x400>(
        "Scale"),
    media_row<words_of_number<&Media::get_dm_orientation>, Ability::Ability_Dm_Orientation,
              Cfg::Cfg_Dm_Orientation, 0x800>("Orientation"),
    media_row<words_of_bounds<&Media::get_actual_printable_bounds>, Ability::Ability_Actual_Printable_Bounds,
              Cfg::Cfg_Actual_Printable_Bounds, 0x1000>("Actual printable bounds"),
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
    for (const Datum& datum : data) {
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
