#ifndef OXMI_DIC_ATTRIBUTE_BLOCK_H
#define OXMI_DIC_ATTRIBUTE_BLOCK_H

#include "OXMIDicElementH.h"

/// A named group of attributes of a class, perhaps extending another block, its father.
class OXMIDicAttributeBlock : public OXMIDicElementH {
public:
    static constexpr ZELInterfaceId ClassId() { return IID_OXMIDicAttributeBlock; }

    /// The class that the block belongs to. \returns S_OK; setter E_FAIL for null or an object of another
    /// library, getter S_FALSE when unset.
    virtual HRESULT SetClass(const OXMIDicClass* owner) = 0;
    virtual HRESULT GetClass(OXMIDicClass** owner) = 0;

    /// The block that this one extends. \returns S_OK; setter E_FAIL as above and for a block that would
    /// become its own father, getter S_FALSE when unset.
    virtual HRESULT SetFather(const OXMIDicAttributeBlock* father) = 0;
    virtual HRESULT GetFather(OXMIDicAttributeBlock** father) = 0;

    /// The first block of the chain of fathers. \returns as above.
    virtual HRESULT SetRoot(const OXMIDicAttributeBlock* root) = 0;
    virtual HRESULT GetRoot(OXMIDicAttributeBlock** root) = 0;

    /// Appends an attribute. \returns S_OK; E_FAIL for null or when one of that name is in the block.
    virtual HRESULT AddAttribute(const OXMIDicAttribute* attribute) = 0;

    /// Appends the attributes, the own ones first. \returns S_OK; E_FAIL for a null list.
    virtual HRESULT GetAttributes(ZELListPtrIUnknown* attributes) = 0;

    /// Steps of the computation that `OXMIDicPackage::ComputeAttributeBlocks` makes for many blocks at
    /// once: name, root and father from the chain, then the inherited attributes. \returns S_OK; E_FAIL,
    /// after a line on standard error where one is due.
    virtual HRESULT BuildName() = 0;
    virtual HRESULT BuildRoot() = 0;
    virtual HRESULT BuildFather() = 0;
    virtual HRESULT BuildAllAttributes() = 0;

protected:
    ~OXMIDicAttributeBlock() = default;
};

#endif
