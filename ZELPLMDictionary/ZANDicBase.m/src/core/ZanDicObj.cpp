#include "ZanDicObj.h"

#include <array>
#include <cstddef>
#include <iterator>
#include <string>
#include <unordered_map>

#include "HexToBinary.h"
#include "OXMIDicCategory.h"
#include "ZELHash.h"
#include "ZELUuid.h"
#include "ZanDicImplementation.h"
#include "ZanDicLink.h"
#include "ZanDicRef.h"
#include "ZanDicRegistry.h"
#include "ZanDicTrace.h"
#include "ZanDicTraceSettings.h"
#include "ZanDicTypeNames.h"
#include "ZanHashList.h"

namespace {

constexpr int kCategoriesSize = 29;
constexpr int kManyOthers = 32;  ///< free attributes from which on they have an index

/// Names that traces need while objects are taken down: there from the start, so that no memory is needed
/// then, and until the process ends.
struct SharedNames {
    ZELString undefined{"UNDEFINED"};  ///< of an object without a name
    ZELString noPackage{"?"};
};

const SharedNames& Shared() {
    static const SharedNames* const names = new SharedNames;
    return *names;
}

[[maybe_unused]] const SharedNames& kMadeAtLoad = Shared();

constexpr ZanDicTraceScope kConstructor("ZanDicObj::ZanDicObj");
constexpr ZanDicTraceScope kDestructor("ZanDicObj::~ZanDicObj");

/// By type code; codes without an interface have none here either.
constexpr struct {
    OXMDicTYPE type;
    ZELInterfaceId id;
} kInterfaces[] = {
    {OXMDicTYPE_Primitive, IID_OXMIDicPrimitive},
    {OXMDicTYPE_Category, IID_OXMIDicCategory},
    {OXMDicTYPE_Enum, IID_OXMIDicEnum},
    {OXMDicTYPE_Simple, IID_OXMIDicSimple},
    {OXMDicTYPE_Class, IID_OXMIDicClass},
    {OXMDicTYPE_Relationship, IID_OXMIDicRelationship},
    {OXMDicTYPE_Inverse, IID_OXMIDicInverse},
    {OXMDicTYPE_Interface, IID_OXMIDicInterface},
    {OXMDicTYPE_Method, IID_OXMIDicMethod},
    {OXMDicTYPE_Parameter, IID_OXMIDicParameter},
    {OXMDicTYPE_Package, IID_OXMIDicPackage},
    {OXMDicTYPE_BObject, IID_OXMIDicBObject},
    {OXMDicTYPE_Extension, IID_OXMIDicExtension},
    {OXMDicTYPE_BOLink, IID_OXMIDicBOLink},
    {OXMDicTYPE_Unique, IID_OXMIDicUnique},
    {OXMDicTYPE_Command, IID_OXMIDicCommand},
    {OXMDicTYPE_CommandParameter, IID_OXMIDicCommandParameter},
    {OXMDicTYPE_Enumerator, IID_OXMIDicEnumerator},
    {OXMDicTYPE_AttributeBlock, IID_OXMIDicAttributeBlock},
    {OXMDicTYPE_RBOClass, IID_OXMIDicRBOClass},
    {OXMDicTYPE_RBOMapping, IID_OXMIDicRBOMapping},
    {OXMDicTYPE_RBORoot, IID_OXMIDicRBORoot},
    {OXMDicTYPE_RBOComponent, IID_OXMIDicRBOComponent},
    {OXMDicTYPE_RBOPathExpression, IID_OXMIDicRBOPathExpression},
};

constexpr int kTypeCodes = 64;

/// The interface of each type code; all zero for none.
constexpr std::array<ZELInterfaceId, kTypeCodes> kInterfaceOfCode = [] {
    std::array<ZELInterfaceId, kTypeCodes> ids{};
    for (const auto& [type, id] : kInterfaces) ids.at(static_cast<std::size_t>(type)) = id;
    return ids;
}();

const ZELInterfaceId* FindInterface(int type) {
    if (type < 0 || type >= kTypeCodes) return nullptr;
    const ZELInterfaceId& id = kInterfaceOfCode[static_cast<std::size_t>(type)];
    return id.high != 0 ? &id : nullptr;
}

/// The constructors are silent at level 0 even when they are listed.
bool ConstructorShows(TraceLevel level) { return kConstructor.On(level) && ZanDicGetTraceLevel() != 0; }

[[gnu::cold, gnu::noinline]] HRESULT RefuseType(int code) {
    if (ZanDicTraceScope("ZanDicObj::bind_Interface").On(TraceLevel::Error)) {
        // A blank instead of the usual separator's.
        ZanDicWriteAlways(
            "ZanDicObj::bind_Interface -*** WARNING *** Unkown object type=" + std::to_string(code) + ".",
            ZELLineSeverity::Warning);
    }
    return E_FAIL;
}

ZELString NameBehind(const OXMIDicCategory& category) {
    ZELString name;
    const_cast<OXMIDicCategory&>(category).GetName(&name);
    return name;
}

constinit ZELMetaClass objectMeta("ZanDicObj");

}  // namespace

