#include "ZanDicObj.h"

#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "DictionaryFixture.h"
#include "OXMIDicApp.h"
#include "OXMIDicClass.h"
#include "OXMIDicPackage.h"
#include "ZELTestDirectory.h"

namespace {

std::string At(const void* address) {
    std::ostringstream text;
    text << address;
    return text.str();
}

/// A UUID of the bytes 00 11 22 ... FF.
ZELDbBinary LadderUuid() {
    unsigned char bytes[16];
    for (unsigned index = 0; index < 16; ++index) bytes[index] = static_cast<unsigned char>(index * 0x11);
    return {bytes, 16};
}

class ZanDicObjTest : public DictionaryFixture {
protected:
    Held<OXMIDicClass> MakeClass(const char* name, unsigned number) {
        Held<OXMIDicClass> made;
        const ZELString text = name;
        const ZELDbBinary uuid = TestUuid(number);
        EXPECT_EQ(Package().CreateClass(&text, &uuid, made.Out()), S_OK);
        return made;
    }

    OXMIDicPackage& Package() {
        if (!_Package) {
            const ZELString name = "Tests";
            const ZELString domain = "VALKOR";
            const ZELDbBinary uuid = TestUuid(1000);
            EXPECT_EQ(Manager().CreatePackage(&name, &uuid, &domain, _Package.Out()), S_OK);
        }
        return *_Package;
    }

    /// Whether the registry finds an object under a UUID.
    bool IsRegistered(const ZELDbBinary& uuid) {
        Held<OXMIDicElementH> found;
        return Succeeded(Manager().Search(&uuid, found.Out()));
    }

private:
    Held<OXMIDicPackage> _Package;
};

/// Counts how often it was told to drop its links.
class LinkedObj : public ZanDicObj {
public:
    int drops = 0;

protected:
    void drop_Links() override { ++drops; }
};

}  // namespace

static_assert(sizeof(ZanDicObj) == 64, "what every object of the dictionary costs");

TEST_F(ZanDicObjTest, ADefaultObjectIsUndefined) {
    const ZanDicObj object;
    OXMDicTYPE type = OXMDicTYPE_Class;
    ZELDbBinary uuid = TestUuid(1);

    EXPECT_EQ(object.Name(), "UNDEFINED");
    EXPECT_EQ(object.GetUuid(&uuid), S_OK);
    EXPECT_TRUE(uuid.IsEmpty());
    EXPECT_EQ(object.GetType(&type), S_OK);
    EXPECT_EQ(type, -1);
    EXPECT_EQ(object.get_type(), ZanDicObj::_type_Element);
    EXPECT_EQ(object.RefCount(), 1U);
}

TEST_F(ZanDicObjTest, CopiesNameAndUuidAndHasNoTypeYet) {
    const ZanDicObj object("Part", TestUuid(7));
    ZELString name;

    EXPECT_EQ(object.GetName(&name), S_OK);
    EXPECT_EQ(name, "Part");
    EXPECT_EQ(object.Uuid(), TestUuid(7));
    EXPECT_EQ(object.Type(), -1);
    EXPECT_FALSE(object.is_Registered());
}

TEST_F(ZanDicObjTest, KnowsItsClass) {
    const ZanDicObj object;

    EXPECT_STREQ(object.IsA(), "ZanDicObj");
    EXPECT_STREQ(ZanDicObj::ClassMeta().BaseName(), "ZELNull");
    EXPECT_STREQ(ZanDicObj::ClassMeta().Family(), "ZELPLMDictionary");
    EXPECT_EQ(object.IsAKindOf("ZanDicObj"), 1);
    EXPECT_EQ(object.IsAKindOf("ZELBaseUnknown"), 1);
    EXPECT_EQ(object.IsAKindOf("ZanDicClass"), 0);
}

TEST_F(ZanDicObjTest, SetsNameAndType) {
    ZanDicObj object;
    const ZELString name = "Part";

    EXPECT_EQ(object.SetName(&name), S_OK);
    EXPECT_EQ(object.set_TYPE(OXMDicTYPE_Class), S_OK);
    EXPECT_EQ(object.Name(), "Part");
    EXPECT_EQ(object.Type(), OXMDicTYPE_Class);
}

