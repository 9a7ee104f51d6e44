/// What the reader of tuning documents needs of the model beside the interfaces: the computation of the
/// blocks of several packages at once, the faults of it as values, and whether a block was described.
#ifndef ZAN_DIC_TUNING_H
#define ZAN_DIC_TUNING_H

#include <span>
#include <string>
#include <vector>

#include "OXMIDicAttributeBlock.h"
#include "OXMIDicPackage.h"
#include "ZELDbBinary.h"
#include "ZELListPtr.h"
#include "ZELResult.h"

/// A fault of blocks.
struct ZanDicBlockFault {
    std::vector<std::string> lines;  ///< for standard error
    std::string reason;              ///< what is wrong, in one plain sentence without full stop
    ZELDbBinary block;               ///< the block at fault; empty when it is a class
    ZELDbBinary owner;               ///< the class at fault, or that of the block; empty when there is none
    std::string ownerName;
};

/// Is told faults instead of standard error, which is then its own business.
class ZanDicBlockFaultListener {
public:
    virtual void OnBlockFault(const ZanDicBlockFault& fault) = 0;

protected:
    ~ZanDicBlockFaultListener() = default;
};

/// Tells the listener that is set, or writes the lines to standard error.
void ZanDicTellBlockFault(const ZanDicBlockFault& fault);

/// Sets the listener for as long as this lives.
class ZanDicBlockFaultScope {
public:
    explicit ZanDicBlockFaultScope(ZanDicBlockFaultListener* listener);
    ~ZanDicBlockFaultScope();
    ZanDicBlockFaultScope(const ZanDicBlockFaultScope&) = delete;
    ZanDicBlockFaultScope& operator=(const ZanDicBlockFaultScope&) = delete;

private:
    ZanDicBlockFaultListener* _Before;
};

/// One package whose blocks are computed, alone or together with others.
struct ZanDicTuningMember {
    OXMIDicPackage& package;
    const ZELListPtrIUnknown& blocks;
    ZanDicBlockFaultListener* listener = nullptr;  ///< null: standard error
    HRESULT result = S_OK;  ///< of the computation; one that failed before takes no part
};

/// Computes the blocks of all members: each pass goes over the blocks of every member before the next begins,
/// so that blocks may extend each other. One that fails takes no part in what follows.
/// `OXMIDicPackage::ComputeAttributeBlocks` is the same for one member.
void ZanDicComputeTunings(std::span<ZanDicTuningMember> members);

/// Marks a block as described. \returns false when it was described before, or has a name or attributes.
bool ZanDicBeginDescription(OXMIDicAttributeBlock& block);

#endif
