#ifndef ZANDIC_TOOL_WHY_H
#define ZANDIC_TOOL_WHY_H

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Documents.h"
#include "Finding.h"
#include "OXMIDicAttribute.h"
#include "OXMIDicClass.h"
#include "Session.h"
#include "zandic.hpp"

namespace tool {

/// Something that is named, and where its author wrote it.
struct WhyPlace {
    std::string name;  ///< qualified
    FilePlace at;      ///< maybe the file only, or nothing
};

/// A property in which a redefinition differs from what it redefines.
struct WhyChange {
    std::string_view property;
    std::string before;
    std::string after;
};

/// An attribute that stands in the place of another one.
struct WhyRedefined {
    WhyPlace attribute;
    std::vector<WhyChange> changes;  ///< what the one below makes different
};

/// The block that an attribute is in, seen from a class.
struct WhyBlock {
    enum class Kind {
        Declared,  ///< a tuning document lists the attribute
        Default,   ///< no block that the class sees holds it
        None,      ///< and default blocks hold nothing of its form
    };

    Kind kind = Kind::None;
    std::string name;             ///< the block's plain name; empty unless declared
    std::string owner;            ///< the class that it belongs to
    WhyPlace listed;              ///< the block that lists the attribute, at its list
    std::string listedAs;         ///< the attribute that it lists: another one where that is redefined
    std::vector<WhyPlace> chain;  ///< from the block that the class sees down to the one that lists it
    std::string reason;           ///< one sentence
};

/// An extension that adds attributes to a class or one above it.
struct WhyExtension {
    WhyPlace extension;
    std::string of;  ///< the class that it names
};

/// A class to which a relationship applies.
struct WhyScope {
    WhyPlace of;
    /// Whether it is the class that was asked for or one above it; none where that is an extension, whose
    /// objects are those of other classes.
    std::optional<bool> covers;
};

/// Why an attribute is in a class as it is.
struct Why {
    std::string asked;
    std::string tag;                      ///< of the attribute
    WhyPlace owner;                       ///< the class that was asked for
    WhyPlace attribute;                   ///< its declaration
    WhyPlace declaredIn;                  ///< the class that declares it
    std::vector<WhyPlace> through;        ///< classes between the two, the nearest first
    std::vector<WhyRedefined> redefines;  ///< the nearest first
    WhyBlock block;
    std::vector<WhyExtension> extensions;  ///< of that class
    std::vector<WhyPlace> extends;         ///< where the declaring class is an extension: what it extends
    std::string scopeWord;                 ///< External or Vault; empty: none
    std::vector<WhyScope> scopes;          ///< none: it applies everywhere
};

/// Finds out why \p attribute is in \p owner as it is. Reads the documents of what it names, for the places.
/// Makes the default block of the class where there is none yet.
Why FindOutWhy(const Session& session, Documents& documents, OXMIDicClass& owner,
               OXMIDicAttribute& attribute);

}  // namespace tool

#endif
