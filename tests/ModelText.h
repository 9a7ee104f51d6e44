/// A whole model as text, read through the interfaces: what a package document can carry.
#ifndef MODEL_TEXT_H
#define MODEL_TEXT_H

#include <string>

#include "OXMIDicMgr.h"

/// \returns every loaded package with everything in it, a line for each property, packages in the order of
/// their names and elements in the model's order. Equal models give equal texts.
///
/// Properties that a document leaves out on purpose stand with the value that they have without one: an alias
/// of one character (of a category, one of none), an exposition level or application name of one, a length
/// that is below 1 or belongs to a type without length, the scope of an inverse, the case mode of what is no
/// string, bounds and collection of what has one value only.
std::string ModelText(OXMIDicMgr& manager);

#endif
