#include "ZanDicBObject.h"

ZELMetaClass& ZanDicBObject::ClassMeta() {
    static ZELMetaClass meta("ZanDicBObject", &ZanDicElement::ClassMeta());
    return meta;
}

ZanDicBObject::ZanDicBObject(const ZELString& name, const ZELDbBinary& uuid) : ZanDicElement(name, uuid) {
    set_TYPE(OXMDicTYPE_BObject);
}

ZanDicBObject::~ZanDicBObject() = default;
