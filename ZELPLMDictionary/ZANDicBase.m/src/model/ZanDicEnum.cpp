#include "ZanDicEnum.h"

#include <utility>

#include "OXMIDicEnumerator.h"
#include "ZELUuid.h"
#include "ZanDicAdopt.h"
#include "ZanDicEnumerator.h"
#include "ZanDicHandOut.h"
#include "ZanDicNotices.h"
#include "ZanDicPackage.h"
#include "ZanDicRef.h"
#include "ZanDicRegistry.h"
#include "ZanDicTeardown.h"

ZELMetaClass& ZanDicEnum::ClassMeta() {
    static ZELMetaClass meta("ZanDicEnum", &ZanDicElement::ClassMeta());
    return meta;
}

ZanDicEnum::ZanDicEnum(const ZELString& name, const ZELDbBinary& uuid)
    : ZanDicElement(name, uuid), _ENUMERATORS(29, ZanHashListKind::Owner) {
    set_TYPE(OXMDicTYPE_Enum);
}

ZanDicEnum::~ZanDicEnum() {
    ZanDicTaken owned;
    ZanDicEnum::take_Owned(owned);
    DropTaken(owned);
}

HRESULT ZanDicEnum::CreateEnumerator(const ZELString* name, const ZELDbBinary* uuid,
                                     OXMIDicEnumerator** enumerator) {
    ZanDicRegistry* const registry = ZanDicGetRegistry();
    ZanDicObj* present = nullptr;
    if (name == nullptr || uuid == nullptr || enumerator == nullptr || is_Gone() || registry == nullptr) {
        return E_FAIL;
    }
    if (Succeeded(_ENUMERATORS.Search(*name, &present))) return E_FAIL;
    ZanDicRef<ZanDicEnumerator> made(new ZanDicEnumerator(*name, *uuid));
    made->set_Package(get_Package());
    return AdoptMember(_ENUMERATORS, made, enumerator, *registry);
}

HRESULT ZanDicEnum::CreateEnumerator(const ZELString*, OXMIDicEnumerator**) {
    WriteNotice("ZanDicEnum::CreateEnumerator", notice::kUuidNeeded, ZELLineSeverity::Error);
    return E_FAIL;
}

HRESULT ZanDicEnum::CreateEnumValue(const ZELString* name, int value) {
    const ZELDbBinary uuid = getuuid();
    ZanDicRef<OXMIDicEnumerator> enumerator;
    const HRESULT rc = CreateEnumerator(name, &uuid, enumerator.Out());
    // Deliberate: the registration's result is lost (ZanDicEnumTest.CreateEnumValueGivesTheResultOfSetValue).
    return enumerator ? enumerator->SetValue(value) : rc;
}

HRESULT ZanDicEnum::GetEnumerator(const ZELString* name, OXMIDicEnumerator** enumerator) const {
    return FindInterface(_ENUMERATORS, name, enumerator);
}

HRESULT ZanDicEnum::GetEnumValue(const ZELString* name, int* value) const {
    ZanDicObj* found = nullptr;
    if (name == nullptr || Failed(_ENUMERATORS.Search(*name, &found))) return E_FAIL;
    return static_cast<const ZanDicEnumerator*>(found)->GetValue(value);
}

HRESULT ZanDicEnum::GetEnumValues(ZELListValZELString* names) const {
    const int size = names != nullptr ? _ENUMERATORS.Size() : 0;
    ZELListValZELString all;
    for (int position = 1; position <= size; ++position) all.Append(_ENUMERATORS[position]->Name());
    if (size != 0) names->Append(all);
    return S_OK;
}

HRESULT ZanDicEnum::GetEnumerators(ZELListPtrIUnknown* enumerators) const {
    return AppendInterfaces(_ENUMERATORS, enumerators);
}

HRESULT ZanDicEnum::RemoveEnumerator(const ZELString* name) {
    ZanDicObj* found = nullptr;
    if (name == nullptr) return E_FAIL;
    const bool listed = Succeeded(_ENUMERATORS.Search(*name, &found));
    if (listed) _REMOVED.keep(*found);
    return _ENUMERATORS.Remove(*name);
}

HRESULT ZanDicEnum::RemoveEnumValue(const ZELString* name) { return RemoveEnumerator(name); }

HRESULT ZanDicEnum::FlushAll() { return FlushOwner(*this); }

ZanDicOwnedList ZanDicEnum::owned_List() { return {&_ENUMERATORS, "_ENUMERATORS", "ZanDicEnum::FlushAll"}; }

void ZanDicEnum::take_Owned(ZanDicTaken& owned) {
    owned.Take(_ENUMERATORS);
    owned.Take(_REMOVED);
}

void ZanDicEnum::drop_Links() {
    ZanDicElement::drop_Links();
    ZanDicTaken owned;
    ZanDicEnum::take_Owned(owned);
    DropTaken(owned);
}
