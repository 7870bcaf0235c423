#include "reports/forms/forms.h"

#include "reports/forms/field_details.h"
#include "reports/forms/field_history.h"
#include "reports/forms/field_summary.h"
#include "reports/forms/graphs.h"
#include "reports/forms/harvested.h"
#include "reports/forms/report_options.h"
#include "reports/forms/season_chart.h"
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
