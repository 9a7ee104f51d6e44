#include <sstream>
#include <string>

#include "DictionaryFixture.h"
#include "OXMIDicClass.h"
#include "OXMIDicPackage.h"
#include "ZELTestDirectory.h"
#include "ZanDicData.h"
#include "ZanDictionary.h"

namespace {

class ZanDictionaryPackagesTest : public DictionaryFixture {
protected:
    HRESULT Create(const char* name, unsigned number, const char* domain, OXMIDicPackage** package) {
        const ZELString nameText = name;
        const ZELString domainText = domain;
        const ZELDbBinary uuid = TestUuid(number);
        return Manager().CreatePackage(&nameText, &uuid, &domainText, package);
    }

    Held<OXMIDicPackage> MakePackage(const char* name, unsigned number, const char* domain = "VALKOR") {
        Held<OXMIDicPackage> package;
        EXPECT_EQ(Create(name, number, domain, package.Out()), S_OK);
        return package;
    }

    static Held<OXMIDicClass> MakeClass(OXMIDicPackage& package, const char* name, unsigned number) {
        Held<OXMIDicClass> made;
        const ZELString text = name;
        const ZELDbBinary uuid = TestUuid(number);
        EXPECT_EQ(package.CreateClass(&text, &uuid, made.Out()), S_OK);
        return made;
    }

    HRESULT Get(const char* name, OXMIDicPackage** package) {
        const ZELString text = name;
        return Manager().GetPackage(&text, package);
    }

    HRESULT Remove(const char* name) {
        const ZELString text = name;
        return Manager().RemovePackage(&text);
    }

    static std::string NamesOf(const ZELListPtrIUnknown& list) {
        std::string names;
        for (IUnknown* const entry : list) {
            Held<OXMIDicElementH> element;
            entry->QueryInterface(IID_OXMIDicElementH, element.OutVoid());
            ZELString name;
            element->GetName(&name);
            names += std::string(name.View()) + " ";
        }
        return names;
    }

    static int CountObjs() {
        ZanDictionary* dictionary = nullptr;
        _StaticZanDicData.get_ZanDictionary(&dictionary);
        return dictionary->count_Objs();
    }

    void List(const std::string& operation) {
        ZanDicSetTraceMethodsFile(_Directory.MakeFile("methods.txt", operation + "\n").c_str());
        ClearWritten();
    }

private:
    TestDirectory _Directory;
};

std::string At(const void* address) {
    std::ostringstream text;
    text << address;
    return text.str();
}

}  // namespace

// CreatePackage

TEST_F(ZanDictionaryPackagesTest, CreatePackageMakesARegisteredPackage) {
    Held<OXMIDicPackage> package;
    Held<OXMIDicElementH> found;
    const ZELDbBinary uuid = TestUuid(1);

    EXPECT_EQ(Create("Items", 1, "DUVRA", package.Out()), S_OK);
    ZELString domain;
    package->GetDomain(&domain);
    EXPECT_EQ(domain, "DUVRA");
    EXPECT_EQ(Manager().Search(&uuid, found.Out()), S_OK);
    EXPECT_EQ(Written(), "");
}

TEST_F(ZanDictionaryPackagesTest, CreatePackageRefusesATakenName) {
    const auto first = MakePackage("Items", 1);
    OXMIDicPackage* untouched = first.Get();

    EXPECT_EQ(Create("Items", 2, "VALKOR", &untouched), E_FAIL);
    EXPECT_EQ(untouched, first.Get());
    EXPECT_EQ(CountObjs(), 1);
    EXPECT_EQ(Written(), "");
}

TEST_F(ZanDictionaryPackagesTest, CreatePackageDoesNotCutTheName) {
    const auto first = MakePackage("Items", 1);

    MakePackage("Items.tuning", 2);
    EXPECT_EQ(CountObjs(), 2);
}

