#include "engine/refill.h"

#include <cmath>

#include <fmt/format.h>

#include "core/base/failure.h"
#include "core/base/numbers.h"

namespace veraqua {

namespace {

/// A tail thinner than this, m, takes no water.
constexpr double ThinnestTail = 0.0001;

/// One refill under way.
class Refill {
  public:
    Refill(const ZoneGrid& capacityGrid, const ZoneGrid& contentGrid, float water, SoilProfile& soil)
        : capacityGrid_(capacityGrid), contentGrid_(contentGrid), water_(water), soil_(soil) {}

    float WaterLeft() const { return water_; }

    /// Fills `zone` over the interval. Where the water doesn't suffice, what there is goes into `partialZone`, and the
    /// result is false: nothing is left to go on with.
    bool Fill(int zone, int partialZone, float top, float bottom) {
        const float capacity = SoilWaterBetween(top, bottom, capacityGrid_, soil_.Capacity);
        const float content = SoilWaterBetween(top, bottom, contentGrid_, soil_.Content);
        const float room = ToSingle(static_cast<double>(capacity) - content, "room for water below the roots");
        const double thickness = static_cast<double>(bottom) - top;
        if (room > water_) {
            ContentOf(partialZone) =
                ToInteger16(water_ / thickness + ContentOf(zone), "the water content of a soil zone");
            water_ = 0;
            return false;
        }
        ContentOf(zone) = ToInteger16(capacity / thickness, "the water content of a soil zone");
        water_ = ToSingle(static_cast<double>(water_) - room, "leaching");
        return true;
    }

    bool Fill(int zone, float top, float bottom) { return Fill(zone, zone, top, bottom); }

    /// The last piece above `bottom`. A partial fill of it lands in the zone of the root tip: seasons are stored that
    /// way.
    void FillTail(int lastZone, int tipZone, float top, float bottom) {
        if (std::fabs(static_cast<double>(top) - bottom) > ThinnestTail && water_ > 0)
            Fill(lastZone, tipZone, top, bottom);
    }

  private:
    std::int16_t& ContentOf(int zone) {
        if (zone < 0 || zone > contentGrid_.Top)
            throw RunTimeFailure(fmt::format("The soil has zones 0 to {}, not a zone {}.", contentGrid_.Top, zone));
        return soil_.Content[static_cast<std::size_t>(zone)];
    }

    const ZoneGrid& capacityGrid_;
    const ZoneGrid& contentGrid_;
    float water_;
    SoilProfile& soil_;
};

void RefillUniformZones(Refill& refill, float rootTip, float rootMax, float interval) {
    const auto boundary = [interval](int zone) {
        return ToSingle(static_cast<double>(zone) * interval, "the depth of a soil zone");
    };
    const int tip = ZoneAt(rootTip, interval);
    const int last = ZoneAt(rootMax, interval);
    if (tip == last) {
        refill.Fill(tip, rootTip, rootMax);
        return;
    }
    if (!refill.Fill(tip, rootTip, boundary(tip + 1))) return;
    for (int zone = tip + 1; zone < last; ++zone)
        if (!refill.Fill(zone, boundary(zone), boundary(zone + 1))) break;
    refill.FillTail(last, tip, boundary(last), rootMax);
}

void RefillLayers(Refill& refill, float rootTip, float rootMax, const LayerBottoms& bottoms, int last) {
    const auto bottom = [&bottoms](int layer) {
        if (layer < 0 || layer >= static_cast<int>(bottoms.size()))
            throw RunTimeFailure(fmt::format("The soil has no layer {} with a thickness of its own.", layer));
        return bottoms[static_cast<std::size_t>(layer)];
    };
    const int tip = LayerAt(rootTip, bottoms).value_or(0);
    if (tip == last) {
        refill.Fill(tip, rootTip, rootMax);
        return;
    }
    if (!refill.Fill(tip, rootTip, bottom(tip))) return;
    // The interval of a layer is taken one layer further down than it lies: seasons are stored that way.
    for (int layer = tip + 1; layer < last; ++layer)
        if (!refill.Fill(layer, bottom(layer), bottom(layer + 1))) break;
    refill.FillTail(last, tip, bottom(last - 1), rootMax);
}

}  // namespace

LayerBottoms BottomsOf(const LayerBounds& thicknesses) {
    LayerBottoms bottoms{};
    double depth = 0;
    for (std::size_t layer = 0; layer < bottoms.size(); ++layer) {
        bottoms[layer] = ToSingle(depth + thicknesses[layer], "the depth of a soil layer");
        depth = bottoms[layer];
    }
    return bottoms;
}

std::optional<int> LayerAt(float depth, const LayerBottoms& bottoms) {
    if (depth < bottoms[0]) return 0;
    for (std::size_t layer = 1; layer < bottoms.size(); ++layer)
        if (bottoms[layer - 1] <= depth && depth < bottoms[layer]) return static_cast<int>(layer);
    return std::nullopt;
}

float RefillBelowRoots(float rootTip, float rootMax, const ZoneGrid& capacityGrid, const ZoneGrid& contentGrid,
                       float water, SoilProfile& soil) {
    Refill refill(capacityGrid, contentGrid, water, soil);
    if (contentGrid.Variable())
        RefillLayers(refill, rootTip, rootMax, BottomsOf(contentGrid.Bounds), contentGrid.Top);
    else
        RefillUniformZones(refill, rootTip, rootMax, contentGrid.Interval);
    return refill.WaterLeft();
}

}  // namespace veraqua
