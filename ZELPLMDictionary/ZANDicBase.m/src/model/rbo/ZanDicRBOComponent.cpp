#include "ZanDicRBOComponent.h"

#include <utility>

#include "OXMIDicRBOPathExpression.h"
#include "ZanDicHandOut.h"
#include "ZanDicRBOObject.h"
#include "ZanDicRBOPathExpression.h"
#include "ZanDicTeardown.h"
#include "ZanDicTrace.h"
#include "ZanDicValues.h"

ZELMetaClass& ZanDicRBOComponent::ClassMeta() {
    static ZELMetaClass meta("ZanDicRBOComponent", &ZanDicElement::ClassMeta());
    return meta;
}

ZanDicRBOComponent::ZanDicRBOComponent(const ZELString& name, const ZELDbBinary& uuid)
    : ZanDicRBONode(name, uuid) {
    set_TYPE(OXMDicTYPE_RBOComponent);
}

ZanDicRBOComponent::~ZanDicRBOComponent() {
    ZanDicTaken owned;
    ZanDicRBOComponent::take_Owned(owned);
    DropTaken(owned);
}

HRESULT ZanDicRBOComponent::CreateRBOPathExpression(const ZELString* name, const ZELDbBinary* uuid,
                                                    OXMIDicRBOPathExpression** path) {
    if (_PATHEXPRESSION.Size() != 0) return E_FAIL;
    return MakeRBOObject<ZanDicRBOPathExpression>(*this, name, uuid, path,
                                                  [this](ZanDicRBOPathExpression& made) {
                                                      _PATHEXPRESSION.keep(made);
                                                      return S_OK;
                                                  });
}

HRESULT ZanDicRBOComponent::GetRBOPathExpression(OXMIDicRBOPathExpression** path) const {
    const ZanDicObj* const expression = _PATHEXPRESSION[1];
    return path != nullptr && expression != nullptr ? HandOutOwn(*expression, path) : E_FAIL;
}

HRESULT ZanDicRBOComponent::SetValidityRule(const ZELUnicodeString* rule) {
    return TakeValue(_ValidityRule, rule);
}

HRESULT ZanDicRBOComponent::GetValidityRule(ZELUnicodeString* rule) const {
    if (rule == nullptr) return E_FAIL;
    if (_ValidityRule.IsEmpty()) {
        *rule = ZELUnicodeString("");
        return S_FALSE;
    }
    *rule = _ValidityRule;
    return S_OK;
}

HRESULT ZanDicRBOComponent::GetElements(ZELListPtrIUnknown* list) const {
    // Deliberate: without a list each interface is made and given back
    // (ZanDicRBOComponentTest.GetElementsAcceptsANullList).
    HRESULT rc = S_OK;
    for (int position = 1; position <= components().Size(); ++position) {
        rc = AppendInterface(*components()[position], list);
    }
    return rc;
}

ZanDicOwnedList ZanDicRBOComponent::owned_List() {
    return components_AsOwned("ZanDicRBOComponent::FlushAll");
}

HRESULT ZanDicRBOComponent::flush_Rest(const ZanDicTraceScope& trace) {
    auto* const expression = static_cast<ZanDicRBOPathExpression*>(_PATHEXPRESSION[1]);
    if (expression == nullptr) return S_OK;
    _PATHEXPRESSION.clear();
    return DropMember(*expression, "_PathExpression", trace);
}

void ZanDicRBOComponent::take_Owned(ZanDicTaken& owned) {
    ZanDicRBONode::take_Owned(owned);
    owned.Take(_PATHEXPRESSION);
}

void ZanDicRBOComponent::drop_Links() {
    ZanDicRBONode::drop_Links();
    ZanDicTaken owned;
    ZanDicRBOComponent::take_Owned(owned);
    DropTaken(owned);
}
