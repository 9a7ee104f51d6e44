#include <string_view>

#include "OXMIDicElement.h"
#include "OXMIDicPackage.h"
#include "ZELUuid.h"
#include "ZanDicHandOut.h"
#include "ZanDicPackage.h"
#include "ZanDicRef.h"
#include "ZanDicTrace.h"
#include "ZanDictionary.h"

namespace {

constexpr std::string_view kExitWord = "RC=";
constexpr const char* kDefaultDomain = "VALKOR";

ZELString BeforeFirstDot(const ZELString& name) {
    return ZELString(name.View().substr(0, name.View().find('.')));
}

}  // namespace

ZanDicPackage* ZanDictionary::find_Package(const ZELString& name) const {
    ZanDicObj* package = nullptr;
    _PACKAGES.Search(name, &package);
    return static_cast<ZanDicPackage*>(package);
}

HRESULT ZanDictionary::GetPackages(const ZELString* domain, ZELListPtrIUnknown* packages) {
    static constexpr ZanDicTraceScope trace("ZanDictionary::GetPackages (2) - ", kExitWord);
    if (domain == nullptr || packages == nullptr) return E_FAIL;
    for (int position = 1; position <= _PACKAGES.Size(); ++position) {
        const auto& package = static_cast<const ZanDicPackage&>(*_PACKAGES[position]);
        ZELString packageDomain;
        package.GetDomain(&packageDomain);
        if (auto line = trace.Line(TraceLevel::Detail)) {
            line << "PackName=" << package.Name() << ", PackDomain=" << packageDomain;
        }
        if (packageDomain == *domain) AppendInterface(package, packages);
    }
    return S_OK;
}

HRESULT ZanDictionary::GetPackages(ZELListPtrIUnknown* packages) {
    const ZELString domain = kDefaultDomain;
    return GetPackages(&domain, packages);
}

HRESULT ZanDictionary::GetPackage(const ZELString* name, OXMIDicPackage** package) {
    static constexpr ZanDicTraceScope trace("ZanDictionary::GetPackage", kExitWord);
    if (auto line = trace.Line(TraceLevel::Call)) line << "=== start === Name=" << name;
    HRESULT rc = E_FAIL;
    if (name != nullptr && package != nullptr) {
        const ZanDicPackage* found = find_Package(*name);
        if (found == nullptr) found = find_Package(BeforeFirstDot(*name));
        void* face = nullptr;
        if (found != nullptr && Succeeded(found->bind_Interface(OXMDicTYPE_UNDEFINED, &face))) {
            *package = static_cast<OXMIDicPackage*>(face);
            rc = S_OK;
        }
    }
    if (auto line = trace.Line(TraceLevel::Call)) {
        // Deliberate: the address of the argument, not its text
        // (ZanDictionaryPackagesTest.GetPackageTracesTheAddressOfTheName).
        line << "=== exit === " << kExitWord << ZanDicTraceScope::Word(rc)
             << ", PackName=" << static_cast<const void*>(name);
    }
    return rc;
}

HRESULT ZanDictionary::CreatePackage(const ZELString* name, const ZELDbBinary* uuid, const ZELString* domain,
                                     OXMIDicPackage** package) {
    static constexpr ZanDicTraceScope trace("ZanDictionary::CreatePackage", kExitWord);
    if (auto line = trace.Line(TraceLevel::Call)) line << "=== start === iPackageName=" << name;
    const bool isComplete = name != nullptr && uuid != nullptr && domain != nullptr && package != nullptr;
    if (!isComplete || find_Package(*name) != nullptr) return trace.Exit(E_FAIL);

    if (auto line = trace.Line(TraceLevel::Information)) {
        line << "Creating new ZanDicPackage(" << name << ",...,"
             << ")...";
    }
    return trace.Exit(make_Package(*name, *uuid, *domain, package));
}

