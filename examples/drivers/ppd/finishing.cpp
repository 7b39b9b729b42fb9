#include "examples/drivers/ppd/finishing.h"

#include <algorithm>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "examples/common/made.h"
#include "examples/drivers/ppd/finishing_words.h"

namespace {

using Ability = PX_Media_Ability_Flags;
using Value = PX_Ability_Value;
using Factory = PX_Plotter_Class_Factory;

constexpr std::size_t first_own_number = 20;

// Without a number, a choice has a meaning that no row tells.
struct Finish : Ppd_Choice {
    std::optional<int> number;
    bool does_nothing;
};

struct Finishing {
    std::vector<Finish> choices;
    std::wstring default_choice;
    std::vector<std::string> keywords;
};

std::vector<Finish> choices_of(const Ppd_Finishing_Keyword& keyword, const Ppd_Option& option) {
    std::vector<Finish> finishes;
    for (const Ppd_Choice& choice : option.choices) {
        const bool nothing = ppd_does_nothing(choice, keyword.kind.word);
        std::optional<int> number;
        for (const auto meanings :
             {keyword.meanings, ppd_meanings_of_any_finishing(), keyword.kind.meanings}) {
            if (!number)
                number = ppd_meaning_of(choice.name, meanings);
        }
        if (nothing || number != ppd_left_out)
            finishes.push_back({choice, number, nothing});
    }
    return finishes;
}

bool finishes_at_all(const std::vector<Finish>& choices) {
    return std::ranges::any_of(choices, [](const Finish& choice) {
        return !choice.does_nothing && choice.number != ppd_as_the_device_is_set;
    });
}

// One way to do nothing is enough. False when nothing was added.
bool join(std::vector<Finish>& list, std::vector<Finish> more) {
    if (std::ranges::any_of(list, &Finish::does_nothing))
        std::erase_if(more, [](const Finish& choice) { return choice.does_nothing; });
    const auto is_taken = [&](const Finish& choice) {
        return std::ranges::find(list, choice.name, &Finish::name) != list.end();
    };
    if (std::ranges::any_of(more, is_taken))
        return false;
    list.insert(list.end(), more.begin(), more.end());
    return true;
}

void give_own_numbers(std::vector<Finish>& list) {
    std::set<int> taken;
    for (std::size_t at = 0; at < list.size(); ++at) {
        Finish& choice = list[at];
        if (choice.does_nothing || (choice.number && taken.insert(*choice.number).second))
            continue;
        choice.number = static_cast<int>(first_own_number + at);
    }
}

Finishing finishing_of(const Ppd_File& file, const Ppd_Finishing_Kind& kind) {
    Finishing finishing;
    for (const Ppd_Finishing_Keyword& keyword : ppd_known_finishing_keywords()) {
        if (&keyword.kind != &kind || (keyword.only_alone && !finishing.choices.empty()))
            continue;
        const Ppd_Option option = file.option(keyword.name);
        auto choices = choices_of(keyword, option);
        if (!finishes_at_all(choices))
            continue;
        if (finishing.choices.empty())
            finishing = {std::move(choices), option.default_choice, {}};
        else if (!join(finishing.choices, std::move(choices)))
            continue;
        finishing.keywords.emplace_back(keyword.name);
    }
    give_own_numbers(finishing.choices);
    const auto& list = finishing.choices;
    if (!list.empty() && std::ranges::find(list, finishing.default_choice, &Finish::name) == list.end()) {
        const auto nothing = std::ranges::find_if(list, &Finish::does_nothing);
        finishing.default_choice = (nothing == list.end() ? list.front() : *nothing).name;
    }
    return finishing;
}

// One entry a choice, with its names; `fill(entry, choice)` does the rest.
template <class Choice, class Entry, class Fill>
PX_Smart_Pointer<PX_Named_Object_List<Entry>> listed(const std::vector<Choice>& choices,
                                                     const Factory& factory,
                                                     PX_Named_Object_List<Entry>* (Factory::*new_list)()
                                                         const,
                                                     Entry* (Factory::*new_entry)() const, Fill fill) {
    auto list = made((factory.*new_list)(), L"list");
    for (const Choice& choice : choices) {
        const auto entry =
            made_named((factory.*new_entry)(), L"entry", choice.name.c_str(), choice.text.c_str());
        fill(*entry, choice);
        list->append(entry);
    }
    return list;
}

// The number of a choice, or the one that stands for nothing.
template <class Number>
Number number_of(const Finish& choice, Number nothing) {
    return choice.does_nothing ? nothing : static_cast<Number>(choice.number.value());
}

template <class When>
When when(const Finish& choice) {
    return static_cast<When>(choice.does_nothing ? 0 : 1);
}

// How a file's sheets are finished, and what its destinations offer of that.
struct All_Finishing {
    template <class Entry>
    using List = PX_Smart_Pointer<PX_Named_Object_List<Entry>>;

