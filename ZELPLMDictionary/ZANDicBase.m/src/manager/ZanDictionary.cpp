#include "ZanDictionary.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <string_view>
#include <utility>

#include "GetOXMIDicMgr.h"
#include "OXMIDicElementH.h"
#include "OXMIDicMgrTie.h"
#include "OXMIDicPrimitive.h"
#include "ZELCall.h"
#include "ZELEnvironment.h"
#include "ZELUuid.h"
#include "ZanDicAttribute.h"
#include "ZanDicData.h"
#include "ZanDicManagerFactory.h"
#include "ZanDicPackage.h"
#include "ZanDicPrimitive.h"
#include "ZanDicTaken.h"
#include "ZanDicTrace.h"
#include "ZanDicTypeNames.h"

namespace {

constexpr int kPackagesSize = 47;
constexpr int kTableSize = 1117;

constexpr std::string_view kExitWord = "RC=";

/// The built-in primitives, in the order in which they are made.
constexpr const char* kPrimitiveNames[] = {"Boolean", "Integer", "Double", "String",   "Binary",
                                           "Date",    "Logical", "URL",    "AnyObject"};
static_assert(std::size(kPrimitiveNames) == OXMDicPRIMITIVEType_AnyObject);

ZELString PackageNameOf(const ZanDicObj& object) {
    return object.Type() == OXMDicTYPE_Package ? object.ZanDicObj::get_PackageName()
                                               : object.get_PackageName();
}

/// The trace of what enters and leaves the registry.
class RegistryTrace {
public:
    RegistryTrace(const ZanDicTraceScope& scope, const ZanDictionary& manager)
        : _Scope(scope), _Manager(manager) {
        if (auto line = _Scope.Line(TraceLevel::Call)) {
            line << "=== start === _OBJECTS.Size()=" << _Manager.count_Objs();
        }
    }

    void Say(const ZanDicObj& object) const {
        if (!_Scope.On(TraceLevel::Detail)) return;
        _Scope.Line(TraceLevel::Detail) << "@=" << &object;
        _Scope.Line(TraceLevel::Detail)
            << "Type=" << object.Type() << " (" << ZanDicTypeName(object.Type())
            << "), Name=" << object.Name() << ", Package=" << PackageNameOf(object)
            << ", Uuid=" << object.Uuid();
    }

    /// The second line names the object that is refused, not the one that is registered.
    void Refuse(const ZanDicObj& object) const {
        if (auto line = _Scope.Error()) {
            line << "*** ERROR *** Dictionary violation: Uuid is not unique:" << object.Uuid();
        }
        if (auto line = _Scope.Error()) {
            line << "Conflicting object: Type=" << object.Type() << ", Name=" << object.Name()
                 << ", from Package=" << PackageNameOf(object);
        }
    }

    HRESULT Exit(HRESULT rc) const {
        if (auto line = _Scope.Line(TraceLevel::Call)) {
            line << "=== exit === " << kExitWord << ZanDicTraceScope::Word(rc)
                 << ", _OBJECTS.Size()=" << _Manager.count_Objs();
        }
        return rc;
    }

private:
    const ZanDicTraceScope& _Scope;
    const ZanDictionary& _Manager;
};

constexpr ZELTieRow kManagerRows[] = {ZELMakeTieRow<OXMIDicMgrTie<ZanDictionary>>()};

/// Lets the holder make the manager, and `GetOXMIDicMgr` find the holder, while the library is loaded.
class Registration {
public:
    Registration() {
        ZanDictionary::ClassMeta().RegisterTies(kManagerRows);
        ZanDicSetManagerFactory([] {
            auto* const manager = new ZanDictionary;
            return ZanDicManagerParts{manager, manager, manager};
        });
        OXMIDicSetMgrProvider([](OXMIDicMgr** manager) {
            ZELOwnThread();
            return ZELCall([&] { return _StaticZanDicData.get_OXMIDicMgr(manager); }, "GetOXMIDicMgr");
        });
    }
    ~Registration() { OXMIDicSetMgrProvider(nullptr); }
    Registration(const Registration&) = delete;
    Registration& operator=(const Registration&) = delete;
};

const Registration kRegistration;

}  // namespace

ZanDictionary::ZanDictionary()
    : _PACKAGES(kPackagesSize, ZanHashListKind::Owner),
      _CLASSTORELATION(ZanDicClassToRelationElem::GetHashKey, ZanDicClassToRelationElem::Compare,
                       kTableSize) {}

ZanDictionary::~ZanDictionary() {
    End();
    ZanDicForgetRegistry(*this);
}

ZELMetaClass& ZanDictionary::ClassMeta() {
    static ZELMetaClass meta("ZanDictionary", &ZanDicObj::ClassMeta());
    return meta;
}

HRESULT ZanDictionary::Init(int /*reserved*/) {
    static constexpr ZanDicTraceScope trace("ZanDictionary::Init", kExitWord);
    trace.Start();
    static const bool isOff = ZELGetEnv("VALKOR_META") == "OFF";
    if (isOff) _LoadingMode = OXMDicPERSISTENT_None;
    return trace.Exit(Create());
}

