#include <gtest/gtest.h>

#include "toolkit/marvcon/marvcon.h"

namespace {

constexpr auto go_on = +[](PX_Progress_Info*) { return true; };

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
                 data.get_banding_rectangle(nullptr, band) || data.get_plot_transparency() ||
                 data.can_alpha_blend() || data.is_preplot_pass());
    data.set_plot_transparency(true);
    EXPECT_TRUE(data.get_tessellate_text_to_triangles() && data.get_plot_transparency());
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
