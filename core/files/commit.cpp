#include "core/files/commit.h"

#include <fcntl.h>

#include <algorithm>

#include <fmt/format.h>

namespace veraqua::files {

namespace {

const std::string JournalFile(JournalName);

struct WholeJournal {
    Changes Contents;
    std::size_t Size = 0;
};

std::optional<WholeJournal> WholeJournalIn(const OpenedFile& file) {
    const std::size_t size = JournalSize(ReadFirst(file, JournalHeadSize));
    if (size == 0 || size > static_cast<std::size_t>(file.Status.st_size)) return std::nullopt;
    auto changes = ParseJournal(ReadFirst(file, size));
    if (!changes) return std::nullopt;
    return WholeJournal{std::move(*changes), size};
}

void FlushDirectory(const DataDirectory& directory) {
    if (CurrentDisk().Flush(directory.Number()) != 0) Fail(directory.Path(), "can't be written");
}

/// Bytes that the files will take on the disk above what they take now. Opens each that is there for writing, so that
/// one that refuses is met while all is old.
std::size_t RoomFor(const DataDirectory& directory, const Changes& changes) {
    struct stat status {};
    if (fstat(directory.Number(), &status) != 0) Fail(directory.Path(), "can't be read");
    const auto block = static_cast<std::size_t>(status.st_blksize);
    std::size_t room = 0;
    bool isNew = false;
    for (const auto& [key, change] : changes) {
        if (!change.Contents) continue;
        const auto file = OpenToWrite(directory.Number(), change.Name, O_WRONLY);
        const std::size_t has = file ? static_cast<std::size_t>(file->Status.st_blocks) * 512 : 0;
        const std::size_t needs = (change.Contents->size() + block - 1) / block * block;
        room += needs - std::min(needs, has);
        isNew = isNew || !file;
    }
    return isNew ? room + block : room;  // one block for the names in the directory
}

/// Takes away a journal that must not come true, not even by a power cut that brings back what isn't flushed.
void Discard(const DataDirectory& directory) {
    CurrentDisk().Unlink(directory.Number(), JournalFile.c_str());
    CurrentDisk().Flush(directory.Number());
}

/// Steps 2 and 3.
OpenedFile Record(DataDirectory& directory, const Bytes& bytes, std::size_t room) {
    auto journal = OpenToWrite(directory.Number(), JournalFile, O_RDWR | O_CREAT | O_TRUNC);
    try {
        WriteFirst(*journal, bytes);
        const auto end = static_cast<off_t>(bytes.size());
        if (room > 0 && CurrentDisk().Reserve(journal->File.Number(), end, static_cast<off_t>(room)) != 0)
            Fail(directory.Path(), fmt::format("has no room for {} bytes more", room));
        Flush(*journal);
        FlushDirectory(directory);
    } catch (const RunTimeFailure& failure) {  // half a journal is to go
        Discard(directory);
        if (ReadJournal(directory)) throw RecordedFailure(failure.what());  // the disk refuses even that
        throw;
    }
    return std::move(*journal);
}

void WriteInPlace(const DataDirectory& directory, const Change& change) {
    const auto file = OpenToWrite(directory.Number(), change.Name, O_WRONLY | O_CREAT);
    WriteFirst(*file, *change.Contents);
    if (static_cast<std::size_t>(file->Status.st_size) > change.Contents->size())
        SetSize(*file, change.Contents->size());
}

void Delete(const DataDirectory& directory, const std::vector<std::string>& spellings) {
    for (const std::string& spelling : spellings)
        if (CurrentDisk().Unlink(directory.Number(), spelling.c_str()) != 0) Fail(spelling, "can't be deleted");
}

/// Steps 4 and 5.
void CarryOut(DataDirectory& directory, const OpenedFile& journal, std::size_t journalSize, const Changes& changes) {
    SetSize(journal, journalSize);
    std::optional<DataDirectory::Listing> files;  // for deletions only: a catch-up has none
    for (const auto& [key, change] : changes) {
        if (change.Contents) {
            WriteInPlace(directory, change);
        } else {
            if (!files) files = directory.Files();
            if (const auto found = files->find(key); found != files->end()) Delete(directory, found->second);
        }
    }
    if (CurrentDisk().FlushFileSystem(directory.Number()) != 0) Fail(directory.Path(), "can't be written");
    if (CurrentDisk().Unlink(directory.Number(), JournalFile.c_str()) != 0) Fail(JournalName, "can't be deleted");
}

}  // namespace

void CommitChanges(DataDirectory& directory, const Changes& changes) {
    const std::size_t room = RoomFor(directory, changes);
    const Bytes bytes = JournalBytes(changes);
    const OpenedFile journal = Record(directory, bytes, room);
    try {
        CarryOut(directory, journal, bytes.size(), changes);
    } catch (const RunTimeFailure& failure) {  // after the decision
        throw RecordedFailure(failure.what());
    }
}

void FinishJournal(DataDirectory& directory) {
    const auto journal = OpenToWrite(directory.Number(), JournalFile, O_RDWR);
    if (!journal) return;
    const auto whole = WholeJournalIn(*journal);
    if (!whole) {
        if (CurrentDisk().Unlink(directory.Number(), JournalFile.c_str()) != 0) Fail(JournalName, "can't be deleted");
        return;
    }
    // Whoever wrote it may have died before its flush; without one a power cut amid the files would lose both.
    Flush(*journal);
    FlushDirectory(directory);
    CarryOut(directory, *journal, whole->Size, whole->Contents);
}

std::optional<Changes> ReadJournal(DataDirectory& directory) {
    const auto journal = OpenToRead(directory.Number(), JournalFile);
    if (!journal) return std::nullopt;
    auto whole = WholeJournalIn(*journal);
    if (!whole) return std::nullopt;
    return std::move(whole->Contents);
}

}  // namespace veraqua::files
