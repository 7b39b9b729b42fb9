#pragma once

#include <chrono>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "toolkit/platform/platform.h"

class PX_File_Handles;
class PX_Last_Error;
struct PX_Print_Queue;
struct PX_Print_Server;

// A machine with dlopen, UTF-8 and a terminal.
//
// No exception leaves an operation: one that has no memory fails, and a box that cannot be asked is answered
// as where nobody can be.
//
// Modules: the ending ".dll" stands for ".so". A relative name is looked for in the folder of the running
// program, in ../<library folder>/marvcon from there, in the folder of the toolkit's own library and in
// marvcon below that; never along the system's library path.
//
// Boxes: asked and answered in English where both descriptors are terminals, a line for an answer. Elsewhere
// the text is printed, and the answer is the one that ends the matter: Abort, Cancel, or else OK.
//
// Ports: "COM1" is the first of the serial lines that the machine has, built-in ones before those that are
// plugged, "LPT1" the first of the parallel and the USB printers; "com1:" and "\\.\COM1" are the same. Such a
// name is always a port's where the disposition is OPEN_EXISTING, and a file's where it is CREATE_ALWAYS. A
// port belongs to one handle, in all processes; a file does for `share` 0 among programs that lock as we do.
// Several threads may use the platform at a time, but not the same handle, except for PurgeComm.
//
// Printers: the queues of the machine's print server, which CUPS chooses; their jobs are raw. Every question
// is bounded in time, except for looking up the name of a server: a second for a list, three for a printer or
// the cancelling of a job, ten for a job to be made, for any 64 kB of it to be taken and for its end to be
// confirmed. A server that was too late with a list is not asked for local printers alone, as for who owns a
// port, for a second. A queue that wants a password refuses; from the first use of a printer on, libcups asks
// for none on that thread.
class PX_EXPORT PX_Posix_Platform : public PX_Platform {
public:
    // The descriptors stay the caller's.
    explicit PX_Posix_Platform(int answers_fd = 0, int questions_fd = 2);
    // Closes the files and ports that are open, and cancels the documents.
    ~PX_Posix_Platform() override;

    // Has the port of this name use the device from its next opening on, whether the machine has the port or
    // not: a pseudo terminal, or a path that stays with one adapter. A null or empty device takes that back.
    // False for a name that is not COM or LPT and a number, and without memory.
    bool map_port(const wchar_t* name, const char* device);

    // For lists and printers from now on; null and 0 for what CUPS chooses. False without memory, and then
    // the server stays.
    bool use_print_server(const char* host, int port);

    // What the last operation that failed had to say, such as "COM1: Device or resource busy", or "No
    // memory"; empty before the first. The text, cut at 255 characters, is good until the calling thread asks
    // again.
    const wchar_t* last_error() const;

    // `file` and `flags` are not used.
    HMODULE LoadLibraryExW(const wchar_t* name, HANDLE file, DWORD flags) override;
    HMODULE LoadLibraryW(const wchar_t* name) override;
    FARPROC GetProcAddress(HMODULE module, const char* name) override;
    BOOL FreeLibrary(HMODULE module) override;
    // Fails for a path that is not UTF-8.
    DWORD GetModuleFileNameW(HMODULE module, wchar_t* path, DWORD size) override;
    int LoadStringW(HMODULE module, UINT id, wchar_t* text, int size) override;
    // Every code page is UTF-8, so that the default character is never used.
    int WideCharToMultiByte(UINT code_page, DWORD flags, const wchar_t* text, int length, char* bytes,
                            int bytes_size, const char* default_char, BOOL* used_default) override;
    const wchar_t* path_separator() const override;
    int _wfopen_s(std::FILE** stream, const wchar_t* name, const wchar_t* mode) override;

    // An unknown type is a box with OK alone.
    int MessageBoxExW(HWND owner, const wchar_t* text, const wchar_t* caption, UINT type,
                      WORD language) override;
    // Always null.
    HWND GetActiveWindow() override;

    // The word of the calling thread. Bits other than rounding, exception masks and denormal control are
    // ignored and read as 0; so is denormal control on a processor without it. ENOTSUP when the processor
    // refuses a rounding or an exception.
    int _controlfp_s(unsigned int* current, unsigned int value, unsigned int mask) override;

