#pragma once

#include <memory>

#include "toolkit/host/object.h"

// What a device can do for a datum, as one digit of a flag set.
struct PX_Ability_Value {
    enum Enum : int {
        Ability_Undefined = -1,       // the stored digit was out of range
        Ability_None = 0,             // the device lacks the feature; the datum is always put to its default
        Ability_Fixed = 1,            // put to its default by every policy but Keep_All
        Ability_Settable = 2,         // a user setting that validate_settable decides
        Ability_Conditional = 3,      // the only value that tells the policies 1, 2 and 3 apart
        Ability_Settable_Listed = 4,  // as settable; from here on a default is taken from the catalogue
        Ability_Required = 5,         // always validated, under every policy
    };
};

// Who shows the user interface of a datum. The toolkit stores the values; the host gives them their meaning.
struct PX_UI_Owner {
    enum Enum : int {
        UI_Owner_Undefined = -1,
        UI_Owner_0 = 0,
        UI_Owner_1 = 1,
        UI_Owner_2 = 2,
        UI_Owner_3 = 3,
    };
};

// The numbering of a flag set: how many flags it has and what a number outside of it is reported with.
struct PX_Flag_Range {
    int count;
    const wchar_t* enum_name;
    const wchar_t* header_path;
};

// -1 stands for no flag and passes, and so does every number below the count. Any other throws
// PX_Severe_Error 1104 with the header's path as function and the enum's name as detail.
PX_EXPORT void px_check_flag(int flag, const PX_Flag_Range& range);

// A text of digits, each the character '0' plus a value. The text is the state itself: a host reads it out
// and puts it back as it is, and a text of another length resizes the set. A digit outside the text reads as
// 0 and is not written.
class PX_EXPORT PX_Flags : public PX_Object {
public:
    PX_Flags() = default;
    // `digits` zeros; no text for a negative number.
    explicit PX_Flags(int digits);
    PX_Flags(const wchar_t* text) { set_flags(text); }
    PX_Flags(const PX_Flags& other) : PX_Object(other) { set_flags(other.get_flags()); }
    PX_Flags& operator=(const PX_Flags& other) {
        set_flags(other.get_flags());
        return *this;
    }

protected:
    int get_flag(int index) const { return has_digit(index) ? value_of(m_flags.get()[index]) : 0; }
    void set_flag(int index, int value) {
        if (has_digit(index))
            m_flags.get()[index] = digit(value);
    }
    void set_flags(int value);
    // Never null.
    const wchar_t* get_flags() const { return m_flags ? m_flags.get() : L""; }
    void set_flags(const wchar_t* text);
    // Cuts the text, or fills it with zeros on the right. A negative number does nothing.
    void setNumFlags(int digits);

private:
    bool has_digit(int index) const { return index >= 0 && index < m_num_flags; }
    // Any number goes in and comes out again; it wraps round at the ends.
    static wchar_t digit(int value) { return static_cast<wchar_t>(L'0' + static_cast<unsigned int>(value)); }
    static int value_of(wchar_t digit) { return static_cast<int>(static_cast<unsigned int>(digit) - L'0'); }

    int m_num_flags = 0;
    std::unique_ptr<wchar_t[]> m_flags;
};

// One digit for each flag: a small number out of an enum whose values run from -1 to `highest`.
template <class Value, int highest>
class PX_Value_Flags : public PX_Flags {
public:
    using PX_Flags::PX_Flags;

    const wchar_t* get_text() const { return get_flags(); }
    void set_text(const wchar_t* text) { set_flags(text); }
    // -1 for a digit outside the enum.
    Value get_one(int flag) const {
        const int value = get_flag(flag);
        return static_cast<Value>(value >= -1 && value <= highest ? value : -1);
    }
    void set_one(Value value, int flag) { set_flag(flag, value); }
    void set_all(Value value) { set_flags(static_cast<int>(value)); }

    // How long the text of so many flags is.
    static constexpr int digits_for(int flags) { return flags; }
};

class PX_EXPORT PX_Abilities
    : public PX_Value_Flags<PX_Ability_Value::Enum, PX_Ability_Value::Ability_Required> {
public:
    using PX_Value_Flags::PX_Value_Flags;
};

class PX_EXPORT PX_UI_Ownership : public PX_Value_Flags<PX_UI_Owner::Enum, PX_UI_Owner::UI_Owner_3> {
public:
    using PX_Value_Flags::PX_Value_Flags;
};

// Four flags share a digit: flag n is bit n mod 4 of digit n / 4.
class PX_EXPORT PX_Boolean_Flags : public PX_Flags {
protected:
    using PX_Flags::get_flags;

public:
    using PX_Flags::PX_Flags;

    // Whether the flags 0 to n - 1 are all set; true for n below 1.
    bool get_flags(int n) const;

    const wchar_t* get_text() const { return PX_Flags::get_flags(); }
    void set_text(const wchar_t* text) { set_flags(text); }
    bool get_one(int flag) const { return flag >= 0 && (get_flag(flag / 4) >> (flag % 4) & 1) != 0; }
    void set_one(bool on, int flag);
    // All four bits of every digit, those beyond the count too.
    void set_all(bool on) { set_flags(on ? 15 : 0); }

    // How long the text of so many flags is.
    static constexpr int digits_for(int flags) { return (flags + 3) / 4; }
};

// A set numbered by one enum. `Flags` is the struct round the enum; it holds its PX_Flag_Range as `range`.
template <class Base, class Flags>
class PX_Flag_Set : public Base {
public:
    using Numbering = Flags;
    using Flag = typename Flags::Enum;

    PX_Flag_Set() : Base(Base::digits_for(Flags::range.count)) {}

    auto get_checked(Flag flag) const {
        px_check_flag(flag, Flags::range);
        return this->get_one(flag);
    }
    template <class Value>
    void set_checked(Value value, Flag flag) {
        px_check_flag(flag, Flags::range);
        this->set_one(value, flag);
    }
};
