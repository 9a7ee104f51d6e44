// The classes to which an attribute applies.
#include <utility>

#include "OXMIDicElement.h"
#include "ZanDicAttribute.h"
#include "ZanDicAttributeFields.h"
#include "ZanDicClass.h"
#include "ZanDicHandOut.h"
#include "ZanDicImplementation.h"
#include "ZanDicScope.h"
#include "ZanDicTrace.h"

ZanDicScope* ZanDicAttribute::scope() const { return fields() != nullptr ? fields()->scope.Get() : nullptr; }

HRESULT ZanDicAttribute::AddScope(const OXMIDicElement* scope) {
    const ZanDicTraceScope trace("ZanDicAttribute::AddScope");
    ZanDicObj* const element = LiveImplementationOf<ZanDicObj>(scope);
    if (element == nullptr || is_Gone()) return E_FAIL;
    if (element->IsAKindOf(ZanDicClass::ClassName()) == 0) {
        if (auto line = trace.Error()) {
            line << "-- incorrect metadata . an element of the scope in not a class"
                 << " element uuid:[" << Uuid() << "] referenced uuid:[" << element->Uuid() << "] class name "
                 << (_Origin ? _Origin->Name() : ZELString("UNDEFINED"));
        }
        return E_FAIL;
    }
    ZanDicRef<ZanDicScope>& field = make_Fields().scope;
    ZanDicRef<ZanDicScope> restriction =
        field ? ZanDicRef<ZanDicScope>::Share(field.Get()) : ZanDicRef<ZanDicScope>(new ZanDicScope);
    const HRESULT rc = restriction->AddClass(static_cast<ZanDicClass&>(*element));
    field = std::move(restriction);
    return rc;
}

HRESULT ZanDicAttribute::RemoveScope(const OXMIDicElement* scope) {
    if (scope == nullptr) return E_FAIL;
    ZanDicScope* const restriction = this->scope();
    // Deliberate: nothing fails while there is no scope (ZanDicAttributeScopeTest.RemoveScopeWithoutScope).
    if (restriction == nullptr) return S_OK;
    const ZanDicObj* const element = ImplementationOf(scope);
    if (element == nullptr || element->IsAKindOf(ZanDicClass::ClassName()) == 0) return E_FAIL;
    return restriction->RemoveClass(static_cast<const ZanDicClass&>(*element));
}

HRESULT ZanDicAttribute::GetScopes(ZELListPtrIUnknown* scopes) const {
    const ZanDicScope* const restriction = scope();
    if (scopes == nullptr) return E_FAIL;
    if (restriction == nullptr) return S_FALSE;
    HRESULT rc = S_OK;
    const ZanDicLinkList<ZanDicClass>& classes = restriction->Classes();
    const int size = classes.Size();
    for (int position = 1; position <= size; ++position) rc = AppendInterface(*classes[position], scopes);
    return rc;
}

HRESULT ZanDicAttribute::IsClassInScope(const ZELDbBinary* classUuid, unsigned char* inScope) const {
    if (classUuid == nullptr || inScope == nullptr) return E_FAIL;
    ZanDicScope* const restriction = scope();
    const bool applies =
        restriction == nullptr || !restriction->Restricts() || restriction->Holds(*classUuid);
    *inScope = applies ? 1 : 0;
    return applies ? S_OK : S_FALSE;
}

HRESULT ZanDicAttribute::compute_Scopes(ZanDicClass* root) {
    ZanDicScope* const restriction = scope();
    if (restriction == nullptr || root == nullptr) return E_FAIL;
    restriction->Expand(*root);
    return S_OK;
}
