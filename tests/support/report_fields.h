#pragma once

#include "tests/support/builders.h"

/// Small fields for the reports, with numbers that can be followed by hand. Planted on 1 May 2003, run with the weather
/// through 3 May; the rows of 4 and 5 May are forecast.
namespace veraqua {

constexpr JulianValue MayDay(int day) { return JulianFromDate(5, day, 2003); }

/// Kc is the sine of 3 degrees of angle per degree day. On 2 May it rains twice, 12 and 5 mm, and 25 mm are irrigated;
/// on 3 May there is more water than the roots' soil holds. Two of the four leachings lie before 3 May. The profile of
/// the planting day is the one that was in force up to 3 May.
inline AField SmallCrop() {
    return AField()
        .Id("North Ñ")
        .Crop("Sugar Beets")
        .Roots(0.2F, 0.9144F)
        .Efficiency(0.625F)
        .Zones(3, 0.3048F)
        .Capacity({167, 150, 125})
        .Content({160, 140, 100})
        .Days({{20, 0, 0.2F, 0, 4},
               {30.25F, 10, 0.25F, 6.35F, 0},
               {52.5F, 22.4F, 0.3F, 12.55F, 1},
               {40, 30, 0.45F, 20.1F, 2},
               {35, 41.05F, 0.6F, 28.4F, 3}})
        .Rain(MayDay(2), 12)
        .Rain(MayDay(2), 5)
        .Irrigation(MayDay(2), 25)
        .Irrigation(MayDay(4), 30)
        .With([](FieldFile& file) {
            file.Field.KcSpan = 60;
            file.Field.KcSine = {1, 0, 0, 0, 0, 0};
            file.Lists.History = {{MayDay(3), {150, 130, 90}}};
            file.Lists.Leaching = {{MayDay(1), 1}, {MayDay(2), 3}, {MayDay(3), 2}, {MayDay(4), 9}};
        });
}

/// Cut on 3 May, which sets its heat sum back; full of water on 4 May.
inline AField SmallHay() {
    return AField()
        .Hay()
        .Id("Meadow")
        .Crop("@Alfalfa")
        .Mad(55)
        .Zones(4, 0.3048F)
        .Capacity({167, 150, 125, 100})
        .Content({100, 90, 80, 70})
        .Days({{120, 0, 1.2F, 0, 4},
               {110.5F, 12.3F, 0.85F, 5.5F, 5},
               {103.2F, 3.1F, 0.4F, 12.75F, 6},
               {165, 14.6F, 0.456F, 18, 0},
               {158.2F, 28, 0.5678F, 24.44F, 1}})
        .Irrigation(MayDay(4), 70)
        .Cutting(MayDay(3), 1);
}

/// `field` in soil of three layers, 6, 12 and 20 inches thick.
inline AField InLayers(AField field) { return field.Layers({0.1524F, 0.3048F, 0.508F}); }

/// The directory's row of a field without a prediction.
inline StatRecord RowOf(const FieldFile& file) {
    return {file.Header().FieldId, file.Header().CropName, MayDay(3), 0, 0, 0, 0, 0};
}

}  // namespace veraqua
