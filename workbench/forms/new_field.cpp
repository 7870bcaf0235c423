#include "workbench/forms/new_field.h"

#include <algorithm>
#include <array>
#include <initializer_list>

#include <fmt/format.h>

#include "catch_up/weather_check.h"
#include "core/base/numbers.h"
#include "core/base/units.h"
#include "core/clock.h"
#include "core/directory.h"
#include "core/files/files.h"
#include "core/state.h"
#include "engine/season_run.h"
#include "screen/field_caption.h"
#include "screen/forms.h"
#include "screen/screen.h"
#include "workbench/forms/field_choice.h"
#include "workbench/forms/field_menu.h"

namespace veraqua {

namespace {

/// Rows of `ComboKESTA`, from 0, that are refused as off-line. A click and a change of the text refuse different rows.
constexpr std::array RefusedOnClick{17, 18, 25};
constexpr std::array RefusedOnChange{10, 15, 16, 17, 24};

constexpr std::string_view InputError = "Input Error";

std::string DepthText(float metres) {
    return State.EnglishUnits ? Masked(metres / MetresPerFoot * InchesPerFoot, "00.0") : Masked(metres * 1000.0, "000");
}

/// Metres of a root depth that was entered in inches or mm.
float EnteredDepth(double depth) {
    return ToSingle(State.EnglishUnits ? depth / InchesPerFoot * MetresPerFoot : depth / 1000, "the root depth");
}

std::string DateBoxText(JulianValue day) {
    const Date date = DateFromJulian(day);
    return fmt::format("{}/{}/{}", date.Month, date.Day, date.Year);
}

// ---------------------------------------------------------------------------------------------------- the form's start

void SetVisible(bool visible, std::initializer_list<Control*> controls) {
    for (Control* control : controls) control->Visible = visible;
}

void ShowGroups(frmLoadField& form) {
    SetVisible(!State.IsHay, {&form.lbl_default, &form.txt_def_root, &form.lbl_new_root, &form.txt_new_root,
                              &form.lbl_ft, &form.shp_rootdepth, &form.lbl_root});
    SetVisible(State.IsHay, {&form.frm_hay, &form.tlbl_MAD, &form.txtMADcritical, &form.tlbl_maxroot, &form.txtRootD,
                             &form.tlbl_ft, &form.tlbl_Dry1, &form.txtDry, &form.tlbl_Dry2});
}

void Load(frmLoadField& form) {
    form.Caption = "Field Info, Veraqua " + State.VersionString;
    form.lblCropName.Caption = "Field Crop: " + CropInWork();
    form.VariablePicked = State.VariableSoil;
    form.CropRootMax = State.Header().RootMax;
    ShowGroups(form);
    form.lbl_ft.Caption = State.EnglishUnits ? "(in inches)" : "(in millimeters)";
    const std::string depth = DepthText(form.CropRootMax);
    if (State.IsHay) {
        form.lbl_plantdate.Caption = "Onset of Growth Date:";
        form.txtDry.Text = Plain(State.Hay.DryDays);
        form.txtRootD.Text = depth;
    } else {
        form.txt_def_root.Text = depth + (State.EnglishUnits ? " in." : " mm.");
    }
    form.txtMAD.Text = "50";
    form.txtIrrEff.Text = "75";
    // The clock's own date, also where the user has put another in its place.
    form.TxtPlantDate.Text = DateBoxText(ClockDate());
    int number = 0;
    for (const std::string& station : State.DefaultStations) form.ComboKESTA.Add(station, ++number);
    Focus(form.txtFieldID);
}

/// A field that was not created is in work no longer.
void UnloadForm(frmLoadField&) {
    Show(FormName::frmField);
    if (FieldIsChosen()) {
        form_clear(The<frmField>());
    } else {
        State.CurrentField = 0;
        ShowNoField(The<frmField>());
    }
}

void cmd_Cancel_Click(frmLoadField&) { Unload(FormName::frmLoadField); }

// ------------------------------------------------------------------------------------------------ checks while typing

void ShowStatus(frmLoadField& form) {
    form.StatusBar1.Panels = {fmt::format("Field ID={}", Trimmed(form.txtFieldID.Text)),
                              "Planted:" + form.TxtPlantDate.Text, State.StationName};
}

bool From1To100(TextBox& box, std::string_view notNumeric, std::string_view outOfRange) {
    const std::optional<double> value = Numeric(box.Text);
    if (value && *value >= 1 && *value <= 100) return true;
    TheScreen().Tell(value ? outOfRange : notNumeric, InputError);
    SelectText(box);
    return false;
}

bool IsPercent(TextBox& box) {
    constexpr std::string_view text = "Please enter a value between 1 and 100!";
    return From1To100(box, text, text);
}

bool txtMAD_Leave(frmLoadField& form) { return IsPercent(form.txtMAD); }
bool txtIrrEff_Leave(frmLoadField& form) { return IsPercent(form.txtIrrEff); }
bool txtMADcritical_Leave(frmLoadField& form) { return IsPercent(form.txtMADcritical); }

bool txtRootD_Leave(frmLoadField& form) {
    // The limits are the same in inches and in mm.
    constexpr std::string_view text = "Please enter a positive value";
    return From1To100(form.txtRootD, text, text);
}

bool txtDry_Leave(frmLoadField& form) {
    return From1To100(form.txtDry, "Please enter a positive integer",
                      "Please enter a positive integer between 1 and 100");
}

bool TxtPlantDate_Leave(frmLoadField& form) {
    if (!IsCalendarDay(Trimmed(form.TxtPlantDate.Text))) {
        TheScreen().Tell("Planting date needs to be in mm/dd/yyyy format!", "INVALID DATE");
        Focus(form.TxtPlantDate);
        return false;
    }
    ShowStatus(form);
    return true;
}

// ------------------------------------------------------------------------------------------------- the weather station

void TakeStation(const ListItem& row) {
    State.StationCode = fmt::format("{:02}", row.Data);
    State.StationName = row.Text;
}

template <std::size_t Count>
void PickStation(frmLoadField& form, const std::array<int, Count>& refused) {
    ComboBox& list = form.ComboKESTA;
    if (list.Selected() == nullptr) {
        TheScreen().Tell("Please select a location from the drop-down list", "Nothing selected");
        Focus(list);
        return;
    }
    if (std::ranges::find(refused, list.Index) != refused.end()) {
        TheScreen().Tell("Please select a site that isn't off-line!", "Bad selection");
        list.Select(-1);
        Focus(list);
        return;
    }
    TakeStation(*list.Selected());
    ShowStatus(form);
}

void ComboKESTA_Click(frmLoadField& form) { PickStation(form, RefusedOnClick); }
void ComboKESTA_Change(frmLoadField& form) { PickStation(form, RefusedOnChange); }

// ---------------------------------------------------------------------------------------------------------- the field

/// A stored ID in the form in which a typed one is compared with it.
std::string Comparable(const FixedText<10>& id) { return id.UpperCase().Text(); }

bool IdIsTaken(std::string_view typed) {
    FixedText<10> kept;
    kept = typed;
    // Blanks around a typed ID count: with them it is another one.
    const std::string whole = kept.UpperCase().Whole();
    const std::string compared = whole.substr(0, std::min(whole.size(), typed.size()));
    const std::vector<int> rows = RowsInUse();
    return std::ranges::any_of(rows, [&](int row) { return Comparable(State.Stat[row].FieldId) == compared; });
}

bool IsControlCharacter(char c) { return (c >= 0 && c < ' ') || c == '\x7F'; }

bool IdMayBeUsed(frmLoadField& form) {
    const std::string& typed = form.txtFieldID.Text;
    const auto refuse = [&form](std::string_view text, std::string_view title) {
        TheScreen().Tell(text, title);
        Focus(form.txtFieldID);
        return false;
    };
    if (Trimmed(typed).empty()) return refuse("Please enter a Field ID Code!", "Missing Field ID");
    if (!Latin1FromUtf8(typed) || std::ranges::any_of(typed, IsControlCharacter))
        return refuse("The Field ID Code has a character that no field file can hold.", InputError);
    if (IdIsTaken(typed))
        return refuse("You have already used this Field ID Code. Please select another!", "Duplicate Field ID");
    return true;
}

bool StationIsPicked(frmLoadField& form) {
    if (const ListItem* row = form.ComboKESTA.Selected()) {
        TakeStation(*row);
        return true;
    }
    TheScreen().Tell("Please select a Weather Station from the drop-down list", "Nothing selected");
    Focus(form.ComboKESTA);
    return false;
}

/// 0 if there is none, after the user has been told.
JulianValue EnteredPlantDay(frmLoadField& form) {
    JulianValue day = TypedDay(form.TxtPlantDate);
    // File names of weather carry two digits of the year.
    if (day != 0 && YearOf(day) <= YearOf(TheScreen().Now()) - 100) {
        TheScreen().Tell("The planting date is too far in the past.", "Date input error");
        day = 0;
    }
    if (day == 0) Focus(form.TxtPlantDate);
    return day;
}

std::int16_t Percent(const TextBox& box) { return ToInteger16(Numeric(box.Text).value_or(0), "a percentage"); }

void StoreCommon(const frmLoadField& form, JulianValue plantDay) {
    HeaderCommon& header = State.Header();
    header.PlantDay = plantDay;
    header.StationCode = State.StationCode;
    header.FieldId = form.txtFieldID.Text;
    header.IrrEff = ToSingle(Numeric(form.txtIrrEff.Text).value_or(0) / 100, "the irrigation efficiency");
    header.MAD = Percent(form.txtMAD);
}

void StoreHay(const frmLoadField& form) {
    State.Hay.MADCritical = Percent(form.txtMADcritical);
    State.Hay.RootMax = EnteredDepth(Numeric(form.txtRootD.Text).value_or(0));
    State.Hay.DryDays = ToInteger16(Numeric(form.txtDry.Text).value_or(0), "the drying time");
}

/// False, after the user has been told, where the new depth lies below the crop's own.
bool StoreRootDepth(frmLoadField& form) {
    const double entered = Numeric(form.txt_new_root.Text).value_or(0);
    const float depth = entered > 0 ? EnteredDepth(entered) : form.CropRootMax;
    if (depth > form.CropRootMax) {
        TheScreen().Tell("New value must be less than the default maximum rooting depth.", InputError);
        Focus(form.txt_new_root);
        return false;
    }
    State.Field.RootMax = depth;
    return true;
}

void ShowOnWorkbench() {
    The<frmField>().StatusBar1.Panels = {fmt::format("Field: {} ", CropInWork()), fmt::format("ID: {} ", IdInWork()),
                                         fmt::format("Kesta: {}, {}  ", State.StationName, State.StationCode)};
}

/// Leads through the choice of a soil to copy, where one was asked for, to the form of the soil's format.
void EnterSoil(frmLoadField& form) {
    if (form.Opt_new.Chosen) {
        form.Copied = {};
        State.VariableSoil = form.VariablePicked;
    } else {
        ShowModal(FormName::frmCopySoilData);
    }
    if (form.Copied.SoilCopied) State.VariableSoil = form.Copied.IsVariable();
    ShowModal(State.VariableSoil ? FormName::frmCapVar : FormName::frmCap);
}

void cmd_OK_Click(frmLoadField& form) {
    if (!LeaveChecksPass(FormName::frmLoadField) || !IdMayBeUsed(form) || !StationIsPicked(form)) return;
    const JulianValue plantDay = EnteredPlantDay(form);
    if (plantDay == 0) return;
    StoreCommon(form, plantDay);
    if (State.IsHay)
        StoreHay(form);
    else if (!StoreRootDepth(form))
        return;
    State.Stat[State.CurrentField].FieldId = State.Header().FieldId;
    ShowOnWorkbench();
    if (CheckWeather(TheScreen(), YearOf(plantDay)) == WeatherCheck::Abandoned) {
        State.DownloadFailed = false;
        State.ReportCancelled = false;
        return;
    }
    EnterSoil(form);
}

}  // namespace

void StartField(const SoilProfile& soil, FormName soilForm) {
    files::ChangeSet asOne;
    CreateField(TheScreen(), soil);
    const RunOutcome outcome = UpdateField(TheScreen()).Outcome;
    asOne.Commit();
    The<frmLoadField>().FirstRun = outcome;
    Unload(FormName::frmLoadField);
    Unload(soilForm);
    FieldInfo(The<frmField>());
    ShowFieldData();
}

FormTable TableOf(frmLoadField& form) {
    FormFor table(form, FormName::frmLoadField, "frmLoadField");
    table.Add("lblCropName", form.lblCropName);
    table.Add("lbl_ID", form.lbl_ID);
    table.Add("txtFieldID", form.txtFieldID).Change(ShowStatus);
    table.Add("lbl_plantdate", form.lbl_plantdate);
    table.Add("TxtPlantDate", form.TxtPlantDate).Leave(TxtPlantDate_Leave);
    table.Add("lbl_KESTA", form.lbl_KESTA);
    table.Add("ComboKESTA", form.ComboKESTA).Click(ComboKESTA_Click).Change(ComboKESTA_Change);
    table.Add("lbl_MAD", form.lbl_MAD);
    table.Add("txtMAD", form.txtMAD).Leave(txtMAD_Leave);
    table.Add("lbl_IrrEff", form.lbl_IrrEff);
    table.Add("txtIrrEff", form.txtIrrEff).Leave(txtIrrEff_Leave);
    table.Add("shp_rootdepth", form.shp_rootdepth);
    table.Add("lbl_default", form.lbl_default);
    table.Add("txt_def_root", form.txt_def_root);
    table.Add("lbl_new_root", form.lbl_new_root);
    table.Add("txt_new_root", form.txt_new_root);
    table.Add("lbl_ft", form.lbl_ft);
    table.Add("lbl_root", form.lbl_root);
    table.Add("frm_hay", form.frm_hay);
    table.Add("tlbl_MAD", form.tlbl_MAD);
    table.Add("txtMADcritical", form.txtMADcritical).Leave(txtMADcritical_Leave);
    table.Add("tlbl_maxroot", form.tlbl_maxroot);
    table.Add("txtRootD", form.txtRootD).Leave(txtRootD_Leave);
    table.Add("tlbl_ft", form.tlbl_ft);
    table.Add("tlbl_Dry1", form.tlbl_Dry1);
    table.Add("txtDry", form.txtDry).Leave(txtDry_Leave);
    table.Add("tlbl_Dry2", form.tlbl_Dry2);
    table.Add("Soils", form.Soils);
    table.Add("Opt_new", form.Opt_new);
    table.Add("Opt_current", form.Opt_current);
    table.Add("Opt_deleted", form.Opt_deleted);
    table.Add("cmd_OK", form.cmd_OK).Click(cmd_OK_Click);
    table.Add("cmd_Cancel", form.cmd_Cancel).Click(cmd_Cancel_Click).Exit();
    table.Add("StatusBar1", form.StatusBar1);
    table.Load(Load).Close(cmd_Cancel_Click).Unload(UnloadForm);
    return table.Done();
}

}  // namespace veraqua
