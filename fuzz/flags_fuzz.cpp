#include <algorithm>
#include <cwchar>
#include <map>
#include <set>

#include "fuzz/support.h"
#include "toolkit/marvcon/marvcon.h"

// Flag sets of every kind against a plain text of digits, and the accessors of the domains.

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

// A digit is any number added to the character 0; a digit that becomes the end of a text stays in the set.
wchar_t digit(int value) {
    return static_cast<wchar_t>(L'0' + static_cast<unsigned int>(value));
}
int value_of(const std::wstring& digits, int index) {
    const bool is_there = index >= 0 && static_cast<std::size_t>(index) < digits.size();
    return is_there
               ? static_cast<int>(static_cast<unsigned int>(digits[static_cast<std::size_t>(index)]) - L'0')
               : 0;
}

// What a set of the kind answers for a flag, and what it stores.
template <class Kind>
int expected(const std::wstring& digits, int flag) {
    if constexpr (std::is_base_of_v<PX_Boolean_Flags, Kind>)
        return flag >= 0 && (value_of(digits, flag / 4) >> (flag % 4) & 1);
    const int value = value_of(digits, flag);
    constexpr int highest = std::is_base_of_v<PX_Abilities, Kind> ? 5 : 3;
    return value >= -1 && value <= highest ? value : -1;
}
template <class Kind>
void store(std::wstring& digits, int value, int flag) {
    int index = flag;
    if constexpr (std::is_base_of_v<PX_Boolean_Flags, Kind>) {
        if (flag < 0)
            return;
        index = flag / 4;
        const int bit = 1 << (flag % 4);
        value = value ? value_of(digits, index) | bit : value_of(digits, index) & ~bit;
    }
    if (index >= 0 && static_cast<std::size_t>(index) < digits.size())
        digits[static_cast<std::size_t>(index)] = digit(value);
}

template <class Kind, class Value>
void drive(Input& input) {
    constexpr bool is_boolean = std::is_same_v<Value, bool>;
    Open<Kind> set;
    std::wstring digits;
    while (!input.is_empty()) {
        const int flag = input.number<int>();
        const auto value = static_cast<Value>(input.number<int>());
        switch (input.up_to(6)) {
            case 0:
                digits = input.text(40);
                set.set_text(digits.c_str());
                break;
            case 1:
                set.set_one(value, flag);
                store<Kind>(digits, static_cast<int>(value), flag);
                break;
            case 2:
                set.set_all(value);
                std::ranges::fill(digits, digit(is_boolean ? (value ? 15 : 0) : static_cast<int>(value)));
                break;
            case 3: {
                const int count = input.rarely() ? std::min(flag, -1) : input.byte();
                set.setNumFlags(count);
                if (count >= 0)
                    digits.resize(static_cast<std::size_t>(count), L'0');
                break;
            }
            case 4: {
                // A part of its own text.
                const std::size_t skipped = std::min<std::size_t>(input.byte(), std::wcslen(set.get_text()));
                digits = std::wstring(set.get_text() + skipped);
                set.set_text(set.get_text() + skipped);
                break;
            }
            case 5: {
                const Open<Kind> copy(set);
                set = copy;
                digits = digits.c_str();
                break;
            }
            default:
                set.set_text(nullptr);
                digits.clear();
        }
        require(std::wcscmp(set.get_text(), digits.c_str()) == 0, "the text is that of the digits");
        for (const int each : {flag, flag / 2, input.up_to(60)})
            require(static_cast<int>(set.get_one(each)) == expected<Kind>(digits, each), "one flag");
        if constexpr (is_boolean) {
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

// Line patterns, of which none is refused: a bit for each in a text, and a size for those that there are.
void drive_patterns(Input& input) {
    PX_Smart_Pointer<PX_Linetype_Capabilities> object(new PX_Std_Linetype_Capabilities);
    std::wstring digits(5, L'0');
    std::map<int, float> sizes;
    while (!input.is_empty()) {
        const int number = input.number<int>();
        const auto pattern = static_cast<PX_Line_Pattern::Enum>(number);
        const bool on = input.flag();
        if (const int kind = input.up_to(3); kind == 0) {
            digits = input.text(8);
            object->set_linefont_capabilities(digits.c_str());
        } else if (kind == 1) {
            store<PX_Boolean_Flags>(digits, on, number);
            object->set_linefont_capability(on, pattern);
        } else if (kind == 2) {
            std::ranges::fill(digits, digit(on ? 15 : 0));
            object->set_linefont_capabilities(on);
        } else {
            const auto size = static_cast<float>(input.byte());
            if (number >= 0 && number < PX_Line_Pattern::count)
                sizes[number] = size;
            object->set_linefont_size(pattern, size);
        }
        object = object->clone();
        require(object->get_linefont_capability(pattern) == expected<PX_Boolean_Flags>(digits, number),
                "whether there is a pattern");
        require(object->get_linefont_size(pattern) == (sizes.contains(number) ? sizes[number] : 0),
                "the size of a pattern");
    }
}

// The used code points. Those without room in the set are the caller's mistake.
void drive_code_points(Input& input) {
    PX_Smart_Pointer usage(new PX_Font_Usage_Data);
    usage->set_single_byte(true);
    std::set<int> used;
    while (!input.is_empty()) {
        const int point = input.number<unsigned short>() % (usage->get_single_byte() ? 8704 : 65536);
        switch (input.up_to(4)) {
            case 0:
                usage->set_single_byte(input.flag());
                used.clear();
                continue;
            case 1:
                usage->clear_all();
                used.clear();
                break;
            case 2:
                usage = usage->clone();
                break;
            default:
                usage->set_bit(point);
                used.insert(point);
        }
        require(usage->codepoint_used(point) == used.contains(point), "a code point");
        require(usage->how_many() == std::ssize(used), "how many code points");
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
