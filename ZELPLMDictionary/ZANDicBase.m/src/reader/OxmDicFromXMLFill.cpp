#include "OxmDicFromXMLFill.h"

#include <bit>
#include <string>
#include <type_traits>

#include "FillWords.h"
#include "HexToBinary.h"
#include "OXMIDicCategory.h"
#include "OXMIDicEnum.h"
#include "OXMIDicEnumerator.h"
#include "OXMIDicInverse.h"
#include "OXMIDicRelationship.h"
#include "OXMIDicSimple.h"
#include "OXMIDicUnique.h"
#include "ZanDicLoadRecord.h"

using namespace ZANDicFormat;
using namespace fill;

namespace {

HRESULT SimpleType(OXMIDicSimple& element, const Given& given) {
    if (const CodeWord* const row = kIndex<kSimpleTypeWords>.Find(given.Value()); row != nullptr) {
        return SetPrimitiveType(given.reading, element, row->code);
    }
    Warn(ZanDicDiagnosticCode::UnknownWord, given, TraceLevel::Call, text::kUnknownAttribute,
         "it is kept as a free attribute");
    return Keep(element, given);
}

HRESULT RelationType(OXMIDicRelationship& element, const Given& given) {
    const CodeWord* const row = kIndex<kRelationTypeWords>.Find(given.Value());
    return SetPrimitiveType(given.reading, element, row != nullptr ? row->code : kOtherRelationType);
}

HRESULT RelationTarget(OXMIDicRelationship& element, const Given& given) {
    if (!IsWord<value::kAnyObject>(given.Value())) return Reference<slot::kTarget>(element, given);
    return SetPrimitiveType(given.reading, element, OXMDicPRIMITIVEType_AnyObject);
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
    {word::kScopeRefs, Reference<slot::kExtended>},
    {word::kScopeNames, Skip},
    {word::kInterfaceRefs, Skip},
};
static_assert(AreAttributesOf(kClassWords, {tag::kClass, tag::kInstance, tag::kExtension}));

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
static_assert(AreAttributesOf(kSimpleWords, {tag::kSimple}));

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
static_assert(AreAttributesOf(kRelationWords, {tag::kRelationship, tag::kInverse}));

constexpr AttributeWord<OXMIDicUnique> kUniqueWords[] = {
    {word::kName, Skip},
    {word::kUuid, Skip},
    {word::kAlias, Text<&OXMIDicUnique::SetAlias>},
    {word::kUniqueRefs, Reference<slot::kUniques>},
};
static_assert(AreAttributesOf(kUniqueWords, {tag::kUnique}));

constexpr AttributeWord<OXMIDicEnum> kEnumWords[] = {
    {word::kName, Skip},
    {word::kUuid, Skip},
    {word::kAlias, Text<&OXMIDicEnum::SetAlias>},
};
static_assert(AreAttributesOf(kEnumWords, {tag::kEnum}));

constexpr AttributeWord<OXMIDicEnumerator> kEnumeratorWords[] = {
    {word::kName, Skip},
    {word::kUuid, Skip},
    {word::kAlias, Text<&OXMIDicEnumerator::SetAlias>},
    {word::kValue, EnumeratorValue},
};
static_assert(AreAttributesOf(kEnumeratorWords, {tag::kEnumerator}));

constexpr AttributeWord<OXMIDicCategory> kCategoryWords[] = {
    {word::kName, Skip},
    {word::kUuid, Skip},
    {word::kAlias, Text<&OXMIDicCategory::SetAlias>},
    {word::kGroup, Text<&OXMIDicCategory::SetGroup>},
};
static_assert(AreAttributesOf(kCategoryWords, {tag::kCategory}));

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
static_assert(AreAttributesOf(kPackageWords, {tag::kPackage}));

/// Relationships and inverses: the first attribute of each name, in the order of the rows. Others are
/// never looked at.
HRESULT FillRelation(Reading& reading, const ZELVBTXMLNode& node, OXMIDicRelationship& element) {
    const ZanDicTraceScope trace(text::kFillRelation, "RC=");
    trace.Start();
    std::array<std::uint32_t, std::size(kRelationWords)> first;  // of the rows that are given
    std::uint32_t given = 0;                                     // a bit for each row
    static_assert(std::size(kRelationWords) <= 32);
    for (const ZELVBTXMLAttribute attribute : node.Attributes()) {
        const auto* const row = kIndex<kRelationWords>.Find(attribute.Name());
        if (row == nullptr) continue;
        const std::size_t index = kIndex<kRelationWords>.IndexOf(*row);
        if ((given >> index & 1U) == 0) first[index] = attribute.Index();
        given |= 1U << index;
    }

    HRESULT result = S_OK;
    for (; given != 0; given &= given - 1) {
        const auto index = static_cast<std::size_t>(std::countr_zero(given));
        const ZELVBTXMLAttribute attribute = reading.document.AttributeAt(first[index]);
        const HRESULT rc = Fill(kRelationWords[index], element, {reading, trace, node, attribute});
        if (!reading.faults.GoesOn(rc, result)) break;
    }
    return trace.Exit(result);
}

/// Keeps a member for the second pass when it has something to resolve there.
template <class Face>
void NoteMember(Reading& reading, const ZELVBTXMLNode& node, OXMDicTYPE type, const ZanDicRef<Face>& member) {
    if (!reading.references.HasAny()) return;
    const ZELVBTXMLAttribute target = reading.references.At(slot::kTarget, reading.document);
    const std::uint32_t key = target ? UuidFromText(target.Value()).ComputeHashKey() : 0;
    reading.members.push_back({ZanDicHold(*member), type, node.Index(), reading.references, key});
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

    ZanDicRef<OXMIDicUnique> unique;
    ZanDicRef<OXMIDicElement> attribute;
    if constexpr (std::is_same_v<Face, OXMIDicUnique>) {
        tag.owner.GetUnique(&tag.name, unique.Out());
    } else {
        tag.owner.GetClassElement(&tag.name, attribute.Out());
    }
    OXMIDicElementH* const namesake = unique ? unique.Get() : attribute.Get();
    return ReportNotCreated(tag.reading, tag.trace, tag.node, static_cast<bool>(member), namesake,
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
            tag.reading, tag.trace, tag.node, false, nullptr,
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
static_assert(AreChildrenOf(kMemberRows, tag::kClass));
constexpr WordIndex kMemberIndex{kMemberRows};

/// Who a child of a class or an enumeration says that it is.
struct Identity {
    ZELVBTXMLNode node;
    std::string_view name;
    bool hasUuid = false;
    ZELDbBinary uuid;
};

/// Children of one tag on their way to members. Who they are is read of some at a time, so that their places
/// in the registry come into the cache while those before them are filled.
class Identities {
public:
    explicit Identities(const ZELVBTXMLNode& parent)
        : _Next(parent.Children().begin()), _End(parent.Children().end()) {}

    /// \returns the next child; null after the last.
    const Identity* Next() {
        if (_Taken == _Read) read_Block();
        return _Taken != _Read ? &_BLOCK[_Taken++] : nullptr;
    }

private:
    void read_Block() {
        _Taken = _Read = 0;
        for (; _Read < _BLOCK.size() && !(_Next == _End); ++_Next) {
            Identity& identity = _BLOCK[_Read++];
            identity.node = *_Next;
            identity.name = NameOf(identity.node);
            const auto uuid = identity.node.getAttributeValue(word::kUuid);
            identity.hasUuid = uuid.has_value();
            if (!uuid) continue;
            identity.uuid = UuidFromText(*uuid);
            ZanDicPrefetchPlace(identity.uuid.ComputeHashKey());
        }
    }

    std::array<Identity, 16> _BLOCK;
    std::size_t _Taken = 0;
    std::size_t _Read = 0;
    ZELVBTXMLChildren::iterator _Next;
    ZELVBTXMLChildren::iterator _End;
};

HRESULT FillMember(Reading& reading, const ZanDicTraceScope& trace, const Identity& identity,
                   OXMIDicClass& owner) {
    const ZELVBTXMLNode& node = identity.node;
    if (identity.name.empty()) return S_OK;
    if (!identity.hasUuid) return ReportMissing(reading, trace, node, word::kUuid);

    const MemberRow* const row = kMemberIndex.Find(node.getTag());
    if (row == nullptr) {
        ReportUnknownTag(reading, trace, node);
        return S_OK;
    }
    reading.references = {};
    return row->read({reading, trace, node, owner, reading.texts.Text(identity.name), identity.uuid});
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

HRESULT FillEnumeratorOf(Reading& reading, const ZanDicTraceScope& trace, const Identity& identity,
                         OXMIDicEnum& owner) {
    const ZELVBTXMLNode& node = identity.node;
    if (node.getTag() != tag::kEnumerator) {
        ReportUnknownTag(reading, trace, node);
        return S_OK;
    }
    if (const HRESULT rc = CheckIdentity(reading, trace, node); Failed(rc)) return rc;

    const ZELString name = reading.texts.Text(identity.name);
    ZanDicRef<OXMIDicEnumerator> enumerator;
    if (Failed(owner.CreateEnumerator(&name, &identity.uuid, enumerator.Out())) || !enumerator) {
        ZanDicRef<OXMIDicEnumerator> other;
        owner.GetEnumerator(&name, other.Out());
        return ReportNotCreated(reading, trace, node, static_cast<bool>(enumerator), other.Get(),
                                Joined({text::kCouldNotCreateMember, node.getTag(), " ", name.View()}));
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
    reading.owners.push_back(NameOf(node));
    ZanDicExpectMembers(element, node.Children().Count());
    Identities children(node);
    while (const Identity* const child = children.Next()) {
        if (!reading.faults.GoesOn(FillMember(reading, trace, *child, element), result)) break;
        note.hasRelationships = note.hasRelationships || IsWord<tag::kRelationship>(child->node.getTag());
    }
    reading.owners.pop_back();
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
    reading.owners.push_back(NameOf(node));
    ZanDicExpectMembers(element, node.Children().Count());
    Identities children(node);
    while (const Identity* const child = children.Next()) {
        if (!reading.faults.GoesOn(FillEnumeratorOf(reading, trace, *child, element), result)) break;
    }
    reading.owners.pop_back();
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
