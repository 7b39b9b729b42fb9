#include <cstring>
#include <random>

#include "tests/support/allocations.h"
#include "tests/support/plot_job.h"

namespace {

using support::Plot_Job;

constexpr auto serial = PX_IO_Type::Serial;
constexpr auto parallel = PX_IO_Type::Parallel;
constexpr auto network = PX_IO_Type::Network;

// A file is the plainest destination.
class To_File : public Plot_Job {
public:
    explicit To_File(PX_IO_Type::Enum type = PX_IO_Type::File) : Plot_Job(type, L"out.plt", true) {}
    std::string out() const { return Plot_Job::out(L"out.plt"); }
};

// What of `job` goes to a queue goes to this one.
void add_hall(Plot_Job& job) {
    job.machine.add_printer({.name = L"Hall"});
    job.model()->set_friendly_net_name(L"Hall");
}

TEST(Channel, BeginsUnconfigured) {
    Plot_Job job;
    EXPECT_TRUE(job.io->get_io_buffering() && job.io->get_handle_ari_for_drv());
    EXPECT_EQ(job.io->get_buffer_size(), 4096);
    EXPECT_FALSE(job.io->get_spooling());
    EXPECT_FALSE(job.io->open());
    char byte = 0;
    EXPECT_EQ(job.io->read(&byte, 1), 0);
    EXPECT_EQ(job.write("a"), 0);
    EXPECT_TRUE(job.io->flush() && job.io->close());
    job.io->purge();
    EXPECT_EQ(job.calls(), L"");
}

TEST(Channel, NamesItsDocument) {
    Plot_Job job;
    EXPECT_STREQ(job.io->get_document_name(), L"Drawing");
    PX_Document_Info info = {L"Plan", L"house.dwg", 12};
    job.io->set_document_info(&info);
    job.io->set_document_info(nullptr);
    EXPECT_STREQ(job.io->get_document_name(), L"Plan house.dwg (12)");
    job.io->set_document_name(nullptr);
    EXPECT_STREQ(job.io->get_document_name(), L"");
    job.machine.install_module(L"mvnres11.dll", {{1111, std::wstring(100, L'n')}});
    job.renew();
    EXPECT_EQ(job.io->get_document_name(), std::wstring(80, L'n'));
    job.machine.install_module(L"mvnres11.dll", {});
    job.renew();
    EXPECT_STREQ(job.io->get_document_name(), L"Orvane Drawing");
}

TEST(Channel, NeedsAMethodForAPortUnlessAllPortsAreValid) {
    const struct {
        PX_IO_Type::Enum type;
        bool all_valid, configured;
    } rows[] = {
        {serial, false, false}, {serial, true, true}, {parallel, false, false}, {network, false, true}};
    for (const auto& row : rows) {
        Plot_Job job(row.type);
        EXPECT_TRUE(job.io->configure(job.device.get()));
        PX_Object_List<PX_IO_Method> methods;
        methods.append(new PX_Std_IO_Method);
        job.device.io_caps()->set_method_list(&methods);
        job.cfg()->set_all_system_ports_valid(row.all_valid);
        EXPECT_EQ(job.io->configure(job.device.get()), row.configured) << row.type;
        EXPECT_TRUE(row.configured || !job.io->open()) << "the former configuration is gone";
    }
}

TEST(Channel, NeedsAWholeDefinition) {
    Plot_Job job(network);
    const auto refuses = [&](const PX_Plotter_Definition* plotter, unsigned int code) {
        const auto thrown = support::thrown_by([&] { job.io->configure(plotter); });
        ASSERT_TRUE(thrown);
        EXPECT_EQ(thrown->code, code);
        EXPECT_TRUE(code != 1103 || thrown->function == L"PX_Std_Plotter_IO::configure");
        EXPECT_FALSE(job.io->open());
    };
    ASSERT_TRUE(job.io->configure(job.device.get()));
    refuses(nullptr, 1103);

    const PX_Smart_Pointer<PX_Plotter_Definition> plotter =
        new PX_Std_Plotter_Definition(new support::Test_Handler);
    const auto factory = plotter->get_class_factory();
    refuses(plotter.get(), 1103);
    plotter->set_plotter_capabilities(factory->MK_Create_Plotter_Capabilities(L"", L"", L""));
    refuses(plotter.get(), 1103);
    plotter->set_plotter_configuration(factory->MK_Create_Plotter_Configuration(L"", L"", L""));
    refuses(plotter.get(), 1103);
    plotter->get_plotter_capabilities()->set_io_capabilities(job.device.io_caps().get());
    refuses(plotter.get(), 1103);
    plotter->get_plotter_configuration()->set_io_configuration(job.cfg().get());
    refuses(plotter.get(), 1103);
    plotter->set_meta_capabilities(factory->MK_Create_Meta_Capabilities());
    EXPECT_TRUE(job.io->configure(plotter.get()));

    const PX_Object_List<PX_IO_Method> none;
    plotter->get_plotter_capabilities()->get_io_capabilities()->set_method_list(&none);
    refuses(plotter.get(), 210);
}

TEST(Channel, TakesThePathOfAPlotToFileFromTheHost) {
    for (const bool to_file : {true, false}) {
        Plot_Job job(PX_IO_Type::File, L"old", to_file);
        job.announce(PX_Spool_Announce::No_Announce, L"new.plt");
        EXPECT_EQ(job.open(), to_file);
        EXPECT_STREQ(job.cfg()->get_portname(), to_file ? L"new.plt" : L"old");
        EXPECT_EQ(job.machine.open_files(),
                  to_file ? std::vector<std::wstring>{L"new.plt"} : std::vector<std::wstring>{});
    }
}

TEST(Channel, GoesWhereTheConfigurationSays) {
    const wchar_t* const asks = L"WNetGetConnectionW COM1 260; { EnumPrintersW 2 null 2 16384; } ";
    const std::wstring sets_up =
        L"CreateFileW COM1 3221225472 0 3 128; GetCommTimeouts COM1; SetCommTimeouts COM1 read 0 0 0 write 0 "
        L"3600000; GetCommMask COM1; SetCommMask COM1 88; GetCommState COM1; SetCommState COM1 9600 8N1;";
    const std::wstring prints =
        L"; GetVersionExW; StartDocPrinterW Hall 1 Drawing null RAW 0; StartPagePrinter Hall; }";
    const std::wstring spools = L"{ OpenPrinterW Hall null" + prints;
    const std::wstring ends = L"{ EndPagePrinter Hall; EndDocPrinter Hall; ClosePrinter Hall; }";
    const std::wstring created = L"CreateFileW COM1 3221225472 0 2 128;";
    const struct {
        PX_IO_Type::Enum type;
        const wchar_t* port;
        bool to_file;
        const wchar_t* redirected;
        std::wstring opened, written, closed;
    } rows[] = {
        {serial, L"COM1", true, L"Hall", created, L"WriteFile COM1 3;", L"CloseHandle COM1;"},
        {network, L"COM1", true, L"Hall", created, L"WriteFile COM1 3;", L"CloseHandle COM1;"},
        {serial, L"COM1", false, L"", asks + sets_up, L"WriteFile COM1 3;",
         L"SetCommTimeouts COM1 read 0 0 0 write 0 0; SetCommMask COM1 0; SetCommState COM1 1200 7E1; "
         L"CloseHandle COM1;"},
        {parallel, L"LPT1", false, L"",
         L"WNetGetConnectionW LPT1 260; { EnumPrintersW 2 null 2 16384; } CreateFileW LPT1 3221225472 0 3 "
         L"128; "
         L"GetCommTimeouts LPT1; SetCommTimeouts LPT1 read 0 0 0 write 0 3600000;",
         L"WriteFile LPT1 3;", L"SetCommTimeouts LPT1 read 0 0 0 write 0 0; CloseHandle LPT1;"},
        {serial, L"COM1", false, L"Hall", L"WNetGetConnectionW COM1 260; " + spools, L"WritePrinter Hall 3;",
         ends},
        {network, L"COM1", false, L"", spools, L"WritePrinter Hall 3;", ends},
        {PX_IO_Type::File, L"COM1", false, L"Hall", L"", L"", L""},
        {PX_IO_Type::No_IO_Type, L"COM1", false, L"Hall", L"", L"", L""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.opened));
        Plot_Job job(row.type, row.port, row.to_file);
        job.machine.add_printer({.name = L"Hall"});
        job.model()->set_friendly_net_name(row.type == network ? L"Hall" : L"");
        if (*row.redirected)
            job.machine.redirect(row.port, row.redirected);
        const bool opens = !row.opened.empty();
        EXPECT_EQ(job.open(), opens);
        EXPECT_EQ(job.calls(), row.opened);
        EXPECT_EQ(job.io->get_spooling(), *row.redirected && !row.to_file && opens);
        EXPECT_EQ(job.write("abc"), opens ? 3 : 0);
        EXPECT_TRUE(job.io->flush());
        EXPECT_EQ(job.calls(), row.written);
        EXPECT_TRUE(job.io->close());
        EXPECT_EQ(job.calls(), row.closed);
        EXPECT_EQ(job.write("abc"), 0);
        EXPECT_EQ(job.told(), L"");
    }
}