constinit int ZanDicObj::liveObjects = 0;
constinit ZanDicObj* ZanDicObj::sharedProbe = nullptr;

/// The positions of names that a list has once each, those at its front.
struct ZanDicNameIndex {
    struct Hash {
        std::size_t operator()(const ZELUnicodeString& name) const noexcept {
            return ZELHashText(name.View());
        }
    };

    std::unordered_map<ZELUnicodeString, int, Hash> positions;

    /// Takes in those that \p names has got since.
    void Follow(const ZELListValZELUnicodeString& names) {
        for (int position = Size() + 1; position <= names.Size(); ++position) {
            positions.emplace(names[position], position);
        }
    }

    int Size() const { return static_cast<int>(positions.size()); }
};

ZanDicRareFields::ZanDicRareFields() = default;
ZanDicRareFields::~ZanDicRareFields() = default;
ZanDicRareFields::ZanDicRareFields(const ZanDicRareFields& other)
    : otherNames(other.otherNames),
      otherValues(other.otherValues),
      categories(other.categories),
      alias(other.alias),
      expositionLevel(other.expositionLevel),
      visibility(other.visibility) {}

int ZanDicRareFields::locate_Other(const ZELUnicodeString& name) {
    if (otherNames.Size() < kManyOthers) return otherNames.Locate(name);
    if (!_OtherIndex) _OtherIndex = std::make_unique<ZanDicNameIndex>();
    _OtherIndex->Follow(otherNames);
    const auto found = _OtherIndex->positions.find(name);
    return found != _OtherIndex->positions.end() ? found->second : 0;
}

void ZanDicRareFields::append_Other(const ZELUnicodeString& name, const ZELUnicodeString& value) {
    otherNames.Append(name);
    try {
        otherValues.Append(value);
    } catch (...) {
        otherNames.RemovePosition(otherNames.Size());  // each name has a value
        throw;
    }
}

std::unique_ptr<ZanDicRareFields> ZanDicRareFields::Copy() const {
    return std::make_unique<ZanDicRareFields>(*this);
}

ZanDicObj::ZanDicObj()
    : _Name(Shared().undefined),
      _Registered(false),
      _Gone(false),
      _Owned(false),
      _Unnamed(false),
      _Noted(false) {
    ++liveObjects;
    if (!ConstructorShows(TraceLevel::Call)) return;
    kConstructor.Line(TraceLevel::Call) << "_Type=" << _Type << ", _Name=" << _Name;
    kConstructor.Line(TraceLevel::Call) << "@=" << this;
}

ZanDicObj::ZanDicObj(const ZELString& name, const ZELDbBinary& uuid)
    : _Name(name),
      _Uuid(uuid),
      _Registered(false),
      _Gone(false),
      _Owned(false),
      _Unnamed(false),
      _Noted(false) {
    ++liveObjects;
    if (!ConstructorShows(TraceLevel::Detail)) return;
    kConstructor.Line(TraceLevel::Detail)
        << "_Type=" << _Type << " (" << ZanDicTypeName(_Type) << "), _Name=" << _Name << ", _Uuid=" << _Uuid;
    kConstructor.Line(TraceLevel::Detail) << "@=" << this;
}

