#include "reports/forms.h"

#include "reports/field_details.h"
#include "reports/field_history.h"
#include "reports/field_summary.h"
#include "reports/graphs.h"
#include "reports/harvested.h"
#include "reports/report_options.h"
#include "reports/season_chart.h"
#include "screen/forms.h"

namespace veraqua {

void AddReportForms() {
    AddForm<frmReportOptions>();
    AddForm<frmFieldData>();
    AddForm<frmFieldDetails>();
    AddForm<frmFieldHistory>();
    AddForm<frmHayFieldHistory>();
    AddForm<frmSelectHarvested>();
    AddForm<frmGraphs>();
    AddForm<frmSeasonChart>();
}

}  // namespace veraqua
