#pragma once

#include <algorithm>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/directory.h"
#include "core/field_file.h"
#include "core/files/files.h"
#include "core/records.h"
#include "core/state.h"
#include "tests/support/script_ask.h"

/// Fields and weather in one line. Each builder has sensible defaults, and a test names only what it is about.
namespace veraqua {

/// A field file. Grain maize planted on 1 May 2003 at station 06, roots from 0.3 to 1 m, in soil of four zones of 0.3 m
/// that holds 140 mm/m and is full; MAD 50 %, efficiency 0.85; one day row and no events.
///   FieldFile file = AField().Content(100).Rain(day, 12);
///   AField().Hay().StoreAt(2);
class AField {
  public:
    AField() {
        FieldHeader& header = file_.Field;
        header.FieldId = "NORTH 40";
        header.CropName = "MAIZE GRAIN";
        header.RootStart = 0.3F;
        header.RootMax = 1;
        header.GddLower = 10;
        header.GddUpper = 30;
        header.GddHarvest = 1132;
        header.SeasonDays = 160;
        header.KcSpan = 1820;
        header.KcSine = {1.2137F, -0.0113F, -0.0476F, -0.0740F, -0.0457F, -0.0280F};
        header.StationCode = "06";
        header.PlantDay = JulianFromDate(5, 1, 2003);
        header.MAD = 50;
        header.IrrEff = 0.85F;
        Zones(4, 0.3F).Capacity(140).Content(140);
    }

    /// Alfalfa instead, its stand rooted to 1.2 m; critical MAD 65 %. Comes before anything that sets a header.
    AField& Hay() {
        file_.IsHay = true;
        HayHeader& header = file_.Hay;
        static_cast<HeaderCommon&>(header) = file_.Field;
        header.FieldId = "CREEK";
        header.CropName = "@ALFALFA";
        header.RootMax = 1.2F;
        header.GddLower = 5;
        header.GddCut = 490;
        header.SeasonDays = 260;
        header.DryDays = 7;
        header.Curve = {0.023F, 0.857F, 0.00193F, 0.843F, -0.00923F, 0.01184F, 0.8F,
                        1.15F,  1.05F,  1.25F,    0.4F,   0.5F,      0.3F};
        header.MADCritical = 65;
        return *this;
    }

    AField& Id(std::string_view id) { return Common().FieldId = id, *this; }
    AField& Crop(std::string_view name) { return Common().CropName = name, *this; }
    AField& Station(std::string_view code) { return Common().StationCode = code, *this; }
    AField& PlantedOn(JulianValue day) { return Common().PlantDay = day, *this; }
    AField& Mad(std::int16_t percent) { return Common().MAD = percent, *this; }
    AField& Efficiency(float fraction) { return Common().IrrEff = fraction, *this; }

    /// Roots of an ordinary crop at planting and at their deepest, m.
    AField& Roots(float start, float most) { return file_.Field.RootStart = start, file_.Field.RootMax = most, *this; }

    /// Fixed soil: `count` zones, each `interval` m thick.
    AField& Zones(int count, float interval) {
        Common().CapacityTop = Common().ContentTop = static_cast<std::int16_t>(count - 1);
        Common().CapacityInterval = Common().ContentInterval = interval;
        return *this;
    }

    /// Variable soil: layers of these thicknesses, m.
    AField& Layers(std::initializer_list<float> thicknesses) {
        std::copy(thicknesses.begin(), thicknesses.end(), file_.Soil.Bounds.begin());
        return Zones(static_cast<int>(thicknesses.size()), 0);
    }

    /// The same in all zones, mm/m. A change of the zones' number keeps it.
    AField& Capacity(std::int16_t each) { return file_.Soil.Capacity.fill(each), *this; }
    AField& Content(std::int16_t each) { return file_.Soil.Content.fill(each), *this; }

    /// From the surface down, mm/m; zones below keep what they had.
    using Zonal = std::initializer_list<std::int16_t>;
    AField& Capacity(Zonal zones) { return std::ranges::copy(zones, file_.Soil.Capacity.begin()), *this; }
    AField& Content(Zonal zones) { return std::ranges::copy(zones, file_.Soil.Content.begin()), *this; }

    /// Day rows from planting on, in place of the one that the soil gives.
    AField& Days(std::vector<DayRecord> rows) { return file_.Days = std::move(rows), madeRows_ = 0, *this; }

    /// `count` day rows: every day 10 degree days and 5 mm of reference ET, water and roots as at planting.
    AField& Days(int count) { return file_.Days.clear(), madeRows_ = count, *this; }

    AField& Rain(JulianValue day, std::int16_t mm) { return file_.Lists.Rain.push_back({day, mm}), *this; }
    AField& Irrigation(JulianValue day, std::int16_t mm) { return file_.Lists.Irrigation.push_back({day, mm}), *this; }
    AField& Cutting(JulianValue day, std::int16_t n) { return file_.Lists.Cuttings.push_back({day, n}), *this; }

    /// Anything else.
    AField& With(const std::function<void(FieldFile&)>& change) { return change(file_), *this; }

