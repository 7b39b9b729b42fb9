#include <cstring>

#include "tests/support/allocations.h"
#include "tests/support/plot_job.h"

namespace {

using support::To_File;

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

}  // namespace
