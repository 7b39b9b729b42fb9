#include <benchmark/benchmark.h>

#include <memory>
#include <type_traits>
#include <vector>

#include "toolkit/core/smart_pointer.h"

// Counted pointers beside std::shared_ptr and plain ones.

namespace {

class Thing : public PX_Object {};

// Copies and releases a pointer to one of the live objects after the other, in an order in which neighbours
// in memory do not follow each other.
template <class Pointer, class Owner = Pointer>
void copy_and_release(benchmark::State& state) {
    const auto live = static_cast<std::size_t>(state.range(0));
    std::vector<Owner> owners;
    for (std::size_t i = 0; i < live; ++i)
        owners.emplace_back(new Thing);
    std::vector<Pointer> objects;
    for (const Owner& owner : owners) {
        if constexpr (std::is_pointer_v<Pointer>)
            objects.push_back(owner.get());
        else
            objects.push_back(owner);
    }
    std::size_t at = 0;
    for (auto _ : state) {
        Pointer copy = objects[at];
        benchmark::DoNotOptimize(copy);
        at = (at + 617) % live;
    }
}
BENCHMARK(copy_and_release<Thing*, std::unique_ptr<Thing>>)
    ->Name("copy/plain")
    ->Arg(50)
    ->Arg(2000)
    ->Arg(20000);
BENCHMARK(copy_and_release<std::shared_ptr<Thing>>)->Name("copy/shared")->Arg(50)->Arg(2000)->Arg(20000);
BENCHMARK(copy_and_release<PX_Smart_Pointer<Thing>>)->Name("copy/counted")->Arg(50)->Arg(2000)->Arg(20000);

}  // namespace
