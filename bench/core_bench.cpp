#include <benchmark/benchmark.h>

#include <memory>
#include <vector>

#include "toolkit/marvcon/marvcon.h"

// Counted pointers beside std::shared_ptr, and a run of the validator over validated data.

namespace {

class Thing : public PX_Object {};

// Copies and releases a pointer to one of the live objects after the other, in an order in which neighbours
// in memory do not follow each other.
template <class Pointer>
void copy_and_release(benchmark::State& state) {
    const auto live = static_cast<std::size_t>(state.range(0));
    std::vector<Pointer> objects;
    for (std::size_t i = 0; i < live; ++i)
        objects.emplace_back(new Thing);
    std::size_t at = 0;
    for (auto _ : state) {
        Pointer copy = objects[at];
        benchmark::DoNotOptimize(copy);
        at = (at + 617) % live;
    }
}
BENCHMARK(copy_and_release<std::shared_ptr<Thing>>)->Arg(2000);
BENCHMARK(copy_and_release<PX_Smart_Pointer<Thing>>)->Arg(50)->Arg(2000)->Arg(20000);

class Handler : public Std_Error_Handler {
    const wchar_t* get_warning_caption() const override { return L""; }
    const wchar_t* get_severe_error_caption() const override { return L""; }
    const wchar_t* get_error_caption() const override { return L""; }
    const wchar_t* get_ARI_error_caption() const override { return L""; }
    const wchar_t* get_terminal_error_caption() const override { return L""; }
    const wchar_t* get_info_caption() const override { return L""; }
};

void validate_all_validated(benchmark::State& state) {
    const PX_Smart_Pointer<PX_Plotter_Definition> plotter(new PX_Std_Plotter_Definition(new Handler));
    plotter->set_plotter_capabilities(new PX_Std_Plotter_Capabilities);
    plotter->set_plotter_configuration(new PX_Std_Plotter_Configuration);
    PX_Std_InitTerm_Capabilities caps;
    caps.set_abilities(PX_Ability_Value::Ability_Required);
    PX_Std_InitTerm_Configuration cfg;
    cfg.set_validated(true);
    plotter->get_plotter_capabilities()->set_init_term_capabilities(&caps);
    plotter->get_plotter_configuration()->set_init_term_configuration(&cfg);
    const auto validator = plotter->get_plotter_validator();
    for (auto _ : state)
        benchmark::DoNotOptimize(validator->validate_all(PX_Validation_Strategy::Use_Nearest,
                                                         PX_Validation_Policy::Validate_Conditional, true));
}
BENCHMARK(validate_all_validated);

}  // namespace
