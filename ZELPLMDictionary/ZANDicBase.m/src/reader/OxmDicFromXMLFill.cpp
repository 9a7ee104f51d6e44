#include "OxmDicFromXMLFill.h"

#include <string>
#include <type_traits>

#include "AttributeWord.h"
#include "HexToBinary.h"
#include "IntegerText.h"
#include "OXMIDicCategory.h"
#include "OXMIDicEnum.h"
#include "OXMIDicEnumerator.h"
#include "OXMIDicInverse.h"
#include "OXMIDicRelationship.h"
#include "OXMIDicSimple.h"
#include "OXMIDicUnique.h"
#include "ReaderTexts.h"
#include "Reading.h"
#include "ZANDicValueWords.h"

using namespace ZANDicFormat;

namespace {

/// An attribute on its way to a setter.
struct Given {
    Reading& reading;
    const ZanDicTraceScope& trace;
    const ZELVBTXMLNode& node;
    const ZELVBTXMLAttribute& attribute;

    std::string_view Value() const { return attribute.Value(); }
};

/// What is done with an attribute of an element.
template <class Element>
struct AttributeWord {
    std::string_view name;
    HRESULT (*fill)(Element&, const Given&);
};

/// The argument of a setter, without pointer and const.
template <class Setter>
struct ArgumentOf;
template <class Owner, class Argument>
struct ArgumentOf<HRESULT (Owner::*)(Argument)> {
    using Type = std::remove_cv_t<std::remove_pointer_t<Argument>>;
};
template <auto Setter>
using Argument = typename ArgumentOf<decltype(Setter)>::Type;

/// Name="value".
std::string Assignment(const Given& given) { return Joined({given.attribute.Name(), "=", given.Value()}); }

void Warn(ZanDicDiagnosticCode code, const Given& given, TraceLevel level, std::string_view message,
          std::string_view detail) {
    if (!FaultReport::IsWanted(given.trace, level)) return;
    Fault fault = FaultOf(given.reading, code, given.node);
    fault.severity = ZanDicSeverity::Warning;
    fault.attribute = given.attribute;
    fault.detail = detail;
    fault.lines.push_back({given.trace, Joined({message, Assignment(given)}), level});
    given.reading.faults.Report(fault);
}

// Setters. Each is the one place of its form.

/// Known, and without effect here.
template <class Element>
HRESULT Skip(Element&, const Given&) {
    return S_OK;
}

/// Left for the second pass.
template <std::size_t Slot, class Element>
HRESULT Reference(Element&, const Given& given) {
    given.reading.references.Note(Slot, given.attribute);
    return S_OK;
}

template <auto Setter, class Element>
HRESULT Text(Element& element, const Given& given) {
    const Argument<Setter> value(given.reading.texts.Text(given.Value()));
    return (element.*Setter)(&value);
}

template <auto Setter, class Element>
HRESULT Flag(Element& element, const Given& given) {
    return (element.*Setter)(given.Value() == value::kYes ? 1 : 0);
}

/// A word of a list; any other stands for a code of its own.
template <auto Setter, const auto& Words, int OtherCode, class Element>
HRESULT Word(Element& element, const Given& given) {
    return (element.*Setter)(static_cast<Argument<Setter>>(CodeOf(Words, given.Value(), OtherCode)));
}

/// A word of a list; any other changes nothing.
template <auto Setter, const auto& Words, class Element>
HRESULT KnownWord(Element& element, const Given& given) {
    if (const CodeWord* const row = FindWord(Words, given.Value()); row != nullptr) {
        return (element.*Setter)(static_cast<Argument<Setter>>(row->code));
    }
    Warn(ZanDicDiagnosticCode::UnknownWord, given, TraceLevel::Error, text::kUnknownWord,
         "it is passed over");
    return S_OK;
}

template <auto Setter, class Element>
HRESULT Integer(Element& element, const Given& given) {
    using enum IntegerText::Verdict;
    const auto warn = [&given](std::string_view detail) {
        Warn(ZanDicDiagnosticCode::InvalidNumber, given, TraceLevel::Error, text::kInvalidNumber, detail);
    };

    const IntegerText number = ReadInteger(given.Value());
    if (number.verdict == NoDigits) {
        warn("it is passed over");
        return S_OK;
    }
    if (number.verdict == TextBehind) warn("what stands behind the digits is passed over");
    if (number.verdict == Clamped) warn("the nearest number that fits is taken");
    return (element.*Setter)(number.value);
}

/// Kept on the element as it stands.
template <class Element>
HRESULT Keep(Element& element, const Given& given) {
    const ZELUnicodeString name(given.reading.texts.Text(given.attribute.Name()));
    const ZELUnicodeString value(given.reading.texts.Text(given.Value()));
    return element.SetOtherAttribute(name, value);
}

HRESULT SetPrimitiveType(OXMIDicAttribute& element, const Given& given, int kind) {
    OXMIDicPrimitive* const primitive = given.reading.Primitive(kind);
    return primitive != nullptr ? element.SetType(primitive) : E_FAIL;
}

HRESULT SimpleType(OXMIDicSimple& element, const Given& given) {
    if (const CodeWord* const row = FindWord(kSimpleTypeWords, given.Value()); row != nullptr) {
        return SetPrimitiveType(element, given, row->code);
    }
    Warn(ZanDicDiagnosticCode::UnknownWord, given, TraceLevel::Call, text::kUnknownAttribute,
         "it is kept as a free attribute");
    return Keep(element, given);
}

HRESULT RelationType(OXMIDicRelationship& element, const Given& given) {
    return SetPrimitiveType(element, given, CodeOf(kRelationTypeWords, given.Value(), kOtherRelationType));
}

HRESULT RelationTarget(OXMIDicRelationship& element, const Given& given) {
    if (given.Value() != value::kAnyObject) return Reference<slot::kTarget>(element, given);
    return SetPrimitiveType(element, given, OXMDicPRIMITIVEType_AnyObject);
}

HRESULT RememberPersistent(OXMIDicClass&, const Given& given) {
    given.reading.persistent = given.attribute;
    return S_OK;
}

HRESULT EnumeratorValue(OXMIDicEnumerator& element, const Given& given) {
    const HRESULT rc = Integer<&OXMIDicEnumerator::SetValue>(element, given);
    if (auto line = given.trace.Line(TraceLevel::Detail)) {
        line << text::kEnumeratorValue << ReadInteger(given.Value()).value;
    }
    return rc;
}

// The words of each kind, in no particular order but for those of relationships.

constexpr AttributeWord<OXMIDicClass> kClassWords[] = {
    {word::kName, Skip},
    {word::kUuid, Skip},
    {word::kAlias, Text<&OXMIDicClass::SetAlias>},
    {word::kExpositionLevel, Text<&OXMIDicClass::SetExpositionLevel>},
    {word::kPersistent, RememberPersistent},
    {word::kVisibility, Word<&OXMIDicClass::SetVisibility, kVisibilityWords, kOtherVisibility>},
    {word::kKVADerivable, Word<&OXMIDicClass::SetKVADerivable, kKVADerivableWords, kOtherKVADerivable>},
    {word::kAbstract, Flag<&OXMIDicClass::SetAbstract>},
    {word::kExtensible, Flag<&OXMIDicClass::SetExtensible>},
    {word::kLateType, Text<&OXMIDicClass::SetLateType>},
    {word::kApplicationName, Text<&OXMIDicClass::SetApplicationName>},
    {word::kSuperRef, Reference<slot::kSuper>},
    {word::kReferenceRef, Reference<slot::kReference>},
    {word::kCommandRefs, Reference<slot::kCommands>},
    {word::kSuperName, Skip},
    {word::kScopeRefs, Skip},
    {word::kScopeNames, Skip},
    {word::kInterfaceRefs, Skip},
};

constexpr AttributeWord<OXMIDicSimple> kSimpleWords[] = {
    {word::kName, Skip},
    {word::kUuid, Skip},
    {word::kType, SimpleType},
    {word::kTargetRef, Reference<slot::kTarget>},
    {word::kCategoryRefs, Reference<slot::kCategories>},
    {word::kAlias, Text<&OXMIDicSimple::SetAlias>},
    {word::kExpositionLevel, Text<&OXMIDicSimple::SetExpositionLevel>},
    {word::kVisibility, Word<&OXMIDicSimple::SetVisibility, kVisibilityWords, kOtherVisibility>},
    {word::kAccessMode, Word<&OXMIDicSimple::SetAccessMode, kAccessModeSimpleWords, kOtherAccessMode>},
    {word::kMandatory, Flag<&OXMIDicSimple::SetMandatory>},
    {word::kCaseMode, KnownWord<&OXMIDicSimple::SetCaseMode, kCaseModeWords>},
    {word::kMaxLength, Integer<&OXMIDicSimple::SetMaxLength>},
    {word::kSensitive, Flag<&OXMIDicSimple::SetSensitive>},
    {word::kUpdateFacet, KnownWord<&OXMIDicSimple::SetUpdateFacet, kUpdateFacetWords>},
    {word::kDefault, Text<&OXMIDicSimple::SetDefault>},
    {word::kMagnitude, Text<&OXMIDicSimple::SetMagnitude>},
    {word::kMultiValuated, Flag<&OXMIDicSimple::SetMultiValuated>},
    {word::kDBFormat, Text<&OXMIDicSimple::SetDBFormat>},
    {word::kLower, Integer<&OXMIDicSimple::SetLower>},
    {word::kUpper, Integer<&OXMIDicSimple::SetUpper>},
    {word::kCollectionType, KnownWord<&OXMIDicSimple::SetCollectionType, kCollectionWords>},
};

/// Read in this order, whatever the document's: `Type` stands behind `TargetRef` and wins.
constexpr AttributeWord<OXMIDicRelationship> kRelationWords[] = {
    {word::kMandatory, Flag<&OXMIDicRelationship::SetMandatory>},
    {word::kMultiValuated, Flag<&OXMIDicRelationship::SetMultiValuated>},
    {word::kAlias, Text<&OXMIDicRelationship::SetAlias>},
    {word::kExpositionLevel, Text<&OXMIDicRelationship::SetExpositionLevel>},
    {word::kVisibility, Word<&OXMIDicRelationship::SetVisibility, kVisibilityWords, kOtherVisibility>},
    {word::kAccessMode,
     Word<&OXMIDicRelationship::SetAccessMode, kAccessModeRelationWords, kOtherAccessMode>},
    {word::kAggregation,
     Word<&OXMIDicRelationship::SetAggregationMode, kAggregationWords, kOtherAggregation>},
    {word::kUpdateFacet, KnownWord<&OXMIDicRelationship::SetUpdateFacet, kUpdateFacetWords>},
    {word::kSensitive, Flag<&OXMIDicRelationship::SetSensitive>},
    {word::kDefault, Text<&OXMIDicRelationship::SetDefault>},
    {word::kTargetRef, RelationTarget},
    {word::kScope, Word<&OXMIDicRelationship::SetScope, kScopeWords, kOtherScope>},
    {word::kType, RelationType},
    {word::kMaxLength, Integer<&OXMIDicRelationship::SetMaxLength>},
    {word::kLower, Integer<&OXMIDicRelationship::SetLower>},
    {word::kUpper, Integer<&OXMIDicRelationship::SetUpper>},
    {word::kCollectionType, KnownWord<&OXMIDicRelationship::SetCollectionType, kCollectionWords>},
    {word::kInjective, Flag<&OXMIDicRelationship::SetInjective>},
    {word::kScopeRefs, Reference<slot::kScopes>},
    {word::kInverseOfRef, Reference<slot::kInverseOf>},
    {word::kCategoryRefs, Reference<slot::kCategories>},
};

constexpr AttributeWord<OXMIDicUnique> kUniqueWords[] = {
    {word::kName, Skip},
    {word::kUuid, Skip},
    {word::kAlias, Text<&OXMIDicUnique::SetAlias>},
    {word::kUniqueRefs, Reference<slot::kUniques>},
};

constexpr AttributeWord<OXMIDicEnum> kEnumWords[] = {
    {word::kName, Skip},
    {word::kUuid, Skip},
    {word::kAlias, Text<&OXMIDicEnum::SetAlias>},
};

constexpr AttributeWord<OXMIDicEnumerator> kEnumeratorWords[] = {
    {word::kName, Skip},
    {word::kUuid, Skip},
    {word::kAlias, Text<&OXMIDicEnumerator::SetAlias>},
    {word::kValue, EnumeratorValue},
};

constexpr AttributeWord<OXMIDicCategory> kCategoryWords[] = {
    {word::kName, Skip},
    {word::kUuid, Skip},
    {word::kAlias, Text<&OXMIDicCategory::SetAlias>},
    {word::kGroup, Text<&OXMIDicCategory::SetGroup>},
};

constexpr AttributeWord<OXMIDicPackage> kPackageWords[] = {
    {word::kName, Skip},
    {word::kUuid, Skip},
    {word::kDomain, Skip},
    {word::kUseNames, Skip},
    {word::kUseScopes, Skip},
    {word::kCommandRefs, Skip},
    {word::kAlias, Text<&OXMIDicPackage::SetAlias>},
    {word::kExpositionLevel, Text<&OXMIDicPackage::SetExpositionLevel>},
    {word::kVersion, Keep},  // no field holds it
};

/// The index of the words of a kind.
template <const auto& Words>
constexpr WordIndex kIndex{Words};

/// Gives an attribute to the setter of its row. \returns S_OK; E_FAIL when the value is refused.
template <class Element>
HRESULT Fill(const AttributeWord<Element>& row, Element& element, const Given& given) {
    if (Succeeded(row.fill(element, given))) return S_OK;
    Fault fault = FaultOf(given.reading, ZanDicDiagnosticCode::InvalidValue, given.node);
    fault.attribute = given.attribute;
    fault.lines.push_back({given.trace, Joined({text::kRefusedValue, Assignment(given)})});
    return given.reading.faults.Report(fault);
}

/// Reports an attribute that no row knows and keeps it on the element.
template <class Element>
void FillUnknown(Element& element, const Given& given, std::string_view message) {
    Warn(ZanDicDiagnosticCode::UnknownAttribute, given, TraceLevel::Call, message, {});
    Keep(element, given);
}

/// Gives each attribute to its row, in document order; the last of a name wins.
template <const auto& Words, class Element>
HRESULT FillAttributes(Reading& reading, const ZanDicTraceScope& trace, const ZELVBTXMLNode& node,
                       Element& element) {
    HRESULT result = S_OK;
    int position = 0;
    for (const ZELVBTXMLAttribute attribute : node.Attributes()) {
        ++position;
        const Given given{reading, trace, node, attribute};
        if (auto line = trace.Line(TraceLevel::Detail)) {
            line << text::kProcessingAttribute << position << "]:" << Assignment(given);
        }
        if (const auto* const row = kIndex<Words>.Find(attribute.Name()); row == nullptr) {
            FillUnknown(element, given, text::kUnknownAttribute);
        } else if (!reading.faults.GoesOn(Fill(*row, element, given), result)) {
            break;
        }
    }
    return result;
}

/// Relationships and inverses: the first attribute of each name, in the order of the rows. Others are
/// never looked at.
HRESULT FillRelation(Reading& reading, const ZELVBTXMLNode& node, OXMIDicRelationship& element) {
    const ZanDicTraceScope trace(text::kFillRelation, "RC=");
    trace.Start();
    std::array<ZELVBTXMLAttribute, std::size(kRelationWords)> first;
    for (const ZELVBTXMLAttribute attribute : node.Attributes()) {
        const auto* const row = kIndex<kRelationWords>.Find(attribute.Name());
        if (row == nullptr) continue;
        ZELVBTXMLAttribute& place = first[kIndex<kRelationWords>.IndexOf(*row)];
        if (!place) place = attribute;
    }

    HRESULT result = S_OK;
    for (std::size_t index = 0; index < first.size(); ++index) {
        if (!first[index]) continue;
        const HRESULT rc = Fill(kRelationWords[index], element, {reading, trace, node, first[index]});
        if (!reading.faults.GoesOn(rc, result)) break;
    }
    return trace.Exit(result);
}

template <const auto& Words, class Element>
HRESULT FillPlain(Reading& reading, std::string_view operation, const ZELVBTXMLNode& node, Element& element) {
    const ZanDicTraceScope trace(operation, "RC=");
    trace.Start();
    return trace.Exit(FillAttributes<Words>(reading, trace, node, element));
}

/// Keeps a member for the second pass when it has something to resolve there.
template <class Face>
void NoteMember(Reading& reading, const ZELVBTXMLNode& node, OXMDicTYPE type, ZanDicRef<Face>& member) {
    if (!reading.references.HasAny()) return;
    reading.members.push_back(
        {ZanDicRef<OXMIDicElement>(member.Detach()), type, node.Index(), reading.references});
}

// Members of a class.

/// A child of a class on its way to a member.
struct MemberTag {
    Reading& reading;
    const ZanDicTraceScope& trace;
    const ZELVBTXMLNode& node;
    OXMIDicClass& owner;
    ZELString name;
    ZELDbBinary uuid;
};

/// Makes a member by one of the class's factories. \returns E_FAIL when it was not made and registered.
template <class Face>
HRESULT CreateMember(const MemberTag& tag,
                     HRESULT (OXMIDicClass::*factory)(const ZELString*, const ZELDbBinary*, Face**),
                     ZanDicRef<Face>& member) {
    const HRESULT rc = (tag.owner.*factory)(&tag.name, &tag.uuid, member.Out());
    if (Succeeded(rc) && member) return S_OK;

    bool isNameTaken = false;
    if constexpr (std::is_same_v<Face, OXMIDicUnique>) {
        ZanDicRef<OXMIDicUnique> other;
        isNameTaken = Succeeded(tag.owner.GetUnique(&tag.name, other.Out()));
    } else {
        ZanDicRef<OXMIDicElement> other;
        isNameTaken = Succeeded(tag.owner.GetClassElement(&tag.name, other.Out()));
    }
    return ReportNotCreated(tag.reading, tag.trace, tag.node, static_cast<bool>(member), isNameTaken,
                            Joined({text::kCouldNotCreateMember, tag.node.getTag(), " ", tag.name.View()}));
}

HRESULT ReadSimple(const MemberTag& tag) {
    ZanDicRef<OXMIDicSimple> member;
    if (const HRESULT rc = CreateMember(tag, &OXMIDicClass::CreateSimple, member); Failed(rc)) return rc;
    const HRESULT rc = FillPlain<kSimpleWords>(tag.reading, text::kFillSimple, tag.node, *member);
    NoteMember(tag.reading, tag.node, OXMDicTYPE_Simple, member);
    return rc;
}

HRESULT ReadRelationship(const MemberTag& tag) {
    ZanDicRef<OXMIDicRelationship> member;
    if (const HRESULT rc = CreateMember(tag, &OXMIDicClass::CreateRelationship, member); Failed(rc))
        return rc;
    const HRESULT rc = FillRelation(tag.reading, tag.node, *member);
    NoteMember(tag.reading, tag.node, OXMDicTYPE_Relationship, member);
    return rc;
}

HRESULT ReadInverse(const MemberTag& tag) {
    ZanDicRef<OXMIDicInverse> member;
    if (const HRESULT rc = CreateMember(tag, &OXMIDicClass::CreateInverse, member); Failed(rc)) return rc;
    // The table is that of relationships, whose interface every attribute answers.
    ZanDicRef<OXMIDicRelationship> relation;
    member->QueryInterface(IID_OXMIDicRelationship, relation.OutVoid());
    if (!relation) {
        return ReportNotCreated(
            tag.reading, tag.trace, tag.node, false, false,
            Joined({text::kCouldNotCreateMember, tag.node.getTag(), " ", tag.name.View()}));
    }
    const HRESULT rc = FillRelation(tag.reading, tag.node, *relation);
    NoteMember(tag.reading, tag.node, OXMDicTYPE_Inverse, member);
    return rc;
}

HRESULT ReadUnique(const MemberTag& tag) {
    ZanDicRef<OXMIDicUnique> member;
    if (const HRESULT rc = CreateMember(tag, &OXMIDicClass::CreateUnique, member); Failed(rc)) return rc;
    const HRESULT rc = FillPlain<kUniqueWords>(tag.reading, text::kFillUnique, tag.node, *member);
    NoteMember(tag.reading, tag.node, OXMDicTYPE_Unique, member);
    return rc;
}

/// Implement and Security: the class makes none.
template <auto Factory>
HRESULT RefuseMember(const MemberTag& tag) {
    ZanDicRef<IUnknown> nothing;
    (tag.owner.*Factory)(&tag.name, nothing.Out());
    Fault fault = FaultOf(tag.reading, ZanDicDiagnosticCode::UnsupportedTag, tag.node);
    fault.lines.push_back(
        {tag.trace, Joined({text::kCouldNotCreateMember, tag.node.getTag(), " ", tag.name.View()})});
    return tag.reading.faults.Report(fault);
}

struct MemberRow {
    std::string_view name;
    HRESULT (*read)(const MemberTag&);
};

constexpr MemberRow kMemberRows[] = {
    {tag::kSimple, ReadSimple},
    {tag::kRelationship, ReadRelationship},
    {tag::kInverse, ReadInverse},
    {tag::kUnique, ReadUnique},
    {tag::kImplement, RefuseMember<&OXMIDicClass::CreateImplement>},
    {tag::kSecurity, RefuseMember<&OXMIDicClass::CreateSecurity>},
};
constexpr WordIndex kMemberIndex{kMemberRows};

HRESULT ReportMissingUuid(Reading& reading, const ZanDicTraceScope& trace, const ZELVBTXMLNode& node,
                          std::string_view attribute) {
    Fault fault = FaultOf(reading, ZanDicDiagnosticCode::MissingAttribute, node);
    fault.attributeName = attribute;
    std::string message = Joined({text::kCouldNotFindAttribute, attribute, text::kFor, node.getTag()});
    if (const std::string_view name = NameOf(node); !name.empty()) message += Joined({" ", name});
    fault.lines.push_back({trace, std::move(message)});
    return reading.faults.Report(fault);
}

/// Reports a child that is not known there; the load goes on without it.
void ReportUnknownTag(Reading& reading, const ZanDicTraceScope& trace, const ZELVBTXMLNode& node) {
    Fault fault = FaultOf(reading, ZanDicDiagnosticCode::UnknownTag, node);
    fault.severity = ZanDicSeverity::Warning;
    fault.lines.push_back(
        {trace, Joined({text::kUnknownMemberTag, node.getTag(), "[", NameOf(node), text::kSkippingTag})});
    reading.faults.Report(fault);
}

HRESULT FillMember(Reading& reading, const ZanDicTraceScope& trace, const ZELVBTXMLNode& node,
                   OXMIDicClass& owner) {
    const std::string_view name = NameOf(node);
    if (name.empty()) return S_OK;
    const auto uuid = node.getAttributeValue(word::kUuid);
    if (!uuid) return ReportMissingUuid(reading, trace, node, word::kUuid);

    const MemberRow* const row = kMemberIndex.Find(node.getTag());
    if (row == nullptr) {
        ReportUnknownTag(reading, trace, node);
        return S_OK;
    }
    reading.references = {};
    return row->read({reading, trace, node, owner, reading.texts.Text(name), UuidFromText(*uuid)});
}

/// The flag cannot be left out, and has two words only.
HRESULT FillPersistent(Reading& reading, const ZanDicTraceScope& trace, const ZELVBTXMLNode& node,
                       OXMIDicClass& element) {
    const ZELVBTXMLAttribute persistent = reading.persistent;
    if (persistent && (persistent.Value() == value::kYes || persistent.Value() == value::kNo)) {
        return element.SetPersistent(persistent.Value() == value::kYes ? 1 : 0);
    }
    using enum ZanDicDiagnosticCode;
    Fault fault = FaultOf(reading, persistent ? InvalidValue : MissingAttribute, node);
    fault.attribute = persistent;
    fault.attributeName = word::kPersistent;
    // The line says "Class" whatever the tag.
    fault.lines.push_back({trace, Joined({text::kMandatoryAttribute, word::kPersistent, text::kFor,
                                          tag::kClass, " ", NameOf(node), text::kUndefinedOrInvalid})});
    return reading.faults.Report(fault);
}

HRESULT FillEnumeratorOf(Reading& reading, const ZanDicTraceScope& trace, const ZELVBTXMLNode& node,
                         OXMIDicEnum& owner) {
    if (node.getTag() != tag::kEnumerator) {
        ReportUnknownTag(reading, trace, node);
        return S_OK;
    }
    HRESULT result = S_OK;
    const std::string_view nameText = NameOf(node);
    const auto uuidText = node.getAttributeValue(word::kUuid);
    if (nameText.empty() &&
        !reading.faults.GoesOn(ReportMissingUuid(reading, trace, node, word::kName), result)) {
        return result;
    }
    if (!uuidText) reading.faults.GoesOn(ReportMissingUuid(reading, trace, node, word::kUuid), result);
    if (Failed(result)) return result;

    const ZELString name = reading.texts.Text(nameText);
    const ZELDbBinary uuid = UuidFromText(*uuidText);
    ZanDicRef<OXMIDicEnumerator> enumerator;
    if (Failed(owner.CreateEnumerator(&name, &uuid, enumerator.Out())) || !enumerator) {
        ZanDicRef<OXMIDicEnumerator> other;
        return ReportNotCreated(reading, trace, node, static_cast<bool>(enumerator),
                                Succeeded(owner.GetEnumerator(&name, other.Out())),
                                Joined({text::kCouldNotCreateMember, node.getTag(), " ", nameText}));
    }
    return FillPlain<kEnumeratorWords>(reading, text::kFillEnumerator, node, *enumerator);
}

}  // namespace

