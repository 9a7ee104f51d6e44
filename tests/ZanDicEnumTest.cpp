#include "ZanDicEnum.h"

#include "ModelFixture.h"

namespace {

class ZanDicEnumTest : public ModelFixture {
protected:
    Held<OXMIDicPackage> package = Package("Items");
    Held<OXMIDicEnum> colour = Enum(*package, "Colour");
};

TEST_F(ZanDicEnumTest, IsAnEnumeration) {
    const ZanDicEnum enumeration("Colour", TestUuid(1));

    EXPECT_EQ(enumeration.Type(), OXMDicTYPE_Enum);
    EXPECT_EQ(enumeration.get_type(), ZanDicObj::_type_Enum);
    EXPECT_STREQ(enumeration.IsA(), "ZanDicEnum");
}

TEST_F(ZanDicEnumTest, RegistersWhatItCreates) {
    const auto red = Enumerator(*colour, "Red");

    EXPECT_TRUE(IsRegistered(*red));
}

TEST_F(ZanDicEnumTest, RefusesASecondEnumeratorOfOneName) {
    const auto red = Enumerator(*colour, "Red");
    const ZELDbBinary uuid = NextUuid();
    OXMIDicEnumerator* second = nullptr;
    ClearWritten();

    EXPECT_EQ(colour->CreateEnumerator(Named("Red"), &uuid, &second), E_FAIL);

    EXPECT_EQ(second, nullptr);
    EXPECT_EQ(Written(), "");
}

TEST_F(ZanDicEnumTest, SharesNamesWithOtherEnumerations) {
    const auto light = Enum(*package, "Light");

    EXPECT_TRUE(Enumerator(*colour, "Red"));
    EXPECT_TRUE(Enumerator(*light, "Red"));
}

TEST_F(ZanDicEnumTest, KeepsAnEnumeratorWhoseUuidIsTaken) {
    const ZELDbBinary uuid = NextUuid();
    Held<OXMIDicEnumerator> red;
    Held<OXMIDicEnumerator> green;
    HeldList enumerators;
    EXPECT_EQ(colour->CreateEnumerator(Named("Red"), &uuid, red.Out()), S_OK);

    EXPECT_EQ(colour->CreateEnumerator(Named("Green"), &uuid, green.Out()), E_FAIL);

    ASSERT_TRUE(green);
    EXPECT_FALSE(IsRegistered(*green));
    EXPECT_EQ(colour->GetEnumerators(&enumerators), S_OK);
    EXPECT_EQ(NamesOf(enumerators), "Red Green ");
}

TEST_F(ZanDicEnumTest, RefusesNullArguments) {
    const ZELDbBinary uuid = NextUuid();
    OXMIDicEnumerator* made = nullptr;
    int value = 0;

    EXPECT_EQ(colour->CreateEnumerator(nullptr, &uuid, &made), E_FAIL);
    EXPECT_EQ(colour->CreateEnumerator(Named("Red"), nullptr, &made), E_FAIL);
    EXPECT_EQ(colour->CreateEnumerator(Named("Red"), &uuid, nullptr), E_FAIL);
    EXPECT_EQ(colour->GetEnumerator(nullptr, &made), E_FAIL);
    EXPECT_EQ(colour->GetEnumValue(nullptr, &value), E_FAIL);
    EXPECT_EQ(colour->RemoveEnumerator(nullptr), E_FAIL);
    EXPECT_EQ(colour->CreateEnumValue(nullptr, 1), E_FAIL);

    EXPECT_EQ(made, nullptr);
    EXPECT_EQ(colour->GetEnumerators(nullptr), E_FAIL);
}

TEST_F(ZanDicEnumTest, CreateEnumeratorWithoutUuidIsObsolete) {
    OXMIDicEnumerator* made = nullptr;
    TraceFromNow(-1);

    EXPECT_EQ(colour->CreateEnumerator(Named("Red"), &made), E_FAIL);

    EXPECT_EQ(made, nullptr);
    EXPECT_EQ(
        Written(),
        "ZanDicEnum::CreateEnumerator - *** ERROR *** This method is now obsolete. Please use now the new "
        "method providing the Uuid\n");
}

TEST_F(ZanDicEnumTest, CreateEnumValueMakesAnEnumeratorWithTheValue) {
    int value = 0;

    EXPECT_EQ(colour->CreateEnumValue(Named("Red"), 7), S_OK);

    EXPECT_EQ(colour->GetEnumValue(Named("Red"), &value), S_OK);
    EXPECT_EQ(value, 7);
}

TEST_F(ZanDicEnumTest, CreateEnumValueSetsNothingForATakenName) {
    int value = 0;
    EXPECT_EQ(colour->CreateEnumValue(Named("Red"), 7), S_OK);

    EXPECT_EQ(colour->CreateEnumValue(Named("Red"), 8), E_FAIL);

    EXPECT_EQ(colour->GetEnumValue(Named("Red"), &value), S_OK);
    EXPECT_EQ(value, 7);
}

TEST_F(ZanDicEnumTest, FindsEnumeratorsByName) {
    const auto red = Enumerator(*colour, "Red");
    Held<OXMIDicEnumerator> found;
    OXMIDicEnumerator* missing = nullptr;
    int value = 9;

    EXPECT_EQ(colour->GetEnumerator(Named("Red"), found.Out()), S_OK);
    EXPECT_EQ(colour->GetEnumerator(Named("red"), &missing), E_FAIL);
    EXPECT_EQ(colour->GetEnumValue(Named("red"), &value), E_FAIL);

    EXPECT_EQ(found.Get(), red.Get());
    EXPECT_EQ(missing, nullptr);
    EXPECT_EQ(value, 9);
}

TEST_F(ZanDicEnumTest, ListsTheNamesInTheOrderOfCreation) {
    const auto red = Enumerator(*colour, "Red");
    const auto green = Enumerator(*colour, "Green");
    ZELListValZELString names;

    EXPECT_EQ(colour->GetEnumValues(&names), S_OK);
    EXPECT_EQ(colour->GetEnumValues(nullptr), S_OK);

    ASSERT_EQ(names.Size(), 2);
    EXPECT_EQ(names[1], ZELString("Red"));
    EXPECT_EQ(names[2], ZELString("Green"));
}

TEST_F(ZanDicEnumTest, ListsTheEnumeratorsBehindWhatTheListHolds) {
    const auto red = Enumerator(*colour, "Red");
    const auto green = Enumerator(*colour, "Green");
    HeldList enumerators;

    EXPECT_EQ(colour->GetEnumerators(&enumerators), S_OK);
    EXPECT_EQ(colour->GetEnumerators(&enumerators), S_OK);

    EXPECT_EQ(NamesOf(enumerators), "Red Green Red Green ");
}

TEST_F(ZanDicEnumTest, GivesNoEnumeratorsWhenEmpty) {
    HeldList enumerators;

    EXPECT_EQ(colour->GetEnumerators(&enumerators), S_OK);

    EXPECT_EQ(enumerators.Size(), 0);
}

TEST_F(ZanDicEnumTest, RemoveEnumeratorLeavesItRegistered) {
    const auto red = Enumerator(*colour, "Red");
    HeldList enumerators;

    EXPECT_EQ(colour->RemoveEnumerator(Named("Red")), S_OK);
    EXPECT_EQ(colour->RemoveEnumerator(Named("Red")), E_FAIL);

    EXPECT_EQ(colour->GetEnumerators(&enumerators), S_OK);
    EXPECT_EQ(enumerators.Size(), 0);
    EXPECT_TRUE(IsRegistered(*red));
}

TEST_F(ZanDicEnumTest, RemoveEnumValueIsTheSame) {
    const auto red = Enumerator(*colour, "Red");

    EXPECT_EQ(colour->RemoveEnumValue(Named("Green")), E_FAIL);
    EXPECT_EQ(colour->RemoveEnumValue(Named("Red")), S_OK);

    EXPECT_TRUE(IsRegistered(*red));
}

TEST_F(ZanDicEnumTest, DropsWhatWasRemovedWhenItGoesItself) {
    const auto red = Enumerator(*colour, "Red");
    EXPECT_EQ(colour->RemoveEnumerator(Named("Red")), S_OK);

    EXPECT_EQ(package->RemoveElement(Named("Colour")), S_OK);

    EXPECT_FALSE(IsRegistered(*red));
    ZELString name;
    EXPECT_EQ(red->GetPackageName(&name), S_FALSE);
}

TEST_F(ZanDicEnumTest, ANameIsFreeAgainOnceItsEnumeratorIsRemoved) {
    const auto red = Enumerator(*colour, "Red");
    EXPECT_EQ(colour->RemoveEnumerator(Named("Red")), S_OK);

    const auto second = Enumerator(*colour, "Red");

    EXPECT_FALSE(SameObject(*red, *second));
}

TEST_F(ZanDicEnumTest, MakesNothingOnceItIsGone) {
    EXPECT_EQ(package->RemoveElement(Named("Colour")), S_OK);
    const ZELDbBinary uuid = NextUuid();
    OXMIDicEnumerator* made = nullptr;
    OXMIDicElementH* found = nullptr;

    EXPECT_EQ(colour->CreateEnumerator(Named("Red"), &uuid, &made), E_FAIL);
    EXPECT_EQ(colour->CreateEnumValue(Named("Red"), 1), E_FAIL);

    EXPECT_EQ(made, nullptr);
    EXPECT_EQ(Manager().Search(&uuid, &found), E_FAIL);
}

TEST_F(ZanDicEnumTest, FlushAllDropsTheEnumerators) {
    const auto red = Enumerator(*colour, "Red");
    HeldList enumerators;
    ClearWritten();

    EXPECT_EQ(colour->FlushAll(), S_OK);

    EXPECT_EQ(colour->GetEnumerators(&enumerators), S_OK);
    EXPECT_EQ(enumerators.Size(), 0);
    EXPECT_FALSE(IsRegistered(*red));
    EXPECT_EQ(Written(), "ZanHashList::RemoveAll _HASH.Size()=1, _LISTP.Size()=1\n");
}

TEST_F(ZanDicEnumTest, FlushAllTracesEachStep) {
    Enumerator(*colour, "Red");
    TraceOnly("ZanDicEnum::FlushAll\n");

    EXPECT_EQ(colour->FlushAll(), S_OK);

    EXPECT_EQ(Written(),
              "ZanDicEnum::FlushAll- === start === .\n"
              "ZanDicEnum::FlushAll- _Type=3 (Enum), _Name=Colour.\n"
              "ZanDicEnum::FlushAll- processing _ENUMERATORS....\n"
              "ZanDicEnum::FlushAll- processing _ENUMERATORS[1]: Red, Type: 20 (Enumerator).\n"
              "ZanDicEnum::FlushAll- rc[_ENUMERATORS[1]->FlushAll]=OK.\n"
              "ZanDicEnum::FlushAll- rc[ZanDictionary->Delete]=OK.\n"
              "ZanDicEnum::FlushAll- after _ENUMERATORS[1]->Release, RefCount=0.\n"
              "ZanHashList::RemoveAll _HASH.Size()=1, _LISTP.Size()=1\n"
              "ZanDicEnum::FlushAll- === exit === RC=OK.\n");
}

TEST_F(ZanDicEnumTest, FlushAllKeepsWhatWasRemovedBefore) {
    const auto red = Enumerator(*colour, "Red");
    EXPECT_EQ(colour->RemoveEnumerator(Named("Red")), S_OK);

    EXPECT_EQ(colour->FlushAll(), S_OK);

    EXPECT_TRUE(IsRegistered(*red));
}

TEST_F(ZanDicEnumTest, GivesItsEnumeratorsBackWhenItIsDestroyed) {
    const int before = ZanDicObj::live_Objects();
    {
        ZanDicEnum enumeration("Shape", TestUuid(1));
        EXPECT_EQ(enumeration.CreateEnumValue(Named("Round"), 1), S_OK);
        EXPECT_EQ(enumeration.CreateEnumValue(Named("Flat"), 1), S_OK);
        EXPECT_EQ(enumeration.RemoveEnumValue(Named("Flat")), S_OK);
    }

    EXPECT_EQ(ZanDicObj::live_Objects(), before);
}

}  // namespace
