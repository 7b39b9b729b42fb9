#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "toolkit/core/atomic_list.h"
#include "toolkit/core/caps_type.h"
#include "toolkit/core/object_list.h"
#include "toolkit/host/string.h"

namespace {

class Entry : public PX_Object {
public:
    explicit Entry(const wchar_t* name, PX_Caps_Type::Enum type = PX_Caps_Type::Caps_Type_Device)
        : m_name(name), m_type(type) {}
    const wchar_t* get_canonical_name() const { return m_name; }
    PX_Caps_Type::Enum get_caps_type() const { return m_type; }

private:
    PX_String m_name;
    PX_Caps_Type::Enum m_type;
};
using Entry_Pointer = PX_Smart_Pointer<Entry>;
using Entry_List = PX_Named_Object_List<Entry>;

std::wstring names(const Entry_List& list) {
    std::wstring all;
    const std::unique_ptr<Entry_List::iterator> entries(list.get_iterator());
    while (entries->has_next())
        all += entries->next()->get_canonical_name();
    EXPECT_EQ(entries->next(), nullptr) << "a finished iterator gives null";
    EXPECT_EQ(static_cast<std::size_t>(list.size()), all.size());
    return all;
}

std::vector<Entry_Pointer> fill(Entry_List& list, const std::wstring& one_letter_names) {
    std::vector<Entry_Pointer> entries;
    for (const wchar_t name : one_letter_names) {
        entries.emplace_back(new Entry(std::wstring(1, name).c_str()));
        list.append(entries.back());
    }
    return entries;
}

TEST(ObjectList, KeepsItsOrderThroughRemovalsAtEveryPlace) {
    struct Case {
        const char* what;
        std::wstring removed;
        std::wstring left;
        std::wstring with_one_more;
    };
    for (const Case& row : {Case{"the head", L"a", L"bcd", L"bcdx"}, Case{"the middle", L"bc", L"ad", L"adx"},
                            Case{"the tail", L"d", L"abc", L"abcx"}, Case{"all", L"abcd", L"", L"x"}}) {
        SCOPED_TRACE(row.what);
        Entry_List list;
        fill(list, L"abcd");
        for (const wchar_t name : row.removed)
            EXPECT_TRUE(list.remove(list.find(std::wstring(1, name).c_str()).get()));
        EXPECT_EQ(names(list), row.left);
        EXPECT_EQ(list.is_empty(), row.left.empty());
        fill(list, L"x");
        EXPECT_EQ(names(list), row.with_one_more);
    }
}

TEST(ObjectList, RemovesByIdentityAndSharesItsElements) {
    Entry_List list;
    Entry_List other;
    const auto entries = fill(list, L"ab");
    other.append(entries[0]);
    EXPECT_EQ(SPMP()->get_count(entries[0].get()), 3);
    const Entry_Pointer twin(new Entry(L"a"));
    EXPECT_FALSE(list.remove(twin.get()));
    list.clear();
    EXPECT_EQ(list.size(), 0);
    EXPECT_EQ(SPMP()->get_count(entries[0].get()), 2);
    list.prepend(entries[1]);
    list.prepend(entries[0]);
    fill(list, L"c");
    EXPECT_EQ(names(list), L"abc");
}

TEST(ObjectList, LetsAWalkRemoveWhatItWasJustGiven) {
    Entry_List list;
    fill(list, L"abcde");
    const std::unique_ptr<Entry_List::iterator> entries(list.get_iterator());
    while (entries->has_next()) {
        const Entry_Pointer entry = entries->next();
        if (std::wstring(L"abe").find(entry->get_canonical_name()) != std::wstring::npos) {
            EXPECT_TRUE(list.remove(entry.get()));
        }
    }
    EXPECT_EQ(names(list), L"cd");
}

TEST(NamedObjectList, FindsTheFirstOfTheVeryName) {
    Entry_List list;
    EXPECT_EQ(list.find(L"a"), nullptr);
    const auto entries = fill(list, L"aba");
    list.append(new Entry(L"w", PX_Caps_Type::Caps_Type_Withdrawn));
    EXPECT_EQ(list.find(L"a"), entries[0]);
    EXPECT_EQ(list.find(L"A"), nullptr);
    EXPECT_EQ(list.find(L"ab"), nullptr);
    EXPECT_EQ(list.find(nullptr), nullptr);
    EXPECT_NE(list.find(L"w"), nullptr) << "a withdrawn entry is found like any other";
}

TEST(AtomicList, HoldsCopiesAndClonesToAnEmptyList) {
    PX_Searchable_Atomic_Object_List<PX_String> list;
    PX_String name(L"two");
    list.append(name);
    list.append(L"three");
    list.prepend(L"one");
    name = L"changed";
    EXPECT_EQ(list.size(), 3);
    const auto found = list.find(L"two");
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(*found, L"two");
    EXPECT_EQ(list.find(L"Two"), nullptr);

    const std::unique_ptr<PX_Searchable_Atomic_Object_List<PX_String>> clone(list.clone());
    EXPECT_TRUE(clone->is_empty());
    list.clear();
    EXPECT_TRUE(list.is_empty());
    EXPECT_EQ(*found, L"two") << "a value that is held outlives its node";
}

// Two numbers, ordered by the first alone, so that equal ones show whether they keep their order.
struct Pair {
    int key;
    int mark;
    bool operator==(const Pair&) const = default;
};

bool px_sorts_before(const Pair& inserted, const Pair& element, bool ascending) {
    return ascending ? inserted.key < element.key : inserted.key > element.key;
}

std::vector<int> marks(const PX_Sortable_Atomic_Object_List<Pair>& list) {
    std::vector<int> all;
    const std::unique_ptr<PX_Sortable_Atomic_Object_List<Pair>::iterator> values(list.get_iterator());
    while (values->has_next())
        all.push_back(values->next()->mark);
    return all;
}

TEST(SortableList, SortsACopyAndKeepsEqualElementsInTheirOrder) {
    PX_Sortable_Atomic_Object_List<Pair> original;
    for (const Pair& value : {Pair{2, 1}, Pair{1, 2}, Pair{3, 3}, Pair{1, 4}, Pair{2, 5}})
        original.append(value);
    PX_Sortable_Atomic_Object_List<Pair> list;
    list.append({9, 9});
    EXPECT_EQ(&list.assign(original), &list);
    EXPECT_EQ(list.size(), 5);
    list.sort(true);
    EXPECT_EQ(marks(list), (std::vector{2, 4, 1, 5, 3}));
    list.sort(false);
    EXPECT_EQ(marks(list), (std::vector{3, 1, 5, 2, 4}));
    EXPECT_EQ(marks(original), (std::vector{1, 2, 3, 4, 5}));
}

}  // namespace
