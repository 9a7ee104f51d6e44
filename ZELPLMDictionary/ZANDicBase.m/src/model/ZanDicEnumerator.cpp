#include "ZanDicEnumerator.h"

#include "ZanDicValues.h"

ZELMetaClass& ZanDicEnumerator::ClassMeta() {
    static ZELMetaClass meta("ZanDicEnumerator", &ZanDicElement::ClassMeta());
    return meta;
}

ZanDicEnumerator::ZanDicEnumerator(const ZELString& name, const ZELDbBinary& uuid)
    : ZanDicElement(name, uuid) {
    set_TYPE(OXMDicTYPE_Enumerator);
}

ZanDicEnumerator::~ZanDicEnumerator() = default;

HRESULT ZanDicEnumerator::GetValue(int* value) const { return GiveValue(_Value, value); }

HRESULT ZanDicEnumerator::SetValue(int value) {
    _Value = value;
    return S_OK;
}
