#include "ZanDicClass.h"

#include <string>
#include <utility>

#include "HexToBinary.h"
#include "OXMIDicClass.h"
#include "OXMIDicInverse.h"
#include "OXMIDicMethod.h"
#include "OXMIDicRelationship.h"
#include "OXMIDicSimple.h"
#include "OXMIDicUnique.h"
#include "ZanDicAdopt.h"
#include "ZanDicAllAttributes.h"
#include "ZanDicAttribute.h"
#include "ZanDicClassFields.h"
#include "ZanDicHandOut.h"
#include "ZanDicImplementation.h"
#include "ZanDicMethod.h"
#include "ZanDicRef.h"
#include "ZanDicRegistry.h"
#include "ZanDicTeardown.h"
#include "ZanDicTrace.h"
#include "ZanDicTypeNames.h"
#include "ZanDicUnique.h"
#include "ZanDicValues.h"

ZELMetaClass& ZanDicClass::ClassMeta() {
    static ZELMetaClass meta("ZanDicClass", &ZanDicElement::ClassMeta());
    return meta;
}

ZanDicClass::ZanDicClass(const ZELString& name, const ZELDbBinary& uuid)
    : ZanDicElement(name, uuid), _ATTRIBUTES(29, ZanHashListKind::Owner) {
    set_TYPE(OXMDicTYPE_Class);
}

ZanDicClass::~ZanDicClass() {
    if (!is_Gone()) forget_Relations();
    ZanDicTaken owned;
    ZanDicClass::take_Owned(owned);
    DropTaken(owned);
}

std::unique_ptr<ZanDicRareFields> ZanDicClass::new_RareFields() const {
    auto fields = std::make_unique<ZanDicClassFields>();
    init_RareFields(*fields);
    return fields;
}

const ZanDicClassFields* ZanDicClass::fields() const { return static_cast<const ZanDicClassFields*>(rare()); }

ZanDicClassFields& ZanDicClass::make_Fields() { return static_cast<ZanDicClassFields&>(make_Rare()); }

const ZanHashList& ZanDicClass::uniques() const {
    static const ZanHashList none(29, ZanHashListKind::Owner);
    return fields() != nullptr ? fields()->uniques : none;
}

const ZanHashList& ZanDicClass::methods() const {
    static const ZanHashList none(29, ZanHashListKind::Owner);
    return fields() != nullptr ? fields()->methods : none;
}

void ZanDicClass::take_Owned(ZanDicTaken& owned) {
    owned.Take(_ATTRIBUTES);
    if (rare() == nullptr) return;
    ZanDicClassFields& members = make_Fields();
    owned.Take(members.uniques);
    owned.Take(members.methods);
    owned.Take(members.removed);
}

int ZanDicClass::lost_Links(LinkName link) const {
    if (link == LinkName::SuperClass) return _SuperClass.IsLost() ? 1 : 0;
    if (link == LinkName::Reference) return _Reference.IsLost() ? 1 : 0;
    return ZanDicElement::lost_Links(link);
}

void ZanDicClass::drop_Links() {
    ZanDicElement::drop_Links();
    ZanDicHierarchy::Changed();
    ZanDicTaken owned;
    ZanDicClass::take_Owned(owned);
    DropTaken(owned);
    _SuperClass.Reset();
    _Reference.Reset();
    _invSuperClass.RemoveAll();
    _ALLATTRIBUTES.reset();
    if (rare() != nullptr) make_Fields().blocks.reset();
    forget_Relations();
}

HRESULT ZanDicClass::Create(const ZELString* name, const ZELDbBinary* uuid, OXMDicTYPE type,
                            OXMIDicElement** attribute) {
    return create_Attribute(name, uuid, type, attribute);
}

HRESULT ZanDicClass::CreateSimple(const ZELString* name, const ZELDbBinary* uuid, OXMIDicSimple** simple) {
    return create_Attribute(name, uuid, OXMDicTYPE_Simple, simple);
}

HRESULT ZanDicClass::CreateRelationship(const ZELString* name, const ZELDbBinary* uuid,
                                        OXMIDicRelationship** relationship) {
    return create_Attribute(name, uuid, OXMDicTYPE_Relationship, relationship);
}

HRESULT ZanDicClass::CreateInverse(const ZELString* name, const ZELDbBinary* uuid, OXMIDicInverse** inverse) {
    return create_Attribute(name, uuid, OXMDicTYPE_Inverse, inverse);
}

template <class Interface>
HRESULT ZanDicClass::create_Attribute(const ZELString* name, const ZELDbBinary* uuid, OXMDicTYPE type,
                                      Interface** attribute) {
    if (name == nullptr || uuid == nullptr || attribute == nullptr || is_Gone()) return E_FAIL;
    const ZanDicTraceScope trace("ZanDicClass::Create");
    trace.Start("=== start === ");
    IUnknown* face = nullptr;
    const HRESULT rc = make_Attribute(*name, *uuid, type, &face, trace);
    if (face != nullptr) *attribute = static_cast<Interface*>(face);
    return trace.Exit(rc);
}

