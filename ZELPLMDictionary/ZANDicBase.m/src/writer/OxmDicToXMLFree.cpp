// Free attributes: what an element carries beside its kind's own attributes.

#include "WriterTexts.h"
#include "XmlRows.h"
#include "ZANDicTags.h"

namespace {

using namespace ZANDicFormat;

/// Whether a reader keeps a word of the tag's own vocabulary as a free attribute all the same.
bool IsKeptAllTheSame(const XmlNode& node, std::string_view name, std::string_view value) {
    if (node.Tag() == tag::kPackage) return name == word::kVersion;
    const bool untypedSimple = node.Tag() == tag::kSimple && !node.hasPrimitive;
    return untypedSimple && name == word::kType && FindWord(kSimpleTypeWords, value) == nullptr;
}

/// Whether a reader gives the attribute back as a free one.
bool IsReadBack(const XmlNode& node, std::string_view name, std::string_view value) {
    // Of relationships and inverses only known attributes are looked at.
    if (node.Tag() == tag::kRelationship || node.Tag() == tag::kInverse) return false;
    if (!ZELXMLIsName(name)) return false;
    const TagRow* const known = FindTag(kTags, node.Tag());
    const bool isKnown = known != nullptr && FindAttribute(*known, name) != nullptr;
    return !isKnown || IsKeptAllTheSame(node, name, value);
}

}  // namespace

void WriteFreeAttributes(XmlNode& node, OXMIDicElementH& element) {
    ZELListValZELUnicodeString names;
    ZELListValZELUnicodeString values;
    element.GetAllOtherAttributes(names, values);
    WriteFreeAttributes(node, names, values);
}

void WriteFreeAttributes(XmlNode& node, const ZELListValZELUnicodeString& names,
                         const ZELListValZELUnicodeString& values) {
    for (int position = 1; position <= names.Size(); ++position) {
        const std::string_view name = names[position].View();
        const std::string_view value = values[position].View();
        if (IsReadBack(node, name, value)) {
            node.Text(name, value);
        } else {
            node.Warn(name, writer::kNotFree);
        }
    }
}
