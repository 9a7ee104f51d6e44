/// What tests of the tool share: they run it as a user would, and look at what comes out.
#ifndef TOOL_RUNNER_H
#define TOOL_RUNNER_H

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "ZELTestDirectory.h"

/// How a run of the tool ended.
struct ToolRun {
    int status = -1;  ///< exit status; 128 and the number of the signal that ended it
    std::string out;
    std::string err;
};

/// Runs the tool in an environment without the dictionary's variables, each run a process of its own.
class ToolTest : public ::testing::Test {
protected:
    /// \param environment settings such as "NAME=value" for this run.
    ToolRun Run(const std::vector<std::string>& arguments,
                const std::vector<std::string>& environment = {}) const;

    /// As Run, with a pipe as standard output that nobody reads any more. What comes out is not kept.
    ToolRun RunIntoClosedPipe(const std::vector<std::string>& arguments) const;

    /// Run with the sample dictionary as the path.
    ToolRun OnSample(std::vector<std::string> arguments) const;

    /// Run with this test's own documents as the path.
    ToolRun OnOwn(std::vector<std::string> arguments) const;

    /// Runs a line of the shell, with the tool as "$TOOL" and the sample as "$SAMPLES". \returns its exit
    /// status.
    static int Shell(const std::string& line);

    /// Makes a document of this test: the package tag with the given attributes, around \p content.
    void MakePackage(std::string_view name, std::string_view attributes, std::string_view content) const;

    /// This test's own directory, shown as "own" by WithoutPlaces.
    const TestDirectory& Own() const { return _Own; }

    /// \returns \p text with the directories of this machine named "samples" and "own".
    std::string WithoutPlaces(std::string text) const;

private:
    /// Starts the tool with the given streams and waits for it. \returns its end as in ToolRun.
    static int Spawn(const std::vector<std::string>& arguments, const std::vector<std::string>& settings,
                     int out, int err);

    TestDirectory _Own;
    TestDirectory _Streams;
};

/// \returns the bytes of a file; none where there is no file.
std::string ContentOf(const std::string& path);

/// \returns what must come out: the file of that name in expected/tool.
std::string ExpectedOutput(std::string_view name);

/// \returns \p text with "#" for each number of milliseconds and the blanks before it.
std::string WithoutTimes(const std::string& text);

/// \returns the last line of \p text, without its newline.
std::string LastLine(const std::string& text);

/// \returns how many lines \p text has.
long LinesIn(const std::string& text);

#endif
