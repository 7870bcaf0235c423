#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include <benchmark/benchmark.h>

#include "bench/farm.h"
#include "core/files/files.h"

/// The nightly catch-up: `veraqua-cli field update` of 100 fields, computed and durable, against the least that it can
/// take.
namespace veraqua::bench {
namespace {

constexpr int Fields = 100;
constexpr std::int16_t SeasonLength = 140;
constexpr int Rounds = 9;

using Clock = std::chrono::steady_clock;
using Files = std::vector<std::pair<std::string, std::string>>;

double Milliseconds(Clock::duration time) { return std::chrono::duration<double, std::milli>(time).count(); }

double TimeOfProgram(std::vector<std::string> arguments) {
    std::vector<char*> pointers{const_cast<char*>(VERAQUA_CLI)};
    for (std::string& argument : arguments) pointers.push_back(argument.data());
    pointers.push_back(nullptr);
    const Clock::time_point begun = Clock::now();
    const pid_t child = fork();
    if (child == 0) {
        dup2(open("/dev/null", O_WRONLY), STDOUT_FILENO);
        execv(VERAQUA_CLI, pointers.data());
        _exit(127);
    }
    int status = 0;
    waitpid(child, &status, 0);
    if (status != 0) throw std::runtime_error("veraqua-cli has failed.");
    return Milliseconds(Clock::now() - begun);
}

/// The transcendental functions of a day: degree days, crop coefficient, dryness, default weather.
double TimeOfArithmetic() {
    const Clock::time_point begun = Clock::now();
    double sum = 0;
    for (int day = 0; day < Fields * SeasonLength; ++day) {
        const double x = 1e-4 * day;
        for (int k = 1; k <= 6; ++k) sum += std::sin(k * x);
        for (int k = 1; k <= 3; ++k) sum += std::cos(k * x) + std::sin(k * x);
        sum += std::asin(x / 2) + std::cos(x) + std::asin(x / 3) + std::cos(x / 2) + std::log(x + 1) / std::log(101.0);
        benchmark::DoNotOptimize(sum);
    }
    return Milliseconds(Clock::now() - begun);
}

Files FilesOf(const std::string& directory) {
    Files files;
    for (const auto& entry : std::filesystem::directory_iterator(directory)) {
        std::ifstream file(entry.path(), std::ios::binary);
        files.emplace_back(entry.path().string(), std::string(std::istreambuf_iterator<char>(file), {}));
    }
    return files;
}

void WriteWhole(const std::string& path, const std::string& bytes, bool flush) {
    // In place: a file that is emptied first is flushed by some file systems when it is closed.
    const int file = open(path.c_str(), O_WRONLY | O_CREAT, 0644);
    const bool written =
        write(file, bytes.data(), bytes.size()) >= 0 && ftruncate(file, static_cast<off_t>(bytes.size())) == 0;
    if (!written) throw std::runtime_error("Can't write " + path);
    if (flush) fsync(file);
    close(file);
}

/// The same files read and their bytes written through one flushed journal.
double TimeOfDisk(const std::string& directory, const Files& after) {
    const Clock::time_point begun = Clock::now();
    const Files before = FilesOf(directory);
    std::string journal;
    for (const auto& [path, bytes] : after) journal += path + bytes;
    const std::string journalPath = directory + "/floor.journal";
    WriteWhole(journalPath, journal, true);
    const int handle = open(directory.c_str(), O_RDONLY | O_DIRECTORY);
    fsync(handle);
    for (const auto& [path, bytes] : after) WriteWhole(path, bytes, false);
    syncfs(handle);
    close(handle);
    std::filesystem::remove(journalPath);
    benchmark::DoNotOptimize(before.data());
    return Milliseconds(Clock::now() - begun);
}

/// The files that a run has changed.
Files ChangedSince(const Files& before, const std::string& directory) {
    Files changed;
    for (auto& file : FilesOf(directory))
        if (std::find(before.begin(), before.end(), file) == before.end()) changed.push_back(std::move(file));
    return changed;
}

void CatchUpOfAHundredFields(benchmark::State& run) {
    Farm farm(Fields, SeasonLength, false);
    files::Close();
    const std::string& directory = farm.Path();
    const Files before = FilesOf(directory);
    const std::vector<std::string> update{"--data", directory, "--today", "07-20-2026", "--json", "field", "update"};
    double whole = 0;
    double floor = 0;
    for (auto _ : run) {
        for (const auto& [path, bytes] : before) WriteWhole(path, bytes, false);
        const double start = TimeOfProgram({"--version"});
        const double time = TimeOfProgram(update);
        floor += start + TimeOfArithmetic() + TimeOfDisk(directory, ChangedSince(before, directory));
        whole += time;
        run.SetIterationTime(time / 1000);
    }
    const auto rounds = static_cast<double>(run.iterations());
    run.counters["whole_ms"] = whole / rounds;
    run.counters["floor_ms"] = floor / rounds;
    run.counters["ratio"] = whole / floor;
}
BENCHMARK(CatchUpOfAHundredFields)->UseManualTime()->Iterations(Rounds)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace veraqua::bench
