#pragma once

#include <optional>

#include "core/base/failure.h"
#include "core/files/data_directory.h"
#include "core/files/journal.h"

/// The road of a set of changes to the disk. What a power cut or a kill at each step leaves:
///
///   1. every file that is there is opened for writing and closed again             all is old
///   2. the journal is written, with room for the growth of the files behind it     all is old, a half journal to
///   discard
///   3. journal and directory are flushed: the decision                             old or new, as the journal is half
///   or whole
///   4. the room is given back, the files are written in place, one flush for all   new: the journal is whole and tells
///   it
///   5. the journal is removed                                                      new
namespace veraqua::files {

/// A failure after the decision. The journal stays; whoever opens the directory next carries it out.
class RecordedFailure : public RunTimeFailure {
  public:
    using RunTimeFailure::RunTimeFailure;
};

/// Makes `changes` true as a whole; there must be no whole journal. RecordedFailure if that has been decided but isn't
/// done; any other RunTimeFailure means that all is as before.
void CommitChanges(DataDirectory& directory, const Changes& changes);

/// Carries out a whole journal, removes a half one. RunTimeFailure if the disk refuses; the journal then stays.
void FinishJournal(DataDirectory& directory);

/// The changes of a whole journal, or nothing.
std::optional<Changes> ReadJournal(DataDirectory& directory);

}  // namespace veraqua::files
