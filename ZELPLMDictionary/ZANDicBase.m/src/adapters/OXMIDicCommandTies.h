/// Ties of the retired kinds.
#ifndef OXMI_DIC_COMMAND_TIES_H
#define OXMI_DIC_COMMAND_TIES_H

#include "OXMIDicBOLink.h"
#include "OXMIDicBObject.h"
#include "OXMIDicCommand.h"
#include "OXMIDicCommandParameter.h"
#include "OXMIDicElementTies.h"

/// Forwards OXMIDicCommand.
template <class Impl, class Base>
class OXMIDicCommandLayer : public Base {
public:
    HRESULT CreateParameter(const ZELString* name, OXMIDicCommandParameter** parameter) override {
        return this->forward([&](Impl& impl) { return impl.CreateParameter(name, parameter); });
    }
    HRESULT CreateParameter(const ZELString* name, const ZELDbBinary* uuid,
                            OXMIDicCommandParameter** parameter) override {
        return this->forward([&](Impl& impl) { return impl.CreateParameter(name, uuid, parameter); });
    }
    HRESULT GetCommandType(OXMDicCDETYPE* type) override {
        return this->forward([&](Impl& impl) { return impl.GetCommandType(type); });
    }
    HRESULT SetCommandType(OXMDicCDETYPE type) override {
        return this->forward([&](Impl& impl) { return impl.SetCommandType(type); });
    }
    HRESULT GetElements(ZELListPtrIUnknown* elements) override {
        return this->forward_List(elements, [&](Impl& impl) { return impl.GetElements(elements); });
    }
    HRESULT GetTarget(OXMIDicClass** target) override {
        return this->forward([&](Impl& impl) { return impl.GetTarget(target); });
    }
    HRESULT SetTarget(const OXMIDicClass* target) override {
        return this->forward([&](Impl& impl) { return impl.SetTarget(target); });
    }
};

/// Forwards OXMIDicCommandParameter.
template <class Impl, class Base>
class OXMIDicCommandParameterLayer : public Base {
public:
    HRESULT GetOrigin(OXMIDicElement** origin) override {
        return this->forward([&](Impl& impl) { return impl.GetOrigin(origin); });
    }
    HRESULT GetTarget(OXMIDicElement** target) override {
        return this->forward([&](Impl& impl) { return impl.GetTarget(target); });
    }
    HRESULT SetTarget(const OXMIDicElement* target) override {
        return this->forward([&](Impl& impl) { return impl.SetTarget(target); });
    }
};

template <class Impl>
using OXMIDicCommandTie = OXMIDicCommandLayer<Impl, OXMIDicElementBase<OXMIDicCommand, Impl>>;

template <class Impl>
using OXMIDicCommandParameterTie =
    OXMIDicCommandParameterLayer<Impl, OXMIDicElementBase<OXMIDicCommandParameter, Impl>>;

template <class Impl>
using OXMIDicBObjectTie = OXMIDicElementBase<OXMIDicBObject, Impl>;

template <class Impl>
using OXMIDicBOLinkTie = OXMIDicElementBase<OXMIDicBOLink, Impl>;

#endif
