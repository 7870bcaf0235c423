#include "core/files/journal.h"

#include <cstdint>

#include <fmt/format.h>
#include <zlib.h>

#include "core/base/archive.h"
#include "core/base/failure.h"
#include "core/base/text.h"
#include "core/files/data_directory.h"

namespace veraqua::files {

namespace {

constexpr std::string_view JournalMagic = "VERAQUAJ";
constexpr std::int32_t KnownVersion = 1;
constexpr std::size_t LargestJournal = std::size_t{256} << 20;
constexpr std::int32_t Deleted = -1;

/// Stands at the start.
struct JournalHead {
    FixedText<8> Magic;
    std::int32_t Checksum = 0;  ///< CRC-32 of all that follows it
    std::int32_t Version = KnownVersion;
    std::int32_t ChangesSize = 0;  ///< bytes of the changes behind the head
    std::int32_t ChangeCount = 0;
};

template <class Archive, class Head>
    requires std::same_as<std::remove_const_t<Head>, JournalHead>
constexpr void Layout(Archive& archive, Head& head) {
    archive(head.Magic);        // byte 0
    archive(head.Checksum);     // 8
    archive(head.Version);      // 12
    archive(head.ChangesSize);  // 16
    archive(head.ChangeCount);  // 20
}
constexpr std::size_t CheckedFrom = 12;

/// Stands before the name and the contents of each change.
struct ChangeHead {
    std::int32_t NameSize = 0;
    std::int32_t ContentsSize = 0;  ///< `Deleted` where the file goes
};

template <class Archive, class Head>
    requires std::same_as<std::remove_const_t<Head>, ChangeHead>
constexpr void Layout(Archive& archive, Head& head) {
    archive(head.NameSize);
    archive(head.ContentsSize);
}

std::int32_t ChecksumOf(std::string_view bytes) {
    const auto* data = reinterpret_cast<const Bytef*>(bytes.data());  // zlib's own view of bytes
    return static_cast<std::int32_t>(crc32_z(0, data, bytes.size()));
}

/// The next `size` bytes. RunTimeFailure if there aren't so many.
std::string_view Take(Reader& reader, std::string_view bytes, std::int32_t size) {
    if (size < 0) reader.Refuse("a negative length");
    const std::size_t start = reader.Position();
    reader.Skip(static_cast<std::size_t>(size));
    return bytes.substr(start, static_cast<std::size_t>(size));
}

Change TakeChange(Reader& reader, std::string_view bytes) {
    ChangeHead head;
    Layout(reader, head);
    Change change;
    change.Name = Take(reader, bytes, head.NameSize);
    ExpectDataName(change.Name);
    if (head.ContentsSize != Deleted)
        change.Contents = std::make_shared<const Bytes>(Take(reader, bytes, head.ContentsSize));
    return change;
}

}  // namespace

Bytes JournalBytes(const Changes& changes) {
    std::size_t size = 0;
    for (const auto& [key, change] : changes)
        size += StoredSize<ChangeHead>() + change.Name.size() + (change.Contents ? change.Contents->size() : 0);
    if (size > LargestJournal) FailIn(JournalName, fmt::format("changes of {} bytes at once are too many.", size));

    JournalHead head;
    head.Magic = JournalMagic;
    head.ChangesSize = static_cast<std::int32_t>(size);
    head.ChangeCount = static_cast<std::int32_t>(changes.size());
    Bytes bytes;
    bytes.reserve(JournalHeadSize + size);
    Writer writer(bytes);
    Layout(writer, head);
    for (const auto& [key, change] : changes) {
        ChangeHead changeHead{static_cast<std::int32_t>(change.Name.size()), Deleted};
        if (change.Contents) changeHead.ContentsSize = static_cast<std::int32_t>(change.Contents->size());
        Layout(writer, changeHead);
        bytes += change.Name;
        if (change.Contents) bytes += *change.Contents;
    }

    head.Checksum = ChecksumOf(std::string_view(bytes).substr(CheckedFrom));
    Bytes finalHead;
    Writer headWriter(finalHead);
    Layout(headWriter, head);
    return bytes.replace(0, finalHead.size(), finalHead);
}

std::size_t JournalSize(std::string_view firstBytes) {
    static_assert(StoredSize<JournalHead>() == JournalHeadSize);
    if (firstBytes.size() < JournalHeadSize || !firstBytes.starts_with(JournalMagic)) return 0;
    Reader reader(firstBytes, JournalName);
    JournalHead head;
    Layout(reader, head);
    const auto size = static_cast<std::size_t>(head.ChangesSize);
    return head.ChangesSize < 0 || size > LargestJournal ? 0 : JournalHeadSize + size;
}

std::optional<Changes> ParseJournal(std::string_view bytes) {
    const std::size_t size = JournalSize(bytes);
    if (size == 0 || size > bytes.size()) return std::nullopt;
    bytes = bytes.substr(0, size);
    Reader reader(bytes, JournalName);
    JournalHead head;
    Layout(reader, head);
    if (head.Checksum != ChecksumOf(bytes.substr(CheckedFrom))) return std::nullopt;
    if (head.Version != KnownVersion)
        FailIn(JournalName, fmt::format("version {} was left by a newer Veraqua, which must finish it.", head.Version));
    Changes changes;
    for (std::int32_t i = 0; i < head.ChangeCount; ++i) {
        Change change = TakeChange(reader, bytes);
        changes[LowerCase(change.Name)] = std::move(change);
    }
    if (reader.Position() != bytes.size()) reader.Refuse("more bytes than its changes have");
    return changes;
}

}  // namespace veraqua::files
