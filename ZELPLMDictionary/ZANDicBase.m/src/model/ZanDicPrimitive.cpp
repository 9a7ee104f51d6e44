#include "ZanDicPrimitive.h"

ZELMetaClass& ZanDicPrimitive::ClassMeta() {
    static ZELMetaClass meta("ZanDicPrimitive", &ZanDicElement::ClassMeta());
    return meta;
}

ZanDicPrimitive::ZanDicPrimitive() { set_TYPE(OXMDicTYPE_Primitive); }

ZanDicPrimitive::ZanDicPrimitive(const ZELString& name, const ZELDbBinary& uuid, OXMDicPRIMITIVEType kind)
    : ZanDicElement(name, uuid), _Kind(kind) {
    set_TYPE(OXMDicTYPE_Primitive);
}

ZanDicPrimitive::~ZanDicPrimitive() = default;
