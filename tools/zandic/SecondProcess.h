#ifndef ZANDIC_TOOL_SECOND_PROCESS_H
#define ZANDIC_TOOL_SECOND_PROCESS_H

#include <string>
#include <vector>

namespace tool {

/// How another run of this tool ended.
struct SecondRun {
    bool isStarted = false;
    int status = 0;   ///< exit status; 128 and the number of the signal that ended it
    std::string out;  ///< what it wrote to standard output
    std::string err;  ///< to standard error; where it was not started, why
};

/// Runs this tool once more, with nothing on its standard input, and waits for its end.
SecondRun RunAgain(const std::vector<std::string>& arguments);

}  // namespace tool

#endif
