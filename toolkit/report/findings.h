#pragma once

#include <cmath>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

#include "toolkit/report/device_check.h"
#include "toolkit/report/text.h"

// What the checks of the domains have in common.

using PX_Fault = PX_Device_Fault;

// The findings of one domain, as they come.
class PX_Findings {
public:
    PX_Findings(std::vector<PX_Device_Finding>& findings, long domain)
        : m_findings(findings), m_domain(domain) {}

    void throws(std::wstring object, PX_Fault::Enum fault, unsigned int code,
                const wchar_t* detail = L"") const {
        m_findings.push_back({m_domain, std::move(object), fault, PX_Device_Effect::Throws, code, detail, 0});
    }
    // `bits` of the domain's change word; custom data have none.
    void repeats(std::wstring object, PX_Fault::Enum fault, long bits) const {
        m_findings.push_back({m_domain, std::move(object), fault, PX_Device_Effect::Repeats, 0, L"", bits});
    }
    void passes_over(std::wstring object, PX_Fault::Enum fault) const {
        m_findings.push_back({m_domain, std::move(object), fault, PX_Device_Effect::Passed_Over, 0, L"", 0});
    }

private:
    std::vector<PX_Device_Finding>& m_findings;
    long m_domain;
};

// An ability as the rules of a run ask for it. An undefined one is above nothing.
class PX_Ability_Of {
public:
    PX_Ability_Of(PX_Ability_Value::Enum value) : m_value(value) {}

    bool is_undefined() const { return m_value == PX_Ability_Value::Ability_Undefined; }
    bool is_none() const { return m_value == PX_Ability_Value::Ability_None; }
    bool is_fixed() const { return m_value == PX_Ability_Value::Ability_Fixed; }
    bool is_above_none() const { return m_value > PX_Ability_Value::Ability_None; }
    // As a gate: some policy validates the datum.
    bool is_validated() const { return m_value >= PX_Ability_Value::Ability_Settable; }
    bool is_listed() const { return m_value >= PX_Ability_Value::Ability_Settable_Listed; }
    bool is_conditional() const { return m_value == PX_Ability_Value::Ability_Conditional; }
    bool is_required() const { return m_value == PX_Ability_Value::Ability_Required; }
    // As gates: whether some run validates the one datum and not the other.
    bool is_validated_without(PX_Ability_Of other) const {
        return is_validated() && !other.is_required() &&
               (!other.is_validated() || is_required() || is_conditional() != other.is_conditional());
    }

private:
    PX_Ability_Value::Enum m_value;
};

// A gate by its datum's name. Every run asks for each of them.
template <class Flags>
struct PX_Gate {
    typename Flags::Enum flag;
    const wchar_t* datum;
};
template <class Capabilities, class Flags, std::size_t count>
void px_check_gates(const Capabilities& capabilities, const PX_Gate<Flags> (&gates)[count],
                    const PX_Findings& found) {
    for (const PX_Gate<Flags>& gate : gates) {
        if (PX_Ability_Of(capabilities.get_one_ability(gate.flag)).is_undefined())
            found.throws(std::wstring(L"ability of the ") + gate.datum, PX_Fault::Ability_Undefined,
                         PX_Code::Bad_Ability);
    }
}

// An undefined gate is told by itself. For all other findings it counts as required: none is hidden by it,
// and none comes of it.
template <class Capabilities, class Flags, std::size_t count>
PX_Ability_Of px_ability_of(const Capabilities& capabilities, const PX_Gate<Flags> (&gates)[count],
                            typename Flags::Enum flag) {
    const PX_Ability_Of ability = capabilities.get_one_ability(flag);
    if (ability.is_undefined()) {
        for (const PX_Gate<Flags>& gate : gates) {
            if (gate.flag == flag)
                return PX_Ability_Value::Ability_Required;
        }
    }
    return ability;
}

// The bits of data that some policy validates; no other raises its bit.
constexpr long px_bits_if(bool is_validated, long bits) {
    return is_validated ? bits : 0;
}

// A driver's class may give null.
inline const wchar_t* px_text(const wchar_t* text) {
    return text ? text : L"";
}

// The way to an object, a step at a time: kind 'name', kind 'name'. It stays on its line whatever the name
// is.
inline std::wstring px_named(const wchar_t* kind, const wchar_t* name) {
    return std::wstring(kind) + L" '" + px_line_of(px_text(name)) + L"'";
}
template <class Entry>
std::wstring px_named(const wchar_t* kind, const Entry& entry) {
    return px_named(kind, entry.get_canonical_name());
}
inline std::wstring px_in(const std::wstring& outer, const std::wstring& inner) {
    return outer.empty() ? inner : outer + L", " + inner;
}

template <class Entry>
bool px_is_withdrawn(const Entry& entry) {
    return entry.get_caps_type() == PX_Caps_Type::Caps_Type_Withdrawn;
}

// The first entry of each name, as the list finds it. The list outlives this.
template <class Entry>
class PX_Names {
public:
    using List = PX_Smart_Pointer<PX_Named_Object_List<Entry>>;

    // No list has no names.
    explicit PX_Names(const List& list) {
        if (!list)
            return;
        for (const auto& entry : *list) {
            const wchar_t* const name = entry ? entry->get_canonical_name() : nullptr;
            if (name)
                m_first.try_emplace(name, &entry);
        }
    }

    PX_Smart_Pointer<Entry> find(const wchar_t* name) const {
        const auto place = m_first.find(px_text(name));
        return place == m_first.end() ? nullptr : *place->second;
    }

private:
    std::unordered_map<std::wstring, const PX_Smart_Pointer<Entry>*> m_first;
};

