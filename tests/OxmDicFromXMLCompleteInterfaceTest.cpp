// Second pass over interfaces.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "OXMIDicInterface.h"
#include "OXMIDicMethod.h"
#include "OXMIDicParameter.h"
#include "ReaderFixture.h"

using ::testing::HasSubstr;

namespace {

class OxmDicFromXMLCompleteInterfaceTest : public ReaderFixture {
protected:
    static std::string Interface(std::string_view name, unsigned number, std::string_view attributes = "",
                                 std::string_view members = "") {
        return "<Interface" + Id(name, number) + " " + std::string(attributes) + ">" + std::string(members) +
               "</Interface>\n";
    }
    /// A method M (20) with a parameter p (21).
    static std::string Method(std::string_view attributes) {
        return "<Method" + Id("M", 20) + "><Parameter" + Id("p", 21) + " " + std::string(attributes) +
               "/></Method>";
    }

    std::string TypeOf(unsigned number) {
        Held<OXMIDicElement> type;
        return Find<OXMIDicParameter>(number)->GetType(type.Out()) == S_OK ? NameOf(*type) : "";
    }
};

TEST_F(OxmDicFromXMLCompleteInterfaceTest, TheSuperInterfaceMayStandBehind) {
    ASSERT_EQ(LoadBody(Interface("I", 1, "SuperRef=\"" + U(2) + "\"") +
                       Interface("J", 2, "", "<Method" + Id("M", 3) + "/>")),
              S_OK);

    Held<OXMIDicInterface> super;
    ASSERT_EQ(Find<OXMIDicInterface>(1)->GetSuperInterface(super.Out()), S_OK);
    EXPECT_EQ(NameOf(*super), "J");
    const ZELString name("M");
    Held<OXMIDicMethod> inherited;
    EXPECT_EQ(Find<OXMIDicInterface>(1)->GetMethod(&name, inherited.Out()), S_OK);
}

TEST_F(OxmDicFromXMLCompleteInterfaceTest, TypeRefNamesAnElementOfAnyKind) {
    ASSERT_EQ(
        LoadBody(Interface("I", 1, "", Method("TypeRef=\"" + U(5) + "\"")) + "<Enum" + Id("E", 5) + "/>"),
        S_OK);

    EXPECT_EQ(TypeOf(21), "E");
}

TEST_F(OxmDicFromXMLCompleteInterfaceTest, TypeRefOverridesTypeAndClassRef) {
    ASSERT_EQ(
        LoadBody(Interface("I", 1, "",
                           Method("ClassRef=\"" + U(1) + "\" TypeRef=\"" + U(5) + "\" Type=\"String\"")) +
                 ClassTag("C", 5)),
        S_OK);

    EXPECT_EQ(TypeOf(21), "C");
}

TEST_F(OxmDicFromXMLCompleteInterfaceTest, ClassRefOverridesType) {
    ASSERT_EQ(LoadBody(Interface("I", 1, "", Method("Type=\"String\" ClassRef=\"" + U(1) + "\""))), S_OK);

    EXPECT_EQ(TypeOf(21), "I");
    EXPECT_EQ(Written(), "");
}

TEST_F(OxmDicFromXMLCompleteInterfaceTest, ATypeOfAnotherDomainIsRefusedByTheMethodsDomain) {
    MakePackage("Other", ClassTag("C", 5), "Domain=\"DUVRA\"");

    EXPECT_EQ(LoadBody(Interface("I", 1, "", Method("TypeRef=\"" + U(5) + "\"")), "UseNames=\"Other\""),
              E_FAIL);

    EXPECT_EQ(
        DocumentLines(),
        "OxmDicFromXML:CheckSameDomain- *** ERROR *** Element M in Package P for Domain VALKOR cannot be "
        "related to Element C in Package Other for Domain DUVRA because Domains are different..\n"
        "OxmDicFromXML:CompleteInterface-*** ERROR *** Could not process element [p], attribute "
        "[TypeRef]: Cross Domain reference is not authorized.\n"
        "OxmDicFromXML:OxmDicFromXML-*** ERROR *** OxmDicFromXML:CompleteInterface failed.\n");
}

TEST_F(OxmDicFromXMLCompleteInterfaceTest, ASuperInterfaceOfAnotherDomainIsRefused) {
    MakePackage("Other", Interface("J", 2), "Domain=\"DUVRA\"");

    EXPECT_EQ(LoadBody(Interface("I", 1, "SuperRef=\"" + U(2) + "\""), "UseNames=\"Other\""), E_FAIL);

    EXPECT_THAT(Written(), HasSubstr("attribute [SuperRef]: Cross Domain reference is not authorized.\n"));
}

TEST_F(OxmDicFromXMLCompleteInterfaceTest, OtherTagsAreToldInEveryPass) {
    ASSERT_EQ(LoadBody(Interface("I", 1, "", "<Gadget" + Id("G", 2) + "/><Gadget/>")), S_OK);

    EXPECT_THAT(Written(), HasSubstr("OxmDicFromXML:CompleteInterface-*** ERROR *** Unkown tag:Gadget[G]; "
                                     "skipping to next tag....\n"));
}

TEST_F(OxmDicFromXMLCompleteInterfaceTest, AMethodThatIsNotThereIsPassedOver) {
    FaultCollector faults;

    EXPECT_EQ(LoadBody(Interface("I", 1, "",
                                 "<Method" + Id("M", 3) + "/><Method" + Id("M", 4) + "><Parameter" +
                                     Id("p", 5) + " TypeRef=\"" + U(0xFF) + "\"/></Method>")),
              E_FAIL);

    EXPECT_EQ(faults.Summary(), "duplicate-name 2:134 I::M @Name\n");
    EXPECT_THAT(Written(),
                HasSubstr("OxmDicFromXML:CompleteInterface-*** ERROR *** Could not get Method object "
                          "from Interface->GetMethod(M), hrc=-2147467259.\n"));
}

TEST_F(OxmDicFromXMLCompleteInterfaceTest, AChainOf100000InterfacesLoadsAndUnloads) {
    std::string body;
    for (unsigned number = 1; number < 100'000; ++number) {
        body +=
            "<Interface" + Id("I" + std::to_string(number), number) + " SuperRef=\"" + U(number + 1) + "\"/>";
    }
    ASSERT_EQ(LoadBody(body + Interface("Last", 100'000, "", "<Method" + Id("M", 0xE0000) + "/>")), S_OK);

    const ZELString method("M");
    Held<OXMIDicMethod> inherited;
    EXPECT_EQ(Find<OXMIDicInterface>(1)->GetMethod(&method, inherited.Out()), S_OK);
    const ZELString name("P");
    EXPECT_EQ(Manager().RemovePackage(&name), S_OK);
}

}  // namespace
