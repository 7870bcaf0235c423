#include "core/base/text_items.h"

#include <string>

#include <gmock/gmock.h>

#include "core/base/text.h"
#include "tests/support/failure.h"

namespace veraqua {
namespace {

TEST(TextItems, CommasLineEndsQuotesAndBlankLinesComeInAnyMixAndABadItemNamesFileAndLine) {
    TextItems items("\r\n 2 , 3\r\n\r\n\"WHEAT, WINTER\" , -1.5\n  Red  Beet  ,+.25\n\n\n7\r\n\"\",Last", "crop.dat");
    EXPECT_EQ(items.Integer16(), 2);
    EXPECT_EQ(items.Integer16(), 3);
    EXPECT_EQ(items.Text(), "WHEAT, WINTER");
    EXPECT_EQ(items.Single(), -1.5F);
    EXPECT_EQ(items.Text(), "Red  Beet");
    EXPECT_EQ(items.Single(), 0.25F);
    EXPECT_EQ(items.Single(), 7.0F);
    EXPECT_EQ(items.Text(), "");
    EXPECT_EQ(items.Text(), "Last");
    EXPECT_TRUE(items.AtEnd());
    for (const std::string item : {"abc", "1.2.3", "12x", "0x10", "1-2", "inf", "1e99", ",", "\"5\"", "32768", ""}) {
        const std::string text = "\n\n" + item + "\n";
        EXPECT_FAILURE(TextItems(text, "crop.dat").Integer16(), testing::StartsWith("crop.dat: line ")) << item;
    }
}

/// Data files hold Latin-1, the program UTF-8.
TEST(Text, LatinOneAndUtf8) {
    std::string allBytes;
    for (int code = 1; code < 256; ++code) allBytes += static_cast<char>(code);
    EXPECT_EQ(Latin1FromUtf8(Utf8FromLatin1(allBytes)), allBytes);
    for (const std::string text : {"水", "\xC3", "\xC3(", "\x80"})
        EXPECT_EQ(Latin1FromUtf8(text), std::nullopt) << text;
    FixedText<5> fixed;
    fixed = " ñ1";
    EXPECT_EQ(fixed.Whole(), " ñ1  ");
    EXPECT_EQ(fixed.Bytes()[1], '\xF1');
}

}  // namespace
}  // namespace veraqua
