#include <algorithm>
#include <cwchar>

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

template <class Capabilities, class Abilities>
void drive_abilities(Input& input, Capabilities& object) {
    DRIVE(object, abilities, ability, Abilities, PX_Ability_Value::Enum);
}
template <class Capabilities, class Abilities, class States, class Owners>
void drive_groups(Input& input) {
    Capabilities object;
    while (!input.is_empty()) {
        drive_abilities<Capabilities, Abilities>(input, object);
        DRIVE(object, ui_owner, ui_owner, Owners, PX_UI_Owner::Enum);
        if constexpr (!std::is_void_v<States>)
            DRIVE(object, caps_state, caps_state, States, bool);
        const PX_Smart_Pointer<std::remove_pointer_t<decltype(object.clone())>> clone(object.clone());
        require(std::wcscmp(clone->get_abilities(), object.get_abilities()) == 0 &&
                    std::wcscmp(clone->get_ui_owner(), object.get_ui_owner()) == 0,
                "a clone has the same flags");
    }
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    Input input(bytes, size);
    switch (input.up_to(7)) {
        case 0:
            drive<PX_Abilities, PX_Ability_Value::Enum>(input);
            break;
        case 1:
            drive<PX_UI_Ownership, PX_UI_Owner::Enum>(input);
            break;
        case 2:
            drive<PX_Boolean_Flags, bool>(input);
            break;
        case 3:
            drive_groups<PX_Std_Media_Capabilities, PX_Media_Ability_Flags, PX_Media_User_Flags,
                         PX_Media_UI_Owner_Flags>(input);
            break;
        case 4:
            drive_groups<PX_Std_ResColorMem_Capabilities, PX_ResColorMem_Ability_Flags,
                         PX_ResColorMem_User_Flags, PX_ResColorMem_UI_Owner_Flags>(input);
            break;
        case 5:
            drive_groups<PX_Std_Plotter_IO_Capabilities, PX_Plotter_IO_Ability_Flags,
                         PX_Plotter_IO_User_Flags, PX_IO_UI_Owner_Flags>(input);
            break;
        case 6:
            drive_groups<PX_Std_InitTerm_Capabilities, PX_InitTerm_Ability_Flags, void,
                         PX_InitTerm_UI_Owner_Flags>(input);
            break;
        default: {
            PX_Std_IO_Method method;
            PX_Std_IO_Port port;
            while (!input.is_empty()) {
                drive_abilities<PX_IO_Method, PX_IO_Method_Ability_Flags>(input, method);
                drive_abilities<PX_IO_Port, PX_IO_Port_Ability_Flags>(input, port);
            }
        }
    }
    return 0;
}
