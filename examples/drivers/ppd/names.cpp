#include "examples/drivers/ppd/names.h"

#include <algorithm>
#include <cwctype>

namespace {

std::wstring lower(std::wstring_view text) {
    std::wstring lowered(text);
    std::ranges::transform(lowered, lowered.begin(), [](wchar_t c) { return std::towlower(std::wint_t(c)); });
    return lowered;
}

// Every maker has its own word for nothing.
bool means_nothing(std::wstring_view word) {
    return word == L"none" || word == L"off" || word == L"false" || word == L"no";
}

std::wstring_view without_separators(std::wstring_view text) {
    constexpr std::wstring_view separators = L" _-";
    const auto first = text.find_first_not_of(separators);
    if (first == std::wstring_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(separators) - first + 1);
}

bool means_nothing(std::wstring_view text, std::wstring_view word) {
    const std::wstring lowered = lower(text);
    const std::wstring_view name = without_separators(lowered);
    if (means_nothing(name))
        return true;
    if (word.empty() || name.size() < word.size())
        return false;
    const auto rest = name.size() - word.size();
    return (name.starts_with(word) && means_nothing(without_separators(name.substr(word.size())))) ||
           (name.ends_with(word) && means_nothing(without_separators(name.substr(0, rest))));
}

bool holds_roll(const std::wstring& name) {
    for (std::size_t at = 0; at + 4 <= name.size(); ++at) {
        if (lower(name.substr(at, 4)) != L"roll")
            continue;
        const auto before = at == 0 ? L' ' : std::wint_t(name[at - 1]);
        if (!std::iswalpha(before) || (name[at] == L'R' && std::iswlower(before)))
            return true;
    }
    return false;
}

}  // namespace

std::optional<int> ppd_meaning_of(std::wstring_view name, std::span<const Ppd_Meaning> meanings) {
    const std::wstring lowered = lower(name);
    for (const Ppd_Meaning& meaning : meanings) {
        const bool whole = meaning.part.starts_with(L'=');
        if (whole ? lowered == meaning.part.substr(1) : lowered.find(meaning.part) != std::wstring::npos)
            return meaning.number;
    }
    return std::nullopt;
}

bool ppd_does_nothing(const Ppd_Choice& choice, std::wstring_view word) {
    return means_nothing(choice.name, word) || means_nothing(choice.text, word);
}

bool ppd_is_called_roll(const Ppd_Choice& slot) {
    return holds_roll(slot.name) || holds_roll(slot.text);
}
