/// What the commands ask of a loaded dictionary beside single getters: names by which a user finds an
/// object again, the words of the documents, walks over everything that is loaded.
#ifndef ZANDIC_TOOL_MODEL_H
#define ZANDIC_TOOL_MODEL_H

#include <string>
#include <string_view>

#include "OXMIDicClass.h"
#include "OXMIDicEnum.h"
#include "OXMIDicUnique.h"
#include "ZANDicValueWords.h"
#include "zandic.hpp"

namespace tool {

/// Between the parts of a qualified name.
inline constexpr std::string_view kNameSeparator = "::";

/// \returns the tag of the document that makes an object like this one.
std::string_view TagOf(OXMIDicElementH& object);

/// \returns whether the object is a simple attribute, a relationship or an inverse.
bool IsAttribute(OXMIDicElementH& object);

/// Appends "Package", "Package::Element" or "Package::Class::attribute": the name runs through all owners.
/// To be asked of unique keys, enumerators, methods, parameters and RBO objects once all is loaded.
void AppendQualifiedName(OXMIDicElementH& object, std::string& name);
std::string QualifiedName(OXMIDicElementH& object);

/// \returns whether both are the same object of the dictionary, whatever their interfaces.
bool IsSame(OXMIDicElementH& object, OXMIDicElementH& other);

/// \returns the text of a getter; empty when it is unset.
template <class Object, class Getter>
std::string TextOf(Object& object, Getter getter) {
    const auto text = zandic::Get(object, getter);
    return text ? std::string(text->View()) : std::string();
}

/// \returns the word of the documents for the value of a getter; empty when it has none.
template <class Object, class Getter>
std::string_view WordOf(Object& object, Getter getter, std::span<const ZANDicFormat::CodeWord> words) {
    const auto code = zandic::Get(object, getter);
    return code ? ZANDicFormat::WordOf(words, static_cast<int>(*code)) : std::string_view();
}

/// \returns the words for the access mode of an attribute, which depend on its kind.
std::span<const ZANDicFormat::CodeWord> AccessModeWords(OXMIDicAttribute& attribute);

/// Calls \p visit(package) for every loaded package: domain by domain, each in the manager's order.
template <class Visit>
void ForEachPackage(const zandic::Dictionary& dictionary, Visit&& visit) {
    for (const std::string_view domain : ZANDicFormat::kDomains) {
        for (OXMIDicPackage& package : dictionary.Packages(domain)) visit(package);
    }
}

/// Calls \p visit(element) for every element of every loaded package.
template <class Visit>
void ForEachElement(const zandic::Dictionary& dictionary, Visit&& visit) {
    ForEachPackage(dictionary, [&](OXMIDicPackage& package) {
        for (OXMIDicElement& element : zandic::All<OXMIDicElement>(package, &OXMIDicPackage::GetElements)) {
            visit(element);
        }
    });
}

/// As ForEachElement, for the classes, instances and extensions.
template <class Visit>
void ForEachClass(const zandic::Dictionary& dictionary, Visit&& visit) {
    ForEachPackage(dictionary, [&](OXMIDicPackage& package) {
        for (OXMIDicClass& each : zandic::All<OXMIDicClass>(package, &OXMIDicPackage::GetClasses))
            visit(each);
    });
}

/// Lets every class know all its attributes. Which attribute redefines which is known only after that.
void AskForAllAttributes(const zandic::Dictionary& dictionary);

/// \returns the owner of a member that does not know it itself (MemberNames.h); null for anything else.
zandic::Handle<OXMIDicElement> OwnerOf(const zandic::Dictionary& dictionary, OXMIDicElementH& member);

}  // namespace tool

#endif
