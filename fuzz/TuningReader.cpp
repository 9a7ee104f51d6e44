// Any bytes as the tuning document of a good package: a fault in it is no fault of the package, which loads
// all the same. What was read is dumped, read once more, and unloaded; no object is left.

#include "DumpJson.h"
#include "FuzzSupport.h"
#include "OXMIDicPackage.h"
#include "OxmDicFromXMLTuning.h"
#include "ZanDicObj.h"
#include "zandic.hpp"

namespace {

constexpr char kTuned[] = "Tuned";

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const FuzzDirectory directory;
    static OXMIDicMgr& manager = [&]() -> OXMIDicMgr& {
        directory.Write("Tuned.metadata", FuzzFileText(ZANDIC_TEST_DATA "/good/Tuned.metadata"));
        return FuzzManager();
    }();
    directory.Write("Tuned.tuning", {reinterpret_cast<const char*>(data), size});

    const int objectsBefore = ZanDicObj::live_Objects();
    const ZELString name(kTuned);
    for (const bool goesOn : {false, true}) {
        FuzzObserver* const observer = goesOn ? new FuzzObserver(true) : nullptr;
        Require(Succeeded(manager.LoadXml(directory.Path().c_str(), &name, OXMDicCONTENT_metadata)),
                "a package loads whatever its tuning is");
        delete observer;
        tool::DumpText(zandic::Dictionary::Open());

        OXMIDicPackage* package = nullptr;
        Require(Succeeded(manager.GetPackage(&name, &package)), "a package that was loaded is found");
        OxmDicFromXML_Tuning(&manager, &name, directory.Path().c_str(), package);
        tool::DumpText(zandic::Dictionary::Open());
        package->Release();
        UnloadAll(manager, objectsBefore);
    }
    return 0;
}
