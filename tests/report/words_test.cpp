#include <gtest/gtest.h>

#include <string>

#include "toolkit/report.h"

namespace {

TEST(Report_Words, ShowBytesReadably) {
    EXPECT_EQ(px_readable_bytes(""), "(empty)");
    EXPECT_EQ(px_readable_bytes(std::string("\x1B~ \x7F\0\xFF", 6)), R"("\x1b~ \x7f\x00\xff")");
    EXPECT_EQ(px_readable_bytes(std::string(40, 'a')), '"' + std::string(40, 'a') + '"');
    EXPECT_EQ(px_readable_bytes(std::string(33, 'a') + "12345678"),
              '"' + std::string(26, 'a') + R"(" ... "12345678" (41 bytes))");
}

TEST(Report_Words, StandOnOneLine) {
    EXPECT_EQ(px_on_one_line(L" \u0085a\x7F\u009F b\u2028\u2029\u00A0c\u00E9\n"), "a b \u00A0c\u00E9");
    EXPECT_EQ(px_quoted(nullptr), "(none)");
    EXPECT_EQ(px_quoted(L""), "(none)");
    EXPECT_EQ(px_quoted(L"a\nb"), "\"a b\"");
}

TEST(Report_Words, ComeBack) {
    for (const char* const word : {"#0a80ff", "#00000000"}) {
        const auto color = px_color_of(word);
        EXPECT_TRUE(color && px_word_of(&*color) == word) << word;
    }
    EXPECT_EQ(px_word_of(static_cast<const PX_RGB32*>(nullptr)), "#000000");
    for (const char* const word : {"", "#", "0a80ff", "#0a80f", "#0a80fg", "#0a80ff8", "#+a80ff"})
        EXPECT_FALSE(px_color_of(word)) << word;
    EXPECT_EQ(px_io_type_of("serial"), PX_IO_Type::Serial);
    EXPECT_FALSE(px_io_type_of("wire"));
    EXPECT_EQ(px_handshake_words(0), "none");
    EXPECT_EQ(px_handshake_words(0x1006), "XON/XOFF out, CTS out, bits 4096");
    EXPECT_EQ(px_domain_words(0), "none");
    EXPECT_EQ(px_domain_words(0x102), "media; bits 256");
    EXPECT_EQ(px_domain_words(PX_Domain_Mask::Custom | PX_Domain_Mask::IO), "output; custom data");
}

}  // namespace
