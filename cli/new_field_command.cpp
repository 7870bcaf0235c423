#include <algorithm>
#include <array>

#include <fmt/format.h>

#include "cli/commands.h"
#include "core/base/numbers.h"
#include "core/crop_table.h"
#include "core/directory.h"
#include "core/field_file.h"
#include "core/state.h"
#include "workbench/new_field.h"
#include "workbench/soil_layers.h"
#include "workbench/soil_zones.h"

namespace veraqua {

namespace {

/// The parts of "12:1.7:1.5".
std::vector<std::string> Parts(const std::string& text) {
    std::vector<std::string> parts(1);
    for (const char c : text) {
        if (c == ':')
            parts.emplace_back();
        else
            parts.back() += c;
    }
    return parts;
}

/// A new field from the options of the command, with the checks of its entry one after the other. The first that
/// refuses ends it.
class Entry {
  public:
    Entry(Ask& ask, const NewFieldOptions& options) : ask_(ask), options_(options) {}

    OrRefused<StartedField> Make() {
        if (std::optional<Refused> refused = TakeCrop()) return *refused;
        if (std::optional<Refused> refused = Describe()) return *refused;
        if (!FindWeather(ask_)) return Refused{};
        const OrRefused<EnteredSoil> soil = Soil();
        if (!soil.IsDone()) return soil.Why();
        return StartField(ask_, *soil);
    }

  private:
    /// An option in the place of what the entry starts with.
    struct Replacement {
        const std::optional<std::string>& Given;
        std::string& Taken;
        std::optional<Refused> (*Check)(std::string_view);
    };

    std::optional<Refused> TakeCrop() {
        const OrRefused<int> row = RowForNewField();
        if (!row.IsDone()) return row.Why();
        LoadCropList(ask_);
        const std::optional<int> crop = CropCalled(options_.Crop);
        if (!crop) return Refused{fmt::format("There is no crop \"{}\" in the crop table.", options_.Crop)};
        State.CurrentField = static_cast<std::int16_t>(*row);
        ReadCrop(ask_, *crop);
        return std::nullopt;
    }

    /// All that isn't soil.
    std::optional<Refused> Describe() {
        if (!State.IsHay && (options_.MadCritical || options_.DryDays))
            return Refused{"A critical MAD and a drying time are for hay only."};
        const std::optional<std::int32_t> station = WholeNumber(options_.Station);
        if (!station || !IsStation(*station)) return Refused{NoStationText(options_.Station)};
        FieldEntry entry = StartingEntry();
        entry.FieldId = options_.Id;
        entry.PlantDate = options_.PlantDate;
        entry.Station = *station;
        if (std::optional<Refused> refused = CheckPlantDate(entry.PlantDate)) return refused;
        if (std::optional<Refused> refused = PickStation(*station, StationPick::Clicked)) return refused;
        // In the order of the boxes. Of an ordinary crop any root depth may stand in its box.
        for (const auto& [given, taken, check] :
             {Replacement{options_.Efficiency, entry.Efficiency, CheckEfficiency},
              Replacement{options_.Mad, entry.Mad, CheckMad},
              Replacement{options_.MadCritical, entry.MadCritical, CheckMadCritical},
              Replacement{options_.Root, entry.RootDepth, State.IsHay ? CheckHayRootDepth : nullptr},
              Replacement{options_.DryDays, entry.DryDays, CheckDryDays}}) {
            if (!given) continue;
            taken = *given;
            if (check == nullptr) continue;
            if (std::optional<Refused> refused = check(taken)) return refused;
        }
        return DescribeField(ask_, entry);
    }

    OrRefused<EnteredSoil> Soil() {
        CopiedSoil copied;
        if (options_.CopySoil) copied = CopySoilOf(LoadFieldFile(*options_.CopySoil));
        const bool variable = options_.CopySoil ? copied.IsVariable() : !options_.Layers.empty();
        return variable ? Layers(copied) : Zones(copied);
    }

    OrRefused<EnteredSoil> Layers(const CopiedSoil& copied) {
        LayerEntry entry(State.Header().RootMax);
        std::array<TypedWater, MostLayers> water;
        std::vector<std::string> thicknesses;
        if (copied.SoilCopied) {
            const std::vector<StartingLayer> start = entry.StartFrom(copied);
            std::ranges::transform(start, water.begin(), &StartingLayer::Water);
        }
        for (const std::string& given : options_.Layers) {
            const std::size_t layer = thicknesses.size();
            if (layer > 0)
                if (const auto next = entry.NextLayer(thicknesses); !next.IsDone()) return next.Why();
            const std::vector<std::string> parts = Parts(given);
            thicknesses.push_back(parts[0]);
            water[layer] = {parts[1], parts[2]};
            if (std::optional<Refused> refused = entry.TakeThickness(ask_, layer, thicknesses[layer])) return *refused;
            if (std::optional<Refused> refused = entry.CheckCapacity(layer, parts[1])) return *refused;
            if (std::optional<Refused> refused = entry.CheckContent(layer, parts[2])) return *refused;
        }
        // Under roots of less than half a unit nothing may be left of a layer.
        for (std::size_t layer = 0; layer < thicknesses.size(); ++layer)
            if (std::optional<Refused> refused = entry.TakeThickness(ask_, layer, thicknesses[layer])) return *refused;
        return entry.Soil(ask_, water);
    }

    OrRefused<EnteredSoil> Zones(const CopiedSoil& copied) {
        ZoneEntry entry(State.Header().RootMax);
        std::string interval = options_.Interval.value_or("");
        TypedZones water;
        if (copied.SoilCopied) {
            StartingZones start = entry.StartFrom(ask_, copied);
            interval = start.IntervalText;
            water = start.Water;
        } else if (const std::optional<Refused> refused = entry.TakeInterval(Numeric(interval))) {
            if (!options_.Zones.empty()) return *refused;
            Tell(ask_, *refused);  // and once more where the soil is taken
        }
        const std::size_t zones = entry.ZoneTop < 0 ? 0 : static_cast<std::size_t>(entry.ZoneTop) + 1;
        for (std::size_t zone = 0; zone < options_.Zones.size(); ++zone) {
            if (zone >= zones)
                return Refused{fmt::format("The interval gives {} zones, not {}.", zones, options_.Zones.size())};
            const std::vector<std::string> parts = Parts(options_.Zones[zone]);
            water[zone] = {parts[0], parts[1]};
        }
        return entry.Soil(ask_, interval, water);
    }

    Ask& ask_;
    const NewFieldOptions& options_;
};

}  // namespace

int RunFieldNew(Session& session, const NewFieldOptions& options) {
    if (!session.OpenData(files::Access::Write)) return ExitRefused;
    if (options.CopySoil && !IsField(session, *options.CopySoil)) return ExitRefused;
    // Where the run fails or a value is beyond the file, the default weather that was taken for it goes as well.
    files::ChangeSet changes;
    const OrRefused<StartedField> started = Entry(session.Outside, options).Make();
    const bool asBefore = !started.IsDone() && started.Why().IsOverflow;
    if (!asBefore) changes.Commit();
    if (!started.IsDone()) return session.Refuse(started.Why());
    PrintRow(session, started->Row);
    const RunOutcome outcome = started->FirstRun;
    return outcome == RunOutcome::Done || outcome == RunOutcome::NothingToUpdate ? ExitDone : ExitRefused;
}

}  // namespace veraqua
