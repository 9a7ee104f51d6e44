/// Ties of what every object and every element answers.
#ifndef OXMI_DIC_ELEMENT_TIES_H
#define OXMI_DIC_ELEMENT_TIES_H

#include "OXMIDicApp.h"
#include "OXMIDicElement.h"
#include "OXMIDicElementH.h"
#include "ZELTie.h"

/// Forwards what OXMIDicApp and OXMIDicElementH have in common: who an object is.
template <class Impl, class Base>
class OXMIDicIdentityLayer : public Base {
public:
    using Base::GetType;  // attributes have another of that name

    HRESULT GetName(ZELString* name) override {
        return this->forward_Plain([&](Impl& impl) { return impl.GetName(name); });
    }
    HRESULT SetName(const ZELString* name) override {
        return this->forward([&](Impl& impl) { return impl.SetName(name); });
    }
    HRESULT GetUuid(ZELDbBinary* uuid) override {
        return this->forward_Plain([&](Impl& impl) { return impl.GetUuid(uuid); });
    }
    HRESULT SetUuid(const ZELDbBinary* uuid) override {
        return this->forward([&](Impl& impl) { return impl.SetUuid(uuid); });
    }
    HRESULT GenUuid() override {
        return this->forward([&](Impl& impl) { return impl.GenUuid(); });
    }
    HRESULT GetType(OXMDicTYPE* type) override {
        return this->forward_Plain([&](Impl& impl) { return impl.GetType(type); });
    }
};

/// Forwards OXMIDicApp.
template <class Impl, class Base>
class OXMIDicAppLayer : public OXMIDicIdentityLayer<Impl, Base> {
public:
    void Dump(const char* caller) override {
        return this->forward([&](Impl& impl) { return impl.Dump(caller); });
    }
};

/// Forwards OXMIDicElementH.
template <class Impl, class Base>
class OXMIDicElementHLayer : public OXMIDicIdentityLayer<Impl, Base> {
public:
    HRESULT SetOtherAttribute(const ZELUnicodeString& name, const ZELUnicodeString& value) override {
        return this->forward([&](Impl& impl) { return impl.SetOtherAttribute(name, value); });
    }
    HRESULT GetOtherAttribute(const ZELUnicodeString& name, ZELUnicodeString& value) override {
        return this->forward([&](Impl& impl) { return impl.GetOtherAttribute(name, value); });
    }
    HRESULT GetAllOtherAttributes(ZELListValZELUnicodeString& names,
                                  ZELListValZELUnicodeString& values) override {
        return this->forward([&](Impl& impl) { return impl.GetAllOtherAttributes(names, values); });
    }
    HRESULT AddCategory(const OXMIDicCategory* category) override {
        return this->forward([&](Impl& impl) { return impl.AddCategory(category); });
    }
    HRESULT RemoveCategory(const OXMIDicCategory* category) override {
        return this->forward([&](Impl& impl) { return impl.RemoveCategory(category); });
    }
    HRESULT IsCategory(const ZELString* name, unsigned char* isCategory) override {
        return this->forward([&](Impl& impl) { return impl.IsCategory(name, isCategory); });
    }
    HRESULT GetCategories(ZELListPtrIUnknown* categories) override {
        return this->forward_List(categories, [&](Impl& impl) { return impl.GetCategories(categories); });
    }
    HRESULT GetLostLinks(int* count) override {
        return this->forward([&](Impl& impl) { return impl.GetLostLinks(count); });
    }
};

/// Forwards OXMIDicElement.
template <class Impl, class Base>
class OXMIDicElementLayer : public Base {
public:
    HRESULT SetAlias(const ZELUnicodeString* alias) override {
        return this->forward([&](Impl& impl) { return impl.SetAlias(alias); });
    }
    HRESULT SetExpositionLevel(const ZELUnicodeString* level) override {
        return this->forward([&](Impl& impl) { return impl.SetExpositionLevel(level); });
    }
    HRESULT SetVisibility(OXMDicVISIBILITY visibility) override {
        return this->forward([&](Impl& impl) { return impl.SetVisibility(visibility); });
    }
    HRESULT GetAlias(ZELUnicodeString* alias) override {
        return this->forward([&](Impl& impl) { return impl.GetAlias(alias); });
    }
    HRESULT GetExpositionLevel(ZELUnicodeString* level) override {
        return this->forward([&](Impl& impl) { return impl.GetExpositionLevel(level); });
    }
    HRESULT GetVisibility(OXMDicVISIBILITY* visibility) override {
        return this->forward([&](Impl& impl) { return impl.GetVisibility(visibility); });
    }
    HRESULT GetPackage(OXMIDicPackage** package) override {
        return this->forward([&](Impl& impl) { return impl.GetPackage(package); });
    }
    HRESULT GetPackageName(ZELString* name) override {
        return this->forward([&](Impl& impl) { return impl.GetPackageName(name); });
    }
    HRESULT BelongsTo(OXMIDicElement** owner) override {
        return this->forward([&](Impl& impl) { return impl.BelongsTo(owner); });
    }
    HRESULT GetSuperPackage(OXMIDicPackage** package) override {
        return this->forward([&](Impl& impl) { return impl.GetSuperPackage(package); });
    }
    HRESULT FlushAll() override {
        return this->forward([&](Impl& impl) { return impl.FlushAll(); });
    }
};

template <class Impl>
using OXMIDicAppTie = OXMIDicAppLayer<Impl, ZELTie<OXMIDicApp, Impl>>;

/// What the ties of all interfaces that derive from OXMIDicElementH stand on.
template <class Interface, class Impl>
using OXMIDicElementHBase = OXMIDicElementHLayer<Impl, ZELTie<Interface, Impl>>;

template <class Impl>
using OXMIDicElementHTie = OXMIDicElementHBase<OXMIDicElementH, Impl>;

/// The same for OXMIDicElement.
template <class Interface, class Impl>
using OXMIDicElementBase = OXMIDicElementLayer<Impl, OXMIDicElementHBase<Interface, Impl>>;

template <class Impl>
using OXMIDicElementTie = OXMIDicElementBase<OXMIDicElement, Impl>;

#endif
