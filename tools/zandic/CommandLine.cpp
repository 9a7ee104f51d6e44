#include "CommandLine.h"

#include <fmt/format.h>

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>
#include <algorithm>
#include <charconv>
#include <iostream>
#include <memory>

#include "Faults.h"
#include "Streams.h"
#include "zandic.hpp"

namespace tool {
namespace {

constexpr std::size_t kOptionColumn = 24;

std::string Text(std::string_view text) { return std::string(text); }

/// Help in the words of this tool.
class HelpFormatter final : public CLI::Formatter {
public:
    HelpFormatter() {
        column_width(kOptionColumn);
        label("Positionals", "Names");
    }

    std::string make_usage(const CLI::App* app, std::string) const override {
        const std::string command = app->get_parent() != nullptr ? app->get_name() : "COMMAND";
        return fmt::format("\nUsage: zandic [OPTIONS] {} NAME...\n", command);
    }
};

/// The options of all commands; which of them a command knows is looked at later.
void AddOptions(CLI::App& app, Options& options) {
    app.set_help_flag("-h,--help", "show this help, or that of a command, and exit");
    app.set_version_flag("--version", Text("zandic " ZANDIC_VERSION), "show the version and exit");
    app.add_option("--path", options.path,
                   "directories of the documents, separated by ':', in\n"
                   "place of the variable ZELDictionaryPath; adds up")
        ->type_name("DIRS")
        ->expected(1)
        ->allow_extra_args(false)  // what follows DIRS is no further directory
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
    app.add_option("--in", options.in, "packages in which 'show' looks for a UUID")
        ->type_name("NAME")
        ->expected(1, -1);
    app.add_flag("--json", options.json, "JSON: the form in which 'dump' writes");
    app.add_option("--trace-level", options.traceLevel, "how much the dictionary tells, from 0, errors, to 5")
        ->type_name("N")
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);
    app.add_option("--trace-methods", options.traceMethods, "a list of operations to be told of at any level")
        ->type_name("FILE")
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);
    app.add_flag("--quiet", options.quiet, "nothing from the dictionary on standard error");
}

/// The options of commands that write files; they stand behind the command.
void AddFileOptions(CLI::App& command, Files files, Options& options) {
    if (files == Files::None) return;
    const char* const help = files == Files::ToDirectory
                                 ? "the directory for the documents"
                                 : "the directory for the schemas, else the present one";
    command.add_option("--to", options.to, help)
        ->type_name("DIR")
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);
    if (files == Files::ToAnywhere) {
        command.add_flag("--stdout", options.toOutput, "write the schemas to standard output");
    }
}

void AddCommand(CLI::App& app, const Command& command, Options& options) {
    CLI::App* const added = app.add_subcommand(Text(command.name), Text(command.summary));
    added->add_option("NAME", options.names, Text(command.subjects))->type_name("")->expected(1, -1);
    AddFileOptions(*added, command.files, options);
    added->group("Commands")->set_help_flag("-h,--help", "show this help and exit");
    added->footer(Text(command.details) + "\nOptions of every command: see 'zandic --help'.");
}

/// A UUID cannot be loaded: where one stands among the values of --in, the names to show begin.
void EndInAtUuid(Options& options) {
    const auto first = std::find_if(options.in.begin(), options.in.end(), [](const std::string& value) {
        return zandic::ParseUuid(value).has_value();
    });
    options.names.insert(options.names.begin(), first, options.in.end());
    options.in.erase(first, options.in.end());
}

bool IsNumber(const std::string& text) {
    int number = 0;
    const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), number);
    return fault == std::errc() && end == text.data() + text.size();
}

/// \returns what is wrong with the options of this command; empty when nothing is.
std::string WrongOptions(const Command& command, const Options& options) {
    if (!options.in.empty() && !command.takesIn) return fmt::format("{} does not know --in", command.name);
    if (options.json && !command.needsJson) return fmt::format("{} does not know --json", command.name);
    if (options.traceLevel && !IsNumber(*options.traceLevel)) {
        return fmt::format("--trace-level cannot be '{}'", *options.traceLevel);
    }
    if (options.names.empty()) return "NAME is missing";
    if (command.files == Files::ToDirectory && !options.to) return fmt::format("{} needs --to", command.name);
    if (options.to && options.toOutput) return "--to and --stdout exclude each other";
    if (command.needsJson && !options.json) return fmt::format("{} needs --json", command.name);
    return "";
}

ExitStatus RejectUse(const std::string& fault, const Command* command) {
    const std::string help =
        command != nullptr ? fmt::format("zandic {} --help", command->name) : "zandic --help";
    WriteErrorLine(FaultLine({"", {}, fmt::format("{} (see '{}')", fault, help)}));
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

/// \returns what does not fit the command line, said so that its author finds it there.
std::string FaultOf(const CLI::App& app, const CLI::ParseError& fault) {
    if (dynamic_cast<const CLI::ExtrasError*>(&fault) != nullptr) {
        const std::vector<std::string> extras = app.remaining(true);
        const std::string extra = extras.empty() ? "" : extras.front();
        return fmt::format("there is no {} '{}'", extra.starts_with('-') ? "option" : "command", extra);
    }
    const std::string_view what = fault.what();
    if (dynamic_cast<const CLI::ArgumentMismatch*>(&fault) != nullptr) {
        return fmt::format("{} needs a value", what.substr(0, what.find(':')));
    }
    return Text(what);
}

}  // namespace

std::variant<Invocation, ExitStatus> ReadCommandLine(int argc, char** argv) {
    Options options;
    CLI::App app("Loads package documents of the data dictionary and shows what they say.", "zandic");
    app.fallthrough();
    app.require_subcommand(0, 1);
    app.formatter(std::make_shared<HelpFormatter>());
    app.footer("Options stand before or after the command.");
    AddOptions(app, options);
    for (const Command& command : Commands()) AddCommand(app, command, options);

    try {
        app.parse(argc, argv);
    } catch (const CLI::Success& request) {
        return app.exit(request) == 0 && std::cout.flush() ? ExitStatus::Done : ExitStatus::Refused;
    } catch (const CLI::ParseError& fault) {
        return RejectUse(FaultOf(app, fault), FindCommand(app));
    }
    const Command* const command = FindCommand(app);
    if (command == nullptr) return RejectUse("a command is missing", nullptr);
    if (command->takesIn) EndInAtUuid(options);
    if (const std::string fault = WrongOptions(*command, options); !fault.empty())
        return RejectUse(fault, command);
    return Invocation{command, std::move(options)};
}

}  // namespace tool
