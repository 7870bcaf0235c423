#pragma once

#include <string>
#include <string_view>

#include "core/records.h"

/// What the screens say of a field's next irrigation and cutting. Each has its own words for the marks that stand in
/// `NextIrrAmount` where there is no amount.
namespace veraqua {

/// Any real day is later: an earlier one, in a slot that a run may leave unset, is not known.
constexpr JulianValue BeforeAnyRealDay = 730000;

/// How a screen backs what it says.
enum class PredictionColour {
    Normal,
    Green,  ///< of boxes and panel: there is time
    Red,    ///< of the panel, with boxes in orange: the MAD is exceeded
};

struct PredictionText {
    std::string Date;  ///< when to irrigate, or the words in its place
    std::string Amount;
    PredictionColour Colour = PredictionColour::Normal;

    bool operator==(const PredictionText&) const = default;
};

/// At the entry of water.
///   row          the field's row of the directory
///   madExceeded  first day of the present spell at or over the MAD, 0 if there is none
PredictionText WaterPrediction(const StatRecord& row, bool isHay, JulianValue today, JulianValue madExceeded,
                               bool english);

/// In the field details; likewise.
PredictionText DetailsPrediction(const StatRecord& row, bool isHay, JulianValue today, JulianValue madExceeded,
                                 bool english);

/// In the field summary, which tells hay of its harvest as it tells any crop.
PredictionText SummaryPrediction(const StatRecord& row, JulianValue today, JulianValue madExceeded, bool english);

/// At the entry of cutting dates.
PredictionText CutPrediction(const StatRecord& row, bool english);

/// Below the field history and in the saved schedule. A mark has no amount.
PredictionText PlainPrediction(const StatRecord& row, bool english);

/// What the printed schedule says of `mark`, a `NextIrrAmount` that is no amount.
std::string_view PrintedMark(std::int16_t mark);

/// Day of the next cutting, or that there are no data yet.
std::string NextCutting(const StatRecord& row);

/// What the field details advise on cutting.
std::string CuttingAdvice(const StatRecord& row, bool isHay);

}  // namespace veraqua
