/// A package and a manager without a dictionary behind them, for what no package of the dictionary gives a
/// writer. Both live on the stack: references to them are not counted.
#ifndef FAKE_DICTIONARY_H
#define FAKE_DICTIONARY_H

#include <vector>

#include "DictionaryFixture.h"
#include "FakeIdentity.h"
#include "OXMIDicPackage.h"

/// \returns \p E_NOINTERFACE unless \p id is that of \p Interface.
template <class Interface>
HRESULT AnswerOne(Interface& face, const ZELInterfaceId& id, void** out) {
    if (id != Interface::ClassId()) return E_NOINTERFACE;
    *out = &face;
    return S_OK;
}

/// Named "P". What it lists is not owned.
struct FakePackage final : FakeIdentity<OXMIDicPackage> {
    std::vector<IUnknown*> elements;    ///< may hold null
    std::vector<IUnknown*> classes;     ///< may hold null
    std::vector<IUnknown*> interfaces;  ///< may hold null

    HRESULT QueryInterface(const ZELInterfaceId& id, void** out) override {
        return AnswerOne<OXMIDicPackage>(*this, id, out);
    }
    std::uint32_t AddRef() override { return 1; }
    std::uint32_t Release() override { return 1; }

    HRESULT GetName(ZELString* name) override { return *name = ZELString("P"), S_OK; }
    HRESULT GetUuid(ZELDbBinary* uuid) override { return *uuid = TestUuid(1), S_OK; }
    HRESULT GetType(OXMDicTYPE* type) override { return *type = OXMDicTYPE_Package, S_OK; }
    HRESULT GetAllOtherAttributes(ZELListValZELUnicodeString&, ZELListValZELUnicodeString&) override {
        return S_OK;
    }
    HRESULT GetDomain(ZELString* domain) override { return *domain = ZELString("VALKOR"), S_OK; }
    HRESULT GetElements(ZELListPtrIUnknown* list) override { return Append(elements, list); }
    HRESULT GetClasses(ZELListPtrIUnknown* list) override { return Append(classes, list); }
    HRESULT GetInterfaces(ZELListPtrIUnknown* list) override { return Append(interfaces, list); }

    HRESULT SetAlias(const ZELUnicodeString*) override { return E_FAIL; }
    HRESULT GetAlias(ZELUnicodeString*) override { return E_FAIL; }
    HRESULT SetExpositionLevel(const ZELUnicodeString*) override { return E_FAIL; }
    HRESULT GetExpositionLevel(ZELUnicodeString*) override { return E_FAIL; }
    HRESULT SetDomain(const ZELString*) override { return E_FAIL; }
    HRESULT AddUsedPackage(const OXMIDicPackage*) override { return E_FAIL; }
    HRESULT AddScopePackage(const OXMIDicPackage*) override { return E_FAIL; }
    HRESULT GetUsedPackages(ZELListPtrIUnknown*) override { return E_FAIL; }
    HRESULT GetScopePackages(ZELListPtrIUnknown*) override { return E_FAIL; }
    HRESULT GetAllElements(ZELListPtrIUnknown*) override { return E_FAIL; }
    HRESULT GetElement(const ZELString*, OXMIDicElement**) override { return E_FAIL; }
    HRESULT GetElementR(const ZELString*, OXMIDicElement**) override { return E_FAIL; }
    HRESULT GetRBOClass(const ZELString*, OXMIDicRBOClass**) override { return E_FAIL; }
    HRESULT GetRBOMapping(const OXMIDicRBOClass*, OXMIDicRBOMapping**) override { return E_FAIL; }
    HRESULT AddCommand(const OXMIDicCommand*) override { return E_FAIL; }
    HRESULT RemoveCommand(const OXMIDicCommand*) override { return E_FAIL; }
    HRESULT GetCommands(ZELListPtrIUnknown*) override { return E_FAIL; }
    HRESULT RemoveElement(const ZELString*) override { return E_FAIL; }
    HRESULT FlushAll() override { return E_FAIL; }
    HRESULT ComputeAttributeBlocks(const ZELListPtrIUnknown*) override { return E_FAIL; }
    HRESULT GetVersion(int*) override { return E_FAIL; }
    HRESULT SetVersion(int) override { return E_FAIL; }
    HRESULT CreateClass(const ZELString*, const ZELDbBinary*, OXMIDicClass**) override { return E_FAIL; }
    HRESULT CreateClass(const ZELString*, OXMIDicClass**) override { return E_FAIL; }
    HRESULT CreateEnum(const ZELString*, const ZELDbBinary*, OXMIDicEnum**) override { return E_FAIL; }
    HRESULT CreateEnum(const ZELString*, OXMIDicEnum**) override { return E_FAIL; }
    HRESULT CreateCategory(const ZELString*, const ZELDbBinary*, OXMIDicCategory**) override {
        return E_FAIL;
    }
    HRESULT CreateCategory(const ZELString*, OXMIDicCategory**) override { return E_FAIL; }
    HRESULT CreateExtension(const ZELString*, const ZELDbBinary*, OXMIDicExtension**) override {
        return E_FAIL;
    }
    HRESULT CreateExtension(const ZELString*, OXMIDicExtension**) override { return E_FAIL; }
    HRESULT CreateInterface(const ZELString*, const ZELDbBinary*, OXMIDicInterface**) override {
        return E_FAIL;
    }
    HRESULT CreateInterface(const ZELString*, OXMIDicInterface**) override { return E_FAIL; }
    HRESULT CreateRBOClass(const ZELString*, const ZELDbBinary*, OXMIDicRBOClass**) override {
        return E_FAIL;
    }
    HRESULT CreateRBOClass(const ZELString*, OXMIDicRBOClass**) override { return E_FAIL; }
    HRESULT CreateRBOMapping(const ZELString*, const ZELDbBinary*, OXMIDicRBOMapping**) override {
        return E_FAIL;
    }
    HRESULT CreateRBOMapping(const ZELString*, OXMIDicRBOMapping**) override { return E_FAIL; }
    HRESULT CreateAttributeBlock(const ZELDbBinary*, OXMIDicAttributeBlock**) override { return E_FAIL; }
    HRESULT CreateCommand(const ZELString*, const ZELDbBinary*, OXMIDicCommand**) override { return E_FAIL; }
    HRESULT CreateCommand(const ZELString*, OXMIDicCommand**) override { return E_FAIL; }
    HRESULT CreateBObject(const ZELString*, const ZELDbBinary*, OXMIDicBObject**) override { return E_FAIL; }
    HRESULT CreateBObject(const ZELString*, OXMIDicBObject**) override { return E_FAIL; }

private:
    static HRESULT Append(const std::vector<IUnknown*>& entries, ZELListPtrIUnknown* list) {
        for (IUnknown* const entry : entries) {
            if (entry != nullptr) entry->AddRef();
            list->Append(entry);
        }
        return S_OK;
    }
};

