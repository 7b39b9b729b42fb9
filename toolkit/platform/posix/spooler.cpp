#include <sys/utsname.h>
#include <unistd.h>
#include <wchar.h>

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <memory>
#include <set>
#include <string>
#include <utility>

#include "toolkit/platform/back_end.h"
#include "toolkit/platform/posix/file_handles.h"
#include "toolkit/platform/posix/last_error.h"
#include "toolkit/platform/posix/port_names.h"
#include "toolkit/platform/posix/posix_platform.h"
#include "toolkit/platform/posix/print_server.h"
#include "toolkit/platform/posix/terminal.h"
#include "toolkit/platform/record_buffer.h"
#include "toolkit/platform/utf8.h"

struct PX_Posix_Platform::Printer {
    PX_Print_Server server;
    std::string queue;
    std::unique_ptr<PX_Print_Job> job = nullptr;
    bool is_in_page = false;

    PX_Print_Job& open_job() {
        if (!job)
            throw PX_Print_Error(queue + ": no document is open.");
        return *job;
    }
};

namespace {
// A port of the machine, or the URI: a port by itself.
std::wstring port_of(const std::string& uri, const PX_Port_Devices& ports) {
    const std::size_t start = uri.find(':') + 1;
    const std::string device = uri.substr(start, uri.find('?') - start);
    for (const auto& [name, path] : ports)
        if (path == device)
            return name.text() + L':';
    // A list of ports is parted by commas.
    std::string port;
    for (const char c : uri)
        port += c == ',' ? std::string("%2C") : std::string(1, c);
    return px_from_utf8(port);
}

std::wstring server_of(const PX_Print_Queue& queue) {
    return L"\\\\" + px_from_utf8(queue.device_host.empty() ? "localhost" : queue.device_host);
}

// "\\server\queue", or a queue of the server that is asked as a rule.
std::pair<PX_Print_Server, std::string> target_of(const std::wstring& name, PX_Print_Server server) {
    const std::size_t slash = name.find(L'\\', 2);
    if (!name.starts_with(L"\\\\") || slash == std::wstring::npos)
        return {server, px_to_utf8(name)};
    server.host = px_to_utf8(name.substr(2, slash - 2));
    return {server, px_to_utf8(name.substr(slash + 1))};
}

bool is_raw(const wchar_t* datatype) {
    return !datatype || !*datatype || wcscasecmp(datatype, L"RAW") == 0;
}

// 0 for an answer that is none of them.
std::size_t number_in(const std::string& answer, std::size_t most) {
    std::size_t number = 0;
    const char* const end = answer.data() + answer.size();
    const auto [read, failure] = std::from_chars(answer.data(), end, number);
    return failure == std::errc() && read == end && number <= most ? number : 0;
}
}  // namespace

bool PX_Posix_Platform::use_print_server(const char* host, int port) {
    return m_last_error->attempt([&] {
        const std::lock_guard lock(m_printers_lock);
        m_print_host = host ? host : "";
        m_print_port = port;
        ++m_server_changes;
        m_no_list_before = {};
        return true;
    });
}

// Any handle may be asked for; only those of open printers are looked into.
std::shared_ptr<PX_Posix_Platform::Printer> PX_Posix_Platform::printer_of(HANDLE handle) {
    const std::lock_guard lock(m_printers_lock);
    for (const auto& printer : m_printers)
        if (printer.get() == handle)
            return printer;
    throw PX_Print_Error("This is not an open printer.");
}

PX_Print_Server PX_Posix_Platform::print_server() {
    const std::lock_guard lock(m_printers_lock);
    return {m_print_host, m_print_port};
}

// Discovery asks who owns each port, and then for all printers: a server that is silent to the first question
// is not waited for at the further ports, and is asked once more for what the process keeps.
std::vector<PX_Print_Queue> PX_Posix_Platform::print_queues(bool is_kept) {
    constexpr std::chrono::seconds rest{1};
    PX_Print_Server server;
    unsigned server_changes = 0;
    {
        const std::lock_guard lock(m_printers_lock);
        if (!is_kept && std::chrono::steady_clock::now() < m_no_list_before)
            throw PX_Print_Time_Out();
        server = {m_print_host, m_print_port};
        server_changes = m_server_changes;
    }
    try {
        return px_print_queues(server);
    } catch (const PX_Print_Time_Out&) {
        const std::lock_guard lock(m_printers_lock);
        if (server_changes == m_server_changes)
            m_no_list_before = std::chrono::steady_clock::now() + rest;
        throw;
    }
}