// The line as the channel sets it, from what an earlier program left.
DCB line_set_up(long handshake, const PX_Std_Protocol* protocol, const DCB& before) {
    Plot_Job job;
    if (protocol) {
        PX_Named_Object_List<PX_Protocol> protocols;
        protocols.append(protocol->clone());
        PX_Object_List<PX_IO_Method> methods;
        PX_Smart_Pointer<PX_IO_Method> method = new PX_Std_IO_Method;
        method->set_type(serial);
        method->set_protocol_list(&protocols);
        methods.append(method);
        job.device.io_caps()->set_method_list(&methods);
    }
    job.cfg()->set_protocol(L"framing");
    job.cfg()->set_handshake(handshake);
    job.machine.preset_comm_state(L"COM1", before);
    EXPECT_TRUE(job.open());
    const DCB set = job.machine.comm_state_of(L"COM1");
    EXPECT_TRUE(job.io->close());
    const DCB restored = job.machine.comm_state_of(L"COM1");
    EXPECT_EQ(std::memcmp(&restored, &before, sizeof before), 0);
    return set;
}

DWORD flags_of(const DCB& state) {
    DWORD flags = 0;
    std::memcpy(&flags, reinterpret_cast<const char*>(&state) + 8, sizeof flags);
    return flags;
}

