#include "OxmDicFromXML.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>

#include "OXMIDicCategory.h"
#include "OXMIDicEnum.h"
#include "ReaderFixture.h"

using ::testing::HasSubstr;

namespace {

const std::string kData = ZANDIC_TEST_DATA;

class OxmDicFromXMLTest : public ReaderFixture {
protected:
    HRESULT Read(std::string_view name, OXMDicCONTENT content = OXMDicCONTENT_metadata) {
        const ZELString packageName(name);
        return OxmDicFromXML(&Manager(), &packageName, Directory().Path().c_str(), content);
    }
};

// Arguments and names.

TEST_F(OxmDicFromXMLTest, NullArgumentsFailAtOnceWithTheCallStack) {
    const ZELString name("P");

    EXPECT_EQ(OxmDicFromXML(nullptr, &name, "", OXMDicCONTENT_metadata), E_FAIL);
    EXPECT_EQ(OxmDicFromXML(&Manager(), nullptr, "", OXMDicCONTENT_metadata), E_FAIL);

    const std::string lines =
        "OxmDicFromXML:OxmDicFromXML-*** ERROR *** Invalid input parameters..\n"
        "OxmDicFromXML:OxmDicFromXML- *** ERROR *** Printing call stack:.\n";
    EXPECT_EQ(Written(), lines + lines);
}

TEST_F(OxmDicFromXMLTest, ANullDirectoryListFindsNothing) {
    const ZELString name("P");

    EXPECT_EQ(OxmDicFromXML(&Manager(), &name, nullptr, OXMDicCONTENT_metadata), E_FAIL);

    EXPECT_EQ(Written(),
              "OxmDicFromXML:OxmDicFromXML-*** ERROR *** Could not find document P.metadata in .\n");
}

TEST_F(OxmDicFromXMLTest, AMissingFileIsNamedWithTheDirectories) {
    EXPECT_EQ(Read("Missing"), E_FAIL);

    EXPECT_EQ(Written(),
              "OxmDicFromXML:OxmDicFromXML-*** ERROR *** Could not find document Missing.metadata in " +
                  Directory().Path() + ".\n");
}

TEST_F(OxmDicFromXMLTest, ANameWithContentWordReadsTheSameFile) {
    MakePackage("P", ClassTag("C", 1));

    EXPECT_EQ(Read("P.metadata", OXMDicCONTENT_rbodef), S_OK);

    EXPECT_TRUE(IsLoaded("P"));
}

TEST_F(OxmDicFromXMLTest, TheContentKindNamesTheFile) {
    Directory().MakeFile("P.rbodef", "<Package" + Id("P", 9) + "/>");

    EXPECT_EQ(Read("P", OXMDicCONTENT_rbodef), S_OK);

    EXPECT_TRUE(IsLoaded("P"));
}

TEST_F(OxmDicFromXMLTest, AnUnknownExtensionFailsBeforeAFileIsOpened) {
    Directory().MakeFile("P.xml", "<Package" + Id("P", 9) + "/>");

    EXPECT_EQ(Read("P.xml"), E_FAIL);

    EXPECT_EQ(Written(), "OxmDicFromXML:OxmDicFromXML-*** ERROR *** Invalid file extension: xml.\n");
}

TEST_F(OxmDicFromXMLTest, TheNameEndsAtTheFirstDot) {
    EXPECT_EQ(Read("P.metadata.metadata"), E_FAIL);

    EXPECT_EQ(Written(),
              "OxmDicFromXML:OxmDicFromXML-*** ERROR *** Invalid file extension: metadata.metadata.\n");
}

TEST_F(OxmDicFromXMLTest, NamesThatCouldLeaveTheDirectoriesAreRefused) {
    EXPECT_EQ(Read("a/b"), E_FAIL);
    EXPECT_EQ(Read("a\\b"), E_FAIL);
    EXPECT_EQ(Read("..metadata"), E_FAIL);
    EXPECT_EQ(Read(""), E_FAIL);

    EXPECT_EQ(Written(),
              "OxmDicFromXML:OxmDicFromXML-*** ERROR *** Invalid Package name: a/b.\n"
              "OxmDicFromXML:OxmDicFromXML-*** ERROR *** Invalid Package name: a\\b.\n"
              "OxmDicFromXML:OxmDicFromXML-*** ERROR *** Invalid Package name: ..metadata.\n"
              "OxmDicFromXML:OxmDicFromXML-*** ERROR *** Invalid Package name: .\n");
}

TEST_F(OxmDicFromXMLTest, ALoadedPackageIsNotReadAgain) {
    ASSERT_EQ(LoadBody(ClassTag("C", 1)), S_OK);
    Directory().MakeFile("P.metadata", "no document any more");
    Directory().MakeFile("P.rbodef", "nor this");
    TraceFromNow(2);

    EXPECT_EQ(Read("P"), S_OK);
    EXPECT_EQ(Read("P.rbodef"), S_OK);

    EXPECT_THAT(LinesOf("OxmDicFromXML"), HasSubstr("-*** INFO *** Package is already loaded.\n"));
}

// The package.

TEST_F(OxmDicFromXMLTest, APackageWithoutNameTakesTheOneAskedFor) {
    Directory().MakeFile("P.metadata", "<Package Uuid=\"" + U(9) + "\"/>");

    EXPECT_EQ(Read("P"), S_OK);

    EXPECT_TRUE(IsLoaded("P"));
    EXPECT_EQ(Written(),
              "OxmDicFromXML:OxmDicFromXML-*** WARNING *** Missing mandatory attribute Name for Package P.\n"
              "OxmDicFromXML:OxmDicFromXML-*** WARNING *** Input argument P is assumed.\n");
}

TEST_F(OxmDicFromXMLTest, AnEmptyNameOfAPackageCountsAsMissing) {
    Directory().MakeFile("P.metadata", "<Package Name=\"\" Uuid=\"" + U(9) + "\"/>");

    EXPECT_EQ(Read("P"), S_OK);

    EXPECT_THAT(Written(), HasSubstr("Missing mandatory attribute Name for Package P.\n"));
}

TEST_F(OxmDicFromXMLTest, TheDocumentsOwnNameCounts) {
    Directory().MakeFile("Asked.metadata", "<Package" + Id("Own", 9) + "/>");

    EXPECT_EQ(Read("Asked"), S_OK);

    EXPECT_TRUE(IsLoaded("Own"));
    EXPECT_FALSE(IsLoaded("Asked"));
    EXPECT_EQ(Written(),
              "OxmDicFromXML:OxmDicFromXML-*** WARNING *** Package name Own differs from the name asked for: "
              "Asked.\n");
}

TEST_F(OxmDicFromXMLTest, ADocumentWhoseOwnNameIsLoadedIsNotRead) {
    ASSERT_EQ(LoadBody(ClassTag("C", 1)), S_OK);
    Directory().MakeFile("Asked.metadata", "<Package" + Id("P", 9) + ">" + ClassTag("D", 2) + "</Package>");

    EXPECT_EQ(Read("Asked"), S_OK);

    EXPECT_TRUE(Find<OXMIDicClass>(1));
    EXPECT_FALSE(Find<OXMIDicClass>(2));
}

TEST_F(OxmDicFromXMLTest, AFailedLoadDoesNotRemoveAPackageOfTheNameAskedFor) {
    ASSERT_EQ(LoadBody(ClassTag("C", 1)), S_OK);
    Directory().MakeFile("Asked.metadata", "<Package" + Id("Own", 9) + "><Class Name=\"D\"/></Package>");

    EXPECT_EQ(Read("Asked"), E_FAIL);

    EXPECT_TRUE(IsLoaded("P"));
    EXPECT_FALSE(IsLoaded("Own"));
}

TEST_F(OxmDicFromXMLTest, ThePackageTagMayBeAChildOfTheRoot) {
    Directory().MakeFile("P.metadata", "<Dictionary><Other/><Package" + Id("P", 9) + ">" + ClassTag("C", 1) +
                                           "</Package><Package" + Id("Q", 8) + "/></Dictionary>");

    EXPECT_EQ(Read("P"), S_OK);

    EXPECT_TRUE(Find<OXMIDicClass>(1));
    EXPECT_FALSE(IsLoaded("Q"));
}

TEST_F(OxmDicFromXMLTest, ThePackageKeepsItsAttributes) {
    ASSERT_EQ(LoadBody("", "Domain=\"DUVRA\" Alias=\"A\" ExpositionLevel=\"E\" Version=\"7x\" Extra=\"1\""),
              S_OK);

    const auto package = Package();
    ZELString domain;
    ZELUnicodeString alias;
    ZELUnicodeString level;
    package->GetDomain(&domain);
    package->GetAlias(&alias);
    package->GetExpositionLevel(&level);
    EXPECT_EQ(domain, ZELString("DUVRA"));
    EXPECT_EQ(alias.View(), "A");
    EXPECT_EQ(level.View(), "E");
    EXPECT_EQ(OtherAttributes(*package), "Version=7x;Extra=1;");
}

TEST_F(OxmDicFromXMLTest, TheDefaultDomainIsVALKOR) {
    ASSERT_EQ(LoadBody(""), S_OK);

    ZELString domain;
    Package()->GetDomain(&domain);
    EXPECT_EQ(domain, ZELString("VALKOR"));
}

TEST_F(OxmDicFromXMLTest, UnknownAttributesOfThePackageAreReportedFromLevelOne) {
    ZanDicSetTraceLevel(1);

    ASSERT_EQ(LoadBody("", "Extra=\"1\""), S_OK);

    EXPECT_THAT(Written(),
                HasSubstr("OxmDicFromXML:OxmDicFromXML-*** WARNING *** Unknown attribute:Extra=1.\n"));
}

TEST_F(OxmDicFromXMLTest, OfAnAttributeOfThePackageGivenTwiceTheFirstCounts) {
    ASSERT_EQ(LoadBody("", "Alias=\"first\" Alias=\"second\""), S_OK);

    ZELUnicodeString alias;
    Package()->GetAlias(&alias);
    EXPECT_EQ(alias.View(), "first");
}

// Children of the package.

TEST_F(OxmDicFromXMLTest, CommentsAreSkippedByEveryPass) {
    EXPECT_EQ(LoadBody("<Comment>one</Comment><KVAComment/>" + ClassTag("C", 1) + "<Comment Name=\"two\"/>"),
              S_OK);

    EXPECT_EQ(Written(), "");
}

TEST_F(OxmDicFromXMLTest, AnUnknownTagIsSkippedWithALineInEveryPass) {
    EXPECT_EQ(LoadBody("<Gadget" + Id("G", 5) + "/>" + ClassTag("C", 1)), S_OK);

    const std::string line =
        "OxmDicFromXML:OxmDicFromXML-*** ERROR *** Unkown tag:Gadget[G]; skipping to next tag....\n";
    EXPECT_EQ(Written(), line + line + line);
    EXPECT_TRUE(Find<OXMIDicClass>(1));
}

TEST_F(OxmDicFromXMLTest, A100000LevelsOfUnknownTagsAreSkippedWithOneLine) {
    constexpr int kDepth = 100'000;
    std::string nest;
    for (int level = 0; level < kDepth; ++level) nest += "<Gadget" + Id("G", 5) + ">";
    for (int level = 0; level < kDepth; ++level) nest += "</Gadget>";

    EXPECT_EQ(LoadBody(nest + ClassTag("C", 1)), S_OK);

    EXPECT_EQ(LinesOf("OxmDicFromXML:").size(), 3 * std::string("OxmDicFromXML:OxmDicFromXML-*** ERROR *** "
                                                                "Unkown tag:Gadget[G]; skipping to next "
                                                                "tag....\n")
                                                        .size());
    EXPECT_TRUE(Find<OXMIDicClass>(1));
}

TEST_F(OxmDicFromXMLTest, AnObserverIsToldOfAnUnknownTagOnce) {
    FaultCollector faults;

    EXPECT_EQ(LoadBody("<Gadget" + Id("G", 5) + "/>" + ClassTag("C", 1)), S_OK);

    EXPECT_EQ(faults.Summary(), "unknown-tag 2:1 G\n");
}

TEST_F(OxmDicFromXMLTest, InstancesAreMarkedAndClassesAreNot) {
    ASSERT_EQ(LoadBody(ClassTag("C", 1) + "<Instance" + Id("I", 2) + " Persistent=\"No\"/>"), S_OK);

    unsigned char isInstance = 9;
    Find<OXMIDicClass>(1)->GetInstance(&isInstance);
    EXPECT_EQ(isInstance, 0);
    Find<OXMIDicClass>(2)->GetInstance(&isInstance);
    EXPECT_EQ(isInstance, 1);
}

// Going on after faults.

TEST_F(OxmDicFromXMLTest, AllFaultsOfADocumentAreToldInOrder) {
    FaultCollector faults;

    EXPECT_EQ(LoadFrom(kData + "/faults:" + kData + "/good", "ManyFaults"), E_FAIL);

    std::ifstream file(kData + "/faults/ManyFaults.faults");
    EXPECT_EQ(faults.Summary(),
              std::string(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()));
    EXPECT_FALSE(IsLoaded("ManyFaults"));
}

TEST_F(OxmDicFromXMLTest, AnObserverThatStopsIsToldTheFirstErrorOnly) {
    FaultCollector faults(false);

    EXPECT_EQ(LoadFrom(kData + "/faults:" + kData + "/good", "ManyFaults"), E_FAIL);

    const auto isError = [](const auto& row) { return row.severity == ZanDicSeverity::Error; };
    EXPECT_EQ(std::count_if(faults.rows.begin(), faults.rows.end(), isError), 1);
}

TEST_F(OxmDicFromXMLTest, WhatAFailedPrerequisiteLeftOutIsNoFaultAgain) {
    MakePackage("A", ClassTag("CA", 1) + "<Class Name=\"D\"/>");
    MakePackage("P", ClassTag("C", 2, "SuperRef=\"" + U(1) + "\""), "UseNames=\"A\"");
    FaultCollector faults;

    EXPECT_EQ(Load("P"), E_FAIL);

    EXPECT_EQ(faults.Summary(), "missing-attribute 3:1 D @Uuid\n");
}

TEST_F(OxmDicFromXMLTest, WhatAMissingPrerequisiteMayHaveHadIsNoFaultAgain) {
    MakePackage("P", ClassTag("C", 2, "SuperRef=\"" + U(1) + "\""), "UseNames=\"A\"");
    FaultCollector faults;

    EXPECT_EQ(Load("P"), E_FAIL);

    EXPECT_EQ(faults.Summary(), "file-not-found 1:62 P @UseNames\n");
}

TEST_F(OxmDicFromXMLTest, FaultsAreToldWhateverTheTraceLevel) {
    ZanDicSetTraceLevel(-1);
    FaultCollector faults;

    EXPECT_EQ(LoadBody("<Class Name=\"C\"/>"), E_FAIL);

    ASSERT_EQ(faults.rows.size(), 1U);
    EXPECT_FALSE(faults.rows[0].traced);
    EXPECT_EQ(faults.rows[0].traceText,
              "OxmDicFromXML:OxmDicFromXML-*** ERROR *** Could not find mandatory attribute Uuid.");
    EXPECT_EQ(DocumentLines(), "");
}

}  // namespace
