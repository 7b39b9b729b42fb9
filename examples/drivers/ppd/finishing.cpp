#include "examples/drivers/ppd/finishing.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "examples/common/made.h"
#include "examples/drivers/ppd/names.h"

namespace {

using Ability = PX_Media_Ability_Flags;
using Value = PX_Ability_Value;
using Factory = PX_Plotter_Class_Factory;
using Meanings = std::span<const Ppd_Meaning>;

// The choice is another matter than its keyword, as job storage is among the choices of collating.
constexpr int left_out = std::numeric_limits<int>::min();
constexpr int as_the_device_is_set = 19;
constexpr std::size_t first_own_number = 20;

struct Collating {
    enum Enum : int { Sets = 1, Page_By_Page = 2 };
};

struct Staple {
    enum Enum : int {
        Upper_Left = 1,
        Upper_Right,
        Lower_Left,
        Lower_Right,
        Two_Left,
        Two_Right,
        Two_Upper,
        Two_Lower,
        Center,
        Somewhere,
        Stapleless_Upper_Left,
        Stapleless_Upper_Right,
        Stapleless_Lower_Left,
        Stapleless_Lower_Right,
    };
};

struct Cut {
    enum Enum : int { Page = 1, Set, Job };
};

struct Fold {
    enum Enum : int {
        Half = 1,
        Letter,
        Z,
        Double_Parallel,
        Gate,
        Fan,
        Half_Outside,
        Half_Inside,
        Letter_Out,
        Z_Bottom,
        Z_Right,
        Z_Left,
    };
};

constexpr Ppd_Meaning any_kind[] = {
    {L"=default", as_the_device_is_set},
    {L"=prndef", as_the_device_is_set},
    {L"=printers", as_the_device_is_set},
};

constexpr Ppd_Meaning collating[] = {
    {L"=true", Collating::Sets},
    {L"=on", Collating::Sets},
    {L"=sort", Collating::Sets},
    {L"=group", Collating::Page_By_Page},
};

constexpr Ppd_Meaning collating_or_storing[] = {
    {L"=on", Collating::Sets},
    {L"=prndef", as_the_device_is_set},
    {L"", left_out},
};

// "1PLU" is one staple, on a portrait sheet at the left and upper edge; "2PL" are two at the left.
constexpr Ppd_Meaning stapling[] = {
    {L"staplessupperleft", Staple::Stapleless_Upper_Left},
    {L"staplessupperright", Staple::Stapleless_Upper_Right},
    {L"staplesslowerleft", Staple::Stapleless_Lower_Left},
    {L"staplesslowerright", Staple::Stapleless_Lower_Right},
    {L"=eco1plu", Staple::Stapleless_Upper_Left},
    {L"=eco1pru", Staple::Stapleless_Upper_Right},
    {L"=eco1plb", Staple::Stapleless_Lower_Left},
    {L"=eco1prb", Staple::Stapleless_Lower_Right},
    {L"=upperleft", Staple::Upper_Left},
    {L"=topleft", Staple::Upper_Left},
    {L"topleftportrait", Staple::Upper_Left},
    {L"=1plu", Staple::Upper_Left},
    {L"=upl", Staple::Upper_Left},
    {L"=ul", Staple::Upper_Left},
    {L"=upperright", Staple::Upper_Right},
    {L"=topright", Staple::Upper_Right},
    {L"toprightportrait", Staple::Upper_Right},
    {L"=1pru", Staple::Upper_Right},
    {L"=upr", Staple::Upper_Right},
    {L"=ur", Staple::Upper_Right},
    {L"=lowerleft", Staple::Lower_Left},
    {L"=bottomleft", Staple::Lower_Left},
    {L"=1plb", Staple::Lower_Left},
    {L"=ll", Staple::Lower_Left},
    {L"=lowerright", Staple::Lower_Right},
    {L"=bottomright", Staple::Lower_Right},
    {L"=1prb", Staple::Lower_Right},
    {L"=lr", Staple::Lower_Right},
    {L"=leftw", Staple::Two_Left},
    {L"=dualleft", Staple::Two_Left},
    {L"=2pl", Staple::Two_Left},
    {L"=cl", Staple::Two_Left},
    {L"=rightw", Staple::Two_Right},
    {L"=dualright", Staple::Two_Right},
    {L"=2pr", Staple::Two_Right},
    {L"=cr", Staple::Two_Right},
    {L"=upperw", Staple::Two_Upper},
    {L"=dualtop", Staple::Two_Upper},
    {L"=2pu", Staple::Two_Upper},
    {L"=cu", Staple::Two_Upper},
    {L"=lowerw", Staple::Two_Lower},
    {L"=dualbottom", Staple::Two_Lower},
    {L"=2pb", Staple::Two_Lower},
    {L"=center", Staple::Center},
    {L"=center1", Staple::Center},
    {L"=centerw", Staple::Center},
    {L"=on", Staple::Somewhere},
    {L"=true", Staple::Somewhere},
    {L"=endofset", Staple::Somewhere},
};

constexpr Ppd_Meaning stapling_or_punching[] = {
    {L"=onlystaple", Staple::Somewhere},
    {L"=punchl", left_out},
    {L"=punchp", left_out},
};

constexpr Ppd_Meaning cutting[] = {{L"page", Cut::Page}, {L"set", Cut::Set}, {L"job", Cut::Job}};

constexpr Ppd_Meaning folding[] = {
    {L"=outsidetwofold", Fold::Half_Outside},
    {L"=foldoutside", Fold::Half_Outside},
    {L"=halffoldout", Fold::Half_Outside},
    {L"=insidetwofold", Fold::Half_Inside},
    {L"=foldinside", Fold::Half_Inside},
    {L"=halffoldin", Fold::Half_Inside},
    {L"=threefoldout", Fold::Letter_Out},
    {L"=letterfoldout", Fold::Letter_Out},
    {L"twofold", Fold::Half},
    {L"=bifold", Fold::Half},
    {L"=halffold", Fold::Half},
    {L"=foldhalf", Fold::Half},
    {L"=v-folding", Fold::Half},
    {L"threefold", Fold::Letter},
    {L"=letterfoldin", Fold::Letter},
    {L"=trifold", Fold::Letter},
    {L"=foldc", Fold::Letter},
    {L"=c-folding", Fold::Letter},
    {L"=foldz", Fold::Z},
    {L"zfold", Fold::Z},
    {L"=quarto", Fold::Double_Parallel},
    {L"=folddouble", Fold::Double_Parallel},
    {L"=gatefold", Fold::Gate},
    {L"=foldaccordion", Fold::Fan},
    {L"=fan", Fold::Fan},
    {L"=fanfold", Fold::Fan},
};

constexpr Ppd_Meaning z_folding[] = {
    {L"=bottom", Fold::Z_Bottom},
    {L"=right", Fold::Z_Right},
    {L"=left", Fold::Z_Left},
};

constexpr Ppd_Meaning half_folding[] = {{L"=true", Fold::Half}};

// The maker of booklets, which staples the middle, is under the same keyword.
constexpr Ppd_Meaning folding_or_booklet[] = {
    {L"=on", left_out},       {L"stitch", left_out},  {L"=stapling", left_out},
    {L"=trimming", left_out}, {L"booklet", left_out},
};

// The word is what a choice such as "NoStaple" may wear besides its "no".
struct Kind {
    std::wstring_view word;
    Meanings meanings;
};

constexpr Kind collate = {L"collate", collating};
constexpr Kind staple = {L"staple", stapling};
constexpr Kind cut = {L"cut", cutting};
constexpr Kind fold = {L"fold", folding};

// The meanings of a row go before those of its kind. What is to be used only alone says nothing that another
// keyword has not said.
struct Keyword {
    const Kind& kind;
    const char* name;
    Meanings meanings = {};
    bool only_alone = false;
};

constexpr Keyword keywords[] = {
    {collate, "Collate"},
    {collate, "JCLCollate"},
    {collate, "BRCollate"},
    {collate, "HKCollate"},
    {collate, "OKCollate"},
    {collate, "RICollate"},
    {collate, "JCLMSORT"},
    {collate, "KCCollate", collating_or_storing},

    {staple, "StapleLocation"},
    {staple, "KCStaple"},
    {staple, "KMStapleMode"},
    {staple, "KmStaple"},
    {staple, "ARStaple"},
    {staple, "Stapling"},
    {staple, "Staple"},
    {staple, "RIStaple"},
    {staple, "StapleJob"},
    {staple, "StaplePos"},
    {staple, "EcoStaplePos"},
    {staple, "HKStapleLocation"},
    {staple, "JCLARStaple"},
    {staple, "JCLMSTAPLER"},
    {staple, "JCLStapleLocation"},
    {staple, "OCStaple"},
    {staple, "OKStaple", stapling_or_punching},
    {staple, "JCLFINISH"},
    {staple, "StapleWhen", {}, true},

    {cut, "CutMedia"},

    {fold, "FoldType"},
    {fold, "RIFoldType"},
    {fold, "KCFoldA"},
    {fold, "ARFold"},
    {fold, "JCLFoldingOption"},
    {fold, "HKHalfFolding", half_folding},
    {fold, "Fold", folding_or_booklet},
    {fold, "RIZfold", z_folding},
};

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

std::vector<Finish> choices_of(const Keyword& keyword, const Ppd_Option& option) {
    std::vector<Finish> finishes;
    for (const Ppd_Choice& choice : option.choices) {
        const bool nothing = ppd_does_nothing(choice, keyword.kind.word);
        std::optional<int> number;
        for (const Meanings meanings : {keyword.meanings, Meanings(any_kind), keyword.kind.meanings}) {
            if (!number)
                number = ppd_meaning_of(choice.name, meanings);
        }
        if (nothing || number != left_out)
            finishes.push_back({choice, number, nothing});
    }
    return finishes;
}

bool finishes_at_all(const std::vector<Finish>& choices) {
    return std::ranges::any_of(choices, [](const Finish& choice) {
        return !choice.does_nothing && choice.number != as_the_device_is_set;
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

Finishing finishing_of(const Ppd_File& file, const Kind& kind) {
    Finishing finishing;
    for (const Keyword& keyword : keywords) {
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

}  // namespace

void ppd_fill_destinations(const Ppd_File& file, const Factory& factory,
                           PX_Media_Capabilities& capabilities) {
    const Finishing collated = finishing_of(file, collate), stapled = finishing_of(file, staple);
    const Finishing cut_off = finishing_of(file, cut), folded = finishing_of(file, fold);
    const auto collating_list =
        listed(collated.choices, factory, &Factory::MK_Create_Media_Collating_List,
               &Factory::MK_Create_Media_Collating, [](PX_Media_Collating& option, const Finish& choice) {
                   option.set_collating_type(number_of(choice, PX_Media_Collating_Type::Collating_Type_0));
               });
    const auto stapling_list =
        listed(stapled.choices, factory, &Factory::MK_Create_Media_Stapling_List,
               &Factory::MK_Create_Media_Stapling, [](PX_Media_Stapling& option, const Finish& choice) {
                   option.set_stapling_location(
                       number_of(choice, PX_Media_Stapling_Location::Stapling_Location_None));
                   option.set_stapling_when(when<PX_Media_Stapling_When::Enum>(choice));
               });
    const auto cutting_list =
        listed(cut_off.choices, factory, &Factory::MK_Create_Media_Cutting_List,
               &Factory::MK_Create_Media_Cutting, [](PX_Media_Cutting& option, const Finish& choice) {
                   option.set_cutting_when(number_of(choice, PX_Media_Cutting_When::Cutting_When_0));
               });
    const auto folding_list =
        listed(folded.choices, factory, &Factory::MK_Create_Media_Folding_List,
               &Factory::MK_Create_Media_Folding, [](PX_Media_Folding& option, const Finish& choice) {
                   option.set_folding_type(number_of(choice, PX_Media_Folding_Type::Folding_Type_None));
                   option.set_folding_when(when<PX_Media_Folding_When::Enum>(choice));
               });

    bool finishes = false;
    const auto allow_finishing = [&](const Finishing& finishing, Ability::Enum flag) {
        if (finishing.choices.empty())
            return;
        finishes = true;
        capabilities.set_one_ability(Value::Ability_Settable_Listed, flag);
    };
    allow_finishing(collated, Ability::Ability_Media_Collating);
    allow_finishing(stapled, Ability::Ability_Media_Stapling);
    allow_finishing(cut_off, Ability::Ability_Media_Cutting);
    allow_finishing(folded, Ability::Ability_Media_Folding);

    Ppd_Option bins = file.option("OutputBin");
    if (bins.choices.empty() && finishes)
        bins = {{{L"Output", L"Output"}}, L"Output"};
    const auto destinations =
        listed(bins.choices, factory, &Factory::MK_Create_Media_Destination_List,
               &Factory::MK_Create_Media_Destination, [&](PX_Media_Destination& bin, const Ppd_Choice&) {
                   bin.set_collating_list(collating_list.get());
                   bin.set_default_collating(collated.default_choice.c_str());
                   bin.set_stapling_list(stapling_list.get());
                   bin.set_default_stapling(stapled.default_choice.c_str());
                   bin.set_cutting_list(cutting_list.get());
                   bin.set_default_cutting(cut_off.default_choice.c_str());
                   bin.set_folding_list(folding_list.get());
                   bin.set_default_folding(folded.default_choice.c_str());
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
    for (const Kind* const kind : {&collate, &staple, &cut, &fold}) {
        const std::vector<std::string> more = finishing_of(file, *kind).keywords;
        keywords.insert(keywords.end(), more.begin(), more.end());
    }
    return keywords;
}
