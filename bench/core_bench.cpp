#include <benchmark/benchmark.h>

#include <memory>
#include <vector>

#include "toolkit/core/smart_pointer.h"

// Counted pointers beside std::shared_ptr.

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

}  // namespace
