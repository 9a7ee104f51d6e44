// Super classes and subclasses, and what a class answers from those above it.

#include "ModelFixture.h"
#include "ZanDicClass.h"

namespace {

class ZanDicClassHierarchyTest : public ModelFixture {
protected:
    Held<OXMIDicPackage> items = Package("Items");
    Held<OXMIDicClass> part = Class(*items, "Part");
};

TEST_F(ZanDicClassHierarchyTest, ARootHasNoSuperClass) {
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

TEST_F(ZanDicClassHierarchyTest, GetSuperClassesAlwaysEndsWithOne) {
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

TEST_F(ZanDicClassHierarchyTest, ListsItsSubClassesInTheOrderOfAttachment) {
    const auto screw = SubClass(*items, "Screw", *part);
    const auto bolt = SubClass(*items, "Bolt", *part);
    HeldList list;

    EXPECT_EQ(screw->SetSuperClass(part.Get()), S_OK);
    EXPECT_EQ(part->GetSubClasses(&list), S_OK);

    EXPECT_EQ(NamesOf(list), "Bolt Screw ");
}

TEST_F(ZanDicClassHierarchyTest, TwoSubClassesOfOneNameBothAttach) {
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

TEST_F(ZanDicClassHierarchyTest, MovesToAnotherSuperClass) {
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

TEST_F(ZanDicClassHierarchyTest, KeepsItsSuperClassWhenTheNewOneIsRefused) {
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

TEST_F(ZanDicClassHierarchyTest, AClassIsNeverBelowAnExtension) {
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

TEST_F(ZanDicClassHierarchyTest, LosesASuperClassThatIsGone) {
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

TEST_F(ZanDicClassHierarchyTest, FindsAttributesNearestFirst) {
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

TEST_F(ZanDicClassHierarchyTest, ARedefinitionStandsAtTheInheritedPosition) {
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

TEST_F(ZanDicClassHierarchyTest, AsksEveryLevelFromTheRoot) {
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

TEST_F(ZanDicClassHierarchyTest, ANewAttributeShowsHereAndBelow) {
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

TEST_F(ZanDicClassHierarchyTest, ARemovedAttributeStaysInAnAnswerThatWasComputed) {
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

TEST_F(ZanDicClassHierarchyTest, ANewSuperClassAboveLeavesComputedAnswersBelow) {
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

TEST_F(ZanDicClassHierarchyTest, AFormerRedefinitionIsNotListedAgain) {
    const auto tool = Class(*items, "Tool");
    const auto screw = SubClass(*items, "Screw", *part);
    const auto a = Simple(*part, "a");
    const auto own = Simple(*screw, "a");
    const auto t = Simple(*tool, "t");
    EXPECT_EQ(AllOf(*screw), "a ");

    EXPECT_EQ(screw->SetSuperClass(tool.Get()), S_OK);

    EXPECT_EQ(AllOf(*screw), "t ");
}

TEST_F(ZanDicClassHierarchyTest, ARedefinitionOfWhatIsGoneIsListedAsItsOwn) {
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

TEST_F(ZanDicClassHierarchyTest, ARootAnswersFromItsOwnAttributes) {
    const auto a = Simple(*part, "a");
    EXPECT_EQ(AllOf(*part), "a ");

    EXPECT_EQ(part->RemoveElement(Named("a")), S_OK);

    EXPECT_EQ(AllOf(*part), "") << "nothing had been computed";
}

TEST_F(ZanDicClassHierarchyTest, ARootKeepsTheAnswerThatASubClassComputed) {
    const auto screw = SubClass(*items, "Screw", *part);
    const auto a = Simple(*part, "a");
    EXPECT_EQ(AllOf(*screw), "a ");

    EXPECT_EQ(part->RemoveElement(Named("a")), S_OK);

    EXPECT_EQ(AllOf(*part), "a ");
}

TEST_F(ZanDicClassHierarchyTest, GetAllElementsAcceptsNoList) {
    const auto screw = SubClass(*items, "Screw", *part);
    const auto a = Simple(*part, "a");

    EXPECT_EQ(screw->GetAllElements(nullptr), S_OK);
    EXPECT_EQ(part->GetAllElements(nullptr), S_OK);
}

TEST_F(ZanDicClassHierarchyTest, ARenamedAttributeRedefinesUnderItsFirstName) {
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

TEST_F(ZanDicClassHierarchyTest, ADeepHierarchyAnswersAtEveryLevel) {
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

TEST_F(ZanDicClassHierarchyTest, AnAttributeThatEveryLevelRedefinesIsTheLowestOne) {
    std::vector<Held<OXMIDicClass>> chain;
    chain.push_back(Class(*items, "C0"));
    for (int level = 1; level <= 30; ++level) {
        chain.push_back(SubClass(*items, ("C" + std::to_string(level)).c_str(), *chain.back()));
    }
    std::vector<Held<OXMIDicSimple>> masses;
    for (const auto& level : chain) masses.push_back(Simple(*level, "mass"));
    HeldList ofLast;
    HeldList ofMiddle;
    Held<OXMIDicElement> redefined;

    EXPECT_EQ(chain[30]->GetAllElements(&ofLast), S_OK);
    EXPECT_EQ(chain[15]->GetAllElements(&ofMiddle), S_OK);
    EXPECT_EQ(QueryFor<OXMIDicAttribute>(*masses[30])->GetSpecializedAttribute(redefined.Out()), S_OK);

    ASSERT_EQ(NamesOf(ofLast), "mass ");
    EXPECT_TRUE(SameObject(*ofLast[1], *masses[30]));
    ASSERT_EQ(NamesOf(ofMiddle), "mass ");
    EXPECT_TRUE(SameObject(*ofMiddle[1], *masses[15]));
    EXPECT_TRUE(SameObject(*redefined, *masses[29]));
}

TEST_F(ZanDicClassHierarchyTest, AHundredThousandLevelsAreNoLimit) {
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

TEST_F(ZanDicClassHierarchyTest, ALongChainOfAttributesIsAskedAtItsEndOnly) {
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

TEST_F(ZanDicClassHierarchyTest, FiftyThousandSubClassesAttachAndLeave) {
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

TEST_F(ZanDicClassHierarchyTest, GathersTheInjectivesThatPointAtItAndAbove) {
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

}  // namespace
