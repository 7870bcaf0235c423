#pragma once

#include "core/shown/chart.h"
#include "screen/controls.h"

namespace veraqua {

/// A picture of values over the days of a season.
struct Chart : Control, ChartContent {
    /// Shows other values in the place of those before.
    void Show(ChartContent content) { static_cast<ChartContent&>(*this) = std::move(content); }
};

}  // namespace veraqua
