#include "core/field_file.h"

#include <algorithm>
#include <limits>

#include <fmt/format.h>

#include "core/directory.h"
#include "core/state.h"

namespace veraqua {

namespace {

/// One list of a field file after the other, in file order.
template <class Lists, class Visit>
void EachList(Lists& lists, bool isHay, Visit visit) {
    visit(lists.History);
    visit(lists.Leaching);
    visit(lists.MadChanges);
    visit(lists.EfficiencyChanges);
    visit(lists.DepletionChanges);
    visit(lists.Rain);
    if (isHay) visit(lists.Cuttings);
    visit(lists.Irrigation);
}

/// The records of `File` (a FieldFile, const for writing) in file order, over an archive.
template <class Archive, class File>
class FieldFileLayout {
  public:
    FieldFileLayout(Archive& archive, File& file) : archive_(archive), file_(file) {}

    void Header() {
        if (file_.IsHay)
            Layout(archive_, file_.Hay);
        else
            Layout(archive_, file_.Field);
    }

    void SoilArrays() {
        for (int zone = 0; zone <= file_.Header().CapacityTop; ++zone) archive_(file_.Soil.Capacity[At(zone)]);
        for (int zone = 0; zone <= file_.Header().ContentTop; ++zone) archive_(file_.Soil.Content[At(zone)]);
        archive_(file_.Soil.Bounds);
    }

    void DayRows() {
        for (auto& day : file_.Days) Layout(archive_, day);
    }

    void Lists() {
        EachList(file_.Lists, file_.IsHay, [this](auto& list) {
            for (auto& record : list) this->Record(record);
        });
    }

    /// Bytes that one record of `list` takes.
    template <class List>
    std::size_t Width(const List&) const {
        if constexpr (std::same_as<List, decltype(FieldLists::History)>)
            return sizeof(JulianValue) + sizeof(std::int16_t) * At(file_.Header().ContentTop + 1);
        else
            return StoredSize<typename List::value_type>();
    }

  private:
    static std::size_t At(int zone) { return static_cast<std::size_t>(zone); }

    template <class R>
    void Record(R& record) {
        if constexpr (std::same_as<std::remove_const_t<R>, ProfileRecord>) {
            archive_(record.Day);
            for (int zone = 0; zone <= file_.Header().ContentTop; ++zone) archive_(record.Content[At(zone)]);
        } else {
            Layout(archive_, record);
        }
    }

