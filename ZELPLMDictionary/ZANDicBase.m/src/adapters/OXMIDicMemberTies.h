/// Ties of the small kinds.
#ifndef OXMI_DIC_MEMBER_TIES_H
#define OXMI_DIC_MEMBER_TIES_H

#include "OXMIDicCategory.h"
#include "OXMIDicElementTies.h"
#include "OXMIDicEnum.h"
#include "OXMIDicEnumerator.h"
#include "OXMIDicPrimitive.h"
#include "OXMIDicUnique.h"

/// Forwards OXMIDicEnum.
template <class Impl, class Base>
class OXMIDicEnumLayer : public Base {
public:
    HRESULT CreateEnumerator(const ZELString* name, const ZELDbBinary* uuid,
                             OXMIDicEnumerator** enumerator) override {
        return this->forward([&](Impl& impl) { return impl.CreateEnumerator(name, uuid, enumerator); });
    }
    HRESULT CreateEnumerator(const ZELString* name, OXMIDicEnumerator** enumerator) override {
        return this->forward([&](Impl& impl) { return impl.CreateEnumerator(name, enumerator); });
    }
    HRESULT CreateEnumValue(const ZELString* name, int value) override {
        return this->forward([&](Impl& impl) { return impl.CreateEnumValue(name, value); });
    }
    HRESULT GetEnumerator(const ZELString* name, OXMIDicEnumerator** enumerator) override {
        return this->forward([&](Impl& impl) { return impl.GetEnumerator(name, enumerator); });
    }
    HRESULT GetEnumValue(const ZELString* name, int* value) override {
        return this->forward([&](Impl& impl) { return impl.GetEnumValue(name, value); });
    }
    HRESULT GetEnumValues(ZELListValZELString* names) override {
        return this->forward([&](Impl& impl) { return impl.GetEnumValues(names); });
    }
    HRESULT GetEnumerators(ZELListPtrIUnknown* enumerators) override {
        return this->forward_List(enumerators, [&](Impl& impl) { return impl.GetEnumerators(enumerators); });
    }
    HRESULT RemoveEnumerator(const ZELString* name) override {
        return this->forward([&](Impl& impl) { return impl.RemoveEnumerator(name); });
    }
    HRESULT RemoveEnumValue(const ZELString* name) override {
        return this->forward([&](Impl& impl) { return impl.RemoveEnumValue(name); });
    }
};

/// Forwards OXMIDicEnumerator.
template <class Impl, class Base>
class OXMIDicEnumeratorLayer : public Base {
public:
    HRESULT GetValue(int* value) override {
        return this->forward([&](Impl& impl) { return impl.GetValue(value); });
    }
    HRESULT SetValue(int value) override {
        return this->forward([&](Impl& impl) { return impl.SetValue(value); });
    }
};

/// Forwards OXMIDicPrimitive.
template <class Impl, class Base>
class OXMIDicPrimitiveLayer : public Base {
public:
    OXMDicPRIMITIVEType Primitive() override {
        return this->forward([&](Impl& impl) { return impl.Primitive(); });
    }
};

/// Forwards OXMIDicCategory.
template <class Impl, class Base>
class OXMIDicCategoryLayer : public Base {
public:
    HRESULT GetGroup(ZELString* group) override {
        return this->forward([&](Impl& impl) { return impl.GetGroup(group); });
    }
    HRESULT SetGroup(const ZELString* group) override {
        return this->forward([&](Impl& impl) { return impl.SetGroup(group); });
    }
};

/// Forwards OXMIDicUnique.
template <class Impl, class Base>
class OXMIDicUniqueLayer : public Base {
public:
    HRESULT AddElement(const OXMIDicElement* element) override {
        return this->forward([&](Impl& impl) { return impl.AddElement(element); });
    }
    HRESULT RemoveElement(const OXMIDicElement* element) override {
        return this->forward([&](Impl& impl) { return impl.RemoveElement(element); });
    }
    HRESULT GetElements(ZELListPtrIUnknown* elements) override {
        return this->forward_List(elements, [&](Impl& impl) { return impl.GetElements(elements); });
    }
};

template <class Impl>
using OXMIDicEnumTie = OXMIDicEnumLayer<Impl, OXMIDicElementBase<OXMIDicEnum, Impl>>;

template <class Impl>
using OXMIDicEnumeratorTie = OXMIDicEnumeratorLayer<Impl, OXMIDicElementBase<OXMIDicEnumerator, Impl>>;

template <class Impl>
using OXMIDicPrimitiveTie = OXMIDicPrimitiveLayer<Impl, OXMIDicElementBase<OXMIDicPrimitive, Impl>>;

template <class Impl>
using OXMIDicCategoryTie = OXMIDicCategoryLayer<Impl, OXMIDicElementBase<OXMIDicCategory, Impl>>;

template <class Impl>
using OXMIDicUniqueTie = OXMIDicUniqueLayer<Impl, OXMIDicElementBase<OXMIDicUnique, Impl>>;

#endif
