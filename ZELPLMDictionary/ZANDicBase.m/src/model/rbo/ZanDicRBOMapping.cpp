#include "ZanDicRBOMapping.h"

#include "OXMIDicRBOClass.h"
#include "OXMIDicRBORoot.h"
#include "ZanDicHandOut.h"
#include "ZanDicImplementation.h"
#include "ZanDicRBOClass.h"
#include "ZanDicRBOObject.h"
#include "ZanDicRBORoot.h"
#include "ZanDicTeardown.h"
#include "ZanDicValues.h"

ZELMetaClass& ZanDicRBOMapping::ClassMeta() {
    static ZELMetaClass meta("ZanDicRBOMapping", &ZanDicElement::ClassMeta());
    return meta;
}

ZanDicRBOMapping::ZanDicRBOMapping(const ZELString& name, const ZELDbBinary& uuid)
    : ZanDicElement(name, uuid), _ROOTS(29, ZanHashListKind::Owner) {
    set_TYPE(OXMDicTYPE_RBOMapping);
}

ZanDicRBOMapping::~ZanDicRBOMapping() {
    ZanDicTaken owned;
    ZanDicRBOMapping::take_Owned(owned);
    DropTaken(owned);
}

HRESULT ZanDicRBOMapping::SetApplyToRBOClass(const OXMIDicRBOClass* rboClass) {
    auto* const object = LiveImplementationOf<ZanDicRBOClass>(rboClass);
    if (object == nullptr || is_Gone()) return E_FAIL;
    _ApplyToRBOClass = object;
    return S_OK;
}

HRESULT ZanDicRBOMapping::GetApplyToRBOClass(OXMIDicRBOClass** rboClass) const {
    return rboClass != nullptr && _ApplyToRBOClass ? HandOutAs(*_ApplyToRBOClass, rboClass) : E_FAIL;
}

HRESULT ZanDicRBOMapping::SetApplyToRBOClassRef(const ZELDbBinary* uuid) {
    return TakeValue(_ApplyToRBOClassRef, uuid);
}

HRESULT ZanDicRBOMapping::GetApplyToRBOClassRef(ZELDbBinary* uuid) const {
    return GiveValue(_ApplyToRBOClassRef, uuid);
}

HRESULT ZanDicRBOMapping::SetApplyToRBOClassName(const ZELUnicodeString* name) {
    return TakeValue(_ApplyToRBOClassName, name);
}

HRESULT ZanDicRBOMapping::GetApplyToRBOClassName(ZELUnicodeString* name) const {
    return GiveValue(_ApplyToRBOClassName, name);
}

HRESULT ZanDicRBOMapping::CreateRBORoot(const ZELString* name, const ZELDbBinary* uuid,
                                        OXMIDicRBORoot** root) {
    return MakeRBOMember<ZanDicRBORoot>(*this, _ROOTS, name, uuid, root);
}

HRESULT ZanDicRBOMapping::GetElements(ZELListPtrIUnknown* roots) const {
    return AppendRBOMembers(_ROOTS, roots, "ZanDicRBOMapping::GetElements -");
}

HRESULT ZanDicRBOMapping::FlushAll() { return FlushOwner(*this); }

void ZanDicRBOMapping::Dump(const char* caller) const { DumpRBOObject(*this, caller); }

bool ZanDicRBOMapping::applies_To(const ZanDicRBOClass& rboClass) const {
    return _ApplyToRBOClassRef.IsEmpty() ? _ApplyToRBOClass.Get() == &rboClass
                                         : _ApplyToRBOClassRef == rboClass.Uuid();
}

ZanDicOwnedList ZanDicRBOMapping::owned_List() { return {&_ROOTS, "_ROOTS", "ZanDicRBOMapping::FlushAll"}; }

void ZanDicRBOMapping::take_Owned(ZanDicTaken& owned) { owned.Take(_ROOTS); }

void ZanDicRBOMapping::drop_Links() {
    ZanDicElement::drop_Links();
    _ApplyToRBOClass.Reset();
    ZanDicTaken owned;
    ZanDicRBOMapping::take_Owned(owned);
    DropTaken(owned);
}

int ZanDicRBOMapping::lost_Links(LinkName link) const {
    if (link == LinkName::RBOClass) return _ApplyToRBOClass.IsLost() ? 1 : 0;
    return ZanDicElement::lost_Links(link);
}
