#include "ZELUnicodeString.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <string>
#include <utility>

namespace {

TEST(ZELUnicodeStringTest, IsOneWord) { EXPECT_EQ(sizeof(ZELUnicodeString), sizeof(void*)); }

TEST(ZELUnicodeStringTest, TellsNullFromEmpty) {
    const ZELUnicodeString null;
    const ZELUnicodeString empty("");

    EXPECT_TRUE(null.IsNull());
    EXPECT_TRUE(null.IsEmpty());
    EXPECT_FALSE(empty.IsNull());
    EXPECT_TRUE(empty.IsEmpty());
    EXPECT_NE(null, empty);
    EXPECT_LT(null, empty);
    EXPECT_LT(empty, ZELUnicodeString("a"));
}

TEST(ZELUnicodeStringTest, OnlyAMissingTextGivesNull) {
    EXPECT_TRUE(ZELUnicodeString(static_cast<const char*>(nullptr)).IsNull());
    EXPECT_FALSE(ZELUnicodeString(std::string_view()).IsNull());
    EXPECT_FALSE(ZELUnicodeString(ZELString()).IsNull());
}

TEST(ZELUnicodeStringTest, NullReadsAsNoText) {
    const ZELUnicodeString null;

    EXPECT_EQ(null.Length(), 0);
    EXPECT_EQ(null.View(), "");
    EXPECT_STREQ(null.ConvertToChar(), "");
    EXPECT_TRUE(null.ToZELString().IsEmpty());
}

TEST(ZELUnicodeStringTest, LengthCountsCharacters) {
    EXPECT_EQ(ZELUnicodeString("caf\xC3\xA9").Length(), 4);
    EXPECT_EQ(ZELUnicodeString("\xE2\x82\xAC").Length(), 1);
}

TEST(ZELUnicodeStringTest, SetNullForgetsTheText) {
    ZELUnicodeString text("a");
    const ZELUnicodeString copy = text;

    text.SetNull();

    EXPECT_TRUE(text.IsNull());
    EXPECT_EQ(copy.View(), "a");
}

TEST(ZELUnicodeStringTest, SharesItsTextWithCopiesAndNarrowStrings) {
    const ZELString narrow("Part");

    const ZELUnicodeString text(narrow);
    const ZELUnicodeString copy = text;

    EXPECT_EQ(copy.ConvertToChar(), narrow.ConvertToChar());
    EXPECT_EQ(copy.ToZELString().ConvertToChar(), narrow.ConvertToChar());
}

TEST(ZELUnicodeStringTest, AMovedStringIsNull) {
    ZELUnicodeString original("a");

    const ZELUnicodeString moved = std::move(original);

    EXPECT_EQ(moved.View(), "a");
    EXPECT_TRUE(original.IsNull());
}

TEST(ZELUnicodeStringTest, StripsBlanksOnlyAndAtTheEndsOnly) {
    EXPECT_EQ(ZELUnicodeString("  a b ").Stripped().View(), "a b");
    EXPECT_EQ(ZELUnicodeString("\ta\n").Stripped().View(), "\ta\n");
    EXPECT_EQ(ZELUnicodeString("\xC2\xA0").Stripped().View(), "\xC2\xA0");
}

TEST(ZELUnicodeStringTest, StrippingKeepsNullAndMakesBlanksEmpty) {
    EXPECT_TRUE(ZELUnicodeString().Stripped().IsNull());
    EXPECT_FALSE(ZELUnicodeString("   ").Stripped().IsNull());
    EXPECT_TRUE(ZELUnicodeString("   ").Stripped().IsEmpty());
    EXPECT_FALSE(ZELUnicodeString("").Stripped().IsNull());
}

TEST(ZELUnicodeStringTest, StrippingWhatHasNoBlanksSharesTheText) {
    const ZELUnicodeString text("a b");

    EXPECT_EQ(text.Stripped().ConvertToChar(), text.ConvertToChar());
}

TEST(ZELUnicodeStringTest, StrippedTextHasNoBlankAtAnEndAndLosesNothingElse) {
    EXPECT_TRUE(rc::check("blanks around any text", [](const std::string& text) {
        const auto before = static_cast<std::size_t>(*rc::gen::inRange(0, 4));
        const auto after = static_cast<std::size_t>(*rc::gen::inRange(0, 4));
        const std::string padded = std::string(before, ' ') + text + std::string(after, ' ');

        const ZELUnicodeString stripped = ZELUnicodeString(std::string_view(padded)).Stripped();

        RC_ASSERT(stripped == ZELUnicodeString(std::string_view(text)).Stripped());
        RC_ASSERT(stripped.IsEmpty() || (stripped.View().front() != ' ' && stripped.View().back() != ' '));
        RC_ASSERT(text.find(stripped.View()) != std::string::npos);
    }));
}

}  // namespace
