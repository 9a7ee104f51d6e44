#include "ZanDicMethod.h"

#include <utility>

#include "OXMIDicParameter.h"
#include "ZanDicAdopt.h"
#include "ZanDicHandOut.h"
#include "ZanDicNotices.h"
#include "ZanDicParameter.h"
#include "ZanDicRef.h"
#include "ZanDicRegistry.h"
#include "ZanDicTeardown.h"

ZELMetaClass& ZanDicMethod::ClassMeta() {
    static ZELMetaClass meta("ZanDicMethod", &ZanDicElement::ClassMeta());
    return meta;
}

ZanDicMethod::ZanDicMethod(const ZELString& name, const ZELDbBinary& uuid)
    : ZanDicElement(name, uuid), _PARAMETERS(29, ZanHashListKind::Owner) {
    set_TYPE(OXMDicTYPE_Method);
}

ZanDicMethod::~ZanDicMethod() {
    ZanDicTaken owned;
    ZanDicMethod::take_Owned(owned);
    DropTaken(owned);
}

HRESULT ZanDicMethod::CreateParameter(const ZELString* name, const ZELDbBinary* uuid,
                                      OXMIDicParameter** parameter) {
    ZanDicRegistry* const registry = ZanDicGetRegistry();
    ZanDicObj* present = nullptr;
    if (name == nullptr || uuid == nullptr || parameter == nullptr || is_Gone() || registry == nullptr) {
        return E_FAIL;
    }
    if (Succeeded(_PARAMETERS.Search(*name, &present))) return E_FAIL;
    // Deliberate: the parameter gets no package (ZanDicMethodTest.AParameterHasNoPackage).
    ZanDicRef<ZanDicParameter> made(new ZanDicParameter(*name, *uuid));
    return AdoptMember(_PARAMETERS, made, parameter, *registry);
}

HRESULT ZanDicMethod::CreateParameter(const ZELString*, OXMIDicParameter**) {
    WriteNotice("ZanDicMethod::CreateParameter", notice::kUuidNeeded, ZELLineSeverity::Error);
    return E_FAIL;
}

HRESULT ZanDicMethod::GetParameter(const ZELString* name, OXMIDicParameter** parameter) const {
    return FindInterface(_PARAMETERS, name, parameter);
}

HRESULT ZanDicMethod::GetParameters(ZELListPtrIUnknown* parameters) const {
    return AppendInterfaces(_PARAMETERS, parameters);
}

HRESULT ZanDicMethod::RemoveParameter(const ZELString* name) {
    ZanDicObj* found = nullptr;
    if (name == nullptr) return E_FAIL;
    if (Succeeded(_PARAMETERS.Search(*name, &found))) _REMOVED.keep(*found);
    return _PARAMETERS.Remove(*name);
}

HRESULT ZanDicMethod::FlushAll() { return FlushOwner(*this); }

ZanDicOwnedList ZanDicMethod::owned_List() { return {&_PARAMETERS, "_PARAMETERS", "ZanDicMethod::FlushAll"}; }

void ZanDicMethod::take_Owned(ZanDicTaken& owned) {
    owned.Take(_PARAMETERS);
    owned.Take(_REMOVED);
}

void ZanDicMethod::drop_Links() {
    ZanDicElement::drop_Links();
    ZanDicTaken owned;
    ZanDicMethod::take_Owned(owned);
    DropTaken(owned);
}
