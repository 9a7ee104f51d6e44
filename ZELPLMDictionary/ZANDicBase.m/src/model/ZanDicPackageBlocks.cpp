// Attribute blocks: who makes and keeps them, and how those of one or several packages are computed.
#include <algorithm>
#include <iterator>
#include <string>
#include <unordered_set>

#include "OXMIDicAttributeBlock.h"
#include "ZELHash.h"
#include "ZanDicBlockAssertions.h"
#include "ZanDicBlockPart.h"
#include "ZanDicBlockTexts.h"
#include "ZanDicClass.h"
#include "ZanDicClassBlocks.h"
#include "ZanDicHandOut.h"
#include "ZanDicImplementation.h"
#include "ZanDicPackage.h"
#include "ZanDicRef.h"
#include "ZanDicRegistry.h"
#include "ZanDicTeardown.h"
#include "ZanDicTuning.h"

namespace {

/// Gives a block its name and registers it with its class.
HRESULT NameAndRegister(ZanDicAttributeBlock& block) {
    if (const HRESULT rc = block.BuildName(); Failed(rc)) return rc;
    ZanDicClass* const owner = block.get_Class();
    ZanDicRef<OXMIDicAttributeBlock> face;
    if (owner == nullptr || Failed(HandOutAs(block, face.Out()))) return E_FAIL;
    const ZELString name = block.Name();
    return owner->RegisterBlockByName(face.Get(), &name);
}

HRESULT BuildRoot(ZanDicAttributeBlock& block) { return block.BuildRoot(); }
HRESULT BuildFather(ZanDicAttributeBlock& block) { return block.BuildFather(); }
HRESULT BuildAllAttributes(ZanDicAttributeBlock& block) { return block.BuildAllAttributes(); }

/// The passes over all blocks, in order.
constexpr HRESULT (*kPasses[])(ZanDicAttributeBlock&) = {NameAndRegister, BuildRoot, BuildFather,
                                                         BuildAllAttributes};
static_assert(std::size(kPasses) == std::size(assertion::kBlockOfPass));

HRESULT RunPass(std::size_t pass, const ZELListPtrIUnknown& blocks) {
    for (const IUnknown* const face : blocks) {
        ZanDicObj* const object = ImplementationOf(face);
        const bool isBlock = object != nullptr && object->IsAKindOf(ZanDicAttributeBlock::ClassName()) != 0;
        assertion::kBlockOfPass[pass].Require(isBlock);
        const HRESULT rc = kPasses[pass](static_cast<ZanDicAttributeBlock&>(*object));
        if (Failed(rc)) return rc;
    }
    return S_OK;
}

/// Names that stand in more than one own block, each once, in the order in which they are met.
std::vector<std::string_view> FindDuplicates(const ZanHashList& own) {
    std::vector<std::string_view> duplicates;
    if (own.Size() < 2) return duplicates;  // within a block a name is there once
    std::unordered_set<std::string_view, ZELTextHash> names;
    std::unordered_set<std::string_view, ZELTextHash> told;
    for (int position = own.Size(); position >= 1; --position) {
        const auto& block = static_cast<const ZanDicAttributeBlock&>(*own[position]);
        ZanDicBlockPart::ForEach(block.get_Attributes(), [&](const ZanDicAttribute& attribute) {
            const std::string_view name = attribute.Name().View();
            if (!names.insert(name).second && told.insert(name).second) duplicates.push_back(name);
        });
    }
    return duplicates;
}

HRESULT CheckAttributes(const ZanDicClass& owner) {
    const std::vector<std::string_view> duplicates = FindDuplicates(owner.own_Blocks());
    if (duplicates.empty()) return S_OK;
    ZanDicBlockFault fault{{}, std::string(blocktext::kDuplicatesReason), {}, owner.Uuid(), ""};
    fault.ownerName = owner.Name().View();
    fault.lines.push_back(std::string(blocktext::kTuningError)
                              .append(QualifiedName(owner))
                              .append(blocktext::kDuplicatedAttributes));
    for (const std::string_view name : duplicates) {
        fault.reason.append(name == duplicates.front() ? "" : ", ").append(name);
    }
    for (std::size_t position = duplicates.size(); position >= 1; --position) {
        fault.lines.push_back("  [" + std::to_string(position) +
                              "]=" + std::string(duplicates[position - 1]));
    }
    ZanDicTellBlockFault(fault);
    return E_FAIL;
}

HRESULT CheckNames(const ZanDicClass& owner, const ZanDicVisibleBlocks& visible) {
    HRESULT result = S_OK;
    std::unordered_set<std::string_view, ZELTextHash> names;
    for (auto next = visible.List().rbegin(); next != visible.List().rend(); ++next) {
        const ZanDicAttributeBlock* const block = *next;
        assertion::kVisibleBlock.Require(block != nullptr);
        if (names.insert(block->Name().View()).second) continue;
        TellBlockTwice(owner, *block);
        result = E_FAIL;
    }
    return result;
}

}  // namespace

