// Second pass over mappings.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "OXMIDicRBOClass.h"
#include "OXMIDicRBOComponent.h"
#include "OXMIDicRBOMapping.h"
#include "OXMIDicRBOPathExpression.h"
#include "OXMIDicRBORoot.h"
#include "ReaderFixture.h"

using ::testing::HasSubstr;

namespace {

class OxmDicFromXMLCompleteRBOTest : public ReaderFixture {
protected:
    /// Loads P with an RBO class T (1), a class K (2) and a mapping M (3) that holds \p inside.
    HRESULT LoadMapping(std::string_view inside, std::string_view attributes = "") {
        return LoadBody("<RBOMapping" + Id("M", 3) + " " + std::string(attributes) + ">" +
                        std::string(inside) + "</RBOMapping><RBOClass" + Id("T", 1) + "/>" +
                        ClassTag("K", 2));
    }
    HRESULT LoadInside(std::string_view inside) {
        return LoadMapping(inside, "ApplyToRBOClassRef=\"" + U(1) + "\"");
    }

    static std::string Tag(std::string_view tag, std::string_view name, unsigned number,
                           std::string_view attributes, std::string_view inside = "") {
        return "<" + std::string(tag) + Id(name, number) + " " + std::string(attributes) + ">" +
               std::string(inside) + "</" + std::string(tag) + ">";
    }
    static std::string Base(unsigned number) { return "BaseClassRef=\"" + U(number) + "\""; }
    static std::string Target(unsigned number) { return "TargetRef=\"" + U(number) + "\""; }
};

TEST_F(OxmDicFromXMLCompleteRBOTest, EveryReferenceOfANestIsSet) {
    ASSERT_EQ(LoadInside(Tag(
                  "RBORoot", "R", 4, Base(2),
                  Tag("RBOComponent", "C", 5, Base(2),
                      Tag("RBOPathExpression", "X", 6, Target(3)) + Tag("RBOComponent", "D", 7, Base(2))))),
              S_OK)
        << Written();

    Held<OXMIDicRBOClass> applied;
    Held<OXMIDicClass> base;
    Held<OXMIDicElement> target;
    ASSERT_EQ(Find<OXMIDicRBOMapping>(3)->GetApplyToRBOClass(applied.Out()), S_OK);
    EXPECT_EQ(NameOf(*applied), "T");
    EXPECT_EQ(Find<OXMIDicRBORoot>(4)->GetBaseClass(base.Out()), S_OK);
    EXPECT_EQ(Find<OXMIDicRBOComponent>(5)->GetBaseClass(base.Out()), S_OK);
    EXPECT_EQ(Find<OXMIDicRBOComponent>(7)->GetBaseClass(base.Out()), S_OK);
    ASSERT_EQ(Find<OXMIDicRBOPathExpression>(6)->GetTarget(target.Out()), S_OK);
    EXPECT_EQ(NameOf(*target), "M");
}

TEST_F(OxmDicFromXMLCompleteRBOTest, BaseClassesAreNotMandatory) {
    ASSERT_EQ(LoadInside(Tag("RBORoot", "R", 4, "", Tag("RBOComponent", "C", 5, ""))), S_OK);

    Held<OXMIDicClass> base;
    EXPECT_EQ(Find<OXMIDicRBOComponent>(5)->GetBaseClass(base.Out()), E_FAIL);
}

TEST_F(OxmDicFromXMLCompleteRBOTest, TheFirstFailureStopsTheWalk) {
    EXPECT_EQ(LoadInside(Tag("RBORoot", "R", 4, Base(1), Tag("RBOComponent", "C", 5, Base(0xFF))) +
                         Tag("RBORoot", "S", 6, Base(0xFE))),
              E_FAIL);

    EXPECT_EQ(DocumentLines(),
              "OxmDicFromXML:CompleteRBORoot-*** ERROR *** Could not process element [R], attribute "
              "[BaseClassRef]: QueryInterface(OXMIDicClass) failed.\n"
              "OxmDicFromXML:OxmDicFromXML-*** ERROR *** OxmDicFromXML:CompleteRBOMapping failed.\n");
}

TEST_F(OxmDicFromXMLCompleteRBOTest, GoingOnTellsEveryReference) {
    FaultCollector faults;

    EXPECT_EQ(LoadInside(Tag("RBORoot", "R", 4, Base(1), Tag("RBOComponent", "C", 5, Base(0xFF))) + "\n" +
                         Tag("RBORoot", "S", 6, Base(0xFE))),
              E_FAIL);

    EXPECT_EQ(faults.Summary(),
              "reference-of-wrong-kind 2:183 M::R @BaseClassRef\n"
              "reference-not-found 2:300 M::R::C @BaseClassRef\n"
              "reference-not-found 3:62 M::S @BaseClassRef\n");
}

TEST_F(OxmDicFromXMLCompleteRBOTest, OtherDomainsAreRefused) {
    MakePackage("Other", ClassTag("O", 9), "Domain=\"DUVRA\"");
    MakePackage("P",
                "<RBOMapping" + Id("M", 3) + " ApplyToRBOClassRef=\"" + U(1) + "\">" +
                    Tag("RBORoot", "R", 4, Base(9)) + "</RBOMapping><RBOClass" + Id("T", 1) + "/>",
                "UseNames=\"Other\"");

    EXPECT_EQ(Load("P"), E_FAIL);

    EXPECT_THAT(Written(),
                HasSubstr("Element R in Package P for Domain VALKOR cannot be related to Element O"));
}

TEST_F(OxmDicFromXMLCompleteRBOTest, AMissingReferenceIsToldAgainWhenTheReadingGoesOn) {
    FaultCollector faults;

    EXPECT_EQ(LoadMapping(Tag("RBORoot", "R", 4, "",
                              Tag("RBOComponent", "C", 5, "", Tag("RBOPathExpression", "X", 6, "")))),
              E_FAIL);

    EXPECT_EQ(faults.rows.size(), 2U);
    EXPECT_THAT(Written(), HasSubstr("OxmDicFromXML:OxmDicFromXML- *** ERROR *** Mandatory attribute is  "
                                     "missing:ApplyToRBOClassRef.\n"));
    EXPECT_THAT(Written(),
                HasSubstr("OxmDicFromXML:CompleteRBOPathExpression- *** ERROR *** Mandatory attribute "
                          "is  missing:TargetRef.\n"));
}

TEST_F(OxmDicFromXMLCompleteRBOTest, AnObjectThatWasNotMadeIsToldAgainWhenTheReadingGoesOn) {
    FaultCollector faults;

    EXPECT_EQ(LoadInside(Tag("RBORoot", "R", 4, "",
                             Tag("RBOComponent", "C", 5, "") + Tag("RBOComponent", "C", 6, "") +
                                 Tag("RBOComponent", "D", 2, ""))),
              E_FAIL);

    EXPECT_EQ(faults.rows.size(), 2U);
    EXPECT_THAT(Written(),
                HasSubstr("OxmDicFromXML:CompleteRBORoot-*** ERROR *** Could not get EH object from "
                          "Mgr->Search, hrc=-2147467259.\n"));
}

TEST_F(OxmDicFromXMLCompleteRBOTest, AUuidOfAnotherKindIsToldAgainWhenTheReadingGoesOn) {
    FaultCollector faults;

    EXPECT_EQ(LoadBody(ClassTag("K", 2) + "<RBOClass" + Id("T", 1) + "/><RBOMapping" + Id("M", 3) +
                       " ApplyToRBOClassRef=\"" + U(1) + "\">" +
                       Tag("RBORoot", "R", 4, "",
                           Tag("RBOComponent", "C", 5, "", Tag("RBOPathExpression", "X", 2, Target(1))) +
                               Tag("RBOComponent", "D", 2, "")) +
                       Tag("RBORoot", "S", 2, "") + "</RBOMapping>"),
              E_FAIL);

    EXPECT_EQ(faults.rows.size(), 3U);
    EXPECT_EQ(LinesOf("OxmDicFromXML:CompleteRBOComponent"),
              "OxmDicFromXML:CompleteRBOComponent-*** ERROR *** Could not get RBOPathExpression object from "
              "EH->QueryInterface, hrc=-2147467262.\n");
    EXPECT_THAT(LinesOf("OxmDicFromXML:CompleteRBORoot"),
                HasSubstr("Could not get RBOComponent object from EH->QueryInterface, hrc=-2147467262.\n"));
    EXPECT_THAT(Written(), HasSubstr("OxmDicFromXML:OxmDicFromXML-*** ERROR *** Could not get RBORoot object "
                                     "from EH->QueryInterface, hrc=-2147467262.\n"));
}

TEST_F(OxmDicFromXMLCompleteRBOTest, ATakenUuidOfTheSameKindIsToldOnce) {
    FaultCollector faults;

    EXPECT_EQ(LoadInside(Tag("RBORoot", "R", 4, "",
                             Tag("RBOComponent", "C", 5, "") + Tag("RBOComponent", "D", 5, ""))),
              E_FAIL);

    EXPECT_EQ(faults.rows.size(), 1U);
    EXPECT_EQ(LinesOf("OxmDicFromXML:CompleteRBORoot"), "");
}

TEST_F(OxmDicFromXMLCompleteRBOTest, TellsStartAndExit) {
    TraceFromNow(1);

    ASSERT_EQ(LoadInside(Tag("RBORoot", "R", 4, "", Tag("RBOComponent", "C", 5, ""))), S_OK);

    EXPECT_EQ(LinesOf("OxmDicFromXML:CompleteRBO"),
              "OxmDicFromXML:CompleteRBORoot- === start ===.\n"
              "OxmDicFromXML:CompleteRBOComponent- === start ===.\n"
              "OxmDicFromXML:CompleteRBOComponent- === exit === RC=OK.\n"
              "OxmDicFromXML:CompleteRBORoot- === exit === RC=OK.\n");
}

}  // namespace
