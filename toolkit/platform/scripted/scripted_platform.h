#pragma once

#include <filesystem>
#include <map>
#include <queue>
#include <string>
#include <vector>

#include "toolkit/platform/back_end.h"
#include "toolkit/platform/platform.h"
#include "toolkit/platform/scripted/scripted_calls.h"
#include "toolkit/platform/scripted/scripted_ports.h"
#include "toolkit/platform/scripted/scripted_spooler.h"

// A machine that a test sets up. It has nothing but what it is told to have, records every call with its
// arguments, and fails by order (PX_Scripted_Calls). Ports and files are set up by the calls of
// PX_Scripted_Ports, printers and the network by those of PX_Scripted_Spooler, and the bytes of both by those
// of PX_Scripted_Streams. Serves one thread.
class PX_Scripted_Platform : public PX_Platform,
                             public PX_Scripted_Calls,
                             public PX_Scripted_Ports,
                             public PX_Scripted_Spooler {
public:
    // A message box that was shown.
    struct Box {
        std::wstring text;
        std::wstring caption;
        UINT type;
        WORD language;
        HWND owner;
    };

    PX_Scripted_Platform() = default;
    ~PX_Scripted_Platform() override;

    // A module is loaded by exactly this name, folder and ending included; it is its path too. Installed
    // again, it gets the new texts and keeps its procedures and its loads.
    void install_module(const std::wstring& name, std::map<UINT, std::wstring> texts = {});
    // Any function; the module is installed if it is not. A module that exists has no other procedures.
    template <class Function>
    void export_procedure(const std::wstring& module, const std::string& procedure, Function* function) {
        // The way round by void (*)() is the one that compilers accept for any function.
        const auto plain = reinterpret_cast<void (*)()>(function);
        m_modules[module].procedures[procedure] = reinterpret_cast<FARPROC>(plain);
    }
    // The names of the modules in memory, sorted, once for each load that has not been freed.
    std::vector<std::wstring> loaded_modules() const;

    // At first C:\Program\host.exe.
    void place_program_at(const std::wstring& path) { m_program_path = path; }
    // GetModuleFileNameW fails for the program.
    void hide_program_path() { m_program_path.clear(); }
    // At first a backslash.
    void separate_folders_by(wchar_t separator) { m_separator[0] = separator; }

    // The bytes in a file that _wfopen_s has opened, also while it is open; empty if it never was. The
    // machine has only these files, and keeps them as long as it lives.
    std::string log_of(const std::wstring& name) const;

    // The answers are given in this order and whatever the type of the box; 0 is a box that could not be
    // shown. Without one, a box is answered as by nobody: Abort, Cancel, or else OK.
    void answer_next_box(int answer) { m_answers.push(answer); }
    // The boxes shown. One that failed by order is not among them and takes no answer.
    const std::vector<Box>& boxes() const { return m_boxes; }
    // Makes a window and has GetActiveWindow give it; before, that gives null.
    HWND activate_window();

    // Changes the word behind the toolkit's back, as printer code does. Bits that the platform does not have
    // are dropped. At first all exceptions are masked, and nothing else is set.
    void write_control_word(unsigned int word) { m_control_word = word & px_fp_bits; }
    unsigned int control_word() const { return m_control_word; }

    HMODULE LoadLibraryExW(const wchar_t* name, HANDLE file, DWORD flags) override;
    HMODULE LoadLibraryW(const wchar_t* name) override;
    FARPROC GetProcAddress(HMODULE module, const char* name) override;
    BOOL FreeLibrary(HMODULE module) override;
    DWORD GetModuleFileNameW(HMODULE module, wchar_t* path, DWORD size) override;
    int LoadStringW(HMODULE module, UINT id, wchar_t* text, int size) override;
    // Every code page is UTF-8.
    int WideCharToMultiByte(UINT code_page, DWORD flags, const wchar_t* text, int length, char* bytes,
                            int bytes_size, const char* default_char, BOOL* used_default) override;
    // Not recorded.
    const wchar_t* path_separator() const override;
    int _wfopen_s(std::FILE** stream, const wchar_t* name, const wchar_t* mode) override;
    int MessageBoxExW(HWND owner, const wchar_t* text, const wchar_t* caption, UINT type,
                      WORD language) override;
    HWND GetActiveWindow() override;
    int _controlfp_s(unsigned int* current, unsigned int value, unsigned int mask) override;

    // OPEN_EXISTING opens a port, CREATE_ALWAYS a port or else an empty file. A handle that was closed, that
    // opened something else or none at all, null too, is a misuse; but a port's operation on a printer only
    // fails.
    HANDLE CreateFileW(const wchar_t* name, DWORD access, DWORD share, SECURITY_ATTRIBUTES* security,
                       DWORD disposition, DWORD attributes, HANDLE file_template) override;
    BOOL ReadFile(HANDLE file, void* bytes, DWORD size, DWORD* read, OVERLAPPED* overlapped) override;
    BOOL WriteFile(HANDLE file, const void* bytes, DWORD size, DWORD* written,
                   OVERLAPPED* overlapped) override;
    BOOL CloseHandle(HANDLE file) override;
    BOOL GetCommState(HANDLE port, DCB* state) override;
    BOOL SetCommState(HANDLE port, DCB* state) override;
    BOOL GetCommTimeouts(HANDLE port, COMMTIMEOUTS* timeouts) override;
    BOOL SetCommTimeouts(HANDLE port, COMMTIMEOUTS* timeouts) override;
    BOOL GetCommMask(HANDLE port, DWORD* events) override;
    BOOL SetCommMask(HANDLE port, DWORD events) override;
    BOOL PurgeComm(HANDLE port, DWORD flags) override;
    // `status` is null.
    BOOL ClearCommError(HANDLE port, DWORD* errors, COMSTAT* status) override;

    // Ports and printers are listed by level 2, drivers by level 3, of this machine alone. The texts end
    // where the size that is needed ends. A buffer that has a size is aligned for a pointer.
    BOOL EnumPortsW(wchar_t* server, DWORD level, BYTE* records, DWORD size, DWORD* needed,
                    DWORD* count) override;
    BOOL EnumPrintersW(DWORD flags, wchar_t* name, DWORD level, BYTE* records, DWORD size, DWORD* needed,
                       DWORD* count) override;
    BOOL EnumPrinterDriversW(wchar_t* server, wchar_t* environment, DWORD level, BYTE* records, DWORD size,
                             DWORD* needed, DWORD* count) override;
    BOOL OpenPrinterW(wchar_t* name, HANDLE* printer, PRINTER_DEFAULTSW* defaults) override;
    HANDLE ConnectToPrinterDlg(HWND owner, DWORD flags) override;
    // A null printer, as the dialogue gives it, only fails; another handle that is not open is a misuse, and
    // so is a step out of order: a page or bytes outside a document, the end of what was not begun. The end
    // of a document ends its page, too.
    BOOL ClosePrinter(HANDLE printer) override;
    DWORD StartDocPrinterW(HANDLE printer, DWORD level, BYTE* info) override;
    BOOL StartPagePrinter(HANDLE printer) override;
    BOOL WritePrinter(HANDLE printer, void* bytes, DWORD size, DWORD* written) override;
    BOOL ReadPrinter(HANDLE printer, void* bytes, DWORD size, DWORD* read) override;
    BOOL EndPagePrinter(HANDLE printer) override;
    BOOL EndDocPrinter(HANDLE printer) override;
    // Cancels a job of the printer, which then takes no more bytes; fails for any other command.
    BOOL SetJobW(HANDLE printer, DWORD job, DWORD level, BYTE* info, DWORD command) override;
    // The size is that of the record here or on Windows, 276.
    BOOL GetVersionExW(OSVERSIONINFOW* version) override;

    // ERROR_MORE_DATA, 234, and the size that is needed for too small a size.
    DWORD WNetGetConnectionW(const wchar_t* local_name, wchar_t* remote_name, DWORD* size) override;

private:
    struct Module {
        std::map<UINT, std::wstring> texts;
        std::map<std::string, FARPROC> procedures;
        // Null while it is not in memory. A later load gives another one, so that a stale handle shows.
        HMODULE handle = nullptr;
        int loads = 0;
    };
    using Installed = std::map<std::wstring, Module>::value_type;

    HMODULE load(const wchar_t* name);
    // Null for a null handle, and for a misuse, which it marks.
    Installed* in_memory(HMODULE module);
    std::filesystem::path new_file();
    // Null for a misuse, which it marks.
    Open_File* open_file(HANDLE file);
    // Null also for a file and a printer.
    Port* open_port(HANDLE port);
    Port* open_serial_port(HANDLE port);
    // Null for a null handle, and for a misuse, which it marks.
    Open_Printer* open_printer(HANDLE printer);
    // Likewise; one that has a document in hand.
    Open_Printer* printing(HANDLE printer);
    Job& job_of(const Open_Printer& printer) { return m_jobs[printer.job - 1]; }
    HANDLE open_known_printer(const std::wstring& name);
    // Empties the list; false for a misuse, which it marks.
    bool begin_list(bool is_level_known, const BYTE* records, DWORD size, DWORD* needed, DWORD* count);

    std::map<std::wstring, Module> m_modules;
    std::wstring m_program_path = L"C:\\Program\\host.exe";
    wchar_t m_separator[2] = {L'\\', L'\0'};
    std::filesystem::path m_folder;
    std::map<std::wstring, std::filesystem::path> m_files;
    std::queue<int> m_answers;
    std::vector<Box> m_boxes;
    HWND m_active_window = nullptr;
    unsigned int m_control_word = px_fp_exceptions;
};
