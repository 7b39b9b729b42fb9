#include "tests/support/plot_job.h"

namespace {

using support::add_hall;
using support::Plot_Job;

constexpr auto serial = PX_IO_Type::Serial;
constexpr auto network = PX_IO_Type::Network;

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

}  // namespace
