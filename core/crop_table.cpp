#include "core/crop_table.h"

#include <algorithm>

#include <fmt/format.h>

#include "core/base/text_items.h"
#include "core/files/files.h"
#include "core/state.h"

namespace veraqua {

namespace {

constexpr std::string_view CropFile = "crop.dat";

void TakeSingles(TextItems& items, float* first, std::size_t count) {
    std::generate_n(first, count, [&items] { return items.Single(); });
}

void TakeOrdinary(TextItems& items, FieldHeader& field) {
    field.GddUpper = items.Single();
    field.GddLower = items.Single();
    field.RootStart = items.Single();
    field.RootMax = items.Single();
    field.KcSpan = items.Single();
    TakeSingles(items, field.KcSine.data(), field.KcSine.size());
    field.GddHarvest = items.Integer16();
    field.SeasonDays = items.Integer16();
}

void TakeHay(TextItems& items, HayHeader& hay) {
    hay.GddUpper = items.Single();
    hay.GddLower = items.Single();
    hay.RootMax = items.Single();
    TakeSingles(items, hay.Curve.data(), hay.Curve.size());
    hay.GddCut = items.Integer16();
    hay.SeasonDays = items.Integer16();
    hay.DryDays = items.Integer16();
}

Crop TakeCrop(TextItems& items) {
    Crop crop;
    crop.Name = items.Text();
    if (crop.IsHay()) {
        TakeHay(items, crop.Hay);
        crop.Hay.CropName = crop.Name;
    } else {
        TakeOrdinary(items, crop.Field);
        crop.Field.CropName = crop.Name;
    }
    return crop;
}

}  // namespace

std::vector<Crop> ReadCropTable(Ask& ask) {
    const auto bytes = files::Read(CropFile);
    if (!bytes) {
        ask.Tell("Exiting -- need to reload CROP.DAT", "Fatal Error", Icon::Stop);
        ask.EndProgram();
    }
    TextItems items(*bytes, CropFile);
    const int count = items.Integer16();
    if (count < 0) FailIn(CropFile, fmt::format("{} crops.", count));
    if (count > MaxCrops) {
        ask.Tell("Too many crops in crop.dat.  Redefine with fewer than 200 crops!");
        ask.EndProgram();
    }
    std::vector<Crop> crops;
    for (int i = 1; i <= count; ++i) {
        if (items.AtEnd()) {
            ask.Tell("File CROP.DAT is bad. Recopy from distribution disk.");
            ask.EndProgram();
        }
        crops.push_back(TakeCrop(items));
    }
    return crops;
}

void LoadCropList(Ask& ask) {
    State.CropNames.clear();
    for (Crop& crop : ReadCropTable(ask)) State.CropNames.push_back(std::move(crop.Name));
}

void ReadCrop(Ask& ask, int number) {
    const std::vector<Crop> crops = ReadCropTable(ask);
    if (number < 1 || static_cast<std::size_t>(number) > crops.size())
        FailIn(CropFile, fmt::format("it has {} crops, not a crop {}.", crops.size(), number));
    const Crop& crop = crops[static_cast<std::size_t>(number - 1)];
    State.IsHay = crop.IsHay();
    State.Field = crop.Field;
    State.Hay = crop.Hay;
    State.Stat[State.CurrentField].CropName = crop.Name;
}

}  // namespace veraqua
