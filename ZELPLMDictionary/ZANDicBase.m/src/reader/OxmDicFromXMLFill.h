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
class OXMIDicInterface;
class OXMIDicRBOClass;
class OXMIDicRBOMapping;
class ZELVBTXMLNode;
struct ElementNote;
struct Reading;

/// Attributes, uniques and flags of a class, instance class or extension; notes its references and its
/// members'.
HRESULT FillClass(Reading& reading, const ZELVBTXMLNode& node, OXMIDicClass& element, ElementNote& note);

HRESULT FillEnum(Reading& reading, const ZELVBTXMLNode& node, OXMIDicEnum& element);

HRESULT FillCategory(Reading& reading, const ZELVBTXMLNode& node, OXMIDicCategory& element);

/// Methods and their parameters; notes the super interface.
HRESULT FillInterface(Reading& reading, const ZELVBTXMLNode& node, OXMIDicInterface& element,
                      ElementNote& note);

HRESULT FillRBOClass(Reading& reading, const ZELVBTXMLNode& node, OXMIDicRBOClass& element);

/// Roots, components and path expressions, nested to any depth; notes each with its reference.
HRESULT FillRBOMapping(Reading& reading, const ZELVBTXMLNode& node, OXMIDicRBOMapping& element,
                       ElementNote& note);

/// What the package itself has: alias, exposition level, and the attributes that it does not know.
HRESULT FillPackage(Reading& reading, const ZELVBTXMLNode& node);

#endif
