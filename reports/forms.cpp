#include "reports/forms.h"

#include "reports/graphs.h"
#include "reports/season_chart.h"
#include "screen/forms.h"

namespace veraqua {

void AddReportForms() {
    AddForm<frmGraphs>();
    AddForm<frmSeasonChart>();
}

}  // namespace veraqua
