#include "XmlWalk.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "FakeClass.h"
#include "FakeElements.h"
#include "OXMIDicPrimitive.h"
#include "SaveFixture.h"
#include "ZELDurableFile.h"

namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

/// UUID texts end with the number of the element.
std::string Uuid(const char* number) {
    return std::string("\"00000000-0000-0000-00000000000000") + number + "\"";
}

class XmlWalkTest : public SaveFixture {
protected:
    XmlWalkTest() { TraceFromNow(0); }

    /// \returns the text of the element and everything in it; the result is in result.
    std::string TextOf(OXMIDicElementH* element) {
        ZELDurableFile file;
        EXPECT_EQ(file.Open(directory.Path("document")), S_OK);
        ZELVBTXMLWriter document(file);
        result = XmlWalk(document).Write(element);
        EXPECT_EQ(file.Commit(), S_OK);
        return FileText(directory.Path("document"));
    }

    Held<OXMIDicPrimitive> Primitive(OXMDicPRIMITIVEType kind) {
        Held<OXMIDicPrimitive> primitive;
        Manager().GetPrimitive(kind, primitive.Out());
        return primitive;
    }

    HRESULT result = S_OK;
};

TEST_F(XmlWalkTest, WritesNothingForNoElement) {
    EXPECT_EQ(TextOf(nullptr), "");

    EXPECT_EQ(result, -1);
    EXPECT_EQ(Written(), "OxmDicToXML:DisplayElement- *** ERROR *** input argument is NULL.\n");
}

TEST_F(XmlWalkTest, WarnsOfKindsThatHaveNoTag) {
    for (const int type : {0, -1, 1, 12, 14, 16, 17, 18, 19, 21, 27}) {
        const Held<FakePlain> element(new FakePlain(static_cast<OXMDicTYPE>(type), "E", 1));
        ClearWritten();

        EXPECT_EQ(TextOf(element.Get()), "");

        EXPECT_EQ(result, S_OK);
        EXPECT_EQ(Written(), "OxmDicToXML:DisplayElement- *** WARNING *** unknown element: type=" +
                                 std::to_string(type) + ", name=E.\n");
    }
}

TEST_F(XmlWalkTest, WritesInterfacesMethodsAndParameters) {
    const Held<FakeInterface> super(new FakeInterface("Super", 0x10));
    const Held<FakeInterface> element(new FakeInterface("I", 0x11));
    element->alias = "Al";
    element->superInterface = super.Get();
    element->free = {{"Free", "f"}};
    FakeMethod& method = element->Own(new FakeMethod("M", 0x12));
    method.alias = "A";
    FakeParameter& plain = method.Own(new FakeParameter("Plain", 0x13));
    plain.kind = 7;
    FakeParameter& full = method.Own(new FakeParameter("Full", 0x14));
    const Held<OXMIDicPrimitive> text = Primitive(OXMDicPRIMITIVEType_String);
    full.alias = "Al";
    full.type = text.Get();
    full.kind = OXMDicKIND_In;
    full.defaultValue = "D";
    full.free = {{"ClassRef", "x"}, {"Free", "f"}};
    FakeParameter& typed = method.Own(new FakeParameter("Typed", 0x15));
    typed.type = super.Get();
    typed.kind = OXMDicKIND_Return;
    FakeParameter& url = method.Own(new FakeParameter("Url", 0x16));
    const Held<OXMIDicPrimitive> urlType = Primitive(OXMDicPRIMITIVEType_URL);
    url.type = urlType.Get();
    url.kind = OXMDicKIND_IO;
    FakeMethod& bare = element->Own(new FakeMethod("Bare", 0x17));
    bare.alias = "Al";

    EXPECT_EQ(TextOf(element.Get()),
              "<Interface Name=\"I\" Alias=\"Al\" Uuid=" + Uuid("11") + " SuperRef=" + Uuid("10") +
                  " Free=\"f\">\n"
                  "  <Method Name=\"M\" Uuid=" +
                  Uuid("12") +
                  ">\n"
                  "    <Parameter Name=\"Plain\" Uuid=" +
                  Uuid("13") +
                  "/>\n"
                  "    <Parameter Name=\"Full\" Uuid=" +
                  Uuid("14") +
                  " Alias=\"Al\" Type=\"String\" Kind=\"In\" Default=\"D\" Free=\"f\"/>\n"
                  "    <Parameter Name=\"Typed\" Uuid=" +
                  Uuid("15") + " ClassRef=" + Uuid("10") + " TypeRef=" + Uuid("10") +
                  " Kind=\"Return\"/>\n"
                  "    <Parameter Name=\"Url\" Uuid=" +
                  Uuid("16") +
                  " Kind=\"IO\"/>\n"
                  "  </Method>\n"
                  "  <Method Name=\"Bare\" Alias=\"Al\" Uuid=" +
                  Uuid("17") +
                  "/>\n"
                  "</Interface>\n");
}

