// Memory that runs out at every allocation of every operation of the interfaces: it fails, and nothing has
// changed.
#include <functional>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "KindsFixture.h"
#include "OXMIDicAttributeBlock.h"
#include "OutOfMemoryFixture.h"
#include "ZanDicCommand.h"

namespace {

class EditOutOfMemoryTest : public OutOfMemoryFixture<KindsFixture> {
protected:
    /// What is swept, and what it gives in the end.
    struct Operation {
        const char* name;
        std::function<HRESULT()> run;
        HRESULT result = S_OK;
    };

    void SetUp() override { MakeModel(); }
    void TearDown() override { DropModel(); }

    /// Sweeps each of \p operations over a model of its own.
    void SweepEach(const std::vector<Operation>& operations) {
        for (const Operation& operation : operations) {
            SCOPED_TRACE(operation.name);
            const std::string stateBefore = State();
            const int objectsBefore = ZanDicObj::live_Objects();
            const HRESULT rc = Sweep(operation.run, [&] {
                EXPECT_EQ(made, nullptr);
                EXPECT_EQ(list.Size(), 0);
                EXPECT_EQ(ZanDicObj::live_Objects(), objectsBefore);
                EXPECT_EQ(State(), stateBefore);
            });
            EXPECT_EQ(rc, operation.result);
            if (made != nullptr) std::exchange(made, nullptr)->Release();
            list.Clear();
            if (HasFailure()) return;
            RenewModel();
        }
    }

    /// The same for what takes away: it may well succeed without memory, but does it whole or not at all.
    void SweepEachRemoval(const std::vector<Operation>& operations) {
        for (const Operation& operation : operations) {
            SCOPED_TRACE(operation.name);
            const std::string before = StateWithoutUuids();
            EXPECT_EQ(operation.run(), S_OK);
            const std::string after = StateWithoutUuids();
            EXPECT_NE(after, before);
            RenewModel();
            EXPECT_EQ(SweepAll(operation.run,
                               [&](HRESULT rc) {
                                   EXPECT_EQ(StateWithoutUuids(), Succeeded(rc) ? after : before);
                                   RenewModel();
                               }),
                      S_OK);
            if (HasFailure()) return;
            RenewModel();
        }
    }

    static std::string StateWithoutUuids() {
        std::istringstream state(State());
        std::string text;
        for (std::string line; std::getline(state, line);) {
            if (line.find("uuid") == std::string::npos) text += line + "\n";
        }
        return text;
    }

    void RenewModel() {
        DropModel();
        MakeModel();
    }

    /// Where an operation puts the interface that it hands out.
    template <class Interface>
    Interface** Out() {
        return reinterpret_cast<Interface**>(&made);
    }

    void MakeModel() {
        package = Package("P");
        used = Package("Q");
        a = Class(*package, "A");
        b = SubClass(*package, "B", *a);
        c = Class(*used, "C");
        simple = Make<OXMIDicClass, OXMIDicSimple>(*a, &OXMIDicClass::CreateSimple, "simple");
        other = Make<OXMIDicClass, OXMIDicSimple>(*b, &OXMIDicClass::CreateSimple, "other");
        relation = Make<OXMIDicClass, OXMIDicRelationship>(*a, &OXMIDicClass::CreateRelationship, "relation");
        inverse = Make<OXMIDicClass, OXMIDicInverse>(*b, &OXMIDicClass::CreateInverse, "inverse");
        unique = Make<OXMIDicClass, OXMIDicUnique>(*a, &OXMIDicClass::CreateUnique, "unique");
        relation->SetInjective(1);
        relation->SetTarget(c.Get());
        category = Category(*package, "K");
        secondCategory = Category(*package, "L");
        enumeration = Enum(*package, "E");
        enumerator = Make<OXMIDicEnum, OXMIDicEnumerator>(*enumeration, &OXMIDicEnum::CreateEnumerator, "e");
        extension = Extension(*package, "X");
        interface = Interface(*package, "I");
        second = Interface(*package, "J");
        method = Method(*interface, "m");
        parameter = Parameter(*method, "p");
        rboClass = RBOClass(*package, "R");
        mapping = Mapping(*package, "M");
        root = Root(*mapping, "root");
        component = Component(*root, "component");
        ASSERT_EQ(Manager().GetPrimitive(OXMDicPRIMITIVEType_Integer, integer.Out()), S_OK);
        inner = Component(*component, "inner");
        const ZELDbBinary uuid = NextUuid();
        ASSERT_EQ(package->CreateAttributeBlock(&uuid, block.Out()), S_OK);
        block->SetName(&blockName);
        block->SetClass(a.Get());
        block->AddAttribute(simple.Get());
        blocks.Append(block.Get());
        freshUuid = NextUuid();
    }