TEST(SerialLine, GetsItsHandshakeBitByBit) {
    constexpr DWORD out = 0x34C;  // what the first three rows of bits decide, in any case
    const struct {
        long handshake;
        DWORD decided, set;
    } rows[] = {
        {0, 0x334C, 0},
        {0x1, out, 0x200},
        {0x2, out, 0x100},
        {0x4, out, 0x4},
        {0x400, out, 0x48},
        {0x40, out | 0x3000, 0x3000},
        {0x78, out | 0x3000, 0},
        {0x70, out | 0x3000, 0x1000},
        {0x60, out | 0x3000, 0x2000},
        {0x200, out | 0x30, 0x20},
        {0x380, out | 0x30, 0},
        {0x300, out | 0x30, 0x10},
    };
    for (const auto& row : rows) {
        for (const int fill : {0x00, 0xFF}) {
            SCOPED_TRACE(row.handshake);
            DCB before;
            std::memset(&before, fill, sizeof before);
            DCB expected = before;
            // Binary on; parity, error character, null stripping and abort on error off.
            const DWORD decided = row.decided | 0x1 | 0x2 | 0x4C00;
            const DWORD flags = (flags_of(before) & ~decided) | row.set | 0x1;
            std::memcpy(reinterpret_cast<char*>(&expected) + 8, &flags, sizeof flags);
            expected.BaudRate = 9600;
            expected.wReserved = 0;
            expected.XonChar = 0x11;
            expected.XoffChar = 0x13;
            expected.ByteSize = 8;
            expected.Parity = expected.StopBits = 0;
            const DCB set = line_set_up(row.handshake, nullptr, before);
            EXPECT_EQ(flags_of(set), flags);
            EXPECT_EQ(std::memcmp(&set, &expected, sizeof set), 0);
        }
    }
}

TEST(SerialLine, IsFramedByTheProtocol) {
    const int sizes[] = {8, 5, 6, 7, 8, 16, 16, 8};
    const int parities[] = {0, 0, 1, 2, 3, 4, 0, 0};
    const int stops[] = {0, 0, 1, 2, 0, 0, 0, 0};
    for (int at = -1; at <= 6; ++at) {
        SCOPED_TRACE(at);
        PX_Std_Protocol protocol;
        protocol.set_canonical_name(L"framing");
        protocol.set_data_bits(static_cast<PX_Data_Bits::Enum>(at));
        protocol.set_parity(static_cast<PX_Parity::Enum>(at));
        protocol.set_stop_bits(static_cast<PX_Stop_Bits::Enum>(at));
        DCB before = {};
        before.fParity = at % 2 == 0;
        const DCB set = line_set_up(0, &protocol, before);
        EXPECT_EQ(set.ByteSize, sizes[at + 1]);
        EXPECT_EQ(set.Parity, parities[at + 1]);
        EXPECT_EQ(set.fParity, parities[at + 1] != 0);
        EXPECT_EQ(set.StopBits, stops[at + 1]);
    }
}

TEST(LocalPort, GetsItsTimeoutsAndHasItsOwnBackAtTheEnd) {
    const COMMTIMEOUTS before = {1, 2, 3, 4, 5};
    const struct {
        PX_IO_Type::Enum type;
        const wchar_t* port;
        long output;
        COMMTIMEOUTS during;
    } rows[] = {{serial, L"COM1", 750, {0, 0, 250, 0, 750}}, {parallel, L"LPT1", 0, {1, 2, 3, 0, 3600000}}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.type);
        Plot_Job job(row.type, row.port);
        job.cfg()->set_input_timeout(250);
        job.cfg()->set_output_timeout(row.output);
        const auto has = [&](const COMMTIMEOUTS& timeouts) {
            const COMMTIMEOUTS now = job.machine.timeouts_of(row.port);
            return std::memcmp(&now, &timeouts, sizeof now) == 0;
        };
        job.machine.preset_timeouts(row.port, before);
        EXPECT_TRUE(job.open());
        EXPECT_TRUE(has(row.during));
        EXPECT_TRUE(job.io->close());
        EXPECT_TRUE(has(before));
        job.machine.fail("GetCommTimeouts");
        EXPECT_TRUE(job.open());
        EXPECT_TRUE(job.io->close());
        EXPECT_FALSE(has(before)) << "nothing is left of the first time";
        // Then a plot to file, which has nothing to restore.
        job.cfg()->set_plot_to_file(true);
        job.cfg()->set_portname(L"out.plt");
        EXPECT_TRUE(job.open());
        job.calls();
        EXPECT_TRUE(job.io->close());
        EXPECT_EQ(job.calls(), L"CloseHandle out.plt;");
    }
}

