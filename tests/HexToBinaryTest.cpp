#include "HexToBinary.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <cctype>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

namespace {

using Bytes = std::vector<unsigned char>;

/// Bytes 00 11 22 ... FF.
Bytes Ladder() {
    Bytes bytes;
    for (unsigned index = 0; index < 16; ++index) bytes.push_back(static_cast<unsigned char>(index * 0x11));
    return bytes;
}

/// The text of the bytes, and that nothing is written behind its zero.
std::string Hexa(Bytes bytes, int bytesLength = 16, int textLength = 36) {
    unsigned char text[40];
    std::memset(text, '#', sizeof text);
    UuidBinToHexa(bytes.data(), bytesLength, text, textLength);
    EXPECT_EQ(text[36], '#');
    return reinterpret_cast<const char*>(text);
}

std::string HexaV2(Bytes bytes, int length) {
    unsigned char text[64];
    std::memset(text, '#', sizeof text);
    UuidBinToHexa_V2(bytes.data(), length, text, 0);
    return reinterpret_cast<const char*>(text);
}

Bytes Binary(std::string_view text) {
    ZELString string(text);
    ZELDbBinary bytes;
    UuidHexToBinary(&string, &bytes);
    return Bytes(bytes.Data(), bytes.Data() + bytes.Length());
}

std::string Lower(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return text;
}

std::string WithoutDashes(std::string text) {
    std::erase(text, '-');
    return text;
}

const std::string kLadderText = "00112233-4455-6677-8899AABBCCDDEEFF";

}  // namespace

TEST(HexToBinaryTest, GroupsTheDigitsAsDocumentsDo) { EXPECT_EQ(Hexa(Ladder()), kLadderText); }

TEST(HexToBinaryTest, WritesZerosForTheZeroUuid) {
    EXPECT_EQ(Hexa(Bytes(16, 0)), "00000000-0000-0000-0000000000000000");
}

TEST(HexToBinaryTest, IgnoresBothLengths) { EXPECT_EQ(Hexa(Ladder(), 3, 1), kLadderText); }

TEST(HexToBinaryTest, V2WritesDashesOnlyWhenMoreBytesFollow) {
    EXPECT_EQ(HexaV2(Ladder(), 4), "00112233");
    EXPECT_EQ(HexaV2(Ladder(), 5), "00112233-44");
    EXPECT_EQ(HexaV2(Ladder(), 6), "00112233-4455");
    EXPECT_EQ(HexaV2(Ladder(), 8), "00112233-4455-6677");
    EXPECT_EQ(HexaV2(Ladder(), 9), "00112233-4455-6677-88");
    EXPECT_EQ(HexaV2(Ladder(), 16), kLadderText);
}

TEST(HexToBinaryTest, V2WritesTheEmptyTextForNoBytes) {
    EXPECT_EQ(HexaV2(Ladder(), 0), "");
    EXPECT_EQ(HexaV2(Ladder(), -1), "");
}

TEST(HexToBinaryTest, ReadsEitherCase) {
    EXPECT_EQ(Binary(kLadderText), Ladder());
    EXPECT_EQ(Binary(Lower(kLadderText)), Ladder());
}

TEST(HexToBinaryTest, ReadsDigitsWithoutDashes) {
    EXPECT_EQ(Binary("00112233445566778899AABBCCDDEEFF"), Ladder());
}

TEST(HexToBinaryTest, ReadsADashBehindEveryByte) {
    EXPECT_EQ(Binary("00-11-22-33-44-55-66-77-88-99-AA-BB-CC-DD-EE-FF-"), Ladder());
}

TEST(HexToBinaryTest, SkipsOneLeadingDash) {
    EXPECT_EQ(Binary("-00112233445566778899AABBCCDDEEFF"), Ladder());
}

TEST(HexToBinaryTest, TakesADoubledDashForADigit) {
    const Bytes bytes = Binary("00112233--4455-6677-8899AABBCCDDEEFF");

    EXPECT_EQ(bytes[3], 0x33);
    EXPECT_EQ(bytes[4], 0xFF);  // "-4"
    EXPECT_EQ(bytes[5], 0x45);
}

