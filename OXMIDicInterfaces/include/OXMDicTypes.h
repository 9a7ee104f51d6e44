/// The public enumerations of the dictionary. All are 32-bit and signed; a value is stored as it is
/// given, so a variable of one of these types may hold a number that no enumerator names.
#ifndef OXM_DIC_TYPES_H
#define OXM_DIC_TYPES_H

#include <cstdint>

/// Kind of a dictionary object. The value also indexes the table of type names.
enum OXMDicTYPE : std::int32_t {
    OXMDicTYPE_UNDEFINED = 0,
    OXMDicTYPE_Primitive = 1,
    OXMDicTYPE_Category = 2,
    OXMDicTYPE_Enum = 3,
    OXMDicTYPE_Simple = 4,
    OXMDicTYPE_Class = 5,
    OXMDicTYPE_Relationship = 6,
    OXMDicTYPE_Inverse = 7,
    OXMDicTYPE_Interface = 8,
    OXMDicTYPE_Method = 9,
    OXMDicTYPE_Parameter = 10,
    OXMDicTYPE_Package = 11,
    OXMDicTYPE_BObject = 12,
    OXMDicTYPE_Extension = 13,
    OXMDicTYPE_BOLink = 14,
    OXMDicTYPE_Unique = 15,
    OXMDicTYPE_Command = 16,
    OXMDicTYPE_Implement = 17,  ///< has a name, but neither a class nor an interface
    OXMDicTYPE_Security = 18,   ///< has a name, but neither a class nor an interface
    OXMDicTYPE_CommandParameter = 19,
    OXMDicTYPE_Enumerator = 20,
    OXMDicTYPE_AttributeBlock = 21,
    OXMDicTYPE_RBOClass = 22,
    OXMDicTYPE_RBOMapping = 23,
    OXMDicTYPE_RBORoot = 24,
    OXMDicTYPE_RBOComponent = 25,
    OXMDicTYPE_RBOPathExpression = 26,
};

/// Kind of a built-in value type. The manager owns one primitive of each kind from 1 to 9.
enum OXMDicPRIMITIVEType : std::int32_t {
    OXMDicPRIMITIVEType_UNDEFINED = 0,
    OXMDicPRIMITIVEType_Boolean = 1,
    OXMDicPRIMITIVEType_Integer = 2,
    OXMDicPRIMITIVEType_Double = 3,
    OXMDicPRIMITIVEType_String = 4,
    OXMDicPRIMITIVEType_Binary = 5,
    OXMDicPRIMITIVEType_Date = 6,
    OXMDicPRIMITIVEType_Logical = 7,
    OXMDicPRIMITIVEType_URL = 8,
    OXMDicPRIMITIVEType_AnyObject = 9,
};

/// Who sees an element.
enum OXMDicVISIBILITY : std::int32_t {
    OXMDicVISIBILITY_Public = 1,
    OXMDicVISIBILITY_Protected = 2,
    OXMDicVISIBILITY_Private = 3,
};

/// How the values of an attribute may be used.
enum OXMDicACCESSMODE : std::int32_t {
    OXMDicACCESSMODE_None = 1,
    OXMDicACCESSMODE_Read = 2,
    OXMDicACCESSMODE_Write = 3,
    OXMDicACCESSMODE_ReadWrite = 4,
};

/// Letter case of the text values of an attribute.
enum OXMDicCASEMODE : std::int32_t {
    OXMDicCASEMODE_Upper = 1,
    OXMDicCASEMODE_Lower = 2,
    OXMDicCASEMODE_Mixed = 3,
};

/// Direction of updates between an attribute and its mapped storage.
enum OXMDicUPDATEFACET : std::int32_t {
    OXMDicUPDATEFACET_IN = 1,
    OXMDicUPDATEFACET_OUT = 2,
    OXMDicUPDATEFACET_NEUTRAL = 3,
};

/// Collection that a multi-valued attribute holds.
enum OXMDicCOLLECTION : std::int32_t {
    OXMDicCOLLECTION_Array = 1,
    OXMDicCOLLECTION_Bag = 2,
    OXMDicCOLLECTION_List = 3,
    OXMDicCOLLECTION_Set = 4,
};

/// How tightly a relationship holds its targets.
enum OXMDicAGGREGATION : std::int32_t {
    OXMDicAGGREGATION_None = 1,
    OXMDicAGGREGATION_Shared = 2,
    OXMDicAGGREGATION_Composition = 3,
};

/// Where the targets of a relationship live.
enum OXMDicSCOPE : std::int32_t {
    OXMDicSCOPE_None = 1,
    OXMDicSCOPE_External = 2,
    OXMDicSCOPE_Vault = 3,
};

/// Direction of a method's parameter; 0 means that none is set.
enum OXMDicKIND : std::int32_t {
    OXMDicKIND_None = 0,
    OXMDicKIND_In = 1,
    OXMDicKIND_Out = 2,
    OXMDicKIND_IO = 3,
    OXMDicKIND_Return = 4,
};

/// Whether other classes may be derived from a class at run time; 1 means inherited.
enum OXMDicKVADERIVABLE : std::int32_t {
    OXMDicKVADERIVABLE_Inherited = 1,
    OXMDicKVADERIVABLE_No = 2,
    OXMDicKVADERIVABLE_Yes = 3,
    OXMDicKVADERIVABLE_Multiple = 4,
};

/// How packages are loaded and saved. Negative values are invalid.
enum OXMDicPERSISTENT : std::int32_t {
    OXMDicPERSISTENT_None = 0,     ///< nothing is read or written
    OXMDicPERSISTENT_Xml = 2,      ///< package documents
    OXMDicPERSISTENT_Express = 4,  ///< EXPRESS schema, saving only
};

/// Which document of a package is meant. The value also indexes the table of file extensions.
enum OXMDicCONTENT : std::int32_t {
    OXMDicCONTENT_metadata = 0,
    OXMDicCONTENT_tuning = 1,
    OXMDicCONTENT_rbodef = 2,
    OXMDicCONTENT_rbomap = 3,
    OXMDicCONTENT_metaplm = 4,
};

/// Kind of a command. Commands are retired: the value is opaque.
enum OXMDicCDETYPE : std::int32_t {};

#endif
