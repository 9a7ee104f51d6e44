/// Every text of the EXPRESS writer, once. Blanks at both ends are part of it.
#ifndef EXPRESS_TEXTS_H
#define EXPRESS_TEXTS_H

#include <string_view>

#include "OXMDicTypes.h"
#include "ZANDicCodeWord.h"

namespace express {

inline constexpr std::string_view kExtension = "express";

// the frame
inline constexpr std::string_view kHeadLine = "(* Automatic Generation From Valkor Dictionary *) ";
inline constexpr std::string_view kHeadRule = "(* =========================================== *) ";
inline constexpr std::string_view kSchema = "SCHEMA ";
inline constexpr std::string_view kSchemaEnd = " ; ";
inline constexpr std::string_view kUseFrom = "USE FROM ";
inline constexpr std::string_view kEndSchema = "END_SCHEMA ;";
inline constexpr std::string_view kEnd = " ;";

/// The entity that stands for dates, written when an attribute is one.
inline constexpr std::string_view kDateEntity =
    "ENTITY OXM_DATE ;       Year  : integer ;      Month : integer ;      Day   : integer ;      Hour  : "
    "integer ;      Minute: integer ;      Second: integer ;      Fraction : integer ;      SaveAtCommit    "
    ": BOOLEAN ;      END_ENTITY ;";

// an entity
inline constexpr std::string_view kEntity = "ENTITY ";
inline constexpr std::string_view kSubtypeOf = " SUBTYPE OF (";
inline constexpr std::string_view kSubtypeEnd = ") ";
inline constexpr std::string_view kAbstract = " ABSTRACT SUPERTYPE ;";
inline constexpr std::string_view kEndEntity = "END_ENTITY ;";
inline constexpr std::string_view kInverseHeader = "INVERSE ";
inline constexpr std::string_view kUniqueHeader = "UNIQUE ";

// a line of it
inline constexpr std::string_view kIndentation = "    ";
inline constexpr int kNameColumns = 33;  ///< names are filled up to this length
inline constexpr std::string_view kColon = " : ";
inline constexpr std::string_view kSpecialization = "    (* -- Specialization : ";
inline constexpr std::string_view kSpecializationEnd = "  --*)";
inline constexpr std::string_view kOptional = "OPTIONAL ";
inline constexpr std::string_view kLengthBegin = "(";
inline constexpr std::string_view kLengthEnd = ") ";
inline constexpr std::string_view kSimpleEnd = " ; ";
inline constexpr std::string_view kEnumType = "integer";
inline constexpr std::string_view kEnumName = " ; (*-- enum of name : ";
inline constexpr std::string_view kEnumNameEnd = " --*)";
inline constexpr std::string_view kUnknownTarget = "unknown target ";
inline constexpr std::string_view kFor = " FOR ";
inline constexpr std::string_view kNoInverse = " (* WARNING inverse not accessible *) ; ";
inline constexpr std::string_view kUniqueSeparator = " , ";
inline constexpr std::string_view kUniqueEnd = " ; ";

/// Length of texts and bytes that have no limit.
inline constexpr int kDefaultLength = 250;

/// Bounds of a collection.
inline constexpr std::string_view kBoundsBegin = " [ ";
inline constexpr std::string_view kBoundsSeparator = ":";
inline constexpr std::string_view kBoundsEnd = "] OF ";
inline constexpr std::string_view kNoUpperBound = " ? ] OF ";

/// The words of primitives; others have none.
inline constexpr ZANDicFormat::CodeWord kTypeWords[] = {
    {"boolean", OXMDicPRIMITIVEType_Boolean}, {"integer", OXMDicPRIMITIVEType_Integer},
    {"real", OXMDicPRIMITIVEType_Double},     {"string", OXMDicPRIMITIVEType_String},
    {"binary", OXMDicPRIMITIVEType_Binary},   {"OXM_DATE", OXMDicPRIMITIVEType_Date},
    {"logical", OXMDicPRIMITIVEType_Logical},
};

/// What stands before the bounds of a collection.
inline constexpr ZANDicFormat::CodeWord kCollectionWords[] = {
    {"ARRAY ", OXMDicCOLLECTION_Array},
    {"BAG ", OXMDicCOLLECTION_Bag},
    {"LIST ", OXMDicCOLLECTION_List},
    {"SET ", OXMDicCOLLECTION_Set},
};

/// The whole prefix of a multi-valued inverse; other collections have none.
inline constexpr ZANDicFormat::CodeWord kInversePrefixes[] = {
    {"BAG[0:?] OF ", OXMDicCOLLECTION_Bag},
    {"SET[0:?] OF ", OXMDicCOLLECTION_Set},
};

/// A reference into another store, before and behind its length. Other primitives have none.
inline constexpr ZANDicFormat::CodeWord kExternalBegins[] = {
    {"binary (", OXMDicPRIMITIVEType_Binary},
    {"string (", OXMDicPRIMITIVEType_String},
    {"string ( ", OXMDicPRIMITIVEType_URL},
};
inline constexpr ZANDicFormat::CodeWord kExternalEnds[] = {
    {") ; (* --Extern Relationship-- *) ", OXMDicPRIMITIVEType_Binary},
    {") ; (*  --Extern Relationship URL -- *) ", OXMDicPRIMITIVEType_String},
    {") ; (*  --Extern Relationship URL -- *) ", OXMDicPRIMITIVEType_URL},
};

// on standard error
inline constexpr std::string_view kFullName = "the FullName is >>>";
inline constexpr std::string_view kFullNameEnd = "<<<";
inline constexpr std::string_view kWarning = "WARNING ";
inline constexpr std::string_view kNotPersistent = "NON PERSISTANT";  // no blank between name and word
inline constexpr std::string_view kIsAnInstance = " IS AN INSTANCE";
inline constexpr std::string_view kNoFileName = "ERROR : no schema can be named after Package ";
inline constexpr std::string_view kNoDirectory = "ERROR : no directory for the schema of Package ";
inline constexpr std::string_view kNotWritten = "ERROR : could not write ";

}  // namespace express

#endif
