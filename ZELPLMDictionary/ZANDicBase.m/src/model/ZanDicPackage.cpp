#include "ZanDicPackage.h"

#include <string>
#include <utility>

#include "OXMIDicCategory.h"
#include "OXMIDicClass.h"
#include "OXMIDicCommand.h"
#include "OXMIDicEnum.h"
#include "OXMIDicExtension.h"
#include "OXMIDicInterface.h"
#include "OXMIDicPackage.h"
#include "OXMIDicRBOClass.h"
#include "OXMIDicRBOMapping.h"
#include "ZELUuid.h"
#include "ZanDicAdopt.h"
#include "ZanDicCategory.h"
#include "ZanDicClass.h"
#include "ZanDicCommand.h"
#include "ZanDicEnum.h"
#include "ZanDicExtension.h"
#include "ZanDicHandOut.h"
#include "ZanDicImplementation.h"
#include "ZanDicNotices.h"
#include "ZanDicRBOClass.h"
#include "ZanDicRBOMapping.h"
#include "ZanDicRef.h"
#include "ZanDicRegistry.h"
#include "ZanDicTeardown.h"
#include "ZanDicTrace.h"
#include "ZanDicTypeNames.h"
#include "ZanDicValues.h"

ZELMetaClass& ZanDicPackage::ClassMeta() {
    static ZELMetaClass meta("ZanDicPackage", &ZanDicObj::ClassMeta());
    return meta;
}

ZanDicPackage::ZanDicPackage(const ZELString* name, const ZELDbBinary* uuid, const ZELString* domain)
    : ZanDicObj(name != nullptr ? *name : ZELString(), uuid != nullptr ? *uuid : ZELDbBinary()),
      _Domain(domain != nullptr ? *domain : ZELString()),
      _ELEMENTS(67, ZanHashListKind::Owner),
      _COMMANDS(29),
      _USEDPACKAGES(29),
      _SCOPEPACKAGES(7) {
    const ZanDicTraceScope trace("ZanDicPackage::ZanDicPackage");
    set_TYPE(OXMDicTYPE_Package);
    if (auto line = trace.Line(TraceLevel::Detail)) {
        line << "@=" << this << ", _Type=" << Type() << " (" << ZanDicTypeName(Type())
             << "), _Name=" << Name();
    }
    if (ZanDicRegistry* registry = ZanDicGetRegistry(); registry != nullptr) registry->Insert(this);
}

ZanDicPackage::~ZanDicPackage() {
    const ZanDicTraceScope trace("ZanDicPackage::~ZanDicPackage");
    if (auto line = trace.Line(TraceLevel::Detail)) {
        line << "@=" << this << ", _Type=" << Type() << " (" << ZanDicTypeName(Type())
             << "), _Name=" << Name();
    }
    ZanDicTaken owned;
    ZanDicPackage::take_Owned(owned);
    DropTaken(owned);
}

HRESULT ZanDicPackage::SetAlias(const ZELUnicodeString* alias) {
    return alias != nullptr ? TakeValue(make_Rare().alias, alias) : E_FAIL;
}

HRESULT ZanDicPackage::GetAlias(ZELUnicodeString* alias) const {
    if (alias == nullptr) return E_FAIL;
    if (rare() == nullptr || rare()->alias.IsNull()) return S_FALSE;
    *alias = rare()->alias;
    return S_OK;
}

HRESULT ZanDicPackage::SetExpositionLevel(const ZELUnicodeString* level) {
    return level != nullptr ? TakeValue(make_Rare().expositionLevel, level) : E_FAIL;
}

HRESULT ZanDicPackage::GetExpositionLevel(ZELUnicodeString* level) const {
    if (level == nullptr) return E_FAIL;
    *level = rare() != nullptr ? rare()->expositionLevel : ZELUnicodeString();
    return level->IsNull() ? S_FALSE : S_OK;
}

HRESULT ZanDicPackage::SetDomain(const ZELString* domain) { return TakeValue(_Domain, domain); }

HRESULT ZanDicPackage::GetDomain(ZELString* domain) const { return GiveValue(_Domain, domain); }

HRESULT ZanDicPackage::add_Package(ZanHashList& packages, const OXMIDicPackage* package) {
    auto* const used = LiveImplementationOf<ZanDicPackage>(package);
    return used != nullptr && !is_Gone() ? packages.Append(used) : E_FAIL;
}

HRESULT ZanDicPackage::AddUsedPackage(const OXMIDicPackage* package) {
    return add_Package(_USEDPACKAGES, package);
}

HRESULT ZanDicPackage::AddScopePackage(const OXMIDicPackage* package) {
    return add_Package(_SCOPEPACKAGES, package);
}

HRESULT ZanDicPackage::GetUsedPackages(ZELListPtrIUnknown* packages) const {
    return AppendInterfaces(_USEDPACKAGES, packages);
}

HRESULT ZanDicPackage::GetScopePackages(ZELListPtrIUnknown* packages) const {
    return AppendInterfaces(_SCOPEPACKAGES, packages);
}

