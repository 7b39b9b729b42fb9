#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "tests/support/allocations.h"
#include "toolkit/platform/scripted/scripted_platform.h"

namespace {
using Words = std::vector<std::wstring>;

class ScriptedPorts : public testing::Test {
protected:
    ScriptedPorts() {
        machine.add_port(L"COM1:");
        machine.add_port(L"LPT1:");
    }

    HANDLE open(const wchar_t* name, DWORD disposition = OPEN_EXISTING,
                DWORD access = GENERIC_READ | GENERIC_WRITE) {
        return machine.CreateFileW(name, access, 0, nullptr, disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
    }

    // What came of it, and how many bytes were taken.
    std::string write(HANDLE file, const std::string& bytes) {
        DWORD written = 999;
        const BOOL taken =
            machine.WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
        return (taken ? "took " : "failed ") + std::to_string(written);
    }

    std::string read(HANDLE file, DWORD size) {
        char bytes[16];
        DWORD count = 999;
        if (!machine.ReadFile(file, bytes, size, &count, nullptr))
            return "failed " + std::to_string(count);
        return {bytes, count};
    }

    PX_Scripted_Platform machine;
};
}  // namespace

TEST_F(ScriptedPorts, OpensAPortOnceAndAFileUnderAnyPath) {
    const struct {
        const char* proves;
        const wchar_t* name;
        DWORD disposition;
        bool opens;
    } rows[] = {
        {"no port", L"COM2", OPEN_EXISTING, false},
        {"a beginning of the name", L"COM", OPEN_EXISTING, false},
        {"no colon", L"COM1", OPEN_EXISTING, true},
        {"open under the other spelling", L"com1:", OPEN_EXISTING, false},
        {"the device, not a file", L"COM1", CREATE_ALWAYS, false},
        {"a colon", L"LPT1:", OPEN_EXISTING, true},
        {"a path", L"C:\\plot.plt", CREATE_ALWAYS, true},
        {"an open file", L"C:\\plot.plt", CREATE_ALWAYS, false},
        {"no path", L"", CREATE_ALWAYS, false},
    };
    std::vector<HANDLE> handles;
    for (const auto& row : rows) {
        const HANDLE handle = open(row.name, row.disposition);
        EXPECT_EQ(handle != INVALID_HANDLE_VALUE, row.opens) << row.proves;
        if (row.opens)
            handles.push_back(handle);
    }
    EXPECT_EQ(machine.open_files(), (Words{L"COM1", L"LPT1:", L"C:\\plot.plt"}));
    EXPECT_EQ(machine.calls_of("CreateFileW")[2].arguments,
              (Words{L"COM1", L"3221225472", L"0", L"3", L"128"}));

    EXPECT_EQ(write(handles[0], "before"), "took 6");
    EXPECT_EQ(write(handles[2], "before"), "took 6");
    for (const HANDLE handle : handles)
        EXPECT_TRUE(machine.CloseHandle(handle));
    EXPECT_TRUE(machine.open_files().empty());
    EXPECT_NE(open(L"COM1"), handles[0]);
    open(L"C:\\plot.plt", CREATE_ALWAYS);
    EXPECT_EQ(machine.bytes_written_to(L"COM1"), "before");
    EXPECT_EQ(machine.bytes_written_to(L"C:\\plot.plt"), "") << "created anew";
    EXPECT_EQ(machine.count_misuses(), 0);
}

TEST_F(ScriptedPorts, TakesPortionsInTheOrderOfThePlan) {
    const HANDLE port = open(L"COM1");
    machine.take_at_most(L"COM1:", {2, 0, 100});
    machine.fail_having_taken(L"COM1", 1);
    machine.take_portions(L"COM1", [](DWORD offered) { return offered / 2; });
    machine.fail("WriteFile", 1, 1);
    EXPECT_EQ(write(port, "abc"), "took 2");
    EXPECT_EQ(write(port, "xx"), "failed 0") << "an ordered fault";
    EXPECT_EQ(write(port, "c"), "took 0");
    EXPECT_EQ(write(port, "c"), "took 1");
    EXPECT_EQ(write(port, "de"), "failed 1");
    EXPECT_EQ(write(port, "efg"), "took 1");
    machine.take_portions(L"COM1", [](DWORD) { return 1000U; });
    EXPECT_EQ(write(port, "fg"), "took 2") << "never more than there is";
    machine.take_portions(L"COM1", nullptr);
    EXPECT_EQ(write(port, std::string("\0h", 2)), "took 2");
    EXPECT_EQ(machine.bytes_written_to(L"com1"), std::string("abcdefg\0h", 9));
    EXPECT_EQ(machine.count_bytes_written_to(L"COM1"), 9U);
    EXPECT_EQ(machine.bytes_written_to(L"LPT1"), "");
    EXPECT_EQ(machine.calls_of("WriteFile")[0].arguments, (Words{L"COM1", L"3"}));
}

TEST_F(ScriptedPorts, ReadsOneArrivalAtATime) {
    machine.queue_input(L"COM1", "abc");
    machine.queue_input(L"COM1", "de");
    const HANDLE port = open(L"COM1");
    machine.fail("ReadFile", 1, 1);
    EXPECT_EQ(read(port, 2), "ab");
    EXPECT_EQ(read(port, 2), "failed 0");
    EXPECT_EQ(read(port, 16), "c");
    EXPECT_EQ(read(port, 16), "de");
    EXPECT_EQ(read(port, 16), "") << "a time-out";

    machine.queue_input(L"COM1", "late");
    EXPECT_TRUE(machine.PurgeComm(port, PURGE_TXABORT | PURGE_TXCLEAR));
    EXPECT_EQ(read(port, 1), "l");
    EXPECT_TRUE(machine.PurgeComm(port, PURGE_RXCLEAR));
    EXPECT_EQ(read(port, 16), "");
    EXPECT_EQ(machine.purges_of(L"COM1"), (std::vector<DWORD>{5, 8}));
}

TEST_F(ScriptedPorts, GivesEachKindItsOwnOperations) {
    machine.add_printer({.name = L"Office"});
    HANDLE printer = nullptr;
    wchar_t office[] = L"Office";
    ASSERT_TRUE(machine.OpenPrinterW(office, &printer, nullptr));
    const struct {
        const char* kind;
        HANDLE handle;
        int line, port;
    } rows[] = {{"serial", open(L"COM1"), 4, 4},
                {"parallel", open(L"LPT1"), 0, 4},
                {"file", open(L"plot.plt", CREATE_ALWAYS), 0, 0},
                {"printer", printer, 0, 0}};
    for (const auto& [kind, handle, line, port] : rows) {
        DCB state = {};
        COMMTIMEOUTS timeouts = {};
        DWORD events = 0;
        EXPECT_EQ(machine.GetCommState(handle, &state) + machine.SetCommState(handle, &state) +
                      machine.GetCommMask(handle, &events) + machine.SetCommMask(handle, events),
                  line)
            << kind;
        EXPECT_EQ(machine.GetCommTimeouts(handle, &timeouts) + machine.SetCommTimeouts(handle, &timeouts) +
                      machine.PurgeComm(handle, 5) + machine.ClearCommError(handle, &events, nullptr),
                  port)
            << kind;
    }
    EXPECT_EQ(machine.count_misuses(), 0);
}

TEST_F(ScriptedPorts, KeepsSettingsAndRecordsThemInWords) {
    machine.preset_timeouts(L"COM1", {1, 2, 3, 4, 5});
    machine.preset_event_mask(L"COM1", EV_BREAK);
    const HANDLE port = open(L"COM1");
    DCB state = {};
    COMMTIMEOUTS timeouts = {};
    DWORD events = 0;
    ASSERT_TRUE(machine.GetCommState(port, &state));
    ASSERT_TRUE(machine.GetCommTimeouts(port, &timeouts));
    ASSERT_TRUE(machine.GetCommMask(port, &events));
    EXPECT_EQ(events, DWORD{EV_BREAK});
    EXPECT_EQ(timeouts.WriteTotalTimeoutConstant, 5U);
    EXPECT_EQ(machine.SetCommState(port, &state), 1);
    EXPECT_EQ(machine.calls().back().arguments, (Words{L"COM1", L"1200 7E1"}));

    state.BaudRate = 9600;
    state.ByteSize = 8;
    state.Parity = SPACEPARITY;
    state.StopBits = ONE5STOPBITS;
    state.fOutxCtsFlow = state.fInX = 1;
    state.fRtsControl = RTS_CONTROL_TOGGLE;
    EXPECT_TRUE(machine.SetCommState(port, &state));
    EXPECT_EQ(machine.calls().back().arguments[1], L"9600 8S1.5 cts xon-in rts 3");
    timeouts.ReadTotalTimeoutConstant = 3600000;
    EXPECT_TRUE(machine.SetCommTimeouts(port, &timeouts));
    EXPECT_EQ(machine.calls().back().arguments[1], L"read 1 2 3600000 write 4 5");
    EXPECT_TRUE(machine.SetCommMask(port, EV_CTS));
    machine.fail("SetCommMask");
    EXPECT_FALSE(machine.SetCommMask(port, 0));

    EXPECT_EQ(machine.comm_state_of(L"COM1").BaudRate, 9600U);
    EXPECT_EQ(machine.event_mask_of(L"COM1"), DWORD{EV_CTS});
    EXPECT_THROW(machine.event_mask_of(L"COM2"), std::out_of_range);
}

TEST_F(ScriptedPorts, ReportsLineErrorsOneAfterTheOther) {
    machine.report_line_errors(L"LPT1", CE_FRAME);
    machine.fail_clearing_with_errors(L"LPT1", CE_PTO);
    machine.fail("ClearCommError");
    const HANDLE port = open(L"LPT1");
    DWORD errors = 77;
    const auto clear = [&] { return machine.ClearCommError(port, &errors, nullptr) != 0; };
    EXPECT_TRUE(!clear() && errors == 77) << "an ordered fault gives no mask";
    EXPECT_TRUE(clear() && errors == CE_FRAME) << "errors";
    EXPECT_TRUE(!clear() && errors == CE_PTO) << "errors and a failure";
    EXPECT_TRUE(clear() && errors == 0) << "the line is clear";
}

TEST_F(ScriptedPorts, CatchesHandlesThatAreNotOpen) {
    const HANDLE closed = open(L"COM1");
    ASSERT_TRUE(machine.CloseHandle(closed));
    int misuses = 0;
    for (const HANDLE handle : {closed, INVALID_HANDLE_VALUE, static_cast<HANDLE>(this), HANDLE{}}) {
        EXPECT_EQ(write(handle, "x"), "failed 0");
        EXPECT_FALSE(machine.SetCommMask(handle, 0));
        EXPECT_FALSE(machine.CloseHandle(handle));
        EXPECT_EQ(machine.count_misuses(), misuses += 3);
    }
    EXPECT_EQ(machine.calls_of("CloseHandle")[0].arguments, Words{L"COM1"});
    EXPECT_EQ(machine.calls_of("CloseHandle")[2].arguments, Words{L"invalid"});

    machine.forget_calls();
    EXPECT_EQ(write(open(L"LPT1", OPEN_EXISTING, GENERIC_READ), "x"), "failed 0") << "opened to read";
    EXPECT_EQ(machine.count_misuses(), 1);
    EXPECT_EQ(machine.bytes_written_to(L"LPT1"), "");
}

TEST_F(ScriptedPorts, WritesWithoutAllocatingWhenNothingIsKept) {
    const HANDLE port = open(L"COM1");
    machine.record_calls(false);
    machine.keep_bytes(false);
    machine.fail("WriteFile", 1, 99);
    machine.take_at_most(L"COM1", {7});
    const std::size_t recorded = machine.calls().size();
    const std::size_t allocations = support::allocation_count();
    DWORD written = 0;
    int failures = 0;
    for (int count = 0; count < 1000; ++count)
        failures += !machine.WriteFile(port, "0123456789", 10, &written, nullptr);
    EXPECT_EQ(support::allocation_count(), allocations);
    EXPECT_EQ(failures, 1);
    EXPECT_EQ(machine.count_bytes_written_to(L"COM1"), 9987U);
    EXPECT_EQ(machine.bytes_written_to(L"COM1"), "");
    EXPECT_FALSE(machine.CloseHandle(nullptr));
    EXPECT_EQ(machine.count_misuses(), 1);
    EXPECT_EQ(machine.calls().size(), recorded);
}
