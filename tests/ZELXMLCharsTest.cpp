#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <string>

#include "ZELXMLScan.h"

namespace {

/// A text as the scans want it: followed by zeros.
std::string Padded(std::string text) { return text + std::string(64, '\0'); }

TEST(ZELXMLChars, EveryCharacterIsDecodedAsItWasEncoded) {
    for (std::uint32_t code = 1; code <= 0x10FFFF; ++code) {
        if (code == 0xD800) code = 0xE000;
        char bytes[5] = {};

        const std::uint32_t length = ZELXMLEncode(code, bytes);

        const ZELXMLCharacter character = ZELXMLDecode(bytes);
        ASSERT_EQ(character.code, code);
        ASSERT_EQ(character.length, length);
    }
}

TEST(ZELXMLChars, LengthsChangeWhereUtf8Says) {
    char bytes[4];

    EXPECT_EQ(ZELXMLEncode(0x7F, bytes), 1u);
    EXPECT_EQ(ZELXMLEncode(0x80, bytes), 2u);
    EXPECT_EQ(ZELXMLEncode(0x7FF, bytes), 2u);
    EXPECT_EQ(ZELXMLEncode(0x800, bytes), 3u);
    EXPECT_EQ(ZELXMLEncode(0xFFFF, bytes), 3u);
    EXPECT_EQ(ZELXMLEncode(0x10000, bytes), 4u);
}

class ZELXMLBrokenUtf8 : public testing::TestWithParam<const char*> {};

TEST_P(ZELXMLBrokenUtf8, IsNotDecoded) { EXPECT_EQ(ZELXMLDecode(GetParam()).length, 0u); }

INSTANTIATE_TEST_SUITE_P(ZELXMLChars, ZELXMLBrokenUtf8,
                         testing::Values("\x80", "\xBF", "\xC0\x80", "\xC1\xBF", "\xC3", "\xC3(",
                                         "\xE0\x9F\xBF", "\xE2\x82", "\xED\xA0\x80", "\xED\xBF\xBF",
                                         "\xF0\x8F\xBF\xBF", "\xF0\x9F\x98", "\xF4\x90\x80\x80",
                                         "\xF5\x80\x80\x80", "\xF8\x88\x80\x80\x80", "\xFE", "\xFF"));

TEST(ZELXMLChars, DocumentsMayHaveTheCharactersOfXml) {
    for (const std::uint32_t code :
         {0x9u, 0xAu, 0xDu, 0x20u, 0x7Fu, 0x85u, 0xD7FFu, 0xE000u, 0xFFFDu, 0x10000u, 0x10FFFFu}) {
        EXPECT_TRUE(ZELXMLIsCharacter(code)) << code;
    }
    for (const std::uint32_t code :
         {0x0u, 0x8u, 0xBu, 0xCu, 0x1Fu, 0xD800u, 0xDFFFu, 0xFFFEu, 0xFFFFu, 0x110000u}) {
        EXPECT_FALSE(ZELXMLIsCharacter(code)) << code;
    }
}

TEST(ZELXMLChars, NamesBeginWithTheLettersOfTheFifthEdition) {
    for (const std::uint32_t code :
         {0xC0u, 0xF8u, 0x370u, 0x37Fu, 0x1FFFu, 0x200Cu, 0x2C00u, 0x4E00u, 0xFDF0u, 0x10000u, 0xEFFFFu}) {
        EXPECT_TRUE(ZELXMLIsWideNameStart(code)) << code;
    }
    for (const std::uint32_t code :
         {0xB7u, 0xD7u, 0xF7u, 0x300u, 0x36Fu, 0x37Eu, 0x2000u, 0x203Fu, 0x3000u, 0xFDD0u, 0xF0000u}) {
        EXPECT_FALSE(ZELXMLIsWideNameStart(code)) << code;
    }
}

TEST(ZELXMLChars, NamesGoOnWithCombiningSignsToo) {
    for (const std::uint32_t code : {0xB7u, 0x300u, 0x36Fu, 0x203Fu, 0x2040u, 0xC0u}) {
        EXPECT_TRUE(ZELXMLIsWideName(code)) << code;
    }
    for (const std::uint32_t code : {0xD7u, 0x37Eu, 0x2041u}) EXPECT_FALSE(ZELXMLIsWideName(code)) << code;
}

TEST(ZELXMLScan, EachByteStopsAScanOrNotAsItDoesByteByByte) {
    for (int byte = 0; byte < 256; ++byte) {
        for (std::size_t length = 0; length < 40; ++length) {
            const std::string text = Padded(std::string(length, 'a') + static_cast<char>(byte) + "a\"");
            const char* const p = text.data();

            ASSERT_EQ((ZELXMLFindSpecial<'"', '<', '&'>(p)), (ZELXMLFindSpecialPortably<'"', '<', '&'>(p)))
                << byte;
            ASSERT_EQ(ZELXMLFindSpecial<'-'>(p), ZELXMLFindSpecialPortably<'-'>(p)) << byte;
            ASSERT_EQ(ZELXMLFindNameEnd(p), ZELXMLFindNameEndPortably(p)) << byte;
        }
    }
}

RC_GTEST_PROP(ZELXMLScan, ScansStopWhereTheyDoByteByByte, (const std::string& bytes)) {
    const std::string text = Padded(bytes);
    for (const char* p = text.data(); p <= text.data() + bytes.size(); ++p) {
        RC_ASSERT((ZELXMLFindSpecial<'\'', '<', '&'>(p)) == (ZELXMLFindSpecialPortably<'\'', '<', '&'>(p)));
        RC_ASSERT(ZELXMLFindNameEnd(p) == ZELXMLFindNameEndPortably(p));
    }
}

TEST(ZELXMLScan, BlanksAreTabBlankAndLineEnds) {
    const std::string text = Padded(" \t\r\n\fx");

    EXPECT_EQ(*ZELXMLSkipBlanks(text.data()), '\f');
}

}  // namespace
