#include "ZanDicUnique.h"

#include "OXMIDicElement.h"
#include "ZanDicHandOut.h"
#include "ZanDicImplementation.h"

ZELMetaClass& ZanDicUnique::ClassMeta() {
    static ZELMetaClass meta("ZanDicUnique", &ZanDicElement::ClassMeta());
    return meta;
}

ZanDicUnique::ZanDicUnique(const ZELString& name, const ZELDbBinary& uuid)
    : ZanDicElement(name, uuid), _ELEMENTS(29) {
    set_TYPE(OXMDicTYPE_Unique);
}

ZanDicUnique::~ZanDicUnique() = default;

HRESULT ZanDicUnique::AddElement(const OXMIDicElement* element) {
    auto* const object = LiveImplementationOf<ZanDicElement>(element);
    if (object == nullptr || is_Gone()) return E_FAIL;
    ZanDicObj* present = nullptr;
    return Succeeded(_ELEMENTS.Search(object->Name(), &present)) ? E_FAIL : _ELEMENTS.Append(object);
}

HRESULT ZanDicUnique::RemoveElement(const OXMIDicElement* element) {
    if (element == nullptr) return E_FAIL;
    ZELString name;
    const HRESULT rc = const_cast<OXMIDicElement*>(element)->GetName(&name);
    return Failed(rc) ? rc : _ELEMENTS.Remove(name);
}

HRESULT ZanDicUnique::GetElements(ZELListPtrIUnknown* elements) const {
    return AppendInterfaces(_ELEMENTS, elements);
}

int ZanDicUnique::lost_Links(LinkName link) const {
    return link == LinkName::Members ? _ELEMENTS.LostCount() : ZanDicElement::lost_Links(link);
}

void ZanDicUnique::drop_Links() {
    ZanDicElement::drop_Links();
    _ELEMENTS.clear();
}
