/// First pass, children of the package: each becomes an element through the package's factory of its tag.
#ifndef OXM_DIC_FROM_XML_ELEMENTS_H
#define OXM_DIC_FROM_XML_ELEMENTS_H

#include <string>

#include "ZELResult.h"

class ZELVBTXMLNode;
struct Reading;

/// Creates and fills the element of a tag, and notes what later passes meet again.
/// \returns S_OK, also for what is skipped; E_FAIL, reported.
HRESULT FillElement(Reading& reading, const ZELVBTXMLNode& node);

/// \returns the line of a tag that the package does not know; each pass writes it.
std::string UnknownTagMessage(const ZELVBTXMLNode& node);

#endif
