#include "workbench/forms/soil_zones.h"

#include <optional>

#include <fmt/format.h>

#include "core/base/numbers.h"
#include "core/base/units.h"
#include "core/state.h"
#include "screen/field_caption.h"
#include "screen/forms.h"
#include "screen/screen.h"
#include "workbench/forms/new_field.h"
#include "workbench/forms/soil_entry.h"

namespace veraqua {

namespace {

std::size_t Zone(int zone) { return static_cast<std::size_t>(zone); }

void SetZoneVisible(frmCap& form, std::size_t zone, bool visible) {
    form.lblCapacity[zone].Visible = form.txtcap[zone].Visible = visible;
    form.lblContent[zone].Visible = form.txtcon[zone].Visible = visible;
    if (visible) return;
    form.txtcap[zone].Text.clear();
    form.txtcon[zone].Text.clear();
}

/// Shows zones 0 to `top` of `interval`, as entered, and empties the others.
void ShowZones(frmCap& form, int top, double interval) {
    const auto depth = [interval](int boundary) {
        return Masked(boundary * interval, State.EnglishUnits ? "00" : "000");
    };
    for (int i = 0; i < MostZones; ++i) {
        SetZoneVisible(form, Zone(i), i <= top);
        const std::string span =
            fmt::format("from {} to {}{}", depth(i), depth(i + 1), State.EnglishUnits ? " in." : " mm");
        form.lblCapacity[Zone(i)].Caption = "Capacity " + span;
        form.lblContent[Zone(i)].Caption = "Content " + span;
    }
}

void cmdDepth_Click(frmCap& form) {
    const std::optional<double> interval = Numeric(form.txtDepth.Text);
    if (const std::optional<Refused> refused = form.Entry.TakeInterval(interval))
        return RefuseEntry(form.txtDepth, *refused);
    ShowZones(form, form.Entry.ZoneTop, *interval);
    form.AcceptedDepth = form.txtDepth.Text;
}

/// Whether another interval stands in the box than the zones have, and the user wants that one.
bool TakesOtherInterval(frmCap& form) {
    if (form.Entry.ZoneTop < 0 || Numeric(form.txtDepth.Text) == Numeric(form.AcceptedDepth)) return false;
    const std::string question =
        fmt::format("The zones below have a depth interval of {}, and {} was not accepted yet. Do you wish to use {}?",
                    form.AcceptedDepth, form.txtDepth.Text, form.txtDepth.Text);
    if (TheScreen().YesNo(question, "Depth Interval", Icon::Question, false)) return true;
    form.txtDepth.Text = form.AcceptedDepth;
    return false;
}

// ------------------------------------------------------------------------------------------------ checks while typing

bool IsCopied() { return The<frmLoadField>().Copied.SoilCopied; }

bool txtcap_Leave(frmCap& form, int zone) {
    const TextBox& box = form.txtcap[Zone(zone)];
    return IsCopied() || MayLeave(box, CheckCapacity(box.Text, Zone(zone)));
}

bool txtcon_Leave(frmCap& form, int zone) {
    const TextBox& box = form.txtcon[Zone(zone)];
    return IsCopied() || MayLeave(box, CheckContent(box.Text, Zone(zone)));
}

void txtcap_Enter(frmCap& form, int zone) {
    if (txtcap_Leave(form, zone)) Focus(form.txtcon[Zone(zone)]);
}

/// On to the next zone, which is there already.
void txtcon_Enter(frmCap& form, int zone) {
    if (!txtcon_Leave(form, zone)) return;
    if (zone < form.Entry.ZoneTop)
        Focus(form.txtcap[Zone(zone + 1)]);
    else
        Focus(form.cmdOK);
}

// ---------------------------------------------------------------------------------------------------- the form's start

void FillFrom(frmCap& form, const CopiedSoil& copied) {
    const StartingZones start = form.Entry.StartFrom(TheScreen(), copied);
    form.txtDepth.Text = form.AcceptedDepth = start.IntervalText;
    ShowZones(form, start.Top, start.Interval);
    for (std::size_t zone = 0; zone < start.Water.size(); ++zone) {
        form.txtcap[zone].Text = start.Water[zone].Capacity;
        form.txtcon[zone].Text = start.Water[zone].Content;
    }
}

void ShowUnits(frmCap& form) {
    const bool english = State.EnglishUnits;
    form.lblEnter.Caption =
        english ? "Please enter Depth Interval in inches." : "Please enter Depth Interval in millimeters.";
    form.lblEnter2.Caption =
        english ? "Please enter Capacity && Content in inches/feet." : "Please enter Capacity && Content in mm/meter.";
    const double rootMax = State.Header().RootMax;
    const double depth = RoundHalfEven(english ? rootMax * FeetPerMetre * InchesPerFoot : rootMax * 1000);
    form.lblMaximum.Caption = fmt::format("Max rooting depth for {} is:  {}", CropInWork(),
                                          Masked(depth, english ? "00.0" : "000") + (english ? " in." : " mm."));
}

void Load(frmCap& form) {
    form.Caption = "Water Content & Capacity, Veraqua " + State.VersionString;
    form.lblDate.Caption = "Today is " + JulianToLongText(TheScreen().Now());
    form.Entry = ZoneEntry(State.Header().RootMax);
    for (std::size_t zone = 0; zone < form.txtcap.size(); ++zone) SetZoneVisible(form, zone, false);
    ShowUnits(form);
    const CopiedSoil& copied = The<frmLoadField>().Copied;
    if (copied.SoilCopied) FillFrom(form, copied);
    ShowNewField(form.StatusBar1);
}

// ------------------------------------------------------------------------------------------------------- the new soil

void Refuse(frmCap& form, const Refused& refused) {
    switch (refused.Where) {
        case Given::Capacity: return RefuseEntry(form.txtcap[refused.Index], refused);
        case Given::Content: return RefuseEntry(form.txtcon[refused.Index], refused);
        default: return RefuseEntry(form.txtDepth, refused);
    }
}

void cmdOK_Click(frmCap& form) {
    if (!LeaveChecksPass(FormName::frmCap)) return;
    if (TakesOtherInterval(form)) return cmdDepth_Click(form);  // its zones want their water first
    TypedZones typed;
    for (std::size_t zone = 0; zone < typed.size(); ++zone)
        typed[zone] = {form.txtcap[zone].Text, form.txtcon[zone].Text};
    const OrRefused<EnteredSoil> soil = form.Entry.Soil(TheScreen(), form.txtDepth.Text, typed);
    if (soil.IsDone())
        FinishEntry(*soil, FormName::frmCap);
    else
        Refuse(form, soil.Why());
}

void cmdPrint_Click(frmCap&) { PrintForm(FormName::frmCap, "Unable to print the 'Fixed Soil Depth' form right now."); }

void cmdCancel_Click(frmCap& form) {
    if (!KeepsEntries(AnyEntered(form.txtcap) || AnyEntered(form.txtcon))) Unload(FormName::frmCap);
}

}  // namespace

FormTable TableOf(frmCap& form) {
    FormFor table(form, FormName::frmCap, "frmCap");
    table.Add("lblDate", form.lblDate);
    table.Add("lblMaximum", form.lblMaximum);
    table.Add("lblEnter", form.lblEnter);
    table.Add("txtDepth", form.txtDepth).EnterKey(cmdDepth_Click);
    table.Add("cmdDepth", form.cmdDepth).Click(cmdDepth_Click);
    table.Add("lblEnter2", form.lblEnter2);
    table.Add("lblCapacity", form.lblCapacity);
    table.Add("txtcap", form.txtcap).Leave(txtcap_Leave).EnterKey(txtcap_Enter);
    table.Add("lblContent", form.lblContent);
    table.Add("txtcon", form.txtcon).Leave(txtcon_Leave).EnterKey(txtcon_Enter);
    table.Add("cmdReset", form.cmdReset).Click(Load);
    table.Add("cmdOK", form.cmdOK).Click(cmdOK_Click);
    table.Add("cmdPrint", form.cmdPrint).Click(cmdPrint_Click);
    table.Add("cmdCancel", form.cmdCancel).Click(cmdCancel_Click).Exit();
    table.Add("StatusBar1", form.StatusBar1);
    table.Load(Load).Close(cmdCancel_Click);
    return table.Done();
}

}  // namespace veraqua
