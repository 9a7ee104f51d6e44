#include "ZanDicClass.h"

#include "ModelFixture.h"

namespace {

class ZanDicClassTest : public ModelFixture {
protected:
    Held<OXMIDicPackage> items = Package("Items");
    Held<OXMIDicClass> part = Class(*items, "Part");
};

TEST_F(ZanDicClassTest, IsAClass) {
    const ZanDicClass object("Part", TestUuid(1));

    EXPECT_EQ(object.Type(), OXMDicTYPE_Class);
    EXPECT_EQ(object.get_type(), ZanDicObj::_type_Class);
    EXPECT_STREQ(object.IsA(), "ZanDicClass");
}

TEST_F(ZanDicClassTest, StartsPersistentAndNothingElse) {
    unsigned char flag = 7;
    int derivable = 0;
    ZELString lateType("before");
    ZELUnicodeString applicationName("before");

    EXPECT_EQ(part->GetPersistent(&flag), S_OK);
    EXPECT_EQ(flag, 1);
    EXPECT_EQ(part->GetAbstract(&flag), S_OK);
    EXPECT_EQ(flag, 0);
    EXPECT_EQ(part->GetInstance(&flag), S_OK);
    EXPECT_EQ(flag, 0);
    EXPECT_EQ(part->GetExtensible(&flag), S_FALSE);
    EXPECT_EQ(flag, 0);
    EXPECT_EQ(part->GetKVADerivable(&derivable), S_FALSE);
    EXPECT_EQ(derivable, 1);
    EXPECT_EQ(part->GetLateType(&lateType), S_OK);
    EXPECT_TRUE(lateType.IsEmpty());
    EXPECT_EQ(part->GetApplicationName(&applicationName), S_OK);
    EXPECT_EQ(applicationName, ZELUnicodeString(""));
}

TEST_F(ZanDicClassTest, KeepsFlagsAndTexts) {
    const ZELString late("Late");
    const ZELUnicodeString application("App");
    unsigned char flag = 0;
    ZELString lateType;
    ZELUnicodeString applicationName;

    EXPECT_EQ(part->SetPersistent(0), S_OK);
    EXPECT_EQ(part->SetAbstract(1), S_OK);
    EXPECT_EQ(part->SetInstance(200), S_OK);
    EXPECT_EQ(part->SetLateType(&late), S_OK);
    EXPECT_EQ(part->SetApplicationName(&application), S_OK);

    EXPECT_EQ(part->GetPersistent(&flag), S_OK);
    EXPECT_EQ(flag, 0);
    EXPECT_EQ(part->GetAbstract(&flag), S_OK);
    EXPECT_EQ(flag, 1);
    EXPECT_EQ(part->GetInstance(&flag), S_OK);
    EXPECT_EQ(flag, 200);
    EXPECT_EQ(part->GetLateType(&lateType), S_OK);
    EXPECT_EQ(lateType, late);
    EXPECT_EQ(part->GetApplicationName(&applicationName), S_OK);
    EXPECT_EQ(applicationName, application);
}

TEST_F(ZanDicClassTest, RefusesNullArguments) {
    const ZELDbBinary uuid = NextUuid();
    OXMIDicElement* made = nullptr;
    OXMIDicUnique* unique = nullptr;
    ClearWritten();

    EXPECT_EQ(part->Create(nullptr, &uuid, OXMDicTYPE_Simple, &made), E_FAIL);
    EXPECT_EQ(part->Create(Named("A"), nullptr, OXMDicTYPE_Simple, &made), E_FAIL);
    EXPECT_EQ(part->Create(Named("A"), &uuid, OXMDicTYPE_Simple, nullptr), E_FAIL);
    EXPECT_EQ(part->Create(nullptr, OXMDicTYPE_Simple, &made), E_FAIL);
    EXPECT_EQ(part->CreateUnique(nullptr, &uuid, &unique), E_FAIL);
    EXPECT_EQ(part->RemoveElement(nullptr), E_FAIL);
    EXPECT_EQ(part->RemoveUnique(nullptr), E_FAIL);
    EXPECT_EQ(part->GetSuperClass(nullptr), E_FAIL);
    EXPECT_EQ(part->GetSuperClasses(nullptr), E_FAIL);
    EXPECT_EQ(part->GetSubClasses(nullptr), E_FAIL);
    EXPECT_EQ(part->GetSuperName(nullptr), E_FAIL);
    EXPECT_EQ(part->GetClassElements(nullptr), E_FAIL);
    EXPECT_EQ(part->GetClassElement(nullptr, &made), E_FAIL);
    EXPECT_EQ(part->GetElement(nullptr, &made), E_FAIL);
    EXPECT_EQ(part->GetUniques(nullptr), E_FAIL);
    EXPECT_EQ(part->GetUnique(nullptr, &unique), E_FAIL);
    EXPECT_EQ(part->GetPersistent(nullptr), E_FAIL);
    EXPECT_EQ(part->GetExtensible(nullptr), E_FAIL);
    EXPECT_EQ(part->GetKVADerivable(nullptr), E_FAIL);
    EXPECT_EQ(part->GetClassKVADerivable(nullptr), E_FAIL);
    EXPECT_EQ(part->GetClassExtensible(nullptr), E_FAIL);
    EXPECT_EQ(part->GetClassAttBlocks(nullptr), E_FAIL);
    EXPECT_EQ(part->SetLateType(nullptr), E_FAIL);
    EXPECT_EQ(part->GetLateType(nullptr), E_FAIL);
    EXPECT_EQ(part->SetApplicationName(nullptr), E_FAIL);
    EXPECT_EQ(part->SetReference(nullptr), E_FAIL);
    EXPECT_EQ(part->GetReference(nullptr), E_FAIL);

    EXPECT_EQ(made, nullptr);
    EXPECT_EQ(Written(), "");
}

TEST_F(ZanDicClassTest, CreatesAttributesOfEachKind) {
    const ZELDbBinary uuid = NextUuid();
    Held<OXMIDicElement> weight;
    Held<OXMIDicClass> origin;
    ZELString packageName;

    const auto number = Simple(*part, "Number");
    const auto maker = Relationship(*part, "Maker");
    const auto usedIn = Inverse(*part, "UsedIn");
    EXPECT_EQ(part->Create(Named("Weight"), &uuid, OXMDicTYPE_Simple, weight.Out()), S_OK);

    HeldList attributes;
    EXPECT_EQ(part->GetClassElements(&attributes), S_OK);
    EXPECT_EQ(NamesOf(attributes), "Number Maker UsedIn Weight ");
    EXPECT_TRUE(IsRegistered(*weight));
    EXPECT_EQ(number->GetOrigin(origin.Out()), S_OK);
    EXPECT_EQ(origin.Get(), part.Get());
    EXPECT_EQ(weight->GetPackageName(&packageName), S_OK);
    EXPECT_EQ(packageName, ZELString("Items"));
    EXPECT_EQ(static_cast<void*>(weight.Get()), QueryFor<OXMIDicSimple>(*weight).Get());
}

TEST_F(ZanDicClassTest, CreateRefusesASecondAttributeOfOneName) {
    Simple(*part, "Number");
    const ZELDbBinary uuid = NextUuid();
    OXMIDicElement* made = nullptr;
    OXMIDicElementH* found = nullptr;
    ClearWritten();

    EXPECT_EQ(part->Create(Named("Number"), &uuid, OXMDicTYPE_Relationship, &made), E_FAIL);

    EXPECT_EQ(made, nullptr);
    EXPECT_EQ(Manager().Search(&uuid, &found), E_FAIL);
    EXPECT_EQ(Written(),
              "ZanDicClass::Create- *** ERROR *** Attribute: Number already exists in Class: Part, Package: "
              "Items.\n");
}

TEST_F(ZanDicClassTest, CreateTracesStartAndExit) {
    TraceOnly("ZanDicClass::Create\n");

    const auto number = Simple(*part, "Number");

    EXPECT_EQ(Written(),
              "ZanDicClass::Create- === start === .\n"
              "ZanDicClass::Create- === exit === rc=OK.\n");
}

TEST_F(ZanDicClassTest, CreateKeepsAnAttributeWhoseUuidIsTaken) {
    ZELDbBinary uuid;
    part->GetUuid(&uuid);
    Held<OXMIDicSimple> number;

    EXPECT_EQ(part->CreateSimple(Named("Number"), &uuid, number.Out()), E_FAIL);

    ASSERT_TRUE(number);
    EXPECT_FALSE(IsRegistered(*number));
    EXPECT_EQ(AllOf(*part), "Number ");
    EXPECT_TRUE(IsRegistered(*part));
}

TEST_F(ZanDicClassTest, CreateTakesAnyTypeAndHandsOutNothingWhereItHasNoInterface) {
    const ZELDbBinary uuid = NextUuid();
    const ZELDbBinary otherUuid = NextUuid();
    OXMIDicElement* made = nullptr;
    Held<OXMIDicElementH> found;
    ClearWritten();

    EXPECT_EQ(part->Create(Named("Odd"), &uuid, OXMDicTYPE_Security, &made), S_OK);
    EXPECT_EQ(part->Create(Named("Odder"), &otherUuid, OXMDicTYPE_Package, &made), S_OK);

    EXPECT_EQ(made, nullptr);
    EXPECT_EQ(Manager().Search(&uuid, found.Out()), S_OK);
    EXPECT_EQ(Manager().Search(&otherUuid, found.Out()), S_OK);
    EXPECT_EQ(Written(), "ZanDicObj::bind_Interface -*** WARNING *** Unkown object type=18.\n");
}

TEST_F(ZanDicClassTest, TheFormsWithoutUuidWarnAndDrawOne) {
    Held<OXMIDicElement> any;
    Held<OXMIDicSimple> simple;
    Held<OXMIDicRelationship> relationship;
    Held<OXMIDicInverse> inverse;
    const std::string warning =
        "ZanDicClass::Create - *** WARNING *** This method is now obsolete. Uuid will be assigned "
        "dynamically.\n";
    TraceFromNow(-1);

    EXPECT_EQ(part->Create(Named("A"), OXMDicTYPE_Simple, any.Out()), S_OK);
    EXPECT_EQ(part->CreateSimple(Named("B"), simple.Out()), S_OK);
    EXPECT_EQ(part->CreateRelationship(Named("C"), relationship.Out()), S_OK);
    EXPECT_EQ(part->CreateInverse(Named("D"), inverse.Out()), S_OK);

    EXPECT_EQ(AllOf(*part), "A B C D ");
    EXPECT_EQ(Written(), warning + warning + warning + warning);
}

TEST_F(ZanDicClassTest, RemoveElementLeavesTheAttributeRegistered) {
    const auto number = Simple(*part, "Number");
    HeldList attributes;
    Held<OXMIDicClass> origin;

    EXPECT_EQ(part->RemoveElement(Named("Number")), S_OK);
    EXPECT_EQ(part->RemoveElement(Named("Number")), E_FAIL);

    EXPECT_EQ(part->GetClassElements(&attributes), S_OK);
    EXPECT_EQ(attributes.Size(), 0);
    EXPECT_TRUE(IsRegistered(*number));
    EXPECT_EQ(number->GetOrigin(origin.Out()), S_OK);
}

TEST_F(ZanDicClassTest, DropsWhatWasRemovedWhenItGoesItself) {
    const auto number = Simple(*part, "Number");
    const auto key = Unique(*part, "Key");
    EXPECT_EQ(part->RemoveElement(Named("Number")), S_OK);
    EXPECT_EQ(part->RemoveUnique(Named("Key")), S_OK);
    EXPECT_TRUE(IsRegistered(*key));

    RemovePackage("Items");

    EXPECT_FALSE(IsRegistered(*number));
    EXPECT_FALSE(IsRegistered(*key));
}

TEST_F(ZanDicClassTest, CreatesAndFindsUniques) {
    const auto key = Unique(*part, "Key");
    const auto other = Unique(*part, "Other");
    const ZELDbBinary uuid = NextUuid();
    OXMIDicUnique* made = nullptr;
    Held<OXMIDicUnique> found;
    HeldList uniques;
    ClearWritten();

    EXPECT_EQ(part->CreateUnique(Named("Key"), &uuid, &made), E_FAIL);
    EXPECT_EQ(part->GetUnique(Named("Missing"), &made), E_FAIL);
    EXPECT_EQ(part->GetUnique(Named("Key"), found.Out()), S_OK);
    EXPECT_EQ(part->GetUniques(&uniques), S_OK);

    EXPECT_EQ(made, nullptr);
    EXPECT_EQ(found.Get(), key.Get());
    EXPECT_EQ(NamesOf(uniques), "Key Other ");
    EXPECT_TRUE(IsRegistered(*key));
    EXPECT_EQ(Written(), "");
}

TEST_F(ZanDicClassTest, RemoveUniqueTakesItOutOfTheListOnly) {
    const auto key = Unique(*part, "Key");
    HeldList uniques;

    EXPECT_EQ(part->RemoveUnique(Named("Missing")), E_FAIL);
    EXPECT_EQ(part->RemoveUnique(Named("Key")), S_OK);

    EXPECT_EQ(part->GetUniques(&uniques), S_OK);
    EXPECT_EQ(uniques.Size(), 0);
    EXPECT_TRUE(IsRegistered(*key));
}

TEST_F(ZanDicClassTest, UniquesAndMethodsWithoutUuidAreObsolete) {
    OXMIDicUnique* unique = nullptr;
    OXMIDicMethod* method = nullptr;
    ClearWritten();

    EXPECT_EQ(part->CreateUnique(Named("Key"), &unique), E_FAIL);
    EXPECT_EQ(part->CreateMethod(Named("Run"), &method), E_FAIL);

    EXPECT_EQ(
        Written(),
        "ZanDicClass::CreateUnique - *** ERROR *** This method is now obsolete. Please use now the new "
        "method "
        "providing the Uuid\n"
        "ZanDicClass::CreateMethod- *** ERROR *** This method is now obsolete. Please use now the new method "
        "providing the Uuid.\n");
}

TEST_F(ZanDicClassTest, ANegativeLevelSilencesTheNoticeOfMethodsOnly) {
    OXMIDicUnique* unique = nullptr;
    OXMIDicMethod* method = nullptr;
    TraceFromNow(-1);

    EXPECT_EQ(part->CreateUnique(Named("Key"), &unique), E_FAIL);
    EXPECT_EQ(part->CreateMethod(Named("Run"), &method), E_FAIL);

    EXPECT_EQ(Written(),
              "ZanDicClass::CreateUnique - *** ERROR *** This method is now obsolete. Please use now the new "
              "method "
              "providing the Uuid\n");
}

TEST_F(ZanDicClassTest, CommandsAreDeprecated) {
    HeldList list;
    ClearWritten();

    EXPECT_EQ(part->AddCommand(nullptr), E_FAIL);
    EXPECT_EQ(part->RemoveCommand(nullptr), E_FAIL);
    EXPECT_EQ(part->GetCommands(&list), E_FAIL);

    EXPECT_EQ(
        Written(),
        "ZanDicClass::AddCommand- *** ERROR *** Deprecated functionnality. Should not be used anymore.\n"
        "ZanDicClass::RemoveCommand- *** ERROR *** Deprecated functionnality. Should not be used anymore.\n"
        "ZanDicClass::GetCommands- *** ERROR *** Deprecated functionnality. Should not be used anymore.\n");
}

TEST_F(ZanDicClassTest, InterfacesOfAClassAreNotImplemented) {
    HeldList list;
    ClearWritten();

    EXPECT_EQ(part->AddInterface(nullptr), E_FAIL);
    EXPECT_EQ(part->RemoveInterface(nullptr), E_FAIL);
    EXPECT_EQ(part->GetInterfaces(&list), E_FAIL);

    EXPECT_EQ(Written(),
              "ZanDicClass::AddInterface- *** WARNING *** Functionnality not implemented yet.\n"
              "ZanDicClass::RemoveInterface- *** WARNING *** Functionnality not implemented yet.\n"
              "ZanDicClass::GetInterfaces- *** WARNING *** Functionnality not implemented yet.\n");
}

TEST_F(ZanDicClassTest, RefusesInSilenceWhatIsNotAvailable) {
    const ZELString name("X");
    IUnknown* unknown = nullptr;
    HeldList list;
    ClearWritten();

    EXPECT_EQ(part->CreateImplement(&name, &unknown), E_FAIL);
    EXPECT_EQ(part->CreateSecurity(&name, &unknown), E_FAIL);
    EXPECT_EQ(part->RemoveImplement(&name), E_FAIL);
    EXPECT_EQ(part->RemoveSecurity(&name), E_FAIL);
    EXPECT_EQ(part->GetClassImplements(&list), E_FAIL);
    EXPECT_EQ(part->GetAllImplements(&list), E_FAIL);
    EXPECT_EQ(part->GetClassSecurities(&list), E_FAIL);
    EXPECT_EQ(part->GetAllSecurities(&list), E_FAIL);

    EXPECT_EQ(list.Size(), 0);
    EXPECT_EQ(Written(), "");
}

TEST_F(ZanDicClassTest, InheritedSetsItsFlagAndFails) {
    unsigned char inherited = 7;

    EXPECT_EQ(part->Inherited(nullptr, &inherited), E_FAIL);

    EXPECT_EQ(inherited, 0);
}

TEST_F(ZanDicClassTest, ExtensibleIsInheritedUntilItIsSet) {
    const auto screw = SubClass(*items, "Screw", *part);
    const auto bolt = SubClass(*items, "Bolt", *screw);
    unsigned char extensible = 0;
    EXPECT_EQ(part->SetExtensible(1), S_OK);

    EXPECT_EQ(bolt->GetExtensible(&extensible), S_FALSE);
    EXPECT_EQ(extensible, 1);
    EXPECT_EQ(screw->SetExtensible(0), S_OK);
    EXPECT_EQ(bolt->GetExtensible(&extensible), S_FALSE);
    EXPECT_EQ(extensible, 0);
    EXPECT_EQ(screw->GetExtensible(&extensible), S_OK);
    EXPECT_EQ(extensible, 0);
}

TEST_F(ZanDicClassTest, KVADerivableIsInheritedFromTheNearestThatHasOne) {
    const auto screw = SubClass(*items, "Screw", *part);
    const auto bolt = SubClass(*items, "Bolt", *screw);
    int derivable = 7;

    EXPECT_EQ(bolt->GetKVADerivable(&derivable), S_FALSE);
    EXPECT_EQ(derivable, 1);
    EXPECT_EQ(part->SetKVADerivable(OXMDicKVADERIVABLE_Yes), S_OK);
    EXPECT_EQ(bolt->GetKVADerivable(&derivable), S_OK);
    EXPECT_EQ(derivable, OXMDicKVADERIVABLE_Yes);
    EXPECT_EQ(screw->SetKVADerivable(0), S_OK);
    EXPECT_EQ(bolt->GetKVADerivable(&derivable), S_OK);
    EXPECT_EQ(derivable, 0);
}

TEST_F(ZanDicClassTest, GetClassKVADerivableTellsTheOwnValue) {
    const auto screw = SubClass(*items, "Screw", *part);
    int derivable = 7;
    EXPECT_EQ(part->SetKVADerivable(OXMDicKVADERIVABLE_Multiple), S_OK);

    EXPECT_EQ(screw->GetClassKVADerivable(&derivable), S_FALSE);
    EXPECT_EQ(derivable, 1);
    EXPECT_EQ(part->GetClassKVADerivable(&derivable), S_OK);
    EXPECT_EQ(derivable, OXMDicKVADERIVABLE_Multiple);
}

TEST_F(ZanDicClassTest, GetClassExtensibleTellsTheOwnValue) {
    const auto screw = SubClass(*items, "Screw", *part);
    unsigned char extensible = 7;
    EXPECT_EQ(part->SetExtensible(1), S_OK);

    EXPECT_EQ(screw->GetClassExtensible(&extensible), S_FALSE);
    EXPECT_EQ(extensible, 0);
    EXPECT_EQ(part->GetClassExtensible(&extensible), S_OK);
    EXPECT_EQ(extensible, 1);
    EXPECT_EQ(screw->SetExtensible(0), S_OK);
    EXPECT_EQ(screw->GetClassExtensible(&extensible), S_OK);
    EXPECT_EQ(extensible, 0);
}

TEST_F(ZanDicClassTest, RefersToAnotherClassUntilThatIsGone) {
    const auto other = Class(*items, "Other");
    OXMIDicClass* none = nullptr;
    Held<OXMIDicClass> reference;
    EXPECT_EQ(part->GetReference(&none), S_FALSE);

    EXPECT_EQ(part->SetReference(other.Get()), S_OK);
    EXPECT_EQ(part->GetReference(reference.Out()), S_OK);
    EXPECT_EQ(reference.Get(), other.Get());
    EXPECT_EQ(items->RemoveElement(Named("Other")), S_OK);

    EXPECT_EQ(part->GetReference(&none), S_FALSE);
    EXPECT_EQ(part->SetReference(other.Get()), E_FAIL);
}

TEST_F(ZanDicClassTest, FlushAllTracesEachStep) {
    const auto screw = SubClass(*items, "Screw", *part);
    Simple(*part, "Number");
    Unique(*part, "Key");
    TraceOnly("ZanDicClass::FlushAll\n");

    EXPECT_EQ(part->FlushAll(), S_OK);

    const std::string text = Written();
    const std::string before =
        "ZanDicClass::FlushAll- === start === .\n"
        "ZanDicClass::FlushAll- _Type=5 (Class), _Name=Part.\n"
        "ZanDicClass::FlushAll- @=0x";
    EXPECT_EQ(text.substr(0, before.size()), before);
    EXPECT_EQ(text.substr(text.find('\n', before.size()) + 1),
              "ZanDicClass::FlushAll- processing _ATTRIBUTES....\n"
              "ZanDicClass::FlushAll- processing _ATTRIBUTES[1]: Number, Type: 4 (Simple).\n"
              "ZanDicClass::FlushAll- rc[_ATTRIBUTES[1]->FlushAll]=OK.\n"
              "ZanDicClass::FlushAll- rc[ZanDictionary->Delete]=OK.\n"
              "ZanDicClass::FlushAll- after _ATTRIBUTES[1]->Release, RefCount=0.\n"
              "ZanHashList::RemoveAll _HASH.Size()=1, _LISTP.Size()=1\n"
              "ZanDicClass::FlushAll- processing _UNIQUES....\n"
              "ZanDicClass::FlushAll- processing _UNIQUES[1]: Key, Type: 15 (Unique).\n"
              "ZanDicClass::FlushAll- rc[_UNIQUES[1]->FlushAll]=OK.\n"
              "ZanDicClass::FlushAll- rc[ZanDictionary->Delete]=OK.\n"
              "ZanDicClass::FlushAll- after _UNIQUES[1]->Release, RefCount=0.\n"
              "ZanHashList::RemoveAll _HASH.Size()=1, _LISTP.Size()=1\n"
              "ZanDicClass::FlushAll- processing _METHODS....\n"
              "ZanHashList::RemoveAll _HASH.Size()=0, _LISTP.Size()=0\n"
              "ZanHashList::RemoveAll _HASH.Size()=0, _LISTP.Size()=0\n"
              "ZanDicClass::FlushAll- processing _COMMANDS....\n"
              "ZanHashList::RemoveAll _HASH.Size()=0, _LISTP.Size()=0\n"
              "ZanDicClass::FlushAll- processing _invSuperClass and _SuperClass....\n"
              "ZanDicClass::FlushAll- *** WARNING *** processing _AttributeBlocks: TO BE COMPLETED !.\n"
              "ZanDicClass::FlushAll- === exit === RC=OK.\n");
}

TEST_F(ZanDicClassTest, FlushAllDropsTheMembersAndTheSuperClass) {
    const auto screw = SubClass(*items, "Screw", *part);
    const auto number = Simple(*screw, "Number");
    HeldList list;
    OXMIDicClass* superClass = nullptr;
    EXPECT_EQ(AllOf(*screw), "Number ");

    EXPECT_EQ(screw->FlushAll(), S_OK);

    EXPECT_FALSE(IsRegistered(*number));
    EXPECT_TRUE(IsRegistered(*screw));
    EXPECT_EQ(AllOf(*screw), "");
    EXPECT_EQ(screw->GetSuperClass(&superClass), S_FALSE);
    EXPECT_EQ(part->GetSubClasses(&list), S_OK);
    EXPECT_EQ(list.Size(), 0);
}

TEST_F(ZanDicClassTest, FlushAllKeepsTheListOfSubClasses) {
    const auto screw = SubClass(*items, "Screw", *part);
    OXMIDicClass* superClass = nullptr;
    HeldList list;

    EXPECT_EQ(part->FlushAll(), S_OK);

    EXPECT_EQ(screw->GetSuperClass(&superClass), S_FALSE);
    EXPECT_EQ(part->GetSubClasses(&list), S_OK);
    EXPECT_EQ(NamesOf(list), "Screw ");
    EXPECT_EQ(part->SetSuperClass(screw.Get()), S_OK) << "it is no subclass any more";
}

TEST_F(ZanDicClassTest, ASubClassAttachesAgainAfterAFlush) {
    const auto screw = SubClass(*items, "Screw", *part);
    HeldList list;
    EXPECT_EQ(part->FlushAll(), S_OK);

    EXPECT_EQ(screw->SetSuperClass(part.Get()), S_OK);

    EXPECT_EQ(part->GetSubClasses(&list), S_OK);
    EXPECT_EQ(NamesOf(list), "Screw ");
}

TEST_F(ZanDicClassTest, OnceGoneItAnswersForItselfAndMakesNothing) {
    const auto screw = SubClass(*items, "Screw", *part);
    const auto bolt = SubClass(*items, "Bolt", *screw);
    const auto number = Simple(*screw, "Number");
    const ZELDbBinary uuid = NextUuid();
    screw->SetAbstract(1);
    EXPECT_EQ(items->RemoveElement(Named("Screw")), S_OK);
    OXMIDicElement* made = nullptr;
    OXMIDicUnique* unique = nullptr;
    OXMIDicClass* none = nullptr;
    OXMIDicElementH* found = nullptr;
    HeldList list;
    unsigned char abstract = 0;
    ZELString name;

    EXPECT_EQ(screw->Create(Named("New"), &uuid, OXMDicTYPE_Simple, &made), E_FAIL);
    EXPECT_EQ(screw->Create(Named("New"), OXMDicTYPE_Simple, &made), E_FAIL);
    EXPECT_EQ(screw->CreateUnique(Named("New"), &uuid, &unique), E_FAIL);
    EXPECT_EQ(screw->SetSuperClass(part.Get()), E_FAIL);
    EXPECT_EQ(screw->SetReference(part.Get()), E_FAIL);
    EXPECT_EQ(bolt->SetSuperClass(screw.Get()), E_FAIL);

    EXPECT_EQ(screw->GetName(&name), S_OK);
    EXPECT_EQ(name, ZELString("Screw"));
    EXPECT_EQ(screw->GetAbstract(&abstract), S_OK);
    EXPECT_EQ(abstract, 1);
    EXPECT_EQ(screw->GetSuperClass(&none), S_FALSE);
    EXPECT_EQ(bolt->GetSuperClass(&none), S_FALSE);
    EXPECT_EQ(number->GetOrigin(&none), S_FALSE);
    EXPECT_EQ(screw->GetSubClasses(&list), S_OK);
    EXPECT_EQ(screw->GetAllElements(&list), S_OK);
    EXPECT_EQ(part->GetSubClasses(&list), S_OK);
    EXPECT_EQ(list.Size(), 0);
    EXPECT_EQ(screw->FlushAll(), S_OK);
    EXPECT_EQ(Manager().Search(&uuid, &found), E_FAIL);
}

TEST_F(ZanDicClassTest, DumpsItselfAndAllItsAttributes) {
    ZanDicClass base("Base", TestUuid(1));
    const ZELString late("Late");
    base.SetLateType(&late);
    const ZELDbBinary uuid = TestUuid(2);
    {
        Held<OXMIDicSimple> number;
        base.CreateSimple(Named("Number"), &uuid, number.Out());
    }
    ClearWritten();

    base.Dump("the test");

    EXPECT_EQ(Written(),
              "ZanDicClass::Dump -  called by the test ------\n"
              "ZanDicElement::Dump -  called by the test ------\n"
              "ZanDicObj::Dump -  called by the test ------\n"
              "ZanDicObj::Dump - _Name=Base.\n"
              "ZanDicObj::Dump - _Uuid=00000000-0000-0000-0000000000000001.\n"
              "ZanDicObj::Dump - _Type=5-Class.\n"
              "ZanDicElement::Dump - _Alias=.\n"
              "ZanDicElement::Dump - _Visibility=1.\n"
              "ZanDicClass::Dump - _LateType=Late.\n"
              "ZanDicClass::Dump - _ApplicationName=.\n"
              "ZanDicClass::Dump - _Persistent=1.\n"
              "ZanDicClass::Dump - _Extension=1.\n"
              "ZanDicClass::Dump - calling this->GetAllElements()....\n"
              "ZanDicClass::Dump - rc this->GetAllElements()=0.\n"
              "ZanDicClass::Dump - size of allElements=1.\n"
              "ZanDicClass::Dump - [1]- Type=4, Uuid=00000000-0000-0000-0000000000000002, Name=Number.\n");
}

}  // namespace
