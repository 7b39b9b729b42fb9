#include <gtest/gtest.h>

#include <cstring>
#include <memory>

#include "tests/support/fields.h"
#include "toolkit/marvcon/marvcon.h"

namespace {

TEST(Font_Usage, CountsEachCodePointOnceUpToTheLimits) {
    PX_Font_Usage_Data usage;
    usage.clear_all();
    EXPECT_TRUE(usage.get_single_byte() && usage.how_many() == 0 && !usage.codepoint_used(65));
    for (const bool single_byte : {true, false}) {
        const int last = single_byte ? 8703 : 65535;
        usage.set_single_byte(single_byte);
        for (const int codepoint : {0, 65, 65, 71, 72, last}) {
            usage.set_bit(codepoint);
            EXPECT_TRUE(usage.codepoint_used(codepoint) && !usage.codepoint_used(last - 1)) << codepoint;
        }
        EXPECT_EQ(usage.how_many(), 5);
        usage.set_single_byte(single_byte);
        EXPECT_EQ(usage.how_many(), 0) << "a new set, although the flag has not changed";
        usage.set_bit(last);
        usage.clear_all();
        EXPECT_EQ(usage.how_many(), 0);
        usage.set_bit(last);
    }
    EXPECT_FALSE(support::failures_of([&] {
                     EXPECT_TRUE(!usage.get_single_byte() && usage.codepoint_used(65535)) << "it stays";
                     usage.set_single_byte(true);
                 }).empty());
}

TEST(Font_Usage, StaysInsideItsMemory) {
    PX_Font_Usage_Data usage;
    EXPECT_DEBUG_DEATH(usage.set_logfont(nullptr), "");
    for (const int last : {-1, 8703, 65535}) {
        if (last > 0)
            usage.set_single_byte(last == 8703);
        for (const int outside : {-65536, -1, last + 1, 65536}) {
            usage.set_bit(outside);
            EXPECT_FALSE(usage.codepoint_used(outside)) << outside;
        }
        EXPECT_EQ(usage.how_many(), 0);
    }
}

TEST(Font_Usage, ClonesAreDeepAndReportNoMemory) {
    LOGFONTW logfont;
    std::memset(&logfont, 0x5A, sizeof logfont);
    PX_Font_Usage_Data usage;
    EXPECT_EQ(usage.get_action(), 2);
    usage.set_canonical_name(L"name");
    usage.set_localized_name(L"localized");
    usage.set_canonical_family_name(L"family");
    usage.set_temp_font_filename(L"file");
    usage.set_single_byte(false);
    usage.set_bit(65535);
    usage.set_action(Capture_Action{7});
    usage.set_logfont(&logfont);
    const LOGFONTW* const held = usage.get_logfont();
    logfont.lfFaceName[31] = 0;
    usage.set_logfont(&logfont);
    EXPECT_EQ(usage.get_logfont(), held) << "renewed in its place";
    const std::unique_ptr<PX_Font_Usage_Data> clone(usage.clone());
    const auto texts = std::wstring(clone->get_canonical_name()) + L" " + clone->get_localized_name() + L" " +
                       clone->get_canonical_family_name() + L" " + clone->get_temp_font_filename().c_str();
    EXPECT_EQ(texts, L"name localized family file");
    EXPECT_TRUE(clone->get_action() == 7 && clone->codepoint_used(65535) && clone->how_many() == 1);
    ASSERT_TRUE(clone->get_logfont() && clone->get_logfont() != usage.get_logfont());
    EXPECT_EQ(std::memcmp(clone->get_logfont(), &logfont, 92), 0);
    clone->clear_all();
    EXPECT_TRUE(usage.codepoint_used(65535));
    support::expect_clone_reports_no_memory(usage, L"PX_Font_Usage_Data::clone", L"$Workfile: FONTEM $");
    const std::unique_ptr<PX_Font_Usage_Data> of_empty(PX_Font_Usage_Data().clone());
    of_empty->set_bit(8703);
    EXPECT_TRUE(of_empty->how_many() == 1 && !of_empty->get_logfont()) << "a clone has a set in any case";
    const std::unique_ptr<PX_Font_Usage_Data> of_single(of_empty->clone());
    EXPECT_TRUE(of_single->codepoint_used(8703) && of_single->how_many() == 1);
}

}  // namespace
