#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/allocations.h"
#include "toolkit/core/module.h"
#include "toolkit/core/smart_pointer.h"

namespace {

class Thing : public PX_Object {
public:
    explicit Thing(bool* gone = nullptr) : m_gone(gone) {}
    ~Thing() override {
        if (m_gone)
            *m_gone = true;
    }

private:
    bool* m_gone;
};
using Thing_Pointer = PX_Smart_Pointer<Thing>;

void* address(std::uintptr_t value) {
    return reinterpret_cast<void*>(value);
}

TEST(Pool, HashesTheFoldedAddress) {
    EXPECT_EQ(px_address_hash(address(0x0000000100000400)), 0x101U);
    EXPECT_EQ(px_address_hash(address(0x10)), 4U);
}

TEST(Pool, CountsByAddressAndForgetsAtZero) {
    PX_SPMem_Pool_Imp pool;
    void* const one = address(0x1000);
    EXPECT_EQ(pool.get_count(one), -1);
    EXPECT_EQ(pool.release_reference(one), 1) << "an unknown object is not deleted";
    EXPECT_EQ(pool.add_reference(one), 1);
    EXPECT_EQ(pool.add_reference(one), 2);
    EXPECT_EQ(pool.release_reference(one), 1);
    EXPECT_EQ(pool.release_reference(one), 0);
    EXPECT_EQ(pool.get_count(one), -1);
    EXPECT_EQ(pool.table().count(), 0);
}

TEST(Pool, GrowsWithThe481stObjectAndLosesNone) {
    PX_SPMem_Pool_Imp pool;
    const auto nth = [](int n) { return address(0x10000 + 48 * static_cast<std::uintptr_t>(n)); };
    for (int n = 0; n < 2000; ++n) {
        pool.add_reference(nth(n));
        const int buckets = n < 480 ? 32 : n < 960 ? 64 : n < 1920 ? 128 : 256;
        ASSERT_EQ(pool.table().buckets(), buckets) << n;
    }
    for (int n = 0; n < 2000; ++n)
        ASSERT_EQ(pool.release_reference(nth(n)), 0) << n;
    EXPECT_EQ(pool.table().count(), 0);
}

TEST(SmartPointer, DeletesWithTheLastReference) {
    bool gone = false;
    auto* const thing = new Thing(&gone);
    EXPECT_EQ(SPMP()->get_count(thing), -1) << "a new object has no owner";
    {
        const Thing_Pointer first(thing);
        {
            const Thing_Pointer second = first;
            std::vector<Thing_Pointer> more(3, second);
            EXPECT_EQ(SPMP()->get_count(thing), 5);
            const Thing_Pointer moved = std::move(more[0]);
            EXPECT_EQ(SPMP()->get_count(thing), 5) << "moving shifts a reference";
        }
        EXPECT_FALSE(gone);
        EXPECT_EQ(SPMP()->get_count(thing), 1);
    }
    EXPECT_TRUE(gone);
}

// The order shows when the object that goes looks at the one that comes.
TEST(SmartPointer, ReleasesBeforeItTakes) {
    class Watcher : public Thing {
    public:
        Watcher(Thing* watched, int* seen) : m_watched(watched), m_seen(seen) {}
        ~Watcher() override { *m_seen = SPMP()->get_count(m_watched); }

    private:
        Thing* m_watched;
        int* m_seen;
    };
    int seen = 0;
    auto* const next = new Thing;
    Thing_Pointer pointer(new Watcher(next, &seen));
    pointer = next;
    EXPECT_EQ(seen, -1);
    EXPECT_EQ(SPMP()->get_count(next), 1);
}

TEST(SmartPointer, AssigningItsOwnOnlyObjectDeletesIt) {
    bool gone = false;
    auto* const thing = new Thing(&gone);
    Thing_Pointer pointer(thing);
    pointer = thing;
    EXPECT_TRUE(gone);
    EXPECT_EQ(pointer, nullptr) << "nothing dangles";
}

TEST(SmartPointer, AnObjectThatGoesTakesWhatOnlyItHeld) {
    class Link : public PX_Object {
    public:
        PX_Smart_Pointer<Link> m_next;
    };
    PX_Smart_Pointer<Link> head(new Link);
    head->m_next = new Link;
    head = head->m_next;
    EXPECT_EQ(head, nullptr) << "released before it was taken";
}

TEST(Module, ExitLeavesLivingObjectsTheirCounts) {
    bool gone = false;
    {
        const Thing_Pointer pointer(new Thing(&gone));
        PX_Module_Exit();
        EXPECT_EQ(SPMP()->get_count(pointer.get()), 1);
        PX_Module_Exit();
        { const Thing_Pointer copy = pointer; }
        EXPECT_FALSE(gone);
    }
    EXPECT_TRUE(gone);
    PX_Module_Exit();
    const auto before = support::allocation_count();
    SPMP();
    EXPECT_GT(support::allocation_count(), before) << "the empty pool went at the next exit";
}

TEST(Module, ExitCallsAFunctionOnce) {
    static std::string called;
    constexpr auto lists = [](bool) { called += "lists "; };
    constexpr auto pool = [](bool) { called += "pool "; };
    px_at_module_exit(PX_Exit_Step::Pool, pool);
    px_at_module_exit(PX_Exit_Step::Lists, lists);
    px_at_module_exit(PX_Exit_Step::Lists, lists);
    PX_Module_Exit();
    EXPECT_EQ(called, "lists pool ");
    PX_Module_Exit();
    EXPECT_EQ(called, "lists pool ");
}

}  // namespace
