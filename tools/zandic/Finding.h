/// What `check` has to say of documents, as values: made by the reader's faults and by the rules, sorted and
/// folded once, then written in any of the formats.
#ifndef ZANDIC_TOOL_FINDING_H
#define ZANDIC_TOOL_FINDING_H

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "ZanDicDiagnostic.h"

namespace tool {

/// A place in a document: line and column count from 1, the column in characters, at an attribute's name or a
/// tag's "<". Line 0: the file as a whole, or nothing where the file is empty too.
struct FilePlace {
    std::string file;
    ZanDicPlace place = {};

    friend bool operator==(const FilePlace& a, const FilePlace& b) {
        return a.place.line == b.place.line && a.place.column == b.place.column && a.file == b.file;
    }
};

/// The other party of a finding: the earlier owner of a UUID, the relationship of a super class, the
/// declaration of a target.
struct FindingNote {
    FilePlace at;      ///< may be nowhere
    std::string text;  ///< without a full stop
};

/// One thing that is wrong.
struct Finding {
    /// Of a row of the table of rules: static storage.
    std::string_view code;
    ZanDicSeverity severity = ZanDicSeverity::Warning;
    FilePlace at;
    /// What is wrong, in one plain sentence without a full stop.
    std::string text;
    /// The element as its author wrote it, from the package on: "Package::Class::attribute". Empty where a
    /// document as a whole is meant.
    std::string element;
    std::vector<FindingNote> notes = {};
    /// The finding would not be there without another one: it is folded under that, or else, where the other
    /// is not told, under nothing. Number of that finding among all, in the order of their making; kNone for
    /// one that stands for itself.
    static constexpr std::size_t kNone = static_cast<std::size_t>(-1);
    std::size_t cause = kNone;
};

using Findings = std::vector<Finding>;

}  // namespace tool

#endif
