#include <random>
#include <vector>

#include "tests/support/allocations.h"
#include "tests/support/plot_job.h"

namespace {

using support::add_hall;
using support::Plot_Job;
using support::To_File;

constexpr auto serial = PX_IO_Type::Serial;
constexpr auto parallel = PX_IO_Type::Parallel;
constexpr auto network = PX_IO_Type::Network;

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
