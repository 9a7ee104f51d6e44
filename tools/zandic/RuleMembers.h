/// The rules that look at one element and at what it refers to: types that are not set, bounds that
/// contradict each other, references given twice, names that say something else than the reference.
#ifndef ZANDIC_TOOL_RULE_MEMBERS_H
#define ZANDIC_TOOL_RULE_MEMBERS_H

#include "RuleElement.h"

namespace tool {

/// Adds what is wrong with an element, of a package document or a tuning document.
void CheckType(RuleDocument& document, const RuleElement& element);
void CheckBounds(RuleDocument& document, const RuleElement& element);
void CheckRepeatedReferences(RuleDocument& document, const RuleElement& element);
void CheckNames(RuleDocument& document, const RuleElement& element);
void CheckScopeNames(RuleDocument& document, const RuleElement& element);

}  // namespace tool

#endif
