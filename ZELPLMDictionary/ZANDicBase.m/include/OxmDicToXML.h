#ifndef OXM_DIC_TO_XML_H
#define OXM_DIC_TO_XML_H

#include "OXMIDicMgr.h"
#include "ZELResult.h"
#include "ZELString.h"
#include "ZanDicExport.h"

/// Writes a loaded package as a package document: what it holds, in the order in which it holds it. The model
/// is not changed. Elements that refer to what is no longer loaded, and characters that XML does not allow,
/// are told by warning lines.
///
/// The document is named by the package's own name and the content kind that it was loaded from, metadata
/// when a program made it. It appears under that name only when it is complete; until then, and when writing
/// fails, an older document stays as it was. The moment of the "last update" comment is the local time, or
/// that of the environment variable SOURCE_DATE_EPOCH.
///
/// \param packageName with or without a content word behind a ".".
/// \param directory where the document goes; it must exist. Null or empty means the first directory of
/// `ZELDictionaryPath` that holds such a document, else the first one.
/// \returns E_FAIL when an argument is missing, no such package is loaded, its name holds a slash, a
/// backslash or a ".", or no directory is known. S_OK otherwise, also when the file could not be written:
/// that is told by an error line only, so look for the file.
ZANDICBASE_API HRESULT OxmDicToXML(OXMIDicMgr* manager, const ZELString* packageName, const char* directory);

#endif
