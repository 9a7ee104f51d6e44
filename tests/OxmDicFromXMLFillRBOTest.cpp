// First pass over RBO classes and mappings.
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

class OxmDicFromXMLFillRBOTest : public ReaderFixture {
protected:
    /// Loads P with an RBO class T (1) and a mapping M (2) of it that holds \p inside.
    HRESULT LoadMapping(std::string_view inside, std::string_view attributes = "") {
        return LoadBody("<RBOClass" + Id("T", 1) + "/>\n<RBOMapping" + Id("M", 2) + " ApplyToRBOClassRef=\"" +
                        U(1) + "\" " + std::string(attributes) + ">" + std::string(inside) + "</RBOMapping>");
    }

    static std::string Root(std::string_view inside, std::string_view attributes = "") {
        return "<RBORoot" + Id("R", 3) + " " + std::string(attributes) + ">" + std::string(inside) +
               "</RBORoot>";
    }
    static std::string Component(unsigned number, std::string_view inside, std::string_view attributes = "") {
        return "<RBOComponent" + Id("C" + std::to_string(number), number) + " " + std::string(attributes) +
               ">" + std::string(inside) + "</RBOComponent>";
    }

    template <class Object>
    static std::string Text(Object& object, HRESULT (Object::*getter)(ZELUnicodeString*)) {
        ZELUnicodeString text;
        (object.*getter)(&text);
        return std::string(text.View());
    }

    template <class Owner>
    std::string Children(unsigned number) {
        HeldList list;
        Find<Owner>(number)->GetElements(&list);
        std::string names;
        for (IUnknown* const child : list) names += NameOf(static_cast<OXMIDicElement&>(*child)) + " ";
        return names;
    }
};

TEST_F(OxmDicFromXMLFillRBOTest, KeepsTextsAndReferences) {
    ASSERT_EQ(
        LoadMapping(Root(Component(4,
                                   "<RBOPathExpression" + Id("P", 5) +
                                       " Type=\"OXMTPRelation\" SubType=\"S\" TargetName=\"N\" TargetRef=\"" +
                                       U(6) + "\"/>",
                                   "BaseClass=\"B\" BaseClassRef=\"" + U(6) + "\" ValidityRule=\"x &gt; 1\""),
                         "BaseClass=\"A\" BaseClassRef=\"" + U(6) + "\"") +
                        "</RBOMapping>" + ClassTag("K", 6) + "<RBOMapping" + Id("N", 7) +
                        " ApplyToRBOClassRef=\"" + U(1) + "\">",
                    "ApplyToRBOClass=\"Table\" Alias=\"Mapped\""),
        S_OK)
        << Written();

    const auto mapping = Find<OXMIDicRBOMapping>(2);
    const auto component = Find<OXMIDicRBOComponent>(4);
    const auto path = Find<OXMIDicRBOPathExpression>(5);
    ZELDbBinary uuid;
    EXPECT_EQ(Text(*mapping, &OXMIDicRBOMapping::GetApplyToRBOClassName), "Table");
    EXPECT_EQ(Text<OXMIDicElement>(*mapping, &OXMIDicElement::GetAlias), "Mapped");
    mapping->GetApplyToRBOClassRef(&uuid);
    EXPECT_EQ(uuid, TestUuid(1));
    EXPECT_EQ(Text(*Find<OXMIDicRBORoot>(3), &OXMIDicRBORoot::GetBaseClassName), "A");
    EXPECT_EQ(Text(*component, &OXMIDicRBOComponent::GetBaseClassName), "B");
    EXPECT_EQ(Text(*component, &OXMIDicRBOComponent::GetValidityRule), "x > 1");
    component->GetBaseClassRef(&uuid);
    EXPECT_EQ(uuid, TestUuid(6));
    EXPECT_EQ(Text(*path, &OXMIDicRBOPathExpression::GetPathExprType), "OXMTPRelation");
    EXPECT_EQ(Text(*path, &OXMIDicRBOPathExpression::GetPathExprSubType), "S");
    EXPECT_EQ(Text(*path, &OXMIDicRBOPathExpression::GetTargetName), "N");
}

