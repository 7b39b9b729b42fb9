#include <gtest/gtest.h>

#include <string>

#include "tests/support/allocations.h"
#include "tests/support/expect_exception.h"
#include "toolkit/core/error_handler.h"
#include "toolkit/core/frame.h"

namespace {

using support::thrown_by;

// As long as real names are.
constexpr const wchar_t* thrower = L"PX_Std_Media_Validator::validate_actual_printable_bounds";

void through_frames(int frames) {
    if (frames == 0)
        throw MVNK_Error(1103, thrower, L"detail", L"tag");
    px_frame(frames == 40 ? L"outermost" : L"frame", [&] { through_frames(frames - 1); });
}

TEST(Exception, KeepsItsClassUntilAFrameIsPassed) {
    const auto bare = thrown_by([] { through_frames(0); });
    ASSERT_TRUE(bare);
    EXPECT_TRUE(bare->is<MVNK_Error>());
    EXPECT_TRUE(bare->frames.empty());

    const auto framed = thrown_by([] { through_frames(1); });
    ASSERT_TRUE(framed);
    EXPECT_TRUE(framed->is<PX_Exception>());
    EXPECT_EQ(framed->code, 1103U);
    EXPECT_EQ(framed->function, thrower);
    EXPECT_EQ(framed->detail, L"detail");
    EXPECT_EQ(framed->file, L"tag");
    EXPECT_EQ(framed->frames, std::vector<std::wstring>{L"frame"});
}

TEST(Exception, KeepsTheFirst32Frames) {
    const auto thrown = thrown_by([] { through_frames(40); });
    ASSERT_TRUE(thrown);
    EXPECT_EQ(thrown->frames, std::vector<std::wstring>(32, L"frame"));
}

TEST(Exception, AFrameCanKeepAMemoryException) {
    const auto kept = thrown_by([] {
        px_memory_frame(L"setter", [] { throw MVNK_Memory_Exception(1101, L"thrower", L"new_one"); });
    });
    ASSERT_TRUE(kept);
    EXPECT_TRUE(kept->is<MVNK_Memory_Exception>());
    EXPECT_EQ(kept->frames, std::vector<std::wstring>{L"setter"});
    const auto lost = thrown_by([] { px_memory_frame(L"setter", [] { throw PX_Severe_Error(1104); }); });
    ASSERT_TRUE(lost);
    EXPECT_TRUE(lost->is<PX_Exception>());
}

TEST(Exception, HasTheHandlerKindOfItsClass) {
    EXPECT_EQ(PX_Exception(1).get_handler(), PX_Exception::Handler_Error);
    EXPECT_EQ(MVNK_Warning(1).get_handler(), PX_Exception::Handler_Warning);
    EXPECT_EQ(MVNK_Error(1).get_handler(), PX_Exception::Handler_Error);
    EXPECT_EQ(MVNK_IO_Open_Error(1).get_handler(), PX_Exception::Handler::Handler_ARI);
    EXPECT_EQ(MVNK_IO_Comm_Error(1).get_handler(), PX_Exception::Handler_ARI);
    EXPECT_EQ(MVNK_Memory_Exception(1).get_handler(), PX_Exception::Handler_Severe);
    EXPECT_EQ(PX_Exception(MVNK_Memory_Exception(1)).get_handler(), PX_Exception::Handler_Error);
}

TEST(Exception, TellsItsFunctionInBytesAndCutsItsDetail) {
    MVNK_Error wide(1, L"f\u00FC\u20AC", std::wstring(300, L'd').c_str());
    EXPECT_STREQ(wide.what(), "f\xC3\xBC\xE2\x82\xAC") << "more than two bytes a character";
    EXPECT_EQ(std::wstring(wide.m_detail), std::wstring(259, L'd'));
    const MVNK_Error bare(1);
    EXPECT_EQ(bare.what(), nullptr);
    EXPECT_STREQ(bare.m_detail, L"");

    MVNK_Error assigned(2, L"other", nullptr, L"other tag", 3);
    wide.push_frame(L"frame");
    assigned = wide;
    EXPECT_EQ(assigned.m_code, 1U);
    EXPECT_EQ(assigned.m_resource_module, wide.m_resource_module);
    EXPECT_EQ(assigned.m_function, wide.m_function);
    EXPECT_STREQ(assigned.m_detail, wide.m_detail);
    EXPECT_EQ(assigned.m_file, nullptr);
    ASSERT_EQ(assigned.m_stack_depth, 1);
    EXPECT_STREQ(assigned.m_stack[0], L"frame");
    EXPECT_STREQ(assigned.what(), wide.what());
    EXPECT_NE(static_cast<const void*>(assigned.what()), wide.what()) << "each owns its bytes";
}

TEST(Exception, CrossesFramesAtTheCostOfItsAnsiNames) {
    thrown_by([] { through_frames(1); });  // the text module is loaded once
    const auto before = support::allocation_count();
    try {
        through_frames(40);
    } catch (const PX_Exception&) {
    }
    // One for the exception and one for each copy that a frame makes.
    EXPECT_EQ(support::allocation_count() - before, 41U);
}

}  // namespace
