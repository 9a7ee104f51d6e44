#ifndef ZANDIC_TOOL_FORMATTED_H
#define ZANDIC_TOOL_FORMATTED_H

#include <string>

#include "ZELVBTXMLNode.h"

namespace tool {

/// \returns the document in the layout in which packages are saved: one element a line, two blanks of
/// indentation for each level, one blank before each attribute, values in double quotes with the escapes of
/// the writer, "/>" for an element without content, UTF-8 without byte order mark, a newline at the end.
///
/// Elements and attributes stay in their order, those given twice included. Comments, processing instructions
/// and character data stay as they are, line ends apart, which become newlines. A comment or instruction that
/// ends a line behind something else stays behind it; every other one gets a line of its own. Where an
/// element holds text, or says xml:space="preserve", no blank is added or taken in everything inside it. The
/// declaration stays as well, but an encoding that it names becomes UTF-8; so does a document type
/// declaration, whose own layout is made that of the writer unless it has declarations inside.
///
/// Of a document that it returned itself it returns the same. Linear; a loop, not a recursion.
/// \param document one that keeps its pieces.
std::string Formatted(const ZELVBTXMLDocument& document);

}  // namespace tool

#endif