TEST_F(OxmDicFromXMLFillRBOTest, EmptyTextsOfAPathAreIgnored) {
    ASSERT_EQ(LoadMapping(Root(Component(4, "<RBOPathExpression" + Id("P", 5) +
                                                " Type=\"\" SubType=\"\" TargetName=\"\" TargetRef=\"" +
                                                U(1) + "\"/>"))),
              S_OK);

    ZELUnicodeString text;
    EXPECT_EQ(Find<OXMIDicRBOPathExpression>(5)->GetPathExprType(&text), E_FAIL);
}

TEST_F(OxmDicFromXMLFillRBOTest, ComponentsNestAndKeepTheirOrder) {
    ASSERT_EQ(LoadMapping(Root(Component(4, Component(5, Component(6, Component(7, Component(8, ""))))) +
                               Component(9, "")) +
                          "<RBORoot" + Id("S", 10) + "/>"),
              S_OK);

    EXPECT_EQ(Children<OXMIDicRBOMapping>(2), "R S ");
    EXPECT_EQ(Children<OXMIDicRBORoot>(3), "C4 C9 ");
    EXPECT_EQ(Children<OXMIDicRBOComponent>(4), "C5 ");
    EXPECT_EQ(Children<OXMIDicRBOComponent>(7), "C8 ");
}

TEST_F(OxmDicFromXMLFillRBOTest, SimpleChildrenAreNotImplemented) {
    ASSERT_EQ(LoadBody("<RBOClass" + Id("T", 1) + "><Simple/></RBOClass>"), S_OK);
    EXPECT_EQ(Written(), "OxmDicFromXML:FillRBOClass - -*** WARNING *** Not implemented yet....\n");
    const ZELString name("P");
    Manager().RemovePackage(&name);
    ClearWritten();

    ASSERT_EQ(LoadMapping("<Simple/>" + Root("<Simple/>" + Component(4, "<Simple/>"))), S_OK);

    EXPECT_EQ(Written(),
              "OxmDicFromXML:FillRBOMapping - -*** WARNING *** Not implemented yet....\n"
              "OxmDicFromXML:FillRBORoot - -*** WARNING *** Not implemented yet....\n"
              "OxmDicFromXML:FillRBOComponent --*** WARNING *** Not implemented yet....\n");
}

TEST_F(OxmDicFromXMLFillRBOTest, OtherTagsAreToldAndPassedOver) {
    ASSERT_EQ(LoadMapping("<Gadget Name=\"G\"/>"), S_OK);

    EXPECT_EQ(
        Written(),
        "OxmDicFromXML:FillRBOMapping - -*** ERROR *** Unkown tag:Gadget[G]; skipping to next tag....\n");
}

TEST_F(OxmDicFromXMLFillRBOTest, OfAnAttributeGivenTwiceTheSecondWinsWithAWarning) {
    ASSERT_EQ(LoadMapping(Root("", "BaseClass=\"A\" BaseClass=\"B\""), "Alias=\"A\" Alias=\"B\""), S_OK);

    EXPECT_EQ(Text(*Find<OXMIDicRBORoot>(3), &OXMIDicRBORoot::GetBaseClassName), "B");
    EXPECT_EQ(
        Written(),
        "OxmDicFromXML:FillRBOMapping - -*** WARNING *** Alias was previously set; overriding with the new "
        "value..\n"
        "OxmDicFromXML:FillRBORoot - -*** WARNING *** BaseClass was previously set; overriding with the new "
        "value..\n");
}

