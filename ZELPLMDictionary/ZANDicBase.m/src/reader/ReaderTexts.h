/// Every text of the reader's lines, once: pieces that a line joins with names and values, in the order
/// in which they stand here. Spelling, dashes and blanks are part of the behaviour.
#ifndef READER_TEXTS_H
#define READER_TEXTS_H

#include <initializer_list>
#include <string>
#include <string_view>

/// \returns the pieces, joined without anything between them.
inline std::string Joined(std::initializer_list<std::string_view> pieces) {
    std::string text;
    for (const std::string_view piece : pieces) text += piece;
    return text;
}

namespace text {

// operations, as they stand in front of their lines
inline constexpr std::string_view kDriver = "OxmDicFromXML:OxmDicFromXML";
inline constexpr std::string_view kFillClass = "OxmDicFromXML:FillClass";
inline constexpr std::string_view kFillSimple = "OxmDicFromXML:FillSimple";
inline constexpr std::string_view kFillRelation = "OxmDicFromXML:FillRelation -";
inline constexpr std::string_view kFillUnique = "OxmDicFromXML:FillUnique";
inline constexpr std::string_view kFillEnum = "OxmDicFromXML:FillEnum";
inline constexpr std::string_view kFillEnumerator = "OxmDicFromXML:FillEnumerator";
inline constexpr std::string_view kFillCategory = "OxmDicFromXML:FillCategory";
inline constexpr std::string_view kCompleteClass = "OxmDicFromXML:CompleteClass";
inline constexpr std::string_view kCompleteSimple = "OxmDicFromXML:CompleteSimple";
inline constexpr std::string_view kCompleteRelationship = "OxmDicFromXML:CompleteRelationship";
inline constexpr std::string_view kCompleteInverse = "OxmDicFromXML:CompleteInverse";
inline constexpr std::string_view kCompleteUnique = "OxmDicFromXML:CompleteUnique";
inline constexpr std::string_view kCheckSameDomain = "OxmDicFromXML:CheckSameDomain";
inline constexpr std::string_view kCheckClass = "OxmDicFromXML:CheckClass";

// phases told to a profiler
inline constexpr std::string_view kPhase = "OxmDicFromXML";

// driver: what it does
inline constexpr std::string_view kMainExit = "=== exit (main) === RC=";
inline constexpr std::string_view kPackFileName = "- PackFileName=";
inline constexpr std::string_view kDirNames = "- DirNames=";
inline constexpr std::string_view kContent = "- iContent=";
inline constexpr std::string_view kExtensionLength = "- lenExtension=";
inline constexpr std::string_view kPackName = "- PackName=";
inline constexpr std::string_view kPackFileExtension = "- PackFileExtension=";
inline constexpr std::string_view kBuildFileNameResult = "- rc(OxmBuildFileName)=";
inline constexpr std::string_view kFileName = "- metadata file name=";
inline constexpr std::string_view kCalling = "- calling OxmDicFromXML(";
inline constexpr std::string_view kCallResult = "- rc(OxmDicFromXML(";
inline constexpr std::string_view kCallingTuning = "- calling OxmDicFromXML_Tuning(";
inline constexpr std::string_view kTuningResult = "- rc[OxmDicFromXML_Tuning(";
inline constexpr std::string_view kPassTags[] = {"- Boucle 1 : ", "- Boucle 2 : ", "- Boucle 3 : "};
inline constexpr std::string_view kBetweenPasses = "- Inter Boucle : ";
inline constexpr std::string_view kAlreadyLoaded = "-*** INFO *** Package is already loaded";
inline constexpr std::string_view kFinallyLoaded =
    "-*** INFO *** Package finally got loaded as a prereq of another Package";
inline constexpr std::string_view kRemoving = "-*** INFO *** Removing Package ";
inline constexpr std::string_view kFromDictionary = " from dictionary";
inline constexpr std::string_view kReleasing = "-*** INFO *** Releasing Package handle";

// driver: faults
inline constexpr std::string_view kInvalidParameters = "-*** ERROR *** Invalid input parameters.";
inline constexpr std::string_view kInvalidExtension = "-*** ERROR *** Invalid file extension: ";
inline constexpr std::string_view kParserReturnedNull =
    "-*** ERROR *** ZELVBTXMLNode::CreateFromFile returned NULL";
inline constexpr std::string_view kErrorWhenSearching = "-*** ERROR *** Error when searching for ";
inline constexpr std::string_view kTag = " tag";
inline constexpr std::string_view kCouldNotFind = "-*** ERROR *** Could not find ";
inline constexpr std::string_view kTagInMetadata = " tag in metadata ";
inline constexpr std::string_view kMissingMandatory = "-*** ERROR *** missing mandatory attribute ";
inline constexpr std::string_view kForPackage = " for Package ";
inline constexpr std::string_view kMissingMandatoryWarning = "-*** WARNING *** Missing mandatory attribute ";
inline constexpr std::string_view kInputArgument = "-*** WARNING *** Input argument ";
inline constexpr std::string_view kIsAssumed = " is assumed";
inline constexpr std::string_view kInvalidDomain = "-*** ERROR *** invalid Domain value for Package ";
inline constexpr std::string_view kCreatePackageFailed = "-*** ERROR *** OXMIDIcMgr::CreatePackage failed";
inline constexpr std::string_view kCouldNotRecover = "-*** ERROR *** Could not recover ";
inline constexpr std::string_view kToComplete = " Package to complete ";
inline constexpr std::string_view kAttributeProcess = " attribute process";
inline constexpr std::string_view kCouldNotFindMandatory =
    "-*** ERROR *** Could not find mandatory attribute ";
inline constexpr std::string_view kCouldNotCreate = "-*** ERROR *** could not create ";
inline constexpr std::string_view kFillFailed = "-*** ERROR *** OxmDicFromXML:Fill";
inline constexpr std::string_view kFor = " for ";
inline constexpr std::string_view kFailed = " failed";
inline constexpr std::string_view kDeprecatedTag = "-*** ERROR *** Deprecated functionality. ";
inline constexpr std::string_view kNotSupportedAnyMore = "] is not supported any more";
inline constexpr std::string_view kUnknownTag = "-*** ERROR *** Unkown tag:";
inline constexpr std::string_view kSkippingTag = "]; skipping to next tag...";
inline constexpr std::string_view kCompleteClassFailed = "- *** ERROR *** OxmDicFromXML:CompleteClass failed";
inline constexpr std::string_view kCheckClassFailed = "-*** ERROR *** OxmDicFromXML:CheckClass failed";
inline constexpr std::string_view kTuningWarning = "- *** WARNING *** OxmDicFromXML_Tuning(";

// handlers: faults inside an element
inline constexpr std::string_view kMandatoryAttribute = "*** ERROR *** Mandatory attribute ";
inline constexpr std::string_view kUndefinedOrInvalid = " is undefined or invalid";
inline constexpr std::string_view kCouldNotFindAttribute = "*** ERROR *** Could not find attribute ";
inline constexpr std::string_view kCouldNotCreateMember = "*** ERROR *** Could not create ";
inline constexpr std::string_view kUnknownMemberTag = "*** ERROR *** Unkown tag:";
inline constexpr std::string_view kUnknownPackageAttribute = "-*** WARNING *** Unknown attribute:";
inline constexpr std::string_view kUnknownAttribute = "*** WARNING *** Unknown attribute:";
inline constexpr std::string_view kProcessingAttribute = "Processing attribute [";
inline constexpr std::string_view kEnumeratorValue = "myint=";

// references
inline constexpr std::string_view kCouldNotProcess = "-*** ERROR *** Could not process element [";
inline constexpr std::string_view kAttributeOf = "], attribute [";
inline constexpr std::string_view kBecause = "]: ";
inline constexpr std::string_view kNoObject = " No object found for Uuid=";
inline constexpr std::string_view kQueryInterface = "QueryInterface(";
inline constexpr std::string_view kQueryFailed = ") failed";
inline constexpr std::string_view kCrossDomain = "Cross Domain reference is not authorized";
inline constexpr std::string_view kInverseNotProcessed = "-*** ERROR *** Could not process ";
inline constexpr std::string_view kAttributeForInverse = " attribute for Inverse named ";
inline constexpr std::string_view kInverseNoObject = "-*** ERROR *** Could not find object for Uuid=";
inline constexpr std::string_view kInvertedName = "InvOfRelationshipName=";
inline constexpr std::string_view kNoPackageOfElement = "*** ERROR *** Could not get Package from Element";
inline constexpr std::string_view kElement = "*** ERROR *** Element ";
inline constexpr std::string_view kInPackage = " in Package ";
inline constexpr std::string_view kForDomain = " for Domain ";
inline constexpr std::string_view kCannotBeRelated = " cannot be related to Element ";
inline constexpr std::string_view kDomainsDiffer = " because Domains are different.";

// class check
inline constexpr std::string_view kNoTargetOf = "- *** ERROR *** Unable to retrieve target Class for ";
inline constexpr std::string_view kRelationshipOf = " Relationship of ";
inline constexpr std::string_view kSuperClass = " SuperClass ";
inline constexpr std::string_view kCurrentClass = " current Class ";
inline constexpr std::string_view kNoRelationship = "- *** ERROR *** Unable to retrieve ";
inline constexpr std::string_view kRelationshipFor = " Relationship for ";
inline constexpr std::string_view kClass = " Class ";
inline constexpr std::string_view kInvalidReference = "- *** ERROR *** Invalid reference defined in ";
inline constexpr std::string_view kAttributeIs = ", Attribute=";
inline constexpr std::string_view kReferredClass = "- *** Msg:  *** Referred Class ";
inline constexpr std::string_view kDoesNotInherit = " is invalid because it does not inherit from ";
inline constexpr std::string_view kReferredOfSuper =
    "- ***       *** which is the referred Class of a SuperClass of ";
inline constexpr std::string_view kVerify = "- *** Act:  *** Verify ";
inline constexpr std::string_view kOrChange = "- ***       *** or change ";
inline constexpr std::string_view kToInherit = " to inherit from ";

// what the first texts have no words for
inline constexpr std::string_view kDocumentNotFound = "-*** ERROR *** Could not find document ";
inline constexpr std::string_view kIn = " in ";
inline constexpr std::string_view kDocument = "-*** ERROR *** Document ";
inline constexpr std::string_view kLine = ", line ";
inline constexpr std::string_view kColumn = ", column ";
inline constexpr std::string_view kInvalidName = "-*** ERROR *** Invalid Package name: ";
inline constexpr std::string_view kNameDiffers = "-*** WARNING *** Package name ";
inline constexpr std::string_view kNameDiffersFrom = " differs from the name asked for: ";
inline constexpr std::string_view kUseRing = "-*** ERROR *** Package ";
inline constexpr std::string_view kUseRingOf =
    " is used by a Package that it uses, which is not supported yet";
inline constexpr std::string_view kUnsupportedTag = "-*** ERROR *** Tag ";
inline constexpr std::string_view kNotSupportedYet = "] is not supported yet";
inline constexpr std::string_view kUnsupported = "not supported yet";
inline constexpr std::string_view kRefusedValue = "*** ERROR *** Refused value: ";
inline constexpr std::string_view kInvalidNumber = "*** WARNING *** Invalid number: ";
inline constexpr std::string_view kUnknownWord = "*** WARNING *** Unknown value: ";
inline constexpr std::string_view kOutOfMemory = "-*** ERROR *** Out of memory";

}  // namespace text

#endif
