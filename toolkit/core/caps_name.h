#pragma once

#include "toolkit/core/caps_type.h"
#include "toolkit/host/export.h"

// An entry of a list of names, such as the names of the sizes that a paper source holds.
class PX_EXPORT PX_Caps_Name_List_Object {
public:
    virtual ~PX_Caps_Name_List_Object();

    virtual const wchar_t* get_canonical_name() const = 0;
    virtual const wchar_t* get_localized_name() const = 0;
    virtual PX_Caps_Type::Enum get_caps_type() const = 0;
    // Null stores the empty name and throws MVNK_Error 1103.
    virtual void set_canonical_name(const wchar_t* name) = 0;
    virtual void set_localized_name(const wchar_t* name) = 0;
    virtual void set_caps_type(PX_Caps_Type::Enum type) = 0;
    // No memory is MVNK_Memory_Exception 1101, detail "new_one".
    virtual PX_Caps_Name_List_Object* clone() const = 0;
};
