/// Tie of the manager.
#ifndef OXMI_DIC_MGR_TIE_H
#define OXMI_DIC_MGR_TIE_H

#include "OXMIDicMgr.h"
#include "ZELTie.h"

/// Forwards OXMIDicMgr.
template <class Impl, class Base>
class OXMIDicMgrLayer : public Base {
public:
    HRESULT Init(int reserved) override {
        return this->forward([&](Impl& impl) { return impl.Init(reserved); });
    }
    HRESULT Save() override {
        return this->forward([&](Impl& impl) { return impl.Save(); });
    }
    HRESULT SavePackageToDir(const char* directory, const ZELString* packageName,
                             OXMDicPERSISTENT mode) override {
        return this->forward([&](Impl& impl) { return impl.SavePackageToDir(directory, packageName, mode); });
    }
    HRESULT SavePackage(const ZELString* packageName, OXMDicPERSISTENT mode) override {
        return this->forward([&](Impl& impl) { return impl.SavePackage(packageName, mode); });
    }
    HRESULT End() override {
        return this->forward([&](Impl& impl) { return impl.End(); });
    }
    HRESULT Create() override {
        return this->forward([&](Impl& impl) { return impl.Create(); });
    }
    HRESULT LoadPackageFromDir(const char* directory, const ZELString* packageName, OXMDicPERSISTENT mode,
                               OXMDicCONTENT content) override {
        return this->forward(
            [&](Impl& impl) { return impl.LoadPackageFromDir(directory, packageName, mode, content); });
    }
    HRESULT LoadPackageFromDir(const char* directory, const ZELString* packageName,
                               OXMDicPERSISTENT mode) override {
        return this->forward(
            [&](Impl& impl) { return impl.LoadPackageFromDir(directory, packageName, mode); });
    }
    HRESULT LoadPackage(const ZELString* packageName, OXMDicPERSISTENT mode, OXMDicCONTENT content) override {
        return this->forward([&](Impl& impl) { return impl.LoadPackage(packageName, mode, content); });
    }
    HRESULT LoadPackage(const ZELString* packageName, OXMDicPERSISTENT mode) override {
        return this->forward([&](Impl& impl) { return impl.LoadPackage(packageName, mode); });
    }
    HRESULT GetPackages(const ZELString* domain, ZELListPtrIUnknown* packages) override {
        return this->forward_List(packages, [&](Impl& impl) { return impl.GetPackages(domain, packages); });
    }
    HRESULT GetPackages(ZELListPtrIUnknown* packages) override {
        return this->forward_List(packages, [&](Impl& impl) { return impl.GetPackages(packages); });
    }
    HRESULT GetPackage(const ZELString* name, OXMIDicPackage** package) override {
        return this->forward([&](Impl& impl) { return impl.GetPackage(name, package); });
    }
    HRESULT CreatePackage(const ZELString* name, const ZELDbBinary* uuid, const ZELString* domain,
                          OXMIDicPackage** package) override {
        return this->forward([&](Impl& impl) { return impl.CreatePackage(name, uuid, domain, package); });
    }
    HRESULT CreatePackage(const ZELString* name, OXMIDicPackage** package) override {
        return this->forward([&](Impl& impl) { return impl.CreatePackage(name, package); });
    }
    HRESULT RemovePackage(const ZELString* name) override {
        return this->forward([&](Impl& impl) { return impl.RemovePackage(name); });
    }
    HRESULT Reserved1() override {
        return this->forward([&](Impl& impl) { return impl.Reserved1(); });
    }
    HRESULT Reserved2() override {
        return this->forward([&](Impl& impl) { return impl.Reserved2(); });
    }
    HRESULT Reserved3() override {
        return this->forward([&](Impl& impl) { return impl.Reserved3(); });
    }
    HRESULT Reserved4() override {
        return this->forward([&](Impl& impl) { return impl.Reserved4(); });
    }
    HRESULT Reserved5() override {
        return this->forward([&](Impl& impl) { return impl.Reserved5(); });
    }
    HRESULT Reserved6() override {
        return this->forward([&](Impl& impl) { return impl.Reserved6(); });
    }
    HRESULT Reserved7() override {
        return this->forward([&](Impl& impl) { return impl.Reserved7(); });
    }
    HRESULT Reserved8() override {
        return this->forward([&](Impl& impl) { return impl.Reserved8(); });
    }
    HRESULT GetPrimitive(OXMDicPRIMITIVEType kind, OXMIDicPrimitive** primitive) override {
        return this->forward([&](Impl& impl) { return impl.GetPrimitive(kind, primitive); });
    }
    HRESULT Reserved9() override {
        return this->forward([&](Impl& impl) { return impl.Reserved9(); });
    }
    HRESULT Reserved10() override {
        return this->forward([&](Impl& impl) { return impl.Reserved10(); });
    }
    HRESULT SetLoadingMode(OXMDicPERSISTENT mode) override {
        return this->forward([&](Impl& impl) { return impl.SetLoadingMode(mode); });
    }
    HRESULT GetLoadingMode(OXMDicPERSISTENT* mode) override {
        return this->forward([&](Impl& impl) { return impl.GetLoadingMode(mode); });
    }
    HRESULT SaveExpress(const char* directory, const ZELString* packageName) override {
        return this->forward([&](Impl& impl) { return impl.SaveExpress(directory, packageName); });
    }
    HRESULT SaveXml(const char* directory, const ZELString* packageName) override {
        return this->forward([&](Impl& impl) { return impl.SaveXml(directory, packageName); });
    }
    HRESULT LoadXml(const char* directory, const ZELString* packageName, OXMDicCONTENT content) override {
        return this->forward([&](Impl& impl) { return impl.LoadXml(directory, packageName, content); });
    }
    HRESULT Search(const ZELDbBinary* uuid, OXMIDicElementH** object) override {
        return this->forward([&](Impl& impl) { return impl.Search(uuid, object); });
    }
    HRESULT SearchByName(const ZELString* name, ZELListPtrIUnknown* objects) override {
        return this->forward_List(objects, [&](Impl& impl) { return impl.SearchByName(name, objects); });
    }
};

template <class Impl>
using OXMIDicMgrTie = OXMIDicMgrLayer<Impl, ZELTie<OXMIDicMgr, Impl>>;

#endif