    Finishing collated, stapled, cut_off, folded;
    List<PX_Media_Collating> collating_list{};
    List<PX_Media_Stapling> stapling_list{};
    List<PX_Media_Cutting> cutting_list{};
    List<PX_Media_Folding> folding_list{};
};

All_Finishing all_finishing_of(const Ppd_File& file, const Factory& factory) {
    All_Finishing all = {finishing_of(file, ppd_collate), finishing_of(file, ppd_staple),
                         finishing_of(file, ppd_cut), finishing_of(file, ppd_fold)};
    all.collating_list =
        listed(all.collated.choices, factory, &Factory::MK_Create_Media_Collating_List,
               &Factory::MK_Create_Media_Collating, [](PX_Media_Collating& option, const Finish& choice) {
                   option.set_collating_type(number_of(choice, PX_Media_Collating_Type::Collating_Type_0));
               });
    all.stapling_list =
        listed(all.stapled.choices, factory, &Factory::MK_Create_Media_Stapling_List,
               &Factory::MK_Create_Media_Stapling, [](PX_Media_Stapling& option, const Finish& choice) {
                   option.set_stapling_location(
                       number_of(choice, PX_Media_Stapling_Location::Stapling_Location_None));
                   option.set_stapling_when(when<PX_Media_Stapling_When::Enum>(choice));
               });
    all.cutting_list =
        listed(all.cut_off.choices, factory, &Factory::MK_Create_Media_Cutting_List,
               &Factory::MK_Create_Media_Cutting, [](PX_Media_Cutting& option, const Finish& choice) {
                   option.set_cutting_when(number_of(choice, PX_Media_Cutting_When::Cutting_When_0));
               });
    all.folding_list =
        listed(all.folded.choices, factory, &Factory::MK_Create_Media_Folding_List,
               &Factory::MK_Create_Media_Folding, [](PX_Media_Folding& option, const Finish& choice) {
                   option.set_folding_type(number_of(choice, PX_Media_Folding_Type::Folding_Type_None));
                   option.set_folding_when(when<PX_Media_Folding_When::Enum>(choice));
               });
    return all;
}

}  // namespace

void ppd_fill_destinations(const Ppd_File& file, const Factory& factory,
                           PX_Media_Capabilities& capabilities) {
    const All_Finishing all = all_finishing_of(file, factory);
    bool finishes = false;
    const auto allow_finishing = [&](const Finishing& finishing, Ability::Enum flag) {
        if (finishing.choices.empty())
            return;
        finishes = true;
        capabilities.set_one_ability(Value::Ability_Settable_Listed, flag);
    };
    allow_finishing(all.collated, Ability::Ability_Media_Collating);
    allow_finishing(all.stapled, Ability::Ability_Media_Stapling);
    allow_finishing(all.cut_off, Ability::Ability_Media_Cutting);
    allow_finishing(all.folded, Ability::Ability_Media_Folding);

    Ppd_Option bins = file.option("OutputBin");
    if (bins.choices.empty() && finishes)
        bins = {{{L"Output", L"Output"}}, L"Output"};
    const auto destinations =
        listed(bins.choices, factory, &Factory::MK_Create_Media_Destination_List,
               &Factory::MK_Create_Media_Destination, [&](PX_Media_Destination& bin, const Ppd_Choice&) {
                   bin.set_collating_list(all.collating_list.get());
                   bin.set_default_collating(all.collated.default_choice.c_str());
                   bin.set_stapling_list(all.stapling_list.get());
                   bin.set_default_stapling(all.stapled.default_choice.c_str());
                   bin.set_cutting_list(all.cutting_list.get());
                   bin.set_default_cutting(all.cut_off.default_choice.c_str());
                   bin.set_folding_list(all.folding_list.get());
                   bin.set_default_folding(all.folded.default_choice.c_str());
               });
    capabilities.set_media_destination_list(destinations.get());
    capabilities.set_default_media_destination(bins.default_choice.c_str());
    if (bins.choices.empty())
        return;
    // Finishing is reached through the destination, a single one too.
    capabilities.set_one_ability(
        bins.choices.size() > 1 || finishes ? Value::Ability_Settable_Listed : Value::Ability_Fixed,
        Ability::Ability_Media_Destination);
    capabilities.set_one_ability(Value::Ability_Settable_Listed, Ability::Ability_Media_Destination_Default);
}

std::vector<std::string> ppd_finishing_keywords(const Ppd_File& file) {
    std::vector<std::string> keywords;
    for (const Ppd_Finishing_Kind* const kind : {&ppd_collate, &ppd_staple, &ppd_cut, &ppd_fold}) {
        const std::vector<std::string> more = finishing_of(file, *kind).keywords;
        keywords.insert(keywords.end(), more.begin(), more.end());
    }
    return keywords;
}
