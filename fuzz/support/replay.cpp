// Runs a target over files and folders of files: for compilers without libFuzzer, and to look into a find.
#include "support/fuzz_target.h"

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace fs = std::filesystem;

namespace {

// Files as they are, folders by what lies in them, in the order of their names.
std::vector<fs::path> inputsIn(int count, char** words) {
    std::vector<fs::path> inputs;
    for (int at = 1; at < count; ++at) {
        const fs::path path = fs::absolute(words[at]);
        if (!fs::is_directory(path)) {
            inputs.push_back(path);
            continue;
        }
        const auto first = static_cast<std::ptrdiff_t>(inputs.size());
        for (const auto& entry : fs::directory_iterator{path})
            if (entry.is_regular_file()) inputs.push_back(entry.path());
        std::sort(inputs.begin() + first, inputs.end());
    }
    return inputs;
}

} // namespace

int main(int count, char** words) {
    const std::vector<fs::path> inputs = inputsIn(count, words); // before a target leaves the folder
    for (const fs::path& input : inputs) {
        std::ifstream file{input, std::ios::binary};
        if (!file) {
            std::fprintf(stderr, "%s can't be read\n", input.c_str());
            return 1;
        }
        const std::string bytes{std::istreambuf_iterator<char>{file}, {}};
        std::printf("%s\n", input.c_str());
        std::fflush(stdout);
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
    }
    std::printf("%zu inputs replayed\n", inputs.size());
    return inputs.empty() ? 1 : 0;
}
