#include "reports/forms.h"

#include "screen/forms.h"

namespace veraqua {

void AddReportForms() {}

}  // namespace veraqua