TEST_F(XmlWalkTest, AFailingSuperInterfaceIsToldAndTheRestIsWritten) {
    const Held<FakeInterface> element(new FakeInterface("I", 0x11));
    element->superResult = E_FAIL;
    element->Own(new FakeMethod("M", 0x12));

    EXPECT_THAT(TextOf(element.Get()), HasSubstr("<Method Name=\"M\""));

    EXPECT_EQ(result, E_FAIL);
    EXPECT_EQ(WrittenErrors(), "ERROR GetSuperInterface failed\n");
}

TEST_F(XmlWalkTest, WritesRBOObjectsWithWhatTheyAreLinkedToElseWhatTheyStore) {
    const Held<FakeRBOClass> rboClass(new FakeRBOClass("R", 0x20));
    rboClass->alias = "Al";
    rboClass->free = {{"Table", "T"}, {"Alias", "x"}};
    const Held<FakeRBOMapping> mapping(new FakeRBOMapping("Map", 0x21));
    mapping->alias = "Al";
    mapping->rboClass = rboClass.Get();
    mapping->storedRef = TestUuid(0x99);
    mapping->storedName = "stored";
    mapping->free = {{"Free", "f"}};
    FakeRBORoot& root = mapping->Own(new FakeRBORoot("Root", 0x22));
    root.storedRef = TestUuid(0x99);
    root.storedName = "stored";
    FakeRBOComponent& component = root.Own(new FakeRBOComponent("C", 0x23));
    component.alias = "Al";
    component.storedName = "base";
    component.rule = "a < b";
    component.free = {{"Free", "f"}};
    component.path = new FakeRBOPath("Path", 0x24);
    component.path->pathType = "OXMTPRelation";
    component.path->subType = "sub";
    component.path->target = rboClass.Get();
    FakeRBOComponent& inner = component.Own(new FakeRBOComponent("Inner", 0x25));
    inner.path = new FakeRBOPath("Bare", 0x26);
    inner.path->storedRef = TestUuid(0x98);
    inner.path->storedName = "t";

    EXPECT_EQ(TextOf(rboClass.Get()),
              "<RBOClass Name=\"R\" Uuid=" + Uuid("20") + " Alias=\"Al\" Table=\"T\"/>\n");
    EXPECT_EQ(TextOf(mapping.Get()),
              "<RBOMapping Name=\"Map\" Uuid=" + Uuid("21") +
                  " Alias=\"Al\" ApplyToRBOClass=\"R\" ApplyToRBOClassRef=" + Uuid("20") +
                  " Free=\"f\">\n"
                  "  <RBORoot Name=\"Root\" Uuid=" +
                  Uuid("22") + " BaseClass=\"stored\" BaseClassRef=" + Uuid("99") +
                  ">\n"
                  "    <RBOComponent Name=\"C\" Uuid=" +
                  Uuid("23") +
                  " Alias=\"Al\" BaseClass=\"base\" ValidityRule=\"a &lt; b\" Free=\"f\">\n"
                  "      <RBOComponent Name=\"Inner\" Uuid=" +
                  Uuid("25") +
                  ">\n"
                  "        <RBOPathExpression Name=\"Bare\" Uuid=" +
                  Uuid("26") + " TargetName=\"t\" TargetRef=" + Uuid("98") +
                  "/>\n"
                  "      </RBOComponent>\n"
                  "      <RBOPathExpression Name=\"Path\" Uuid=" +
                  Uuid("24") +
                  " Type=\"OXMTPRelation\" SubType=\"sub\" TargetName=\"R\" TargetRef=" + Uuid("20") +
                  "/>\n"
                  "    </RBOComponent>\n"
                  "  </RBORoot>\n"
                  "</RBOMapping>\n");
}

