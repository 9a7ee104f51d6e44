/// The children of a package: what each pass does with a tag, one row a tag.
///
/// Each step returns S_OK, or E_FAIL when something in the element was at fault, which is reported then.
#ifndef OXM_DIC_FROM_XML_ELEMENTS_H
#define OXM_DIC_FROM_XML_ELEMENTS_H

#include "ZELResult.h"

class ZELVBTXMLNode;
struct ElementNote;
struct Reading;

/// First pass: makes the element of a tag, fills it, and notes it when later passes have work with it.
HRESULT ReadElement(Reading& reading, const ZELVBTXMLNode& node);

/// Second pass: sets the references of an element.
HRESULT CompleteElement(Reading& reading, const ElementNote& note);

/// The end of the second pass: sets the scopes that were put off.
HRESULT CompletePutOff(Reading& reading);

/// Third pass: checks a class; other elements pass.
HRESULT CheckElement(Reading& reading, const ElementNote& note);

#endif
