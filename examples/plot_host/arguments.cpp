#include "examples/plot_host/arguments.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <filesystem>
#include <iterator>
#include <stdexcept>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

namespace plot_host {
namespace {

namespace fs = std::filesystem;

template <class Value>
struct Word {
    const char* word;
    Value value;
};

using Strategy = PX_Validation_Strategy;
constexpr Word<Strategy::Enum> strategies[] = {
    {"default", Strategy::Use_Default},
    {"nearest", Strategy::Use_Nearest},
};

using Policy = PX_Validation_Policy;
constexpr Word<Policy::Enum> policies[] = {
    {"keep", Policy::Keep_All},
    {"keep-conditional", Policy::Keep_Conditional},
    {"validate", Policy::Validate_Conditional},
    {"reset", Policy::Reset_Conditional},
};

template <class Value, std::size_t count>
const char* word_in(const Word<Value> (&words)[count], Value value) {
    return std::ranges::find(words, value, &Word<Value>::value)->word;
}

template <class Value, std::size_t count>
void add_choice_of(CLI::App& app, const char* option, const Word<Value> (&words)[count], Value& value,
                   const char* description) {
    std::vector<std::string> allowed;
    for (const auto& word : words)
        allowed.emplace_back(word.word);
    const auto store = [&](const std::string& word) {
        value = std::ranges::find(words, word, &Word<Value>::word)->value;
    };
    app.add_option_function<std::string>(option, store, description)
        ->check(CLI::IsMember(allowed))
        ->default_str(word_in(words, value));
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
    const std::pair<const char*, const fs::path&> files[] = {{"--device", arguments.device},
                                                             {"--choice", arguments.choice},
                                                             {"--save", arguments.save},
                                                             {"--picture", arguments.picture},
                                                             {"--log", arguments.log}};
    for (const auto& [option, file] : files) {
        for (const auto& [former, former_file] : files) {
            if (&former_file == &file)
                break;
            const bool reads_both = &file == &arguments.choice;
            const bool saves_in_place = &file == &arguments.save && &former_file == &arguments.choice;
            if (!file.empty() && !former_file.empty() && !reads_both && !saves_in_place &&
                is_one_file(former_file, file))
                throw std::runtime_error(std::string(former) + " and " + option + " name one file, '" +
                                         file.string() + "'");
        }
    }
}

}  // namespace

std::optional<Arguments> parse_arguments(int count, const char* const* words, std::ostream& out) {
    Arguments arguments;
    CLI::App app("Opens a device, brings a saved choice in line with it, and tells what was changed.",
                 "plot_host");
    app.add_option("--device", arguments.device, "PostScript printer description of the device")
        ->required()
        ->type_name("FILE");
    app.add_option("--choice", arguments.choice, "saved choice to open; the device's defaults without it")
        ->type_name("FILE");
    app.add_option("--save", arguments.save, "where to save the choice as it is afterwards")
        ->type_name("FILE");
    app.add_option("--picture", arguments.picture,
                   "where to draw the sheet before and after, as an SVG picture")
        ->type_name("FILE");
    add_choice_of(app, "--strategy", strategies, arguments.strategy, "where a datum goes that does not fit");
    add_choice_of(app, "--policy", policies, arguments.policy, "how much of the choice is looked at");
    app.add_flag("--fixed-settables", arguments.fixed_settables,
                 "put the data that the user may set to their defaults instead of validating them");
    app.add_option("--log", arguments.log, "file that failures are written to")->type_name("FILE");
    try {
        app.parse(count, words);
    } catch (const CLI::CallForHelp&) {
        out << app.help();
        return std::nullopt;
    }
    refuse_one_file_for_two(arguments);
    return arguments;
}

const char* word_for(PX_Validation_Strategy::Enum strategy) {
    return word_in(strategies, strategy);
}

const char* word_for(PX_Validation_Policy::Enum policy) {
    return word_in(policies, policy);
}

}  // namespace plot_host
