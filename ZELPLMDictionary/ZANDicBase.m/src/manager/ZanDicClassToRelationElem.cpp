#include "ZanDicClassToRelationElem.h"

#include <cstring>

#include "IUnknown.h"
#include "ZanDicAttribute.h"
#include "ZanDicRef.h"

void ZanDicClassToRelationElem::AddRelationship(ZanDicAttribute* attribute) {
    if (attribute != nullptr) _RELATIONSHIPS.Append(*attribute);
}

void ZanDicClassToRelationElem::remove_Relationship(const ZanDicAttribute& attribute) {
    _RELATIONSHIPS.Remove(attribute);
}

void ZanDicClassToRelationElem::add_All(const ZanDicClassToRelationElem& other) {
    const int size = other._RELATIONSHIPS.Size();
    _RELATIONSHIPS.expect(size);  // all of them or none
    for (int position = 1; position <= size; ++position)
        _RELATIONSHIPS.Append(*other._RELATIONSHIPS[position]);
}

HRESULT ZanDicClassToRelationElem::GetRelationships(ZELListPtrIUnknown& relationships) const {
    for (int position = 1; position <= _RELATIONSHIPS.Size(); ++position) {
        void* face = nullptr;
        const HRESULT rc = _RELATIONSHIPS[position]->bind_Interface(OXMDicTYPE_UNDEFINED, &face);
        if (Failed(rc)) return rc;
        ZanDicRef<IUnknown> relationship(static_cast<IUnknown*>(face));
        relationships.Append(relationship.Get());
        relationship.Detach();
    }
    return S_OK;
}

std::uint32_t ZanDicClassToRelationElem::GetHashKey(ZanDicClassToRelationElem* entry) {
    return entry != nullptr ? entry->_ClassUuid.ComputeHashKey() : 0;
}

int ZanDicClassToRelationElem::Compare(ZanDicClassToRelationElem* first, ZanDicClassToRelationElem* second) {
    if (first == nullptr || second == nullptr) return (first != nullptr) - (second != nullptr);
    // A UUID without bytes has 16 zeros in their place.
    return std::memcmp(first->_ClassUuid.Data(), second->_ClassUuid.Data(), ZELDbBinary::kCapacity);
}
