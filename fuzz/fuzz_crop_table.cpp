// crop.dat: the whole table, and its first and last crop taken for a new field.

#include <string>
#include <vector>

#include "core/crop_table.h"
#include "core/state.h"
#include "fuzz/fuzz_target.h"
#include "fuzz/support.h"

namespace veraqua {

namespace {

void TakeTable(std::string_view bytes) {
    const MemoryDirectory directory;
    ScriptAsk user;
    files::Write("crop.dat", std::string(bytes));
    State.CurrentField = 1;
    std::vector<Crop> crops;
    const bool isRead = EndsWell([&] { crops = ReadCropTable(user); });
    Require(EndsWell([&] { LoadCropList(user); }) == isRead, "a table is read the first time or the second only");
    if (!isRead) return;

    const int last = static_cast<int>(crops.size());
    Require(crops.size() <= MaxCrops && State.CropNames.size() == crops.size(), "the table has too many crops");
    for (const int number : {0, last + 1})
        Require(!EndsWell([&] { ReadCrop(user, number); }), "a crop outside of the table is taken");
    if (last == 0) return;
    for (const int number : {1, last}) {
        ReadCrop(user, number);
        Require(State.IsHay == crops[static_cast<std::size_t>(number - 1)].IsHay(), "a crop is taken for another kind");
    }
}

}  // namespace

}  // namespace veraqua

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    veraqua::TakeTable(veraqua::TextOf(data, size));
    return 0;
}
