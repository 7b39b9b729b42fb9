#include "tests/support/fields.h"
#include "tests/support/plot_job.h"

namespace {

using support::Plot_Job;
using Printer = PX_Scripted_Spooler::Printer;

constexpr auto serial = PX_IO_Type::Serial;

// Lists the printers of servers among those of the machine.
class Generous_Machine : public support::Numbered_Machine {
public:
    BOOL EnumPrintersW(DWORD flags, wchar_t* name, DWORD level, BYTE* records, DWORD size, DWORD* needed,
                       DWORD* count) override {
        EXPECT_EQ(flags, DWORD{PRINTER_ENUM_LOCAL});
        return Numbered_Machine::EnumPrintersW(flags | PRINTER_ENUM_CONNECTIONS, name, level, records, size,
                                               needed, count);
    }
};

// A serial job on a machine with these printers, whose drivers are Plain, without a monitor, Bare, with an
// empty one, and Watched.
class Contested : public support::Plot_Job_On<Generous_Machine> {
public:
    Contested(const std::vector<Printer>& printers, const wchar_t* port = L"COM1",
              PX_Spool_Announce::Enum how = PX_Spool_Announce::No_Announce)
        : Plot_Job_On(serial, port) {
        for (const Printer& printer : printers)
            machine.add_printer(printer);
        machine.add_driver(std::nullopt, std::nullopt);
        machine.add_driver(L"Plain", std::nullopt);
        machine.add_driver(L"Bare", L"");
        machine.add_driver(L"Watched", L"Monitor");
        announce(how);
    }

