/// Type codes as text.
#ifndef ZAN_DIC_TYPE_NAMES_H
#define ZAN_DIC_TYPE_NAMES_H

#include <string_view>

#include "OXMDicTypes.h"

/// \returns the name of a type code for trace lines; "?" for one outside 1 to 26.
std::string_view ZanDicTypeName(OXMDicTYPE type);

#endif
