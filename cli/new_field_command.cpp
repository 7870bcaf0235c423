#include <algorithm>

#include <fmt/format.h>

#include "cli/commands.h"
#include "core/base/numbers.h"
#include "core/base/text.h"
#include "core/state.h"
#include "screen/headless.h"
#include "workbench/forms/field_menu.h"
#include "workbench/forms/new_field.h"
#include "workbench/forms/soil_copy.h"

namespace veraqua {

namespace {

/// The parts of "12:1.7:1.5".
std::vector<std::string> Parts(const std::string& text) {
    std::vector<std::string> parts(1);
    for (const char c : text) {
        if (c == ':')
            parts.emplace_back();
        else
            parts.back() += c;
    }
    return parts;
}

/// Position in `list` of the first row that `is`; -1 if there is none.
template <class Is>
int PositionOf(const ComboBox& list, Is is) {
    const auto found = std::find_if(list.Items.begin(), list.Items.end(), is);
    return found == list.Items.end() ? -1 : static_cast<int>(found - list.Items.begin());
}

std::string Nth(std::string_view control, std::size_t index) { return fmt::format("{}({})", control, index); }

/// The user who enters a new field from the options of the command, form by form. He stops at the first objection.
class Entry {
  public:
    Entry(Session& session, const NewFieldOptions& options)
        : session_(session), options_(options), before_(session.Outside.Objections()) {}

    /// The row of the new field; nothing after a message.
    std::optional<int> Make() {
        session_.Outside.WhenShown(FormName::frmCopySoilData, [this] { AtSoilCopy(); });
        session_.Outside.WhenShown(FormName::frmCapVar, [this] { AtLayers(); });
        session_.Outside.WhenShown(FormName::frmCap, [this] { AtZones(); });
        if (!PickCrop()) return std::nullopt;
        const int row = State.CurrentField;
        if (!Describe()) return std::nullopt;
        At(FormName::frmLoadField).Click("cmd_OK");
        return State.Stat[row].LastDay > 0 ? std::optional(row) : std::nullopt;
    }

  private:
    bool Stopped() const { return session_.Outside.Objections() > before_; }

    bool Refuse(const std::string& why) {
        session_.Outside.Tell(why);
        return false;
    }

    bool PickCrop() {
        Show(FormName::frmField);
        At menu(FormName::frmField);
        menu.Click("mnuNew");
        if (Stopped()) return false;
        const std::string_view name = Trimmed(options_.Crop);
        const ComboBox& crops = The<frmField>().comboCrops;
        int crop = PositionOf(crops, [name](const ListItem& item) { return Trimmed(item.Text) == name; });
        if (crop < 0)
            crop = PositionOf(
                crops, [name](const ListItem& item) { return LowerCase(Trimmed(item.Text)) == LowerCase(name); });
        if (crop < 0) return Refuse(fmt::format("There is no crop \"{}\" in the crop table.", options_.Crop));
        menu.Pick("comboCrops", crop).Pick("Combo_Soils", options_.Layers.empty() ? 0 : 1).Click("cmd_OK");
        return !Stopped();
    }

    /// Fills the form about all that isn't soil.
    bool Describe() {
        if (!State.IsHay && (options_.MadCritical || options_.DryDays))
            return Refuse("A critical MAD and a drying time are for hay only.");
        At form(FormName::frmLoadField);
        form.Type("txtFieldID", options_.Id).Type("TxtPlantDate", options_.PlantDate);
        const std::optional<std::int32_t> station = WholeNumber(options_.Station);
        if (!station || *station < 1 || *station > static_cast<int>(State.DefaultStations.size()))
            return Refuse(fmt::format("\"{}\" is no station of weathdef.dat.", options_.Station));
        if (!form.Held()) form.Pick("ComboKESTA", *station - 1);
        if (Stopped()) return false;
        const auto type = [&form](std::string_view box, const std::optional<std::string>& text) {
            if (text) form.Type(box, *text);
        };
        type("txtIrrEff", options_.Efficiency);
        type("txtMAD", options_.Mad);
        type("txtMADcritical", options_.MadCritical);
        type(State.IsHay ? "txtRootD" : "txt_new_root", options_.Root);
        type("txtDry", options_.DryDays);
        if (options_.CopySoil) form.Click("Opt_current");
        return !form.Held();
    }

    void AtSoilCopy() {
        At form(FormName::frmCopySoilData);
        form.Click("cmdPreview");
        const int field = PositionOf(The<frmCopySoilData>().ComboField,
                                     [this](const ListItem& item) { return item.Data == *options_.CopySoil; });
        form.Pick("ComboField", field).Click("cmdSelect").Click("cmdOK");
    }

    void AtLayers() {
        At form(FormName::frmCapVar);
        for (std::size_t i = 0; i < options_.Layers.size(); ++i) {
            if (i > 0) form.Click("cmdDepth");
            if (form.Held() ||
                !FormOf(FormName::frmCapVar).Find(Nth("txtRoot", std::min<std::size_t>(i, 5)))->Shared().Visible ||
                i > 5)
                return;
            const std::vector<std::string> parts = Parts(options_.Layers[i]);
            form.Type(Nth("txtRoot", i), parts[0]).Type(Nth("txtcap", i), parts[1]).Type(Nth("txtcon", i), parts[2]);
        }
        form.Click("cmdOK");
    }

    void AtZones() {
        const int atOpening = session_.Outside.Objections();
        At form(FormName::frmCap);
        if (options_.Interval) form.Type("txtDepth", *options_.Interval).Click("cmdDepth");
        for (std::size_t i = 0; i < options_.Zones.size() && !form.Held(); ++i) {
            const ControlEntry* zone = FormOf(FormName::frmCap).Find(Nth("txtcap", i));
            if (zone == nullptr || !zone->Shared().Visible) {
                // An interval that was refused has been told of.
                if (session_.Outside.Objections() == atOpening)
                    Refuse(fmt::format("The interval gives {} zones, not {}.", i, options_.Zones.size()));
                return;
            }
            const std::vector<std::string> parts = Parts(options_.Zones[i]);
            form.Type(Nth("txtcap", i), parts[0]).Type(Nth("txtcon", i), parts[1]);
        }
        form.Click("cmdOK");
    }

    Session& session_;
    const NewFieldOptions& options_;
    int before_;
};

}  // namespace

int RunFieldNew(Session& session, const NewFieldOptions& options) {
    if (!session.OpenData(files::Access::Write)) return ExitRefused;
    if (options.CopySoil && !IsField(session, *options.CopySoil)) return ExitRefused;
    // Where the run fails, the default weather that was taken for it goes as well.
    files::ChangeSet changes;
    const std::optional<int> row = Entry(session, options).Make();
    changes.Commit();
    if (!row) return ExitRefused;
    PrintRow(session, *row);
    const std::optional<RunOutcome> outcome = The<frmLoadField>().FirstRun;
    return outcome == RunOutcome::Done || outcome == RunOutcome::NothingToUpdate ? ExitDone : ExitRefused;
}

}  // namespace veraqua
