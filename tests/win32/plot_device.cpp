#include <algorithm>
#include <cfloat>
#include <functional>
#include <iostream>
#include <map>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "tests/support/device.h"
#include "toolkit/platform/platform.h"

// A host on the machine as it is, told what to do by lines of its input. Each line has one line of answer;
// what the toolkit asks of the user comes before it, as a line "asked ...", and takes its answer from the
// input too. So the program at the other end of a device decides when the host goes on.

namespace {

std::wstring wide(const std::string& text) {
    std::wstring result(text.size(), L'\0');
    result.resize(
        static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, text.data(), static_cast<int>(text.size()),
                                                     result.data(), static_cast<int>(result.size()))));
    return result;
}

std::string narrow(const wchar_t* text) {
    if (!text)
        return "(null)";
    std::string result(4 * std::wstring_view(text).size() + 1, '\0');
    const int size = WideCharToMultiByte(CP_UTF8, 0, text, -1, result.data(), static_cast<int>(result.size()),
                                         nullptr, nullptr);
    result.resize(size > 0 ? static_cast<std::size_t>(size) - 1 : 0);
    return result;
}

void say(const std::string& line) {
    std::cout << line << std::endl;
}

// The answer that the input gives; at its end, the one that ends the matter.
int ask(const std::string& question) {
    say("asked " + question);
    std::string answer;
    std::getline(std::cin, answer);
    return answer == "retry" ? IDRETRY : answer == "ignore" ? IDIGNORE : IDABORT;
}

class Asking_Handler : public support::Test_Handler {
public:
    int message_box(const wchar_t* text, const wchar_t*, unsigned int type, int) override {
        const std::string question = "box " + std::to_string(type) + " " + narrow(text);
        // A box that only tells something.
        return type == MB_OK ? (say("told " + question), IDOK) : ask(question);
    }
    PX_Error_Result ARI_error(unsigned long long module, unsigned int code, const wchar_t*, const wchar_t*,
                              const wchar_t*) override {
        const int answer = ask("ARI " + std::to_string(code) + " " + text(module, code));
        return answer == IDABORT ? Result_Abort : answer == IDRETRY ? Result_Retry : Result_Ignore;
    }
    PX_Error_Result error(unsigned long long module, unsigned int code, const wchar_t*, const wchar_t*,
                          const wchar_t*) override {
        say("told error " + std::to_string(code) + " " + text(module, code));
        return Result_Ignore;
    }
    void LogMessage(const wchar_t* caption, const wchar_t* text) override {
        say("told log " + narrow(caption) + ": " + narrow(text));
    }
    void LogPath(const wchar_t**, int) override {}

private:
    static std::string text(unsigned long long module, unsigned int code) {
        wchar_t text[4096] = L"";
        LoadStringW(reinterpret_cast<HMODULE>(module), code, text, 4096);
        return narrow(text);
    }
};

// The records of one of the system's lists, asked for without the toolkit.
template <class Record, class Enumerate>
void for_each_record(Enumerate enumerate, const std::function<void(const Record&)>& look) {
    DWORD needed = 0;
    DWORD count = 0;
    enumerate(nullptr, 0, &needed, &count);
    std::vector<BYTE> bytes(needed + sizeof(Record));
    if (!enumerate(bytes.data(), static_cast<DWORD>(bytes.size()), &needed, &count))
        count = 0;
    for (DWORD each = 0; each < count; ++each)
        look(reinterpret_cast<const Record*>(bytes.data())[each]);
}

char pattern(unsigned long at) {
    return static_cast<char>(at * 7 + at / 251);
}

class Host {
public:
    Host() {
        using Flags = PX_Plotter_IO_Ability_Flags;
        m_device.io_caps()->set_one_ability(PX_Ability_Value::Ability_Required, Flags::IO_Methods);
        PX_Object_List<PX_IO_Method> methods;
        for (int each = PX_IO_Type::Driver_Method; each <= PX_IO_Type::Network; ++each) {
            PX_Smart_Pointer<PX_IO_Method> method = new PX_Std_IO_Method;
            method->set_type(static_cast<PX_IO_Type::Enum>(each));
            for (const auto& port : *m_system.get_port_list())
                if (each == PX_IO_Type::Serial && port->get_type() == PX_IO_Type::Serial)
                    method->set_protocol_list(port->get_protocol_list().get());
            methods.append(method);
        }
        m_device.io_caps()->set_method_list(&methods);
        renew();
    }

    void run() {
        std::string line;
        while (std::getline(std::cin, line)) {
            if (!line.empty() && line.back() == '\r')
                line.pop_back();
            std::istringstream words(line);
            std::string command;
            words >> command;
            const auto found = m_commands.find(command);
            say(found == m_commands.end() ? "what is " + command : found->second(words));
        }
    }

private:
    using Words = std::istringstream;

    void renew() { m_io.reset(m_device->get_class_factory()->MK_Create_Plotter_IO(m_handler)); }
    static std::string rest(Words& words) {
        std::string text;
        std::getline(words >> std::ws, text);
        return text;
    }
    static unsigned long number(Words& words) {
        unsigned long result = 0;
        words >> result;
        return result;
    }

