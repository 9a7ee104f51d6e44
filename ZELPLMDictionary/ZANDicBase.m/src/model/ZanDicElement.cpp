#include "ZanDicElement.h"

#include <string>

#include "OXMIDicPackage.h"
#include "ZanDicHandOut.h"
#include "ZanDicPackage.h"
#include "ZanDicTrace.h"
#include "ZanDicTypeNames.h"
#include "ZanDicValues.h"

ZELMetaClass& ZanDicElement::ClassMeta() {
    static ZELMetaClass meta("ZanDicElement", &ZanDicObj::ClassMeta());
    return meta;
}

ZanDicElement::ZanDicElement() { _Unnamed = true; }

ZanDicElement::ZanDicElement(const ZELString& name, const ZELDbBinary& uuid) : ZanDicObj(name, uuid) {}

ZanDicElement::~ZanDicElement() = default;

ZELUnicodeString ZanDicElement::unset_Text() const {
    return _Unnamed ? ZELUnicodeString() : ZELUnicodeString("");
}

void ZanDicElement::init_RareFields(ZanDicRareFields& fields) const {
    fields.alias = unset_Text();
    fields.expositionLevel = unset_Text();
}

std::unique_ptr<ZanDicRareFields> ZanDicElement::new_RareFields() const {
    auto fields = ZanDicObj::new_RareFields();
    init_RareFields(*fields);
    return fields;
}

OXMDicVISIBILITY ZanDicElement::visibility_Code() const {
    return _Visibility != kOddVisibility ? static_cast<OXMDicVISIBILITY>(_Visibility) : rare()->visibility;
}

HRESULT ZanDicElement::SetAlias(const ZELUnicodeString* alias) {
    return alias != nullptr ? TakeValue(make_Rare().alias, alias) : E_FAIL;
}

HRESULT ZanDicElement::SetExpositionLevel(const ZELUnicodeString* level) {
    return level != nullptr ? TakeValue(make_Rare().expositionLevel, level) : E_FAIL;
}

HRESULT ZanDicElement::SetVisibility(OXMDicVISIBILITY visibility) {
    const bool isOdd = visibility <= kOddVisibility || visibility > INT16_MAX;
    if (isOdd) make_Rare().visibility = visibility;
    _Visibility = isOdd ? kOddVisibility : static_cast<std::int16_t>(visibility);
    return S_OK;
}

HRESULT ZanDicElement::GetAlias(ZELUnicodeString* alias) const {
    if (alias == nullptr) return E_FAIL;
    const ZELUnicodeString value = rare() != nullptr ? rare()->alias : unset_Text();
    if (value.IsNull()) return S_FALSE;
    *alias = value;
    return S_OK;
}

HRESULT ZanDicElement::GetExpositionLevel(ZELUnicodeString* level) const {
    if (level == nullptr) return E_FAIL;
    *level = rare() != nullptr ? rare()->expositionLevel : unset_Text();
    return level->IsNull() ? S_FALSE : S_OK;
}

HRESULT ZanDicElement::GetVisibility(OXMDicVISIBILITY* visibility) const {
    return GiveValue(visibility_Code(), visibility);
}

HRESULT ZanDicElement::GetPackage(OXMIDicPackage** package) const {
    const ZanDicPackage* owner = get_Package();
    return owner != nullptr && package != nullptr ? HandOutAs(*owner, package) : E_FAIL;
}

HRESULT ZanDicElement::GetPackageName(ZELString* name) const {
    if (name == nullptr) return E_FAIL;
    const ZanDicPackage* owner = get_Package();
    return owner != nullptr ? owner->GetName(name) : S_FALSE;
}

HRESULT ZanDicElement::BelongsTo(OXMIDicElement**) const { return E_FAIL; }

HRESULT ZanDicElement::GetSuperPackage(OXMIDicPackage**) const { return E_FAIL; }

HRESULT ZanDicElement::FlushAll() {
    const ZanDicTraceScope trace("ZanDicElement::FlushAll", "RC=");
    if (auto line = trace.Line(TraceLevel::Call, ZELLineSeverity::Information)) {
        line << "*** INFO *** Default implementation for Element: " << ZanDicTypeName(Type()) << ", RC=OK";
    }
    return S_OK;
}

void ZanDicElement::Dump(const char* caller) const {
    const std::string prefix = "ZanDicElement::Dump - ";
    const ZELUnicodeString alias = rare() != nullptr ? rare()->alias : unset_Text();
    ZanDicWriteAlways(prefix + " called by " + (caller != nullptr ? caller : "") + " ------");
    ZanDicObj::Dump(caller);
    ZanDicWriteAlways(prefix + "_Alias=" + alias.ConvertToChar() + ".");
    ZanDicWriteAlways(prefix + "_Visibility=" + std::to_string(visibility_Code()) + ".");
}

ZELString ZanDicElement::get_PackageName() const {
    const ZanDicPackage* owner = get_Package();
    return owner != nullptr ? owner->Name() : ZanDicObj::get_PackageName();
}

HRESULT ZanDicElement::set_Package(ZanDicPackage* package) {
    _Package = package;
    return S_OK;
}

ZanDicPackage* ZanDicElement::get_Package() const { return _Package.Get(); }

HRESULT ZanDicElement::flush_Rest(const ZanDicTraceScope&) { return S_OK; }

void ZanDicElement::drop_Links() {
    ZanDicObj::drop_Links();
    _Package.Reset();
}
