#include <gtest/gtest.h>

#include <cmath>

#include "tests/support/custom.h"
#include "tests/support/fields.h"

namespace {

using namespace support;

TEST(Custom_Data, ComparesWithItsLike) {
    const struct {
        Data left, right;
        std::string holds;
        const char* proves;
    } cases[] = {
        {of(0x180000000L), of(1L), "<", "32 bits and a sign"},
        {of(double{NAN}), of(double{NAN}), "", "not a number"},
        {of(false), of(true), "<", "false lies below true"},
        {of(true), of(true), "=", "and true not above itself"},
        {of(L"b"), of(L"\x0161"), ">", "the low byte decides"},
        {of(L"\x0161"), of(L"\x0261"), "<", "then the high byte"},
        {of(L"ab"), of(L"abc"), "", "over the left side only"},
        {of(L"abc"), of(L"ab"), ">", "behind the right side there are zeros"},
        {of(L"\U0001F600"), of(L"\U0001F601"), "<", "then the second of the pair"},
        {of(L"\U0010FFFF"), of(L"\xDBFF\xDFFE"), ">", "the last pair, DBFF DFFF"},
        {raw({1, 2}), raw({1, 2, 3}), "=", "a beginning equals the whole"},
        {raw({1, 2, 3}), raw({1, 2}), ">", "and not the other way round"},
        {raw({1, 0}), raw({1}), "", "zeros behind the end make nothing equal"},
        {raw({1, 0x80}), raw({1, 1}), ">", "bytes have no sign"},
        {raw({1}), of(L"\x1"), "", "another class"},
    };
    for (const auto& row : cases) {
        std::string holds(*row.left == *row.right ? "=" : "");
        holds += *row.left < *row.right ? "<" : "";
        holds += *row.left > *row.right ? ">" : "";
        EXPECT_EQ(holds, row.holds) << row.proves;
    }
}

TEST(Custom_Data, IsAssignedFromItsLikeOnly) {
    const std::pair<Data, Data> classes[] = {{new PX_Std_String_Custom_Data, of(L"text")},
                                             {new PX_Std_Long_Custom_Data, of(-7L)},
                                             {new PX_Std_Double_Custom_Data, of(1.5)},
                                             {new PX_Std_Boolean_Custom_Data, of(true)},
                                             {new PX_Std_Raw_Custom_Data, raw({1, 0, 2})}};
    const wchar_t* const starts[] = {L"0 ", L"long 0", L"0.000000", L"false", L"none"};
    for (int type = 0; type < 5; ++type) {
        const auto& [value, source] = classes[type];
        for (const auto& other : classes) {
            if (&other != &classes[type])
                *value = *other.second;
        }
        EXPECT_EQ(show(value), starts[type]);
        EXPECT_EQ(&(*value = *source), value.get());
        *value = *value;
        EXPECT_EQ(show(value), show(source));
    }
    // By what the compiler knows of the sides.
    PX_Std_String_Custom_Data text(L"a"), other(L"b"), copy(&text);
    EXPECT_TRUE(copy == text && text < other && !(*classes[1].first == text));
    text = other;
    other = L"c";
    EXPECT_EQ(std::wstring(text.data()) + other.data() + copy.data(), L"bca");
}

TEST(Raw_Custom_Data, OwnsItsBytes) {
    PX_Std_Raw_Custom_Data value(4, reinterpret_cast<const unsigned char*>("abcd")), copy;
    value.set_data(3, value.data() + 1);
    EXPECT_TRUE(value.size() == 3 && std::string(value.data(), value.data() + 3) == "bcd");
    copy = value;
    EXPECT_TRUE(copy == value && copy.data() != value.data());
    for (const auto& [size, bytes] : {std::pair{0L, value.data()}, {-1, value.data()}, {9, nullptr}}) {
        copy.set_data(size, bytes);
        EXPECT_TRUE(copy.size() == 0 && !copy.data()) << size;
    }
    const auto fail = [&] {
        const Out_Of_Memory none;
        copy.set_data(3, value.data());
    };
    expect_thrown<MVNK_Memory_Exception>(fail, 1101, L"PX_Std_Raw_Custom_Data::set_data", L"m_data_ptr");
    EXPECT_TRUE(copy.size() == 3 && !copy.data());
    EXPECT_FALSE(copy == value || value == copy || copy > value) << "without its bytes it equals nothing";
}

}  // namespace
