#include "ZanDicMethod.h"

#include "KindsFixture.h"

namespace {

class ZanDicMethodTest : public KindsFixture {
protected:
    Held<OXMIDicPackage> items = Package("Items");
    Held<OXMIDicInterface> shape = Interface(*items, "Shape");
    Held<OXMIDicMethod> area = Method(*shape, "Area");
};

TEST_F(ZanDicMethodTest, IsAMethod) {
    const ZanDicMethod method("Area", TestUuid(1));

    EXPECT_EQ(method.Type(), OXMDicTYPE_Method);
    EXPECT_EQ(method.get_type(), ZanDicObj::_type_Method);
    EXPECT_STREQ(method.IsA(), "ZanDicMethod");
}

TEST_F(ZanDicMethodTest, AMethodHasThePackageOfItsInterface) {
    ZELString name;

    EXPECT_EQ(area->GetPackageName(&name), S_OK);
    EXPECT_EQ(name, ZELString("Items"));
}

TEST_F(ZanDicMethodTest, AParameterHasNoPackage) {
    const auto unit = Parameter(*area, "Unit");
    ZELString name;
    OXMIDicPackage* package = nullptr;

    EXPECT_TRUE(IsRegistered(*unit));
    EXPECT_EQ(unit->GetPackageName(&name), S_FALSE);
    EXPECT_EQ(unit->GetPackage(&package), E_FAIL);
}

TEST_F(ZanDicMethodTest, RefusesASecondParameterOfOneName) {
    const auto unit = Parameter(*area, "Unit");
    const ZELDbBinary uuid = NextUuid();
    OXMIDicParameter* second = nullptr;
    ClearWritten();

    EXPECT_EQ(area->CreateParameter(Named("Unit"), &uuid, &second), E_FAIL);

    EXPECT_EQ(second, nullptr);
    EXPECT_EQ(Written(), "");
}

TEST_F(ZanDicMethodTest, KeepsAParameterWhoseUuidIsTaken) {
    ZELDbBinary uuid;
    shape->GetUuid(&uuid);
    Held<OXMIDicParameter> unit;

    EXPECT_EQ(area->CreateParameter(Named("Unit"), &uuid, unit.Out()), E_FAIL);

    ASSERT_TRUE(unit);
    EXPECT_FALSE(IsRegistered(*unit));
    EXPECT_EQ(Listed(*area, &OXMIDicMethod::GetParameters), "Unit ");
}

TEST_F(ZanDicMethodTest, RefusesNullArguments) {
    const ZELDbBinary uuid = NextUuid();
    OXMIDicParameter* made = nullptr;

    EXPECT_EQ(area->CreateParameter(nullptr, &uuid, &made), E_FAIL);
    EXPECT_EQ(area->CreateParameter(Named("Unit"), nullptr, &made), E_FAIL);
    EXPECT_EQ(area->CreateParameter(Named("Unit"), &uuid, nullptr), E_FAIL);
    EXPECT_EQ(area->GetParameter(nullptr, &made), E_FAIL);
    EXPECT_EQ(area->GetParameters(nullptr), E_FAIL);
    EXPECT_EQ(area->RemoveParameter(nullptr), E_FAIL);
    EXPECT_EQ(made, nullptr);
}

TEST_F(ZanDicMethodTest, CreateParameterWithoutUuidIsObsoleteAndItsLineHasNoStop) {
    OXMIDicParameter* made = nullptr;
    TraceFromNow(-1);

    EXPECT_EQ(area->CreateParameter(Named("Unit"), &made), E_FAIL);

    EXPECT_EQ(made, nullptr);
    EXPECT_EQ(
        Written(),
        "ZanDicMethod::CreateParameter - *** ERROR *** This method is now obsolete. Please use now the new "
        "method providing the Uuid\n");
}

TEST_F(ZanDicMethodTest, FindsAndListsParameters) {
    const auto unit = Parameter(*area, "Unit");
    const auto scale = Parameter(*area, "Scale");
    Held<OXMIDicParameter> found;
    OXMIDicParameter* missing = nullptr;

    EXPECT_EQ(area->GetParameter(Named("Unit"), found.Out()), S_OK);
    EXPECT_EQ(area->GetParameter(Named("unit"), &missing), E_FAIL);

    EXPECT_EQ(found.Get(), unit.Get());
    EXPECT_EQ(missing, nullptr);
    EXPECT_EQ(Listed(*area, &OXMIDicMethod::GetParameters), "Unit Scale ");
}

TEST_F(ZanDicMethodTest, GivesNoParametersWhenEmpty) {
    EXPECT_EQ(Listed(*area, &OXMIDicMethod::GetParameters), "");
}

TEST_F(ZanDicMethodTest, RemoveParameterLeavesItRegisteredUntilTheMethodGoes) {
    const auto unit = Parameter(*area, "Unit");

    EXPECT_EQ(area->RemoveParameter(Named("Unit")), S_OK);
    EXPECT_EQ(area->RemoveParameter(Named("Unit")), E_FAIL);

    EXPECT_EQ(Listed(*area, &OXMIDicMethod::GetParameters), "");
    EXPECT_TRUE(IsRegistered(*unit));
    EXPECT_EQ(shape->RemoveMethod(Named("Area")), S_OK);
    EXPECT_FALSE(IsRegistered(*unit));
}

TEST_F(ZanDicMethodTest, FlushAllTracesEachStep) {
    Parameter(*area, "Unit");
    TraceOnly("ZanDicMethod::FlushAll\n");

    EXPECT_EQ(area->FlushAll(), S_OK);

    EXPECT_EQ(Written(),
              "ZanDicMethod::FlushAll- === start === .\n"
              "ZanDicMethod::FlushAll- _Type=9 (Method), _Name=Area.\n"
              "ZanDicMethod::FlushAll- processing _PARAMETERS....\n"
              "ZanDicMethod::FlushAll- processing _PARAMETERS[1]: Unit, Type: 10 (Parameter).\n"
              "ZanDicMethod::FlushAll- rc[_PARAMETERS[1]->FlushAll]=OK.\n"
              "ZanDicMethod::FlushAll- rc[ZanDictionary->Delete]=OK.\n"
              "ZanDicMethod::FlushAll- after _PARAMETERS[1]->Release, RefCount=0.\n"
              "ZanHashList::RemoveAll _HASH.Size()=1, _LISTP.Size()=1\n"
              "ZanDicMethod::FlushAll- === exit === RC=OK.\n");
}

TEST_F(ZanDicMethodTest, OnceItIsGoneItMakesNothing) {
    const auto unit = Parameter(*area, "Unit");
    EXPECT_EQ(shape->RemoveMethod(Named("Area")), S_OK);
    const ZELDbBinary uuid = NextUuid();
    OXMIDicParameter* made = nullptr;

    EXPECT_EQ(area->CreateParameter(Named("Scale"), &uuid, &made), E_FAIL);

    EXPECT_EQ(made, nullptr);
    EXPECT_EQ(Listed(*area, &OXMIDicMethod::GetParameters), "");
    EXPECT_FALSE(IsRegistered(*unit));
}

TEST_F(ZanDicMethodTest, GivesItsParametersBackWhenItIsDestroyed) {
    const int before = ZanDicObj::live_Objects();
    {
        ZanDicMethod method("Area", TestUuid(1));
        const ZELDbBinary first = NextUuid();
        const ZELDbBinary second = NextUuid();
        Held<OXMIDicParameter> made;
        EXPECT_EQ(method.CreateParameter(Named("A"), &first, made.Out()), S_OK);
        EXPECT_EQ(method.CreateParameter(Named("B"), &second, made.Out()), S_OK);
        EXPECT_EQ(method.RemoveParameter(Named("B")), S_OK);
    }

    EXPECT_EQ(ZanDicObj::live_Objects(), before);
}

}  // namespace
