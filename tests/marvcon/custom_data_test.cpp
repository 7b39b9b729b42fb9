#include <gtest/gtest.h>

#include <cmath>

#include "tests/support/custom.h"
#include "tests/support/fields.h"

namespace {

using namespace support;

// A driver's bytes, which the standard class knows nothing of.
struct Elsewhere : PX_Std_Raw_Custom_Data {
    explicit Elsewhere(std::basic_string<unsigned char> from) : bytes(std::move(from)) {}
    const unsigned char* data() const override { return bytes.data(); }
    long size() const override { return static_cast<long>(bytes.size()); }
    std::basic_string<unsigned char> bytes;
};

TEST(Custom_Data, ComparesWithItsLike) {
    const struct {
        Data left, right;
        std::string holds;
        const char* proves;
    } cases[] = {
        {of(static_cast<long>(0x180000000)), of(1L), "<", "32 bits and a sign"},
        {of(double{NAN}), of(double{NAN}), "", "not a number"},
        {of(false), of(true), "<", "false lies below true"},
        {of(true), of(true), "=", "and true not above itself"},
        {of(L"b"), of(L"\x0161"), ">", "the low byte decides"},
        {of(L"\x0161"), of(L"\x0261"), "<", "then the high byte"},
        {of(L"ab"), of(L"abc"), "", "over the left side only"},
        {of(L"abc"), of(L"ab"), ">", "behind the right side there are zeros"},
        {of(L"\U0001F600"), of(L"\U0001F601"), "<", "then the second of the pair"},
        {of(L"a\U0010FFFF"), of(L"a\xDBFF\xDFFF"), "=", "a pair is its character"},
        {raw({1, 2}), raw({1, 2, 3}), "=", "a beginning equals the whole"},
        {raw({1, 2, 3}), raw({1, 2}), ">", "and not the other way round"},
        {raw({1, 0}), raw({1}), "", "zeros behind the end make nothing equal"},
        {raw({1, 0x80}), raw({1, 1}), ">", "bytes have no sign"},
        {raw({1}), of(L"\x1"), "", "another class"},
        {new Elsewhere({1, 2}), raw({1, 2, 3}), "=", "a driver's bytes, wherever they are"},
        {new Elsewhere({2}), new Elsewhere({1, 2}), ">", "on both sides"},
    };
    for (const auto& row : cases) {
        std::string holds(*row.left == *row.right ? "=" : "");
        holds += *row.left < *row.right ? "<" : "";
        holds += *row.left > *row.right ? ">" : "";
        EXPECT_EQ(holds, row.holds) << row.proves;
    }
}

// From its like only, by the root and by its contract.
template <class Contract>
void check_assigned(Contract* (PX_Plotter_Class_Factory::*make)() const, const wchar_t* start,
                    const Data& source) {
    const PX_Std_Plotter_Class_Factory factory;
    Contract *const made = (factory.*make)(), *const second = (factory.*make)();
    const Data value(made), copy(second);
    for (const Data& other : {of(L"text"), of(-7L), of(1.5), of(true), raw({1, 0, 2})}) {
        if (other->type() != source->type())
            *value = *other;
    }
    EXPECT_EQ(show(value), start);
    EXPECT_EQ(&(*value = *source), made);
    *value = *value;
    EXPECT_EQ(&(*second = *made), second);
    EXPECT_EQ(show(value) + show(copy), show(source) + show(source));
}

TEST(Custom_Data, IsAssignedFromItsLikeOnly) {
    using Factory = PX_Plotter_Class_Factory;
    check_assigned(&Factory::MK_Create_String_Custom_Data, L"0 ", of(L"text"));
    check_assigned(&Factory::MK_Create_Long_Custom_Data, L"long 0", of(-7L));
    check_assigned(&Factory::MK_Create_Double_Custom_Data, L"0.000000", of(1.5));
    check_assigned(&Factory::MK_Create_Boolean_Custom_Data, L"false", of(true));
    check_assigned(&Factory::MK_Create_Raw_Custom_Data, L"none", raw({1, 0, 2}));
    // By what the compiler knows of the sides.
    PX_Std_String_Custom_Data text(L"a"), other(L"b"), copy(&text);
    EXPECT_TRUE(copy == text && text < other && !(*of(1L) == text));
    text = other;
    other = L"c";
    EXPECT_EQ(std::wstring(text.data()) + other.data() + copy.data(), L"bca");
    // A driver's class takes part, whichever assignment of the standard one it calls.
    struct Driver : PX_Std_Long_Custom_Data {
        const PX_Custom_Data& operator=(const PX_Custom_Data& value) override {
            ++copied;
            PX_Std_Long_Custom_Data::operator=(dynamic_cast<const PX_Std_Long_Custom_Data&>(value));
            return PX_Std_Long_Custom_Data::operator=(dynamic_cast<const PX_Long_Custom_Data&>(value));
        }
        int copied = 0;
    } driver;
    static_cast<PX_Long_Custom_Data&>(driver) = PX_Std_Long_Custom_Data(5);
    EXPECT_TRUE(driver.data() == 5 && driver.copied == 1);
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
