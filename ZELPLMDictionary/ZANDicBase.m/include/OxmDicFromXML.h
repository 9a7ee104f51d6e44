#ifndef OXM_DIC_FROM_XML_H
#define OXM_DIC_FROM_XML_H

#include <span>

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

/// Loads several packages, each as OxmDicFromXML does, in that order, as one load: where an observer of
/// faults asks to go on, each document is read once, also one that fails and is needed by many. Without one
/// the first package that fails is the last that is tried. \param packFileNames names as of OxmDicFromXML;
/// without content word the metadata is meant. \returns S_OK when all are loaded; else E_FAIL.
ZANDICBASE_API HRESULT OxmDicFromXMLAll(OXMIDicMgr* manager, std::span<const ZELString> packFileNames,
                                        const char* dirNames);

#endif