HRESULT ZanDictionary::make_Package(const ZELString& name, const ZELDbBinary& uuid, const ZELString& domain,
                                    OXMIDicPackage** package) {
    // Its end takes it out of the registry: nobody knows it before it is in the list.
    ZanDicRef<ZanDicPackage> made(new ZanDicPackage(&name, &uuid, &domain));
    if (!made->is_Registered()) return E_FAIL;
    ZanDicRef<OXMIDicPackage> face;
    if (const HRESULT rc = HandOutAs(*made, face.Out()); Failed(rc)) return rc;
    if (const HRESULT rc = _PACKAGES.Append(made.Get()); Failed(rc)) {
        Delete(made.Get());
        return rc;
    }
    made.Detach();
    ZanDicTraceScope("ZanDictionary::CreatePackage", kExitWord)
        .Say(TraceLevel::Information, "binding interface to OXMDicPACKAGE ...");
    *package = face.Detach();
    return S_OK;
}

HRESULT ZanDictionary::CreatePackage(const ZELString* name, OXMIDicPackage** package) {
    ZanDicWriteAlways(
        "ZanDictionary::CreatePackage- *** WARNING *** This method is now obsolete. "
        "Uuid will be assigned dynamically. Domain will be set to VALKOR.",
        ZELLineSeverity::Warning);
    const ZELDbBinary uuid = getuuid();
    const ZELString domain = kDefaultDomain;
    return CreatePackage(name, &uuid, &domain, package);
}

HRESULT ZanDictionary::RemovePackage(const ZELString* name) {
    static constexpr ZanDicTraceScope trace("ZanDictionary::RemovePackage", kExitWord);
    if (auto line = trace.Line(TraceLevel::Call)) line << "=== start === iName=" << name;
    if (name == nullptr) return trace.Exit(E_FAIL);

    const ZELString packageName = *name;  // the caller's may be the package's own
    ZanDicPackage* const package = find_Package(packageName);
    if (package != nullptr) {
        const HRESULT flushed = package->FlushAll();
        if (auto line = trace.Line(TraceLevel::Detail)) {
            line << "rc[pPackage->FlushAll()]=" << ZanDicTraceScope::Word(flushed);
        }
        const HRESULT deleted = Delete(package);
        if (auto line = trace.Line(TraceLevel::Detail)) {
            line << "rc[Delete]=" << ZanDicTraceScope::Word(deleted);
        }
    }
    // Out of the list before the reference that may destroy it is given back.
    const HRESULT rc = _PACKAGES.Remove(packageName);
    if (package != nullptr) {
        package->mark_Gone();
        const std::uint32_t count = package->Release();
        if (auto line = trace.Line(TraceLevel::Detail)) line << "RefCount=" << count;
        std::erase_if(_LOADS, [](const auto& load) { return !load.second; });
        if (_OBJECTS.Size() == 0) _OBJECTS.RemoveAll();
    }
    return trace.Exit(rc);
}

HRESULT ZanDictionary::SearchByName(const ZELString* name, ZELListPtrIUnknown* objects) {
    if (name == nullptr || objects == nullptr) return E_FAIL;
    HRESULT rc = E_FAIL;
    if (const ZanDicPackage* const package = find_Package(*name)) {
        AppendInterface(*package, objects);
        rc = S_OK;
    }
    for (int position = 1; position <= _PACKAGES.Size(); ++position) {
        ZanDicRef<OXMIDicElement> element;
        const auto& package = static_cast<const ZanDicPackage&>(*_PACKAGES[position]);
        if (Succeeded(package.GetElement(name, element.Out()))) {
            objects->Append(element.Get());
            element.Detach();
        }
        rc = S_OK;
    }
    return rc;
}

void ZanDictionary::note_Load(const ZELString& askedName, ZanDicPackage& package) {
    if (askedName != package.Name()) _LOADS[std::string(askedName.View())] = &package;
}

ZanDicPackage* ZanDictionary::find_Load(const ZELString& askedName) {
    if (_LOADS.empty()) return nullptr;
    const auto load = _LOADS.find(std::string(askedName.View()));
    return load != _LOADS.end() ? load->second.Get() : nullptr;
}
