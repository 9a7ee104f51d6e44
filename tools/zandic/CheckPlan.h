/// What `check` is to read, worked out before anything is read.
#ifndef ZANDIC_TOOL_CHECK_PLAN_H
#define ZANDIC_TOOL_CHECK_PLAN_H

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "Finding.h"
#include "ZELHash.h"

namespace tool {

/// One package document.
struct CheckTarget {
    std::string name;  ///< as the reader is asked for it, maybe with a content word
    std::string file;  ///< where it is, as it is shown; empty when there is none
    /// Of the package only the tuning document was asked for: warnings of the package are not.
    bool isForTuning = false;
};

/// Documents that can be in memory together: they are searched in the same directories, and no two are of one
/// package.
struct CheckRound {
    std::string directories;  ///< separated by ":"
    std::vector<CheckTarget> targets = {};
    std::unordered_map<std::string, std::size_t, ZELTextHash> places = {};  ///< of targets, by package
};

/// The rounds of a check, and what was found wrong without reading.
struct CheckPlan {
    std::vector<CheckRound> rounds = {};
    Findings findings = {};

    /// Adds the package of a name without content word: its metadata, or else the kind that there is.
    void AddName(std::string_view name, const std::string& path);

    /// Adds a document by its file: its prerequisites are looked for in its directory, then on \p path. A
    /// name without directory that is not there is looked for on \p path as well.
    void AddFile(std::string_view file, const std::string& path);

    /// Adds every `*.metadata` of \p path; with \p ofEveryKind the documents of all kinds, and a finding for
    /// each that is never found behind another one of its name.
    void AddPath(const std::string& path, bool ofEveryKind);

private:
    void add(const std::string& directories, CheckTarget target);
    void add_Tuning(const std::string& directories, std::string_view package, const std::string& file);
};

/// \returns whether an operand of `check` is a file: it holds a separator, or ends in a content word.
bool IsFileOperand(std::string_view operand);

/// \returns a file's name as findings show it: without "./" in front.
std::string ShownFile(std::string_view file);

}  // namespace tool

#endif
