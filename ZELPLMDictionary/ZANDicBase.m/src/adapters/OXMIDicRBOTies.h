/// Ties of the RBO kinds.
#ifndef OXMI_DIC_RBO_TIES_H
#define OXMI_DIC_RBO_TIES_H

#include "OXMIDicElementTies.h"
#include "OXMIDicRBOClass.h"
#include "OXMIDicRBOComponent.h"
#include "OXMIDicRBOMapping.h"
#include "OXMIDicRBOPathExpression.h"
#include "OXMIDicRBORoot.h"

/// Forwards OXMIDicRBOMapping.
template <class Impl, class Base>
class OXMIDicRBOMappingLayer : public Base {
public:
    HRESULT SetApplyToRBOClass(const OXMIDicRBOClass* rboClass) override {
        return this->impl().SetApplyToRBOClass(rboClass);
    }
    HRESULT GetApplyToRBOClass(OXMIDicRBOClass** rboClass) override {
        return this->impl().GetApplyToRBOClass(rboClass);
    }
    HRESULT SetApplyToRBOClassRef(const ZELDbBinary* uuid) override {
        return this->impl().SetApplyToRBOClassRef(uuid);
    }
    HRESULT GetApplyToRBOClassRef(ZELDbBinary* uuid) override {
        return this->impl().GetApplyToRBOClassRef(uuid);
    }
    HRESULT SetApplyToRBOClassName(const ZELUnicodeString* name) override {
        return this->impl().SetApplyToRBOClassName(name);
    }
    HRESULT GetApplyToRBOClassName(ZELUnicodeString* name) override {
        return this->impl().GetApplyToRBOClassName(name);
    }
    HRESULT CreateRBORoot(const ZELString* name, const ZELDbBinary* uuid, OXMIDicRBORoot** root) override {
        return this->impl().CreateRBORoot(name, uuid, root);
    }
    HRESULT GetElements(ZELListPtrIUnknown* roots) override { return this->impl().GetElements(roots); }
};

/// Forwards OXMIDicRBORoot.
template <class Impl, class Base>
class OXMIDicRBORootLayer : public Base {
public:
    HRESULT SetBaseClass(const OXMIDicClass* baseClass) override {
        return this->impl().SetBaseClass(baseClass);
    }
    HRESULT GetBaseClass(OXMIDicClass** baseClass) override { return this->impl().GetBaseClass(baseClass); }
    HRESULT SetBaseClassRef(const ZELDbBinary* uuid) override { return this->impl().SetBaseClassRef(uuid); }
    HRESULT GetBaseClassRef(ZELDbBinary* uuid) override { return this->impl().GetBaseClassRef(uuid); }
    HRESULT SetBaseClassName(const ZELUnicodeString* name) override {
        return this->impl().SetBaseClassName(name);
    }
    HRESULT GetBaseClassName(ZELUnicodeString* name) override { return this->impl().GetBaseClassName(name); }
    HRESULT CreateRBOComponent(const ZELString* name, const ZELDbBinary* uuid,
                               OXMIDicRBOComponent** component) override {
        return this->impl().CreateRBOComponent(name, uuid, component);
    }
    HRESULT GetElements(ZELListPtrIUnknown* components) override {
        return this->impl().GetElements(components);
    }
};

/// Forwards OXMIDicRBOComponent.
template <class Impl, class Base>
class OXMIDicRBOComponentLayer : public Base {
public:
    HRESULT SetBaseClass(const OXMIDicClass* baseClass) override {
        return this->impl().SetBaseClass(baseClass);
    }
    HRESULT GetBaseClass(OXMIDicClass** baseClass) override { return this->impl().GetBaseClass(baseClass); }
    HRESULT SetBaseClassRef(const ZELDbBinary* uuid) override { return this->impl().SetBaseClassRef(uuid); }
    HRESULT GetBaseClassRef(ZELDbBinary* uuid) override { return this->impl().GetBaseClassRef(uuid); }
    HRESULT SetBaseClassName(const ZELUnicodeString* name) override {
        return this->impl().SetBaseClassName(name);
    }
    HRESULT GetBaseClassName(ZELUnicodeString* name) override { return this->impl().GetBaseClassName(name); }
    HRESULT CreateRBOComponent(const ZELString* name, const ZELDbBinary* uuid,
                               OXMIDicRBOComponent** component) override {
        return this->impl().CreateRBOComponent(name, uuid, component);
    }
    HRESULT CreateRBOPathExpression(const ZELString* name, const ZELDbBinary* uuid,
                                    OXMIDicRBOPathExpression** path) override {
        return this->impl().CreateRBOPathExpression(name, uuid, path);
    }
    HRESULT GetRBOPathExpression(OXMIDicRBOPathExpression** path) override {
        return this->impl().GetRBOPathExpression(path);
    }
    HRESULT SetValidityRule(const ZELUnicodeString* rule) override {
        return this->impl().SetValidityRule(rule);
    }
    HRESULT GetValidityRule(ZELUnicodeString* rule) override { return this->impl().GetValidityRule(rule); }
    HRESULT GetElements(ZELListPtrIUnknown* components) override {
        return this->impl().GetElements(components);
    }
};

/// Forwards OXMIDicRBOPathExpression.
template <class Impl, class Base>
class OXMIDicRBOPathExpressionLayer : public Base {
public:
    HRESULT SetTarget(const OXMIDicElement* target) override { return this->impl().SetTarget(target); }
    HRESULT GetTarget(OXMIDicElement** target) override { return this->impl().GetTarget(target); }
    HRESULT SetTargetRef(const ZELDbBinary* uuid) override { return this->impl().SetTargetRef(uuid); }
    HRESULT GetTargetRef(ZELDbBinary* uuid) override { return this->impl().GetTargetRef(uuid); }
    HRESULT SetTargetName(const ZELUnicodeString* name) override { return this->impl().SetTargetName(name); }
    HRESULT GetTargetName(ZELUnicodeString* name) override { return this->impl().GetTargetName(name); }
    HRESULT SetPathExprType(const ZELUnicodeString* type) override {
        return this->impl().SetPathExprType(type);
    }
    HRESULT GetPathExprType(ZELUnicodeString* type) override { return this->impl().GetPathExprType(type); }
    HRESULT SetPathExprSubType(const ZELUnicodeString* subType) override {
        return this->impl().SetPathExprSubType(subType);
    }
    HRESULT GetPathExprSubType(ZELUnicodeString* subType) override {
        return this->impl().GetPathExprSubType(subType);
    }
};

template <class Impl>
using OXMIDicRBOClassTie = OXMIDicElementBase<OXMIDicRBOClass, Impl>;

template <class Impl>
using OXMIDicRBOMappingTie = OXMIDicRBOMappingLayer<Impl, OXMIDicElementBase<OXMIDicRBOMapping, Impl>>;

template <class Impl>
using OXMIDicRBORootTie = OXMIDicRBORootLayer<Impl, OXMIDicElementBase<OXMIDicRBORoot, Impl>>;

template <class Impl>
using OXMIDicRBOComponentTie = OXMIDicRBOComponentLayer<Impl, OXMIDicElementBase<OXMIDicRBOComponent, Impl>>;

template <class Impl>
using OXMIDicRBOPathExpressionTie =
    OXMIDicRBOPathExpressionLayer<Impl, OXMIDicElementBase<OXMIDicRBOPathExpression, Impl>>;

#endif
