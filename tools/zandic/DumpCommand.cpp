#include "Command.h"
#include "DumpJson.h"
#include "Names.h"

namespace tool {

void RunDump(Session& session, const Options& options, Output& output) {
    bool anyLoaded = false;
    for (const std::string& name : options.names) {
        if (auto wrong = WrongPackageName(name)) {
            session.RejectUse(name, *wrong);
        } else {
            anyLoaded |= session.Load(name);
        }
    }
    // What a refused package left behind is not what was asked for.
    if (anyLoaded) DumpJson(session.Dictionary(), output);
}

}  // namespace tool
