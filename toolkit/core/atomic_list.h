#pragma once

#include <new>
#include <utility>

#include "toolkit/core/list_node.h"
#include "toolkit/host/object.h"

// A singly linked list of values: each node holds a counted copy of its own.
template <class T>
class PX_TEMPLATE_EXPORT PX_Atomic_Object_List : public PX_Object {
protected:
    using Node = PX_List_Node<T>;

public:
    using iterator = PX_List_Iterator<T>;

    PX_Atomic_Object_List() = default;
    PX_Atomic_Object_List(const PX_Atomic_Object_List&) = delete;
    PX_Atomic_Object_List& operator=(const PX_Atomic_Object_List&) = delete;
    ~PX_Atomic_Object_List() override { delete_nodes(); }

    // Adds a copy at the tail. There is no tail pointer: the list is walked. No memory is std::bad_alloc.
    virtual void append(const T& value) {
        Node** link = &m_head;
        while (*link)
            link = &(*link)->m_next;
        *link = new_node(value);
    }
    // An element that somebody holds by a counted pointer lives on.
    virtual void clear() { delete_nodes(); }
    virtual bool is_empty() const { return !m_head; }
    // A new list of the same class, and empty: assign is the operation that copies. Null when there is no
    // memory.
    virtual PX_Atomic_Object_List* clone() const { return new PX_Atomic_Object_List; }

    int size() const { return m_count; }
    // The caller deletes the iterator, which must not outlive the list. Null when there is no memory.
    iterator* get_iterator() const { return new iterator(m_head); }

protected:
    // A node with a copy of the value, counted but in no chain yet. No memory is std::bad_alloc.
    Node* new_node(const T& value) {
        Node* const added = new Node(new T(value));
        if (!added)
            throw std::bad_alloc();
        ++m_count;
        return added;
    }

    int m_count = 0;
    PX_Smart_Pointer<T> m_null_element;
    Node* m_head = nullptr;

private:
    void delete_nodes() {
        px_delete_nodes(m_head);
        m_count = 0;
    }
};

// A list of values that is asked for one of them; T has an operator ==.
template <class T>
class PX_TEMPLATE_EXPORT PX_Searchable_Atomic_Object_List : public PX_Atomic_Object_List<T> {
public:
    PX_Searchable_Atomic_Object_List* clone() const override { return new PX_Searchable_Atomic_Object_List; }

    // Adds a copy at the head.
    virtual void prepend(const T& value) {
        auto* const added = this->new_node(value);
        added->m_next = this->m_head;
        this->m_head = added;
    }
    // The first element that is equal; null when there is none.
    virtual PX_Smart_Pointer<T> find(const T& value) const {
        for (const auto* node = this->m_head; node; node = node->m_next) {
            if (*node->m_element == value)
                return node->m_element;
        }
        return this->m_null_element;
    }
};

// A list that can be put in order. The element type says what the order is, by a function
// `bool px_sorts_before(const T& inserted, const T& element, bool ascending)` beside it: a value goes in
// front of the first element at which it is true.
template <class T>
class PX_TEMPLATE_EXPORT PX_Sortable_Atomic_Object_List : public PX_Searchable_Atomic_Object_List<T> {
    using Node = typename PX_Searchable_Atomic_Object_List<T>::Node;

public:
    PX_Sortable_Atomic_Object_List* clone() const override { return new PX_Sortable_Atomic_Object_List; }

    // Puts each element in its place by px_sorts_before, in the order of the list. None is copied.
    virtual void sort(bool ascending) {
        Node* unsorted = std::exchange(this->m_head, nullptr);
        while (unsorted) {
            Node* const inserted = unsorted;
            unsorted = inserted->m_next;
            Node** link = &this->m_head;
            while (*link && !px_sorts_before(*inserted->m_element, *(*link)->m_element, ascending))
                link = &(*link)->m_next;
            inserted->m_next = *link;
            *link = inserted;
        }
    }
    // Clears this list and appends a copy of each element of the other.
    virtual PX_Sortable_Atomic_Object_List& assign(const PX_Sortable_Atomic_Object_List& other) {
        if (this == &other)
            return *this;
        this->clear();
        Node** link = &this->m_head;
        for (const Node* node = other.m_head; node; node = node->m_next) {
            *link = this->new_node(*node->m_element);
            link = &(*link)->m_next;
        }
        return *this;
    }
};
