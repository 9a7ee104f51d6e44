#include "ZELText.h"

#include <gtest/gtest.h>

#include <climits>

#include "ZELHash.h"

namespace {

TEST(ZELTextTest, HoldsItsCharactersAndAClosingZero) {
    ZELText* const text = ZELText::Create("Part", "Version");

    EXPECT_EQ(text->View(), "PartVersion");
    EXPECT_EQ(text->Length(), 11U);
    EXPECT_STREQ(text->Characters(), "PartVersion");
    text->Release();
}

TEST(ZELTextTest, LivesUntilTheLastReferenceIsGivenBack) {
    ZELText* const text = ZELText::Create("Part");

    EXPECT_EQ(text->AddRef(), text);
    text->Release();

    EXPECT_EQ(text->View(), "Part");
    text->Release();
}

TEST(ZELTextTest, TheEmptyTextIsOne) {
    ZELText* const first = ZELText::CreateEmpty();
    ZELText* const second = ZELText::CreateEmpty();

    EXPECT_EQ(first, second);
    EXPECT_EQ(first->Length(), 0U);
    EXPECT_EQ(first->CharacterCount(), 0U);
    EXPECT_STREQ(first->Characters(), "");
    first->Release();
    second->Release();
    EXPECT_STREQ(ZELText::CreateEmpty()->Characters(), "");
}

TEST(ZELTextTest, TheKeyIsThatOfTheWholeText) {
    ZELText* const text = ZELText::Create("Assembly");

    EXPECT_EQ(text->HashKey(), ZELHashText("Assembly"));
    EXPECT_EQ(text->HashKey(), ZELHashText("Assembly"));
    text->Release();
}

TEST(ZELTextTest, TheKeyIsWorkedOutOnce) {
    ZELSetHashSeed(1);
    ZELText* const text = ZELText::Create("Assembly");
    const std::uint32_t key = text->HashKey();

    ZELSetHashSeed(2);

    EXPECT_EQ(text->HashKey(), key);
    EXPECT_NE(ZELHashText("Assembly"), key);
    text->Release();
}

TEST(ZELTextTest, CountsCharactersAndNotBytes) {
    ZELText* const text = ZELText::Create("a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x99\x82z");

    EXPECT_EQ(text->Length(), 11U);
    EXPECT_EQ(text->CharacterCount(), 5U);
    text->Release();
}

TEST(ZELTextTest, ATextTooLongForItsLengthIsRefused) {
    const char one = 'x';
    EXPECT_THROW(ZELText::Create(std::string_view(&one, static_cast<std::size_t>(INT_MAX) + 1)),
                 std::length_error);
}

TEST(ZELTextTest, ComparesByUnsignedBytes) {
    EXPECT_LT(ZELCompareText("a", "b"), 0);
    EXPECT_LT(ZELCompareText("a", "ab"), 0);
    EXPECT_EQ(ZELCompareText("a", "a"), 0);
    EXPECT_GT(ZELCompareText("\xC3\xA9", "z"), 0);
}

}  // namespace
