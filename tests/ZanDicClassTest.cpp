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
    const ZELDbBinary uuid = NextUuid();
    const ZELString name("X");
    IUnknown* unknown = nullptr;
    OXMIDicMethod* method = nullptr;
    OXMIDicInterface* interface = nullptr;
    HeldList list;
    unsigned char flag = 7;
    ClearWritten();

    EXPECT_EQ(part->CreateImplement(&name, &unknown), E_FAIL);
    EXPECT_EQ(part->CreateSecurity(&name, &unknown), E_FAIL);
    EXPECT_EQ(part->RemoveImplement(&name), E_FAIL);
    EXPECT_EQ(part->RemoveSecurity(&name), E_FAIL);
    EXPECT_EQ(part->RemoveMethod(&name), E_FAIL);
    EXPECT_EQ(part->GetClassImplements(&list), E_FAIL);
    EXPECT_EQ(part->GetAllImplements(&list), E_FAIL);
    EXPECT_EQ(part->GetClassSecurities(&list), E_FAIL);
    EXPECT_EQ(part->GetAllSecurities(&list), E_FAIL);
    EXPECT_EQ(part->CreateMethod(&name, &uuid, &method), E_FAIL);
    EXPECT_EQ(part->GetMethods(&list), E_FAIL);
    EXPECT_EQ(part->GetSuperInterface(&interface), E_FAIL);
    EXPECT_EQ(part->HasAttBlocks(&flag), E_FAIL);
    EXPECT_EQ(part->GetAttBlocks(&list), E_FAIL);

    EXPECT_EQ(list.Size(), 0);
    EXPECT_EQ(Written(), "");
}

TEST_F(ZanDicClassTest, InheritedSetsItsFlagAndFails) {
    unsigned char inherited = 7;

    EXPECT_EQ(part->Inherited(nullptr, &inherited), E_FAIL);

    EXPECT_EQ(inherited, 0);
}

TEST_F(ZanDicClassTest, ARootHasNoSuperClass) {
    OXMIDicClass* superClass = nullptr;
    ZELString name("before");
    HeldList list;

    EXPECT_EQ(part->GetSuperClass(&superClass), S_FALSE);
    EXPECT_EQ(part->GetSuperName(&name), S_FALSE);
    EXPECT_EQ(part->GetSuperClasses(&list), S_FALSE);
    EXPECT_EQ(part->GetSubClasses(&list), S_OK);

    EXPECT_EQ(superClass, nullptr);
    EXPECT_EQ(name, ZELString("before"));
    EXPECT_EQ(list.Size(), 0);
}

TEST_F(ZanDicClassTest, GetSuperClassesAlwaysEndsWithOne) {
    const auto screw = SubClass(*items, "Screw", *part);
    const auto bolt = SubClass(*items, "Bolt", *screw);
    HeldList list;
    ZELString name;
    Held<OXMIDicClass> superClass;

    EXPECT_EQ(bolt->GetSuperClasses(&list), S_FALSE);
    EXPECT_EQ(bolt->GetSuperClass(superClass.Out()), S_OK);
    EXPECT_EQ(bolt->GetSuperName(&name), S_OK);

    EXPECT_EQ(NamesOf(list), "Screw Part ");
    EXPECT_EQ(superClass.Get(), screw.Get());
    EXPECT_EQ(name, ZELString("Screw"));
}

TEST_F(ZanDicClassTest, ListsItsSubClassesInTheOrderOfAttachment) {
    const auto screw = SubClass(*items, "Screw", *part);
    const auto bolt = SubClass(*items, "Bolt", *part);
    HeldList list;

    EXPECT_EQ(screw->SetSuperClass(part.Get()), S_OK);
    EXPECT_EQ(part->GetSubClasses(&list), S_OK);

    EXPECT_EQ(NamesOf(list), "Bolt Screw ");
}

TEST_F(ZanDicClassTest, TwoSubClassesOfOneNameBothAttach) {
    const auto documents = Package("Documents");
    const auto screw = SubClass(*items, "Screw", *part);
    const auto drawnScrew = SubClass(*documents, "Screw", *part);
    HeldList list;

    EXPECT_EQ(part->GetSubClasses(&list), S_OK);
    EXPECT_EQ(NamesOf(list), "Screw Screw ");

    list.Clear();
    RemovePackage("Documents");
    EXPECT_EQ(part->GetSubClasses(&list), S_OK);
    ASSERT_EQ(list.Size(), 1);
    EXPECT_TRUE(SameObject(*list[1], *screw));
}

