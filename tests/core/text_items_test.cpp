#include "core/text_items.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "core/text.h"
#include "tests/support/failure.h"

namespace veraqua {

namespace {

using testing::HasSubstr;
using testing::StartsWith;

TEST(TextItems, CommasLineEndsQuotesAndBlankLinesInAnyMix) {
    TextItems items(
        "\r\n 2 , 3\r\n\r\n\"WHEAT, WINTER\" , -1.5\n"
        "  Red  Beet  ,+.25\n\n\n7\r\n\"\",Last",
        "crop.dat");
    EXPECT_EQ(items.Integer16(), 2);
    EXPECT_EQ(items.Integer16(), 3);
    EXPECT_EQ(items.Text(), "WHEAT, WINTER");
    EXPECT_EQ(items.Single(), -1.5F);
    EXPECT_EQ(items.Text(), "Red  Beet");
    EXPECT_EQ(items.Single(), 0.25F);
    EXPECT_FALSE(items.AtEnd());
    EXPECT_EQ(items.Single(), 7.0F);
    EXPECT_EQ(items.Text(), "");
    EXPECT_EQ(items.Text(), "Last");
    EXPECT_TRUE(items.AtEnd());
}

TEST(TextItems, WhatIsNoNumberOrNotThereIsAFailureThatNamesFileAndLine) {
    for (const std::string item : {"abc", "1.2.3", "12x", "0x10", "1-2", "+-5", "inf", "1e99", ",", "\"5\""}) {
        const std::string text = "5\n\n" + item + "\n6";
        TextItems items(text, "crop.dat");
        items.Integer16();
        EXPECT_FAILURE(items.Single(), StartsWith("crop.dat: line 3: ")) << item;
    }
    for (const std::string item : {"32768", "-32769", "1e9"})
        EXPECT_FAILURE(TextItems(item, "crop.dat").Integer16(), HasSubstr("-32768 to 32767")) << item;
    TextItems numbers("1\n", "crop.dat");
    numbers.Integer16();
    EXPECT_FAILURE(numbers.Single(), HasSubstr("crop.dat: line 2: the file ends where a number is due"));
    EXPECT_FAILURE(TextItems("\"MAIZE", "crop.dat").Text(), HasSubstr("a quoted text has no end"));
}

/// Data files hold Latin-1, the program UTF-8.
TEST(Text, LatinOneAndUtf8) {
    EXPECT_EQ(TextItems("Ca\xF1on \xC5rd\n", "weathdef.dat").Text(), "Cañon Ård");
    std::string allBytes;
    for (int code = 1; code < 256; ++code) allBytes += static_cast<char>(code);
    EXPECT_EQ(Latin1FromUtf8(Utf8FromLatin1(allBytes)), allBytes);
    for (const std::string text : {"水", "Ā", "\xC3", "\xC3(", "\x80", "\xFF"})
        EXPECT_EQ(Latin1FromUtf8(text), std::nullopt) << text;
}

TEST(Text, FixedTextIsPaddedCutAndKeptAsTyped) {
    FixedText<5> text;
    EXPECT_EQ(text.Whole(), "     ");
    text = " ñ1";
    EXPECT_EQ(text.Whole(), " ñ1  ");
    EXPECT_EQ(text.Text(), "ñ1");
    EXPECT_EQ(text.Bytes()[1], '\xF1');
    text = "SEVEN OR MORE";
    EXPECT_EQ(text.Whole(), "SEVEN");
}

}  // namespace

}  // namespace veraqua
