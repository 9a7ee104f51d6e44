#ifndef ZAN_DIC_RBO_CLASS_H
#define ZAN_DIC_RBO_CLASS_H

#include "ZanDicElement.h"

/// A class of the relational side. It has nothing of its own; its free attributes are its properties.
/// One thread.
class ZANDICBASE_API ZanDicRBOClass : public ZanDicElement {
public:
    ZanDicRBOClass(const ZELString& name, const ZELDbBinary& uuid);
    ~ZanDicRBOClass() override;

    static ZELMetaClass& ClassMeta();
    static const char* ClassName() { return ClassMeta().Name(); }
    ZELMetaClass& MetaObject() const override { return ClassMeta(); }

    /// Writes a line, the element's dump and one line per property.
    void Dump(const char* caller) const override;
};

#endif
