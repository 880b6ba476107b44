// Runs a target on kept inputs, without a fuzzer: replay TARGET FILE-OR-FOLDER...
#include "Fuzzing.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace fs = std::filesystem;

namespace {

std::vector<fs::path> FilesBelow(const fs::path& path) {
    if (!fs::is_directory(path)) {
        return {path};
    }
    std::vector<fs::path> files;
    for (const auto& entry : fs::recursive_directory_iterator(path)) {
        if (entry.is_regular_file()) {
            files.push_back(entry.path());
        }
    }
    std::sort(files.begin(), files.end());
    return files;
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        std::fputs("usage: replay TARGET FILE-OR-FOLDER...\n", stderr);
        return 2;
    }
    const tunedex::fuzz::Target& target = tunedex::fuzz::FindTarget(argv[1]);
    std::size_t count = 0;
    for (int i = 2; i < argc; ++i) {
        if (!fs::exists(argv[i])) {
            continue; // a target that has never failed has no folder of crashes
        }
        for (const fs::path& path : FilesBelow(argv[i])) {
            std::ifstream file(path, std::ios::binary);
            const std::string bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
            // Printed first: a crash prints nothing.
            std::printf("%s: %s\n", argv[1], path.c_str());
            std::fflush(stdout);
            target.run(tunedex::fuzz::BytesOf(bytes));
            ++count;
        }
    }
    target.run({});
    std::printf("%s: %zu files and the empty input, nothing found\n", argv[1], count);
    return count > 0 ? 0 : 1;
}
