/// Tie of the manager.
#ifndef OXMI_DIC_MGR_TIE_H
#define OXMI_DIC_MGR_TIE_H

#include "OXMIDicMgr.h"
#include "ZELTie.h"

/// Forwards OXMIDicMgr.
template <class Impl, class Base>
class OXMIDicMgrLayer : public Base {
public:
    HRESULT Init(int reserved) override { return this->impl().Init(reserved); }
    HRESULT Save() override { return this->impl().Save(); }
    HRESULT SavePackageToDir(const char* directory, const ZELString* packageName,
                             OXMDicPERSISTENT mode) override {
        return this->impl().SavePackageToDir(directory, packageName, mode);
    }
    HRESULT SavePackage(const ZELString* packageName, OXMDicPERSISTENT mode) override {
        return this->impl().SavePackage(packageName, mode);
    }
    HRESULT End() override { return this->impl().End(); }
    HRESULT Create() override { return this->impl().Create(); }
    HRESULT LoadPackageFromDir(const char* directory, const ZELString* packageName, OXMDicPERSISTENT mode,
                               OXMDicCONTENT content) override {
        return this->impl().LoadPackageFromDir(directory, packageName, mode, content);
    }
    HRESULT LoadPackageFromDir(const char* directory, const ZELString* packageName,
                               OXMDicPERSISTENT mode) override {
        return this->impl().LoadPackageFromDir(directory, packageName, mode);
    }
    HRESULT LoadPackage(const ZELString* packageName, OXMDicPERSISTENT mode, OXMDicCONTENT content) override {
        return this->impl().LoadPackage(packageName, mode, content);
    }
    HRESULT LoadPackage(const ZELString* packageName, OXMDicPERSISTENT mode) override {
        return this->impl().LoadPackage(packageName, mode);
    }
    HRESULT GetPackages(const ZELString* domain, ZELListPtrIUnknown* packages) override {
        return this->impl().GetPackages(domain, packages);
    }
    HRESULT GetPackages(ZELListPtrIUnknown* packages) override { return this->impl().GetPackages(packages); }
    HRESULT GetPackage(const ZELString* name, OXMIDicPackage** package) override {
        return this->impl().GetPackage(name, package);
    }
    HRESULT CreatePackage(const ZELString* name, const ZELDbBinary* uuid, const ZELString* domain,
                          OXMIDicPackage** package) override {
        return this->impl().CreatePackage(name, uuid, domain, package);
    }
    HRESULT CreatePackage(const ZELString* name, OXMIDicPackage** package) override {
        return this->impl().CreatePackage(name, package);
    }
    HRESULT RemovePackage(const ZELString* name) override { return this->impl().RemovePackage(name); }
    HRESULT Reserved1() override { return this->impl().Reserved1(); }
    HRESULT Reserved2() override { return this->impl().Reserved2(); }
    HRESULT Reserved3() override { return this->impl().Reserved3(); }
    HRESULT Reserved4() override { return this->impl().Reserved4(); }
    HRESULT Reserved5() override { return this->impl().Reserved5(); }
    HRESULT Reserved6() override { return this->impl().Reserved6(); }
    HRESULT Reserved7() override { return this->impl().Reserved7(); }
    HRESULT Reserved8() override { return this->impl().Reserved8(); }
    HRESULT GetPrimitive(OXMDicPRIMITIVEType kind, OXMIDicPrimitive** primitive) override {
        return this->impl().GetPrimitive(kind, primitive);
    }
    HRESULT Reserved9() override { return this->impl().Reserved9(); }
    HRESULT Reserved10() override { return this->impl().Reserved10(); }
    HRESULT SetLoadingMode(OXMDicPERSISTENT mode) override { return this->impl().SetLoadingMode(mode); }
    HRESULT GetLoadingMode(OXMDicPERSISTENT* mode) override { return this->impl().GetLoadingMode(mode); }
    HRESULT SaveExpress(const char* directory, const ZELString* packageName) override {
        return this->impl().SaveExpress(directory, packageName);
    }
    HRESULT SaveXml(const char* directory, const ZELString* packageName) override {
        return this->impl().SaveXml(directory, packageName);
    }
    HRESULT LoadXml(const char* directory, const ZELString* packageName, OXMDicCONTENT content) override {
        return this->impl().LoadXml(directory, packageName, content);
    }
    HRESULT Search(const ZELDbBinary* uuid, OXMIDicElementH** object) override {
        return this->impl().Search(uuid, object);
    }
    HRESULT SearchByName(const ZELString* name, ZELListPtrIUnknown* objects) override {
        return this->impl().SearchByName(name, objects);
    }
};

template <class Impl>
using OXMIDicMgrTie = OXMIDicMgrLayer<Impl, ZELTie<OXMIDicMgr, Impl>>;

#endif