TEST(HexToBinaryTest, MakesAByteWithABadDigitFF) {
    EXPECT_EQ(
        Binary("0G112233445566778899AABBCCDDEE00"),
        (Bytes{0xFF, 0x11, 0x22, 0x33, 0x44, 0x55, 0x66, 0x77, 0x88, 0x99, 0xAA, 0xBB, 0xCC, 0xDD, 0xEE, 0}));
    EXPECT_EQ(Binary("G0112233445566778899AABBCCDDEE00").front(), 0xFF);
}

/// The usual form is decoded in a way of its own; a leading dash keeps a text from it.
TEST(HexToBinaryTest, ReadsTheUsualFormAsAnyOther) {
    for (std::size_t at = 0; at < std::string_view(kLadderText).size(); ++at) {
        for (int byte = 1; byte < 256; ++byte) {
            std::string text = kLadderText;
            text[at] = static_cast<char>(byte);
            if (at == 0 && byte == '-') continue;
            ASSERT_EQ(Binary(text), Binary("-" + text)) << at << " " << byte;
        }
    }
}

TEST(HexToBinaryTest, FillsAShortTextUpWithFF) {
    const Bytes bytes = Binary("00112233445566778899AABBCCDDEE");

    ASSERT_EQ(bytes.size(), 16U);
    EXPECT_EQ(bytes[14], 0xEE);
    EXPECT_EQ(bytes[15], 0xFF);
    EXPECT_EQ(Binary(""), Bytes(16, 0xFF));
}

TEST(HexToBinaryTest, IgnoresWhatFollowsTheSixteenthByte) {
    EXPECT_EQ(Binary(kLadderText + std::string(100, 'X')), Ladder());
}

TEST(HexToBinaryTest, UuidTextNamesAnEmptyUuid) {
    EXPECT_EQ(UuidText(ZELDbBinary()), "UNDEFINED");
    EXPECT_EQ(UuidText(ZELDbBinary(Ladder().data(), 16)), kLadderText);
    EXPECT_EQ(UuidText(ZELDbBinary(Ladder().data(), 5)), "00112233-44");
}

TEST(HexToBinaryDeathTest, EndsTheProcessWithoutAText) {
    ZELDbBinary bytes;
    EXPECT_DEATH(UuidHexToBinary(nullptr, &bytes), "AssertionFailed:Hex.*HexToBinary.*122");
}

TEST(HexToBinaryDeathTest, EndsTheProcessWithoutAnOutput) {
    ZELString text("00");
    EXPECT_DEATH(UuidHexToBinary(&text, nullptr), "AssertionFailed:Bin.*HexToBinary.*164");
}

RC_GTEST_PROP(HexToBinaryProperty, EveryUuidComesBackFromEachFormOfItsText, ()) {
    const auto bytes = *rc::gen::container<Bytes>(16, rc::gen::arbitrary<unsigned char>());
    const std::string text = Hexa(bytes);

    RC_ASSERT(text.size() == 35U);
    RC_ASSERT(HexaV2(bytes, 16) == text);
    RC_ASSERT(Binary(text) == bytes);
    RC_ASSERT(Binary(Lower(text)) == bytes);
    RC_ASSERT(Binary(WithoutDashes(text)) == bytes);
    RC_ASSERT(Binary("-" + WithoutDashes(text)) == bytes);
}

RC_GTEST_PROP(HexToBinaryProperty, AViewIsReadAsTheStringOfItsText, (const std::string& text)) {
    const ZELDbBinary fromView = UuidFromText(text);
    ZELString string{std::string_view(text)};
    ZELDbBinary fromString;
    UuidHexToBinary(&string, &fromString);

    RC_ASSERT(fromView == fromString);
    RC_ASSERT(UuidFromText({}).Length() == 16);
}

RC_GTEST_PROP(HexToBinaryProperty, AnyTextGivesSixteenBytes, (const std::string& text)) {
    RC_ASSERT(Binary(text).size() == 16U);
}
