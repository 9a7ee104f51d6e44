#include "ZanDicExtension.h"

#include "OXMIDicClass.h"
#include "ZanDicHandOut.h"
#include "ZanDicImplementation.h"

ZELMetaClass& ZanDicExtension::ClassMeta() {
    static ZELMetaClass meta("ZanDicExtension", &ZanDicClass::ClassMeta());
    return meta;
}

ZanDicExtension::ZanDicExtension(const ZELString& name, const ZELDbBinary& uuid) : ZanDicClass(name, uuid) {
    set_TYPE(OXMDicTYPE_Extension);
}

ZanDicExtension::~ZanDicExtension() = default;

HRESULT ZanDicExtension::AddScope(const OXMIDicClass* scope) {
    auto* const extended = LiveImplementationOf<ZanDicClass>(scope);
    if (extended == nullptr || is_Gone()) return E_FAIL;
    const HRESULT rc = _SCOPES.Append(*extended) ? S_OK : S_FALSE;
    _ScopesMade = true;
    return rc;
}

HRESULT ZanDicExtension::RemoveScope(const OXMIDicClass* scope) {
    if (scope == nullptr) return E_FAIL;
    // Deliberate: nothing fails while there is no list
    // (ZanDicExtensionTest.RemoveScopeWithoutAListIsNoFailure).
    if (!_ScopesMade) return S_OK;
    const ZanDicObj* const extended = ImplementationOf(scope);
    if (extended == nullptr || extended->IsAKindOf(ZanDicClass::ClassName()) == 0) return E_FAIL;
    return _SCOPES.Remove(static_cast<const ZanDicClass&>(*extended)) ? S_OK : E_FAIL;
}

HRESULT ZanDicExtension::GetScopes(ZELListPtrIUnknown* scopes) const {
    if (scopes == nullptr) return E_FAIL;
    const ZanDicClass* owner = this;
    while (owner != nullptr && owner->IsAKindOf(ClassName()) != 0) {
        const auto& extension = static_cast<const ZanDicExtension&>(*owner);
        const int size = extension._SCOPES.Size();
        for (int position = 1; position <= size; ++position) {
            if (const HRESULT rc = AppendInterface(*extension._SCOPES[position], scopes); Failed(rc))
                return E_FAIL;
        }
        owner = owner->get_SuperClass();
    }
    return S_OK;
}

void ZanDicExtension::drop_Links() {
    ZanDicClass::drop_Links();
    _SCOPES.RemoveAll();
    _ScopesMade = false;
}

int ZanDicExtension::lost_Links(LinkName link) const {
    if (link == LinkName::Scopes) return _SCOPES.LostCount();
    return ZanDicClass::lost_Links(link);
}
