#pragma once

#include <cwchar>
#include <new>

#include "toolkit/core/list_node.h"
#include "toolkit/host/object.h"

// A singly linked list of shared objects. A lookup that finds nothing gives a null pointer and throws
// nothing.
template <class T>
class PX_TEMPLATE_EXPORT PX_Object_List : public PX_Object {
    using Node = PX_List_Node<T>;

public:
    using iterator = PX_List_Iterator<T>;

    // What a range-for reads: each element in place, without counting it.
    class const_iterator {
    public:
        explicit const_iterator(const Node* node) : m_node(node) {}
        const PX_Smart_Pointer<T>& operator*() const { return m_node->m_element; }
        const_iterator& operator++() {
            m_node = m_node->m_next;
            return *this;
        }
        bool operator==(const const_iterator&) const = default;

    private:
        const Node* m_node;
    };

    PX_Object_List() = default;
    PX_Object_List(const PX_Object_List&) = delete;
    PX_Object_List& operator=(const PX_Object_List&) = delete;
    ~PX_Object_List() override { clear(); }

    int size() const { return m_count; }
    bool is_empty() const { return !m_head; }

    // Adds at the tail. The element is shared: whoever wants a copy clones first. No memory is
    // std::bad_alloc, here and below.
    void append(PX_Smart_Pointer<T> element) {
        Node* const added = new_node(std::move(element));
        (m_tail ? m_tail->m_next : m_head) = added;
        m_tail = added;
    }

    // Adds at the head.
    void prepend(PX_Smart_Pointer<T> element) {
        Node* const added = new_node(std::move(element));
        added->m_next = m_head;
        m_head = added;
        if (!m_tail)
            m_tail = added;
    }

    // Removes the first node that holds this very object; false when none does.
    bool remove(const T* element) {
        Node* before = nullptr;
        for (Node* node = m_head; node; before = node, node = node->m_next) {
            if (node->m_element != element)
                continue;
            (before ? before->m_next : m_head) = node->m_next;
            if (node == m_tail)
                m_tail = before;
            --m_count;
            delete node;
            return true;
        }
        return false;
    }

    // Removes every element for which `condition(const T&)` is true. The others keep their order.
    template <class Condition>
    void remove_if(Condition condition) {
        for (Node* node = m_head; node;) {
            const PX_Smart_Pointer<T> element = node->m_element;
            node = node->m_next;
            if (element && condition(*element))
                remove(element.get());
        }
    }

    // An object that somebody else counts lives on.
    void clear() {
        px_delete_nodes(m_head);
        m_tail = nullptr;
        m_count = 0;
    }

    // The caller deletes the iterator, which must not outlive the list. Null when there is no memory.
    iterator* get_iterator() const { return new iterator(m_head); }

    const_iterator begin() const { return const_iterator(m_head); }
    const_iterator end() const { return const_iterator(nullptr); }

protected:
    const PX_Smart_Pointer<T>& null_element() const { return m_null_element; }

private:
    Node* new_node(PX_Smart_Pointer<T> element) {
        Node* const added = new Node(std::move(element));
        if (!added)
            throw std::bad_alloc();
        ++m_count;
        return added;
    }

    int m_count = 0;
    PX_Smart_Pointer<T> m_null_element;
    Node* m_head = nullptr;
    Node* m_tail = nullptr;
};

// A list of objects that are found by their canonical name.
template <class T>
class PX_TEMPLATE_EXPORT PX_Named_Object_List : public PX_Object_List<T> {
public:
    // The first element of that very name, case sensitive; null when there is none. A withdrawn entry is
    // found like any other. A null name is the empty one.
    PX_Smart_Pointer<T> find(const wchar_t* canonical_name) const {
        const wchar_t* const wanted = canonical_name ? canonical_name : L"";
        for (const auto& element : *this) {
            const wchar_t* const name = element ? element->get_canonical_name() : nullptr;
            if (name && std::wcscmp(name, wanted) == 0)
                return element;
        }
        return this->null_element();
    }
};
