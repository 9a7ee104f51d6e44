#include "ZanDicCategory.h"

#include "ZanDicValues.h"

ZELMetaClass& ZanDicCategory::ClassMeta() {
    static ZELMetaClass meta("ZanDicCategory", &ZanDicElement::ClassMeta());
    return meta;
}

ZanDicCategory::ZanDicCategory(const ZELString& name, const ZELDbBinary& uuid) : ZanDicElement(name, uuid) {
    set_TYPE(OXMDicTYPE_Category);
}

ZanDicCategory::~ZanDicCategory() = default;

HRESULT ZanDicCategory::GetGroup(ZELString* group) const { return GiveValue(_Group, group); }

HRESULT ZanDicCategory::SetGroup(const ZELString* group) { return TakeValue(_Group, group); }
