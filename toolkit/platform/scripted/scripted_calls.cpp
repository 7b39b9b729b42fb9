#include "toolkit/platform/scripted/scripted_calls.h"

#include <algorithm>
#include <string_view>
#include <utility>

void PX_Scripted_Calls::fail(std::string operation, int times, int after) {
    m_faults.push_back({std::move(operation), times, after});
}

std::vector<std::string> PX_Scripted_Calls::unspent_faults() const {
    std::vector<std::string> operations;
    for (const Fault& fault : m_faults)
        if (fault.times > 0)
            operations.push_back(fault.operation);
    return operations;
}

std::vector<PX_Scripted_Calls::Call> PX_Scripted_Calls::calls_of(const std::string& operation) const {
    std::vector<Call> found;
    std::ranges::copy_if(m_calls, std::back_inserter(found),
                         [&](const Call& call) { return call.operation == operation; });
    return found;
}

int PX_Scripted_Calls::count_of(const std::string& operation) const {
    return static_cast<int>(std::ranges::count(m_calls, operation, &Call::operation));
}

int PX_Scripted_Calls::count_misuses() const {
    return static_cast<int>(std::ranges::count(m_calls, true, &Call::is_misuse));
}

void* PX_Scripted_Calls::new_handle(std::wstring name) {
    return &m_handle_names.emplace_back(std::move(name));
}

bool PX_Scripted_Calls::record(Call call) {
    const auto fault = std::ranges::find_if(m_faults, [&](const Fault& ordered) {
        return ordered.operation == call.operation && ordered.times != 0;
    });
    if (fault != m_faults.end()) {
        if (fault->after > 0) {
            --fault->after;
        } else {
            call.is_fault = true;
            if (fault->times != always)
                --fault->times;
        }
    }
    m_calls.push_back(std::move(call));
    return m_calls.back().is_fault;
}

std::wstring PX_Scripted_Calls::words(const void* handle) const {
    if (!handle)
        return L"null";
    for (const std::wstring& name : m_handle_names)
        if (&name == handle)
            return name;
    return L"unknown";
}

std::wstring PX_Scripted_Calls::words(const wchar_t* text) {
    return text ? text : L"null";
}

std::wstring PX_Scripted_Calls::words(const char* text) {
    const std::string_view narrow = text ? text : "null";
    return {narrow.begin(), narrow.end()};
}
