#pragma once

#include <functional>
#include <initializer_list>
#include <memory>
#include <new>
#include <sstream>
#include <type_traits>

#include "tests/support/allocations.h"
#include "tests/support/entries.h"
#include "tests/support/expect_exception.h"
#include "toolkit/core/object_list.h"
#include "toolkit/host/geometry.h"

// Tests of what the classes of the model do with their fields, from a table of them.
namespace support {

// What a getter gives, as text.
inline std::wstring show(const wchar_t* value) {
    return text(value);
}

template <class Value>
requires std::is_arithmetic_v<Value> || std::is_enum_v<Value> std::wstring show(Value value) {
    std::wostringstream out;
    out << +value;
    return out.str();
}

inline std::wstring show(const PX_Float_XY* value) {
    return value ? show(value->x) + L" " + show(value->y) : L"(null)";
}

inline std::wstring show(const PX_RGB32* color) {
    if (!color)
        return L"(null)";
    return show(color->red) + L" " + show(color->green) + L" " + show(color->blue) + L" " +
           show(color->alpha);
}

inline std::wstring show(const PX_Float_Rectangle* value) {
    const auto corner = [](float x, float y) { return show(x) + L" " + show(y); };
    return value ? corner(value->x_min, value->x_max) + L" " + corner(value->y_min, value->y_max) : L"(null)";
}

template <class Element>
std::wstring show(const PX_Object_List<Element>* list) {
    std::wstring names = list ? L"list" : L"(null)";
    if (list) {
        for (const auto& element : *list)
            names += std::wstring(L" ") + element->get_canonical_name();
    }
    return names;
}

template <class Std, class Contract>
PX_Smart_Pointer<PX_Named_Object_List<Contract>> list_of(std::initializer_list<const wchar_t*> names) {
    PX_Smart_Pointer<PX_Named_Object_List<Contract>> list = new PX_Named_Object_List<Contract>;
    for (const wchar_t* const name : names) {
        PX_Smart_Pointer<Contract> element = new Std;
        element->set_canonical_name(name);
        list->append(element);
    }
    return list;
}

template <class Object>
std::wstring show(const PX_Smart_Pointer<Object>& object) {
    return show(static_cast<const Object*>(object.get()));
}

// What `attempt` throws with the first, the second ... allocation failing, until it succeeds. A bare
// std::bad_alloc has the code 0.
template <class Attempt>
std::vector<Thrown> failures_of(Attempt attempt) {
    std::vector<Thrown> failures;
    for (std::optional<Thrown> thrown;; failures.push_back(*thrown)) {
        const Out_Of_Memory none(static_cast<int>(failures.size()));
        try {
            thrown = thrown_by(attempt);
        } catch (const std::bad_alloc&) {
            thrown = Thrown{};
        }
        if (!thrown)
            return failures;
    }
}

// 1101 leaves the clone under its name, and with its file where one is given, and nothing leaks.
template <class Class>
void expect_clone_reports_no_memory(const Class& object, const std::wstring& function,
                                    const std::wstring& file = L"") {
    const auto failures = failures_of([&] { delete object.clone(); });
    EXPECT_FALSE(failures.empty());
    for (const Thrown& thrown : failures) {
        EXPECT_EQ(thrown.code, 1101U);
        EXPECT_EQ(thrown.frames.empty() ? thrown.function : thrown.frames.back(), function);
        EXPECT_TRUE(!thrown.frames.empty() ||
                    (thrown.detail == L"new_one" && thrown.is<MVNK_Memory_Exception>()));
        EXPECT_TRUE(file.empty() || thrown.file == file);
    }
}

// The words that a setter fails with.
struct Setter_Words {
    std::wstring function;
    const wchar_t* detail;  // null where a null argument is no failure of a name
    const wchar_t* file;
    const wchar_t* null_list = L"(null)";  // what a list reads as after null
};

// A null name is emptied first, then reported; a text that names nothing is only emptied.
template <class Class>
void check_setter(Class& object, const wchar_t* (Class::*get)() const, void (Class::*set)(const wchar_t*),
                  const wchar_t* name, const Setter_Words& words) {
    (object.*set)(name);
    const auto set_null = [&] { (object.*set)(nullptr); };
    if (words.detail)
        EXPECT_EQ(expect_thrown<MVNK_Error>(set_null, 1103, words.function, words.detail).file, words.file);
    else
        EXPECT_NO_THROW(set_null());
    EXPECT_STREQ((object.*get)(), L"");
}

// A list is copied deep and in order, the caller's stays the caller's. A failing copy leaves the old one.
template <class Class, class Element, template <class> class List>
void check_setter(Class& object, PX_Smart_Pointer<List<Element>> (Class::*get)() const,
                  void (Class::*set)(const List<Element>*), const List<Element>* list,
                  const Setter_Words& words) {
    List<Element> callers;
    for (const auto& element : *list)
        callers.append(element->clone());
    (object.*set)(&callers);
    for (const auto& element : callers)
        element->set_canonical_name(L"changed");
    callers.append((*list->begin())->clone());
    const auto stored = (object.*get)();
    EXPECT_EQ(show(stored), show(list));
    for (const Thrown& thrown : failures_of([&] {
             EXPECT_TRUE((object.*get)() == stored);
             (object.*set)(&callers);
         })) {
        if (!thrown.type)
            EXPECT_FALSE(words.detail);
        else if (!thrown.frames.empty())
            EXPECT_EQ(thrown.frames.back(), words.function);
        else
            EXPECT_TRUE(words.detail && thrown.is<MVNK_Memory_Exception>() && thrown.code == 1101 &&
                        thrown.function == words.function && thrown.detail == words.detail &&
                        thrown.file == words.file);
    }
    const auto before = (object.*get)();
    (object.*set)(nullptr);
    EXPECT_TRUE(show((object.*get)()) == words.null_list && (object.*get)() != before);
    const std::unique_ptr<Class> clone(object.clone());
    EXPECT_EQ(show(((*clone).*get)()), show((object.*get)()));
}

// A value is copied into a new one: what was got before keeps its numbers. Null is zeros.
template <class Class, class Value>
void check_setter(Class& object, PX_Smart_Pointer<Value> (Class::*get)() const,
                  void (Class::*set)(const Value*), const Value* value, const Setter_Words& words) {
    Value argument = *value;
    (object.*set)(&argument);
    argument = {};
    const auto held = (object.*get)();
    const auto failures = failures_of([&] {
        EXPECT_TRUE((object.*get)() == held);
        (object.*set)(nullptr);
    });
    EXPECT_FALSE(failures.empty());
    for (const Thrown& thrown : failures) {
        ASSERT_TRUE(thrown.type && thrown.is<MVNK_Memory_Exception>());
        EXPECT_EQ(thrown.code, 1101U);
        EXPECT_EQ(thrown.function, words.function);
        EXPECT_EQ(thrown.detail, words.detail);
        EXPECT_EQ(thrown.file, words.file);
    }
    EXPECT_EQ(*held, *value);
    EXPECT_EQ(*(object.*get)(), Value());
}

// The entry of that very name, the first of several, withdrawn or not.
template <class Std, class Class, class Element>
void check_lookup(Class& object, void (Class::*set)(const PX_Named_Object_List<Element>*),
                  PX_Smart_Pointer<Element> (Class::*find)(const wchar_t*) const) {
    const auto list = list_of<Std, Element>({L"", L"other", L"a4", L"a4"});
    withdraw(list->find(L"a4"));
    (object.*set)(list.get());
    const auto found = (object.*find)(L"a4");
    EXPECT_TRUE(found && found->get_caps_type() == 3) << "the first of that name, though it is withdrawn";
    for (const wchar_t* const missing : {L"A4", L"a", L"a44", static_cast<const wchar_t*>(nullptr)})
        EXPECT_FALSE((object.*find)(missing));
    (object.*set)(nullptr);
    EXPECT_FALSE((object.*find)(L"a4"));
}
#define CHECK_LOOKUP(class_name, object, name)                                               \
    support::check_lookup<PX_Std_##class_name>(object, &decltype(object)::set_##name##_list, \
                                               &decltype(object)::get_##name)

// `set` and `get` take the number of a flag.
template <class Set, class Get>
void check_range(int count, const wchar_t* header, const wchar_t* enum_name, Set set, Get get) {
    set(-1);
    EXPECT_TRUE(get(-1) == 0 && get(count - 1) == 0);
    set(count - 1);
    EXPECT_NE(get(count - 1), 0);
    for (const int outside : {-2, count}) {
        expect_thrown<PX_Severe_Error>([&] { set(outside); }, 1104, header, enum_name);
        const auto thrown = expect_thrown<PX_Severe_Error>([&] { get(outside); }, 1104, header, enum_name);
        EXPECT_EQ(thrown.file, L"(null)");
    }
}
#define CHECK_RANGE(object, name, set_to, count, domain, enum_name)                \
    support::check_range(                                                          \
        count, L"toolkit/marvcon/std_" domain L"_cfg", enum_name,                  \
        [&](int flag) { (object).set_one_##name(set_to, support::Number{flag}); }, \
        [&](int flag) { return (object).get_one_##name(support::Number{flag}); })

// What a new object reads, another value to give it, and what null does.
template <class Class>
struct Field {
    std::wstring setter;
    const wchar_t* null_detail;
    const wchar_t* null_list;
    std::wstring start;
    std::wstring other;
    std::function<std::wstring(const Class&)> read;
    std::function<const void*(const Class&)> held;  // null for what is held by value
    std::function<void(Class&)> write;
    std::function<void(Class&, const Setter_Words&)> check_setter;
};

template <class Class>
using Fields = std::vector<Field<Class>>;

template <class Class, class Value, class Argument>
Field<Class> field(const wchar_t* setter, Value (Class::*get)() const, const wchar_t* start,
                   void (Class::*set)(Argument), std::type_identity_t<Argument> other,
                   const wchar_t* null_detail = nullptr, const wchar_t* null_list = nullptr) {
    // A list setter that says what it has no memory for makes a new list of null, unless the row tells.
    if (!null_list)
        null_list = null_detail ? L"list" : L"(null)";
    Field<Class> row = {setter, null_detail, null_list, start, show(other), {}, {}, {}, {}};
    row.read = [get](const Class& object) { return show((object.*get)()); };
    row.write = [set, other](Class& object) { (object.*set)(other); };
    row.held = [](const Class&) { return nullptr; };
    if constexpr (requires(Value value) { value.get(); })
        row.held = [get](const Class& object) { return (object.*get)().get(); };
    row.check_setter = [](Class&, const Setter_Words&) {};  // a plain value needs no care
    if constexpr (requires(Class & object, const Setter_Words& words) {
                      check_setter(object, get, set, other, words);
                  })
        row.check_setter = [get, set, other](Class& object, const Setter_Words& words) {
            check_setter(object, get, set, other, words);
        };
    return row;
}

// A row by the name of the datum: its start, another value, and what the setter says of null.
#define FIELD(class_name, name, start, ...) \
    support::field(L"set_" #name, &class_name::get_##name, start, &class_name::set_##name, __VA_ARGS__)

// The fields that do not read as in a new object.
template <class Class>
std::wstring changes(const Class& object, const Fields<Class>& fields) {
    std::wstring changed;
    for (const auto& field : fields) {
        const std::wstring now = field.read(object);
        if (now != field.start)
            changed += (changed.empty() ? L"" : L", ") + field.setter.substr(4) + L" " + now;
    }
    return changed;
}

// Each field of a new object starts as told, is stored apart from the others, reaches the clone, which shares
// nothing, and has a setter that minds null.
template <class Class>
void check_fields(Class& object, const Fields<Class>& fields, const std::wstring& class_name,
                  const wchar_t* file) {
    SCOPED_TRACE(testing::PrintToString(class_name));
    EXPECT_EQ(changes(object, fields), L"");
    for (const auto& field : fields)
        field.write(object);
    const std::unique_ptr<Class> clone(object.clone());
    for (const auto& field : fields) {
        SCOPED_TRACE(testing::PrintToString(field.setter));
        EXPECT_NE(field.other, field.start) << "the row shows nothing";
        EXPECT_EQ(field.read(object), field.other);
        EXPECT_EQ(field.read(*clone), field.other);
        EXPECT_TRUE(!field.held(object) || field.held(object) != field.held(*clone));
    }
    expect_clone_reports_no_memory(object, class_name + L"::clone");
    for (const auto& field : fields) {
        SCOPED_TRACE(testing::PrintToString(field.setter));
        field.check_setter(object,
                           {class_name + L"::" + field.setter, field.null_detail, file, field.null_list});
    }
}

}  // namespace support
