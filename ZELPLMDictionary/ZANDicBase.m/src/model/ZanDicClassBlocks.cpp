// The attribute blocks that are visible in a class.
#include "ZanDicClassBlocks.h"

#include <string>
#include <utility>

#include "OXMIDicAttributeBlock.h"
#include "ZanDicBlockAssertions.h"
#include "ZanDicBlockPart.h"
#include "ZanDicBlockTexts.h"
#include "ZanDicClass.h"
#include "ZanDicClassFields.h"
#include "ZanDicHandOut.h"
#include "ZanDicImplementation.h"
#include "ZanDicTuning.h"

constinit std::uint64_t ZanDicBlockClock::changes = 1;
constinit bool ZanDicBlockClock::hasBlocks = false;

namespace {

const ZanDicVisibleBlocks::Shared& NoBlocks() {
    static const auto none = std::make_shared<const ZanDicVisibleBlocks>();
    return none;
}

}  // namespace

std::string QualifiedName(const ZanDicClass& owner) {
    return std::string(owner.get_PackageName().View()).append(blocktext::kScope).append(owner.Name().View());
}

void TellBlockTwice(const ZanDicClass& owner, const ZanDicAttributeBlock& block) {
    ZanDicTellBlockFault({{std::string(blocktext::kTuningError)
                               .append(QualifiedName(owner))
                               .append(blocktext::kBlockTwice)
                               .append(block.Name().View())},
                          std::string(blocktext::kBlockTwiceReason).append(block.Name().View()),
                          block.Uuid(),
                          owner.Uuid(),
                          std::string(owner.Name().View())});
}

ZanDicVisibleBlocks::Shared ZanDicVisibleBlocks::Make(const ZanHashList& own, const Shared& inherited) {
    if (own.Size() == 0) return inherited;
    const auto made = std::make_shared<ZanDicVisibleBlocks>();
    assertion::kNothingVisibleYet.Require(made->_BLOCKS.empty());
    for (int position = own.Size(); position >= 1; --position) {
        made->Add(static_cast<ZanDicAttributeBlock*>(own[position]));
    }
    for (ZanDicAttributeBlock* const block : inherited->_BLOCKS) made->Add(block);
    return made;
}

/// A block without a root stands for itself.
void ZanDicVisibleBlocks::Add(ZanDicAttributeBlock* block) {
    const ZanDicAttributeBlock* const root = block->get_Root() != nullptr ? block->get_Root() : block;
    if (_OFROOT.emplace(root, block).second) _BLOCKS.push_back(block);
}

ZanDicAttributeBlock* ZanDicVisibleBlocks::OfRoot(const ZanDicAttributeBlock& root) const {
    const auto found = _OFROOT.find(&root);
    return found != _OFROOT.end() && found->second->get_Root() == &root ? found->second : nullptr;
}

const ZanDicClassBlocks* ZanDicClass::blocks() const {
    return fields() != nullptr ? fields()->blocks.get() : nullptr;
}

ZanDicClassBlocks& ZanDicClass::make_Blocks() {
    std::unique_ptr<ZanDicClassBlocks>& blocks = make_Fields().blocks;
    if (blocks == nullptr) blocks = std::make_unique<ZanDicClassBlocks>();
    // NOLINTNEXTLINE(clang-analyzer-core.uninitialized.UndefReturn): it was made just now at the latest.
    return *blocks;
}

const ZanHashList& ZanDicClass::own_Blocks() const {
    static const ZanHashList none(29);
    return blocks() != nullptr ? blocks()->own : none;
}

const ZanDicVisibleBlocks& ZanDicClass::visible_Blocks() {
    // NOLINTNEXTLINE(clang-analyzer-core.NonNullParamChecker): NoBlocks is never null.
    if (!ZanDicBlockClock::HasBlocks()) return *NoBlocks();
    const std::uint64_t state = ZanDicBlockClock::State();
    std::vector<ZanDicClass*> way;
    ZanDicClass* above = this;
    for (; above != nullptr; above = above->_SuperClass.Get()) {
        if (above->blocks() != nullptr && above->blocks()->visibleAt == state) break;
        way.push_back(above);
    }
    ZanDicVisibleBlocks::Shared visible = above != nullptr ? above->blocks()->visible : NoBlocks();
    for (auto next = way.rbegin(); next != way.rend(); ++next) {
        ZanDicClassBlocks& mine = (*next)->make_Blocks();
        visible = ZanDicVisibleBlocks::Make(mine.own, visible);
        mine.visible = visible;
        mine.visibleAt = state;
    }
    return *blocks()->visible;
}

ZanDicAttributeBlock* ZanDicClass::find_BlockOfRoot(const ZanDicAttributeBlock& root) {
    return visible_Blocks().OfRoot(root);
}

HRESULT ZanDicClass::RegisterBlockByName(OXMIDicAttributeBlock* block, const ZELString* name) {
    auto* const object = LiveImplementationOf<ZanDicAttributeBlock>(block);
    if (object == nullptr || name == nullptr || is_Gone()) return E_FAIL;
    ZanHashList& own = make_Blocks().own;
    ZanDicObj* present = nullptr;
    if (Succeeded(own.Search(object->Name(), &present))) {
        if (present != object) TellBlockTwice(*this, *object);
        return E_FAIL;
    }
    object->set_Listed();
    return own.Append(object);
}

HRESULT ZanDicClass::GetClassAttBlocks(ZELListPtrIUnknown* list) const {
    if (list == nullptr) return E_FAIL;
    const ZanHashList& own = own_Blocks();
    for (int position = 1; position <= own.Size(); ++position) {
        if (own[position] != nullptr) AppendInterface(*own[position], list);
    }
    return S_OK;
}

HRESULT ZanDicClass::GetAttBlocks(ZELListPtrIUnknown* list) {
    if (list == nullptr) return E_FAIL;
    for (const ZanDicAttributeBlock* block : visible_Blocks().List()) AppendInterface(*block, list);
    return S_OK;
}

HRESULT ZanDicClass::GetAllAttributeBlockList(ZELListPtrIUnknown* list) { return GetAttBlocks(list); }

HRESULT ZanDicClass::HasAttBlocks(unsigned char* hasBlocks) {
    if (hasBlocks == nullptr) return E_FAIL;
    *hasBlocks = visible_Blocks().List().empty() ? 0 : 1;
    return S_OK;
}

HRESULT ZanDicClass::GetAttBlock(const ZELString* name, OXMIDicAttributeBlock** block) {
    if (name == nullptr || block == nullptr) return E_FAIL;
    ZanDicObj* found = nullptr;
    if (Succeeded(own_Blocks().Search(*name, &found))) return HandOutAs(*found, block);
    for (const ZanDicAttributeBlock* visible : visible_Blocks().List()) {
        if (visible->Name() == *name) return HandOutAs(*visible, block);
    }
    return E_FAIL;
}

HRESULT ZanDicClass::GetAttBlockForAtt(const ZELString* attributeName, OXMIDicAttributeBlock** block) {
    if (attributeName == nullptr || block == nullptr) return E_FAIL;
    for (const ZanDicAttributeBlock* visible : visible_Blocks().List()) {
        if (ZanDicBlockPart::Find(visible->get_Attributes(), *attributeName) != nullptr) {
            return HandOutAs(*visible, block);
        }
    }
    return E_FAIL;
}
