#include "workbench/forms/soil_zones.h"

#include <algorithm>
#include <optional>

#include <fmt/format.h>

#include "core/base/numbers.h"
#include "core/base/units.h"
#include "core/state.h"
#include "engine/soil_water.h"
#include "screen/field_caption.h"
#include "screen/forms.h"
#include "screen/screen.h"
#include "workbench/forms/new_field.h"
#include "workbench/forms/soil_entry.h"

namespace veraqua {

namespace {

/// Eleven feet, m: a root depth divided by it is an eleventh of that depth in feet.
constexpr double ElevenFeet = 3.3528;

std::size_t Zone(int zone) { return static_cast<std::size_t>(zone); }

/// Metres of an interval as entered.
float IntervalMetres(double interval) {
    return ToSingle(State.EnglishUnits ? interval / InchesPerFoot * MetresPerFoot : interval / 1000,
                    "the depth interval");
}

/// Index of the last zone that the soil down to `rootMax` m has in zones of `interval` as entered.
int ZoneTopFor(float rootMax, double interval) { return ZoneAt(rootMax, IntervalMetres(interval)); }

/// The smallest interval of one decimal with which the soil down to `rootMax` m fits the form's zones, as entered.
double SmallestInterval(float rootMax) {
    const double depth = State.EnglishUnits ? rootMax / MetresPerFoot * InchesPerFoot : rootMax * 1000.0;
    int tenths = std::max(1, static_cast<int>(depth / frmCap::MostZones * 10));
    while (ZoneTopFor(rootMax, tenths / 10.0) >= frmCap::MostZones) ++tenths;
    return tenths / 10.0;
}

// ----------------------------------------------------------------------------------------------------------- the zones

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
    for (int i = 0; i < frmCap::MostZones; ++i) {
        SetZoneVisible(form, Zone(i), i <= top);
        const std::string span =
            fmt::format("from {} to {}{}", depth(i), depth(i + 1), State.EnglishUnits ? " in." : " mm");
        form.lblCapacity[Zone(i)].Caption = "Capacity " + span;
        form.lblContent[Zone(i)].Caption = "Content " + span;
    }
}

/// What the user is told of an interval that can't be taken; empty if it can.
std::string RefusedInterval(const frmCap& form, std::optional<double> interval) {
    const auto between = [&form](double smallest) {
        return fmt::format("Please enter a value between {} and {}", Masked(smallest, "0.0"),
                           Masked(form.IntervalMax, "0.0"));
    };
    if (!interval || *interval < form.IntervalMin || *interval > form.IntervalMax) return between(form.IntervalMin);
    const float rootMax = State.Header().RootMax;
    if (ZoneTopFor(rootMax, *interval) >= frmCap::MostZones) return between(SmallestInterval(rootMax));
    return {};
}

/// The interval, as entered, becomes that of the field.
void AcceptInterval(frmCap& form, double interval) {
    HeaderCommon& header = State.Header();
    header.CapacityInterval = header.ContentInterval = IntervalMetres(interval);
    form.ZoneTop = ZoneTopFor(header.RootMax, interval);
    header.CapacityTop = header.ContentTop = static_cast<std::int16_t>(form.ZoneTop);
    ShowZones(form, form.ZoneTop, interval);
}

void RefuseInterval(frmCap& form, std::string_view text) { RefuseEntry(form.txtDepth, text, "Depth Interval Error"); }

void cmdDepth_Click(frmCap& form) {
    const std::optional<double> interval = Numeric(form.txtDepth.Text);
    const std::string refused = RefusedInterval(form, interval);
    if (refused.empty())
        AcceptInterval(form, *interval);
    else
        RefuseInterval(form, refused);
}

// ---------------------------------------------------------------------------------------------------- the form's start

void FillFrom(frmCap& form, const CopiedSoil& copied) {
    TheScreen().Tell("Using copied data");
    const double metres = copied.CopiedInterval1;
    const double interval = State.EnglishUnits ? metres / MetresPerFoot * InchesPerFoot : metres * 1000;
    form.txtDepth.Text = Masked(interval, State.EnglishUnits ? "0.00" : "000");
    if (RefusedInterval(form, interval).empty())
        AcceptInterval(form, interval);
    else
        ShowZones(form, copied.CopiedCapTop, interval);
    for (int i = 0; i < frmCap::MostZones && i <= copied.CopiedCapTop; ++i) {
        if (!form.txtcap[Zone(i)].Visible) break;
        form.txtcap[Zone(i)].Text = EnteredWaterText(copied.CopiedCapacity[Zone(i)]);
        form.txtcon[Zone(i)].Text = EnteredWaterText(copied.CopiedContent[Zone(i)]);
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
    // In metric use the least interval is a tenth of an eleventh of the depth.
    form.IntervalMin = english ? rootMax / ElevenFeet * InchesPerFoot : rootMax * 100 / frmCap::MostZones;
    form.IntervalMax = english ? 396 : 1000;
}

void Load(frmCap& form) {
    form.Caption = "Water Content & Capacity, Veraqua " + State.VersionString;
    form.lblDate.Caption = "Today is " + JulianToLongText(TheScreen().Now());
    form.ZoneTop = -1;
    for (std::size_t zone = 0; zone < form.txtcap.size(); ++zone) SetZoneVisible(form, zone, false);
    ShowUnits(form);
    if (The<frmLoadField>().Copied.SoilCopied) FillFrom(form, The<frmLoadField>().Copied);
    ShowNewField(form.StatusBar1);
}

// --------------------------------------------------------------------------------------------------------- the new
// soil

bool TakeCapacities(frmCap& form, SoilProfile& soil) {
    const double capMin = State.EnglishUnits ? 0.1 : 7;
    const std::string tooLowText = fmt::format("Please enter a Capacity Value equal to or greater than {}{}",
                                               Plain(capMin), State.EnglishUnits ? " inches/foot." : " mm/meter.");
    for (int i = 0; i <= form.ZoneTop; ++i) {
        TextBox& box = form.txtcap[Zone(i)];
        const std::optional<std::int16_t> capacity =
            TakeCapacity(box, "Your 'Capacity' value is greater than 3 in/ft (250 mm/m).  Do you want to proceed?.",
                         EnteredValue(box) < capMin, tooLowText);
        if (!capacity) return false;
        soil.Capacity[Zone(i)] = *capacity;
    }
    return true;
}

/// The most water that `zone` may be entered with: its capacity, in inches per foot with a hundredth to spare.
double ZoneMax(int zone, const SoilProfile& soil) {
    const ZoneGrid grid = CapacityGrid(State.Header(), soil.Bounds);
    const float top = ToSingle(static_cast<double>(grid.Interval) * zone, "a soil depth");
    const float bottom = ToSingle(static_cast<double>(grid.Interval) * (zone + 1), "a soil depth");
    const double capacity = SoilWaterBetween(top, bottom, grid, soil.Capacity) / (static_cast<double>(bottom) - top);
    // Without the noise of the singles, so that a zone can be entered as full.
    const double most = EnteredWater(RoundedTo(capacity, 1000));
    return State.EnglishUnits ? most + 0.01 : most;
}

bool TakeContents(frmCap& form, SoilProfile& soil) {
    for (int i = 0; i <= form.ZoneTop; ++i) {
        TextBox& box = form.txtcon[Zone(i)];
        const double zoneMax = ZoneMax(i, soil);
        const std::optional<double> content = Numeric(box.Text);
        std::string refused;
        if (!content || *content < 0 || *content > zoneMax)
            refused = "Please enter a value between 0 and " + Plain(zoneMax);
        else if (*content > EnteredValue(form.txtcap[Zone(i)]))
            refused = "Please enter a value less than or equal to " + form.txtcap[Zone(i)].Text;
        if (!refused.empty()) {
            RefuseEntry(box, refused, "Water Content Input Error");
            return false;
        }
        soil.Content[Zone(i)] = StoredWater(*content);
    }
    return true;
}

void cmdOK_Click(frmCap& form) {
    if (form.ZoneTop < 0) {
        const std::string refused = RefusedInterval(form, Numeric(form.txtDepth.Text));
        return RefuseInterval(form, refused.empty() ? RefusedInterval(form, std::nullopt) : refused);
    }
    SoilProfile soil;
    if (TakeCapacities(form, soil) && TakeContents(form, soil)) StartField(soil, FormName::frmCap);
}

void cmdPrint_Click(frmCap&) { PrintForm(FormName::frmCap, "Unable to print the 'Fixed Soil Depth' form right now."); }

void cmdCancel_Click(frmCap&) { Unload(FormName::frmCap); }

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
    table.Add("txtcap", form.txtcap);
    table.Add("lblContent", form.lblContent);
    table.Add("txtcon", form.txtcon);
    table.Add("cmdReset", form.cmdReset).Click(Load);
    table.Add("cmdOK", form.cmdOK).Click(cmdOK_Click);
    table.Add("cmdPrint", form.cmdPrint).Click(cmdPrint_Click);
    table.Add("cmdCancel", form.cmdCancel).Click(cmdCancel_Click).Exit();
    table.Add("StatusBar1", form.StatusBar1);
    table.Load(Load).Close(cmdCancel_Click);
    return table.Done();
}

}  // namespace veraqua
