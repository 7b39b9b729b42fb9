#include "examples/drivers/ppd/finishing_words.h"

namespace {

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
    {L"=default", ppd_as_the_device_is_set},
    {L"=prndef", ppd_as_the_device_is_set},
    {L"=printers", ppd_as_the_device_is_set},
};

constexpr Ppd_Meaning collating[] = {
    {L"=true", Collating::Sets},
    {L"=on", Collating::Sets},
    {L"=sort", Collating::Sets},
    {L"=group", Collating::Page_By_Page},
};

constexpr Ppd_Meaning collating_or_storing[] = {
    {L"=on", Collating::Sets},
    {L"=prndef", ppd_as_the_device_is_set},
    {L"", ppd_left_out},
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
    {L"=punchl", ppd_left_out},
    {L"=punchp", ppd_left_out},
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
    {L"=on", ppd_left_out},       {L"stitch", ppd_left_out},  {L"=stapling", ppd_left_out},
    {L"=trimming", ppd_left_out}, {L"booklet", ppd_left_out},
};

}  // namespace

const Ppd_Finishing_Kind ppd_collate = {L"collate", collating};
const Ppd_Finishing_Kind ppd_staple = {L"staple", stapling};
const Ppd_Finishing_Kind ppd_cut = {L"cut", cutting};
const Ppd_Finishing_Kind ppd_fold = {L"fold", folding};

namespace {

const Ppd_Finishing_Keyword keywords[] = {
    {ppd_collate, "Collate"},
    {ppd_collate, "JCLCollate"},
    {ppd_collate, "BRCollate"},
    {ppd_collate, "HKCollate"},
    {ppd_collate, "OKCollate"},
    {ppd_collate, "RICollate"},
    {ppd_collate, "JCLMSORT"},
    {ppd_collate, "KCCollate", collating_or_storing},

    {ppd_staple, "StapleLocation"},
    {ppd_staple, "KCStaple"},
    {ppd_staple, "KMStapleMode"},
    {ppd_staple, "KmStaple"},
    {ppd_staple, "ARStaple"},
    {ppd_staple, "Stapling"},
    {ppd_staple, "Staple"},
    {ppd_staple, "RIStaple"},
    {ppd_staple, "StapleJob"},
    {ppd_staple, "StaplePos"},
    {ppd_staple, "EcoStaplePos"},
    {ppd_staple, "HKStapleLocation"},
    {ppd_staple, "JCLARStaple"},
    {ppd_staple, "JCLMSTAPLER"},
    {ppd_staple, "JCLStapleLocation"},
    {ppd_staple, "OCStaple"},
    {ppd_staple, "OKStaple", stapling_or_punching},
    {ppd_staple, "JCLFINISH"},
    {ppd_staple, "StapleWhen", {}, true},

    {ppd_cut, "CutMedia"},

    {ppd_fold, "FoldType"},
    {ppd_fold, "RIFoldType"},
    {ppd_fold, "KCFoldA"},
    {ppd_fold, "ARFold"},
    {ppd_fold, "JCLFoldingOption"},
    {ppd_fold, "HKHalfFolding", half_folding},
    {ppd_fold, "Fold", folding_or_booklet},
    {ppd_fold, "RIZfold", z_folding},
};

}  // namespace

std::span<const Ppd_Finishing_Keyword> ppd_known_finishing_keywords() {
    return keywords;
}

std::span<const Ppd_Meaning> ppd_meanings_of_any_finishing() {
    return any_kind;
}
