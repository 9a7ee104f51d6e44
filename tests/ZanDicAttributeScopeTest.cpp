#include "KindsFixture.h"
#include "ZanDicAttribute.h"
#include "ZanDicClass.h"
#include "ZanDicScope.h"

namespace {

class ZanDicAttributeScopeTest : public KindsFixture {
protected:
    /// What IsClassInScope answers: the flag, and its result as the second character.
    std::string InScope(OXMIDicClass& asked) {
        ZELDbBinary uuid;
        asked.GetUuid(&uuid);
        unsigned char inScope = 9;
        const HRESULT rc = maker->IsClassInScope(&uuid, &inScope);
        return std::to_string(inScope) + std::to_string(rc);
    }

    Held<OXMIDicPackage> items = Package("Items");
    Held<OXMIDicClass> part = Class(*items, "Part");
    Held<OXMIDicClass> screw = SubClass(*items, "Screw", *part);
    Held<OXMIDicClass> person = Class(*items, "Person");
    Held<OXMIDicRelationship> maker = Relationship(*person, "Maker");
};

TEST_F(ZanDicAttributeScopeTest, WithoutScopeEveryClassIsInScope) {
    HeldList scopes;

    EXPECT_EQ(InScope(*person), "10");
    EXPECT_EQ(maker->GetScopes(&scopes), S_FALSE);
    EXPECT_EQ(scopes.Size(), 0);
    EXPECT_EQ(WrittenErrors(), "");
}

TEST_F(ZanDicAttributeScopeTest, AddsAClassOnce) {
    EXPECT_EQ(maker->AddScope(part.Get()), S_OK);
    EXPECT_EQ(maker->AddScope(part.Get()), S_FALSE);

    EXPECT_EQ(Listed(*maker, &OXMIDicRelationship::GetScopes), "Part ");
}

TEST_F(ZanDicAttributeScopeTest, KeepsTwoClassesOfOneName) {
    const auto people = Package("People");
    const auto other = Class(*people, "Part");

    EXPECT_EQ(maker->AddScope(part.Get()), S_OK);
    EXPECT_EQ(maker->AddScope(other.Get()), S_OK);
    EXPECT_EQ(maker->RemoveScope(part.Get()), S_OK);

    HeldList scopes;
    EXPECT_EQ(maker->GetScopes(&scopes), S_OK);
    ASSERT_EQ(scopes.Size(), 1);
    EXPECT_TRUE(SameObject(*scopes[1], *other));
}

TEST_F(ZanDicAttributeScopeTest, RefusesNull) {
    unsigned char inScope = 9;
    const ZELDbBinary uuid = NextUuid();

    EXPECT_EQ(maker->AddScope(nullptr), E_FAIL);
    EXPECT_EQ(maker->RemoveScope(nullptr), E_FAIL);
    EXPECT_EQ(maker->GetScopes(nullptr), E_FAIL);
    EXPECT_EQ(maker->IsClassInScope(nullptr, &inScope), E_FAIL);
    EXPECT_EQ(maker->IsClassInScope(&uuid, nullptr), E_FAIL);
    EXPECT_EQ(inScope, 9);
}

TEST_F(ZanDicAttributeScopeTest, RefusesWhatIsNoClassWithALineThatNamesBoth) {
    const auto colour = Enum(*items, "Colour");
    ClearWritten();

    EXPECT_EQ(maker->AddScope(colour.Get()), E_FAIL);

    ZELDbBinary own;
    ZELDbBinary referenced;
    maker->GetUuid(&own);
    colour->GetUuid(&referenced);
    EXPECT_EQ(Written(),
              "ZanDicAttribute::AddScope-- incorrect metadata . an element of the scope in not a class "
              "element uuid:[" +
                  own.HexText() + "] referenced uuid:[" + referenced.HexText() + "] class name Person.\n");
}

TEST_F(ZanDicAttributeScopeTest, AnAttributeWithoutClassIsNamedUndefined) {
    const auto colour = Enum(*items, "Colour");
    ZanDicAttribute attribute("Loose", TestUuid(1));
    ClearWritten();

    EXPECT_EQ(attribute.AddScope(colour.Get()), E_FAIL);

    EXPECT_NE(Written().find("] class name UNDEFINED.\n"), std::string::npos);
}

TEST_F(ZanDicAttributeScopeTest, RemoveScopeWithoutScope) {
    EXPECT_EQ(maker->RemoveScope(part.Get()), S_OK);

    EXPECT_EQ(maker->AddScope(part.Get()), S_OK);
    EXPECT_EQ(maker->RemoveScope(person.Get()), E_FAIL) << "there is a scope now";
}

TEST_F(ZanDicAttributeScopeTest, ClassesBelowANamedOneAreInScope) {
    EXPECT_EQ(maker->AddScope(part.Get()), S_OK);

    EXPECT_EQ(InScope(*part), "10");
    EXPECT_EQ(InScope(*screw), "10");
    EXPECT_EQ(InScope(*person), "01");
}

TEST_F(ZanDicAttributeScopeTest, TheExpansionWritesTwoLinesForEachSubClassOnce) {
    const auto wood = SubClass(*items, "WoodScrew", *screw);
    const auto nut = SubClass(*items, "Nut", *part);
    EXPECT_EQ(maker->AddScope(part.Get()), S_OK);
    TraceFromNow(-1);

    EXPECT_EQ(InScope(*part), "10");
    EXPECT_EQ(InScope(*wood), "10");

    EXPECT_EQ(WrittenErrors(),
              "nameScrew\nUuid du sous-type:00000000-0000-0000-00000000000003EB\n"
              "nameNut\nUuid du sous-type:00000000-0000-0000-00000000000003EF\n"
              "nameWoodScrew\nUuid du sous-type:00000000-0000-0000-00000000000003EE\n");
}

TEST_F(ZanDicAttributeScopeTest, AClassBelowAnotherOfTheScopeIsNoFailure) {
    const auto wood = SubClass(*items, "WoodScrew", *screw);
    EXPECT_EQ(maker->AddScope(screw.Get()), S_OK);
    EXPECT_EQ(maker->AddScope(part.Get()), S_OK);

    EXPECT_EQ(InScope(*wood), "10");
    EXPECT_EQ(InScope(*part), "10");
    EXPECT_EQ(InScope(*person), "01");
}

TEST_F(ZanDicAttributeScopeTest, ANewSubClassIsSeenOnlyAfterTheScopeHasChanged) {
    EXPECT_EQ(maker->AddScope(part.Get()), S_OK);
    EXPECT_EQ(InScope(*part), "10");
    const auto nut = SubClass(*items, "Nut", *part);

    EXPECT_EQ(InScope(*nut), "01");
    EXPECT_EQ(maker->AddScope(part.Get()), S_FALSE);
    EXPECT_EQ(InScope(*nut), "01") << "nothing was added";
    EXPECT_EQ(maker->AddScope(person.Get()), S_OK);
    EXPECT_EQ(InScope(*nut), "10");
}

TEST_F(ZanDicAttributeScopeTest, RemovingAClassExpandsAnewToo) {
    EXPECT_EQ(maker->AddScope(part.Get()), S_OK);
    EXPECT_EQ(maker->AddScope(person.Get()), S_OK);
    EXPECT_EQ(InScope(*screw), "10");

    EXPECT_EQ(maker->RemoveScope(part.Get()), S_OK);

    EXPECT_EQ(InScope(*screw), "01");
    EXPECT_EQ(InScope(*person), "10");
}

TEST_F(ZanDicAttributeScopeTest, AScopeEmptiedByHandMeansEveryClass) {
    EXPECT_EQ(maker->AddScope(part.Get()), S_OK);
    EXPECT_EQ(maker->RemoveScope(part.Get()), S_OK);

    EXPECT_EQ(InScope(*person), "10");
    EXPECT_EQ(Listed(*maker, &OXMIDicRelationship::GetScopes), "") << "there is a scope, without classes";
}

TEST_F(ZanDicAttributeScopeTest, AScopeWhoseClassesAreAllGoneHoldsNone) {
    EXPECT_EQ(maker->AddScope(part.Get()), S_OK);
    EXPECT_EQ(InScope(*screw), "10");

    EXPECT_EQ(items->RemoveElement(Named("Part")), S_OK);

    EXPECT_EQ(InScope(*screw), "01");
    EXPECT_EQ(InScope(*person), "01");
    EXPECT_EQ(Listed(*maker, &OXMIDicRelationship::GetScopes), "");
    EXPECT_EQ(LostLinks(*maker), 1);
}

TEST_F(ZanDicAttributeScopeTest, RefusesAClassThatIsGoneAndEverythingOnceItIsGone) {
    EXPECT_EQ(items->RemoveElement(Named("Part")), S_OK);
    EXPECT_EQ(maker->AddScope(part.Get()), E_FAIL);

    EXPECT_EQ(maker->AddScope(screw.Get()), S_OK);
    EXPECT_EQ(items->RemoveElement(Named("Person")), S_OK);
    EXPECT_EQ(maker->AddScope(screw.Get()), E_FAIL);
    HeldList scopes;
    EXPECT_EQ(maker->GetScopes(&scopes), S_FALSE);
}

TEST_F(ZanDicAttributeScopeTest, ComputeScopesNeedsAScope) {
    ZanDicAttribute attribute("Loose", TestUuid(1));
    ZanDicClass root("Root", TestUuid(2));

    EXPECT_EQ(attribute.compute_Scopes(&root), E_FAIL);
    EXPECT_EQ(attribute.AddScope(part.Get()), S_OK);
    EXPECT_EQ(attribute.compute_Scopes(nullptr), E_FAIL);
    EXPECT_EQ(attribute.compute_Scopes(&root), S_OK);

    unsigned char inScope = 9;
    const ZELDbBinary uuid = TestUuid(2);
    EXPECT_EQ(attribute.IsClassInScope(&uuid, &inScope), S_OK);
    EXPECT_EQ(inScope, 1);
}

TEST_F(ZanDicAttributeScopeTest, AFlushedClassThatMovedBelowItsFormerSubClassIsWalkedOnce) {
    EXPECT_EQ(part->FlushAll(), S_OK);
    EXPECT_EQ(part->SetSuperClass(screw.Get()), S_OK);
    EXPECT_EQ(maker->AddScope(part.Get()), S_OK);

    EXPECT_EQ(InScope(*part), "10");
    EXPECT_EQ(InScope(*screw), "01");
}

TEST_F(ZanDicAttributeScopeTest, TheScopeIsAComponentOfItsOwn) {
    const ZanDicScope scope;

    EXPECT_STREQ(scope.IsA(), "ZanDicScope");
    EXPECT_EQ(scope.IsAKindOf("ZanDicObj"), 0);
}

}  // namespace