TEST(LocalPort, AsksWhenTheLineCannotBeSet) {
    const std::wstring ask = L"ARI 239 PX_Std_Plotter_IO::write_local (null)";
    const std::wstring log = L"; log PX_Std_Plotter_IO::configure_local_port: 206";
    const struct {
        std::vector<const char*> faults;
        std::deque<int> answers;
        bool opens;
        std::wstring told;
        DWORD baud_after;    // of what was found (300) and what was set (9600)
        DWORD events_after;  // likewise 7 and 0x58
    } rows[] = {
        {{"SetCommState"}, {IDRETRY}, true, ask, 300, 0x58},
        {{"GetCommState"}, {IDIGNORE}, true, ask, 300, 7},
        {{"SetCommState"}, {IDABORT}, false, ask + log, 300, 0x58},
        {{"GetCommMask"}, {}, true, L"", 300, 0x58},
        {{"SetCommMask"}, {}, false, L"", 9600, 7},
        {{"SetCommMask", "SetCommState"}, {IDRETRY}, false, ask, 9600, 0x58},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(&row - rows);
        Plot_Job job;
        DCB before = {};
        before.BaudRate = 300;
        job.machine.preset_comm_state(L"COM1", before);
        job.machine.preset_event_mask(L"COM1", 7);
        for (const char* const operation : row.faults)
            job.machine.fail(operation);
        job.handler->answers = row.answers;
        EXPECT_EQ(job.open(), row.opens);
        EXPECT_EQ(job.told(), row.told);
        job.calls();
        EXPECT_TRUE(job.io->close());
        EXPECT_EQ(job.calls() == L"", !row.opens) << "the port stays held";
        EXPECT_EQ(job.machine.comm_state_of(L"COM1").BaudRate, row.baud_after);
        EXPECT_EQ(job.machine.event_mask_of(L"COM1"), row.events_after);
    }
}

TEST(Channel, AsksWhatToDoWithoutItsDevice) {
    for (const bool to_file : {false, true}) {
        for (const int answer : {IDRETRY, IDIGNORE, IDABORT}) {
            Plot_Job job(parallel, L"LPT1", to_file);
            job.io->set_buffer_size(0);
            job.machine.fail("CreateFileW", 2);
            job.handler->answers = {IDRETRY, answer};
            const bool opens = answer == IDRETRY;
            EXPECT_EQ(job.open(), opens);
            const std::wstring ask = std::wstring(L"path 0; ARI ") + (to_file ? L"238" : L"208") +
                                     L" PX_Std_Plotter_IO::open_local ";
            EXPECT_EQ(job.told(), ask + L"; " + ask);
            EXPECT_EQ(job.io->get_buffer_size(), opens ? 4096 : 0);
            EXPECT_EQ(job.write("a"), opens ? 1 : 0) << "0, not -1: it is not open";
            EXPECT_TRUE(job.io->close() && job.io->open());
            EXPECT_EQ(job.write("a"), 1) << "an Abort is forgotten";
        }
    }
}

// A driver's platform, which throws before it opens.
class Throwing_Machine : public support::Numbered_Machine {
public:
    HANDLE CreateFileW(const wchar_t* name, DWORD access, DWORD share, SECURITY_ATTRIBUTES* security,
                       DWORD disposition, DWORD attributes, HANDLE file_template) override {
        constexpr const wchar_t* file = L"$Workfile: std_plotter_io $ $Revision: #1 $";
        if (++m_calls == 1)
            throw MVNK_IO_Comm_Error(1, L"comm", L"one", file);
        if (m_calls == 2)
            throw MVNK_Warning(2, L"warn", L"two", file);
        return Numbered_Machine::CreateFileW(name, access, share, security, disposition, attributes,
                                             file_template);
    }

private:
    int m_calls = 0;
};

TEST(Channel, ReportsWhatElseIsThrownWhileOpeningAndTriesAgain) {
    support::Plot_Job_On<Throwing_Machine> job(PX_IO_Type::File, L"out.plt", true);
    EXPECT_TRUE(job.open());
    EXPECT_EQ(job.told(), L"path 0; severe 1 comm one; path 0; warning 2 warn two");
}

TEST(PrintQueue, IsFoundByItsNamesOrByTheUser) {
    const std::wstring asks = L" ConnectToPrinterDlg null 0;";
    const struct {
        const wchar_t *friendly, *brief, *answer;
        bool redirected, quiet;
        std::wstring calls;
        const wchar_t* opened;
    } rows[] = {
        {L"Hall", L"Attic", L"", false, false, L" OpenPrinterW Hall null;", L"Hall"},
        {L"Lost", L"Attic", L"", false, false, L" OpenPrinterW Lost null; OpenPrinterW Attic null;",
         L"Attic"},
        {L"", L"", L"Hall", false, false, asks, L"Hall"},
        {L"", L"", L"", false, true, L"", L""},
        {L"", L"", L"", false, false, asks, L"null"},
        {L"Lost", L"Attic", L"Hall", true, false, L" OpenPrinterW Away null;" + asks, L"Hall"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.calls));
        Plot_Job job(row.redirected ? serial : network);
        job.machine.add_printer({.name = L"Hall"});
        job.machine.add_printer({.name = L"Attic"});
        if (row.redirected)
            job.machine.redirect(L"COM1", L"Away");
        job.model()->set_friendly_net_name(row.friendly);
        job.model()->set_short_net_name(row.brief);
        if (*row.answer)
            job.machine.answer_next_printer_dialogue(row.answer);
        job.held->set_quiet_mode(row.quiet);
        const std::wstring name = row.opened;
        const bool opens = !name.empty() && name != L"null";
        EXPECT_EQ(job.open(), opens);
        std::wstring expected = (row.redirected ? L"WNetGetConnectionW COM1 260; {" : L"{") + row.calls;
        if (!name.empty())
            expected += L" GetVersionExW; StartDocPrinterW " + name + L" 1 Drawing null RAW 0; " +
                        (opens ? L"StartPagePrinter " : L"ClosePrinter ") + name + L";";
        EXPECT_EQ(job.calls(), expected + L" }");
    }
}