TEST_F(ZanDicObjTest, NullArgumentsOfIdentityFail) {
    ZanDicObj object;

    EXPECT_EQ(object.GetName(nullptr), E_FAIL);
    EXPECT_EQ(object.SetName(nullptr), E_FAIL);
    EXPECT_EQ(object.GetUuid(nullptr), E_FAIL);
    EXPECT_EQ(object.SetUuid(nullptr), E_FAIL);
    EXPECT_EQ(object.GetType(nullptr), E_FAIL);
    EXPECT_EQ(object.Name(), "UNDEFINED");
}

TEST_F(ZanDicObjTest, HasLostNoLinksAtFirst) {
    int count = 5;

    EXPECT_EQ(ZanDicObj().GetLostLinks(&count), S_OK);
    EXPECT_EQ(ZanDicObj().GetLostLinks(nullptr), E_FAIL);
    EXPECT_EQ(count, 0);
}

// Free attributes.

TEST_F(ZanDicObjTest, SetOtherAttributeStripsBlanksOfNameAndValue) {
    ZanDicObj object;
    ZELUnicodeString value;

    EXPECT_EQ(object.SetOtherAttribute(" Key ", " v "), S_OK);
    EXPECT_EQ(object.GetOtherAttribute("Key", value), S_OK);
    EXPECT_EQ(value, "v");
}

TEST_F(ZanDicObjTest, SetOtherAttributeStripsNothingButBlanks) {
    ZanDicObj object;
    ZELUnicodeString value;
    object.SetOtherAttribute("\tKey", "\nv");

    EXPECT_EQ(object.GetOtherAttribute("\tKey", value), S_OK);
    EXPECT_EQ(value, "\nv");
}

TEST_F(ZanDicObjTest, SetOtherAttributeReplacesAValueInItsPlace) {
    ZanDicObj object;
    object.SetOtherAttribute("Key", "v");
    object.SetOtherAttribute("Last", "l");
    ZELListValZELUnicodeString names;
    ZELListValZELUnicodeString values;

    EXPECT_EQ(object.SetOtherAttribute("Key ", "new"), S_OK);
    EXPECT_EQ(object.GetAllOtherAttributes(names, values), S_OK);
    ASSERT_EQ(names.Size(), 2);
    ASSERT_EQ(values.Size(), 2);
    EXPECT_EQ(names[1], "Key");
    EXPECT_EQ(values[1], "new");
    EXPECT_EQ(names[2], "Last");
}