ZanDicObj::ZanDicObj(const ZanDicObj& other)
    : ZELBaseUnknown(other),
      ZELPooled(other),
      _Type(other._Type),
      _Name(other._Name),
      _Rare(other._Rare ? other._Rare->Copy() : nullptr),
      _Uuid(other._Uuid),
      _Registered(false),
      _Gone(false),
      _Owned(false),
      _Unnamed(other._Unnamed),
      _Noted(other._Noted) {
    ++liveObjects;
}

ZanDicObj& ZanDicObj::operator=(const ZanDicObj& other) {
    if (this == &other) return *this;
    std::unique_ptr<ZanDicRareFields> rare = other._Rare ? other._Rare->Copy() : nullptr;
    const auto assign = [&] {
        _Type = other._Type;
        _Name = other._Name;
        _Rare = std::move(rare);
        _Uuid = other._Uuid;
        _Unnamed = other._Unnamed;
        _Noted = other._Noted;
    };
    if (_Registered && !(_Uuid == other._Uuid)) {
        rekey(assign);
    } else {
        assign();
    }
    return *this;
}

ZanDicObj::~ZanDicObj() {
    if (kDestructor.On(TraceLevel::Call)) {
        kDestructor.Start();
        if (auto line = kDestructor.Line(TraceLevel::Detail)) {
            line << "_Type=" << _Type << " (" << ZanDicTypeName(_Type) << "), _Name=" << _Name
                 << ", _Uuid=" << _Uuid;
        }
        if (auto line = kDestructor.Line(TraceLevel::Detail)) line << "@=" << this;
    }
    if (_Registered) {
        if (ZanDicRegistry* const registry = ZanDicFindRegistry()) registry->forget_Obj(*this);
    }
    if (_LinkPlace != 0) ZanDicLinkBase::Forget(_LinkPlace);
    --liveObjects;
}

ZELMetaClass& ZanDicObj::ClassMeta() { return objectMeta; }

HRESULT ZanDicObj::QueryInterface(const ZELInterfaceId& id, void** out) noexcept {
    if (id == IID_ZanDicImplementation && out != nullptr) {
        *out = this;
        return S_OK;
    }
    return ZELBaseUnknown::QueryInterface(id, out);
}

HRESULT ZanDicObj::GetName(ZELString* name) const noexcept {
    if (name == nullptr) return E_FAIL;
    *name = _Name;
    return S_OK;
}

HRESULT ZanDicObj::SetName(const ZELString* name) {
    if (name == nullptr) return E_FAIL;
    _Name = *name;
    return S_OK;
}

HRESULT ZanDicObj::GetUuid(ZELDbBinary* uuid) const noexcept {
    if (uuid == nullptr) return E_FAIL;
    *uuid = _Uuid;
    return S_OK;
}

template <class Assign>
void ZanDicObj::rekey(const Assign& assign) {
    // An object that is gone stays outside: its owner's reference was given back already.
    ZanDicRegistry* const registry = _Gone ? nullptr : ZanDicGetRegistry();
    if (registry == nullptr || !registry->keeps_Obj(*this)) {
        assign();
        return;
    }
    registry->Delete(this);
    assign();
    registry->Insert(this);
}

HRESULT ZanDicObj::SetUuid(const ZELDbBinary* uuid) {
    if (uuid != nullptr) {
        rekey([&] { _Uuid = *uuid; });
    }
    // Deliberate: E_FAIL even when it worked (ZanDicObjTest.SetUuidAlwaysReportsFailure).
    return E_FAIL;
}

HRESULT ZanDicObj::GenUuid() {
    const auto assign = [&] { _Uuid = getuuid(); };
    if (_Registered) {
        rekey(assign);
    } else {
        assign();
    }
    return S_OK;
}

HRESULT ZanDicObj::GetType(OXMDicTYPE* type) const noexcept {
    if (type == nullptr) return E_FAIL;
    *type = _Type;
    return S_OK;
}

HRESULT ZanDicObj::set_TYPE(OXMDicTYPE type) {
    _Type = type;
    return S_OK;
}

