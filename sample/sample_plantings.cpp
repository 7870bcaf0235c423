#include "sample/sample_plantings.h"

#include <algorithm>

namespace veraqua {

namespace {

/// In spring, when winter and summer crops meet, the last ones of the list are left out.
constexpr std::size_t MostFields = 13;

constexpr SampleFarm Valley{"06", {1, 1}, {12, 31}};
/// High and cold: the ditch company closes its gates for the winter.
constexpr SampleFarm Upland{"15", {4, 1}, {10, 15}};

// Available water by texture, as growers' tables have it in inches per foot: loamy sand 1.1, sandy loam 1.5, clay 1.6,
// clay loam 1.9, loam 2.0, silt loam 2.2. data/README.md tells more.
constexpr int LoamySand = 92;
constexpr int SandyLoam = 125;
constexpr int Clay = 133;
constexpr int ClayLoam = 158;
constexpr int Loam = 167;
constexpr int SiltLoam = 183;

constexpr SampleSoil DeepLoam{{{{24, Loam}, {24, ClayLoam}, {12, ClayLoam}}}, 12};
constexpr SampleSoil FanSoil{{{{12, SandyLoam}, {24, Loam}, {24, SandyLoam}}}, 12};
constexpr SampleSoil BasinClay{{{{12, ClayLoam}, {12, Clay}, {36, Clay}}}, 12};
constexpr SampleSoil GardenLoam{{{{6, Loam}, {12, SandyLoam}, {12, SandyLoam}}}, 6};
constexpr SampleSoil LayeredSilt{{{{10, SiltLoam}, {14, Loam}, {23, ClayLoam}}}};
constexpr SampleSoil LayeredSand{{{{9, SandyLoam}, {18, LoamySand}, {20, SandyLoam}}}};
constexpr SampleSoil BenchLoam{{{{12, SandyLoam}, {24, Loam}, {24, SandyLoam}}}, 12};

// Planting days of spring crops are the usual ones of the crop table's notes; autumn sowings are those of a mild
// valley. A parcel's MAD is that of the crop.
// clang-format off
constexpr std::array Plantings{
//               parcel        crop             farm     planted   harvested  soil          MAD Eff. water, % of capacity
SamplePlanting{"HOME 40",    "@ALFALFA",      &Valley, { 2, 15}, {11, 26}, &LayeredSilt,  55, 75,  90,  95},
SamplePlanting{"UPLAND 30",  "@ALFALFA",      &Upland, { 4,  1}, {12, 16}, &LayeredSand,  55, 80,  85,  85},
SamplePlanting{"SLOUGH 25",  "@CLOVER HAY",   &Valley, { 9, 10}, { 5,  8}, &BasinClay,    50, 75,  85,  70},
SamplePlanting{"SLOUGH 25",  "SORGHUM",       &Valley, { 5, 10}, { 9,  8}, &BasinClay,    55, 75,  90,  90},
SamplePlanting{"DITCH 8",    "@GRASS HAY",    &Valley, { 9, 15}, { 6,  7}, &FanSoil,      55, 80,  85,  70},
SamplePlanting{"LEVEE 18",   "@BERMUDA HAY",  &Valley, { 4,  1}, {10, 26}, &LayeredSand,  55, 75,  85,  90},
SamplePlanting{"BENCH 60",   "WINTER WHEAT",  &Upland, { 9, 25}, { 7, 16}, &BenchLoam,    50, 75,  50,  35},
SamplePlanting{"NORTH 30",   "WINTER WHEAT",  &Valley, {11, 15}, { 6,  8}, &DeepLoam,     55, 75,  70,  60},
SamplePlanting{"OAK 35",     "MAIZE GRAIN",   &Valley, { 4, 20}, { 9, 30}, &LayeredSilt,  55, 75,  90,  95},
SamplePlanting{"SOUTH 50",   "COTTON",        &Valley, { 4, 10}, {11, 28}, &DeepLoam,     60, 75,  90,  95},
SamplePlanting{"RIVER 22",   "TOMATO",        &Valley, { 4, 20}, {10,  2}, &FanSoil,      40, 90,  90,  95},
SamplePlanting{"RIVER 22",   "CARROT",        &Valley, {10, 15}, { 3,  9}, &FanSoil,      35, 80,  90,  80},
SamplePlanting{"EAST 28",    "POTATO",        &Valley, { 3,  1}, { 7, 16}, &FanSoil,      35, 80,  95,  95},
SamplePlanting{"EAST 28",    "SUGAR BEET",    &Valley, {10,  1}, { 2, 28}, &FanSoil,      55, 75,  85,  80},
SamplePlanting{"GARDEN 3",   "LETTUCE",       &Valley, { 2, 15}, { 5, 18}, &GardenLoam,   30, 85,  95, 100},
SamplePlanting{"GARDEN 3",   "LETTUCE",       &Valley, { 9, 20}, { 1, 10}, &GardenLoam,   30, 85,  95,  90},
SamplePlanting{"BARN 12",    "SPRING BARLEY", &Valley, { 2,  1}, { 5, 28}, &LayeredSand,  55, 75,  95,  95},
SamplePlanting{"BARN 12",    "DRY BEAN",      &Valley, { 6,  1}, { 9, 18}, &LayeredSand,  45, 80,  90,  90},
SamplePlanting{"BARN 12",    "BROCCOLI",      &Valley, {11,  5}, { 2,  1}, &LayeredSand,  45, 85,  90,  90},
SamplePlanting{"PUMP 9",     "ONION",         &Valley, { 2,  1}, { 8, 10}, &GardenLoam,   30, 85,  95, 100},
SamplePlanting{"PUMP 9",     "CARROT",        &Valley, { 9,  5}, { 2,  1}, &LayeredSand,  35, 80,  90,  80},
SamplePlanting{"GROVE 20",   "WINTER WHEAT",  &Valley, {11, 25}, { 6, 10}, &BasinClay,    55, 75,  70,  60},
SamplePlanting{"GROVE 20",   "MAIZE SILAGE",  &Valley, { 6, 15}, {10, 18}, &BasinClay,    55, 75,  90,  90},
SamplePlanting{"MILL 6",     "BROCCOLI",      &Valley, { 2, 15}, { 5, 10}, &GardenLoam,   45, 85,  95, 100},
SamplePlanting{"MILL 6",     "BROCCOLI",      &Valley, { 9,  1}, {11, 18}, &GardenLoam,   45, 85,  95,  90},
SamplePlanting{"FERRY 14",   "LETTUCE",       &Valley, {11, 10}, { 2, 23}, &GardenLoam,   30, 85,  95,  90},
SamplePlanting{"FERRY 14",   "CANTALOUPE",    &Valley, { 5,  1}, { 8, 29}, &LayeredSand,  45, 90,  90,  90},
SamplePlanting{"MESA 16",    "SUGAR BEET",    &Upland, { 4, 15}, {10, 17}, &BenchLoam,    55, 75,  85,  85},
};
// clang-format on

/// The latest season of `planting` that began before `day`.
CropSeason SeasonBefore(JulianValue day, const SamplePlanting& planting) {
    const JulianValue planted = LatestBefore(day, planting.Planted);
    return {&planting, planted, NextAfter(planted, planting.Harvested)};
}

}  // namespace

JulianValue NextAfter(JulianValue day, MonthDay when) {
    const JulianValue next = JulianFromDate(when.Month, when.Day, YearOf(day));
    return next > day ? next : JulianFromDate(when.Month, when.Day, YearOf(day) + 1);
}

JulianValue LatestBefore(JulianValue day, MonthDay when) {
    const JulianValue latest = JulianFromDate(when.Month, when.Day, YearOf(day));
    return latest < day ? latest : JulianFromDate(when.Month, when.Day, YearOf(day) - 1);
}

std::vector<CropSeason> SeasonsInTheGround(JulianValue day) {
    std::vector<CropSeason> seasons;
    for (const SamplePlanting& planting : Plantings)
        if (const CropSeason season = SeasonBefore(day, planting); season.HarvestDay >= day) seasons.push_back(season);
    seasons.resize(std::min(seasons.size(), MostFields));
    return seasons;
}

CropSeason LastHarvest(JulianValue day) {
    CropSeason last;
    for (const SamplePlanting& planting : Plantings) {
        const CropSeason season = SeasonBefore(LatestBefore(day, planting.Harvested), planting);
        if (season.HarvestDay > last.HarvestDay) last = season;
    }
    return last;
}

}  // namespace veraqua
