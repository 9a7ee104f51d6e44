#ifndef ZELXMLORACLES_H
#define ZELXMLORACLES_H

#include <string>
#include <string_view>

/// Reads \p text with ZELVBTXMLDocument, pugixml and libxml2 and compares: whether libxml2 takes it for
/// well formed, and which elements, attributes and values all three see.
///
/// Not compared, because it differs on purpose: an attribute given twice, encodings other than UTF-8,
/// entities that a document type declaration defines, and what its internal subset says. Nor is what
/// libxml2 is lenient about: a version number "1.", a missing blank behind "<!DOCTYPE", NULs outside the
/// root element.
/// \returns what they disagree about; empty when they agree.
std::string ZELXMLDisagreement(std::string_view text);

#endif