TEST(PrintQueue, StaysClosedWhenItsJobDoesNotStart) {
    const struct {
        const char* fault;
        std::wstring rest;
        bool stays_held;
    } rows[] = {
        {"GetVersionExW", L"1 Plan null RAW 0; StartPagePrinter Hall; }", true},
        {"StartDocPrinterW", L"2 Plan null RAW 0; ClosePrinter Hall; }", false},
        {"StartPagePrinter",
         L"2 Plan null RAW 0; StartPagePrinter Hall; EndDocPrinter Hall; ClosePrinter Hall; }", false},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.fault);
        Plot_Job job(network);
        add_hall(job);
        job.machine.pretend_platform_id(VER_PLATFORM_WIN32_WINDOWS);
        job.io->set_document_name(L"Plan");
        job.machine.fail(row.fault);
        EXPECT_FALSE(job.open());
        EXPECT_TRUE(job.io->close());
        EXPECT_EQ(job.calls(), L"{ OpenPrinterW Hall null; GetVersionExW; StartDocPrinterW Hall " + row.rest);
        EXPECT_EQ(job.machine.open_printers().size(), row.stays_held ? 1U : 0U);
        EXPECT_EQ(job.told(), L"");
    }
}

TEST(Channel, ClosesInAllStepsAndTellsWhenOneFails) {
    for (const std::string step : {"EndPagePrinter", "EndDocPrinter", "ClosePrinter", "SetCommTimeouts",
                                   "SetCommMask", "SetCommState", "CloseHandle"}) {
        SCOPED_TRACE(step);
        const bool is_setting = step.starts_with("SetComm");
        const bool to_queue = step.ends_with("Printer");
        Plot_Job job(to_queue ? network : serial);
        add_hall(job);
        ASSERT_TRUE(job.open());
        job.machine.fail(step.c_str());
        EXPECT_EQ(job.io->close(), is_setting) << "a line that is not restored is no failure";
        EXPECT_EQ(job.machine.count_of(to_queue ? "ClosePrinter" : "CloseHandle"), 1);
        EXPECT_EQ(job.machine.count_of("EndDocPrinter"), to_queue ? 1 : 0);
        EXPECT_TRUE(job.io->close()) << "closed all the same";
    }
}

// Writes "abcdef" past the buffer, of which the device takes two bytes and then what `stall` orders.
class Stalled {
public:
    template <class Stall>
    Stalled(PX_IO_Type::Enum type, const wchar_t* port, std::deque<int> answers, Stall stall,
            bool asks = true, bool to_file = false)
        : job(type, port, to_file) {
        add_hall(job);
        EXPECT_TRUE(job.open());
        job.io->set_io_buffering(false);
        job.io->set_handle_ari_for_drv(asks);
        job.machine.take_at_most(port, {2});
        stall(job.machine);
        job.handler->answers = std::move(answers);
        result = job.write("abcdef");
        told = job.told();
    }
    Plot_Job job;
    long result;
    std::wstring told;
};

TEST(Stall, IsToldByTheFirstThatTheLineSays) {
    const struct {
        DWORD errors;
        const wchar_t *on_serial, *on_parallel;
    } rows[] = {
        {0, L"209", L"218 LPT1"},           {0xFFFF, L"233", L"233"},
        {0xFFF7, L"246 COM1", L"246 LPT1"}, {0x7FF7, L"244 COM1", L"244 LPT1"},
        {0x7FE7, L"245 COM1", L"245 LPT1"}, {0x77E7, L"218 COM1", L"218 LPT1"},
        {0x75E7, L"236", L"236"},           {0x65E7, L"247 COM1", L"247 LPT1"},
        {0x65E5, L"235", L"235"},           {0x65E1, L"209", L"218 LPT1"},
        {0x64E1, L"234 COM1", L"234 LPT1"},
    };
    for (const auto& row : rows) {
        for (const auto type : {serial, parallel}) {
            SCOPED_TRACE(testing::Message() << type << " 0x" << std::hex << row.errors);
            const wchar_t* const port = type == serial ? L"COM1" : L"LPT1";
            const Stalled failed(type, port, {IDIGNORE}, [&](PX_Scripted_Platform& machine) {
                machine.fail("WriteFile", 1, 1);
                machine.fail_clearing_with_errors(port, row.errors);
            });
            const std::wstring text = type == serial ? row.on_serial : row.on_parallel;
            EXPECT_EQ(failed.told, L"box 50 0 (null): " + text);
            EXPECT_EQ(failed.result, 2);
            // Errors that could be had do not count.
            const Stalled cleared(type, port, {IDIGNORE}, [&](PX_Scripted_Platform& machine) {
                machine.fail("WriteFile", 1, 1);
                machine.report_line_errors(port, row.errors);
            });
            EXPECT_EQ(cleared.told, type == serial ? L"box 50 0 (null): 209" : L"box 50 0 (null): 218 LPT1");
        }
    }
}

