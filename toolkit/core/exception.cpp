#include "toolkit/core/exception.h"

#include <algorithm>
#include <cwchar>
#include <new>

#include "toolkit/platform/platform.h"

namespace {

char* ansi_form(const wchar_t* text) {
    if (!text)
        return nullptr;
    auto& platform = PX_Get_Platform();
    const int size = platform.WideCharToMultiByte(CP_ACP, 0, text, -1, nullptr, 0, nullptr, nullptr);
    char* const bytes = size > 0 ? new (std::nothrow) char[static_cast<std::size_t>(size)] : nullptr;
    if (bytes)
        platform.WideCharToMultiByte(CP_ACP, 0, text, -1, bytes, size, nullptr, nullptr);
    return bytes;
}

}  // namespace

PX_Exception::PX_Exception(unsigned int code, const wchar_t* function, const wchar_t* detail,
                           const wchar_t* file, unsigned long long resource_module)
    : m_resource_module(resource_module),
      m_code(code),
      m_function(function),
      m_what(ansi_form(function)),
      m_detail{},
      m_file(file),
      m_stack{} {
    if (detail)
        std::wcsncpy(m_detail, detail, detail_capacity - 1);
}

PX_Exception::PX_Exception(const PX_Exception& other)
    : std::exception(other),
      PX_Object(other),
      m_resource_module(other.m_resource_module),
      m_code(other.m_code),
      m_stack_depth(other.m_stack_depth),
      m_function(other.m_function),
      m_what(ansi_form(other.m_function)),
      m_file(other.m_file) {
    std::wmemcpy(m_detail, other.m_detail, detail_capacity);
    std::copy_n(other.m_stack, stack_capacity, m_stack);
}

PX_Exception& PX_Exception::operator=(const PX_Exception& other) {
    if (this == &other)
        return *this;
    m_resource_module = other.m_resource_module;
    m_code = other.m_code;
    m_stack_depth = other.m_stack_depth;
    m_function = other.m_function;
    delete[] m_what;
    m_what = ansi_form(other.m_function);
    std::wmemcpy(m_detail, other.m_detail, detail_capacity);
    m_file = other.m_file;
    std::copy_n(other.m_stack, stack_capacity, m_stack);
    return *this;
}

PX_Exception::~PX_Exception() {
    delete[] m_what;
}

const char* PX_Exception::what() const noexcept {
    return m_what;
}

PX_Exception::Handler PX_Exception::get_handler() const {
    return Handler_Error;
}

void PX_Exception::push_frame(const wchar_t* name) {
    if (m_stack_depth < stack_capacity)
        m_stack[m_stack_depth++] = name;
}

PX_Exception::Handler PX_Warning::get_handler() const {
    return Handler_Warning;
}

PX_Exception::Handler PX_Error::get_handler() const {
    return Handler_Error;
}

PX_Exception::Handler PX_ARI_Error::get_handler() const {
    return Handler_ARI;
}

PX_Exception::Handler PX_Severe_Error::get_handler() const {
    return Handler_Severe;
}