TEST_F(ZanDicClassTest, MovesToAnotherSuperClass) {
    const auto tool = Class(*items, "Tool");
    const auto screw = SubClass(*items, "Screw", *part);
    HeldList before;
    HeldList after;

    EXPECT_EQ(screw->SetSuperClass(tool.Get()), S_OK);

    EXPECT_EQ(part->GetSubClasses(&before), S_OK);
    EXPECT_EQ(tool->GetSubClasses(&after), S_OK);
    EXPECT_EQ(NamesOf(before), "");
    EXPECT_EQ(NamesOf(after), "Screw ");
}

TEST_F(ZanDicClassTest, KeepsItsSuperClassWhenTheNewOneIsRefused) {
    const auto screw = SubClass(*items, "Screw", *part);
    const auto bolt = SubClass(*items, "Bolt", *screw);
    const auto gone = Class(*items, "Gone");
    ZELString name;
    EXPECT_EQ(items->RemoveElement(Named("Gone")), S_OK);
    ClearWritten();

    EXPECT_EQ(screw->SetSuperClass(nullptr), E_FAIL);
    EXPECT_EQ(screw->SetSuperClass(screw.Get()), E_FAIL);
    EXPECT_EQ(screw->SetSuperClass(bolt.Get()), E_FAIL);
    EXPECT_EQ(part->SetSuperClass(bolt.Get()), E_FAIL);
    EXPECT_EQ(Written(), "");
    EXPECT_EQ(screw->SetSuperClass(gone.Get()), E_FAIL);

    EXPECT_EQ(screw->GetSuperName(&name), S_OK);
    EXPECT_EQ(name, ZELString("Part"));
    EXPECT_EQ(part->GetSuperName(&name), S_FALSE);
    EXPECT_EQ(Written(),
              "ZanDicClass::SetSuperClass- *** ERROR *** Could not get implementation from OXMIDicClass.\n");
}

TEST_F(ZanDicClassTest, AClassIsNeverBelowAnExtension) {
    ZanDicClass extension("More", TestUuid(1));
    extension.set_TYPE(OXMDicTYPE_Extension);
    ZanDicClass super("Base", TestUuid(2));
    {
        Held<OXMIDicClass> superFace;
        Held<OXMIDicClass> extensionFace;
        super.QueryInterface(IID_OXMIDicClass, superFace.OutVoid());
        extension.QueryInterface(IID_OXMIDicClass, extensionFace.OutVoid());
        ClearWritten();

        EXPECT_EQ(part->SetSuperClass(extensionFace.Get()), E_FAIL);
        EXPECT_EQ(extension.SetSuperClass(superFace.Get()), S_OK);
    }

    EXPECT_EQ(extension.get_SuperClass(), &super);
    EXPECT_EQ(Written(), "");
}

TEST_F(ZanDicClassTest, LosesASuperClassThatIsGone) {
    const auto documents = Package("Documents");
    const auto sheet = Class(*documents, "Sheet");
    const auto drawing = SubClass(*items, "Drawing", *sheet);
    const auto size = Simple(*sheet, "Size");
    OXMIDicClass* superClass = nullptr;
    OXMIDicElement* found = nullptr;
    EXPECT_EQ(AllOf(*drawing), "Size ");

    RemovePackage("Documents");

    EXPECT_EQ(drawing->GetSuperClass(&superClass), S_FALSE);
    EXPECT_EQ(drawing->GetElement(Named("Size"), &found), E_FAIL);
    EXPECT_EQ(AllOf(*drawing), "");
    EXPECT_EQ(drawing->SetSuperClass(sheet.Get()), E_FAIL);
}

TEST_F(ZanDicClassTest, FindsAttributesNearestFirst) {
    const auto screw = SubClass(*items, "Screw", *part);
    const auto number = Simple(*part, "Number");
    const auto own = Simple(*screw, "Number");
    const auto weight = Simple(*part, "Weight");
    Held<OXMIDicElement> found;
    OXMIDicElement* missing = nullptr;

    EXPECT_EQ(screw->GetElement(Named("Number"), found.Out()), S_OK);
    EXPECT_TRUE(SameObject(*found, *own));
    EXPECT_EQ(screw->GetElement(Named("Weight"), found.Out()), S_OK);
    EXPECT_TRUE(SameObject(*found, *weight));
    EXPECT_EQ(screw->GetClassElement(Named("Weight"), &missing), E_FAIL);
    EXPECT_EQ(screw->GetElement(Named("Missing"), &missing), E_FAIL);

    EXPECT_EQ(missing, nullptr);
}