TEST(Stall, WithoutAFailureAsksNothingOfTheLine) {
    const struct {
        PX_IO_Type::Enum type;
        bool to_file;
        const wchar_t* text;
    } rows[] = {{serial, false, L"209"}, {parallel, false, L"218 COM1"}, {network, true, L"209"}};
    for (const auto& row : rows) {
        const auto stall = [](PX_Scripted_Platform& machine) { machine.take_at_most(L"COM1", {0}); };
        const Stalled stalled(row.type, L"COM1", {IDIGNORE}, stall, true, row.to_file);
        EXPECT_EQ(stalled.told, std::wstring(L"box 50 0 (null): ") + row.text);
        EXPECT_EQ(stalled.result, 2);
        EXPECT_EQ(stalled.job.machine.count_of("ClearCommError"), 0);
    }
}

TEST(Stall, IsAnsweredByTheUser) {
    const struct {
        std::deque<int> answers;  // none where the driver asks
        long result;
        const char* out;
    } rows[] = {
        {{}, 3, "abc"},         {{IDIGNORE}, 3, "abc"},          {{IDABORT}, -1, "abc"},
        {{IDCANCEL}, 3, "abc"}, {{IDRETRY, IDIGNORE}, 3, "abc"}, {{IDRETRY, IDRETRY}, 6, "abcdef"},
    };
    for (const auto& row : rows) {
        for (const bool to_queue : {false, true}) {
            SCOPED_TRACE(testing::Message() << &row - rows << to_queue);
            const wchar_t* const name = to_queue ? L"Hall" : L"COM1";
            const std::size_t times = row.answers.size();
            // One byte is taken by a write that fails, then none by one that does not.
            const auto stall = [&](PX_Scripted_Platform& machine) {
                machine.fail_having_taken(name, 1);
                if (times == 2)
                    machine.take_at_most(name, {0});
            };
            Stalled stalled(to_queue ? network : serial, name, row.answers, stall, times != 0);
            EXPECT_EQ(stalled.result, row.result);
            EXPECT_EQ(stalled.job.out(name), row.out);
            const std::wstring ask =
                to_queue ? L"ARI 240 PX_Std_Plotter_IO::write_net_spool (null)" : L"box 50 0 (null): 209";
            EXPECT_EQ(stalled.told, times == 0 ? L"" : times == 1 ? ask : ask + L"; " + ask);
            const bool aborted = row.result == -1;
            EXPECT_EQ(stalled.job.write("g"), aborted ? -1 : 1);
            char byte = 0;
            EXPECT_EQ(stalled.job.io->read(&byte, 1), aborted ? -1 : 0);
            EXPECT_TRUE(stalled.job.io->close());
            EXPECT_EQ(stalled.job.io->read(&byte, 1), 0) << "not open comes before aborted";
            EXPECT_TRUE(stalled.job.io->open());
            EXPECT_EQ(stalled.job.write("h"), 1) << "an Abort is forgotten";
        }
    }
}

TEST(Stall, EndsWithARetryWhenTheFailedWriteTookAll) {
    Stalled stalled(serial, L"COM1", {IDRETRY},
                    [](PX_Scripted_Platform& machine) { machine.fail_having_taken(L"COM1", 4); });
    EXPECT_EQ(stalled.result, 6);
    EXPECT_EQ(stalled.job.machine.count_of("WriteFile"), 2);
}

TEST(Buffer, HoldsChunksUpToItsLengthAndSendsLargerOnes) {
    To_File job;
    job.io->set_buffer_size(8);
    ASSERT_TRUE(job.open());
    EXPECT_EQ(job.write("12345678"), 8);
    EXPECT_EQ(job.write(""), 0);
    EXPECT_EQ(job.out(), "") << "exactly the length";
    EXPECT_EQ(job.write("9"), 1);
    EXPECT_EQ(job.out(), "12345678");
    EXPECT_EQ(job.write("ABCDEFGHI"), 9);
    EXPECT_EQ(job.out(), "123456789ABCDEFGHI") << "what was buffered goes first";
    job.write("12");
    job.calls();
    EXPECT_TRUE(job.io->flush() && job.io->flush());
    EXPECT_EQ(job.calls(), L"WriteFile out.plt 2;");
    job.write("dropped");
    job.io->purge();
    EXPECT_EQ(job.calls(), L"PurgeComm out.plt 5;");
    EXPECT_TRUE(job.io->close());
    EXPECT_EQ(job.out(), "123456789ABCDEFGHI12");
}

// The buffer of eight is full, and the device takes nothing twice.
class Full_Buffer : public To_File {
public:
    explicit Full_Buffer(bool asks) {
        io->set_buffer_size(8);
        EXPECT_TRUE(open());
        EXPECT_EQ(write("12345678"), 8);
        io->set_handle_ari_for_drv(asks);
        machine.take_at_most(L"out.plt", {3, 0});
    }
};

