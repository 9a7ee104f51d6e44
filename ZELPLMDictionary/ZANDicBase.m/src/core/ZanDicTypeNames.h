/// Type codes as text.
#ifndef ZAN_DIC_TYPE_NAMES_H
#define ZAN_DIC_TYPE_NAMES_H

#include <string_view>

#include "OXMDicTypes.h"

/// How many type codes there are, 0 included: the size of a table by type code.
inline constexpr int kZanDicTypeCount = OXMDicTYPE_RBOPathExpression + 1;

/// \returns the name of a type code for trace lines; "?" for one that is none.
std::string_view ZanDicTypeName(OXMDicTYPE type);

#endif
