#include "ZanDicCommandParameter.h"

#include "ZanDicNotices.h"

ZELMetaClass& ZanDicCommandParameter::ClassMeta() {
    static ZELMetaClass meta("ZanDicCommandParameter", &ZanDicAttribute::ClassMeta());
    return meta;
}

ZanDicCommandParameter::ZanDicCommandParameter(const ZELString& name, const ZELDbBinary& uuid)
    : ZanDicAttribute(name, uuid) {
    set_TYPE(OXMDicTYPE_CommandParameter);
}

ZanDicCommandParameter::~ZanDicCommandParameter() = default;

ZanDicObj::_type ZanDicCommandParameter::get_type() const {
    RefuseDeprecated("ZanDicCommandParameter::get_type");
    return _type_CommandParameter;
}

HRESULT ZanDicCommandParameter::GetOrigin(OXMIDicElement**) const {
    return RefuseDeprecated("ZanDicCommandParameter::GetOrigin");
}

HRESULT ZanDicCommandParameter::GetTarget(OXMIDicElement**) const {
    return RefuseDeprecated("ZanDicCommandParameter::GetTarget");
}

HRESULT ZanDicCommandParameter::SetTarget(const OXMIDicElement*) {
    return RefuseDeprecated("ZanDicCommandParameter::SetTarget");
}
