#include "ZanDicAttribute.h"

#include "OXMIDicClass.h"
#include "OXMIDicPrimitive.h"
#include "OXMIDicRelationship.h"
#include "ZELFatalError.h"
#include "ZanDicAllAttributes.h"
#include "ZanDicAttributeFields.h"
#include "ZanDicClass.h"
#include "ZanDicHandOut.h"
#include "ZanDicImplementation.h"
#include "ZanDicPrimitive.h"
#include "ZanDicRegistry.h"
#include "ZanDicValues.h"

ZELMetaClass& ZanDicAttribute::ClassMeta() {
    static ZELMetaClass meta("ZanDicAttribute", &ZanDicElement::ClassMeta());
    return meta;
}

ZanDicAttribute::ZanDicAttribute(const ZELString& name, const ZELDbBinary& uuid) : ZanDicElement(name, uuid) {
    set_TYPE(OXMDicTYPE_Relationship);
}

ZanDicAttribute::~ZanDicAttribute() = default;

std::unique_ptr<ZanDicRareFields> ZanDicAttribute::new_RareFields() const {
    auto fields = std::make_unique<ZanDicAttributeFields>();
    init_RareFields(*fields);
    return fields;
}

const ZanDicAttributeFields* ZanDicAttribute::fields() const {
    return static_cast<const ZanDicAttributeFields*>(rare());
}

ZanDicAttributeFields& ZanDicAttribute::make_Fields() {
    return static_cast<ZanDicAttributeFields&>(make_Rare());
}

int ZanDicAttribute::lost_Links(LinkName link) const {
    if (link == LinkName::Type) return _TypeElement.IsLost() ? 1 : 0;
    if (fields() == nullptr) return ZanDicElement::lost_Links(link);
    if (link == LinkName::Inverse) return fields()->inverseOf.IsLost() ? 1 : 0;
    if (link == LinkName::Scopes) return fields()->scope ? fields()->scope->Classes().LostCount() : 0;
    if (link != LinkName::InvertedBy) return ZanDicElement::lost_Links(link);
    int count = fields()->inversesLost;
    for (const ZanDicLink<ZanDicAttribute>& inverse : fields()->inversedBy)
        count += static_cast<int>(inverse.IsLost());
    return count;
}

void ZanDicAttribute::drop_Links() {
    ZanDicElement::drop_Links();
    ZanDicHierarchy::Changed();
    _Origin.Reset();
    _TypeElement.Reset();
    if (rare() == nullptr) return;
    ZanDicAttributeFields& links = make_Fields();
    links.inverseOf.Reset();
    links.specialized.Reset();
    links.inversedBy.clear();
    links.inversesLost = 0;
    links.scope.Reset();
}

HRESULT ZanDicAttribute::SetName(const ZELString* name) {
    ZanDicHierarchy::Changed();  // redefinition goes by name
    return ZanDicElement::SetName(name);
}

HRESULT ZanDicAttribute::SetMandatory(unsigned char mandatory) noexcept {
    return TakeValue(_Mandatory, &mandatory);
}

HRESULT ZanDicAttribute::GetMandatory(unsigned char* mandatory) const noexcept {
    return GiveValue(_Mandatory, mandatory);
}

HRESULT ZanDicAttribute::SetSensitive(unsigned char sensitive) noexcept {
    return TakeValue(_Sensitive, &sensitive);
}

HRESULT ZanDicAttribute::GetSensitive(unsigned char* sensitive) const noexcept {
    return GiveValue(_Sensitive, sensitive);
}

HRESULT ZanDicAttribute::SetMultiValuated(unsigned char multiValuated) noexcept {
    return TakeValue(_MultiValuated, &multiValuated);
}

HRESULT ZanDicAttribute::GetMultiValuated(unsigned char* multiValuated) const noexcept {
    return GiveValue(_MultiValuated, multiValuated);
}

HRESULT ZanDicAttribute::SetInjective(unsigned char injective) noexcept {
    return TakeValue(_Injective, &injective);
}

HRESULT ZanDicAttribute::GetInjective(unsigned char* injective) const noexcept {
    return GiveValue(_Injective, injective);
}

HRESULT ZanDicAttribute::SetMaxLength(int maxLength) noexcept { return TakeValue(_MaxLength, &maxLength); }

