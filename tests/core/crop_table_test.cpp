#include "core/crop_table.h"

#include <string>
#include <tuple>

#include <gmock/gmock.h>

#include "core/state.h"
#include "tests/support/data_directory.h"
#include "tests/support/failure.h"

namespace veraqua {
namespace {

using testing::ElementsAre;
using testing::StartsWith;

/// Both layouts, with a name that a header cuts and one that is quoted; no two numbers of a row are alike.
constexpr std::string_view ThreeCrops =
    "3\r\n"
    "\"MAIZE FOR GRAIN, LATE\", 30, 10, 0.25, 1, 1820, 1.5, -0.5, -0.25, -0.125, -0.75, -2.5, 1132, 160\r\n"
    "\r\n"
    "@ALFALFA\r\n"
    "31,5,1.25,0.5,0.75,0.125\r\n"
    "1.5,-2.5,3.5,4.5,5.5,6.5,7.5,8.5,9.5,10.5,490,260,7\r\n"
    "BEANS,1,2,3,4,5,6,7,8,9,10,11,12,13\r\n"
    "what follows the last row is not read";

struct CropTable : DirectoryTest {};

TEST_F(CropTable, BothLayoutsAreTakenInTheirOrder) {
    State.CurrentField = 1;
    Directory.Put("CROP.DAT", ThreeCrops);
    State.Field.IrrEff = 0.5F;
    State.Hay.NextCutDay = 730426;
    LoadCropList(User);
    EXPECT_THAT(State.CropNames, ElementsAre("MAIZE FOR GRAIN, LATE", "@ALFALFA", "BEANS"));

    ReadCrop(User, 1);
    const FieldHeader& maize = State.Field;
    EXPECT_EQ(maize.CropName.Whole(), "MAIZE FOR GRA");
    EXPECT_EQ(std::tuple(maize.GddUpper, maize.GddLower, maize.RootStart, maize.RootMax, maize.KcSpan),
              std::tuple(30.0F, 10.0F, 0.25F, 1.0F, 1820.0F));
    EXPECT_THAT(maize.KcSine, ElementsAre(1.5F, -0.5F, -0.25F, -0.125F, -0.75F, -2.5F));
    EXPECT_EQ(std::tuple(maize.GddHarvest, maize.SeasonDays, maize.IrrEff), std::tuple(1132, 160, 0.0F));
    EXPECT_EQ(State.Stat[1].CropName.Whole(), "MAIZE FOR GRA");

    ReadCrop(User, 2);
    EXPECT_TRUE(State.IsHay);
    const HayHeader& hay = State.Hay;
    EXPECT_EQ(std::tuple(hay.GddUpper, hay.GddLower, hay.RootMax), std::tuple(31.0F, 5.0F, 1.25F));
    EXPECT_THAT(hay.Curve,
                ElementsAre(0.5F, 0.75F, 0.125F, 1.5F, -2.5F, 3.5F, 4.5F, 5.5F, 6.5F, 7.5F, 8.5F, 9.5F, 10.5F));
    EXPECT_EQ(std::tuple(hay.GddCut, hay.SeasonDays, hay.DryDays, hay.NextCutDay), std::tuple(490, 260, 7, 0));

    ReadCrop(User, 3);
    EXPECT_FALSE(State.IsHay) << "an ordinary crop after hay";
    EXPECT_FAILURE(ReadCrop(User, 4), StartsWith("crop.dat: "));
}

TEST_F(CropTable, AFileThatCannotBeReadWhollyEndsTheProgramOrIsAFailure) {
    const std::string beans = "BEANS,1,2,3,4,5,6,7,8,9,10,11,12,13\n";
    // An item short, the next name is no number.
    for (const std::string text : {"", "many", "-1", "1\nBEANS,1,2,3", "2\nBEANS,1,2,3,4,5,6,7,8,9,10,11,12\nBEANS",
                                   "1\nBEANS,1,2,3,4,5,6,7,8,9,10,11,40000,13\n"}) {
        Directory.Put("crop.dat", text);
        EXPECT_FAILURE(LoadCropList(User), StartsWith("crop.dat: ")) << text;
    }
    for (const std::string& text : {"201\n" + beans, "2\n" + beans + " \r\n\n"}) {
        Directory.Put("crop.dat", text);
        EXPECT_THROW(LoadCropList(User), ProgramEnded);
    }
    Directory.Delete("crop.dat");
    EXPECT_THROW(LoadCropList(User), ProgramEnded);
    EXPECT_THAT(User.Texts(), ElementsAre("Too many crops in crop.dat.  Redefine with fewer than 200 crops!",
                                          "File CROP.DAT is bad. Recopy from distribution disk.",
                                          "Exiting -- need to reload CROP.DAT"));
}

}  // namespace
}  // namespace veraqua