/// Has one package, whatever it is asked for.
struct FakeManager final : OXMIDicMgr {
    FakePackage package;

    HRESULT QueryInterface(const ZELInterfaceId& id, void** out) override {
        return AnswerOne<OXMIDicMgr>(*this, id, out);
    }
    std::uint32_t AddRef() override { return 1; }
    std::uint32_t Release() override { return 1; }

    HRESULT GetPackage(const ZELString*, OXMIDicPackage** out) override { return *out = &package, S_OK; }

    HRESULT Init(int) override { return E_FAIL; }
    HRESULT Save() override { return E_FAIL; }
    HRESULT SavePackageToDir(const char*, const ZELString*, OXMDicPERSISTENT) override { return E_FAIL; }
    HRESULT SavePackage(const ZELString*, OXMDicPERSISTENT) override { return E_FAIL; }
    HRESULT End() override { return E_FAIL; }
    HRESULT Create() override { return E_FAIL; }
    HRESULT LoadPackageFromDir(const char*, const ZELString*, OXMDicPERSISTENT, OXMDicCONTENT) override {
        return E_FAIL;
    }
    HRESULT LoadPackageFromDir(const char*, const ZELString*, OXMDicPERSISTENT) override { return E_FAIL; }
    HRESULT LoadPackage(const ZELString*, OXMDicPERSISTENT, OXMDicCONTENT) override { return E_FAIL; }
    HRESULT LoadPackage(const ZELString*, OXMDicPERSISTENT) override { return E_FAIL; }
    HRESULT GetPackages(const ZELString*, ZELListPtrIUnknown*) override { return E_FAIL; }
    HRESULT GetPackages(ZELListPtrIUnknown*) override { return E_FAIL; }
    HRESULT CreatePackage(const ZELString*, const ZELDbBinary*, const ZELString*, OXMIDicPackage**) override {
        return E_FAIL;
    }
    HRESULT CreatePackage(const ZELString*, OXMIDicPackage**) override { return E_FAIL; }
    HRESULT RemovePackage(const ZELString*) override { return E_FAIL; }
    HRESULT Reserved1() override { return E_FAIL; }
    HRESULT Reserved2() override { return E_FAIL; }
    HRESULT Reserved3() override { return E_FAIL; }
    HRESULT Reserved4() override { return E_FAIL; }
    HRESULT Reserved5() override { return E_FAIL; }
    HRESULT Reserved6() override { return E_FAIL; }
    HRESULT Reserved7() override { return E_FAIL; }
    HRESULT Reserved8() override { return E_FAIL; }
    HRESULT GetPrimitive(OXMDicPRIMITIVEType, OXMIDicPrimitive**) override { return E_FAIL; }
    HRESULT Reserved9() override { return E_FAIL; }
    HRESULT Reserved10() override { return E_FAIL; }
    HRESULT SetLoadingMode(OXMDicPERSISTENT) override { return E_FAIL; }
    HRESULT GetLoadingMode(OXMDicPERSISTENT*) override { return E_FAIL; }
    HRESULT SaveExpress(const char*, const ZELString*) override { return E_FAIL; }
    HRESULT SaveXml(const char*, const ZELString*) override { return E_FAIL; }
    HRESULT LoadXml(const char*, const ZELString*, OXMDicCONTENT) override { return E_FAIL; }
    HRESULT Search(const ZELDbBinary*, OXMIDicElementH**) override { return E_FAIL; }
    HRESULT SearchByName(const ZELString*, ZELListPtrIUnknown*) override { return E_FAIL; }
};

#endif
