#ifndef ZAN_DIC_ATTRIBUTE_H
#define ZAN_DIC_ATTRIBUTE_H

#include "ZanDicElement.h"

class ZanDicClass;
class ZanDicScope;
struct ZanDicAttributeFields;

/// A member of a class: a simple value, a relationship or the inverse of one, told apart by the type code.
///
/// One class implements the three interfaces, whatever the type code; operations that belong to one kind
/// only say so. Origin, type, inverses and what the attribute redefines are links: they read as unset once
/// their object is gone, and a link setter refuses what is gone, or anything once the attribute is.
/// A null pointer as an argument gives E_FAIL and changes nothing. One thread.
class ZANDICBASE_API ZanDicAttribute : public ZanDicElement {
public:
    /// Type code Relationship until the class that makes the attribute says otherwise.
    ZanDicAttribute(const ZELString& name, const ZELDbBinary& uuid);
    ~ZanDicAttribute() override;

    static ZELMetaClass& ClassMeta();
    static const char* ClassName() { return ClassMeta().Name(); }
    ZELMetaClass& MetaObject() const override { return ClassMeta(); }
    _type get_type() const override { return _type_Attribute; }
    using ZanDicObj::GetType;
    HRESULT SetName(const ZELString* name) override;

    /// Plain flags (the byte is kept; only 1 means yes), numbers and texts. \returns S_OK.
    HRESULT SetMandatory(unsigned char mandatory) noexcept;
    HRESULT GetMandatory(unsigned char* mandatory) const noexcept;
    HRESULT SetSensitive(unsigned char sensitive) noexcept;
    HRESULT GetSensitive(unsigned char* sensitive) const noexcept;
    HRESULT SetMultiValuated(unsigned char multiValuated) noexcept;
    HRESULT GetMultiValuated(unsigned char* multiValuated) const noexcept;
    HRESULT SetInjective(unsigned char injective) noexcept;
    HRESULT GetInjective(unsigned char* injective) const noexcept;
    HRESULT SetMaxLength(int maxLength) noexcept;
    HRESULT GetMaxLength(int* maxLength) const noexcept;
    HRESULT SetLower(int lower) noexcept;
    HRESULT GetLower(int* lower) const noexcept;
    HRESULT SetUpper(int upper) noexcept;
    HRESULT GetUpper(int* upper) const noexcept;
    HRESULT SetDefault(const ZELUnicodeString* value);
    HRESULT GetDefault(ZELUnicodeString* value) const;
    HRESULT SetMagnitude(const ZELUnicodeString* magnitude);
    HRESULT GetMagnitude(ZELUnicodeString* magnitude) const;
    HRESULT SetDBFormat(const ZELUnicodeString* format);
    HRESULT GetDBFormat(ZELUnicodeString* format) const;

    /// Enumerated properties. A setter keeps the low three or four bits of what it is given, as a signed
    /// number; a getter ends the process when that is none of the property's words. \returns S_OK.
    HRESULT SetAggregationMode(OXMDicAGGREGATION aggregation) noexcept;
    HRESULT GetAggregationMode(OXMDicAGGREGATION* aggregation) const noexcept;
    HRESULT SetAccessMode(OXMDicACCESSMODE mode) noexcept;
    HRESULT GetAccessMode(OXMDicACCESSMODE* mode) const noexcept;
    HRESULT SetCaseMode(OXMDicCASEMODE mode) noexcept;
    HRESULT GetCaseMode(OXMDicCASEMODE* mode) const noexcept;
    HRESULT SetScope(OXMDicSCOPE scope);
    HRESULT GetScope(OXMDicSCOPE* scope) const;
    HRESULT SetUpdateFacet(OXMDicUPDATEFACET facet) noexcept;
    HRESULT GetUpdateFacet(OXMDicUPDATEFACET* facet) const noexcept;
    HRESULT SetCollectionType(OXMDicCOLLECTION collection) noexcept;
    HRESULT GetCollectionType(OXMDicCOLLECTION* collection) const noexcept;

    /// Not available. \returns E_FAIL.
    HRESULT SetProxyable(unsigned char proxyable);
    HRESULT GetProxyable(unsigned char* proxyable) const;

    /// Links. \returns S_OK; setters E_FAIL for what is not in the dictionary or of the wrong kind, getters
    /// S_FALSE when unset. What a getter hands out carries one reference.
    HRESULT GetOrigin(OXMIDicClass** origin) const;
    HRESULT SetType(const OXMIDicElement* type);
    HRESULT GetType(OXMIDicElement** type) const;
    HRESULT SetPrimitive(const OXMIDicPrimitive* primitive);
    /// \returns E_FAIL when the type is no primitive.
    HRESULT GetPrimitive(OXMIDicPrimitive** primitive) const;
    /// Of an injective attribute, also notes it among those that point at the class.
    HRESULT SetTarget(const OXMIDicClass* target);
    /// \returns E_FAIL when the type is no class.
    HRESULT GetTarget(OXMIDicClass** target) const;
    HRESULT GetSpecializedAttribute(OXMIDicElement** attribute) const;