// The entries that a choice can name. Where no default is written, a choice of a withdrawn one stays. No list
// has none.
template <class Entry, class Visit>
void px_for_each_named(const PX_Smart_Pointer<PX_Named_Object_List<Entry>>& list, Visit visit) {
    if (!list)
        return;
    std::unordered_set<std::wstring> met;
    for (const auto& entry : *list) {
        const wchar_t* const name = entry ? entry->get_canonical_name() : nullptr;
        if (name && met.insert(name).second)
            visit(*entry);
    }
}
// Those that a run leaves: they are not withdrawn.
template <class Entry, class Visit>
void px_for_each_there(const PX_Smart_Pointer<PX_Named_Object_List<Entry>>& list, Visit visit) {
    px_for_each_named(list, [&](const Entry& entry) {
        if (!px_is_withdrawn(entry))
            visit(entry);
    });
}
// Whether a search comes upon one: it walks the list, whatever the names.
template <class Entry, class Condition>
bool px_has_one_there(const PX_Smart_Pointer<PX_Named_Object_List<Entry>>& list, Condition condition) {
    if (list) {
        for (const auto& entry : *list) {
            if (px_is_there(entry) && condition(*entry))
                return true;
        }
    }
    return false;
}
template <class Entry>
bool px_has_one_there(const PX_Smart_Pointer<PX_Named_Object_List<Entry>>& list) {
    return px_has_one_there(list, [](const Entry&) { return true; });
}

// Calls `tell(the way to it, entry, the earlier one)` for each entry whose name an earlier one bears. `kind`
// is what an entry is called.
template <class Entry, class Tell>
void px_check_names(const PX_Smart_Pointer<PX_Named_Object_List<Entry>>& list, const std::wstring& outer,
                    const wchar_t* kind, Tell tell) {
    if (!list)
        return;
    const PX_Names<Entry> names(list);
    int place = 0;
    for (const auto& entry : *list) {
        ++place;
        const auto first = entry ? names.find(entry->get_canonical_name()) : nullptr;
        if (first != entry)
            tell(px_in(px_in(outer, px_named(kind, *entry)), L"place " + std::to_wstring(place)), entry,
                 first);
    }
}
// Whether a search that comes upon the later of two entries, and writes its name, has chosen a withdrawn one.
template <class Entry>
bool px_falls_back(const PX_Smart_Pointer<Entry>& later, const PX_Smart_Pointer<Entry>& first) {
    return px_is_there(later) && first && px_is_withdrawn(*first);
}
// What is told of the later ones: that they are never found; or, where a search comes upon them, that the
// withdrawn one is repaired with every run, which raises `bits`.
inline auto px_passing_over(const PX_Findings& found) {
    return [&found](const std::wstring& object, const auto& /*later*/, const auto& /*first*/) {
        found.passes_over(object, PX_Fault::Equal_Names);
    };
}
inline auto px_repeating(const PX_Findings& found, long bits) {
    return [&found, bits](const std::wstring& object, const auto& later, const auto& first) {
        if (bits && px_falls_back(later, first))
            found.repeats(object, PX_Fault::Equal_Names, bits);
        else
            found.passes_over(object, PX_Fault::Equal_Names);
    };
}
// The withdrawn ones that a search chooses in this way.
template <class Entry, class Visit>
void px_for_each_fallen_back_on(const PX_Smart_Pointer<PX_Named_Object_List<Entry>>& list, Visit visit) {
    std::unordered_set<const Entry*> met;
    px_check_names(list, L"", L"", [&](const std::wstring&, const auto& later, const auto& first) {
        if (px_falls_back(later, first) && met.insert(first.get()).second)
            visit(*first);
    });
}

// What a name that stands for `entry` is to be called, when it is not there.
template <class Entry>
PX_Fault::Enum px_fault_of_name(const PX_Smart_Pointer<Entry>& entry) {
    return entry ? PX_Fault::Names_Withdrawn : PX_Fault::Names_Nothing;
}

// Where the scores of most searches end: nothing is near that is so far from a choice that was never made.
inline constexpr double px_worst_score = 2147483647.0;

inline bool px_is_finite(const PX_Float_XY& pair) {
    return std::isfinite(pair.x) && std::isfinite(pair.y);
}
inline bool px_is_nan(const PX_Float_XY& pair) {
    return std::isnan(pair.x) || std::isnan(pair.y);
}
inline bool px_is_nan(const PX_Float_Rectangle& bounds) {
    return std::isnan(bounds.x_min) || std::isnan(bounds.x_max) || std::isnan(bounds.y_min) ||
           std::isnan(bounds.y_max);
}
// A value that a driver's class may not have; zeros then, as where it was never set.
template <class Value>
Value px_value(const PX_Smart_Pointer<Value>& value) {
    return value ? *value : Value();
}

// Of a validated datum. What is no number is never equal to its snapshot, and nothing is near to it: the
// search ends with `detail`, and where it is the default that is written, every run writes it again and
// raises `bits`. What cannot be measured is never the nearest.
inline void px_check_measure(bool is_nan, bool is_measure, const std::wstring& object, const wchar_t* detail,
                             bool is_default, long bits, const PX_Findings& found) {
    if (is_nan)
        found.throws(object, PX_Fault::No_Measure, PX_Code::Null_Argument, detail);
    else if (!is_measure && !is_default)
        found.passes_over(object, PX_Fault::No_Measure);
    if (is_nan && is_default)
        found.repeats(object, PX_Fault::No_Measure, bits);
}