TEST_F(ZanDictionaryPackagesTest, CreatePackageDiscardsAPackageWhoseUuidIsTaken) {
    const auto first = MakePackage("Items", 1);
    OXMIDicPackage* untouched = first.Get();
    Held<OXMIDicPackage> found;

    EXPECT_EQ(Create("Documents", 1, "VALKOR", &untouched), E_FAIL);
    EXPECT_EQ(untouched, first.Get());
    EXPECT_EQ(Get("Documents", found.Out()), E_FAIL);
    EXPECT_EQ(Written(),
              "ZanDictionary::Insert- *** ERROR *** Dictionary violation: Uuid is not unique:"
              "00000000000000000000000000000001.\n"
              "ZanDictionary::Insert- Conflicting object: Type=11, Name=Documents, from Package=?.\n");
    EXPECT_EQ(Create("Documents", 2, "VALKOR", found.Out()), S_OK);
}

TEST_F(ZanDictionaryPackagesTest, CreatePackageRefusesNullInSilence) {
    const ZELString name = "Items";
    const ZELDbBinary uuid = TestUuid(1);
    OXMIDicPackage* package = nullptr;

    EXPECT_EQ(Manager().CreatePackage(nullptr, &uuid, &name, &package), E_FAIL);
    EXPECT_EQ(Manager().CreatePackage(&name, nullptr, &name, &package), E_FAIL);
    EXPECT_EQ(Manager().CreatePackage(&name, &uuid, nullptr, &package), E_FAIL);
    EXPECT_EQ(Manager().CreatePackage(&name, &uuid, &name, nullptr), E_FAIL);
    EXPECT_EQ(package, nullptr);
    EXPECT_EQ(CountObjs(), 0);
    EXPECT_EQ(Written(), "");
}

TEST_F(ZanDictionaryPackagesTest, CreatePackageTraces) {
    List("ZanDictionary::CreatePackage");
    MakePackage("Items", 1);
    Held<OXMIDicPackage> second;
    Create("Items", 2, "VALKOR", second.Out());

    EXPECT_EQ(Written(),
              "ZanDictionary::CreatePackage- === start === iPackageName=Items.\n"
              "ZanDictionary::CreatePackage- Creating new ZanDicPackage(Items,...,)....\n"
              "ZanDictionary::CreatePackage- binding interface to OXMDicPACKAGE ....\n"
              "ZanDictionary::CreatePackage- === exit === RC=OK.\n"
              "ZanDictionary::CreatePackage- === start === iPackageName=Items.\n"
              "ZanDictionary::CreatePackage- === exit === RC=KO.\n");
}

TEST_F(ZanDictionaryPackagesTest, TheObsoleteCreatePackageAlwaysWarnsAndAssigns) {
    TraceFromNow(-1);
    Held<OXMIDicPackage> package;
    const ZELString name = "Items";
    ZELString domain;
    ZELDbBinary uuid;

    EXPECT_EQ(Manager().CreatePackage(&name, package.Out()), S_OK);
    EXPECT_EQ(Written(),
              "ZanDictionary::CreatePackage- *** WARNING *** This method is now obsolete. "
              "Uuid will be assigned dynamically. Domain will be set to VALKOR.\n");
    package->GetDomain(&domain);
    package->GetUuid(&uuid);
    EXPECT_EQ(domain, "VALKOR");
    EXPECT_EQ(uuid.Length(), 16);
    EXPECT_EQ(Manager().CreatePackage(&name, package.Out()), E_FAIL);
}

// GetPackage

TEST_F(ZanDictionaryPackagesTest, GetPackageFindsByNameOrByWhatStandsBeforeTheFirstDot) {
    const auto made = MakePackage("Items", 1);
    Held<OXMIDicPackage> found;

    EXPECT_EQ(Get("Items", found.Out()), S_OK);
    EXPECT_EQ(found.Get(), made.Get());
    EXPECT_EQ(Get("Items.tuning", found.Out()), S_OK);
    EXPECT_EQ(found.Get(), made.Get());
    EXPECT_EQ(Get("Items.a.b", found.Out()), S_OK);
}

TEST_F(ZanDictionaryPackagesTest, GetPackageTriesTheExactNameFirst) {
    const auto plain = MakePackage("Items", 1);
    const auto dotted = MakePackage("Items.tuning", 2);
    Held<OXMIDicPackage> found;

    EXPECT_EQ(Get("Items.tuning", found.Out()), S_OK);
    EXPECT_EQ(found.Get(), dotted.Get());
}

