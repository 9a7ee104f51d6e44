#ifndef ZAN_DIC_CATEGORY_H
#define ZAN_DIC_CATEGORY_H

#include "ZanDicElement.h"

/// A named tag that other objects carry, with the name of its group, empty at first. One thread.
class ZANDICBASE_API ZanDicCategory : public ZanDicElement {
public:
    ZanDicCategory(const ZELString& name, const ZELDbBinary& uuid);
    ZanDicCategory(const ZanDicCategory&) = default;
    ZanDicCategory& operator=(const ZanDicCategory&) = default;
    ~ZanDicCategory() override;

    static ZELMetaClass& ClassMeta();
    static const char* ClassName() { return ClassMeta().Name(); }
    ZELMetaClass& MetaObject() const override { return ClassMeta(); }

    /// \returns S_OK; E_FAIL for null.
    HRESULT GetGroup(ZELString* group) const;
    HRESULT SetGroup(const ZELString* group);

private:
    ZELString _Group;
};

#endif
