#pragma once

#include "toolkit/core/caps_type.h"
#include "toolkit/core/frame.h"
#include "toolkit/host/object.h"
#include "toolkit/host/string.h"

// How a class reports a null canonical name.
struct PX_Null_Name {
    unsigned int code;
    const wchar_t* function;
    const wchar_t* detail;
    const wchar_t* file;
};

// The two names that every catalogue object has. `Self` is the class itself; it tells how it reports a null
// canonical name in a static member `null_name`.
template <class Contract, class Self>
class PX_Named_Pair : public Contract, public PX_Object {
public:
    const wchar_t* get_canonical_name() const override { return m_canonical_name; }
    const wchar_t* get_localized_name() const override { return m_localized_name; }
    void set_canonical_name(const wchar_t* name) override {
        m_canonical_name = name;
        if (!name) {
            constexpr const PX_Null_Name& error = Self::null_name;
            throw MVNK_Error(error.code, error.function, error.detail, error.file);
        }
    }
    void set_localized_name(const wchar_t* name) override { m_localized_name = name; }

protected:
    // The first thing that a clone copies.
    void copy_names_to(Contract& new_one) const {
        new_one.set_canonical_name(m_canonical_name);
        new_one.set_localized_name(m_localized_name);
    }

private:
    PX_String m_canonical_name;
    PX_String m_localized_name;
};

// The head of an element of a named list: the names, and where the entry comes from.
template <class Contract, class Self>
class PX_Named_Head : public PX_Named_Pair<Contract, Self> {
public:
    PX_Caps_Type::Enum get_caps_type() const override { return m_caps_type; }
    void set_caps_type(PX_Caps_Type::Enum type) override { m_caps_type = type; }

private:
    PX_Caps_Type::Enum m_caps_type = PX_Caps_Type::Caps_Type_Device;
};
