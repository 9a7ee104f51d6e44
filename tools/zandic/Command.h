#ifndef ZANDIC_TOOL_COMMAND_H
#define ZANDIC_TOOL_COMMAND_H

#include <span>
#include <string_view>

#include "OptionRow.h"
#include "Options.h"
#include "Output.h"
#include "Session.h"

namespace tool {

/// What a command is for, in the order of the help. The words are those of GroupWord.
enum class Group { Look, Check, Draw, Write, Help };

/// What stands behind a command.
struct Operands {
    std::string_view label;  ///< in the help; empty: nothing
    std::string_view help;
    bool isNeeded = false;  ///< at least one
    bool isSingle = false;  ///< at most one
};

/// One command of the tool. The command line, the help, the completion of shells and the manual page are
/// made from the rows.
struct Command {
    std::string_view name;
    Group group;
    std::string_view summary;  ///< for the list of commands: with its indentation one line
    Operands operands;
    std::span<const OptionRow> options;  ///< beside those that every command has
    std::string_view details;            ///< the rest of its help: paragraphs, a line each
    void (*run)(Session& session, const Options& options, Output& output);

    /// \returns what is wrong with options that are right one by one; empty when nothing is. May be null.
    std::string_view (*wrong)(const Options& options) = nullptr;
};

/// \returns all commands, in the order of the help.
std::span<const Command> Commands();

/// \returns the command of that name; null when there is none.
const Command* FindCommand(std::string_view name);

/// \returns the word of a group, for the help.
std::string_view GroupWord(Group group);

// One source each: LoadCommand.cpp and so on. Each tries every NAME; what fails is told to the session.
void RunLoad(Session& session, const Options& options, Output& output);
void RunShow(Session& session, const Options& options, Output& output);
void RunTree(Session& session, const Options& options, Output& output);
void RunFind(Session& session, const Options& options, Output& output);
void RunStats(Session& session, const Options& options, Output& output);
void RunBlocks(Session& session, const Options& options, Output& output);
void RunDump(Session& session, const Options& options, Output& output);
void RunSave(Session& session, const Options& options, Output& output);
void RunExpress(Session& session, const Options& options, Output& output);
void RunCheck(Session& session, const Options& options, Output& output);
void RunExplain(Session& session, const Options& options, Output& output);
void RunWhy(Session& session, const Options& options, Output& output);
void RunGraph(Session& session, const Options& options, Output& output);
void RunFmt(Session& session, const Options& options, Output& output);
void RunCompletion(Session& session, const Options& options, Output& output);
void RunHelp(Session& session, const Options& options, Output& output);

/// \returns what is wrong with options of `check` that are right one by one.
std::string_view WrongCheck(const Options& options);

}  // namespace tool

#endif
