#include <filesystem>
#include <fstream>
#include <regex>

#include <gmock/gmock.h>

#include "data/embedded.h"

namespace veraqua {
namespace {

using testing::AnyOfArray;
using testing::Contains;
using testing::ElementsAre;
using testing::SizeIs;

const auto Tree = std::filesystem::path(VERAQUA_TEST_DATA).parent_path().parent_path();

/// What `pattern` finds in brackets.
std::vector<std::string> All(const std::string& text, const char* pattern) {
    const std::regex expression(pattern);
    std::vector<std::string> found;
    for (std::sregex_iterator at(text.begin(), text.end(), expression), end; at != end; ++at) found.push_back((*at)[1]);
    return found;
}

std::vector<std::string> AllIn(const std::filesystem::path& file, const char* pattern) {
    std::ifstream stream(file);
    return All(std::string(std::istreambuf_iterator(stream), {}), pattern);
}

TEST(Manual, IsRichTextWithItsPicturesAndLinks) {
    const std::string text(EmbeddedFile("VERAGUIDE.doc"));
    EXPECT_EQ(text.substr(0, 6), "{\\rtf1");
    EXPECT_THAT(All(text, "(pngblip)"), SizeIs(AllIn(Tree / "docs/manual.md", "\\]\\((screens/)").size()));
    const auto places = All(text, "bkmkstart (\\w+)");
    for (const std::string& link : All(text, "HYPERLINK [^\"]*\"([^\"]+)")) EXPECT_THAT(places, Contains(link));
}

TEST(Manual, HasTheSectionThatEachWindowOpens) {
    const auto sections = AllIn(Tree / "docs/manual.md", "\\{#([a-z-]+)\\}");
    for (const auto& design : std::filesystem::directory_iterator(Tree / "desktop/forms"))
        EXPECT_THAT(AllIn(design, "name=\"help\"[^>]*>\\s*<string[^>]*>([^<]*)<"), ElementsAre(AnyOfArray(sections)))
            << design;
}

}  // namespace
}  // namespace veraqua
