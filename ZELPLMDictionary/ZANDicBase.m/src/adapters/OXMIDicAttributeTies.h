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

    HRESULT SetMandatory(unsigned char mandatory) override { return this->impl().SetMandatory(mandatory); }
    HRESULT GetMandatory(unsigned char* mandatory) override { return this->impl().GetMandatory(mandatory); }
    HRESULT SetSensitive(unsigned char sensitive) override { return this->impl().SetSensitive(sensitive); }
    HRESULT GetSensitive(unsigned char* sensitive) override { return this->impl().GetSensitive(sensitive); }
    HRESULT SetMultiValuated(unsigned char multiValuated) override {
        return this->impl().SetMultiValuated(multiValuated);
    }
    HRESULT GetMultiValuated(unsigned char* multiValuated) override {
        return this->impl().GetMultiValuated(multiValuated);
    }
    HRESULT SetMaxLength(int maxLength) override { return this->impl().SetMaxLength(maxLength); }
    HRESULT GetMaxLength(int* maxLength) override { return this->impl().GetMaxLength(maxLength); }
    HRESULT SetLower(int lower) override { return this->impl().SetLower(lower); }
    HRESULT GetLower(int* lower) override { return this->impl().GetLower(lower); }
    HRESULT SetUpper(int upper) override { return this->impl().SetUpper(upper); }
    HRESULT GetUpper(int* upper) override { return this->impl().GetUpper(upper); }
    HRESULT SetDefault(const ZELUnicodeString* value) override { return this->impl().SetDefault(value); }
    HRESULT GetDefault(ZELUnicodeString* value) override { return this->impl().GetDefault(value); }
    HRESULT SetAccessMode(OXMDicACCESSMODE mode) override { return this->impl().SetAccessMode(mode); }
    HRESULT GetAccessMode(OXMDicACCESSMODE* mode) override { return this->impl().GetAccessMode(mode); }
    HRESULT SetUpdateFacet(OXMDicUPDATEFACET facet) override { return this->impl().SetUpdateFacet(facet); }
    HRESULT GetUpdateFacet(OXMDicUPDATEFACET* facet) override { return this->impl().GetUpdateFacet(facet); }
    HRESULT SetCollectionType(OXMDicCOLLECTION collection) override {
        return this->impl().SetCollectionType(collection);
    }
    HRESULT GetCollectionType(OXMDicCOLLECTION* collection) override {
        return this->impl().GetCollectionType(collection);
    }
    HRESULT SetProxyable(unsigned char proxyable) override { return this->impl().SetProxyable(proxyable); }
    HRESULT GetProxyable(unsigned char* proxyable) override { return this->impl().GetProxyable(proxyable); }
    HRESULT GetOrigin(OXMIDicClass** origin) override { return this->impl().GetOrigin(origin); }
    HRESULT SetType(const OXMIDicElement* type) override { return this->impl().SetType(type); }
    HRESULT GetType(OXMIDicElement** type) override { return this->impl().GetType(type); }
    HRESULT GetSpecializedAttribute(OXMIDicElement** attribute) override {
        return this->impl().GetSpecializedAttribute(attribute);
    }
};

/// Forwards OXMIDicSimple.
template <class Impl, class Base>
class OXMIDicSimpleLayer : public Base {
public:
    HRESULT SetMagnitude(const ZELUnicodeString* magnitude) override {
        return this->impl().SetMagnitude(magnitude);
    }
    HRESULT GetMagnitude(ZELUnicodeString* magnitude) override {
        return this->impl().GetMagnitude(magnitude);
    }
    HRESULT SetDBFormat(const ZELUnicodeString* format) override { return this->impl().SetDBFormat(format); }
    HRESULT GetDBFormat(ZELUnicodeString* format) override { return this->impl().GetDBFormat(format); }
    HRESULT SetCaseMode(OXMDicCASEMODE mode) override { return this->impl().SetCaseMode(mode); }
    HRESULT GetCaseMode(OXMDicCASEMODE* mode) override { return this->impl().GetCaseMode(mode); }
    HRESULT SetPrimitive(const OXMIDicPrimitive* primitive) override {
        return this->impl().SetPrimitive(primitive);
    }
    HRESULT GetPrimitive(OXMIDicPrimitive** primitive) override {
        return this->impl().GetPrimitive(primitive);
    }
};

/// Forwards OXMIDicRelationship.
template <class Impl, class Base>
class OXMIDicRelationshipLayer : public Base {
public:
    HRESULT SetInjective(unsigned char injective) override { return this->impl().SetInjective(injective); }
    HRESULT GetInjective(unsigned char* injective) override { return this->impl().GetInjective(injective); }
    HRESULT SetAggregationMode(OXMDicAGGREGATION aggregation) override {
        return this->impl().SetAggregationMode(aggregation);
    }
    HRESULT GetAggregationMode(OXMDicAGGREGATION* aggregation) override {
        return this->impl().GetAggregationMode(aggregation);
    }
    HRESULT SetScope(OXMDicSCOPE scope) override { return this->impl().SetScope(scope); }
    HRESULT GetScope(OXMDicSCOPE* scope) override { return this->impl().GetScope(scope); }
    HRESULT SetTarget(const OXMIDicClass* target) override { return this->impl().SetTarget(target); }
    HRESULT GetTarget(OXMIDicClass** target) override { return this->impl().GetTarget(target); }
    HRESULT SetInvertedAttribute(const OXMIDicInverse* inverse) override {
        return this->impl().SetInvertedAttribute(inverse);
    }
    HRESULT GetInvertedAttributes(ZELListPtrIUnknown* inverses) override {
        return this->impl().GetInvertedAttributes(inverses);
    }
    HRESULT GetInvertedAttribute(OXMIDicInverse** inverse) override {
        return this->impl().GetInvertedAttribute(inverse);
    }
    HRESULT AddScope(const OXMIDicElement* scope) override { return this->impl().AddScope(scope); }
    HRESULT RemoveScope(const OXMIDicElement* scope) override { return this->impl().RemoveScope(scope); }
    HRESULT GetScopes(ZELListPtrIUnknown* scopes) override { return this->impl().GetScopes(scopes); }
    HRESULT IsClassInScope(const ZELDbBinary* classUuid, unsigned char* inScope) override {
        return this->impl().IsClassInScope(classUuid, inScope);
    }
};

/// Forwards OXMIDicInverse.
template <class Impl, class Base>
class OXMIDicInverseLayer : public Base {
public:
    HRESULT SetTarget(const OXMIDicClass* target) override { return this->impl().SetTarget(target); }
    HRESULT GetTarget(OXMIDicClass** target) override { return this->impl().GetTarget(target); }
    HRESULT SetInverse(const OXMIDicRelationship* relationship) override {
        return this->impl().SetInverse(relationship);
    }
    HRESULT GetInverse(OXMIDicRelationship** relationship) override {
        return this->impl().GetInverse(relationship);
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