    Archive& archive_;
    File& file_;
};

/// The days of the longest season that a field file can hold, and the day behind it, are possible days too.
constexpr JulianValue LatestPlantDay = LatestPossibleDay - std::numeric_limits<std::int16_t>::max() - 1;

void CheckHeader(const HeaderCommon& header, bool isHay, std::string_view fileName) {
    const auto refuse = [fileName](const std::string& what) { FailIn(fileName, fmt::format("{}.", what)); };
    if ((header.CropName.First() == HayMark) != isHay)
        refuse(fmt::format("the crop \"{}\" is not of the kind that the field directory has", header.CropName.Text()));
    for (const int top : {header.CapacityTop, header.ContentTop})
        if (top < 0 || top > HighestZone) refuse(fmt::format("the header says that the highest soil zone is {}", top));
    if (header.PlantDay < 1 || header.PlantDay > LatestPlantDay)
        refuse(fmt::format("the header has the impossible planting day {}", header.PlantDay));
}

template <class Record>
void CheckDays(const std::vector<Record>& list, std::string_view fileName) {
    for (const Record& record : list)
        if (!IsPossibleDay(record.Day)) FailIn(fileName, fmt::format("a list has the impossible day {}.", record.Day));
}

std::size_t TakeCount(Reader& reader, std::string_view what) {
    std::int16_t count = 0;
    reader(count);
    if (count < 0) reader.Refuse(fmt::format("{} {}", count, what));
    return static_cast<std::size_t>(count);
}

std::int16_t Count16(std::size_t count, std::string_view what) {
    if (count > static_cast<std::size_t>(std::numeric_limits<std::int16_t>::max()))
        throw RunTimeFailure(fmt::format("Overflow: a field file can't hold {} {}.", count, what));
    return static_cast<std::int16_t>(count);
}

/// A list of one record with value 0 stands for a list without records. A profile of zeros is a real one.
bool IsLoneZero(const std::vector<ProfileRecord>& list) { return list.size() == 1 && list[0].Day == 0; }
bool IsLoneZero(const std::vector<EventRecord>& list) { return list.size() == 1 && list[0].Amount == 0; }
bool IsLoneZero(const std::vector<EfficiencyRecord>& list) { return list.size() == 1 && list[0].Value == 0; }

template <class Record>
void MergeAfter(std::vector<Record>& old, JulianValue seamDay, const std::vector<Record>& added) {
    const auto firstLater =
        std::find_if(old.begin(), old.end(), [seamDay](const Record& record) { return record.Day > seamDay; });
    old.erase(firstLater, old.end());
    old.insert(old.end(), added.begin(), added.end());
}

/// Puts new content in place of an old list. True if there was any.
template <class Record>
bool Replace(std::vector<Record>& old, const std::vector<Record>& added, bool removed) {
    if (added.empty() && !removed) return false;
    old = added;
    return true;
}

void ReplaceRows(FieldFile& file, const FieldChanges& changes) {
    const JulianValue row = changes.StartDay - file.Header().PlantDay;
    if (row < 0 || static_cast<std::size_t>(row) > file.Days.size())
        throw RunTimeFailure(fmt::format("Day rows from {} on don't join the {} rows of the field planted on {}.",
                                         JulianToLongText(changes.StartDay), file.Days.size(),
                                         JulianToLongText(file.Header().PlantDay)));
    file.Days.resize(static_cast<std::size_t>(row));
    file.Days.insert(file.Days.end(), changes.Days.begin(), changes.Days.end());
}

FieldFile Parsed(const files::Bytes& bytes, int row) {
    try {
        return ParseFieldFile(bytes, State.Stat[row].CropName.First() == HayMark, FieldFileTitle(row));
    } catch (const RunTimeFailure& failure) {  // a damaged file needs the user
        throw RunTimeFailure(
            fmt::format("{} Put a copy of the file in its place, or harvest the field, which keeps its bytes "
                        "(veraqua-cli: field harvest {} --damaged).",
                        failure.what(), row));
    }
}

}  // namespace

FieldFile ParseFieldFile(std::string_view bytes, bool isHay, std::string_view fileName) {
    FieldFile file;
    file.IsHay = isHay;
    Reader reader(bytes, fileName);
    FieldFileLayout layout(reader, file);

    const std::size_t lastRow = TakeCount(reader, "as the last day row");
    layout.Header();
    CheckHeader(file.Header(), isHay, fileName);
    layout.SoilArrays();

    reader.Expect((lastRow + 1) * StoredSize<DayRecord>());
    file.Days.resize(lastRow + 1);
    layout.DayRows();

    std::size_t listBytes = 0;
    EachList(file.Lists, isHay, [&](auto& list) {
        const std::size_t count = TakeCount(reader, "records in a list");
        listBytes += count * layout.Width(list);
        reader.Expect(listBytes);
        list.resize(count);
    });
    reader.Expect(listBytes);
    layout.Lists();
    EachList(file.Lists, isHay, [fileName](const auto& list) { CheckDays(list, fileName); });
    return file;
}

files::Bytes FieldFileBytes(const FieldFile& file) {
    files::Bytes bytes;
    bytes.reserve(512 + file.Days.size() * StoredSize<DayRecord>());
    Writer writer(bytes);
    FieldFileLayout layout(writer, file);
    writer(Count16(file.Days.size() - 1, "day rows"));
    layout.Header();
    layout.SoilArrays();
    layout.DayRows();
    EachList(file.Lists, file.IsHay, [&](auto& list) { writer(Count16(list.size(), "records in a list")); });
    layout.Lists();
    return bytes;
}

DayView AsOf(const FieldFile& file, JulianValue day) {
    const JulianValue plantDay = file.Header().PlantDay;
    const auto lastRow = static_cast<JulianValue>(file.Days.size()) - 1;
    const JulianValue row = std::clamp(day - plantDay, 0, lastRow);
    DayView view{plantDay + row, static_cast<std::size_t>(row), file.Soil.Content};
    JulianValue from = 0;
    for (const ProfileRecord& profile : file.Lists.History) {
        if (view.Day >= from && view.Day < profile.Day) view.Content = profile.Content;
        from = profile.Day;
    }
    return view;
}

JulianValue StateDay(const StatRecord& row, JulianValue today) { return std::min(row.LastDay + 1, today); }

float TotalAmount(const std::vector<EventRecord>& events) {
    float total = 0;
    for (const EventRecord& event : events) total += static_cast<float>(event.Amount);
    return total;
}

FieldFile LoadFieldFile(int row) { return Parsed(*files::ReadExisting(FieldFileName(row)), row); }

std::optional<FieldFile> OpenField(Ask& ask, int row) {
    const std::string name = FieldFileName(row);
    if (const auto bytes = files::Read(name)) return Parsed(*bytes, row);
    ask.Tell("This is not good. :-( Your field file is missing...  Select another.", "FIELD:  " + name);
    return std::nullopt;
}

void WriteField(FieldFile& file, const FieldChanges& changes) {
    const FieldLists& added = changes.Lists;
    FieldLists& lists = file.Lists;
    if (!changes.Days.empty()) ReplaceRows(file, changes);
    if (changes.Merge) {
        MergeAfter(lists.History, changes.SeamDay, added.History);
        MergeAfter(lists.Leaching, changes.SeamDay, added.Leaching);
    }
    // Rows of another number move all lists, so that all are written anew.
    bool rewritten = changes.Merge || !changes.Days.empty();
    const auto finish = [&rewritten](auto& list, bool isNew) {
        rewritten = rewritten || isNew;
        if (rewritten && IsLoneZero(list)) list.clear();
    };
    finish(lists.History, false);
    finish(lists.Leaching, false);
    finish(lists.MadChanges, Replace(lists.MadChanges, added.MadChanges, false));
    finish(lists.EfficiencyChanges, Replace(lists.EfficiencyChanges, added.EfficiencyChanges, false));
    finish(lists.DepletionChanges, Replace(lists.DepletionChanges, added.DepletionChanges, false));
    finish(lists.Rain, Replace(lists.Rain, added.Rain, changes.RainRemoved));
    finish(lists.Cuttings, Replace(lists.Cuttings, added.Cuttings, changes.CutsRemoved));
    finish(lists.Irrigation, Replace(lists.Irrigation, added.Irrigation, changes.IrrigationRemoved));
}

void StoreFieldFile(int row, const FieldFile& file) { files::Write(FieldFileName(row), FieldFileBytes(file)); }

}  // namespace veraqua
