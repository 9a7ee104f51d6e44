/// Tie of packages.
#ifndef OXMI_DIC_PACKAGE_TIES_H
#define OXMI_DIC_PACKAGE_TIES_H

#include "OXMIDicElementTies.h"
#include "OXMIDicPackage.h"

/// Forwards OXMIDicPackage.
template <class Impl, class Base>
class OXMIDicPackageLayer : public Base {
public:
    HRESULT SetAlias(const ZELUnicodeString* alias) override {
        return this->forward([&](Impl& impl) { return impl.SetAlias(alias); });
    }
    HRESULT GetAlias(ZELUnicodeString* alias) override {
        return this->forward([&](Impl& impl) { return impl.GetAlias(alias); });
    }
    HRESULT SetExpositionLevel(const ZELUnicodeString* level) override {
        return this->forward([&](Impl& impl) { return impl.SetExpositionLevel(level); });
    }
    HRESULT GetExpositionLevel(ZELUnicodeString* level) override {
        return this->forward([&](Impl& impl) { return impl.GetExpositionLevel(level); });
    }
    HRESULT SetDomain(const ZELString* domain) override {
        return this->forward([&](Impl& impl) { return impl.SetDomain(domain); });
    }
    HRESULT GetDomain(ZELString* domain) override {
        return this->forward([&](Impl& impl) { return impl.GetDomain(domain); });
    }
    HRESULT AddUsedPackage(const OXMIDicPackage* package) override {
        return this->forward([&](Impl& impl) { return impl.AddUsedPackage(package); });
    }
    HRESULT AddScopePackage(const OXMIDicPackage* package) override {
        return this->forward([&](Impl& impl) { return impl.AddScopePackage(package); });
    }
    HRESULT GetUsedPackages(ZELListPtrIUnknown* packages) override {
        return this->forward_List(packages, [&](Impl& impl) { return impl.GetUsedPackages(packages); });
    }
    HRESULT GetScopePackages(ZELListPtrIUnknown* packages) override {
        return this->forward_List(packages, [&](Impl& impl) { return impl.GetScopePackages(packages); });
    }
    HRESULT GetElements(ZELListPtrIUnknown* elements) override {
        return this->forward_List(elements, [&](Impl& impl) { return impl.GetElements(elements); });
    }
    HRESULT GetAllElements(ZELListPtrIUnknown* elements) override {
        return this->forward_List(elements, [&](Impl& impl) { return impl.GetAllElements(elements); });
    }
    HRESULT GetClasses(ZELListPtrIUnknown* classes) override {
        return this->forward_List(classes, [&](Impl& impl) { return impl.GetClasses(classes); });
    }
    HRESULT GetElement(const ZELString* name, OXMIDicElement** element) override {
        return this->forward([&](Impl& impl) { return impl.GetElement(name, element); });
    }
    HRESULT GetElementR(const ZELString* name, OXMIDicElement** element) override {
        return this->forward([&](Impl& impl) { return impl.GetElementR(name, element); });
    }
    HRESULT GetRBOClass(const ZELString* name, OXMIDicRBOClass** rboClass) override {
        return this->forward([&](Impl& impl) { return impl.GetRBOClass(name, rboClass); });
    }
    HRESULT GetRBOMapping(const OXMIDicRBOClass* rboClass, OXMIDicRBOMapping** mapping) override {
        return this->forward([&](Impl& impl) { return impl.GetRBOMapping(rboClass, mapping); });
    }
    HRESULT AddCommand(const OXMIDicCommand* command) override {
        return this->forward([&](Impl& impl) { return impl.AddCommand(command); });
    }
    HRESULT RemoveCommand(const OXMIDicCommand* command) override {
        return this->forward([&](Impl& impl) { return impl.RemoveCommand(command); });
    }
    HRESULT GetCommands(ZELListPtrIUnknown* commands) override {
        return this->forward_List(commands, [&](Impl& impl) { return impl.GetCommands(commands); });
    }
    HRESULT RemoveElement(const ZELString* name) override {
        return this->forward([&](Impl& impl) { return impl.RemoveElement(name); });
    }
    HRESULT FlushAll() override {
        return this->forward([&](Impl& impl) { return impl.FlushAll(); });
    }
    HRESULT ComputeAttributeBlocks(const ZELListPtrIUnknown* blocks) override {
        return this->forward([&](Impl& impl) { return impl.ComputeAttributeBlocks(blocks); });
    }
    HRESULT GetVersion(int* version) override {
        return this->forward([&](Impl& impl) { return impl.GetVersion(version); });
    }
    HRESULT SetVersion(int version) override {
        return this->forward([&](Impl& impl) { return impl.SetVersion(version); });
    }
    HRESULT GetInterfaces(ZELListPtrIUnknown* interfaces) override {
        return this->forward_List(interfaces, [&](Impl& impl) { return impl.GetInterfaces(interfaces); });
    }
    HRESULT CreateClass(const ZELString* name, const ZELDbBinary* uuid, OXMIDicClass** element) override {
        return this->forward([&](Impl& impl) { return impl.CreateClass(name, uuid, element); });
    }
    HRESULT CreateClass(const ZELString* name, OXMIDicClass** element) override {
        return this->forward([&](Impl& impl) { return impl.CreateClass(name, element); });
    }
    HRESULT CreateEnum(const ZELString* name, const ZELDbBinary* uuid, OXMIDicEnum** element) override {
        return this->forward([&](Impl& impl) { return impl.CreateEnum(name, uuid, element); });
    }
    HRESULT CreateEnum(const ZELString* name, OXMIDicEnum** element) override {
        return this->forward([&](Impl& impl) { return impl.CreateEnum(name, element); });
    }
    HRESULT CreateCategory(const ZELString* name, const ZELDbBinary* uuid,
                           OXMIDicCategory** element) override {
        return this->forward([&](Impl& impl) { return impl.CreateCategory(name, uuid, element); });
    }
    HRESULT CreateCategory(const ZELString* name, OXMIDicCategory** element) override {
        return this->forward([&](Impl& impl) { return impl.CreateCategory(name, element); });
    }
    HRESULT CreateExtension(const ZELString* name, const ZELDbBinary* uuid,
                            OXMIDicExtension** element) override {
        return this->forward([&](Impl& impl) { return impl.CreateExtension(name, uuid, element); });
    }
    HRESULT CreateExtension(const ZELString* name, OXMIDicExtension** element) override {
        return this->forward([&](Impl& impl) { return impl.CreateExtension(name, element); });
    }
    HRESULT CreateInterface(const ZELString* name, const ZELDbBinary* uuid,
                            OXMIDicInterface** element) override {
        return this->forward([&](Impl& impl) { return impl.CreateInterface(name, uuid, element); });
    }
    HRESULT CreateInterface(const ZELString* name, OXMIDicInterface** element) override {
        return this->forward([&](Impl& impl) { return impl.CreateInterface(name, element); });
    }
    HRESULT CreateRBOClass(const ZELString* name, const ZELDbBinary* uuid,
                           OXMIDicRBOClass** element) override {
        return this->forward([&](Impl& impl) { return impl.CreateRBOClass(name, uuid, element); });
    }
    HRESULT CreateRBOClass(const ZELString* name, OXMIDicRBOClass** element) override {
        return this->forward([&](Impl& impl) { return impl.CreateRBOClass(name, element); });
    }
    HRESULT CreateRBOMapping(const ZELString* name, const ZELDbBinary* uuid,
                             OXMIDicRBOMapping** element) override {
        return this->forward([&](Impl& impl) { return impl.CreateRBOMapping(name, uuid, element); });
    }
    HRESULT CreateRBOMapping(const ZELString* name, OXMIDicRBOMapping** element) override {
        return this->forward([&](Impl& impl) { return impl.CreateRBOMapping(name, element); });
    }
    HRESULT CreateAttributeBlock(const ZELDbBinary* uuid, OXMIDicAttributeBlock** block) override {
        return this->forward([&](Impl& impl) { return impl.CreateAttributeBlock(uuid, block); });
    }
    HRESULT CreateCommand(const ZELString* name, const ZELDbBinary* uuid, OXMIDicCommand** element) override {
        return this->forward([&](Impl& impl) { return impl.CreateCommand(name, uuid, element); });
    }
    HRESULT CreateCommand(const ZELString* name, OXMIDicCommand** element) override {
        return this->forward([&](Impl& impl) { return impl.CreateCommand(name, element); });
    }
    HRESULT CreateBObject(const ZELString* name, const ZELDbBinary* uuid, OXMIDicBObject** element) override {
        return this->forward([&](Impl& impl) { return impl.CreateBObject(name, uuid, element); });
    }
    HRESULT CreateBObject(const ZELString* name, OXMIDicBObject** element) override {
        return this->forward([&](Impl& impl) { return impl.CreateBObject(name, element); });
    }
};

template <class Impl>
using OXMIDicPackageTie = OXMIDicPackageLayer<Impl, OXMIDicElementHBase<OXMIDicPackage, Impl>>;

#endif
