#pragma once

#include <limits>
#include <span>
#include <string_view>

#include "examples/drivers/ppd/names.h"

// How makers word finishing: the keywords of collating, stapling, cutting and folding, and what the names of
// their choices tell.

// The choice is another matter than its keyword, as job storage is among the choices of collating.
inline constexpr int ppd_left_out = std::numeric_limits<int>::min();
inline constexpr int ppd_as_the_device_is_set = 19;

// The word is what a choice such as "NoStaple" may wear besides its "no".
struct Ppd_Finishing_Kind {
    std::wstring_view word;
    std::span<const Ppd_Meaning> meanings;
};

extern const Ppd_Finishing_Kind ppd_collate;
extern const Ppd_Finishing_Kind ppd_staple;
extern const Ppd_Finishing_Kind ppd_cut;
extern const Ppd_Finishing_Kind ppd_fold;

// The meanings of a row go before those of any finishing, and these before those of its kind. What is to be
// used only alone says nothing that another keyword has not said.
struct Ppd_Finishing_Keyword {
    const Ppd_Finishing_Kind& kind;
    const char* name;
    std::span<const Ppd_Meaning> meanings = {};
    bool only_alone = false;
};

std::span<const Ppd_Finishing_Keyword> ppd_known_finishing_keywords();
std::span<const Ppd_Meaning> ppd_meanings_of_any_finishing();