    FieldFile Build() const {
        FieldFile file = file_;
        const float roots = file.IsHay ? file.Hay.RootMax : file.Field.RootStart;
        for (int i = 0; i < madeRows_; ++i) {  // as wet as the first zone
            const auto days = static_cast<float>(i);
            file.Days.push_back({static_cast<float>(file.Soil.Content[0]) * roots, 10 * days, roots, 5 * days,
                                 static_cast<std::int16_t>(4 + i)});
        }
        // Zones beyond the highest are not in a file.
        std::fill(file.Soil.Capacity.begin() + file.Header().CapacityTop + 1, file.Soil.Capacity.end(),
                  std::int16_t{0});
        std::fill(file.Soil.Content.begin() + file.Header().ContentTop + 1, file.Soil.Content.end(), std::int16_t{0});
        return file;
    }

    operator FieldFile() const { return Build(); }  // NOLINT(google-explicit-constructor)

    /// Writes the file and the directory row `row`, computed through the last of its day rows, and gives the file back.
    /// Directory files that are missing are made.
    FieldFile StoreAt(int row) const {
        FieldFile file = Build();
        const HeaderCommon& header = file.Header();
        if (!files::Exists("stat.dat")) StartDirectory();
        State.FieldCount = static_cast<std::int16_t>(State.FieldCount + (State.Stat[row].LastDay == 0));
        const auto lastDay = header.PlantDay + static_cast<JulianValue>(file.Days.size()) - 1;
        State.Stat[row] = {header.FieldId, header.CropName, lastDay, 0, header.MAD, 0, 0, 0};
        State.Updates[row] = 0;
        StoreFieldFile(row, file);
        ScriptAsk nobody;
        SaveFieldRow(nobody, row);
        return file;
    }

  private:
    HeaderCommon& Common() { return file_.Header(); }

    FieldFile file_;
    int madeRows_ = 1;
};

/// A dry, fair summer day: 12 to 30 degrees C, humidity 30 to 80 %, wind 173 km with a day-night ratio of 2, 600
/// langleys, 6 mm of reference ET, measured.
class AWeatherDay {
  public:
    AWeatherDay() { day_.Source = "kesta"; }

    AWeatherDay& DayOfYear(int day) { return day_.DayOfYear = static_cast<std::int16_t>(day), *this; }
    AWeatherDay& Temperature(float low, float high) { return day_.TempMin = low, day_.TempMax = high, *this; }
    AWeatherDay& Humidity(float low, float high) { return day_.HumidityMin = low, day_.HumidityMax = high, *this; }
    AWeatherDay& Wind(float km, float ratio) { return day_.WindRun = km, day_.DayNightRatio = ratio, *this; }
    AWeatherDay& Radiation(float langleys) { return day_.SolarRadiation = langleys, *this; }
    AWeatherDay& ReferenceET(float mm) { return day_.ReferenceET = mm, *this; }
    AWeatherDay& From(std::string_view source) { return day_.Source = source, *this; }

    operator WeatherDay() const { return day_; }  // NOLINT(google-explicit-constructor)

  private:
    WeatherDay day_{196, 30, 12, 80, 30, 173, 2, 600, 6, {}};
};

/// The weather file of a station's year: every day of it the same until the test says otherwise.
///   AWeatherYear("06", 2003).Through(195).On(120, AWeatherDay().ReferenceET(9)).Store();
class AWeatherYear {
  public:
    AWeatherYear(std::string_view stationCode, int year)
        : name_("weather" + std::string(stationCode) + "." + YearSuffix(year)),
          days_(static_cast<std::size_t>(DaysInYear(year)), AWeatherDay()) {
        for (std::size_t i = 0; i < days_.size(); ++i) days_[i].DayOfYear = static_cast<std::int16_t>(i + 1);
    }

    /// The last day held.
    AWeatherYear& Through(int dayOfYear) { return days_.resize(static_cast<std::size_t>(dayOfYear)), *this; }

    /// All days held, or one of them. The day number stays that of the place.
    AWeatherYear& Every(const WeatherDay& weather) {
        for (int day = 1; day <= static_cast<int>(days_.size()); ++day) On(day, weather);
        return *this;
    }
    AWeatherYear& On(int dayOfYear, const WeatherDay& weather) {
        return With(dayOfYear, [&](WeatherDay& place) {
            place = weather;
            place.DayOfYear = static_cast<std::int16_t>(dayOfYear);
        });
    }

    /// Anything else of one day, its day number too.
    AWeatherYear& With(int dayOfYear, const std::function<void(WeatherDay&)>& change) {
        return change(days_.at(static_cast<std::size_t>(dayOfYear - 1))), *this;
    }

    std::string Bytes() const {
        std::string bytes;
        Writer writer(bytes);
        for (const WeatherDay& day : days_) Layout(writer, day);
        return bytes;
    }

    /// Into the open data directory.
    void Store() const { files::Write(name_, Bytes()); }

  private:
    std::string name_;
    std::vector<WeatherDay> days_;
};

}  // namespace veraqua