HRESULT ZanDicAttribute::GetMaxLength(int* maxLength) const noexcept {
    return GiveValue(_MaxLength, maxLength);
}

HRESULT ZanDicAttribute::SetLower(int lower) noexcept { return TakeValue(_Lower, &lower); }

HRESULT ZanDicAttribute::GetLower(int* lower) const noexcept { return GiveValue(_Lower, lower); }

HRESULT ZanDicAttribute::SetUpper(int upper) noexcept { return TakeValue(_Upper, &upper); }

HRESULT ZanDicAttribute::GetUpper(int* upper) const noexcept { return GiveValue(_Upper, upper); }

HRESULT ZanDicAttribute::SetDefault(const ZELUnicodeString* value) {
    return value != nullptr ? TakeValue(make_Fields().defaultValue, value) : E_FAIL;
}

HRESULT ZanDicAttribute::GetDefault(ZELUnicodeString* value) const {
    return GiveValue(fields() != nullptr ? fields()->defaultValue : ZELUnicodeString(""), value);
}

HRESULT ZanDicAttribute::SetMagnitude(const ZELUnicodeString* magnitude) {
    return magnitude != nullptr ? TakeValue(make_Fields().magnitude, magnitude) : E_FAIL;
}

HRESULT ZanDicAttribute::GetMagnitude(ZELUnicodeString* magnitude) const {
    return GiveValue(fields() != nullptr ? fields()->magnitude : ZELUnicodeString(""), magnitude);
}

HRESULT ZanDicAttribute::SetDBFormat(const ZELUnicodeString* format) {
    return format != nullptr ? TakeValue(make_Fields().dbFormat, format) : E_FAIL;
}

HRESULT ZanDicAttribute::GetDBFormat(ZELUnicodeString* format) const {
    return GiveValue(fields() != nullptr ? fields()->dbFormat : ZELUnicodeString(""), format);
}

void ZanDicAttribute::store_Mode(const Mode& mode, int value) {
    const std::uint32_t mask = (1U << mode.bits) - 1U;
    _Modes = (_Modes & ~(mask << mode.shift)) | ((static_cast<std::uint32_t>(value) & mask) << mode.shift);
}

int ZanDicAttribute::checked_Mode(const Mode& mode) const {
    const int value = stored_Mode(mode);
    if (value < 1 || value > mode.highest) {
        ZELFatalError("AssertionFailed:0", "ZanDicAttribute", mode.assertLine);
    }
    return value;
}

template <class Word>
HRESULT ZanDicAttribute::give_Mode(const Mode& mode, Word* out) const {
    if (out == nullptr) return E_FAIL;
    *out = static_cast<Word>(checked_Mode(mode));
    return S_OK;
}

HRESULT ZanDicAttribute::SetAggregationMode(OXMDicAGGREGATION aggregation) noexcept {
    store_Mode(kAggregation, aggregation);
    return S_OK;
}

HRESULT ZanDicAttribute::GetAggregationMode(OXMDicAGGREGATION* aggregation) const noexcept {
    return give_Mode(kAggregation, aggregation);
}

HRESULT ZanDicAttribute::SetAccessMode(OXMDicACCESSMODE mode) noexcept {
    store_Mode(kAccess, mode);
    return S_OK;
}

HRESULT ZanDicAttribute::GetAccessMode(OXMDicACCESSMODE* mode) const noexcept {
    return give_Mode(kAccess, mode);
}

HRESULT ZanDicAttribute::SetCaseMode(OXMDicCASEMODE mode) noexcept {
    store_Mode(kCase, mode);
    return S_OK;
}

HRESULT ZanDicAttribute::GetCaseMode(OXMDicCASEMODE* mode) const noexcept { return give_Mode(kCase, mode); }

HRESULT ZanDicAttribute::SetScope(OXMDicSCOPE scope) {
    store_Mode(kScope, scope);
    return S_OK;
}

HRESULT ZanDicAttribute::GetScope(OXMDicSCOPE* scope) const { return give_Mode(kScope, scope); }

HRESULT ZanDicAttribute::SetUpdateFacet(OXMDicUPDATEFACET facet) noexcept {
    store_Mode(kFacet, facet);
    return S_OK;
}

HRESULT ZanDicAttribute::GetUpdateFacet(OXMDicUPDATEFACET* facet) const noexcept {
    return give_Mode(kFacet, facet);
}

