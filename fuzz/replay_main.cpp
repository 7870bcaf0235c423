// Runs a fuzz program's seeds through it, once each, in place of libFuzzer: `fuzz_crop_table fuzz/corpus/crop_table`.

#include <algorithm>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <span>
#include <string>
#include <vector>

#include "fuzz/fuzz_target.h"

namespace {

std::vector<std::filesystem::path> FilesIn(const std::filesystem::path& folder) {
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        if (entry.is_regular_file()) files.push_back(entry.path());
    }
    std::ranges::sort(files);
    return files;
}

void Replay(const std::filesystem::path& seed) {
    std::cout << seed.filename().string() << std::endl;  // out before the run, so that a crash names its seed
    std::ifstream file(seed, std::ios::binary);
    const std::vector<char> bytes{std::istreambuf_iterator<char>(file), {}};
    const std::vector<std::uint8_t> input(bytes.begin(), bytes.end());
    LLVMFuzzerTestOneInput(input.data(), input.size());
}

}  // namespace

int main(int count, char** arguments) try {
    std::size_t seeds = 0;
    for (const char* folder : std::span(arguments, static_cast<std::size_t>(count)).subspan(1)) {
        for (const auto& seed : FilesIn(folder)) {
            Replay(seed);
            ++seeds;
        }
    }
    std::cout << seeds << " seeds replayed\n";
    return seeds > 0 ? 0 : 1;  // a folder without seeds would prove nothing
} catch (const std::exception& failure) {
    std::cerr << failure.what() << '\n';
    return 1;
}
