/// Attributes in one line.
#ifndef ZANDIC_TOOL_ATTRIBUTE_TEXT_H
#define ZANDIC_TOOL_ATTRIBUTE_TEXT_H

#include <string>

#include "Views.h"

namespace tool {

/// \returns what types the attribute, in the width of a column: "String(24)", "-> Part (External)",
/// "<- Usage::Component"; "?" where there is nothing.
std::string AttributeTypeText(const View& view, OXMIDicAttribute& attribute);

/// \returns name, type and how many values: "Mass: Double 0..1".
std::string AttributeText(const View& view, OXMIDicAttribute& attribute);

}  // namespace tool

#endif
