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
        return this->forward([&](Impl& impl) { return impl.SetApplyToRBOClass(rboClass); });
    }
    HRESULT GetApplyToRBOClass(OXMIDicRBOClass** rboClass) override {
        return this->forward([&](Impl& impl) { return impl.GetApplyToRBOClass(rboClass); });
    }
    HRESULT SetApplyToRBOClassRef(const ZELDbBinary* uuid) override {
        return this->forward([&](Impl& impl) { return impl.SetApplyToRBOClassRef(uuid); });
    }
    HRESULT GetApplyToRBOClassRef(ZELDbBinary* uuid) override {
        return this->forward([&](Impl& impl) { return impl.GetApplyToRBOClassRef(uuid); });
    }
    HRESULT SetApplyToRBOClassName(const ZELUnicodeString* name) override {
        return this->forward([&](Impl& impl) { return impl.SetApplyToRBOClassName(name); });
    }
    HRESULT GetApplyToRBOClassName(ZELUnicodeString* name) override {
        return this->forward([&](Impl& impl) { return impl.GetApplyToRBOClassName(name); });
    }
    HRESULT CreateRBORoot(const ZELString* name, const ZELDbBinary* uuid, OXMIDicRBORoot** root) override {
        return this->forward([&](Impl& impl) { return impl.CreateRBORoot(name, uuid, root); });
    }
    HRESULT GetElements(ZELListPtrIUnknown* roots) override {
        return this->forward_List(roots, [&](Impl& impl) { return impl.GetElements(roots); });
    }
};

/// Forwards OXMIDicRBORoot.
template <class Impl, class Base>
class OXMIDicRBORootLayer : public Base {
public:
    HRESULT SetBaseClass(const OXMIDicClass* baseClass) override {
        return this->forward([&](Impl& impl) { return impl.SetBaseClass(baseClass); });
    }
    HRESULT GetBaseClass(OXMIDicClass** baseClass) override {
        return this->forward([&](Impl& impl) { return impl.GetBaseClass(baseClass); });
    }
    HRESULT SetBaseClassRef(const ZELDbBinary* uuid) override {
        return this->forward([&](Impl& impl) { return impl.SetBaseClassRef(uuid); });
    }
    HRESULT GetBaseClassRef(ZELDbBinary* uuid) override {
        return this->forward([&](Impl& impl) { return impl.GetBaseClassRef(uuid); });
    }
    HRESULT SetBaseClassName(const ZELUnicodeString* name) override {
        return this->forward([&](Impl& impl) { return impl.SetBaseClassName(name); });
    }
    HRESULT GetBaseClassName(ZELUnicodeString* name) override {
        return this->forward([&](Impl& impl) { return impl.GetBaseClassName(name); });
    }
    HRESULT CreateRBOComponent(const ZELString* name, const ZELDbBinary* uuid,
                               OXMIDicRBOComponent** component) override {
        return this->forward([&](Impl& impl) { return impl.CreateRBOComponent(name, uuid, component); });
    }
    HRESULT GetElements(ZELListPtrIUnknown* components) override {
        return this->forward_List(components, [&](Impl& impl) { return impl.GetElements(components); });
    }
};

/// Forwards OXMIDicRBOComponent.
template <class Impl, class Base>
class OXMIDicRBOComponentLayer : public Base {
public:
    HRESULT SetBaseClass(const OXMIDicClass* baseClass) override {
        return this->forward([&](Impl& impl) { return impl.SetBaseClass(baseClass); });
    }
    HRESULT GetBaseClass(OXMIDicClass** baseClass) override {
        return this->forward([&](Impl& impl) { return impl.GetBaseClass(baseClass); });
    }
    HRESULT SetBaseClassRef(const ZELDbBinary* uuid) override {
        return this->forward([&](Impl& impl) { return impl.SetBaseClassRef(uuid); });
    }
    HRESULT GetBaseClassRef(ZELDbBinary* uuid) override {
        return this->forward([&](Impl& impl) { return impl.GetBaseClassRef(uuid); });
    }
    HRESULT SetBaseClassName(const ZELUnicodeString* name) override {
        return this->forward([&](Impl& impl) { return impl.SetBaseClassName(name); });
    }
    HRESULT GetBaseClassName(ZELUnicodeString* name) override {
        return this->forward([&](Impl& impl) { return impl.GetBaseClassName(name); });
    }
    HRESULT CreateRBOComponent(const ZELString* name, const ZELDbBinary* uuid,
                               OXMIDicRBOComponent** component) override {
        return this->forward([&](Impl& impl) { return impl.CreateRBOComponent(name, uuid, component); });
    }
    HRESULT CreateRBOPathExpression(const ZELString* name, const ZELDbBinary* uuid,
                                    OXMIDicRBOPathExpression** path) override {
        return this->forward([&](Impl& impl) { return impl.CreateRBOPathExpression(name, uuid, path); });
    }
    HRESULT GetRBOPathExpression(OXMIDicRBOPathExpression** path) override {
        return this->forward([&](Impl& impl) { return impl.GetRBOPathExpression(path); });
    }
    HRESULT SetValidityRule(const ZELUnicodeString* rule) override {
        return this->forward([&](Impl& impl) { return impl.SetValidityRule(rule); });
    }
    HRESULT GetValidityRule(ZELUnicodeString* rule) override {
        return this->forward([&](Impl& impl) { return impl.GetValidityRule(rule); });
    }
    HRESULT GetElements(ZELListPtrIUnknown* components) override {
        return this->forward_List(components, [&](Impl& impl) { return impl.GetElements(components); });
    }
};

/// Forwards OXMIDicRBOPathExpression.
template <class Impl, class Base>
class OXMIDicRBOPathExpressionLayer : public Base {
public:
    HRESULT SetTarget(const OXMIDicElement* target) override {
        return this->forward([&](Impl& impl) { return impl.SetTarget(target); });
    }
    HRESULT GetTarget(OXMIDicElement** target) override {
        return this->forward([&](Impl& impl) { return impl.GetTarget(target); });
    }
    HRESULT SetTargetRef(const ZELDbBinary* uuid) override {
        return this->forward([&](Impl& impl) { return impl.SetTargetRef(uuid); });
    }
    HRESULT GetTargetRef(ZELDbBinary* uuid) override {
        return this->forward([&](Impl& impl) { return impl.GetTargetRef(uuid); });
    }
    HRESULT SetTargetName(const ZELUnicodeString* name) override {
        return this->forward([&](Impl& impl) { return impl.SetTargetName(name); });
    }
    HRESULT GetTargetName(ZELUnicodeString* name) override {
        return this->forward([&](Impl& impl) { return impl.GetTargetName(name); });
    }
    HRESULT SetPathExprType(const ZELUnicodeString* type) override {
        return this->forward([&](Impl& impl) { return impl.SetPathExprType(type); });
    }
    HRESULT GetPathExprType(ZELUnicodeString* type) override {
        return this->forward([&](Impl& impl) { return impl.GetPathExprType(type); });
    }
    HRESULT SetPathExprSubType(const ZELUnicodeString* subType) override {
        return this->forward([&](Impl& impl) { return impl.SetPathExprSubType(subType); });
    }
    HRESULT GetPathExprSubType(ZELUnicodeString* subType) override {
        return this->forward([&](Impl& impl) { return impl.GetPathExprSubType(subType); });
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