HRESULT ZanDicObj::SetOtherAttribute(const ZELUnicodeString& name, const ZELUnicodeString& value) {
    const ZELUnicodeString strippedName = name.Stripped();
    if (strippedName.IsEmpty()) return E_FAIL;

    ZanDicRareFields& fields = make_Rare();
    if (const int position = fields.locate_Other(strippedName); position != 0) {
        fields.otherValues[position] = value.Stripped();
        return S_OK;
    }
    fields.append_Other(strippedName, value.Stripped());
    return S_OK;
}

HRESULT ZanDicObj::GetOtherAttribute(const ZELUnicodeString& name, ZELUnicodeString& value) const {
    // NOLINTNEXTLINE(performance-unnecessary-copy-initialization): the caller may pass one string as both.
    const ZELUnicodeString wanted = name;
    value = ZELUnicodeString("");
    if (wanted.IsEmpty() || !_Rare) return E_FAIL;

    const int position = _Rare->locate_Other(wanted);
    if (position == 0) return E_FAIL;
    value = _Rare->otherValues[position];
    return S_OK;
}

HRESULT ZanDicObj::GetAllOtherAttributes(ZELListValZELUnicodeString& names,
                                         ZELListValZELUnicodeString& values) const {
    ZELListValZELUnicodeString allNames = _Rare ? _Rare->otherNames : ZELListValZELUnicodeString();
    values = _Rare ? _Rare->otherValues : ZELListValZELUnicodeString();
    names = std::move(allNames);
    return S_OK;
}

HRESULT ZanDicObj::AddCategory(const OXMIDicCategory* category) {
    static constexpr ZanDicTraceScope trace("ZanDicObj::AddCategory");
    trace.Start("=== start === ");
    if (auto line = trace.Line(TraceLevel::Detail)) line << "_Name=" << _Name;
    if (category == nullptr) {
        if (auto line = trace.Error()) line << 234 << "- *** ERROR *** Input argument is NULL.";
        return trace.Exit(E_FAIL);
    }
    ZanDicObj* const object = ImplementationOf(category);
    if (object == nullptr || object->is_Gone()) return trace.Exit(E_FAIL);

    ZanDicRareFields& fields = make_Rare();
    std::shared_ptr<ZanHashList> categories = fields.categories;
    if (!categories) {
        trace.Say(TraceLevel::Detail, "Creating _CATEGORIES = new ZanHashList");
        categories = std::make_shared<ZanHashList>(kCategoriesSize);
    }
    const ZELString name = NameBehind(*category);
    if (auto line = trace.Line(TraceLevel::Detail)) line << "CategoryName=" << name;
    ZanDicObj* found = nullptr;
    if (Succeeded(categories->Search(name, &found))) {
        if (auto line = trace.Line(TraceLevel::Detail)) {
            line << "Category " << name << " is already defined for element named " << _Name;
        }
        return trace.Exit(S_FALSE);
    }
    const HRESULT rc = categories->Append(object);
    fields.categories = std::move(categories);
    return trace.Exit(rc);
}

HRESULT ZanDicObj::RemoveCategory(const OXMIDicCategory* category) {
    if (!_Rare || !_Rare->categories || category == nullptr) return E_FAIL;
    return _Rare->categories->Remove(NameBehind(*category));
}

HRESULT ZanDicObj::IsCategory(const ZELString* name, unsigned char* isCategory) const {
    if (!_Rare || !_Rare->categories || name == nullptr || isCategory == nullptr) return E_FAIL;
    ZanDicObj* found = nullptr;
    *isCategory = Succeeded(_Rare->categories->Search(*name, &found)) ? 1 : 0;
    return S_OK;
}

HRESULT ZanDicObj::GetCategories(ZELListPtrIUnknown* categories) const {
    if (categories == nullptr) return E_INVALIDARG;
    if (!_Rare || !_Rare->categories) return E_FAIL;

    HRESULT rc = S_OK;
    const ZanHashList& attached = *_Rare->categories;
    for (int position = 1; position <= attached.Size(); ++position) {
        void* face = nullptr;
        rc = attached[position]->bind_Interface(OXMDicTYPE_UNDEFINED, &face);
        ZanDicRef<IUnknown> category(static_cast<IUnknown*>(face));
        if (!category) continue;
        categories->Append(category.Get());
        category.Detach();
    }
    return rc;
}

