#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "core/files/files.h"

/// The bytes of the redo journal: all changes of one set in one file that is either whole or nothing. The byte table
/// stands in docs/formats.md.
///
/// A journal knows two deeds only, new contents and deletion, so that it can be carried out any number of times and
/// from any half-way point. With renames it could not: "field3.dat becomes field2.dat, field4.dat becomes field3.dat",
/// run once more, would put field 4 in the place of field 2. So a rename is recorded as the contents under the new name
/// and the deletion of the old.
namespace veraqua::files {

/// What becomes of one file.
struct Change {
    std::string Name;                       ///< in the spelling that the disk has or gets
    std::shared_ptr<const Bytes> Contents;  ///< null: the file is deleted, in every spelling of its name
};

/// By the name in lower case.
using Changes = std::map<std::string, Change, std::less<>>;

/// RunTimeFailure if the changes are more than a journal may hold (256 MiB).
Bytes JournalBytes(const Changes& changes);

/// Bytes of the journal that begins with these, or 0 if they don't begin one.
std::size_t JournalSize(std::string_view firstBytes);

/// How many bytes `JournalSize` needs.
inline constexpr std::size_t JournalHeadSize = 24;

/// `bytes` may go on behind the journal. Nothing if they hold no whole one: then its writing was cut off, and no other
/// file has been touched. RunTimeFailure if it is whole but not of a kind that this program knows.
std::optional<Changes> ParseJournal(std::string_view bytes);

}  // namespace veraqua::files
