#include "ZanDicAttributeBlock.h"

#include <string>
#include <vector>

#include "HexToBinary.h"
#include "OXMIDicAttribute.h"
#include "OXMIDicAttributeBlock.h"
#include "OXMIDicClass.h"
#include "ZanDicBlockPart.h"
#include "ZanDicBlockTexts.h"
#include "ZanDicClass.h"
#include "ZanDicClassBlocks.h"
#include "ZanDicHandOut.h"
#include "ZanDicImplementation.h"
#include "ZanDicTuning.h"

namespace {

/// A walk from a block up its fathers. It ends at the last one, or once it knows that it goes round: it
/// compares with a block further back, which it moves up at every power of two.
class FatherWalk {
public:
    explicit FatherWalk(ZanDicAttributeBlock* first) : _Block(first), _Anchor(first) {}

    /// \returns the block where the walk is; null at its end.
    ZanDicAttributeBlock* Get() const { return _Block; }
    bool GoesRound() const { return _GoesRound; }

    void Next() {
        _Block = _Block->get_Father();
        if (_Block != nullptr && _Block == _Anchor) {
            _GoesRound = true;
            _Block = nullptr;
        } else if (++_Steps == _Limit) {
            _Anchor = _Block;
            _Steps = 0;
            _Limit *= 2;
        }
    }

private:
    ZanDicAttributeBlock* _Block;
    const ZanDicAttributeBlock* _Anchor;
    std::size_t _Steps = 0;
    std::size_t _Limit = 1;
    bool _GoesRound = false;
};

void TellFault(std::string_view text, std::string_view reason, const ZanDicAttributeBlock& block) {
    ZanDicBlockFault fault{
        {std::string(text) + UuidText(block.Uuid())}, std::string(reason), block.Uuid(), {}, {}};
    if (const ZanDicClass* const owner = block.get_Class(); owner != nullptr) {
        fault.owner = owner->Uuid();
        fault.ownerName = owner->Name().View();
    }
    ZanDicTellBlockFault(fault);
}

}  // namespace

ZELMetaClass& ZanDicAttributeBlock::ClassMeta() {
    static ZELMetaClass meta("ZanDicAttributeBlock", &ZanDicObj::ClassMeta());
    return meta;
}

ZanDicAttributeBlock::ZanDicAttributeBlock(const ZELDbBinary& uuid)
    : ZanDicObj(ZELString(blocktext::kUndefined), uuid) {
    set_TYPE(OXMDicTYPE_AttributeBlock);
}

ZanDicAttributeBlock::~ZanDicAttributeBlock() {
    if (_Listed) ZanDicBlockClock::Changed();
}

ZanDicClass* ZanDicAttributeBlock::get_Class() const { return _Class.Get(); }

bool ZanDicAttributeBlock::is_Named() const {
    return !Name().IsEmpty() && Name().View() != blocktext::kUndefined;
}

HRESULT ZanDicAttributeBlock::SetClass(const OXMIDicClass* owner) {
    auto* const object = LiveImplementationOf<ZanDicClass>(owner);
    if (object == nullptr || is_Gone()) return E_FAIL;
    set_Class(*object);
    return S_OK;
}

HRESULT ZanDicAttributeBlock::GetClass(OXMIDicClass** owner) const {
    if (owner == nullptr) return E_FAIL;
    return _Class ? HandOutAs(*_Class, owner) : S_FALSE;
}

/// Whether this block is \p other or one of its fathers. A block that nobody ever extended is no father, so a
/// chain that grows at either end costs nothing.
bool ZanDicAttributeBlock::is_Above(const ZanDicAttributeBlock& other) const {
    if (&other == this) return true;
    if (!_IsFather) return false;
    FatherWalk walk(const_cast<ZanDicAttributeBlock*>(&other));
    while (walk.Get() != nullptr && walk.Get() != this) walk.Next();
    return walk.Get() == this;
}

HRESULT ZanDicAttributeBlock::SetFather(const OXMIDicAttributeBlock* father) {
    auto* const object = LiveImplementationOf<ZanDicAttributeBlock>(father);
    if (object == nullptr || is_Gone() || is_Above(*object)) return E_FAIL;
    set_Father(*object);
    return S_OK;
}

HRESULT ZanDicAttributeBlock::GetFather(OXMIDicAttributeBlock** father) const {
    if (father == nullptr) return E_FAIL;
    return _Father ? HandOutAs(*_Father, father) : S_FALSE;
}

HRESULT ZanDicAttributeBlock::SetRoot(const OXMIDicAttributeBlock* root) {
    auto* const object = LiveImplementationOf<ZanDicAttributeBlock>(root);
    if (object == nullptr || is_Gone()) return E_FAIL;
    set_Root(*object);
    return S_OK;
}

HRESULT ZanDicAttributeBlock::GetRoot(OXMIDicAttributeBlock** root) const {
    if (root == nullptr) return E_FAIL;
    return _Root ? HandOutAs(*_Root, root) : S_FALSE;
}

void ZanDicAttributeBlock::set_Class(ZanDicClass& owner) { _Class = &owner; }

void ZanDicAttributeBlock::set_Father(ZanDicAttributeBlock& father) {
    father._IsFather = true;
    if (_Father.Get() == &father) return;
    _Father = &father;
    _Complete = false;
    if (_ATTRIBUTES == nullptr || _ATTRIBUTES->inherited == nullptr) return;
    auto own = std::make_shared<ZanDicBlockPart>();
    own->own = _ATTRIBUTES->own;
    _ATTRIBUTES = std::move(own);
}

void ZanDicAttributeBlock::set_Root(ZanDicAttributeBlock& root) {
    _Root = &root;
    if (_Listed) ZanDicBlockClock::Changed();
    if (&root != this) root._Listed = true;  // once it is gone, what it was the root of stands for itself
}

