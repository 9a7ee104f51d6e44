/// Tie of attribute blocks.
#ifndef OXMI_DIC_ATTRIBUTE_BLOCK_TIES_H
#define OXMI_DIC_ATTRIBUTE_BLOCK_TIES_H

#include "OXMIDicAttributeBlock.h"
#include "OXMIDicElementTies.h"

/// Forwards OXMIDicAttributeBlock.
template <class Impl, class Base>
class OXMIDicAttributeBlockLayer : public Base {
public:
    HRESULT SetClass(const OXMIDicClass* owner) override {
        return this->forward([&](Impl& impl) { return impl.SetClass(owner); });
    }
    HRESULT GetClass(OXMIDicClass** owner) override {
        return this->forward([&](Impl& impl) { return impl.GetClass(owner); });
    }
    HRESULT SetFather(const OXMIDicAttributeBlock* father) override {
        return this->forward([&](Impl& impl) { return impl.SetFather(father); });
    }
    HRESULT GetFather(OXMIDicAttributeBlock** father) override {
        return this->forward([&](Impl& impl) { return impl.GetFather(father); });
    }
    HRESULT SetRoot(const OXMIDicAttributeBlock* root) override {
        return this->forward([&](Impl& impl) { return impl.SetRoot(root); });
    }
    HRESULT GetRoot(OXMIDicAttributeBlock** root) override {
        return this->forward([&](Impl& impl) { return impl.GetRoot(root); });
    }
    HRESULT AddAttribute(const OXMIDicAttribute* attribute) override {
        return this->forward([&](Impl& impl) { return impl.AddAttribute(attribute); });
    }
    HRESULT GetAttributes(ZELListPtrIUnknown* attributes) override {
        return this->forward_List(attributes, [&](Impl& impl) { return impl.GetAttributes(attributes); });
    }
    HRESULT BuildName() override {
        return this->forward([&](Impl& impl) { return impl.BuildName(); });
    }
    HRESULT BuildRoot() override {
        return this->forward([&](Impl& impl) { return impl.BuildRoot(); });
    }
    HRESULT BuildFather() override {
        return this->forward([&](Impl& impl) { return impl.BuildFather(); });
    }
    HRESULT BuildAllAttributes() override {
        return this->forward([&](Impl& impl) { return impl.BuildAllAttributes(); });
    }
};

template <class Impl>
using OXMIDicAttributeBlockTie =
    OXMIDicAttributeBlockLayer<Impl, OXMIDicElementHBase<OXMIDicAttributeBlock, Impl>>;

#endif
