#ifndef OXM_DIC_FROM_XML_H
#define OXM_DIC_FROM_XML_H

#include "OXMDicTypes.h"
#include "OXMIDicMgr.h"
#include "ZELResult.h"
#include "ZELString.h"
#include "ZanDicExport.h"

/// Loads a package from its document, and before it every package that it uses.
///
/// A package that is loaded already is not read again. A failed load leaves nothing of the package and the
/// registry as it was; the packages that it uses stay loaded. One thread.
/// \param packFileName name of the package, maybe followed by "." and the content word of the document.
/// \param dirNames directories that are searched for documents, separated by ":".
/// \param content the document that a name without content word means.
/// \returns S_OK; E_FAIL.
ZANDICBASE_API HRESULT OxmDicFromXML(OXMIDicMgr* manager, const ZELString* packFileName, const char* dirNames,
                                     OXMDicCONTENT content);

#endif
