/// From a name on the command line to the object; what is not found is told to the session.
#ifndef ZANDIC_TOOL_FIND_H
#define ZANDIC_TOOL_FIND_H

#include <string>
#include <vector>

#include "Names.h"
#include "Session.h"
#include "zandic.hpp"

namespace tool {

/// Loads the package of \p target if need be. \returns null when it is refused.
zandic::Handle<OXMIDicPackage> FindPackage(Session& session, const Target& target);

/// A package as it was asked for.
struct AskedPackage {
    std::string asked;
    zandic::Handle<OXMIDicPackage> package;  ///< null: it was refused
};

/// Loads packages, in order; a name that is none of a package is rejected, and has no entry.
std::vector<AskedPackage> FindPackages(Session& session, const std::vector<std::string>& names);

/// \returns the element of \p target; null when the package has none of that name.
zandic::Handle<OXMIDicElement> FindElement(Session& session, OXMIDicPackage& package, const Target& target);

}  // namespace tool

#endif
