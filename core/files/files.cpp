#include "core/files/files.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cassert>
#include <map>
#include <optional>
#include <utility>

#include <fmt/format.h>

#include "core/base/failure.h"
#include "core/base/text.h"
#include "core/files/commit.h"
#include "core/files/data_directory.h"
#include "core/files/directory_lock.h"
#include "core/files/journal.h"

namespace veraqua::files {

/// A file as it was read; without contents it isn't there.
struct SeenFile {
    std::string Spelling;
    std::shared_ptr<const Bytes> Contents;
};

struct OpenDirectory {
    explicit OpenDirectory(std::string path) : Directory(std::move(path)) {}

    DataDirectory Directory;
    DirectoryLock Lock;
    Changes Recorded;                                   ///< by a set of this program that could not be carried out yet
    std::vector<Changes> Sets;                          ///< the open change sets, the outermost first
    std::map<std::string, SeenFile, std::less<>> Seen;  ///< since the outermost set began, or the reading once
    bool ReadsOnce = false;
};

namespace {

std::uint64_t& Commits() {
    static std::uint64_t commits = 0;
    return commits;
}

std::optional<OpenDirectory>& Current() {
    static std::optional<OpenDirectory> current;
    return current;
}

OpenDirectory& Opened() {
    assert(Current());
    return *Current();
}

/// The journal as the directory shows it. By this a program without the lock sees that another one has been at work.
std::optional<struct stat> JournalStatus(const DataDirectory& directory) {
    struct stat status {};
    if (fstatat(directory.Number(), std::string(JournalName).c_str(), &status, 0) != 0) return std::nullopt;
    return status;
}

/// Gives what `look` finds, with the changes that are recorded and not carried out as its argument. `look` gives
/// nothing if what it saw was changing; it then looks again, and so it does if another program's journal came, went or
/// grew meanwhile.
template <class Look>
auto LookUntilSteady(OpenDirectory& opened, std::string_view name, Look look) {
    constexpr int enough = 100;
    for (int i = 0; i < enough; ++i) {
        if (opened.Lock.IsHeld()) {
            if (auto found = look(opened.Recorded)) return *std::move(found);
            continue;
        }
        const auto before = JournalStatus(opened.Directory);
        auto found = look(before ? ReadJournal(opened.Directory).value_or(Changes{}) : Changes{});
        const auto after = JournalStatus(opened.Directory);
        if (found && before.has_value() == after.has_value() && (!before || IsSame(*before, *after)))
            return *std::move(found);
    }
    throw RunTimeFailure(fmt::format("{} can't be read: another program keeps changing it.", name));
}

SeenFile ReadFromDisk(OpenDirectory& opened, std::string_view name) {
    return LookUntilSteady(opened, name, [&](const Changes& recorded) -> std::optional<SeenFile> {
        if (const auto change = recorded.find(LowerCase(name)); change != recorded.end())
            return SeenFile{change->second.Name, change->second.Contents};
        const auto file = opened.Directory.Open(name);
        if (!file) return SeenFile{};
        SeenFile seen{file->Name, std::make_shared<const Bytes>(ReadWhole(*file, LargestDataFile))};
        if (HasChanged(*file)) return std::nullopt;
        return seen;
    });
}

SeenFile ReadOnce(OpenDirectory& opened, std::string_view name) {
    if (opened.Sets.empty() && !opened.ReadsOnce) return ReadFromDisk(opened, name);
    const std::string key = LowerCase(name);
    const auto seen = opened.Seen.find(key);
    if (seen != opened.Seen.end()) return seen->second;
    return opened.Seen[key] = ReadFromDisk(opened, name);
}

/// What the open sets make of a file, or null if they leave it alone.
const Change* ChangeInSets(const OpenDirectory& opened, std::string_view name) {
    const std::string key = LowerCase(name);
    for (auto set = opened.Sets.rbegin(); set != opened.Sets.rend(); ++set)
        if (const auto change = set->find(key); change != set->end()) return &change->second;
    return nullptr;
}

using NamesByKey = std::map<std::string, std::string>;

void Apply(const Changes& changes, NamesByKey& names) {
    for (const auto& [key, change] : changes) {
        if (change.Contents)
            names.try_emplace(key, change.Name);
        else
            names.erase(key);
    }
}

void ForgetWhatWasSeen(OpenDirectory& opened) {
    if (!opened.ReadsOnce) opened.Seen.clear();
    opened.Directory.HoldListing(opened.Lock.IsHeld() && !opened.Sets.empty());
}

void EndSet(OpenDirectory& opened, std::size_t depth) {
    assert(opened.Sets.size() == depth);
    opened.Sets.pop_back();
    if (depth == 1) ForgetWhatWasSeen(opened);
}

/// The changes that make a difference, each under the name that its file has on the disk.
Changes RealChanges(OpenDirectory& opened, const Changes& wanted) {
    Changes real;
    for (const auto& [key, change] : wanted) {
        const SeenFile old = ReadOnce(opened, change.Name);
        const bool isSame =
            change.Contents && old.Contents ? *change.Contents == *old.Contents : !change.Contents && !old.Contents;
        if (!isSame) real[key] = Change{old.Contents ? old.Spelling : change.Name, change.Contents};
    }
    return real;
}

/// A set that could not be carried out stands before all others.
void FinishRecorded(OpenDirectory& opened) {
    if (opened.Recorded.empty()) return;
    try {
        FinishJournal(opened.Directory);
    } catch (const RunTimeFailure& failure) {  // says what waits
        throw RunTimeFailure(fmt::format("{} An earlier change is recorded and waits for this.", failure.what()));
    }
    opened.Recorded.clear();
    opened.Seen.clear();
    ForgetWhatWasSeen(opened);
}

void CommitOutermost(OpenDirectory& opened) {
    const Changes& wanted = opened.Sets.front();
    if (wanted.empty()) return;
    FinishRecorded(opened);
    Changes real = RealChanges(opened, wanted);
    if (real.empty()) return;
    assert(opened.Lock.IsHeld());
    ++Commits();
    try {
        CommitChanges(opened.Directory, real);
    } catch (const RecordedFailure& failure) {  // from here on the change counts
        opened.Recorded = std::move(real);
        opened.Seen.clear();
        throw RunTimeFailure(
            fmt::format("{} The change is recorded and will be completed at the next start.", failure.what()));
    } catch (const RunTimeFailure& failure) {
        throw RunTimeFailure(fmt::format("{} Nothing was changed.", failure.what()));
    }
    for (const auto& [key, change] : real)
        opened.Seen[key] = SeenFile{change.Contents ? change.Name : "", change.Contents};
}

void LockForWriting(OpenDirectory& opened) {
    const std::string& path = opened.Directory.Path();
    switch (opened.Lock.Take(opened.Directory.Number())) {
        case DirectoryLock::Outcome::Taken: return;
        case DirectoryLock::Outcome::Refused: Fail(path, "can't be written", opened.Lock.Error());
        case DirectoryLock::Outcome::HeldByAnother: break;
    }
    const pid_t holder = opened.Lock.Holder();
    const std::string process = holder != 0 ? fmt::format(" (process {})", holder) : "";
    throw Refusal(fmt::format("Another Veraqua{} is working in {}. Close it first.", process, path));
}

/// True if this program has got the lock and no journal stands in its way.
bool LockIfFree(OpenDirectory& opened) {
    if (opened.Lock.Take(opened.Directory.Number()) != DirectoryLock::Outcome::Taken) return false;
    try {
        FinishJournal(opened.Directory);
    } catch (const RunTimeFailure&) {
        opened.Lock.Release();  // a full disk, say: whoever only reads can still read what the journal holds
        return false;
    }
    ForgetWhatWasSeen(opened);
    return true;
}

}  // namespace

void Open(const std::string& path, Access access) {
    assert(!Current());
    OpenDirectory opened(path);
    if (access == Access::Write) {
        LockForWriting(opened);
        FinishJournal(opened.Directory);
    } else if (JournalStatus(opened.Directory) && LockIfFree(opened)) {
        opened.Lock.Release();
    }
    Current() = std::move(opened);
    ++Commits();
}

void Close() {
    assert(!Current() || Current()->Sets.empty());
    Current().reset();
}

SetAside::SetAside() {
    if (!Current()) return;
    assert(Current()->Sets.empty());
    aside_ = std::make_unique<OpenDirectory>(std::move(*Current()));
    Current().reset();
}

SetAside::~SetAside() {
    if (kept_) return;
    Close();
    if (aside_) Current() = std::move(*aside_);
}

const std::string& DirectoryPath() {
    static const std::string none;
    return Current() ? Current()->Directory.Path() : none;
}

bool MayWrite() {
    OpenDirectory& opened = Opened();
    return opened.Lock.IsHeld() || LockIfFree(opened);
}

bool Exists(std::string_view name) {
    ExpectDataName(name);
    OpenDirectory& opened = Opened();
    if (const Change* change = ChangeInSets(opened, name)) return change->Contents != nullptr;
    if (const auto seen = opened.Seen.find(LowerCase(name)); seen != opened.Seen.end())
        return seen->second.Contents != nullptr;
    return LookUntilSteady(opened, name, [&](const Changes& recorded) -> std::optional<bool> {
        const auto change = recorded.find(LowerCase(name));
        return change != recorded.end() ? change->second.Contents != nullptr : opened.Directory.Find(name).has_value();
    });
}

std::shared_ptr<const Bytes> Read(std::string_view name) {
    ExpectDataName(name);
    OpenDirectory& opened = Opened();
    if (const Change* change = ChangeInSets(opened, name)) return change->Contents;
    return ReadOnce(opened, name).Contents;
}

std::shared_ptr<const Bytes> ReadExisting(std::string_view name) {
    auto bytes = Read(name);
    if (!bytes) FailIn(name, "the file is missing.");
    return bytes;
}

std::vector<std::string> Names() {
    OpenDirectory& opened = Opened();
    const std::string& path = opened.Directory.Path();
    NamesByKey names = LookUntilSteady(opened, path, [&](const Changes& recorded) -> std::optional<NamesByKey> {
        NamesByKey found;
        for (const auto& [key, spellings] : opened.Directory.Files())
            found[key] = DataDirectory::Chosen(key, spellings);
        Apply(recorded, found);
        return found;
    });
    for (const Changes& set : opened.Sets) Apply(set, names);
    std::vector<std::string> sorted;
    for (auto& [key, name] : names) sorted.push_back(std::move(name));
    std::sort(sorted.begin(), sorted.end());
    return sorted;
}

void Write(std::string_view name, Bytes contents) {
    ExpectDataName(name);
    if (contents.size() > LargestDataFile)
        FailIn(name, fmt::format("{} bytes are too many for a data file.", contents.size()));
    ChangeSet set;
    Opened().Sets.back()[LowerCase(name)] = {std::string(name), std::make_shared<const Bytes>(std::move(contents))};
    set.Commit();
}

void Remove(std::string_view name) {
    ExpectDataName(name);
    ChangeSet set;
    Opened().Sets.back()[LowerCase(name)] = {std::string(name), nullptr};
    set.Commit();
}

void Rename(std::string_view from, std::string_view to) {
    ExpectDataName(to);
    ChangeSet set;
    const auto contents = Read(from);
    if (!contents) throw RunTimeFailure(fmt::format("{} is not there and can't become {}.", from, to));
    Changes& changes = Opened().Sets.back();
    changes[LowerCase(from)] = {std::string(from), nullptr};
    changes[LowerCase(to)] = {std::string(to), contents};
    set.Commit();
}

std::uint64_t ChangesMade() { return Commits(); }

ReadingOnce::ReadingOnce() {
    assert(!Opened().ReadsOnce && Opened().Sets.empty() && Opened().Lock.IsHeld());
    Opened().ReadsOnce = true;
}

ReadingOnce::~ReadingOnce() {
    Opened().ReadsOnce = false;
    Opened().Seen.clear();
}

ChangeSet::ChangeSet() {
    OpenDirectory& opened = Opened();
    opened.Sets.emplace_back();
    depth_ = opened.Sets.size();
    if (depth_ == 1) ForgetWhatWasSeen(opened);
}

ChangeSet::~ChangeSet() {
    if (!committed_) EndSet(Opened(), depth_);
}

void ChangeSet::Commit() {
    OpenDirectory& opened = Opened();
    assert(!committed_ && opened.Sets.size() == depth_);
    if (depth_ == 1) {
        CommitOutermost(opened);
    } else {
        Changes& outer = opened.Sets[depth_ - 2];
        for (auto& [key, change] : opened.Sets.back()) outer[key] = std::move(change);
    }
    committed_ = true;
    EndSet(opened, depth_);
}

}  // namespace veraqua::files