void ZanDicAttributeBlock::set_Listed() {
    _Listed = true;
    ZanDicBlockClock::Registered();
}

HRESULT ZanDicAttributeBlock::AddAttribute(const OXMIDicAttribute* attribute) {
    auto* const object = LiveImplementationOf<ZanDicAttribute>(attribute);
    return object != nullptr && !is_Gone() ? add_Attribute(*object) : E_FAIL;
}

HRESULT ZanDicAttributeBlock::add_Attribute(ZanDicAttribute& attribute) {
    if (ZanDicBlockPart::Find(_ATTRIBUTES.get(), attribute.Name()) != nullptr) return E_FAIL;
    if (_ATTRIBUTES == nullptr) {
        _ATTRIBUTES = std::make_shared<ZanDicBlockPart>();
    } else if (_ATTRIBUTES.use_count() > 1) {
        _ATTRIBUTES = std::make_shared<ZanDicBlockPart>(*_ATTRIBUTES);  // what others took up stays as it is
    }
    return _ATTRIBUTES->own.Append(&attribute);
}

HRESULT ZanDicAttributeBlock::GetAttributes(ZELListPtrIUnknown* attributes) const {
    if (attributes == nullptr) return E_FAIL;
    HRESULT rc = S_OK;
    ZanDicBlockPart::ForEach(_ATTRIBUTES.get(), [&](const ZanDicAttribute& attribute) {
        rc = AppendInterface(attribute, attributes);
    });
    return rc;
}

HRESULT ZanDicAttributeBlock::BuildName() {
    std::vector<ZanDicAttributeBlock*> nameless;
    FatherWalk walk(this);
    for (; walk.Get() != nullptr && !walk.Get()->is_Named(); walk.Next()) nameless.push_back(walk.Get());
    if (walk.Get() == nullptr) {
        TellFault(blocktext::kNoName, blocktext::kNoNameReason, *nameless.back());
        return E_FAIL;
    }
    const ZELString name = walk.Get()->Name();
    for (ZanDicAttributeBlock* const block : nameless) block->SetName(&name);
    return S_OK;
}

HRESULT ZanDicAttributeBlock::BuildRoot() {
    std::vector<ZanDicAttributeBlock*> rootless;
    FatherWalk walk(this);
    for (; walk.Get() != nullptr && walk.Get()->get_Root() == nullptr; walk.Next()) {
        rootless.push_back(walk.Get());
    }
    if (rootless.empty()) return S_OK;
    ZanDicAttributeBlock& root = walk.Get() != nullptr ? *walk.Get()->get_Root() : *rootless.back();
    for (ZanDicAttributeBlock* const block : rootless) block->set_Root(root);
    return S_OK;
}

HRESULT ZanDicAttributeBlock::BuildFather() {
    if (!_Father) return S_OK;
    BuildRoot();
    ZanDicClass* const above = _Class ? _Class->get_SuperClass() : nullptr;
    ZanDicAttributeBlock* const father = above != nullptr ? above->find_BlockOfRoot(*_Root) : nullptr;
    if (father == nullptr) {
        TellFault(blocktext::kNoFather, blocktext::kNoFatherReason, *this);
        return E_FAIL;
    }
    set_Father(*father);
    return S_OK;
}

HRESULT ZanDicAttributeBlock::BuildAllAttributes() {
    std::vector<ZanDicAttributeBlock*> incomplete;
    FatherWalk walk(this);
    for (; walk.Get() != nullptr && !walk.Get()->_Complete && walk.Get()->_Father; walk.Next()) {
        incomplete.push_back(walk.Get());
    }
    if (walk.GoesRound()) {
        TellFault(blocktext::kCyclicExtents, blocktext::kCyclicReason, *this);
        return E_FAIL;
    }
    for (auto next = incomplete.rbegin(); next != incomplete.rend(); ++next) {
        ZanDicAttributeBlock& block = **next;
        std::shared_ptr<ZanDicBlockPart> inherited = block._Father->_ATTRIBUTES;
        if (inherited != nullptr && inherited->own.Size() == 0) inherited = inherited->inherited;
        block._Complete = true;
        if (inherited == nullptr) continue;
        auto part = std::make_shared<ZanDicBlockPart>();
        if (block._ATTRIBUTES != nullptr) part->own = block._ATTRIBUTES->own;
        part->inherited = std::move(inherited);
        block._ATTRIBUTES = std::move(part);
    }
    return S_OK;
}

bool ZanDicAttributeBlock::begin_Description() {
    const bool isFirst = !_Described && !is_Named() && _ATTRIBUTES == nullptr;
    _Described = true;
    return isFirst;
}

int ZanDicAttributeBlock::lost_Links(LinkName link) const {
    if (link == LinkName::BlockClass) return _Class.IsLost() ? 1 : 0;
    if (link == LinkName::BlockFather) return _Father.IsLost() ? 1 : 0;
    if (link == LinkName::BlockRoot) return _Root.IsLost() ? 1 : 0;
    // Inherited attributes are the links of the block that they come from.
    if (link == LinkName::Members) return _ATTRIBUTES != nullptr ? _ATTRIBUTES->own.LostCount() : 0;
    return ZanDicObj::lost_Links(link);
}

void ZanDicAttributeBlock::drop_Links() {
    ZanDicObj::drop_Links();
    _Class.Reset();
    _Father.Reset();
    _Root.Reset();
    _ATTRIBUTES.reset();
    if (_Listed) ZanDicBlockClock::Changed();
}

bool ZanDicBeginDescription(OXMIDicAttributeBlock& block) {
    auto* const object = LiveImplementationOf<ZanDicAttributeBlock>(&block);
    return object != nullptr && object->begin_Description();
}
