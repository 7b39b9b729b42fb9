#include <filesystem>
#include <fstream>
#include <string>

#include "fuzz/support.h"

// The kept cases of a folder, one after the other, where there is no engine that searches for others.
int main(int count, char** arguments) {
    int cases = 0;
    for (const auto& entry : std::filesystem::directory_iterator(count == 2 ? arguments[1] : "")) {
        std::ifstream file(entry.path(), std::ios::binary);
        const std::string bytes((std::istreambuf_iterator<char>(file)), {});
        // The last name told is that of the case which failed.
        std::printf("%s\n", entry.path().filename().string().c_str());
        std::fflush(stdout);
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
        ++cases;
    }
    return cases > 0 ? 0 : 1;
}
