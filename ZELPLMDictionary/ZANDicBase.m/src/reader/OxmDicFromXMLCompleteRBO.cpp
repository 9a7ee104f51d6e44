// Second pass: mappings and what is nested in them.
#include "CompleteReference.h"
#include "HexToBinary.h"
#include "OXMIDicRBOClass.h"
#include "OXMIDicRBOComponent.h"
#include "OXMIDicRBOMapping.h"
#include "OXMIDicRBOPathExpression.h"
#include "OXMIDicRBORoot.h"
#include "OxmDicFromXMLComplete.h"
#include "ZANDicWords.h"

using namespace ZANDicFormat;
using namespace complete;

namespace {

template <class Face>
HRESULT CompleteBaseClass(const ReferenceSpot& spot) {
    auto& object = static_cast<Face&>(*spot.element);
    const auto set = [&](OXMIDicClass* target) {
        // NOLINTNEXTLINE(clang-analyzer-core.CallAndMessage): the object is there.
        return object.SetBaseClass(target);
    };
    return CompleteOne<OXMIDicClass>(spot, kClassKind, "SetBaseClass", set);
}

HRESULT CompleteTarget(const ReferenceSpot& spot) {
    auto& object = static_cast<OXMIDicRBOPathExpression&>(*spot.element);
    if (spot.attribute) {
        const auto set = [&](OXMIDicElement* target) {
            // NOLINTNEXTLINE(clang-analyzer-core.CallAndMessage): the object is there.
            return object.SetTarget(target);
        };
        return CompleteOne<OXMIDicElement>(spot, kAnyKind, "SetTarget", set);
    }
    // The first pass told that it is missing.
    spot.trace.Error(Joined({text::kReferenceIsMissing, word::kTargetRef}));
    return E_FAIL;
}

/// What is done with the reference of an object, by type.
struct ObjectRow {
    OXMDicTYPE type;
    std::string_view tagName;
    std::string_view operation;
    HRESULT (*complete)(const ReferenceSpot&);
};

constexpr ObjectRow kObjectRows[] = {
    {OXMDicTYPE_RBORoot, tag::kRBORoot, text::kCompleteRBORoot, CompleteBaseClass<OXMIDicRBORoot>},
    {OXMDicTYPE_RBOComponent, tag::kRBOComponent, text::kCompleteRBOComponent,
     CompleteBaseClass<OXMIDicRBOComponent>},
    {OXMDicTYPE_RBOPathExpression, tag::kRBOPathExpression, text::kCompleteRBOPathExpression, CompleteTarget},
};

const ObjectRow& RowOf(OXMDicTYPE type) {
    const ObjectRow* row = kObjectRows;
    while (row->type != type) ++row;
    return *row;
}

/// Completes the objects of a mapping: each object before what is inside it. The nest is as deep as the
/// document says, so its levels are a list rather than calls within calls.
class ObjectWalk {
public:
    ObjectWalk(Reading& reading, const ZanDicTraceScope& trace, const ElementNote& mapping)
        : _Reading(reading) {
        _LEVELS.push_back({nullptr, trace, mapping.firstMember, mapping.endMember});
    }

    HRESULT Walk() {
        while (true) {
            Level& level = _LEVELS.back();
            if (level.next < level.end) {
                const RBONote& note = _Reading.objects[level.next];
                level.next = note.end;
                if (note.object) {
                    enter(note);
                } else {
                    note_Result(tell_LeftOut(note, level.trace));
                }
                continue;
            }
            const HRESULT result = level.result;
            const ObjectRow* const row = level.row;
            if (row == nullptr) return result;
            level.trace.Exit(result);
            _LEVELS.pop_back();
            _Reading.owners.pop_back();
            if (Failed(result)) tell_Failure(*row, result);
            note_Result(result);
        }
    }

private:
    /// An object, or the mapping, whose children are being completed.
    struct Level {
        const ObjectRow* row;  ///< null for the mapping
        ZanDicTraceScope trace;
        std::size_t next;
        std::size_t end;
        HRESULT result = S_OK;
    };

    void note_Result(HRESULT rc) {
        Level& level = _LEVELS.back();
        if (!_Reading.faults.GoesOn(rc, level.result)) level.next = level.end;
    }

    void enter(const RBONote& note) {
        const ObjectRow& row = RowOf(note.type);
        const ZanDicTraceScope trace(row.operation, "RC=");
        trace.Start();
        const ZELVBTXMLNode node = _Reading.document.ElementAt(note.node);
        const auto first = static_cast<std::size_t>(&note - _Reading.objects.data()) + 1;
        _LEVELS.push_back({&row, trace, first, note.end});
        note_Result(row.complete({_Reading, trace, node, note.object.Get(), note.reference}));
        _Reading.owners.push_back(NameOf(node));
    }

    /// The line of an object that the first pass could not make, and told then. Where its UUID is that of
    /// another object of its kind, that was all there is to say.
    HRESULT tell_LeftOut(const RBONote& note, const ZanDicTraceScope& trace) const {
        const ZELVBTXMLNode node = _Reading.document.ElementAt(note.node);
        const ZELDbBinary uuid = UuidFromText(node.getAttributeValue(word::kUuid).value_or(""));
        ZanDicRef<OXMIDicElementH> found;
        const bool isFound = Succeeded(_Reading.manager.Search(&uuid, found.Out()));
        OXMDicTYPE type{};
        if (isFound && Succeeded(found->GetType(&type)) && type == note.type) return E_FAIL;
        if (auto line = trace.Error()) {
            if (isFound) {
                line << text::kCouldNotGet << RowOf(note.type).tagName << text::kNotOfThatKind
                     << E_NOINTERFACE;
            } else {
                line << text::kNoObjectOfUuid << E_FAIL;
            }
        }
        return E_FAIL;
    }

    /// The line of a root's or component's failed child; of a failed root its mapping says nothing more.
    void tell_Failure(const ObjectRow& row, HRESULT rc) const {
        if (row.type == OXMDicTYPE_RBORoot) return;
        if (auto line = _LEVELS.back().trace.Error()) {
            line << text::kCompleteOf << row.tagName << text::kCompleteOfFailed << rc;
        }
    }

    Reading& _Reading;
    std::vector<Level> _LEVELS;
};

}  // namespace

HRESULT CompleteRBOMapping(Reading& reading, const ElementNote& note) {
    const ZanDicTraceScope trace(text::kDriver, "RC=");
    auto& element = note.As<OXMIDicRBOMapping>();
    const ZELVBTXMLNode node = reading.document.ElementAt(note.node);
    HRESULT result = S_OK;
    HRESULT rc = E_FAIL;
    if (note.reference) {
        rc = CompleteOne<OXMIDicRBOClass>(
            {reading, trace, node, &element, note.reference}, kRBOClassKind, "SetApplyToRBOClass",
            [&](OXMIDicRBOClass* target) { return element.SetApplyToRBOClass(target); });
    } else {
        // The first pass told that it is missing.
        trace.Error(Joined({text::kReferenceIsMissing, word::kApplyToRBOClassRef}));
    }
    if (!reading.faults.GoesOn(rc, result)) return result;
    reading.owners.push_back(NameOf(node));
    reading.faults.GoesOn(ObjectWalk(reading, trace, note).Walk(), result);
    reading.owners.pop_back();
    return result;
}
