/// Where a package is saved, and whether its name can be the name of a document.
#ifndef ZAN_DIC_SAVE_PLACE_H
#define ZAN_DIC_SAVE_PLACE_H

#include <string>
#include <string_view>

/// The environment variable with the directories in which packages are looked for.
inline constexpr char kSearchPathVariable[] = "ZELDictionaryPath";

/// Whether a document of that name could be asked for: not empty, and without separators of directories or
/// a ".", behind which a content word stands.
bool CanNameADocument(std::string_view packageName);

/// \returns the directory of \p pathList in which the document \p fileName is, else the first one; empty
/// when the list has none.
std::string SaveDirectory(std::string_view pathList, std::string_view fileName);

/// \returns \p directory where one is given; null or empty, the SaveDirectory of the search path, which is
/// empty without one.
std::string SaveDirectoryFor(const char* directory, std::string_view packageName, std::string_view extension);

#endif
