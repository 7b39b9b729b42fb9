#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "toolkit/platform/win_types.h"

// The bytes that go out and come in under one name, and how many of them a write takes.
class PX_Scripted_Stream {
public:
    // What one write takes.
    struct Portion {
        DWORD at_most;
        bool fails;
    };

    // The result is false for a portion that fails; `taken` is counted all the same.
    bool take(std::string_view offered, bool keep, DWORD& taken);
    // The bytes of one arrival at most.
    DWORD give(void* bytes, DWORD size);

    std::string written;
    // Also those that were not kept.
    std::size_t written_count = 0;
    std::deque<std::string> arrivals;
    std::deque<Portion> portions;
    // Asked once there are no portions left; null takes everything.
    std::function<DWORD(DWORD)> next_portion;
};

// Equal for two names of one thing: case does not count, nor does a colon at the end.
std::wstring px_scripted_key(std::wstring name);

// What goes out to and comes in from ports, files and printers. In a name, case does not count, nor
// does a colon at the end. A stream is there for any name, also before it is opened.
class PX_Scripted_Streams {
public:
    // Everything that writes took, from all openings; a file begins anew when it is created.
    std::string bytes_written_to(const std::wstring& name) const;
    // Their number, also of those that were not kept.
    std::size_t count_bytes_written_to(const std::wstring& name) const;
    // Off: what is written is counted and dropped, so that a write allocates nothing. On at first.
    void keep_bytes(bool keep) { m_keeps_bytes = keep; }

    // Bytes that arrive together. A read gets those of one arrival at most, and nothing, with success, when
    // none is left.
    void queue_input(const std::wstring& name, std::string bytes);

    // The next writes take at most so many bytes each; 0 is a success that takes none. After them, and after
    // the calls below were served in their order, a write takes everything. One that fails by order takes no
    // part in the plan.
    void take_at_most(const std::wstring& name, const std::vector<DWORD>& counts);
    // One write takes so many bytes and fails.
    void fail_having_taken(const std::wstring& name, DWORD count);
    // Once the plan is served, the function says how many of the bytes offered a write takes; null ends it.
    void take_portions(const std::wstring& name, std::function<DWORD(DWORD offered)> portion);

protected:
    PX_Scripted_Streams() = default;
    ~PX_Scripted_Streams() = default;

    // Its address stays.
    PX_Scripted_Stream& stream(const std::wstring& name) { return m_streams[px_scripted_key(name)]; }
    bool keeps_bytes() const { return m_keeps_bytes; }

private:
    std::map<std::wstring, PX_Scripted_Stream> m_streams;
    bool m_keeps_bytes = true;
};
