#include "OxmDicToEXPRESS.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "FailingFileCalls.h"
#include "FakeClass.h"
#include "FakeDictionary.h"
#include "OXMIDicClass.h"
#include "OXMIDicPackage.h"
#include "OXMIDicPrimitive.h"
#include "OXMIDicRelationship.h"
#include "OXMIDicSimple.h"
#include "SaveFixture.h"

namespace {

using testing::HasSubstr;
using testing::Not;

std::string Expected(const std::string& packageName) {
    return FileText(ZANDIC_TEST_DATA "/expected/express/" + packageName + ".express");
}

class OxmDicToEXPRESSTest : public SaveFixture {
protected:
    HRESULT Export(const char* packageName, const std::string& target) {
        const ZELString name(packageName);
        return OxmDicToEXPRESS(&Manager(), &name, target.c_str());
    }
    std::string FullNameLine(const char* packageName) const {
        return "the FullName is >>>" + directory.Path() + "\\" + packageName + ".express<<<\n";
    }
    /// Lets the dictionary know what redefines what.
    void AskForAllAttributes(const char* packageName) {
        const ZELString name(packageName);
        Held<OXMIDicPackage> package;
        ASSERT_EQ(Manager().GetPackage(&name, package.Out()), S_OK);
        HeldList classes;
        package->GetClasses(&classes);
        for (IUnknown* const entry : classes) {
            HeldList attributes;
            static_cast<OXMIDicClass*>(static_cast<OXMIDicElementH*>(entry))->GetAllElements(&attributes);
        }
    }
    Held<OXMIDicPackage> MakePackage(const char* packageName, unsigned number = 1) {
        const ZELString name(packageName);
        const ZELString domain("VALKOR");
        const ZELDbBinary uuid = TestUuid(number);
        Held<OXMIDicPackage> package;
        EXPECT_EQ(Manager().CreatePackage(&name, &uuid, &domain, package.Out()), S_OK);
        return package;
    }
};

TEST_F(OxmDicToEXPRESSTest, WritesEveryFormOfLine) {
    ASSERT_EQ(LoadGood("ExpressPackage"), S_OK);
    AskForAllAttributes("ExpressPackage");

    EXPECT_EQ(ExpressText("ExpressPackage"), Expected("ExpressPackage"));
    EXPECT_EQ(WrittenErrors(), FullNameLine("ExpressPackage"));
}

TEST_F(OxmDicToEXPRESSTest, ExtensionsAreEntitiesAndOtherKindsAreNone) {
    ASSERT_EQ(LoadGood("ExpressKinds"), S_OK);

    EXPECT_EQ(ExpressText("ExpressKinds"), Expected("ExpressKinds"));
    EXPECT_EQ(WrittenErrors(), FullNameLine("ExpressKinds"));
}

TEST_F(OxmDicToEXPRESSTest, MarksNoRedefinitionThatNobodyAskedFor) {
    ASSERT_EQ(LoadGood("ExpressPackage"), S_OK);

    EXPECT_THAT(ExpressText("ExpressPackage"), Not(HasSubstr("Specialization")));
}

TEST_F(OxmDicToEXPRESSTest, AnEmptyPackageHasItsFrameOnly) {
    ASSERT_EQ(LoadGood("SavePlain"), S_OK);

    EXPECT_EQ(ExpressText("SavePlain"),
              "(* Automatic Generation From Valkor Dictionary *) \n"
              "(* =========================================== *) \n"
              "\n"
              "SCHEMA SavePlain ; \n"
              "\n"
              "END_SCHEMA ;\n");
}

TEST_F(OxmDicToEXPRESSTest, AClassLeftOutHidesThoseBehindIt) {
    ASSERT_EQ(LoadGood("ExpressHidden"), S_OK);

    EXPECT_EQ(ExpressText("ExpressHidden"), Expected("ExpressHidden"));
    EXPECT_EQ(WrittenErrors(), FullNameLine("ExpressHidden") + "WARNING TransientNON PERSISTANT\n");
}

TEST_F(OxmDicToEXPRESSTest, AnInstanceWithSubclassesIsToldAsAnInstance) {
    ASSERT_EQ(LoadGood("ExpressInstance"), S_OK);

    EXPECT_THAT(ExpressText("ExpressInstance"), Not(HasSubstr("ENTITY ")));
    EXPECT_EQ(WrittenErrors(), FullNameLine("ExpressInstance") + "WARNING Single IS AN INSTANCE\n");
}

TEST_F(OxmDicToEXPRESSTest, AnInstanceWithoutSubclassesIsFirstToldAsNotPersistent) {
    const Held<OXMIDicPackage> package = MakePackage("P");
    const ZELString name("I");
    const ZELDbBinary uuid = TestUuid(2);
    Held<OXMIDicClass> element;
    package->CreateClass(&name, &uuid, element.Out());
    element->SetPersistent(0);
    element->SetInstance(1);

    ExpressText("P");

    EXPECT_EQ(WrittenErrors(), FullNameLine("P") + "WARNING INON PERSISTANT\n");
}

TEST_F(OxmDicToEXPRESSTest, StoredNumbersWithoutWordHaveNoWord) {
    const Held<OXMIDicPackage> package = MakePackage("P");
    const ZELString className("C");
    const ZELString simpleName("S");
    const ZELString relationName("R");
    const ZELDbBinary uuids[] = {TestUuid(2), TestUuid(3), TestUuid(4)};
    Held<OXMIDicClass> element;
    package->CreateClass(&className, &uuids[0], element.Out());
    Held<OXMIDicSimple> simple;
    element->CreateSimple(&simpleName, &uuids[1], simple.Out());
    Held<OXMIDicPrimitive> url;
    Manager().GetPrimitive(OXMDicPRIMITIVEType_URL, url.Out());
    simple->SetPrimitive(url.Get());
    simple->SetMandatory(1);
    simple->SetMultiValuated(1);
    simple->SetCollectionType(static_cast<OXMDicCOLLECTION>(0));
    Held<OXMIDicRelationship> relationship;
    element->CreateRelationship(&relationName, &uuids[2], relationship.Out());
    relationship->SetScope(static_cast<OXMDicSCOPE>(0));
    relationship->SetAggregationMode(static_cast<OXMDicAGGREGATION>(0));

    EXPECT_THAT(ExpressText("P"),
                HasSubstr("    S                                 :  [ 0: ? ] OF  ; \n"
                          "    R                                 : OPTIONAL unknown target  ;\n"));
}

TEST_F(OxmDicToEXPRESSTest, ChangesNothing) {
    ASSERT_EQ(LoadGood("ExpressPackage"), S_OK);
    const std::string before = SavedText("ExpressPackage");

    ExpressText("ExpressPackage");

    EXPECT_EQ(SavedText("ExpressPackage"), before);
}

TEST_F(OxmDicToEXPRESSTest, RefusesMissingArgumentsAndUnknownPackagesWithoutALine) {
    const ZELString name("P");

    EXPECT_EQ(OxmDicToEXPRESS(nullptr, &name, directory.Path().c_str()), E_FAIL);
    EXPECT_EQ(OxmDicToEXPRESS(&Manager(), nullptr, directory.Path().c_str()), E_FAIL);
    EXPECT_EQ(Export("P", directory.Path()), E_FAIL);

    EXPECT_EQ(WrittenErrors(), "");
}

TEST_F(OxmDicToEXPRESSTest, RefusesNamesThatNoSchemaCanBear) {
    unsigned number = 0;
    for (const char* const name : {"a/b", "a\\b", "a.b"}) {
        const Held<OXMIDicPackage> package = MakePackage(name, ++number);
        ClearWritten();

        EXPECT_EQ(Export(name, directory.Path()), E_FAIL);

        EXPECT_EQ(WrittenErrors(),
                  "ERROR : no schema can be named after Package " + std::string(name) + "\n");
    }
    EXPECT_TRUE(std::filesystem::is_empty(directory.Path()));
}

TEST_F(OxmDicToEXPRESSTest, TakesAContentWordInTheNameAndWritesThePackagesOwn) {
    const Held<OXMIDicPackage> package = MakePackage("P");

    EXPECT_EQ(Export("P.metadata", directory.Path()), S_OK);

    EXPECT_THAT(FileText(directory.Path("P.express")), HasSubstr("SCHEMA P ; \n"));
}

TEST_F(OxmDicToEXPRESSTest, UsedPackagesThatAreGoneAreLeftOut) {
    const Held<OXMIDicPackage> package = MakePackage("P");
    package->AddUsedPackage(MakePackage("Gone", 2).Get());
    package->AddUsedPackage(MakePackage("Kept", 3).Get());
    const ZELString gone("Gone");
    ASSERT_EQ(Manager().RemovePackage(&gone), S_OK);

    EXPECT_THAT(ExpressText("P"), HasSubstr("SCHEMA P ; \n\nUSE FROM Kept ;\n\nEND_SCHEMA ;\n"));
}

TEST_F(OxmDicToEXPRESSTest, ANullUniqueFailsTheExportAndLeavesNoSchema) {
    const Held<FakeClass> first(new FakeClass(OXMDicTYPE_Class, "First", 2));
    const Held<FakeClass> second(new FakeClass(OXMDicTYPE_Class, "Second", 3));
    FakeManager manager;
    manager.package.classes = {first.Get(), second.Get()};
    const ZELString name("P");
    ASSERT_EQ(OxmDicToEXPRESS(&manager, &name, directory.Path().c_str()), S_OK);
    const std::string whole = FileText(directory.Path("P.express"));
    second->uniques = {nullptr};

    EXPECT_EQ(OxmDicToEXPRESS(&manager, &name, directory.Path().c_str()), E_FAIL);

    EXPECT_EQ(FileText(directory.Path("P.express")), whole);
    EXPECT_EQ(WrittenErrors(), FullNameLine("P") + FullNameLine("P"));
}

TEST_F(OxmDicToEXPRESSTest, AFileThatCannotBeOpenedIsAFailureWithALine) {
    const Held<OXMIDicPackage> package = MakePackage("P");
    const std::string target = directory.Path("none");

    EXPECT_EQ(Export("P", target), E_FAIL);

    EXPECT_EQ(WrittenErrors(), "the FullName is >>>" + target + "\\P.express<<<\nERROR : could not write " +
                                   target + "\\P.express: No such file or directory\n");
}

TEST_F(OxmDicToEXPRESSTest, EachCallThatFailsLeavesAWholeSchema) {
    ASSERT_EQ(LoadGood("SavePlain"), S_OK);
    const std::string text = ExpressText("SavePlain");
    int calls = 0;
    {
        FailingFileCalls counting;
        ExpressText("SavePlain");
        calls = counting.count;
    }
    for (int failAt = 1; failAt <= calls; ++failAt) {
        directory.MakeFile("SavePlain.express", "old");
        FailingFileCalls failing;
        failing.failAt = failAt;

        EXPECT_EQ(Export("SavePlain", directory.Path()), E_FAIL) << failing.made;

        EXPECT_EQ(FileText(directory.Path("SavePlain.express")), failAt == calls ? text : "old");
    }
}

TEST_F(OxmDicToEXPRESSTest, WithoutDirectoryItGoesWhereThePackagesDocumentIs) {
    directory.MakeDirectory("one");
    directory.MakeDirectory("two");
    directory.MakeFile("two/P.metadata", "");
    ::setenv("ZELDictionaryPath", (directory.Path("one") + ":" + directory.Path("two")).c_str(), 1);
    const Held<OXMIDicPackage> package = MakePackage("P");
    const ZELString name("P");

    EXPECT_EQ(Manager().SavePackage(&name, OXMDicPERSISTENT_Express), S_OK);

    EXPECT_TRUE(std::filesystem::exists(directory.Path("two/P.express")));
}

TEST_F(OxmDicToEXPRESSTest, WithoutDirectoryAndPathThereIsNoPlace) {
    const Held<OXMIDicPackage> package = MakePackage("P");
    const ZELString name("P");
    ClearWritten();

    EXPECT_EQ(OxmDicToEXPRESS(&Manager(), &name, nullptr), E_FAIL);

    EXPECT_EQ(WrittenErrors(), "ERROR : no directory for the schema of Package P\n");
}

TEST_F(OxmDicToEXPRESSTest, TheManagerSaysNothingOfAMissingPath) {
    const Held<OXMIDicPackage> package = MakePackage("P");
    const ZELString name("P");
    ClearWritten();

    EXPECT_EQ(Manager().SaveExpress(nullptr, &name), E_FAIL);

    EXPECT_EQ(Written() + WrittenErrors(), "");
}

}  // namespace
