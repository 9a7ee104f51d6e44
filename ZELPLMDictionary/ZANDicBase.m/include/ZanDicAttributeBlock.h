#ifndef ZAN_DIC_ATTRIBUTE_BLOCK_H
#define ZAN_DIC_ATTRIBUTE_BLOCK_H

#include <memory>

#include "ZanDicExport.h"
#include "ZanDicLink.h"
#include "ZanDicObj.h"

class ZanDicAttribute;
class ZanDicClass;
struct ZanDicBlockPart;

/// A named group of attributes of a class, perhaps extending another block, its father.
///
/// Made by a package, which owns it; registered with the manager, but no element. Class, father, root and
/// attributes are links: what is gone counts as absent. A link setter refuses what is gone, and everything
/// once the block is gone itself; a null pointer as an argument gives E_FAIL and changes nothing. Chains of
/// fathers are walked by loops: their length is no limit, and inherited attributes cost no memory. One
/// thread.
class ZANDICBASE_API ZanDicAttributeBlock : public ZanDicObj {
public:
    /// Name "UNDEFINED", as long as nobody gives it one.
    explicit ZanDicAttributeBlock(const ZELDbBinary& uuid);
    ZanDicAttributeBlock(const ZanDicAttributeBlock&) = delete;
    ZanDicAttributeBlock& operator=(const ZanDicAttributeBlock&) = delete;
    ~ZanDicAttributeBlock() override;

    static ZELMetaClass& ClassMeta();
    static const char* ClassName() { return ClassMeta().Name(); }
    ZELMetaClass& MetaObject() const override { return ClassMeta(); }
    _type get_type() const override { return _type_AttributeBlock; }

    /// Links. \returns S_OK; setters E_FAIL for what is not in the dictionary or of another kind, getters
    /// S_FALSE when unset. What a getter hands out carries one reference.
    HRESULT SetClass(const OXMIDicClass* owner);
    HRESULT GetClass(OXMIDicClass** owner) const;
    /// Inherited attributes of the father before are given up. Costs the length of the chain above
    /// \p father when this block is a father itself, else nothing.
    /// \returns E_FAIL also for a father that has this block among its own fathers, or is it.
    HRESULT SetFather(const OXMIDicAttributeBlock* father);
    HRESULT GetFather(OXMIDicAttributeBlock** father) const;
    HRESULT SetRoot(const OXMIDicAttributeBlock* root);
    HRESULT GetRoot(OXMIDicAttributeBlock** root) const;

    /// Adds an own attribute behind the others. \returns S_OK; E_FAIL for what is no attribute in the
    /// dictionary, or when the block has one of that name, inherited ones included.
    HRESULT AddAttribute(const OXMIDicAttribute* attribute);
    /// Appends the attributes, the own ones first; an own one stands for inherited ones of its name.
    /// \returns the last query's result, S_OK for none; E_FAIL for a null list.
    HRESULT GetAttributes(ZELListPtrIUnknown* attributes) const;

    /// A block without a name takes that of the nearest father that has one, and so do those between.
    /// \returns S_OK; E_FAIL, after a line on standard error, when there is none.
    HRESULT BuildName();
    /// The root is the last father of the chain, the block itself without father; also noted in every
    /// father on the way. One that is set stays. \returns S_OK.
    HRESULT BuildRoot();
    /// Replaces the father by the block of the same root in the nearest class above this block's; of
    /// several in a class, the one that was registered last. The root is built first when it is not.
    /// \returns S_OK, also without father; E_FAIL, after a line on standard error, when there is none.
    HRESULT BuildFather();
    /// Takes up the father's attributes, once those are complete, as they are now; a second call, with
    /// the same father, changes nothing. \returns S_OK; E_FAIL when the chain of fathers has no end.
    HRESULT BuildAllAttributes();

    // What follows is for the library itself.

    ZanDicClass* get_Class() const;
    ZanDicAttributeBlock* get_Father() const { return _Father.Get(); }
    ZanDicAttributeBlock* get_Root() const { return _Root.Get(); }
    const ZanDicBlockPart* get_Attributes() const { return _ATTRIBUTES.get(); }
    bool is_Named() const;
    void set_Class(ZanDicClass& owner);
    void set_Father(ZanDicAttributeBlock& father);
    void set_Root(ZanDicAttributeBlock& root);
    HRESULT add_Attribute(ZanDicAttribute& attribute);
    /// Said by the class that lists the block from now on: what changes in it changes what is visible there.
    void set_Listed();
    /// Marks the block as described. \returns false when it is already, or has a name or attributes.
    bool begin_Description();

    int lost_Links(LinkName link) const override;

protected:
    void drop_Links() override;

private:
    bool is_Above(const ZanDicAttributeBlock& other) const;

    ZanDicLink<ZanDicClass> _Class;                ///< not owning
    ZanDicLink<ZanDicAttributeBlock> _Father;      ///< not owning: as declared, or as built
    ZanDicLink<ZanDicAttributeBlock> _Root;        ///< not owning; unset until built
    std::shared_ptr<ZanDicBlockPart> _ATTRIBUTES;  ///< links; the father's are shared; null for none
    bool _Complete = false;                        ///< the father's attributes are among them
    bool _IsFather = false;                        ///< some block had this one as its father
    bool _Listed = false;     ///< what is visible in classes hangs on it: a class lists it, or it is a root
    bool _Described = false;  ///< by a document
};

#endif
