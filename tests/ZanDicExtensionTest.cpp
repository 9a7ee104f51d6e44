#include "ZanDicExtension.h"

#include "KindsFixture.h"

namespace {

class ZanDicExtensionTest : public KindsFixture {
protected:
    Held<OXMIDicPackage> items = Package("Items");
    Held<OXMIDicExtension> extra = Extension(*items, "Extra");
    Held<OXMIDicClass> part = Class(*items, "Part");
};

TEST_F(ZanDicExtensionTest, IsAClassOfItsOwnKind) {
    const ZanDicExtension extension("Extra", TestUuid(1));

    EXPECT_EQ(extension.Type(), OXMDicTYPE_Extension);
    EXPECT_EQ(extension.get_type(), ZanDicObj::_type_Class);
    EXPECT_STREQ(extension.IsA(), "ZanDicExtension");
    EXPECT_EQ(extension.IsAKindOf("ZanDicClass"), 1);
}

TEST_F(ZanDicExtensionTest, IsMadeByItsPackageAndRegistered) {
    EXPECT_TRUE(IsRegistered(*extra));
    EXPECT_TRUE(QueryFor<OXMIDicClass>(*extra));
    EXPECT_TRUE(QueryFor<OXMIDicInterface>(*extra));
    EXPECT_EQ(Listed(*items, &OXMIDicPackage::GetClasses), "Extra Part ");
}

TEST_F(ZanDicExtensionTest, TheFactoryWithoutUuidWarnsAndDrawsOne) {
    Held<OXMIDicExtension> made;
    ClearWritten();

    EXPECT_EQ(items->CreateExtension(Named("More"), made.Out()), S_OK);

    EXPECT_TRUE(IsRegistered(*made));
    EXPECT_EQ(
        Written(),
        "ZanDicPackage::CreateExtension - *** WARNING *** This method is now obsolete. Uuid will be assigned "
        "dynamically.\n");
}

TEST_F(ZanDicExtensionTest, ANameIsTakenByAnyKind) {
    const ZELDbBinary uuid = NextUuid();
    OXMIDicExtension* made = nullptr;
    ClearWritten();

    EXPECT_EQ(items->CreateExtension(Named("Part"), &uuid, &made), E_FAIL);

    EXPECT_EQ(made, nullptr);
    EXPECT_EQ(Written(), "");
}

TEST_F(ZanDicExtensionTest, AddsAClassOnce) {
    EXPECT_EQ(extra->AddScope(part.Get()), S_OK);
    EXPECT_EQ(extra->AddScope(part.Get()), S_FALSE);

    EXPECT_EQ(Listed(*extra, &OXMIDicExtension::GetScopes), "Part ");
}

TEST_F(ZanDicExtensionTest, KeepsTwoClassesOfOneName) {
    const auto people = Package("People");
    const auto other = Class(*people, "Part");

    EXPECT_EQ(extra->AddScope(part.Get()), S_OK);
    EXPECT_EQ(extra->AddScope(other.Get()), S_OK);
    EXPECT_EQ(Listed(*extra, &OXMIDicExtension::GetScopes), "Part Part ");

    EXPECT_EQ(extra->RemoveScope(other.Get()), S_OK);
    HeldList scopes;
    EXPECT_EQ(extra->GetScopes(&scopes), S_OK);
    ASSERT_EQ(scopes.Size(), 1);
    EXPECT_TRUE(SameObject(*scopes[1], *part));
}

TEST_F(ZanDicExtensionTest, RefusesNull) {
    EXPECT_EQ(extra->AddScope(nullptr), E_FAIL);
    EXPECT_EQ(extra->RemoveScope(nullptr), E_FAIL);
    EXPECT_EQ(extra->GetScopes(nullptr), E_FAIL);
}

TEST_F(ZanDicExtensionTest, RemoveScopeWithoutAListIsNoFailure) {
    EXPECT_EQ(extra->RemoveScope(part.Get()), S_OK);

    EXPECT_EQ(extra->AddScope(part.Get()), S_OK);
    EXPECT_EQ(extra->RemoveScope(part.Get()), S_OK);
    EXPECT_EQ(extra->RemoveScope(part.Get()), E_FAIL) << "there is a list now";
}

TEST_F(ZanDicExtensionTest, GivesItsOwnScopesFirstThenThoseOfExtensionsAbove) {
    const auto base = Extension(*items, "Base");
    const auto top = Class(*items, "Top");
    const auto document = Class(*items, "Document");
    EXPECT_EQ(base->AddScope(part.Get()), S_OK);
    EXPECT_EQ(extra->AddScope(document.Get()), S_OK);
    EXPECT_EQ(extra->SetSuperClass(base.Get()), S_OK);
    EXPECT_EQ(base->SetSuperClass(top.Get()), S_OK);

    EXPECT_EQ(Listed(*extra, &OXMIDicExtension::GetScopes), "Document Part ");
}

TEST_F(ZanDicExtensionTest, AClassNeverDerivesFromAnExtension) {
    EXPECT_EQ(part->SetSuperClass(extra.Get()), E_FAIL);
    EXPECT_EQ(extra->SetSuperClass(part.Get()), S_OK);
}

TEST_F(ZanDicExtensionTest, AScopeThatIsGoneIsAbsentAndCountedAsLost) {
    const auto document = Class(*items, "Document");
    EXPECT_EQ(extra->AddScope(part.Get()), S_OK);
    EXPECT_EQ(extra->AddScope(document.Get()), S_OK);

    EXPECT_EQ(items->RemoveElement(Named("Part")), S_OK);

    EXPECT_EQ(Listed(*extra, &OXMIDicExtension::GetScopes), "Document ");
    EXPECT_EQ(LostLinks(*extra), 1);
    EXPECT_EQ(extra->AddScope(part.Get()), E_FAIL) << "what is gone cannot be linked";
    EXPECT_EQ(extra->RemoveScope(part.Get()), E_FAIL);
}

TEST_F(ZanDicExtensionTest, OnceItIsGoneItHasNoScopesAndTakesNone) {
    EXPECT_EQ(extra->AddScope(part.Get()), S_OK);
    EXPECT_EQ(items->RemoveElement(Named("Extra")), S_OK);

    EXPECT_EQ(Listed(*extra, &OXMIDicExtension::GetScopes), "");
    EXPECT_EQ(extra->AddScope(part.Get()), E_FAIL);
    EXPECT_EQ(LostLinks(*extra), 0);
}

}  // namespace
