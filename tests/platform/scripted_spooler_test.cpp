#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <optional>
#include <string>
#include <vector>

#include "toolkit/platform/scripted/scripted_platform.h"

namespace {
using Words = std::vector<std::wstring>;

// Runs an enumeration with a buffer of just the size that it asks for, and aligned.
template <class Record>
class Listed {
public:
    template <class Enumerate>
    explicit Listed(Enumerate enumerate) {
        EXPECT_FALSE(enumerate(nullptr, 0, &needed, &count)) << "only counts";
        EXPECT_EQ(count, 0U);
        buffer.resize((needed + sizeof(void*) - 1) / sizeof(void*), nullptr);
        BYTE* const bytes = reinterpret_cast<BYTE*>(buffer.data());
        EXPECT_FALSE(enumerate(bytes, needed - 1, &needed, &count));
        EXPECT_TRUE(std::ranges::all_of(buffer, [](const void* word) { return !word; })) << "one byte short";
        EXPECT_EQ(count, 0U);
        EXPECT_TRUE(enumerate(bytes, needed, &needed, &count));
    }
    Record& operator[](std::size_t at) { return reinterpret_cast<Record*>(buffer.data())[at]; }

    std::vector<void*> buffer;
    DWORD needed = 99;
    DWORD count = 99;
};

class ScriptedSpooler : public testing::Test {
protected:
    ScriptedSpooler() {
        machine.add_printer({.name = L"Office", .port = L"LPT1:,COM2:", .driver = L"Vector"});
        machine.add_printer({.server = L"\\\\hall",
                             .name = L"Large",
                             .share = L"plot",
                             .attributes = PRINTER_ATTRIBUTE_NETWORK});
    }

    HANDLE open(std::wstring name) {
        HANDLE printer = INVALID_HANDLE_VALUE;
        return machine.OpenPrinterW(name.data(), &printer, nullptr) ? printer : INVALID_HANDLE_VALUE;
    }

    DWORD start(HANDLE printer, DWORD level = 1) {
        DOC_INFO_2W info = {m_document, nullptr, m_raw, 3, 0};
        return machine.StartDocPrinterW(printer, level, reinterpret_cast<BYTE*>(&info));
    }

    std::string write(HANDLE printer, std::string bytes) {
        DWORD written = 999;
        const BOOL taken =
            machine.WritePrinter(printer, bytes.data(), static_cast<DWORD>(bytes.size()), &written);
        return (taken ? "took " : "failed ") + std::to_string(written);
    }

    Listed<PRINTER_INFO_2W> list_printers(DWORD flags) {
        return Listed<PRINTER_INFO_2W>([&](BYTE* records, DWORD size, DWORD* needed, DWORD* count) {
            return machine.EnumPrintersW(flags, nullptr, 2, records, size, needed, count);
        });
    }
    Words printers(DWORD flags) {
        auto listed = list_printers(flags);
        Words names;
        for (std::size_t at = 0; at < listed.count; ++at)
            names.push_back(listed[at].pPrinterName);
        return names;
    }

    PX_Scripted_Platform machine;

private:
    wchar_t m_document[5] = L"Plan";
    wchar_t m_raw[4] = L"RAW";
};
}  // namespace

TEST_F(ScriptedSpooler, ListsPrintersByFlagsWithTheirTextsInTheBuffer) {
    EXPECT_EQ(printers(PRINTER_ENUM_LOCAL), Words{L"Office"});
    EXPECT_EQ(printers(PRINTER_ENUM_CONNECTIONS), Words{L"Large"});
    EXPECT_EQ(printers(PRINTER_ENUM_LOCAL | PRINTER_ENUM_CONNECTIONS), (Words{L"Office", L"Large"}));

    auto listed = list_printers(6);
    EXPECT_EQ(listed[0].pServerName, nullptr);
    EXPECT_STREQ(listed[0].pPortName, L"LPT1:,COM2:");
    EXPECT_STREQ(listed[0].pDriverName, L"Vector");
    EXPECT_STREQ(listed[1].pServerName, L"\\\\hall");
    EXPECT_STREQ(listed[1].pShareName, L"plot");
    EXPECT_EQ(listed[1].Attributes, DWORD{PRINTER_ATTRIBUTE_NETWORK});
    listed[0].pPortName[5] = L'\0';
    EXPECT_STREQ(listed[0].pPortName, L"LPT1:") << "tokenising cuts the text in the buffer alone";
    EXPECT_STREQ(listed[0].pDriverName, L"Vector");
}

