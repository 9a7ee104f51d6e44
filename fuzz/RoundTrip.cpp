// What can be loaded is saved, loaded and saved again: the models are the same but for what documents leave
// out on purpose, or a warning told of what a save left out; the second documents are the same byte for byte.
// EXPRESS schemas are written on the way.

#include <algorithm>
#include <climits>
#include <cstdlib>

#include "DumpJson.h"
#include "FuzzSupport.h"
#include "Normalised.h"
#include "ZanDicObj.h"
#include "zandic.hpp"

namespace {

constexpr std::size_t kMostDocuments = 4;
constexpr std::size_t kLongestName = NAME_MAX - std::string_view(".metadata").size();

std::string Dump() { return tool::DumpText(zandic::Dictionary::Open()); }

bool Load(OXMIDicMgr& manager, const FuzzDirectory& directory, const std::string& package) {
    const ZELString name(package);
    return Succeeded(manager.LoadXml(directory.Path().c_str(), &name, OXMDicCONTENT_metadata));
}

/// Whether files can be named after the packages. Others are not saved.
bool HaveNamesOfFiles(const std::vector<std::string>& packages) {
    return std::none_of(packages.begin(), packages.end(), [](const std::string& name) {
        return name.empty() || name.size() > kLongestName || name.find_first_of("./\\") != name.npos;
    });
}

bool LoadAll(OXMIDicMgr& manager, const FuzzDirectory& directory, const std::vector<std::string>& packages) {
    return std::all_of(packages.begin(), packages.end(),
                       [&](const std::string& name) { return Load(manager, directory, name); });
}

void SaveAll(OXMIDicMgr& manager, const FuzzDirectory& directory, OXMDicPERSISTENT mode) {
    for (const std::string& package : LoadedPackages(manager)) {
        const ZELString name(package);
        const HRESULT rc = manager.SavePackageToDir(directory.Path().c_str(), &name, mode);
        Require(Succeeded(rc), "a loaded package can be saved");
    }
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    return ::setenv("SOURCE_DATE_EPOCH", "951827696",
                    1);  // for the comment that says when a document was saved
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static FuzzDirectory given;
    static FuzzDirectory first;
    static FuzzDirectory second;
    static FuzzDirectory schemas;
    OXMIDicMgr& manager = FuzzManager();
    const int objectsBefore = ZanDicObj::live_Objects();

    auto documents = SplitIntoDocuments({reinterpret_cast<const char*>(data), size}, kMostDocuments);
    std::erase_if(documents, [](const FuzzDocument& document) { return document.extension == "tuning"; });
    given.Fill(documents);
    const bool isLoaded = Load(manager, given, documents.front().package);
    const std::vector<std::string> packages = LoadedPackages(manager);
    if (isLoaded && HaveNamesOfFiles(packages)) {
        first.Clear();
        second.Clear();
        schemas.Clear();
        const std::string loaded = Dump();
        const int warnings = FuzzWarnings();
        SaveAll(manager, first, OXMDicPERSISTENT_Xml);
        const bool isAllSaved = FuzzWarnings() == warnings;
        SaveAll(manager, schemas, OXMDicPERSISTENT_Express);
        Require(Dump() == loaded, "saving changes nothing");
        UnloadAll(manager, objectsBefore);

        Require(LoadAll(manager, first, packages), "what was saved loads");
        const std::string again = Dump();
        SaveAll(manager, second, OXMDicPERSISTENT_Xml);
        Require(!isAllSaved || tool::Normalised(again) == tool::Normalised(loaded),
                "what was saved without a warning loads as it was");
        Require(first.Files() == second.Files(), "the second documents are the first");
    }
    UnloadAll(manager, objectsBefore);
    return 0;
}