BOOL PX_Posix_Platform::EnumPrintersW(DWORD flags, wchar_t*, DWORD level, BYTE* records, DWORD size,
                                      DWORD* needed, DWORD* count) {
    PX_Record_Buffer<PRINTER_INFO_2W> printers;
    // A failure gives none.
    printers.give(nullptr, 0, needed, count);
    return m_last_error->attempt([&]() -> BOOL {
        if (level != 2)
            throw PX_Print_Error("Printers are told at level 2 only.");
        const PX_Port_Devices ports = m_files->ports();
        for (const PX_Print_Queue& queue : print_queues((flags & PRINTER_ENUM_CONNECTIONS) != 0)) {
            if (!(flags & (queue.is_remote ? PRINTER_ENUM_CONNECTIONS : PRINTER_ENUM_LOCAL)))
                continue;
            PRINTER_INFO_2W& printer = printers.add({});
            printer.Attributes = queue.is_remote ? PRINTER_ATTRIBUTE_NETWORK : PRINTER_ATTRIBUTE_LOCAL;
            printer.cJobs = static_cast<DWORD>(queue.jobs);
            if (queue.is_shared) {
                printer.Attributes |= PRINTER_ATTRIBUTE_SHARED;
                printers.set_text(&PRINTER_INFO_2W::pShareName, px_from_utf8(queue.share_name));
            }
            if (queue.is_remote)
                printers.set_text(&PRINTER_INFO_2W::pServerName, server_of(queue));
            printers.set_text(&PRINTER_INFO_2W::pPrinterName, px_from_utf8(queue.name));
            printers.set_text(&PRINTER_INFO_2W::pPortName, port_of(queue.device_uri, ports));
            printers.set_text(&PRINTER_INFO_2W::pDriverName, px_from_utf8(queue.make_and_model));
            printers.set_text(&PRINTER_INFO_2W::pComment, px_from_utf8(queue.description));
            printers.set_text(&PRINTER_INFO_2W::pLocation, px_from_utf8(queue.location));
        }
        return printers.give(records, size, needed, count);
    });
}

BOOL PX_Posix_Platform::EnumPrinterDriversW(wchar_t*, wchar_t*, DWORD level, BYTE* records, DWORD size,
                                            DWORD* needed, DWORD* count) {
    PX_Record_Buffer<DRIVER_INFO_3W> drivers;
    // A failure gives none.
    drivers.give(nullptr, 0, needed, count);
    return m_last_error->attempt([&]() -> BOOL {
        if (level != 3)
            throw PX_Print_Error("Printer drivers are told at level 3 only.");
        std::set<std::string> models;
        for (const PX_Print_Queue& queue : print_queues(true))
            if (!queue.make_and_model.empty())
                models.insert(queue.make_and_model);
        for (const std::string& model : models) {
            drivers.add({}).cVersion = 3;
            drivers.set_text(&DRIVER_INFO_3W::pName, px_from_utf8(model));
        }
        return drivers.give(records, size, needed, count);
    });
}

BOOL PX_Posix_Platform::OpenPrinterW(wchar_t* name, HANDLE* printer, PRINTER_DEFAULTSW*) {
    if (!printer)
        return 0;
    *printer = nullptr;
    return m_last_error->attempt([&]() -> BOOL {
        auto [server, queue] = target_of(name ? name : L"", print_server());
        if (queue.empty())
            throw PX_Print_Error("A printer has a name.");
        px_find_print_queue(server, queue);
        auto opened = std::make_shared<Printer>(Printer{std::move(server), std::move(queue)});
        const std::lock_guard lock(m_printers_lock);
        *printer = m_printers.emplace_back(std::move(opened)).get();
        return 1;
    });
}

HANDLE PX_Posix_Platform::ConnectToPrinterDlg(HWND, DWORD) {
    if (!isatty(m_questions_fd) || !isatty(m_answers_fd))
        return nullptr;
    HANDLE printer = nullptr;
    m_last_error->attempt([&]() -> BOOL {
        const std::vector<PX_Print_Queue> queues = print_queues(true);
        std::string question;
        for (std::size_t number = 1; number <= queues.size(); ++number) {
            const PX_Print_Queue& queue = queues[number - 1];
            question += std::to_string(number) + "  " + queue.name;
            question += queue.description.empty() ? "\n" : "  (" + queue.description + ")\n";
        }
        if (queues.empty())
            return 0;
        px_put(m_questions_fd, question);
        for (;;) {
            px_put(m_questions_fd, "Number of a printer, or Enter for none: ");
            const std::string answer = px_trimmed(px_get_line(m_answers_fd).value_or(""));
            if (answer.empty())
                return 0;
            if (const std::size_t number = number_in(answer, queues.size())) {
                std::wstring name = px_from_utf8(queues[number - 1].name);
                return OpenPrinterW(name.data(), &printer, nullptr);
            }
        }
    });
    return printer;
}

