#pragma once

#include <map>
#include <optional>
#include <queue>
#include <string>
#include <utility>
#include <vector>

#include "toolkit/platform/scripted/scripted_streams.h"

// The printers, their drivers and jobs, and the network names of the scripted machine. A text that is absent
// is null where the machine lists it.
class PX_Scripted_Spooler {
public:
    // A printer as the machine lists it.
    struct Printer {
        std::optional<std::wstring> server = {};
        std::optional<std::wstring> name = {};
        std::optional<std::wstring> share = {};
        std::optional<std::wstring> port = {};
        std::optional<std::wstring> driver = {};
        DWORD attributes = PRINTER_ATTRIBUTE_LOCAL;
    };
    // A print job and what became of it.
    struct Job {
        std::wstring printer;
        DWORD number;
        std::wstring document;
        std::wstring output_file;
        std::wstring datatype;
        DWORD level;
        DWORD mode;
        std::string bytes;
        int pages;  // begun
        bool ended;
        bool cancelled;
    };

    // Listed in this order: with PRINTER_ENUM_LOCAL if it has no server, with PRINTER_ENUM_CONNECTIONS if it
    // has one. It is opened by its name or by server, backslash and share (the share alone without a server),
    // any number of times. Its bytes go by its name.
    void add_printer(Printer printer) { m_printers.push_back(std::move(printer)); }
    // Listed in this order.
    void add_driver(std::optional<std::wstring> name, std::optional<std::wstring> monitor);
    // The lists of ports, printers and drivers each need a buffer of at least so many bytes.
    void pad_enumerations_to(DWORD bytes) { m_padding = bytes; }

    // The dialogues are answered in this order, with the name of a printer or as by a user who cancels.
    // Without an answer nobody is there to ask.
    void answer_next_printer_dialogue(std::optional<std::wstring> printer);

    // All jobs; the first is number 1. A null text of theirs is empty.
    const std::vector<Job>& jobs() const { return m_jobs; }
    // The names of the printers that are open, in the order of opening.
    std::vector<std::wstring> open_printers() const;

    // A local name, with or without a colon, leads to a network name.
    void redirect(const std::wstring& local_name, const std::wstring& remote_name);
    // At first VER_PLATFORM_WIN32_NT.
    void pretend_platform_id(DWORD platform_id) { m_platform_id = platform_id; }

protected:
    // A printer driver as the machine lists it.
    struct Driver {
        std::optional<std::wstring> name;
        std::optional<std::wstring> monitor;
    };
    // A printer that OpenPrinterW opened.
    struct Open_Printer {
        HANDLE handle;
        std::wstring name;
        PX_Scripted_Stream* stream;
        DWORD job;  // 0 outside a document
        bool in_page;
    };

    PX_Scripted_Spooler() = default;
    ~PX_Scripted_Spooler() = default;

    std::vector<Printer> m_printers;
    std::vector<Driver> m_drivers;
    DWORD m_padding = 0;
    std::queue<std::optional<std::wstring>> m_dialogue_answers;
    std::vector<Job> m_jobs;
    std::vector<Open_Printer> m_open_printers;
    std::map<std::wstring, std::wstring> m_redirections;
    DWORD m_platform_id = VER_PLATFORM_WIN32_NT;
};
