#pragma once

#include <utility>

#include "toolkit/core/sp_pool.h"
#include "toolkit/host/object.h"

// A counted pointer. The count is kept by the address of the T, so an object is always held through the same
// class: its abstract one, which is the first of its bases. The last counted pointer to an object deletes it;
// a plain pointer protects nothing.
//
// A new object has no count. Put it into a lasting counted pointer first: a temporary one made from it
// deletes it when it goes.
template <class T>
class PX_TEMPLATE_EXPORT PX_Smart_Pointer {
public:
    PX_Smart_Pointer() = default;
    PX_Smart_Pointer(T* object) : m_object(object) { add(); }
    PX_Smart_Pointer(const PX_Smart_Pointer& other) : m_object(other.m_object) { add(); }
    PX_Smart_Pointer(PX_Smart_Pointer&& other) noexcept : m_object(std::exchange(other.m_object, nullptr)) {}
    ~PX_Smart_Pointer() { release(); }

    // Every assignment releases the old object before it takes the new one. The very object that this pointer
    // alone holds is deleted by assigning it, and so is a counted one that only the object that goes holds;
    // the pointer is then left null. A plain pointer must not be one that only the old object holds: nothing
    // tells that it is gone. Moving takes the new one over first.
    PX_Smart_Pointer& operator=(T* object) {
        T* const held = m_object;
        if (release() && object == held)
            return *this;
        m_object = object;
        add();
        return *this;
    }
    PX_Smart_Pointer& operator=(const PX_Smart_Pointer& other) {
        T* object = other.m_object;
        if (release() && object && SPMP()->get_count(address(object)) == -1)
            object = nullptr;
        m_object = object;
        add();
        return *this;
    }
    PX_Smart_Pointer& operator=(PX_Smart_Pointer&& other) {
        T* const taken = std::exchange(other.m_object, nullptr);
        release();
        m_object = taken;
        return *this;
    }

    T* get() const { return m_object; }
    T& operator*() const { return *m_object; }
    T* operator->() const { return m_object; }
    explicit operator bool() const { return m_object != nullptr; }

    friend bool operator==(const PX_Smart_Pointer& a, const PX_Smart_Pointer& b) {
        return a.m_object == b.m_object;
    }
    friend bool operator==(const PX_Smart_Pointer& a, const T* b) { return a.m_object == b; }

private:
    static void* address(T* object) { return const_cast<void*>(static_cast<const volatile void*>(object)); }

    // An object that cannot be counted for want of memory is nobody's, and goes.
    void add() {
        try {
            if (m_object)
                SPMP()->add_reference(address(m_object));
        } catch (...) {
            delete std::exchange(m_object, nullptr);
            throw;
        }
    }

    // True when the object went with its last reference. The pointer is null before the object's destructor
    // runs.
    bool release() {
        if (!m_object)
            return false;
        T* const object = std::exchange(m_object, nullptr);
        if (SPMP()->release_reference(address(object)) != 0)
            return false;
        static_assert(
            requires { sizeof(T); }, "include the contract of what a counted pointer deletes");
        delete object;
        return true;
    }

    T* m_object = nullptr;
};
