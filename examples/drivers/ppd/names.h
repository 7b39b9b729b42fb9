#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "examples/drivers/ppd/ppd_file.h"

// What the names of choices tell: descriptions have no other way to say what a choice is.

// A number for a choice whose name holds the part, in small letters; a part that begins with '=' is the whole
// name.
struct Ppd_Meaning {
    std::wstring_view part;
    int number;
};

// The first row that fits decides.
std::optional<int> ppd_meaning_of(std::wstring_view name, std::span<const Ppd_Meaning> meanings);

// By its name or its shown text; a word such as "staple" before or behind the "none" is passed over.
bool ppd_does_nothing(const Ppd_Choice& choice, std::wstring_view word = {});

// "Roll 1", "1Roll" and "PaperRoll" are rolls; "Controller" and "TROLLEY" are none.
bool ppd_is_called_roll(const Ppd_Choice& slot);
