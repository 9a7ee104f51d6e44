#ifndef OXM_DIC_FROM_XML_TUNING_H
#define OXM_DIC_FROM_XML_TUNING_H

#include "OXMIDicMgr.h"
#include "OXMIDicPackage.h"
#include "ZELResult.h"
#include "ZELString.h"
#include "ZanDicExport.h"

/// Reads the tuning document of a loaded package, when there is one, into attribute blocks, and has the
/// package compute them. Loading a package does this by itself.
///
/// Faults are lines on standard error, whatever the trace settings, and warnings for a diagnostic observer,
/// who is asked whether to go on. Blocks that were made before an error stay in the dictionary for as long as
/// the package does. A null manager, name or package ends the process. One thread.
/// \param packageName the package's own name.
/// \param dirNames directories that are searched for the document, separated by ":".
/// \returns S_OK; S_FALSE when there is no document; E_FAIL.
ZANDICBASE_API HRESULT OxmDicFromXML_Tuning(OXMIDicMgr* manager, const ZELString* packageName,
                                            const char* dirNames, OXMIDicPackage* package);

#endif
