/// Third pass: relationships that a class redefines.
#ifndef OXM_DIC_FROM_XML_CHECK_H
#define OXM_DIC_FROM_XML_CHECK_H

#include "ZELResult.h"

struct ElementNote;
struct Reading;

/// Checks that each relationship which redefines an inherited one has a target that inherits from the
/// inherited target. \returns S_OK; E_FAIL when one does not, which is reported then.
HRESULT CheckClass(Reading& reading, const ElementNote& note);

#endif