TEST_F(ZanDicObjTest, ManyOtherAttributesKeepTheirOrderAndAreReplacedInTheirPlace) {
    constexpr int kCount = 200'000;  // takes minutes where each is compared with all before it
    ZanDicObj object;
    for (int number = 1; number <= kCount; ++number) {
        object.SetOtherAttribute(("Key" + std::to_string(number)).c_str(), "v");
    }
    object.SetOtherAttribute("Key150000", "new");
    const ZanDicObj copy(object);
    ZELListValZELUnicodeString names;
    ZELListValZELUnicodeString values;
    ZELUnicodeString value;

    object.GetAllOtherAttributes(names, values);
    ASSERT_EQ(names.Size(), kCount);
    ASSERT_EQ(values.Size(), kCount);
    EXPECT_EQ(names[1], "Key1");
    EXPECT_EQ(names[kCount], "Key200000");
    EXPECT_EQ(values[150'000], "new");
    EXPECT_EQ(values[150'001], "v");
    EXPECT_EQ(copy.GetOtherAttribute("Key150000", value), S_OK);
    EXPECT_EQ(value, "new");
    EXPECT_EQ(copy.GetOtherAttribute("Key0", value), E_FAIL);
}

TEST_F(ZanDicObjTest, SetOtherAttributeRefusesANullOrEmptyName) {
    ZanDicObj object;
    ZELListValZELUnicodeString names;
    ZELListValZELUnicodeString values;

    EXPECT_EQ(object.SetOtherAttribute(ZELUnicodeString(), "v"), E_FAIL);
    EXPECT_EQ(object.SetOtherAttribute("", "v"), E_FAIL);
    EXPECT_EQ(object.SetOtherAttribute("  ", "v"), E_FAIL);
    object.GetAllOtherAttributes(names, values);
    EXPECT_EQ(names.Size(), 0);
}

TEST_F(ZanDicObjTest, GetOtherAttributeDoesNotStripAndEmptiesTheValueFirst) {
    ZanDicObj object;
    object.SetOtherAttribute("Key", "v");
    ZELUnicodeString value = "before";

    EXPECT_EQ(object.GetOtherAttribute(" Key", value), E_FAIL);
    EXPECT_FALSE(value.IsNull());
    EXPECT_EQ(value, "");
    EXPECT_EQ(object.GetOtherAttribute(ZELUnicodeString(), value), E_FAIL);
    EXPECT_EQ(object.GetOtherAttribute("", value), E_FAIL);
    EXPECT_EQ(object.GetOtherAttribute("Unknown", value), E_FAIL);
}

TEST_F(ZanDicObjTest, GetOtherAttributeTakesOneStringAsNameAndValue) {
    ZanDicObj object;
    object.SetOtherAttribute("Key", "v");
    ZELUnicodeString both = "Key";

    EXPECT_EQ(object.GetOtherAttribute(both, both), S_OK);
    EXPECT_EQ(both, "v");
}

TEST_F(ZanDicObjTest, GetAllOtherAttributesReplacesTheCallersLists) {
    ZELListValZELUnicodeString names;
    ZELListValZELUnicodeString values;
    names.Append("before");
    values.Append("before");

    EXPECT_EQ(ZanDicObj().GetAllOtherAttributes(names, values), S_OK);
    EXPECT_EQ(names.Size(), 0);
    EXPECT_EQ(values.Size(), 0);
}

// Interfaces.

TEST_F(ZanDicObjTest, BindInterfaceWithACodeBelowOneMeansTheOwnType) {
    const auto made = MakeClass("Part", 1);
    const ZELDbBinary uuid = TestUuid(1);
    Held<OXMIDicElementH> found;
    Manager().Search(&uuid, found.Out());
    ZanDicObj object;
    object.set_TYPE(OXMDicTYPE_Class);
    void* out = nullptr;

    EXPECT_EQ(object.bind_Interface(OXMDicTYPE_UNDEFINED, &out), E_NOINTERFACE)
        << "a bare object is no class";
    EXPECT_EQ(object.bind_Interface(static_cast<OXMDicTYPE>(-1), &out), E_NOINTERFACE);
    EXPECT_EQ(out, nullptr);
    EXPECT_EQ(Written(), "");
}

TEST_F(ZanDicObjTest, BindInterfaceWarnsOfCodesWithoutInterface) {
    ZanDicObj object;
    int sentinel = 0;
    void* out = &sentinel;

    for (const int code : {17, 18, 27, 0}) {
        EXPECT_EQ(object.bind_Interface(static_cast<OXMDicTYPE>(code), &out), E_FAIL);
    }
    EXPECT_EQ(out, &sentinel);
    EXPECT_EQ(Written(),
              "ZanDicObj::bind_Interface -*** WARNING *** Unkown object type=17.\n"
              "ZanDicObj::bind_Interface -*** WARNING *** Unkown object type=18.\n"
              "ZanDicObj::bind_Interface -*** WARNING *** Unkown object type=27.\n"
              "ZanDicObj::bind_Interface -*** WARNING *** Unkown object type=-1.\n");
    EXPECT_EQ(Lines()[0].severity, ZELLineSeverity::Warning);
}

TEST_F(ZanDicObjTest, BindInterfaceAsksForTheInterfaceOfEveryOtherCode) {
    ZanDicObj object;
    void* out = nullptr;

    for (int code = 1; code <= 26; ++code) {
        const HRESULT expected = code == 17 || code == 18 ? E_FAIL : E_NOINTERFACE;
        EXPECT_EQ(object.bind_Interface(static_cast<OXMDicTYPE>(code), &out), expected) << code;
    }
}

TEST_F(ZanDicObjTest, EveryObjectAnswersIdentityInterfaces) {
    auto* const object = new ZanDicObj("Part", TestUuid(1));
    Held<OXMIDicElementH> element;
    Held<OXMIDicApp> app;

    EXPECT_EQ(object->QueryInterface(IID_OXMIDicElementH, element.OutVoid()), S_OK);
    EXPECT_EQ(object->QueryInterface(IID_OXMIDicApp, app.OutVoid()), S_OK);
    object->Release();
    ZELString name;
    element->GetName(&name);
    EXPECT_EQ(name, "Part");
}

TEST_F(ZanDicObjTest, ItsInterfaceGivesAFreeAttributeByName) {
    auto* const object = new ZanDicObj("Part", TestUuid(1));
    Held<OXMIDicElementH> element;
    object->QueryInterface(IID_OXMIDicElementH, element.OutVoid());
    object->Release();
    ZELUnicodeString value;

    EXPECT_EQ(element->SetOtherAttribute("Colour", "red"), S_OK);

    EXPECT_EQ(element->GetOtherAttribute("Colour", value), S_OK);
    EXPECT_EQ(value, ZELUnicodeString("red"));
    EXPECT_EQ(element->GetOtherAttribute("Weight", value), E_FAIL);
}

TEST_F(ZanDicObjTest, TheApplicationsInterfaceSpeaksOfTheSameObject) {
    auto* const object = new ZanDicObj("Part", TestUuid(1));
    Held<OXMIDicApp> app;
    object->QueryInterface(IID_OXMIDicApp, app.OutVoid());
    const ZELString name("Piece");
    const ZELDbBinary uuid = TestUuid(2);
    ZELDbBinary present;
    OXMDicTYPE type = OXMDicTYPE_Class;

    EXPECT_EQ(app->GetUuid(&present), S_OK);
    EXPECT_EQ(present, TestUuid(1));
    EXPECT_EQ(app->SetUuid(&uuid), E_FAIL);  // as ZanDicObj::SetUuid
    EXPECT_EQ(app->SetName(&name), S_OK);
    EXPECT_EQ(app->GetType(&type), S_OK);

    EXPECT_EQ(object->Uuid(), uuid);
    EXPECT_EQ(object->Name(), name);
    EXPECT_EQ(type, object->Type());
    app->GenUuid();
    EXPECT_NE(object->Uuid(), uuid);
    object->Release();
}

// UUIDs and the registry.

TEST_F(ZanDicObjTest, SetUuidAlwaysReportsFailure) {
    auto* const object = new ZanDicObj("Part", TestUuid(1));
    const ZELDbBinary uuid = TestUuid(2);

    EXPECT_EQ(object->SetUuid(&uuid), E_FAIL);
    EXPECT_EQ(object->Uuid(), uuid);
    EXPECT_TRUE(object->is_Registered());
    EXPECT_TRUE(IsRegistered(uuid));
    EXPECT_EQ(Written(), "");
    object->Release();
    EXPECT_FALSE(IsRegistered(uuid)) << "a destroyed object takes itself out";
}

TEST_F(ZanDicObjTest, SetUuidRegistersUnderTheNewUuidOnly) {
    const auto made = MakeClass("Part", 1);
    const ZELDbBinary before = TestUuid(1);
    const ZELDbBinary after = TestUuid(2);

    EXPECT_EQ(made->SetUuid(&after), E_FAIL);
    EXPECT_FALSE(IsRegistered(before));
    EXPECT_TRUE(IsRegistered(after));
}

TEST_F(ZanDicObjTest, SetUuidToATakenOneLeavesTheObjectUnregistered) {
    const auto part = MakeClass("Part", 1);
    const auto document = MakeClass("Document", 2);
    const ZELDbBinary taken = TestUuid(1);
    ZELDbBinary uuid;
    EXPECT_EQ(document->SetUuid(&taken), E_FAIL);

    EXPECT_EQ(Written(),
              "ZanDictionary::Insert- *** ERROR *** Dictionary violation: Uuid is not unique:"
              "00000000000000000000000000000001.\n"
              "ZanDictionary::Insert- Conflicting object: Type=5, Name=Document, from Package=Tests.\n");
    document->GetUuid(&uuid);
    EXPECT_EQ(uuid, taken);
    EXPECT_FALSE(IsRegistered(TestUuid(2)));
    Held<OXMIDicElementH> found;
    Manager().Search(&taken, found.Out());
    ZELString name;
    found->GetName(&name);
    EXPECT_EQ(name, "Part");
}

TEST_F(ZanDicObjTest, SetUuidOfAnObjectThatIsGoneOnlyAssigns) {
    const auto part = MakeClass("Part", 1);
    const ZELString name = "Part";
    Package().RemoveElement(&name);
    const ZELDbBinary uuid = TestUuid(9);
    ZELDbBinary now;

    EXPECT_EQ(part->SetUuid(&uuid), E_FAIL);
    part->GetUuid(&now);
    EXPECT_EQ(now, uuid);
    EXPECT_FALSE(IsRegistered(uuid));
}

TEST_F(ZanDicObjTest, GenUuidKeepsARegisteredObjectRegistered) {
    const auto part = MakeClass("Part", 1);
    ZELDbBinary uuid;

    EXPECT_EQ(part->GenUuid(), S_OK);
    part->GetUuid(&uuid);
    EXPECT_EQ(uuid.Length(), 16);
    EXPECT_FALSE(uuid == TestUuid(1));
    EXPECT_TRUE(IsRegistered(uuid));
    EXPECT_FALSE(IsRegistered(TestUuid(1)));
}

TEST_F(ZanDicObjTest, GenUuidDoesNotRegister) {
    ZanDicObj object;

    EXPECT_EQ(object.GenUuid(), S_OK);
    EXPECT_EQ(object.Uuid().Length(), 16);
    EXPECT_FALSE(object.is_Registered());
    EXPECT_FALSE(IsRegistered(object.Uuid()));
}

TEST_F(ZanDicObjTest, AssignmentRegistersUnderTheNewUuid) {
    auto* const object = new ZanDicObj("Part", TestUuid(1));
    const ZELDbBinary uuid = TestUuid(1);
    object->SetUuid(&uuid);
    const ZanDicObj other("Other", TestUuid(2));
    *object = other;

    EXPECT_EQ(object->Name(), "Other");
    EXPECT_EQ(object->RefCount(), 1U);
    EXPECT_FALSE(IsRegistered(TestUuid(1)));
    EXPECT_TRUE(IsRegistered(TestUuid(2)));
    EXPECT_FALSE(other.is_Registered());
    object->Release();
}

TEST_F(ZanDicObjTest, ACopyIsAnUnregisteredObjectOfItsOwn) {
    auto* const object = new ZanDicObj("Part", TestUuid(1));
    const ZELDbBinary uuid = TestUuid(1);
    object->SetUuid(&uuid);
    {
        const ZanDicObj copy(*object);
        EXPECT_EQ(copy.Name(), "Part");
        EXPECT_EQ(copy.Uuid(), uuid);
        EXPECT_EQ(copy.RefCount(), 1U);
        EXPECT_FALSE(copy.is_Registered());
    }
    EXPECT_TRUE(IsRegistered(uuid));
    object->Release();
}

TEST_F(ZanDicObjTest, DropsItsLinksOnceWhenItGoes) {
    LinkedObj object;
    object.mark_Gone();
    object.mark_Gone();

    EXPECT_EQ(object.drops, 1);
}

// Lines.

TEST_F(ZanDicObjTest, DumpWritesFourLines) {
    ZanDicObj object("Part", LadderUuid());
    object.set_TYPE(OXMDicTYPE_Class);
    object.Dump("Test");

    EXPECT_EQ(Written(),
              "ZanDicObj::Dump -  called by Test ------\n"
              "ZanDicObj::Dump - _Name=Part.\n"
              "ZanDicObj::Dump - _Uuid=00112233-4455-6677-8899AABBCCDDEEFF.\n"
              "ZanDicObj::Dump - _Type=5-Class.\n");
}

TEST_F(ZanDicObjTest, DumpCallsTypeZeroUnknownAndOthersAQuestionMark) {
    ZanDicObj object;
    object.set_TYPE(OXMDicTYPE_UNDEFINED);
    object.Dump("");
    object.set_TYPE(static_cast<OXMDicTYPE>(27));
    object.Dump("");

    EXPECT_EQ(Lines()[2].text, "ZanDicObj::Dump - _Uuid=UNDEFINED.");
    EXPECT_EQ(Lines()[3].text, "ZanDicObj::Dump - _Type=0-Unknown.");
    EXPECT_EQ(Lines()[7].text, "ZanDicObj::Dump - _Type=27-?.");
}

TEST_F(ZanDicObjTest, TheConstructorFromNameAndUuidTracesDetails) {
    TraceFromNow(5);
    const ZanDicObj object("Part", LadderUuid());
    ZanDicSetTraceLevel(0);

    EXPECT_EQ(Written(),
              "ZanDicObj::ZanDicObj- _Type=-1 (?), _Name=Part, _Uuid=00112233445566778899AABBCCDDEEFF.\n"
              "ZanDicObj::ZanDicObj- @=" +
                  At(&object) + ".\n");
}

TEST_F(ZanDicObjTest, TheConstructorFromNameAndUuidIsSilentBelowLevelFive) {
    TraceFromNow(4);
    const ZanDicObj object("Part", TestUuid(1));
    ZanDicSetTraceLevel(0);

    EXPECT_EQ(Written(), "");
}

TEST_F(ZanDicObjTest, TheDefaultConstructorTracesAtLevelOne) {
    TraceFromNow(1);
    const ZanDicObj object;
    ZanDicSetTraceLevel(0);

    EXPECT_EQ(Written(),
              "ZanDicObj::ZanDicObj- _Type=-1, _Name=UNDEFINED.\n"
              "ZanDicObj::ZanDicObj- @=" +
                  At(&object) + ".\n");
}

TEST_F(ZanDicObjTest, ConstructorsAreSilentAtLevelZeroEvenWhenListed) {
    const TestDirectory directory;
    ZanDicSetTraceMethodsFile(directory.MakeFile("methods.txt", "ZanDicObj::ZanDicObj\n").c_str());
    const ZanDicObj unnamed;
    const ZanDicObj named("Part", TestUuid(1));
    EXPECT_EQ(Written(), "");

    ZanDicSetTraceLevel(-1);
    const ZanDicObj listed("Part", TestUuid(1));
    EXPECT_EQ(Lines().size(), 2U);
}

TEST_F(ZanDicObjTest, TheDestructorFollowsTheUsualTest) {
    const TestDirectory directory;
    ZanDicSetTraceMethodsFile(directory.MakeFile("methods.txt", "ZanDicObj::~ZanDicObj\n").c_str());
    std::string address;
    {
        const ZanDicObj object;
        address = At(&object);
    }

    EXPECT_EQ(Written(),
              "ZanDicObj::~ZanDicObj- === start ===.\n"
              "ZanDicObj::~ZanDicObj- _Type=-1 (?), _Name=UNDEFINED, _Uuid=UNDEFINED.\n"
              "ZanDicObj::~ZanDicObj- @=" +
                  address + ".\n");
}

TEST_F(ZanDicObjTest, TheDestructorTracesOnlyItsStartAtLevelOne) {
    {
        const ZanDicObj object("Part", TestUuid(1));
        TraceFromNow(1);
    }

    EXPECT_EQ(Written(), "ZanDicObj::~ZanDicObj- === start ===.\n");
}

// Keys of collections.

TEST_F(ZanDicObjTest, KeysOfNullAreZero) {
    EXPECT_EQ(HashNameZanDicObj(nullptr), 0U);
    EXPECT_EQ(HashUuidZanDicObj(nullptr), 0U);
}

TEST_F(ZanDicObjTest, KeysAreThoseOfNameAndUuid) {
    ZanDicObj object("Part", TestUuid(1));

    EXPECT_EQ(HashNameZanDicObj(&object), ZELString("Part").ComputeHashKey());
    EXPECT_EQ(HashUuidZanDicObj(&object), TestUuid(1).ComputeHashKey());
}

TEST_F(ZanDicObjTest, ComparesNullFirst) {
    ZanDicObj object;

    for (const auto compare : {CompareNameZanDicObj, CompareUuidZanDicObj}) {
        EXPECT_EQ(compare(nullptr, nullptr), 0);
        EXPECT_EQ(compare(nullptr, &object), -1);
        EXPECT_EQ(compare(&object, nullptr), 1);
        EXPECT_EQ(compare(&object, &object), 0);
    }
}

TEST_F(ZanDicObjTest, ComparesNamesAndUuids) {
    ZanDicObj a("A", TestUuid(2));
    ZanDicObj b("B", TestUuid(1));

    EXPECT_LT(CompareNameZanDicObj(&a, &b), 0);
    EXPECT_GT(CompareUuidZanDicObj(&a, &b), 0);
}
