#ifndef ZAN_DIC_PRIMITIVE_H
#define ZAN_DIC_PRIMITIVE_H

#include "ZanDicElement.h"

/// A built-in value type. The manager makes one of each kind and keeps it, outside the registry.
/// One thread.
class ZANDICBASE_API ZanDicPrimitive : public ZanDicElement {
public:
    /// Kind 0.
    ZanDicPrimitive();
    ZanDicPrimitive(const ZELString& name, const ZELDbBinary& uuid, OXMDicPRIMITIVEType kind);
    ZanDicPrimitive(const ZanDicPrimitive&) = default;
    ZanDicPrimitive& operator=(const ZanDicPrimitive&) = default;
    ~ZanDicPrimitive() override;

    static ZELMetaClass& ClassMeta();
    static const char* ClassName() { return ClassMeta().Name(); }
    ZELMetaClass& MetaObject() const override { return ClassMeta(); }
    _type get_type() const override { return _type_Primitive; }

    /// \returns the kind.
    OXMDicPRIMITIVEType Primitive() const { return _Kind; }

private:
    OXMDicPRIMITIVEType _Kind = OXMDicPRIMITIVEType_UNDEFINED;
};

#endif
