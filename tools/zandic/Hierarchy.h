/// The hierarchies of classes and interfaces, walked without calls inside each other: their depth is their
/// authors' choice.
#ifndef ZANDIC_TOOL_HIERARCHY_H
#define ZANDIC_TOOL_HIERARCHY_H

#include <optional>
#include <vector>

#include "OXMIDicClass.h"
#include "zandic.hpp"

namespace tool {

using ClassHandle = zandic::Handle<OXMIDicClass>;

/// One class of a hierarchy.
struct HierarchyNode {
    ClassHandle element;
    int depth = 0;        ///< below the root of the answer, which has 0
    bool isLast = false;  ///< of its siblings
    int below = 0;        ///< how many classes are below it that are left out
};

/// \returns whether an object is a class, an instance, an extension or an interface.
bool IsInHierarchy(OXMIDicElementH& object);

/// \returns such elements of the package, in its order.
std::vector<ClassHandle> HierarchyElements(OXMIDicPackage& package);

/// \returns what the class is derived from directly; null at a root.
ClassHandle AboveOf(OXMIDicClass& element);

/// \returns all that it is derived from, the root first.
std::vector<ClassHandle> ChainAbove(OXMIDicClass& element);

/// Appends the class and all that are derived from it, of every loaded package: each before what is below it.
/// \param depth of the class itself.
/// \param limit how many levels below it are followed; none for all.
void AppendBelow(OXMIDicClass& element, int depth, std::optional<int> limit, bool isLast,
                 std::vector<HierarchyNode>& nodes);

}  // namespace tool

#endif
