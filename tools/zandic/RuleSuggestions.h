/// What somebody may have meant who wrote a word that the documents do not know.
#ifndef ZANDIC_TOOL_RULE_SUGGESTIONS_H
#define ZANDIC_TOOL_RULE_SUGGESTIONS_H

#include <string>
#include <string_view>

#include "ZANDicTags.h"
#include "ZanDicDiagnostic.h"

namespace tool {

/// \returns "; did you mean A?" with the attributes of the tag that are nearest; empty when none is near.
std::string SuggestAttribute(const ZANDicFormat::TagRow& tag, std::string_view name);

/// \returns the same of the words of an attribute; "; its words are A and B" when none is near.
std::string SuggestWord(const ZANDicFormat::AttributeRow& row, std::string_view word);

/// \returns the same of the tags that may stand inside another; of all tags when \p parent is null.
std::string SuggestTag(const ZANDicFormat::TagRow* parent, std::string_view tag);

/// \returns what belongs behind the reason of a fault that the reader tells; empty for other faults than
/// words that it does not know.
std::string SuggestionFor(const ZanDicDiagnostic& fault);

}  // namespace tool

#endif
