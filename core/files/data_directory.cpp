#include "core/files/data_directory.h"

#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <memory>

#include <fmt/format.h>

#include "core/base/failure.h"
#include "core/base/text.h"

namespace veraqua::files {

namespace {

constexpr std::size_t LongestName = 255;

bool IsFile(int directory, const dirent& entry) {
    if (entry.d_type == DT_REG) return true;
    if (entry.d_type != DT_LNK && entry.d_type != DT_UNKNOWN) return false;
    struct stat status {};
    return fstatat(directory, entry.d_name, &status, 0) == 0 && S_ISREG(status.st_mode);
}

struct CloseStream {
    void operator()(DIR* stream) const { closedir(stream); }
};

DataDirectory::Listing FilesIn(int directory, const std::string& path) {
    const int number = openat(directory, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    const std::unique_ptr<DIR, CloseStream> stream(number < 0 ? nullptr : fdopendir(number));
    if (!stream) Fail(path, "can't be read");
    DataDirectory::Listing files;
    errno = 0;
    while (const dirent* entry = readdir(stream.get())) {
        if (!IsOwnName(entry->d_name) && IsFile(directory, *entry))
            files[LowerCase(entry->d_name)].emplace_back(entry->d_name);
        errno = 0;
    }
    if (errno != 0) Fail(path, "can't be read");
    for (auto& [lowerName, spellings] : files) std::sort(spellings.begin(), spellings.end());
    return files;
}

}  // namespace

bool IsOwnName(std::string_view name) {
    const std::string lower = LowerCase(name);
    return lower == LockName || lower == JournalName || lower.starts_with(ScratchPrefix);
}

void ExpectDataName(std::string_view name) {
    if (name.empty() || name.size() > LongestName || name == "." || name == ".." || IsOwnName(name) ||
        name.find_first_of(std::string_view("/\0", 2)) != std::string_view::npos)
        throw RunTimeFailure(fmt::format("\"{}\" can't be the name of a data file.", name));
}

DataDirectory::DataDirectory(std::string path)
    : path_(std::move(path)), directory_(open(path_.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
    if (!directory_.IsOpen()) Fail(path_, "can't be read");
    if (!path_.ends_with('/')) path_ += '/';
}

std::optional<std::string> DataDirectory::Find(std::string_view name) {
    std::string lowerName = LowerCase(name);
    struct stat status {};
    if (fstatat(Number(), lowerName.c_str(), &status, 0) == 0) return lowerName;
    if (errno != ENOENT) Fail(lowerName, "can't be read");
    return FindOtherSpelling(lowerName);
}

std::optional<OpenedFile> DataDirectory::Open(std::string_view name) {
    const std::string lowerName = LowerCase(name);
    if (auto opened = OpenToRead(Number(), lowerName)) return opened;
    const auto spelling = FindOtherSpelling(lowerName);
    return spelling ? OpenToRead(Number(), *spelling) : std::nullopt;
}

const DataDirectory::Listing& DataDirectory::Files() {
    if (!held_ || !listing_) listing_ = FilesIn(Number(), path_);
    return *listing_;
}

void DataDirectory::HoldListing(bool held) {
    held_ = held;
    listing_.reset();
}

const std::string& DataDirectory::Chosen(const std::string& lowerName, const std::vector<std::string>& spellings) {
    const auto lower = std::find(spellings.begin(), spellings.end(), lowerName);
    return lower != spellings.end() ? *lower : spellings.front();
}

std::optional<std::string> DataDirectory::FindOtherSpelling(const std::string& lowerName) {
    const Listing& files = Files();
    const auto found = files.find(lowerName);
    if (found == files.end()) return std::nullopt;
    return Chosen(lowerName, found->second);
}

}  // namespace veraqua::files
