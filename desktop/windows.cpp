#include "desktop/windows.h"

#include <ui_frmAbout.h>
#include <ui_frmAddWater.h>
#include <ui_frmCap.h>
#include <ui_frmCapVar.h>
#include <ui_frmConfig.h>
#include <ui_frmCopySoilData.h>
#include <ui_frmCuts.h>
#include <ui_frmDownload.h>
#include <ui_frmFarm.h>
#include <ui_frmField.h>
#include <ui_frmFieldData.h>
#include <ui_frmFieldDetails.h>
#include <ui_frmFieldGraph.h>
#include <ui_frmFieldHistory.h>
#include <ui_frmGraphs.h>
#include <ui_frmHayFieldHistory.h>
#include <ui_frmHelp.h>
#include <ui_frmKESTA.h>
#include <ui_frmLoadField.h>
#include <ui_frmPath.h>
#include <ui_frmReportOptions.h>
#include <ui_frmSeasonChart.h>
#include <ui_frmSelectHarvested.h>
#include <ui_frmVeraqua.h>
#include <ui_frmViewWeather.h>
#include <ui_frmWeather.h>

#include <QMainWindow>

namespace veraqua {

namespace {

template <class Design, class W = QMainWindow>
std::unique_ptr<QWidget> Made() {
    auto window = std::make_unique<W>();
    Design().setupUi(window.get());
    return window;
}

}  // namespace

std::unique_ptr<QWidget> MakeWindow(FormName form) {
    switch (form) {
        case FormName::frmVeraqua: return Made<Ui::frmVeraqua>();
        case FormName::frmConfig: return Made<Ui::frmConfig>();
        case FormName::frmPath: return Made<Ui::frmPath>();
        case FormName::frmHelp: return Made<Ui::frmHelp>();
        case FormName::frmAbout: return Made<Ui::frmAbout>();
        case FormName::frmFarm: return Made<Ui::frmFarm>();
        case FormName::frmWeather: return Made<Ui::frmWeather>();
        case FormName::frmKESTA: return Made<Ui::frmKESTA>();
        case FormName::frmDownload: return Made<Ui::frmDownload>();
        case FormName::frmViewWeather: return Made<Ui::frmViewWeather>();
        case FormName::frmField: return Made<Ui::frmField>();
        case FormName::frmLoadField: return Made<Ui::frmLoadField>();
        case FormName::frmCapVar: return Made<Ui::frmCapVar>();
        case FormName::frmCap: return Made<Ui::frmCap>();
        case FormName::frmCopySoilData: return Made<Ui::frmCopySoilData>();
        case FormName::frmAddWater: return Made<Ui::frmAddWater>();
        case FormName::frmCuts: return Made<Ui::frmCuts>();
        case FormName::frmReportOptions: return Made<Ui::frmReportOptions>();
        case FormName::frmFieldData: return Made<Ui::frmFieldData>();
        case FormName::frmFieldDetails: return Made<Ui::frmFieldDetails>();
        case FormName::frmFieldHistory: return Made<Ui::frmFieldHistory>();
        case FormName::frmHayFieldHistory: return Made<Ui::frmHayFieldHistory>();
        case FormName::frmSelectHarvested: return Made<Ui::frmSelectHarvested>();
        case FormName::frmGraphs: return Made<Ui::frmGraphs>();
        case FormName::frmFieldGraph: return Made<Ui::frmFieldGraph, QWidget>();
        case FormName::frmSeasonChart: return Made<Ui::frmSeasonChart>();
    }
    return nullptr;
}

}  // namespace veraqua