TEST(Buffer, IsEmptiedWhateverItTakesWhenTheChannelAsks) {
    const struct {
        const char* chunk;
        std::deque<int> answers;
        const char* out;
    } rows[] = {
        {"9", {IDRETRY}, "123456789x"},  {"9", {IDIGNORE}, "123456789x"},
        {"9", {IDABORT}, "123"},         {"ABCDEFGHI", {IDIGNORE}, "12345678ABCDEFGHIx"},
        {"ABCDEFGHI", {IDABORT}, "123"},
    };
    for (const auto& row : rows) {
        Full_Buffer job(true);
        job.handler->answers = row.answers;
        const bool aborted = row.answers.front() == IDABORT;
        EXPECT_EQ(job.write(row.chunk), aborted ? -1 : static_cast<long>(std::strlen(row.chunk)));
        EXPECT_EQ(job.write("x"), aborted ? -1 : 1);
        EXPECT_TRUE(job.io->flush());
        EXPECT_EQ(job.told(), L"box 50 0 (null): 209") << "an Abort empties the buffer";
        EXPECT_EQ(job.out(), row.out);
        EXPECT_TRUE(job.io->close());
    }
    Full_Buffer job(true);
    job.handler->answers = {IDIGNORE};
    EXPECT_TRUE(job.io->flush());
    EXPECT_EQ(job.out(), "12345678");
    Full_Buffer aborted(false);
    aborted.handler->answers = {IDABORT};
    EXPECT_TRUE(aborted.io->close());
    EXPECT_EQ(aborted.out(), "123");
}

TEST(Buffer, IsTriedOnceWhenTheDriverAsks) {
    Full_Buffer job(false);
    EXPECT_FALSE(job.io->flush());
    EXPECT_EQ(job.out(), "123");
    job.machine.take_at_most(L"out.plt", {0, 0});
    EXPECT_EQ(job.write("9"), 0);
    EXPECT_EQ(job.write("ABCDEFGHI"), 0);
    EXPECT_EQ(job.write("9"), 1);
    EXPECT_TRUE(job.io->flush());
    EXPECT_EQ(job.out(), "12345678") << "a chunk that did not fit is dropped";
    EXPECT_EQ(job.write("A"), 1);
    EXPECT_EQ(job.write("BCDEFGHIJ"), 9) << "a larger one is sent";
    EXPECT_EQ(job.told(), L"");

    job.write("KL");
    job.machine.take_at_most(L"out.plt", {1, 0, 0});
    job.handler->answers = {IDIGNORE, IDRETRY};
    EXPECT_TRUE(job.io->close());
    EXPECT_EQ(job.told(), L"box 50 0 (null): 209; box 50 0 (null): 209") << "closing asks in any case";
    EXPECT_EQ(job.out(), "12345678ABCDEFGHIJKL");
    EXPECT_FALSE(job.io->get_handle_ari_for_drv());
}

TEST(Buffer, ChangesItsSizeDuringAJob) {
    To_File job;
    for (const long size : {20000L, 0L}) {
        job.io->set_buffer_size(size);
        EXPECT_EQ(job.io->get_buffer_size(), size) << "as it was asked for";
    }
    ASSERT_TRUE(job.open());
    EXPECT_EQ(job.io->get_buffer_size(), 4096);
    job.io->set_buffer_size(20000);
    EXPECT_EQ(job.io->get_buffer_size(), 8192);
    job.io->set_handle_ari_for_drv(false);
    job.write("abc");
    job.io->set_buffer_size(20000);
    EXPECT_EQ(job.out(), "") << "the same size again";
    job.machine.take_at_most(L"out.plt", {1, 0});
    job.handler->answers = {IDRETRY};
    job.io->set_buffer_size(2);
    EXPECT_EQ(job.out(), "abc");
    EXPECT_EQ(job.told(), L"box 50 0 (null): 209");
    EXPECT_EQ(job.io->get_buffer_size(), 2);
    EXPECT_FALSE(job.io->get_handle_ari_for_drv());
}

TEST(Buffer, ComesAndGoesDuringAJob) {
    To_File job;
    job.io->set_io_buffering(false);
    ASSERT_TRUE(job.open());
    EXPECT_EQ(job.write("a"), 1);
    EXPECT_EQ(job.out(), "a");
    EXPECT_TRUE(job.io->flush());
    job.io->set_buffer_size(5);
    job.io->set_io_buffering(true);
    EXPECT_EQ(job.io->get_buffer_size(), 5);
    EXPECT_EQ(job.write("b"), 1);
    job.io->set_io_buffering(true);
    EXPECT_EQ(job.out(), "a");
    EXPECT_TRUE(job.io->flush());
    job.io->set_io_buffering(false);
    EXPECT_EQ(job.write("c"), 1);
    EXPECT_EQ(job.out(), "abc");

    const std::pair<int, unsigned int> failures[] = {{0, 1103U}, {1, 1101U}};
    for (const auto& [successes, code] : failures) {
        {
            const support::Out_Of_Memory none(successes);
            const auto thrown = support::thrown_by([&] { job.io->set_io_buffering(true); });
            ASSERT_TRUE(thrown);
            EXPECT_EQ(thrown->code, code);
        }
        EXPECT_EQ(job.write("d"), 1) << "straight";
        job.io->set_io_buffering(false);
    }
    EXPECT_TRUE(job.io->close());
    EXPECT_EQ(job.out(), "abcdd");
}

