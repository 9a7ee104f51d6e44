#ifndef ZELXMLORACLES_H
#define ZELXMLORACLES_H

#include <string>
#include <string_view>

#include "ZELXMLEncoding.h"

/// A document as the tokenizer is given it.
struct ZELXMLUtf8 {
    std::string text;     ///< as far as the document is valid in its own encoding
    ZELXMLSource source;  ///< which that is
    bool isValid;
};
ZELXMLUtf8 ZELXMLAsUtf8(std::string_view bytes);

/// Reads \p text with ZELVBTXMLDocument, pugixml and libxml2 and compares: whether libxml2 takes it for
/// well formed, and which elements, attributes and values all three see.
///
/// Not compared, because it differs on purpose: an attribute given twice, encodings that are not read,
/// entities that a document type declaration defines, and what its internal subset says. Nor is what
/// libxml2 is lenient about: a version number "1.", a missing blank behind "<!DOCTYPE", NULs outside the
/// root element.
/// \returns what they disagree about; empty when they agree.
std::string ZELXMLDisagreement(std::string_view text);

#endif