HRESULT ZanDicPackage::CreateAttributeBlock(const ZELDbBinary* uuid, OXMIDicAttributeBlock** block) {
    ZanDicRegistry* const registry = ZanDicGetRegistry();
    if (uuid == nullptr || block == nullptr || is_Gone() || registry == nullptr) return E_FAIL;
    ZanDicObj* known = nullptr;
    if (Succeeded(registry->search_Obj(uuid, &known))) return E_FAIL;
    ZanDicRef<ZanDicAttributeBlock> made(new ZanDicAttributeBlock(*uuid));
    if (const HRESULT rc = registry->Insert(made.Get()); Failed(rc)) return rc;
    ZanDicRef<OXMIDicAttributeBlock> face;
    if (const HRESULT rc = HandOutAs(*made, face.Out()); Failed(rc)) return rc;
    _BLOCKS.keep(*made);
    made.Detach();
    *block = face.Detach();
    return S_OK;
}

void ZanDicPackage::drop_Blocks() {
    ZanDicTaken blocks;
    blocks.Take(_BLOCKS);
    while (ZanDicObj* const block = blocks.Next()) {
        std::uint32_t refCount = 0;
        DropObject(*block, &refCount);
    }
}

void ZanDicPackage::drop_Block(ZanDicAttributeBlock& block) {
    std::uint32_t refCount = 0;
    if (_BLOCKS.take_Object(&block)) DropObject(block, &refCount);
}

/// Goes over all classes, the last first, also after an error.
HRESULT ZanDicPackage::check_Blocks() const {
    HRESULT result = S_OK;
    for (int position = _ELEMENTS.Size(); position >= 1; --position) {
        ZanDicObj* const element = _ELEMENTS[position];
        const bool isClass = element->Type() == OXMDicTYPE_Class || element->Type() == OXMDicTYPE_Extension;
        if (!isClass || element->get_type() != _type_Class) continue;
        auto& owner = static_cast<ZanDicClass&>(*element);
        const ZanDicVisibleBlocks& visible = owner.visible_Blocks();
        if (visible.List().empty()) continue;
        if (Failed(CheckAttributes(owner))) result = E_FAIL;
        if (Failed(CheckNames(owner, visible))) result = E_FAIL;
    }
    return result;
}

HRESULT ZanDicPackage::ComputeAttributeBlocks(const ZELListPtrIUnknown* createdBlocks) {
    assertion::kCreatedBlocks.Require(createdBlocks != nullptr);
    if (is_Gone()) return E_FAIL;
    ZanDicRef<OXMIDicPackage> face;
    if (Failed(HandOutAs(*this, face.Out()))) return E_FAIL;
    ZanDicTuningMember member{*face, *createdBlocks};
    ZanDicComputeTunings({&member, 1});
    return member.result;
}

void ZanDicComputeTunings(std::span<ZanDicTuningMember> members) {
    for (std::size_t pass = 0; pass < std::size(kPasses); ++pass) {
        for (ZanDicTuningMember& member : members) {
            if (Failed(member.result)) continue;
            const ZanDicBlockFaultScope faults(member.listener);
            member.result = RunPass(pass, member.blocks);
        }
    }
    for (ZanDicTuningMember& member : members) {
        if (Failed(member.result)) continue;
        const ZanDicBlockFaultScope faults(member.listener);
        const auto* const package = LiveImplementationOf<ZanDicPackage>(&member.package);
        member.result = package != nullptr ? package->check_Blocks() : E_FAIL;
    }
}
