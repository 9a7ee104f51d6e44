#include "ZanDicRBOComponent.h"

#include "KindsFixture.h"
#include "ZanDicRBORoot.h"

namespace {

class ZanDicRBOComponentTest : public KindsFixture {
protected:
    Held<OXMIDicPackage> tables = Package("Tables");
    Held<OXMIDicClass> part = Class(*tables, "Part");
    Held<OXMIDicRBOMapping> mapping = Mapping(*tables, "Map");
    Held<OXMIDicRBORoot> root = Root(*mapping, "Line");
    Held<OXMIDicRBOComponent> cell = Component(*root, "Cell");
};

TEST_F(ZanDicRBOComponentTest, HasItsTypeAndName) {
    const ZanDicRBORoot rootObject("Line", TestUuid(1));
    const ZanDicRBOComponent object("Cell", TestUuid(2));

    EXPECT_EQ(rootObject.Type(), OXMDicTYPE_RBORoot);
    EXPECT_STREQ(rootObject.IsA(), "ZanDicRBORoot");
    EXPECT_EQ(object.Type(), OXMDicTYPE_RBOComponent);
    EXPECT_STREQ(object.IsA(), "ZanDicRBOComponent");
    EXPECT_EQ(object.IsAKindOf("ZanDicElement"), 1);
}

TEST_F(ZanDicRBOComponentTest, ReferenceUuidAndNameOfTheBaseClassAreStoredApart) {
    const ZELDbBinary stored = TestUuid(77);
    const ZELUnicodeString storedName("Item");
    ZELDbBinary uuid;
    ZELUnicodeString name("before");
    Held<OXMIDicClass> linked;

    EXPECT_EQ(cell->GetBaseClass(linked.Out()), E_FAIL);
    EXPECT_EQ(cell->SetBaseClassRef(&stored), S_OK);
    EXPECT_EQ(cell->GetBaseClassName(&name), S_OK);
    EXPECT_EQ(name, ZELUnicodeString(""));
    EXPECT_EQ(cell->SetBaseClassName(&storedName), S_OK);
    EXPECT_EQ(cell->GetBaseClass(linked.Out()), E_FAIL);
    EXPECT_EQ(cell->SetBaseClass(part.Get()), S_OK);

    EXPECT_EQ(cell->GetBaseClass(linked.Out()), S_OK);
    EXPECT_EQ(cell->GetBaseClassRef(&uuid), S_OK);
    EXPECT_EQ(cell->GetBaseClassName(&name), S_OK);
    EXPECT_EQ(linked.Get(), part.Get());
    EXPECT_EQ(uuid, stored);
    EXPECT_EQ(name, storedName);
}

TEST_F(ZanDicRBOComponentTest, ARootHasABaseClassToo) {
    Held<OXMIDicClass> linked;

    EXPECT_EQ(root->SetBaseClass(nullptr), E_FAIL);
    EXPECT_EQ(root->GetBaseClass(linked.Out()), E_FAIL);
    EXPECT_EQ(root->SetBaseClass(part.Get()), S_OK);
    EXPECT_EQ(root->GetBaseClass(linked.Out()), S_OK);

    EXPECT_EQ(linked.Get(), part.Get());
}

TEST_F(ZanDicRBOComponentTest, RefusesNull) {
    EXPECT_EQ(cell->SetBaseClass(nullptr), E_FAIL);
    EXPECT_EQ(cell->GetBaseClass(nullptr), E_FAIL);
    EXPECT_EQ(cell->SetBaseClassRef(nullptr), E_FAIL);
    EXPECT_EQ(cell->GetBaseClassRef(nullptr), E_FAIL);
    EXPECT_EQ(cell->SetBaseClassName(nullptr), E_FAIL);
    EXPECT_EQ(cell->GetBaseClassName(nullptr), E_FAIL);
    EXPECT_EQ(cell->GetValidityRule(nullptr), E_FAIL);
    EXPECT_EQ(cell->CreateRBOComponent(nullptr, nullptr, nullptr), E_FAIL);
    EXPECT_EQ(cell->CreateRBOPathExpression(nullptr, nullptr, nullptr), E_FAIL);
    EXPECT_EQ(root->GetBaseClass(nullptr), E_FAIL);
    EXPECT_EQ(root->SetBaseClassRef(nullptr), E_FAIL);
    EXPECT_EQ(root->GetBaseClassRef(nullptr), E_FAIL);
    EXPECT_EQ(root->SetBaseClassName(nullptr), E_FAIL);
    EXPECT_EQ(root->GetBaseClassName(nullptr), E_FAIL);
    EXPECT_EQ(root->CreateRBOComponent(nullptr, nullptr, nullptr), E_FAIL);
}

TEST_F(ZanDicRBOComponentTest, ABaseClassThatIsGoneReadsAsNeverSet) {
    OXMIDicClass* linked = nullptr;
    EXPECT_EQ(cell->SetBaseClass(part.Get()), S_OK);
    EXPECT_EQ(root->SetBaseClass(part.Get()), S_OK);

    EXPECT_EQ(tables->RemoveElement(Named("Part")), S_OK);

    EXPECT_EQ(cell->GetBaseClass(&linked), E_FAIL);
    EXPECT_EQ(root->GetBaseClass(&linked), E_FAIL);
    EXPECT_EQ(LostLinks(*cell), 1);
    EXPECT_EQ(LostLinks(*root), 1);
    EXPECT_EQ(cell->SetBaseClass(part.Get()), E_FAIL);
}

TEST_F(ZanDicRBOComponentTest, AComponentNameIsTakenUnderOneOwnerOnly) {
    const ZELDbBinary uuid = NextUuid();
    OXMIDicRBOComponent* second = nullptr;

    EXPECT_EQ(root->CreateRBOComponent(Named("Cell"), &uuid, &second), E_FAIL);
    EXPECT_EQ(second, nullptr);

    const auto inner = Component(*cell, "Cell");
    EXPECT_EQ(cell->CreateRBOComponent(Named("Cell"), &uuid, &second), E_FAIL);
    EXPECT_EQ(second, nullptr);
    EXPECT_EQ(Listed(*cell, &OXMIDicRBOComponent::GetElements), "Cell ");
}

TEST_F(ZanDicRBOComponentTest, AComponentWhoseUuidIsTakenIsNotKept) {
    ZELDbBinary uuid;
    part->GetUuid(&uuid);
    OXMIDicRBOComponent* made = nullptr;
    OXMIDicRBOPathExpression* path = nullptr;
    const int before = ZanDicObj::live_Objects();

    EXPECT_EQ(cell->CreateRBOComponent(Named("Inner"), &uuid, &made), E_FAIL);
    EXPECT_EQ(cell->CreateRBOPathExpression(Named("Way"), &uuid, &path), E_FAIL);

    EXPECT_EQ(made, nullptr);
    EXPECT_EQ(path, nullptr);
    EXPECT_EQ(ZanDicObj::live_Objects(), before);
    EXPECT_EQ(cell->GetRBOPathExpression(&path), E_FAIL);
    EXPECT_EQ(Listed(*cell, &OXMIDicRBOComponent::GetElements), "");
}

TEST_F(ZanDicRBOComponentTest, HasOnePathExpressionAtMost) {
    const auto way = Path(*cell, "Way");
    const ZELDbBinary uuid = NextUuid();
    OXMIDicRBOPathExpression* second = nullptr;
    Held<OXMIDicRBOPathExpression> found;

    EXPECT_EQ(cell->CreateRBOPathExpression(Named("Other"), &uuid, &second), E_FAIL);
    EXPECT_EQ(cell->GetRBOPathExpression(found.Out()), S_OK);

    EXPECT_EQ(second, nullptr);
    EXPECT_EQ(found.Get(), way.Get());
    EXPECT_EQ(cell->GetRBOPathExpression(nullptr), E_FAIL);
}

TEST_F(ZanDicRBOComponentTest, AnEmptyValidityRuleResetsTheOutput) {
    ZELUnicodeString rule("before");
    const ZELUnicodeString set("a > 1");
    const ZELUnicodeString empty("");

    EXPECT_EQ(cell->GetValidityRule(&rule), S_FALSE);
    EXPECT_EQ(rule, ZELUnicodeString(""));

    EXPECT_EQ(cell->SetValidityRule(&set), S_OK);
    EXPECT_EQ(cell->GetValidityRule(&rule), S_OK);
    EXPECT_EQ(rule, set);

    EXPECT_EQ(cell->SetValidityRule(&empty), S_OK) << "an empty rule is accepted";
    EXPECT_EQ(cell->GetValidityRule(&rule), S_FALSE);
    EXPECT_EQ(rule, empty);
    EXPECT_EQ(cell->SetValidityRule(nullptr), E_FAIL);
}

TEST_F(ZanDicRBOComponentTest, GetElementsAcceptsANullList) {
    Component(*cell, "Inner");
    ClearWritten();

    EXPECT_EQ(cell->GetElements(nullptr), S_OK);

    EXPECT_EQ(Written(), "");
}

TEST_F(ZanDicRBOComponentTest, GetElementsOfARootRefusesANullListWithALine) {
    ClearWritten();

    EXPECT_EQ(root->GetElements(nullptr), E_FAIL);

    EXPECT_EQ(Written(), "ZanDicRBORoot::GetElements -- *** ERROR *** NULL input argument.\n");
    EXPECT_EQ(Listed(*root, &OXMIDicRBORoot::GetElements), "Cell ");
}

TEST_F(ZanDicRBOComponentTest, DumpBearsTheClassName) {
    ClearWritten();

    QueryFor<OXMIDicApp>(*cell)->Dump("me");
    QueryFor<OXMIDicApp>(*root)->Dump("me");

    EXPECT_EQ(Written().find("ZanDicRBOComponent::Dump -  called by me ------\n"), 0U);
    EXPECT_NE(Written().find("\nZanDicRBORoot::Dump -  called by me ------\n"), std::string::npos);
}

TEST_F(ZanDicRBOComponentTest, ADeepNestGoesWithItsMapping) {
    constexpr int kDepth = 100000;
    auto deepest = Component(*cell, "Deep");
    const auto first = QueryFor<OXMIDicElementH>(*deepest);
    for (int depth = 1; depth < kDepth; ++depth) deepest = Component(*deepest, "Deep");
    const auto way = Path(*deepest, "Way");
    deepest.Reset();

    EXPECT_EQ(tables->RemoveElement(Named("Map")), S_OK);

    EXPECT_FALSE(IsRegistered(*first));
    EXPECT_FALSE(IsRegistered(*way));
    ClearWritten();
}

TEST_F(ZanDicRBOComponentTest, ADeepNestGoesWithTheManagerAsWell) {
    constexpr int kDepth = 100000;
    const int before = ZanDicObj::live_Objects();
    auto deepest = Component(*cell, "Deep");
    for (int depth = 1; depth < kDepth; ++depth) deepest = Component(*deepest, "Deep");
    deepest.Reset();
    EXPECT_EQ(ZanDicObj::live_Objects(), before + kDepth);

    EXPECT_EQ(Manager().End(), S_OK);

    EXPECT_LT(ZanDicObj::live_Objects(), before);
}

TEST_F(ZanDicRBOComponentTest, ADeepNestGoesWithItsDestroyedRoot) {
    constexpr int kDepth = 100000;
    const int before = ZanDicObj::live_Objects();
    {
        const Held<ZanDicRBORoot> object(new ZanDicRBORoot("Line", TestUuid(1)));
        const ZELDbBinary uuid = NextUuid();
        Held<OXMIDicRBOComponent> deepest;
        EXPECT_EQ(object->CreateRBOComponent(Named("Deep"), &uuid, deepest.Out()), S_OK);
        for (int depth = 1; depth < kDepth; ++depth) deepest = Component(*deepest, "Deep");
    }

    EXPECT_EQ(ZanDicObj::live_Objects(), before);
}

}  // namespace
