#include <gtest/gtest.h>

#include <string>

#include "tests/support/allocations.h"
#include "tests/support/expect_exception.h"
#include "toolkit/core/error_handler.h"
#include "toolkit/core/frame.h"
#include "toolkit/platform/scripted/scripted_platform.h"

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
    const auto expect = [](const std::type_info& type, const std::vector<std::wstring>& frames, auto call) {
        const auto thrown = thrown_by(call);
        ASSERT_TRUE(thrown);
        EXPECT_EQ(*thrown->type, type);
        EXPECT_EQ(thrown->code, 1103U);
        EXPECT_EQ(thrown->function, thrower);
        EXPECT_EQ(thrown->detail, L"detail");
        EXPECT_EQ(thrown->file, L"tag");
        EXPECT_EQ(thrown->frames, frames);
    };
    expect(typeid(MVNK_Error), {}, [] { through_frames(0); });
    expect(typeid(PX_Exception), {L"frame"}, [] { through_frames(1); });
    expect(typeid(PX_Exception), std::vector<std::wstring>(32, L"frame"), [] { through_frames(40); });
    expect(typeid(PX_Exception), {L"setter"}, [] { px_memory_frame(L"setter", [] { through_frames(0); }); });
    expect(typeid(MVNK_Memory_Exception), {L"setter"}, [] {
        px_memory_frame(L"setter", [] { throw MVNK_Memory_Exception(1103, thrower, L"detail", L"tag"); });
    });
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
    PX_Scripted_Platform machine;
    const PX_Use_Platform use(machine);
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
