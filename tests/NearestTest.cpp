// Which words are near enough to have been meant.
#include "Nearest.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using tool::Nearest;
using Words = std::vector<std::string>;

TEST(NearestTest, AFewLettersMakeNoOtherWord) {
    EXPECT_THAT(Nearest("lod", Words{"load", "show"}).Words(), ElementsAre("load"));
    EXPECT_THAT(Nearest("laod", Words{"load"}).Words(), ElementsAre("load")) << "two that changed places";
    EXPECT_THAT(Nearest("loadd", Words{"load"}).Words(), ElementsAre("load"));
    EXPECT_THAT(Nearest("lood", Words{"load"}).Words(), ElementsAre("load"));
}

TEST(NearestTest, SomethingElseIsNotOffered) {
    EXPECT_THAT(Nearest("xyz", Words{"load", "show"}).Words(), IsEmpty());
    EXPECT_THAT(Nearest("BomNothing", Words{"BomPeople", "BomItems"}).Words(), IsEmpty());
    EXPECT_THAT(Nearest("", Words{"a"}).Words(), IsEmpty());
}

TEST(NearestTest, TheCaseMattersLeast) {
    EXPECT_THAT(Nearest("BOMPART", Words{"BomPart", "BOMPORT"}).Words(), ElementsAre("BomPart", "BOMPORT"));
    EXPECT_THAT(Nearest("bompart", Words{"BomPart", "bomport"}).Words(), ElementsAre("BomPart", "bomport"));
}

TEST(NearestTest, ABeginningIsEnough) {
    EXPECT_THAT(Nearest("Assem", Words{"Assembly", "AssemblyOfManyParts", "Part"}).Words(),
                ElementsAre("Assembly", "AssemblyOfManyParts"));
    EXPECT_THAT(Nearest("As", Words{"Assembly"}).Words(), IsEmpty()) << "too short to tell";
}

TEST(NearestTest, TheOrderOfTheCandidatesDoesNotMatter) {
    EXPECT_EQ(Nearest("part", Words{"cart", "dart", "hart", "mart", "tart"}).Words(),
              Nearest("part", Words{"tart", "mart", "dart", "hart", "cart"}).Words());
    EXPECT_THAT(Nearest("part", Words{"tart", "mart", "cart", "dart"}).Words(),
                ElementsAre("cart", "dart", "mart"));
}

TEST(NearestTest, AWordIsOfferedOnce) {
    EXPECT_THAT(Nearest("lod", Words{"load", "load"}).Words(), ElementsAre("load"));
}

TEST(NearestTest, TheQuestionNamesThemAll) {
    EXPECT_EQ(Nearest("part", Words{}).Question(), "");
    EXPECT_EQ(Nearest("part", Words{"cart"}).Question(), "; did you mean cart?");
    EXPECT_EQ(Nearest("part", Words{"cart", "dart"}).Question(), "; did you mean cart or dart?");
    EXPECT_EQ(Nearest("part", Words{"cart", "dart", "mart"}).Question(),
              "; did you mean cart, dart or mart?");
}

TEST(NearestTest, AVeryLongWordIsNotCompared) {
    const std::string word(100'000, 'x');

    EXPECT_THAT(Nearest(word, Words{word + "y"}).Words(), IsEmpty());
    EXPECT_THAT(Nearest("xxxx", Words{word}).Words(), ElementsAre(word)) << "it begins with it";
}

}  // namespace
