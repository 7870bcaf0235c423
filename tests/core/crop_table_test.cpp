#include "core/crop_table.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "core/state.h"
#include "tests/support/data_directory.h"
#include "tests/support/failure.h"

namespace veraqua {

namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

constexpr std::string_view Beans = "BEANS,1,2,3,4,5,6,7,8,9,10,11,12,13\n";

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

struct CropTable : DirectoryTest {
    CropTable() { State.CurrentField = 1; }
};

TEST_F(CropTable, BothLayoutsAreTakenInTheirOrder) {
    Directory.Put("CROP.DAT", ThreeCrops);
    State.Field.StationCode = "08";
    State.Field.IrrEff = 0.5F;
    State.Hay.NextCutDay = 730426;
    LoadCropList(User);
    EXPECT_THAT(State.CropNames, ElementsAre("MAIZE FOR GRAIN, LATE", "@ALFALFA", "BEANS"));

    ReadCrop(User, 1);
    EXPECT_FALSE(State.IsHay);
    FieldHeader maize;
    maize.CropName = "MAIZE FOR GRA";
    maize.GddUpper = 30;
    maize.GddLower = 10;
    maize.RootStart = 0.25F;
    maize.RootMax = 1;
    maize.KcSpan = 1820;
    maize.KcSine = {1.5F, -0.5F, -0.25F, -0.125F, -0.75F, -2.5F};
    maize.GddHarvest = 1132;
    maize.SeasonDays = 160;
    EXPECT_EQ(State.Field, maize);  // with nothing of the field before it
    EXPECT_EQ(State.Stat[1].CropName.Whole(), "MAIZE FOR GRA");

    ReadCrop(User, 2);
    EXPECT_TRUE(State.IsHay);
    HayHeader alfalfa;
    alfalfa.CropName = "@ALFALFA";
    alfalfa.GddUpper = 31;
    alfalfa.GddLower = 5;
    alfalfa.RootMax = 1.25F;
    alfalfa.Curve = {0.5F, 0.75F, 0.125F, 1.5F, -2.5F, 3.5F, 4.5F, 5.5F, 6.5F, 7.5F, 8.5F, 9.5F, 10.5F};
    alfalfa.GddCut = 490;
    alfalfa.SeasonDays = 260;
    alfalfa.DryDays = 7;
    EXPECT_EQ(State.Hay, alfalfa);
    EXPECT_EQ(State.Stat[1].CropName.Text(), "@ALFALFA");

    ReadCrop(User, 3);
    EXPECT_FALSE(State.IsHay) << "an ordinary crop after hay";
    EXPECT_EQ(State.Field.GddHarvest, 12);
    EXPECT_THAT(User.Told, IsEmpty());
}

TEST_F(CropTable, AFileThatIsMissingTooLongOrTooShortEndsTheProgram) {
    std::string rows;
    for (int i = 0; i < 201; ++i) rows += Beans;
    Directory.Put("crop.dat", "200\n" + rows);
    LoadCropList(User);
    EXPECT_EQ(State.CropNames.size(), 200U);
    Directory.Put("crop.dat", "201\n" + rows);
    EXPECT_THROW(LoadCropList(User), ProgramEnded);
    Directory.Put("crop.dat", "2\n" + std::string(Beans) + " \r\n\n");
    EXPECT_THROW(LoadCropList(User), ProgramEnded);
    Directory.Delete("crop.dat");
    EXPECT_THROW(LoadCropList(User), ProgramEnded);
    EXPECT_THAT(
        User.Told,
        ElementsAre(ScriptAsk::Message{"Too many crops in crop.dat.  Redefine with fewer than 200 crops!", "Veraqua"},
                    ScriptAsk::Message{"File CROP.DAT is bad. Recopy from distribution disk.", "Veraqua"},
                    ScriptAsk::Message{"Exiting -- need to reload CROP.DAT", "Fatal Error", Icon::Stop}));
}

TEST_F(CropTable, ADamagedFileIsAFailureThatNamesIt) {
    // An item short, the next name is no number.
    for (const std::string& text :
         {std::string(), std::string("many"), std::string("-1"), std::string("1\nBEANS,1,2,3"),
          "2\nBEANS,1,2,3,4,5,6,7,8,9,10,11,12\n" + std::string(Beans),
          std::string("1\nBEANS,1,2,3,4,5,6,7,8,9,10,11,40000,13\n")}) {
        Directory.Put("crop.dat", text);
        EXPECT_FAILURE(LoadCropList(User), StartsWith("crop.dat: ")) << text;
    }
    Directory.Put("crop.dat", ThreeCrops);
    for (const int number : {0, 4})
        EXPECT_FAILURE(ReadCrop(User, number), AllOf(StartsWith("crop.dat: "), HasSubstr("3 crops")));
    EXPECT_THAT(User.Told, IsEmpty());
}

}  // namespace

}  // namespace veraqua
