#include "reports/prediction_text.h"

#include <fmt/format.h>

#include "reports/report_text.h"

namespace veraqua {

namespace {

constexpr std::string_view NoDataYet = "No Data Yet!";
constexpr std::string_view HarvestAtOnce = "Harvest as soon as possible!";

/// What one screen says of the marks, and in the amount's place.
struct Words {
    struct Mark {
        std::string_view Date;  ///< of the harvest empty: its day, where that is known
        std::string_view Amount;
    };
    Mark Harvest;
    Mark NotRequired;
    Mark NoData;

    const Mark& Of(std::int16_t mark) const {
        return mark == AmountHarvest ? Harvest : mark == AmountNotRequired ? NotRequired : NoData;
    }
};

// clang-format off
//                          harvest                not required                                  no data
constexpr Words AtWater{    {"", "Not required!"}, {"No Irrigation Required!", "0"},             {NoDataYet, "Unknown!"}};
constexpr Words InDetails{  {"", "Not required!"}, {"No Irrigation Required!", "Not required!"}, {NoDataYet, "Unknown!"}};
constexpr Words AtCuts{     {"Harvest Soon!", "0"}, {"Not Required", "0"},                       {NoDataYet, "0"}};
constexpr Words Plainly{    {"Harvest Soon!", ""}, {"Not Required", ""},                         {NoDataYet, ""}};
constexpr Words InPrint{    {"Harvest Now!", ""},  {"Not Required", ""},                         {NoDataYet, ""}};
// clang-format on

std::string HarvestOn(JulianValue day) {
    return day > BeforeAnyRealDay ? fmt::format("Harvest on {}!", JulianToShortText(day)) : std::string(HarvestAtOnce);
}

std::string CutOn(JulianValue day, std::string_view end, std::string_view none) {
    return day == 0 ? std::string(none) : fmt::format("Cut field on {}{}", JulianToShortText(day), end);
}

std::string MadExceeded(JulianValue since, std::string_view waterNow) {
    return since > BeforeAnyRealDay ? fmt::format("Exceeded MAD: {}. {}", JulianToShortText(since), waterNow)
                                    : fmt::format("Exceeded MAD!  {}", waterNow);
}

/// For the screens that show the day alone.
PredictionText Undated(const StatRecord& row, const Words& words, bool english) {
    if (row.NextIrrAmount > 0) return {ReportDate(row.NextIrrDay), IrrigationAmount(row.NextIrrAmount, english)};
    const Words::Mark& mark = words.Of(row.NextIrrAmount);
    return {std::string(mark.Date), std::string(mark.Amount)};
}

/// For the screens that hold it against today. The harvest's words are the caller's.
PredictionText Dated(const StatRecord& row, const Words& words, JulianValue today, const std::string& exceeded,
                     bool english) {
    PredictionText text = Undated(row, words, english);
    if (row.NextIrrAmount == AmountHarvest) text.Date = HarvestOn(row.NextIrrDay);
    if (row.NextIrrAmount > 0 && row.NextIrrDay <= today) {
        text.Date = exceeded;
        text.Colour = PredictionColour::Red;
    }
    return text;
}

/// As `Dated`, of screens that tell hay of its cutting where others are told of the harvest.
PredictionText WithCutting(const StatRecord& row, bool isHay, const Words& words, JulianValue today,
                           JulianValue madExceeded, bool english) {
    PredictionText text = Dated(row, words, today, MadExceeded(madExceeded, "WATER!"), english);
    if (isHay && row.NextIrrAmount == AmountHarvest) text.Date = CutOn(row.NextCutDay, "", HarvestAtOnce);
    return text;
}

}  // namespace

PredictionText WaterPrediction(const StatRecord& row, bool isHay, JulianValue today, JulianValue madExceeded,
                               bool english) {
    PredictionText text = WithCutting(row, isHay, AtWater, today, madExceeded, english);
    if (row.NextIrrAmount > 0 && row.NextIrrDay > today) text.Colour = PredictionColour::Green;
    return text;
}

PredictionText DetailsPrediction(const StatRecord& row, bool isHay, JulianValue today, JulianValue madExceeded,
                                 bool english) {
    return WithCutting(row, isHay, InDetails, today, madExceeded, english);
}

PredictionText SummaryPrediction(const StatRecord& row, JulianValue today, JulianValue madExceeded, bool english) {
    return Dated(row, InDetails, today, MadExceeded(madExceeded, "Water TODAY!"), english);
}

PredictionText CutPrediction(const StatRecord& row, bool english) { return Undated(row, AtCuts, english); }

PredictionText PlainPrediction(const StatRecord& row, bool english) { return Undated(row, Plainly, english); }

std::string_view PrintedMark(std::int16_t mark) { return InPrint.Of(mark).Date; }

std::string NextCutting(const StatRecord& row) { return ReportDate(row.NextCutDay, NoDataYet); }

std::string CuttingAdvice(const StatRecord& row, bool isHay) {
    if (!isHay) return "Not required!";
    return CutOn(row.NextCutDay, "!", row.NextIrrAmount == AmountHarvest ? HarvestAtOnce : NoDataYet);
}

}  // namespace veraqua
