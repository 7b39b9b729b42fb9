#pragma once

#include <exception>
#include <new>
#include <utility>

#include "toolkit/core/error_resources.h"
#include "toolkit/host/object.h"

// The source of a domain, as its exceptions carry it. `stem` is a wide literal, such as L"std_media_cfg".
struct PX_Source {
    const wchar_t* file_tag;     // m_file of the domain's failures
    const wchar_t* header_path;  // m_function of its range errors
};
// A PX_Source of that stem.
#define PX_SOURCE(stem)                                                     \
    PX_Source {                                                             \
        L"$Workfile: " stem L" $ $Revision: #1 $", L"toolkit/marvcon/" stem \
    }

// Numbers that several domains throw.
struct PX_Code {
    static constexpr unsigned int Bad_Ability = 1001;
    static constexpr unsigned int No_Memory = 1101;
    static constexpr unsigned int Null_Argument = 1103;
    static constexpr unsigned int Out_Of_Range = 1104;
};

// The root of the exception family. Everything the library throws on purpose is one of these, and what has
// passed a frame (px_frame) is a plain PX_Exception: its code, texts and trace stay, its class is lost.
class PX_EXPORT PX_Exception : public std::exception, public PX_Object {
public:
    // Which operation of an error handler an exception goes to.
    enum Handler : int {
        Handler_Info = 0,
        Handler_Warning = 1,
        Handler_Error = 2,
        Handler_ARI = 3,
        Handler_Severe = 4,
        Handler_Terminal = 5,
        Handler_None = 6,
    };

    static constexpr int stack_capacity = 32;
    static constexpr int detail_capacity = 260;

    // `function` and `file` are literals: they are not copied. `detail` is copied and cut at 259 characters;
    // null is the empty text.
    explicit PX_Exception(unsigned int code, const wchar_t* function = nullptr,
                          const wchar_t* detail = nullptr, const wchar_t* file = nullptr,
                          unsigned long long resource_module = GetMVNErrResHandle());
    PX_Exception(const PX_Exception& other);
    PX_Exception& operator=(const PX_Exception& other);
    ~PX_Exception() override;

    // The function's name in the system code page; null when there is no function name.
    const char* what() const noexcept override;
    virtual Handler get_handler() const;

    // Adds the name of a frame that the exception passes; a literal. A full trace stays as it is.
    void push_frame(const wchar_t* name);

    unsigned long long m_resource_module;  // where the text of the code lies
    unsigned int m_code;                   // also the number of the text
    int m_stack_depth = 0;
    const wchar_t* m_function;
    char* m_what;  // owned
    wchar_t m_detail[detail_capacity];
    const wchar_t* m_file;
    const wchar_t* m_stack[stack_capacity];  // the names of the frames passed, innermost first
};

// The user is told, and goes on or not.
class PX_EXPORT PX_Warning : public PX_Exception {
public:
    using PX_Exception::PX_Exception;
    Handler get_handler() const override;
};

// A warning of this library.
class PX_EXPORT MVNK_Warning : public PX_Warning {
public:
    using PX_Warning::PX_Warning;
};

// A failure of what was asked for; the program goes on.
class PX_EXPORT PX_Error : public PX_Exception {
public:
    using PX_Exception::PX_Exception;
    Handler get_handler() const override;
};

// The ordinary failure of this library.
class PX_EXPORT MVNK_Error : public PX_Error {
public:
    using PX_Error::PX_Error;
};

// A failure that the user answers with abort, retry or ignore.
class PX_EXPORT PX_ARI_Error : public PX_Exception {
public:
    using PX_Exception::PX_Exception;
    Handler get_handler() const override;
};

// A file, port or printer that does not open.
class PX_EXPORT MVNK_IO_Open_Error : public PX_ARI_Error {
public:
    using PX_ARI_Error::PX_ARI_Error;
};

// The output channel catches it; nothing in this library throws it, a driver may.
class PX_EXPORT MVNK_IO_Comm_Error : public PX_ARI_Error {
public:
    using PX_ARI_Error::PX_ARI_Error;
};

// Not to be continued from.
class PX_EXPORT PX_Severe_Error : public PX_Exception {
public:
    using PX_Exception::PX_Exception;
    Handler get_handler() const override;
};

// What could not be made: 1101.
class PX_EXPORT MVNK_Memory_Exception : public PX_Severe_Error {
public:
    using PX_Severe_Error::PX_Severe_Error;
};

// Throws MVNK_Error 1103 for a null argument or a missing object, which `detail` names.
template <class Pointer>
void px_require_argument(const Pointer& argument, const wchar_t* function, const wchar_t* detail,
                         const wchar_t* file) {
    if (!argument)
        throw MVNK_Error(PX_Code::Null_Argument, function, detail, file);
}

// Throws MVNK_Memory_Exception 1101 for what could not be made, which `detail` names.
template <class Pointer>
void px_require_made(const Pointer& made, const wchar_t* function, const wchar_t* detail,
                     const wchar_t* file) {
    if (!made)
        throw MVNK_Memory_Exception(PX_Code::No_Memory, function, detail, file);
}

// Runs `call`, for which there may be no memory: MVNK_Memory_Exception 1101, `detail` names what it was for.
template <class Call>
decltype(auto) px_with_memory(const wchar_t* function, const wchar_t* detail, const wchar_t* file,
                              Call&& call) {
    try {
        return std::forward<Call>(call)();
    } catch (const std::bad_alloc&) {
        throw MVNK_Memory_Exception(PX_Code::No_Memory, function, detail, file);
    }
}
