#include <gtest/gtest.h>

#include <thread>
#include <tuple>

#include "tests/support/fields.h"
#include "toolkit/marvcon/marvcon.h"

namespace {

constexpr auto go_on = +[](PX_Progress_Info*) { return true; };

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

void expect_new(const PX_Plotter_Options& options) {
    EXPECT_EQ(options.progress_callback(), nullptr);
    EXPECT_EQ(options.true_arcs(), 0);
    EXPECT_EQ(options.tessellation_multiplier(), 1.0F);
    EXPECT_TRUE(options.fat_dots_as_squares() && !options.gradiants_as_polytriangles());
}

TEST(Plotter_Device_Data, HasTheOptionsInBothTablesUnderTheirNames) {
    PX_Plotter_Device_Data data;
    PX_Int_Rectangle band;
    EXPECT_FALSE(data.get_banding_requirements(-1, 100000, band) ||
                 data.get_banding_rectangle(nullptr, band) || data.get_plot_transparency());
    EXPECT_TRUE(data.get_tessellate_text_to_triangles());
    PX_Plotter_Options& options = data.get_plotter_options();
    expect_new(options);
    options.set_progress_callback(go_on);
    options.set_true_arcs(-2);
    options.set_tessellation_multiplier(0.5F);
    options.set_fat_dots_as_squares(false);
    options.set_gradiants_as_polytriangles(true);
    expect_new(data.get_current_plotter_options());
    expect_new(PX_Plotter_Options(data.get_current_options()));
    const auto stored = [&](const wchar_t* name) {
        const PX_Option* const option = data.get_options().find(name);
        return option && option->get_scope() == 0 ? option->get() : PX_Option_Value(L"none");
    };
    EXPECT_EQ(stored(L"Progress Callback").get_pointer<PX_Progress_Callback>(), go_on);
    EXPECT_TRUE(stored(L"True Arcs").get_long() == -2 && stored(L"Gradiants As Polytriangles").get_bool());
    EXPECT_EQ(stored(L"Tessellation Multiplier").get_float(), 0.5F);
    data.get_options().find(L"Fat Dots As Squares")->set(true);
    const PX_Plotter_Options second(data.get_options());
    EXPECT_TRUE(options.fat_dots_as_squares()) << "read where it is, not kept";
    EXPECT_EQ(second.true_arcs(), -2) << "a second registration puts nothing back";
}

}  // namespace
