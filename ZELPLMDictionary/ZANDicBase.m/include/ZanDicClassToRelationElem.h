#ifndef ZAN_DIC_CLASS_TO_RELATION_ELEM_H
#define ZAN_DIC_CLASS_TO_RELATION_ELEM_H

#include <cstdint>

#include "ZELDbBinary.h"
#include "ZELListPtr.h"
#include "ZELResult.h"
#include "ZanDicExport.h"
#include "ZanDicLinkList.h"

class ZanDicAttribute;

/// The injective attributes that point at one class, by the UUID of the class. Keeps no attribute alive;
/// one that is gone counts as absent. One thread.
class ZANDICBASE_API ZanDicClassToRelationElem {
public:
    void SetClassUUID(const ZELDbBinary& uuid) { _ClassUuid = uuid; }
    void GetClassUUID(ZELDbBinary& uuid) const { uuid = _ClassUuid; }

    /// Adds \p attribute at the end unless it is noted already or gone. Null is ignored.
    void AddRelationship(ZanDicAttribute* attribute);

    /// Takes \p attribute out; one that is not noted is ignored.
    void remove_Relationship(const ZanDicAttribute& attribute);
    /// Adds all attributes of \p other, in their order; none when memory is short (std::bad_alloc).
    void add_All(const ZanDicClassToRelationElem& other);

    /// Appends each attribute as the interface of its kind, in the order of their first addition, one
    /// reference an entry. \returns S_OK; the first failure, and what was appended before it stays.
    HRESULT GetRelationships(ZELListPtrIUnknown& relationships) const;

    /// Hash and compare functions of a table keyed by the UUID. A null entry hashes to 0; of two nulls the
    /// comparison is 0, of one it is -1 or 1. Otherwise it is that of the UUIDs' 16 bytes.
    static std::uint32_t GetHashKey(ZanDicClassToRelationElem* entry);
    static int Compare(ZanDicClassToRelationElem* first, ZanDicClassToRelationElem* second);

private:
    ZELDbBinary _ClassUuid;
    ZanDicLinkList<ZanDicAttribute> _RELATIONSHIPS;
};

#endif