TEST_F(OxmDicFromXMLFillRBOTest, OfAReferenceGivenTwiceTheSecondWinsInWordsOfItsOwn) {
    FaultCollector faults;

    ASSERT_EQ(LoadMapping(Root("", "BaseClassRef=\"" + U(0xFF) + "\" BaseClassRef=\"" + U(9) + "\"") +
                          "</RBOMapping>" + ClassTag("K", 9) + "<RBOMapping" + Id("N", 7) +
                          " ApplyToRBOClassRef=\"" + U(1) + "\">"),
              S_OK);

    Held<OXMIDicClass> base;
    ASSERT_EQ(Find<OXMIDicRBORoot>(3)->GetBaseClass(base.Out()), S_OK);
    EXPECT_EQ(NameOf(*base), "K");
    EXPECT_EQ(Written(), "OxmDicFromXML:FillRBORoot - - BaseClassRef is referrenced more than once..\n");
    ASSERT_EQ(faults.rows.size(), 1U);
    EXPECT_EQ(faults.rows[0].code, ZanDicDiagnosticCode::RepeatedAttribute);
    EXPECT_EQ(faults.rows[0].severity, ZanDicSeverity::Warning);
}

TEST_F(OxmDicFromXMLFillRBOTest, UnknownAttributesAreReportedAndKept) {
    TraceFromNow(1);

    ASSERT_EQ(LoadMapping(Root("", "Key=\"1\"")), S_OK);

    EXPECT_EQ(OtherAttributes(*Find<OXMIDicRBORoot>(3)), "Key=1;");
    EXPECT_THAT(Written(),
                HasSubstr("OxmDicFromXML:FillRBORoot - -*** WARNING *** Unknown attribute:Key=1.\n"));
}

TEST_F(OxmDicFromXMLFillRBOTest, TellsStartAndExitUnderItsLabels) {
    TraceFromNow(1);

    ASSERT_EQ(
        LoadMapping(Root(Component(4, "<RBOPathExpression" + Id("P", 5) + " TargetRef=\"" + U(1) + "\"/>"))),
        S_OK);

    EXPECT_EQ(LinesOf("OxmDicFromXML:FillRBO"),
              "OxmDicFromXML:FillRBOClass - - === start ===.\n"
              "OxmDicFromXML:FillRBOClass - - === exit === RC=OK.\n"
              "OxmDicFromXML:FillRBOMapping - - === start ===.\n"
              "OxmDicFromXML:FillRBORoot - - === start ===.\n"
              "OxmDicFromXML:FillRBOComponent -- === start ===.\n"
              "OxmDicFromXML:FillRBOPathExpression -- === start ===.\n"
              "OxmDicFromXML:FillRBOPathExpression -- === exit === RC=OK.\n"
              "OxmDicFromXML:FillRBOComponent -- === exit === RC=OK.\n"
              "OxmDicFromXML:FillRBORoot - - === exit === RC=OK.\n"
              "OxmDicFromXML:FillRBOMapping - - === exit === RC=OK.\n");
}

TEST_F(OxmDicFromXMLFillRBOTest, AComponentThatFailsStopsAllAboveIt) {
    TraceFromNow(1);

    EXPECT_EQ(LoadMapping(Root(Component(4, Component(5, "<RBOComponent/>") + Component(6, "")))), E_FAIL);

    EXPECT_EQ(
        LinesOf("OxmDicFromXML:FillRBOComponent"),
        "OxmDicFromXML:FillRBOComponent -- === start ===.\n"
        "OxmDicFromXML:FillRBOComponent -- === start ===.\n"
        "OxmDicFromXML:FillRBOComponent -- *** ERROR *** Could not find attribute Name for RBOComponent.\n"
        "OxmDicFromXML:FillRBOComponent -- === exit === RC=KO.\n"
        "OxmDicFromXML:FillRBOComponent -- === exit === RC=KO.\n");
}

