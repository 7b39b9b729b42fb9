#include "toolkit/core/module.h"

#include <algorithm>
#include <array>

namespace {

constexpr int most_per_step = 4;

// Plain storage: a function may still be given while the process is going down.
struct Step {
    std::array<void (*)(), most_per_step> frees;
    int count;
};
std::array<Step, px_exit_steps> steps;

struct At_Unload {
    ~At_Unload() { PX_Module_Exit(); }
};

}  // namespace

void px_at_module_exit(PX_Exit_Step step, void (*free_it)()) {
    static const At_Unload at_unload;
    auto& [frees, count] = steps[static_cast<std::size_t>(step)];
    const auto end = frees.begin() + count;
    if (std::find(frees.begin(), end, free_it) == end && count < most_per_step)
        frees[static_cast<std::size_t>(count++)] = free_it;
}

void PX_Module_Exit() {
    for (auto& [frees, count] : steps) {
        while (count > 0)
            frees[static_cast<std::size_t>(--count)]();
    }
}
