#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <typeinfo>
#include <vector>

#include "toolkit/core/exception.h"

namespace support {

inline std::wstring text(const wchar_t* characters) {
    return characters ? characters : L"(null)";
}

// What a call threw, or nothing when it threw none.
struct Thrown {
    const std::type_info* type;
    unsigned int code;
    std::wstring function;
    std::wstring detail;
    std::wstring file;
    std::vector<std::wstring> frames;

    template <class Class>
    bool is() const {
        return *type == typeid(Class);
    }
};

template <class Call>
std::optional<Thrown> thrown_by(Call&& call) {
    try {
        call();
    } catch (const PX_Exception& caught) {
        return Thrown{&typeid(caught),         caught.m_code,
                      text(caught.m_function), caught.m_detail,
                      text(caught.m_file),     {caught.m_stack, caught.m_stack + caught.m_stack_depth}};
    }
    return std::nullopt;
}

// Fails unless the call throws exactly this class, code, function and detail.
template <class Class, class Call>
Thrown expect_thrown(Call&& call, unsigned int code, const std::wstring& function,
                     const std::wstring& detail) {
    const std::optional<Thrown> thrown = thrown_by(std::forward<Call>(call));
    EXPECT_TRUE(thrown) << "nothing was thrown";
    if (!thrown)
        return {};
    EXPECT_TRUE(thrown->is<Class>()) << thrown->type->name();
    EXPECT_EQ(thrown->code, code);
    EXPECT_EQ(thrown->function, function);
    EXPECT_EQ(thrown->detail, detail);
    return *thrown;
}

}  // namespace support
