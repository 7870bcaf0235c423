#include "tests/cli/program.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <iterator>

#include "core/disk.h"

namespace veraqua {

namespace {

constexpr unsigned LongestRunSeconds = 60;

/// The strings as exec takes them; they must stay.
std::vector<char*> Pointers(std::vector<std::string>& strings) {
    std::vector<char*> pointers;
    std::transform(strings.begin(), strings.end(), std::back_inserter(pointers),
                   [](std::string& s) { return s.data(); });
    pointers.push_back(nullptr);
    return pointers;
}

std::string Contents(const files::Descriptor& file) {
    std::string text(static_cast<std::size_t>(std::max<off_t>(lseek(file.Number(), 0, SEEK_END), 0)), ' ');
    text.resize(static_cast<std::size_t>(std::max<ssize_t>(pread(file.Number(), text.data(), text.size(), 0), 0)));
    return text;
}

}  // namespace

Ran RunCli(const std::vector<std::string>& arguments, const std::vector<std::string>& environment,
           const std::string& output) {
    std::vector<std::string> words{VERAQUA_CLI};
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<std::string> variables = environment;
    const std::vector<char*> argumentPointers = Pointers(words);
    const std::vector<char*> variablePointers = Pointers(variables);
    const files::Descriptor out(output.empty() ? memfd_create("out", 0) : open(output.c_str(), O_WRONLY));
    const files::Descriptor err(memfd_create("err", 0));

    // Between the fork and the exec nothing may be called that another thread could hold a lock of.
    const pid_t child = fork();
    if (child == 0) {
        alarm(LongestRunSeconds);
        dup2(out.Number(), STDOUT_FILENO);
        dup2(err.Number(), STDERR_FILENO);
        execve(argumentPointers[0], argumentPointers.data(), variablePointers.data());
        _exit(127);
    }
    int status = 0;
    if (child < 0 || waitpid(child, &status, 0) != child) return {};
    return {WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status),
            output.empty() ? Contents(out) : std::string(), Contents(err)};
}

}  // namespace veraqua
