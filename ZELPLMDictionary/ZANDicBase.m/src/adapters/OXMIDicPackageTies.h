/// Tie of packages.
#ifndef OXMI_DIC_PACKAGE_TIES_H
#define OXMI_DIC_PACKAGE_TIES_H

#include "OXMIDicElementTies.h"
#include "OXMIDicPackage.h"

/// Forwards OXMIDicPackage.
template <class Impl, class Base>
class OXMIDicPackageLayer : public Base {
public:
    HRESULT SetAlias(const ZELUnicodeString* alias) override { return this->impl().SetAlias(alias); }
    HRESULT GetAlias(ZELUnicodeString* alias) override { return this->impl().GetAlias(alias); }
    HRESULT SetExpositionLevel(const ZELUnicodeString* level) override {
        return this->impl().SetExpositionLevel(level);
    }
    HRESULT GetExpositionLevel(ZELUnicodeString* level) override {
        return this->impl().GetExpositionLevel(level);
    }
    HRESULT SetDomain(const ZELString* domain) override { return this->impl().SetDomain(domain); }
    HRESULT GetDomain(ZELString* domain) override { return this->impl().GetDomain(domain); }
    HRESULT AddUsedPackage(const OXMIDicPackage* package) override {
        return this->impl().AddUsedPackage(package);
    }
    HRESULT AddScopePackage(const OXMIDicPackage* package) override {
        return this->impl().AddScopePackage(package);
    }
    HRESULT GetUsedPackages(ZELListPtrIUnknown* packages) override {
        return this->impl().GetUsedPackages(packages);
    }
    HRESULT GetScopePackages(ZELListPtrIUnknown* packages) override {
        return this->impl().GetScopePackages(packages);
    }
    HRESULT GetElements(ZELListPtrIUnknown* elements) override { return this->impl().GetElements(elements); }
    HRESULT GetAllElements(ZELListPtrIUnknown* elements) override {
        return this->impl().GetAllElements(elements);
    }
    HRESULT GetClasses(ZELListPtrIUnknown* classes) override { return this->impl().GetClasses(classes); }
    HRESULT GetElement(const ZELString* name, OXMIDicElement** element) override {
        return this->impl().GetElement(name, element);
    }
    HRESULT GetElementR(const ZELString* name, OXMIDicElement** element) override {
        return this->impl().GetElementR(name, element);
    }
    HRESULT GetRBOClass(const ZELString* name, OXMIDicRBOClass** rboClass) override {
        return this->impl().GetRBOClass(name, rboClass);
    }
    HRESULT GetRBOMapping(const OXMIDicRBOClass* rboClass, OXMIDicRBOMapping** mapping) override {
        return this->impl().GetRBOMapping(rboClass, mapping);
    }
    HRESULT AddCommand(const OXMIDicCommand* command) override { return this->impl().AddCommand(command); }
    HRESULT RemoveCommand(const OXMIDicCommand* command) override {
        return this->impl().RemoveCommand(command);
    }
    HRESULT GetCommands(ZELListPtrIUnknown* commands) override { return this->impl().GetCommands(commands); }
    HRESULT RemoveElement(const ZELString* name) override { return this->impl().RemoveElement(name); }
    HRESULT FlushAll() override { return this->impl().FlushAll(); }
    HRESULT ComputeAttributeBlocks(const ZELListPtrIUnknown* blocks) override {
        return this->impl().ComputeAttributeBlocks(blocks);
    }
    HRESULT GetVersion(int* version) override { return this->impl().GetVersion(version); }
    HRESULT SetVersion(int version) override { return this->impl().SetVersion(version); }
    HRESULT GetInterfaces(ZELListPtrIUnknown* interfaces) override {
        return this->impl().GetInterfaces(interfaces);
    }
    HRESULT CreateClass(const ZELString* name, const ZELDbBinary* uuid, OXMIDicClass** element) override {
        return this->impl().CreateClass(name, uuid, element);
    }
    HRESULT CreateClass(const ZELString* name, OXMIDicClass** element) override {
        return this->impl().CreateClass(name, element);
    }
    HRESULT CreateEnum(const ZELString* name, const ZELDbBinary* uuid, OXMIDicEnum** element) override {
        return this->impl().CreateEnum(name, uuid, element);
    }
    HRESULT CreateEnum(const ZELString* name, OXMIDicEnum** element) override {
        return this->impl().CreateEnum(name, element);
    }
    HRESULT CreateCategory(const ZELString* name, const ZELDbBinary* uuid,
                           OXMIDicCategory** element) override {
        return this->impl().CreateCategory(name, uuid, element);
    }
    HRESULT CreateCategory(const ZELString* name, OXMIDicCategory** element) override {
        return this->impl().CreateCategory(name, element);
    }
    HRESULT CreateExtension(const ZELString* name, const ZELDbBinary* uuid,
                            OXMIDicExtension** element) override {
        return this->impl().CreateExtension(name, uuid, element);
    }
    HRESULT CreateExtension(const ZELString* name, OXMIDicExtension** element) override {
        return this->impl().CreateExtension(name, element);
    }
    HRESULT CreateInterface(const ZELString* name, const ZELDbBinary* uuid,
                            OXMIDicInterface** element) override {
        return this->impl().CreateInterface(name, uuid, element);
    }
    HRESULT CreateInterface(const ZELString* name, OXMIDicInterface** element) override {
        return this->impl().CreateInterface(name, element);
    }
    HRESULT CreateRBOClass(const ZELString* name, const ZELDbBinary* uuid,
                           OXMIDicRBOClass** element) override {
        return this->impl().CreateRBOClass(name, uuid, element);
    }
    HRESULT CreateRBOClass(const ZELString* name, OXMIDicRBOClass** element) override {
        return this->impl().CreateRBOClass(name, element);
    }
    HRESULT CreateRBOMapping(const ZELString* name, const ZELDbBinary* uuid,
                             OXMIDicRBOMapping** element) override {
        return this->impl().CreateRBOMapping(name, uuid, element);
    }
    HRESULT CreateRBOMapping(const ZELString* name, OXMIDicRBOMapping** element) override {
        return this->impl().CreateRBOMapping(name, element);
    }
    HRESULT CreateAttributeBlock(const ZELDbBinary* uuid, OXMIDicAttributeBlock** block) override {
        return this->impl().CreateAttributeBlock(uuid, block);
    }
    HRESULT CreateCommand(const ZELString* name, const ZELDbBinary* uuid, OXMIDicCommand** element) override {
        return this->impl().CreateCommand(name, uuid, element);
    }
    HRESULT CreateCommand(const ZELString* name, OXMIDicCommand** element) override {
        return this->impl().CreateCommand(name, element);
    }
    HRESULT CreateBObject(const ZELString* name, const ZELDbBinary* uuid, OXMIDicBObject** element) override {
        return this->impl().CreateBObject(name, uuid, element);
    }
    HRESULT CreateBObject(const ZELString* name, OXMIDicBObject** element) override {
        return this->impl().CreateBObject(name, element);
    }
};

template <class Impl>
using OXMIDicPackageTie = OXMIDicPackageLayer<Impl, OXMIDicElementHBase<OXMIDicPackage, Impl>>;

#endif
