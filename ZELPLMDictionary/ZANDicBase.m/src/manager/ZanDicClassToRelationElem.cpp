#include "ZanDicClassToRelationElem.h"

#include <cstring>

#include "ZanDicAttribute.h"

void ZanDicClassToRelationElem::AddRelationship(ZanDicAttribute* attribute) {
    if (attribute != nullptr) _RELATIONSHIPS.Append(*attribute);
}

HRESULT ZanDicClassToRelationElem::GetRelationships(ZELListPtrIUnknown& relationships) const {
    for (int position = 1; position <= _RELATIONSHIPS.Size(); ++position) {
        void* relationship = nullptr;
        const HRESULT rc = _RELATIONSHIPS[position]->bind_Interface(OXMDicTYPE_UNDEFINED, &relationship);
        if (Failed(rc)) return rc;
        relationships.Append(static_cast<IUnknown*>(relationship));
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
