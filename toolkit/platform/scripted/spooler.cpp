#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <utility>

#include "toolkit/platform/record_buffer.h"
#include "toolkit/platform/scripted/scripted_platform.h"

namespace {
constexpr DWORD more_data = 234;

template <class Record>
void set_text(PX_Record_Buffer<Record>& list, wchar_t* Record::*field,
              const std::optional<std::wstring>& text) {
    if (text)
        list.set_text(field, *text);
}

std::wstring or_empty(const wchar_t* text) {
    return text ? text : L"";
}
}  // namespace

void PX_Scripted_Spooler::add_driver(std::optional<std::wstring> name, std::optional<std::wstring> monitor) {
    m_drivers.push_back({std::move(name), std::move(monitor)});
}

void PX_Scripted_Spooler::answer_next_printer_dialogue(std::optional<std::wstring> printer) {
    m_dialogue_answers.push(std::move(printer));
}

std::vector<std::wstring> PX_Scripted_Spooler::open_printers() const {
    std::vector<std::wstring> names;
    for (const Open_Printer& printer : m_open_printers)
        names.push_back(printer.name);
    return names;
}

void PX_Scripted_Spooler::redirect(const std::wstring& local_name, const std::wstring& remote_name) {
    m_redirections[px_scripted_key(local_name)] = remote_name;
}

bool PX_Scripted_Platform::begin_list(bool is_level_known, const BYTE* records, DWORD size, DWORD* needed,
                                      DWORD* count) {
    if (needed)
        *needed = 0;
    if (count)
        *count = 0;
    const bool is_aligned = reinterpret_cast<std::uintptr_t>(records) % alignof(void*) == 0;
    if (is_level_known && needed && count && (size == 0 || (records && is_aligned)))
        return true;
    mark_misuse();
    return false;
}

BOOL PX_Scripted_Platform::EnumPortsW(wchar_t* server, DWORD level, BYTE* records, DWORD size, DWORD* needed,
                                      DWORD* count) {
    const bool fails = must_fail(__func__, server, level, size);
    if (!begin_list(level == 2 && !server, records, size, needed, count) || fails)
        return 0;
    PX_Record_Buffer<PORT_INFO_2W> list;
    for (const Port& port : m_ports) {
        list.add({});
        set_text(list, &PORT_INFO_2W::pPortName, port.name);
    }
    return list.give(records, size, needed, count, m_padding);
}

BOOL PX_Scripted_Platform::EnumPrintersW(DWORD flags, wchar_t* name, DWORD level, BYTE* records, DWORD size,
                                         DWORD* needed, DWORD* count) {
    const bool fails = must_fail(__func__, flags, name, level, size);
    if (!begin_list(level == 2 && !name, records, size, needed, count) || fails)
        return 0;
    PX_Record_Buffer<PRINTER_INFO_2W> list;
    for (const Printer& printer : m_printers) {
        if (!(flags & (printer.server ? PRINTER_ENUM_CONNECTIONS : PRINTER_ENUM_LOCAL)))
            continue;
        list.add({}).Attributes = printer.attributes;
        set_text(list, &PRINTER_INFO_2W::pServerName, printer.server);
        set_text(list, &PRINTER_INFO_2W::pPrinterName, printer.name);
        set_text(list, &PRINTER_INFO_2W::pShareName, printer.share);
        set_text(list, &PRINTER_INFO_2W::pPortName, printer.port);
        set_text(list, &PRINTER_INFO_2W::pDriverName, printer.driver);
    }
    return list.give(records, size, needed, count, m_padding);
}