TEST_F(ZanDictionaryPackagesTest, GetPackageLeavesItsOutputUntouchedOnAMiss) {
    const auto made = MakePackage("Items", 1);
    OXMIDicPackage* untouched = made.Get();

    EXPECT_EQ(Get("items", &untouched), E_FAIL);
    EXPECT_EQ(Get("", &untouched), E_FAIL);
    EXPECT_EQ(Manager().GetPackage(nullptr, &untouched), E_FAIL);
    EXPECT_EQ(untouched, made.Get());
    EXPECT_EQ(Get("Items", nullptr), E_FAIL);
}

TEST_F(ZanDictionaryPackagesTest, GetPackageTracesTheAddressOfTheName) {
    const ZELString name = "Items.x";
    List("ZanDictionary::GetPackage");
    Held<OXMIDicPackage> found;
    Manager().GetPackage(&name, found.Out());
    Manager().GetPackage(nullptr, found.Out());

    EXPECT_EQ(Written(),
              "ZanDictionary::GetPackage- === start === Name=Items.x.\n"
              "ZanDictionary::GetPackage- === exit === RC=KO, PackName=" +
                  At(&name) +
                  ".\n"
                  "ZanDictionary::GetPackage- === start === Name=.\n"
                  "ZanDictionary::GetPackage- === exit === RC=KO, PackName=0.\n");
}

// GetPackages

TEST_F(ZanDictionaryPackagesTest, GetPackagesGivesThoseOfADomainInTheOrderOfCreation) {
    MakePackage("C", 1);
    MakePackage("B", 2, "DUVRA");
    MakePackage("A", 3);
    HeldList packages;
    const ZELString duvra = "DUVRA";

    EXPECT_EQ(Manager().GetPackages(&packages), S_OK);
    EXPECT_EQ(NamesOf(packages), "C A ");
    EXPECT_EQ(Manager().GetPackages(&duvra, &packages), S_OK);
    EXPECT_EQ(NamesOf(packages), "C A B ") << "appended";
}

TEST_F(ZanDictionaryPackagesTest, GetPackagesRefusesNull) {
    HeldList packages;
    const ZELString domain = "VALKOR";

    EXPECT_EQ(Manager().GetPackages(nullptr), E_FAIL);
    EXPECT_EQ(Manager().GetPackages(&domain, nullptr), E_FAIL);
    EXPECT_EQ(Manager().GetPackages(nullptr, &packages), E_FAIL);
}

TEST_F(ZanDictionaryPackagesTest, GetPackagesTracesUnderItsOwnLabel) {
    MakePackage("A", 1);
    MakePackage("B", 2, "DUVRA");
    HeldList packages;
    List("ZanDictionary::GetPackages (2) - ");
    Manager().GetPackages(&packages);

    EXPECT_EQ(Written(),
              "ZanDictionary::GetPackages (2) - - PackName=A, PackDomain=VALKOR.\n"
              "ZanDictionary::GetPackages (2) - - PackName=B, PackDomain=DUVRA.\n");
}

// RemovePackage

TEST_F(ZanDictionaryPackagesTest, RemovePackageUnloadsEverything) {
    {
        const auto package = MakePackage("Items", 1);
        MakeClass(*package, "Part", 2);
    }
    Held<OXMIDicPackage> found;

    EXPECT_EQ(Remove("Items"), S_OK);
    EXPECT_EQ(CountObjs(), 0);
    EXPECT_EQ(Get("Items", found.Out()), E_FAIL);
    EXPECT_EQ(Remove("Items"), E_FAIL);
    MakePackage("Items", 1);
}

TEST_F(ZanDictionaryPackagesTest, RemovePackageDoesNotCutTheName) {
    MakePackage("Items", 1);

    EXPECT_EQ(Remove("Items.tuning"), E_FAIL);
    EXPECT_EQ(CountObjs(), 1);
    EXPECT_EQ(Manager().RemovePackage(nullptr), E_FAIL);
}

