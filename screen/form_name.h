#pragma once

namespace veraqua {

/// The windows of the program. A form opens another by its name.
enum class FormName {
    // shell
    frmVeraqua,
    frmConfig,
    frmPath,
    frmHelp,
    frmAbout,
    frmFarm,
    // weather
    frmWeather,
    frmKESTA,
    frmDownload,
    frmViewWeather,
    // workbench
    frmField,
    frmLoadField,
    frmCapVar,
    frmCap,
    frmCopySoilData,
    frmAddWater,
    frmCuts,
    // reports
    frmReportOptions,
    frmFieldData,
    frmFieldDetails,
    frmFieldHistory,
    frmHayFieldHistory,
    frmSelectHarvested,
    frmGraphs,
    frmFieldGraph,
    frmSeasonChart,
};

}  // namespace veraqua
