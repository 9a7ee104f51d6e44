// First pass: RBO classes, and mappings with all that is nested in them.
#include "FillWords.h"
#include "HexToBinary.h"
#include "OXMIDicRBOClass.h"
#include "OXMIDicRBOComponent.h"
#include "OXMIDicRBOMapping.h"
#include "OXMIDicRBOPathExpression.h"
#include "OXMIDicRBORoot.h"
#include "OxmDicFromXMLFill.h"

using namespace ZANDicFormat;
using namespace fill;

namespace {

constexpr LoopTexts kRBOLoop{text::kProcessingAttributeOf, text::kUnknownPackageAttribute,
                             text::kRefusedValue, true};
constexpr LoopTexts kRBOClassLoop{text::kProcessingAttributeOf, text::kUnknownPackageAttribute};

// The words of each kind.

/// A reference: its UUID is stored at once; the last one is resolved in the second pass.
template <auto Setter, class Element>
HRESULT StoredReference(Element& element, const Given& given) {
    const ZELDbBinary uuid = UuidFromText(given.Value());
    given.reading.storedReference = given.attribute;
    return (element.*Setter)(&uuid);
}

/// A text whose setter refuses an empty one.
template <auto Setter, class Element>
HRESULT TextUnlessEmpty(Element& element, const Given& given) {
    return given.Value().empty() ? S_OK : Text<Setter>(element, given);
}

constexpr AttributeWord<OXMIDicRBOClass> kRBOClassWords[] = {
    {word::kName, Skip},
    {word::kUuid, Skip},
    {word::kAlias, Text<&OXMIDicRBOClass::SetAlias>},
};
static_assert(AreAttributesOf(kRBOClassWords, {tag::kRBOClass}));

constexpr AttributeWord<OXMIDicRBOMapping> kRBOMappingWords[] = {
    {word::kName, Skip},
    {word::kUuid, Skip},
    {word::kAlias, Text<&OXMIDicRBOMapping::SetAlias>},
    {word::kApplyToRBOClass, Text<&OXMIDicRBOMapping::SetApplyToRBOClassName>},
    {word::kApplyToRBOClassRef, StoredReference<&OXMIDicRBOMapping::SetApplyToRBOClassRef>, true},
};
static_assert(AreAttributesOf(kRBOMappingWords, {tag::kRBOMapping}));

constexpr AttributeWord<OXMIDicRBORoot> kRBORootWords[] = {
    {word::kName, Skip},
    {word::kUuid, Skip},
    {word::kAlias, Text<&OXMIDicRBORoot::SetAlias>},
    {word::kBaseClass, Text<&OXMIDicRBORoot::SetBaseClassName>},
    {word::kBaseClassRef, StoredReference<&OXMIDicRBORoot::SetBaseClassRef>, true},
};
static_assert(AreAttributesOf(kRBORootWords, {tag::kRBORoot}));

constexpr AttributeWord<OXMIDicRBOComponent> kRBOComponentWords[] = {
    {word::kName, Skip},
    {word::kUuid, Skip},
    {word::kAlias, Text<&OXMIDicRBOComponent::SetAlias>},
    {word::kBaseClass, Text<&OXMIDicRBOComponent::SetBaseClassName>},
    {word::kBaseClassRef, StoredReference<&OXMIDicRBOComponent::SetBaseClassRef>, true},
    {word::kValidityRule, Text<&OXMIDicRBOComponent::SetValidityRule>},
};
static_assert(AreAttributesOf(kRBOComponentWords, {tag::kRBOComponent}));

constexpr AttributeWord<OXMIDicRBOPathExpression> kRBOPathExpressionWords[] = {
    {word::kName, Skip},
    {word::kUuid, Skip},
    {word::kAlias, Text<&OXMIDicRBOPathExpression::SetAlias>},
    {word::kType, TextUnlessEmpty<&OXMIDicRBOPathExpression::SetPathExprType>},
    {word::kSubType, TextUnlessEmpty<&OXMIDicRBOPathExpression::SetPathExprSubType>},
    {word::kTargetName, TextUnlessEmpty<&OXMIDicRBOPathExpression::SetTargetName>},
    {word::kTargetRef, StoredReference<&OXMIDicRBOPathExpression::SetTargetRef>, true},
};
static_assert(AreAttributesOf(kRBOPathExpressionWords, {tag::kRBOPathExpression}));

// Making the objects.

/// A child on its way to an object, and its owner as the interface of its type.
struct ObjectTag {
    const ZELVBTXMLNode& node;
    OXMIDicElement& owner;
    ZELString name;
    ZELDbBinary uuid;
};

/// Makes an object by a factory of its owner.
template <class Owner, class Face, HRESULT (Owner::*Factory)(const ZELString*, const ZELDbBinary*, Face**)>
ZanDicRef<OXMIDicElement> Make(const ObjectTag& tag) {
    ZanDicRef<Face> made;
    if (Failed((static_cast<Owner&>(tag.owner).*Factory)(&tag.name, &tag.uuid, made.Out()))) made.Reset();
    return ZanDicRef<OXMIDicElement>(made.Detach());
}

/// \returns the child of that name of an owner; null when there is none.
template <class Owner>
ZanDicRef<OXMIDicElement> FindChild(const ObjectTag& tag) {
    ZELListPtrIUnknown children;
    static_cast<Owner&>(tag.owner).GetElements(&children);
    ZanDicRef<OXMIDicElement> found;
    for (int position = 1; position <= children.Size(); ++position) {
        ZanDicRef<IUnknown> face(children[position]);
        ZanDicRef<OXMIDicElement> child;
        ZELString name;
        face->QueryInterface(IID_OXMIDicElement, child.OutVoid());
        if (!found && child && Succeeded(child->GetName(&name)) && name == tag.name) found = std::move(child);
    }
    return found;
}

template <const auto& Words, class Face>
HRESULT FillObject(Reading& reading, const ZanDicTraceScope& trace, const ZELVBTXMLNode& node,
                   OXMIDicElement& object) {
    return FillAttributes<Words>(reading, trace, node, static_cast<Face&>(object), kRBOLoop);
}

/// What may stand inside an object, and what is made of it.
struct ObjectRow {
    OXMDicTYPE ownerType;
    std::string_view tagName;
    OXMDicTYPE type;
    std::string_view operation;
    ZanDicRef<OXMIDicElement> (*make)(const ObjectTag&);
    ZanDicRef<OXMIDicElement> (*find)(const ObjectTag&);  ///< null where names do not matter
    HRESULT (*fill)(Reading&, const ZanDicTraceScope&, const ZELVBTXMLNode&, OXMIDicElement&);
    std::string_view mandatoryReference = {};
};

constexpr ObjectRow kObjectRows[] = {
    {OXMDicTYPE_RBOMapping, tag::kRBORoot, OXMDicTYPE_RBORoot, text::kFillRBORoot,
     Make<OXMIDicRBOMapping, OXMIDicRBORoot, &OXMIDicRBOMapping::CreateRBORoot>, FindChild<OXMIDicRBOMapping>,
     FillObject<kRBORootWords, OXMIDicRBORoot>},
    {OXMDicTYPE_RBORoot, tag::kRBOComponent, OXMDicTYPE_RBOComponent, text::kFillRBOComponent,
     Make<OXMIDicRBORoot, OXMIDicRBOComponent, &OXMIDicRBORoot::CreateRBOComponent>,
     FindChild<OXMIDicRBORoot>, FillObject<kRBOComponentWords, OXMIDicRBOComponent>},
    {OXMDicTYPE_RBOComponent, tag::kRBOComponent, OXMDicTYPE_RBOComponent, text::kFillRBOComponent,
     Make<OXMIDicRBOComponent, OXMIDicRBOComponent, &OXMIDicRBOComponent::CreateRBOComponent>,
     FindChild<OXMIDicRBOComponent>, FillObject<kRBOComponentWords, OXMIDicRBOComponent>},
    {OXMDicTYPE_RBOComponent, tag::kRBOPathExpression, OXMDicTYPE_RBOPathExpression,
     text::kFillRBOPathExpression,
     Make<OXMIDicRBOComponent, OXMIDicRBOPathExpression, &OXMIDicRBOComponent::CreateRBOPathExpression>,
     nullptr, FillObject<kRBOPathExpressionWords, OXMIDicRBOPathExpression>, word::kTargetRef},
};

const ObjectRow* FindObjectRow(OXMDicTYPE ownerType, std::string_view tagName) {
    for (const ObjectRow& row : kObjectRows) {
        if (row.ownerType == ownerType && row.tagName == tagName) return &row;
    }
    return nullptr;
}

HRESULT ReportObjectNotCreated(Reading& reading, const ZanDicTraceScope& trace, const ObjectTag& tag,
                               OXMIDicElement* namesake) {
    using enum ZanDicDiagnosticCode;
    ZanDicRef<OXMIDicElementH> registered;
    Fault fault = FaultOf(reading, namesake != nullptr ? DuplicateName : NotCreated, tag.node);
    if (namesake != nullptr) {
        fault.attribute = tag.node.getAttribute(word::kName);
        SetOther(fault, *namesake);
    } else if (Succeeded(reading.manager.Search(&tag.uuid, registered.Out()))) {
        fault.code = DuplicateUuid;
        fault.attribute = tag.node.getAttribute(word::kUuid);
        SetOther(fault, *registered);
    }
    fault.lines.push_back(
        {trace, Joined({text::kErrorCreating, tag.node.getTag(), text::kColon, tag.name.View()})});
    const HRESULT rc = reading.faults.Report(fault);
    LeaveOut(reading, tag.node);
    return rc;
}

/// Reports that the one reference which may not be missing is. \returns E_FAIL.
HRESULT ReportMissingReference(Reading& reading, const ZanDicTraceScope& trace, const ZELVBTXMLNode& node,
                               std::string_view attribute) {
    Fault fault = FaultOf(reading, ZanDicDiagnosticCode::MissingAttribute, node);
    fault.attributeName = attribute;
    fault.lines.push_back({trace, std::string(text::kMissingReference)});
    fault.lines.push_back({trace, Joined({text::kMissingAttributeIs, attribute})});
    return reading.faults.Report(fault);
}

void WarnNotImplemented(Reading& reading, const ZanDicTraceScope& trace, const ZELVBTXMLNode& node) {
    Fault fault = FaultOf(reading, ZanDicDiagnosticCode::UnsupportedTag, node);
    fault.severity = ZanDicSeverity::Warning;
    fault.lines.push_back({trace, std::string(text::kNotImplemented)});
    reading.faults.Report(fault);
}

/// Tells a child that nothing is made of.
void PassOver(Reading& reading, const ZanDicTraceScope& trace, const ZELVBTXMLNode& node) {
    if (node.getTag() == tag::kSimple) {
        WarnNotImplemented(reading, trace, node);
    } else {
        ReportUnknownTag(reading, trace, node, text::kUnknownTag);
    }
}

/// Makes and fills what is inside a mapping. The nest is as deep as the document says, so its levels are a
/// list rather than calls within calls.
class ObjectWalk {
public:
    ObjectWalk(Reading& reading, const ZanDicTraceScope& trace, const ZELVBTXMLNode& node,
               OXMIDicElement& mapping)
        : _Reading(reading) {
        _LEVELS.push_back({node, node.getFirstNodePosition(), OXMDicTYPE_RBOMapping, &mapping, trace});
    }

