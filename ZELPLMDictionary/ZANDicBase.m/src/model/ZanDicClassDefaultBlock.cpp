// The default block of a class: of the attributes that no declared block holds.
#include <string_view>
#include <unordered_set>
#include <vector>

#include "OXMIDicAttributeBlock.h"
#include "ZELHash.h"
#include "ZELUuid.h"
#include "ZanDicAttribute.h"
#include "ZanDicBlockPart.h"
#include "ZanDicBlockTexts.h"
#include "ZanDicClass.h"
#include "ZanDicClassFields.h"
#include "ZanDicHandOut.h"
#include "ZanDicImplementation.h"
#include "ZanDicPackage.h"
#include "ZanDicRef.h"

ZanDicAttributeBlock* ZanDicClass::default_Block() const {
    return blocks() != nullptr ? blocks()->defaultBlock.Get() : nullptr;
}

HRESULT ZanDicClass::GetCBlockForAtt(const ZELString* attributeName, int create,
                                     OXMIDicAttributeBlock** block) {
    if (block == nullptr) return E_FAIL;
    *block = nullptr;
    if (get_Package() == nullptr) return E_FAIL;
    if (default_Block() == nullptr && attributeName == nullptr && create == 0) return S_FALSE;
    std::vector<ZanDicClass*> without;
    if (!list_WithoutDefaultBlock(without)) return E_FAIL;
    try {
        for (auto next = without.rbegin(); next != without.rend(); ++next) {
            if (const HRESULT rc = (*next)->make_DefaultBlock(); Failed(rc)) return rc;
        }
        const ZanDicAttributeBlock& found = *default_Block();
        if (attributeName != nullptr &&
            ZanDicBlockPart::Find(found.get_Attributes(), *attributeName) == nullptr) {
            return E_FAIL;
        }
        return HandOutAs(found, block);
    } catch (...) {
        for (const ZanDicClass* const each : without) {
            ZanDicAttributeBlock* const made = each->default_Block();
            if (made != nullptr) each->get_Package()->drop_Block(*made);
        }
        throw;
    }
}

/// Lists this class and the classes above it up to the first that has a default block. \returns whether each
/// of them has a package, without which it cannot get one.
bool ZanDicClass::list_WithoutDefaultBlock(std::vector<ZanDicClass*>& without) {
    for (ZanDicClass* next = this; next != nullptr; next = next->get_SuperClass()) {
        if (next->get_Package() == nullptr) return false;
        if (next->default_Block() != nullptr) break;
        without.push_back(next);
    }
    return true;
}

HRESULT ZanDicClass::make_DefaultBlock() {
    const ZELDbBinary uuid = getuuid();
    ZanDicRef<OXMIDicAttributeBlock> face;
    if (Failed(get_Package()->CreateAttributeBlock(&uuid, face.Out()))) return E_FAIL;
    auto& block = *LiveImplementationOf<ZanDicAttributeBlock>(face.Get());
    try {
        const ZELString name(blocktext::kDefaultBlock);
        block.SetName(&name);
        block.begin_Description();
        block.set_Class(*this);
        ZanDicAttributeBlock* const father = _SuperClass ? _SuperClass->default_Block() : nullptr;
        if (father != nullptr) block.set_Father(*father);
        block.set_Root(father != nullptr && father->get_Root() != nullptr ? *father->get_Root() : block);
        fill_DefaultBlock(block);
        make_Blocks().defaultBlock = &block;
    } catch (...) {
        get_Package()->drop_Block(block);
        throw;
    }
    return S_OK;
}

void ZanDicClass::fill_DefaultBlock(ZanDicAttributeBlock& block) {
    std::unordered_set<std::string_view, ZELTextHash> held;
    for (const ZanDicAttributeBlock* visible : visible_Blocks().List()) {
        ZanDicBlockPart::ForEach(visible->get_Attributes(), [&held](const ZanDicAttribute& attribute) {
            held.insert(attribute.Name().View());
        });
    }
    ZanDicAllAttributes::List all = ZanDicAllAttributes::ListAlive(_ALLATTRIBUTES);
    if (all.empty()) {
        compute_AllAttributes();
        all = ZanDicAllAttributes::ListAlive(_ALLATTRIBUTES);
    }
    for (auto next = all.rbegin(); next != all.rend(); ++next) {
        ZanDicAttribute* const attribute = *next;
        if (attribute->Type() == OXMDicTYPE_Inverse) continue;
        unsigned char isMultiValuated = 0;
        attribute->GetMultiValuated(&isMultiValuated);
        if (isMultiValuated != 1 && !held.contains(attribute->Name().View())) block.add_Attribute(*attribute);
    }
}