TEST_F(ZanDictionaryPackagesTest, RemovePackageTraces) {
    { const auto package = MakePackage("Items", 1); }
    List("ZanDictionary::RemovePackage");
    Remove("Items");
    Remove("Items");

    EXPECT_EQ(Written(),
              "ZanDictionary::RemovePackage- === start === iName=Items.\n"
              "ZanHashList::RemoveAll _HASH.Size()=0, _LISTP.Size()=0\n"
              "ZanDicPackage::FlushAll- *** WARNING *** processing _COMMANDS: TO BE COMPLETED !.\n"
              "ZanDictionary::RemovePackage- rc[pPackage->FlushAll()]=OK.\n"
              "ZanDictionary::RemovePackage- rc[Delete]=OK.\n"
              "ZanDictionary::RemovePackage- RefCount=0.\n"
              "ZanDictionary::RemovePackage- === exit === RC=OK.\n"
              "ZanDictionary::RemovePackage- === start === iName=Items.\n"
              "ZanDictionary::RemovePackage- === exit === RC=KO.\n");
}

TEST_F(ZanDictionaryPackagesTest, RemovePackageLeavesAHeldPackageToItsHolder) {
    const auto package = MakePackage("Items", 1);
    List("ZanDictionary::RemovePackage");

    EXPECT_EQ(Remove("Items"), S_OK);
    EXPECT_NE(Written().find("RefCount=1."), std::string::npos);
    ZELString name;
    EXPECT_EQ(package->GetName(&name), S_OK);
    EXPECT_EQ(name, "Items");
}

TEST_F(ZanDictionaryPackagesTest, RemovePackageGivesTheListsResultWhateverTheRegistrySays) {
    const auto package = MakePackage("Items", 1);
    const auto other = MakePackage("Others", 2);
    const ZELDbBinary taken = TestUuid(2);
    package->SetUuid(&taken);  // refused: registered no more
    List("ZanDictionary::RemovePackage");

    EXPECT_EQ(Remove("Items"), S_OK);
    EXPECT_NE(Written().find("rc[Delete]=KO."), std::string::npos);
    EXPECT_EQ(CountObjs(), 1) << "the other package stays registered";
}

TEST_F(ZanDictionaryPackagesTest, RemovePackageMakesLinksIntoItReadAsUnset) {
    const auto items = MakePackage("Items", 1);
    const auto documents = MakePackage("Documents", 2);
    const auto part = MakeClass(*items, "Part", 3);
    const auto special = MakeClass(*documents, "Special", 4);
    ASSERT_EQ(special->SetSuperClass(part.Get()), S_OK);
    ASSERT_EQ(documents->AddUsedPackage(items.Get()), S_OK);
    Remove("Items");
    Held<OXMIDicClass> super;
    HeldList used;

    EXPECT_EQ(special->GetSuperClass(super.Out()), S_FALSE);
    EXPECT_EQ(documents->GetUsedPackages(&used), S_OK);
    EXPECT_EQ(used.Size(), 0);
}

// SearchByName

TEST_F(ZanDictionaryPackagesTest, SearchByNameGivesThePackageFirstThenElements) {
    const auto items = MakePackage("Items", 1);
    const auto parts = MakePackage("Part", 2);
    MakeClass(*items, "Part", 3);
    MakeClass(*parts, "Part", 4);
    HeldList found;
    const ZELString name = "Part";

    EXPECT_EQ(Manager().SearchByName(&name, &found), S_OK);
    ASSERT_EQ(found.Size(), 3);
    EXPECT_EQ(found[1], static_cast<IUnknown*>(parts.Get()));
}

TEST_F(ZanDictionaryPackagesTest, SearchByNameSucceedsAsSoonAsAnyPackageIsLoaded) {
    HeldList found;
    const ZELString name = "Nothing";

    EXPECT_EQ(Manager().SearchByName(&name, &found), E_FAIL);
    MakePackage("Items", 1);
    EXPECT_EQ(Manager().SearchByName(&name, &found), S_OK);
    EXPECT_EQ(found.Size(), 0);
}

TEST_F(ZanDictionaryPackagesTest, SearchByNameRefusesNull) {
    MakePackage("Items", 1);
    HeldList found;
    const ZELString name = "Items";

    EXPECT_EQ(Manager().SearchByName(nullptr, &found), E_FAIL);
    EXPECT_EQ(Manager().SearchByName(&name, nullptr), E_FAIL);
}
