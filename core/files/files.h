#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

/// The one place that touches the disk. All data lie in one directory; names in it are found without regard to case:
/// the lower-case spelling first, else the spelling that is there, else (for a new file) the name as given. Whole files
/// are read, and changes reach the disk as sets, all or none.
namespace veraqua::files {

using Bytes = std::string;

enum class Access {
    Read,  ///< takes nothing: where no program is at work it finishes a journal that a dead one left, else reads around
           ///< it
    Write,  ///< holds the directory's lock until `Close`
};

/// Opens the data directory (`path` ends in "/" or not). With `Write`, a Refusal if another program
/// holds it (the text names that process). RunTimeFailure if it can't be read, or with `Write` can't be written. A
/// whole journal found is carried out, a half one removed.
void Open(const std::string& path, Access access);

/// Gives the lock back and forgets the directory. Without an open directory it does nothing.
void Close();

struct OpenDirectory;

/// Sets the open directory aside, with its lock, so that another one can be opened, which is another indeed. What is
/// open at its end is closed, and the directory comes back; after `Keep` the other one stays and this one is closed.
class SetAside {
  public:
    SetAside();
    ~SetAside();
    SetAside(const SetAside&) = delete;
    SetAside& operator=(const SetAside&) = delete;

    void Keep() { kept_ = true; }

  private:
    std::unique_ptr<OpenDirectory> aside_;
    bool kept_ = false;
};

/// With a final "/". Empty when no directory is open.
const std::string& DirectoryPath();

/// With `Access::Read`: true where a change may be made all the same, because no other program holds the directory and
/// it can be written; the lock is taken for that. Used for the two directory files of a first start.
bool MayWrite();

bool Exists(std::string_view name);

/// Contents of a file of the data directory, or null if there is none. RunTimeFailure if it can't be read. Inside a
/// change set a file is read from the disk once.
std::shared_ptr<const Bytes> Read(std::string_view name);

/// The same; without such a file a RunTimeFailure.
std::shared_ptr<const Bytes> ReadExisting(std::string_view name);

/// Names of all files in the data directory, in the spelling of the disk, sorted; the lock and the journal are left
/// out.
std::vector<std::string> Names();

/// The file is there afterwards, with these contents. Contents that it has already cost no access to the disk.
void Write(std::string_view name, Bytes contents);

/// The file is not there afterwards, in any spelling.
void Remove(std::string_view name);

/// RunTimeFailure if there is no file `from`. A file `to` is replaced.
void Rename(std::string_view from, std::string_view to);

/// A set of changes that becomes true as a whole. Every `Write`, `Remove` and `Rename` while it lives is kept in
/// memory, where `Read` and `Exists` see it, until `Commit`. A set inside another joins it: its `Commit` hands its
/// changes to the outer one. A set that ends without `Commit` leaves no trace. A change without a set is a set of its
/// own.
class ChangeSet {
  public:
    ChangeSet();
    ~ChangeSet();
    ChangeSet(const ChangeSet&) = delete;
    ChangeSet& operator=(const ChangeSet&) = delete;

    /// RunTimeFailure if the disk refuses; then either nothing has changed, or the text says that the change is
    /// recorded and will be completed by the next start.
    void Commit();

  private:
    std::size_t depth_;  ///< 1 for the outermost set
    bool committed_ = false;
};

/// How often this program has opened a directory or made a set of changes true: what was read before holds as long as
/// it stays the same.
std::uint64_t ChangesMade();

/// While it lives, a file is read from the disk once, across change sets too: for a deed in a directory whose lock this
/// program holds, so that nobody else changes a file meanwhile.
class ReadingOnce {
  public:
    ReadingOnce();
    ~ReadingOnce();
    ReadingOnce(const ReadingOnce&) = delete;
    ReadingOnce& operator=(const ReadingOnce&) = delete;
};

/// A text that leaves the program, such as a report: written whole beside its place and renamed into it, so that an old
/// file of that name stays until the new one is complete. A Refusal if the disk refuses, if the old file is
/// write-protected or if the name belongs to something that isn't a file.
void WriteOutside(const std::string& path, std::string_view contents);

/// A file that the user names, anywhere. A Refusal if it can't be read or is larger than `limit` bytes.
Bytes ReadOutside(const std::string& path, std::size_t limit);

bool DirectoryExists(const std::string& path);

/// Names of the files in any directory, sorted; what lies in it otherwise is left out. A Refusal, with the system's
/// reason, if it can't be read.
std::vector<std::string> FilesIn(const std::string& path);

/// Whether a report saved to `path` would replace a file.
bool FileExists(const std::string& path);

/// Whether the two paths lead to one directory, links followed. An empty path is the working directory.
bool SameDirectory(const std::string& a, const std::string& b);

/// Makes `path` and what is missing above it. A Refusal if the disk refuses.
void MakeDirectory(const std::string& path);

}  // namespace veraqua::files
