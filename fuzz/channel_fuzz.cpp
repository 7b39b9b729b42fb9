#include <algorithm>
#include <memory>

#include "fuzz/support.h"
#include "tests/support/device.h"
#include "tests/support/entries.h"
#include "toolkit/core/module.h"
#include "toolkit/platform/scripted/scripted_platform.h"

// The output channel on a machine that fails wherever the input says, before a user who answers as it says.

namespace {

using fuzz::Input;
using fuzz::require;
using support::Number;

constexpr const char* operations[] = {
    "CreateFileW",      "WriteFile",           "CloseHandle",    "GetCommState",        "SetCommState",
    "GetCommTimeouts",  "SetCommTimeouts",     "GetCommMask",    "SetCommMask",         "PurgeComm",
    "ClearCommError",   "EnumPrintersW",       "OpenPrinterW",   "EnumPrinterDriversW", "StartDocPrinterW",
    "StartPagePrinter", "WritePrinter",        "EndPagePrinter", "EndDocPrinter",       "ClosePrinter",
    "GetVersionExW",    "ConnectToPrinterDlg", "ReadFile",       "WNetGetConnectionW",  "LoadStringW"};

// Answers by the input. At its end every answer is Abort, so that nothing is asked for ever.
class Answering_Handler : public support::Test_Handler {
public:
    explicit Answering_Handler(Input& input) : m_input(input) {}

    int message_box(const wchar_t*, const wchar_t*, unsigned int, int) override {
        constexpr int answers[] = {IDABORT, IDRETRY, IDIGNORE};
        return answers[answer()];
    }
    PX_Error_Result ARI_error(unsigned long long, unsigned int, const wchar_t*, const wchar_t*,
                              const wchar_t*) override {
        return static_cast<PX_Error_Result>(answer());
    }

    // Since this was last put down.
    bool has_aborted = false;

private:
    int answer() {
        const int answer = m_input.up_to(3) % 3;
        has_aborted = has_aborted || answer == Result_Abort;
        return answer;
    }

    Input& m_input;
};

// What the device must have got.
class Expected {
public:
    void begin(const std::string& sink) {
        *this = Expected();
        m_before = sink.size();
    }
    // Of a write that told this. An Abort comes with any part of the bytes sent already.
    void wrote(const std::string& bytes, long told) {
        require(told >= -1 && told <= std::ssize(bytes), "what a write tells is possible");
        m_bytes.append(bytes, 0, static_cast<std::size_t>(told));
    }
    // A channel that does not ask by itself drops what finds the buffer full, and tells otherwise.
    void may_drop() { m_may_lack = true; }
    void purged(const std::string& sink) {
        check(sink, false);
        m_bytes = sink.substr(m_before);
    }
    void check(const std::string& sink, bool is_whole) const {
        const auto got = std::string_view(sink).substr(m_before);
        require(m_may_lack || m_bytes.starts_with(got), "the device gets the bytes in their order");
        require(m_may_lack || !is_whole || m_bytes.size() == got.size(), "nothing is lost");
        // Every byte stands for what was told of once.
        auto at = m_bytes.begin();
        for (const char byte : got) {
            at = std::find(at, m_bytes.end(), byte);
            require(at != m_bytes.end(), "no byte goes out twice");
            ++at;
        }
    }

private:
    std::size_t m_before = 0;
    std::string m_bytes;
    bool m_may_lack = false;
};

class Job {
public:
    explicit Job(Input& input) : m_input(input) {
        PX_Module_Exit();
        m_machine.record_calls(false);
        m_machine.install_module(L"mvnres11.dll", {{209, L"209"}, {218, L"218 %ls"}, {229, L"%ls %ls %ls"}});
        set_up_machine();
        set_up_device();
        m_io.reset(m_device->get_class_factory()->MK_Create_Plotter_IO(m_handler.get()));
    }

