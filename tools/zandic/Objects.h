/// A walk over everything that a package holds.
#ifndef ZANDIC_TOOL_OBJECTS_H
#define ZANDIC_TOOL_OBJECTS_H

#include <functional>
#include <unordered_map>

#include "ZELDbBinary.h"
#include "zandic.hpp"

namespace tool {

/// Calls \p visit for each element of the package in document order and, behind each, for what belongs to it:
/// attributes, unique keys and own blocks of a class; enumerators; methods and parameters; all below a
/// mapping. The package itself is none of them.
void ForEachObjectOf(OXMIDicPackage& package, const std::function<void(OXMIDicElementH&)>& visit);

/// As ForEachObjectOf, for the members of one element.
void ForEachMemberOf(OXMIDicElement& element, const std::function<void(OXMIDicElementH&)>& visit);

struct UuidHash {
    std::size_t operator()(const ZELDbBinary& uuid) const { return uuid.ComputeHashKey(); }
};

/// By UUID. Its order is another in every run: look things up in it, and walk over something else.
template <class Value>
using UuidMap = std::unordered_map<ZELDbBinary, Value, UuidHash>;

}  // namespace tool

#endif
