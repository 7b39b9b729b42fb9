#include <cstring>
#include <vector>

#include "tests/support/plot_job.h"

namespace {

using support::add_hall;
using support::Plot_Job;

constexpr auto serial = PX_IO_Type::Serial;
constexpr auto parallel = PX_IO_Type::Parallel;
constexpr auto network = PX_IO_Type::Network;

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

}  // namespace
