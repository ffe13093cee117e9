// Runs a fuzz target on inputs that were kept: files, and folders of files. Builds everywhere.
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "fuzz_target.h"

namespace {

std::vector<std::filesystem::path> filesBelow(const std::filesystem::path& place) {
    std::vector<std::filesystem::path> files;
    if (!std::filesystem::is_directory(place)) return {place};
    for (const auto& entry : std::filesystem::recursive_directory_iterator(place)) {
        if (entry.is_regular_file()) files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    return files;
}

bool replay(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    if (!in) return false;
    const std::string bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
    return true;
}

}  // namespace

int main(int argumentCount, char** arguments) {
    std::size_t count = 0;
    for (int index = 1; index < argumentCount; ++index) {
        for (const std::filesystem::path& file : filesBelow(arguments[index])) {
            static_cast<void>(std::printf("%s\n", file.generic_string().c_str()));
            static_cast<void>(std::fflush(stdout));
            if (!replay(file)) return 1;
            ++count;
        }
    }
    static_cast<void>(std::printf("%zu inputs\n", count));
    return count == 0 ? 1 : 0;  // a replay of nothing has lost its corpus
}
