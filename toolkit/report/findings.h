#pragma once

#include <cmath>
#include <string>
#include <utility>
#include <vector>

#include "toolkit/report/device_check.h"

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
    bool is_required() const { return m_value == PX_Ability_Value::Ability_Required; }

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

// The bits of data that some policy validates; no other raises its bit.
constexpr long px_bits_if(bool is_validated, long bits) {
    return is_validated ? bits : 0;
}

// A driver's class may give null.
inline const wchar_t* px_text(const wchar_t* text) {
    return text ? text : L"";
}

// The way to an object, a step at a time: kind 'name', kind 'name'.
inline std::wstring px_named(const wchar_t* kind, const wchar_t* name) {
    return std::wstring(kind) + L" '" + px_text(name) + L"'";
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

// The entries that a choice can name. Where no default is written, a choice of a withdrawn one stays. No list
// has none.
template <class Entry, class Visit>
void px_for_each_named(const PX_Smart_Pointer<PX_Named_Object_List<Entry>>& list, Visit visit) {
    if (!list)
        return;
    for (const auto& entry : *list) {
        if (entry && list->find(entry->get_canonical_name()) == entry)
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

// `kind` is what an entry is called. A search that comes upon the later of two entries writes its name, and
// the earlier one is found by it: a withdrawn one is repaired with every run, which raises `bits`.
template <class Entry>
void px_check_names(const PX_Smart_Pointer<PX_Named_Object_List<Entry>>& list, const std::wstring& outer,
                    const wchar_t* kind, const PX_Findings& found, long bits = 0) {
    if (!list)
        return;
    for (const auto& entry : *list) {
        const auto first = entry ? list->find(entry->get_canonical_name()) : nullptr;
        if (first == entry)
            continue;
        const std::wstring object = px_in(outer, px_named(kind, *entry));
        if (bits && px_is_there(entry) && !px_is_there(first))
            found.repeats(object, PX_Fault::Equal_Names, bits);
        else
            found.passes_over(object, PX_Fault::Equal_Names);
    }
}

// What a name that stands for `entry` is to be called, when it is not there.
template <class Entry>
PX_Fault::Enum px_fault_of_name(const PX_Smart_Pointer<Entry>& entry) {
    return entry ? PX_Fault::Names_Withdrawn : PX_Fault::Names_Nothing;
}

// What the searches can measure; their scores end at the greatest number of 32 bits.
inline bool px_is_measure(float number) {
    return std::fabs(number) < 1e8F;
}
inline bool px_is_measure(const PX_Float_XY& pair) {
    return px_is_measure(pair.x) && px_is_measure(pair.y);
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

// What is no number is never equal to its snapshot, and nothing is near to it: the search, where one looks
// for the validated datum, ends with `detail`. What cannot be measured is never the nearest.
inline void px_check_measure(bool is_nan, bool is_measure, const std::wstring& object, bool is_validated,
                             const wchar_t* detail, const PX_Findings& found) {
    if (is_nan && is_validated)
        found.throws(object, PX_Fault::No_Measure, PX_Code::Null_Argument, detail);
    else if (!is_measure)
        found.passes_over(object, PX_Fault::No_Measure);
}