HRESULT ZanDicAttribute::SetCollectionType(OXMDicCOLLECTION collection) noexcept {
    store_Mode(kCollection, collection);
    return S_OK;
}

HRESULT ZanDicAttribute::GetCollectionType(OXMDicCOLLECTION* collection) const noexcept {
    return give_Mode(kCollection, collection);
}

HRESULT ZanDicAttribute::SetProxyable(unsigned char) { return E_FAIL; }

HRESULT ZanDicAttribute::GetProxyable(unsigned char*) const { return E_FAIL; }

HRESULT ZanDicAttribute::set_Class(ZanDicClass* origin) {
    _Origin = origin;
    return S_OK;
}

ZanDicClass* ZanDicAttribute::get_Class() const { return _Origin.Get(); }

void ZanDicAttribute::set_Specialized(ZanDicAttribute* inherited) { make_Fields().specialized = inherited; }

ZanDicAttribute* ZanDicAttribute::get_Specialized() const {
    return fields() != nullptr ? fields()->specialized.Get() : nullptr;
}

HRESULT ZanDicAttribute::GetOrigin(OXMIDicClass** origin) const {
    if (origin == nullptr) return E_FAIL;
    return _Origin ? HandOutAs(*_Origin, origin) : S_FALSE;
}

HRESULT ZanDicAttribute::set_Type(ZanDicElement* type) {
    if (type == nullptr || is_Gone()) return E_FAIL;
    if (_Noted && _TypeElement.Get() != type) {
        const ZanDicLink<ZanDicElement> place(type);  // what needs memory comes first
        _Noted = false;
        ZanDicRegistry* const registry = ZanDicFindRegistry();
        if (_TypeElement && registry != nullptr) registry->remove_Relation(_TypeElement->Uuid(), *this);
    }
    _TypeElement = type;
    return S_OK;
}

HRESULT ZanDicAttribute::SetType(const OXMIDicElement* type) {
    return set_Type(LiveImplementationOf<ZanDicElement>(type));
}

HRESULT ZanDicAttribute::GetType(OXMIDicElement** type) const {
    if (type == nullptr) return E_FAIL;
    return _TypeElement ? HandOutOwn(*_TypeElement, type) : S_FALSE;
}

HRESULT ZanDicAttribute::SetPrimitive(const OXMIDicPrimitive* primitive) {
    return set_Type(LiveImplementationOf<ZanDicPrimitive>(primitive));
}

HRESULT ZanDicAttribute::GetPrimitive(OXMIDicPrimitive** primitive) const {
    if (primitive == nullptr) return E_FAIL;
    return _TypeElement ? HandOutAs(*_TypeElement, primitive) : S_FALSE;
}

HRESULT ZanDicAttribute::SetTarget(const OXMIDicClass* target) {
    auto* const targetClass = LiveImplementationOf<ZanDicClass>(target);
    if (targetClass == nullptr || is_Gone()) return E_FAIL;
    ZanDicRegistry* const registry = ZanDicGetRegistry();
    const bool isNoted = _Injective != 0 && registry != nullptr && registry->owns_Uuid(*targetClass);
    // What needs memory comes first: from here on nothing fails.
    const ZanDicLink<ZanDicElement> place(isNoted ? targetClass : nullptr);
    if (isNoted) registry->AddClassToRelation(&targetClass->Uuid(), this);
    set_Type(targetClass);
    if (isNoted) _Noted = true;
    return S_OK;
}

HRESULT ZanDicAttribute::GetTarget(OXMIDicClass** target) const {
    if (target == nullptr) return E_FAIL;
    return _TypeElement ? HandOutAs(*_TypeElement, target) : S_FALSE;
}

HRESULT ZanDicAttribute::GetSpecializedAttribute(OXMIDicElement** attribute) const {
    if (attribute == nullptr) return E_FAIL;
    const ZanDicAttribute* inherited = get_Specialized();
    return inherited != nullptr ? HandOutOwn(*inherited, attribute) : S_FALSE;
}

HRESULT ZanDicAttribute::GetInverse(OXMIDicRelationship** relationship) const {
    if (relationship == nullptr) return E_FAIL;
    const ZanDicAttribute* inverted = fields() != nullptr ? fields()->inverseOf.Get() : nullptr;
    return inverted != nullptr ? HandOutAs(*inverted, relationship) : S_FALSE;
}
