#pragma once

#include <utility>

#include "toolkit/core/smart_pointer.h"
#include "toolkit/host/object.h"

// What both families of lists are made of.

template <class T>
class PX_TEMPLATE_EXPORT PX_List_Node : public PX_Object {
public:
    explicit PX_List_Node(PX_Smart_Pointer<T> element) : m_element(std::move(element)) {}

    PX_Smart_Pointer<T> m_element;
    PX_List_Node* m_next = nullptr;
};

// A walk over a list from its head, which the list outlives. The element that was just returned may be
// removed: keep it in a counted pointer meanwhile.
template <class T>
class PX_TEMPLATE_EXPORT PX_List_Iterator : public PX_Object {
public:
    explicit PX_List_Iterator(PX_List_Node<T>* head) : m_current(head) {}

    bool has_next() const { return m_current != nullptr; }
    // The current element, and on to the next one; null at the end.
    PX_Smart_Pointer<T> next() {
        if (!m_current)
            return nullptr;
        return std::exchange(m_current, m_current->m_next)->m_element;
    }

private:
    PX_List_Node<T>* m_current;
};

// Deletes the nodes from the head, one by one.
template <class T>
void px_delete_nodes(PX_List_Node<T>*& head) {
    while (head)
        delete std::exchange(head, head->m_next);
}
