#include "tests/core/files_fixture.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "core/failure.h"

namespace veraqua::files {

namespace fs = std::filesystem;

FilesTest::FilesTest() : path_(testing::TempDir() + "veraqua-files-XXXXXX") {
    if (mkdtemp(path_.data()) == nullptr) std::abort();
    path_ += '/';
    UseQuickDisk();
}

FilesTest::~FilesTest() {
    InstallDisk(nullptr);
    Close();
    fs::remove_all(path_);
}

void FilesTest::Place(const Contents& contents) const {
    for (const auto& entry : fs::directory_iterator(path_))
        if (entry.path().filename() != "veraqua.lock") fs::remove_all(entry);
    for (const auto& [name, bytes] : contents) std::ofstream(path_ + name, std::ios::binary) << bytes;
}

Contents FilesTest::OnDisk() const {
    Contents contents;
    for (const auto& entry : fs::directory_iterator(path_)) {
        if (entry.path().filename() == "veraqua.lock") continue;  // to open and close it would give the lock back
        std::ifstream file(entry.path(), std::ios::binary);
        contents[entry.path().filename()] = std::string(std::istreambuf_iterator<char>(file), {});
    }
    return contents;
}

Contents FilesTest::Seen() {
    Contents contents;
    for (const std::string& name : Names()) contents[name] = *Read(name);
    return contents;
}

std::string FilesTest::FailureOfOpen(Access access) const {
    try {
        Open(path_, access);
    } catch (const RunTimeFailure& failure) {
        return failure.what();
    }
    Close();
    return "";
}

}  // namespace veraqua::files
