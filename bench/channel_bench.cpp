#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <stdlib.h>
#include <unistd.h>

#include <cstdio>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "toolkit/marvcon/marvcon.h"

// The output channel beside stdio and the system's own call, and the discovery of ports.

namespace {

class Handler : public Std_Error_Handler {
public:
    const wchar_t* get_warning_caption() const override { return L"Warning"; }
    const wchar_t* get_severe_error_caption() const override { return L"Severe"; }
    const wchar_t* get_error_caption() const override { return L"Error"; }
    const wchar_t* get_ARI_error_caption() const override { return L"Error"; }
    const wchar_t* get_terminal_error_caption() const override { return L"Error"; }
    const wchar_t* get_info_caption() const override { return L"Info"; }
};

// A plot to that file.
class Plot {
public:
    explicit Plot(const std::string& path) : m_plotter(new PX_Std_Plotter_Definition(new Handler)) {
        const auto factory = m_plotter->get_class_factory();
        m_plotter->set_meta_capabilities(factory->MK_Create_Meta_Capabilities());
        m_plotter->set_plotter_capabilities(factory->MK_Create_Plotter_Capabilities(L"", L"", L""));
        m_plotter->set_plotter_configuration(factory->MK_Create_Plotter_Configuration(L"", L"", L""));
        const PX_Std_Plotter_IO_Capabilities capabilities;
        m_plotter->get_plotter_capabilities()->set_io_capabilities(&capabilities);
        PX_Std_Plotter_IO_Configuration choices;
        choices.set_type(PX_IO_Type::File);
        choices.set_plot_to_file(true);
        choices.set_portname(std::wstring(path.begin(), path.end()).c_str());
        m_plotter->get_plotter_configuration()->set_io_configuration(&choices);
        m_io.reset(factory->MK_Create_Plotter_IO(new Handler));
        m_is_open = m_io->configure(m_plotter.get()) && m_io->open();
    }
    bool is_open() const { return m_is_open; }
    PX_Plotter_IO& io() const { return *m_io; }

private:
    PX_Smart_Pointer<PX_Plotter_Definition> m_plotter;
    std::unique_ptr<PX_Plotter_IO> m_io;
    bool m_is_open;
};

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
    const Plot plot(place.path);
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