    // CREATE_ALWAYS needs GENERIC_WRITE, and no other disposition than this and OPEN_EXISTING is known. A
    // serial port comes up raw, with the rate and frame that it had, and a port has no time-outs at first.
    HANDLE CreateFileW(const wchar_t* name, DWORD access, DWORD share, SECURITY_ATTRIBUTES* security,
                       DWORD disposition, DWORD attributes, HANDLE file_template) override;
    BOOL ReadFile(HANDLE file, void* bytes, DWORD size, DWORD* read, OVERLAPPED* overlapped) override;
    BOOL WriteFile(HANDLE file, const void* bytes, DWORD size, DWORD* written,
                   OVERLAPPED* overlapped) override;
    // A port sends what it took as long as bytes go out; where none does for the time-out of the last write,
    // or after an hour, the rest is dropped. A serial line gets back the settings it was found with.
    BOOL CloseHandle(HANDLE file) override;
    BOOL GetCommState(HANDLE port, DCB* state) override;
    // Sends first as CloseHandle does, and fails where something is left. Without RTS and DTR, as on a pseudo
    // terminal, they count as set. CTS flow and the RTS handshake come together only; DSR flow, the DTR
    // handshake, the RTS toggle, an error character and dropped nulls are refused, and so is what the driver
    // did not take when asked.
    BOOL SetCommState(HANDLE port, DCB* state) override;
    BOOL GetCommTimeouts(HANDLE port, COMMTIMEOUTS* timeouts) override;
    BOOL SetCommTimeouts(HANDLE port, COMMTIMEOUTS* timeouts) override;
    BOOL GetCommMask(HANDLE port, DWORD* events) override;
    BOOL SetCommMask(HANDLE port, DWORD events) override;
    BOOL PurgeComm(HANDLE port, DWORD flags) override;
    // Of a printer, where it tells: CE_OOP without paper, CE_DNS off line, CE_PTO for another error. Fails
    // for a `status`.
    BOOL ClearCommError(HANDLE port, DWORD* errors, COMSTAT* status) override;

    // Level 2 only; the names have a colon, and LPT comes before COM.
    BOOL EnumPortsW(wchar_t* server, DWORD level, BYTE* records, DWORD size, DWORD* needed,
                    DWORD* count) override;
    // Level 2. A queue whose device another machine serves is a connection and has that machine, as
    // "\\host", for its server. A port is one that EnumPortsW tells, or else the URI of the device.
    BOOL EnumPrintersW(DWORD flags, wchar_t* name, DWORD level, BYTE* records, DWORD size, DWORD* needed,
                       DWORD* count) override;
    // Level 3: the makes and models of the queues, each once.
    BOOL EnumPrinterDriversW(wchar_t* server, wchar_t* environment, DWORD level, BYTE* records, DWORD size,
                             DWORD* needed, DWORD* count) override;
    // "queue", or "\\server\queue" for one of another server at the same port.
    BOOL OpenPrinterW(wchar_t* name, HANDLE* printer, PRINTER_DEFAULTSW* defaults) override;
    // Asked where boxes are asked, by number; an empty line is no printer.
    HANDLE ConnectToPrinterDlg(HWND owner, DWORD flags) override;
    // Ends a document that is open.
    BOOL ClosePrinter(HANDLE printer) override;
    // The name of the document is cut at 255 bytes.
    DWORD StartDocPrinterW(HANDLE printer, DWORD level, BYTE* info) override;
    BOOL StartPagePrinter(HANDLE printer) override;
    // All or nothing. After a failure, or a job that was cancelled, every further one fails at once.
    BOOL WritePrinter(HANDLE printer, void* bytes, DWORD size, DWORD* written) override;
    // Always fails: a queue has no way back.
    BOOL ReadPrinter(HANDLE printer, void* bytes, DWORD size, DWORD* read) override;
    BOOL EndPagePrinter(HANDLE printer) override;
    // A document without a byte is cancelled, and that is a success; so is the end of one that SetJobW has
    // cancelled. One that the server did not take is cancelled, too, and is a failure.
    BOOL EndDocPrinter(HANDLE printer) override;
    // Only to cancel a job, at level 0.
    BOOL SetJobW(HANDLE printer, DWORD job, DWORD level, BYTE* info, DWORD command) override;
    // The version of the kernel, for a Windows of the NT kind.
    BOOL GetVersionExW(OSVERSIONINFOW* version) override;

    DWORD WNetGetConnectionW(const wchar_t* local_name, wchar_t* remote_name, DWORD* size) override;

private:
    struct Printer;

    std::shared_ptr<Printer> printer_of(HANDLE handle);
    PX_Print_Server print_server();
    // `is_kept` for what the process keeps, which no earlier silence answers.
    std::vector<PX_Print_Queue> print_queues(bool is_kept);

    int m_answers_fd;
    int m_questions_fd;
    std::unique_ptr<PX_Last_Error> m_last_error;
    std::unique_ptr<PX_File_Handles> m_files;
    std::mutex m_printers_lock;
    std::string m_print_host;
    int m_print_port = 0;
    unsigned m_server_changes = 0;
    std::chrono::steady_clock::time_point m_no_list_before{};
    std::vector<std::shared_ptr<Printer>> m_printers;
};