BOOL PX_Scripted_Platform::EnumPrinterDriversW(wchar_t* server, wchar_t* environment, DWORD level,
                                               BYTE* records, DWORD size, DWORD* needed, DWORD* count) {
    const bool fails = must_fail(__func__, server, environment, level, size);
    if (!begin_list(level == 3 && !server && !environment, records, size, needed, count) || fails)
        return 0;
    PX_Record_Buffer<DRIVER_INFO_3W> list;
    for (const Driver& driver : m_drivers) {
        list.add({}).cVersion = 3;
        set_text(list, &DRIVER_INFO_3W::pName, driver.name);
        set_text(list, &DRIVER_INFO_3W::pMonitorName, driver.monitor);
    }
    return list.give(records, size, needed, count, m_padding);
}

HANDLE PX_Scripted_Platform::open_known_printer(const std::wstring& name) {
    for (const Printer& printer : m_printers) {
        std::optional<std::wstring> shared = printer.share;
        if (shared && printer.server)
            shared = *printer.server + L"\\" + *shared;
        const bool is_name = printer.name && px_scripted_key(*printer.name) == px_scripted_key(name);
        if (!is_name && !(shared && px_scripted_key(*shared) == px_scripted_key(name)))
            continue;
        const std::wstring opened = printer.name.value_or(name);
        const HANDLE handle = new_handle(opened);
        m_open_printers.push_back({handle, opened, &stream(opened), 0, false});
        return handle;
    }
    return nullptr;
}

PX_Scripted_Platform::Open_Printer* PX_Scripted_Platform::open_printer(HANDLE printer) {
    const auto found = std::ranges::find(m_open_printers, printer, &Open_Printer::handle);
    if (found != m_open_printers.end())
        return &*found;
    if (printer)
        mark_misuse();
    return nullptr;
}

PX_Scripted_Platform::Open_Printer* PX_Scripted_Platform::printing(HANDLE printer) {
    Open_Printer* const open = open_printer(printer);
    if (!open || open->job != 0)
        return open;
    mark_misuse();
    return nullptr;
}

BOOL PX_Scripted_Platform::OpenPrinterW(wchar_t* name, HANDLE* printer, PRINTER_DEFAULTSW* defaults) {
    if (must_fail(__func__, name, defaults))
        return 0;
    if (mark_misuse_if(!name || !printer))
        return 0;
    const HANDLE opened = open_known_printer(name);
    if (!opened)
        return 0;
    *printer = opened;
    return 1;
}

HANDLE PX_Scripted_Platform::ConnectToPrinterDlg(HWND owner, DWORD flags) {
    if (must_fail(__func__, owner, flags) || m_dialogue_answers.empty())
        return nullptr;
    const std::optional<std::wstring> answer = m_dialogue_answers.front();
    m_dialogue_answers.pop();
    return answer ? open_known_printer(*answer) : nullptr;
}

BOOL PX_Scripted_Platform::ClosePrinter(HANDLE printer) {
    if (must_fail(__func__, printer))
        return 0;
    const Open_Printer* const open = open_printer(printer);
    if (!open)
        return 0;
    m_open_printers.erase(m_open_printers.begin() + (open - m_open_printers.data()));
    return 1;
}

DWORD PX_Scripted_Platform::StartDocPrinterW(HANDLE printer, DWORD level, BYTE* info) {
    DOC_INFO_2W document = {};
    const bool is_known = info && (level == 1 || level == 2);
    if (is_known)
        std::memcpy(&document, info, level == 1 ? sizeof(DOC_INFO_1W) : sizeof(DOC_INFO_2W));
    if (must_fail(__func__, printer, level, document.pDocName, document.pOutputFile, document.pDatatype,
                  document.dwMode))
        return 0;
    Open_Printer* const open = open_printer(printer);
    if (!open || mark_misuse_if(!is_known || open->job != 0))
        return 0;
    open->job = static_cast<DWORD>(m_jobs.size() + 1);
    m_jobs.push_back({open->name,
                      open->job,
                      or_empty(document.pDocName),
                      or_empty(document.pOutputFile),
                      or_empty(document.pDatatype),
                      level,
                      document.dwMode,
                      {},
                      0,
                      false,
                      false});
    return open->job;
}

