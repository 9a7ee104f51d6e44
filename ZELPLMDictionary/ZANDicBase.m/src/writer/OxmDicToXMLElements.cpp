// The top-level kinds and their plain members: package, class family, unique, category, enumeration.

#include <cstdio>

#include "OXMIDicCategory.h"
#include "OXMIDicClass.h"
#include "OXMIDicEnum.h"
#include "OXMIDicEnumerator.h"
#include "OXMIDicExtension.h"
#include "OXMIDicPackage.h"
#include "OXMIDicUnique.h"
#include "WriterTexts.h"
#include "XmlRows.h"
#include "ZANDicTags.h"
#include "ZELTime.h"
#include "ZanDicSavePlace.h"

namespace {

using namespace ZANDicFormat;
using LinkName = ZanDicObj::LinkName;

/// The name under which a package is asked for in a list: with the content word of what is no metadata.
std::string ListedName(OXMIDicPackage& package) {
    std::string name(emit::NameOf(package).View());
    if (const OXMDicCONTENT content = StoredContentOf(package); content != OXMDicCONTENT_metadata) {
        name.append(".").append(WordOf(kContentWords, content));
    }
    return name;
}

/// Whether a list, which is split at blanks, gives the name back and a document could bear it.
bool CanBeListed(std::string_view name) {
    return CanNameADocument(name) && name.find(' ') == std::string_view::npos;
}

template <auto Getter, LinkName link>
HRESULT Packages(XmlNode& node, OXMIDicPackage& package, std::string_view word) {
    ZanDicRefList packages;
    (package.*Getter)(packages.Out());
    node.BeginList();
    for (int position = 1; position <= packages.Size(); ++position) {
        auto& used = static_cast<OXMIDicPackage&>(*packages[position]);
        const ZELString name = emit::NameOf(used);
        if (CanBeListed(name.View())) {
            node.ListItem(ListedName(used));
        } else {
            node.Warn(word, writer::kNotInList, name.View());
        }
    }
    node.List(word);
    node.WarnLost(package, link, word);
    return S_OK;
}

constexpr XmlRow<OXMIDicPackage> kPackageRows[] = {
    {word::kName, emit::Text<&OXMIDicElementH::GetName>},
    {word::kUuid, emit::Uuid},
    {word::kAlias, emit::LongText<&OXMIDicPackage::GetAlias>},
    {word::kExpositionLevel, emit::LongText<&OXMIDicPackage::GetExpositionLevel>},
    {word::kDomain, emit::Text<&OXMIDicPackage::GetDomain>},
    {word::kUseNames, Packages<&OXMIDicPackage::GetUsedPackages, LinkName::UsedPackages>},
    {word::kUseScopes, Packages<&OXMIDicPackage::GetScopePackages, LinkName::ScopePackages>},
};

HRESULT WritePackage(XmlNode& node, IUnknown& element) {
    const HRESULT rc = WriteRows<OXMIDicPackage, kPackageRows>(node, element);
    const ZELTime now = ZELTime::OfBuild();
    char comment[64];
    std::snprintf(comment, sizeof comment, writer::kLastUpdate, now.year, now.month, now.day, now.hour,
                  now.minute, now.second);
    node.Document().Begin(tag::kComment);
    node.Document().EndWithText(comment);
    return rc;
}

/// Own derivability; one that is inherited stays so.
HRESULT KVADerivable(XmlNode& node, OXMIDicClass& element, std::string_view word) {
    int derivable = OXMDicKVADERIVABLE_Inherited;
    element.GetClassKVADerivable(&derivable);
    node.Word(word, WordOf(kKVADerivableWords, derivable));
    return S_OK;
}

/// Own extensibility; one that is inherited stays so.
HRESULT Extensible(XmlNode& node, OXMIDicClass& element, std::string_view word) {
    unsigned char extensible = 0;
    if (element.GetExtensible(&extensible) == S_OK) node.Flag(word, extensible);
    return S_OK;
}

HRESULT SuperClass(XmlNode& node, OXMIDicClass& element, std::string_view) {
    ZanDicRef<OXMIDicClass> superClass;
    element.GetSuperClass(superClass.Out());
    if (superClass) {
        node.Text(word::kSuperName, emit::NameOf(*superClass).View());
        node.Uuid(word::kSuperRef, emit::UuidOf(*superClass));
    } else {
        node.WarnLost(element, LinkName::SuperClass, word::kSuperRef);
    }
    return S_OK;
}

/// How many of the scopes that an extension answers with are its own: they come before those that its super
/// extension answers with.
int CountOwnScopes(OXMIDicExtension& extension, const ZanDicRefList& scopes) {
    ZanDicRef<OXMIDicClass> superClass;
    extension.GetSuperClass(superClass.Out());
    if (!superClass) return scopes.Size();
    const ZanDicRef<OXMIDicExtension> superExtension = As<OXMIDicExtension>(*superClass);
    if (!superExtension) return scopes.Size();
    ZanDicRefList inherited;
    superExtension->GetScopes(inherited.Out());
    return scopes.Size() - inherited.Size();
}

/// Own scopes, as references and as names.
HRESULT ExtensionScopes(XmlNode& node, OXMIDicClass& element, std::string_view) {
    const ZanDicRef<OXMIDicExtension> extension = As<OXMIDicExtension>(element);
    if (!extension) return S_OK;
    ZanDicRefList scopes;
    extension->GetScopes(scopes.Out());
    const int own = CountOwnScopes(*extension, scopes);
    emit::UuidList(node, scopes, own, word::kScopeRefs);
    node.BeginList();
    for (int position = 1; position <= own; ++position) {
        node.ListItem(emit::NameOf(static_cast<OXMIDicElementH&>(*scopes[position])).View());
    }
    node.List(word::kScopeNames);
    node.WarnLost(element, LinkName::Scopes, word::kScopeRefs);
    return S_OK;
}

constexpr XmlRow<OXMIDicClass> kClassRows[] = {
    {word::kName, emit::Text<&OXMIDicElementH::GetName>},
    {word::kUuid, emit::Uuid},
    {word::kAlias, emit::LongText<&OXMIDicElement::GetAlias>},
    {word::kExpositionLevel, emit::LongText<&OXMIDicElement::GetExpositionLevel>},
    {word::kVisibility, emit::Word<OXMDicVISIBILITY, &OXMIDicElement::GetVisibility, kVisibilityWords>},
    {word::kKVADerivable, KVADerivable},
    {word::kPersistent, emit::Flag<&OXMIDicClass::GetPersistent>},
    {word::kAbstract, emit::Flag<&OXMIDicClass::GetAbstract>},
    {word::kExtensible, Extensible},
    {word::kLateType, emit::Text<&OXMIDicClass::GetLateType>},
    {word::kSuperName, SuperClass},
    {word::kReferenceRef, emit::Reference<OXMIDicClass, &OXMIDicClass::GetReference, LinkName::Reference>},
    {word::kApplicationName, emit::LongText<&OXMIDicClass::GetApplicationName>},
    {word::kScopeRefs, ExtensionScopes},
};

/// Behind everything else, free attributes too: the interfaces of a class. One of this library has none, and
/// would say so by a line of its own if it were asked.
void WriteInterfaceRefs(XmlNode& node, IUnknown& element) {
    const ZanDicRef<OXMIDicClass> face = As<OXMIDicClass>(element);
    if (!face || IsOfThisLibrary(element)) return;
    ZanDicRefList interfaces;
    face->GetInterfaces(interfaces.Out());
    emit::UuidList(node, interfaces, interfaces.Size(), word::kInterfaceRefs);
}

HRESULT WriteClass(XmlNode& node, IUnknown& element) {
    const HRESULT rc = WriteRows<OXMIDicClass, kClassRows>(node, element);
    WriteInterfaceRefs(node, element);
    return rc;
}

std::string_view ClassTag(IUnknown& element) {
    if (As<OXMIDicExtension>(element)) return tag::kExtension;
    unsigned char instance = 0;
    if (const ZanDicRef<OXMIDicClass> face = As<OXMIDicClass>(element)) face->GetInstance(&instance);
    return instance == 1 ? tag::kInstance : tag::kClass;
}

constexpr XmlRow<OXMIDicUnique> kUniqueRows[] = {
    {word::kName, emit::Text<&OXMIDicElementH::GetName>},
    {word::kAlias, emit::LongText<&OXMIDicElement::GetAlias>},
    {word::kUuid, emit::Uuid},
    {word::kUniqueRefs, emit::References<&OXMIDicUnique::GetElements, LinkName::Members>},
};

HRESULT Group(XmlNode& node, OXMIDicCategory& category, std::string_view word) {
    ZELString group;
    category.GetGroup(&group);
    if (!group.IsEmpty()) node.Text(word, group.View());
    return S_OK;
}

constexpr XmlRow<OXMIDicCategory> kCategoryRows[] = {
    {word::kName, emit::Text<&OXMIDicElementH::GetName>},
    {word::kUuid, emit::Uuid},
    // Deliberate: of a category alone an alias of one character is written as well.
    {word::kAlias, emit::SomeText<&OXMIDicElement::GetAlias>},
    {word::kGroup, Group},
};

constexpr XmlRow<OXMIDicEnum> kEnumRows[] = {
    {word::kName, emit::Text<&OXMIDicElementH::GetName>},
    {word::kAlias, emit::LongText<&OXMIDicElement::GetAlias>},
    {word::kUuid, emit::Uuid},
};

HRESULT Value(XmlNode& node, OXMIDicEnumerator& enumerator, std::string_view word) {
    int value = 0;
    if (Succeeded(enumerator.GetValue(&value))) node.Number(word, value);
    return S_OK;
}

constexpr XmlRow<OXMIDicEnumerator> kEnumeratorRows[] = {
    {word::kName, emit::Text<&OXMIDicElementH::GetName>},
    {word::kAlias, emit::LongText<&OXMIDicElement::GetAlias>},
    {word::kUuid, emit::Uuid},
    {word::kValue, Value},
};

}  // namespace