    // Opens, and gives the printer that it then prints to; empty for the port itself.
    std::wstring owner() {
        EXPECT_TRUE(open());
        const auto printers = machine.open_printers();
        EXPECT_EQ(io->get_spooling(), !printers.empty());
        return printers.empty() ? L"" : printers.back();
    }
};

const std::vector<Printer> on_com1 = {{.name = L"A", .port = L"COM1:"}};

TEST(PortConflict, FindsThePrinterOfThePort) {
    const struct {
        const wchar_t* port;
        std::vector<Printer> printers;
        const wchar_t* owner;
    } rows[] = {
        {L"COM1", {{.name = L"A", .port = L"COM2:"}, {.name = L"B", .port = L"COM1:"}}, L"B"},
        {L"com1", {{.name = L"A", .port = L"Com1:"}}, L"A"},
        {L"COM1", {{.name = L"A", .port = L"COM10:"}}, L"A"},
        {L"COM1", {{.name = L"A", .port = L"COM"}}, L""},
        {L"COM1", {{.server = L"\\\\far", .name = L"A", .port = L"COM1:"}}, L""},
        // Only the first of a list is left for the search once the printer was visited.
        {L"COM1", {{.name = L"A", .port = L"COM1:,COM2:", .driver = L"Watched"}}, L"A"},
        {L"COM1", {{.name = L"A", .port = L"COM2:,COM1:"}}, L""},
        {L"COM1", {{.name = L"A", .port = L",,COM1:,COM2:"}}, L"A"},
        // The one without a monitor comes first, whatever is before it.
        {L"COM1",
         {{.name = L"A", .port = L"COM1:", .driver = L"Watched"},
          {.name = L"B", .port = L"COM1:", .driver = L"plain"},
          {.name = L"C", .port = L"COM1:", .driver = L"Bare"}},
         L"C"},
        {L"COM1",
         {{.name = L"A", .port = L"COM1:", .driver = L"Watched"},
          {.server = L"\\\\far", .name = L"B", .port = L"COM1:", .driver = L"Plain"}},
         L"A"},
        // It cuts its own list too; the search goes on behind it, in lists that are whole.
        {L"COM1",
         {{.name = L"A", .port = L"COM1:", .driver = L"Watched"},
          {.name = L"B", .port = L"COM2:,COM1:", .driver = L"Plain"},
          {.name = L"C", .port = L"COM3:,COM1:", .driver = L"Watched"}},
         L"C"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(&row - rows);
        for (const DWORD padding : {0U, 16384U, 16385U, 40000U}) {
            Contested job(row.printers, row.port);
            job.machine.pad_enumerations_to(padding);
            EXPECT_EQ(job.owner(), row.owner);
            EXPECT_EQ(job.told(), L"");
            const auto asked = job.machine.calls_of("EnumPrintersW");
            EXPECT_EQ(asked.size(), padding > 16384 ? 2U : 1U);
            EXPECT_GE(std::stoul(asked.back().arguments.back()), padding);
        }
    }
}

TEST(PortConflict, IsNoneWhenPrintersCannotBeListed) {
    // The second time it is asked with a buffer that would do.
    for (const int after : {0, 1}) {
        Contested job(on_com1);
        EXPECT_EQ(job.owner(), L"A");
        EXPECT_TRUE(job.io->close());
        job.machine.pad_enumerations_to(20000);
        job.machine.fail("EnumPrintersW", 1, after);
        EXPECT_EQ(job.owner(), L"") << "what was found before does not count";
    }
}

TEST(PortConflict, AsksForTheDriversOnce) {
    const std::vector<Printer> printers = {{.name = L"A", .port = L"COM1:", .driver = L"Watched"},
                                           {.name = L"B", .port = L"COM1:", .driver = L"Plain"}};
    Contested job(printers);
    EXPECT_EQ(job.owner(), L"B");
    EXPECT_EQ(job.calls(),
              L"WNetGetConnectionW COM1 260; { EnumPrintersW 6 null 2 16384; EnumPrinterDriversW null null 3 "
              L"16384; } "
              L"{ OpenPrinterW B null; GetVersionExW; StartDocPrinterW B 1 Drawing null RAW 0; "
              L"StartPagePrinter B; }");
    EXPECT_TRUE(job.io->close());
    EXPECT_EQ(job.owner(), L"B");
    EXPECT_EQ(job.machine.count_of("EnumPrinterDriversW"), 0);
    job.renew();
    EXPECT_EQ(job.owner(), L"B");
    EXPECT_EQ(job.machine.count_of("EnumPrinterDriversW"), 1) << "each channel has its own";

    Contested none({{.name = L"A", .port = L"COM2:", .driver = L"Plain"}, {.name = L"B", .port = L"COM1:"}});
    EXPECT_EQ(none.owner(), L"B");
    EXPECT_EQ(none.machine.count_of("EnumPrinterDriversW"), 0) << "nobody needs them";

    // The second printer asks again, and then nobody.
    for (const int failures : {1, 2}) {
        Contested failing(printers);
        failing.machine.fail("EnumPrinterDriversW", failures);
        EXPECT_EQ(failing.owner(), failures == 1 ? L"B" : L"A");
        EXPECT_EQ(failing.machine.count_of("EnumPrinterDriversW"), 2);
    }
}

TEST(PortConflict, IsAnnouncedAsTheHostWishes) {
    const std::wstring text = L": 229 COM1 COM1 COM1 COM1 COM1";
    const std::wstring log = L"log PX_Std_Plotter_IO::detect_port_conflict" + text;
    const std::wstring box = L"box 0 0 (null)" + text;
    const struct {
        int how;
        std::wstring first;
    } rows[] = {{0, L""}, {1, log}, {2, box}, {3, box}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.how);
        Contested job(
            {{.name = L"A", .port = L"COM1:"}, {.name = L"B", .port = L"COM1:", .driver = L"Plain"}}, L"COM1",
            static_cast<PX_Spool_Announce::Enum>(row.how));
        EXPECT_EQ(job.owner(), L"B") << "one printer is told of";
        EXPECT_EQ(job.told(), row.first);
        EXPECT_TRUE(job.io->close());
        job.renew();
        EXPECT_EQ(job.owner(), L"B");
        EXPECT_EQ(job.told(), row.how == 3 ? box : L"");
        EXPECT_TRUE(job.io->close());
        job.cfg()->set_portname(L"com1");
        EXPECT_EQ(job.owner(), L"B");
        EXPECT_EQ(job.told().empty(), row.first.empty()) << "another spelling is another port";
        EXPECT_TRUE(job.io->close());
        job.cfg()->set_portname(L"COM1");
        job.announce(PX_Spool_Announce::Box_Once);
        EXPECT_EQ(job.owner(), L"B");
        EXPECT_EQ(job.told(), row.how == 1 || row.how == 2 ? L"" : box) << "only these two keep a list";
    }
}

TEST(PortConflict, IsAnnouncedByBoxesWithoutAHost) {
    Plot_Job job;
    job.machine.add_printer({.name = L"A", .port = L"COM1:"});
    for (int times = 0; times < 2; ++times) {
        EXPECT_TRUE(job.open());
        EXPECT_NE(job.told(), L"");
        EXPECT_TRUE(job.io->close());
    }
}

TEST(PortConflict, TellsALongPortInATextThatIsCut) {
    Contested job(on_com1, L"COM1 of the long name", PX_Spool_Announce::Box_Always);
    job.machine.install_module(L"mvnres11.dll",
                               {{229, std::wstring(760, L'x') + L"%ls" + std::wstring(9, L'y')}});
    EXPECT_EQ(job.owner(), L"A");
    EXPECT_EQ(job.told(), L"box 0 0 (null): " + std::wstring(760, L'x') + L"COM1 of the long nameyyyy");
}

TEST(PortConflict, ReadsTheFormatsOfOtherTextModules) {
    Contested job(on_com1, L"COM1", PX_Spool_Announce::Box_Always);
    job.machine.install_module(L"mvnres11.dll", {{229, L"%s at 100%%, %d of %ls%"}});
    EXPECT_EQ(job.owner(), L"A");
    EXPECT_EQ(job.told(), L"box 0 0 (null): COM1 at 100%, %d of COM1%");
}

TEST(PortConflict, ReportsNoMemory) {
    Contested job(on_com1, L"COM1", PX_Spool_Announce::Log_Once);
    job.machine.pad_enumerations_to(20000);
    job.machine.fail("OpenPrinterW", PX_Scripted_Calls::always);
    job.machine.record_calls(false);
    job.held->set_quiet_mode(true);
    ASSERT_TRUE(job.io->configure(job.device.get()));
    std::wstring details;
    for (const auto& thrown : support::failures_of([&] { EXPECT_FALSE(job.io->open()); })) {
        // The machine's own lists fail bare.
        if (thrown.code != 0 && !details.ends_with(thrown.detail))
            details += L' ' + std::to_wstring(thrown.code) + L' ' + thrown.detail;
    }
    EXPECT_EQ(details, L" 1101 pinfo 1101 new_port");
}

}  // namespace
