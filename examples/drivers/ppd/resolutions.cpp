#include "examples/drivers/ppd/resolutions.h"

#include <algorithm>
#include <cwchar>
#include <optional>

namespace {

std::optional<PX_Float_XY> dots_of(const std::wstring& name) {
    wchar_t* end = nullptr;
    const float x = std::wcstof(name.c_str(), &end);
    const float y = end && *end == L'x' ? std::wcstof(end + 1, nullptr) : x;
    // No device comes near to this; a word such as "inf" is no resolution.
    if (x > 0 && y > 0 && x < 1e5F && y < 1e5F)
        return PX_Float_XY(x, y);
    return std::nullopt;
}

void add(Ppd_Resolutions& resolutions, const Ppd_Choice& choice) {
    if (const auto dots = dots_of(choice.name))
        resolutions.choices.push_back({choice, *dots});
}

}  // namespace

Ppd_Resolutions ppd_resolutions(const Ppd_File& file) {
    const Ppd_Option option = file.option(ppd_resolution_keyword);
    Ppd_Resolutions resolutions{};
    for (const Ppd_Choice& choice : option.choices)
        add(resolutions, choice);
    resolutions.is_option = !resolutions.choices.empty();
    if (const std::wstring only = file.text("DefaultResolution"); resolutions.choices.empty())
        add(resolutions, {only, only});
    if (resolutions.choices.empty())
        return resolutions;
    const bool has_default = std::ranges::find(resolutions.choices, option.default_choice,
                                               &Ppd_Choice::name) != resolutions.choices.end();
    resolutions.default_choice = has_default ? option.default_choice : resolutions.choices.front().name;
    return resolutions;
}
