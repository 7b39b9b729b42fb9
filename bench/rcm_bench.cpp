#include <benchmark/benchmark.h>

#include <list>
#include <string>

#include "bench/media_device.h"

// The lists that a user interface shows of the colour modes and their resolutions, and a run of the validator
// over a configuration in which every datum is marked as validated.

namespace {

using Policy = PX_Validation_Policy;
using Strategy = PX_Validation_Strategy;

// So many modes, none like another. Each has resolutions of its own where `apart`; otherwise all have the
// same.
void fill(PX_ResColorMem_Capabilities& caps, int mode_count, int resolution_count, bool apart) {
    PX_Named_Object_List<PX_ResColorMem> modes;
    for (int n = 0; n < mode_count; ++n) {
        auto* const mode = new PX_Std_ResColorMem;
        mode->set_canonical_name((L"Mode " + std::to_wstring(n)).c_str());
        mode->set_localized_name((L"Colour mode " + std::to_wstring(n)).c_str());
        mode->set_num_colors(2 + n);
        mode->set_color_depth(1 + n % 8);
        for (int r = 0; r < resolution_count; ++r) {
            auto* const resolution = new PX_Std_Resolution;
            resolution->set_canonical_name((L"Resolution " + std::to_wstring(r)).c_str());
            resolution->set_localized_name((std::to_wstring(r) + L" dots per inch").c_str());
            // The finest first: what is sorted already goes to the tail each time, which takes longest.
            const int after = resolution_count - r + (apart ? (mode_count - n) * resolution_count : 0);
            const auto dots = static_cast<float>(after);
            const PX_Float_XY effective(dots, dots);
            resolution->set_effective_resolution_xy(&effective);
            mode->get_resolution_list()->append(resolution);
        }
        modes.append(mode);
    }
    caps.set_res_color_mem_list(&modes);
    caps.set_abilities(PX_Ability_Value::Ability_Required);
}

void prepared_resolutions(benchmark::State& state, bool apart) {
    PX_Std_ResColorMem_Capabilities caps;
    fill(caps, static_cast<int>(state.range(0)), 20, apart);
    int size = 0;
    for (auto _ : state)
        size = caps.get_prepared_resolutions(false)->size();
    if (size != (apart ? state.range(0) * 20 : 20))
        state.SkipWithError("the list has another length");
}
BENCHMARK_CAPTURE(prepared_resolutions, shared, false)->Name("list/shared")->Arg(10)->Arg(50)->Arg(100);
BENCHMARK_CAPTURE(prepared_resolutions, apart, true)->Name("list/apart")->Arg(10)->Arg(50)->Arg(100);

void prepared_num_colors(benchmark::State& state) {
    PX_Std_ResColorMem_Capabilities caps;
    fill(caps, static_cast<int>(state.range(0)), 20, false);
    int size = 0;
    for (auto _ : state)
        size = caps.get_prepared_num_colors(false)->size();
    if (size != state.range(0))
        state.SkipWithError("the list has another length");
}
BENCHMARK(prepared_num_colors)->Name("list/colors")->Arg(10)->Arg(50)->Arg(100);

// The sort alone, of records that are in order already: each goes to the tail.
void sort_resolutions(benchmark::State& state) {
    PX_Sortable_Atomic_Object_List<PX_RCM_ResName> records;
    for (int n = 0; n < state.range(0); ++n)
        records.append({static_cast<float>(n), static_cast<float>(n), L"dots"});
    for (auto _ : state)
        records.sort(true);
}
BENCHMARK(sort_resolutions)->Name("sort/toolkit")->Arg(20)->Arg(200)->Arg(1000)->Arg(2000);

// Nodes too, and in order already.
void sort_std_list(benchmark::State& state) {
    std::list<PX_RCM_ResName> records;
    for (int n = 0; n < state.range(0); ++n)
        records.emplace_back(static_cast<float>(n), static_cast<float>(n), L"dots");
    for (auto _ : state) {
        records.sort(
            [](const PX_RCM_ResName& a, const PX_RCM_ResName& b) { return px_sorts_before(a, b, true); });
        benchmark::DoNotOptimize(records.front());
    }
}
BENCHMARK(sort_std_list)->Name("sort/std_list")->Arg(20)->Arg(200)->Arg(1000)->Arg(2000);

void validate_every_domain(benchmark::State& state) {
    const auto plotter = bench::make_device(33);
    const auto capabilities = plotter->get_plotter_capabilities();
    const auto configuration = plotter->get_plotter_configuration();
    fill(*capabilities->get_res_color_mem_capabilities(), static_cast<int>(state.range(0)), 20, false);
    configuration->get_media_configuration()->set_validated(true);
    configuration->get_init_term_configuration()->set_validated(true);
    const auto validator = plotter->get_plotter_validator();
    bool changed = false;
    for (auto _ : state)
        changed |= validator->validate_all(Strategy::Use_Nearest, Policy::Validate_Conditional, true);
    if (changed)
        state.SkipWithError("a validated configuration was changed");
}
BENCHMARK(validate_every_domain)->Name("every_domain")->Arg(1)->Arg(50);

}  // namespace
