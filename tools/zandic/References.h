/// Who refers to whom in the loaded packages: every link of the model, in one walk.
#ifndef ZANDIC_TOOL_REFERENCES_H
#define ZANDIC_TOOL_REFERENCES_H

#include <functional>
#include <string_view>

#include "zandic.hpp"

namespace tool {

/// How one object refers to another. The words are those of ReferenceWord and ReferencePhrase.
enum class ReferenceKind {
    Subclass,  ///< a class or interface to what it is derived from
    Instance,  ///< an instance to its reference
    Type,      ///< a simple attribute to what types it
    Target,    ///< a relationship or inverse to the class that it points at
    Inverse,   ///< an inverse to the relationship that it inverts
    Redefinition,
    Scope,      ///< a relationship to a class that it applies to
    Extension,  ///< an extension to a class that it extends
    Category,   ///< an object to a category of it
    Parameter,  ///< a parameter to its type
    Mapping,    ///< a mapping to the RBO class that it maps
    Base,       ///< a root or component to its base class
    Path,       ///< a path expression to its target
    Key,        ///< a unique key to an attribute
    Block,      ///< a block to an attribute that it holds, its own or its father's
    Father,     ///< a block to the one that it extends
    Use,        ///< a package to one that it uses
    ScopeUse,   ///< a package to one whose scopes it uses
};

/// One link; the objects live during the call that is told.
struct Reference {
    ReferenceKind kind;
    OXMIDicElementH& from;
    OXMIDicElementH& to;
};

/// \returns the word of a kind, as in "target".
std::string_view ReferenceWord(ReferenceKind kind);

/// \returns what somebody who refers does with the other, as in "points at it".
std::string_view ReferencePhrase(ReferenceKind kind);

/// Calls \p visit for every link: packages, elements and members in the order of the model. Linear in the
/// model. The classes must have been asked for all attributes, else redefinitions are missing.
void ForEachReference(const zandic::Dictionary& dictionary,
                      const std::function<void(const Reference&)>& visit);

}  // namespace tool

#endif
