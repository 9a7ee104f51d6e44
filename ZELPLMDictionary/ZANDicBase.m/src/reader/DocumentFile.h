/// Where a document is, and where its package begins.
#ifndef DOCUMENT_FILE_H
#define DOCUMENT_FILE_H

#include <string>

#include "ZELResult.h"
#include "ZELString.h"
#include "ZELVBTXMLNode.h"

/// \param[out] result of the search, when asked for.
/// \returns the file that the directories have for a package and a content word; empty when none.
std::string FindDocument(const char* dirNames, const ZELString& package, const ZELString& extension,
                         HRESULT* result = nullptr);

/// \returns the root when it is a package, else its first child that is one; null when there is none.
ZELVBTXMLNode FindPackageNode(const ZELVBTXMLDocument& document);

#endif
