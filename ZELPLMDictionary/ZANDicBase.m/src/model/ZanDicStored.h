/// What the writers need of the model and no interface gives: the stored numbers of enumerated properties
/// (their getters end the process where a number has no word), which links were set and have lost their
/// object, and the content that a package was loaded from.
#ifndef ZAN_DIC_STORED_H
#define ZAN_DIC_STORED_H

#include "OXMDicTypes.h"
#include "ZanDicObj.h"

class IUnknown;

/// The enumerated properties of an attribute.
enum class StoredMode { Aggregation, Access, Case, Scope, Facet, Collection };

/// \returns the number that the attribute behind \p attribute stores; 0, which is no property's word, for an
/// object that is no attribute of this library.
int StoredModeOf(const IUnknown& attribute, StoredMode mode);

/// \returns how many links of that name the object behind \p object has lost.
int LostLinksOf(const IUnknown& object, ZanDicObj::LinkName link);

/// \returns the content kind under which a package is saved: the one that it was loaded from.
OXMDicCONTENT StoredContentOf(const IUnknown& package);

#endif
