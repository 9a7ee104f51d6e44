#include "ZELXMLEncoding.h"

#include <gtest/gtest.h>

#include <string>

#include "ZELVBTXMLNode.h"

namespace {

using namespace std::string_view_literals;
using enum ZELXMLEncoding;

/// The UTF-8 of a text; "!" behind it when what follows is not valid.
std::string AsUtf8(ZELXMLEncoding encoding, std::string_view bytes) {
    ZELXMLBlock<char> text;
    text.Reserve(1);
    const bool isValid = ZELXMLToUtf8(encoding, bytes, text);
    return std::string(text.Data(), text.Size()) + (isValid ? "" : "!");
}

TEST(ZELXMLEncoding, MarksTellUtf16AndItsOrder) {
    EXPECT_EQ(ZELXMLFindSource("\xFF\xFE<\0"sv).encoding, Utf16Little);
    EXPECT_EQ(ZELXMLFindSource("\xFF\xFE<\0"sv).markLength, 2U);
    EXPECT_EQ(ZELXMLFindSource("\xFE\xFF\0<"sv).encoding, Utf16Big);
    EXPECT_FALSE(ZELXMLFindSource("\xFE\xFF\0<"sv).mustBeDeclared);
}

TEST(ZELXMLEncoding, WithoutAMarkUtf16MustBeDeclared) {
    EXPECT_EQ(ZELXMLFindSource("<\0?\0"sv).encoding, Utf16Little);
    EXPECT_TRUE(ZELXMLFindSource("\0<\0?"sv).mustBeDeclared);
    EXPECT_EQ(ZELXMLFindSource("<\0a\0"sv).encoding, Utf8);
}

TEST(ZELXMLEncoding, TheMarkOfUtf32IsNotThatOfUtf16) {
    EXPECT_EQ(ZELXMLFindSource("\xFF\xFE\0\0<\0\0\0"sv).encoding, Utf8);
}

TEST(ZELXMLEncoding, TheDeclarationTellsLatin1) {
    EXPECT_EQ(ZELXMLFindSource("<?xml version='1.0' encoding='ISO-8859-1'?>").encoding, Latin1);
    EXPECT_EQ(ZELXMLFindSource("<?xml version=\"1.0\" encoding = \"latin1\" ?>").encoding, Latin1);
    EXPECT_EQ(ZELXMLFindSource("<?xml version='1.0' encoding='UTF-8'?>").encoding, Utf8);
    EXPECT_EQ(ZELXMLFindSource("<?xml version='1.0'?><a encoding='ISO-8859-1'/>").encoding, Utf8);
    EXPECT_EQ(ZELXMLFindSource("<?xmlO encoding='ISO-8859-1'?>").encoding, Utf8);
    EXPECT_EQ(ZELXMLFindSource("<?xml\nencoding='ISO-8859-1'?>").encoding, Latin1);
    EXPECT_EQ(ZELXMLFindSource("<?xml").encoding, Utf8);
    EXPECT_EQ(ZELXMLFindSource("<?xml version='1.0' encoding").encoding, Utf8);
    EXPECT_EQ(ZELXMLFindSource("<?xml version='1.0' encoding='ISO-8859-1").encoding, Utf8);
    EXPECT_EQ(ZELXMLFindSource("").encoding, Utf8);
}

TEST(ZELXMLEncoding, ATextMayDeclareOnlyWhatItIs) {
    EXPECT_TRUE(ZELXMLMayDeclare(Utf16Little, "utf-16"));
    EXPECT_TRUE(ZELXMLMayDeclare(Utf16Little, "UTF-16LE"));
    EXPECT_FALSE(ZELXMLMayDeclare(Utf16Little, "UTF-16BE"));
    EXPECT_FALSE(ZELXMLMayDeclare(Utf16Big, "UTF-8"));
    EXPECT_TRUE(ZELXMLMayDeclare(Utf8, "us-ascii"));
    EXPECT_FALSE(ZELXMLMayDeclare(Latin1, "ISO-8859-15"));
}

TEST(ZELXMLEncoding, EveryCharacterOfUtf16BecomesItsUtf8) {
    EXPECT_EQ(AsUtf8(Utf16Big, "\0a\x00\xE9\x20\xAC\xD8\x3D\xDE\x00"sv),
              "a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80");
    EXPECT_EQ(AsUtf8(Utf16Little, "a\0\xE9\0\xAC\x20\x3D\xD8\x00\xDE"sv),
              "a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80");
    EXPECT_EQ(AsUtf8(Utf16Big, ""), "");
}

TEST(ZELXMLEncoding, BrokenUtf16EndsWhereItBreaks) {
    EXPECT_EQ(AsUtf8(Utf16Big, "\0a\xDC\0\0b"sv), "a!");
    EXPECT_EQ(AsUtf8(Utf16Big, "\0a\xD8\0\0b"sv), "a!");
    EXPECT_EQ(AsUtf8(Utf16Big, "\0a\xD8\0"sv), "a!");
    EXPECT_EQ(AsUtf8(Utf16Big, "\0a\0"sv), "a!");
}

TEST(ZELXMLEncoding, EachByteOfLatin1IsACharacter) {
    EXPECT_EQ(AsUtf8(Latin1, "a\x80\xE9\xFF"), "a\xC2\x80\xC3\xA9\xC3\xBF");
}

TEST(ZELXMLEncoding, DocumentsFromMemoryAreReadInTheirEncoding) {
    ZELVBTXMLError error;

    const auto document =
        ZELVBTXMLDocument::CreateFromMemory("\xFE\xFF\0<\0a\0 \0b\0=\0'\x20\xAC\0'\0/\0>"sv, &error);

    ASSERT_NE(document, nullptr) << error.reason;
    EXPECT_EQ(document->Root().getAttributeValue("b"), "\xE2\x82\xAC");
    EXPECT_EQ(document->Root().getAttribute("b").Position().column, 4);
}

TEST(ZELXMLEncoding, BrokenDocumentsAreRefusedAtTheirPlace) {
    ZELVBTXMLError error;

    EXPECT_EQ(ZELVBTXMLDocument::CreateFromMemory("\xFE\xFF\0<\0a\0\n\xDC\0"sv, &error), nullptr);

    EXPECT_EQ(error.reason, "the text is not valid UTF-16");
    EXPECT_EQ(error.line, 2);
    EXPECT_EQ(error.column, 1);
}

}  // namespace
