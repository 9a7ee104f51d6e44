/// The names that a user may give, told apart before anything is loaded.
#ifndef ZANDIC_TOOL_NAMES_H
#define ZANDIC_TOOL_NAMES_H

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ZELDbBinary.h"

namespace tool {

/// What a NAME of `show` points at. Either the UUID is set, or the package and what follows it.
struct Target {
    std::string text;  ///< as the user wrote it
    std::optional<ZELDbBinary> uuid;
    std::string package;
    std::string element;  ///< empty: the package itself
    std::string member;   ///< empty: the element itself
};

/// Takes "PACKAGE", "PACKAGE::ELEMENT", "PACKAGE::ELEMENT::MEMBER" or a UUID apart. Only the first two
/// separators count.
Target ParseTarget(std::string_view text);

/// \returns why \p name must not be asked for as a package; none when it may.
std::optional<std::string> WrongPackageName(std::string_view name);

/// \returns why \p target must not be asked for; none when it may. What was meant for a UUID and is none is
/// wrong as well, unless there is a document of that name on \p path.
std::optional<std::string> WrongTarget(const Target& target, std::string_view path);

/// \returns the document on \p path, with its content word, of the package of that UUID; none when there is
/// none. Reads the documents until it is found, and loads nothing.
std::optional<std::string> DocumentOfPackage(const ZELDbBinary& uuid, std::string_view path);

/// \returns the file names of the package documents, of every content word, in the directories of \p path:
/// sorted, each once.
std::vector<std::string> DocumentsOf(std::string_view path);

}  // namespace tool

#endif
