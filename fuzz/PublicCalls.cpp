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

#include "CallTable.h"
#include "Caller.h"
#include "FuzzSupport.h"
#include "GuardedFileCalls.h"
#include "OXMIDicPackage.h"
#include "ZanDicObj.h"
#include "ZanDicTraceSettings.h"

namespace {

namespace fs = std::filesystem;

/// How many calls of the table there are to one of the other steps.
constexpr std::size_t kCallsToStep = 6;

using Step = void (Caller::*)();
constexpr Step kSteps[] = {&Caller::LetGoOfOne, &Caller::Ask, &Caller::Construct};

/// The documents that calls find: those of the tests that load.
class Documents {
public:
    Documents() {
        for (const auto& entry : fs::directory_iterator(ZANDIC_TEST_DATA "/good")) {
            const std::string name = entry.path().filename().string();
            _Directory.Write(name, FuzzFileText(entry.path().string()));
            if (!name.ends_with(".tuning")) _PACKAGES.push_back(name.substr(0, name.find('.')));
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

void MakeCall(Caller& caller, const CallRow& row, bool tells) {
    if (row.interface == OXMIDicMgr::ClassId()) {
        if (tells) std::fprintf(stderr, "%.*s\n", static_cast<int>(row.Name().size()), row.Name().data());
        row.call(caller, caller.Manager());
    } else if (IUnknown* const face = caller.Pick(row.interface)) {
        if (tells) std::fprintf(stderr, "%.*s\n", static_cast<int>(row.Name().size()), row.Name().data());
        row.call(caller, *face);
        face->Release();
    }
    caller.TakeLists();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const Documents documents;
    static FuzzDirectory writable;
    static const bool tells = std::getenv("ZANDIC_FUZZ_TELL") != nullptr;
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
        const std::span<const CallRow> rows = CallRows();
        while (!caller.Bytes().IsAtEnd()) {
            const unsigned drawn = caller.Bytes().Word();
            if (drawn % (kCallsToStep + 1) == kCallsToStep) {
                const std::size_t step = drawn / (kCallsToStep + 1) % std::size(kSteps);
                if (tells) std::fprintf(stderr, "step %zu\n", step);
                (caller.*kSteps[step])();
            } else {
                MakeCall(caller, rows[drawn / (kCallsToStep + 1) % rows.size()], tells);
            }
        }
        if (files.HasWritten()) writable.Clear();
    }
    manager.End();
    ZanDicSetTraceLevel(0);
    Require(ZanDicObj::live_Objects() == objectsBefore, "every object is gone");
    return 0;
}
