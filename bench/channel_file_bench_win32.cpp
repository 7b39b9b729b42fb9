#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>
#include <vector>

#include "bench/plot_to_file.h"
#include "toolkit/platform/win_types.h"

// The output channel on Windows, plotting to a file, beside what one would use instead: fwrite with a buffer
// of the same size, and WriteFile. The ways take turns, and a ratio is one of a single turn, so that what
// else the machine does falls on all of them; the median of the turns counts.

namespace {

constexpr int turns = 15;

// A file that is gone afterwards.
class Place {
public:
    Place() {
        wchar_t folder[MAX_PATH] = L"";
        GetTempPathW(MAX_PATH, folder);
        GetTempFileNameW(folder, L"mvn", 0, path);
    }
    ~Place() { DeleteFileW(path); }
    Place(const Place&) = delete;
    Place& operator=(const Place&) = delete;

    wchar_t path[MAX_PATH] = L"";
};

class Channel {
public:
    explicit Channel(const wchar_t* path) : m_plot(path) {}

    bool write(const char* bytes, unsigned long size) {
        return m_plot.is_open() && m_plot.io().write(bytes, size) >= 0;
    }

private:
    const bench::Plot_To_File m_plot;
};

class Stream {
public:
    explicit Stream(const wchar_t* path) : m_file(_wfopen(path, L"wb")) {
        if (m_file)
            std::setvbuf(m_file, m_buffer.data(), _IOFBF, m_buffer.size());
    }
    ~Stream() {
        if (m_file)
            std::fclose(m_file);
    }
    Stream(const Stream&) = delete;
    Stream& operator=(const Stream&) = delete;

    bool write(const char* bytes, unsigned long size) {
        return m_file && std::fwrite(bytes, 1, size, m_file) == size;
    }

private:
    std::vector<char> m_buffer = std::vector<char>(4096);
    std::FILE* m_file;
};

class System {
public:
    explicit System(const wchar_t* path)
        : m_file(CreateFileW(path, GENERIC_READ | GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                             FILE_ATTRIBUTE_NORMAL, nullptr)) {}
    ~System() { CloseHandle(m_file); }
    System(const System&) = delete;
    System& operator=(const System&) = delete;

    bool write(const char* bytes, unsigned long size) {
        DWORD written = 0;
        return WriteFile(m_file, bytes, size, &written, nullptr) && written == size;
    }

private:
    HANDLE m_file;
};

// Nanoseconds a write, the closing of the file among them; 0 when a write failed.
template <class Way>
double time_of(unsigned long size, int writes) {
    const Place place;
    const std::string bytes(size, 'x');
    const auto start = std::chrono::steady_clock::now();
    {
        Way way(place.path);
        for (int each = 0; each < writes; ++each)
            if (!way.write(bytes.data(), size))
                return 0;
    }
    const std::chrono::duration<double, std::nano> taken = std::chrono::steady_clock::now() - start;
    return taken.count() / writes;
}

double median(std::vector<double> figures) {
    std::sort(figures.begin(), figures.end());
    return figures[figures.size() / 2];
}

}  // namespace

int main() {
    const struct {
        unsigned long size;
        int writes;
    } rows[] = {{1, 1'000'000}, {16, 500'000}, {256, 50'000}, {4096, 5'000}, {65536, 320}};
    std::printf(
        "| Bytes a write | Channel, ns | fwrite, ns | WriteFile, ns | to fwrite | to WriteFile |\n"
        "|---|---|---|---|---|---|\n");
    for (const auto& [size, writes] : rows) {
        std::vector<double> figures[5];
        for (int turn = 0; turn < turns; ++turn) {
            const double channel = time_of<Channel>(size, writes);
            const double stream = time_of<Stream>(size, writes);
            // A call of the system each: fewer of them will do.
            const double system = time_of<System>(size, std::min(writes, 20'000));
            if (channel == 0 || stream == 0 || system == 0) {
                std::printf("a write of %lu bytes failed\n", size);
                return 1;
            }
            int column = 0;
            for (const double figure : {channel, stream, system, channel / stream, channel / system})
                figures[column++].push_back(figure);
        }
        std::printf("| %lu | %.0f | %.0f | %.0f | %.2f | %.3f |\n", size, median(figures[0]),
                    median(figures[1]), median(figures[2]), median(figures[3]), median(figures[4]));
        std::fflush(stdout);
    }
}
