#include "ZELXMLPositions.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <string>

namespace {

/// The place of a byte, counted from the beginning of the text.
ZELVBTXMLPosition Counted(const std::string& text, std::size_t offset) {
    ZELVBTXMLPosition place{1, 1};
    for (std::size_t index = 0; index < offset; ++index) {
        const bool inPair = text[index] == '\r' && text[index + 1] == '\n';
        if ((text[index] == '\r' || text[index] == '\n') && !inPair) {
            place = {place.line + 1, 1};
        } else if ((text[index] & 0xC0) != 0x80) {
            ++place.column;
        }
    }
    return place;
}

TEST(ZELXMLPositions, LinesEndWithAnyOfThreeLineEnds) {
    const std::string text = "a\nb\r\nc\rd";
    ZELXMLPositions positions(text, 0);

    EXPECT_EQ(positions.PositionOf(2).line, 2);
    EXPECT_EQ(positions.PositionOf(5).line, 3);
    EXPECT_EQ(positions.PositionOf(7).line, 4);
    EXPECT_EQ(positions.PositionOf(7).column, 1);
}

TEST(ZELXMLPositions, ColumnsCountCharacters) {
    const std::string text = "\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80x";
    ZELXMLPositions positions(text, 0);

    EXPECT_EQ(positions.PositionOf(2).column, 2);
    EXPECT_EQ(positions.PositionOf(5).column, 3);
    EXPECT_EQ(positions.PositionOf(9).column, 4);
}

TEST(ZELXMLPositions, AByteOrderMarkTakesNoColumn) {
    const std::string text = "\xEF\xBB\xBFx";
    ZELXMLPositions positions(text, 3);

    EXPECT_EQ(positions.PositionOf(3).column, 1);
    EXPECT_EQ(positions.PositionOf(4).column, 2);
}

TEST(ZELXMLPositions, TheEndOfAnEmptyTextIsItsFirstPlace) {
    ZELXMLPositions positions("", 0);

    EXPECT_EQ(positions.PositionOf(0).line, 1);
    EXPECT_EQ(positions.PositionOf(0).column, 1);
}

RC_GTEST_PROP(ZELXMLPositions, AnswersAsCountingFromTheBeginningDoes, (std::uint32_t seed)) {
    std::string text;
    while (text.size() < 10'000) {
        constexpr const char* kPieces[] = {"a",  "bcd ",     "\n",           "\r\n",
                                           "\r", "\xC3\xA9", "\xE2\x82\xAC", "<x>"};
        seed = seed * 1664525u + 1013904223u;
        text += kPieces[seed >> 29];
    }
    ZELXMLPositions positions(text, 0);
    const auto offset = *rc::gen::inRange<std::size_t>(0, text.size() + 1);
    for (const std::size_t asked : {offset, text.size() - offset, std::size_t{4096}, std::size_t{8191}}) {
        const ZELVBTXMLPosition place = positions.PositionOf(asked);
        RC_ASSERT(place.line == Counted(text, asked).line);
        RC_ASSERT(place.column == Counted(text, asked).column);
    }
}

}  // namespace
