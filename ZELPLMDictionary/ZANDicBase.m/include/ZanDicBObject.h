#ifndef ZAN_DIC_BOBJECT_H
#define ZAN_DIC_BOBJECT_H

#include "ZanDicElement.h"

/// A retired kind without operations of its own, kept for callers built against it; nothing creates it.
/// One thread.
class ZANDICBASE_API ZanDicBObject : public ZanDicElement {
public:
    ZanDicBObject(const ZELString& name, const ZELDbBinary& uuid);
    ~ZanDicBObject() override;

    static ZELMetaClass& ClassMeta();
    static const char* ClassName() { return ClassMeta().Name(); }
    ZELMetaClass& MetaObject() const override { return ClassMeta(); }
};

#endif
