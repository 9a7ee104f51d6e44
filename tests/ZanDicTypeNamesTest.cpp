#include "ZanDicTypeNames.h"

#include <gtest/gtest.h>

TEST(ZanDicTypeNamesTest, NamesTheCodesFromOneToTwentySix) {
    EXPECT_EQ(ZanDicTypeName(OXMDicTYPE_Primitive), "Primitive");
    EXPECT_EQ(ZanDicTypeName(OXMDicTYPE_Category), "Category");
    EXPECT_EQ(ZanDicTypeName(OXMDicTYPE_Enum), "Enum");
    EXPECT_EQ(ZanDicTypeName(OXMDicTYPE_Simple), "Simple");
    EXPECT_EQ(ZanDicTypeName(OXMDicTYPE_Class), "Class");
    EXPECT_EQ(ZanDicTypeName(OXMDicTYPE_Relationship), "Relationship");
    EXPECT_EQ(ZanDicTypeName(OXMDicTYPE_Inverse), "Inverse");
    EXPECT_EQ(ZanDicTypeName(OXMDicTYPE_Interface), "Interface");
    EXPECT_EQ(ZanDicTypeName(OXMDicTYPE_Method), "Method");
    EXPECT_EQ(ZanDicTypeName(OXMDicTYPE_Parameter), "Parameter");
    EXPECT_EQ(ZanDicTypeName(OXMDicTYPE_Package), "Package");
    EXPECT_EQ(ZanDicTypeName(OXMDicTYPE_BObject), "BObject");
    EXPECT_EQ(ZanDicTypeName(OXMDicTYPE_Extension), "Extension");
    EXPECT_EQ(ZanDicTypeName(OXMDicTYPE_BOLink), "BOLink");
    EXPECT_EQ(ZanDicTypeName(OXMDicTYPE_Unique), "Unique");
    EXPECT_EQ(ZanDicTypeName(OXMDicTYPE_Command), "Command");
    EXPECT_EQ(ZanDicTypeName(OXMDicTYPE_Implement), "Implement");
    EXPECT_EQ(ZanDicTypeName(OXMDicTYPE_Security), "Security");
    EXPECT_EQ(ZanDicTypeName(OXMDicTYPE_CommandParameter), "CommandParameter");
    EXPECT_EQ(ZanDicTypeName(OXMDicTYPE_Enumerator), "Enumerator");
    EXPECT_EQ(ZanDicTypeName(OXMDicTYPE_AttributeBlock), "AttributeBlock");
    EXPECT_EQ(ZanDicTypeName(OXMDicTYPE_RBOClass), "RBOClass");
    EXPECT_EQ(ZanDicTypeName(OXMDicTYPE_RBOMapping), "RBOMapping");
    EXPECT_EQ(ZanDicTypeName(OXMDicTYPE_RBORoot), "RBORoot");
    EXPECT_EQ(ZanDicTypeName(OXMDicTYPE_RBOComponent), "RBOComponent");
    EXPECT_EQ(ZanDicTypeName(OXMDicTYPE_RBOPathExpression), "RBOPathExpression");
}

TEST(ZanDicTypeNamesTest, HasAQuestionMarkForAllOthers) {
    EXPECT_EQ(ZanDicTypeName(OXMDicTYPE_UNDEFINED), "?");
    EXPECT_EQ(ZanDicTypeName(static_cast<OXMDicTYPE>(-1)), "?");
    EXPECT_EQ(ZanDicTypeName(static_cast<OXMDicTYPE>(27)), "?");
}
