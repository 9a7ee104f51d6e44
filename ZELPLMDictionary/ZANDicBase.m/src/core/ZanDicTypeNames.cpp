#include "ZanDicTypeNames.h"

#include <iterator>

namespace {

/// By type code.
constexpr std::string_view kTypeNames[] = {
    "UNDEFINED",    "Primitive",         "Category",  "Enum",       "Simple",
    "Class",        "Relationship",      "Inverse",   "Interface",  "Method",
    "Parameter",    "Package",           "BObject",   "Extension",  "BOLink",
    "Unique",       "Command",           "Implement", "Security",   "CommandParameter",
    "Enumerator",   "AttributeBlock",    "RBOClass",  "RBOMapping", "RBORoot",
    "RBOComponent", "RBOPathExpression",
};
static_assert(std::size(kTypeNames) == kZanDicTypeCount);

}  // namespace

std::string_view ZanDicTypeName(OXMDicTYPE type) {
    const int code = type;
    return code >= 1 && code < static_cast<int>(std::size(kTypeNames)) ? kTypeNames[code] : "?";
}