TEST_F(ZanDicClassTest, ARedefinitionStandsAtTheInheritedPosition) {
    const auto first = Simple(*part, "a1");
    const auto second = Simple(*part, "a2");
    const auto screw = SubClass(*items, "Screw", *part);
    const auto added = Simple(*screw, "b1");
    const auto redefined = Simple(*screw, "a2");
    Held<OXMIDicElement> specialized;
    OXMIDicElement* none = nullptr;
    HeldList all;
    EXPECT_EQ(redefined->GetSpecializedAttribute(&none), S_FALSE);

    EXPECT_EQ(screw->GetAllElements(&all), S_OK);

    EXPECT_EQ(NamesOf(all), "a1 a2 b1 ");
    EXPECT_TRUE(SameObject(*all[2], *redefined));
    EXPECT_EQ(redefined->GetSpecializedAttribute(specialized.Out()), S_OK);
    EXPECT_TRUE(SameObject(*specialized, *second));
    EXPECT_EQ(added->GetSpecializedAttribute(&none), S_FALSE);
}

TEST_F(ZanDicClassTest, AsksEveryLevelFromTheRoot) {
    const auto screw = SubClass(*items, "Screw", *part);
    const auto bolt = SubClass(*items, "Bolt", *screw);
    const auto a = Simple(*part, "a");
    const auto b = Simple(*part, "b");
    const auto screwB = Simple(*screw, "b");
    const auto c = Simple(*screw, "c");
    const auto boltB = Simple(*bolt, "b");
    const auto d = Simple(*bolt, "d");
    Held<OXMIDicElement> specialized;

    EXPECT_EQ(AllOf(*bolt), "a b c d ");

    EXPECT_EQ(boltB->GetSpecializedAttribute(specialized.Out()), S_OK);
    EXPECT_TRUE(SameObject(*specialized, *screwB));
    EXPECT_EQ(screwB->GetSpecializedAttribute(specialized.Out()), S_OK);
    EXPECT_TRUE(SameObject(*specialized, *b));
}

TEST_F(ZanDicClassTest, ANewAttributeShowsHereAndBelow) {
    const auto screw = SubClass(*items, "Screw", *part);
    const auto bolt = SubClass(*items, "Bolt", *screw);
    const auto a = Simple(*part, "a");
    EXPECT_EQ(AllOf(*bolt), "a ");
    EXPECT_EQ(AllOf(*screw), "a ");

    const auto b = Simple(*part, "b");
    const auto c = Simple(*screw, "c");

    EXPECT_EQ(AllOf(*part), "a b ");
    EXPECT_EQ(AllOf(*screw), "a b c ");
    EXPECT_EQ(AllOf(*bolt), "a b c ");
}

TEST_F(ZanDicClassTest, ARemovedAttributeStaysInAnAnswerThatWasComputed) {
    const auto screw = SubClass(*items, "Screw", *part);
    const auto a = Simple(*part, "a");
    const auto b = Simple(*screw, "b");
    EXPECT_EQ(AllOf(*screw), "a b ");

    EXPECT_EQ(screw->RemoveElement(Named("b")), S_OK);
    EXPECT_EQ(AllOf(*screw), "a b ");

    const auto bolt = SubClass(*items, "Bolt", *screw);
    EXPECT_EQ(AllOf(*bolt), "a ");
    EXPECT_EQ(AllOf(*screw), "a ") << "what is asked below refreshes what is above";
}

TEST_F(ZanDicClassTest, ANewSuperClassAboveLeavesComputedAnswersBelow) {
    const auto screw = SubClass(*items, "Screw", *part);
    const auto bolt = SubClass(*items, "Bolt", *screw);
    const auto a = Simple(*part, "a");
    const auto tool = Class(*items, "Tool");
    EXPECT_EQ(AllOf(*bolt), "a ");
    const auto t = Simple(*tool, "t");

    EXPECT_EQ(screw->SetSuperClass(tool.Get()), S_OK);

    EXPECT_EQ(AllOf(*bolt), "a ");
    EXPECT_EQ(AllOf(*screw), "t ");
    EXPECT_EQ(AllOf(*bolt), "a ");
    EXPECT_EQ(bolt->SetSuperClass(screw.Get()), S_OK);
    EXPECT_EQ(AllOf(*bolt), "t ");
}

