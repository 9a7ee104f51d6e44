/// The attributes of a tag in the order in which they are written: one row an attribute, and what the rows
/// are made of.
#ifndef XML_ROWS_H
#define XML_ROWS_H

#include <cstddef>
#include <string_view>

#include "OXMIDicElementH.h"
#include "XmlNode.h"
#include "ZANDicCodeWord.h"
#include "ZanDicQuery.h"

/// One attribute, or a few that belong together.
template <class Interface>
struct XmlRow {
    std::string_view word;
    /// \returns S_OK; a failure when the element lacks what the attribute is about.
    HRESULT (*write)(XmlNode& node, Interface& element, std::string_view word);
};

/// The functions that rows name: the attribute's value comes from \p Getter.
namespace emit {

/// A text, in every case.
template <auto Getter, class Interface>
HRESULT Text(XmlNode& node, Interface& element, std::string_view word) {
    ZELString text;
    (element.*Getter)(&text);
    node.Text(word, text.View());
    return S_OK;
}

/// A text of \p least characters or more.
template <int least, auto Getter, class Interface>
HRESULT TextFrom(XmlNode& node, Interface& element, std::string_view word) {
    ZELUnicodeString text;
    (element.*Getter)(&text);
    if (text.Length() >= least) node.Text(word, text.View());
    return S_OK;
}

/// A text longer than one character.
template <auto Getter, class Interface>
HRESULT LongText(XmlNode& node, Interface& element, std::string_view word) {
    return TextFrom<2, Getter>(node, element, word);
}

/// A text that is not empty.
template <auto Getter, class Interface>
HRESULT SomeText(XmlNode& node, Interface& element, std::string_view word) {
    return TextFrom<1, Getter>(node, element, word);
}

template <auto Getter, class Interface>
HRESULT Flag(XmlNode& node, Interface& element, std::string_view word) {
    unsigned char flag = 0;
    (element.*Getter)(&flag);
    node.Flag(word, flag);
    return S_OK;
}

/// The word of a code; nothing where the table has none.
template <class Code, auto Getter, const auto& Words, class Interface>
HRESULT Word(XmlNode& node, Interface& element, std::string_view word) {
    Code code{};
    (element.*Getter)(&code);
    node.Word(word, ZANDicFormat::WordOf(Words, static_cast<int>(code)));
    return S_OK;
}

/// The element's own UUID.
template <class Interface>
HRESULT Uuid(XmlNode& node, Interface& element, std::string_view word) {
    ZELDbBinary uuid;
    element.GetUuid(&uuid);
    node.Uuid(word, uuid);
    return S_OK;
}

/// \returns the UUID of what \p object stands for.
inline ZELDbBinary UuidOf(OXMIDicElementH& object) {
    ZELDbBinary uuid;
    object.GetUuid(&uuid);
    return uuid;
}

inline ZELString NameOf(OXMIDicElementH& object) {
    ZELString name;
    object.GetName(&name);
    return name;
}

/// The UUID of the one object that \p Getter hands out as a \p Target.
template <class Target, auto Getter, ZanDicObj::LinkName link, class Interface>
HRESULT Reference(XmlNode& node, Interface& element, std::string_view word) {
    ZanDicRef<Target> target;
    (element.*Getter)(target.Out());
    if (target) {
        node.Uuid(word, UuidOf(*target));
    } else {
        node.WarnLost(element, link, word);
    }
    return S_OK;
}

/// The UUIDs of the objects of a list, from the first to the one numbered \p last.
inline void UuidList(XmlNode& node, const ZanDicRefList& objects, int last, std::string_view word) {
    node.BeginList();
    for (int position = 1; position <= last; ++position) {
        if (objects[position] != nullptr) {
            node.ListItem(UuidOf(static_cast<OXMIDicElementH&>(*objects[position])));
        }
    }
    node.List(word);
}

/// The UUIDs of the objects that \p Getter lists.
template <auto Getter, ZanDicObj::LinkName link, class Interface>
HRESULT References(XmlNode& node, Interface& element, std::string_view word) {
    ZanDicRefList objects;
    (element.*Getter)(objects.Out());
    UuidList(node, objects, objects.Size(), word);
    node.WarnLost(element, link, word);
    return S_OK;
}

}  // namespace emit

