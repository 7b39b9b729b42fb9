#pragma once

#include <cstddef>
#include <exception>
#include <mutex>
#include <new>
#include <string_view>

#include "toolkit/platform/posix/failure.h"

// What the last operation that failed had to say. Nothing is allocated for it: the reason may be that there
// is no memory.
class PX_Last_Error {
public:
    // Cut at 255 characters.
    void keep(std::wstring_view text);
    // Cut at `size` - 1 characters, with a terminator.
    void copy_to(wchar_t* text, std::size_t size) const;

    // The result of the operation, or 0 for one that ended in an exception, whose reason is kept: of a
    // PX_Failure with the name before it, of others as they tell it, and "No memory". The name may be null. A
    // thread that is cancelled unwinds through it.
    template <class Operation>
    auto attempt(const wchar_t* name, Operation operation) -> decltype(operation()) {
        try {
            return operation();
        } catch (const PX_Failure& failure) {
            tell(name, failure.reason);
        } catch (const std::bad_alloc&) {
            tell(nullptr, "No memory");
        } catch (const std::exception& caught) {
            tell(nullptr, caught.what());
        }
        return decltype(operation())();
    }
    template <class Operation>
    auto attempt(Operation operation) -> decltype(operation()) {
        return attempt(nullptr, operation);
    }

private:
    void tell(const wchar_t* name, const char* reason) noexcept;

    static constexpr std::size_t capacity = 256;

    mutable std::mutex m_lock;
    wchar_t m_text[capacity] = L"";
};
