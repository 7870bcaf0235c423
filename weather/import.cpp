#include "weather/import.h"

#include <algorithm>
#include <memory>

#include <fmt/format.h>

#include "core/base/numbers.h"
#include "core/files/files.h"
#include "core/state.h"
#include "weather/default_weather.h"
#include "weather/network_text.h"
#include "weather/reference_et.h"
#include "weather/weather_file.h"

namespace veraqua {

namespace {

constexpr std::string_view MeasuredSource = "kesta";

/// The metric day of a line. A bad line bears its mark and keeps whatever else it says.
WeatherDay DayOf(const NetworkLine& line) {
    WeatherDay day;
    day.DayOfYear = static_cast<std::int16_t>(line.DayOfYear);
    day.TempMax = line.Bad ? MissingDayMark : line.TempMax;
    day.TempMin = line.TempMin;
    day.HumidityMax = line.HumidityMax;
    day.HumidityMin = line.HumidityMin;
    day.WindRun = WindRunOf(line.Wind);
    day.DayNightRatio = DefaultDayNightRatio(State.WeatherCoeff, line.DayOfYear);
    day.SolarRadiation = RadiationOf(line.Radiation);
    day.Source = MeasuredSource;
    day.ReferenceET = ReferenceEvapotranspiration(day);
    return day;
}

enum class FirstLineKind { Found, TextEnds, WrongYear, WrongStation };

/// Where a text begins to tell of the days wanted.
struct FirstLine {
    FirstLineKind Kind = FirstLineKind::TextEnds;
    std::optional<NetworkLine> Line;  ///< of the wanted day or later; where the text ends before, its last one if any
};

/// Looks for the line of the day `wanted` or later. The lines up to it must be of the year and the station in work.
FirstLine FindFirstLine(NetworkText& text, const DayInYear& wanted) {
    using enum FirstLineKind;
    const std::string year = fmt::format("{}", wanted.Year);
    const std::optional<std::int32_t> station = WholeNumber(State.StationCode);
    FirstLine first;
    while (const auto next = text.Next()) {
        if (next->Year != year && next->Year != YearSuffix(wanted.Year)) return {WrongYear, std::nullopt};
        if (next->Station != station) return {WrongStation, std::nullopt};
        if (next->DayOfYear == 0) break;
        first.Line = next;
        if (next->DayOfYear >= wanted.DayOfYear) return {Found, next};
    }
    return first;
}

class Importer {
  public:
    Importer(Ask& ask, const ImportWording& wording, const DayRange& range)
        : ask_(ask),
          wording_(wording),
          range_(range),
          day_(range.From),
          place_(DayOfYearFromJulian(day_)),
          file_(State.StationCode, place_.Year) {}

    ImportOutcome Run() {
        if (OpenText() && GoToFirstLine()) {
            outcome_.Imported = true;
            while (PlaceLine() && NextDay() && NextLine()) {}
        }
        file_.Save();
        return std::move(outcome_);
    }

  private:
    bool OpenText() {
        bytes_ = files::Read(NetworkTextName(place_.Year));
        if (!bytes_) {
            TellTextMissing(ask_, wording_, place_.Year);
            return false;
        }
        text_ = std::make_unique<NetworkText>(*bytes_, place_.Year);
        ended_ = false;
        line_.reset();
        return true;
    }

    /// Goes to the first line of the wanted day or later; false after the user has been told why there is none.
    bool GoToFirstLine() {
        const FirstLine first = FindFirstLine(*text_, place_);
        if (first.Kind == FirstLineKind::WrongYear) return Refuse(wording_.WrongYear);
        if (first.Kind == FirstLineKind::WrongStation) return Refuse(wording_.WrongStation);
        ended_ = first.Kind == FirstLineKind::TextEnds;
        line_ = first.Line;
        if (!line_) TellDownloadFailed(ask_);
        return line_.has_value();
    }

    bool Refuse(std::string_view why) {
        ask_.Tell(why, "Download Error");
        return false;
    }

