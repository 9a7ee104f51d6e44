/// Tie of attribute blocks.
#ifndef OXMI_DIC_ATTRIBUTE_BLOCK_TIES_H
#define OXMI_DIC_ATTRIBUTE_BLOCK_TIES_H

#include "OXMIDicAttributeBlock.h"
#include "OXMIDicElementTies.h"

/// Forwards OXMIDicAttributeBlock.
template <class Impl, class Base>
class OXMIDicAttributeBlockLayer : public Base {
public:
    HRESULT SetClass(const OXMIDicClass* owner) override { return this->impl().SetClass(owner); }
    HRESULT GetClass(OXMIDicClass** owner) override { return this->impl().GetClass(owner); }
    HRESULT SetFather(const OXMIDicAttributeBlock* father) override { return this->impl().SetFather(father); }
    HRESULT GetFather(OXMIDicAttributeBlock** father) override { return this->impl().GetFather(father); }
    HRESULT SetRoot(const OXMIDicAttributeBlock* root) override { return this->impl().SetRoot(root); }
    HRESULT GetRoot(OXMIDicAttributeBlock** root) override { return this->impl().GetRoot(root); }
    HRESULT AddAttribute(const OXMIDicAttribute* attribute) override {
        return this->impl().AddAttribute(attribute);
    }
    HRESULT GetAttributes(ZELListPtrIUnknown* attributes) override {
        return this->impl().GetAttributes(attributes);
    }
    HRESULT BuildName() override { return this->impl().BuildName(); }
    HRESULT BuildRoot() override { return this->impl().BuildRoot(); }
    HRESULT BuildFather() override { return this->impl().BuildFather(); }
    HRESULT BuildAllAttributes() override { return this->impl().BuildAllAttributes(); }
};

template <class Impl>
using OXMIDicAttributeBlockTie =
    OXMIDicAttributeBlockLayer<Impl, OXMIDicElementHBase<OXMIDicAttributeBlock, Impl>>;

#endif
