/// The rule about the attribute blocks of a tuning document.
#ifndef ZANDIC_TOOL_RULE_BLOCKS_H
#define ZANDIC_TOOL_RULE_BLOCKS_H

#include <vector>

#include "RuleElement.h"

namespace tool {

/// Gathers the blocks, then tells of those that hold no attribute, not even by what they extend.
class BlockRules {
public:
    explicit BlockRules(RuleDocument& document) : _Document(document) {}

    void AddBlock(const RuleElement& element);
    void Finish();

private:
    enum class Holds : unsigned char { Unknown, Nothing, Something };

    struct Block {
        ZELVBTXMLNode node;
        Party father;
    };

    Holds holds_Elsewhere(const Party& block) const;

    RuleDocument& _Document;
    std::vector<Block> _EMPTY;  ///< those whose own list is
    std::vector<Holds> _HOLDS;  ///< by element
};

}  // namespace tool

#endif
