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

int StoredModeOf(const IUnknown& attribute, StoredMode mode) {
    const ZanDicObj* const object = ImplementationOf(&attribute);
    if (object == nullptr || object->get_type() != ZanDicObj::_type_Attribute) return 0;
    return static_cast<const ZanDicAttribute*>(object)->stored_Mode(ModeOf(mode));
}

int LostLinksOf(const IUnknown& object, ZanDicObj::LinkName link) {
    const ZanDicObj* const implementation = ImplementationOf(&object);
    return implementation != nullptr ? implementation->lost_Links(link) : 0;
}

OXMDicCONTENT StoredContentOf(const IUnknown& package) {
    const ZanDicObj* const object = ImplementationOf(&package);
    if (object == nullptr || object->get_type() != ZanDicObj::_type_Package) return OXMDicCONTENT_metadata;
    return static_cast<const ZanDicPackage*>(object)->get_Content();
}
