#include "ZanDicCommand.h"

#include "ZanDicNotices.h"

ZELMetaClass& ZanDicCommand::ClassMeta() {
    static ZELMetaClass meta("ZanDicCommand", &ZanDicClass::ClassMeta());
    return meta;
}

ZanDicCommand::ZanDicCommand(const ZELString& name, const ZELDbBinary& uuid) : ZanDicClass(name, uuid) {
    set_TYPE(OXMDicTYPE_Command);
}

ZanDicCommand::~ZanDicCommand() = default;

ZanDicObj::_type ZanDicCommand::get_type() const {
    RefuseDeprecated("ZanDicCommand::get_type");
    return _type_Command;
}

HRESULT ZanDicCommand::CreateParameter(const ZELString*, OXMIDicCommandParameter**) {
    return RefuseDeprecated("ZanDicCommand::CreateParameter");
}

HRESULT ZanDicCommand::CreateParameter(const ZELString*, const ZELDbBinary*, OXMIDicCommandParameter**) {
    return RefuseDeprecated("ZanDicCommand::CreateParameter");
}

HRESULT ZanDicCommand::GetCommandType(OXMDicCDETYPE*) const {
    return RefuseDeprecated("ZanDicCommand::GetCommandType");
}

HRESULT ZanDicCommand::SetCommandType(OXMDicCDETYPE) {
    return RefuseDeprecated("ZanDicCommand::SetCommandType");
}

HRESULT ZanDicCommand::GetElements(ZELListPtrIUnknown*) const {
    return RefuseDeprecated("ZanDicCommand::GetElements");
}

HRESULT ZanDicCommand::GetTarget(OXMIDicClass**) const {
    return RefuseDeprecated("ZanDicCommand::GetTarget");
}

HRESULT ZanDicCommand::SetTarget(const OXMIDicClass*) { return RefuseDeprecated("ZanDicCommand::SetTarget"); }
