#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ReaderFixture.h"

using ::testing::HasSubstr;

namespace {

/// Target (1) and its subclass SubTarget (2), Super (3) and its subclass Sub (5), which redefines "To".
class OxmDicFromXMLCheckTest : public ReaderFixture {
protected:
    static std::string Target(unsigned number) {
        return std::string(" TargetRef=\"").append(U(number)).append("\"");
    }
    static std::string Super(unsigned number) {
        return std::string(" SuperRef=\"").append(U(number)).append("\"");
    }

    static std::string Member(std::string_view tag, unsigned number, std::string_view attributes) {
        std::string text("<");
        return text.append(tag).append(Id("To", number)).append(attributes).append("/>");
    }

    /// Loads the four classes with these members of Super and Sub.
    HRESULT LoadHierarchy(std::string_view inherited, std::string_view own, std::string_view tag = "Class") {
        std::string sub("<");
        sub.append(tag).append(Id("Sub", 5)).append(" Persistent=\"Yes\"").append(Super(3)).append(">");
        sub.append(own).append("</").append(tag).append(">");
        return LoadBody(ClassTag("Target", 1) + ClassTag("SubTarget", 2, Super(1)) +
                        ClassTag("Super", 3, "", inherited) + sub);
    }

    HRESULT LoadRedefinition(unsigned inheritedTarget, unsigned ownTarget) {
        return LoadHierarchy(Member("Relationship", 4, Target(inheritedTarget)),
                             Member("Relationship", 6, Target(ownTarget)));
    }
};

TEST_F(OxmDicFromXMLCheckTest, ADirectSubclassOfTheInheritedTargetPasses) {
    EXPECT_EQ(LoadRedefinition(1, 2), S_OK);
}

TEST_F(OxmDicFromXMLCheckTest, AClassFurtherBelowTheInheritedTargetPasses) {
    EXPECT_EQ(
        LoadBody(ClassTag("Target", 1) + ClassTag("SubTarget", 2, Super(1)) + ClassTag("Below", 7, Super(2)) +
                 ClassTag("Super", 3, "", Member("Relationship", 4, Target(1))) +
                 ClassTag("Sub", 5, Super(3), Member("Relationship", 6, Target(7)))),
        S_OK);
}

TEST_F(OxmDicFromXMLCheckTest, TheInheritedTargetItselfPassesAsARoot) {
    EXPECT_EQ(LoadRedefinition(1, 1), S_OK);
}

TEST_F(OxmDicFromXMLCheckTest, TheInheritedTargetItselfFailsOnceItHasASuperClass) {
    EXPECT_EQ(LoadRedefinition(2, 2), E_FAIL);

    EXPECT_THAT(
        Written(),
        HasSubstr("Referred Class SubTarget is invalid because it does not inherit from SubTarget,.\n"));
}

TEST_F(OxmDicFromXMLCheckTest, AnotherTargetFailsWithFiveLines) {
    EXPECT_EQ(LoadRedefinition(1, 3), E_FAIL);

    EXPECT_EQ(
        DocumentLines(),
        "OxmDicFromXML:CheckClass- *** ERROR *** Invalid reference defined in Class=Sub, Attribute=To.\n"
        "OxmDicFromXML:CheckClass- *** Msg:  *** Referred Class Super is invalid because it does not inherit "
        "from "
        "Target,.\n"
        "OxmDicFromXML:CheckClass- ***       *** which is the referred Class of a SuperClass of Sub.\n"
        "OxmDicFromXML:CheckClass- *** Act:  *** Verify Sub, To TargetRef.\n"
        "OxmDicFromXML:CheckClass- ***       *** or change Super SuperRef to inherit from Target.\n"
        "OxmDicFromXML:OxmDicFromXML-*** ERROR *** OxmDicFromXML:CheckClass failed.\n");
    EXPECT_FALSE(IsLoaded("P"));
}

TEST_F(OxmDicFromXMLCheckTest, ARelationshipThatIsNotInheritedPasses) {
    EXPECT_EQ(LoadHierarchy("", Member("Relationship", 6, Target(3))), S_OK);
}

TEST_F(OxmDicFromXMLCheckTest, AnInheritedRelationshipOfAHigherSuperClassIsFound) {
    EXPECT_EQ(LoadBody(ClassTag("Target", 1) + ClassTag("Top", 7, "", Member("Relationship", 4, Target(1))) +
                       ClassTag("Super", 3, Super(7)) +
                       ClassTag("Sub", 5, Super(3), Member("Relationship", 6, Target(3)))),
              E_FAIL);
}

TEST_F(OxmDicFromXMLCheckTest, AnInheritedAnyObjectFailsARedefinition) {
    EXPECT_EQ(LoadHierarchy(Member("Relationship", 4, " TargetRef=\"AnyObject\""),
                            Member("Relationship", 6, Target(1))),
              E_FAIL);

    EXPECT_THAT(Written(),
                HasSubstr("OxmDicFromXML:CheckClass- *** ERROR *** Unable to retrieve target Class for To "
                          "Relationship of  SuperClass Super.\n"));
}

TEST_F(OxmDicFromXMLCheckTest, AnInheritedSimpleOfThatNameFailsARedefinition) {
    EXPECT_EQ(LoadHierarchy(Member("Simple", 4, " Type=\"String\""), Member("Relationship", 6, Target(1))),
              E_FAIL);

    EXPECT_THAT(Written(),
                HasSubstr("Unable to retrieve target Class for To Relationship of  SuperClass Super.\n"));
}

TEST_F(OxmDicFromXMLCheckTest, ARedefinitionWithoutTargetFails) {
    EXPECT_EQ(LoadHierarchy(Member("Relationship", 4, Target(1)),
                            Member("Relationship", 6, " TargetRef=\"AnyObject\"")),
              E_FAIL);

    EXPECT_THAT(Written(),
                HasSubstr("OxmDicFromXML:CheckClass- *** ERROR *** Unable to retrieve target Class for To "
                          "Relationship of  current Class Sub.\n"));
}

TEST_F(OxmDicFromXMLCheckTest, SimplesAndInversesAreNotChecked) {
    EXPECT_EQ(LoadHierarchy(Member("Relationship", 4, Target(1)), Member("Inverse", 6, Target(3))), S_OK);
}

TEST_F(OxmDicFromXMLCheckTest, OnlyElementsTaggedClassAreChecked) {
    EXPECT_EQ(
        LoadHierarchy(Member("Relationship", 4, Target(1)), Member("Relationship", 6, Target(3)), "Instance"),
        S_OK);
}

TEST_F(OxmDicFromXMLCheckTest, TheWalkGoesOnAfterAFailedRelationship) {
    const std::string inherited =
        "<Relationship" + Id("A", 10) + Target(1) + "/><Relationship" + Id("B", 11) + Target(1) + "/>";
    const std::string own =
        "<Relationship" + Id("A", 12) + Target(3) + "/><Relationship" + Id("B", 13) + Target(3) + "/>";

    EXPECT_EQ(LoadHierarchy(inherited, own), E_FAIL);

    EXPECT_THAT(Written(), HasSubstr("Attribute=A.\n"));
    EXPECT_THAT(Written(), HasSubstr("Attribute=B.\n"));
}

TEST_F(OxmDicFromXMLCheckTest, WhatAFailedTargetCausesIsNoFaultAgain) {
    FaultCollector faults;

    EXPECT_EQ(LoadRedefinition(99, 98), E_FAIL);

    ASSERT_EQ(faults.rows.size(), 2U) << faults.Summary();
    EXPECT_EQ(faults.rows[0].code, ZanDicDiagnosticCode::ReferenceNotFound);
    EXPECT_EQ(faults.rows[1].code, ZanDicDiagnosticCode::ReferenceNotFound);
}

TEST_F(OxmDicFromXMLCheckTest, ARelationshipThatWasLeftOutIsNoFaultAgain) {
    FaultCollector faults;

    EXPECT_EQ(LoadHierarchy(Member("Relationship", 4, Target(1)), Member("Relationship", 4, Target(1))),
              E_FAIL);

    ASSERT_EQ(faults.rows.size(), 1U) << faults.Summary();
    EXPECT_EQ(faults.rows[0].code, ZanDicDiagnosticCode::DuplicateUuid);
}

TEST_F(OxmDicFromXMLCheckTest, ARelationshipThatWasNotMadeIsNoFaultAgain) {
    FaultCollector faults;

    EXPECT_EQ(LoadHierarchy(Member("Relationship", 4, Target(1)), "<Relationship Name=\"To\"/>"), E_FAIL);

    ASSERT_EQ(faults.rows.size(), 1U) << faults.Summary();
    EXPECT_EQ(faults.rows[0].code, ZanDicDiagnosticCode::MissingAttribute);
}

TEST_F(OxmDicFromXMLCheckTest, TheFaultNamesTheInheritedSide) {
    FaultCollector faults;

    EXPECT_EQ(LoadRedefinition(1, 3), E_FAIL);

    ASSERT_EQ(faults.rows.size(), 1U);
    EXPECT_EQ(faults.rows[0].code, ZanDicDiagnosticCode::InvalidRedefinition);
    EXPECT_EQ(faults.rows[0].element, "Sub::To");
    EXPECT_EQ(faults.rows[0].attribute, "TargetRef");
    EXPECT_EQ(faults.rows[0].otherParty, "P::Super::To");
}

}  // namespace
