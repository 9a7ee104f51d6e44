/// The sheets of `show`: what the model knows of one object, laid out for reading.
#ifndef ZANDIC_TOOL_VIEWS_H
#define ZANDIC_TOOL_VIEWS_H

#include <string>
#include <string_view>
#include <vector>

#include "JsonWriter.h"
#include "OXMIDicAttributeBlock.h"
#include "OXMIDicCategory.h"
#include "OXMIDicClass.h"
#include "OXMIDicEnum.h"
#include "OXMIDicEnumerator.h"
#include "OXMIDicInterface.h"
#include "OXMIDicMethod.h"
#include "OXMIDicParameter.h"
#include "OXMIDicRBOClass.h"
#include "OXMIDicUnique.h"
#include "RboWalk.h"
#include "Sheet.h"
#include "zandic.hpp"

namespace tool {

/// Where the words of a sheet come from and go to.
struct View {
    const zandic::Dictionary& dictionary;
    Sheet& sheet;
    std::string package;  ///< names of this package are shown without it
};

/// Shows any object, by its kind. The classes must have been asked for all attributes.
void ShowObject(const zandic::Dictionary& dictionary, OXMIDicElementH& object, Output& output);

// One for each kind; what does not know its owner is shown as a member of it.
void ShowPackage(const View& view, OXMIDicPackage& package);
void ShowClass(const View& view, OXMIDicClass& classElement);
void ShowAttribute(const View& view, OXMIDicAttribute& attribute);
void ShowUnique(const View& view, OXMIDicUnique& unique);
void ShowEnum(const View& view, OXMIDicEnum& enumeration);
void ShowEnumerator(const View& view, OXMIDicEnumerator& enumerator);
void ShowCategory(const View& view, OXMIDicCategory& category);
void ShowInterface(const View& view, OXMIDicInterface& interface);
void ShowMethod(const View& view, OXMIDicMethod& method);
void ShowParameter(const View& view, OXMIDicParameter& parameter);
void ShowBlock(const View& view, OXMIDicAttributeBlock& block);
void ShowRBOClass(const View& view, OXMIDicRBOClass& rboClass);
void ShowMapping(const View& view, OXMIDicRBOMapping& mapping);
void ShowRoot(const View& view, OXMIDicRBORoot& root);
void ShowComponent(const View& view, OXMIDicRBOComponent& component);
void ShowPath(const View& view, OXMIDicRBOPathExpression& path);

/// \returns what a mapping applies to: the class's name, else the text that is stored beside it.
std::string AppliesTo(const View& view, OXMIDicRBOMapping& mapping);

/// The blocks of a class, each with father and attributes: the sheet of `blocks`. Makes the default block
/// where there is none yet.
void ShowBlocksOf(const View& view, OXMIDicClass& classElement);

/// The same as JSON. Names have their packages where \p view names none.
void WriteBlocksJson(const View& view, OXMIDicClass& classElement, JsonWriter& json);

/// A section of the blocks that are visible in a class, one line each.
void ShowVisibleBlocks(const View& view, OXMIDicClass& classElement);

// What several sheets share.

/// \returns the package of the object, or its own name when it is one: the first part of its name.
std::string PackageNameOf(OXMIDicElementH& object);

/// \returns the qualified name, without the package when that is the one of the view.
std::string NameIn(const View& view, OXMIDicElementH& object);

template <class Object>
std::vector<std::string> NamesIn(const View& view, const zandic::List<Object>& objects) {
    std::vector<std::string> names;
    for (Object& object : objects) names.push_back(NameIn(view, object));
    return names;
}

/// Title, identity and owner of a member that does not know its owner itself.
void ShowOwned(const View& view, OXMIDicElement& member);

/// UUID, alias, exposition level and visibility.
void ShowIdentity(const View& view, OXMIDicElement& element);

/// Categories and free attributes, which end the fields of every sheet.
void ShowExtras(const View& view, OXMIDicElementH& object);

/// \returns the alias in quotes; empty where there is none.
std::string QuotedAlias(OXMIDicElement& element);

/// \returns the names without class and package.
std::string PlainNames(const zandic::List<OXMIDicElementH>& objects);

/// \returns how many values an attribute has: "1", "0..1", "Set 0..5".
std::string ValuesText(OXMIDicAttribute& attribute);

/// A section of those that refer to \p target: classes and attributes of every loaded package.
void ShowUsers(const View& view, OXMIDicElementH& target);

}  // namespace tool

#endif