    void DropModel() {
        blocks.RemoveAll();
        block.Reset();
        integer.Reset();
        inner.Reset();
        component.Reset();
        root.Reset();
        mapping.Reset();
        rboClass.Reset();
        parameter.Reset();
        method.Reset();
        second.Reset();
        interface.Reset();
        extension.Reset();
        enumerator.Reset();
        enumeration.Reset();
        secondCategory.Reset();
        category.Reset();
        unique.Reset();
        inverse.Reset();
        relation.Reset();
        other.Reset();
        simple.Reset();
        c.Reset();
        b.Reset();
        a.Reset();
        used.Reset();
        package.Reset();
        Manager().End();
        Manager().Init(0);
    }

    const ZELString fresh{"Fresh"}, p{"P"}, q{"Q"}, nameA{"A"}, nameC{"C"}, nameM{"m"}, nameE{"e"},
        nameI{"I"}, nameP{"p"}, nameSimple{"simple"}, nameUnique{"unique"}, nameOther{"other"},
        nameInherited{"simple"}, blockName{"Block"}, domain{"VALKOR"}, nameK{"K"}, nameR{"R"};
    const ZELUnicodeString text{"some text that is longer than most"}, key{"key"};
    ZELDbBinary freshUuid;

    Held<OXMIDicPackage> package, used;
    Held<OXMIDicClass> a, b, c;
    Held<OXMIDicSimple> simple, other;
    Held<OXMIDicRelationship> relation;
    Held<OXMIDicInverse> inverse;
    Held<OXMIDicUnique> unique;
    Held<OXMIDicCategory> category, secondCategory;
    Held<OXMIDicEnum> enumeration;
    Held<OXMIDicEnumerator> enumerator;
    Held<OXMIDicExtension> extension;
    Held<OXMIDicInterface> interface, second;
    Held<OXMIDicMethod> method;
    Held<OXMIDicParameter> parameter;
    Held<OXMIDicRBOClass> rboClass;
    Held<OXMIDicRBOMapping> mapping;
    Held<OXMIDicRBORoot> root;
    Held<OXMIDicRBOComponent> component, inner;
    Held<OXMIDicPrimitive> integer;
    Held<OXMIDicAttributeBlock> block;
    ZELListPtrIUnknown blocks;

