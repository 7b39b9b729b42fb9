#pragma once

#include <concepts>

#include "toolkit/core/exception.h"

inline constexpr PX_Source px_std_custom_cfg_source = PX_SOURCE(L"std_custom_cfg");

// Numbers that the domain's failures carry; each is that of its text.
struct PX_Custom_Code {
    static constexpr unsigned int Unknown_Type = 701;
    static constexpr unsigned int Range_Of_No_Number = 702;
    static constexpr unsigned int No_Values = 703;
    static constexpr unsigned int No_Capability = 704;
    static constexpr unsigned int No_Item = 705;
    static constexpr unsigned int No_Items = 706;
};

// Which of the five classes a value is of.
struct PX_Data_Type {
    enum Enum : int {
        Data_Undefined = -1,
        Data_String = 0,
        Data_Long = 1,
        Data_Double = 2,
        Data_Boolean = 3,
        Data_Raw = 4,
    };
};

// A value of a setting that only the driver knows. It is compared with, and assigned from, values of its own
// class: beside one of another class every comparison is 0, and an assignment leaves the value as it is.
class PX_EXPORT PX_Custom_Data {
public:
    PX_Custom_Data() = default;
    PX_Custom_Data(const PX_Custom_Data&) = default;
    virtual ~PX_Custom_Data();

    // 1 or 0 each.
    virtual int operator==(const PX_Custom_Data& other) const = 0;
    virtual int operator<(const PX_Custom_Data& other) const = 0;
    virtual int operator>(const PX_Custom_Data& other) const = 0;
    // Copies the payload. This one does nothing: every class brings its own. Between two values of one of the
    // contracts below it is the one that runs too; a class that stands on a contract directly must not copy
    // itself by the assignment that the compiler makes, which would come back here.
    virtual const PX_Custom_Data& operator=(const PX_Custom_Data& other);
    virtual PX_Data_Type::Enum type() const = 0;
};

// Between values whose classes the compiler knows it would try the sides the other way round too, and not
// decide. The result is an int, for which reason `!=` does not compile: write !(left == right).
template <std::derived_from<PX_Custom_Data> Left, std::derived_from<PX_Custom_Data> Right>
int operator==(const Left& left, const Right& right) {
    return static_cast<const PX_Custom_Data&>(left).operator==(right);
}

// 32 bits, signed; a payload beyond that keeps its low bits.
class PX_EXPORT PX_Long_Custom_Data : public PX_Custom_Data {
public:
    PX_Long_Custom_Data() = default;
    PX_Long_Custom_Data(const PX_Long_Custom_Data&) = default;

    using PX_Custom_Data::operator=;
    const PX_Custom_Data& operator=(const PX_Long_Custom_Data& other) {
        return *this = static_cast<const PX_Custom_Data&>(other);
    }
    virtual const PX_Custom_Data& operator=(long value) = 0;
    virtual long data() const = 0;
};

// No comparison holds for what is not a number.
class PX_EXPORT PX_Double_Custom_Data : public PX_Custom_Data {
public:
    PX_Double_Custom_Data() = default;
    PX_Double_Custom_Data(const PX_Double_Custom_Data&) = default;

    using PX_Custom_Data::operator=;
    const PX_Custom_Data& operator=(const PX_Double_Custom_Data& other) {
        return *this = static_cast<const PX_Custom_Data&>(other);
    }
    virtual const PX_Custom_Data& operator=(double value) = 0;
    virtual double data() const = 0;
};

// False lies below true.
class PX_EXPORT PX_Boolean_Custom_Data : public PX_Custom_Data {
public:
    PX_Boolean_Custom_Data() = default;
    PX_Boolean_Custom_Data(const PX_Boolean_Custom_Data&) = default;

    using PX_Custom_Data::operator=;
    const PX_Custom_Data& operator=(const PX_Boolean_Custom_Data& other) {
        return *this = static_cast<const PX_Custom_Data&>(other);
    }
    virtual const PX_Custom_Data& operator=(bool value) = 0;
    virtual bool data() const = 0;
};

// Equal are texts of the same 16-bit characters. Below and above are told byte by byte, the low byte of a
// 16-bit character first, so that the order is not that of the characters; and over the length of the left
// side alone, so that a text is neither below nor above one that it begins. What lies behind the end of the
// right side counts as 0.
class PX_EXPORT PX_String_Custom_Data : public PX_Custom_Data {
public:
    PX_String_Custom_Data() = default;
    PX_String_Custom_Data(const PX_String_Custom_Data&) = default;

    using PX_Custom_Data::operator=;
    const PX_Custom_Data& operator=(const PX_String_Custom_Data& other) {
        return *this = static_cast<const PX_Custom_Data&>(other);
    }
    // Copies the text; null is the empty one. No memory is std::bad_alloc, and the old text stays.
    virtual const PX_Custom_Data& operator=(const wchar_t* text) = 0;
    // Never null; valid until the value changes.
    virtual const wchar_t* data() const = 0;
    // In characters of data().
    virtual int length() const = 0;
};

// Compared byte by byte over the size of the left side alone: a value equals every longer one that begins
// with it, and no shorter one. For below and above, what lies behind the end of the right side counts as 0.
class PX_EXPORT PX_Raw_Custom_Data : public PX_Custom_Data {
public:
    PX_Raw_Custom_Data() = default;
    PX_Raw_Custom_Data(const PX_Raw_Custom_Data&) = default;

    using PX_Custom_Data::operator=;
    const PX_Custom_Data& operator=(const PX_Raw_Custom_Data& other) {
        return *this = static_cast<const PX_Custom_Data&>(other);
    }
    // Copies the bytes, which may be its own. A size below 1 or a null pointer makes it empty: size 0, no
    // bytes. No memory is MVNK_Memory_Exception 1101, "m_data_ptr": the size is the new one then, and there
    // are no bytes. Assignment comes here.
    virtual void set_data(long size, const unsigned char* bytes) = 0;
    // Null when there are none; valid until the value changes.
    virtual const unsigned char* data() const = 0;
    virtual long size() const = 0;
};
