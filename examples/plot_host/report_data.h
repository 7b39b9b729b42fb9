#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "examples/common/custom_values.h"
#include "examples/plot_host/report.h"

// The rows of the report, a file for each domain.
namespace plot_host {

struct State {
    std::optional<PX_Ability_Value::Enum> ability;  // none for custom data, which have no abilities
    bool validated;
    bool is_default;
};

// A row of the report, which is known by its name.
struct Datum {
    std::string name;
    std::function<Value(const PX_Plotter_Configuration&)> value;
    std::function<State(const PX_Plotter_Capabilities&, const PX_Plotter_Configuration&)> state;
    // Whether the last run of the validator names it as changed.
    std::function<bool(const PX_Plotter_Validator&)> is_raised;
    // What it is called in the report, where that is the device's to say.
    std::function<std::string(const PX_Plotter_Capabilities&)> title{};
};

// A domain whose data go by names of their own finds its rows in the configuration. report.cpp has the list
// of the domains.
std::vector<Datum> media_data(const PX_Plotter_Configuration& configuration);
std::vector<Datum> pens_data(const PX_Plotter_Configuration& configuration);
std::vector<Datum> color_data(const PX_Plotter_Configuration& configuration);
std::vector<Datum> output_data(const PX_Plotter_Configuration& configuration);
std::vector<Datum> init_term_data(const PX_Plotter_Configuration& configuration);
std::vector<Datum> custom_data(const PX_Plotter_Configuration& configuration);

// Enough digits to tell any two numbers apart; `shown` has those that a person reads.
struct Words {
    std::string exact{};
    std::string shown{};  // in one line, or in several with '\n' between them

    Words& name(const wchar_t* text);
    Words& number(const char* before, double value);
    Words& bounds(const PX_Float_Rectangle& value);
    Words& extent(const char* before, const PX_Float_XY& value);
    // The same to compare and to read.
    Words& text(std::string_view text);
};

// A value that needs no word beside it.
Words words_of(const wchar_t* name);
Words words_of(bool yes);
Words words_of(const PX_Smart_Pointer<PX_Float_Rectangle>& bounds);
Words words_of(const PX_Smart_Pointer<PX_Dev_String>& string);
Words words_of(const Custom_Value& value);
template <class Number>
requires std::is_arithmetic_v<Number> || std::is_enum_v<Number> Words words_of(Number number) {
    return Words().number("", static_cast<double>(number));
}

// The maker of the rows of a domain, which has one object in the configuration and one in the capabilities.
template <auto get_configuration, auto get_capabilities, auto get_changes>
struct Report_Domain {
    // `source` is a getter of the configuration's object, or a function that makes Words of it. A row of
    // several flags is validated, and a default, when all of them are. No bits for a domain that raises none.
    template <auto source, auto ability, auto... flags>
    static Datum row(const char* name, long change_bits) {
        const auto value = [](const PX_Plotter_Configuration& configuration) {
            const auto chosen = (configuration.*get_configuration)();
            Words words;
            if constexpr (std::is_member_function_pointer_v<decltype(source)>)
                words = words_of(((*chosen).*source)());
            else
                words = source(*chosen);
            return Value{words.exact, words.shown};
        };
        const auto state = [](const PX_Plotter_Capabilities& capabilities,
                              const PX_Plotter_Configuration& configuration) {
            const auto chosen = (configuration.*get_configuration)();
            return State{(capabilities.*get_capabilities)()->get_one_ability(ability),
                         (chosen->get_one_validated(flags) && ...), (chosen->get_one_default(flags) && ...)};
        };
        const auto is_raised = [change_bits](const PX_Plotter_Validator& validator) {
            return ((validator.*get_changes)() & change_bits) != 0;
        };
        return {name, value, state, is_raised};
    }
};

}  // namespace plot_host
