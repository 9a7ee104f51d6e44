#include "OxmDicToXML.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "FailingFileCalls.h"
#include "OXMIDicCategory.h"
#include "OXMIDicClass.h"
#include "OXMIDicPackage.h"
#include "OXMIDicPrimitive.h"
#include "OXMIDicRelationship.h"
#include "OXMIDicSimple.h"
#include "OXMIDicUnique.h"
#include "SaveFixture.h"

namespace {

using testing::HasSubstr;
using testing::Not;

constexpr const char* kExpected = ZANDIC_TEST_DATA "/expected/xml";

/// Each document of the test data, saved, gives the expected text.
class OxmDicToXMLGoldenTest : public SaveFixture, public testing::WithParamInterface<const char*> {
protected:
    static std::string Expected() {
        return FileText(std::string(kExpected) + "/" + DocumentName(GetParam()));
    }
};

TEST_P(OxmDicToXMLGoldenTest, WritesTheExpectedText) {
    ASSERT_EQ(LoadGood(GetParam()), S_OK);

    EXPECT_EQ(SavedText(GetParam()), Expected());
}

TEST_P(OxmDicToXMLGoldenTest, WhatIsSavedReadsBackAndSavesTheSame) {
    ASSERT_EQ(LoadFrom(kExpected, GetParam()), S_OK);

    EXPECT_EQ(SavedText(GetParam()), Expected());
}

INSTANTIATE_TEST_SUITE_P(Documents, OxmDicToXMLGoldenTest,
                         testing::Values("SavePackage", "SavePlain", "SaveSmall", "SaveClass", "SaveSimple",
                                         "SaveRelations", "SaveHostile", "SaveExtensions", "SaveInterfaces",
                                         "SaveTables.rbodef", "SaveTablesMap.rbomap", "SaveMeta.metaplm"),
                         [](const auto& document) {
                             const std::string name = document.param;
                             return name.substr(0, name.find('.'));
                         });

class OxmDicToXMLTest : public SaveFixture {
protected:
    Held<OXMIDicPackage> MakePackage(const char* packageName, unsigned number = 1) {
        const ZELString name(packageName);
        const ZELString domain("VALKOR");
        const ZELDbBinary uuid = TestUuid(number);
        Held<OXMIDicPackage> package;
        EXPECT_EQ(Manager().CreatePackage(&name, &uuid, &domain, package.Out()), S_OK);
        return package;
    }
    Held<OXMIDicClass> MakeClass(OXMIDicPackage& package, const char* className, unsigned number) {
        const ZELString name(className);
        const ZELDbBinary uuid = TestUuid(number);
        Held<OXMIDicClass> element;
        EXPECT_EQ(package.CreateClass(&name, &uuid, element.Out()), S_OK);
        return element;
    }
    Held<OXMIDicSimple> MakeSimple(OXMIDicClass& owner, const char* simpleName, unsigned number,
                                   OXMDicPRIMITIVEType kind) {
        const ZELString name(simpleName);
        const ZELDbBinary uuid = TestUuid(number);
        Held<OXMIDicSimple> simple;
        EXPECT_EQ(owner.CreateSimple(&name, &uuid, simple.Out()), S_OK);
        Held<OXMIDicPrimitive> primitive;
        if (Succeeded(Manager().GetPrimitive(kind, primitive.Out()))) simple->SetPrimitive(primitive.Get());
        return simple;
    }
    Held<OXMIDicRelationship> MakeRelationship(OXMIDicClass& owner, const char* relationName,
                                               unsigned number) {
        const ZELString name(relationName);
        const ZELDbBinary uuid = TestUuid(number);
        Held<OXMIDicRelationship> relationship;
        EXPECT_EQ(owner.CreateRelationship(&name, &uuid, relationship.Out()), S_OK);
        return relationship;
    }
    HRESULT Save(const char* packageName, const std::string& target) {
        const ZELString name(packageName);
        return OxmDicToXML(&Manager(), &name, target.c_str());
    }
    void Remove(const char* packageName) {
        const ZELString name(packageName);
        EXPECT_EQ(Manager().RemovePackage(&name), S_OK);
        ClearWritten();
    }
};

// the entry

TEST_F(OxmDicToXMLTest, RefusesMissingArguments) {
    const ZELString name("P");

    EXPECT_EQ(OxmDicToXML(nullptr, &name, directory.Path().c_str()), E_FAIL);
    EXPECT_EQ(OxmDicToXML(&Manager(), nullptr, directory.Path().c_str()), E_FAIL);

    const std::string line = "OxmDicToXML:OxmDicToXML -- *** ERROR *** Invalid input argument.\n";
    EXPECT_EQ(Written(), line + line);
}

TEST_F(OxmDicToXMLTest, RefusesAPackageThatIsNotLoaded) {
    EXPECT_EQ(Save("Nobody", directory.Path()), E_FAIL);

    EXPECT_EQ(Written(), "OxmDicToXML:OxmDicToXML -- *** ERROR *** MyDic->GetPackage failed.\n");
}

TEST_F(OxmDicToXMLTest, TakesAContentWordInTheNameAndWritesThePackagesOwn) {
    const Held<OXMIDicPackage> package = MakePackage("P");

    EXPECT_EQ(Save("P.metadata", directory.Path()), S_OK);

    EXPECT_TRUE(std::filesystem::exists(directory.Path("P.metadata")));
}

TEST_F(OxmDicToXMLTest, RefusesNamesThatNoDocumentCanBear) {
    unsigned number = 0;
    for (const char* const name : {"a/b", "a\\b", "a.b", "..", ""}) {
        const Held<OXMIDicPackage> package = MakePackage(name, ++number);
        ClearWritten();

        EXPECT_EQ(Save(name, directory.Path()), E_FAIL) << name;

        EXPECT_EQ(Written(),
                  "OxmDicToXML:OxmDicToXML -- *** ERROR *** No document can be named after Package " +
                      std::string(name) + ".\n");
    }
    EXPECT_TRUE(std::filesystem::is_empty(directory.Path()));
}

TEST_F(OxmDicToXMLTest, ANameWithABlankIsAFileName) {
    const Held<OXMIDicPackage> package = MakePackage("My package");

    EXPECT_EQ(Save("My package", directory.Path()), S_OK);

    EXPECT_TRUE(std::filesystem::exists(directory.Path("My package.metadata")));
}

TEST_F(OxmDicToXMLTest, TellsAFailedWriteByALineOnly) {
    const Held<OXMIDicPackage> package = MakePackage("P");
    ClearWritten();

    EXPECT_EQ(Save("P", directory.Path("none")), S_OK);

    EXPECT_EQ(Written(), "OxmDicToXML:OxmDicToXML -- *** ERROR *** Could not write " +
                             directory.Path("none") + "\\P.metadata: No such file or directory.\n");
}

TEST_F(OxmDicToXMLTest, TracesItsSteps) {
    const Held<OXMIDicPackage> package = MakePackage("P");
    TraceFromNow(5);

    EXPECT_EQ(Save("P", directory.Path()), S_OK);

    const std::string label = "OxmDicToXML:OxmDicToXML -";
    EXPECT_THAT(Written(), HasSubstr("OxmDicToXML:DisplayElement- === start === .\n"));
    EXPECT_THAT(Written(), HasSubstr("OxmDicToXML:DisplayElement- === exit === rc=OK.\n"));
    EXPECT_THAT(Written(), HasSubstr(label + "- rc(DisplayElement)=OK.\n"));
    EXPECT_THAT(Written(), HasSubstr(label + "- rc(OxmBuildFileName)=0, filename=" + directory.Path() +
                                     "\\P.metadata.\n"));
    EXPECT_THAT(Written(), HasSubstr(label + "- rc(xmlroot->writeInFile)=0.\n"));
}

// where

TEST_F(OxmDicToXMLTest, WithoutDirectoryItGoesWhereTheDocumentIs) {
    directory.MakeDirectory("one");
    directory.MakeDirectory("two");
    directory.MakeFile("two/P.metadata", "old");
    ::setenv("ZELDictionaryPath", (directory.Path("one") + ":" + directory.Path("two")).c_str(), 1);
    const Held<OXMIDicPackage> package = MakePackage("P");
    const ZELString name("P");

    EXPECT_EQ(Manager().SavePackage(&name, OXMDicPERSISTENT_Xml), S_OK);

    EXPECT_THAT(FileText(directory.Path("two/P.metadata")), HasSubstr("<Package Name=\"P\""));
    EXPECT_TRUE(std::filesystem::is_empty(directory.Path("one")));
}

TEST_F(OxmDicToXMLTest, WithoutDirectoryANewDocumentGoesToTheFirstOfThePath) {
    directory.MakeDirectory("one");
    directory.MakeDirectory("two");
    ::setenv("ZELDictionaryPath", (":" + directory.Path("one") + ":" + directory.Path("two")).c_str(), 1);
    const Held<OXMIDicPackage> package = MakePackage("P");
    const ZELString name("P");

    EXPECT_EQ(Manager().SaveXml(nullptr, &name), S_OK);

    EXPECT_TRUE(std::filesystem::exists(directory.Path("one/P.metadata")));
    EXPECT_TRUE(std::filesystem::is_empty(directory.Path("two")));
}

TEST_F(OxmDicToXMLTest, WithoutDirectoryAndPathThereIsNoPlace) {
    const Held<OXMIDicPackage> package = MakePackage("P");
    const ZELString name("P");
    ClearWritten();

    EXPECT_EQ(Manager().SaveXml(nullptr, &name), E_FAIL);
    EXPECT_EQ(OxmDicToXML(&Manager(), &name, nullptr), E_FAIL);

    EXPECT_EQ(Written(),
              "ZanDictionary::SaveXml- *** ERROR *** Could not get file path.\n"
              "OxmDicToXML:OxmDicToXML -- *** ERROR *** Could not get file path.\n");
}

TEST_F(OxmDicToXMLTest, AModeWithoutWriterWritesNothing) {
    const Held<OXMIDicPackage> package = MakePackage("P");
    const ZELString name("P");

    EXPECT_EQ(Manager().SavePackageToDir(directory.Path().c_str(), &name, OXMDicPERSISTENT_None), S_OK);

    EXPECT_TRUE(std::filesystem::is_empty(directory.Path()));
}

// faults

TEST_F(OxmDicToXMLTest, EachCallThatFailsLeavesAWholeDocument) {
    ASSERT_EQ(LoadGood("SaveSmall"), S_OK);
    const std::string expected = FileText(std::string(kExpected) + "/SaveSmall.metadata");
    int calls = 0;
    {
        FailingFileCalls counting;
        ASSERT_EQ(Save("SaveSmall", directory.Path()), S_OK);
        calls = counting.count;
    }
    for (int failAt = 1; failAt <= calls; ++failAt) {
        directory.MakeFile("SaveSmall.metadata", "old");
        ClearWritten();
        FailingFileCalls failing;
        failing.failAt = failAt;

        EXPECT_EQ(Save("SaveSmall", directory.Path()), S_OK);

        const std::string text = FileText(directory.Path("SaveSmall.metadata"));
        EXPECT_EQ(text, failAt == calls ? expected : "old") << failing.made;
        EXPECT_THAT(Written(), HasSubstr("metadata: Input/output error.\n"));
    }
}

// what is left out

TEST_F(OxmDicToXMLTest, StoredNumbersWithoutWordAreLeftOut) {
    const Held<OXMIDicPackage> package = MakePackage("P");
    const Held<OXMIDicClass> element = MakeClass(*package, "C", 2);
    const Held<OXMIDicSimple> simple = MakeSimple(*element, "S", 3, OXMDicPRIMITIVEType_String);
    simple->SetAccessMode(static_cast<OXMDicACCESSMODE>(0));
    simple->SetCaseMode(static_cast<OXMDicCASEMODE>(0));
    simple->SetUpdateFacet(static_cast<OXMDicUPDATEFACET>(-1));
    simple->SetCollectionType(static_cast<OXMDicCOLLECTION>(7));
    simple->SetVisibility(static_cast<OXMDicVISIBILITY>(4));
    simple->SetMultiValuated(1);

    EXPECT_THAT(SavedText("P"),
                HasSubstr("<Simple Name=\"S\" Uuid=\"00000000-0000-0000-0000000000000003\" "
                          "Type=\"String\" Mandatory=\"No\" MultiValuated=\"Yes\" Lower=\"0\" "
                          "Upper=\"0\" Sensitive=\"No\"/>"));
}

TEST_F(OxmDicToXMLTest, AnAttributeWithoutTypeFailsAloneAndItsRestIsWritten) {
    const Held<OXMIDicPackage> package = MakePackage("P");
    const Held<OXMIDicClass> element = MakeClass(*package, "C", 2);
    const Held<OXMIDicSimple> first = MakeSimple(*element, "First", 3, static_cast<OXMDicPRIMITIVEType>(0));
    const Held<OXMIDicSimple> second = MakeSimple(*element, "Second", 4, OXMDicPRIMITIVEType_Integer);
    TraceFromNow(1);

    const std::string text = SavedText("P");

    EXPECT_EQ(WrittenErrors(), "ERROR GetPrimitive failed\n");
    EXPECT_THAT(Written(), HasSubstr("OxmDicToXML:DisplaySimple -- === exit === rc=KO.\n"));
    EXPECT_THAT(text, HasSubstr("AccessMode=\"Read\" Mandatory=\"No\" MultiValuated=\"No\" Sensitive=\"No\" "
                                "UpdateFacet=\"NEUTRAL\"/>"));
    EXPECT_THAT(text, HasSubstr("<Simple Name=\"Second\""));
}

TEST_F(OxmDicToXMLTest, FreeAttributesThatWouldNotReadBackAsSuchAreLeftOutWithAWarning) {
    const Held<OXMIDicPackage> package = MakePackage("P");
    const Held<OXMIDicClass> element = MakeClass(*package, "C", 2);
    const Held<OXMIDicSimple> simple = MakeSimple(*element, "S", 3, OXMDicPRIMITIVEType_Integer);
    const Held<OXMIDicRelationship> relationship = MakeRelationship(*element, "R", 4);
    element->SetOtherAttribute("SuperRef", "x");
    element->SetOtherAttribute("not a name", "x");
    element->SetOtherAttribute("Type", "kept");
    simple->SetOtherAttribute("Type", "Money");
    relationship->SetOtherAttribute("Free", "x");
    package->SetOtherAttribute("CommandRefs", "x");
    package->SetOtherAttribute("Version", "9");
    ClearWritten();

    const std::string text = SavedText("P");

    const std::string end = ": it would not be read back as a free attribute; left out.\n";
    EXPECT_EQ(Written(),
              "OxmDicToXML:DisplayPackage -- *** WARNING *** Package P, attribute CommandRefs" + end +
                  "OxmDicToXML:DisplayClass -- *** WARNING *** Class C, attribute SuperRef" + end +
                  "OxmDicToXML:DisplayClass -- *** WARNING *** Class C, attribute not a name" + end +
                  "OxmDicToXML:DisplaySimple -- *** WARNING *** Simple S, attribute Type" + end +
                  "OxmDicToXML:DisplayRelationship -- *** WARNING *** Relationship R, attribute Free" + end);
    EXPECT_THAT(text, HasSubstr("LateType=\"\" Type=\"kept\">"));
    EXPECT_THAT(text, HasSubstr("Domain=\"VALKOR\" Version=\"9\">"));
    EXPECT_THAT(text, Not(HasSubstr("=\"x\"")));
}

TEST_F(OxmDicToXMLTest, CharactersThatXMLDoesNotAllowAreReplacedWithAWarning) {
    const Held<OXMIDicPackage> package = MakePackage("P");
    const ZELUnicodeString alias(
        "a\x01"
        "b\x80");
    package->SetAlias(&alias);
    ClearWritten();

    EXPECT_THAT(SavedText("P"), HasSubstr("Alias=\"a\xef\xbf\xbd"
                                          "b\xef\xbf\xbd\""));

    EXPECT_EQ(Written(),
              "OxmDicToXML:DisplayPackage -- *** WARNING *** Package P, attribute Alias: characters that XML "
              "does not allow were replaced.\n");
}

TEST_F(OxmDicToXMLTest, TheyAreReplacedInTextsOfAttributesToo) {
    const Held<OXMIDicPackage> package = MakePackage("P");
    const Held<OXMIDicClass> element = MakeClass(*package, "C", 2);
    const Held<OXMIDicSimple> simple = MakeSimple(*element, "S", 3, OXMDicPRIMITIVEType_String);
    const ZELUnicodeString value("a\x02");
    simple->SetDefault(&value);
    ClearWritten();

    EXPECT_THAT(SavedText("P"), HasSubstr("Default=\"a\xef\xbf\xbd\""));

    EXPECT_EQ(Written(),
              "OxmDicToXML:DisplaySimple -- *** WARNING *** Simple S, attribute Default: characters that XML "
              "does not allow were replaced.\n");
}

TEST_F(OxmDicToXMLTest, UsedPackagesThatCannotStandInAListAreLeftOutWithAWarning) {
    const Held<OXMIDicPackage> package = MakePackage("P");
    const Held<OXMIDicPackage> blank = MakePackage("two words", 2);
    const Held<OXMIDicPackage> plain = MakePackage("Plain", 3);
    package->AddUsedPackage(blank.Get());
    package->AddUsedPackage(plain.Get());
    package->AddScopePackage(blank.Get());
    ClearWritten();

    const std::string text = SavedText("P");

    EXPECT_THAT(text, HasSubstr("UseNames=\"Plain\">"));
    EXPECT_EQ(
        Written(),
        "OxmDicToXML:DisplayPackage -- *** WARNING *** Package P, attribute UseNames: this name cannot "
        "stand in a list; left out: two words.\n"
        "OxmDicToXML:DisplayPackage -- *** WARNING *** Package P, attribute UseScopes: this name cannot "
        "stand in a list; left out: two words.\n");
}

TEST_F(OxmDicToXMLTest, LinksToWhatIsNoLongerLoadedAreLeftOutWithOneWarningEach) {
    ASSERT_EQ(LoadGood("SaveSmall"), S_OK);
    ASSERT_EQ(LoadGood("SaveClass"), S_OK);
    const ZELString smallName("SaveSmall");
    const ZELString classesName("SaveClass");
    Held<OXMIDicPackage> small;
    Held<OXMIDicPackage> classes;
    Manager().GetPackage(&smallName, small.Out());
    Manager().GetPackage(&classesName, classes.Out());
    const Held<OXMIDicPackage> package = MakePackage("P");
    package->AddUsedPackage(small.Get());
    package->AddUsedPackage(classes.Get());
    package->AddScopePackage(small.Get());
    const Held<OXMIDicClass> element = MakeClass(*package, "C", 2);
    const ZELString bare("Bare");
    Held<OXMIDicElement> superElement;
    classes->GetElement(&bare, superElement.Out());
    auto* const superClass = static_cast<OXMIDicClass*>(superElement.Get());
    element->SetSuperClass(superClass);
    element->SetReference(superClass);
    const Held<OXMIDicRelationship> relationship = MakeRelationship(*element, "R", 3);
    relationship->SetTarget(superClass);
    const Held<OXMIDicSimple> simple = MakeSimple(*element, "S", 4, OXMDicPRIMITIVEType_Integer);
    Held<OXMIDicElement> category;
    small->GetElement(&bare, category.Out());
    simple->AddCategory(static_cast<OXMIDicCategory*>(category.Get()));
    superElement.Reset();
    category.Reset();
    small.Reset();
    classes.Reset();
    Remove("SaveSmall");
    Remove("SaveClass");

    const std::string text = SavedText("P");

    const std::string end = ": what it named is no longer loaded; left out.\n";
    const std::string ofPackage = "OxmDicToXML:DisplayPackage -- *** WARNING *** Package P, attribute ";
    const std::string ofClass = "OxmDicToXML:DisplayClass -- *** WARNING *** Class C, attribute ";
    EXPECT_EQ(Written(),
              ofPackage + "UseNames" + end + ofPackage + "UseNames" + end + ofPackage + "UseScopes" + end +
                  ofClass + "SuperRef" + end + ofClass + "ReferenceRef" + end +
                  "OxmDicToXML:DisplayRelationship -- *** WARNING *** Relationship R, attribute TargetRef" +
                  end + "OxmDicToXML:DisplaySimple -- *** WARNING *** Simple S, attribute CategoryRefs" +
                  end);
    EXPECT_THAT(text, Not(HasSubstr("Ref=")));
    EXPECT_THAT(text, Not(HasSubstr("Refs=")));
    EXPECT_THAT(text, Not(HasSubstr("Use")));
}

}  // namespace
