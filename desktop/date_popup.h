#pragma once

#include <QLineEdit>

namespace veraqua {

/// Adds a calendar button to an input for dates. The day picked is typed into it as "mm-dd-yyyy".
void AddDatePopup(QLineEdit& line);

}  // namespace veraqua
