/// Any bytes as a package document: the reader may refuse them, and then leaves nothing behind.
///
/// Bytes behind the first zero are a second document, the package Q, which the first may use. Each input is
/// read three times, stopping at the first fault, going on after all of them, and going on in a thorough way;
/// all must come to the same result. Whatever was loaded is looked at and unloaded, after which no object may
/// be left.
#include <fcntl.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

#include "GetOXMIDicMgr.h"
#include "OXMIDicClass.h"
#include "OXMIDicPackage.h"
#include "ZELLineSink.h"
#include "ZanDicDiagnostic.h"
#include "ZanDicObj.h"
#include "ZanDicRef.h"
#include "ZanDicTraceSettings.h"

namespace {

/// Lines go nowhere.
class Silence final : public ZELLineSink {
public:
    void Write(const ZELLine&) override {}
};

void Require(bool isSo) {
    if (!isSo) std::abort();
}

/// Asks for everything that a fault knows, and goes on.
class GoOn final : public ZanDicDiagnosticObserver {
public:
    explicit GoOn(bool isThorough) : _IsThorough(isThorough) {}

    bool OnDiagnostic(const ZanDicDiagnostic& fault) override {
        _Size +=
            fault.Reason().size() + fault.TraceText().size() + fault.Element().size() + fault.File().size();
        _Size += static_cast<std::size_t>(fault.Place().line) + fault.OtherPackage().size();
        Require(fault.Number() == ++_Count && fault.Cause() < fault.Number());
        return true;
    }
    bool IsThorough() const override { return _IsThorough; }

private:
    bool _IsThorough;
    int _Count = 0;
    std::size_t _Size = 0;
};

/// A directory in memory for the documents of this process.
class Documents {
public:
    Documents() {
        std::string name = "/dev/shm/zandicXXXXXX";
        _Path = ::mkdtemp(name.data());
    }
    ~Documents() { std::filesystem::remove_all(_Path); }
    Documents(const Documents&) = delete;
    Documents& operator=(const Documents&) = delete;

    void Write(const char* name, std::string_view text) const {
        std::ofstream(_Path + "/" + name, std::ios::binary) << text;
    }
    const std::string& Path() const { return _Path; }

private:
    std::string _Path;
};

/// Asks every class for what it hands out.
void LookAt(OXMIDicPackage& package) {
    ZELListPtrIUnknown classes;
    package.GetClasses(&classes);
    for (IUnknown* const entry : classes) {
        auto& element = *static_cast<OXMIDicClass*>(entry);
        ZELListPtrIUnknown attributes;
        element.GetAllElements(&attributes);
        element.GetInjectivesPointingOnMe(attributes);
        element.GetSuperClasses(&attributes);
        for (IUnknown* const attribute : attributes) attribute->Release();
        element.Release();
    }
}

/// Unloads all packages of a domain.
void Unload(OXMIDicMgr& manager, const char* domainName) {
    const ZELString domain(domainName);
    ZELListPtrIUnknown packages;
    manager.GetPackages(&domain, &packages);
    for (IUnknown* const entry : packages) {
        auto& package = *static_cast<OXMIDicPackage*>(entry);
        LookAt(package);
        ZELString name;
        package.GetName(&name);
        package.Release();
        Require(Succeeded(manager.RemovePackage(&name)));
    }
}

HRESULT LoadAndUnload(OXMIDicMgr& manager, const std::string& directory) {
    const int objectsBefore = ZanDicObj::live_Objects();
    const ZELString name("P");
    const HRESULT rc = manager.LoadXml(directory.c_str(), &name, OXMDicCONTENT_metadata);
    Unload(manager, "VALKOR");
    Unload(manager, "DUVRA");
    Require(ZanDicObj::live_Objects() == objectsBefore);
    return rc;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static Silence silence;
    static const Documents documents;
    static OXMIDicMgr* const manager = [] {
        ZELSetLineSink(&silence);
        OXMIDicMgr* made = nullptr;
        Require(Succeeded(GetOXMIDicMgr(&made)));
        made->Init(0);
        return made;
    }();

    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const std::size_t end = text.find('\0');
    documents.Write("P.metadata", text.substr(0, end));
    documents.Write("Q.metadata", end == std::string_view::npos ? std::string_view() : text.substr(end + 1));

    const HRESULT stopping = LoadAndUnload(*manager, documents.Path());
    for (const bool isThorough : {false, true}) {
        GoOn observer(isThorough);
        ZanDicSetDiagnosticObserver(&observer);
        ZanDicSetTraceLevel(isThorough ? 0 : 5);
        const HRESULT goingOn = LoadAndUnload(*manager, documents.Path());
        ZanDicSetTraceLevel(0);
        ZanDicSetDiagnosticObserver(nullptr);
        Require(stopping == goingOn);
    }
    return 0;
}
