#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

#include "fuzz/support.h"

// The kept cases, one after the other, where there is no engine that searches for others.
int main(int count, char** arguments) {
    if (count != 2) {
        std::fprintf(stderr, "usage: %s <folder of cases>\n", arguments[0]);
        return 2;
    }
    int cases = 0;
    for (const auto& entry : std::filesystem::directory_iterator(arguments[1])) {
        std::ifstream file(entry.path(), std::ios::binary);
        const std::vector<char> bytes((std::istreambuf_iterator<char>(file)), {});
        // The last name told is that of the case which failed.
        std::printf("%s\n", entry.path().filename().c_str());
        std::fflush(stdout);
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
        ++cases;
    }
    std::printf("%d cases\n", cases);
    return cases > 0 ? 0 : 1;
}
