#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "toolkit/report/change_report.h"
#include "toolkit/report/item_value.h"

// The rows of the report, a file for each domain.

inline constexpr const wchar_t* px_report_file = PX_SOURCE(L"report").file_tag;

// The keys of any two different values differ; `shown` is what a person reads.
struct PX_Value_Words {
    std::string exact{};
    std::string shown{};  // in one line, or in several with '\n' between them

    PX_Value_Words& name(const wchar_t* text);
    PX_Value_Words& number(const char* before, double value);
    PX_Value_Words& bounds(const PX_Float_Rectangle& value);
    PX_Value_Words& extent(const char* before, const PX_Float_XY& value);
    // The same to compare and to read.
    PX_Value_Words& text(std::string_view text);
    // Compared, but not shown.
    PX_Value_Words& unseen(const PX_Value_Words& words);
};

std::string_view px_bytes_of(const PX_Dev_String& string);

// A value that needs no word beside it.
PX_Value_Words px_words_of(const wchar_t* name);
PX_Value_Words px_words_of(bool yes);
PX_Value_Words px_words_of(const PX_Smart_Pointer<PX_Float_Rectangle>& bounds);
PX_Value_Words px_words_of(const PX_Smart_Pointer<PX_Dev_String>& string);
template <class Number>
requires std::is_arithmetic_v<Number> || std::is_enum_v<Number> PX_Value_Words px_words_of(Number number) {
    if constexpr (std::is_floating_point_v<Number>)
        return PX_Value_Words().number("", number);
    else
        return PX_Value_Words().text(std::to_string(number));
}

// What repairs a datum that is not valid. To the nearest under that strategy, unless the row tells more.
enum class PX_Repair { To_Default, To_Nearest, By_Own_Rule };

// A run that is over, as the rules of the report look back at it.
struct PX_Reported_Run {
    const PX_Configuration_Snapshot& before;  // what the run found
    const PX_Plotter_Capabilities& capabilities;
    const PX_Plotter_Configuration& configuration;
    const PX_Plotter_Validator& validator;
};

struct PX_Report_State {
    std::optional<PX_Ability_Value::Enum> ability;  // the datum's own
    std::optional<PX_Ability_Value::Enum> gate;     // what the walk reads for it; none for custom data
    bool validated = false;
    bool is_default = false;
    long change_bits = 0;
    bool is_raised = false;
};

struct PX_Report_Datum {
    PX_Datum_Id id;
    std::string name;
    int ability_number;
    std::function<PX_Value_Words(const PX_Plotter_Configuration&)> value;
    std::function<PX_Report_State(const PX_Reported_Run&)> state;
    PX_Repair repair = PX_Repair::To_Default;
    // What the search measured; none for a search without a measure.
    std::function<std::optional<double>(const PX_Reported_Run&)> score{};
    // For a repair to the nearest with a rule of its own for when it is one. Never asked where the default
    // was taken.
    std::function<bool(PX_Validation_Strategy::Enum, const PX_Plotter_Capabilities&)> goes_to_nearest{};
    // Whether every setter of the value takes the default flag away, so that the flag tells of this very
    // value.
    bool flag_follows_value = true;
    // Whether the default operation leaves the datum as it is, so that it can only have come along; for a
    // datum that others write to.
    std::function<bool(const PX_Plotter_Capabilities&)> keeps_at_default{};
    // What it is called in the report, where that is the device's to say.
    std::function<std::string(const PX_Plotter_Capabilities&)> title{};
};

// All of them, in the order of the report.
std::vector<PX_Report_Datum> px_report_data(const PX_Plotter_Configuration& configuration);

std::vector<PX_Report_Datum> px_media_data();
std::vector<PX_Report_Datum> px_pen_data();
std::vector<PX_Report_Datum> px_color_data();
std::vector<PX_Report_Datum> px_output_data();
std::vector<PX_Report_Datum> px_init_term_data();
// A domain whose data go by names of their own finds its rows in the configuration.
std::vector<PX_Report_Datum> px_custom_data(const PX_Plotter_Configuration& configuration);

// One object of a root; a missing one is MVNK_Error 1103.
template <class Root, class Object>
PX_Smart_Pointer<Object> px_reported(const Root& root, PX_Smart_Pointer<Object> (Root::*get)() const) {
    auto object = (root.*get)();
    constexpr bool is_choice = std::is_same_v<Root, PX_Plotter_Configuration>;
    px_require_argument(object, L"px_reported", is_choice ? L"configuration" : L"capabilities",
                        px_report_file);
    return object;
}

// The maker of the rows of a domain, which has one object in the configuration and one in the capabilities.
template <PX_Domain_Mask::Enum domain, auto get_configuration, auto get_capabilities, auto get_changes>
struct PX_Report_Domain {
    // `source` is a getter of the configuration's object, or a function that makes words of it. `gate` is the
    // ability that the walk reads. A row of several flags goes by the first, and is validated, and a default,
    // when all of them are. No bits for a datum that raises none.
    template <auto source, auto ability, auto gate, auto flag, auto... more_flags>
    static PX_Report_Datum gated_row(const char* name, long bits, PX_Repair repair = PX_Repair::To_Default) {
        const auto value = [](const PX_Plotter_Configuration& configuration) {
            const auto chosen = px_reported(configuration, get_configuration);
            if constexpr (std::is_member_function_pointer_v<decltype(source)>)
                return px_words_of(((*chosen).*source)());
            else
                return source(*chosen);
        };
        const auto state = [bits](const PX_Reported_Run& run) {
            const auto chosen = px_reported(run.configuration, get_configuration);
            const auto offered = px_reported(run.capabilities, get_capabilities);
            const long raised = (run.validator.*get_changes)() & bits;
            return PX_Report_State{
                offered->get_one_ability(ability),
                offered->get_one_ability(gate),
                chosen->get_one_validated(flag) && (chosen->get_one_validated(more_flags) && ...),
                chosen->get_one_default(flag) && (chosen->get_one_default(more_flags) && ...),
                raised,
                raised != 0};
        };
        return {{domain, flag}, name, ability, value, state, repair};
    }
    template <auto source, auto ability, auto flag, auto... more_flags>
    static PX_Report_Datum row(const char* name, long bits, PX_Repair repair = PX_Repair::To_Default) {
        return gated_row<source, ability, ability, flag, more_flags...>(name, bits, repair);
    }
};