    // The destination: its type, the settings of a serial line, the time-outs, and its name.
    std::string to(Words& words) {
        const auto cfg = m_device.io_cfg();
        std::string type;
        words >> type;
        cfg->set_plot_to_file(type == "file");
        cfg->set_type(type == "serial"     ? PX_IO_Type::Serial
                      : type == "parallel" ? PX_IO_Type::Parallel
                      : type == "queue"    ? PX_IO_Type::Network
                                           : PX_IO_Type::File);
        if (type == "serial") {
            std::string protocol;
            words >> protocol;
            cfg->set_protocol(wide(protocol).c_str());
            cfg->set_baud_rate(static_cast<long>(number(words)));
            cfg->set_handshake(static_cast<long>(number(words)));
        }
        if (type == "serial" || type == "parallel") {
            cfg->set_input_timeout(static_cast<long>(number(words)));
            cfg->set_output_timeout(static_cast<long>(number(words)));
        }
        const std::wstring name = wide(rest(words));
        if (type == "queue")
            m_device->get_meta_capabilities()->get_model()->set_friendly_net_name(name.c_str());
        else
            cfg->set_portname(name.c_str());
        return "set";
    }

    std::string open() {
        unsigned int before = 0;
        unsigned int after = 0;
        ::_controlfp_s(&before, _RC_UP, _MCW_RC);
        const bool is_open = m_io->configure(m_device.get()) && m_io->open();
        ::_controlfp_s(&after, 0, 0);
        if ((after & _MCW_RC) != _RC_UP)
            say("the rounding is another one");
        ::_controlfp_s(&after, before, _MCW_RC);
        return std::string(is_open ? "open" : "not open") + (m_io->get_spooling() ? ", spooling" : "");
    }

    // So many bytes of the pattern, in pieces of that size.
    std::string write(Words& words) {
        const unsigned long size = number(words);
        const unsigned long piece = number(words);
        std::string bytes(size, '\0');
        for (unsigned long at = 0; at < size; ++at)
            bytes[at] = pattern(at);
        long written = 0;
        for (unsigned long at = 0; at < size; at += piece) {
            const long part = m_io->write(bytes.data() + at, std::min(piece, size - at));
            if (part < 0)
                return "aborted";
            written += part;
        }
        return std::to_string(written);
    }

    std::string read(Words& words) {
        std::string bytes(number(words), '\0');
        const long count = m_io->read(bytes.data(), static_cast<unsigned long>(bytes.size()));
        bytes.resize(count > 0 ? static_cast<std::size_t>(count) : 0);
        return std::to_string(count) + " " + bytes;
    }

    std::string validate() const {
        const std::unique_ptr<PX_Plotter_IO_Validator> validator(
            m_device->get_class_factory()->MK_Create_Plotter_IO_Validator(m_device.get()));
        validator->validate_portname_and_type(PX_Validation_Strategy::Use_Nearest);
        return m_device.validator()->get_io_cfg_changes() == 0 ? "valid" : "changed";
    }

    std::string ports() const {
        for (const auto& port : *m_system.get_port_list())
            say("port " + std::to_string(port->get_type()) + "|" + narrow(port->get_canonical_name()) + "|" +
                narrow(port->get_shared_name()));
        return "end";
    }

    // The same, as the system itself tells it.
    static std::string raw() {
        for_each_record<PORT_INFO_2W>(
            [](BYTE* records, DWORD size, DWORD* needed, DWORD* count) {
                return ::EnumPortsW(nullptr, 2, records, size, needed, count);
            },
            [](const PORT_INFO_2W& port) { say("port " + narrow(port.pPortName)); });
        for_each_record<PRINTER_INFO_2W>(
            [](BYTE* records, DWORD size, DWORD* needed, DWORD* count) {
                return ::EnumPrintersW(PRINTER_ENUM_LOCAL | PRINTER_ENUM_CONNECTIONS, nullptr, 2, records,
                                       size, needed, count);
            },
            [](const PRINTER_INFO_2W& printer) {
                say("printer " + std::to_string(printer.Attributes) + "|" + narrow(printer.pPrinterName) +
                    "|" + narrow(printer.pServerName) + "|" + narrow(printer.pShareName) + "|" +
                    narrow(printer.pPortName));
            });
        return "end";
    }

    const PX_Std_System_IO_Capabilities m_system;
    const PX_Smart_Pointer<PX_Error_Handler> m_handler = new Asking_Handler;
    const support::Device m_device{new PX_Std_Plotter_Definition(m_handler)};
    std::unique_ptr<PX_Plotter_IO> m_io;
    const std::map<std::string, std::function<std::string(Words&)>> m_commands = {
        {"ports", [this](Words&) { return ports(); }},
        {"raw", [](Words&) { return raw(); }},
        {"to", [this](Words& words) { return to(words); }},
        {"validate", [this](Words&) { return validate(); }},
        {"quiet", [this](Words&) { return m_handler->set_quiet_mode(true), std::string("set"); }},
        {"open", [this](Words&) { return open(); }},
        {"write", [this](Words& words) { return write(words); }},
        {"read", [this](Words& words) { return read(words); }},
        {"flush", [this](Words&) { return std::string(m_io->flush() ? "flushed" : "bytes are left"); }},
        {"purge", [this](Words&) { return m_io->purge(), std::string("purged"); }},
        {"close", [this](Words&) { return std::string(m_io->close() ? "closed" : "not well closed"); }},
        {"renew", [this](Words&) { return renew(), std::string("set"); }}};
};

}  // namespace

int main() {
    Host().run();
}
