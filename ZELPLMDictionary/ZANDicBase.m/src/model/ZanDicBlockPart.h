/// The attributes of a block.
#ifndef ZAN_DIC_BLOCK_PART_H
#define ZAN_DIC_BLOCK_PART_H

#include <memory>
#include <string_view>
#include <unordered_set>
#include <utility>

#include "ZELHash.h"
#include "ZanDicAttribute.h"
#include "ZanHashList.h"

/// The own attributes of a block, and the part of its father, which it shares: so the blocks of a chain need
/// memory for their own attributes only. A part that somebody shares is not changed any more. Links: an
/// attribute that is gone is left out.
struct ZanDicBlockPart {
    ZanDicBlockPart() = default;
    ZanDicBlockPart(const ZanDicBlockPart&) = default;
    ZanDicBlockPart& operator=(const ZanDicBlockPart&) = delete;

    /// Gives a long chain back link by link: its length is no depth of calls.
    ~ZanDicBlockPart() {
        std::shared_ptr<ZanDicBlockPart> next = std::move(inherited);
        while (next != nullptr && next.use_count() == 1) next = std::move(next->inherited);
    }

    /// \returns the first attribute of that name; null when there is none.
    static ZanDicAttribute* Find(const ZanDicBlockPart* first, const ZELString& name) {
        for (const ZanDicBlockPart* part = first; part != nullptr; part = part->inherited.get()) {
            ZanDicObj* found = nullptr;
            if (Succeeded(part->own.Search(name, &found))) return static_cast<ZanDicAttribute*>(found);
        }
        return nullptr;
    }

    /// Gives each attribute to \p visit, the own ones first; of one name only the first.
    template <class Visit>
    static void ForEach(const ZanDicBlockPart* first, const Visit& visit) {
        std::unordered_set<std::string_view, ZELTextHash> names;
        const bool isShared = first != nullptr && first->inherited != nullptr;
        for (const ZanDicBlockPart* part = first; part != nullptr; part = part->inherited.get()) {
            const int size = part->own.Size();
            for (int position = 1; position <= size; ++position) {
                auto* const attribute = static_cast<ZanDicAttribute*>(part->own[position]);
                if (!isShared || names.insert(attribute->Name().View()).second) visit(*attribute);
            }
        }
    }

    ZanHashList own{29};
    std::shared_ptr<ZanDicBlockPart> inherited;  ///< null when nothing is; never changed through this
};

#endif