TEST_F(ZanDicClassTest, AFormerRedefinitionIsNotListedAgain) {
    const auto tool = Class(*items, "Tool");
    const auto screw = SubClass(*items, "Screw", *part);
    const auto a = Simple(*part, "a");
    const auto own = Simple(*screw, "a");
    const auto t = Simple(*tool, "t");
    EXPECT_EQ(AllOf(*screw), "a ");

    EXPECT_EQ(screw->SetSuperClass(tool.Get()), S_OK);

    EXPECT_EQ(AllOf(*screw), "t ");
}

TEST_F(ZanDicClassTest, ARedefinitionOfWhatIsGoneIsListedAsItsOwn) {
    const auto documents = Package("Documents");
    const auto sheet = Class(*documents, "Sheet");
    const auto sheetSize = Simple(*sheet, "Size");
    const auto drawing = SubClass(*items, "Drawing", *sheet);
    const auto size = Simple(*drawing, "Size");
    const auto scale = Simple(*drawing, "Scale");
    EXPECT_EQ(AllOf(*drawing), "Size Scale ");
    OXMIDicElement* none = nullptr;

    RemovePackage("Documents");

    EXPECT_EQ(size->GetSpecializedAttribute(&none), S_FALSE);
    EXPECT_EQ(AllOf(*drawing), "Size Scale ");
    EXPECT_EQ(drawing->SetSuperClass(part.Get()), S_OK);
    EXPECT_EQ(AllOf(*drawing), "Size Scale ");
}

TEST_F(ZanDicClassTest, ARootAnswersFromItsOwnAttributes) {
    const auto a = Simple(*part, "a");
    EXPECT_EQ(AllOf(*part), "a ");

    EXPECT_EQ(part->RemoveElement(Named("a")), S_OK);

    EXPECT_EQ(AllOf(*part), "") << "nothing had been computed";
}

TEST_F(ZanDicClassTest, ARootKeepsTheAnswerThatASubClassComputed) {
    const auto screw = SubClass(*items, "Screw", *part);
    const auto a = Simple(*part, "a");
    EXPECT_EQ(AllOf(*screw), "a ");

    EXPECT_EQ(part->RemoveElement(Named("a")), S_OK);

    EXPECT_EQ(AllOf(*part), "a ");
}

TEST_F(ZanDicClassTest, GetAllElementsAcceptsNoList) {
    const auto screw = SubClass(*items, "Screw", *part);
    const auto a = Simple(*part, "a");

    EXPECT_EQ(screw->GetAllElements(nullptr), S_OK);
    EXPECT_EQ(part->GetAllElements(nullptr), S_OK);
}

TEST_F(ZanDicClassTest, ARenamedAttributeRedefinesUnderItsFirstName) {
    const auto screw = SubClass(*items, "Screw", *part);
    const auto a = Simple(*part, "a");
    const auto b = Simple(*part, "b");
    const auto own = Simple(*screw, "x");
    EXPECT_EQ(AllOf(*screw), "a b x ");
    const auto late = SubClass(*items, "Late", *screw);

    EXPECT_EQ(a->SetName(Named("x")), S_OK);

    HeldList all;
    EXPECT_EQ(late->GetAllElements(&all), S_OK);
    EXPECT_EQ(NamesOf(all), "x b ");
    EXPECT_TRUE(SameObject(*all[1], *own));
}

TEST_F(ZanDicClassTest, ADeepHierarchyAnswersAtEveryLevel) {
    constexpr int kDepth = 60;  // beyond where inherited attributes are searched one by one
    std::vector<Held<OXMIDicClass>> chain;
    chain.push_back(Class(*items, "C0"));
    std::string expected;
    for (int level = 0; level < kDepth; ++level) {
        if (level != 0)
            chain.push_back(SubClass(*items, ("C" + std::to_string(level)).c_str(), *chain.back()));
        const std::string name = "a" + std::to_string(level % 40);
        Simple(*chain.back(), name.c_str());
        if (level < 40) expected += name + " ";
    }
    Held<OXMIDicElement> redefined;
    Held<OXMIDicElement> inherited;

    EXPECT_EQ(AllOf(*chain.back()), expected);

    EXPECT_EQ(AllOf(*chain[1]), "a0 a1 ");
    EXPECT_EQ(chain[45]->GetClassElement(Named("a5"), redefined.Out()), S_OK);
    EXPECT_EQ(QueryFor<OXMIDicAttribute>(*redefined)->GetSpecializedAttribute(inherited.Out()), S_OK);
    Held<OXMIDicElement> first;
    EXPECT_EQ(chain[5]->GetClassElement(Named("a5"), first.Out()), S_OK);
    EXPECT_TRUE(SameObject(*inherited, *first));
}

