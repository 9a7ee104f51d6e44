// First pass over interfaces, methods and parameters.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "OXMIDicInterface.h"
#include "OXMIDicMethod.h"
#include "OXMIDicParameter.h"
#include "OXMIDicPrimitive.h"
#include "ReaderFixture.h"
#include "ZANDicValueWords.h"

using ::testing::HasSubstr;

namespace {

class OxmDicFromXMLFillInterfaceTest : public ReaderFixture {
protected:
    /// Loads P with an interface I (1) that holds \p members.
    HRESULT LoadInterface(std::string_view members, std::string_view attributes = "") {
        return LoadBody("<Interface" + Id("I", 1) + " " + std::string(attributes) + ">" +
                        std::string(members) + "</Interface>");
    }

    /// Loads P with a parameter p (3) of the method M (2).
    HRESULT LoadParameter(std::string_view attributes) {
        return LoadInterface("<Method" + Id("M", 2) + "><Parameter" + Id("p", 3) + " " +
                             std::string(attributes) + "/></Method>");
    }

    int KindOf(unsigned number) {
        OXMDicKIND kind = OXMDicKIND_Return;
        Find<OXMIDicParameter>(number)->GetKind(&kind);
        return kind;
    }

    /// The name of what types a parameter; empty when nothing does.
    std::string TypeOf(unsigned number) {
        Held<OXMIDicElement> type;
        return Find<OXMIDicParameter>(number)->GetType(type.Out()) == S_OK ? NameOf(*type) : "";
    }
};

TEST_F(OxmDicFromXMLFillInterfaceTest, MethodsAndParametersKeepTheirOrderAndTexts) {
    ASSERT_EQ(LoadInterface("<Method" + Id("second", 3) + " Alias=\"S\"><Parameter" + Id("b", 5) +
                                " Alias=\"B\" Default=\"7\"/><Parameter" + Id("a", 4) + "/></Method><Method" +
                                Id("first", 2) + "/>",
                            "Alias=\"Count it\""),
              S_OK);

    HeldList methods;
    Find<OXMIDicInterface>(1)->GetMethods(&methods);
    HeldList parameters;
    Find<OXMIDicMethod>(3)->GetParameters(&parameters);
    ZELUnicodeString alias;
    Find<OXMIDicInterface>(1)->GetAlias(&alias);
    EXPECT_EQ(alias.View(), "Count it");
    ASSERT_EQ(methods.Size(), 2);
    EXPECT_EQ(NameOf(static_cast<OXMIDicMethod&>(*methods[1])), "second");
    ASSERT_EQ(parameters.Size(), 2);
    EXPECT_EQ(NameOf(static_cast<OXMIDicParameter&>(*parameters[1])), "b");
    Find<OXMIDicParameter>(5)->GetDefault(&alias);
    EXPECT_EQ(alias.View(), "7");
    Find<OXMIDicParameter>(5)->GetAlias(&alias);
    EXPECT_EQ(alias.View(), "B");
    EXPECT_EQ(Written(), "");
}

TEST_F(OxmDicFromXMLFillInterfaceTest, AParameterStartsWithoutKindAndType) {
    ASSERT_EQ(LoadParameter(""), S_OK);

    EXPECT_EQ(KindOf(3), 0);
    EXPECT_EQ(TypeOf(3), "");
}

TEST_F(OxmDicFromXMLFillInterfaceTest, EachKindWordGivesItsCode) {
    for (const auto& row : ZANDicFormat::kKindWords) {
        ASSERT_EQ(LoadParameter(std::string("Kind=\"").append(row.word).append("\"")), S_OK);

        EXPECT_EQ(KindOf(3), row.code);
        const ZELString name("P");
        ASSERT_EQ(Manager().RemovePackage(&name), S_OK);
    }
}

TEST_F(OxmDicFromXMLFillInterfaceTest, EachTypeWordNamesAPrimitive) {
    for (const auto& row : ZANDicFormat::kSimpleTypeWords) {
        ASSERT_EQ(LoadParameter(std::string("Type=\"").append(row.word).append("\"")), S_OK);

        EXPECT_EQ(TypeOf(3), row.word);
        const ZELString name("P");
        ASSERT_EQ(Manager().RemovePackage(&name), S_OK);
    }
}

TEST_F(OxmDicFromXMLFillInterfaceTest, UnknownAttributesAreReportedAndKept) {
    TraceFromNow(1);

    ASSERT_EQ(LoadInterface("<Method" + Id("M", 2) + " Two=\"2\"><Parameter" + Id("p", 3) +
                                " Three=\"3\" TypeRef=\"" + U(1) + "\" ClassRef=\"" + U(1) + "\"/></Method>",
                            "One=\"1\""),
              S_OK);

    EXPECT_EQ(OtherAttributes(*Find<OXMIDicInterface>(1)), "One=1;");
    EXPECT_EQ(OtherAttributes(*Find<OXMIDicMethod>(2)), "Two=2;");
    EXPECT_EQ(OtherAttributes(*Find<OXMIDicParameter>(3)), "Three=3;");
    EXPECT_THAT(Written(),
                HasSubstr("OxmDicFromXML:FillInterface -- *** WARNING *** Unknown attribute:One=1.\n"));
    EXPECT_THAT(Written(),
                HasSubstr("OxmDicFromXML:FillMethod -- *** WARNING *** Unknown attribute:Two=2.\n"));
    EXPECT_THAT(Written(),
                HasSubstr("OxmDicFromXML:FillParameter -- *** WARNING *** Unknown attribute:Three=3.\n"));
}

TEST_F(OxmDicFromXMLFillInterfaceTest, OtherTagsAreToldAndPassedOver) {
    ASSERT_EQ(LoadInterface("<Gadget Name=\"G\"/><Method" + Id("M", 2) + "><Gadget/></Method>"), S_OK);

    EXPECT_EQ(Written(),
              "OxmDicFromXML:FillInterface --*** ERROR *** Unkown tag:Gadget[G]; skipping to next tag....\n"
              "OxmDicFromXML:FillMethod --*** ERROR *** Unkown tag:Gadget[]; skipping to next tag....\n");
}

TEST_F(OxmDicFromXMLFillInterfaceTest, TellsStartAndExitUnderItsLabels) {
    TraceFromNow(1);

    ASSERT_EQ(LoadParameter(""), S_OK);

    EXPECT_EQ(LinesOf("OxmDicFromXML:Fill"),
              "OxmDicFromXML:FillInterface -- === start ===.\n"
              "OxmDicFromXML:FillMethod -- === start ===.\n"
              "OxmDicFromXML:FillParameter -- === start ===.\n"
              "OxmDicFromXML:FillParameter -- === exit === RC=OK.\n"
              "OxmDicFromXML:FillMethod -- === exit === RC=OK.\n"
              "OxmDicFromXML:FillInterface -- === exit === RC=OK.\n");
}

TEST_F(OxmDicFromXMLFillInterfaceTest, TellsEachAttributeAtLevelFive) {
    TraceFromNow(5);

    ASSERT_EQ(LoadInterface(""), S_OK);

    EXPECT_THAT(Written(), HasSubstr("OxmDicFromXML:FillInterface -- processing attribute [1]:Name=I.\n"));
}

TEST_F(OxmDicFromXMLFillInterfaceTest, GoingOnTellsBothMissingAttributes) {
    FaultCollector faults;

    EXPECT_EQ(LoadInterface("<Method/>"), E_FAIL);

    EXPECT_EQ(faults.Summary(),
              "missing-attribute 2:65 I:: @Name\n"
              "missing-attribute 2:65 I:: @Uuid\n");
}

}  // namespace
