#ifndef ZANDIC_TOOL_SECOND_PROCESS_H
#define ZANDIC_TOOL_SECOND_PROCESS_H

#include <string>
#include <string_view>
#include <vector>

namespace tool {

/// How a run of another process ended.
struct SecondRun {
    bool isStarted = false;
    bool isMissing = false;  ///< there is no such program
    int status = 0;          ///< exit status; 128 and the number of the signal that ended it
    std::string out;         ///< what it wrote to standard output
    std::string err;         ///< to standard error; where it was not started, why
};

/// Runs this tool once more, with nothing on its standard input, and waits for its end.
SecondRun RunAgain(const std::vector<std::string>& arguments);

/// Runs a program that is found as the shell finds it, with \p input on its standard input, and waits for its
/// end.
SecondRun RunProgram(const std::string& program, const std::vector<std::string>& arguments,
                     std::string_view input);

}  // namespace tool

#endif
