#include "ZanDicRBORoot.h"

#include "ZanDicRBOObject.h"

ZELMetaClass& ZanDicRBORoot::ClassMeta() {
    static ZELMetaClass meta("ZanDicRBORoot", &ZanDicElement::ClassMeta());
    return meta;
}

ZanDicRBORoot::ZanDicRBORoot(const ZELString& name, const ZELDbBinary& uuid) : ZanDicRBONode(name, uuid) {
    set_TYPE(OXMDicTYPE_RBORoot);
}

ZanDicRBORoot::~ZanDicRBORoot() = default;

HRESULT ZanDicRBORoot::GetElements(ZELListPtrIUnknown* list) const {
    return AppendRBOMembers(components(), list, "ZanDicRBORoot::GetElements -");
}

ZanDicOwnedList ZanDicRBORoot::owned_List() { return components_AsOwned("ZanDicRBORoot::FlushAll"); }
