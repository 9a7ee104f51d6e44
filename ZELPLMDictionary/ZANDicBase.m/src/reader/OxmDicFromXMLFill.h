/// First pass: the plain attributes and the members of an element that its package has just made.
///
/// Each handler returns S_OK, or E_FAIL when something in its element was at fault; the faults are
/// reported then. It stops at the first one unless the report says to go on.
#ifndef OXM_DIC_FROM_XML_FILL_H
#define OXM_DIC_FROM_XML_FILL_H

#include "ZELResult.h"

class OXMIDicCategory;
class OXMIDicClass;
class OXMIDicEnum;
class ZELVBTXMLNode;
struct ElementNote;
struct Reading;

/// Attributes, uniques and flags of a class or instance class; notes its references and its members'.
HRESULT FillClass(Reading& reading, const ZELVBTXMLNode& node, OXMIDicClass& element, ElementNote& note);

HRESULT FillEnum(Reading& reading, const ZELVBTXMLNode& node, OXMIDicEnum& element);

HRESULT FillCategory(Reading& reading, const ZELVBTXMLNode& node, OXMIDicCategory& element);

/// What the package itself has: alias, exposition level, and the attributes that it does not know.
HRESULT FillPackage(Reading& reading, const ZELVBTXMLNode& node);

#endif
