#include "ZELString.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <string>
#include <utility>

#include "ZELHash.h"

namespace {

TEST(ZELStringTest, IsOneWord) { EXPECT_EQ(sizeof(ZELString), sizeof(void*)); }

TEST(ZELStringTest, IsEmptyByDefaultFromNullAndFromNothing) {
    const ZELString byDefault;
    const ZELString fromNull(static_cast<const char*>(nullptr));
    const ZELString fromNothing("");

    EXPECT_TRUE(byDefault.IsEmpty());
    EXPECT_TRUE(fromNull.IsEmpty());
    EXPECT_TRUE(fromNothing.IsEmpty());
    EXPECT_EQ(byDefault, fromNothing);
    EXPECT_EQ(byDefault.Length(), 0);
    EXPECT_STREQ(byDefault.ConvertToChar(), "");
    EXPECT_NE(byDefault.View().data(), nullptr);
    EXPECT_EQ(byDefault.ComputeHashKey(), ZELHashText(""));
}

TEST(ZELStringTest, HoldsItsText) {
    const ZELString name = "Part";

    EXPECT_FALSE(name.IsEmpty());
    EXPECT_EQ(name.Length(), 4);
    EXPECT_EQ(name.View(), "Part");
    EXPECT_STREQ(name.ConvertToChar(), "Part");
}

TEST(ZELStringTest, LengthCountsBytes) { EXPECT_EQ(ZELString("\xC3\xA9").Length(), 2); }

TEST(ZELStringTest, ACopySharesTheText) {
    const ZELString original("Part");

    const ZELString copy = original;

    EXPECT_EQ(copy.ConvertToChar(), original.ConvertToChar());
}

TEST(ZELStringTest, AMovedStringIsEmpty) {
    ZELString original("Part");

    const ZELString moved = std::move(original);

    EXPECT_EQ(moved.View(), "Part");
    EXPECT_TRUE(original.IsEmpty());
}

TEST(ZELStringTest, AssigningToItselfKeepsTheText) {
    ZELString name("Part");
    const ZELString& same = name;

    name = same;

    EXPECT_EQ(name.View(), "Part");
}

TEST(ZELStringTest, AppendLeavesCopiesAlone) {
    ZELString name("Part");
    const ZELString copy = name;

    name.Append("Version").Append(ZELString("s")).Append(static_cast<const char*>(nullptr));

    EXPECT_EQ(name.View(), "PartVersions");
    EXPECT_EQ(copy.View(), "Part");
}

TEST(ZELStringTest, CanAppendItself) {
    ZELString name("ab");

    name.Append(name).Append(name.View().substr(1));

    EXPECT_EQ(name.View(), "ababbab");
}

TEST(ZELStringTest, ComparesExactlyCaseIncluded) {
    EXPECT_EQ(ZELString("Part"), ZELString("Part"));
    EXPECT_NE(ZELString("Part"), ZELString("part"));
    EXPECT_LT(ZELString("Part"), ZELString("part"));
    EXPECT_EQ(ZELString("Part").Compare("Part"), 0);
    EXPECT_LT(ZELString("Part").Compare("Parts"), 0);
    EXPECT_GT(ZELString("Part").Compare(""), 0);
}

TEST(ZELStringTest, BehavesLikeAStandardString) {
    EXPECT_TRUE(rc::check("texts and their order", [](const std::string& a, const std::string& b) {
        const ZELString left{std::string_view(a)};
        const ZELString right{std::string_view(b)};
        ZELString both = left;
        both.Append(right);

        RC_ASSERT(left.View() == a);
        RC_ASSERT(both.View() == a + b);
        RC_ASSERT((left == right) == (a == b));
        RC_ASSERT((left < right) == (a < b));
        RC_ASSERT((left.Compare(right) < 0) == (a < b));
        RC_ASSERT((left.Compare(right) == 0) == (a == b));
        RC_ASSERT(both.ComputeHashKey() == ZELString(std::string_view(a + b)).ComputeHashKey());
    }));
}

}  // namespace
