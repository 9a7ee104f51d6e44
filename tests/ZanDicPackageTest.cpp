#include "ZanDicPackage.h"

#include "ModelFixture.h"

namespace {

class ZanDicPackageTest : public ModelFixture {
protected:
    Held<OXMIDicPackage> items = Package("Items");
};

TEST_F(ZanDicPackageTest, EntersTheRegistryWhenItIsBuilt) {
    const ZELString name("Built");
    const ZELDbBinary uuid = NextUuid();
    Held<OXMIDicElementH> found;

    Held<ZanDicPackage> package(new ZanDicPackage(&name, &uuid, nullptr));

    EXPECT_TRUE(package->is_Registered());
    EXPECT_EQ(Manager().Search(&uuid, found.Out()), S_OK);
    EXPECT_EQ(package->Type(), OXMDicTYPE_Package);
    EXPECT_EQ(package->get_type(), ZanDicObj::_type_Package);
    EXPECT_STREQ(package->IsA(), "ZanDicPackage");
    found.Reset();
    package.Reset();
    EXPECT_EQ(Manager().Search(&uuid, found.Out()), E_FAIL);
}

TEST_F(ZanDicPackageTest, TellsWhetherItsRegistrationWorked) {
    const ZELString name("Built");
    ZELDbBinary uuid;
    items->GetUuid(&uuid);

    const Held<ZanDicPackage> package(new ZanDicPackage(&name, &uuid, nullptr));

    EXPECT_FALSE(package->is_Registered());
    EXPECT_TRUE(IsRegistered(*items));
}

TEST_F(ZanDicPackageTest, HasNullTextsAtFirst) {
    ZELUnicodeString alias("before");
    ZELUnicodeString level("before");

    EXPECT_EQ(items->GetAlias(&alias), S_FALSE);
    EXPECT_EQ(items->GetExpositionLevel(&level), S_FALSE);

    EXPECT_EQ(alias, ZELUnicodeString("before"));
    EXPECT_TRUE(level.IsNull());
}

TEST_F(ZanDicPackageTest, KeepsItsTexts) {
    const ZELUnicodeString text("Stock");
    const ZELString duvra("DUVRA");
    ZELUnicodeString alias;
    ZELUnicodeString level;
    ZELString domain;

    EXPECT_EQ(items->GetDomain(&domain), S_OK);
    EXPECT_EQ(domain, ZELString("VALKOR"));
    EXPECT_EQ(items->SetAlias(&text), S_OK);
    EXPECT_EQ(items->SetExpositionLevel(&text), S_OK);
    EXPECT_EQ(items->SetDomain(&duvra), S_OK);

    EXPECT_EQ(items->GetAlias(&alias), S_OK);
    EXPECT_EQ(items->GetExpositionLevel(&level), S_OK);
    EXPECT_EQ(items->GetDomain(&domain), S_OK);
    EXPECT_EQ(alias, text);
    EXPECT_EQ(level, text);
    EXPECT_EQ(domain, duvra);
}

TEST_F(ZanDicPackageTest, RefusesNullArguments) {
    const ZELDbBinary uuid = NextUuid();
    OXMIDicClass* made = nullptr;
    OXMIDicElement* found = nullptr;
    ClearWritten();

    EXPECT_EQ(items->SetAlias(nullptr), E_FAIL);
    EXPECT_EQ(items->GetAlias(nullptr), E_FAIL);
    EXPECT_EQ(items->SetExpositionLevel(nullptr), E_FAIL);
    EXPECT_EQ(items->GetExpositionLevel(nullptr), E_FAIL);
    EXPECT_EQ(items->SetDomain(nullptr), E_FAIL);
    EXPECT_EQ(items->GetDomain(nullptr), E_FAIL);
    EXPECT_EQ(items->AddUsedPackage(nullptr), E_FAIL);
    EXPECT_EQ(items->AddScopePackage(nullptr), E_FAIL);
    EXPECT_EQ(items->GetUsedPackages(nullptr), E_FAIL);
    EXPECT_EQ(items->GetScopePackages(nullptr), E_FAIL);
    EXPECT_EQ(items->GetElements(nullptr), E_FAIL);
    EXPECT_EQ(items->GetAllElements(nullptr), E_FAIL);
    EXPECT_EQ(items->GetClasses(nullptr), E_FAIL);
    EXPECT_EQ(items->GetCommands(nullptr), E_FAIL);
    EXPECT_EQ(items->GetElement(nullptr, &found), E_FAIL);
    EXPECT_EQ(items->GetElementR(nullptr, &found), E_FAIL);
    EXPECT_EQ(items->RemoveElement(nullptr), E_FAIL);
    EXPECT_EQ(items->CreateClass(nullptr, &uuid, &made), E_FAIL);
    EXPECT_EQ(items->CreateClass(Named("Part"), nullptr, &made), E_FAIL);
    EXPECT_EQ(items->CreateClass(Named("Part"), &uuid, nullptr), E_FAIL);
    EXPECT_EQ(items->CreateClass(nullptr, &made), E_FAIL);

    EXPECT_EQ(made, nullptr);
    EXPECT_EQ(Written(), "");
}

TEST_F(ZanDicPackageTest, MakesRegistersAndFindsElements) {
    const auto part = Class(*items, "Part");
    const auto colour = Enum(*items, "Colour");
    const auto weight = Category(*items, "Weight");
    HeldList elements;
    HeldList classes;
    Held<OXMIDicElement> found;

    EXPECT_EQ(items->GetElements(&elements), S_OK);
    EXPECT_EQ(items->GetClasses(&classes), S_OK);
    EXPECT_EQ(items->GetElement(Named("Colour"), found.Out()), S_OK);

    EXPECT_EQ(NamesOf(elements), "Part Colour Weight ");
    EXPECT_EQ(NamesOf(classes), "Part ");
    EXPECT_EQ(static_cast<void*>(found.Get()), colour.Get());
    EXPECT_TRUE(IsRegistered(*part));
    EXPECT_TRUE(IsRegistered(*weight));
}

TEST_F(ZanDicPackageTest, ListsNothingWhenEmpty) {
    HeldList list;

    EXPECT_EQ(items->GetElements(&list), S_OK);
    EXPECT_EQ(items->GetAllElements(&list), S_OK);
    EXPECT_EQ(items->GetClasses(&list), S_OK);
    EXPECT_EQ(items->GetUsedPackages(&list), S_OK);
    EXPECT_EQ(items->GetScopePackages(&list), S_OK);
    EXPECT_EQ(items->GetCommands(&list), S_OK);

    EXPECT_EQ(list.Size(), 0);
}

TEST_F(ZanDicPackageTest, RefusesASecondElementOfOneNameWhateverItsKind) {
    Class(*items, "Part");
    const ZELDbBinary uuid = NextUuid();
    OXMIDicEnum* made = nullptr;
    OXMIDicElementH* found = nullptr;
    ClearWritten();

    EXPECT_EQ(items->CreateEnum(Named("Part"), &uuid, &made), E_FAIL);

    EXPECT_EQ(made, nullptr);
    EXPECT_EQ(Manager().Search(&uuid, &found), E_FAIL);
    EXPECT_EQ(Written(), "");
}

TEST_F(ZanDicPackageTest, KeepsAnElementWhoseUuidIsTaken) {
    const auto part = Class(*items, "Part");
    ZELDbBinary uuid;
    part->GetUuid(&uuid);
    Held<OXMIDicEnum> colour;
    HeldList elements;
    ClearWritten();

    EXPECT_EQ(items->CreateEnum(Named("Colour"), &uuid, colour.Out()), E_FAIL);

    ASSERT_TRUE(colour);
    EXPECT_EQ(items->GetElements(&elements), S_OK);
    EXPECT_EQ(NamesOf(elements), "Part Colour ");
    EXPECT_EQ(Written(),
              "ZanDictionary::Insert- *** ERROR *** Dictionary violation: Uuid is not unique:"
              "000000000000000000000000000003EA.\n"
              "ZanDictionary::Insert- Conflicting object: Type=3, Name=Colour, from Package=Items.\n");
}

TEST_F(ZanDicPackageTest, TheFormsWithoutUuidWarnAndDrawOne) {
    Held<OXMIDicClass> part;
    Held<OXMIDicEnum> colour;
    Held<OXMIDicCategory> weight;
    TraceFromNow(-1);

    EXPECT_EQ(items->CreateClass(Named("Part"), part.Out()), S_OK);
    EXPECT_EQ(items->CreateEnum(Named("Colour"), colour.Out()), S_OK);
    EXPECT_EQ(items->CreateCategory(Named("Weight"), weight.Out()), S_OK);

    ZELDbBinary uuid;
    EXPECT_EQ(part->GetUuid(&uuid), S_OK);
    EXPECT_EQ(uuid.Length(), 16);
    EXPECT_EQ(
        Written(),
        "ZanDicPackage::CreateClass - *** WARNING *** This method is now obsolete. Uuid will be assigned "
        "dynamically.\n"
        "ZanDicPackage::CreateEnum - *** WARNING *** This method is now obsolete. Uuid will be assigned "
        "dynamically.\n"
        "ZanDicPackage::CreateCategory - *** WARNING *** This method is now obsolete. Uuid will be assigned "
        "dynamically.\n");
}

TEST_F(ZanDicPackageTest, DoesNotMakeTheKindsThatAreNotAvailable) {
    const ZELDbBinary uuid = NextUuid();
    const ZELString name("New");
    OXMIDicExtension* extension = nullptr;
    OXMIDicInterface* interface = nullptr;
    OXMIDicRBOClass* rboClass = nullptr;
    OXMIDicRBOMapping* mapping = nullptr;
    OXMIDicAttributeBlock* block = nullptr;
    ClearWritten();

    EXPECT_EQ(items->CreateExtension(&name, &uuid, &extension), E_FAIL);
    EXPECT_EQ(items->CreateInterface(&name, &uuid, &interface), E_FAIL);
    EXPECT_EQ(items->CreateRBOClass(&name, &uuid, &rboClass), E_FAIL);
    EXPECT_EQ(items->CreateRBOMapping(&name, &uuid, &mapping), E_FAIL);
    EXPECT_EQ(items->CreateRBOMapping(&name, &mapping), E_FAIL);
    EXPECT_EQ(items->CreateAttributeBlock(&uuid, &block), E_FAIL);
    EXPECT_EQ(items->GetRBOClass(&name, &rboClass), E_FAIL);
    EXPECT_EQ(items->ComputeAttributeBlocks(nullptr), E_FAIL);

    EXPECT_EQ(Written(), "");
}

TEST_F(ZanDicPackageTest, HasNoVersionAndNoInterfaces) {
    int version = 7;
    HeldList list;
    ClearWritten();

    EXPECT_EQ(items->GetVersion(&version), E_FAIL);
    EXPECT_EQ(items->SetVersion(1), E_FAIL);
    EXPECT_EQ(items->GetInterfaces(&list), E_FAIL);

    EXPECT_EQ(version, 7);
    EXPECT_EQ(Written(), "");
}

TEST_F(ZanDicPackageTest, CommandsAndBusinessObjectsAreDeprecated) {
    const ZELDbBinary uuid = NextUuid();
    const ZELString name("New");
    OXMIDicCommand* command = nullptr;
    OXMIDicBObject* object = nullptr;
    ClearWritten();

    EXPECT_EQ(items->CreateCommand(&name, &uuid, &command), E_FAIL);
    EXPECT_EQ(items->CreateCommand(&name, &command), E_FAIL);
    EXPECT_EQ(items->CreateBObject(&name, &uuid, &object), E_FAIL);
    EXPECT_EQ(items->CreateBObject(&name, &object), E_FAIL);

    EXPECT_EQ(
        Written(),
        "ZanDicPackage::CreateCommand- *** ERROR *** Deprecated functionnality. Should not be used anymore.\n"
        "ZanDicPackage::CreateCommand- *** ERROR *** Deprecated functionnality. Should not be used anymore.\n"
        "ZanDicPackage::CreateBObject- *** ERROR *** Deprecated functionnality. Should not be used anymore.\n"
        "ZanDicPackage::CreateBObject- *** ERROR *** Deprecated functionnality. Should not be used "
        "anymore.\n");
}

TEST_F(ZanDicPackageTest, ANegativeLevelSilencesTheDeprecatedNotice) {
    OXMIDicCommand* command = nullptr;
    TraceFromNow(-1);

    EXPECT_EQ(items->CreateCommand(Named("New"), &command), E_FAIL);

    EXPECT_EQ(Written(), "");
}

TEST_F(ZanDicPackageTest, RefusesCommands) {
    EXPECT_EQ(items->AddCommand(nullptr), E_FAIL);
    EXPECT_EQ(items->RemoveCommand(nullptr), E_FAIL);
}

TEST_F(ZanDicPackageTest, GetRBOMappingSaysWhyItFails) {
    const auto part = Class(*items, "Part");
    OXMIDicRBOMapping* mapping = nullptr;
    // No object answers that interface: any other stands in for it.
    const auto* foreign = reinterpret_cast<const OXMIDicRBOClass*>(part.Get());
    ClearWritten();

    EXPECT_EQ(items->GetRBOMapping(nullptr, &mapping), E_FAIL);
    EXPECT_EQ(items->GetRBOMapping(foreign, &mapping), E_FAIL);

    EXPECT_EQ(Written(),
              "ZanDicPackage::GetRBOMapping - 997- *** ERROR *** Null input argument.\n"
              "ZanDicPackage::GetRBOMapping - 992- *** ERROR *** Unable to get ZanDicRBOClass from "
              "OXMIDicRBOClass.\n");
}

TEST_F(ZanDicPackageTest, NotesUsedAndScopePackagesOnce) {
    const auto people = Package("People");
    HeldList used;
    HeldList scopes;

    EXPECT_EQ(items->AddUsedPackage(people.Get()), S_OK);
    EXPECT_EQ(items->AddUsedPackage(people.Get()), E_FAIL);
    EXPECT_EQ(items->AddScopePackage(people.Get()), S_OK);

    EXPECT_EQ(items->GetUsedPackages(&used), S_OK);
    EXPECT_EQ(items->GetScopePackages(&scopes), S_OK);
    EXPECT_EQ(NamesOf(used), "People ");
    EXPECT_EQ(NamesOf(scopes), "People ");
}

TEST_F(ZanDicPackageTest, AUsedPackageThatIsGoneCountsAsAbsent) {
    auto people = Package("People");
    HeldList used;
    EXPECT_EQ(items->AddUsedPackage(people.Get()), S_OK);
    EXPECT_EQ(items->AddScopePackage(people.Get()), S_OK);

    RemovePackage("People");

    EXPECT_EQ(items->GetUsedPackages(&used), S_OK);
    EXPECT_EQ(items->GetScopePackages(&used), S_OK);
    EXPECT_EQ(used.Size(), 0);
    EXPECT_EQ(items->AddUsedPackage(people.Get()), E_FAIL);
    people = Package("People");
    EXPECT_EQ(items->AddUsedPackage(people.Get()), S_OK);
}

TEST_F(ZanDicPackageTest, GetAllElementsListsTheUsedPackagesFirst) {
    const auto people = Package("People");
    const auto documents = Package("Documents");
    Class(*items, "Part");
    Class(*people, "Person");
    Class(*documents, "Sheet");
    HeldList elements;
    EXPECT_EQ(items->AddUsedPackage(documents.Get()), S_OK);
    EXPECT_EQ(items->AddUsedPackage(people.Get()), S_OK);

    EXPECT_EQ(items->GetAllElements(&elements), S_OK);

    EXPECT_EQ(NamesOf(elements), "Sheet Person Part ");
}

TEST_F(ZanDicPackageTest, GetAllElementsListsTwiceWhatTwoWaysLeadTo) {
    const auto people = Package("People");
    const auto documents = Package("Documents");
    Class(*items, "Part");
    Class(*people, "Person");
    Class(*documents, "Sheet");
    HeldList elements;
    EXPECT_EQ(documents->AddUsedPackage(people.Get()), S_OK);
    EXPECT_EQ(items->AddUsedPackage(documents.Get()), S_OK);
    EXPECT_EQ(items->AddUsedPackage(people.Get()), S_OK);

    EXPECT_EQ(items->GetAllElements(&elements), S_OK);

    EXPECT_EQ(NamesOf(elements), "Person Sheet Person Part ");
}

TEST_F(ZanDicPackageTest, GetAllElementsEndsInARingOfPackages) {
    const auto people = Package("People");
    Class(*items, "Part");
    Class(*people, "Person");
    HeldList elements;
    EXPECT_EQ(items->AddUsedPackage(people.Get()), S_OK);
    EXPECT_EQ(people->AddUsedPackage(items.Get()), S_OK);
    EXPECT_EQ(items->AddUsedPackage(items.Get()), S_OK);

    EXPECT_EQ(items->GetAllElements(&elements), S_OK);
    EXPECT_EQ(NamesOf(elements), "Person Part ");

    elements.Clear();
    EXPECT_EQ(people->GetAllElements(&elements), S_OK);
    EXPECT_EQ(NamesOf(elements), "Part Person ");
}

TEST_F(ZanDicPackageTest, GetAllElementsGoesDownAnyDepth) {
    constexpr int kDepth = 20000;
    Held<OXMIDicPackage> above = Package("Deepest");
    Class(*above, "Last");
    for (int depth = 0; depth < kDepth; ++depth) {
        Held<OXMIDicPackage> next = Package(("P" + std::to_string(depth)).c_str());
        next->AddUsedPackage(above.Get());
        above = std::move(next);
    }
    HeldList elements;

    EXPECT_EQ(above->GetAllElements(&elements), S_OK);

    EXPECT_EQ(NamesOf(elements), "Last ");
}

TEST_F(ZanDicPackageTest, GetElementRLooksOneLevelDeep) {
    const auto people = Package("People");
    const auto deeper = Package("Deeper");
    const auto person = Class(*people, "Person");
    Class(*deeper, "Hidden");
    EXPECT_EQ(items->AddUsedPackage(people.Get()), S_OK);
    EXPECT_EQ(people->AddUsedPackage(deeper.Get()), S_OK);
    Held<OXMIDicElement> found;

    EXPECT_EQ(items->GetElementR(Named("Hidden"), found.Out()), E_FAIL);
    EXPECT_EQ(items->GetElement(Named("Person"), found.Out()), E_FAIL);
    EXPECT_EQ(items->GetElementR(Named("Person"), found.Out()), S_OK);

    EXPECT_EQ(static_cast<void*>(found.Get()), person.Get());
}

TEST_F(ZanDicPackageTest, RemoveElementDropsTheElementAndItsMembers) {
    const auto part = Class(*items, "Part");
    const auto number = Simple(*part, "Number");
    OXMIDicElement* found = nullptr;

    EXPECT_EQ(items->RemoveElement(Named("Part")), S_OK);

    EXPECT_FALSE(IsRegistered(*part));
    EXPECT_FALSE(IsRegistered(*number));
    EXPECT_EQ(items->GetElement(Named("Part"), &found), E_FAIL);
    Class(*items, "Part");
}

TEST_F(ZanDicPackageTest, RemoveElementOfAnUnknownNameIsNoFailure) {
    ClearWritten();

    EXPECT_EQ(items->RemoveElement(Named("Part")), S_FALSE);

    EXPECT_EQ(
        Written(),
        "ZanDicPackage::RemoveElement- *** ERROR *** Could not find Element named Part in Package Items.\n");
}

TEST_F(ZanDicPackageTest, RemoveElementTracesEachStep) {
    Category(*items, "Weight");
    TraceOnly("ZanDicPackage::RemoveElement\n");

    EXPECT_EQ(items->RemoveElement(Named("Weight")), S_OK);

    EXPECT_EQ(Written(),
              "ZanDicPackage::RemoveElement- trying to remove Element named Weight from Package Items.\n"
              "ZanDicPackage::RemoveElement- RefCount=0.\n");
}

TEST_F(ZanDicPackageTest, RemoveElementReleasesWhatIsNotRegistered) {
    const auto part = Class(*items, "Part");
    ZELDbBinary uuid;
    part->GetUuid(&uuid);
    {
        Held<OXMIDicEnum> colour;
        EXPECT_EQ(items->CreateEnum(Named("Colour"), &uuid, colour.Out()), E_FAIL);
    }
    const int before = ZanDicObj::live_Objects();
    ClearWritten();

    EXPECT_EQ(items->RemoveElement(Named("Colour")), E_FAIL);

    EXPECT_EQ(ZanDicObj::live_Objects(), before - 1);
    EXPECT_TRUE(IsRegistered(*part));
    EXPECT_EQ(Written(),
              "ZanHashList::RemoveAll _HASH.Size()=0, _LISTP.Size()=0\n"
              "ZanDicPackage::RemoveElement- *** ERROR *** ZanDictionary::Delete failed.\n");
}

TEST_F(ZanDicPackageTest, FlushAllTracesEachStep) {
    Category(*items, "Weight");
    TraceOnly("ZanDicPackage::FlushAll\n");

    EXPECT_EQ(items->FlushAll(), S_OK);

    ASSERT_EQ(Lines().size(), 12U);
    EXPECT_EQ(Lines()[0].text, "ZanDicPackage::FlushAll- === start === .");
    EXPECT_EQ(Lines()[1].text, "ZanDicPackage::FlushAll- _Type=11 (Package), _Name=Items.");
    EXPECT_EQ(Lines()[2].text.substr(0, 30), "ZanDicPackage::FlushAll- @=0x" + Lines()[2].text.substr(29, 1));
    EXPECT_EQ(Lines()[3].text, "ZanDicPackage::FlushAll- processing _ELEMENTS....");
    EXPECT_EQ(Lines()[4].text,
              "ZanDicPackage::FlushAll- processing _ELEMENTS[1]: Weight, Type: 2 (Category).");
    EXPECT_EQ(Lines()[5].text, "ZanDicPackage::FlushAll- rc[_ELEMENTS[1]->FlushAll]=OK.");
    EXPECT_EQ(Lines()[6].text, "ZanDicPackage::FlushAll- rc[ZanDictionary->Delete]=OK.");
    EXPECT_EQ(Lines()[7].text, "ZanDicPackage::FlushAll- after _ELEMENTS[1]->Release, RefCount=0.");
    EXPECT_EQ(Lines()[8].text, "ZanHashList::RemoveAll _HASH.Size()=1, _LISTP.Size()=1");
    EXPECT_EQ(Lines()[9].text, "ZanDicPackage::FlushAll- processing _COMMANDS....");
    EXPECT_EQ(Lines()[10].text,
              "ZanDicPackage::FlushAll- *** WARNING *** processing _COMMANDS: TO BE COMPLETED !.");
    EXPECT_EQ(Lines()[11].text, "ZanDicPackage::FlushAll- === exit === RC=OK.");
}

TEST_F(ZanDicPackageTest, FlushAllGoesOnPastAnElementThatIsNotRegistered) {
    const auto part = Class(*items, "Part");
    ZELDbBinary uuid;
    part->GetUuid(&uuid);
    {
        Held<OXMIDicEnum> colour;
        EXPECT_EQ(items->CreateEnum(Named("Colour"), &uuid, colour.Out()), E_FAIL);
    }
    Category(*items, "Weight");
    const int before = ZanDicObj::live_Objects();
    HeldList elements;
    TraceOnly("ZanDicPackage::FlushAll\n");

    EXPECT_EQ(items->FlushAll(), S_OK);

    EXPECT_NE(Written().find("processing _ELEMENTS[2]: Colour, Type: 3 (Enum).\n"
                             "ZanHashList::RemoveAll _HASH.Size()=0, _LISTP.Size()=0\n"
                             "ZanDicPackage::FlushAll- rc[_ELEMENTS[2]->FlushAll]=OK.\n"
                             "ZanDicPackage::FlushAll- rc[ZanDictionary->Delete]=KO.\n"
                             "ZanDicPackage::FlushAll- after _ELEMENTS[2]->Release, RefCount=0.\n"),
              std::string::npos);
    EXPECT_EQ(ZanDicObj::live_Objects(), before - 2);
    EXPECT_EQ(items->GetElements(&elements), S_OK);
    EXPECT_EQ(elements.Size(), 0);
}

TEST_F(ZanDicPackageTest, FlushAllLeavesThePackageItself) {
    Class(*items, "Part");

    EXPECT_EQ(items->FlushAll(), S_OK);

    EXPECT_TRUE(IsRegistered(*items));
    Class(*items, "Part");
}

TEST_F(ZanDicPackageTest, TracesItsBirthAndItsEnd) {
    const ZELString name("Built");
    const ZELDbBinary uuid = NextUuid();
    TraceOnly("ZanDicPackage::ZanDicPackage\nZanDicPackage::~ZanDicPackage\n");

    Held<ZanDicPackage>(new ZanDicPackage(&name, &uuid, nullptr)).Reset();

    ASSERT_EQ(Lines().size(), 2U);
    const std::string birth = Lines()[0].text;
    const std::string end = Lines()[1].text;
    EXPECT_EQ(birth.substr(0, 35), "ZanDicPackage::ZanDicPackage- @=0x" + birth.substr(34, 1));
    EXPECT_EQ(birth.substr(birth.find(", ")), ", _Type=11 (Package), _Name=Built.");
    EXPECT_EQ(end.substr(0, 36), "ZanDicPackage::~ZanDicPackage- @=0x" + end.substr(35, 1));
    EXPECT_EQ(end.substr(end.find(", ")), ", _Type=11 (Package), _Name=Built.");
}

TEST_F(ZanDicPackageTest, OnceGoneItAnswersForItselfAndMakesNothing) {
    const ZELUnicodeString text("Stock");
    const ZELDbBinary uuid = NextUuid();
    const auto people = Package("People");
    EXPECT_EQ(items->SetAlias(&text), S_OK);
    EXPECT_EQ(items->AddUsedPackage(people.Get()), S_OK);
    Class(*items, "Part");
    RemovePackage("Items");
    OXMIDicClass* part = nullptr;
    OXMIDicEnum* colour = nullptr;
    OXMIDicCategory* weight = nullptr;
    OXMIDicElementH* found = nullptr;
    HeldList list;
    ZELString name;
    ZELUnicodeString alias;

    EXPECT_EQ(items->CreateClass(Named("New"), &uuid, &part), E_FAIL);
    EXPECT_EQ(items->CreateClass(Named("New"), &part), E_FAIL);
    EXPECT_EQ(items->CreateEnum(Named("New"), &uuid, &colour), E_FAIL);
    EXPECT_EQ(items->CreateCategory(Named("New"), &uuid, &weight), E_FAIL);
    EXPECT_EQ(items->AddUsedPackage(people.Get()), E_FAIL);
    EXPECT_EQ(items->AddScopePackage(people.Get()), E_FAIL);

    EXPECT_EQ(items->GetName(&name), S_OK);
    EXPECT_EQ(name, ZELString("Items"));
    EXPECT_EQ(items->GetAlias(&alias), S_OK);
    EXPECT_EQ(alias, text);
    EXPECT_EQ(items->GetUsedPackages(&list), S_OK);
    EXPECT_EQ(items->GetAllElements(&list), S_OK);
    EXPECT_EQ(list.Size(), 0);
    EXPECT_EQ(Manager().Search(&uuid, &found), E_FAIL);
}

TEST_F(ZanDicPackageTest, GivesItsElementsBackWhenItIsDestroyed) {
    const ZELString name("Built");
    const ZELDbBinary uuid = NextUuid();
    const int before = ZanDicObj::live_Objects();
    Held<ZanDicPackage> package(new ZanDicPackage(&name, &uuid, nullptr));
    {
        Held<OXMIDicClass> part;
        EXPECT_EQ(package->CreateClass(Named("Part"), part.Out()), S_OK);
    }

    package.Reset();

    EXPECT_EQ(ZanDicObj::live_Objects(), before);
}

}  // namespace
