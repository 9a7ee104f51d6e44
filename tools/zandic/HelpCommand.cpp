#include <fmt/format.h>

#include "Command.h"
#include "Help.h"
#include "Nearest.h"

namespace tool {

void RunHelp(Session& session, const Options& options, Output& output) {
    if (options.names.empty()) return output.Write(HelpOnTool());
    const std::string& name = options.names.front();
    if (name == kOptionsTopic) return output.Write(HelpOnOptions());
    if (const Command* const command = FindCommand(name)) return output.Write(HelpOnCommand(*command));
    Nearest nearest(name);
    for (const Command& each : Commands()) nearest.Add(each.name);
    session.RejectUse("", fmt::format("there is no command '{}'{}", name, nearest.Question()));
}

}  // namespace tool
