#include <string>
#include <type_traits>
#include <vector>

#include "DictionaryFixture.h"
#include "OXMIDicClass.h"
#include "OXMIDicEnum.h"
#include "OXMIDicRelationship.h"
#include "OXMIDicSimple.h"
#include "ZELTestDirectory.h"
#include "zandic.hpp"

namespace {

/// Each test also shows that every reference is given back: the fixture fails it otherwise.
class ZandicHppTest : public DictionaryFixture {
protected:
    ZandicHppTest() : dictionary(zandic::Dictionary::Open()) { dictionary.Load("BomItems", ZANDIC_SAMPLES); }

    zandic::Handle<OXMIDicClass> ClassNamed(std::string_view name) const {
        const auto package = dictionary.Package("BomItems");
        return zandic::As<OXMIDicClass>(zandic::Find(*package, &OXMIDicPackage::GetElement, name));
    }

    template <class T>
    static std::vector<std::string> NamesOf(const zandic::List<T>& list) {
        std::vector<std::string> names;
        for (T& each : list) names.emplace_back(zandic::Name(each).View());
        return names;
    }

    zandic::Dictionary dictionary;
};

using Names = std::vector<std::string>;

TEST(ResultTest, SaysWhatACodeMeans) {
    EXPECT_EQ(zandic::Result(S_OK).Text(), "done");
    EXPECT_EQ(zandic::Result(S_FALSE).Text(), "nothing found");
    EXPECT_EQ(zandic::Result(E_FAIL).Text(), "refused");
    EXPECT_EQ(zandic::Result(E_INVALIDARG).Text(), "an argument is missing");
    EXPECT_EQ(zandic::Result(E_NOINTERFACE).Text(), "the object lacks the interface");
    EXPECT_EQ(zandic::Result(7).Text(), "done in a way of its own");
    EXPECT_EQ(zandic::Result(-7).Text(), "failed for an unknown reason");
}

TEST(ResultTest, IsTrueForEverySuccess) {
    EXPECT_TRUE(zandic::Result(S_OK));
    EXPECT_TRUE(zandic::Result(S_FALSE));
    EXPECT_FALSE(zandic::Result(E_FAIL));
    EXPECT_EQ(zandic::Result(E_FAIL).Code(), E_FAIL);
    EXPECT_EQ(zandic::Result(S_FALSE), zandic::Result(S_FALSE));
}

TEST(HandleTest, CostsOneWord) { EXPECT_EQ(sizeof(zandic::Handle<OXMIDicClass>), sizeof(void*)); }

TEST(HandleTest, AListIsMovedAndNeverCopied) {
    EXPECT_FALSE(std::is_copy_constructible_v<zandic::List<OXMIDicClass>>);
    EXPECT_TRUE(std::is_nothrow_move_constructible_v<zandic::List<OXMIDicClass>>);
}

TEST_F(ZandicHppTest, AHandleCountsItsReferences) {
    auto first = ClassNamed("BomPart");
    const auto count = [&] {
        first->AddRef();
        return first->Release();
    };
    const auto alone = count();

    {
        const zandic::Handle<OXMIDicClass> copy = first;
        EXPECT_EQ(copy, first);
        EXPECT_EQ(count(), alone + 1);
    }
    EXPECT_EQ(count(), alone);

    const auto shared = zandic::Handle<OXMIDicClass>::Share(first.Get());
    EXPECT_EQ(count(), alone + 1);
}

TEST_F(ZandicHppTest, AMovedHandleIsNull) {
    auto first = ClassNamed("BomPart");

    const auto second = std::move(first);

    EXPECT_FALSE(first);  // NOLINT(bugprone-use-after-move): what is left is stated
    EXPECT_TRUE(second);
}

TEST_F(ZandicHppTest, ADetachedReferenceIsTheCallers) {
    OXMIDicClass* const counted = ClassNamed("BomPart").Detach();

    const auto adopted = zandic::Handle<OXMIDicClass>::Adopt(counted);

    EXPECT_EQ(zandic::Name(*adopted).View(), "BomPart");
}

TEST_F(ZandicHppTest, AHandleTakesWhatACallHandsOut) {
    const auto element = ClassNamed("BomAssembly");
    auto super = ClassNamed("BomUsage");  // given back when another one comes

    EXPECT_EQ(element->GetSuperClass(super.Out()), S_OK);
    EXPECT_EQ(zandic::Name(*super).View(), "BomPart");
}

TEST_F(ZandicHppTest, AsAsksForAnotherInterface) {
    const auto element = ClassNamed("BomPart");

    EXPECT_TRUE(zandic::As<OXMIDicElement>(element));
    EXPECT_FALSE(zandic::As<OXMIDicEnum>(element));
    EXPECT_FALSE(zandic::As<OXMIDicClass>(zandic::Handle<OXMIDicElement>()));
}

TEST_F(ZandicHppTest, AllListsInOrder) {
    const auto element = ClassNamed("BomRawMaterial");

    EXPECT_EQ(NamesOf(zandic::All<OXMIDicAttribute>(*element, &OXMIDicClass::GetClassElements)),
              (Names{"Grade", "Density"}));
    EXPECT_EQ(NamesOf(zandic::All<OXMIDicClass>(*ClassNamed("BomItem"), &OXMIDicClass::GetSubClasses)),
              (Names{"BomPart", "BomRawMaterial"}));
}

TEST_F(ZandicHppTest, WhatAPackageAndAClassHoldHasNamesOfItsOwn) {
    const auto package = dictionary.Package("BomItems");
    const auto part = ClassNamed("BomPart");

    EXPECT_EQ(NamesOf(zandic::Elements(*package)).front(), "BomLogistics");
    EXPECT_EQ(NamesOf(zandic::Classes(*package)).front(), "BomItem");
    EXPECT_EQ(NamesOf(zandic::SubClasses(*ClassNamed("BomItem"))), (Names{"BomPart", "BomRawMaterial"}));
    EXPECT_EQ(NamesOf(zandic::OwnAttributes(*ClassNamed("BomRawMaterial"))), (Names{"Grade", "Density"}));
    EXPECT_EQ(NamesOf(zandic::Attributes(*part)).front(), "ItemNumber");
    const auto blocks = zandic::Blocks(*part);
    EXPECT_EQ(NamesOf(blocks), (Names{"Commercial", "Identity", "Life cycle"}));
    EXPECT_EQ(NamesOf(zandic::Attributes(*blocks.begin())), (Names{"UnitCost", "Supplier"}));
}

TEST_F(ZandicHppTest, AllTakesAGetterWithAReferenceToo) {
    const auto usage = ClassNamed("BomUsage");

    EXPECT_EQ(NamesOf(zandic::All<OXMIDicRelationship>(*usage, &OXMIDicClass::GetInjectivesPointingOnMe)),
              (Names{"Usages"}));
}

TEST_F(ZandicHppTest, AllIsEmptyWhereTheGetterRefuses) {
    const auto element = ClassNamed("BomPart");

    EXPECT_TRUE(zandic::All<OXMIDicElement>(*element, &OXMIDicClass::GetMethods).IsEmpty());
}

TEST_F(ZandicHppTest, AListGivesItsReferencesBackWhenItIsReplaced) {
    auto list = zandic::All<OXMIDicClass>(*dictionary.Package("BomItems"), &OXMIDicPackage::GetClasses);
    EXPECT_EQ(list.Size(), 6);

    list = zandic::All<OXMIDicClass>(*dictionary.Package("BomPeople"), &OXMIDicPackage::GetClasses);
    EXPECT_EQ(NamesOf(list), (Names{"BomParty", "BomPerson", "BomOrganization"}));

    list.Clear();
    EXPECT_TRUE(list.IsEmpty());
}

TEST_F(ZandicHppTest, GetGivesAValueOnSuccessOnly) {
    const auto root = ClassNamed("BomItem");
    const auto below = ClassNamed("BomPart");

    EXPECT_EQ(zandic::Get(*root, &OXMIDicClass::GetExtensible), 1);
    EXPECT_EQ(zandic::Get(*below, &OXMIDicClass::GetExtensible), std::nullopt);
    EXPECT_EQ(zandic::Get(*below, &OXMIDicClass::GetSuperName)->View(), "BomItem");
    EXPECT_EQ(zandic::Get(*root, &OXMIDicClass::GetSuperName), std::nullopt);
    EXPECT_EQ(zandic::Get(*below, &OXMIDicClass::GetAlias)->View(), "Part");
}

TEST_F(ZandicHppTest, GetTellsNoTextFromTheEmptyText) {
    const auto element = ClassNamed("BomPart");

    const ZELUnicodeString null;
    element->SetAlias(&null);
    EXPECT_EQ(zandic::Get(*element, &OXMIDicClass::GetAlias), std::nullopt);

    const ZELUnicodeString empty("");
    element->SetAlias(&empty);
    EXPECT_EQ(zandic::Get(*element, &OXMIDicClass::GetAlias), empty);
}

TEST_F(ZandicHppTest, FlagIsTrueForOneOnly) {
    const auto element = ClassNamed("BomPart");

    element->SetAbstract(1);
    EXPECT_TRUE(zandic::Flag(*element, &OXMIDicClass::GetAbstract));
    element->SetAbstract(2);
    EXPECT_FALSE(zandic::Flag(*element, &OXMIDicClass::GetAbstract));
    element->SetAbstract(0);
    EXPECT_FALSE(zandic::Flag(*element, &OXMIDicClass::GetAbstract));
}

TEST_F(ZandicHppTest, FlagTakesAnInheritedValueToo) {
    EXPECT_TRUE(zandic::Flag(*ClassNamed("BomPart"), &OXMIDicClass::GetExtensible));
}

TEST_F(ZandicHppTest, LinkIsNullWhereThereIsNone) {
    EXPECT_FALSE(zandic::Link(*ClassNamed("BomItem"), &OXMIDicClass::GetSuperClass));
    EXPECT_EQ(zandic::Name(*zandic::Link(*ClassNamed("BomPhysicalPart"), &OXMIDicClass::GetReference)).View(),
              "BomPart");
}

TEST_F(ZandicHppTest, FindIsNullForAnUnknownName) {
    const auto element = ClassNamed("BomPart");

    EXPECT_FALSE(zandic::Find(*element, &OXMIDicClass::GetClassElement, "ItemNumber"));
    EXPECT_TRUE(zandic::Find(*element, &OXMIDicClass::GetElement, "ItemNumber"));
}

TEST_F(ZandicHppTest, IdentityComesAsValues) {
    const auto element = ClassNamed("BomPart");

    EXPECT_EQ(zandic::Name(*element).View(), "BomPart");
    EXPECT_EQ(zandic::Kind(*element), OXMDicTYPE_Class);
    EXPECT_EQ(zandic::UuidText(zandic::Uuid(*element)).View(), "5AAF3900-5E46-4551-BB9AE4FD947B8003");
}

TEST_F(ZandicHppTest, TypeOfIsNullWithoutAType) {
    const auto element = ClassNamed("BomPart");
    const auto mass = zandic::As<OXMIDicAttribute>(zandic::Find(*element, &OXMIDicClass::GetElement, "Mass"));
    zandic::Handle<OXMIDicSimple> untyped;
    const ZELString name("Untyped");
    const ZELDbBinary uuid = TestUuid(1);
    ASSERT_EQ(element->CreateSimple(&name, &uuid, untyped.Out()), S_OK);

    EXPECT_EQ(zandic::Name(*zandic::TypeOf(*mass)).View(), "Double");
    EXPECT_FALSE(zandic::TypeOf(*untyped));
}

TEST_F(ZandicHppTest, CreateGivesNullForATakenNameOrUuid) {
    const auto package = dictionary.Package("BomItems");

    const auto made = zandic::Create(*package, &OXMIDicPackage::CreateClass, "New", TestUuid(1));
    const auto ofTakenName = zandic::Create(*package, &OXMIDicPackage::CreateClass, "New", TestUuid(2));
    const auto ofTakenUuid = zandic::Create(*package, &OXMIDicPackage::CreateClass, "Newer", TestUuid(1));

    EXPECT_TRUE(made);
    EXPECT_FALSE(ofTakenName);
    EXPECT_FALSE(ofTakenUuid);
    EXPECT_TRUE(zandic::Find(*package, &OXMIDicPackage::GetElement, "Newer"));
}

TEST_F(ZandicHppTest, FreeAttributesComeAsPairs) {
    const auto element = ClassNamed("BomAssembly");

    Names pairs;
    for (const auto [name, value] : zandic::FreeAttributes(*element)) {
        pairs.push_back(std::string(name) + "=" + std::string(value));
    }

    EXPECT_EQ(pairs, (Names{"Owner=Structure team"}));
    EXPECT_EQ(zandic::FreeAttributes(*ClassNamed("BomPart")).Size(), 0);
}

TEST_F(ZandicHppTest, TheTextOfNoUuidIsUndefined) {
    EXPECT_EQ(zandic::UuidText(ZELDbBinary()).View(), "UNDEFINED");
    EXPECT_EQ(zandic::UuidText(TestUuid(0xab)).View(), "00000000-0000-0000-00000000000000AB");
}

TEST_F(ZandicHppTest, ParseUuidTakesAnyCaseAndAnyDashes) {
    const ZELDbBinary uuid = zandic::Uuid(*ClassNamed("BomPart"));

    EXPECT_EQ(zandic::ParseUuid("5AAF3900-5E46-4551-BB9AE4FD947B8003"), uuid);
    EXPECT_EQ(zandic::ParseUuid("5aaf39005e464551bb9ae4fd947b8003"), uuid);
    EXPECT_EQ(zandic::ParseUuid("5aaf3900-5e46-4551-bb9a-e4fd947b8003"), uuid);
}

TEST_F(ZandicHppTest, ParseUuidRefusesWhatIsNone) {
    EXPECT_EQ(zandic::ParseUuid(""), std::nullopt);
    EXPECT_EQ(zandic::ParseUuid("BomPart"), std::nullopt);
    EXPECT_EQ(zandic::ParseUuid("5aaf39005e464551bb9ae4fd947b800"), std::nullopt) << "one digit short";
    EXPECT_EQ(zandic::ParseUuid("5aaf39005e464551bb9ae4fd947b80033"), std::nullopt) << "one digit more";
    EXPECT_EQ(zandic::ParseUuid("5aaf39005e464551bb9ae4fd947b800g"), std::nullopt) << "no digit";
    EXPECT_EQ(zandic::ParseUuid("5aaf3900--5e464551bb9ae4fd947b8003"), std::nullopt) << "two dashes";
    EXPECT_EQ(zandic::ParseUuid("-5aaf39005e464551bb9ae4fd947b8003"), std::nullopt) << "a dash first";
    EXPECT_EQ(zandic::ParseUuid("5aaf39005e464551bb9ae4fd947b8003-"), std::nullopt) << "a dash last";
    EXPECT_EQ(zandic::ParseUuid("5-aaf39005e464551bb9ae4fd947b8003"), std::nullopt) << "a dash inside a byte";
}

TEST_F(ZandicHppTest, TheDictionaryLoadsAndFinds) {
    EXPECT_EQ(dictionary.Load("BomItems", ZANDIC_SAMPLES), zandic::Result(S_OK));
    EXPECT_EQ(dictionary.Load("BomNothing", ZANDIC_SAMPLES), zandic::Result(E_FAIL));
    EXPECT_EQ(NamesOf(dictionary.Packages("VALKOR")), (Names{"BomPeople", "BomItems", "BomDocuments"}));
    EXPECT_TRUE(dictionary.Packages("DUVRA").IsEmpty());
    EXPECT_FALSE(dictionary.Package("BomNothing"));

    const auto found = dictionary.Search(*zandic::ParseUuid("5AAF3900-5E46-4551-BB9AE4FD947B8003"));
    EXPECT_EQ(zandic::Name(*found).View(), "BomPart");
    EXPECT_FALSE(dictionary.Search(TestUuid(1)));
}

TEST_F(ZandicHppTest, UnloadTakesAPackageOut) {
    EXPECT_TRUE(dictionary.Unload("BomItems"));

    EXPECT_FALSE(dictionary.Package("BomItems"));
    EXPECT_EQ(dictionary.Unload("BomItems"), zandic::Result(E_FAIL));
}

TEST_F(ZandicHppTest, AFaultOfADocumentIsToldWithItsPlace) {
    const TestDirectory directory;
    directory.MakeFile("Faulty.metadata",
                       "<Package Name=\"Faulty\" Uuid=\"1\">\n  <Class Name=\"C\"/>\n</Package>\n");

    const zandic::Result loaded = dictionary.Load("Faulty", directory.Path().c_str());

    EXPECT_FALSE(loaded);
    EXPECT_TRUE(loaded.Text().starts_with(directory.Path("Faulty.metadata:2:3: "))) << loaded.Text();
}

TEST_F(ZandicHppTest, LoadWithoutDirectoriesTakesThePathOfTheEnvironment) {
    EXPECT_FALSE(dictionary.Load("BomWorkshop"));

    ::setenv("ZELDictionaryPath", ZANDIC_SAMPLES, 1);
    EXPECT_TRUE(dictionary.Load("BomWorkshop"));
}

}  // namespace