/// The free attributes, behind all others. One that a reader would not give back as such is left out with a
/// warning: a word of the tag's own vocabulary, and what is no name at all.
void WriteFreeAttributes(XmlNode& node, OXMIDicElementH& element);
void WriteFreeAttributes(XmlNode& node, const ZELListValZELUnicodeString& names,
                         const ZELListValZELUnicodeString& values);

/// Writes the rows of \p rows. \returns the first failure, behind which the others are written all the same.
template <class Interface, std::size_t N>
HRESULT WriteEach(XmlNode& node, Interface& element, const XmlRow<Interface> (&rows)[N]) {
    HRESULT result = S_OK;
    for (const XmlRow<Interface>& attribute : rows) {
        const HRESULT rc = attribute.write(node, element, attribute.word);
        if (Failed(rc) && !Failed(result)) result = rc;
    }
    return result;
}

/// Writes the attributes of an element, table by table, and its free attributes.
/// \returns S_OK; E_FAIL when it lacks the interface; a failure of a row.
template <class Interface, const auto&... Tables>
HRESULT WriteRows(XmlNode& node, IUnknown& element) {
    const ZanDicRef<Interface> face = As<Interface>(element);
    if (!face) return E_FAIL;
    HRESULT result = S_OK;
    const auto keepFailure = [&result](HRESULT rc) {
        if (Failed(rc)) result = rc;
    };
    (keepFailure(WriteEach(node, *face, Tables)), ...);
    WriteFreeAttributes(node, *face);
    return result;
}

/// Appends what \p Getters list, one after the other. \returns S_OK; E_FAIL without the interface.
template <class Interface, auto... Getters>
HRESULT ListChildren(IUnknown& element, ZELListPtrIUnknown* children) {
    const ZanDicRef<Interface> face = As<Interface>(element);
    if (!face) return E_FAIL;
    ((face.Get()->*Getters)(children), ...);
    return S_OK;
}

/// How objects of one type code are written.
struct XmlKind {
    OXMDicTYPE type;
    std::string_view operation;  ///< in front of the lines about it
    std::string_view (*tag)(IUnknown& element);
    HRESULT (*write)(XmlNode& node, IUnknown& element);
    HRESULT (*listChildren)(IUnknown& element, ZELListPtrIUnknown* children);  ///< null: none
    /// The same as write for an attribute of this library; null for other kinds.
    HRESULT (*writeAttribute)(XmlNode& node, const StoredAttribute& attribute) = nullptr;
    std::string_view attributeTag = {};  ///< of such a kind
};

/// The tag of kinds that have one only.
template <const std::string_view& name>
std::string_view FixedTag(IUnknown&) {
    return name;
}

/// The kinds, by the source that writes them.
extern const XmlKind kPackageKind;
extern const XmlKind kClassKind;
extern const XmlKind kExtensionKind;
extern const XmlKind kUniqueKind;
extern const XmlKind kCategoryKind;
extern const XmlKind kEnumKind;
extern const XmlKind kEnumeratorKind;
extern const XmlKind kSimpleKind;
extern const XmlKind kRelationshipKind;
extern const XmlKind kInverseKind;
extern const XmlKind kInterfaceKind;
extern const XmlKind kMethodKind;
extern const XmlKind kParameterKind;
extern const XmlKind kRBOClassKind;
extern const XmlKind kRBOMappingKind;
extern const XmlKind kRBORootKind;
extern const XmlKind kRBOComponentKind;
extern const XmlKind kRBOPathExpressionKind;

#endif
