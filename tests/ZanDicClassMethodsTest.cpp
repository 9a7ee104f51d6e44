#include "KindsFixture.h"
#include "ZanDicClass.h"

namespace {

class ZanDicClassMethodsTest : public KindsFixture {
protected:
    Held<OXMIDicPackage> items = Package("Items");
    Held<OXMIDicInterface> base = Interface(*items, "Base");
    Held<OXMIDicInterface> shape = Interface(*items, "Shape");
};

TEST_F(ZanDicClassMethodsTest, AnInterfaceIsAClassOfTheKindInterface) {
    OXMDicTYPE type = OXMDicTYPE_UNDEFINED;
    HeldList classes;

    EXPECT_EQ(shape->GetType(&type), S_OK);

    EXPECT_EQ(type, OXMDicTYPE_Interface);
    EXPECT_TRUE(QueryFor<OXMIDicClass>(*shape));
    EXPECT_TRUE(IsRegistered(*shape));
    EXPECT_EQ(items->GetClasses(&classes), S_OK);
    EXPECT_EQ(classes.Size(), 0) << "interfaces are no classes of the package";
}

TEST_F(ZanDicClassMethodsTest, AClassAnswersTheInterfaceToo) {
    const auto part = Class(*items, "Part");
    const auto face = QueryFor<OXMIDicInterface>(*part);

    ASSERT_TRUE(face);
    const auto run = Method(*face, "Run");
    EXPECT_EQ(Listed(*part, &OXMIDicClass::GetMethods), "Run ");
}

TEST_F(ZanDicClassMethodsTest, TheFactoryWithoutUuidWarnsAndDrawsOne) {
    Held<OXMIDicInterface> made;
    ClearWritten();

    EXPECT_EQ(items->CreateInterface(Named("More"), made.Out()), S_OK);

    EXPECT_TRUE(IsRegistered(*made));
    EXPECT_EQ(
        Written(),
        "ZanDicPackage::CreateInterface - *** WARNING *** This method is now obsolete. Uuid will be assigned "
        "dynamically.\n");
}

TEST_F(ZanDicClassMethodsTest, RefusesASecondMethodOfOneNameWithoutAWord) {
    const auto area = Method(*shape, "Area");
    const ZELDbBinary uuid = NextUuid();
    OXMIDicMethod* second = nullptr;
    ClearWritten();

    EXPECT_EQ(shape->CreateMethod(Named("Area"), &uuid, &second), E_FAIL);

    EXPECT_EQ(second, nullptr);
    EXPECT_EQ(Written(), "");
}

TEST_F(ZanDicClassMethodsTest, KeepsAMethodWhoseUuidIsTaken) {
    ZELDbBinary uuid;
    base->GetUuid(&uuid);
    Held<OXMIDicMethod> area;

    EXPECT_EQ(shape->CreateMethod(Named("Area"), &uuid, area.Out()), E_FAIL);

    ASSERT_TRUE(area);
    EXPECT_FALSE(IsRegistered(*area));
    EXPECT_EQ(Listed(*shape, &OXMIDicInterface::GetMethods), "Area ");
}

TEST_F(ZanDicClassMethodsTest, RefusesNullArguments) {
    const ZELDbBinary uuid = NextUuid();
    OXMIDicMethod* made = nullptr;

    EXPECT_EQ(shape->CreateMethod(nullptr, &uuid, &made), E_FAIL);
    EXPECT_EQ(shape->CreateMethod(Named("Area"), nullptr, &made), E_FAIL);
    EXPECT_EQ(shape->CreateMethod(Named("Area"), &uuid, nullptr), E_FAIL);
    EXPECT_EQ(shape->GetMethod(nullptr, &made), E_FAIL);
    EXPECT_EQ(shape->RemoveMethod(nullptr), E_FAIL);
    EXPECT_EQ(shape->SetSuperInterface(nullptr), E_FAIL);
    EXPECT_EQ(shape->GetSuperInterface(nullptr), E_FAIL);
    EXPECT_EQ(shape->GetSuperInterfaces(nullptr), E_FAIL);
    EXPECT_EQ(made, nullptr);
}

TEST_F(ZanDicClassMethodsTest, AClassGivesItsSuperClassesAsInterfacesToo) {
    const auto part = Class(*items, "Part");
    const auto screw = SubClass(*items, "Screw", *part);
    Held<OXMIDicInterface> superInterface;
    HeldList superInterfaces;

    EXPECT_EQ(part->SetSuperInterface(nullptr), E_FAIL);
    EXPECT_EQ(part->GetSuperInterface(superInterface.Out()), S_FALSE);
    EXPECT_FALSE(superInterface);
    EXPECT_EQ(screw->GetSuperInterface(superInterface.Out()), S_OK);
    EXPECT_EQ(screw->GetSuperInterfaces(&superInterfaces), S_FALSE);

    EXPECT_TRUE(SameObject(*superInterface, *part));
    EXPECT_EQ(NamesOf(superInterfaces), "Part ");
}

TEST_F(ZanDicClassMethodsTest, CreateMethodWithoutUuidIsObsoleteAndItsLineHasAStop) {
    OXMIDicMethod* made = nullptr;
    ClearWritten();

    EXPECT_EQ(shape->CreateMethod(Named("Area"), &made), E_FAIL);

    EXPECT_EQ(
        Written(),
        "ZanDicClass::CreateMethod- *** ERROR *** This method is now obsolete. Please use now the new method "
        "providing the Uuid.\n");
}

TEST_F(ZanDicClassMethodsTest, GetMethodClimbsAndGetClassMethodDoesNot) {
    const auto area = Method(*base, "Area");
    EXPECT_EQ(shape->SetSuperInterface(base.Get()), S_OK);
    Held<OXMIDicMethod> found;
    OXMIDicMethod* missing = nullptr;

    EXPECT_EQ(shape->GetMethod(Named("Area"), found.Out()), S_OK);
    EXPECT_EQ(shape->GetClassMethod(Named("Area"), &missing), E_FAIL);
    EXPECT_EQ(shape->GetMethod(Named("Volume"), &missing), E_FAIL);

    EXPECT_EQ(found.Get(), area.Get());
    EXPECT_EQ(missing, nullptr);
}

TEST_F(ZanDicClassMethodsTest, AnOwnMethodIsFoundBeforeAnInheritedOne) {
    const auto inherited = Method(*base, "Area");
    const auto own = Method(*shape, "Area");
    EXPECT_EQ(shape->SetSuperInterface(base.Get()), S_OK);
    Held<OXMIDicMethod> found;

    EXPECT_EQ(shape->GetMethod(Named("Area"), found.Out()), S_OK);

    EXPECT_EQ(found.Get(), own.Get());
}

TEST_F(ZanDicClassMethodsTest, AllMethodsAreTheOwnThenTheInheritedEachNameOnce) {
    const auto top = Interface(*items, "Top");
    Method(*top, "Draw");
    Method(*top, "Area");
    Method(*base, "Area");
    Method(*base, "Move");
    Method(*shape, "Turn");
    EXPECT_EQ(shape->SetSuperInterface(base.Get()), S_OK);
    EXPECT_EQ(base->SetSuperInterface(top.Get()), S_OK);

    EXPECT_EQ(Listed(*shape, &OXMIDicInterface::GetAllMethods), "Turn Area Move Draw ");
    EXPECT_EQ(Listed(*shape, &OXMIDicInterface::GetMethods), "Turn ");
}

TEST_F(ZanDicClassMethodsTest, ANullListIsAccepted) {
    Method(*shape, "Area");
    const int before = ZanDicObj::live_Objects();

    EXPECT_EQ(shape->GetMethods(nullptr), S_OK);
    EXPECT_EQ(shape->GetAllMethods(nullptr), S_OK);

    EXPECT_EQ(ZanDicObj::live_Objects(), before);
}

TEST_F(ZanDicClassMethodsTest, RemoveMethodFlushesUnregistersAndReleases) {
    const auto area = Method(*shape, "Area");
    const auto unit = Parameter(*area, "Unit");

    EXPECT_EQ(shape->RemoveMethod(Named("Area")), S_OK);

    EXPECT_EQ(Listed(*shape, &OXMIDicInterface::GetMethods), "");
    EXPECT_FALSE(IsRegistered(*area));
    EXPECT_FALSE(IsRegistered(*unit));
    ZELString name;
    EXPECT_EQ(area->GetPackageName(&name), S_FALSE);
}

TEST_F(ZanDicClassMethodsTest, RemoveMethodTracesWhatItDoes) {
    Method(*shape, "Area");
    TraceOnly("ZanDicClass::RemoveMethod\n");

    EXPECT_EQ(shape->RemoveMethod(Named("Area")), S_OK);

    EXPECT_EQ(Written(),
              "ZanDicClass::RemoveMethod- trying to remove Method named Area from Class Shape.\n"
              "ZanHashList::RemoveAll _HASH.Size()=0, _LISTP.Size()=0\n"
              "ZanDicClass::RemoveMethod- RefCount=0.\n");
}

TEST_F(ZanDicClassMethodsTest, RemoveMethodOfAnUnknownNameIsNoFailureButSaysSo) {
    ClearWritten();

    EXPECT_EQ(shape->RemoveMethod(Named("Area")), S_FALSE);

    EXPECT_EQ(
        Written(),
        "ZanDicClass::RemoveMethod- *** ERROR *** Could not find Element named Area for Class Shape.\n");
}

TEST_F(ZanDicClassMethodsTest, RemoveMethodOfOneThatIsNotRegisteredSaysSoAndReleasesIt) {
    const int before = ZanDicObj::live_Objects();
    ZELDbBinary uuid;
    base->GetUuid(&uuid);
    Held<OXMIDicMethod> area;
    EXPECT_EQ(shape->CreateMethod(Named("Area"), &uuid, area.Out()), E_FAIL);
    area.Reset();
    ClearWritten();

    EXPECT_EQ(shape->RemoveMethod(Named("Area")), E_FAIL);

    EXPECT_NE(Written().find("ZanDicClass::RemoveMethod- *** ERROR *** ZanDictionary::Delete failed.\n"),
              std::string::npos);
    EXPECT_EQ(ZanDicObj::live_Objects(), before);
}

TEST_F(ZanDicClassMethodsTest, FlushAllOfTheInterfaceDropsItsMethods) {
    const auto area = Method(*shape, "Area");
    const auto unit = Parameter(*area, "Unit");
    TraceOnly("ZanDicClass::FlushAll\n");

    EXPECT_EQ(shape->FlushAll(), S_OK);

    EXPECT_FALSE(IsRegistered(*area));
    EXPECT_FALSE(IsRegistered(*unit));
    EXPECT_NE(Written().find("ZanDicClass::FlushAll- processing _METHODS....\n"
                             "ZanDicClass::FlushAll- processing _METHODS[1]: Area, Type: 9 (Method).\n"),
              std::string::npos);
    EXPECT_NE(Written().find("ZanDicClass::FlushAll- rc[_METHODS[1]->FlushAll]=OK.\n"
                             "ZanDicClass::FlushAll- rc[ZanDictionary->Delete]=OK.\n"
                             "ZanDicClass::FlushAll- after _METHODS[1]->Release, RefCount=1.\n"),
              std::string::npos);
}

TEST_F(ZanDicClassMethodsTest, SuperInterfacesAreTheSuperClasses) {
    const auto top = Interface(*items, "Top");
    EXPECT_EQ(shape->SetSuperInterface(base.Get()), S_OK);
    EXPECT_EQ(base->SetSuperInterface(top.Get()), S_OK);
    Held<OXMIDicInterface> above;
    Held<OXMIDicClass> superClass;

    EXPECT_EQ(shape->GetSuperInterface(above.Out()), S_OK);
    EXPECT_EQ(QueryFor<OXMIDicClass>(*shape)->GetSuperClass(superClass.Out()), S_OK);

    EXPECT_EQ(above.Get(), base.Get());
    EXPECT_TRUE(SameObject(*superClass, *base));
    EXPECT_EQ(Listed(*shape, &OXMIDicInterface::GetSuperInterfaces, S_FALSE), "Base Top ");
    EXPECT_EQ(top->GetSuperInterface(above.Out()), S_FALSE);
    EXPECT_EQ(Listed(*top, &OXMIDicInterface::GetSuperInterfaces, S_FALSE), "");
}

TEST_F(ZanDicClassMethodsTest, AnInterfaceIsNeverItsOwnAncestor) {
    EXPECT_EQ(shape->SetSuperInterface(base.Get()), S_OK);

    EXPECT_EQ(base->SetSuperInterface(shape.Get()), E_FAIL);
    EXPECT_EQ(base->SetSuperInterface(base.Get()), E_FAIL);
}

TEST_F(ZanDicClassMethodsTest, ASuperInterfaceThatIsGoneReadsAsNeverSet) {
    const auto area = Method(*base, "Area");
    EXPECT_EQ(shape->SetSuperInterface(base.Get()), S_OK);
    ClearWritten();
    EXPECT_EQ(items->RemoveElement(Named("Base")), S_OK);
    Held<OXMIDicInterface> above;
    OXMIDicMethod* found = nullptr;

    EXPECT_EQ(shape->GetSuperInterface(above.Out()), S_FALSE);
    EXPECT_EQ(shape->GetMethod(Named("Area"), &found), E_FAIL);
    EXPECT_EQ(LostLinks(*shape), 1);
    ClearWritten();
    EXPECT_EQ(shape->SetSuperInterface(base.Get()), E_FAIL);
    EXPECT_EQ(Written(),
              "ZanDicClass::SetSuperInterface- *** ERROR *** Could not get implementation from "
              "OXMIDicInterface.\n");
}

}  // namespace
