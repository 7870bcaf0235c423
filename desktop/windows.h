#pragma once

#include <QWidget>
#include <memory>

#include "screen/form_name.h"

namespace veraqua {

/// A new window after the design of `form`, without anything of its record yet.
std::unique_ptr<QWidget> MakeWindow(FormName form);

}  // namespace veraqua
