// A sequence of public calls. The input says which operation of which interface is called of which object,
// with what arguments; which interfaces are kept and which are given back; and when elements are removed,
// packages unloaded and loaded again, and files written. Whatever the order, no call may do harm, and nothing
// is left at the end.
//
// ZANDIC_FUZZ_TELL in the environment writes the name of every call to standard error.

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <iterator>
#include <span>

#include "CallTable.h"
#include "Caller.h"
#include "FuzzSupport.h"
#include "GuardedFileCalls.h"
#include "OXMIDicElementH.h"
#include "OXMIDicPackage.h"
#include "ZanDicObj.h"
#include "ZanDicTraceSettings.h"

namespace {

namespace fs = std::filesystem;

/// The rows of one interface.
using Rows = std::span<const CallRow>;

const std::vector<Rows>& RowsByInterface() {
    static const std::vector<Rows> interfaces = [] {
        std::vector<Rows> made;
        Rows rest = CallRows();
        while (!rest.empty()) {
            const auto end = std::find_if_not(rest.begin(), rest.end(), [&](const CallRow& row) {
                return row.interface == rest.front().interface;
            });
            made.push_back(rest.first(static_cast<std::size_t>(end - rest.begin())));
            rest = rest.subspan(made.back().size());
        }
        return made;
    }();
    return interfaces;
}

/// The documents that calls find: those of the tests that load.
class Documents {
public:
    Documents() {
        for (const auto& entry : fs::directory_iterator(ZANDIC_TEST_DATA "/good")) {
            const std::string name = entry.path().filename().string();
            _Directory.Write(name, FuzzFileText(entry.path().string()));
            const std::size_t dot = name.find('.');
            if (name.ends_with(".metadata")) {
                _PACKAGES.push_back(name.substr(0, dot));
            } else if (!name.ends_with(".tuning")) {
                _PACKAGES.push_back(name);
            }
        }
        std::sort(_PACKAGES.begin(), _PACKAGES.end());
    }

    const std::string& Path() const { return _Directory.Path(); }
    const std::vector<std::string>& Packages() const { return _PACKAGES; }

private:
    FuzzDirectory _Directory;
    std::vector<std::string> _PACKAGES;
};

/// Loads what the first bytes say, so that there is something to call.
void Begin(Caller& caller, const Documents& documents) {
    const unsigned char settings = caller.Bytes().Byte();
    ZanDicSetTraceLevel(settings % 8 == 7 ? 5 : 0);
    for (std::size_t count = caller.Bytes().Below(3); count > 0; --count) {
        const std::string& package = documents.Packages()[caller.Bytes().Below(documents.Packages().size())];
        const ZELString name(package);
        caller.Manager().LoadPackageFromDir(documents.Path().c_str(), &name, OXMDicPERSISTENT_Xml);
        OXMIDicPackage* found = nullptr;
        if (Succeeded(caller.Manager().GetPackage(&name, &found))) caller.Take(found);
    }
}

void MakeCall(Caller& caller, const CallRow& row, IUnknown& face) {
    static const bool tells = std::getenv("ZANDIC_FUZZ_TELL") != nullptr;
    if (tells) std::fprintf(stderr, "%.*s\n", static_cast<int>(row.Name().size()), row.Name().data());
    row.call(caller, face);
    caller.TakeLists();
}

/// Any operation of the manager.
void CallManager(Caller& caller) {
    const Rows& rows = RowsByInterface().front();
    MakeCall(caller, rows[caller.Bytes().Below(rows.size())], caller.Manager());
}

/// Any operation of an object that is held.
void CallObject(Caller& caller) {
    const std::vector<Rows>& interfaces = RowsByInterface();
    IUnknown* const object = caller.Pick(OXMIDicElementH::ClassId());
    const std::size_t start = caller.Bytes().Below(interfaces.size());
    const std::size_t operation = caller.Bytes().Byte();
    if (object == nullptr) return CallManager(caller);
    for (std::size_t step = 0; step < interfaces.size(); ++step) {
        const Rows& rows = interfaces[(start + step) % interfaces.size()];
        void* face = nullptr;
        if (Failed(object->QueryInterface(rows.front().interface, &face))) continue;
        MakeCall(caller, rows[operation % rows.size()], *static_cast<IUnknown*>(face));
        static_cast<IUnknown*>(face)->Release();
        break;
    }
    object->Release();
}

/// What an input takes as its next step: objects are called most.
constexpr void (*kSteps[])(Caller&) = {
    CallObject,
    CallObject,
    CallObject,
    CallObject,
    CallObject,
    CallObject,
    CallObject,
    CallManager,
    CallManager,
    [](Caller& caller) { caller.LetGoOfOne(); },
    [](Caller& caller) { caller.Ask(); },
    [](Caller& caller) { caller.Construct(); },
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const Documents documents;
    static FuzzDirectory writable;
    OXMIDicMgr& manager = FuzzManager();
    manager.End();
    const int objectsBefore = ZanDicObj::live_Objects();
    manager.SetLoadingMode(OXMDicPERSISTENT_Xml);
    manager.Init(0);
    {
        GuardedFileCalls files(writable.Path());
        Caller caller({reinterpret_cast<const char*>(data), size}, manager, documents.Path(),
                      documents.Packages(), writable.Path());
        Begin(caller, documents);
        while (!caller.Bytes().IsAtEnd()) kSteps[caller.Bytes().Below(std::size(kSteps))](caller);
        if (files.HasWritten()) writable.Clear();
    }
    manager.End();
    ZanDicSetTraceLevel(0);
    Require(ZanDicObj::live_Objects() == objectsBefore, "every object is gone");
    return 0;
}