BOOL PX_Scripted_Platform::StartPagePrinter(HANDLE printer) {
    if (must_fail(__func__, printer))
        return 0;
    Open_Printer* const open = printing(printer);
    if (!open || mark_misuse_if(open->in_page))
        return 0;
    open->in_page = true;
    ++job_of(*open).pages;
    return 1;
}

BOOL PX_Scripted_Platform::WritePrinter(HANDLE printer, void* bytes, DWORD size, DWORD* written) {
    const bool fails = must_fail(__func__, printer, size);
    if (written)
        *written = 0;
    if (fails)
        return 0;
    const Open_Printer* const open = printing(printer);
    if (!open || mark_misuse_if(!written || (!bytes && size > 0)))
        return 0;
    Job& job = job_of(*open);
    if (job.cancelled)
        return 0;
    const std::string_view offered(static_cast<const char*>(bytes), size);
    const bool taken = open->stream->take(offered, keeps_bytes(), *written);
    if (keeps_bytes())
        job.bytes.append(offered.substr(0, *written));
    return taken;
}

BOOL PX_Scripted_Platform::ReadPrinter(HANDLE printer, void* bytes, DWORD size, DWORD* read) {
    const bool fails = must_fail(__func__, printer, size);
    if (read)
        *read = 0;
    if (fails)
        return 0;
    const Open_Printer* const open = open_printer(printer);
    if (!open || mark_misuse_if(!read || (!bytes && size > 0)))
        return 0;
    *read = open->stream->give(bytes, size);
    return 1;
}

BOOL PX_Scripted_Platform::EndPagePrinter(HANDLE printer) {
    if (must_fail(__func__, printer))
        return 0;
    Open_Printer* const open = printing(printer);
    if (!open || mark_misuse_if(!open->in_page))
        return 0;
    open->in_page = false;
    return 1;
}

BOOL PX_Scripted_Platform::EndDocPrinter(HANDLE printer) {
    if (must_fail(__func__, printer))
        return 0;
    Open_Printer* const open = printing(printer);
    if (!open)
        return 0;
    job_of(*open).ended = true;
    open->in_page = false;
    open->job = 0;
    return 1;
}

BOOL PX_Scripted_Platform::SetJobW(HANDLE printer, DWORD job, DWORD level, BYTE* info, DWORD command) {
    if (must_fail(__func__, printer, job, level, info, command))
        return 0;
    const Open_Printer* const open = open_printer(printer);
    const auto found = std::ranges::find(m_jobs, job, &Job::number);
    if (!open || found == m_jobs.end() || found->printer != open->name || command != JOB_CONTROL_CANCEL)
        return 0;
    found->cancelled = true;
    return 1;
}

BOOL PX_Scripted_Platform::GetVersionExW(OSVERSIONINFOW* version) {
    if (must_fail(__func__))
        return 0;
    if (mark_misuse_if(!px_is_version_record(version)))
        return 0;
    version->dwMajorVersion = 4;
    version->dwMinorVersion = 0;
    version->dwBuildNumber = 1;
    version->dwPlatformId = m_platform_id;
    version->szCSDVersion[0] = L'\0';
    return 1;
}

DWORD PX_Scripted_Platform::WNetGetConnectionW(const wchar_t* local_name, wchar_t* remote_name, DWORD* size) {
    if (must_fail(__func__, local_name, size ? *size : 0))
        return ERROR_BAD_DEVICE;
    if (mark_misuse_if(!local_name || !size || (!remote_name && *size > 0)))
        return ERROR_BAD_DEVICE;
    const auto found = m_redirections.find(px_scripted_key(local_name));
    if (found == m_redirections.end())
        return ERROR_BAD_DEVICE;
    const DWORD needed = static_cast<DWORD>(found->second.size() + 1);
    if (!remote_name || *size < needed) {
        *size = needed;
        return more_data;
    }
    found->second.copy(remote_name, needed - 1);
    remote_name[needed - 1] = L'\0';
    return NO_ERROR;
}