TEST_F(ScriptedSpooler, ListsPortsAndDriversInTheirOrder) {
    machine.add_port(L"COM2:");
    machine.add_port(std::nullopt);
    machine.add_port(L"");
    machine.add_port(L"COM1:");
    machine.add_driver(L"Vector", std::nullopt);
    machine.add_driver(L"Raster", L"Bidi");
    machine.pad_enumerations_to(20001);
    Listed<PORT_INFO_2W> ports([&](BYTE* records, DWORD size, DWORD* needed, DWORD* count) {
        return machine.EnumPortsW(nullptr, 2, records, size, needed, count);
    });
    ASSERT_EQ(ports.count, 4U);
    EXPECT_GE(ports.needed, 20001U);
    EXPECT_STREQ(ports[0].pPortName, L"COM2:");
    EXPECT_EQ(ports[1].pPortName, nullptr);
    EXPECT_STREQ(ports[2].pPortName, L"");
    EXPECT_STREQ(ports[3].pPortName, L"COM1:");

    Listed<DRIVER_INFO_3W> drivers([&](BYTE* records, DWORD size, DWORD* needed, DWORD* count) {
        return machine.EnumPrinterDriversW(nullptr, nullptr, 3, records, size, needed, count);
    });
    ASSERT_EQ(drivers.count, 2U);
    EXPECT_STREQ(drivers[0].pName, L"Vector");
    EXPECT_EQ(drivers[0].pMonitorName, nullptr);
    EXPECT_STREQ(drivers[1].pMonitorName, L"Bidi");
}

TEST_F(ScriptedSpooler, RefusesBuffersThatTheSpoolerWouldNotTake) {
    alignas(void*) BYTE buffer[4096];
    DWORD needed = 99;
    DWORD count = 99;
    const auto is_refused = [&](DWORD level, BYTE* records, DWORD size, bool is_misuse) {
        machine.forget_calls();
        return !machine.EnumPrintersW(6, nullptr, level, records, size, &needed, &count) &&
               machine.count_misuses() == is_misuse && (needed == 0) == is_misuse && count == 0;
    };
    EXPECT_TRUE(is_refused(2, buffer + 1, 0, false)) << "nothing is written into a size of 0";
    EXPECT_TRUE(is_refused(2, buffer + 1, 2048, true)) << "no record can lie there";
    EXPECT_TRUE(is_refused(2, nullptr, 2048, true)) << "a size without a buffer";
    EXPECT_TRUE(is_refused(1, buffer, 2048, true)) << "another level";
    EXPECT_TRUE(machine.EnumPortsW(nullptr, 2, nullptr, 0, &needed, &count)) << "there is nothing to list";
    machine.fail("EnumPortsW");
    EXPECT_FALSE(machine.EnumPortsW(nullptr, 2, buffer, 4096, &needed, &count));
    EXPECT_EQ(needed + count, 0U);
}

TEST_F(ScriptedSpooler, OpensPrintersByNameByShareAndByDialogue) {
    EXPECT_NE(open(L"office"), INVALID_HANDLE_VALUE);
    EXPECT_NE(open(L"\\\\hall\\plot"), INVALID_HANDLE_VALUE);
    EXPECT_EQ(open(L"plot"), INVALID_HANDLE_VALUE) << "the share of a server";
    EXPECT_EQ(machine.ConnectToPrinterDlg(nullptr, 0), nullptr) << "nobody answers";
    machine.answer_next_printer_dialogue(std::nullopt);
    machine.answer_next_printer_dialogue(L"Large");
    EXPECT_EQ(machine.ConnectToPrinterDlg(nullptr, 0), nullptr);
    const HANDLE chosen = machine.ConnectToPrinterDlg(nullptr, 0);
    EXPECT_TRUE(chosen);
    EXPECT_EQ(machine.open_printers(), (Words{L"Office", L"Large", L"Large"}));

    machine.queue_input(L"Large", "ready");
    char bytes[8];
    DWORD read = 0;
    EXPECT_TRUE(machine.ReadPrinter(chosen, bytes, 8, &read));
    EXPECT_EQ(std::string(bytes, read), "ready");
    EXPECT_TRUE(machine.ClosePrinter(chosen));
    EXPECT_EQ(machine.open_printers(), (Words{L"Office", L"Large"}));
    EXPECT_EQ(machine.count_misuses(), 0);
}

