#include "examples/plot_host/arguments.h"

#include <gtest/gtest.h>

#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using Strategy = PX_Validation_Strategy;
using Policy = PX_Validation_Policy;
constexpr auto usual_strategy = Strategy::Use_Nearest;
constexpr auto usual_policy = Policy::Validate_Conditional;

std::optional<plot_host::Arguments> parse(std::vector<const char*> words, std::ostream& out) {
    words.insert(words.begin(), "plot_host");
    return plot_host::parse_arguments(static_cast<int>(words.size()), words.data(), out);
}

TEST(Arguments, EachWordHasItsMeaning) {
    const struct {
        const char* name;
        std::vector<const char*> words;
        Strategy::Enum strategy;
        Policy::Enum policy;
        bool fixed_settables;
    } rows[] = {
        {"nothing", {}, Strategy::Use_Nearest, Policy::Validate_Conditional, false},
        {"strategy default", {"--strategy", "default"}, Strategy::Use_Default, usual_policy, false},
        {"strategy nearest", {"--strategy", "nearest"}, Strategy::Use_Nearest, usual_policy, false},
        {"policy keep", {"--policy", "keep"}, usual_strategy, Policy::Keep_All, false},
        {"policy keep-conditional",
         {"--policy", "keep-conditional"},
         usual_strategy,
         Policy::Keep_Conditional,
         false},
        {"policy validate", {"--policy", "validate"}, usual_strategy, Policy::Validate_Conditional, false},
        {"policy reset", {"--policy", "reset"}, usual_strategy, Policy::Reset_Conditional, false},
        {"fixed settables", {"--fixed-settables"}, usual_strategy, usual_policy, true},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        std::vector<const char*> words = {"--device", "d"};
        words.insert(words.end(), row.words.begin(), row.words.end());
        std::ostringstream out;
        const auto arguments = parse(words, out);
        ASSERT_TRUE(arguments);
        EXPECT_EQ(arguments->device, "d");
        EXPECT_EQ(arguments->strategy, row.strategy);
        EXPECT_EQ(arguments->policy, row.policy);
        EXPECT_EQ(arguments->fixed_settables, row.fixed_settables);
        EXPECT_EQ(out.str(), "");
        // What the report says is what the user would have said.
        if (row.words.size() == 2) {
            const std::string told = row.words[0] == std::string("--strategy")
                                         ? plot_host::word_for(arguments->strategy)
                                         : plot_host::word_for(arguments->policy);
            EXPECT_EQ(told, row.words[1]);
        }
    }
}

TEST(Arguments, WhatMakesNoSenseIsAnErrorAndHelpIsNone) {
    const struct {
        const char* name;
        std::vector<const char*> words;
    } rows[] = {
        {"no device", {}},
        {"unknown strategy", {"--device", "d", "--strategy", "keep"}},
        {"unknown policy", {"--device", "d", "--policy", "nearest"}},
        {"unknown option", {"--device", "d", "--fixed"}},
    };
    std::ostringstream out;
    for (const auto& row : rows)
        EXPECT_THROW(parse(row.words, out), std::runtime_error) << row.name;
    EXPECT_EQ(out.str(), "");
    EXPECT_FALSE(parse({"--help"}, out));
    EXPECT_NE(out.str(), "");
}

}  // namespace
