#include "RuleElement.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace tool {
namespace {

using namespace ZANDicFormat;

struct SlotRow {
    std::string_view name;
    Slot slot;
};

constexpr SlotRow kSlotRows[] = {
    {word::kSuperRef, Slot::SuperRef},
    {word::kReferenceRef, Slot::ReferenceRef},
    {word::kCommandRefs, Slot::CommandRefs},
    {word::kScopeRefs, Slot::ScopeRefs},
    {word::kTargetRef, Slot::TargetRef},
    {word::kCategoryRefs, Slot::CategoryRefs},
    {word::kInverseOfRef, Slot::InverseOfRef},
    {word::kUniqueRefs, Slot::UniqueRefs},
    {word::kTypeRef, Slot::TypeRef},
    {word::kClassRef, Slot::ClassRef},
    {word::kApplyToRBOClassRef, Slot::ApplyToRBOClassRef},
    {word::kBaseClassRef, Slot::BaseClassRef},
    {word::kExtents, Slot::Extents},
    {word::kAttributeUuids, Slot::AttributeUuids},
    {word::kName, Slot::Name},
    {word::kSuperName, Slot::SuperName},
    {word::kScopeNames, Slot::ScopeNames},
    {word::kTargetName, Slot::TargetName},
    {word::kApplyToRBOClass, Slot::ApplyToRBOClass},
    {word::kBaseClass, Slot::BaseClass},
    {word::kPersistent, Slot::Persistent},
    {word::kType, Slot::Type},
    {word::kMandatory, Slot::Mandatory},
    {word::kMultiValuated, Slot::MultiValuated},
    {word::kLower, Slot::Lower},
    {word::kUpper, Slot::Upper},
};

Slot SlotOf(std::string_view name) {
    const auto* const row = std::find_if(std::begin(kSlotRows), std::end(kSlotRows),
                                         [name](const SlotRow& each) { return each.name == name; });
    return row != std::end(kSlotRows) ? row->slot : Slot::None;
}

TagWords::Look LookAt(std::string_view tagName, const AttributeRow& row) {
    // Only an extension extends something, though the table of classes admits the words for all.
    const bool isScope = row.name == word::kScopeRefs || row.name == word::kScopeNames;
    if (isScope && (tagName == tag::kClass || tagName == tag::kInstance)) return TagWords::Look::Unread;
    switch (row.form) {
        case AttributeForm::Flag:
        case AttributeForm::Word:
            return TagWords::Look::Word;
        case AttributeForm::Uuid:
        case AttributeForm::Reference:
            return TagWords::Look::Uuid;
        case AttributeForm::References:
            return TagWords::Look::Uuids;
        default:
            return TagWords::Look::Nothing;
    }
}

bool IsRelation(std::string_view tagName) {
    return tagName == tag::kRelationship || tagName == tag::kInverse;
}

TagWords::Repeats RepeatsOf(std::string_view tagName, bool isTuning) {
    if (isTuning || IsRelation(tagName) || tagName == tag::kPackage) return TagWords::Repeats::FirstCounts;
    constexpr std::string_view kTold[] = {tag::kRBOMapping, tag::kRBORoot, tag::kRBOComponent,
                                          tag::kRBOPathExpression};
    const bool isTold = std::find(std::begin(kTold), std::end(kTold), tagName) != std::end(kTold);
    return isTold ? TagWords::Repeats::ReaderTells : TagWords::Repeats::LastCounts;
}

OXMDicTYPE KindOf(std::string_view tagName) {
    return static_cast<OXMDicTYPE>(ZANDicFormat::CodeOf(kElementTags, tagName, OXMDicTYPE_UNDEFINED));
}

}  // namespace

TagWords::TagWords(const TagRow& row, bool isTuning)
    : _Row(&row),
      _Kind(KindOf(row.tag)),
      _Repeats(RepeatsOf(row.tag, isTuning)),
      _LosesUnknown(isTuning || IsRelation(row.tag)) {
    _WORDS.reserve(row.attributes.size());
    for (const AttributeRow& attribute : row.attributes) {
        const Look look = LookAt(row.tag, attribute);
        const bool isIdentity = attribute.name == word::kName || attribute.name == word::kUuid;
        Word word{&attribute,
                  KnownText(attribute.name),
                  {},
                  look == Look::Unread ? Slot::None : SlotOf(attribute.name),
                  look,
                  _Repeats != Repeats::FirstCounts && !isIdentity,
                  static_cast<std::uint8_t>(_WORDS.size())};
        for (const CodeWord& each : attribute.words) word.values.emplace_back(each.word);
        if (attribute.form == AttributeForm::Flag) {
            for (const std::string_view each : {value::kYes, value::kNo}) word.values.emplace_back(each);
        }
        _WORDS.push_back(std::move(word));
        std::uint8_t place = PlaceOf(_WORDS.back().name.head);
        while (_PLACES[place] != 0) place = Next(place);
        _PLACES[place] = static_cast<std::uint8_t>(_WORDS.size());
    }
}

Vocabulary::Vocabulary(std::span<const TagRow> rows, bool isTuning) {
    _TAGS.reserve(rows.size());
    for (const TagRow& row : rows) _TAGS.emplace_back(row, isTuning);
    for (TagWords& parent : _TAGS) {
        for (const std::string_view name : parent._Row->children) {
            for (const TagWords& child : _TAGS) {
                if (child._Row->tag == name) parent._CHILDREN.push_back(&child);
            }
        }
    }
}

const Vocabulary& Vocabulary::OfPackages() {
    static const Vocabulary vocabulary(kTags, false);
    return vocabulary;
}

const Vocabulary& Vocabulary::OfTunings() {
    static const Vocabulary vocabulary(kTuningTags, true);
    return vocabulary;
}

}  // namespace tool
