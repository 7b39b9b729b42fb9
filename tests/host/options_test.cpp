#include "toolkit/host/options.h"

#include <gtest/gtest.h>

#include <thread>
#include <tuple>

#include "tests/support/fields.h"

namespace {

TEST(Option_Value, ReadsAsItsOwnTypeOnlyAndIsHeldByItsCopies) {
    int target = 0;
    int* const none = nullptr;
    const auto read = [](const PX_Option_Value& value) {
        return std::tuple(value.get_pointer<int>(), value.get_float(), value.get_long(), value.get_bool());
    };
    EXPECT_EQ(read(&target), std::tuple(&target, 0.0F, 0L, false));
    EXPECT_EQ(read(2.5F), std::tuple(none, 2.5F, 0L, false));
    EXPECT_EQ(read(-7L), std::tuple(none, 0.0F, -7L, false));
    EXPECT_EQ(read(true), std::tuple(none, 0.0F, 0L, true));
    PX_Option_Value value(1L), other(2L);
    const PX_Option_Value copy(value);
    value = other;
    other = *&other;
    EXPECT_TRUE(copy.get_long() == 1 && value.get_long() == 2 && other.get_long() == 2);
}

TEST(Counted, GoesWithTheLastHolderOfAnyThread) {
    struct Counted final : PX_Counted {
        explicit Counted(int& gone) : m_gone(gone) {}
        ~Counted() override { ++m_gone; }
        int& m_gone;
    };
    int gone = 0;
    const auto* const counted = new Counted(gone);
    const auto hold = [counted] {
        for (int turn = 0; turn < 200000; ++turn)
            turn < 100000 ? counted->add_reference() : counted->release_reference();
    };
    { const std::jthread one(hold), another(hold), third(hold); }
    EXPECT_EQ(gone, 0);
    counted->release_reference();
    EXPECT_EQ(gone, 1);
}

TEST(Option_Table, KeepsTheFirstOfAName) {
    PX_Option_Table table;
    PX_Option offered(L"Option", PX_Option_Enum::Scope_0, 1L);
    PX_Option* const own = table.add(offered);
    offered.set(2L);
    const auto failures = support::failures_of([&] { table.add(PX_Option(L"option", {}, 3L)); });
    EXPECT_GE(failures.size(), 3U) << "std::bad_alloc of the value, the option, the table";
    for (int i = 0; i < 100; ++i)
        table.add(PX_Option(std::to_wstring(i), {}, false));
    EXPECT_EQ(table.add(offered), own);
    EXPECT_EQ(own->get().get_long(), 1);
    EXPECT_EQ(table.find(L"option")->get().get_long(), 3);
    EXPECT_FALSE(table.find(L"Options") || table.find(nullptr));
}

}  // namespace
