#ifndef OXM_DIC_TO_EXPRESS_H
#define OXM_DIC_TO_EXPRESS_H

#include "OXMIDicMgr.h"
#include "ZELResult.h"
#include "ZELString.h"
#include "ZanDicExport.h"

/// Writes a loaded package as an EXPRESS schema (ISO 10303-11): one entity for each class, with its simple
/// attributes, relationships, inverses and unique keys. The model is not changed: redefinitions are marked as
/// far as they are known, so ask each class for all its attributes first (`OXMIDicClass::GetAllElements`).
///
/// A class that is neither persistent nor has subclasses, or is an instance, is not written and ends the
/// walk over the classes; a line on standard error names it. The name of the file, "PACKAGE.express", is
/// written to standard error as well. The text appears under it only when it is complete.
///
/// \param packageName with or without a content word behind a ".".
/// \param directory where the text goes; it must exist. Null or empty means the first directory of
/// `ZELDictionaryPath` that holds the package's document, else the first one.
/// \returns S_OK; E_FAIL when an argument is missing, no such package is loaded, its name holds a slash, a
/// backslash or a ".", no directory is known or the file cannot be written, the last three after a line on
/// standard error.
ZANDICBASE_API HRESULT OxmDicToEXPRESS(OXMIDicMgr* manager, const ZELString* packageName,
                                       const char* directory);

#endif
