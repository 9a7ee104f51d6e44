#include "ZanDicBOLink.h"

ZELMetaClass& ZanDicBOLink::ClassMeta() {
    static ZELMetaClass meta("ZanDicBOLink", &ZanDicElement::ClassMeta());
    return meta;
}

ZanDicBOLink::ZanDicBOLink(const ZELString& name, const ZELDbBinary& uuid) : ZanDicElement(name, uuid) {
    set_TYPE(OXMDicTYPE_BOLink);
}

ZanDicBOLink::~ZanDicBOLink() = default;
