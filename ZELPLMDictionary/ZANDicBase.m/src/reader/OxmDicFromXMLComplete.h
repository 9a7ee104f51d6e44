/// Second pass: references by UUID become links, once everything that they may point at exists.
#ifndef OXM_DIC_FROM_XML_COMPLETE_H
#define OXM_DIC_FROM_XML_COMPLETE_H

#include "ZELResult.h"

class OXMIDicElement;
class ZELVBTXMLNode;
struct ElementNote;
struct Reading;

/// Super class, reference class and commands of a class, then the references of its members.
/// \returns S_OK; E_FAIL when a reference failed, which is reported then. Stops at the first one unless the
/// report says to go on; what was set before stays set.
HRESULT CompleteClass(Reading& reading, const ElementNote& note);

/// The commands of the package.
HRESULT CompletePackage(Reading& reading, const ZELVBTXMLNode& node);

#endif
