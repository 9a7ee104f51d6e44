#include <stdio_ext.h>

#include <csignal>
#include <cstdio>
#include <exception>
#include <variant>

#include "Command.h"
#include "CommandLine.h"
#include "Faults.h"
#include "Output.h"
#include "Session.h"
#include "Streams.h"

namespace {

using tool::ExitStatus;

ExitStatus Run(const tool::Invocation& invocation) {
    tool::Output output;
    tool::Session session(invocation.options);
    if (session.Open()) invocation.command->run(session, invocation.options, output);
    output.Flush();
    if (output.Fault()) session.Refuse("standard output", *output.Fault());
    return session.Close();
}

}  // namespace

int main(int argc, char** argv) {
    // What the libraries wrote while they were loaded, before there was a line sink, is no data of the tool.
    __fpurge(stdout);
    // Whoever reads the output may stop before its end: that ends the tool, without a word.
    std::signal(SIGPIPE, SIG_DFL);
    try {
        const auto read = tool::ReadCommandLine(argc, argv);
        const auto* const invocation = std::get_if<tool::Invocation>(&read);
        return static_cast<int>(invocation != nullptr ? Run(*invocation) : std::get<ExitStatus>(read));
    } catch (const std::exception& failure) {
        tool::WriteErrorLine(tool::FaultLine({"", {}, failure.what()}));
        return static_cast<int>(ExitStatus::Refused);
    }
}
