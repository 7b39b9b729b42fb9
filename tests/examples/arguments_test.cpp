#include "examples/plot_host/arguments.h"

#include <gtest/gtest.h>

#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using Strategy = PX_Validation_Strategy;
using Policy = PX_Validation_Policy;

std::optional<plot_host::Arguments> parse(std::vector<const char*> words, std::ostream& out) {
    words.insert(words.begin(), "plot_host");
    return plot_host::parse_arguments(static_cast<int>(words.size()), words.data(), out);
}

TEST(Arguments, EachWordHasItsMeaning) {
    const struct {
        std::vector<const char*> words;
        Strategy::Enum strategy;
        Policy::Enum policy;
    } rows[] = {
        {{}, Strategy::Use_Nearest, Policy::Validate_Conditional},
        {{"--strategy", "default"}, Strategy::Use_Default, Policy::Validate_Conditional},
        {{"--strategy", "nearest"}, Strategy::Use_Nearest, Policy::Validate_Conditional},
        {{"--policy", "keep"}, Strategy::Use_Nearest, Policy::Keep_All},
        {{"--policy", "keep-conditional"}, Strategy::Use_Nearest, Policy::Keep_Conditional},
        {{"--policy", "validate"}, Strategy::Use_Nearest, Policy::Validate_Conditional},
        {{"--policy", "reset"}, Strategy::Use_Nearest, Policy::Reset_Conditional},
        {{"--fixed-settables"}, Strategy::Use_Nearest, Policy::Validate_Conditional},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.words.empty() ? "nothing" : row.words.back());
        std::vector<const char*> words = {"--device", "d"};
        words.insert(words.end(), row.words.begin(), row.words.end());
        std::ostringstream out;
        const auto arguments = parse(words, out);
        ASSERT_TRUE(arguments);
        EXPECT_EQ(arguments->strategy, row.strategy);
        EXPECT_EQ(arguments->policy, row.policy);
        EXPECT_EQ(arguments->fixed_settables, row.words.size() == 1);
        // What the report says is what the user would have said.
        if (row.words.size() == 2) {
            const bool of_strategy = row.words[0] == std::string("--strategy");
            EXPECT_STREQ(of_strategy ? plot_host::word_for(row.strategy) : plot_host::word_for(row.policy),
                         row.words[1]);
        }
    }
}

TEST(Arguments, WhatMakesNoSenseIsAnErrorAndHelpIsNone) {
    std::ostringstream out;
    for (const std::vector<const char*>& words :
         {std::vector<const char*>{},
          {"--device", "d", "--strategy", "keep"},
          {"--device", "d", "--policy", "nearest"},
          {"--device", "d", "--fixed"},
          {"--device", "d", "--dry-run=false"},
          {"--device", "d", "--drawing", "v", "--to", "file:p", "--tessellation", "nan"},
          {"--device", "d", "--check", "--save", "s"},
          {"--device", "d", "--check", "--strategy", "default"}})
        EXPECT_THROW(parse(words, out), std::runtime_error) << words.size();
    EXPECT_EQ(out.str(), "");
    EXPECT_FALSE(parse({"--help"}, out));
    EXPECT_NE(out.str(), "");
}

}  // namespace
