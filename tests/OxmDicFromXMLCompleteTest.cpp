#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "OXMIDicCategory.h"
#include "OXMIDicEnum.h"
#include "OXMIDicInverse.h"
#include "OXMIDicRelationship.h"
#include "OXMIDicSimple.h"
#include "OXMIDicUnique.h"
#include "ReaderFixture.h"
#include "ZanDicClass.h"

using ::testing::HasSubstr;
using ::testing::Not;

namespace {

class OxmDicFromXMLCompleteTest : public ReaderFixture {
protected:
    /// ` ATTRIBUTE="UUID"`.
    static std::string Ref(std::string_view attribute, unsigned number) {
        std::string text(" ");
        return text.append(attribute).append("=\"").append(U(number)).append("\"");
    }

    static std::string Member(std::string_view tag, std::string_view name, unsigned number,
                              std::string_view attributes) {
        std::string text("<");
        return text.append(tag).append(Id(name, number)).append(attributes).append("/>");
    }

    /// The names of a list of interfaces, each followed by a blank.
    static std::string NamesOf(const HeldList& list) {
        std::string names;
        for (IUnknown* const entry : list) {
            names.append(NameOf(*static_cast<OXMIDicElementH*>(entry))).append(" ");
        }
        return names;
    }

    Held<OXMIDicClass> SuperOf(unsigned number) {
        Held<OXMIDicClass> super;
        Find<OXMIDicClass>(number)->GetSuperClass(super.Out());
        return super;
    }
};

// Classes.

TEST_F(OxmDicFromXMLCompleteTest, ReferencesMayPointForward) {
    ASSERT_EQ(LoadBody(ClassTag("C", 1, Ref("SuperRef", 2) + Ref("ReferenceRef", 3)) + ClassTag("S", 2) +
                       ClassTag("R", 3)),
              S_OK);

    Held<OXMIDicClass> reference;
    EXPECT_EQ(Find<OXMIDicClass>(1)->GetReference(reference.Out()), S_OK);
    EXPECT_EQ(NameOf(*reference), "R");
    EXPECT_EQ(NameOf(*SuperOf(1)), "S");
}

TEST_F(OxmDicFromXMLCompleteTest, UuidsAreReadInAnyCaseAndWithoutDashes) {
    MakePackage("P", "<Class Name=\"S\" Uuid=\"abcdef00-0000-0000-0000000000000001\" Persistent=\"Yes\"/>" +
                         ClassTag("C", 1, "SuperRef=\"ABCDEF00000000000000000000000001\""));

    EXPECT_EQ(Load("P"), S_OK);

    EXPECT_EQ(NameOf(*SuperOf(1)), "S");
}

TEST_F(OxmDicFromXMLCompleteTest, OfAReferenceGivenTwiceTheFirstCounts) {
    ASSERT_EQ(LoadBody(ClassTag("A", 2) + ClassTag("B", 3) +
                       ClassTag("C", 1, Ref("SuperRef", 2) + Ref("SuperRef", 3))),
              S_OK);

    EXPECT_EQ(NameOf(*SuperOf(1)), "A");
}

TEST_F(OxmDicFromXMLCompleteTest, WhatWasSetBeforeAFailingReferenceIsGoneWithTheLoad) {
    ASSERT_EQ(Load("Missing"), E_FAIL);
    MakePackage("Base", ClassTag("S", 2));
    ASSERT_EQ(Load("Base"), S_OK);

    EXPECT_EQ(LoadBody(ClassTag("C", 1, Ref("SuperRef", 2) + Ref("ReferenceRef", 99)), "UseNames=\"Base\""),
              E_FAIL);

    HeldList subclasses;
    Find<OXMIDicClass>(2)->GetSubClasses(&subclasses);
    EXPECT_EQ(subclasses.Size(), 0);
}

TEST_F(OxmDicFromXMLCompleteTest, AHandlerStopsAtItsFirstFailingReference) {
    EXPECT_EQ(LoadBody(ClassTag("C", 1, Ref("SuperRef", 98) + Ref("ReferenceRef", 99))), E_FAIL);

    EXPECT_EQ(
        DocumentLines(),
        "OxmDicFromXML:CompleteClass-*** ERROR *** Could not process element [C], attribute [SuperRef]:  No "
        "object found for Uuid=" +
            U(98) +
            ".\n"
            "OxmDicFromXML:OxmDicFromXML- *** ERROR *** OxmDicFromXML:CompleteClass failed.\n");
}

TEST_F(OxmDicFromXMLCompleteTest, TheThirdItemOfAListIsNotLookedAtBehindAFailingSecond) {
    EXPECT_EQ(LoadBody(ClassTag("C", 1, "CommandRefs=\"" + U(1) + " " + U(98) + "\"")), E_FAIL);

    EXPECT_THAT(Written(), HasSubstr("attribute [CommandRefs]: QueryInterface(OXMIDicCommand) failed.\n"));
    EXPECT_THAT(Written(), Not(HasSubstr("No object found")));
}

TEST_F(OxmDicFromXMLCompleteTest, AClassIsNoTargetOfAnotherKindAndNothingElseIsAClass) {
    const std::string targets =
        "<Enum" + Id("E", 5) + "/><Category" + Id("K", 6) + "/>" +
        ClassTag("T", 7, "", Member("Simple", "S", 8, "") + Member("Unique", "U", 9, ""));

    EXPECT_EQ(LoadBody(targets + ClassTag("C", 1, Ref("SuperRef", 5))), E_FAIL);
    EXPECT_EQ(LoadBody(targets + ClassTag("C", 1, Ref("SuperRef", 6))), E_FAIL);
    EXPECT_EQ(LoadBody(targets + ClassTag("C", 1, Ref("SuperRef", 8))), E_FAIL);
    EXPECT_EQ(LoadBody(targets + ClassTag("C", 1, Ref("SuperRef", 9))), E_FAIL);
    EXPECT_EQ(LoadBody(targets + ClassTag("C", 1, Ref("SuperRef", 7))), S_OK);
}

TEST_F(OxmDicFromXMLCompleteTest, APackageIsNoTarget) {
    Directory().MakeFile(
        "P.metadata", "<Package" + Id("P", 50) + ">" + ClassTag("C", 1, Ref("SuperRef", 50)) + "</Package>");

    EXPECT_EQ(Load("P"), E_FAIL);

    EXPECT_THAT(Written(), HasSubstr("attribute [SuperRef]: QueryInterface(OXMIDicClass) failed.\n"));
}

TEST_F(OxmDicFromXMLCompleteTest, AChainOf100000SuperClassesLoadsAndUnloads) {
    std::string body = ClassTag("C0", 1);
    for (unsigned number = 1; number < 100000; ++number) {
        body.append(
            ClassTag(std::string("C").append(std::to_string(number)), number + 1, Ref("SuperRef", number)));
    }

    ASSERT_EQ(LoadBody(body), S_OK);

    HeldList supers;
    Find<OXMIDicClass>(100000)->GetSuperClasses(&supers);
    EXPECT_EQ(supers.Size(), 99999);
    supers.Clear();
    const ZELString name("P");
    EXPECT_EQ(Manager().RemovePackage(&name), S_OK);
}

// Attributes.

TEST_F(OxmDicFromXMLCompleteTest, ASimpleTakesItsEnumerationAndItsCategories) {
    ASSERT_EQ(LoadBody(ClassTag("C", 1, "",
                                Member("Simple", "S", 2,
                                       Ref("TargetRef", 3) + " CategoryRefs=\"  " + U(4) + "   " + U(5) +
                                           " " + U(4) + "\"")) +
                       "<Enum" + Id("E", 3) + "/><Category" + Id("K", 4) + "/><Category" + Id("L", 5) + "/>"),
              S_OK);

    const auto simple = Find<OXMIDicSimple>(2);
    Held<OXMIDicElement> type;
    HeldList categories;
    EXPECT_EQ(simple->GetType(type.Out()), S_OK);
    EXPECT_EQ(simple->GetCategories(&categories), S_OK);
    EXPECT_EQ(NameOf(*type), "E");
    EXPECT_EQ(NamesOf(categories), "K L ");
}

TEST_F(OxmDicFromXMLCompleteTest, ARelationshipTakesItsTargetAndItsCategories) {
    ASSERT_EQ(
        LoadBody(ClassTag("C", 1, "",
                          Member("Relationship", "R", 2, Ref("TargetRef", 1) + Ref("CategoryRefs", 4))) +
                 "<Category" + Id("K", 4) + "/>"),
        S_OK);

    const auto relationship = Find<OXMIDicRelationship>(2);
    Held<OXMIDicClass> target;
    HeldList categories;
    EXPECT_EQ(relationship->GetTarget(target.Out()), S_OK);
    EXPECT_EQ(relationship->GetCategories(&categories), S_OK);
    EXPECT_EQ(NameOf(*target), "C");
    EXPECT_EQ(NamesOf(categories), "K ");
}

TEST_F(OxmDicFromXMLCompleteTest, AnInjectiveRelationshipPointsAtItsTarget) {
    ASSERT_EQ(LoadBody(ClassTag("C", 1, "",
                                Member("Relationship", "R", 2, Ref("TargetRef", 1) + " Injective=\"Yes\""))),
              S_OK);

    HeldList relationships;
    Find<OXMIDicClass>(1)->GetInjectivesPointingOnMe(relationships);
    EXPECT_EQ(NamesOf(relationships), "R ");
}

TEST_F(OxmDicFromXMLCompleteTest, AnInverseIsLinkedOnBothSides) {
    ASSERT_EQ(LoadBody(ClassTag("C", 1, "",
                                Member("Relationship", "R", 2, Ref("TargetRef", 1)) +
                                    Member("Inverse", "I", 3, Ref("TargetRef", 1) + Ref("InverseOfRef", 2)))),
              S_OK);

    Held<OXMIDicRelationship> inverted;
    HeldList inverses;
    EXPECT_EQ(Find<OXMIDicInverse>(3)->GetInverse(inverted.Out()), S_OK);
    EXPECT_EQ(Find<OXMIDicRelationship>(2)->GetInvertedAttributes(&inverses), S_OK);
    EXPECT_EQ(NameOf(*inverted), "R");
    EXPECT_EQ(NamesOf(inverses), "I ");
}

TEST_F(OxmDicFromXMLCompleteTest, TheNameOfTheInvertedRelationshipIsTraced) {
    MakePackage("P", ClassTag("C", 1, "",
                              Member("Relationship", "R", 2, "") +
                                  Member("Inverse", "I", 3, Ref("InverseOfRef", 2))));
    TraceFromNow(5);

    ASSERT_EQ(Load("P"), S_OK);

    EXPECT_EQ(LinesOf("OxmDicFromXML:CompleteInverse"),
              "OxmDicFromXML:CompleteInverse- InvOfRelationshipName=R.\n"
              "OxmDicFromXML:CompleteInverse- === exit === rc=OK.\n");
}

TEST_F(OxmDicFromXMLCompleteTest, AFailingInverseTracesItsExit) {
    ZanDicSetTraceLevel(1);

    EXPECT_EQ(LoadBody(ClassTag("C", 1, "", Member("Inverse", "I", 3, Ref("InverseOfRef", 3)))), E_FAIL);

    EXPECT_THAT(Written(),
                HasSubstr("OxmDicFromXML:CompleteInverse-*** ERROR *** Could not process InverseOfRef "
                          "attribute for Inverse named I.\n"
                          "OxmDicFromXML:CompleteInverse- === exit === rc=KO.\n"));
}

TEST_F(OxmDicFromXMLCompleteTest, AUniqueTakesItsAttributesInOrder) {
    ASSERT_EQ(
        LoadBody(ClassTag("C", 1, "",
                          Member("Unique", "U", 5, " UniqueRefs=\"" + U(4) + " " + U(2) + " " + U(3) + "\"") +
                              Member("Simple", "S", 2, "") + Member("Relationship", "R", 3, "") +
                              Member("Inverse", "I", 4, ""))),
        S_OK);

    HeldList attributes;
    Find<OXMIDicUnique>(5)->GetElements(&attributes);
    EXPECT_EQ(NamesOf(attributes), "I S R ");
}

// Domains.

TEST_F(OxmDicFromXMLCompleteTest, PackagesOfOneDomainMayReferToEachOther) {
    MakePackage("Base", ClassTag("S", 2), "Domain=\"DUVRA\"");

    EXPECT_EQ(LoadBody(ClassTag("C", 1, Ref("SuperRef", 2)), "Domain=\"DUVRA\" UseNames=\"Base\""), S_OK);
}

TEST_F(OxmDicFromXMLCompleteTest, ADomainWithoutTextIsNotNamed) {
    const ZELString name("Base");
    const ZELString domain("");
    const ZELString className("S");
    const ZELDbBinary packageUuid = TestUuid(77);
    const ZELDbBinary classUuid = TestUuid(2);
    Held<OXMIDicPackage> base;
    Held<OXMIDicClass> super;
    ASSERT_EQ(Manager().CreatePackage(&name, &packageUuid, &domain, base.Out()), S_OK);
    ASSERT_EQ(base->CreateClass(&className, &classUuid, super.Out()), S_OK);

    EXPECT_EQ(LoadBody(ClassTag("C", 1, Ref("SuperRef", 2))), E_FAIL);

    EXPECT_THAT(Written(),
                HasSubstr("OxmDicFromXML:CheckSameDomain- *** ERROR *** Element C in Package P for Domain "
                          "VALKOR cannot be related to Element S in Package Base because Domains are "
                          "different..\n"));
}

TEST_F(OxmDicFromXMLCompleteTest, AnElementWithoutPackageIsNoTarget) {
    const ZELDbBinary uuid = TestUuid(2);
    Held<ZanDicClass> orphan(new ZanDicClass("S", uuid));
    orphan->SetUuid(&uuid);  // registers it

    EXPECT_EQ(LoadBody(ClassTag("C", 1, Ref("SuperRef", 2))), E_FAIL);

    EXPECT_THAT(Written(),
                HasSubstr("OxmDicFromXML:CheckSameDomain- *** ERROR *** Could not get Package from "
                          "Element.\n"));
}

TEST_F(OxmDicFromXMLCompleteTest, TheOtherPartyOfACrossDomainReferenceIsNamed) {
    MakePackage("Base", ClassTag("S", 2), "Domain=\"DUVRA\"");
    FaultCollector faults;

    EXPECT_EQ(LoadBody(ClassTag("C", 1, Ref("SuperRef", 2)), "UseNames=\"Base\""), E_FAIL);

    ASSERT_EQ(faults.rows.size(), 1U);
    EXPECT_EQ(faults.rows[0].code, ZanDicDiagnosticCode::CrossDomainReference);
    EXPECT_EQ(faults.rows[0].otherParty, "Base::S");
    EXPECT_EQ(
        faults.rows[0].traceText,
        "OxmDicFromXML:CheckSameDomain- *** ERROR *** Element C in Package P for Domain VALKOR cannot be "
        "related to Element S in Package Base for Domain DUVRA because Domains are different..\n"
        "OxmDicFromXML:CompleteClass-*** ERROR *** Could not process element [C], attribute [SuperRef]: "
        "Cross "
        "Domain reference is not authorized.");
}

}  // namespace
