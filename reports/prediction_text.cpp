#include "reports/prediction_text.h"

#include <fmt/format.h>

#include "core/base/numbers.h"
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

std::string IrrigationAmount(int millimetres, bool english) {
    return english ? Plain(HundredthsOfInches(millimetres)) + " inches" : Plain(millimetres) + " mm";
}

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

std::string PrintedPrediction(const StatRecord& row, bool english) {
    if (row.NextIrrAmount <= 0) return std::string(InPrint.Of(row.NextIrrAmount).Date);
    return fmt::format("{} : {}", ReportDate(row.NextIrrDay),
                       PrintedWater(HundredthsOfInches(row.NextIrrAmount), row.NextIrrAmount, english));
}

std::string ReportedPrediction(const StatRecord& row, bool english) {
    if (row.NextIrrAmount > 0)
        return fmt::format("\t Next Irrigation Date & Amnt:\t{}, {}.", ReportDate(row.NextIrrDay),
                           IrrigationAmount(row.NextIrrAmount, english));
    return fmt::format("\t {}", row.NextIrrAmount == AmountNoDataYet ? NoDataYet : HarvestAtOnce);
}

std::string MovedPrediction(const StatRecord& row) {
    if (row.NextIrrAmount == AmountNotRequired) return "not required";
    if (row.NextIrrAmount == AmountHarvest) return "harvest instead";
    return ReportDate(row.NextIrrAmount == AmountNoDataYet ? 0 : row.NextIrrDay, UnknownDay);
}

std::string BriefPrediction(const StatRecord& row, bool english) {
    switch (row.NextIrrAmount) {
        case AmountNoDataYet: return "no data yet";
        case AmountHarvest: return "harvest";
        case AmountNotRequired: return "not required";
        default: break;
    }
    return english ? Plain(HundredthsOfInches(row.NextIrrAmount)) + " in" : Plain(row.NextIrrAmount) + " mm";
}

std::string ListedPrediction(NextDeed deed, std::optional<int> daysLeft) {
    switch (deed) {
        case NextDeed::Harvest: return "Harvest";
        case NextDeed::Nothing: return "No irrigation needed";
        case NextDeed::Unknown: return "No data yet";
        case NextDeed::Weather: return "Weather first";
        case NextDeed::LookBack: return "Looking back";
        case NextDeed::NotPlanted: return "Not planted yet";
        case NextDeed::Water: break;
    }
    if (!daysLeft) return "Over MAD";
    if (*daysLeft == 0) return "Irrigate now";
    return *daysLeft == 1 ? "Irrigate tomorrow" : fmt::format("Irrigate in {} days", *daysLeft);
}

std::string NextCutting(const StatRecord& row) { return ReportDate(row.NextCutDay, NoDataYet); }

std::string CuttingAdvice(const StatRecord& row, bool isHay) {
    if (!isHay) return "Not required!";
    return CutOn(row.NextCutDay, "!", row.NextIrrAmount == AmountHarvest ? HarvestAtOnce : NoDataYet);
}

}  // namespace veraqua
