#include "toolkit/host/options.h"

#include <new>
#include <utility>

namespace {

// A new expression on an object of the host gives null instead.
template <class Object>
Object* made(Object* object) {
    if (!object)
        throw std::bad_alloc();
    return object;
}

}  // namespace

PX_Counted::~PX_Counted() = default;

const PX_Option_Value::Held* PX_Option_Value::hold(Content content) {
    return made(new Held(content));
}

PX_Option_Table::~PX_Option_Table() = default;

PX_Option* PX_Option_Table::add(const PX_Option& option) {
    if (PX_Option* const there = find(option.get_name()))
        return there;
    std::unique_ptr<PX_Option> own(made(new PX_Option(option)));
    m_options.push_back(std::move(own));
    return m_options.back().get();
}

PX_Option* PX_Option_Table::find(const wchar_t* name) const {
    const PX_String wanted(name);
    for (const auto& option : m_options) {
        if (wanted == option->get_name())
            return option.get();
    }
    return nullptr;
}
