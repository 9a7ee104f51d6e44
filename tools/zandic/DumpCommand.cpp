#include <algorithm>

#include "Command.h"
#include "DumpJson.h"
#include "Targets.h"

namespace tool {

void RunDump(Session& session, const Options& options, Output& output) {
    const std::vector<AskedPackage> packages = Targets(session, options).Packages();
    const bool isAnyLoaded = std::any_of(packages.begin(), packages.end(), [](const AskedPackage& each) {
        return static_cast<bool>(each.package);
    });
    // What a refused package left behind is not what was asked for.
    if (isAnyLoaded) DumpJson(session.Dictionary(), output);
}

}  // namespace tool
