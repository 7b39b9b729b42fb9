#include "toolkit/platform/scripted/scripted_streams.h"

#include <algorithm>
#include <utility>

bool PX_Scripted_Stream::take(std::string_view offered, bool keep, DWORD& taken) {
    const DWORD size = static_cast<DWORD>(offered.size());
    Portion portion{size, false};
    if (!portions.empty()) {
        portion = portions.front();
        portions.pop_front();
    } else if (next_portion) {
        portion.at_most = next_portion(size);
    }
    taken = std::min(size, portion.at_most);
    written_count += taken;
    if (keep)
        written.append(offered.substr(0, taken));
    return !portion.fails;
}

DWORD PX_Scripted_Stream::give(void* bytes, DWORD size) {
    if (arrivals.empty())
        return 0;
    std::string& arrival = arrivals.front();
    const std::size_t given = arrival.copy(static_cast<char*>(bytes), size);
    arrival.erase(0, given);
    if (arrival.empty())
        arrivals.pop_front();
    return static_cast<DWORD>(given);
}

std::wstring px_scripted_key(std::wstring name) {
    if (name.size() > 1 && name.back() == L':')
        name.pop_back();
    for (wchar_t& c : name)
        if (c >= L'a' && c <= L'z')
            c = static_cast<wchar_t>(c - L'a' + L'A');
    return name;
}

std::string PX_Scripted_Streams::bytes_written_to(const std::wstring& name) const {
    const auto found = m_streams.find(px_scripted_key(name));
    return found == m_streams.end() ? std::string() : found->second.written;
}

std::size_t PX_Scripted_Streams::count_bytes_written_to(const std::wstring& name) const {
    const auto found = m_streams.find(px_scripted_key(name));
    return found == m_streams.end() ? 0 : found->second.written_count;
}

void PX_Scripted_Streams::queue_input(const std::wstring& name, std::string bytes) {
    if (!bytes.empty())
        stream(name).arrivals.push_back(std::move(bytes));
}

void PX_Scripted_Streams::take_at_most(const std::wstring& name, const std::vector<DWORD>& counts) {
    for (const DWORD count : counts)
        stream(name).portions.push_back({count, false});
}

void PX_Scripted_Streams::fail_having_taken(const std::wstring& name, DWORD count) {
    stream(name).portions.push_back({count, true});
}

void PX_Scripted_Streams::take_portions(const std::wstring& name, std::function<DWORD(DWORD)> portion) {
    stream(name).next_portion = std::move(portion);
}