    /// Writes what the line at hand means for the wanted day. False if the import ends with it.
    bool PlaceLine() {
        const WeatherDay day = DayOfLine();
        outcome_.LastDay = day;
        if (line_->DayOfYear < place_.DayOfYear) {
            // The text has ended before the wanted day, or goes back: what follows its line is default weather, but
            // never a day before the wanted range.
            const int firstWanted = range_.From - JulianFromDate(1, 1, place_.Year) + 1;
            for (int dayOfYear = std::max(line_->DayOfYear + 1, firstWanted); dayOfYear <= place_.DayOfYear;
                 ++dayOfYear)
                PutDefault(dayOfYear);
            if (day_ < range_.To) outcome_.EndedBefore = day_ + 1;
            return false;
        }
        if (line_->DayOfYear == place_.DayOfYear && line_->Bad) {
            outcome_.EndedBefore = day_;
            outcome_.EndedByMissing = true;
            return false;
        }
        for (; place_.DayOfYear < line_->DayOfYear; ++place_.DayOfYear, ++day_) PutDefault(place_.DayOfYear);
        file_.Put(place_.DayOfYear, day);
        if (line_->WindMissing && !line_->Bad) outcome_.WindlessDays.push_back(day_);
        return true;
    }

    WeatherDay DayOfLine() const {
        try {
            return DayOf(*line_);
        } catch (const RunTimeFailure& failure) {  // the arithmetic knows no line
            FailIn(NetworkTextName(place_.Year),
                   fmt::format("the line of day {}: {}", line_->DayOfYear, failure.what()));
        }
    }

    void PutDefault(int dayOfYear) { file_.Put(dayOfYear, DefaultDay(State.WeatherCoeff, dayOfYear)); }

    /// Steps to the next day wanted, into the next year's files where it lies there. False past the range.
    bool NextDay() {
        ++day_;
        ++place_.DayOfYear;
        if (day_ > range_.To) return false;
        if (place_.DayOfYear <= DaysInYear(place_.Year)) return true;
        place_ = {1, place_.Year + 1};
        file_.Save();
        file_ = WeatherFile(State.StationCode, place_.Year);
        if (OpenText()) return true;
        outcome_.Imported = false;
        return false;
    }

    /// Takes the next line; at the end of the text the last one stays. False if a text holds none at all.
    bool NextLine() {
        if (!ended_) {
            const auto next = text_->Next();
            ended_ = !next || next->DayOfYear == 0;
            if (!ended_) line_ = next;
        }
        if (line_) return true;
        TellDownloadFailed(ask_);
        outcome_.Imported = false;
        return false;
    }

    Ask& ask_;
    const ImportWording& wording_;
    DayRange range_;
    JulianValue day_;
    DayInYear place_;
    WeatherFile file_;
    std::shared_ptr<const files::Bytes> bytes_;
    std::unique_ptr<NetworkText> text_;
    std::optional<NetworkLine> line_;
    bool ended_ = false;
    ImportOutcome outcome_;
};

}  // namespace

std::string NetworkTextName(int year) { return "kesta." + YearSuffix(year); }

void TellTextMissing(Ask& ask, const ImportWording& wording, int year) {
    ask.Tell(fmt::format("Your KESTA data file for {}{}\nTry again or download Default Weather Data.", YearSuffix(year),
                         wording.NotDownloaded),
             wording.NotDownloadedTitle);
}

void TellDownloadFailed(Ask& ask) {
    ask.Tell("No weather data was saved, try loading default data", "DOWNLOAD FAILED");
}

bool TextServes(std::string_view bytes, const DayRange& range) {
    const DayInYear wanted = DayOfYearFromJulian(range.From);
    NetworkText text(bytes, wanted.Year);
    return FindFirstLine(text, wanted).Line.has_value();
}

ImportOutcome ImportWeather(Ask& ask, const ImportWording& wording, const DayRange& range) {
    files::ChangeSet changes;
    ImportOutcome outcome = Importer(ask, wording, range).Run();
    changes.Commit();
    return outcome;
}

}  // namespace veraqua
