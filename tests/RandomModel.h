/// Random models, for properties that hold for every model that a document can carry.
#ifndef RANDOM_MODEL_H
#define RANDOM_MODEL_H

#include "OXMIDicMgr.h"

/// Makes three packages in an initialised, empty dictionary: "Base", "Scope", and "Top", which uses the first
/// and scopes the second and refers to elements of both. Names and texts are hostile to writers. To be called
/// in a property of RapidCheck, which draws the choices.
///
/// Left out is what documents have no word for: empty names, characters that XML does not allow, visibility
/// of what is no class or attribute, exposition levels of enumerations, categories and keys, stored numbers
/// without word, an access mode None and scopes of an inverse, inversions that are set on one side, an
/// injective flag set after the target, free attributes of relationships.
void MakeRandomModel(OXMIDicMgr& manager);

#endif
