/// Every text of the XML writer's lines, once: operations, and the pieces that a line joins with names and
/// values. Spelling, dashes and blanks are part of the behaviour.
#ifndef WRITER_TEXTS_H
#define WRITER_TEXTS_H

#include <string_view>

namespace writer {

// operations, as they stand in front of their lines
inline constexpr std::string_view kOxmDicToXML = "OxmDicToXML:OxmDicToXML -";
inline constexpr std::string_view kDisplayElement = "OxmDicToXML:DisplayElement";
inline constexpr std::string_view kDisplayPackage = "OxmDicToXML:DisplayPackage -";
inline constexpr std::string_view kDisplayClass = "OxmDicToXML:DisplayClass -";
inline constexpr std::string_view kDisplaySimple = "OxmDicToXML:DisplaySimple -";
inline constexpr std::string_view kDisplayRelationship = "OxmDicToXML:DisplayRelationship -";
inline constexpr std::string_view kDisplayInverse = "OxmDicToXML:DisplayInverse -";
inline constexpr std::string_view kDisplayUnique = "OxmDicToXML:DisplayUnique -";
inline constexpr std::string_view kDisplayCategory = "OxmDicToXML:DisplayCategory -";
inline constexpr std::string_view kDisplayEnum = "OxmDicToXML:DisplayEnum -";
inline constexpr std::string_view kDisplayEnumerator = "OxmDicToXML:DisplayEnumerator -";
inline constexpr std::string_view kDisplayInterface = "OxmDicToXML:DisplayInterface -";
inline constexpr std::string_view kDisplayMethod = "OxmDicToXML:DisplayMethod -";
inline constexpr std::string_view kDisplayParameter = "OxmDicToXML:DisplayParameter -";
inline constexpr std::string_view kDisplayRBOClass = "OxmDicToXML:DisplayRBOClass -";
inline constexpr std::string_view kDisplayRBOMapping = "OxmDicToXML:DisplayRBOMapping -";
inline constexpr std::string_view kDisplayRBORoot = "OxmDicToXML:DisplayRBORoot -";
inline constexpr std::string_view kDisplayRBOComponent = "OxmDicToXML:DisplayRBOComponent -";
inline constexpr std::string_view kDisplayRBOPathExpression = "OxmDicToXML:DisplayRBOPathExpression -";

// the entry
inline constexpr std::string_view kInvalidArgument = "- *** ERROR *** Invalid input argument";
inline constexpr std::string_view kGetPackageFailed = "- *** ERROR *** MyDic->GetPackage failed";
inline constexpr std::string_view kNoFileName = "- *** ERROR *** No document can be named after Package ";
inline constexpr std::string_view kNoDirectory = "- *** ERROR *** Could not get file path";
inline constexpr std::string_view kOutOfMemory = "- *** ERROR *** Out of memory";
inline constexpr std::string_view kElementResult = "- rc(DisplayElement)=";
inline constexpr std::string_view kFileNameResult = "- rc(OxmBuildFileName)=";
inline constexpr std::string_view kFileName = ", filename=";
inline constexpr std::string_view kWriteResult = "- rc(xmlroot->writeInFile)=";
inline constexpr std::string_view kNotWritten = "- *** ERROR *** Could not write ";

// the walk
inline constexpr std::string_view kStart = "=== start === ";
inline constexpr std::string_view kNullElement = "- *** ERROR *** input argument is NULL";
inline constexpr std::string_view kUnknownElement = "- *** WARNING *** unknown element: type=";
inline constexpr std::string_view kElementName = ", name=";

// on standard error
inline constexpr std::string_view kGetPrimitiveFailed = "ERROR GetPrimitive failed";
inline constexpr std::string_view kGetSuperInterfaceFailed = "ERROR GetSuperInterface failed";

// what is not written as it is: warning, tag, name, attribute, then why
inline constexpr std::string_view kWarning = "- *** WARNING *** ";
inline constexpr std::string_view kAttribute = ", attribute ";
inline constexpr std::string_view kLostLink = ": what it named is no longer loaded; left out";
inline constexpr std::string_view kLostLinkKept =
    ": what it named is no longer loaded; written as it was stored";
inline constexpr std::string_view kReplaced = ": characters that XML does not allow were replaced";
inline constexpr std::string_view kNotFree = ": it would not be read back as a free attribute; left out";
inline constexpr std::string_view kNotInList = ": this name cannot stand in a list; left out: ";

// the document
inline constexpr std::string_view kDeclaration = "<?xml version=\"1.0\"?>";
inline constexpr std::string_view kDocumentType = "<!DOCTYPE Package SYSTEM \"Dictionary00.dtd\" >";
inline constexpr std::string_view kHeadComment = "<!-- VALKOR DICTIONARY  -->";
inline constexpr char kLastUpdate[] = "last update %.4d-%.2d-%.2d-%.2d.%.2d.%.2d";
inline constexpr std::string_view kUnknownPath = "Unknown";

}  // namespace writer

#endif
