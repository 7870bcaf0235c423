#pragma once

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "core/files/files.h"
#include "core/state.h"
#include "tests/support/script_ask.h"

namespace veraqua {

/// An empty data directory, open for writing, that goes when the test ends; the state begins anew with it. What `Put`,
/// `Raw` and `Has` do goes past core/files, as another program would.
class TestDirectory {
  public:
    TestDirectory() {
        std::string path = (std::filesystem::temp_directory_path() / "veraqua-test-XXXXXX").string();
        if (mkdtemp(path.data()) == nullptr) throw std::runtime_error("There is no room for " + path);
        path_ = path + "/";
        State = ApplicationState{};
        files::Open(path_, files::Access::Write);
    }
    ~TestDirectory() {
        files::Close();
        std::filesystem::remove_all(path_);
    }
    TestDirectory(const TestDirectory&) = delete;
    TestDirectory& operator=(const TestDirectory&) = delete;

    /// With a final "/".
    const std::string& Path() const { return path_; }

    void Put(std::string_view name, std::string_view bytes) const {
        std::ofstream(path_ + std::string(name), std::ios::binary) << bytes;
    }

    /// The file's bytes; std::runtime_error if there is none.
    std::string Raw(std::string_view name) const {
        std::ifstream file(path_ + std::string(name), std::ios::binary);
        if (!file) throw std::runtime_error("There is no " + std::string(name));
        return {std::istreambuf_iterator<char>(file), {}};
    }

    bool Has(std::string_view name) const { return std::filesystem::exists(path_ + std::string(name)); }
    void Delete(std::string_view name) const { std::filesystem::remove(path_ + std::string(name)); }

    /// As if the program ended and another began: the state starts anew, the files stay.
    void Reopen() const {
        files::Close();
        State = ApplicationState{};
        files::Open(path_, files::Access::Write);
    }

  private:
    std::string path_;
};

/// A test with a data directory and a user.
struct DirectoryTest : testing::Test {
    TestDirectory Directory;
    ScriptAsk User;
};

}  // namespace veraqua
