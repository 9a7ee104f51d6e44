/// What the writers need of the model and no interface gives: the stored numbers of enumerated properties
/// (their getters end the process where a number has no word), which links were set and have lost their
/// object, and the content that a package was loaded from.
#ifndef ZAN_DIC_STORED_H
#define ZAN_DIC_STORED_H

#include "OXMDicTypes.h"
#include "ZanDicObj.h"

class IUnknown;
class ZanDicAttribute;

/// The enumerated properties of an attribute.
enum class StoredMode { Aggregation, Access, Case, Scope, Facet, Collection };

/// The attribute behind an interface, for those who ask for several numbers of it. No reference is taken.
class StoredAttribute {
public:
    explicit StoredAttribute(const IUnknown& attribute);

    /// \returns the stored number; 0, which is no property's word, for what is no attribute of this library.
    int Mode(StoredMode mode) const;

private:
    const ZanDicAttribute* _Attribute;  ///< not owning; null for what is no attribute of this library
};

/// The same for one number.
inline int StoredModeOf(const IUnknown& attribute, StoredMode mode) {
    return StoredAttribute(attribute).Mode(mode);
}

/// Whether the object behind \p object is one of this library's own.
bool IsOfThisLibrary(const IUnknown& object);

/// \returns how many links of that name the object behind \p object has lost.
int LostLinksOf(const IUnknown& object, ZanDicObj::LinkName link);

/// \returns the content kind under which a package is saved: the one that it was loaded from.
OXMDicCONTENT StoredContentOf(const IUnknown& package);

#endif
