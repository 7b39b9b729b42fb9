#include "examples/common/text.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace {

TEST(Text, TakesWhatIsNoUtf8ForLatin1) {
    EXPECT_EQ(text::from_utf8("a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x96\xA8"), L"aé€\U0001F5A8");
    for (const std::string_view bytes :
         {"\xE9", "\xE9t", "\xC3", "\xC0\x80", "\xED\xA0\x80", "\xF4\x90\x80\x80"}) {
        const std::wstring wide = text::from_utf8(bytes);
        ASSERT_EQ(wide.size(), bytes.size());
        for (std::size_t at = 0; at < bytes.size(); ++at)
            EXPECT_EQ(wide[at], static_cast<wchar_t>(static_cast<unsigned char>(bytes[at])));
    }
    EXPECT_EQ(text::on_one_line("\u0085a\x7F\u009F b\u2028\u2029\u00A0c\xE9\n"), "a b \u00A0c\u00E9");
    const std::wstring all_lengths = L"a\u00E9\u20AC\U0001F5A8";
    EXPECT_EQ(text::from_utf8(text::to_utf8(all_lengths)), all_lengths);
}

}  // namespace
