#include "CommandLine.h"

#include <fmt/format.h>

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>
#include <algorithm>
#include <iostream>

#include "Faults.h"
#include "Streams.h"
#include "zandic.hpp"

namespace tool {
namespace {

constexpr const char* kHelpWidthRule = "Options stand before or after the command.";

std::string Text(std::string_view text) { return std::string(text); }

/// The options of all commands.
void AddCommonOptions(CLI::App& app, Options& options) {
    app.set_help_flag("-h,--help", "show this help, or that of a command, and exit");
    app.set_version_flag("--version", Text("zandic " ZANDIC_VERSION), "show the version and exit");
    app.add_option("--path", options.path,
                   "directories of the documents, separated by ':', in place of\n"
                   "the environment variable ZELDictionaryPath; adds up")
        ->type_name("DIRS")
        ->expected(1)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
    app.add_option("--in", options.in, "packages in which 'show' looks for a UUID")
        ->type_name("NAME...")
        ->expected(1, -1);
    app.add_option("--trace-level", options.traceLevel,
                   "how much of its work the dictionary tells: 0 errors,\n"
                   "1 operations, 2 reading, 4 tags, 5 everything")
        ->type_name("N");
    app.add_option("--trace-methods", options.traceMethods,
                   "operations to trace whatever the level, one a line")
        ->type_name("FILE");
    app.add_flag("--quiet", options.quiet, "nothing from the dictionary on standard error");
}

CLI::App* AddCommand(CLI::App& app, const Command& command, Options& options) {
    CLI::App* const added = app.add_subcommand(Text(command.name), Text(command.summary));
    added->add_option("NAME", options.names, Text(command.subjects))->type_name("")->expected(1, -1);
    if (command.needsJson)
        added->add_flag("--json", options.json, "the form to write; there is no other yet");
    added->set_help_flag("-h,--help", "show this help and exit");
    added->footer(Text(command.details) + "\nOptions of every command: see 'zandic --help'.");
    return added;
}

/// A UUID cannot be loaded: where one stands among the values of --in, the names to show begin.
void EndInAtUuid(Options& options) {
    const auto first = std::find_if(options.in.begin(), options.in.end(), [](const std::string& value) {
        return zandic::ParseUuid(value).has_value();
    });
    options.names.insert(options.names.begin(), first, options.in.end());
    options.in.erase(first, options.in.end());
}

/// \returns what is wrong with the options of this command; empty when nothing is.
std::string WrongOptions(const Command& command, const Options& options) {
    if (!options.in.empty() && !command.takesIn) return fmt::format("{} does not know --in", command.name);
    if (options.names.empty()) return "NAME is missing";
    if (command.needsJson && !options.json) return fmt::format("{} needs --json", command.name);
    return "";
}

ExitStatus RejectUse(const std::string& fault, const Command* command) {
    const std::string_view name = command != nullptr ? command->name : "";
    WriteErrorLine(FaultLine(
        {"", {}, fmt::format("{} (see 'zandic {}{}--help')", fault, name, name.empty() ? "" : " ")}));
    return ExitStatus::WrongUse;
}

const Command* FindCommand(const CLI::App& app) {
    const auto parsed = app.get_subcommands();
    if (parsed.empty()) return nullptr;
    const auto commands = Commands();
    const auto found = std::find_if(commands.begin(), commands.end(), [&](const Command& each) {
        return each.name == parsed.front()->get_name();
    });
    return found != commands.end() ? &*found : nullptr;
}

}  // namespace

std::variant<Invocation, ExitStatus> ReadCommandLine(int argc, char** argv) {
    Options options;
    CLI::App app("Loads package documents of the data dictionary and shows what they say.", "zandic");
    app.fallthrough();
    app.require_subcommand(0, 1);
    app.footer(kHelpWidthRule);
    AddCommonOptions(app, options);
    for (const Command& command : Commands()) AddCommand(app, command, options);

    try {
        app.parse(argc, argv);
    } catch (const CLI::Success& request) {
        return app.exit(request) == 0 && std::cout.flush() ? ExitStatus::Done : ExitStatus::Refused;
    } catch (const CLI::ParseError& fault) {
        return RejectUse(fault.what(), FindCommand(app));
    }
    const Command* const command = FindCommand(app);
    if (command == nullptr) return RejectUse("a command is missing", nullptr);
    if (command->takesIn) EndInAtUuid(options);
    if (const std::string fault = WrongOptions(*command, options); !fault.empty())
        return RejectUse(fault, command);
    return Invocation{command, std::move(options)};
}

}  // namespace tool
