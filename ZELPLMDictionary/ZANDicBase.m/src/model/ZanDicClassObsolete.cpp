// Operations of classes that are kept for old callers or not available.
#include "OXMIDicElement.h"
#include "ZanDicClass.h"
#include "ZanDicNotices.h"
#include "ZanDicTrace.h"

namespace {

constexpr std::string_view kCreate = "ZanDicClass::Create";

HRESULT RefuseDeprecated(std::string_view operation) {
    ZanDicTraceScope(operation).Error(notice::kDeprecated);
    return E_FAIL;
}

HRESULT RefuseNotImplemented(std::string_view operation) {
    ZanDicTraceScope(operation).Warning(notice::kNotImplemented);
    return E_FAIL;
}

}  // namespace

HRESULT ZanDicClass::Create(const ZELString* name, OXMDicTYPE type, OXMIDicElement** attribute) {
    return CreateWithFreshUuid(kCreate, name, attribute,
                               [&](const ZELDbBinary* uuid) { return Create(name, uuid, type, attribute); });
}

HRESULT ZanDicClass::CreateSimple(const ZELString* name, OXMIDicSimple** simple) {
    return CreateWithFreshUuid(kCreate, name, simple,
                               [&](const ZELDbBinary* uuid) { return CreateSimple(name, uuid, simple); });
}

HRESULT ZanDicClass::CreateRelationship(const ZELString* name, OXMIDicRelationship** relationship) {
    return CreateWithFreshUuid(kCreate, name, relationship, [&](const ZELDbBinary* uuid) {
        return CreateRelationship(name, uuid, relationship);
    });
}

HRESULT ZanDicClass::CreateInverse(const ZELString* name, OXMIDicInverse** inverse) {
    return CreateWithFreshUuid(kCreate, name, inverse,
                               [&](const ZELDbBinary* uuid) { return CreateInverse(name, uuid, inverse); });
}

HRESULT ZanDicClass::CreateUnique(const ZELString*, OXMIDicUnique**) {
    WriteNotice("ZanDicClass::CreateUnique", notice::kUuidNeeded, ZELLineSeverity::Error);
    return E_FAIL;
}

HRESULT ZanDicClass::CreateMethod(const ZELString*, const ZELDbBinary*, OXMIDicMethod**) { return E_FAIL; }

HRESULT ZanDicClass::CreateMethod(const ZELString*, OXMIDicMethod**) {
    ZanDicTraceScope("ZanDicClass::CreateMethod").Error(notice::kUuidNeeded);
    return E_FAIL;
}

HRESULT ZanDicClass::CreateImplement(const ZELString*, IUnknown**) { return E_FAIL; }
HRESULT ZanDicClass::CreateSecurity(const ZELString*, IUnknown**) { return E_FAIL; }
HRESULT ZanDicClass::RemoveMethod(const ZELString*) { return E_FAIL; }
HRESULT ZanDicClass::RemoveImplement(const ZELString*) { return E_FAIL; }
HRESULT ZanDicClass::RemoveSecurity(const ZELString*) { return E_FAIL; }

HRESULT ZanDicClass::AddCommand(const OXMIDicCommand*) { return RefuseDeprecated("ZanDicClass::AddCommand"); }

HRESULT ZanDicClass::RemoveCommand(const OXMIDicCommand*) {
    return RefuseDeprecated("ZanDicClass::RemoveCommand");
}

HRESULT ZanDicClass::GetCommands(ZELListPtrIUnknown*) const {
    return RefuseDeprecated("ZanDicClass::GetCommands");
}

HRESULT ZanDicClass::AddInterface(const OXMIDicInterface*) {
    return RefuseNotImplemented("ZanDicClass::AddInterface");
}

HRESULT ZanDicClass::RemoveInterface(const OXMIDicInterface*) {
    return RefuseNotImplemented("ZanDicClass::RemoveInterface");
}

HRESULT ZanDicClass::GetInterfaces(ZELListPtrIUnknown*) const {
    return RefuseNotImplemented("ZanDicClass::GetInterfaces");
}

HRESULT ZanDicClass::GetClassImplements(ZELListPtrIUnknown*) const { return E_FAIL; }
HRESULT ZanDicClass::GetAllImplements(ZELListPtrIUnknown*) const { return E_FAIL; }
HRESULT ZanDicClass::GetClassSecurities(ZELListPtrIUnknown*) const { return E_FAIL; }
HRESULT ZanDicClass::GetAllSecurities(ZELListPtrIUnknown*) const { return E_FAIL; }

HRESULT ZanDicClass::Inherited(OXMIDicElement*, unsigned char* inherited) const {
    if (inherited != nullptr) *inherited = 0;
    return E_FAIL;
}

HRESULT ZanDicClass::GetMethod(const ZELString*, OXMIDicMethod**) const { return E_FAIL; }
HRESULT ZanDicClass::GetMethods(ZELListPtrIUnknown*) const { return E_FAIL; }
HRESULT ZanDicClass::GetClassMethod(const ZELString*, OXMIDicMethod**) const { return E_FAIL; }
HRESULT ZanDicClass::GetAllMethods(ZELListPtrIUnknown*) const { return E_FAIL; }

HRESULT ZanDicClass::GetAttBlock(const ZELString*, OXMIDicAttributeBlock**) const { return E_FAIL; }
HRESULT ZanDicClass::GetAttBlocks(ZELListPtrIUnknown*) const { return E_FAIL; }
HRESULT ZanDicClass::GetAttBlockForAtt(const ZELString*, OXMIDicAttributeBlock**) const { return E_FAIL; }
HRESULT ZanDicClass::GetCBlockForAtt(const ZELString*, int, OXMIDicAttributeBlock**) { return E_FAIL; }
HRESULT ZanDicClass::HasAttBlocks(unsigned char*) const { return E_FAIL; }
HRESULT ZanDicClass::GetAllAttributeBlockList(ZELListPtrIUnknown*) const { return E_FAIL; }
HRESULT ZanDicClass::RegisterBlockByName(OXMIDicAttributeBlock*, const ZELString*) { return E_FAIL; }
