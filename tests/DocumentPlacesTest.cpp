// Where the elements of documents stand.
#include "DocumentPlaces.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "HexToBinary.h"
#include "ZELTestDirectory.h"

namespace {

constexpr std::string_view kDocument =
    "\xEF\xBB\xBF<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<Package Name=\"Places\" Uuid=\"AA000001-0000-0000-0000000000000000\">\n"
    "  <Comment><Class Name=\"Part\" Uuid=\"AA000001-0000-0000-0000000000000001\"/></Comment>\n"
    "  <Class Name=\"P\xC3\xA4rt\" Uuid=\"aa000001-0000-0000-0000000000000001\"\n"
    "         Persistent=\"Yes\"><Simple Name=\"n\xC3\xBCmber\" Alias=\"\xC3\xA4\" "
    "Uuid=\"AA000001-0000-0000-0000000000000002\" Type=\"String\" Type=\"Double\"/>\n"
    "  </Class>\n"
    "  <KVAComment/>\n"
    "  <Class Uuid=\"AA000001000000000000000000000001\" Name=\"Again\" Persistent=\"Yes\"/>\n"
    "  <Class Name=\"Malformed\" Uuid=\"no digits\" Persistent=\"Yes\"/>\n"
    "</Package>\n";

std::string TextOf(const ZanDicPlace& place) {
    return std::to_string(place.line) + ":" + std::to_string(place.column);
}

class DocumentPlacesTest : public testing::Test {
protected:
    static ZELDbBinary Uuid(std::string_view last) {
        return UuidFromText("AA000001-0000-0000-00000000000000" + std::string(last));
    }

    tool::DocumentPlaces places{ZELVBTXMLDocument::CreateFromMemory(kDocument, nullptr)};
};

TEST_F(DocumentPlacesTest, AnElementStandsAtTheBeginningOfItsTag) {
    EXPECT_EQ(TextOf(places.PlaceOf(Uuid("00"))), "2:1");
    EXPECT_EQ(TextOf(places.PlaceOf(Uuid("02"))), "5:27");
}

TEST_F(DocumentPlacesTest, AnAttributeStandsAtItsNameInCharacters) {
    EXPECT_EQ(TextOf(places.PlaceOf(Uuid("01"), "Uuid")), "4:22");
    EXPECT_EQ(TextOf(places.PlaceOf(Uuid("01"), "Persistent")), "5:10");
    EXPECT_EQ(TextOf(places.PlaceOf(Uuid("02"), "Uuid")), "5:59");
}

TEST_F(DocumentPlacesTest, OfAnAttributeGivenTwiceTheFirstIsFound) {
    EXPECT_EQ(TextOf(places.PlaceOf(Uuid("02"), "Type")), "5:102");
}

TEST_F(DocumentPlacesTest, AnAttributeThatIsNotGivenStandsAtTheTag) {
    EXPECT_EQ(TextOf(places.PlaceOf(Uuid("02"), "MaxLength")), "5:27");
}

TEST_F(DocumentPlacesTest, OfElementsOfOneUuidTheFirstOutsideOfCommentsIsFound) {
    EXPECT_EQ(places.Find(Uuid("01")).getAttributeValue("Name"), "P\xC3\xA4rt");
}

TEST_F(DocumentPlacesTest, AMalformedUuidIsFoundAsTheReaderReadsIt) {
    EXPECT_EQ(places.Find(UuidFromText("no digits")).getAttributeValue("Name"), "Malformed");
}

TEST_F(DocumentPlacesTest, WhatTheDocumentLacksHasNoPlace) {
    EXPECT_FALSE(places.Find(Uuid("FF")));
    EXPECT_FALSE(places.Find(ZELDbBinary()));
    EXPECT_EQ(TextOf(places.PlaceOf(Uuid("FF"))), "0:0");
    EXPECT_EQ(TextOf(places.PlaceOf(Uuid("FF"), "Name")), "0:0");
}

TEST(DocumentPlacesReadTest, ReadsAFile) {
    const TestDirectory directory;
    const std::string path = directory.MakeFile("Places.metadata", kDocument);

    const auto places = tool::DocumentPlaces::Read(path.c_str());

    ASSERT_NE(places, nullptr);
    EXPECT_EQ(TextOf(places->PlaceOf(UuidFromText("AA000001-0000-0000-0000000000000000"))), "2:1");
    EXPECT_EQ(places->Document().FileName(), path);
}

TEST(DocumentPlacesReadTest, AMissingOrBrokenFileGivesNone) {
    const TestDirectory directory;
    const std::string path = directory.MakeFile("Broken.metadata", "<Package>");

    EXPECT_EQ(tool::DocumentPlaces::Read(path.c_str()), nullptr);
    EXPECT_EQ(tool::DocumentPlaces::Read(directory.Path("Missing.metadata").c_str()), nullptr);
}

TEST(DocumentPlacesReadTest, ACommentThatEndsTheDocumentEndsTheWalk) {
    const tool::DocumentPlaces places(ZELVBTXMLDocument::CreateFromMemory(
        "<Comment><Class Uuid=\"AA000001-0000-0000-0000000000000001\"/></Comment>", nullptr));

    EXPECT_FALSE(places.Find(UuidFromText("AA000001-0000-0000-0000000000000001")));
}

}  // namespace
