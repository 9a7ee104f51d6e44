/// What the writers need of the model and no interface gives: the values of attributes, read in place (they
/// are nearly all of a document, and the getters of enumerated ones end the process where a number has no
/// word), which links were set and have lost their object, and the content that a package was loaded from.
#ifndef ZAN_DIC_STORED_H
#define ZAN_DIC_STORED_H

#include "OXMDicTypes.h"
#include "ZanDicAttribute.h"
#include "ZanDicAttributeFields.h"
#include "ZanDicClass.h"
#include "ZanDicObj.h"
#include "ZanDicPrimitive.h"
#include "ZanHashList.h"

class IUnknown;

/// An attribute's values, in place. No reference is taken: the attribute has to live as long as its view.
class StoredAttribute {
public:
    explicit StoredAttribute(const ZanDicAttribute& attribute) : _Attribute(attribute) {}

    OXMDicTYPE Kind() const { return _Attribute.Type(); }
    const ZELString& Name() const { return _Attribute.Name(); }
    const ZELDbBinary& Uuid() const { return _Attribute.Uuid(); }
    int Visibility() const { return _Attribute.get_Visibility(); }
    bool IsMandatory() const { return _Attribute._Mandatory == 1; }
    bool IsMultiValuated() const { return _Attribute._MultiValuated == 1; }
    bool IsSensitive() const { return _Attribute._Sensitive == 1; }
    bool IsInjective() const { return _Attribute._Injective == 1; }
    int MaxLength() const { return _Attribute._MaxLength; }
    int Lower() const { return _Attribute._Lower; }
    int Upper() const { return _Attribute._Upper; }

    /// The stored numbers of enumerated properties, whatever they are.
    int Aggregation() const { return _Attribute.stored_Mode(ZanDicAttribute::kAggregation); }
    int Access() const { return _Attribute.stored_Mode(ZanDicAttribute::kAccess); }
    int Case() const { return _Attribute.stored_Mode(ZanDicAttribute::kCase); }
    int Scope() const { return _Attribute.stored_Mode(ZanDicAttribute::kScope); }
    int Facet() const { return _Attribute.stored_Mode(ZanDicAttribute::kFacet); }
    int Collection() const { return _Attribute.stored_Mode(ZanDicAttribute::kCollection); }

    /// What types the attribute: primitive, enumeration or target class; null without a type.
    const ZanDicElement* Type() const { return _Attribute._TypeElement.Get(); }
    /// The kind of the primitive that types the attribute; UNDEFINED for any other type.
    OXMDicPRIMITIVEType Primitive() const {
        const ZanDicElement* const type = Type();
        if (type == nullptr || type->Type() != OXMDicTYPE_Primitive) return OXMDicPRIMITIVEType_UNDEFINED;
        return type->get_type() == ZanDicObj::_type_Primitive
                   ? static_cast<const ZanDicPrimitive*>(type)->Primitive()
                   : OXMDicPRIMITIVEType_UNDEFINED;
    }
    bool HasClassAsType() const {
        const ZanDicElement* const type = Type();
        return type != nullptr && (type->Type() == OXMDicTYPE_Class || type->Type() == OXMDicTYPE_Extension);
    }

    /// What few attributes have; null for the others.
    const ZanDicAttributeFields* Rare() const {
        return static_cast<const ZanDicAttributeFields*>(_Attribute.rare());
    }

    /// Whether the attribute is known to redefine one of a super class.
    bool IsSpecialized() const { return Rare() != nullptr && Rare()->specialized; }
    /// The relationship that an inverse inverts; null where none is set.
    const ZanDicAttribute* Inverted() const { return Rare() != nullptr ? Rare()->inverseOf.Get() : nullptr; }

    int LostLinks(ZanDicObj::LinkName link) const {
        return ZanDicLinkBase::LostCount() == 0 ? 0 : _Attribute.lost_Links(link);
    }

    /// Let the processor fetch, long before it is read, what types the attribute: first the place of the
    /// link, then the object, then its name. Each has to have been fetched before the next is asked for.
    /// Calls of functions that only prefetch are dropped by the compiler: they have to be in line.
    [[gnu::always_inline]] void PrefetchTypePlace() const { _Attribute._TypeElement.PrefetchPlace(); }
    [[gnu::always_inline]] void PrefetchType() const {
        const ZanDicElement* const type = Type();
        if (type == nullptr) return;
        __builtin_prefetch(type);
        __builtin_prefetch(&type->Uuid());
    }
    [[gnu::always_inline]] void PrefetchTypeName() const {
        if (const ZanDicElement* const type = Type()) __builtin_prefetch(type->Name().ConvertToChar());
    }

private:
    const ZanDicAttribute& _Attribute;
};

/// \returns the attribute behind \p object, or behind an interface of it; null for what is none of this
/// library.
const ZanDicAttribute* AttributeBehind(const ZanDicObj* object);
const ZanDicAttribute* AttributeBehind(const IUnknown& face);

/// \returns the own attributes of a class, in order; null for what is no class of this library.
const ZanHashList* OwnAttributesOf(const IUnknown& classElement);

/// Whether the object behind \p object is one of this library's own.
bool IsOfThisLibrary(const IUnknown& object);

/// \returns how many links of that name the object behind \p object has lost.
int LostLinksOf(const IUnknown& object, ZanDicObj::LinkName link);

/// \returns the content kind under which a package is saved: the one that it was loaded from.
OXMDicCONTENT StoredContentOf(const IUnknown& package);

#endif
