#pragma once

#include "toolkit/core/module.h"
#include "toolkit/core/object_list.h"

// The list of such objects that lives once per process: null until its user makes it, and freed at the module
// exit, not with the static objects. For the inside of one source file.
template <class T>
PX_Smart_Pointer<PX_Named_Object_List<T>>& px_process_list() {
    static union Kept {
        Kept() : list() {}
        ~Kept() {}
        PX_Smart_Pointer<PX_Named_Object_List<T>> list;
    } kept;
    px_at_module_exit(PX_Exit_Step::Lists, [](bool) { kept.list = nullptr; });
    return kept.list;
}
