#pragma once

#include <atomic>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <variant>
#include <vector>

#include "toolkit/host/object.h"
#include "toolkit/host/string.h"

// An object with a count of its holders, which several threads may hold and let go. A new one has one holder:
// its maker. The last to let go deletes it.
class PX_EXPORT PX_Counted : public PX_Object {
public:
    PX_Counted() = default;
    PX_Counted(const PX_Counted&) = delete;
    PX_Counted& operator=(const PX_Counted&) = delete;

    void add_reference() const { m_references.fetch_add(1, std::memory_order_relaxed); }
    void release_reference() const {
        if (m_references.fetch_sub(1, std::memory_order_acq_rel) == 1)
            delete this;
    }

protected:
    ~PX_Counted() override;

private:
    mutable std::atomic<std::int32_t> m_references{1};
};

// The value of an option: a pointer, a float, a long of 32 bits or a bool. It never changes; copies share it.
// A number of any other type is ambiguous: write 0L, not 0, and 1.0F, not 1.0. No memory is std::bad_alloc.
class PX_EXPORT PX_Option_Value {
public:
    // The pointer is kept, not what it points at. Functions have pointers too.
    template <class Target>
    PX_Option_Value(Target* pointer) : m_held(hold(address(pointer))) {}
    PX_Option_Value(std::nullptr_t) : m_held(hold(static_cast<void*>(nullptr))) {}
    PX_Option_Value(float number) : m_held(hold(number)) {}
    PX_Option_Value(long number) : m_held(hold(static_cast<std::int32_t>(number))) {}
    PX_Option_Value(std::same_as<bool> auto on) : m_held(hold(on)) {}
    PX_Option_Value(const PX_Option_Value& other) : m_held(other.m_held) { m_held->add_reference(); }
    PX_Option_Value& operator=(const PX_Option_Value& other) {
        other.m_held->add_reference();
        m_held->release_reference();
        m_held = other.m_held;
        return *this;
    }
    ~PX_Option_Value() { m_held->release_reference(); }

    // A value of another type reads as null, 0 and false: nothing is converted. What a pointer points at is
    // for the caller to know.
    template <class Target>
    Target* get_pointer() const {
        return reinterpret_cast<Target*>(get<void*>());
    }
    float get_float() const { return get<float>(); }
    long get_long() const { return get<std::int32_t>(); }
    bool get_bool() const { return get<bool>(); }

private:
    using Content = std::variant<void*, float, std::int32_t, bool>;

    struct Held final : PX_Counted {
        explicit Held(Content from) : content(from) {}
        const Content content;
    };

    template <class Target>
    static void* address(Target* pointer) {
        return const_cast<void*>(reinterpret_cast<const volatile void*>(pointer));
    }
    static const Held* hold(Content content);
    template <class Type>
    Type get() const {
        const Type* const value = std::get_if<Type>(&m_held->content);
        return value ? *value : Type();
    }

    const Held* m_held;
};

// The enumerations of options.
struct PX_Option_Enum {
    // For whom an option holds. The host gives the numbers their meaning; the toolkit's options have 0.
    enum Scope : int { Scope_0 = 0 };
};

// A named value that a host tunes and a renderer reads.
class PX_EXPORT PX_Option : public PX_Object {
public:
    PX_Option(const PX_String& name, PX_Option_Enum::Scope scope, const PX_Option_Value& value)
        : m_name(name), m_scope(scope), m_value(value) {}

    const wchar_t* get_name() const { return m_name; }
    PX_Option_Enum::Scope get_scope() const { return m_scope; }
    const PX_Option_Value& get() const { return m_value; }
    // A value of another type than before is taken as well; who asks for the old type then reads 0.
    void set(const PX_Option_Value& value) { m_value = value; }

private:
    PX_String m_name;
    PX_Option_Enum::Scope m_scope;
    PX_Option_Value m_value;
};

// Options by name. They live as long as the table, each in its place.
class PX_EXPORT PX_Option_Table : public PX_Object {
public:
    PX_Option_Table() = default;
    PX_Option_Table(const PX_Option_Table&) = delete;
    PX_Option_Table& operator=(const PX_Option_Table&) = delete;
    ~PX_Option_Table() override;

    // Puts a copy in and gives the table's own option. One of that name that is there already stays as it is
    // and is given instead: whoever comes second finds what was set. No memory is std::bad_alloc, and the
    // table stays.
    PX_Option* add(const PX_Option& option);
    // The option of exactly this name; null when there is none.
    PX_Option* find(const wchar_t* name) const;

private:
    std::vector<std::unique_ptr<PX_Option>> m_options;
};
