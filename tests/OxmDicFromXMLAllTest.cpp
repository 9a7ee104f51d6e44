// Several packages as one load, and what an observer is told that wants to know all.
#include "OxmDicFromXML.h"
#include "ReaderFixture.h"

namespace {

class OxmDicFromXMLAllTest : public ReaderFixture {
protected:
    HRESULT LoadAll(std::initializer_list<std::string_view> names) {
        std::vector<ZELString> packages;
        for (const std::string_view name : names) packages.emplace_back(name);
        return OxmDicFromXMLAll(&Manager(), packages, Directory().Path().c_str());
    }

    FaultCollector faults{true, true};
};

TEST_F(OxmDicFromXMLAllTest, LoadsEachInTurn) {
    MakePackage("A", ClassTag("CA", 1));
    MakePackage("B", ClassTag("CB", 2));

    EXPECT_EQ(LoadAll({"B", "A"}), S_OK);

    EXPECT_TRUE(IsLoaded("A"));
    EXPECT_TRUE(IsLoaded("B"));
    EXPECT_EQ(faults.documents, "B.metadata B loaded\nA.metadata A loaded\n");
}

TEST_F(OxmDicFromXMLAllTest, RefusesANullManager) { EXPECT_EQ(OxmDicFromXMLAll(nullptr, {}, ""), E_FAIL); }

TEST_F(OxmDicFromXMLAllTest, GoesOnBehindOneThatFailsWhenAskedTo) {
    MakePackage("A", "<Class Name=\"D\"/>");
    MakePackage("B", ClassTag("CB", 2));

    EXPECT_EQ(LoadAll({"A", "B"}), E_FAIL);

    EXPECT_FALSE(IsLoaded("A"));
    EXPECT_TRUE(IsLoaded("B"));
    EXPECT_EQ(faults.Summary(), "missing-attribute 2:1 D @Uuid\n");
}

TEST_F(OxmDicFromXMLAllTest, WithoutObserverTheFirstThatFailsIsTheLast) {
    MakePackage("A", "<Class Name=\"D\"/>");
    MakePackage("B", ClassTag("CB", 2));
    ZanDicSetDiagnosticObserver(nullptr);

    EXPECT_EQ(LoadAll({"A", "B"}), E_FAIL);

    EXPECT_FALSE(IsLoaded("B"));
}

TEST_F(OxmDicFromXMLAllTest, ReadsAFailingPackageOnceHoweverManyNeedIt) {
    MakePackage("A", "<Class Name=\"D\"/>");
    MakePackage("P", "", "UseNames=\"A\"");
    MakePackage("Q", "", "UseNames=\"P A\"");

    EXPECT_EQ(LoadAll({"P", "Q", "A"}), E_FAIL);

    EXPECT_EQ(faults.documents, "A.metadata A failed\nP.metadata P failed\nQ.metadata Q failed\n");
    EXPECT_EQ(faults.Summary(),
              "missing-attribute 2:1 D @Uuid\n"
              "prerequisite-failed 1:62 P @UseNames <- 1\n"
              "prerequisite-failed 1:62 Q @UseNames <- 1\n"
              "prerequisite-failed 1:62 Q @UseNames <- 1\n");
}

TEST_F(OxmDicFromXMLAllTest, TellsAMissingDocumentWhereverItIsNeeded) {
    MakePackage("P", "", "UseNames=\"Gone\"");
    MakePackage("Q", "", "UseScopes=\"Gone\"");

    EXPECT_EQ(LoadAll({"P", "Q"}), E_FAIL);

    EXPECT_EQ(faults.Summary(), "file-not-found 1:62 P @UseNames\nfile-not-found 1:62 Q @UseScopes\n");
    EXPECT_EQ(faults.documents, "P.metadata P failed\nQ.metadata Q failed\n");
}

TEST_F(OxmDicFromXMLAllTest, AReferenceToAPackageIsOneOfTheWrongKind) {
    MakePackage("P", ClassTag("C", 2, "SuperRef=\"" + U(0xF0000) + "\""));

    EXPECT_EQ(LoadAll({"P"}), E_FAIL);

    EXPECT_EQ(faults.Summary(), "reference-of-wrong-kind 2:77 C @SuperRef\n");
}

TEST_F(OxmDicFromXMLAllTest, AReferenceToWhatWasLeftOutFollowsFromThat) {
    MakePackage("A", ClassTag("CA", 1) + "<Class Name=\"D\"/>");
    MakePackage("P", ClassTag("C", 2, "SuperRef=\"" + U(1) + "\""), "UseNames=\"A\"");

    EXPECT_EQ(LoadAll({"P"}), E_FAIL);

    EXPECT_EQ(faults.Summary(),
              "missing-attribute 3:1 D @Uuid\n"
              "prerequisite-failed 1:62 P @UseNames <- 1\n"
              "reference-not-found 2:77 C @SuperRef <- 1\n");
}

TEST_F(OxmDicFromXMLAllTest, WhatAMissingPackageMayHaveHadFollowsFromThatForItsUsersOnly) {
    MakePackage("P", ClassTag("C", 2, "SuperRef=\"" + U(1) + "\""), "UseNames=\"Gone\"");
    MakePackage("Q", ClassTag("D", 3, "SuperRef=\"" + U(1) + "\""));
    MakePackage("R", ClassTag("E", 4, "SuperRef=\"" + U(1) + "\""), "UseNames=\"P\"");

    EXPECT_EQ(LoadAll({"P", "Q", "R"}), E_FAIL);

    EXPECT_EQ(faults.Summary(),
              "file-not-found 1:62 P @UseNames\n"
              "reference-not-found 2:77 C @SuperRef <- 1\n"
              "reference-not-found 2:77 D @SuperRef\n"
              "prerequisite-failed 1:62 R @UseNames <- 1\n"
              "reference-not-found 2:77 E @SuperRef <- 1\n");
}

TEST_F(OxmDicFromXMLAllTest, WhatIsLoadedAndNotUsedIsNotFound) {
    MakePackage("A", ClassTag("CA", 1));
    MakePackage("P", ClassTag("C", 2, "SuperRef=\"" + U(1) + "\""));

    EXPECT_EQ(LoadAll({"A", "P"}), E_FAIL);

    ASSERT_EQ(faults.Summary(), "reference-not-found 2:77 C @SuperRef\n");
    EXPECT_EQ(faults.rows[0].reason,
              "SuperRef of \"C\": no object has the UUID " + U(1) + " but A::CA, whose package is not used");
    EXPECT_EQ(faults.rows[0].otherPackage, "A");
}

TEST_F(OxmDicFromXMLAllTest, WhatIsUsedThroughOthersIsFound) {
    MakePackage("A", ClassTag("CA", 1));
    MakePackage("B", "", "UseScopes=\"A\"");
    MakePackage("P", ClassTag("C", 2, "SuperRef=\"" + U(1) + "\""), "UseNames=\"B\"");

    EXPECT_EQ(LoadAll({"A", "P"}), S_OK);

    EXPECT_EQ(faults.Summary(), "");
}

TEST_F(OxmDicFromXMLAllTest, AnObserverThatIsNotThoroughLetsReferencesFindWhatIsLoaded) {
    FaultCollector plain;
    MakePackage("A", ClassTag("CA", 1));
    MakePackage("P", ClassTag("C", 2, "SuperRef=\"" + U(1) + "\""));

    EXPECT_EQ(LoadAll({"A", "P"}), S_OK);

    EXPECT_EQ(plain.Summary(), "");
}

TEST_F(OxmDicFromXMLAllTest, ACopyWithTheSameUuidsSpoilsNothingForUsersOfTheFirst) {
    MakePackage("A", ClassTag("CA", 1));
    Directory().MakeFile("B.metadata",
                         "<Package" + Id("B", 0xF0000) + ">\n" + ClassTag("CA", 1) + "</Package>");
    MakePackage("P", ClassTag("C", 2, "SuperRef=\"" + U(1) + "\""), "UseNames=\"A\"");

    EXPECT_EQ(LoadAll({"A", "B", "P"}), E_FAIL);

    ASSERT_EQ(faults.Summary(), "duplicate-uuid 1:19 B @Uuid\n");
    EXPECT_EQ(faults.rows[0].otherParty, "A");
    EXPECT_TRUE(IsLoaded("P"));
}

TEST_F(OxmDicFromXMLAllTest, ARingFailsForTheFaultOfOneMember) {
    MakePackage("A", ClassTag("CA", 1), "UseNames=\"B\"");
    MakePackage("B", "<Class Name=\"D\"/>", "UseNames=\"A\"");
    MakePackage("P", "", "UseNames=\"A\"");

    EXPECT_EQ(LoadAll({"A", "P"}), E_FAIL);

    EXPECT_EQ(faults.documents, "A.metadata A failed\nB.metadata B failed\nP.metadata P failed\n");
    EXPECT_EQ(faults.Summary(),
              "missing-attribute 2:1 D @Uuid\n"
              "prerequisite-failed 1:62 A @UseNames <- 1\n"
              "prerequisite-failed 1:62 P @UseNames <- 1\n");
}

TEST_F(OxmDicFromXMLAllTest, WhatAMemberOfARingDoesNotFindFollowsFromWhatAnotherMisses) {
    MakePackage("A", "", "UseNames=\"B Gone\"");
    MakePackage("B", ClassTag("C", 2, "SuperRef=\"" + U(1) + "\""), "UseNames=\"A\"");

    EXPECT_EQ(LoadAll({"A"}), E_FAIL);

    EXPECT_EQ(faults.Summary(),
              "file-not-found 1:62 A @UseNames\n"
              "reference-not-found 2:77 C @SuperRef <- 1\n");
}

TEST_F(OxmDicFromXMLAllTest, TheTuningOfAPackageThatFailedIsRead) {
    MakePackage("P",
                ClassTag("C", 1) + "<Class Name=\"D\" Uuid=\"" + U(2) + "\"/>" + "<Enum" + Id("C", 3) + "/>");
    Directory().MakeFile("P.tuning", "<Package" + Id("P", 0xF0000) + ">\n<Class" + Id("C", 1) +
                                         "><Sample/></Class>\n<Class" + Id("C", 3) + "/></Package>");

    EXPECT_EQ(LoadAll({"P"}), E_FAIL);

    EXPECT_EQ(faults.Summary(),
              "missing-attribute 3:1 D @Persistent\n"
              "duplicate-name 3:67 C @Name\n"
              "unsupported-tag 2:60 \n"
              "reference-not-found 3:17 C @Uuid <- 2\n");
    EXPECT_EQ(faults.documents, "P.tuning P failed\nP.metadata P failed\n");
}

TEST_F(OxmDicFromXMLAllTest, ATuningIsAtFaultAsAWholeForItsFirstFault) {
    MakePackage("P", ClassTag("C", 1));
    Directory().MakeFile("P.tuning", "<Package" + Id("P", 0xF0000) + "><Sample/></Package>");

    EXPECT_EQ(LoadAll({"P"}), S_OK);

    EXPECT_EQ(faults.Summary(), "unsupported-tag 1:62 \ntuning-failed 0:0 P <- 1\n");
    EXPECT_EQ(faults.documents, "P.tuning P failed\nP.metadata P loaded\n");
}

TEST_F(OxmDicFromXMLAllTest, AnotherDocumentOfALoadedPackageIsNotReadFurther) {
    MakePackage("P", "<Nothing/>");
    Directory().MakeFile("Q.metadata", "<Package" + Id("P", 0xF0009) + "><Class/></Package>");

    LoadAll({"P", "Q"});

    EXPECT_EQ(faults.documents, "P.metadata P failed\nQ.metadata P failed\n");
    faults.documents.clear();
    MakePackage("P", "");
    LoadAll({"P", "Q"});
    EXPECT_EQ(faults.documents, "P.metadata P loaded\nQ.metadata P name taken\n");
}

TEST_F(OxmDicFromXMLAllTest, TheOwnerOfANameIsTheOtherParty) {
    MakePackage("P", ClassTag("C", 1, "",
                              "<Simple" + Id("S", 2) + "/><Simple" + Id("S", 3) + "/><Unique" + Id("U", 4) +
                                  "/><Unique" + Id("U", 5) + "/>") +
                         "<Enum" + Id("E", 6) + "><Enumerator" + Id("N", 7) + "/><Enumerator" + Id("N", 8) +
                         "/></Enum><Interface" + Id("I", 9) + "><Method" + Id("M", 10) + "/><Method" +
                         Id("M", 11) + "/></Interface>");

    EXPECT_EQ(LoadAll({"P"}), E_FAIL);

    std::string others;
    for (const FaultCollector::Row& row : faults.rows) {
        others += row.otherParty + " in " + row.otherPackage + "\n";
    }
    EXPECT_EQ(others, "P::C::S in P\nP::U in P\nP::N in P\nP::M in P\n");
    EXPECT_EQ(faults.rows[0].otherUuid, TestUuid(2));
    EXPECT_EQ(faults.rows[1].otherUuid, TestUuid(4));
    EXPECT_EQ(faults.rows[2].otherUuid, TestUuid(7));
    EXPECT_EQ(faults.rows[3].otherUuid, TestUuid(10));
}

}  // namespace
