// Patterns for names.
#include "Glob.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using tool::Glob;

bool Fits(std::string_view pattern, std::string_view text) { return Glob(pattern).Matches(text); }

TEST(GlobTest, ATextFitsItself) {
    EXPECT_TRUE(Fits("Part", "Part"));
    EXPECT_FALSE(Fits("Part", "Parts"));
    EXPECT_FALSE(Fits("Part", "Par"));
    EXPECT_TRUE(Fits("", ""));
    EXPECT_FALSE(Fits("", "a"));
}

TEST(GlobTest, AStarIsAnyText) {
    EXPECT_TRUE(Fits("*", ""));
    EXPECT_TRUE(Fits("*Part", "BomPart"));
    EXPECT_TRUE(Fits("Bom*", "Bom"));
    EXPECT_TRUE(Fits("B*P*t", "BomPartPart"));
    EXPECT_TRUE(Fits("**a**", "xax"));
    EXPECT_FALSE(Fits("B*P*x", "BomPartPart"));
    EXPECT_TRUE(Fits("*ab", "aab")) << "the first try is too early";
}

TEST(GlobTest, AQuestionMarkIsOneCharacter) {
    EXPECT_TRUE(Fits("P?rt", "Part"));
    EXPECT_FALSE(Fits("P?rt", "Prt"));
    EXPECT_TRUE(Fits("St?ck", "Stück")) << "of several bytes";
    EXPECT_FALSE(Fits("St??ck", "Stück"));
}

TEST(GlobTest, BracketsListCharacters) {
    EXPECT_TRUE(Fits("[a-c]1", "b1"));
    EXPECT_TRUE(Fits("[A-C]1", "b1"));
    EXPECT_FALSE(Fits("[a-c]1", "d1"));
    EXPECT_TRUE(Fits("[!a-c]1", "d1"));
    EXPECT_FALSE(Fits("[^a-c]1", "a1"));
    EXPECT_TRUE(Fits("[xy]", "y"));
    EXPECT_TRUE(Fits("[-x]", "-"));
    EXPECT_TRUE(Fits("[]x]", "]")) << "the first one closes nothing";
    EXPECT_FALSE(Fits("[!]x]", "]"));
    EXPECT_TRUE(Fits("[x", "[x")) << "never closed";
}

TEST(GlobTest, ABackslashTakesTheNextAsItIs) {
    EXPECT_TRUE(Fits("a\\*", "a*"));
    EXPECT_FALSE(Fits("a\\*", "ab"));
    EXPECT_TRUE(Fits("a\\", "a\\"));
}

TEST(GlobTest, TheCaseDoesNotCount) {
    EXPECT_TRUE(Fits("bompart", "BomPart"));
    EXPECT_TRUE(Fits("STÜCK", "Stück"));
    EXPECT_TRUE(Fits("ΑΒΓ", "αβγ"));
    EXPECT_TRUE(Fits("ДЁ", "дё"));
    EXPECT_TRUE(Fits("ŁÓDŹ", "łódź"));
    EXPECT_FALSE(Fits("ä", "a"));
}

TEST(GlobTest, ItTakesNoLongerForManyStars) {
    const std::string text(2'000, 'a');

    EXPECT_FALSE(Fits("*a*a*a*a*a*a*a*a*a*a*a*a*b", text));
    EXPECT_TRUE(Fits("*a*a*a*a*a*a*a*a*a*a*a*a*a", text));
}

TEST(GlobTest, BrokenBytesDoNoHarm) {
    EXPECT_TRUE(Fits("*", "\xC3"));
    EXPECT_TRUE(Fits("\xF0\x9F", "\xF0\x9F"));
    EXPECT_FALSE(Fits("a", "\xE2\x82"));
}

TEST(GlobTest, APatternIsToldFromAName) {
    EXPECT_TRUE(Glob::IsPattern("Bom*"));
    EXPECT_TRUE(Glob::IsPattern("B?m"));
    EXPECT_TRUE(Glob::IsPattern("[a]"));
    EXPECT_FALSE(Glob::IsPattern("BomPart"));
}

}  // namespace