    HRESULT Walk() {
        while (true) {
            Level& level = _LEVELS.back();
            const ZELVBTXMLNode child = level.isOver ? ZELVBTXMLNode() : level.node.getNextNode(level.next);
            if (child) {
                note_Result(read_Child(level, child));
                continue;
            }
            const HRESULT result = level.result;
            if (_LEVELS.size() == 1) return result;
            _Reading.objects[level.note].end = _Reading.objects.size();
            level.trace.Exit(result);
            _LEVELS.pop_back();
            _Reading.owners.pop_back();
            note_Result(result);
        }
    }

private:
    /// An object whose children are being read.
    struct Level {
        ZELVBTXMLNode node;
        ZELVBTXMLNodePosition next;
        OXMDicTYPE type;
        OXMIDicElement* object;  ///< held by its note
        ZanDicTraceScope trace;
        std::size_t note = 0;
        HRESULT result = S_OK;
        bool isOver = false;  ///< what is left is not looked at
    };

    /// Tells the innermost level how a child of it ended.
    void note_Result(HRESULT rc) {
        Level& level = _LEVELS.back();
        if (!_Reading.faults.GoesOn(rc, level.result)) level.isOver = true;
    }

    HRESULT read_Child(const Level& level, const ZELVBTXMLNode& node) {
        const ObjectRow* const row = FindObjectRow(level.type, node.getTag());
        if (row == nullptr) {
            PassOver(_Reading, level.trace, node);
            return S_OK;
        }
        if (const HRESULT rc = CheckIdentity(_Reading, level.trace, node); Failed(rc)) return rc;
        const ObjectTag tag{node, *level.object, _Reading.texts.Text(NameOf(node)),
                            UuidFromText(*node.getAttributeValue(word::kUuid))};
        ZanDicRef<OXMIDicElement> object = row->make(tag);
        _Reading.objects.push_back({row->type, node.Index(), _Reading.objects.size() + 1});
        if (!object) {
            const ZanDicRef<OXMIDicElement> namesake =
                row->find != nullptr ? row->find(tag) : ZanDicRef<OXMIDicElement>();
            return ReportObjectNotCreated(_Reading, level.trace, tag, namesake.Get());
        }
        _Reading.objects.back().object = std::move(object);
        return enter(*row, node);
    }

