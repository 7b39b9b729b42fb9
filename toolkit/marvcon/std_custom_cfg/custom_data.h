#pragma once

#include <cstdint>
#include <memory>

#include "toolkit/core/smart_pointer.h"
#include "toolkit/host/object.h"
#include "toolkit/host/string.h"
#include "toolkit/marvcon/std_custom_cfg/custom_data_interface.h"

// What the five classes do alike: nothing is read of an object of another class. `Self` is the class itself,
// which tells how it compares with its like, is_equal, is_below and is_above, and how it takes the other's
// payload over, assign.
template <class Contract, class Self, PX_Data_Type::Enum data_type>
class PX_Custom_Value : public Contract, public PX_Object {
public:
    using Own_Contract = Contract;

    PX_Custom_Value() = default;
    // The constructor from a pointer is the one that copies.
    PX_Custom_Value(const PX_Custom_Value&) = delete;

    // All three are this class's own: a driver's override may call any of them by name, and must not be
    // called back.
    using Contract::operator=;
    PX_Custom_Value& operator=(const PX_Custom_Value& other) {
        *this = static_cast<const Contract&>(other);
        return *this;
    }
    const PX_Custom_Data& operator=(const Contract& other) {
        return PX_Custom_Value::operator=(static_cast<const PX_Custom_Data&>(other));
    }
    const PX_Custom_Data& operator=(const PX_Custom_Data& other) override {
        if (const auto* const like = as_like(other))
            static_cast<Self&>(*this).assign(*like);
        return *this;
    }

    int operator==(const PX_Custom_Data& other) const override {
        const auto* const like = as_like(other);
        return like && self().is_equal(*like);
    }
    int operator<(const PX_Custom_Data& other) const override {
        const auto* const like = as_like(other);
        return like && self().is_below(*like);
    }
    int operator>(const PX_Custom_Data& other) const override {
        const auto* const like = as_like(other);
        return like && self().is_above(*like);
    }

    PX_Data_Type::Enum type() const override { return data_type; }

private:
    static const Contract* as_like(const PX_Custom_Data& other) {
        return dynamic_cast<const Contract*>(&other);
    }
    const Self& self() const { return static_cast<const Self&>(*this); }
};

// The three that hold a number, as a `Stored`.
template <class Contract, class Self, PX_Data_Type::Enum data_type, class Value, class Stored = Value>
class PX_Custom_Number : public PX_Custom_Value<Contract, Self, data_type> {
    using Base = PX_Custom_Value<Contract, Self, data_type>;

public:
    PX_Custom_Number() = default;
    explicit PX_Custom_Number(Value value) : m_data(static_cast<Stored>(value)) {}
    // Null is the start value.
    explicit PX_Custom_Number(const Contract* source) {
        if (source)
            assign(*source);
    }

    using Base::operator=;
    const PX_Custom_Data& operator=(Value value) override {
        m_data = static_cast<Stored>(value);
        return *this;
    }
    Value data() const override { return m_data; }

    bool is_equal(const Contract& other) const { return stored(*this) == stored(other); }
    bool is_below(const Contract& other) const { return stored(*this) < stored(other); }
    bool is_above(const Contract& other) const { return stored(*this) > stored(other); }
    // Takes the other's number over, as it is stored here.
    void assign(const Contract& other) { m_data = stored(other); }

private:
    static Stored stored(const Contract& value) { return static_cast<Stored>(value.data()); }

    Stored m_data{};
};

class PX_EXPORT PX_Std_Long_Custom_Data
    : public PX_Custom_Number<PX_Long_Custom_Data, PX_Std_Long_Custom_Data, PX_Data_Type::Data_Long, long,
                              std::int32_t> {
public:
    using PX_Custom_Number::PX_Custom_Number;
    using PX_Custom_Number::operator=;
};

class PX_EXPORT PX_Std_Double_Custom_Data
    : public PX_Custom_Number<PX_Double_Custom_Data, PX_Std_Double_Custom_Data, PX_Data_Type::Data_Double,
                              double> {
public:
    using PX_Custom_Number::PX_Custom_Number;
    using PX_Custom_Number::operator=;
};

class PX_EXPORT PX_Std_Boolean_Custom_Data
    : public PX_Custom_Number<PX_Boolean_Custom_Data, PX_Std_Boolean_Custom_Data, PX_Data_Type::Data_Boolean,
                              bool> {
public:
    using PX_Custom_Number::PX_Custom_Number;
    using PX_Custom_Number::operator=;
};

class PX_EXPORT PX_Std_String_Custom_Data
    : public PX_Custom_Value<PX_String_Custom_Data, PX_Std_String_Custom_Data, PX_Data_Type::Data_String> {
public:
    PX_Std_String_Custom_Data() = default;
    // No memory is std::bad_alloc.
    explicit PX_Std_String_Custom_Data(const wchar_t* text) : m_data(text) {}
    explicit PX_Std_String_Custom_Data(const PX_String_Custom_Data* source)
        : m_data(source ? source->data() : nullptr) {}

    using PX_Custom_Value::operator=;
    const PX_Custom_Data& operator=(const wchar_t* text) override {
        m_data = text;
        return *this;
    }
    const wchar_t* data() const override { return m_data; }
    int length() const override { return static_cast<int>(m_data.length()); }

    bool is_equal(const PX_String_Custom_Data& other) const;
    bool is_below(const PX_String_Custom_Data& other) const { return difference(other) < 0; }
    bool is_above(const PX_String_Custom_Data& other) const { return difference(other) > 0; }
    // Takes a copy of the other's text.
    void assign(const PX_String_Custom_Data& other) { m_data = other.data(); }

private:
    int difference(const PX_String_Custom_Data& other) const;

    PX_String m_data;
};

class PX_EXPORT PX_Std_Raw_Custom_Data
    : public PX_Custom_Value<PX_Raw_Custom_Data, PX_Std_Raw_Custom_Data, PX_Data_Type::Data_Raw> {
public:
    PX_Std_Raw_Custom_Data() = default;
    // Both store as set_data does.
    PX_Std_Raw_Custom_Data(long size, const unsigned char* bytes) { store(size, bytes); }
    explicit PX_Std_Raw_Custom_Data(const PX_Raw_Custom_Data* source) {
        if (source)
            store(source->size(), source->data());
    }

    using PX_Custom_Value::operator=;
    PX_Std_Raw_Custom_Data& operator=(const PX_Std_Raw_Custom_Data& other) {
        PX_Custom_Value::operator=(other);
        return *this;
    }
    void set_data(long size, const unsigned char* bytes) override { store(size, bytes); }
    const unsigned char* data() const override { return m_data_ptr.get(); }
    long size() const override { return m_size; }

    bool is_equal(const PX_Raw_Custom_Data& other) const;
    bool is_below(const PX_Raw_Custom_Data& other) const { return difference(other) < 0; }
    bool is_above(const PX_Raw_Custom_Data& other) const { return difference(other) > 0; }
    // A driver's set_data is the one that runs.
    void assign(const PX_Raw_Custom_Data& other) { set_data(other.size(), other.data()); }

private:
    void store(long size, const unsigned char* bytes);
    int difference(const PX_Raw_Custom_Data& other) const;

    std::unique_ptr<unsigned char[]> m_data_ptr;
    std::int32_t m_size = 0;
};

// Puts a copy of `value`, of the standard class of its type, in the place of what `field` held; none for
// null. The failures are those of the setters of values; `function` and `detail` are literals.
void px_store_custom_data(PX_Smart_Pointer<PX_Custom_Data>& field, const PX_Custom_Data* value,
                          const wchar_t* function, const wchar_t* detail);
