/// A class without a dictionary behind it, for what no class of the dictionary gives a writer.
#ifndef FAKE_CLASS_H
#define FAKE_CLASS_H

#include <vector>

#include "FakeElements.h"

/// The children that it owns are its attributes; the other lists own nothing.
struct FakeClass final : FakeElement<OXMIDicClass> {
    FakeClass(OXMDicTYPE type, const char* name, unsigned number) : FakeElement(type, name, number) {}
    unsigned char instance = 0;
    std::vector<IUnknown*> uniques;     ///< may hold null
    std::vector<IUnknown*> interfaces;  ///< may hold null

    HRESULT GetPersistent(unsigned char* persistent) override { return *persistent = 1, S_OK; }
    HRESULT GetInstance(unsigned char* out) override { return *out = instance, S_OK; }
    HRESULT GetClassElements(ZELListPtrIUnknown* attributes) override { return List(attributes); }
    HRESULT GetUniques(ZELListPtrIUnknown* list) override { return Append(uniques, list); }
    HRESULT GetInterfaces(ZELListPtrIUnknown* list) override { return Append(interfaces, list); }
    HRESULT GetSubClasses(ZELListPtrIUnknown*) override { return S_OK; }

    HRESULT Create(const ZELString*, const ZELDbBinary*, OXMDicTYPE, OXMIDicElement**) override {
        return E_FAIL;
    }
    HRESULT Create(const ZELString*, OXMDicTYPE, OXMIDicElement**) override { return E_FAIL; }
    HRESULT CreateSimple(const ZELString*, const ZELDbBinary*, OXMIDicSimple**) override { return E_FAIL; }
    HRESULT CreateSimple(const ZELString*, OXMIDicSimple**) override { return E_FAIL; }
    HRESULT CreateRelationship(const ZELString*, const ZELDbBinary*, OXMIDicRelationship**) override {
        return E_FAIL;
    }
    HRESULT CreateRelationship(const ZELString*, OXMIDicRelationship**) override { return E_FAIL; }
    HRESULT CreateInverse(const ZELString*, const ZELDbBinary*, OXMIDicInverse**) override { return E_FAIL; }
    HRESULT CreateInverse(const ZELString*, OXMIDicInverse**) override { return E_FAIL; }
    HRESULT CreateUnique(const ZELString*, const ZELDbBinary*, OXMIDicUnique**) override { return E_FAIL; }
    HRESULT CreateUnique(const ZELString*, OXMIDicUnique**) override { return E_FAIL; }
    HRESULT CreateMethod(const ZELString*, const ZELDbBinary*, OXMIDicMethod**) override { return E_FAIL; }
    HRESULT CreateMethod(const ZELString*, OXMIDicMethod**) override { return E_FAIL; }
    HRESULT CreateImplement(const ZELString*, IUnknown**) override { return E_FAIL; }
    HRESULT CreateSecurity(const ZELString*, IUnknown**) override { return E_FAIL; }
    HRESULT RemoveElement(const ZELString*) override { return E_FAIL; }
    HRESULT RemoveMethod(const ZELString*) override { return E_FAIL; }
    HRESULT RemoveUnique(const ZELString*) override { return E_FAIL; }
    HRESULT RemoveImplement(const ZELString*) override { return E_FAIL; }
    HRESULT RemoveSecurity(const ZELString*) override { return E_FAIL; }
    HRESULT AddCommand(const OXMIDicCommand*) override { return E_FAIL; }
    HRESULT RemoveCommand(const OXMIDicCommand*) override { return E_FAIL; }
    HRESULT GetCommands(ZELListPtrIUnknown*) override { return E_FAIL; }
    HRESULT AddInterface(const OXMIDicInterface*) override { return E_FAIL; }
    HRESULT RemoveInterface(const OXMIDicInterface*) override { return E_FAIL; }
    HRESULT GetClassImplements(ZELListPtrIUnknown*) override { return E_FAIL; }
    HRESULT GetAllImplements(ZELListPtrIUnknown*) override { return E_FAIL; }
    HRESULT GetClassSecurities(ZELListPtrIUnknown*) override { return E_FAIL; }
    HRESULT GetAllSecurities(ZELListPtrIUnknown*) override { return E_FAIL; }
    HRESULT Inherited(OXMIDicElement*, unsigned char*) override { return E_FAIL; }
    HRESULT SetSuperClass(const OXMIDicClass*) override { return E_FAIL; }
    HRESULT GetSuperClass(OXMIDicClass**) override { return E_FAIL; }
    HRESULT GetSuperClasses(ZELListPtrIUnknown*) override { return E_FAIL; }
    HRESULT GetSuperName(ZELString*) override { return E_FAIL; }
    HRESULT SetSuperInterface(const OXMIDicInterface*) override { return E_FAIL; }
    HRESULT GetSuperInterface(OXMIDicInterface**) override { return E_FAIL; }
    HRESULT GetSuperInterfaces(ZELListPtrIUnknown*) override { return E_FAIL; }
    HRESULT GetClassElement(const ZELString*, OXMIDicElement**) override { return E_FAIL; }
    HRESULT GetElement(const ZELString*, OXMIDicElement**) override { return E_FAIL; }
    HRESULT GetAllElements(ZELListPtrIUnknown*) override { return E_FAIL; }
    HRESULT GetInjectivesPointingOnMe(ZELListPtrIUnknown&) override { return E_FAIL; }
    HRESULT SetPersistent(unsigned char) override { return E_FAIL; }
    HRESULT SetAbstract(unsigned char) override { return E_FAIL; }
    HRESULT GetAbstract(unsigned char*) override { return E_FAIL; }
    HRESULT SetInstance(unsigned char) override { return E_FAIL; }
    HRESULT SetExtensible(unsigned char) override { return E_FAIL; }
    HRESULT GetExtensible(unsigned char*) override { return E_FAIL; }
    HRESULT SetKVADerivable(int) override { return E_FAIL; }
    HRESULT GetKVADerivable(int*) override { return E_FAIL; }
    HRESULT SetLateType(const ZELString*) override { return E_FAIL; }
    HRESULT GetLateType(ZELString*) override { return E_FAIL; }
    HRESULT SetApplicationName(const ZELUnicodeString*) override { return E_FAIL; }
    HRESULT GetApplicationName(ZELUnicodeString*) override { return E_FAIL; }
    HRESULT SetReference(const OXMIDicClass*) override { return E_FAIL; }
    HRESULT GetReference(OXMIDicClass**) override { return E_FAIL; }
    HRESULT GetUnique(const ZELString*, OXMIDicUnique**) override { return E_FAIL; }
    HRESULT GetMethod(const ZELString*, OXMIDicMethod**) override { return E_FAIL; }
    HRESULT GetMethods(ZELListPtrIUnknown*) override { return E_FAIL; }
    HRESULT GetClassMethod(const ZELString*, OXMIDicMethod**) override { return E_FAIL; }
    HRESULT GetAllMethods(ZELListPtrIUnknown*) override { return E_FAIL; }
    HRESULT GetAttBlock(const ZELString*, OXMIDicAttributeBlock**) override { return E_FAIL; }
    HRESULT GetAttBlocks(ZELListPtrIUnknown*) override { return E_FAIL; }
    HRESULT GetAttBlockForAtt(const ZELString*, OXMIDicAttributeBlock**) override { return E_FAIL; }
    HRESULT GetCBlockForAtt(const ZELString*, int, OXMIDicAttributeBlock**) override { return E_FAIL; }
    HRESULT HasAttBlocks(unsigned char*) override { return E_FAIL; }
    HRESULT GetAllAttributeBlockList(ZELListPtrIUnknown*) override { return E_FAIL; }
    HRESULT RegisterBlockByName(OXMIDicAttributeBlock*, const ZELString*) override { return E_FAIL; }
    HRESULT GetClassKVADerivable(int*) override { return E_FAIL; }
    HRESULT GetClassExtensible(unsigned char*) override { return E_FAIL; }
    HRESULT GetClassAttBlocks(ZELListPtrIUnknown*) override { return E_FAIL; }

private:
    static HRESULT Append(const std::vector<IUnknown*>& entries, ZELListPtrIUnknown* list) {
        for (IUnknown* const entry : entries) {
            if (entry != nullptr) entry->AddRef();
            list->Append(entry);
        }
        return S_OK;
    }
};

#endif