HRESULT ZanDicPackage::GetElements(ZELListPtrIUnknown* elements) const {
    return AppendInterfaces(_ELEMENTS, elements);
}

HRESULT ZanDicPackage::GetAllElements(ZELListPtrIUnknown* elements) const {
    if (elements == nullptr) return E_FAIL;
    struct Step {
        const ZanDicPackage* package;
        int next;  ///< position of the used package to go down to
    };
    std::vector<Step> way{{this, 1}};
    _OnTheWay = true;
    HRESULT rc = S_OK;
    while (!way.empty()) {
        Step& step = way.back();
        if (step.next <= step.package->_USEDPACKAGES.Size()) {
            const auto* used = static_cast<const ZanDicPackage*>(step.package->_USEDPACKAGES[step.next++]);
            if (used != nullptr && !used->_OnTheWay) {
                used->_OnTheWay = true;
                way.push_back({used, 1});
            }
        } else {
            rc = step.package->GetElements(elements);
            step.package->_OnTheWay = false;
            way.pop_back();
        }
    }
    return rc;
}

HRESULT ZanDicPackage::GetClasses(ZELListPtrIUnknown* classes) const {
    if (classes == nullptr) return E_FAIL;
    HRESULT rc = S_OK;
    for (int position = 1; position <= _ELEMENTS.Size(); ++position) {
        const ZanDicObj& element = *_ELEMENTS[position];
        if (element.Type() == OXMDicTYPE_Class || element.Type() == OXMDicTYPE_Extension) {
            rc = AppendInterface(element, classes);
        }
    }
    return rc;
}

HRESULT ZanDicPackage::GetElement(const ZELString* name, OXMIDicElement** element) const {
    return FindInterface(_ELEMENTS, name, element);
}

HRESULT ZanDicPackage::GetElementR(const ZELString* name, OXMIDicElement** element) const {
    HRESULT rc = GetElement(name, element);
    for (int position = 1; Failed(rc) && position <= _USEDPACKAGES.Size(); ++position) {
        rc = static_cast<const ZanDicPackage*>(_USEDPACKAGES[position])->GetElement(name, element);
    }
    return rc;
}

HRESULT ZanDicPackage::GetRBOClass(const ZELString* name, OXMIDicRBOClass** rboClass) const {
    ZanDicObj* found = nullptr;
    if (name == nullptr || rboClass == nullptr || Failed(_ELEMENTS.Search(*name, &found))) return E_FAIL;
    return HandOutAs(*found, rboClass);
}

HRESULT ZanDicPackage::GetRBOMapping(const OXMIDicRBOClass* rboClass, OXMIDicRBOMapping** mapping) const {
    const ZanDicTraceScope trace("ZanDicPackage::GetRBOMapping ");
    if (rboClass == nullptr || mapping == nullptr) {
        trace.Error(notice::kNullRBOClass);
        return E_FAIL;
    }
    const auto* const applied = LiveImplementationOf<ZanDicRBOClass>(rboClass);
    if (applied == nullptr) {
        trace.Error(notice::kForeignRBOClass);
        return E_FAIL;
    }
    const int size = _ELEMENTS.Size();
    for (int position = 1; position <= size; ++position) {
        const ZanDicObj& element = *_ELEMENTS[position];
        if (element.Type() != OXMDicTYPE_RBOMapping) continue;
        if (static_cast<const ZanDicRBOMapping&>(element).applies_To(*applied))
            return HandOutOwn(element, mapping);
    }
    return E_FAIL;
}

HRESULT ZanDicPackage::AddCommand(const OXMIDicCommand* command) {
    auto* const added = LiveImplementationOf<ZanDicCommand>(command);
    ZanDicObj* present = nullptr;
    if (added == nullptr || is_Gone() || Succeeded(_COMMANDS.Search(added->Name(), &present))) return E_FAIL;
    return _COMMANDS.Append(added);
}

HRESULT ZanDicPackage::RemoveCommand(const OXMIDicCommand* command) {
    ZELString name;
    if (command == nullptr || Failed(const_cast<OXMIDicCommand*>(command)->GetName(&name))) return E_FAIL;
    return _COMMANDS.Remove(name);
}

HRESULT ZanDicPackage::GetCommands(ZELListPtrIUnknown* commands) const {
    return AppendInterfaces(_COMMANDS, commands);
}

HRESULT ZanDicPackage::RemoveElement(const ZELString* name) {
    const ZanDicTraceScope trace("ZanDicPackage::RemoveElement");
    if (name == nullptr) return E_FAIL;
    if (auto line = trace.Line(TraceLevel::Detail)) {
        line << "trying to remove Element named " << *name << " from Package " << Name();
    }
    ZanDicObj* found = nullptr;
    if (Failed(_ELEMENTS.Search(*name, &found))) {
        if (auto line = trace.Error()) {
            line << "*** ERROR *** Could not find Element named " << *name << " in Package " << Name();
        }
        return S_FALSE;
    }
    if (const HRESULT rc = static_cast<ZanDicElement*>(found)->FlushAll(); Failed(rc)) return rc;
    if (!_ELEMENTS.take_Object(found)) {
        trace.Error("*** ERROR *** ZanHashList::Remove failed");
        return E_FAIL;
    }
    std::uint32_t refCount = 0;
    const HRESULT rc = DropObject(*found, &refCount);
    if (Failed(rc)) trace.Error("*** ERROR *** ZanDictionary::Delete failed");
    if (auto line = trace.Line(TraceLevel::Detail)) line << "RefCount=" << refCount;
    return rc;
}

