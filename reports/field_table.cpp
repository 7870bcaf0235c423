#include "reports/field_table.h"

#include <array>

#include <fmt/format.h>

#include "core/base/numbers.h"
#include "reports/field_days.h"
#include "reports/report_text.h"

namespace veraqua {

namespace {

// clang-format off
/// Heading lines: names, units in the English system, units in the metric system. Each ends in a blank.
constexpr std::array<std::string_view, 3> CropHeading{
    "Date      Day  Avail  Depl   GDD   GDD    ETR   ETR    Kc    Kd    Etc    Etc   Rootd  Irr  Rain ",
    "         (DAP)  (in)  (%)    (F)   Cumm   (in)  Cumm               (in)   Cumm   (ft)  (in) (in) ",
    "         (DAP)  (mm)  (%)    (C)   Cumm   (mm)  Cumm               (mm)   Cumm   (m)   (mm) (mm) "};
constexpr std::array<std::string_view, 3> HayHeading{
    "Date      Day  Avail  Depl   GDD    GDD    ETR   ETR    Kc    Kd    Etc    Etc    Irr   Rain Cut ",
    "         (DAP)  (in)  (%)    (F)    Cumm   (in)  Cumm               (in)   Cumm   (in)  (in) No. ",
    "         (DAP)  (mm)  (%)    (C)    Cumm   (mm)  Cumm               (mm)   Cumm   (mm)  (mm) No. "};
// clang-format on
constexpr std::size_t CropRule = 96;
constexpr std::size_t HayRule = 99;

/// The cells of one unit system.
class Cells {
  public:
    explicit Cells(bool english) : units_{english} {}

    std::string Available(double mm) const { return RoundedCell(units_.Water(mm), Finer(10), "00.00"); }

    static std::string Depletion(double percent, std::string_view mask) {
        return percent < 0 ? "FULL" : Masked(percent, mask);
    }

    std::string Gdd(double celsius) const { return RoundedCell(units_.Heat(celsius), 100, "000.0"); }
    std::string GddSum(double celsius) const { return RoundedCell(units_.Heat(celsius), 10, "0000"); }

    /// Water that evaporated on a day, and since planting.
    std::string Et(double mm) const {
        return RoundedCell(units_.Water(mm), Finer(100), units_.English ? "0.000" : "00.00");
    }
    std::string EtSum(double mm) const {
        return RoundedCell(units_.Water(mm), Finer(10), units_.English ? "00.00" : "000.0");
    }

    static std::string Coefficient(double k) { return RoundedCell(k, 100, "0.00"); }

    std::string RootDepth(double metres) const {
        return units_.English ? RoundedCell(units_.Root(metres), 100, "0.00") : RoundedCell(metres, 1000, "00.00");
    }

    /// Rain or irrigation.
    std::string Water(std::optional<std::int16_t> mm, std::string_view mask) const {
        return Masked(units_.Water(mm.value_or(0)), mask);
    }

  private:
    /// Inches have one decimal more than millimetres.
    double Finer(double perMillimetre) const { return units_.English ? perMillimetre * 10 : perMillimetre; }

    DayUnits units_;
};

/// From the heat of the day to the sum of crop evapotranspiration: the columns that both kinds of crop have.
std::string MiddleColumns(const FieldDay& day, const Cells& cells) {
    return fmt::format("{}  {}   {}  {}  {}  {}  {}  {}", cells.Gdd(day.Gdd), cells.GddSum(day.GddSum),
                       cells.Et(day.Etr), cells.EtSum(day.EtrSum), Cells::Coefficient(day.Kc),
                       Cells::Coefficient(day.Kd), cells.Et(day.Etc), cells.EtSum(day.EtcSum));
}

std::string DateColumns(const FieldDay& day) {
    return fmt::format("{}   {}", JulianToShortText(day.Day),
                       Masked(static_cast<double>(day.DaysAfterPlanting), "000"));
}

std::string CropLine(const FieldDay& day, const Cells& cells) {
    return fmt::format("{}  {} {}  {}  {}  {}  {}", DateColumns(day), cells.Available(day.Available),
                       Cells::Depletion(day.Depletion, " 000"), MiddleColumns(day, cells),
                       cells.RootDepth(day.RootDepth), cells.Water(day.Irrigation, "00.0"),
                       cells.Water(day.Rain, "0.0"));
}

std::string HayLine(const FieldDay& day, const Cells& cells) {
    return fmt::format("{}  {}   {}  {}  {}  {}   {}", DateColumns(day), cells.Available(day.Available),
                       Cells::Depletion(day.Depletion, "000 "), MiddleColumns(day, cells),
                       cells.Water(day.Irrigation, "00.0"), cells.Water(day.Rain, "0.0"),
                       Masked(static_cast<double>(day.Cutting), "0"));
}

}  // namespace

std::vector<std::string> FieldTable(const FieldFile& file, bool english) {
    const auto& heading = file.IsHay ? HayHeading : CropHeading;
    std::vector<std::string> lines{std::string(heading[0]), std::string(heading[english ? 1 : 2]),
                                   std::string(file.IsHay ? HayRule : CropRule, '-')};
    const Cells cells(english);
    for (const FieldDay& day : DaysSincePlanting(file))
        lines.push_back(file.IsHay ? HayLine(day, cells) : CropLine(day, cells));
    return lines;
}

}  // namespace veraqua
