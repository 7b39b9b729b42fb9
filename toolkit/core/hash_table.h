#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <new>
#include <utility>

#include "toolkit/host/export.h"

// The bucket number of an address before it is masked to the number of buckets.
inline std::uint32_t px_address_hash(const void* address) {
    const auto bits = static_cast<std::uint64_t>(reinterpret_cast<std::uintptr_t>(address));
    const auto x = static_cast<std::uint32_t>(bits >> 32) ^ static_cast<std::uint32_t>(bits);
    return ((((x >> 10) ^ x) >> 8) ^ x) >> 2;
}

// A chained hash table keyed by address. It grows when there are more entries than its threshold, to twice
// the buckets; buckets are always a power of two.
template <class Key, class Value>
class PX_TEMPLATE_EXPORT PX_Hash_Table {
public:
    struct Entry {
        Key key;
        Value value;
        Entry* next;
    };

    PX_Hash_Table() = default;
    PX_Hash_Table(const PX_Hash_Table&) = delete;
    PX_Hash_Table& operator=(const PX_Hash_Table&) = delete;

    // Frees the entries; what their values point to is the owner's to free.
    virtual ~PX_Hash_Table() {
        for_each_entry([](Entry* entry) { delete entry; });
    }

    // The entry of `key`, or null.
    Entry* find(Key key) const {
        Entry* entry = m_table[bucket_of(key)];
        while (entry && entry->key != key)
            entry = entry->next;
        return entry;
    }

    // Adds an entry at the head of its chain, whether the key is there or not.
    Entry* insert(Key key, Value value) {
        Entry*& head = m_table[bucket_of(key)];
        Entry* const added = head = new Entry{key, value, head};
        if (++m_count > m_threshold)
            grow();
        return added;
    }

    // Unlinks and deletes an entry of this table.
    void remove(Entry* entry) {
        Entry** link = &m_table[bucket_of(entry->key)];
        while (*link != entry)
            link = &(*link)->next;
        *link = entry->next;
        delete entry;
        --m_count;
    }

    // Calls `visit(Entry*)` for every entry; the visited entry may be deleted.
    template <class Visit>
    void for_each_entry(Visit visit) const {
        for (int bucket = 0; bucket < m_buckets; ++bucket) {
            for (Entry* entry = m_table.get()[bucket]; entry;) {
                Entry* const next = entry->next;
                visit(entry);
                entry = next;
            }
        }
    }

    int count() const { return m_count; }
    int buckets() const { return m_buckets; }
    int threshold() const { return m_threshold; }

private:
    static constexpr int load = 20;
    static constexpr float growth = 2.0F;

    std::size_t bucket_of(Key key) const {
        return px_address_hash(key) & static_cast<std::uint32_t>(m_buckets - 1);
    }

    void grow() {
        const int wanted = static_cast<int>(static_cast<float>(m_buckets) * growth);
        std::unique_ptr<Entry*[]> wider(new (std::nothrow) Entry* [static_cast<std::size_t>(wanted)] {});
        if (!wider)
            return;  // longer chains serve as well
        const auto mask = static_cast<std::uint32_t>(wanted - 1);
        for_each_entry([&](Entry* entry) {
            Entry*& head = wider[px_address_hash(entry->key) & mask];
            entry->next = head;
            head = entry;
        });
        m_table = std::move(wider);
        m_buckets = wanted;
        m_threshold = static_cast<int>(static_cast<float>(load) * static_cast<float>(m_buckets) * 0.75F);
    }

    int m_count = 0;
    int m_buckets = 32;
    int m_threshold = 480;
    std::unique_ptr<Entry*[]> m_table = std::make_unique<Entry*[]>(32);
};
