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

void PX_Scripted_Calls::mark_misuse() {
    ++m_misuses;
    if (m_records_calls)
        m_calls.back().is_misuse = true;
}

void* PX_Scripted_Calls::new_handle(std::wstring name) {
    return &m_handle_names.emplace_back(std::move(name));
}

bool PX_Scripted_Calls::take_fault(const char* operation) {
    const auto fault = std::ranges::find_if(
        m_faults, [&](const Fault& ordered) { return ordered.operation == operation && ordered.times != 0; });
    if (fault == m_faults.end())
        return false;
    if (fault->after > 0) {
        --fault->after;
        return false;
    }
    if (fault->times != always)
        --fault->times;
    return true;
}

std::wstring PX_Scripted_Calls::words(const void* handle) const {
    if (!handle)
        return L"null";
    if (handle == INVALID_HANDLE_VALUE)
        return L"invalid";
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

std::wstring PX_Scripted_Calls::words(const DCB* state) {
    if (!state)
        return L"null";
    const auto pick = [](std::wstring_view choices, BYTE at) {
        return at < choices.size() ? choices[at] : L'?';
    };
    std::wstring text = std::to_wstring(state->BaudRate) + L' ' + std::to_wstring(state->ByteSize);
    text += pick(L"NOEMS", state->Parity);
    text += state->StopBits == ONE5STOPBITS ? L"1.5" : state->StopBits == TWOSTOPBITS ? L"2" : L"1";
    const struct {
        bool is_set;
        const wchar_t* word;
    } flags[] = {
        {state->fOutxCtsFlow != 0, L" cts"},
        {state->fOutxDsrFlow != 0, L" dsr"},
        {state->fDsrSensitivity != 0, L" dsr-in"},
        {state->fOutX != 0, L" xon-out"},
        {state->fInX != 0, L" xon-in"},
    };
    for (const auto& flag : flags)
        if (flag.is_set)
            text += flag.word;
    if (state->fDtrControl != DTR_CONTROL_DISABLE)
        text += L" dtr " + std::to_wstring(state->fDtrControl);
    if (state->fRtsControl != RTS_CONTROL_DISABLE)
        text += L" rts " + std::to_wstring(state->fRtsControl);
    return text;
}

std::wstring PX_Scripted_Calls::words(const COMMTIMEOUTS* timeouts) {
    if (!timeouts)
        return L"null";
    return L"read " + std::to_wstring(timeouts->ReadIntervalTimeout) + L' ' +
           std::to_wstring(timeouts->ReadTotalTimeoutMultiplier) + L' ' +
           std::to_wstring(timeouts->ReadTotalTimeoutConstant) + L" write " +
           std::to_wstring(timeouts->WriteTotalTimeoutMultiplier) + L' ' +
           std::to_wstring(timeouts->WriteTotalTimeoutConstant);
}
