#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "core/files/files.h"
#include "core/state.h"
#include "desktop/app.h"
#include "desktop/screenshots/photo_screen.h"
#include "desktop/text.h"
#include "desktop/theme.h"
#include "screen/forms.h"
#include "screen/headless.h"
#include "shell/first_start.h"
#include "weather/forms/download.h"

namespace veraqua {
namespace {

constexpr JulianValue Today = JulianFromDate(7, 15, 2025);

/// One round of pictures of all windows, in the units and the theme in force.
class Photographer {
  public:
    Photographer(PhotoScreen& screen, std::string folder) : screen_(&screen), folder_(std::move(folder)) {}

    void TakeAll() {
        Shell();
        Fields();
        Entries();
        Reports();
        Weather();
    }

  private:
    void Take(FormName form, const std::string& state = {}) {
        const std::string name(FormOf(form).Text);
        screen_->Take(form, folder_, state.empty() ? name : name + "-" + state);
    }

    /// Takes `form` when it comes up, after `doing`.
    void TakeWhenShown(
        FormName form, std::function<void()> doing = [] {}) {
        screen_->WhenShown(form, [this, form, doing = std::move(doing)] {
            Take(form);
            doing();
        });
    }

    void Shell() {
        Show(FormName::frmVeraqua);
        Take(FormName::frmVeraqua);
        At menu(FormName::frmVeraqua);
        TakeWhenShown(FormName::frmHelp);
        menu.Click("cmdHelp");
        TakeWhenShown(FormName::frmAbout);
        menu.Click("mnuAbout");
        TakeWhenShown(FormName::frmFarm);
        menu.Click("mnuOther");
        menu.Click("cmdConfig");
        At configuration(FormName::frmConfig);
        Take(FormName::frmConfig);
        configuration.Click("mnuDate").Click("cmd_Calendar");
        Take(FormName::frmConfig, "date");
        configuration.Click("mnuUnits");
        Take(FormName::frmConfig, "units");
        configuration.Click("mnuDisplay");
        Take(FormName::frmConfig, "display");
        configuration.Close();
        Show(FormName::frmPath);
        Take(FormName::frmPath);
        At(FormName::frmPath).Click("cmd_Find");
        Take(FormName::frmPath, "find");
        Unload(FormName::frmPath);
    }

    /// The fields of the sample: hay stands first.
    void Select(int position) { At(FormName::frmField).Click("mnuSelect").Pick("ComboField", position); }

    void Fields() {
        At(FormName::frmVeraqua).Click("cmdfields");
        Take(FormName::frmField, "welcome");
        Unload(FormName::frmFieldData);
        At menu(FormName::frmField);
        menu.Click("mnuSelect");
        Take(FormName::frmField, "select");
        Select(Hay);
        menu.Click("mnuFieldSummary");
        Take(FormName::frmFieldData);
        Unload(FormName::frmFieldData);
        Take(FormName::frmField);
        for (const char* panel : {"mnu_MAD", "mnuIEffic", "mnuDepletion", "mnuNew"}) {
            menu.Click(panel);
            Take(FormName::frmField, panel);
        }
        menu.Escape();
        for (const char* background : {"mgeese1", "mgeese2", "mfield"}) {
            menu.Click(background);
            Take(FormName::frmField, background);
        }
    }

    void Entries() {
        Select(Hay);
        Unload(FormName::frmFieldData);
        At menu(FormName::frmField);
        menu.Click("mnuAdd");
        Take(FormName::frmAddWater);
        At(FormName::frmAddWater).Click("cmdCancel");
        menu.Click("mnuCuts");
        Take(FormName::frmCuts);
        At(FormName::frmCuts).Click("cmdCancel");
        NewField(0, "ordinary", 0, FormName::frmCap);
        NewField(24, "hay", 1, FormName::frmCapVar);
    }

    void NewField(int crop, const std::string& state, int soil, FormName soilForm) {
        At(FormName::frmField).Click("mnuNew").Pick("comboCrops", crop).Pick("Combo_Soils", soil).Click("cmd_OK");
        At entry(FormName::frmLoadField);
        entry.Type("txtFieldID", "EAST").Pick("ComboKESTA", 5);
        if (state == "hay") entry.Type("txtMADcritical", "65");
        Take(FormName::frmLoadField, state);
        screen_->WhenShown(soilForm, [this, soilForm] { Soil(soilForm); });
        entry.Click("cmd_OK");
        if (IsLoaded(FormName::frmLoadField)) At(FormName::frmLoadField).Click("Opt_current").Click("cmd_OK");
        if (IsLoaded(FormName::frmLoadField)) At(FormName::frmLoadField).Close();
    }

