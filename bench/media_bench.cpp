#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <cwchar>
#include <memory>
#include <string>
#include <vector>

#include "bench/media_device.h"

// Runs of the validator over a device with media, the lookup by name beside a plain search, and the growth of
// the nearest size.

namespace {

using Policy = PX_Validation_Policy;
using Strategy = PX_Validation_Strategy;

void validate_all(benchmark::State& state, bool flags_cleared) {
    const auto plotter = bench::make_device(33);
    const auto validator = plotter->get_plotter_validator();
    const auto media = plotter->get_plotter_configuration()->get_media_configuration();
    const auto strings = plotter->get_plotter_configuration()->get_init_term_configuration();
    // The last size of the list: the longest lookups.
    const auto caps = plotter->get_plotter_capabilities()->get_media_capabilities();
    media->set_media_size(caps->get_media_size(L"Size 32").get(),
                          caps->get_media_description(L"Description 32").get());
    media->set_margins(media->get_actual_printable_bounds().get());
    bool changed = validator->validate_all(Strategy::Use_Nearest, Policy::Validate_Conditional, true);
    for (auto _ : state) {
        if (flags_cleared) {
            media->set_validated(false);
            strings->set_validated(false);
        }
        changed |= validator->validate_all(Strategy::Use_Nearest, Policy::Validate_Conditional, true);
    }
    if (changed)
        state.SkipWithError("a good configuration was changed");
}
BENCHMARK_CAPTURE(validate_all, all_validated, false)->Name("media/all_validated");
BENCHMARK_CAPTURE(validate_all, flags_cleared, true)->Name("media/marks_cleared");

void find_in_named_list(benchmark::State& state) {
    const auto sizes = bench::many_sizes(1000);
    for (auto _ : state)
        benchmark::DoNotOptimize(sizes->find(L"Size 999"));
}
BENCHMARK(find_in_named_list)->Name("find/named_list");

void find_if_in_vector(benchmark::State& state) {
    std::vector<std::shared_ptr<PX_Media_Size>> sizes;
    for (int n = 0; n < 1000; ++n) {
        auto size = std::make_shared<PX_Std_Media_Size>();
        size->set_canonical_name((L"Size " + std::to_wstring(n)).c_str());
        sizes.push_back(std::move(size));
    }
    const wchar_t* wanted = L"Size 999";
    for (auto _ : state) {
        benchmark::DoNotOptimize(wanted);
        const auto found = std::find_if(sizes.begin(), sizes.end(), [&](const auto& size) {
            return std::wcscmp(size->get_canonical_name(), wanted) == 0;
        });
        std::shared_ptr<PX_Media_Size> result = *found;
        benchmark::DoNotOptimize(result);
    }
}
BENCHMARK(find_if_in_vector)->Name("find/vector");

// What no search by name can do without: each name is reached and compared.
void compare_plain_names(benchmark::State& state) {
    std::vector<std::wstring> names;
    for (int n = 0; n < 1000; ++n)
        names.push_back(L"Size " + std::to_wstring(n));
    std::vector<const wchar_t*> plain;
    for (const auto& name : names)
        plain.push_back(name.c_str());
    const wchar_t* wanted = L"Size 999";
    for (auto _ : state) {
        benchmark::DoNotOptimize(wanted);
        benchmark::DoNotOptimize(std::find_if(
            plain.begin(), plain.end(), [&](const wchar_t* name) { return std::wcscmp(name, wanted) == 0; }));
    }
}
BENCHMARK(compare_plain_names)->Name("find/plain");

// Direct sizes, none of them identical: the whole list is scored.
void set_size_to_nearest(benchmark::State& state) {
    const auto plotter = bench::make_device(static_cast<int>(state.range(0)));
    const auto media = plotter->get_plotter_configuration()->get_media_configuration();
    media->set_media_selection_method(PX_Media_Selection_Method::Media_Selection_Direct);
    PX_Std_Media_Validator validator(plotter.get());
    PX_Std_Media_Settings had;
    const PX_Float_XY sheet(510.5F, 765.5F);
    const PX_Float_Rectangle printable(10.0F, 500.0F, 10.0F, 755.0F);
    had.set_media_bounds(&sheet);
    had.set_printable_bounds(&printable);
    for (auto _ : state) {
        media->set_media_settings(&had);
        if (!validator.set_size_to_nearest())
            state.SkipWithError("nothing was near enough");
    }
}
BENCHMARK(set_size_to_nearest)->Name("nearest/toolkit")->Arg(33)->Arg(330)->Arg(3300);

// The sheets alone, by how far they are off, in a plain array.
void nearest_plain_sheet(benchmark::State& state) {
    std::vector<PX_Float_XY> sheets;
    for (int n = 0; n < state.range(0); ++n) {
        const auto width = 500.0F + static_cast<float>(n);
        sheets.emplace_back(width, 1.5F * width);
    }
    const PX_Float_XY wanted(510.5F, 765.5F);
    const auto off = [&](const PX_Float_XY& sheet) {
        return std::abs(sheet.x - wanted.x) + std::abs(sheet.y - wanted.y);
    };
    for (auto _ : state) {
        benchmark::DoNotOptimize(sheets.data());
        benchmark::DoNotOptimize(std::ranges::min_element(sheets, {}, off));
    }
}
BENCHMARK(nearest_plain_sheet)->Name("nearest/plain")->Arg(33)->Arg(330)->Arg(3300);

}  // namespace
