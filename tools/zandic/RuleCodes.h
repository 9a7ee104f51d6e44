/// The codes of the rules about what a load accepts, once: the table of rules and the rules themselves take
/// them from here. What the reader tells as well has the reader's code (ZanDicDiagnosticName).
#ifndef ZANDIC_TOOL_RULE_CODES_H
#define ZANDIC_TOOL_RULE_CODES_H

#include <string_view>

namespace tool::rule {

inline constexpr std::string_view kContradictoryBounds = "contradictory-bounds";
inline constexpr std::string_view kEmptyBlock = "empty-block";
inline constexpr std::string_view kHiddenFromExpress = "hidden-from-express";
inline constexpr std::string_view kMalformedUuid = "malformed-uuid";
inline constexpr std::string_view kMandatoryCycle = "mandatory-cycle";
inline constexpr std::string_view kNameDisagrees = "name-disagrees";
inline constexpr std::string_view kOneSidedInverse = "one-sided-inverse";
inline constexpr std::string_view kRepeatedReference = "repeated-reference";
inline constexpr std::string_view kReservedInExpress = "reserved-in-express";
inline constexpr std::string_view kSameNameInScope = "same-name-in-scope";
inline constexpr std::string_view kSkippedMember = "skipped-member";
inline constexpr std::string_view kTooLongForExpress = "too-long-for-express";
inline constexpr std::string_view kUnnamedPackage = "unnamed-package";
inline constexpr std::string_view kUnreadAttribute = "unread-attribute";
inline constexpr std::string_view kUntyped = "untyped";
inline constexpr std::string_view kUnusedPackage = "unused-package";

}  // namespace tool::rule

#endif
