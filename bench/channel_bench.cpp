#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <stdlib.h>
#include <unistd.h>

#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include "bench/plot_to_file.h"

// The output channel beside stdio and the system's own call, and the discovery of ports.

namespace {

// The null device, or a file that goes with it.
class Place {
public:
    explicit Place(bool is_file) {
        char name[] = "/tmp/channel_bench_XXXXXX";
        if (!is_file)
            return;
        const int fd = mkstemp(name);
        if (fd < 0)
            return;
        close(fd);
        m_file = path = name;
    }
    ~Place() {
        if (!m_file.empty())
            unlink(m_file.c_str());
    }
    std::string path = "/dev/null";

private:
    std::string m_file;
};

// 0 is the null device, 1 a file; the other argument is the size of a write.
template <class Write>
void run(benchmark::State& state, Write write) {
    const std::vector<char> bytes(static_cast<std::size_t>(state.range(1)), 'x');
    for (auto _ : state)
        write(bytes.data(), bytes.size());
}

void channel(benchmark::State& state) {
    const Place place(state.range(0) != 0);
    const bench::Plot_To_File plot(std::wstring(place.path.begin(), place.path.end()));
    if (!plot.is_open())
        return state.SkipWithError("not opened");
    PX_Plotter_IO& io = plot.io();
    run(state, [&](const char* bytes, std::size_t size) { benchmark::DoNotOptimize(io.write(bytes, size)); });
}

void stdio(benchmark::State& state) {
    const Place place(state.range(0) != 0);
    std::FILE* const file = std::fopen(place.path.c_str(), "wb");
    if (!file)
        return state.SkipWithError("not opened");
    std::vector<char> buffer(4096);
    std::setvbuf(file, buffer.data(), _IOFBF, buffer.size());
    run(state, [&](const char* bytes, std::size_t size) {
        benchmark::DoNotOptimize(std::fwrite(bytes, 1, size, file));
    });
    std::fclose(file);
}

void system_call(benchmark::State& state) {
    const Place place(state.range(0) != 0);
    const int fd = open(place.path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0666);
    if (fd < 0)
        return state.SkipWithError("not opened");
    run(state,
        [&](const char* bytes, std::size_t size) { benchmark::DoNotOptimize(write(fd, bytes, size)); });
    close(fd);
}

// The least that a buffer costs: memcpy, and write(2) where the next bytes find no room.
void buffered_by_hand(benchmark::State& state) {
    const Place place(state.range(0) != 0);
    const int fd = open(place.path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0666);
    if (fd < 0)
        return state.SkipWithError("not opened");
    std::vector<char> buffer(4096);
    std::size_t filled = 0;
    run(state, [&](const char* bytes, std::size_t size) {
        if (buffer.size() - filled < size) {
            benchmark::DoNotOptimize(write(fd, buffer.data(), filled));
            filled = 0;
        }
        std::memcpy(buffer.data() + filled, bytes, size);
        filled += size;
    });
    close(fd);
}

// The numbers of writes keep a file below 256 MB.
template <class Bench>
void small_writes(Bench* bench) {
    for (const int place : {0, 1})
        bench->Args({place, 1})->Args({place, 16})->Args({place, 256});
    bench->Iterations(1'000'000);
}
template <class Bench>
void large_writes(Bench* bench) {
    bench->Args({0, 65536})->Args({1, 65536})->Iterations(1024);
}
BENCHMARK(channel)->Name("write/channel")->Apply(small_writes);
BENCHMARK(stdio)->Name("write/stdio")->Apply(small_writes);
BENCHMARK(buffered_by_hand)->Name("write/plain")->Apply(small_writes);
BENCHMARK(channel)->Name("write/channel")->Apply(large_writes);
BENCHMARK(stdio)->Name("write/stdio")->Apply(large_writes);
BENCHMARK(system_call)->Name("write/plain")->Apply(large_writes);

void later_discovery(benchmark::State& state) {
    const PX_Std_System_IO_Capabilities first;
    for (auto _ : state) {
        const PX_Std_System_IO_Capabilities later;
        benchmark::DoNotOptimize(&later);
    }
}
BENCHMARK(later_discovery)->Name("later_discovery");

}  // namespace
