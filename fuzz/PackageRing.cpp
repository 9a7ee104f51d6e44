// Several documents in one input, packages that use each other and their tunings: loaded one after the other,
// and unloaded in an order of the input's while the others still refer to them. Whether faults end a load or
// not, the results are the same, faulty tunings apart, until going on has loaded what a faulty package uses
// or, being thorough, refused one that refers to what it does not use; nothing is left at the end.

#include <algorithm>
#include <optional>

#include "DumpJson.h"
#include "FuzzSupport.h"
#include "ZanDicObj.h"
#include "zandic.hpp"

namespace {

constexpr std::size_t kMostDocuments = 8;

/// What became of one package.
struct LoadResult {
    HRESULT rc;
    std::vector<std::string> loaded;  ///< all packages that are loaded then
    bool hasMissedUse = false;        ///< whether it was refused for referring to what it does not use
};

struct Loads {
    std::vector<LoadResult> results;
    bool hasFailedTuning = false;
};

/// \param goesOn whether a load goes on after faults. \param isThorough how a load goes on.
Loads LoadAll(OXMIDicMgr& manager, const FuzzDirectory& directory, const std::vector<FuzzDocument>& documents,
              bool goesOn, bool isThorough) {
    Loads loads;
    for (const FuzzDocument& document : documents) {
        if (document.extension != "metadata") continue;
        std::optional<FuzzObserver> observer;
        if (goesOn) observer.emplace(isThorough);
        const ZELString name(document.package);
        const HRESULT rc = manager.LoadPackageFromDir(directory.Path().c_str(), &name, OXMDicPERSISTENT_Xml);
        loads.results.push_back({rc, LoadedPackages(manager), observer && observer->HasMissedUse()});
        if (observer) loads.hasFailedTuning = loads.hasFailedTuning || observer->HasFailedTuning();
    }
    return loads;
}

/// Requires the same results. \returns whether the same packages are loaded: not once one is refused for what
/// it does not use, or going on also loads what a faulty package uses; then others come too late for their
/// names and UUIDs.
bool RequireSameResults(const Loads& stopping, const Loads& goingOn) {
    return std::equal(stopping.results.begin(), stopping.results.end(), goingOn.results.begin(),
                      [](const LoadResult& stopped, const LoadResult& wentOn) {
                          if (wentOn.hasMissedUse) return false;
                          Require(stopped.rc == wentOn.rc,
                                  "going on after faults changes nothing of the results");
                          const bool isSame = stopped.loaded == wentOn.loaded;
                          Require(isSame || Failed(stopped.rc),
                                  "going on after faults changes nothing of what a good package loads");
                          return isSame;
                      });
}

/// Takes one package after the other away and looks at what the rest has become.
void UnloadOneByOne(OXMIDicMgr& manager, std::uint32_t order) {
    for (auto names = LoadedPackages(manager); !names.empty(); names = LoadedPackages(manager)) {
        const ZELString name(names[order % names.size()]);
        order = order * 1664525U + 1013904223U;
        Require(Succeeded(manager.RemovePackage(&name)), "a loaded package can be unloaded");
        tool::DumpText(zandic::Dictionary::Open());
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static FuzzDirectory directory;
    OXMIDicMgr& manager = FuzzManager();
    const std::string_view input(reinterpret_cast<const char*>(data), size);
    auto documents = SplitIntoDocuments(input, kMostDocuments);
    directory.Fill(documents);

    const int objectsBefore = ZanDicObj::live_Objects();
    const Loads stopping = LoadAll(manager, directory, documents, false, false);
    const std::string loaded = tool::DumpText(zandic::Dictionary::Open());
    UnloadOneByOne(manager, NumberOf(input));
    UnloadAll(manager, objectsBefore);

    const bool isThorough = NumberOf(input) % 2 == 0;
    const Loads goingOn = LoadAll(manager, directory, documents, true, isThorough);
    // A faulty tuning leaves the blocks made before the fault that ended it. Going on leaves more, and their
    // UUIDs are taken for what is loaded later.
    if (!goingOn.hasFailedTuning && RequireSameResults(stopping, goingOn)) {
        Require(tool::DumpText(zandic::Dictionary::Open()) == loaded,
                "going on after faults changes nothing of what is loaded");
    }
    UnloadAll(manager, objectsBefore);
    return 0;
}
