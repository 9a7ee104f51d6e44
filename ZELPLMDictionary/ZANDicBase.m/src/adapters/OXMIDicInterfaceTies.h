/// Ties of interfaces, methods and parameters.
#ifndef OXMI_DIC_INTERFACE_TIES_H
#define OXMI_DIC_INTERFACE_TIES_H

#include "OXMIDicElementTies.h"
#include "OXMIDicInterface.h"
#include "OXMIDicMethod.h"
#include "OXMIDicParameter.h"

/// Forwards OXMIDicInterface.
template <class Impl, class Base>
class OXMIDicInterfaceLayer : public Base {
public:
    HRESULT CreateMethod(const ZELString* name, const ZELDbBinary* uuid, OXMIDicMethod** method) override {
        return this->forward([&](Impl& impl) { return impl.CreateMethod(name, uuid, method); });
    }
    HRESULT CreateMethod(const ZELString* name, OXMIDicMethod** method) override {
        return this->forward([&](Impl& impl) { return impl.CreateMethod(name, method); });
    }
    HRESULT RemoveMethod(const ZELString* name) override {
        return this->forward([&](Impl& impl) { return impl.RemoveMethod(name); });
    }
    HRESULT GetMethod(const ZELString* name, OXMIDicMethod** method) override {
        return this->forward([&](Impl& impl) { return impl.GetMethod(name, method); });
    }
    HRESULT GetMethods(ZELListPtrIUnknown* methods) override {
        return this->forward_List(methods, [&](Impl& impl) { return impl.GetMethods(methods); });
    }
    HRESULT GetClassMethod(const ZELString* name, OXMIDicMethod** method) override {
        return this->forward([&](Impl& impl) { return impl.GetClassMethod(name, method); });
    }
    HRESULT GetAllMethods(ZELListPtrIUnknown* methods) override {
        return this->forward_List(methods, [&](Impl& impl) { return impl.GetAllMethods(methods); });
    }
    HRESULT SetSuperInterface(const OXMIDicInterface* superInterface) override {
        return this->forward([&](Impl& impl) { return impl.SetSuperInterface(superInterface); });
    }
    HRESULT GetSuperInterface(OXMIDicInterface** superInterface) override {
        return this->forward([&](Impl& impl) { return impl.GetSuperInterface(superInterface); });
    }
    HRESULT GetSuperInterfaces(ZELListPtrIUnknown* superInterfaces) override {
        return this->forward_List(superInterfaces,
                                  [&](Impl& impl) { return impl.GetSuperInterfaces(superInterfaces); });
    }
};

/// Forwards OXMIDicMethod.
template <class Impl, class Base>
class OXMIDicMethodLayer : public Base {
public:
    HRESULT CreateParameter(const ZELString* name, const ZELDbBinary* uuid,
                            OXMIDicParameter** parameter) override {
        return this->forward([&](Impl& impl) { return impl.CreateParameter(name, uuid, parameter); });
    }
    HRESULT CreateParameter(const ZELString* name, OXMIDicParameter** parameter) override {
        return this->forward([&](Impl& impl) { return impl.CreateParameter(name, parameter); });
    }
    HRESULT GetParameter(const ZELString* name, OXMIDicParameter** parameter) override {
        return this->forward([&](Impl& impl) { return impl.GetParameter(name, parameter); });
    }
    HRESULT GetParameters(ZELListPtrIUnknown* parameters) override {
        return this->forward_List(parameters, [&](Impl& impl) { return impl.GetParameters(parameters); });
    }
    HRESULT RemoveParameter(const ZELString* name) override {
        return this->forward([&](Impl& impl) { return impl.RemoveParameter(name); });
    }
};

/// Forwards OXMIDicParameter.
template <class Impl, class Base>
class OXMIDicParameterLayer : public Base {
public:
    using Base::GetType;  // that of all objects

    HRESULT GetType(OXMIDicElement** type) override {
        return this->forward([&](Impl& impl) { return impl.GetType(type); });
    }
    HRESULT SetType(const OXMIDicElement* type) override {
        return this->forward([&](Impl& impl) { return impl.SetType(type); });
    }
    HRESULT GetKind(OXMDicKIND* kind) override {
        return this->forward([&](Impl& impl) { return impl.GetKind(kind); });
    }
    HRESULT SetKind(OXMDicKIND kind) override {
        return this->forward([&](Impl& impl) { return impl.SetKind(kind); });
    }
    HRESULT GetDefault(ZELUnicodeString* value) override {
        return this->forward([&](Impl& impl) { return impl.GetDefault(value); });
    }
    HRESULT SetDefault(const ZELUnicodeString* value) override {
        return this->forward([&](Impl& impl) { return impl.SetDefault(value); });
    }
};

template <class Impl>
using OXMIDicInterfaceTie = OXMIDicInterfaceLayer<Impl, OXMIDicElementBase<OXMIDicInterface, Impl>>;

template <class Impl>
using OXMIDicMethodTie = OXMIDicMethodLayer<Impl, OXMIDicElementBase<OXMIDicMethod, Impl>>;

template <class Impl>
using OXMIDicParameterTie = OXMIDicParameterLayer<Impl, OXMIDicElementBase<OXMIDicParameter, Impl>>;

#endif
