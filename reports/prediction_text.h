#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/records.h"

/// What is said of a field's next irrigation and cutting. Each screen, each report and the command line have their own
/// words for the marks that stand in `NextIrrAmount` where there is no amount.
namespace veraqua {

/// Any real day is later: an earlier one, in a slot that a run may leave unset, is not known.
constexpr JulianValue BeforeAnyRealDay = 730000;

/// What is said of a day that isn't known.
constexpr std::string_view UnknownDay = "not known";

/// An amount of irrigation as the grower sets it: "1.69 inches", in hundredths, or "43 mm".
std::string IrrigationAmount(int millimetres, bool english);

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

/// In the printed schedule: day and amount, or the mark.
std::string PrintedPrediction(const StatRecord& row, bool english);

/// In the field report, a line with tabs.
std::string ReportedPrediction(const StatRecord& row, bool english);

/// In the line that tells what a change did: the day, or the mark.
std::string MovedPrediction(const StatRecord& row);

/// On the command line: the amount, or the mark.
std::string BriefPrediction(const StatRecord& row, bool english);

/// What a grower does next about a field.
enum class NextDeed {
    Water,
    Weather,  ///< has to be brought in before anything can be said
    Nothing,
    Harvest,
    LookBack,  ///< the field is computed past today, which the user has set back: what came next is no prediction
    NotPlanted,
    Unknown,
};

/// In the Today list. `daysLeft` until the irrigation is 0 if it is due or overdue, and nothing where it isn't
/// predicted.
std::string ListedPrediction(NextDeed deed, std::optional<int> daysLeft);

/// Day of the next cutting, or that there are no data yet.
std::string NextCutting(const StatRecord& row);

/// What the field details advise on cutting.
std::string CuttingAdvice(const StatRecord& row, bool isHay);

}  // namespace veraqua