TEST_F(XmlWalkTest, APathExpressionWithoutItsInterfaceIsOfAnUnknownType) {
    const Held<FakePlain> path(new FakePlain(OXMDicTYPE_RBOPathExpression, "P", 0x30));
    path->free = {{"Free", "f"}};

    EXPECT_EQ(TextOf(path.Get()),
              "<RBOPathExpression Name=\"P\" Uuid=" + Uuid("30") + " Type=\"Unknown\" Free=\"f\"/>\n");
}

TEST_F(XmlWalkTest, AnElementWithoutItsInterfaceFailsAloneAmongItsSiblings) {
    const Held<FakeRBOMapping> mapping(new FakeRBOMapping("Map", 0x21));
    mapping->Own(new FakePlain(OXMDicTYPE_RBORoot, "Odd", 0x22));
    mapping->Own(new FakePlain(OXMDicTYPE_Command, "Command", 0x23));
    mapping->Own(new FakeRBORoot("Root", 0x24));

    EXPECT_EQ(TextOf(mapping.Get()), "<RBOMapping Name=\"Map\" Uuid=" + Uuid("21") +
                                         ">\n"
                                         "  <RBORoot/>\n"
                                         "  <RBORoot Name=\"Root\" Uuid=" +
                                         Uuid("24") +
                                         "/>\n"
                                         "</RBOMapping>\n");

    EXPECT_EQ(result, S_OK);
}

TEST_F(XmlWalkTest, TheInterfacesOfAClassStandBehindItsFreeAttributes) {
    const Held<FakeInterface> first(new FakeInterface("I", 0x31));
    const Held<FakeInterface> second(new FakeInterface("J", 0x32));
    const Held<FakeClass> element(new FakeClass(OXMDicTYPE_Class, "C", 0x30));
    element->interfaces = {first.Get(), nullptr, second.Get()};
    element->free = {{"Free", "f"}, {"InterfaceRefs", "x"}};
    element->Own(new FakePlain(OXMDicTYPE_Enum, "E", 0x33));

    EXPECT_EQ(TextOf(element.Get()), "<Class Name=\"C\" Uuid=" + Uuid("30") +
                                         " Persistent=\"Yes\" Abstract=\"No\" LateType=\"\" Free=\"f\" "
                                         "InterfaceRefs=\"00000000-0000-0000-0000000000000031 "
                                         "00000000-0000-0000-0000000000000032\">\n"
                                         "  <Enum/>\n"
                                         "</Class>\n");
}

TEST_F(XmlWalkTest, AnExtensionIsToldByItsInterfaceAndAnInstanceByItsFlag) {
    const Held<FakeClass> element(new FakeClass(OXMDicTYPE_Extension, "C", 0x30));

    EXPECT_THAT(TextOf(element.Get()), StartsWith("<Class "));
    element->instance = 1;
    EXPECT_THAT(TextOf(element.Get()), StartsWith("<Instance "));
    element->instance = 2;
    EXPECT_THAT(TextOf(element.Get()), StartsWith("<Class "));
}

TEST_F(XmlWalkTest, ANullAmongTheChildrenIsToldAndPassedOver) {
    const Held<FakeClass> element(new FakeClass(OXMDicTYPE_Class, "C", 0x30));
    element->uniques = {nullptr};

    EXPECT_THAT(TextOf(element.Get()), EndsWith("LateType=\"\"/>\n"));

    EXPECT_EQ(result, S_OK);
    EXPECT_EQ(Written(), "OxmDicToXML:DisplayElement- *** ERROR *** input argument is NULL.\n");
}

TEST_F(XmlWalkTest, NestsAsDeepAsTheModelDoes) {
    constexpr int kLevels = 100'000;
    const Held<FakeRBORoot> root(new FakeRBORoot("Root", 1));
    std::vector<FakeRBOComponent*> components;
    for (int level = 0; level < kLevels; ++level) {
        components.push_back(new FakeRBOComponent("C", 2));
        if (level > 0) components[static_cast<std::size_t>(level) - 1]->links = components.back();
    }
    root->Own(components.front());

    const std::string text = TextOf(root.Get());

    EXPECT_EQ(result, S_OK);
    EXPECT_TRUE(text.ends_with("  </RBOComponent>\n</RBORoot>\n"));
    for (FakeRBOComponent* const component : components) component->links = nullptr;
    for (std::size_t level = 1; level < components.size(); ++level) components[level]->Release();
}

}  // namespace
