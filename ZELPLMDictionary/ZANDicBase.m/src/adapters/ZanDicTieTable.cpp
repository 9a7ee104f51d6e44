#include "ZanDicTieTable.h"

#include "OXMIDicAttributeTies.h"
#include "OXMIDicClassTies.h"
#include "OXMIDicElementTies.h"
#include "OXMIDicMemberTies.h"
#include "OXMIDicPackageTies.h"
#include "ZanDicAttribute.h"
#include "ZanDicCategory.h"
#include "ZanDicClass.h"
#include "ZanDicEnum.h"
#include "ZanDicEnumerator.h"
#include "ZanDicPackage.h"
#include "ZanDicPrimitive.h"
#include "ZanDicUnique.h"

namespace {

constexpr ZELTieRow kObjRows[] = {
    ZELMakeTieRow<OXMIDicElementHTie<ZanDicObj>>(),
    ZELMakeTieRow<OXMIDicAppTie<ZanDicObj>>(),
};
constexpr ZELTieRow kElementRows[] = {ZELMakeTieRow<OXMIDicElementTie<ZanDicElement>>()};
constexpr ZELTieRow kPackageRows[] = {ZELMakeTieRow<OXMIDicPackageTie<ZanDicPackage>>()};
constexpr ZELTieRow kClassRows[] = {ZELMakeTieRow<OXMIDicClassTie<ZanDicClass>>()};
constexpr ZELTieRow kAttributeRows[] = {
    ZELMakeTieRow<OXMIDicSimpleTie<ZanDicAttribute>>(),
    ZELMakeTieRow<OXMIDicRelationshipTie<ZanDicAttribute>>(),
    ZELMakeTieRow<OXMIDicInverseTie<ZanDicAttribute>>(),
    ZELMakeTieRow<OXMIDicAttributeTie<ZanDicAttribute>>(),
};
constexpr ZELTieRow kEnumRows[] = {ZELMakeTieRow<OXMIDicEnumTie<ZanDicEnum>>()};
constexpr ZELTieRow kEnumeratorRows[] = {ZELMakeTieRow<OXMIDicEnumeratorTie<ZanDicEnumerator>>()};
constexpr ZELTieRow kPrimitiveRows[] = {ZELMakeTieRow<OXMIDicPrimitiveTie<ZanDicPrimitive>>()};
constexpr ZELTieRow kCategoryRows[] = {ZELMakeTieRow<OXMIDicCategoryTie<ZanDicCategory>>()};
constexpr ZELTieRow kUniqueRows[] = {ZELMakeTieRow<OXMIDicUniqueTie<ZanDicUnique>>()};

/// Registers the rows when the library is loaded.
[[maybe_unused]] const bool kRegistered = [] {
    for (const ZanDicTieTableEntry& entry : ZanDicTieTable()) entry.meta.RegisterTies(entry.rows);
    return true;
}();

}  // namespace

std::span<const ZanDicTieTableEntry> ZanDicTieTable() {
    static const ZanDicTieTableEntry table[] = {
        {ZanDicObj::ClassMeta(), kObjRows},
        {ZanDicElement::ClassMeta(), kElementRows},
        {ZanDicPackage::ClassMeta(), kPackageRows},
        {ZanDicClass::ClassMeta(), kClassRows},
        {ZanDicAttribute::ClassMeta(), kAttributeRows},
        {ZanDicEnum::ClassMeta(), kEnumRows},
        {ZanDicEnumerator::ClassMeta(), kEnumeratorRows},
        {ZanDicPrimitive::ClassMeta(), kPrimitiveRows},
        {ZanDicCategory::ClassMeta(), kCategoryRows},
        {ZanDicUnique::ClassMeta(), kUniqueRows},
    };
    return table;
}
