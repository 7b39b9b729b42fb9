#include <algorithm>
#include <cwchar>
#include <string>

#include "fuzz/support.h"
#include "toolkit/marvcon/marvcon.h"

// Flag sets of every kind, and the accessors of the domains.

namespace {

using fuzz::Input;
using fuzz::require;

// The sets with what only derived classes see.
template <class Kind>
class Open : public Kind {
public:
    using Kind::Kind;
    using Kind::setNumFlags;
};

// What a set of the kind answers for a flag that was given this value.
template <class Kind, class Value>
Value kept(Value value) {
    if constexpr (std::is_same_v<Value, bool>)
        return value;
    constexpr int highest = std::is_base_of_v<PX_Abilities, Kind> ? 5 : 3;
    const int number = static_cast<int>(value);
    return static_cast<Value>(number >= -1 && number <= highest ? number : -1);
}

// One operation on the set; gives the text that the set has to have then.
template <class Kind, class Value>
std::wstring take_step(Input& input, Open<Kind>& set, int flag, Value value) {
    const std::wstring before = set.get_text();
    switch (input.up_to(6)) {
        case 0: {
            const std::wstring text = input.text(40);
            set.set_text(text.c_str());
            return text;
        }
        case 1: {
            const int other = flag / 2;
            const auto its_value = set.get_one(other);
            set.set_one(value, flag);
            require(other == flag || set.get_one(other) == its_value, "the other flags stay");
            const int index = std::is_same_v<Value, bool> && flag > 0 ? flag / 4 : flag;
            if (index >= 0 && index < std::ssize(before))
                require(set.get_one(flag) == kept<Kind>(value), "a flag is what it was set to");
            return set.get_text();
        }
        case 2:
            set.set_all(value);
            require(before.empty() || set.get_one(0) == kept<Kind>(value), "all flags are set");
            return set.get_text();
        case 3: {
            const int count = input.rarely() ? std::min(flag, -1) : input.byte();
            set.setNumFlags(count);
            std::wstring text = before;
            if (count >= 0)
                text.resize(static_cast<std::size_t>(count), L'0');
            // A digit may have become the end of the text.
            return before == set.get_text() && text.starts_with(before) ? before : text;
        }
        case 4: {
            // A part of its own text.
            const std::size_t skipped = std::min<std::size_t>(input.byte(), before.size());
            set.set_text(set.get_text() + skipped);
            return before.substr(skipped);
        }
        case 5: {
            const Open<Kind> copy(set);
            set = copy;
            return before;
        }
        default:
            set.set_text(nullptr);
            return {};
    }
}

template <class Kind, class Value>
void drive(Input& input) {
    Open<Kind> set;
    while (!input.is_empty()) {
        const int flag = input.number<int>();
        const auto value = static_cast<Value>(input.number<int>());
        const std::wstring text = take_step(input, set, flag, value);
        require(set.get_text() == text, "the text is that of the digits");
        for (const int each : {flag, flag / 2, input.up_to(60)})
            require(set.get_one(each) == kept<Kind>(set.get_one(each)), "a flag is one of its values");
        if constexpr (std::is_same_v<Value, bool>) {
            const int n = flag % 100;
            bool all = true;
            for (int each = 0; each < n; ++each)
                all = all && set.get_one(each);
            require(set.get_flags(n) == all, "the flags up to a number");
        }
    }
}

// Numbers outside of the range are refused with 1104, any other is taken.
template <class Call>
void check_range(int flag, int count, Call call) {
    bool is_refused = false;
    try {
        call();
    } catch (const PX_Severe_Error& refusal) {
        is_refused = true;
        require(refusal.m_code == PX_Code::Out_Of_Range, "the code of a flag that is out of range");
    }
    require(is_refused == (flag < -1 || flag >= count), "exactly what is out of range is refused");
}

// One turn of a group of accessors; `one` is the name that its operations on one flag have.
#define DRIVE(object, group, one, Flags, Value)                                                            \
    do {                                                                                                   \
        const int number = input.number<int>();                                                            \
        const auto flag = static_cast<typename Flags::Enum>(number);                                       \
        const auto value = static_cast<Value>(input.number<int>());                                        \
        if (input.flag())                                                                                  \
            (object).set_##group(input.text(70).c_str());                                                  \
        if (input.rarely())                                                                                \
            (object).set_##group(value);                                                                   \
        check_range(number, Flags::range.count, [&] { (object).set_one_##one(value, flag); });             \
        check_range(number, Flags::range.count, [&] { static_cast<void>((object).get_one_##one(flag)); }); \
    } while (false)

// The accessors of one class; it lacks the groups that are void.
template <class Capabilities, class Abilities, class States = void, class Owners = void>
void drive_groups(Input& input) {
    Capabilities object;
    while (!input.is_empty()) {
        DRIVE(object, abilities, ability, Abilities, PX_Ability_Value::Enum);
        if constexpr (!std::is_void_v<Owners>)
            DRIVE(object, ui_owner, ui_owner, Owners, PX_UI_Owner::Enum);
        if constexpr (!std::is_void_v<States>)
            DRIVE(object, caps_state, caps_state, States, bool);
        const PX_Smart_Pointer clone(object.clone());
        bool is_same = std::wcscmp(clone->get_abilities(), object.get_abilities()) == 0;
        if constexpr (!std::is_void_v<Owners>)
            is_same = is_same && std::wcscmp(clone->get_ui_owner(), object.get_ui_owner()) == 0;
        if constexpr (!std::is_void_v<States>)
            is_same = is_same && std::wcscmp(clone->get_caps_state(), object.get_caps_state()) == 0;
        require(is_same, "a clone has the same flags");
    }
}

// Line patterns: what is given to one is its own, and a clone answers as its original.
void drive_patterns(Input& input) {
    PX_Smart_Pointer<PX_Linetype_Capabilities> object(new PX_Std_Linetype_Capabilities);
    while (!input.is_empty()) {
        const int number = input.number<int>();
        const auto pattern = static_cast<PX_Line_Pattern::Enum>(number);
        const bool on = input.flag();
        if (input.flag())
            object->set_linefont_capabilities(input.text(8).c_str());
        object->set_linefont_capability(on, pattern);
        const auto size = static_cast<float>(input.byte());
        object->set_linefont_size(pattern, size);
        const bool is_there = number >= 0 && number < PX_Line_Pattern::count;
        require(object->get_linefont_size(pattern) == (is_there ? size : 0), "the size of a pattern");
        require(!object->get_linefont_capability(pattern) || on, "a pattern that was turned off");
        const bool had = object->get_linefont_capability(pattern);
        object = object->clone();
        require(object->get_linefont_capability(pattern) == had, "a clone has the same patterns");
    }
}

// The used code points. One without a place in the set reads as not used, and is not set.
void drive_code_points(Input& input) {
    PX_Smart_Pointer usage(new PX_Font_Usage_Data);
    bool has_set = false;
    while (!input.is_empty()) {
        const int point = input.flag() ? input.number<unsigned short>() : input.number<int>();
        const bool has_place = has_set && point >= 0 && point < (usage->get_single_byte() ? 8704 : 65536);
        const auto count = usage->how_many();
        const bool was_used = usage->codepoint_used(point);
        switch (input.up_to(4)) {
            case 0:
                usage->set_single_byte(input.flag());
                has_set = true;
                require(usage->how_many() == 0, "no code point of another set");
                break;
            case 1:
                usage->clear_all();
                require(usage->how_many() == 0, "no code point of those that were cleared");
                break;
            case 2:
                usage = usage->clone();
                has_set = true;
                require(usage->how_many() == count && usage->codepoint_used(point) == was_used, "a clone");
                break;
            default:
                usage->set_bit(point);
                require(usage->codepoint_used(point) == has_place, "a code point");
                require(usage->how_many() == count + (has_place && !was_used), "how many code points");
        }
    }
}

constexpr void (*turns[])(Input&) = {
    drive<PX_Abilities, PX_Ability_Value::Enum>,
    drive<PX_UI_Ownership, PX_UI_Owner::Enum>,
    drive<PX_Boolean_Flags, bool>,
    drive_groups<PX_Std_Media_Capabilities, PX_Media_Ability_Flags, PX_Media_User_Flags,
                 PX_Media_UI_Owner_Flags>,
    drive_groups<PX_Std_ResColorMem_Capabilities, PX_ResColorMem_Ability_Flags, PX_ResColorMem_User_Flags,
                 PX_ResColorMem_UI_Owner_Flags>,
    drive_groups<PX_Std_Plotter_IO_Capabilities, PX_Plotter_IO_Ability_Flags, PX_Plotter_IO_User_Flags,
                 PX_IO_UI_Owner_Flags>,
    drive_groups<PX_Std_InitTerm_Capabilities, PX_InitTerm_Ability_Flags, void, PX_InitTerm_UI_Owner_Flags>,
    drive_groups<PX_Std_IO_Method, PX_IO_Method_Ability_Flags>,
    drive_groups<PX_Std_IO_Port, PX_IO_Port_Ability_Flags>,
    drive_groups<PX_Std_PhysPen_Capabilities, PX_Pen_Ability_Flags, PX_Pen_User_Flags,
                 PX_PhysPen_UI_Owner_Flags>,
    drive_groups<PX_Std_Linetype_Capabilities, PX_Linetype_Ability_Flags, PX_Linetype_User_Flags>,
    drive_groups<PX_Std_Raster_Capabilities, PX_Raster_Ability_Flags, PX_Raster_User_Flags>,
    drive_patterns,
    drive_code_points,
};

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    Input input(bytes, size);
    input.one_of(turns)(input);
    return 0;
}
