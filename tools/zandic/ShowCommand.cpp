#include <vector>

#include "Command.h"
#include "Model.h"
#include "Targets.h"
#include "Views.h"

namespace tool {

void RunShow(Session& session, const Options& options, Output& output) {
    const std::vector<AskedObject> objects = Targets(session, options).Objects();
    AskForAllAttributes(session.Dictionary());
    for (const AskedObject& each : objects) {
        if (&each != &objects.front()) output.Write("\n");
        ShowObject(session.Dictionary(), *each.object, output);
    }
}

}  // namespace tool
