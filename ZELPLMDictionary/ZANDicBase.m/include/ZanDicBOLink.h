#ifndef ZAN_DIC_BOLINK_H
#define ZAN_DIC_BOLINK_H

#include "ZanDicElement.h"

/// A retired kind without operations of its own, kept for callers built against it; nothing creates it.
/// One thread.
class ZANDICBASE_API ZanDicBOLink : public ZanDicElement {
public:
    ZanDicBOLink(const ZELString& name, const ZELDbBinary& uuid);
    ~ZanDicBOLink() override;

    static ZELMetaClass& ClassMeta();
    static const char* ClassName() { return ClassMeta().Name(); }
    ZELMetaClass& MetaObject() const override { return ClassMeta(); }
};

#endif
