#include "cli/commands.h"
#include "screen/headless.h"
#include "workbench/forms/cuttings.h"
#include "workbench/forms/water_events.h"

namespace veraqua {

namespace {

/// The names of the controls of one kind of event.
struct EventControls {
    FormName Form;
    std::string_view Menu;  ///< of the workbench, which leads to the form
    std::string_view Date;
    std::string_view Amount;
    std::string_view Record;
    std::string_view Delete;
};

constexpr EventControls RainControls{FormName::frmAddWater, "mnuAdd",    "txtRainDate",
                                     "txtRainfall",         "cmdOKRain", "cmdDeleteR"};
constexpr EventControls IrrigationControls{FormName::frmAddWater, "mnuAdd",          "txtIrrAdd",
                                           "txtIrrigation",       "cmdOKIrrigation", "cmdDeleteI"};
constexpr EventControls CutControls{FormName::frmCuts, "mnuCuts", "txtCutAdd", "txtCutNumber", "cmdOKCut", "cmdDelete"};

const EventControls& ControlsOf(Water kind) { return kind == Water::Rain ? RainControls : IrrigationControls; }

/// Opens the form of the event from the workbench, does `doing` on it, and prints the row once the event is recorded.
/// What the user was told meanwhile is why it was not recorded, or not run.
template <class Doing>
int AtEventForm(Session& session, int row, const EventControls& controls, Doing doing) {
    if (!TakeUpFieldToRun(session, row)) return ExitRefused;
    const int before = session.Outside.Objections();
    At(FormName::frmField).Click(controls.Menu);
    if (!IsLoaded(controls.Form)) return ExitRefused;
    doing(At(controls.Form));
    const bool done = session.Outside.Objections() == before;
    if (done || The<frmAddWater>().Recorded || The<frmCuts>().Recorded) PrintRow(session, row);
    return done ? ExitDone : ExitRefused;
}

int Add(Session& session, int row, const EventControls& controls, const std::string& date, const std::string& amount) {
    return AtEventForm(session, row, controls, [&](At form) {
        form.Type(controls.Date, date).Type(controls.Amount, amount).Click(controls.Record);
    });
}

int Delete(Session& session, int row, const EventControls& controls, const std::string& date) {
    return AtEventForm(session, row, controls, [&](At form) { form.Type(controls.Date, date).Click(controls.Delete); });
}

}  // namespace

int RunWaterAdd(Session& session, int row, Water kind, const std::string& date, const std::string& amount) {
    return Add(session, row, ControlsOf(kind), date, amount);
}

int RunWaterDelete(Session& session, int row, Water kind, const std::string& date) {
    return Delete(session, row, ControlsOf(kind), date);
}

int RunCutAdd(Session& session, int row, const std::string& date, const std::string& number) {
    return Add(session, row, CutControls, date, number);
}

int RunCutDelete(Session& session, int row, const std::string& date) { return Delete(session, row, CutControls, date); }

}  // namespace veraqua
