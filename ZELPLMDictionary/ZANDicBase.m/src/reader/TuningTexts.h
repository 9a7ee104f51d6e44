/// Every text of the tuning reader's lines, once: pieces that a line joins with names and values. Spelling
/// and blanks are part of the behaviour.
#ifndef TUNING_TEXTS_H
#define TUNING_TEXTS_H

#include <string_view>

namespace tuningtext {

inline constexpr const char* kAssertion = "AssertionFailed:DicMgr && PackName && Package";
inline constexpr const char* kClassAssertion = "AssertionFailed:Class";
inline constexpr const char* kSource = "OxmDicFromXML_Tuning";

// the document, each followed by the package's name
inline constexpr std::string_view kParserReturnedNull = "ERROR ZELVBTXMLNode::CreateFromFile returns NULL ";
inline constexpr std::string_view kNoPackageTag = "ERROR no Package Tag ";
inline constexpr std::string_view kNoPackageUuid = "ERROR no Uuid Attribute in Package Tag ";
inline constexpr std::string_view kWrongPackageUuid = "ERROR Wrong Package UUID ";
inline constexpr std::string_view kNoPackageName = "ERROR no Name Attribute in Package Tag ";
inline constexpr std::string_view kWrongPackageName = "ERROR Wrong Package Name ";

// classes, each ended by the package's name
inline constexpr std::string_view kNoElementUuid = "ERROR no Uuid Attribute in Element Tag ";
inline constexpr std::string_view kElement = "ERROR Element ";
inline constexpr std::string_view kNotFound = " not found ";
inline constexpr std::string_view kNotSupported = " not supported ";
inline constexpr std::string_view kNoElementName = "ERROR no Name Attribute in Element Tag ";
inline constexpr std::string_view kWrongElementName = "ERROR Wrong Name Attribute in Element Tag ";

inline constexpr std::string_view kUnsupportedTag = "ERROR : unsupported tag ";

// blocks, each ended by the class's name
inline constexpr std::string_view kNoBlockUuid = "ERROR no Uuid Attribute in AttributeBlock Tag ";
inline constexpr std::string_view kNoBlockName = "ERROR no Name Attribute in AttributeBlock Tag ";
inline constexpr std::string_view kNoAttributeUuids =
    "ERROR no AttributeUuids Attribute in AttributeBlock Tag ";
inline constexpr std::string_view kNoAttribute = "ERROR no Attribute found for ";
inline constexpr std::string_view kIn = " in ";
inline constexpr std::string_view kNoExtents = "ERROR no Extents in AttributeBlockExtension Tag ";

inline constexpr std::string_view kError = "ERROR : ";
inline constexpr std::string_view kWrongType = " is of wrong type";
inline constexpr std::string_view kSecondValuation = "ERROR : second valuation of the same AttributeBlock";
inline constexpr std::string_view kCyclicExtents = "ERROR : cyclic Extents for AttributeBlock ";
inline constexpr std::string_view kAttributeWithoutClass = "ERROR : Attribute without Class !!!";
inline constexpr std::string_view kAttribute = "ERROR : Attribute ";
inline constexpr std::string_view kNotAnAttribute = " is not an attribute";
inline constexpr std::string_view kDeclaredOnClass = " declared on Class ";
inline constexpr std::string_view kAddedTwice = " was added twice";
inline constexpr std::string_view kNotMade = "ERROR : could not create AttributeBlock ";

}  // namespace tuningtext

#endif