    IUnknown* made = nullptr;
    HeldList list;
};
INSTANTIATE_TEST_SUITE_P(Shortages, EditOutOfMemoryTest,
                         ::testing::Values(FailingMemory::Shortage::Once,
                                           FailingMemory::Shortage::FromThenOn),
                         ShortageName);

TEST_P(EditOutOfMemoryTest, FactoriesOfPackages) {
    const ZELString* const name = &fresh;
    const ZELDbBinary* const uuid = &freshUuid;
    SweepEach({
        {"CreatePackage",
         [&] { return Manager().CreatePackage(name, uuid, &domain, Out<OXMIDicPackage>()); }},
        {"CreatePackage of old", [&] { return Manager().CreatePackage(name, Out<OXMIDicPackage>()); }},
        {"CreateClass", [&] { return package->CreateClass(name, uuid, Out<OXMIDicClass>()); }},
        {"CreateClass of old", [&] { return package->CreateClass(name, Out<OXMIDicClass>()); }},
        {"CreateEnum", [&] { return package->CreateEnum(name, uuid, Out<OXMIDicEnum>()); }},
        {"CreateCategory", [&] { return package->CreateCategory(name, uuid, Out<OXMIDicCategory>()); }},
        {"CreateExtension", [&] { return package->CreateExtension(name, uuid, Out<OXMIDicExtension>()); }},
        {"CreateInterface", [&] { return package->CreateInterface(name, uuid, Out<OXMIDicInterface>()); }},
        {"CreateRBOClass", [&] { return package->CreateRBOClass(name, uuid, Out<OXMIDicRBOClass>()); }},
        {"CreateRBOMapping", [&] { return package->CreateRBOMapping(name, uuid, Out<OXMIDicRBOMapping>()); }},
        {"CreateAttributeBlock",
         [&] { return package->CreateAttributeBlock(uuid, Out<OXMIDicAttributeBlock>()); }},
    });
}

TEST_P(EditOutOfMemoryTest, FactoriesOfElements) {
    const ZELString* const name = &fresh;
    const ZELDbBinary* const uuid = &freshUuid;
    SweepEach({
        {"Create", [&] { return a->Create(name, uuid, OXMDicTYPE_Simple, Out<OXMIDicElement>()); }},
        {"CreateSimple", [&] { return a->CreateSimple(name, uuid, Out<OXMIDicSimple>()); }},
        {"CreateSimple of old", [&] { return a->CreateSimple(name, Out<OXMIDicSimple>()); }},
        {"CreateRelationship", [&] { return a->CreateRelationship(name, uuid, Out<OXMIDicRelationship>()); }},
        {"CreateInverse", [&] { return a->CreateInverse(name, uuid, Out<OXMIDicInverse>()); }},
        {"CreateUnique", [&] { return b->CreateUnique(name, uuid, Out<OXMIDicUnique>()); }},
        {"CreateMethod", [&] { return b->CreateMethod(name, uuid, Out<OXMIDicMethod>()); }},
        {"CreateEnumerator",
         [&] { return enumeration->CreateEnumerator(name, uuid, Out<OXMIDicEnumerator>()); }},
        {"CreateEnumValue", [&] { return enumeration->CreateEnumValue(name, 7); }},
        {"interface CreateMethod", [&] { return interface->CreateMethod(name, uuid, Out<OXMIDicMethod>()); }},
        {"CreateParameter", [&] { return method->CreateParameter(name, uuid, Out<OXMIDicParameter>()); }},
        {"CreateRBORoot", [&] { return mapping->CreateRBORoot(name, uuid, Out<OXMIDicRBORoot>()); }},
        {"CreateRBOComponent",
         [&] { return root->CreateRBOComponent(name, uuid, Out<OXMIDicRBOComponent>()); }},
        {"component CreateRBOComponent",
         [&] { return component->CreateRBOComponent(name, uuid, Out<OXMIDicRBOComponent>()); }},
        {"CreateRBOPathExpression",
         [&] { return component->CreateRBOPathExpression(name, uuid, Out<OXMIDicRBOPathExpression>()); }},
    });
}

TEST_P(EditOutOfMemoryTest, Setters) {
    SweepEach({
        {"package SetAlias", [&] { return package->SetAlias(&text); }},
        {"package SetExpositionLevel", [&] { return package->SetExpositionLevel(&text); }},
        {"SetAlias", [&] { return a->SetAlias(&text); }},
        {"SetExpositionLevel", [&] { return a->SetExpositionLevel(&text); }},
        {"SetVisibility of no word", [&] { return a->SetVisibility(static_cast<OXMDicVISIBILITY>(-7)); }},
        {"SetOtherAttribute", [&] { return a->SetOtherAttribute(key, text); }},
        {"GenUuid", [&] { return a->GenUuid(); }},
        {"SetUuid", [&] { return a->SetUuid(&freshUuid); }, E_FAIL},
        {"SetLateType", [&] { return a->SetLateType(&fresh); }},
        {"SetApplicationName", [&] { return a->SetApplicationName(&text); }},
        {"SetDefault", [&] { return simple->SetDefault(&text); }},
        {"SetMagnitude", [&] { return simple->SetMagnitude(&text); }},
        {"SetDBFormat", [&] { return simple->SetDBFormat(&text); }},
        {"SetValidityRule", [&] { return component->SetValidityRule(&text); }},
    });
}

TEST_P(EditOutOfMemoryTest, SettersOfLinks) {
    SweepEach({
        {"AddUsedPackage", [&] { return package->AddUsedPackage(used.Get()); }},
        {"AddScopePackage", [&] { return package->AddScopePackage(used.Get()); }},
        {"AddCategory", [&] { return simple->AddCategory(category.Get()); }},
        {"SetSuperClass", [&] { return c->SetSuperClass(a.Get()); }},
        {"SetSuperClass of one that has one", [&] { return b->SetSuperClass(c.Get()); }},
        {"SetSuperClass again", [&] { return b->SetSuperClass(a.Get()); }},
        {"SetSuperInterface", [&] { return second->SetSuperInterface(interface.Get()); }},
        {"SetReference", [&] { return a->SetReference(c.Get()); }},
        {"SetPrimitive", [&] { return simple->SetPrimitive(integer.Get()); }},
        {"SetType", [&] { return simple->SetType(enumeration.Get()); }},
        {"SetTarget of an injective one", [&] { return relation->SetTarget(b.Get()); }},
        {"inverse SetTarget", [&] { return inverse->SetTarget(a.Get()); }},
        {"SetInverse", [&] { return inverse->SetInverse(relation.Get()); }},
        {"SetInvertedAttribute", [&] { return relation->SetInvertedAttribute(inverse.Get()); }},
        {"AddScope", [&] { return relation->AddScope(a.Get()); }},
        {"extension AddScope", [&] { return extension->AddScope(a.Get()); }},
        {"AddElement", [&] { return unique->AddElement(simple.Get()); }},
        {"parameter SetType", [&] { return parameter->SetType(a.Get()); }, E_FAIL},
        {"SetApplyToRBOClass", [&] { return mapping->SetApplyToRBOClass(rboClass.Get()); }},
        {"SetBaseClass", [&] { return root->SetBaseClass(a.Get()); }},
        {"component SetBaseClass", [&] { return component->SetBaseClass(a.Get()); }},
        {"block SetClass", [&] { return block->SetClass(b.Get()); }},
        {"block AddAttribute", [&] { return block->AddAttribute(other.Get()); }},
        {"block SetRoot", [&] { return block->SetRoot(block.Get()); }},
        {"RegisterBlockByName", [&] { return a->RegisterBlockByName(block.Get(), &blockName); }},
    });
}

TEST_P(EditOutOfMemoryTest, Questions) {
    SweepEach({
        {"GetPackages", [&] { return Manager().GetPackages(&list); }},
        {"GetPackage", [&] { return Manager().GetPackage(&p, Out<OXMIDicPackage>()); }},
        {"Search", [&] { return Manager().Search(&freshUuid, Out<OXMIDicElementH>()); }, E_FAIL},
        {"SearchByName", [&] { return Manager().SearchByName(&nameA, &list); }},
        {"GetElements", [&] { return package->GetElements(&list); }},
        {"GetAllElements", [&] { return package->GetAllElements(&list); }},
        {"GetClasses", [&] { return package->GetClasses(&list); }},
        {"GetElement", [&] { return package->GetElement(&nameA, Out<OXMIDicElement>()); }},
        {"GetElementR", [&] { return package->GetElementR(&nameA, Out<OXMIDicElement>()); }},
        {"GetRBOClass", [&] { return package->GetRBOClass(&nameR, Out<OXMIDicRBOClass>()); }},
        {"class GetAllElements", [&] { return b->GetAllElements(&list); }},
        {"class GetElement", [&] { return b->GetElement(&nameSimple, Out<OXMIDicElement>()); }},
        {"GetClassElements", [&] { return a->GetClassElements(&list); }},
        {"GetSubClasses", [&] { return a->GetSubClasses(&list); }},
        {"GetSuperClasses", [&] { return b->GetSuperClasses(&list); }, S_FALSE},
        {"GetInjectivesPointingOnMe", [&] { return c->GetInjectivesPointingOnMe(list); }},
        {"GetUniques", [&] { return a->GetUniques(&list); }},
        {"GetMethods", [&] { return interface->GetMethods(&list); }},
        {"GetAllMethods", [&] { return interface->GetAllMethods(&list); }},
        {"GetEnumerators", [&] { return enumeration->GetEnumerators(&list); }},
        {"GetParameters", [&] { return method->GetParameters(&list); }},
        {"root GetElements", [&] { return root->GetElements(&list); }},
        {"block GetAttributes", [&] { return block->GetAttributes(&list); }},
        {"QueryInterface",
         [&] { return rboClass->QueryInterface(OXMIDicApp::ClassId(), reinterpret_cast<void**>(&made)); }},
    });
}

/// What these ask for is computed on the way.
TEST_P(EditOutOfMemoryTest, QuestionsAboutBlocksAndScopes) {
    unsigned char answer = 0;
    relation->AddScope(a.Get());
    const auto addScope = [&] { relation->AddScope(a.Get()); };
    SweepEach({
        {"IsClassInScope",
         [&] {
             ZELDbBinary uuid;
             b->GetUuid(&uuid);
             return relation->IsClassInScope(&uuid, &answer);
         }},
        {"HasAttBlocks", [&] { return a->HasAttBlocks(&answer); }},
        {"GetAttBlocks", [&] { return a->GetAttBlocks(&list); }},
    });
    addScope();
}

TEST_P(EditOutOfMemoryTest, ComputationsOfBlocks) {
    SweepEach({
        {"BuildRoot", [&] { return block->BuildRoot(); }},
        {"BuildFather", [&] { return block->BuildFather(); }},
        {"BuildAllAttributes", [&] { return block->BuildAllAttributes(); }},
        {"GetCBlockForAtt of a class and those above",
         [&] { return b->GetCBlockForAtt(nullptr, 1, Out<OXMIDicAttributeBlock>()); }},
        {"GetCBlockForAtt", [&] { return a->GetCBlockForAtt(&nameSimple, 1, Out<OXMIDicAttributeBlock>()); }},
        {"GetAttBlock", [&] { return a->GetAttBlock(&blockName, Out<OXMIDicAttributeBlock>()); }, E_FAIL},
        {"GetAllAttributeBlockList", [&] { return a->GetAllAttributeBlockList(&list); }},
    });
}

/// It cannot say that it failed.
TEST_P(EditOutOfMemoryTest, ADumpEndsTheProcess) {
    const auto dump = [this] {
        const FailingMemory memory(1, GetParam());
        Held<OXMIDicApp> face;
        a->QueryInterface(OXMIDicApp::ClassId(), face.OutVoid());
        face->Dump("a caller with a name that is long enough");
    };
    Held<OXMIDicApp> face;
    a->QueryInterface(OXMIDicApp::ClassId(), face.OutVoid());

    EXPECT_DEATH(dump(), "^Out of memory, Dump, line 24\n$");
}

TEST_P(EditOutOfMemoryTest, Removals) {
    SweepEachRemoval({
        {"RemovePackage", [&] { return Manager().RemovePackage(&p); }},
        {"RemoveElement", [&] { return package->RemoveElement(&nameA); }},
        {"RemoveElement of an interface", [&] { return package->RemoveElement(&nameI); }},
        {"package FlushAll", [&] { return package->FlushAll(); }},
        {"class RemoveElement", [&] { return a->RemoveElement(&nameSimple); }},
        {"class RemoveUnique", [&] { return a->RemoveUnique(&nameUnique); }},
        {"class FlushAll", [&] { return a->FlushAll(); }},
        {"RemoveMethod", [&] { return interface->RemoveMethod(&nameM); }},
        {"RemoveParameter", [&] { return method->RemoveParameter(&nameP); }},
        {"RemoveEnumerator", [&] { return enumeration->RemoveEnumerator(&nameE); }},
        {"mapping FlushAll", [&] { return mapping->FlushAll(); }},
    });
}

}  // namespace
