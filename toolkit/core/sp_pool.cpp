#include "toolkit/core/sp_pool.h"

#include <cstdlib>
#include <new>

#include "toolkit/core/module.h"

PX_SPMem_Pool::~PX_SPMem_Pool() = default;

PX_SPMem_Pool_Imp::~PX_SPMem_Pool_Imp() {
    m_counts.for_each_entry([](Table::Entry* entry) { std::free(entry->value); });
}

int PX_SPMem_Pool_Imp::add_reference(void* object) {
    if (const auto* known = m_counts.find(object))
        return ++known->value->count;
    void* const block = std::malloc(sizeof(smart_ptr_info_tag));
    if (!block)
        throw std::bad_alloc();
    try {
        m_counts.insert(object, new (block) smart_ptr_info_tag{1});
    } catch (...) {
        std::free(block);
        throw;
    }
    return 1;
}

int PX_SPMem_Pool_Imp::release_reference(void* object) {
    auto* known = m_counts.find(object);
    if (!known)
        return 1;
    if (--known->value->count != 0)
        return known->value->count;
    std::free(known->value);
    m_counts.remove(known);
    return 0;
}

int PX_SPMem_Pool_Imp::get_count(void* object) {
    const auto* known = m_counts.find(object);
    return known ? known->value->count : -1;
}

namespace {
PX_SPMem_Pool_Imp* pool = nullptr;

// A pool that still counts something goes only with the module: without its count, the next copy of a living
// pointer would delete the object under the others.
void delete_pool(bool unloading) {
    if (!unloading && pool->table().count() > 0) {
        px_at_module_exit(PX_Exit_Step::Pool, delete_pool);
        return;
    }
    delete pool;
    pool = nullptr;
}

PX_SPMem_Pool* make_pool() {
    pool = new PX_SPMem_Pool_Imp;
    px_at_module_exit(PX_Exit_Step::Pool, delete_pool);
    return pool;
}
}  // namespace

PX_SPMem_Pool* SPMP() {
    return pool ? pool : make_pool();
}
