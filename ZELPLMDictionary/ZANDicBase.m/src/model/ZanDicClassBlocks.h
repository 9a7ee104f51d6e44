/// The attribute blocks of a class.
#ifndef ZAN_DIC_CLASS_BLOCKS_H
#define ZAN_DIC_CLASS_BLOCKS_H

#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "ZanDicAllAttributes.h"
#include "ZanDicAttributeBlock.h"
#include "ZanHashList.h"

/// A clock over the blocks of all classes.
class ZanDicBlockClock {
public:
    /// What is visible in classes is right as long as this stands still.
    static std::uint64_t State() { return changes + ZanDicHierarchy::State(); }
    /// To be said when a registered block gets its root, or goes.
    static void Changed() { ++changes; }

    /// To be said when one is registered; whether one ever was.
    static void Registered() {
        hasBlocks = true;
        Changed();
    }
    static bool HasBlocks() { return hasBlocks; }

private:
    static std::uint64_t changes;
    static bool hasBlocks;
};

/// The blocks visible in a class: one of each root, the most derived one, the class's own ones first. Right
/// at one state of the clock, and not to be followed at another. Shared by classes that add none.
class ZanDicVisibleBlocks {
public:
    using Shared = std::shared_ptr<const ZanDicVisibleBlocks>;

    /// \returns the blocks of a class that has \p own ones, the last of them first, and inherits the others.
    static Shared Make(const ZanHashList& own, const Shared& inherited);

    const std::vector<ZanDicAttributeBlock*>& List() const { return _BLOCKS; }

    /// \returns the block of a root; null when there is none.
    ZanDicAttributeBlock* OfRoot(const ZanDicAttributeBlock& root) const;

private:
    void Add(ZanDicAttributeBlock* block);

    std::vector<ZanDicAttributeBlock*> _BLOCKS;
    std::unordered_map<const ZanDicAttributeBlock*, ZanDicAttributeBlock*> _OFROOT;
};

/// \returns "Package::Class".
std::string QualifiedName(const ZanDicClass& owner);

/// Tells that another block that is visible in \p owner has the name of \p block.
void TellBlockTwice(const ZanDicClass& owner, const ZanDicAttributeBlock& block);

/// What a class that has to do with blocks keeps of them.
struct ZanDicClassBlocks {
    ZanHashList own{29};  ///< links: the registered ones, by name, in order
    ZanDicVisibleBlocks::Shared visible;
    std::uint64_t visibleAt = 0;                    ///< state of the clock at which they are the answer
    ZanDicLink<ZanDicAttributeBlock> defaultBlock;  ///< not owning: of the attributes that no block has
};

#endif
