// Any bytes as a package document: the reader may refuse them, and then leaves nothing behind.
//
// Bytes behind the first zero are a second document, which the first may use, or its tuning. Each input is
// read three times, stopping at the first fault, going on after all of them, and going on in a thorough way;
// all must come to the same result. Whatever was loaded is dumped and unloaded, after which no object may be
// left.

#include "DumpJson.h"
#include "FuzzSupport.h"
#include "ZanDicObj.h"
#include "ZanDicTraceSettings.h"
#include "zandic.hpp"

namespace {

constexpr std::size_t kMostDocuments = 2;

HRESULT LoadAndUnload(OXMIDicMgr& manager, const FuzzDirectory& directory, const std::string& package) {
    const int objectsBefore = ZanDicObj::live_Objects();
    const ZELString name(package);
    const HRESULT rc = manager.LoadXml(directory.Path().c_str(), &name, OXMDicCONTENT_metadata);
    tool::DumpText(zandic::Dictionary::Open());
    UnloadAll(manager, objectsBefore);
    return rc;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static FuzzDirectory directory;
    OXMIDicMgr& manager = FuzzManager();

    const auto documents = SplitIntoDocuments({reinterpret_cast<const char*>(data), size}, kMostDocuments);
    directory.Fill(documents);
    const std::string& package = documents.front().package;

    const HRESULT stopping = LoadAndUnload(manager, directory, package);
    for (const bool isThorough : {false, true}) {
        const FuzzObserver observer(isThorough);
        ZanDicSetTraceLevel(isThorough ? 0 : 5);
        const HRESULT goingOn = LoadAndUnload(manager, directory, package);
        ZanDicSetTraceLevel(0);
        Require(stopping == goingOn, "going on after faults changes nothing of the result");
    }
    return 0;
}
