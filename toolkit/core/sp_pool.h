#pragma once

#include "toolkit/core/hash_table.h"
#include "toolkit/host/export.h"

// The reference counts of all counted objects of the process, by address. Nothing here is guarded: a model
// and all that it shares belong to one thread at a time.
class PX_EXPORT PX_SPMem_Pool {
public:
    virtual ~PX_SPMem_Pool();

    // Counts one reference more, the first one for an unknown address. Gives the new count.
    virtual int add_reference(void* object) = 0;
    // Counts one reference less. Gives the count after it; 0 means that the caller deletes the object. An
    // unknown address gives 1, so that it is not deleted.
    virtual int release_reference(void* object) = 0;
    // The count, -1 for an unknown address.
    virtual int get_count(void* object) = 0;
};

// A count in a block of its own.
struct smart_ptr_info_tag {
    std::int32_t count;
};

class PX_EXPORT PX_SPMem_Pool_Imp : public PX_SPMem_Pool {
public:
    PX_SPMem_Pool_Imp() = default;
    // Frees the counts; the counted objects stay.
    ~PX_SPMem_Pool_Imp() override;

    int add_reference(void* object) override;
    int release_reference(void* object) override;
    int get_count(void* object) override;

    using Table = PX_Hash_Table<void*, smart_ptr_info_tag*>;
    const Table& table() const { return m_counts; }

private:
    Table m_counts;
};

// The one pool of the process, made at first use and deleted at module exit.
PX_EXPORT PX_SPMem_Pool* SPMP();
