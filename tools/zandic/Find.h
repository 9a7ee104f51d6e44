/// From a name on the command line to the object; what is not found is told to the session.
#ifndef ZANDIC_TOOL_FIND_H
#define ZANDIC_TOOL_FIND_H

#include "Names.h"
#include "Session.h"
#include "zandic.hpp"

namespace tool {

/// Loads the package of \p target if need be. \returns null when it is refused.
zandic::Handle<OXMIDicPackage> FindPackage(Session& session, const Target& target);

/// \returns the element of \p target; null when the package has none of that name.
zandic::Handle<OXMIDicElement> FindElement(Session& session, OXMIDicPackage& package, const Target& target);

}  // namespace tool

#endif
