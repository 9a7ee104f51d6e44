/// Ties of attributes.
#ifndef OXMI_DIC_ATTRIBUTE_TIES_H
#define OXMI_DIC_ATTRIBUTE_TIES_H

#include "OXMIDicAttribute.h"
#include "OXMIDicElementTies.h"
#include "OXMIDicInverse.h"
#include "OXMIDicRelationship.h"
#include "OXMIDicSimple.h"

/// Forwards OXMIDicAttribute.
template <class Impl, class Base>
class OXMIDicAttributeLayer : public Base {
public:
    using Base::GetType;  // that of all objects

    HRESULT SetMandatory(unsigned char mandatory) override {
        return this->forward_Plain([&](Impl& impl) { return impl.SetMandatory(mandatory); });
    }
    HRESULT GetMandatory(unsigned char* mandatory) override {
        return this->forward_Plain([&](Impl& impl) { return impl.GetMandatory(mandatory); });
    }
    HRESULT SetSensitive(unsigned char sensitive) override {
        return this->forward_Plain([&](Impl& impl) { return impl.SetSensitive(sensitive); });
    }
    HRESULT GetSensitive(unsigned char* sensitive) override {
        return this->forward_Plain([&](Impl& impl) { return impl.GetSensitive(sensitive); });
    }
    HRESULT SetMultiValuated(unsigned char multiValuated) override {
        return this->forward_Plain([&](Impl& impl) { return impl.SetMultiValuated(multiValuated); });
    }
    HRESULT GetMultiValuated(unsigned char* multiValuated) override {
        return this->forward_Plain([&](Impl& impl) { return impl.GetMultiValuated(multiValuated); });
    }
    HRESULT SetMaxLength(int maxLength) override {
        return this->forward_Plain([&](Impl& impl) { return impl.SetMaxLength(maxLength); });
    }
    HRESULT GetMaxLength(int* maxLength) override {
        return this->forward_Plain([&](Impl& impl) { return impl.GetMaxLength(maxLength); });
    }
    HRESULT SetLower(int lower) override {
        return this->forward_Plain([&](Impl& impl) { return impl.SetLower(lower); });
    }
    HRESULT GetLower(int* lower) override {
        return this->forward_Plain([&](Impl& impl) { return impl.GetLower(lower); });
    }
    HRESULT SetUpper(int upper) override {
        return this->forward_Plain([&](Impl& impl) { return impl.SetUpper(upper); });
    }
    HRESULT GetUpper(int* upper) override {
        return this->forward_Plain([&](Impl& impl) { return impl.GetUpper(upper); });
    }
    HRESULT SetDefault(const ZELUnicodeString* value) override {
        return this->forward([&](Impl& impl) { return impl.SetDefault(value); });
    }
    HRESULT GetDefault(ZELUnicodeString* value) override {
        return this->forward([&](Impl& impl) { return impl.GetDefault(value); });
    }
    HRESULT SetAccessMode(OXMDicACCESSMODE mode) override {
        return this->forward_Plain([&](Impl& impl) { return impl.SetAccessMode(mode); });
    }
    HRESULT GetAccessMode(OXMDicACCESSMODE* mode) override {
        return this->forward_Plain([&](Impl& impl) { return impl.GetAccessMode(mode); });
    }
    HRESULT SetUpdateFacet(OXMDicUPDATEFACET facet) override {
        return this->forward_Plain([&](Impl& impl) { return impl.SetUpdateFacet(facet); });
    }
    HRESULT GetUpdateFacet(OXMDicUPDATEFACET* facet) override {
        return this->forward_Plain([&](Impl& impl) { return impl.GetUpdateFacet(facet); });
    }
    HRESULT SetCollectionType(OXMDicCOLLECTION collection) override {
        return this->forward_Plain([&](Impl& impl) { return impl.SetCollectionType(collection); });
    }
    HRESULT GetCollectionType(OXMDicCOLLECTION* collection) override {
        return this->forward_Plain([&](Impl& impl) { return impl.GetCollectionType(collection); });
    }
    HRESULT SetProxyable(unsigned char proxyable) override {
        return this->forward([&](Impl& impl) { return impl.SetProxyable(proxyable); });
    }
    HRESULT GetProxyable(unsigned char* proxyable) override {
        return this->forward([&](Impl& impl) { return impl.GetProxyable(proxyable); });
    }
    HRESULT GetOrigin(OXMIDicClass** origin) override {
        return this->forward([&](Impl& impl) { return impl.GetOrigin(origin); });
    }
    HRESULT SetType(const OXMIDicElement* type) override {
        return this->forward([&](Impl& impl) { return impl.SetType(type); });
    }
    HRESULT GetType(OXMIDicElement** type) override {
        return this->forward([&](Impl& impl) { return impl.GetType(type); });
    }
    HRESULT GetSpecializedAttribute(OXMIDicElement** attribute) override {
        return this->forward([&](Impl& impl) { return impl.GetSpecializedAttribute(attribute); });
    }
};

