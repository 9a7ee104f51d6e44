#ifndef ZANDIC_TOOL_OPTIONS_H
#define ZANDIC_TOOL_OPTIONS_H

#include <optional>
#include <string>
#include <vector>

namespace tool {

/// Exit status of the process; the worst of several subjects wins.
enum class ExitStatus {
    Done = 0,      ///< with warnings or not
    Refused = 1,   ///< by the dictionary; or not found; or input and output failed
    WrongUse = 2,  ///< of the command line
};

/// What the command line says, whatever the command. The rows of OptionRow.h say which option sets what.
struct Options {
    std::vector<std::string> names;           ///< the operands
    std::vector<std::string> in;              ///< packages to load beside them
    std::vector<std::string> path;            ///< directories, each maybe several separated by ":"
    std::optional<int> traceLevel;            ///< how much the dictionary tells
    std::optional<std::string> traceMethods;  ///< a file
    std::optional<std::string> to;            ///< the directory for files
    bool toOutput = false;                    ///< standard output takes them
    std::optional<int> depth;                 ///< how many levels, or steps
    std::optional<std::string> kind;          ///< a tag
    std::optional<std::string> type;          ///< a pattern for the name of a type
    std::optional<std::string> refersTo;      ///< an object
    bool attributes = false;                  ///< with the attributes of each class
    std::optional<int> top;                   ///< how many of a list
    bool noTimes = false;                     ///< nothing that is measured
    std::optional<std::string> format;        ///< of a picture, or of the answer of check
    std::optional<std::string> around;        ///< the class in the middle of a picture
    std::optional<int> maxBoxes;              ///< of a picture
    std::optional<int> maxRows;               ///< of a box
    bool check = false;                       ///< nothing is written
    bool json = false;
    bool quiet = false;

    // check
    bool all = false;                          ///< every document of the path
    bool allFaults = false;                    ///< also what only follows from other faults
    bool strict = false;                       ///< warnings count as errors do
    std::optional<std::string> baseline;       ///< a file: faults that are accepted
    std::optional<std::string> writeBaseline;  ///< the same, to be written

    bool Traces() const { return traceLevel.has_value() || traceMethods.has_value(); }
};

}  // namespace tool

#endif
