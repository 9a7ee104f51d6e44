#include "ZanDicStored.h"

#include "ZanDicImplementation.h"
#include "ZanDicPackage.h"

const ZanDicAttribute* AttributeBehind(const ZanDicObj* object) {
    if (object == nullptr || object->get_type() != ZanDicObj::_type_Attribute) return nullptr;
    return static_cast<const ZanDicAttribute*>(object);
}

const ZanDicAttribute* AttributeBehind(const IUnknown& face) {
    return AttributeBehind(ImplementationOf(&face));
}

const ZanHashList* OwnAttributesOf(const IUnknown& classElement) {
    const ZanDicObj* const object = ImplementationOf(&classElement);
    if (object == nullptr || object->get_type() != ZanDicObj::_type_Class) return nullptr;
    return &static_cast<const ZanDicClass*>(object)->own_Attributes();
}

bool IsOfThisLibrary(const IUnknown& object) { return ImplementationOf(&object) != nullptr; }

int LostLinksOf(const IUnknown& object, ZanDicObj::LinkName link) {
    if (ZanDicLinkBase::LostCount() == 0) return 0;  // nothing was ever lost
    const ZanDicObj* const implementation = ImplementationOf(&object);
    return implementation != nullptr ? implementation->lost_Links(link) : 0;
}

OXMDicCONTENT StoredContentOf(const IUnknown& package) {
    const ZanDicObj* const object = ImplementationOf(&package);
    if (object == nullptr || object->get_type() != ZanDicObj::_type_Package) return OXMDicCONTENT_metadata;
    return static_cast<const ZanDicPackage*>(object)->get_Content();
}