HRESULT ZanDictionary::Create() {
    static constexpr ZanDicTraceScope trace("ZanDictionary::Create", kExitWord);
    trace.Start();
    for (int index = 0; index < kPrimitiveCount; ++index) {
        if (_PRIMITIVES[index] != nullptr) continue;
        _PRIMITIVES[index] = new ZanDicPrimitive(kPrimitiveNames[index], getuuid(),
                                                 static_cast<OXMDicPRIMITIVEType>(index + 1));
    }
    return trace.Exit(S_OK);
}

HRESULT ZanDictionary::End() {
    static constexpr ZanDicTraceScope trace("ZanDictionary::End", kExitWord);
    trace.Start();
    ZanDicTaken members;
    ZanDicUuidTable others;
    take_All(members, others);
    const auto forEach = [&](const auto& action) {
        members.Rewind();
        while (ZanDicObj* const object = members.Next()) action(*object);
        others.ForEach([&](ZanDicObj* object) {
            if (!object->is_Owned()) action(*object);
        });
        for (ZanDicPrimitive* const primitive : _PRIMITIVES) {
            if (primitive != nullptr) action(*primitive);
        }
    };
    forEach([](ZanDicObj& object) { object.mark_Gone(); });
    forEach([](ZanDicObj& object) { object.Release(); });
    std::fill(std::begin(_PRIMITIVES), std::end(_PRIMITIVES), nullptr);
    return trace.Exit(S_OK);
}

void ZanDictionary::take_All(ZanDicTaken& members, ZanDicUuidTable& others) {
    int registered = 0;
    const auto open = [&](const auto& leave) {
        while (ZanDicObj* const object = members.Next()) {
            if (object->is_Registered()) leave(*object);
            object->set_Registered(false);
            object->take_Owned(members);
        }
    };
    members.Take(_PACKAGES);
    _LOADS.clear();
    open([&](const ZanDicObj&) { ++registered; });

    // What is registered outside of the packages: first what these objects own among themselves, then those
    // that nobody else owns, each with its creator's reference. What an object that is not registered owns
    // stays that one's.
    if (registered != _OBJECTS.Size()) {
        std::swap(others, _OBJECTS);
        members.Rewind();
        while (const ZanDicObj* const object = members.Next()) others.Remove(*object);
        others.ForEach([&](ZanDicObj* object) { object->take_Owned(members); });
        open([&](const ZanDicObj& object) { others.Remove(object); });
        others.ForEach([](ZanDicObj* object) { object->set_Registered(false); });
    }
    _OBJECTS.RemoveAll();

    ZELHashIterator iterator = _CLASSTORELATION.CreateIterator();
    for (auto* entry = _CLASSTORELATION[iterator]; entry != nullptr;
         entry = _CLASSTORELATION.Next(iterator)) {
        delete entry;
    }
    _CLASSTORELATION.RemoveAll();
}

HRESULT ZanDictionary::GetPrimitive(OXMDicPRIMITIVEType kind, OXMIDicPrimitive** primitive) {
    if (kind < OXMDicPRIMITIVEType_Boolean || kind > kPrimitiveCount || primitive == nullptr) return E_FAIL;
    ZanDicPrimitive* const object = _PRIMITIVES[kind - 1];
    return object != nullptr
               ? object->QueryInterface(IID_OXMIDicPrimitive, reinterpret_cast<void**>(primitive))
               : E_FAIL;
}

HRESULT ZanDictionary::SetLoadingMode(OXMDicPERSISTENT mode) {
    _LoadingMode = mode;
    return S_OK;
}

HRESULT ZanDictionary::GetLoadingMode(OXMDicPERSISTENT* mode) {
    if (mode == nullptr) return E_FAIL;
    *mode = _LoadingMode;
    return S_OK;
}

HRESULT ZanDictionary::Save() { return E_FAIL; }
HRESULT ZanDictionary::Reserved1() { return E_FAIL; }
HRESULT ZanDictionary::Reserved2() { return E_FAIL; }
HRESULT ZanDictionary::Reserved3() { return E_FAIL; }
HRESULT ZanDictionary::Reserved4() { return E_FAIL; }
HRESULT ZanDictionary::Reserved5() { return E_FAIL; }
HRESULT ZanDictionary::Reserved6() { return E_FAIL; }
HRESULT ZanDictionary::Reserved7() { return E_FAIL; }
HRESULT ZanDictionary::Reserved8() { return E_FAIL; }
HRESULT ZanDictionary::Reserved9() { return E_FAIL; }
HRESULT ZanDictionary::Reserved10() { return E_FAIL; }

HRESULT ZanDictionary::Insert(ZanDicObj* object) {
    static constexpr ZanDicTraceScope scope("ZanDictionary::Insert", kExitWord);
    const RegistryTrace trace(scope, *this);
    if (object == nullptr) return trace.Exit(E_FAIL);
    trace.Say(*object);
    // What is gone has given its owner's reference back, and a primitive's is the manager's: neither may
    // be found here by End.
    if (object->is_Gone() || !keeps_Obj(*object)) return trace.Exit(E_FAIL);
    if (!_OBJECTS.Insert(*object)) {
        trace.Refuse(*object);
        return trace.Exit(E_FAIL);
    }
    object->set_Registered(true);
    return trace.Exit(S_OK);
}

