#include "ZanDicRBOMapping.h"

#include "KindsFixture.h"

namespace {

class ZanDicRBOMappingTest : public KindsFixture {
protected:
    Held<OXMIDicPackage> tables = Package("Tables");
    Held<OXMIDicRBOClass> row = RBOClass(*tables, "Row");
    Held<OXMIDicRBOMapping> mapping = Mapping(*tables, "Map");
};

TEST_F(ZanDicRBOMappingTest, IsAMapping) {
    const ZanDicRBOMapping object("Map", TestUuid(1));

    EXPECT_EQ(object.Type(), OXMDicTYPE_RBOMapping);
    EXPECT_EQ(object.get_type(), ZanDicObj::_type_Element);
    EXPECT_STREQ(object.IsA(), "ZanDicRBOMapping");
    EXPECT_TRUE(IsRegistered(*mapping));
}

TEST_F(ZanDicRBOMappingTest, ReferenceUuidAndNameAreStoredApart) {
    const ZELDbBinary stored = TestUuid(77);
    const ZELUnicodeString storedName("Line");
    ZELDbBinary uuid = TestUuid(1);
    ZELUnicodeString name("before");
    Held<OXMIDicRBOClass> linked;

    EXPECT_EQ(mapping->SetApplyToRBOClass(row.Get()), S_OK);
    EXPECT_EQ(mapping->GetApplyToRBOClassRef(&uuid), S_OK);
    EXPECT_EQ(mapping->GetApplyToRBOClassName(&name), S_OK);
    EXPECT_TRUE(uuid.IsEmpty());
    EXPECT_EQ(name, ZELUnicodeString(""));

    EXPECT_EQ(mapping->SetApplyToRBOClassRef(&stored), S_OK);
    EXPECT_EQ(mapping->SetApplyToRBOClassName(&storedName), S_OK);
    EXPECT_EQ(mapping->GetApplyToRBOClassRef(&uuid), S_OK);
    EXPECT_EQ(mapping->GetApplyToRBOClassName(&name), S_OK);
    EXPECT_EQ(uuid, stored);
    EXPECT_EQ(name, storedName);
    EXPECT_EQ(mapping->GetApplyToRBOClass(linked.Out()), S_OK);
    EXPECT_EQ(linked.Get(), row.Get());
}

TEST_F(ZanDicRBOMappingTest, GettersOfWhatIsUnsetFail) {
    OXMIDicRBOClass* linked = nullptr;

    EXPECT_EQ(mapping->GetApplyToRBOClass(&linked), E_FAIL);
    EXPECT_EQ(mapping->SetApplyToRBOClass(nullptr), E_FAIL);
    EXPECT_EQ(mapping->GetApplyToRBOClass(nullptr), E_FAIL);
    EXPECT_EQ(mapping->SetApplyToRBOClassRef(nullptr), E_FAIL);
    EXPECT_EQ(mapping->SetApplyToRBOClassName(nullptr), E_FAIL);
    EXPECT_EQ(mapping->GetApplyToRBOClassRef(nullptr), E_FAIL);
    EXPECT_EQ(mapping->GetApplyToRBOClassName(nullptr), E_FAIL);
    EXPECT_EQ(linked, nullptr);
}

TEST_F(ZanDicRBOMappingTest, ListsItsRootsInTheOrderOfCreation) {
    const auto first = Root(*mapping, "First");
    const auto second = Root(*mapping, "Second");
    ZELString package;

    EXPECT_EQ(Listed(*mapping, &OXMIDicRBOMapping::GetElements), "First Second ");
    EXPECT_EQ(first->GetPackageName(&package), S_OK);
    EXPECT_EQ(package, ZELString("Tables"));
    EXPECT_TRUE(IsRegistered(*second));
}

TEST_F(ZanDicRBOMappingTest, ARootNameIsTakenInThisMappingOnly) {
    const auto other = Mapping(*tables, "Other");
    const auto first = Root(*mapping, "Line");
    const ZELDbBinary uuid = NextUuid();
    OXMIDicRBORoot* second = nullptr;
    ClearWritten();

    EXPECT_EQ(mapping->CreateRBORoot(Named("Line"), &uuid, &second), E_FAIL);

    EXPECT_EQ(second, nullptr);
    EXPECT_EQ(Written(), "");
    EXPECT_TRUE(Root(*other, "Line"));
}

TEST_F(ZanDicRBOMappingTest, ARootWhoseUuidIsTakenIsNotKept) {
    const int before = ZanDicObj::live_Objects();
    ZELDbBinary uuid;
    row->GetUuid(&uuid);
    OXMIDicRBORoot* root = nullptr;

    EXPECT_EQ(mapping->CreateRBORoot(Named("Line"), &uuid, &root), E_FAIL);

    EXPECT_EQ(root, nullptr);
    EXPECT_EQ(ZanDicObj::live_Objects(), before);
    EXPECT_EQ(Listed(*mapping, &OXMIDicRBOMapping::GetElements), "");
    EXPECT_TRUE(IsRegistered(*row));
    EXPECT_TRUE(Root(*mapping, "Line")) << "the name is free";
}

TEST_F(ZanDicRBOMappingTest, CreateRefusesNull) {
    const ZELDbBinary uuid = NextUuid();
    OXMIDicRBORoot* root = nullptr;
    OXMIDicElementH* found = nullptr;

    EXPECT_EQ(mapping->CreateRBORoot(nullptr, &uuid, &root), E_FAIL);
    EXPECT_EQ(mapping->CreateRBORoot(Named("Line"), nullptr, &root), E_FAIL);
    EXPECT_EQ(mapping->CreateRBORoot(Named("Line"), &uuid, nullptr), E_FAIL);

    EXPECT_EQ(root, nullptr);
    EXPECT_EQ(Manager().Search(&uuid, &found), E_FAIL);
}

TEST_F(ZanDicRBOMappingTest, GetElementsRefusesANullListWithALine) {
    ClearWritten();

    EXPECT_EQ(mapping->GetElements(nullptr), E_FAIL);

    EXPECT_EQ(Written(), "ZanDicRBOMapping::GetElements -- *** ERROR *** NULL input argument.\n");
}

TEST_F(ZanDicRBOMappingTest, ThePackageFindsTheMappingByItsStoredReference) {
    const auto line = RBOClass(*tables, "Line");
    const auto other = Mapping(*tables, "Other");
    ZELDbBinary uuid;
    row->GetUuid(&uuid);
    EXPECT_EQ(mapping->SetApplyToRBOClass(line.Get()), S_OK);
    EXPECT_EQ(mapping->SetApplyToRBOClassRef(&uuid), S_OK);
    EXPECT_EQ(other->SetApplyToRBOClass(line.Get()), S_OK);
    Held<OXMIDicRBOMapping> found;

    EXPECT_EQ(tables->GetRBOMapping(row.Get(), found.Out()), S_OK);
    EXPECT_EQ(found.Get(), mapping.Get());

    EXPECT_EQ(tables->GetRBOMapping(line.Get(), found.Out()), S_OK);
    EXPECT_EQ(found.Get(), other.Get()) << "the link counts only where no reference is stored";
}

TEST_F(ZanDicRBOMappingTest, AMappingOfNothingIsFoundForNoClass) {
    OXMIDicRBOMapping* found = nullptr;
    ClearWritten();

    EXPECT_EQ(tables->GetRBOMapping(row.Get(), &found), E_FAIL);

    EXPECT_EQ(found, nullptr);
    EXPECT_EQ(Written(), "");
}

TEST_F(ZanDicRBOMappingTest, GetRBOMappingRefusesNullAndWhatIsGoneWithALine) {
    Held<OXMIDicRBOMapping> found;
    ClearWritten();
    EXPECT_EQ(tables->GetRBOMapping(nullptr, found.Out()), E_FAIL);
    EXPECT_EQ(Written(), "ZanDicPackage::GetRBOMapping - 997- *** ERROR *** Null input argument.\n");

    EXPECT_EQ(tables->RemoveElement(Named("Row")), S_OK);
    ClearWritten();
    EXPECT_EQ(tables->GetRBOMapping(row.Get(), found.Out()), E_FAIL);
    EXPECT_EQ(Written(),
              "ZanDicPackage::GetRBOMapping - 992- *** ERROR *** Unable to get ZanDicRBOClass from "
              "OXMIDicRBOClass.\n");
}

TEST_F(ZanDicRBOMappingTest, GetRBOClassFindsThatKindOnly) {
    Held<OXMIDicRBOClass> found;
    OXMIDicRBOClass* missing = nullptr;

    EXPECT_EQ(tables->GetRBOClass(Named("Row"), found.Out()), S_OK);
    EXPECT_EQ(tables->GetRBOClass(Named("Map"), &missing), E_FAIL);
    EXPECT_EQ(tables->GetRBOClass(Named("row"), &missing), E_FAIL);
    EXPECT_EQ(tables->GetRBOClass(nullptr, &missing), E_FAIL);

    EXPECT_EQ(found.Get(), row.Get());
    EXPECT_EQ(missing, nullptr);
}

TEST_F(ZanDicRBOMappingTest, TheFactoriesWithoutUuid) {
    Held<OXMIDicRBOClass> line;
    OXMIDicRBOMapping* made = nullptr;
    ClearWritten();

    EXPECT_EQ(tables->CreateRBOClass(Named("Line"), line.Out()), S_OK);
    EXPECT_EQ(
        Written(),
        "ZanDicPackage::CreateRBOClass - *** WARNING *** This method is now obsolete. Uuid will be assigned "
        "dynamically.\n");
    ClearWritten();
    EXPECT_EQ(tables->CreateRBOMapping(Named("More"), &made), E_FAIL);
    EXPECT_EQ(Written(), "");
    EXPECT_EQ(made, nullptr);
}

TEST_F(ZanDicRBOMappingTest, AnRBOClassThatIsGoneReadsAsNeverSet) {
    EXPECT_EQ(mapping->SetApplyToRBOClass(row.Get()), S_OK);
    OXMIDicRBOClass* linked = nullptr;

    EXPECT_EQ(tables->RemoveElement(Named("Row")), S_OK);

    EXPECT_EQ(mapping->GetApplyToRBOClass(&linked), E_FAIL);
    EXPECT_EQ(LostLinks(*mapping), 1);
    EXPECT_EQ(mapping->SetApplyToRBOClass(row.Get()), E_FAIL);
}

TEST_F(ZanDicRBOMappingTest, DumpWritesEachProperty) {
    const ZELUnicodeString name("Table");
    const ZELUnicodeString value("T_ROW");
    mapping->SetOtherAttribute(name, value);
    ClearWritten();

    QueryFor<OXMIDicApp>(*mapping)->Dump("me");

    EXPECT_EQ(Written().find("ZanDicRBOMapping::Dump -  called by me ------\n"
                             "ZanDicElement::Dump -  called by me ------\n"),
              0U);
    EXPECT_NE(Written().find("\nZanDicRBOMapping::Dump - Table=T_ROW\n"), std::string::npos);
}

TEST_F(ZanDicRBOMappingTest, TheDumpOfAnRBOClassBearsItsName) {
    ClearWritten();

    QueryFor<OXMIDicApp>(*row)->Dump("me");

    EXPECT_EQ(Written().find("ZanDicRBOClass::Dump -  called by me ------\n"), 0U);
}

TEST_F(ZanDicRBOMappingTest, FlushAllTracesDownToTheComponents) {
    const auto root = Root(*mapping, "Line");
    const auto component = Component(*root, "Cell");
    const auto path = Path(*component, "Way");
    TraceOnly("ZanDicRBOMapping::FlushAll\nZanDicRBORoot::FlushAll\nZanDicRBOComponent::FlushAll\n");

    EXPECT_EQ(mapping->FlushAll(), S_OK);

    EXPECT_EQ(Written(),
              "ZanDicRBOMapping::FlushAll- === start === .\n"
              "ZanDicRBOMapping::FlushAll- _Type=23 (RBOMapping), _Name=Map.\n"
              "ZanDicRBOMapping::FlushAll- processing _ROOTS....\n"
              "ZanDicRBOMapping::FlushAll- processing _ROOTS[1]: Line, Type: 24 (RBORoot).\n"
              "ZanDicRBORoot::FlushAll- === start === .\n"
              "ZanDicRBORoot::FlushAll- _Type=24 (RBORoot), _Name=Line.\n"
              "ZanDicRBORoot::FlushAll- processing _COMPONENTS....\n"
              "ZanDicRBORoot::FlushAll- processing _COMPONENTS[1]: Cell, Type: 25 (RBOComponent).\n"
              "ZanDicRBOComponent::FlushAll- === start === .\n"
              "ZanDicRBOComponent::FlushAll- _Type=25 (RBOComponent), _Name=Cell.\n"
              "ZanDicRBOComponent::FlushAll- processing _COMPONENTS....\n"
              "ZanHashList::RemoveAll _HASH.Size()=0, _LISTP.Size()=0\n"
              "ZanDicRBOComponent::FlushAll- processing _PathExpression: Way, Type: 26 (RBOPathExpression).\n"
              "ZanDicRBOComponent::FlushAll- rc[_PathExpression->FlushAll]=OK.\n"
              "ZanDicRBOComponent::FlushAll- rc[ZanDictionary->Delete]=OK.\n"
              "ZanDicRBOComponent::FlushAll- after _PathExpression->Release, RefCount=1.\n"
              "ZanDicRBOComponent::FlushAll- === exit === RC=OK.\n"
              "ZanDicRBORoot::FlushAll- rc[_COMPONENTS[1]->FlushAll]=OK.\n"
              "ZanDicRBORoot::FlushAll- rc[ZanDictionary->Delete]=OK.\n"
              "ZanDicRBORoot::FlushAll- after _COMPONENTS[1]->Release, RefCount=1.\n"
              "ZanHashList::RemoveAll _HASH.Size()=1, _LISTP.Size()=1\n"
              "ZanDicRBORoot::FlushAll- === exit === RC=OK.\n"
              "ZanDicRBOMapping::FlushAll- rc[_ROOTS[1]->FlushAll]=OK.\n"
              "ZanDicRBOMapping::FlushAll- rc[ZanDictionary->Delete]=OK.\n"
              "ZanDicRBOMapping::FlushAll- after _ROOTS[1]->Release, RefCount=1.\n"
              "ZanHashList::RemoveAll _HASH.Size()=1, _LISTP.Size()=1\n"
              "ZanDicRBOMapping::FlushAll- === exit === RC=OK.\n");
    EXPECT_FALSE(IsRegistered(*path));
    EXPECT_FALSE(IsRegistered(*component));
    EXPECT_TRUE(IsRegistered(*mapping));
}

TEST_F(ZanDicRBOMappingTest, OnceItIsGoneItMakesNothing) {
    const auto root = Root(*mapping, "Line");
    EXPECT_EQ(tables->RemoveElement(Named("Map")), S_OK);
    const ZELDbBinary uuid = NextUuid();
    OXMIDicRBORoot* made = nullptr;
    OXMIDicRBOComponent* component = nullptr;

    EXPECT_EQ(mapping->CreateRBORoot(Named("More"), &uuid, &made), E_FAIL);
    EXPECT_EQ(root->CreateRBOComponent(Named("Cell"), &uuid, &component), E_FAIL);
    EXPECT_EQ(mapping->SetApplyToRBOClass(row.Get()), E_FAIL);

    EXPECT_EQ(made, nullptr);
    EXPECT_EQ(component, nullptr);
    EXPECT_EQ(Listed(*mapping, &OXMIDicRBOMapping::GetElements), "");
}

TEST_F(ZanDicRBOMappingTest, GivesItsRootsBackWhenItIsDestroyed) {
    const int before = ZanDicObj::live_Objects();
    {
        ZanDicRBOMapping object("Map", TestUuid(1));
        const ZELDbBinary uuid = NextUuid();
        Held<OXMIDicRBORoot> root;
        EXPECT_EQ(object.CreateRBORoot(Named("Line"), &uuid, root.Out()), S_OK);
        Path(*Component(*Component(*root, "Cell"), "Part"), "Way");
    }

    EXPECT_EQ(ZanDicObj::live_Objects(), before);
}

}  // namespace
