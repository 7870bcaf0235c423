#pragma once

/// Factors between the metric units of the files and the units of screens and reports. Their small disagreements are
/// the screens' own and stay.
namespace veraqua {

constexpr double MillimetresPerInch = 25.4;
constexpr double MetresPerFoot = 0.3048;
constexpr double MetresPerInch = 0.0254;       ///< soil lines of the reports, thicknesses of soil layers
constexpr double InchesPerMetre = 39.37;       ///< copied thicknesses of soil layers
constexpr double FeetPerMetre = 3.2808;        ///< greatest rooting depth on the soil forms
constexpr double FeetPerMetreInRoots = 3.281;  ///< rooting depth in the tables of days
constexpr double InchesPerFoot = 12;

}  // namespace veraqua
