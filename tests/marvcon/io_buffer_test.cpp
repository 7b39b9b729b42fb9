#include <string>

#include "tests/support/fields.h"
#include "tests/support/test_handler.h"
#include "toolkit/marvcon/marvcon.h"

namespace {

class IO_Buffer : public testing::Test {
protected:
    bool put(PX_IO_Buffer& buffer, long count) {
        const std::string bytes(static_cast<std::size_t>(count), 'b');
        return buffer.write_buffer(bytes.data(), count);
    }

    PX_Smart_Pointer<PX_Error_Handler> handler = new support::Test_Handler;
};

TEST_F(IO_Buffer, HasALengthInItsRange) {
    EXPECT_EQ(PX_IO_Buffer(handler).get_buffer_length(), 4096);
    const struct {
        long asked;
        long given;
    } lengths[] = {{-5, 4096}, {0, 4096}, {1, 1}, {4096, 4096}, {8191, 8191}, {8192, 8192}, {8193, 8192}};
    for (const auto& length : lengths) {
        EXPECT_EQ(PX_IO_Buffer(handler, length.asked).get_buffer_length(), length.given);
        PX_IO_Buffer buffer(handler, 17);
        EXPECT_TRUE(buffer.set_buffer_length(length.asked));
        EXPECT_EQ(buffer.get_buffer_length(), length.given);
        EXPECT_TRUE(put(buffer, length.given));
        EXPECT_FALSE(put(buffer, 1));
    }
}

TEST_F(IO_Buffer, HasTheRoomOfSentBytesAgainOnlyWhenCleared) {
    PX_IO_Buffer buffer(handler, 10);
    EXPECT_TRUE(put(buffer, 7));
    EXPECT_FALSE(put(buffer, 4)) << "all or nothing";
    EXPECT_EQ(buffer.get_buffer_fill_size(), 7);
    buffer.advance_unsent_position(5);
    EXPECT_EQ(buffer.get_buffer_fill_size(), 2);
    EXPECT_FALSE(put(buffer, 4));
    EXPECT_TRUE(put(buffer, 3));
    EXPECT_EQ(buffer.get_buffer_fill_size(), 5);
    EXPECT_TRUE(put(buffer, 0));

    EXPECT_FALSE(buffer.set_buffer_length(10)) << "also for the present length";
    EXPECT_FALSE(buffer.set_buffer_length(20));
    EXPECT_EQ(buffer.get_buffer_length(), 10);
    EXPECT_EQ(buffer.get_buffer_fill_size(), 5);
    buffer.clear_buffer();
    EXPECT_EQ(buffer.get_buffer_fill_size(), 0);
    EXPECT_TRUE(put(buffer, 10));

    buffer.advance_unsent_position(10);
    EXPECT_TRUE(buffer.set_buffer_length(10));
    EXPECT_FALSE(put(buffer, 1)) << "the present length clears nothing";
    for (const long length : {9000L, 9001L}) {
        EXPECT_TRUE(buffer.set_buffer_length(length)) << "one that is not in the range is always a new one";
        EXPECT_TRUE(put(buffer, 8192));
        buffer.advance_unsent_position(8192);
    }
}

TEST_F(IO_Buffer, NeedsAHandlerAndMemory) {
    constexpr const wchar_t* constructor = L"PX_IO_Buffer::PX_IO_Buffer";
    constexpr const wchar_t* file = L"$Workfile: std_plotter_io $ $Revision: #1 $";
    const auto nobody = support::thrown_by([] { PX_IO_Buffer(nullptr, 5); });
    ASSERT_TRUE(nobody && nobody->is<MVNK_Error>());
    EXPECT_EQ(nobody->code, 1103U);
    EXPECT_EQ(nobody->function, constructor);
    EXPECT_EQ(nobody->file, file);

    PX_IO_Buffer buffer(handler, 10);
    const auto expect_no_memory = [&](const auto& call, const wchar_t* function) {
        std::optional<support::Thrown> thrown;
        {
            const support::Out_Of_Memory none;
            thrown = support::thrown_by(call);
        }
        ASSERT_TRUE(thrown && thrown->is<MVNK_Memory_Exception>());
        EXPECT_EQ(thrown->code, 1101U);
        EXPECT_EQ(thrown->function, function);
        EXPECT_EQ(thrown->detail, L"m_chars");
    };
    expect_no_memory([&] { PX_IO_Buffer other(handler, 10); }, constructor);
    expect_no_memory([&] { buffer.set_buffer_length(11); }, L"PX_IO_Buffer::set_buffer_length");
    EXPECT_EQ(buffer.get_buffer_fill_size(), 0);
    EXPECT_FALSE(put(buffer, 1)) << "nothing is left to write into";
}

TEST(WarnedPort, EmptiesItsNameForNull) {
    PX_Warned_Port port;
    port.set_canonical_name(L"LPT1");
    EXPECT_STREQ(port.get_canonical_name(), L"LPT1");
    const auto thrown = support::thrown_by([&] { port.set_canonical_name(nullptr); });
    ASSERT_TRUE(thrown && thrown->is<MVNK_Error>());
    EXPECT_EQ(thrown->code, 1103U);
    EXPECT_EQ(thrown->function, L"PX_Warned_Port::set_canonical_name");
    EXPECT_STREQ(port.get_canonical_name(), L"");
}

}  // namespace
