/// What few attributes have: kept apart from the others.
#ifndef ZAN_DIC_ATTRIBUTE_FIELDS_H
#define ZAN_DIC_ATTRIBUTE_FIELDS_H

#include <memory>
#include <vector>

#include "ZanDicAttribute.h"
#include "ZanDicRef.h"
#include "ZanDicScope.h"

struct ZanDicAttributeFields : ZanDicRareFields {
    ZanDicAttributeFields() = default;
    ZanDicAttributeFields(const ZanDicAttributeFields& other)
        : ZanDicRareFields(other),
          defaultValue(other.defaultValue),
          magnitude(other.magnitude),
          dbFormat(other.dbFormat),
          inverseOf(other.inverseOf),
          specialized(other.specialized),
          inversedBy(other.inversedBy),
          inversesLost(other.inversesLost),
          scope(other.scope ? new ZanDicScope(*other.scope) : nullptr) {}
    std::unique_ptr<ZanDicRareFields> Copy() const override {
        return std::make_unique<ZanDicAttributeFields>(*this);
    }

    ZELUnicodeString defaultValue{""};
    ZELUnicodeString magnitude{""};
    ZELUnicodeString dbFormat{""};
    ZanDicLink<ZanDicAttribute> inverseOf;                ///< not owning: the relationship of an inverse
    ZanDicLink<ZanDicAttribute> specialized;              ///< not owning: what the attribute redefines
    std::vector<ZanDicLink<ZanDicAttribute>> inversedBy;  ///< not owning: inverses, each as often as noted
    int inversesLost = 0;                                 ///< how many were taken out because they were gone
    ZanDicRef<ZanDicScope> scope;                         ///< null until a class is named
};

#endif
