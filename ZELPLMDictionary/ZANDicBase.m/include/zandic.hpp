/// A thin layer for C++ programs over the interfaces of the dictionary: handles that give their reference
/// back, lists for range-for, results that tell what went wrong, getters as values, casts by query.
///
/// Nothing here costs more than the calls that it wraps: no allocation of its own but for the text of a
/// failure, everything inline. It can be mixed with direct calls at any point. Include the header of each
/// interface whose operations you name (`OXMIDicSimple.h` and so on). One thread, as the dictionary itself.
#ifndef ZANDIC_HPP
#define ZANDIC_HPP

#include "zandicDictionary.hpp"
#include "zandicElement.hpp"
#include "zandicHandle.hpp"

#endif