HRESULT ZanDictionary::Delete(ZanDicObj* object) {
    static constexpr ZanDicTraceScope scope("ZanDictionary::Delete", kExitWord);
    const RegistryTrace trace(scope, *this);
    if (object == nullptr) return trace.Exit(E_FAIL);
    trace.Say(*object);
    if (!_OBJECTS.Remove(*object)) return trace.Exit(E_FAIL);
    object->set_Registered(false);
    return trace.Exit(S_OK);
}

void ZanDictionary::forget_Obj(ZanDicObj& object) noexcept { _OBJECTS.Remove(object); }

void ZanDictionary::expect_Objs(int count) { _OBJECTS.Reserve(_OBJECTS.Size() + count); }

bool ZanDictionary::keeps_Obj(const ZanDicObj& object) const {
    if (&object == this) return false;
    if (object.get_type() != _type_Primitive) return true;
    return std::find(std::begin(_PRIMITIVES), std::end(_PRIMITIVES), &object) == std::end(_PRIMITIVES);
}

ZanDicObj* ZanDictionary::look_Up(const ZELDbBinary* uuid) const {
    if (ZanDicTrace::MayWrite(TraceLevel::Call)) [[unlikely]]
        ZanDicObj::show_Probe();
    return uuid != nullptr ? find_Obj(*uuid) : nullptr;
}

HRESULT ZanDictionary::search_Obj(const ZELDbBinary* uuid, ZanDicObj** object) {
    ZanDicObj* const found = look_Up(uuid);
    if (object == nullptr) return E_FAIL;
    *object = found;
    return found != nullptr ? S_OK : E_FAIL;
}

HRESULT ZanDictionary::Search(const ZELDbBinary* uuid, OXMIDicElementH** object) {
    ZanDicObj* const found = object != nullptr ? look_Up(uuid) : nullptr;
    return found != nullptr ? found->hand_Out(IID_OXMIDicElementH, reinterpret_cast<void**>(object)) : E_FAIL;
}

ZanDicClassToRelationElem* ZanDictionary::find_Relations(const ZELDbBinary& classUuid) const {
    return _CLASSTORELATION.LocateKey(classUuid.ComputeHashKey(),
                                      [&classUuid](const ZanDicClassToRelationElem* entry) {
                                          ZELDbBinary uuid;
                                          entry->GetClassUUID(uuid);
                                          return uuid == classUuid;
                                      });
}

HRESULT ZanDictionary::AddClassToRelation(const ZELDbBinary* classUuid, ZanDicAttribute* attribute) {
    if (classUuid == nullptr || attribute == nullptr) return E_FAIL;
    ZanDicClassToRelationElem* entry = find_Relations(*classUuid);
    if (entry != nullptr) {
        entry->AddRelationship(attribute);
        return S_OK;
    }
    auto made = std::make_unique<ZanDicClassToRelationElem>();
    made->SetClassUUID(*classUuid);
    made->AddRelationship(attribute);
    _CLASSTORELATION.InsertNew(classUuid->ComputeHashKey(), made.get());
    static_cast<void>(made.release());  // the table has it
    return S_OK;
}

void ZanDictionary::remove_Relation(const ZELDbBinary& classUuid, const ZanDicAttribute& attribute) {
    if (auto* const entry = find_Relations(classUuid)) entry->remove_Relationship(attribute);
}

void ZanDictionary::move_Relations(const ZELDbBinary& before, const ZELDbBinary& after) {
    ZanDicClassToRelationElem* const entry = find_Relations(before);
    if (entry == nullptr || before == after) return;
    if (auto* const present = find_Relations(after)) {
        present->add_All(*entry);  // first, since memory may run out
        forget_Relations(before);
        return;
    }
    _CLASSTORELATION.RemoveKey(before.ComputeHashKey(), entry);
    entry->SetClassUUID(after);
    _CLASSTORELATION.InsertNew(after.ComputeHashKey(), entry);
}

void ZanDictionary::forget_Relations(const ZELDbBinary& classUuid) noexcept {
    ZanDicClassToRelationElem* const entry = find_Relations(classUuid);
    if (entry == nullptr) return;
    _CLASSTORELATION.RemoveKey(classUuid.ComputeHashKey(), entry);
    delete entry;
}

bool ZanDictionary::owns_Uuid(const ZanDicObj& object) const {
    const ZanDicObj* const registered = find_Obj(object.Uuid());
    return registered == nullptr || registered == &object;
}

HRESULT ZanDictionary::get_Relations(const ZELDbBinary& classUuid, ZELListPtrIUnknown& relationships) {
    const ZanDicClassToRelationElem* const entry = find_Relations(classUuid);
    return entry != nullptr ? entry->GetRelationships(relationships) : S_OK;
}
