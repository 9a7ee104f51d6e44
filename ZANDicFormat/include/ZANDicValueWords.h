/// The value words of enumerated attributes with their codes, and what an unknown word stands for.
#ifndef ZAN_DIC_VALUE_WORDS_H
#define ZAN_DIC_VALUE_WORDS_H

#include "OXMDicTypes.h"
#include "ZANDicCodeWord.h"
#include "ZANDicWords.h"

namespace ZANDicFormat {

/// Content words: the extension of a document's file name, and the kind of content.
inline constexpr CodeWord kContentWords[] = {
    {"metadata", OXMDicCONTENT_metadata}, {"tuning", OXMDicCONTENT_tuning},
    {"rbodef", OXMDicCONTENT_rbodef},     {"rbomap", OXMDicCONTENT_rbomap},
    {"metaplm", OXMDicCONTENT_metaplm},
};

/// Any other word stands for kOtherVisibility.
inline constexpr CodeWord kVisibilityWords[] = {
    {"Public", OXMDicVISIBILITY_Public},
    {"Protected", OXMDicVISIBILITY_Protected},
    {"Private", OXMDicVISIBILITY_Private},
};
inline constexpr OXMDicVISIBILITY kOtherVisibility = OXMDicVISIBILITY_Public;

/// Any other word, here and in kAccessModeRelationWords, stands for kOtherAccessMode.
inline constexpr CodeWord kAccessModeSimpleWords[] = {
    {"None", OXMDicACCESSMODE_None},
    {"Read", OXMDicACCESSMODE_Read},
    {"Write", OXMDicACCESSMODE_Write},
    {"ReadWrite", OXMDicACCESSMODE_ReadWrite},
};
/// The access modes of relationships and inverses: "None" is no word of theirs.
inline constexpr CodeWord kAccessModeRelationWords[] = {
    kAccessModeSimpleWords[1],
    kAccessModeSimpleWords[2],
    kAccessModeSimpleWords[3],
};
inline constexpr OXMDicACCESSMODE kOtherAccessMode = OXMDicACCESSMODE_ReadWrite;

/// Any other word leaves the attribute as it is.
inline constexpr CodeWord kCaseModeWords[] = {
    {"Upper", OXMDicCASEMODE_Upper},
    {"Lower", OXMDicCASEMODE_Lower},
    {"Mixed", OXMDicCASEMODE_Mixed},
};

/// Any other word leaves the attribute as it is.
inline constexpr CodeWord kUpdateFacetWords[] = {
    {"IN", OXMDicUPDATEFACET_IN},
    {"OUT", OXMDicUPDATEFACET_OUT},
    {"NEUTRAL", OXMDicUPDATEFACET_NEUTRAL},
};

/// Any other word leaves the attribute as it is.
inline constexpr CodeWord kCollectionWords[] = {
    {"Array", OXMDicCOLLECTION_Array},
    {"Bag", OXMDicCOLLECTION_Bag},
    {"List", OXMDicCOLLECTION_List},
    {"Set", OXMDicCOLLECTION_Set},
};

/// Any other word stands for kOtherAggregation.
inline constexpr CodeWord kAggregationWords[] = {
    {"None", OXMDicAGGREGATION_None},
    {"Shared", OXMDicAGGREGATION_Shared},
    {"Composition", OXMDicAGGREGATION_Composition},
};
inline constexpr OXMDicAGGREGATION kOtherAggregation = OXMDicAGGREGATION_None;

/// Any other word stands for kOtherScope, which has no word.
inline constexpr CodeWord kScopeWords[] = {
    {"External", OXMDicSCOPE_External},
    {"Vault", OXMDicSCOPE_Vault},
};
inline constexpr OXMDicSCOPE kOtherScope = OXMDicSCOPE_None;

/// Whether classes may be derived. Any other word stands for kOtherKVADerivable, which has no word.
inline constexpr CodeWord kKVADerivableWords[] = {
    {value::kNo, OXMDicKVADERIVABLE_No},
    {value::kYes, OXMDicKVADERIVABLE_Yes},
    {"Multiple", OXMDicKVADERIVABLE_Multiple},
};
inline constexpr OXMDicKVADERIVABLE kOtherKVADerivable = OXMDicKVADERIVABLE_Inherited;

/// The names of all primitives. Which of them a `Type` may name depends on the tag.
inline constexpr CodeWord kPrimitiveWords[] = {
    {"Boolean", OXMDicPRIMITIVEType_Boolean},
    {"Integer", OXMDicPRIMITIVEType_Integer},
    {"Double", OXMDicPRIMITIVEType_Double},
    {"String", OXMDicPRIMITIVEType_String},
    {"Binary", OXMDicPRIMITIVEType_Binary},
    {"Date", OXMDicPRIMITIVEType_Date},
    {"Logical", OXMDicPRIMITIVEType_Logical},
    {"URL", OXMDicPRIMITIVEType_URL},
    {value::kAnyObject, OXMDicPRIMITIVEType_AnyObject},
};
/// `Type` of a simple attribute or a parameter: the primitives from Boolean to Logical.
inline constexpr std::span<const CodeWord> kSimpleTypeWords = std::span(kPrimitiveWords).first(7);
/// `Type` of a relationship or inverse; any other word stands for kOtherRelationType.
inline constexpr CodeWord kRelationTypeWords[] = {
    kPrimitiveWords[OXMDicPRIMITIVEType_Binary - 1],
    kPrimitiveWords[OXMDicPRIMITIVEType_String - 1],
    kPrimitiveWords[OXMDicPRIMITIVEType_URL - 1],
};
inline constexpr OXMDicPRIMITIVEType kOtherRelationType = OXMDicPRIMITIVEType_Binary;

/// Direction of a parameter; any other word is a fault.
inline constexpr CodeWord kKindWords[] = {
    {"In", OXMDicKIND_In},
    {"Out", OXMDicKIND_Out},
    {"IO", OXMDicKIND_IO},
    {"Return", OXMDicKIND_Return},
};

/// Words of Implement and Security, which no element stores: they are here for checks and
/// documentation. Any other word stands for 1.
inline constexpr CodeWord kIOModeWords[] = {{"InComming", 2}, {"OutGoing", 3}};
inline constexpr CodeWord kSecuredWords[] = {{"None", 1}, {"Unconditional", 2}, {"Secured", 3}};
inline constexpr CodeWord kEventTypeWords[] = {{"Public", 2}, {"Protected", 3}, {"Private", 4}};
inline constexpr CodeWord kEventModeWords[] = {{"After", 1}, {"Before", 2}, {"Veto", 3}};

/// The tags of elements and their members, with the kind of object that each makes.
inline constexpr CodeWord kElementTags[] = {
    {tag::kPackage, OXMDicTYPE_Package},
    {tag::kClass, OXMDicTYPE_Class},
    {tag::kInstance, OXMDicTYPE_Class},
    {tag::kExtension, OXMDicTYPE_Extension},
    {tag::kSimple, OXMDicTYPE_Simple},
    {tag::kRelationship, OXMDicTYPE_Relationship},
    {tag::kInverse, OXMDicTYPE_Inverse},
    {tag::kUnique, OXMDicTYPE_Unique},
    {tag::kImplement, OXMDicTYPE_Implement},
    {tag::kSecurity, OXMDicTYPE_Security},
    {tag::kInterface, OXMDicTYPE_Interface},
    {tag::kMethod, OXMDicTYPE_Method},
    {tag::kParameter, OXMDicTYPE_Parameter},
    {tag::kEnum, OXMDicTYPE_Enum},
    {tag::kEnumerator, OXMDicTYPE_Enumerator},
    {tag::kCategory, OXMDicTYPE_Category},
    {tag::kCommand, OXMDicTYPE_Command},
    {tag::kBObject, OXMDicTYPE_BObject},
    {tag::kRBOClass, OXMDicTYPE_RBOClass},
    {tag::kRBOMapping, OXMDicTYPE_RBOMapping},
    {tag::kRBORoot, OXMDicTYPE_RBORoot},
    {tag::kRBOComponent, OXMDicTYPE_RBOComponent},
    {tag::kRBOPathExpression, OXMDicTYPE_RBOPathExpression},
    {tag::kAttributeBlock, OXMDicTYPE_AttributeBlock},
    {tag::kAttributeBlockExtension, OXMDicTYPE_AttributeBlock},
};

}  // namespace ZANDicFormat

#endif
