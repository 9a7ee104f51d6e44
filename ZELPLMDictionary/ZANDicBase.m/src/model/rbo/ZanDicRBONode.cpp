#include "ZanDicRBONode.h"

#include "OXMIDicClass.h"
#include "OXMIDicRBOComponent.h"
#include "ZanDicClass.h"
#include "ZanDicHandOut.h"
#include "ZanDicImplementation.h"
#include "ZanDicRBOComponent.h"
#include "ZanDicRBOObject.h"
#include "ZanDicTeardown.h"
#include "ZanDicValues.h"

ZanDicRBONode::ZanDicRBONode(const ZELString& name, const ZELDbBinary& uuid)
    : ZanDicElement(name, uuid), _COMPONENTS(29, ZanHashListKind::Owner) {}

ZanDicRBONode::~ZanDicRBONode() {
    ZanDicTaken owned;
    ZanDicRBONode::take_Owned(owned);
    DropTaken(owned);
}

HRESULT ZanDicRBONode::SetBaseClass(const OXMIDicClass* baseClass) {
    auto* const object = LiveImplementationOf<ZanDicClass>(baseClass);
    if (object == nullptr || is_Gone()) return E_FAIL;
    _BaseClass = object;
    return S_OK;
}

HRESULT ZanDicRBONode::GetBaseClass(OXMIDicClass** baseClass) const {
    return baseClass != nullptr && _BaseClass ? HandOutAs(*_BaseClass, baseClass) : E_FAIL;
}

HRESULT ZanDicRBONode::SetBaseClassRef(const ZELDbBinary* uuid) { return TakeValue(_BaseClassRef, uuid); }

HRESULT ZanDicRBONode::GetBaseClassRef(ZELDbBinary* uuid) const { return GiveValue(_BaseClassRef, uuid); }

HRESULT ZanDicRBONode::SetBaseClassName(const ZELUnicodeString* name) {
    return TakeValue(_BaseClassName, name);
}

HRESULT ZanDicRBONode::GetBaseClassName(ZELUnicodeString* name) const {
    return GiveValue(_BaseClassName, name);
}

HRESULT ZanDicRBONode::CreateRBOComponent(const ZELString* name, const ZELDbBinary* uuid,
                                          OXMIDicRBOComponent** component) {
    return MakeRBOMember<ZanDicRBOComponent>(*this, _COMPONENTS, name, uuid, component);
}

HRESULT ZanDicRBONode::FlushAll() { return FlushOwner(*this); }

void ZanDicRBONode::Dump(const char* caller) const { DumpRBOObject(*this, caller); }

void ZanDicRBONode::take_Owned(ZanDicTaken& owned) { owned.Take(_COMPONENTS); }

void ZanDicRBONode::drop_Links() {
    ZanDicElement::drop_Links();
    _BaseClass.Reset();
    ZanDicTaken owned;
    ZanDicRBONode::take_Owned(owned);
    DropTaken(owned);
}

int ZanDicRBONode::lost_Links(LinkName link) const {
    if (link == LinkName::BaseClass) return _BaseClass.IsLost() ? 1 : 0;
    return ZanDicElement::lost_Links(link);
}
