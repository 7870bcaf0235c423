#include "cli/commands.h"
#include "core/base/numbers.h"
#include "core/base/units.h"
#include "core/files/files.h"
#include "core/state.h"
#include "workbench/cutting.h"

namespace veraqua {

namespace {

/// Does `deed` to the field of `row` and prints the row once the change is recorded.
template <class Deed>
int AtField(Session& session, int row, Deed deed) {
    if (!session.OpenData(files::Access::Write)) return ExitRefused;
    const files::ReadingOnce readingOnce;
    if (!TakeUpFieldToRun(session, row)) return ExitRefused;
    const OrRefused<FieldChange> outcome = deed();
    if (!outcome.IsDone()) return session.Refuse(outcome.Why());
    PrintRow(session, row);
    return outcome->Run == RunOutcome::Done ? ExitDone : ExitRefused;
}

/// 0 where none was read, after a message.
JulianValue DayOf(Session& session, const std::string& date) { return session.DateFrom(date).value_or(0); }

template <class Deed>
int AtHay(Session& session, int row, Deed deed) {
    return AtField(session, row, [&]() -> OrRefused<FieldChange> {
        if (!State.IsHay) return OnlyHayIsCut();
        return deed();
    });
}

}  // namespace

int RunWaterAdd(Session& session, int row, Water kind, const std::string& date, const std::string& amount) {
    return AtField(session, row, [&] {
        const JulianValue day = DayOf(session, date);
        std::optional<double> mm = Numeric(amount);
        if (mm && State.EnglishUnits) *mm *= MillimetresPerInch;
        return RecordWater(session.Outside, kind, day, mm);
    });
}

int RunWaterDelete(Session& session, int row, Water kind, const std::string& date) {
    return AtField(session, row, [&] { return RemoveWater(session.Outside, kind, DayOf(session, date)); });
}

int RunCutAdd(Session& session, int row, const std::string& date, const std::string& number) {
    return AtHay(session, row, [&] {
        const JulianValue day = DayOf(session, date);
        return RecordCutting(session.Outside, day, Numeric(number));
    });
}

int RunCutDelete(Session& session, int row, const std::string& date) {
    return AtHay(session, row, [&] { return RemoveCutting(session.Outside, DayOf(session, date)); });
}

}  // namespace veraqua
