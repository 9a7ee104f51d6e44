#include "ZanDicStored.h"

#include "ZanDicAttribute.h"
#include "ZanDicImplementation.h"
#include "ZanDicPackage.h"

namespace {

const ZanDicAttribute::Mode& ModeOf(StoredMode mode) {
    switch (mode) {
        case StoredMode::Aggregation:
            return ZanDicAttribute::kAggregation;
        case StoredMode::Access:
            return ZanDicAttribute::kAccess;
        case StoredMode::Case:
            return ZanDicAttribute::kCase;
        case StoredMode::Scope:
            return ZanDicAttribute::kScope;
        case StoredMode::Facet:
            return ZanDicAttribute::kFacet;
        case StoredMode::Collection:
            break;
    }
    return ZanDicAttribute::kCollection;
}

}  // namespace

StoredAttribute::StoredAttribute(const IUnknown& attribute) : _Attribute(nullptr) {
    const ZanDicObj* const object = ImplementationOf(&attribute);
    if (object == nullptr || object->get_type() != ZanDicObj::_type_Attribute) return;
    _Attribute = static_cast<const ZanDicAttribute*>(object);
}

int StoredAttribute::Mode(StoredMode mode) const {
    return _Attribute != nullptr ? _Attribute->stored_Mode(ModeOf(mode)) : 0;
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