/// Forwards OXMIDicSimple.
template <class Impl, class Base>
class OXMIDicSimpleLayer : public Base {
public:
    HRESULT SetMagnitude(const ZELUnicodeString* magnitude) override {
        return this->forward([&](Impl& impl) { return impl.SetMagnitude(magnitude); });
    }
    HRESULT GetMagnitude(ZELUnicodeString* magnitude) override {
        return this->forward([&](Impl& impl) { return impl.GetMagnitude(magnitude); });
    }
    HRESULT SetDBFormat(const ZELUnicodeString* format) override {
        return this->forward([&](Impl& impl) { return impl.SetDBFormat(format); });
    }
    HRESULT GetDBFormat(ZELUnicodeString* format) override {
        return this->forward([&](Impl& impl) { return impl.GetDBFormat(format); });
    }
    HRESULT SetCaseMode(OXMDicCASEMODE mode) override {
        return this->forward_Plain([&](Impl& impl) { return impl.SetCaseMode(mode); });
    }
    HRESULT GetCaseMode(OXMDicCASEMODE* mode) override {
        return this->forward_Plain([&](Impl& impl) { return impl.GetCaseMode(mode); });
    }
    HRESULT SetPrimitive(const OXMIDicPrimitive* primitive) override {
        return this->forward([&](Impl& impl) { return impl.SetPrimitive(primitive); });
    }
    HRESULT GetPrimitive(OXMIDicPrimitive** primitive) override {
        return this->forward([&](Impl& impl) { return impl.GetPrimitive(primitive); });
    }
};

/// Forwards OXMIDicRelationship.
template <class Impl, class Base>
class OXMIDicRelationshipLayer : public Base {
public:
    HRESULT SetInjective(unsigned char injective) override {
        return this->forward_Plain([&](Impl& impl) { return impl.SetInjective(injective); });
    }
    HRESULT GetInjective(unsigned char* injective) override {
        return this->forward_Plain([&](Impl& impl) { return impl.GetInjective(injective); });
    }
    HRESULT SetAggregationMode(OXMDicAGGREGATION aggregation) override {
        return this->forward_Plain([&](Impl& impl) { return impl.SetAggregationMode(aggregation); });
    }
    HRESULT GetAggregationMode(OXMDicAGGREGATION* aggregation) override {
        return this->forward_Plain([&](Impl& impl) { return impl.GetAggregationMode(aggregation); });
    }
    HRESULT SetScope(OXMDicSCOPE scope) override {
        return this->forward([&](Impl& impl) { return impl.SetScope(scope); });
    }
    HRESULT GetScope(OXMDicSCOPE* scope) override {
        return this->forward([&](Impl& impl) { return impl.GetScope(scope); });
    }
    HRESULT SetTarget(const OXMIDicClass* target) override {
        return this->forward([&](Impl& impl) { return impl.SetTarget(target); });
    }
    HRESULT GetTarget(OXMIDicClass** target) override {
        return this->forward([&](Impl& impl) { return impl.GetTarget(target); });
    }
    HRESULT SetInvertedAttribute(const OXMIDicInverse* inverse) override {
        return this->forward([&](Impl& impl) { return impl.SetInvertedAttribute(inverse); });
    }
    HRESULT GetInvertedAttributes(ZELListPtrIUnknown* inverses) override {
        return this->forward_List(inverses, [&](Impl& impl) { return impl.GetInvertedAttributes(inverses); });
    }
    HRESULT GetInvertedAttribute(OXMIDicInverse** inverse) override {
        return this->forward([&](Impl& impl) { return impl.GetInvertedAttribute(inverse); });
    }
    HRESULT AddScope(const OXMIDicElement* scope) override {
        return this->forward([&](Impl& impl) { return impl.AddScope(scope); });
    }
    HRESULT RemoveScope(const OXMIDicElement* scope) override {
        return this->forward([&](Impl& impl) { return impl.RemoveScope(scope); });
    }
    HRESULT GetScopes(ZELListPtrIUnknown* scopes) override {
        return this->forward_List(scopes, [&](Impl& impl) { return impl.GetScopes(scopes); });
    }
    HRESULT IsClassInScope(const ZELDbBinary* classUuid, unsigned char* inScope) override {
        return this->forward([&](Impl& impl) { return impl.IsClassInScope(classUuid, inScope); });
    }
};

/// Forwards OXMIDicInverse.
template <class Impl, class Base>
class OXMIDicInverseLayer : public Base {
public:
    HRESULT SetTarget(const OXMIDicClass* target) override {
        return this->forward([&](Impl& impl) { return impl.SetTarget(target); });
    }
    HRESULT GetTarget(OXMIDicClass** target) override {
        return this->forward([&](Impl& impl) { return impl.GetTarget(target); });
    }
    HRESULT SetInverse(const OXMIDicRelationship* relationship) override {
        return this->forward([&](Impl& impl) { return impl.SetInverse(relationship); });
    }
    HRESULT GetInverse(OXMIDicRelationship** relationship) override {
        return this->forward([&](Impl& impl) { return impl.GetInverse(relationship); });
    }
};

/// What the ties of all interfaces that derive from OXMIDicAttribute stand on.
template <class Interface, class Impl>
using OXMIDicAttributeBase = OXMIDicAttributeLayer<Impl, OXMIDicElementBase<Interface, Impl>>;

template <class Impl>
using OXMIDicAttributeTie = OXMIDicAttributeBase<OXMIDicAttribute, Impl>;

template <class Impl>
using OXMIDicSimpleTie = OXMIDicSimpleLayer<Impl, OXMIDicAttributeBase<OXMIDicSimple, Impl>>;

template <class Impl>
using OXMIDicRelationshipTie =
    OXMIDicRelationshipLayer<Impl, OXMIDicAttributeBase<OXMIDicRelationship, Impl>>;

template <class Impl>
using OXMIDicInverseTie = OXMIDicInverseLayer<Impl, OXMIDicAttributeBase<OXMIDicInverse, Impl>>;

#endif
