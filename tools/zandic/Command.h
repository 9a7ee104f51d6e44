#ifndef ZANDIC_TOOL_COMMAND_H
#define ZANDIC_TOOL_COMMAND_H

#include <span>
#include <string_view>

#include "Options.h"
#include "Output.h"
#include "Session.h"

namespace tool {

/// Where a command writes its files to.
enum class Files {
    None,
    ToDirectory,  ///< --to, which is needed
    ToAnywhere,   ///< --to, --stdout, or else the present directory
};

/// One command of the tool. The command line, its help and the dispatch are made from the rows.
struct Command {
    std::string_view name;
    std::string_view summary;   ///< one line for the list of commands
    std::string_view subjects;  ///< what NAME may be, one line
    std::string_view details;   ///< the rest of its help
    bool takesIn;               ///< knows --in
    bool needsJson;             ///< writes JSON, and must be asked for it
    Files files;
    void (*run)(Session& session, const Options& options, Output& output);
};

/// \returns all commands, in the order of the help.
std::span<const Command> Commands();

// One source each: LoadCommand.cpp and so on. Each tries every NAME; what fails is told to the session.
void RunLoad(Session& session, const Options& options, Output& output);
void RunShow(Session& session, const Options& options, Output& output);
void RunBlocks(Session& session, const Options& options, Output& output);
void RunDump(Session& session, const Options& options, Output& output);
void RunSave(Session& session, const Options& options, Output& output);
void RunExpress(Session& session, const Options& options, Output& output);

}  // namespace tool

#endif