    void run() {
        for (int turns = 0; turns < 200 && !m_input.is_empty(); ++turns)
            try {
                take_a_turn();
            } catch (const PX_Exception&) {
            }
        close();
        m_io.reset();
        require(m_machine.count_misuses() == 0, "the machine is used as it has to be");
    }

private:
    void set_up_machine() {
        const int devices = m_input.byte();
        m_machine.add_port(L"COM1:");
        m_machine.add_port(L"LPT1:");
        m_machine.add_printer({.name = L"queue", .driver = L"driver"});
        if (devices & 1)
            m_machine.add_printer({.name = L"owner", .port = L"COM1:,LPT1:", .driver = L"driver"});
        if (devices & 2)
            m_machine.add_driver(L"driver", devices & 4 ? std::optional(L"monitor") : std::nullopt);
        if (devices & 8)
            m_machine.redirect(L"LPT1", L"queue");
        if (devices & 16)
            m_machine.answer_next_printer_dialogue(L"queue");
        if (devices & 32)
            m_machine.pretend_platform_id(VER_PLATFORM_WIN32_WINDOWS);
        for (const wchar_t* const sink : {L"COM1", L"LPT1", L"queue", L"owner", L"plot"}) {
            for (int left = m_input.up_to(3); left > 0; --left) {
                if (m_input.flag())
                    m_machine.fail_having_taken(sink, m_input.byte());
                else
                    m_machine.take_at_most(sink, {m_input.byte()});
            }
            if (m_input.flag())
                m_machine.take_portions(sink, [this](DWORD offered) {
                    return m_input.is_empty() ? offered : m_input.byte() % (offered + 1);
                });
        }
    }
    void set_up_device() {
        const auto caps = m_device.io_caps();
        const auto cfg = m_device.io_cfg();
        caps->set_one_ability(PX_Ability_Value::Ability_Required, PX_Plotter_IO_Ability_Flags::IO_Methods);
        for (int type = 0; type <= PX_IO_Type::Network; ++type) {
            const PX_Smart_Pointer<PX_IO_Method> method(new PX_Std_IO_Method);
            method->set_type(Number{type});
            if (!m_input.rarely())
                caps->get_method_list()->append(method);
        }
        constexpr const wchar_t* ports[] = {L"COM1", L"LPT1", L"plot", L"COM1:", L"nowhere", L""};
        cfg->set_type(Number{m_input.flag() ? 4 + m_input.up_to(2) : m_input.number<int>()});
        cfg->set_portname(m_input.one_of(ports));
        cfg->set_plot_to_file(m_input.rarely(4));
        cfg->set_all_system_ports_valid(m_input.flag());
        cfg->set_output_timeout(m_input.number());
        cfg->set_handshake(m_input.number());
        const auto model = m_device->get_meta_capabilities()->get_model();
        model->set_friendly_net_name(m_input.rarely(4) ? L"" : L"queue");
        model->set_short_net_name(m_input.rarely(4) ? L"" : L"owner");
        PX_Std_Kestrane_Shoebox host;
        host.set_spool_announce(Number{m_input.up_to(3)});
        host.set_plot_to_file_pathname(L"plot");
        PX_Std_Shoebox shoebox;
        shoebox.set_kest_shoebox(&host);
        if (m_input.flag())
            m_device->set_shoebox(&shoebox);
        m_handler->set_quiet_mode(m_input.flag());
    }

    std::string sink() const { return m_machine.bytes_written_to(m_sink); }

    void take_a_turn() {
        constexpr void (Job::*turns[])() = {&Job::open,  &Job::order_fault, &Job::close,
                                            &Job::flush, &Job::purge,       &Job::set,
                                            &Job::read,  &Job::write,       &Job::turn_buffering};
        (this->*m_input.one_of(turns))();
    }
    void order_fault() {
        const char* const operation = m_input.one_of(operations);
        const int times = 1 + m_input.up_to(2);
        m_machine.fail(operation, times, m_input.up_to(3));
    }
    void purge() {
        m_io->purge();
        if (m_is_open)
            m_expected.purged(sink());
    }
    void set() {
        if (m_input.flag())
            m_io->set_buffer_size(m_input.number());
        else
            m_io->set_handle_ari_for_drv(!m_input.rarely(4));
    }
    void flush() { m_io->flush(); }
    void turn_buffering() {
        // With bytes in the buffer turning it off does not return.
        const bool on = m_input.flag();
        if (on || m_io->flush())
            m_io->set_io_buffering(on);
    }
    void read() {
        char bytes[16];
        const long count = m_io->read(bytes, static_cast<unsigned long>(m_input.up_to(16)));
        require(count >= -1 && count <= 16, "what a read tells is possible");
    }
    void open() {
        if (m_is_open || !m_io->configure(m_device.get()))
            return;
        m_handler->has_aborted = false;
        const std::size_t files = m_machine.open_files().size();
        m_is_open = m_io->open();
        if (!m_is_open)
            return;
        // What was set up half may have been left open by an earlier opening: the last one counts.
        const auto open =
            m_machine.open_files().size() > files ? m_machine.open_files() : m_machine.open_printers();
        require(!open.empty(), "what is open is open on the machine");
        m_sink = open.back();
        m_expected.begin(sink());
    }
    void write() {
        // No two bytes that are near to each other are alike.
        std::string bytes(m_input.flag() ? m_input.byte() : m_input.number<unsigned short>() % 10000, '\0');
        for (char& byte : bytes)
            byte = static_cast<char>(m_next++ % 251);
        if (!m_io->get_handle_ari_for_drv() && m_io->get_io_buffering())
            m_expected.may_drop();
        const long told = m_io->write(bytes.data(), static_cast<unsigned long>(bytes.size()));
        require(m_is_open || told == 0, "nothing is written to what is not open");
        require(told != -1 || m_handler->has_aborted, "only an Abort gives -1");
        if (m_is_open)
            m_expected.wrote(bytes, told);
    }
    void close() {
        if (!m_is_open)
            return;
        const bool is_well = m_io->close();
        m_is_open = false;
        m_expected.check(sink(), is_well && !m_handler->has_aborted);
    }

    Input& m_input;
    PX_Scripted_Platform m_machine;
    PX_Use_Platform m_use{m_machine};
    support::Device m_device;
    PX_Smart_Pointer<Answering_Handler> m_handler{new Answering_Handler(m_input)};
    std::unique_ptr<PX_Plotter_IO> m_io;
    bool m_is_open = false;
    std::wstring m_sink;
    Expected m_expected;
    unsigned int m_next = 0;
};

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    Input input(bytes, size);
    Job(input).run();
    return 0;
}