constexpr XmlKind kPackageKind{
    OXMDicTYPE_Package, writer::kDisplayPackage, FixedTag<tag::kPackage>, WritePackage,
    ListChildren<OXMIDicPackage, &OXMIDicPackage::GetElements, &OXMIDicPackage::GetInterfaces>};
constexpr XmlKind kClassKind{
    OXMDicTYPE_Class, writer::kDisplayClass, ClassTag, WriteClass,
    ListChildren<OXMIDicClass, &OXMIDicClass::GetClassElements, &OXMIDicClass::GetUniques>};
constexpr XmlKind kExtensionKind{
    OXMDicTYPE_Extension, writer::kDisplayClass, ClassTag, WriteClass,
    ListChildren<OXMIDicClass, &OXMIDicClass::GetClassElements, &OXMIDicClass::GetUniques>};
constexpr XmlKind kUniqueKind{OXMDicTYPE_Unique, writer::kDisplayUnique, FixedTag<tag::kUnique>,
                              WriteRows<OXMIDicUnique, kUniqueRows>, nullptr};
constexpr XmlKind kCategoryKind{OXMDicTYPE_Category, writer::kDisplayCategory, FixedTag<tag::kCategory>,
                                WriteRows<OXMIDicCategory, kCategoryRows>, nullptr};
constexpr XmlKind kEnumKind{OXMDicTYPE_Enum, writer::kDisplayEnum, FixedTag<tag::kEnum>,
                            WriteRows<OXMIDicEnum, kEnumRows>,
                            ListChildren<OXMIDicEnum, &OXMIDicEnum::GetEnumerators>};
constexpr XmlKind kEnumeratorKind{OXMDicTYPE_Enumerator, writer::kDisplayEnumerator,
                                  FixedTag<tag::kEnumerator>, WriteRows<OXMIDicEnumerator, kEnumeratorRows>,
                                  nullptr};
