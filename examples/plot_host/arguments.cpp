#include "examples/plot_host/arguments.h"

#include <CLI/CLI.hpp>
#include <charconv>
#include <cmath>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include "toolkit/report.h"

namespace plot_host {
namespace {

namespace fs = std::filesystem;

using Strategy = PX_Validation_Strategy;
constexpr PX_Word<Strategy::Enum> strategies[] = {
    {"default", Strategy::Use_Default},
    {"nearest", Strategy::Use_Nearest},
};

using Policy = PX_Validation_Policy;
constexpr PX_Word<Policy::Enum> policies[] = {
    {"keep", Policy::Keep_All},
    {"keep-conditional", Policy::Keep_Conditional},
    {"validate", Policy::Validate_Conditional},
    {"reset", Policy::Reset_Conditional},
};

constexpr PX_Word<Pick_List> pick_lists[] = {
    {"resolutions", Pick_List::Resolutions},
    {"colours", Pick_List::Colors},
};

template <class Value, std::size_t count>
CLI::Validator one_of(const PX_Word<Value> (&words)[count]) {
    std::vector<std::string> allowed;
    for (const auto& word : words)
        allowed.emplace_back(word.word);
    return CLI::IsMember(allowed);
}

// For a range alone, nan is neither too small nor too large.
CLI::Validator a_number() {
    return CLI::Validator(
        [](const std::string& word) {
            double number = 0;
            return CLI::detail::lexical_cast(word, number) && std::isnan(number)
                       ? "Value " + word + " is no number"
                       : std::string();
        },
        "");
}

template <class Value, std::size_t count>
void add_choice_of(CLI::App& app, const char* option, const PX_Word<Value> (&words)[count], Value& value,
                   const char* description) {
    const auto store = [&](const std::string& word) { value = px_value_in(words, word).value(); };
    app.add_option_function<std::string>(option, store, description)
        ->check(one_of(words))
        ->default_str(px_word_in(words, value));
}

bool is_one_file(const fs::path& one, const fs::path& other) {
    std::error_code failure;
    if (fs::is_other(one, failure))
        return false;  // as /dev/null
    return fs::equivalent(one, other, failure) ||
           fs::weakly_canonical(fs::absolute(one)) == fs::weakly_canonical(fs::absolute(other));
}

// What is written to would be lost to the other. Only a choice may be saved where it was opened.
void refuse_one_file_for_two(const Arguments& arguments) {
    const bool to_file = arguments.to && arguments.to->kind == Destination::Kind::File;
    const struct {
        const char* option;
        fs::path file;
        bool is_read = false;
    } files[] = {{"--device", arguments.device, true},
                 {"--choice", arguments.choice, true},
                 {"--drawing", arguments.drawing, true},
                 {"--save", arguments.save},
                 {"--picture", arguments.picture},
                 {"--log", arguments.log},
                 {"--to", to_file ? fs::path(arguments.to->name) : fs::path()}};
    for (const auto& later : files) {
        for (const auto& former : files) {
            if (&former == &later)
                break;
            const bool reads_both = former.is_read && later.is_read;
            const bool saves_in_place =
                later.option == std::string_view("--save") && former.option == std::string_view("--choice");
            if (!later.file.empty() && !former.file.empty() && !reads_both && !saves_in_place &&
                is_one_file(former.file, later.file))
                throw std::runtime_error(std::string(former.option) + " and " + later.option +
                                         " name one file, '" + later.file.string() + "'");
        }
    }
}

// The two sides of a sign.
std::pair<std::string, std::string> parted(const char* option, const std::string& words, std::size_t sign) {
    if (sign == std::string::npos || sign == 0 || sign + 1 == words.size())
        throw std::runtime_error(std::string(option) + " cannot be '" + words + "'");
    return {words.substr(0, sign), words.substr(sign + 1)};
}

std::pair<std::string, int> print_server_of(const std::string& words) {
    const auto [host, port] = parted("--print-server", words, words.rfind(':'));
    int number = 0;
    const char* const end = port.data() + port.size();
    const auto [stop, failure] = std::from_chars(port.data(), end, number);
    if (failure != std::errc() || stop != end || number < 1 || number > 65535)
        throw std::runtime_error("--print-server has no port in '" + words + "'");
    return {host, number};
}

// Where a plot goes, and what of. `ports` gets the mapped ones as they stand on the line.
void add_plot_options(CLI::App& app, Arguments& arguments, std::vector<std::string>& ports) {
    const auto add_words = [&app](const char* option, const char* kind, const char* description, auto store) {
        return app.add_option_function<std::string>(option, store, description)->type_name(kind);
    };
    auto* const to = add_words("--to", "WHERE", "send a plot to file:PATH, port:NAME or queue:NAME",
                               [&](const std::string& words) { arguments.to = destination_of(words); });
    auto* const drawing =
        app.add_option("--drawing", arguments.drawing, "SVG drawing of lines and circles to plot");
    drawing->type_name("FILE")->needs(to);
    to->needs(drawing);
    app.add_flag("--any-destination", arguments.any_destination,
                 "send the plot also where the choice was put because it could not go where it was to")
        ->needs(to);
    app.add_flag("--true-arcs", arguments.true_arcs, "have the device draw circles, not lines of many sides")
        ->needs(to);
    app.add_flag("--round-dots", arguments.round_dots, "draw fat dots as circles, not as squares")->needs(to);
    app.add_option("--tessellation", arguments.tessellation, "factor for the number of a circle's sides")
        ->check(CLI::Range(0.1, 100.0))
        ->check(a_number())
        ->type_name("FACTOR")
        ->capture_default_str()
        ->needs(to);
    app.add_option("--map-port", ports, "device that a port stands for, as COM1=/dev/ttyUSB0")
        ->type_name("NAME=DEVICE");
    add_words("--print-server", "HOST:PORT", "where the queues are, if not on the usual server",
              [&](const std::string& words) { arguments.print_server = print_server_of(words); });
}

}  // namespace

std::optional<Arguments> parse_arguments(int count, const char* const* words, std::ostream& out) {
    Arguments arguments;
    CLI::App app(
        "Opens a device, brings a saved choice in line with it, tells what was changed, and plots a drawing.",
        "plot_host");
    app.add_option("--device", arguments.device,
                   "PostScript printer description of the device, or pen-plotter")
        ->required()
        ->type_name("FILE");
    app.add_option("--choice", arguments.choice, "saved choice to open; the device's defaults without it")
        ->type_name("FILE");
    app.add_option("--save", arguments.save, "where to save the choice as it is afterwards")
        ->type_name("FILE");
    app.add_option("--picture", arguments.picture,
                   "where to draw the sheet before and after, as an SVG picture")
        ->type_name("FILE");
    add_choice_of(
        app, "--strategy", strategies, arguments.strategy,
        "where a datum goes that does not fit; custom data know no nearest, they go to their default");
    add_choice_of(app, "--policy", policies, arguments.policy, "how much of the choice is looked at");
    app.add_flag("--fixed-settables", arguments.fixed_settables,
                 "put the data that the user may set to their defaults instead of validating them");
    app.add_flag("--dry-run", arguments.dry_run,
                 "only tell what would be changed; nothing is changed, saved or plotted");
    std::vector<std::string> ports;
    add_plot_options(app, arguments, ports);
    app.add_option_function<std::vector<std::string>>(
           "--list",
           [&](const std::vector<std::string>& lists) {
               for (const std::string& list : lists)
                   arguments.lists.push_back(px_value_in(pick_lists, list).value());
           },
           "show what there is to choose from")
        ->check(one_of(pick_lists));
    auto* const check = app.add_flag("--check", arguments.check,
                                     "tell what about the device makes a run fail or repeat itself, and end");
    for (const char* const other : {"--choice", "--save", "--picture", "--strategy", "--policy",
                                    "--fixed-settables", "--dry-run", "--to", "--list"})
        check->excludes(other);
    // A flag is there or is not: --dry-run=false would plot.
    for (CLI::Option* const option : app.get_options()) {
        if (option->get_expected_max() == 0)
            option->disable_flag_override();
    }
    app.add_option("--log", arguments.log, "file that failures are written to")->type_name("FILE");
    try {
        app.parse(count, words);
    } catch (const CLI::CallForHelp&) {
        out << app.help();
        return std::nullopt;
    }
    for (const std::string& words : ports) {
        arguments.mapped_ports.push_back(parted("--map-port", words, words.find('=')));
    }
    refuse_one_file_for_two(arguments);
    return arguments;
}

const char* word_for(PX_Validation_Strategy::Enum strategy) {
    return px_word_in(strategies, strategy);
}

const char* word_for(PX_Validation_Policy::Enum policy) {
    return px_word_in(policies, policy);
}

}  // namespace plot_host
