#include "ZanDicRBOPathExpression.h"

#include "OXMIDicElement.h"
#include "ZanDicHandOut.h"
#include "ZanDicImplementation.h"
#include "ZanDicRBOObject.h"
#include "ZanDicValues.h"

namespace {

HRESULT TakeText(ZELUnicodeString& field, const ZELUnicodeString* text) {
    return text != nullptr && !text->IsEmpty() ? TakeValue(field, text) : E_FAIL;
}

HRESULT GiveText(const ZELUnicodeString& field, ZELUnicodeString* text) {
    return field.IsEmpty() ? E_FAIL : GiveValue(field, text);
}

}  // namespace

ZELMetaClass& ZanDicRBOPathExpression::ClassMeta() {
    static ZELMetaClass meta("ZanDicRBOPathExpression", &ZanDicElement::ClassMeta());
    return meta;
}

ZanDicRBOPathExpression::ZanDicRBOPathExpression(const ZELString& name, const ZELDbBinary& uuid)
    : ZanDicElement(name, uuid) {
    set_TYPE(OXMDicTYPE_RBOPathExpression);
}

ZanDicRBOPathExpression::~ZanDicRBOPathExpression() = default;

HRESULT ZanDicRBOPathExpression::SetTarget(const OXMIDicElement* target) {
    auto* const object = LiveImplementationOf<ZanDicElement>(target);
    if (object == nullptr || is_Gone()) return E_FAIL;
    _Target = object;
    return S_OK;
}

HRESULT ZanDicRBOPathExpression::GetTarget(OXMIDicElement** target) const {
    return target != nullptr && _Target ? HandOutOwn(*_Target, target) : E_FAIL;
}

HRESULT ZanDicRBOPathExpression::SetTargetRef(const ZELDbBinary* uuid) { return TakeValue(_TargetRef, uuid); }

HRESULT ZanDicRBOPathExpression::GetTargetRef(ZELDbBinary* uuid) const { return GiveValue(_TargetRef, uuid); }

HRESULT ZanDicRBOPathExpression::SetTargetName(const ZELUnicodeString* name) {
    return TakeText(_TargetName, name);
}

HRESULT ZanDicRBOPathExpression::GetTargetName(ZELUnicodeString* name) const {
    return GiveValue(_TargetName, name);
}

HRESULT ZanDicRBOPathExpression::SetPathExprType(const ZELUnicodeString* type) {
    return TakeText(_PathExprType, type);
}

HRESULT ZanDicRBOPathExpression::GetPathExprType(ZELUnicodeString* type) const {
    return GiveText(_PathExprType, type);
}

HRESULT ZanDicRBOPathExpression::SetPathExprSubType(const ZELUnicodeString* subType) {
    return TakeText(_PathExprSubType, subType);
}

HRESULT ZanDicRBOPathExpression::GetPathExprSubType(ZELUnicodeString* subType) const {
    return GiveText(_PathExprSubType, subType);
}

void ZanDicRBOPathExpression::Dump(const char* caller) const { DumpRBOObject(*this, caller); }

void ZanDicRBOPathExpression::drop_Links() {
    ZanDicElement::drop_Links();
    _Target.Reset();
}

int ZanDicRBOPathExpression::lost_Links(LinkName link) const {
    if (link == LinkName::PathTarget) return _Target.IsLost() ? 1 : 0;
    return ZanDicElement::lost_Links(link);
}