HRESULT FillClass(Reading& reading, const ZELVBTXMLNode& node, OXMIDicClass& element, ElementNote& note) {
    const ZanDicTraceScope trace(text::kFillClass, "RC=");
    trace.Start();
    reading.references = {};
    reading.persistent = {};
    HRESULT result = S_OK;
    if (!reading.faults.GoesOn(FillAttributes<kClassWords>(reading, trace, node, element), result) ||
        !reading.faults.GoesOn(FillPersistent(reading, trace, node, element), result)) {
        return trace.Exit(result);
    }

    note.references = reading.references;
    note.firstMember = reading.members.size();
    reading.owner = NameOf(node);
    for (const ZELVBTXMLNode child : node.Children()) {
        if (!reading.faults.GoesOn(FillMember(reading, trace, child, element), result)) break;
        note.hasRelationships = note.hasRelationships || child.getTag() == tag::kRelationship;
    }
    reading.owner = {};
    note.endMember = reading.members.size();
    return trace.Exit(result);
}

HRESULT FillEnum(Reading& reading, const ZELVBTXMLNode& node, OXMIDicEnum& element) {
    const ZanDicTraceScope trace(text::kFillEnum, "RC=");
    trace.Start();
    HRESULT result = S_OK;
    if (!reading.faults.GoesOn(FillAttributes<kEnumWords>(reading, trace, node, element), result)) {
        return trace.Exit(result);
    }
    reading.owner = NameOf(node);
    for (const ZELVBTXMLNode child : node.Children()) {
        if (!reading.faults.GoesOn(FillEnumeratorOf(reading, trace, child, element), result)) break;
    }
    reading.owner = {};
    return trace.Exit(result);
}

HRESULT FillCategory(Reading& reading, const ZELVBTXMLNode& node, OXMIDicCategory& element) {
    return FillPlain<kCategoryWords>(reading, text::kFillCategory, node, element);
}

HRESULT FillPackage(Reading& reading, const ZELVBTXMLNode& node) {
    const ZanDicTraceScope trace(text::kDriver, "RC=");
    HRESULT result = S_OK;
    std::array<bool, std::size(kPackageWords)> isRead{};
    for (const ZELVBTXMLAttribute attribute : node.Attributes()) {
        const Given given{reading, trace, node, attribute};
        const auto* const row = kIndex<kPackageWords>.Find(attribute.Name());
        if (row == nullptr) {
            FillUnknown(*reading.package, given, text::kUnknownPackageAttribute);
            continue;
        }
        bool& isSecond = isRead[kIndex<kPackageWords>.IndexOf(*row)];
        if (isSecond) continue;
        isSecond = true;
        if (!reading.faults.GoesOn(Fill(*row, *reading.package, given), result)) break;
    }
    return result;
}