TEST_F(OxmDicFromXMLFillRBOTest, A100000LevelsOfComponentsLoadAndUnload) {
    constexpr unsigned kDepth = 100'000;
    std::string body = "<RBOClass" + Id("T", 1) + "/>\n<RBOMapping" + Id("M", 2) + " ApplyToRBOClassRef=\"" +
                       U(1) + "\"><RBORoot" + Id("R", 3) + ">";
    for (unsigned depth = 0; depth < kDepth; ++depth) {
        body += "<RBOComponent" + Id("C", 100 + depth) + " BaseClassRef=\"" + U(4) + "\">";
    }
    for (unsigned depth = 0; depth < kDepth; ++depth) body += "</RBOComponent>";
    body += "</RBORoot></RBOMapping>" + ClassTag("K", 4);

    ASSERT_EQ(LoadBody(body), S_OK);

    EXPECT_TRUE(Find<OXMIDicRBOComponent>(100 + kDepth - 1));
    const ZELString name("P");
    EXPECT_EQ(Manager().RemovePackage(&name), S_OK);
}

TEST_F(OxmDicFromXMLFillRBOTest, AFaultUnder100000LevelsFailsTheLoad) {
    constexpr unsigned kDepth = 100'000;
    std::string inside;
    for (unsigned depth = 0; depth < kDepth; ++depth) inside += "<RBOComponent" + Id("C", 100 + depth) + ">";
    inside += "<RBOPathExpression" + Id("P", 50) + " TargetRef=\"" + U(0xFFFFFF) + "\"/>";
    for (unsigned depth = 0; depth < kDepth; ++depth) inside += "</RBOComponent>";

    EXPECT_EQ(LoadMapping(Root(inside)), E_FAIL);

    EXPECT_FALSE(IsLoaded("P"));
}

// Content kinds.

TEST_F(OxmDicFromXMLFillRBOTest, DocumentsOfEachContentKindMakePackages) {
    for (const char* const word : {"rbodef", "rbomap", "metaplm"}) {
        Directory().MakeFile(std::string("Q.") + word,
                             "<Package" + Id("Q", 9) + "><RBOClass" + Id("T", 1) + "/></Package>");

        ASSERT_EQ(Load(std::string("Q.") + word), S_OK);

        EXPECT_TRUE(Find<OXMIDicRBOClass>(1));
        const ZELString name("Q");
        ASSERT_EQ(Manager().RemovePackage(&name), S_OK);
    }
}

TEST_F(OxmDicFromXMLFillRBOTest, ASecondContentKindOfALoadedPackageReadsNothing) {
    MakePackage("Q", ClassTag("C", 2));
    Directory().MakeFile("Q.rbodef", "<Package" + Id("Q", 9) + "><RBOClass" + Id("T", 1) + "/></Package>");
    ASSERT_EQ(Load("Q"), S_OK);

    EXPECT_EQ(Load("Q.rbodef"), S_OK);

    EXPECT_FALSE(Find<OXMIDicRBOClass>(1));
    EXPECT_TRUE(Find<OXMIDicClass>(2));
    EXPECT_EQ(Written(), "");
}

TEST_F(OxmDicFromXMLFillRBOTest, AMappingMayUseThePackageOfItsClasses) {
    Directory().MakeFile("Tables.rbodef",
                         "<Package" + Id("Tables", 8) + "><RBOClass" + Id("T", 1) + "/></Package>");
    Directory().MakeFile("Maps.rbomap", "<Package" + Id("Maps", 9) +
                                            " UseNames=\"Tables.rbodef\"><RBOMapping" + Id("M", 2) +
                                            " ApplyToRBOClassRef=\"" + U(1) + "\"/></Package>");

    ASSERT_EQ(Load("Maps.rbomap"), S_OK) << Written();

    Held<OXMIDicRBOClass> applied;
    ASSERT_EQ(Find<OXMIDicRBOMapping>(2)->GetApplyToRBOClass(applied.Out()), S_OK);
    EXPECT_EQ(NameOf(*applied), "T");
}

}  // namespace
