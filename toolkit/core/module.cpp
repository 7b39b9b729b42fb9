#include "toolkit/core/module.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <cstddef>
#include <utility>

#include "toolkit/platform/back_end.h"

namespace {

constexpr std::size_t most_per_step = 4;

// Plain storage: a function may still be given while the process is going down.
struct Step {
    std::array<void (*)(bool), most_per_step> frees;
    std::size_t count;
};
std::array<Step, px_exit_steps> steps;

void run_steps(bool unloading) {
    for (auto& [frees, count] : steps) {
        // A function may ask to be called at the next exit again.
        const auto waiting = frees;
        for (std::size_t left = std::exchange(count, 0); left > 0;)
            waiting[--left](unloading);
    }
}

}  // namespace

void px_at_module_exit(PX_Exit_Step step, void (*free_it)(bool)) {
    px_call_at_unload([] { run_steps(true); });
    auto& [frees, count] = steps[static_cast<std::size_t>(step)];
    const auto end = frees.begin() + static_cast<std::ptrdiff_t>(count);
    if (std::find(frees.begin(), end, free_it) != end)
        return;
    assert(count < most_per_step);
    if (count < most_per_step)
        frees[count++] = free_it;
}

void PX_Module_Exit() {
    run_steps(false);
}
