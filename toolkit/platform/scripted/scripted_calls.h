#pragma once

#include <concepts>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "toolkit/platform/win_types.h"

// What every concern of the scripted machine shares: the record of calls, the faults that a test orders, and
// the handles. An operation goes by its own name, such as "LoadStringW".
class PX_Scripted_Calls {
public:
    // One call as it was recorded.
    struct Call {
        std::string operation;
        // The arguments that go in, in their order and in words: a text as it is, a number in decimal, a
        // handle by the name of what it opened, "null", "invalid" or "unknown", the settings of a line as
        // "9600 8N1 cts" and time-outs as "read 0 0 500 write 0 1000".
        std::vector<std::wstring> arguments;
        // It failed because the test ordered a fault.
        bool is_fault = false;
        // It failed because the caller passed what it has no right to, such as a handle that it has freed.
        bool is_misuse = false;
    };

    static constexpr int always = -1;

    // Lets `times` calls of the operation fail after `after` further ones have run. The operation then has no
    // effect and gives what it gives for a failure: null, 0, INVALID_HANDLE_VALUE for a file, EACCES for a
    // stream, EINVAL for the control word, ERROR_BAD_DEVICE for a network name. Orders for one operation are
    // served one after the other.
    void fail(std::string operation, int times = 1, int after = 0);
    // The operations of faults that were ordered and have not happened: the test did not get where it meant
    // to, or the name is misspelt. Those ordered for `always` do not count.
    std::vector<std::string> unspent_faults() const;

    const std::vector<Call>& calls() const { return m_calls; }
    // Those of one operation, in their order. A name that no operation has gives none.
    std::vector<Call> calls_of(const std::string& operation) const;
    // Their number.
    int count_of(const std::string& operation) const;
    // Those that were not recorded count too.
    int count_misuses() const { return m_misuses; }
    // And misuses with them. Faults that are still to come and handles stay.
    void forget_calls() {
        m_calls.clear();
        m_misuses = 0;
    }
    // Off: a call leaves no record and allocates nothing for one; faults still happen. On at first.
    void record_calls(bool record) { m_records_calls = record; }

protected:
    PX_Scripted_Calls() = default;
    ~PX_Scripted_Calls() = default;
    PX_Scripted_Calls(const PX_Scripted_Calls&) = delete;
    PX_Scripted_Calls& operator=(const PX_Scripted_Calls&) = delete;

    // The first thing an operation does: records the call. True if it is to fail by order.
    template <class... Arguments>
    bool must_fail(const char* operation, const Arguments&... arguments) {
        const bool is_fault = take_fault(operation);
        if (m_records_calls)
            m_calls.push_back({operation, {words(arguments)...}, is_fault});
        return is_fault;
    }
    // Once in a call.
    void mark_misuse();
    // Gives the condition back.
    bool mark_misuse_if(bool is_misuse) {
        if (is_misuse)
            mark_misuse();
        return is_misuse;
    }

    // A handle that no other has been or will be, known in words by this name.
    void* new_handle(std::wstring name);

private:
    struct Fault {
        std::string operation;
        int times;
        int after;
    };

    bool take_fault(const char* operation);
    std::wstring words(const void* handle) const;
    static std::wstring words(const wchar_t* text);
    static std::wstring words(const char* text);
    static std::wstring words(std::wstring_view text) { return std::wstring(text); }
    static std::wstring words(const DCB* state);
    static std::wstring words(const COMMTIMEOUTS* timeouts);
    static std::wstring words(std::integral auto number) { return std::to_wstring(number); }

    std::vector<Call> m_calls;
    bool m_records_calls = true;
    int m_misuses = 0;
    std::vector<Fault> m_faults;
    // A handle is the address of its name.
    std::deque<std::wstring> m_handle_names;
};