TEST_F(ZanDicClassTest, AHundredThousandLevelsAreNoLimit) {
    constexpr int kDepth = 100000;
    std::vector<Held<OXMIDicClass>> chain;
    chain.push_back(Class(*items, "C0"));
    for (int level = 1; level < kDepth; ++level) {
        chain.push_back(SubClass(*items, ("C" + std::to_string(level)).c_str(), *chain.back()));
    }
    const auto number = Simple(*chain.front(), "Number");
    Held<OXMIDicElement> found;
    unsigned char extensible = 7;
    int derivable = 0;
    HeldList supers;

    for (const auto& level : chain) ASSERT_EQ(level->GetAllElements(nullptr), S_OK);
    EXPECT_EQ(AllOf(*chain.back()), "Number ");
    EXPECT_EQ(chain.back()->GetElement(Named("Number"), found.Out()), S_OK);
    EXPECT_EQ(chain.back()->GetExtensible(&extensible), S_FALSE);
    EXPECT_EQ(chain.back()->GetKVADerivable(&derivable), S_FALSE);
    EXPECT_EQ(chain.back()->GetSuperClasses(&supers), S_FALSE);
    EXPECT_EQ(supers.Size(), kDepth - 1);
    EXPECT_EQ(chain.front()->SetSuperClass(chain.back().Get()), E_FAIL);
}

TEST_F(ZanDicClassTest, ALongChainOfAttributesIsAskedAtItsEndOnly) {
    constexpr int kDepth = 20000;
    Held<OXMIDicClass> last = Class(*items, "C0");
    Simple(*last, "a0");
    for (int level = 1; level < kDepth; ++level) {
        last = SubClass(*items, ("C" + std::to_string(level)).c_str(), *last);
        Simple(*last, ("a" + std::to_string(level)).c_str());
    }
    HeldList all;

    EXPECT_EQ(last->GetAllElements(&all), S_OK);

    EXPECT_EQ(all.Size(), kDepth);
}

TEST_F(ZanDicClassTest, FiftyThousandSubClassesAttachAndLeave) {
    constexpr std::size_t kCount = 50000;
    const auto documents = Package("Documents");
    const auto tool = Class(*items, "Tool");
    std::vector<Held<OXMIDicClass>> subClasses;
    for (std::size_t number = 0; number < kCount; ++number) {
        subClasses.push_back(SubClass(*documents, ("S" + std::to_string(number)).c_str(), *part));
    }
    HeldList list;

    for (std::size_t number = 0; number < kCount; number += 2) subClasses[number]->SetSuperClass(tool.Get());

    EXPECT_EQ(part->GetSubClasses(&list), S_OK);
    EXPECT_EQ(list.Size(), 25000);
    EXPECT_TRUE(SameObject(*list[1], *subClasses[1]));
    list.Clear();
    RemovePackage("Documents");
    EXPECT_EQ(part->GetSubClasses(&list), S_OK);
    EXPECT_EQ(tool->GetSubClasses(&list), S_OK);
    EXPECT_EQ(list.Size(), 0);
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

TEST_F(ZanDicClassTest, GathersTheInjectivesThatPointAtItAndAbove) {
    const auto screw = SubClass(*items, "Screw", *part);
    const auto bolt = SubClass(*items, "Bolt", *screw);
    const auto owner = Class(*items, "Owner");
    const auto toBolt = Relationship(*owner, "toBolt");
    const auto toPart = Relationship(*owner, "toPart");
    const auto toScrew = Relationship(*owner, "toScrew");
    const auto plain = Relationship(*owner, "plain");
    const auto late = Relationship(*owner, "late");
    toBolt->SetInjective(1);
    toPart->SetInjective(1);
    toScrew->SetInjective(1);
    toBolt->SetTarget(bolt.Get());
    toPart->SetTarget(part.Get());
    toScrew->SetTarget(screw.Get());
    plain->SetTarget(bolt.Get());
    late->SetTarget(bolt.Get());
    late->SetInjective(1);
    HeldList injectives;

    EXPECT_EQ(bolt->GetInjectivesPointingOnMe(injectives), S_OK);

    EXPECT_EQ(NamesOf(injectives), "toScrew toPart toBolt ");
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
