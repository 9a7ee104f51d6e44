#ifndef OXM_BUILD_FILE_NAME_H
#define OXM_BUILD_FILE_NAME_H

#include "ZELResult.h"
#include "ZanDicExport.h"

/// Builds the full name of a package file, "PACKAGE.EXTENSION" in a directory. Names are taken literally.
/// \param mode 'r' searches the directories of \p path, separated by ":", for the file; 'w' puts \p path and
///             a backslash before the file's name and tests nothing.
/// \param[out] fullName the caller frees it with free(); null when the search found nothing, else
///             untouched on failure.
/// \returns S_OK; E_FAIL when nothing was found, for another mode and for a null argument.
ZANDICBASE_API HRESULT OxmBuildFileName(char mode, const char* path, const char* packageName,
                                        const char* extension, char** fullName);

#endif
