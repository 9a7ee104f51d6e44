/// What few attributes have: kept apart from the others.
#ifndef ZAN_DIC_ATTRIBUTE_FIELDS_H
#define ZAN_DIC_ATTRIBUTE_FIELDS_H

#include <vector>

#include "ZanDicAttribute.h"

struct ZanDicAttributeFields : ZanDicRareFields {
    ZELUnicodeString defaultValue{""};
    ZELUnicodeString magnitude{""};
    ZELUnicodeString dbFormat{""};
    ZanDicLink<ZanDicAttribute> inverseOf;                ///< not owning: the relationship of an inverse
    ZanDicLink<ZanDicAttribute> specialized;              ///< not owning: what the attribute redefines
    std::vector<ZanDicLink<ZanDicAttribute>> inversedBy;  ///< not owning: inverses, each as often as noted
};

#endif
