/// The table of rules: everything that `check` can say has a row. `explain`, the page of the rules and the
/// descriptions in SARIF are made from it.
#ifndef ZANDIC_TOOL_RULES_H
#define ZANDIC_TOOL_RULES_H

#include <span>
#include <string_view>
#include <vector>

#include "ZanDicDiagnostic.h"

namespace tool {

/// One rule. All texts are plain UTF-8, without a full stop at the end of a title, with full sentences in
/// the words, and no line longer than 76 characters.
///
/// An example is what stands between the tags of a package named Parts. One that begins with "<Package" is
/// the whole of Parts.metadata. One of several files has a line "== NAME.WORD" in front of each,
/// Parts.metadata among them, each a whole document. Tests read all examples: the wrong one gives its code,
/// and the right one gives no finding at all.
struct Rule {
    std::string_view code;    ///< stable: lower-case words with dashes between
    ZanDicSeverity severity;  ///< what it is as a rule; where a place decides otherwise, the words say so
    std::string_view title;   ///< what is wrong, one line
    std::string_view words;   ///< the rule, why it is there and what to do: lines separated by newlines
    std::string_view wrong;   ///< an example that breaks it
    std::string_view right;   ///< the same, mended
};

/// The rules of reading, in the order of the reader's codes, then those of the search for documents.
std::span<const Rule> RulesOfReading();

/// The rules about what a load accepts: warnings.
std::span<const Rule> RulesOfModelling();

/// \returns the rows of all tables, sorted by code.
std::vector<const Rule*> AllRules();

/// \returns the row of that code; null when there is none.
const Rule* FindRule(std::string_view code);

}  // namespace tool

#endif
