#pragma once

#include "toolkit/core/caps_type.h"
#include "toolkit/core/clone.h"
#include "toolkit/core/frame.h"
#include "toolkit/host/object.h"
#include "toolkit/host/string.h"

// What a named class says of itself in its failures.
struct PX_Naming {
    const wchar_t* set_canonical_name;  // the names of its functions
    const wchar_t* clone;
    const wchar_t* file;
    unsigned int null_code;  // what a null canonical name is reported with
    const wchar_t* null_detail;
};
// The PX_Naming of a class, a wide literal, that comes from a PX_Source. A null canonical name is 1103,
// "canonical_name".
#define PX_NAMING(class_name, source)                                                 \
    PX_Naming {                                                                       \
        class_name L"::set_canonical_name", class_name L"::clone", (source).file_tag, \
            PX_Code::Null_Argument, L"canonical_name"                                 \
    }
// The same with another number and detail for the null name.
#define PX_NAMING_WITH(class_name, source, null_code, null_detail)                                           \
    PX_Naming {                                                                                              \
        class_name L"::set_canonical_name", class_name L"::clone", (source).file_tag, null_code, null_detail \
    }

// The two names that every catalogue object has, and its clone. `Self` is the class itself; it has a static
// `naming`, and `copy_properties_to(Contract&) const`, which copies what is its own by the new object's
// setters.
template <class Contract, class Self>
class PX_Named_Pair : public Contract, public PX_Object {
public:
    PX_Named_Pair() = default;
    // A copy would share what the class holds by counted pointers: clone is the operation that copies.
    PX_Named_Pair(const PX_Named_Pair&) = delete;
    PX_Named_Pair& operator=(const PX_Named_Pair&) = delete;

    const wchar_t* get_canonical_name() const override { return m_canonical_name; }
    const wchar_t* get_localized_name() const override { return m_localized_name; }
    void set_canonical_name(const wchar_t* name) override {
        // A copy: where the class comes out of another module, its address is no constant.
        constexpr PX_Naming naming = Self::naming;
        m_canonical_name = name;
        if (!name)
            throw MVNK_Error(naming.null_code, naming.set_canonical_name, naming.null_detail, naming.file);
    }
    void set_localized_name(const wchar_t* name) override { m_localized_name = name; }

    // The names first, where the entry comes from last.
    auto clone() const -> decltype(static_cast<const Contract*>(nullptr)->clone()) override {
        return px_clone<Self>(Self::naming.clone, Self::naming.file, [this](Self& new_one) {
            new_one.set_canonical_name(m_canonical_name);
            new_one.set_localized_name(m_localized_name);
            static_cast<const Self*>(this)->copy_properties_to(new_one);
            if constexpr (requires(Contract & entry) { entry.get_caps_type(); })
                new_one.set_caps_type(static_cast<const Self*>(this)->get_caps_type());
        });
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
