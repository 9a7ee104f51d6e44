#include "XmlWalk.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "OXMIDicClass.h"
#include "WriterTexts.h"
#include "ZanDicTypeNames.h"

namespace {

constexpr HRESULT kNoElement = -1;

constexpr const XmlKind* kKinds[] = {
    &kPackageKind,   &kClassKind,        &kExtensionKind,         &kSimpleKind,   &kRelationshipKind,
    &kInverseKind,   &kUniqueKind,       &kCategoryKind,          &kEnumKind,     &kEnumeratorKind,
    &kInterfaceKind, &kMethodKind,       &kParameterKind,         &kRBOClassKind, &kRBOMappingKind,
    &kRBORootKind,   &kRBOComponentKind, &kRBOPathExpressionKind,
};

/// The kinds by type code; null where a code has none. Made once.
const XmlKind* KindOf(OXMDicTYPE type) {
    static const auto kinds = [] {
        std::array<const XmlKind*, kZanDicTypeCount> table{};
        for (const XmlKind* const kind : kKinds) table[static_cast<std::size_t>(kind->type)] = kind;
        return table;
    }();
    const auto index = static_cast<std::size_t>(type);
    return index < kinds.size() ? kinds[index] : nullptr;
}

bool CanWriteInPlace(OXMDicTYPE type) {
    const XmlKind* const kind = KindOf(type);
    return kind != nullptr && kind->writeAttribute != nullptr;
}

void ListUniques(IUnknown& element, ZanDicRefList& uniques) {
    if (const ZanDicRef<OXMIDicClass> face = As<OXMIDicClass>(element)) face->GetUniques(uniques.Out());
}

constexpr ZanDicTraceScope kTrace(writer::kDisplayElement);

}  // namespace

HRESULT XmlWalk::Write(OXMIDicElementH* element) {
    Enter(element);
    HRESULT rc = S_OK;
    while (!_LEVELS.empty()) {
        Level& level = _LEVELS.back();
        if (level.next <= level.children.Size()) {
            const int position = level.next++;
            if (position > 1) level.children.Drop(position - 1);
            Enter(static_cast<OXMIDicElementH*>(level.children[position]));
            continue;
        }
        if (level.hasNode) _Document.End();
        rc = kTrace.Exit(level.rc);
        _LEVELS.pop_back();
    }
    return rc;
}

/// Begins an element: its attributes are written and its children known after that.
void XmlWalk::Enter(OXMIDicElementH* element) {
    kTrace.Start(writer::kStart);
    Level level;
    level.hasNode = false;
    if (element == nullptr) {
        kTrace.Error(writer::kNullElement);
        level.rc = kNoElement;
    } else {
        ZELString name;
        OXMDicTYPE type = OXMDicTYPE_UNDEFINED;
        element->GetName(&name);
        element->GetType(&type);
        if (const XmlKind* const kind = KindOf(type)) {
            WriteNode(*kind, *element, name, level);
        } else if (auto line = kTrace.Warning()) {
            line << writer::kUnknownElement << type << writer::kElementName << name;
        }
    }
    _LEVELS.push_back(std::move(level));
}

void XmlWalk::WriteNode(const XmlKind& kind, OXMIDicElementH& element, const ZELString& name, Level& level) {
    const ZanDicTraceScope trace(kind.operation);
    trace.Start();
    XmlNode node(_Document, _Scratch, trace, kind.tag(element), name);
    level.rc = kind.write(node, element);
    level.hasNode = true;
    const bool hasAttributes = FindAttributes(element);
    if (hasAttributes) {
        ListUniques(element, level.children);
    } else if (kind.listChildren != nullptr) {
        kind.listChildren(element, level.children.Out());
    }
    trace.Exit(level.rc);
    if (hasAttributes) WriteAttributes();
}

/// Takes the attributes of a class of this library, which are written where they stand: going through an
/// interface of each costs as much as writing it. \returns false for what has none or is no such class.
bool XmlWalk::FindAttributes(const IUnknown& element) {
    const ZanHashList* const attributes = OwnAttributesOf(element);
    if (attributes == nullptr) return false;
    for (int position = 1; position <= attributes->Size(); ++position) {
        ZanDicObj* const attribute = (*attributes)[position];
        if (AttributeBehind(attribute) == nullptr || !CanWriteInPlace(attribute->Type())) {
            _ATTRIBUTES.clear();
            return false;
        }
        _ATTRIBUTES.push_back(ZanDicRef<ZanDicObj>::Share(attribute));
    }
    return !_ATTRIBUTES.empty();
}

void XmlWalk::WriteAttributes() {
    const std::size_t count = _ATTRIBUTES.size();
    for (std::size_t index = 0; index < count; ++index) {
        // What types attributes lies all over the memory: it is asked for in time, step by step.
        if (index + 6 < count) At(index + 6).PrefetchTypePlace();
        if (index + 4 < count) At(index + 4).PrefetchType();
        if (index + 2 < count) At(index + 2).PrefetchTypeName();
        WriteAttribute(At(index));
        _ATTRIBUTES[index].Reset();
    }
    _ATTRIBUTES.clear();
}

void XmlWalk::WriteAttribute(const StoredAttribute& attribute) {
    kTrace.Start(writer::kStart);
    const XmlKind& kind = *KindOf(attribute.Kind());
    const ZanDicTraceScope trace(kind.operation);
    trace.Start();
    XmlNode node(_Document, _Scratch, trace, kind.attributeTag, attribute.Name());
    const HRESULT rc = kind.writeAttribute(node, attribute);
    trace.Exit(rc);
    _Document.End();
    kTrace.Exit(rc);
}