BOOL PX_Posix_Platform::ClosePrinter(HANDLE handle) {
    return m_last_error->attempt([&]() -> BOOL {
        std::unique_ptr<PX_Print_Job> job = std::move(printer_of(handle)->job);
        {
            const std::lock_guard lock(m_printers_lock);
            std::erase_if(m_printers, [&](const auto& printer) { return printer.get() == handle; });
        }
        if (job)
            job->finish();
        return 1;
    });
}

DWORD PX_Posix_Platform::StartDocPrinterW(HANDLE handle, DWORD level, BYTE* info) {
    return m_last_error->attempt([&]() -> DWORD {
        const std::shared_ptr<Printer> printer = printer_of(handle);
        if (!info || (level != 1 && level != 2))
            throw PX_Print_Error(printer->queue + ": a document is told at level 1 or 2.");
        DOC_INFO_1W document;  // level 2 begins with it
        std::memcpy(&document, info, sizeof document);
        if (!is_raw(document.pDatatype) || document.pOutputFile)
            throw PX_Print_Error(printer->queue + ": only raw data, and only to the printer.");
        if (printer->job)
            throw PX_Print_Error(printer->queue + ": a document is open already.");
        printer->is_in_page = false;
        printer->job = px_start_print_job(printer->server, printer->queue,
                                          px_to_utf8(document.pDocName ? document.pDocName : L""));
        return static_cast<DWORD>(printer->job->number());
    });
}

BOOL PX_Posix_Platform::StartPagePrinter(HANDLE handle) {
    return m_last_error->attempt([&]() -> BOOL {
        const std::shared_ptr<Printer> printer = printer_of(handle);
        printer->open_job();
        printer->is_in_page = true;
        return 1;
    });
}

BOOL PX_Posix_Platform::WritePrinter(HANDLE handle, void* bytes, DWORD size, DWORD* written) {
    if (written)
        *written = 0;
    return m_last_error->attempt([&]() -> BOOL {
        if (!written || (!bytes && size > 0))
            throw PX_Print_Error("There is nothing to write, or nowhere to count it.");
        printer_of(handle)->open_job().write(static_cast<const char*>(bytes), size);
        *written = size;
        return 1;
    });
}

BOOL PX_Posix_Platform::ReadPrinter(HANDLE, void*, DWORD, DWORD* read) {
    if (read)
        *read = 0;
    m_last_error->keep(L"A queue tells nothing of what the printer answers.");
    return 0;
}

BOOL PX_Posix_Platform::EndPagePrinter(HANDLE handle) {
    return m_last_error->attempt([&]() -> BOOL {
        const std::shared_ptr<Printer> printer = printer_of(handle);
        if (!std::exchange(printer->is_in_page, false))
            throw PX_Print_Error(printer->queue + ": no page is open.");
        return 1;
    });
}

BOOL PX_Posix_Platform::EndDocPrinter(HANDLE handle) {
    return m_last_error->attempt([&]() -> BOOL {
        const std::shared_ptr<Printer> printer = printer_of(handle);
        printer->open_job();
        // The document is over, however it ends.
        std::exchange(printer->job, nullptr)->finish();
        return 1;
    });
}

BOOL PX_Posix_Platform::SetJobW(HANDLE handle, DWORD job, DWORD level, BYTE*, DWORD command) {
    return m_last_error->attempt([&]() -> BOOL {
        const std::shared_ptr<Printer> printer = printer_of(handle);
        if (level != 0 || command != JOB_CONTROL_CANCEL)
            throw PX_Print_Error(printer->queue + ": a job can be cancelled, nothing else.");
        const int number = static_cast<int>(job);
        if (printer->job && printer->job->number() == number)
            printer->job->cancel();
        else
            px_cancel_print_job(printer->server, printer->queue, number);
        return 1;
    });
}

BOOL PX_Posix_Platform::GetVersionExW(OSVERSIONINFOW* version) {
    if (!px_is_version_record(version))
        return 0;
    const DWORD size = version->dwOSVersionInfoSize;
    *version = {};
    version->dwOSVersionInfoSize = size;
    version->dwPlatformId = VER_PLATFORM_WIN32_NT;
    utsname kernel;
    if (uname(&kernel) == 0)
        std::sscanf(kernel.release, "%u.%u.%u", &version->dwMajorVersion, &version->dwMinorVersion,
                    &version->dwBuildNumber);
    return 1;
}