HRESULT ZanDicClass::make_Attribute(const ZELString& name, const ZELDbBinary& uuid, OXMDicTYPE type,
                                    IUnknown** attribute, const ZanDicTraceScope& trace) {
    ZanDicRegistry* const registry = ZanDicGetRegistry();
    ZanDicObj* present = nullptr;
    if (registry == nullptr) return E_FAIL;
    if (Succeeded(_ATTRIBUTES.Search(name, &present))) {
        if (auto line = trace.Error()) {
            line << "*** ERROR *** Attribute: " << name << " already exists in " << ZanDicTypeName(Type())
                 << ": " << Name() << ", Package: " << get_PackageName();
        }
        return E_FAIL;
    }
    ZanDicRef<ZanDicAttribute> made(new ZanDicAttribute(name, uuid));
    made->set_Class(this);
    made->set_TYPE(type);
    made->set_Package(get_Package());
    forget_AllAttributes();
    return AdoptMember(_ATTRIBUTES, made, attribute, *registry);
}

template <class Member, class Interface>
HRESULT ZanDicClass::make_Member(ZanHashList ZanDicClassFields::*list, const ZELString* name,
                                 const ZELDbBinary* uuid, Interface** member) {
    ZanDicRegistry* const registry = ZanDicGetRegistry();
    ZanDicObj* present = nullptr;
    if (name == nullptr || uuid == nullptr || member == nullptr || is_Gone() || registry == nullptr) {
        return E_FAIL;
    }
    ZanHashList& members = make_Fields().*list;
    if (Succeeded(members.Search(*name, &present))) return E_FAIL;
    ZanDicRef<Member> made(new Member(*name, *uuid));
    made->set_Package(get_Package());
    return AdoptMember(members, made, member, *registry);
}

HRESULT ZanDicClass::CreateUnique(const ZELString* name, const ZELDbBinary* uuid, OXMIDicUnique** unique) {
    return make_Member<ZanDicUnique>(&ZanDicClassFields::uniques, name, uuid, unique);
}

HRESULT ZanDicClass::CreateMethod(const ZELString* name, const ZELDbBinary* uuid, OXMIDicMethod** method) {
    return make_Member<ZanDicMethod>(&ZanDicClassFields::methods, name, uuid, method);
}

HRESULT ZanDicClass::RemoveElement(const ZELString* name) {
    ZanDicObj* found = nullptr;
    if (name == nullptr) return E_FAIL;
    if (Succeeded(_ATTRIBUTES.Search(*name, &found))) make_Fields().removed.keep(*found);
    ZanDicHierarchy::Changed();
    return _ATTRIBUTES.Remove(*name);
}

HRESULT ZanDicClass::RemoveUnique(const ZELString* name) {
    ZanDicObj* found = nullptr;
    if (name == nullptr) return E_FAIL;
    ZanDicClassFields& members = make_Fields();
    if (Succeeded(members.uniques.Search(*name, &found))) members.removed.keep(*found);
    return members.uniques.Remove(*name);
}

HRESULT ZanDicClass::GetClassElements(ZELListPtrIUnknown* attributes) const {
    return AppendInterfaces(_ATTRIBUTES, attributes);
}

HRESULT ZanDicClass::GetClassElement(const ZELString* name, OXMIDicElement** attribute) const {
    return FindInterface(_ATTRIBUTES, name, attribute);
}

HRESULT ZanDicClass::GetElement(const ZELString* name, OXMIDicElement** attribute) const {
    if (name == nullptr || attribute == nullptr) return E_FAIL;
    HRESULT rc = E_FAIL;
    const std::uintptr_t members =
        reinterpret_cast<std::uintptr_t>(&_ATTRIBUTES) - reinterpret_cast<std::uintptr_t>(this);
    for (const ZanDicClass* owner = this; owner != nullptr; owner = owner->_SuperClass.Get()) {
        owner->_SuperClass.PrefetchObject(members);  // for the next step
        rc = FindInterface(owner->_ATTRIBUTES, name, attribute);
        if (rc == S_OK) return rc;
    }
    return rc;
}

HRESULT ZanDicClass::GetUnique(const ZELString* name, OXMIDicUnique** unique) const {
    return FindInterface(uniques(), name, unique);
}

HRESULT ZanDicClass::GetUniques(ZELListPtrIUnknown* list) const { return AppendInterfaces(uniques(), list); }

HRESULT ZanDicClass::SetPersistent(unsigned char persistent) { return TakeValue(_Persistent, &persistent); }

HRESULT ZanDicClass::GetPersistent(unsigned char* persistent) const {
    return GiveValue(_Persistent, persistent);
}

HRESULT ZanDicClass::SetAbstract(unsigned char abstract) { return TakeValue(_Abstract, &abstract); }

HRESULT ZanDicClass::GetAbstract(unsigned char* abstract) const { return GiveValue(_Abstract, abstract); }

HRESULT ZanDicClass::SetInstance(unsigned char instance) { return TakeValue(_Instance, &instance); }