HRESULT ZanDicObj::GetLostLinks(int* count) const {
    if (count == nullptr) return E_FAIL;
    *count = 0;
    for (int link = 0; link < kLinkNameCount; ++link) *count += lost_Links(static_cast<LinkName>(link));
    return S_OK;
}

int ZanDicObj::lost_Links(LinkName link) const {
    return link == LinkName::Categories && _Rare && _Rare->categories ? _Rare->categories->LostCount() : 0;
}

HRESULT ZanDicObj::bind_Interface(OXMDicTYPE type, void** out) const {
    const int code = type < OXMDicTYPE_Primitive ? _Type : type;
    if (const ZELInterfaceId* const id = FindInterface(code)) [[likely]]
        return const_cast<ZanDicObj*>(this)->hand_Out(*id, out);
    return RefuseType(code);
}

ZanDicObj::_type ZanDicObj::get_type() const { return _type_Element; }

void ZanDicObj::Dump(const char* caller) const {
    const std::string label = "ZanDicObj::Dump - ";
    const std::string typeName(_Type == OXMDicTYPE_UNDEFINED ? "Unknown" : ZanDicTypeName(_Type));
    ZanDicWriteAlways(label + " called by " + (caller != nullptr ? caller : "") + " ------");
    ZanDicWriteAlways(label + "_Name=" + _Name.ConvertToChar() + ".");
    ZanDicWriteAlways(label + "_Uuid=" + UuidText(_Uuid) + ".");
    ZanDicWriteAlways(label + "_Type=" + std::to_string(static_cast<int>(_Type)) + "-" + typeName + ".");
}

ZELString ZanDicObj::get_PackageName() const { return Shared().noPackage; }

void ZanDicObj::mark_Gone() {
    if (_Gone) return;
    _Gone = true;
    if (_LinkPlace != 0) ZanDicLinkBase::Forget(_LinkPlace);
    _LinkPlace = 0;
    drop_Links();
}

void ZanDicObj::prefetch_Links() const {
    prefetch_Ties();
    ZanDicLinkBase::Prefetch(_LinkPlace);
}

void ZanDicObj::take_Owned(ZanDicTaken& /*owned*/) {}

void ZanDicObj::expect_Members(int /*count*/) {}

void ZanDicObj::drop_Links() {
    if (_Rare) _Rare->categories.reset();
}

std::unique_ptr<ZanDicRareFields> ZanDicObj::new_RareFields() const {
    return std::make_unique<ZanDicRareFields>();
}

ZanDicRareFields& ZanDicObj::make_Rare() {
    if (!_Rare) _Rare = new_RareFields();
    return *_Rare;
}

bool ZanDicObj::shows_Probe() {
    return ConstructorShows(TraceLevel::Call) || kDestructor.On(TraceLevel::Call);
}

void ZanDicObj::show_Probe() {
    if (shows_Probe()) const ZanDicObj probe;
}

void ZanDicObj::show_SharedProbe() {
    if (shows_Probe()) make_SharedProbe();
}

void ZanDicObj::make_SharedProbe() {
    if (sharedProbe != nullptr) return;
    sharedProbe = new ZanDicObj;
    --liveObjects;  // no object of the dictionary
}

std::uint32_t HashNameZanDicObj(ZanDicObj* object) {
    return object != nullptr ? object->Name().ComputeHashKey() : 0;
}

std::uint32_t HashUuidZanDicObj(ZanDicObj* object) {
    return object != nullptr ? object->Uuid().ComputeHashKey() : 0;
}

int CompareNameZanDicObj(ZanDicObj* first, ZanDicObj* second) {
    if (first == nullptr || second == nullptr) return (first != nullptr) - (second != nullptr);
    return first->Name().Compare(second->Name());
}

int CompareUuidZanDicObj(ZanDicObj* first, ZanDicObj* second) {
    if (first == nullptr || second == nullptr) return (first != nullptr) - (second != nullptr);
    return first->Uuid().Compare(second->Uuid());
}
