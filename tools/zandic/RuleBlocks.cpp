#include "RuleBlocks.h"

#include <fmt/format.h>

#include "OXMIDicAttributeBlock.h"
#include "RuleCodes.h"

namespace tool {

void BlockRules::AddBlock(const RuleElement& element) {
    _HOLDS.resize(_Document.Document().ElementCount(), Holds::Something);
    const ZELVBTXMLAttribute& list = element[Slot::AttributeUuids];
    if (!list || list.Value().find_first_not_of(' ') != std::string_view::npos) return;
    const Party* const father = element.TargetOf(Slot::Extents);
    const bool isLost = element[Slot::Extents] && father == nullptr;  // the reader tells of that
    _HOLDS[element.node.Index()] = isLost ? Holds::Something : Holds::Unknown;
    if (!isLost) _EMPTY.push_back({element.node, father != nullptr ? *father : Party()});
}

BlockRules::Holds BlockRules::holds_Elsewhere(const Party& block) const {
    const auto object = zandic::As<OXMIDicAttributeBlock>(block.object);
    if (!object) return Holds::Something;
    return zandic::Attributes(*object).IsEmpty() ? Holds::Nothing : Holds::Something;
}

/// Fathers may stand behind those that extend them: each round settles those whose father is settled. What is
/// never settled extends itself, which the reader tells.
void BlockRules::Finish() {
    std::vector<std::vector<std::size_t>> heirs(_HOLDS.size());
    std::vector<std::size_t> settled;
    const auto settle = [&](std::size_t index, Holds holds) {
        _HOLDS[_EMPTY[index].node.Index()] = holds;
        settled.push_back(index);
    };
    for (std::size_t index = 0; index < _EMPTY.size(); ++index) {
        const Party& father = _EMPTY[index].father;
        if (!father) {
            settle(index, Holds::Nothing);
        } else if (!father.IsHere()) {
            settle(index, holds_Elsewhere(father));
        } else if (const Holds holds = _HOLDS[father.node.Index()]; holds == Holds::Something) {
            settle(index, holds);
        } else {
            heirs[father.node.Index()].push_back(index);
        }
    }
    for (std::size_t next = 0; next < settled.size(); ++next) {
        const ZELVBTXMLNode node = _EMPTY[settled[next]].node;
        for (const std::size_t heir : heirs[node.Index()]) settle(heir, _HOLDS[node.Index()]);
    }
    for (const Block& block : _EMPTY) {
        if (_HOLDS[block.node.Index()] != Holds::Nothing) continue;
        _Document.Tell(
            rule::kEmptyBlock, block.node,
            fmt::format("attribute block {} covers no attribute", Quoted(_Document.Name(block.node))));
    }
}

}  // namespace tool