HRESULT ZanDicPackage::FlushAll() {
    const ZanDicTraceScope trace("ZanDicPackage::FlushAll", "RC=");
    trace.Start("=== start === ");
    if (auto line = trace.Line(TraceLevel::Detail)) {
        line << "_Type=" << Type() << " (" << ZanDicTypeName(Type()) << "), _Name=" << Name();
    }
    if (auto line = trace.Line(TraceLevel::Detail)) line << "@=" << this;
    trace.Say(TraceLevel::Detail, "processing _ELEMENTS...");
    if (const HRESULT rc = DropOwned(_ELEMENTS, "_ELEMENTS", trace); Failed(rc)) return rc;
    drop_Blocks();
    trace.Say(TraceLevel::Detail, "processing _COMMANDS...");
    trace.Warning("*** WARNING *** processing _COMMANDS: TO BE COMPLETED !");
    return trace.Exit(S_OK);
}

HRESULT ZanDicPackage::GetVersion(int*) const { return E_FAIL; }

HRESULT ZanDicPackage::SetVersion(int) { return E_FAIL; }

HRESULT ZanDicPackage::GetInterfaces(ZELListPtrIUnknown*) const { return E_FAIL; }

template <class Element, class Interface>
HRESULT ZanDicPackage::make_Element(const ZELString* name, const ZELDbBinary* uuid, Interface** element,
                                    OXMDicTYPE type) {
    ZanDicRegistry* const registry = ZanDicGetRegistry();
    ZanDicObj* present = nullptr;
    if (name == nullptr || uuid == nullptr || element == nullptr || is_Gone() || registry == nullptr) {
        return E_FAIL;
    }
    if (Succeeded(_ELEMENTS.Search(*name, &present))) return E_FAIL;
    ZanDicRef<Element> made(new Element(*name, *uuid));
    made->set_Package(this);
    if (type != OXMDicTYPE_UNDEFINED) made->set_TYPE(type);
    return AdoptMember(_ELEMENTS, made, element, *registry);
}

HRESULT ZanDicPackage::CreateClass(const ZELString* name, const ZELDbBinary* uuid, OXMIDicClass** element) {
    return make_Element<ZanDicClass>(name, uuid, element);
}

HRESULT ZanDicPackage::CreateEnum(const ZELString* name, const ZELDbBinary* uuid, OXMIDicEnum** element) {
    return make_Element<ZanDicEnum>(name, uuid, element);
}

HRESULT ZanDicPackage::CreateCategory(const ZELString* name, const ZELDbBinary* uuid,
                                      OXMIDicCategory** element) {
    return make_Element<ZanDicCategory>(name, uuid, element);
}

HRESULT ZanDicPackage::CreateExtension(const ZELString* name, const ZELDbBinary* uuid,
                                       OXMIDicExtension** element) {
    return make_Element<ZanDicExtension>(name, uuid, element);
}

HRESULT ZanDicPackage::CreateInterface(const ZELString* name, const ZELDbBinary* uuid,
                                       OXMIDicInterface** element) {
    return make_Element<ZanDicClass>(name, uuid, element, OXMDicTYPE_Interface);
}

HRESULT ZanDicPackage::CreateRBOClass(const ZELString* name, const ZELDbBinary* uuid,
                                      OXMIDicRBOClass** element) {
    return make_Element<ZanDicRBOClass>(name, uuid, element);
}

HRESULT ZanDicPackage::CreateRBOMapping(const ZELString* name, const ZELDbBinary* uuid,
                                        OXMIDicRBOMapping** element) {
    return make_Element<ZanDicRBOMapping>(name, uuid, element);
}

HRESULT ZanDicPackage::CreateRBOMapping(const ZELString*, OXMIDicRBOMapping**) { return E_FAIL; }

HRESULT ZanDicPackage::CreateClass_internal(const ZELString*, OXMIDicClass**) { return E_FAIL; }

void ZanDicPackage::take_Owned(ZanDicTaken& owned) {
    owned.Take(_ELEMENTS);
    owned.Take(_BLOCKS);
}

int ZanDicPackage::lost_Links(LinkName link) const {
    if (link == LinkName::UsedPackages) return _USEDPACKAGES.LostCount();
    if (link == LinkName::ScopePackages) return _SCOPEPACKAGES.LostCount();
    if (link == LinkName::Commands) return _COMMANDS.LostCount();
    return ZanDicObj::lost_Links(link);
}

void ZanDicPackage::drop_Links() {
    ZanDicObj::drop_Links();
    ZanDicTaken owned;
    ZanDicPackage::take_Owned(owned);
    DropTaken(owned);
    _COMMANDS.clear();
    _USEDPACKAGES.clear();
    _SCOPEPACKAGES.clear();
}