    void Soil(FormName form) {
        Take(form, "empty");
        At soil(form);
        const bool english = State.EnglishUnits;
        if (form == FormName::frmCapVar) {
            const char* depths[] = {english ? "12" : "30", english ? "30" : "76"};
            for (int layer = 0; layer < 2; ++layer) {
                const std::string index = "(" + std::to_string(layer) + ")";
                soil.Click("cmdDepth").Type("txtRoot" + index, depths[layer]);
                soil.Press("txtRoot" + index, Event::EnterKey);
                soil.Type("txtcap" + index, english ? "1.8" : "150");
                soil.Type("txtcon" + index, english ? "1.5" : "120");
            }
        } else {
            soil.Type("txtDepth", english ? "12" : "300").Click("cmdDepth");
            soil.Type("txtcap(0)", english ? "1.8" : "150").Type("txtcon(0)", english ? "1.5" : "120");
        }
        Take(form);
        screen_->Answer = false;  // what was entered is not kept
        soil.Close();
        screen_->Answer = true;
    }

    void Reports() {
        Select(Hay);
        Unload(FormName::frmFieldData);
        At menu(FormName::frmField);
        menu.Click("mnuFieldDetails");
        Take(FormName::frmFieldDetails);
        Unload(FormName::frmFieldDetails);
        menu.Click("mnuSeasonChart");
        Take(FormName::frmSeasonChart, "hay");
        Unload(FormName::frmSeasonChart);
        menu.Click("m_rpt_display");
        Take(FormName::frmHayFieldHistory);
        Unload(FormName::frmHayFieldHistory);
        TakeWhenShown(FormName::frmReportOptions);
        menu.Click("m_isave");
        screen_->WhenShown(FormName::frmSelectHarvested, [this] {
            At(FormName::frmSelectHarvested).Pick("ComboDField", 0);
            Take(FormName::frmSelectHarvested);
        });
        menu.Click("mnuHarvested");
        Select(Ordinary);
        Unload(FormName::frmFieldData);
        menu.Click("m_rpt_display");
        Take(FormName::frmFieldHistory);
        Unload(FormName::frmFieldHistory);
        menu.Click("mnuSeasonChart");
        Take(FormName::frmSeasonChart);
        Unload(FormName::frmSeasonChart);
        menu.Click("m_displays");
        Take(FormName::frmGraphs);
        At(FormName::frmGraphs).Close();
        Copy();
        At(FormName::frmField).Close();
    }

    void Copy() {
        screen_->WhenShown(FormName::frmCopySoilData, [this] {
            At copy(FormName::frmCopySoilData);
            copy.Click("cmdPreview").Pick("ComboField", 0);
            Take(FormName::frmCopySoilData);
        });
        ShowModal(FormName::frmCopySoilData);
    }

    void Weather() {
        At(FormName::frmVeraqua).Click("cmdWeather");
        At weather(FormName::frmWeather);
        Take(FormName::frmWeather);
        weather.Click("mnu_KESTAloc");
        Take(FormName::frmWeather, "station");
        weather.Pick("ComboKESTA", 5).Click("mnu_enter").Type("txtDate", "7/10/2025").Click("cmd_DateOK");
        Take(FormName::frmWeather, "day");
        weather.Close();
        At(FormName::frmVeraqua).Click("cmdWeather");
        weather.Click("mnu_KESTAloc").Pick("ComboKESTA", 5);
        screen_->WhenShown(FormName::frmViewWeather, [this] {
            At(FormName::frmViewWeather).Type("txtYear", "2025").Click("cmdOK");
            Take(FormName::frmViewWeather);
        });
        weather.Click("mnu_view");
        weather.Close();
        TakeWhenShown(FormName::frmKESTA);
        ShowModal(FormName::frmKESTA);
        TakeWhenShown(FormName::frmDownload);
        DownloadText(2025);
    }

    static constexpr int Hay = 0;
    static constexpr int Ordinary = 4;

    PhotoScreen* screen_;
    std::string folder_;
};

void TakeRound(QApplication& app, const std::string& folder, Theme theme, bool english) {
    PhotoScreen screen;
    screen.SetNow(Today);
    ApplyTheme(app, theme);
    Show(FormName::frmVeraqua);
    State.EnglishUnits = english;
    Photographer(screen, folder + (theme == Theme::Light ? "/light-" : "/dark-") + (english ? "english" : "metric"))
        .TakeAll();
    for (FormTable* form : AllForms()) form->Loaded = form->Shown = false;
    files::Close();
}

void MakeSample(const std::string& home) {
    std::filesystem::create_directories(home + "/veraqua");
    setenv("XDG_DATA_HOME", home.c_str(), 1);
    PhotoScreen screen;
    screen.SetNow(Today);
    files::Open(home + "/veraqua", files::Access::Write);
    MakeDataDirectory(screen, true);
    files::Close();
}

}  // namespace
}  // namespace veraqua

/// veraqua-screenshots FOLDER: pictures of all windows on the sample season, in both themes and units.
int main(int argumentCount, char** arguments) {
    using namespace veraqua;
    if (argumentCount != 2) return EXIT_FAILURE;
    QApplication app(argumentCount, arguments);
    const QTemporaryDir scratch;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, scratch.path());
    PrepareApplication(app);
    MakeSample(FromQt(scratch.path()));
    for (const Theme theme : {Theme::Light, Theme::Dark})
        for (const bool english : {true, false}) TakeRound(app, arguments[1], theme, english);
    return EXIT_SUCCESS;
}