HRESULT ZanDicClass::GetInstance(unsigned char* instance) const { return GiveValue(_Instance, instance); }

HRESULT ZanDicClass::SetLateType(const ZELString* lateType) {
    if (lateType == nullptr) return E_FAIL;
    // Most documents give the empty one, which a class has anyway.
    if (rare() != nullptr || !lateType->IsEmpty()) make_Fields().lateType = ZELUnicodeString(*lateType);
    return S_OK;
}

HRESULT ZanDicClass::GetLateType(ZELString* lateType) const {
    return GiveValue(fields() != nullptr ? fields()->lateType.ToZELString() : ZELString(), lateType);
}

HRESULT ZanDicClass::SetApplicationName(const ZELUnicodeString* name) {
    return name != nullptr ? TakeValue(make_Fields().applicationName, name) : E_FAIL;
}

HRESULT ZanDicClass::GetApplicationName(ZELUnicodeString* name) const {
    return GiveValue(fields() != nullptr ? fields()->applicationName : ZELUnicodeString(""), name);
}

HRESULT ZanDicClass::SetReference(const OXMIDicClass* reference) {
    auto* const referred = LiveImplementationOf<ZanDicClass>(reference);
    if (referred == nullptr || is_Gone()) return E_FAIL;
    _Reference = referred;
    return S_OK;
}

HRESULT ZanDicClass::GetReference(OXMIDicClass** reference) const {
    if (reference == nullptr) return E_FAIL;
    return _Reference ? HandOutAs(*_Reference, reference) : S_FALSE;
}

HRESULT ZanDicClass::flush_Members(const ZanDicTraceScope& trace) {
    trace.Say(TraceLevel::Detail, "processing _ATTRIBUTES...");
    if (const HRESULT rc = DropOwned(_ATTRIBUTES, "_ATTRIBUTES", trace); Failed(rc)) return rc;
    _ALLATTRIBUTES.reset();
    // A list that no class fills yet, or that this one has not, is emptied all the same: that shows.
    ZanHashList none(29, ZanHashListKind::Owner);
    trace.Say(TraceLevel::Detail, "processing _UNIQUES...");
    ZanHashList& uniques = rare() != nullptr ? make_Fields().uniques : none;
    if (const HRESULT rc = DropOwned(uniques, "_UNIQUES", trace); Failed(rc)) return rc;
    trace.Say(TraceLevel::Detail, "processing _METHODS...");
    ZanHashList& methods = rare() != nullptr ? make_Fields().methods : none;
    if (const HRESULT rc = DropOwned(methods, "_METHODS", trace); Failed(rc)) return rc;
    none.RemoveAll();  // the reserved list
    trace.Say(TraceLevel::Detail, "processing _COMMANDS...");
    return none.RemoveAll();
}

HRESULT ZanDicClass::FlushAll() {
    const ZanDicTraceScope trace("ZanDicClass::FlushAll", "RC=");
    trace.Start("=== start === ");
    if (auto line = trace.Line(TraceLevel::Detail)) {
        line << "_Type=" << Type() << " (" << ZanDicTypeName(Type()) << "), _Name=" << Name();
    }
    if (auto line = trace.Line(TraceLevel::Detail)) line << "@=" << this;
    const HRESULT rc = flush_Members(trace);
    if (Failed(rc)) return rc;
    trace.Say(TraceLevel::Detail, "processing _invSuperClass and _SuperClass...");
    drop_Hierarchy();
    trace.Warning("*** WARNING *** processing _AttributeBlocks: TO BE COMPLETED !");
    return trace.Exit(rc);
}

void ZanDicClass::Dump(const char* caller) const {
    const std::string prefix = "ZanDicClass::Dump - ";
    const auto write = [&prefix](const std::string& text) { ZanDicWriteAlways(prefix + text + "."); };
    ZanDicWriteAlways(prefix + " called by " + (caller != nullptr ? caller : "") + " ------");
    ZanDicElement::Dump(caller);
    write(std::string("_LateType=") + (fields() != nullptr ? fields()->lateType.ConvertToChar() : ""));
    write(std::string("_ApplicationName=") +
          (fields() != nullptr ? fields()->applicationName.ConvertToChar() : ""));
    write("_Persistent=" + std::to_string(_Persistent));
    write("_Extension=" + std::to_string(_Extension));
    write("calling this->GetAllElements()...");
    ZELListPtrIUnknown attributes;
    const HRESULT rc = const_cast<ZanDicClass*>(this)->GetAllElements(&attributes);
    write("rc this->GetAllElements()=" + std::to_string(rc));
    write("size of allElements=" + std::to_string(attributes.Size()));
    for (int position = 1; position <= attributes.Size(); ++position) {
        const ZanDicRef<IUnknown> face(attributes[position]);
        const ZanDicObj& attribute = *ImplementationOf(face.Get());
        write("[" + std::to_string(position) + "]- Type=" + std::to_string(attribute.Type()) +
              ", Uuid=" + UuidText(attribute.Uuid()) + ", Name=" + attribute.Name().ConvertToChar());
    }
}
