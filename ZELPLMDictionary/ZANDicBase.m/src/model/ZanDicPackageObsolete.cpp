// Factories of packages that are kept for old callers: those that draw a UUID, and those that make nothing.
#include "ZanDicNotices.h"
#include "ZanDicPackage.h"
#include "ZanDicTrace.h"

HRESULT ZanDicPackage::CreateClass(const ZELString* name, OXMIDicClass** element) {
    return CreateWithFreshUuid("ZanDicPackage::CreateClass", name, element,
                               [&](const ZELDbBinary* uuid) { return CreateClass(name, uuid, element); });
}

HRESULT ZanDicPackage::CreateEnum(const ZELString* name, OXMIDicEnum** element) {
    return CreateWithFreshUuid("ZanDicPackage::CreateEnum", name, element,
                               [&](const ZELDbBinary* uuid) { return CreateEnum(name, uuid, element); });
}

HRESULT ZanDicPackage::CreateCategory(const ZELString* name, OXMIDicCategory** element) {
    return CreateWithFreshUuid("ZanDicPackage::CreateCategory", name, element,
                               [&](const ZELDbBinary* uuid) { return CreateCategory(name, uuid, element); });
}

HRESULT ZanDicPackage::CreateExtension(const ZELString* name, OXMIDicExtension** element) {
    return CreateWithFreshUuid("ZanDicPackage::CreateExtension", name, element,
                               [&](const ZELDbBinary* uuid) { return CreateExtension(name, uuid, element); });
}

HRESULT ZanDicPackage::CreateInterface(const ZELString* name, OXMIDicInterface** element) {
    return CreateWithFreshUuid("ZanDicPackage::CreateInterface", name, element,
                               [&](const ZELDbBinary* uuid) { return CreateInterface(name, uuid, element); });
}

HRESULT ZanDicPackage::CreateRBOClass(const ZELString* name, OXMIDicRBOClass** element) {
    return CreateWithFreshUuid("ZanDicPackage::CreateRBOClass", name, element,
                               [&](const ZELDbBinary* uuid) { return CreateRBOClass(name, uuid, element); });
}

namespace {

HRESULT RefuseDeprecated(std::string_view operation) {
    ZanDicTraceScope(operation).Error(notice::kDeprecated);
    return E_FAIL;
}

}  // namespace

HRESULT ZanDicPackage::CreateCommand(const ZELString*, const ZELDbBinary*, OXMIDicCommand**) {
    return RefuseDeprecated("ZanDicPackage::CreateCommand");
}

HRESULT ZanDicPackage::CreateCommand(const ZELString*, OXMIDicCommand**) {
    return RefuseDeprecated("ZanDicPackage::CreateCommand");
}

HRESULT ZanDicPackage::CreateBObject(const ZELString*, const ZELDbBinary*, OXMIDicBObject**) {
    return RefuseDeprecated("ZanDicPackage::CreateBObject");
}

HRESULT ZanDicPackage::CreateBObject(const ZELString*, OXMIDicBObject**) {
    return RefuseDeprecated("ZanDicPackage::CreateBObject");
}
