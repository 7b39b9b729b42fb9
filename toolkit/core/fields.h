#pragma once

#include <new>
#include <utility>

#include "toolkit/core/clone.h"
#include "toolkit/core/exception.h"
#include "toolkit/core/object_list.h"
#include "toolkit/host/string.h"

// What the classes of the model do with their fields, each thing in its one form. `function` and `file` are
// the literals that a failure carries.

// Stores a name that something is looked up by. A null one is stored as the empty text and then throws
// MVNK_Error 1103.
inline void px_store_name(PX_String& field, const wchar_t* name, const wchar_t* function,
                          const wchar_t* detail, const wchar_t* file) {
    field = name;
    px_require_argument(name, function, detail, file);
}

// Stores the name of a chosen catalogue object. None is stored as the empty name and then throws MVNK_Error
// 1103.
template <class Object>
void px_store_choice(PX_String& field, const Object* chosen, const wchar_t* function, const wchar_t* detail,
                     const wchar_t* file) {
    field = chosen ? chosen->get_canonical_name() : nullptr;
    px_require_argument(chosen, function, detail, file);
}

// Takes `made` over from its maker, in the place of what `field` held. What could not be made, or not be
// counted, for want of memory is MVNK_Memory_Exception 1101, and the field stays.
template <class T>
void px_store_made(PX_Smart_Pointer<T>& field, T* made, const wchar_t* function, const wchar_t* detail,
                   const wchar_t* file) {
    px_require_made(made, function, detail, file);
    PX_Smart_Pointer<T> counted;
    try {
        counted = made;
    } catch (const std::bad_alloc&) {
        px_require_made(counted, function, detail, file);
    }
    field = std::move(counted);
}

// Puts a new value in the place of the held one, so that an earlier pointer keeps the old numbers; zeros for
// null. No memory is MVNK_Memory_Exception 1101, and the field stays.
template <class T>
void px_store_value(PX_Smart_Pointer<T>& field, const T* value, const wchar_t* function,
                    const wchar_t* detail, const wchar_t* file) {
    px_store_made(field, new (std::nothrow) T(value ? *value : T()), function, detail, file);
}

// A clone of `source` takes the place of what `field` held, in the frame of `function`. A null source is
// MVNK_Error 1103, a clone that did not come into being MVNK_Memory_Exception 1101; the field stays.
template <class T>
void px_store_clone(PX_Smart_Pointer<T>& field, const T* source, const wchar_t* function,
                    const wchar_t* detail, const wchar_t* file) {
    px_require_argument(source, function, detail, file);
    px_store_made(field, px_frame(function, [&] { return source->clone(); }), function, detail, file);
}

// A new empty list; no memory is std::bad_alloc.
template <class T, template <class> class List = PX_Named_Object_List>
PX_Smart_Pointer<List<T>> px_new_list() {
    auto* const list = new List<T>;
    if (!list)
        throw std::bad_alloc();
    return list;
}

// A list of the clones of each element, in order; null for null. No memory for the list or for a clone is
// std::bad_alloc.
template <class T, template <class> class List>
PX_Smart_Pointer<List<T>> px_copied_list(const List<T>* source) {
    if (!source)
        return nullptr;
    auto copy = px_new_list<T, List>();
    for (const auto& element : *source) {
        PX_Smart_Pointer<T> clone = element ? element->clone() : nullptr;
        if (element && !clone)
            throw std::bad_alloc();
        copy->append(std::move(clone));
    }
    return copy;
}

// Stores a copy of a list, null for null, in the frame of `function`. No memory for it is std::bad_alloc, and
// the field stays.
template <class List>
void px_store_list(PX_Smart_Pointer<List>& field, const List* list, const wchar_t* function) {
    field = px_frame(function, [&] { return px_copied_list(list); });
}

// The same, but no memory is MVNK_Memory_Exception 1101 with this detail, also where an element reports it.
template <class List>
void px_store_list(PX_Smart_Pointer<List>& field, const List* list, const wchar_t* function,
                   const wchar_t* detail, const wchar_t* file) {
    try {
        px_store_list(field, list, function);
        return;
    } catch (const std::bad_alloc&) {
    } catch (const PX_Exception& passing) {
        if (passing.m_code != PX_Code::No_Memory)
            throw;
    }
    throw MVNK_Memory_Exception(PX_Code::No_Memory, function, detail, file);
}

// The same, but null gives a new empty list.
template <class T, template <class> class List>
void px_store_list_or_empty(PX_Smart_Pointer<List<T>>& field, const List<T>* list, const wchar_t* function,
                            const wchar_t* detail, const wchar_t* file) {
    const List<T> empty;
    px_store_list(field, list ? list : &empty, function, detail, file);
}

// The entry of that name; null when there is no list, no name or no such entry.
template <class T>
PX_Smart_Pointer<T> px_find(const PX_Smart_Pointer<PX_Named_Object_List<T>>& list, const wchar_t* name) {
    return list && name ? list->find(name) : nullptr;
}
