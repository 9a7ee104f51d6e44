#include "ZanDicRBOClass.h"

#include "ZanDicRBOObject.h"

ZELMetaClass& ZanDicRBOClass::ClassMeta() {
    static ZELMetaClass meta("ZanDicRBOClass", &ZanDicElement::ClassMeta());
    return meta;
}

ZanDicRBOClass::ZanDicRBOClass(const ZELString& name, const ZELDbBinary& uuid) : ZanDicElement(name, uuid) {
    set_TYPE(OXMDicTYPE_RBOClass);
}

ZanDicRBOClass::~ZanDicRBOClass() = default;

void ZanDicRBOClass::Dump(const char* caller) const { DumpRBOObject(*this, caller); }