    /// Fills the object noted last; what is inside it is a level of its own.
    HRESULT enter(const ObjectRow& row, const ZELVBTXMLNode& node) {
        RBONote& note = _Reading.objects.back();
        const ZanDicTraceScope trace(row.operation, "RC=");
        trace.Start();
        _Reading.storedReference = {};
        HRESULT result = S_OK;
        bool goesOn = _Reading.faults.GoesOn(row.fill(_Reading, trace, node, *note.object), result);
        note.reference = _Reading.storedReference;
        if (goesOn && !note.reference && !row.mandatoryReference.empty()) {
            goesOn = _Reading.faults.GoesOn(
                ReportMissingReference(_Reading, trace, node, row.mandatoryReference), result);
        }
        _LEVELS.push_back({node, node.getFirstNodePosition(), row.type, note.object.Get(), trace,
                           _Reading.objects.size() - 1, result, !goesOn});
        _Reading.owners.push_back(NameOf(node));
        return S_OK;
    }

    Reading& _Reading;
    std::vector<Level> _LEVELS;
};

}  // namespace

HRESULT FillRBOClass(Reading& reading, const ZELVBTXMLNode& node, OXMIDicRBOClass& element) {
    const ZanDicTraceScope trace(text::kFillRBOClass, "RC=");
    trace.Start();
    HRESULT result = S_OK;
    const HRESULT rc = FillAttributes<kRBOClassWords>(reading, trace, node, element, kRBOClassLoop);
    if (!reading.faults.GoesOn(rc, result)) return trace.Exit(result);
    reading.owners.push_back(NameOf(node));
    for (const ZELVBTXMLNode child : node.Children()) PassOver(reading, trace, child);
    reading.owners.pop_back();
    return trace.Exit(result);
}

HRESULT FillRBOMapping(Reading& reading, const ZELVBTXMLNode& node, OXMIDicRBOMapping& element,
                       ElementNote& note) {
    const ZanDicTraceScope trace(text::kFillRBOMapping, "RC=");
    trace.Start();
    reading.storedReference = {};
    HRESULT result = S_OK;
    const HRESULT rc = FillAttributes<kRBOMappingWords>(reading, trace, node, element, kRBOLoop);
    note.reference = reading.storedReference;
    note.firstMember = reading.objects.size();
    note.endMember = note.firstMember;
    if (!reading.faults.GoesOn(rc, result)) return trace.Exit(result);
    if (!note.reference &&
        !reading.faults.GoesOn(ReportMissingReference(reading, trace, node, word::kApplyToRBOClassRef),
                               result)) {
        return trace.Exit(result);
    }
    reading.owners.push_back(NameOf(node));
    reading.faults.GoesOn(ObjectWalk(reading, trace, node, element).Walk(), result);
    reading.owners.pop_back();
    note.endMember = reading.objects.size();
    return trace.Exit(result);
}