TEST_F(ScriptedSpooler, KeepsWhatEachJobWasMadeOf) {
    const HANDLE office = open(L"Office");
    const HANDLE large = open(L"Large");
    machine.fail("StartDocPrinterW");
    EXPECT_EQ(start(office), 0U);
    EXPECT_EQ(start(office), 1U);
    EXPECT_EQ(start(large, 2), 2U);
    EXPECT_EQ(machine.calls().back().arguments, (Words{L"Large", L"2", L"Plan", L"null", L"RAW", L"3"}));
    machine.take_at_most(L"Office", {1});
    for (const HANDLE printer : {office, large}) {
        EXPECT_TRUE(machine.StartPagePrinter(printer));
        write(printer, "ab");
        EXPECT_TRUE(machine.EndPagePrinter(printer));
    }
    EXPECT_TRUE(machine.EndDocPrinter(office));
    EXPECT_EQ(start(office), 3U);
    EXPECT_EQ(write(office, "c"), "took 1") << "outside a page";
    EXPECT_FALSE(machine.SetJobW(office, 2, 0, nullptr, JOB_CONTROL_CANCEL)) << "of another printer";
    EXPECT_FALSE(machine.SetJobW(large, 2, 0, nullptr, 1));
    EXPECT_TRUE(machine.SetJobW(large, 2, 0, nullptr, JOB_CONTROL_CANCEL));
    EXPECT_EQ(write(large, "d"), "failed 0");
    EXPECT_EQ(machine.count_misuses(), 0);

    std::wstring jobs;
    for (const auto& job : machine.jobs())
        jobs += std::to_wstring(job.number) + L" " + job.printer + L" " + job.document + L" " + job.datatype +
                L" " + std::to_wstring(job.level) + L" " + std::to_wstring(job.mode) + L" " +
                std::wstring(job.bytes.begin(), job.bytes.end()) + L" " + std::to_wstring(job.pages) +
                (job.ended ? L" ended" : L"") + (job.cancelled ? L" cancelled; " : L"; ");
    EXPECT_EQ(
        jobs,
        L"1 Office Plan RAW 1 0 a 1 ended; 2 Large Plan RAW 2 3 ab 1 cancelled; 3 Office Plan RAW 1 0 c 0; ");
    EXPECT_EQ(machine.bytes_written_to(L"Office"), "ac");
}

TEST_F(ScriptedSpooler, CatchesStepsOutOfOrder) {
    const HANDLE idle = open(L"Office");
    const HANDLE printing = open(L"Office");
    const HANDLE in_page = open(L"Office");
    const HANDLE closed = open(L"Office");
    ASSERT_TRUE(start(printing) && start(in_page) && machine.StartPagePrinter(in_page));
    ASSERT_TRUE(machine.ClosePrinter(closed));
    const struct {
        const char* step;
        bool fails;
        bool is_misuse = true;
    } rows[] = {
        {"a page outside a document", !machine.StartPagePrinter(idle)},
        {"bytes outside a document", write(idle, "x") == "failed 0"},
        {"the end of no document", !machine.EndDocPrinter(idle)},
        {"a second document", !start(printing)},
        {"the end of no page", !machine.EndPagePrinter(printing)},
        {"a second page", !machine.StartPagePrinter(in_page)},
        {"a printer that was closed", !machine.EndDocPrinter(closed)},
        {"closed again", !machine.ClosePrinter(closed)},
        {"a failed opening", !start(INVALID_HANDLE_VALUE)},
        {"a file's operation", !machine.CloseHandle(idle)},
        {"another level of description", !start(idle, 3)},
        {"no dialogue's answer", !start(nullptr), false},
        {"no dialogue's answer, closed", !machine.ClosePrinter(nullptr), false},
    };
    const std::size_t first = machine.calls().size() - std::size(rows);
    for (std::size_t at = 0; at < std::size(rows); ++at) {
        EXPECT_TRUE(rows[at].fails) << rows[at].step;
        EXPECT_EQ(machine.calls()[first + at].is_misuse, rows[at].is_misuse) << rows[at].step;
    }
    EXPECT_TRUE(machine.EndDocPrinter(in_page)) << "a document ends with its page";
    EXPECT_TRUE(start(in_page) && machine.StartPagePrinter(in_page));
}

TEST_F(ScriptedSpooler, LeadsNamesIntoTheNetwork) {
    machine.redirect(L"LPT1", L"\\\\hall\\plot");
    wchar_t remote[13] = L"";
    DWORD size = 11;
    EXPECT_EQ(machine.WNetGetConnectionW(L"LPT1:", remote, &size), 234U);
    EXPECT_EQ(size, 12U);
    EXPECT_STREQ(remote, L"");
    EXPECT_EQ(machine.WNetGetConnectionW(L"lpt1", remote, &size), DWORD{NO_ERROR});
    EXPECT_STREQ(remote, L"\\\\hall\\plot");
    EXPECT_NE(open(remote), INVALID_HANDLE_VALUE);
    EXPECT_EQ(machine.WNetGetConnectionW(L"LPT2", remote, &size), DWORD{ERROR_BAD_DEVICE});
    machine.fail("WNetGetConnectionW");
    EXPECT_EQ(machine.WNetGetConnectionW(L"LPT1", remote, &size), DWORD{ERROR_BAD_DEVICE});
    EXPECT_EQ(machine.count_misuses(), 0);
}
