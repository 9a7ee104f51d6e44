#ifndef ZAN_DIC_RBO_ROOT_H
#define ZAN_DIC_RBO_ROOT_H

#include "ZanDicRBONode.h"

/// A root of a mapping. One thread.
class ZANDICBASE_API ZanDicRBORoot : public ZanDicRBONode {
public:
    ZanDicRBORoot(const ZELString& name, const ZELDbBinary& uuid);
    ~ZanDicRBORoot() override;

    static ZELMetaClass& ClassMeta();
    static const char* ClassName() { return ClassMeta().Name(); }
    ZELMetaClass& MetaObject() const override { return ClassMeta(); }

    /// Appends the components. \returns the last query's result, S_OK for none; E_FAIL, after an error line,
    /// for a null list.
    HRESULT GetElements(ZELListPtrIUnknown* components) const;

    // What follows is for the library itself.

    ZanDicOwnedList owned_List() override;
};

#endif
