#include "cli/commands.h"
#include "cli/field_text.h"
#include "core/directory.h"
#include "core/state.h"
#include "screen/headless.h"
#include "workbench/forms/field_menu.h"
#include "workbench/forms/harvest.h"

namespace veraqua {

namespace {

/// The names of the controls of an adjustment.
struct PanelControls {
    std::string_view Menu;
    std::string_view Value;
    std::string_view Accept;
};

constexpr PanelControls MadPanel{"mnu_MAD", "txtNewMAD", "cmdMADOK"};
constexpr PanelControls EfficiencyPanel{"mnuIEffic", "TxtNewIRR", "cmdIRROK"};
constexpr PanelControls DepletionPanel{"mnuDepletion", "TxtNewDepl", "cmdDeplOK"};

const PanelControls& PanelOf(Adjustment what) {
    switch (what) {
        case Adjustment::Mad: return MadPanel;
        case Adjustment::Efficiency: return EfficiencyPanel;
        case Adjustment::Depletion: break;
    }
    return DepletionPanel;
}

/// Presses `accept` on an open panel. An accepted panel goes after it has told so; whatever else was told is why it was
/// not done.
bool Accept(Session& session, std::string_view panel, std::string_view accept) {
    const int before = session.Outside.Objections();
    At(FormName::frmField).Click(accept);
    const bool accepted = !FormOf(FormName::frmField).Find(panel)->Shared().Visible;
    return accepted && session.Outside.Objections() == before + 1;
}

}  // namespace

int RunFieldSet(Session& session, int row, Adjustment what, const std::string& value,
                const std::optional<std::string>& critical) {
    if (!TakeUpFieldToRun(session, row)) return ExitRefused;
    if (critical && !State.IsHay) {
        session.Outside.Tell("Only hay has a critical MAD.");
        return ExitRefused;
    }
    const PanelControls& panel = PanelOf(what);
    At form(FormName::frmField);
    form.Click(panel.Menu).Type(panel.Value, value);
    if (what == Adjustment::Mad && State.IsHay)
        form.Type("txtNewMADC", critical.value_or(std::to_string(State.Hay.MADCritical)));
    return Accept(session, panel.Value, panel.Accept) ? PrintRow(session, row) : ExitRefused;
}

int RunFieldReset(Session& session, int row) {
    if (!TakeUpFieldToRun(session, row)) return ExitRefused;
    At(FormName::frmField).Click(DepletionPanel.Menu);
    return Accept(session, DepletionPanel.Value, "cmd_Reset") ? PrintRow(session, row) : ExitRefused;
}

int RunFieldHarvest(Session& session, int row) {
    if (!TakeUpField(session, row)) return ExitRefused;
    At(FormName::frmField).Click("mnuDelete");
    const std::string backup = The<frmField>().BackupName;
    if (backup.empty()) return ExitRefused;
    LoadFieldDirectory();  // the workbench's list shows IDs in capitals
    const std::vector<int> rows = RowsInUse();
    session.Print({{"backup", backup}, {"fields", JsonOfRows(rows)}}, TextOfRows(rows));
    return ExitDone;
}

int RunFieldRestore(Session& session, const std::string& backup) {
    if (!session.OpenData(files::Access::Write)) return ExitRefused;
    const std::optional<int> row = RestoreField(backup);
    return row ? PrintRow(session, *row) : ExitRefused;
}

}  // namespace veraqua