    /// The two directions of an inversion are set apart. Each refuses, after an error line, null, an
    /// attribute of the wrong kind, and what no live attribute stands behind.
    HRESULT SetInverse(const OXMIDicRelationship* relationship);
    HRESULT GetInverse(OXMIDicRelationship** relationship) const;
    HRESULT SetInvertedAttribute(const OXMIDicInverse* inverse);
    HRESULT GetInvertedAttributes(ZELListPtrIUnknown* inverses) const;
    /// Obsolete: writes two error lines. \returns E_FAIL.
    HRESULT GetInvertedAttribute(OXMIDicInverse** inverse) const;

    /// The classes to which the attribute applies, with all below them; every class where none was ever
    /// named or all were taken out by hand. A class that is gone counts as absent, but still restricts.
    /// \returns S_OK; S_FALSE when the class is named already; E_FAIL for null, what is not in the
    /// dictionary, or, after an error line, what is no class.
    HRESULT AddScope(const OXMIDicElement* scope);
    /// Takes exactly that class out. \returns S_OK, also where no class was ever named; E_FAIL for null or a
    /// class that is not named.
    HRESULT RemoveScope(const OXMIDicElement* scope);
    /// Appends the named classes, in order. \returns the last query's result; S_FALSE when none was ever
    /// named; E_FAIL for a null list.
    HRESULT GetScopes(ZELListPtrIUnknown* scopes) const;
    /// The first question after a change of the scope walks all subclasses and writes two lines for each.
    /// \param[out] inScope 1 or 0. \returns S_OK for 1, S_FALSE for 0; E_FAIL for null.
    HRESULT IsClassInScope(const ZELDbBinary* classUuid, unsigned char* inScope) const;
    /// Adds \p root and everything below it to the answer of IsClassInScope.
    /// \returns S_OK; E_FAIL for null or when the attribute has no scope.
    HRESULT compute_Scopes(ZanDicClass* root);

    // What follows is for the library itself.

    /// Said by the class that makes the attribute. \returns S_OK.
    HRESULT set_Class(ZanDicClass* origin);
    ZanDicClass* get_Class() const;
    void set_Specialized(ZanDicAttribute* inherited);
    ZanDicAttribute* get_Specialized() const;

    /// The enumerated properties in their packed word, lowest bits first.
    struct Mode {
        int shift;
        int bits;
        int highest;     ///< the words are 1 to this
        int assertLine;  ///< named by the fatal message
    };
    static constexpr Mode kAggregation{0, 4, 4, 41};
    static constexpr Mode kAccess{4, 4, 4, 63};
    static constexpr Mode kCase{8, 3, 3, 73};
    static constexpr Mode kScope{11, 3, 3, 83};
    static constexpr Mode kFacet{14, 3, 3, 93};
    static constexpr Mode kCollection{17, 4, 4, 52};
    /// \returns the stored number, whatever it is.
    int stored_Mode(const Mode& mode) const {
        const int range = 1 << mode.bits;
        const int value = static_cast<int>(_Modes >> mode.shift) & (range - 1);
        return value >= range / 2 ? value - range : value;
    }
    int lost_Links(LinkName link) const override;

protected:
    /// For kinds that may be copied: type, origin and inverses are shared, the scope is a copy.
    ZanDicAttribute(const ZanDicAttribute&) = default;
    ZanDicAttribute& operator=(const ZanDicAttribute&) = default;

    void drop_Links() override;
    std::unique_ptr<ZanDicRareFields> new_RareFields() const override;

private:
    friend class StoredAttribute;  // what the writers read in place

    const ZanDicAttributeFields* fields() const;
    ZanDicScope* scope() const;
    ZanDicAttributeFields& make_Fields();
    void store_Mode(const Mode& mode, int value);
    int checked_Mode(const Mode& mode) const;
    template <class Word>
    HRESULT give_Mode(const Mode& mode, Word* out) const;
    HRESULT set_Type(ZanDicElement* type);

    unsigned char _Mandatory = 0;
    unsigned char _Sensitive = 0;
    unsigned char _MultiValuated = 0;
    unsigned char _Injective = 0;
    std::uint32_t _Modes = 0x6cb22;  ///< Shared, Read, Mixed, None, NEUTRAL, List
    std::int32_t _MaxLength = -1;    ///< -1: no limit
    std::int32_t _Lower = 0;
    std::int32_t _Upper = 0;
    ZanDicLink<ZanDicClass> _Origin;         ///< not owning: the class that made the attribute
    ZanDicLink<ZanDicElement> _TypeElement;  ///< not owning: primitive, enumeration or target class
};

#endif
