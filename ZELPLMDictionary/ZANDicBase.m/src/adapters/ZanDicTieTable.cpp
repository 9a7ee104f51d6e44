#include "ZanDicTieTable.h"

#include "OXMIDicAttributeBlockTies.h"
#include "OXMIDicAttributeTies.h"
#include "OXMIDicClassTies.h"
#include "OXMIDicCommandTies.h"
#include "OXMIDicElementTies.h"
#include "OXMIDicInterfaceTies.h"
#include "OXMIDicMemberTies.h"
#include "OXMIDicPackageTies.h"
#include "OXMIDicRBOTies.h"
#include "ZanDicAttribute.h"
#include "ZanDicAttributeBlock.h"
#include "ZanDicBOLink.h"
#include "ZanDicBObject.h"
#include "ZanDicCategory.h"
#include "ZanDicClass.h"
#include "ZanDicCommand.h"
#include "ZanDicCommandParameter.h"
#include "ZanDicEnum.h"
#include "ZanDicEnumerator.h"
#include "ZanDicExtension.h"
#include "ZanDicMethod.h"
#include "ZanDicPackage.h"
#include "ZanDicParameter.h"
#include "ZanDicPrimitive.h"
#include "ZanDicRBOClass.h"
#include "ZanDicRBOComponent.h"
#include "ZanDicRBOMapping.h"
#include "ZanDicRBOPathExpression.h"
#include "ZanDicRBORoot.h"
#include "ZanDicUnique.h"

namespace {

constexpr ZELTieRow kObjRows[] = {
    ZELMakeTieRow<OXMIDicElementHTie<ZanDicObj>>(),
    ZELMakeTieRow<OXMIDicAppTie<ZanDicObj>>(),
};
constexpr ZELTieRow kElementRows[] = {ZELMakeTieRow<OXMIDicElementTie<ZanDicElement>>()};
constexpr ZELTieRow kPackageRows[] = {ZELMakeTieRow<OXMIDicPackageTie<ZanDicPackage>>()};
constexpr ZELTieRow kClassRows[] = {
    ZELMakeTieRow<OXMIDicClassTie<ZanDicClass>>(),
    ZELMakeTieRow<OXMIDicInterfaceTie<ZanDicClass>>(),
};
constexpr ZELTieRow kExtensionRows[] = {ZELMakeTieRow<OXMIDicExtensionTie<ZanDicExtension>>()};
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
constexpr ZELTieRow kMethodRows[] = {ZELMakeTieRow<OXMIDicMethodTie<ZanDicMethod>>()};
constexpr ZELTieRow kParameterRows[] = {ZELMakeTieRow<OXMIDicParameterTie<ZanDicParameter>>()};
constexpr ZELTieRow kCommandRows[] = {ZELMakeTieRow<OXMIDicCommandTie<ZanDicCommand>>()};
constexpr ZELTieRow kCommandParameterRows[] = {
    ZELMakeTieRow<OXMIDicCommandParameterTie<ZanDicCommandParameter>>()};
constexpr ZELTieRow kBObjectRows[] = {ZELMakeTieRow<OXMIDicBObjectTie<ZanDicBObject>>()};
constexpr ZELTieRow kBOLinkRows[] = {ZELMakeTieRow<OXMIDicBOLinkTie<ZanDicBOLink>>()};
constexpr ZELTieRow kRBOClassRows[] = {ZELMakeTieRow<OXMIDicRBOClassTie<ZanDicRBOClass>>()};
constexpr ZELTieRow kRBOMappingRows[] = {ZELMakeTieRow<OXMIDicRBOMappingTie<ZanDicRBOMapping>>()};
constexpr ZELTieRow kRBORootRows[] = {ZELMakeTieRow<OXMIDicRBORootTie<ZanDicRBORoot>>()};
constexpr ZELTieRow kRBOComponentRows[] = {ZELMakeTieRow<OXMIDicRBOComponentTie<ZanDicRBOComponent>>()};
constexpr ZELTieRow kRBOPathExpressionRows[] = {
    ZELMakeTieRow<OXMIDicRBOPathExpressionTie<ZanDicRBOPathExpression>>()};
constexpr ZELTieRow kAttributeBlockRows[] = {ZELMakeTieRow<OXMIDicAttributeBlockTie<ZanDicAttributeBlock>>()};

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
        {ZanDicExtension::ClassMeta(), kExtensionRows},
        {ZanDicAttribute::ClassMeta(), kAttributeRows},
        {ZanDicEnum::ClassMeta(), kEnumRows},
        {ZanDicEnumerator::ClassMeta(), kEnumeratorRows},
        {ZanDicPrimitive::ClassMeta(), kPrimitiveRows},
        {ZanDicCategory::ClassMeta(), kCategoryRows},
        {ZanDicUnique::ClassMeta(), kUniqueRows},
        {ZanDicMethod::ClassMeta(), kMethodRows},
        {ZanDicParameter::ClassMeta(), kParameterRows},
        {ZanDicCommand::ClassMeta(), kCommandRows},
        {ZanDicCommandParameter::ClassMeta(), kCommandParameterRows},
        {ZanDicBObject::ClassMeta(), kBObjectRows},
        {ZanDicBOLink::ClassMeta(), kBOLinkRows},
        {ZanDicRBOClass::ClassMeta(), kRBOClassRows},
        {ZanDicRBOMapping::ClassMeta(), kRBOMappingRows},
        {ZanDicRBORoot::ClassMeta(), kRBORootRows},
        {ZanDicRBOComponent::ClassMeta(), kRBOComponentRows},
        {ZanDicRBOPathExpression::ClassMeta(), kRBOPathExpressionRows},
        {ZanDicAttributeBlock::ClassMeta(), kAttributeBlockRows},
    };
    return table;
}