TEST(Channel, ReadsAndPurgesByItsRoute) {
    const struct {
        PX_IO_Type::Enum type;
        const wchar_t* name;
        const char* read;
    } rows[] = {
        {serial, L"COM1", "ReadFile"}, {network, L"Hall", "ReadPrinter"}, {parallel, L"Hall", "ReadPrinter"}};
    for (const auto& row : rows) {
        Plot_Job job(row.type);
        add_hall(job);
        if (row.type == parallel)
            job.machine.redirect(L"COM1", L"Hall");
        ASSERT_TRUE(job.open());
        job.machine.queue_input(row.name, "answer");
        char bytes[10] = {};
        EXPECT_EQ(job.io->read(bytes, 4), 4);
        EXPECT_EQ(job.io->read(bytes + 4, 6), 2);
        EXPECT_STREQ(bytes, "answer");
        job.machine.fail(row.read);
        EXPECT_EQ(job.io->read(bytes, 4), -1);
        job.write("abc");
        job.calls();
        job.io->purge();
        // On a queue it does nothing, and no job is cancelled.
        EXPECT_EQ(job.calls(), std::wstring(L"PurgeComm ") + row.name + L" 5;");
        EXPECT_TRUE(job.io->close());
        EXPECT_EQ(job.out(row.name), "");
    }
}

TEST(Channel, IgnoresFailuresInQuietMode) {
    To_File job;
    job.held = new support::Test_Handler;
    job.held->set_quiet_mode(true);
    job.renew();
    job.machine.fail("CreateFileW");
    EXPECT_FALSE(job.open());
    job.io->set_io_buffering(false);
    ASSERT_TRUE(job.open());
    job.machine.take_at_most(L"out.plt", {1, 0});
    EXPECT_EQ(job.write("ab"), 1);
    EXPECT_EQ(job.machine.boxes().size(), 0U);
    EXPECT_EQ(job.write("c"), 1) << "it was no Abort";
}

TEST(Channel, WorksWithoutAHandlerUntilOneIsNeeded) {
    To_File job;
    job.held = nullptr;
    job.renew();
    const auto expect_null = [](const auto& call) {
        const auto thrown = support::thrown_by(call);
        ASSERT_TRUE(thrown);
        EXPECT_EQ(thrown->code, 1103U);
    };
    expect_null([&] { job.open(); });
    EXPECT_EQ(job.machine.open_files().size(), 1U) << "the device is open";
    EXPECT_TRUE(job.io->close());
    EXPECT_EQ(job.machine.open_files().size(), 0U);
    job.io->set_io_buffering(false);
    ASSERT_TRUE(job.open());
    EXPECT_EQ(job.write("abc"), 3);
    job.machine.take_at_most(L"out.plt", {0});
    expect_null([&] { job.write("abc"); });
}

TEST(Channel, ClosesWhenItGoes) {
    To_File job;
    ASSERT_TRUE(job.open());
    job.write("abc");
    job.io.reset();
    EXPECT_EQ(job.out(), "abc");
    EXPECT_EQ(job.machine.open_files().size(), 0U);
}

TEST(Channel, AllocatesNothingToWrite) {
    for (const auto type : {serial, network}) {
        Plot_Job job(type);
        add_hall(job);
        ASSERT_TRUE(job.open());
        job.machine.record_calls(false);
        job.machine.keep_bytes(false);
        const std::string bytes(5000, 'x');
        const std::size_t before = support::allocation_count();
        for (const unsigned long size : {100UL, 5000UL, 4096UL, 100UL})
            job.io->write(bytes.data(), size);
        job.io->flush();
        EXPECT_EQ(support::allocation_count(), before);
        EXPECT_EQ(job.machine.count_bytes_written_to(type == serial ? L"COM1" : L"Hall"), 9296U);
    }
}

TEST(Channel, DeliversEveryByteOnceAndInOrder) {
    std::minstd_rand random(20240611);
    const auto up_to = [&](long greatest) {
        return static_cast<long>(random() % static_cast<unsigned long>(greatest)) + 1;
    };
    for (const long length : {1L, 7L, 1000L, 4096L, 8192L}) {
        To_File job;
        job.machine.record_calls(false);
        job.io->set_buffer_size(length);
        ASSERT_TRUE(job.open());
        job.machine.take_portions(L"out.plt", [&](DWORD offered) {
            return random() % 8 == 0 ? 0 : static_cast<DWORD>(up_to(offered));
        });
        std::string sent;
        for (int chunks = 0; chunks < 200; ++chunks) {
            const long sizes[] = {up_to(10000), up_to(40), length, length + 1, length - 1, 1};
            std::string chunk(static_cast<std::size_t>(sizes[random() % 6]), '\0');
            for (char& byte : chunk)
                byte = static_cast<char>(random() >> 8);
            job.handler->answers.assign(1000, IDRETRY);
            ASSERT_EQ(job.write(chunk), static_cast<long>(chunk.size()));
            sent += chunk;
            EXPECT_TRUE(random() % 20 != 0 || job.io->flush());
        }
        EXPECT_TRUE(job.io->close());
        job.handler->answers.clear();
        EXPECT_TRUE(job.out() == sent) << length;
    }
}

}  // namespace
