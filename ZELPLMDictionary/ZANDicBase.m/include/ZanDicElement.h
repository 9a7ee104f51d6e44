#ifndef ZAN_DIC_ELEMENT_H
#define ZAN_DIC_ELEMENT_H

#include <cstdint>
#include <string_view>

#include "ZanDicExport.h"
#include "ZanDicLink.h"
#include "ZanDicObj.h"

class ZanDicPackage;
class ZanDicTraceScope;
class ZanHashList;

/// A list that an element owns, as its teardown walks and names it; null where there is none to walk.
struct ZanDicOwnedList {
    ZanHashList* list = nullptr;
    std::string_view name;
    std::string_view operation;  ///< the FlushAll that drops it
};

/// Base of what a package owns, and of the members of that: package, visibility, alias, exposition level.
///
/// An element knows its package by a link: it reads as unset once the package, or the element itself, is
/// out of the dictionary. A null pointer as an argument gives E_FAIL and changes nothing. One thread.
class ZANDICBASE_API ZanDicElement : public ZanDicObj {
public:
    /// Alias and exposition level null.
    ZanDicElement();
    /// Alias and exposition level empty.
    ZanDicElement(const ZELString& name, const ZELDbBinary& uuid);
    ZanDicElement(const ZanDicElement&) = default;
    ZanDicElement& operator=(const ZanDicElement&) = default;
    ~ZanDicElement() override;

    static ZELMetaClass& ClassMeta();
    static const char* ClassName() { return ClassMeta().Name(); }
    ZELMetaClass& MetaObject() const override { return ClassMeta(); }
    _type get_type() const override { return _type_Element; }

    /// Plain setters. \returns S_OK.
    HRESULT SetAlias(const ZELUnicodeString* alias);
    HRESULT SetExpositionLevel(const ZELUnicodeString* level);
    HRESULT SetVisibility(OXMDicVISIBILITY visibility);

    /// \returns S_OK; S_FALSE, with \p alias untouched, when the alias is null.
    HRESULT GetAlias(ZELUnicodeString* alias) const;
    /// Copies in every case. \returns S_OK; S_FALSE when the level is null.
    HRESULT GetExpositionLevel(ZELUnicodeString* level) const;
    /// \returns S_OK.
    HRESULT GetVisibility(OXMDicVISIBILITY* visibility) const;

    /// \param[out] package carries one reference. \returns S_OK; E_FAIL without a package.
    HRESULT GetPackage(OXMIDicPackage** package) const;
    /// \returns S_OK; S_FALSE without a package.
    HRESULT GetPackageName(ZELString* name) const;

    /// Not available. \returns E_FAIL.
    HRESULT BelongsTo(OXMIDicElement** owner) const;
    HRESULT GetSuperPackage(OXMIDicPackage** package) const;

    /// Drops what the element owns; this default owns nothing and says so in the trace.
    /// \returns S_OK; the failing result of a member's FlushAll, and the rest is as it was.
    virtual HRESULT FlushAll();

    void Dump(const char* caller) const override;
    ZELString get_PackageName() const override;

    // What follows is for the library itself.

    /// Said by the factory that makes the element. \returns S_OK.
    HRESULT set_Package(ZanDicPackage* package);
    ZanDicPackage* get_Package() const;
    /// \returns the stored number, whatever it is.
    int get_Visibility() const { return static_cast<int>(_Visibility); }

    /// The one list that FlushAll drops, of kinds for which `FlushOwner` does that.
    virtual ZanDicOwnedList owned_List() { return {}; }
    /// Drops, after that list, what else the element owns. \returns S_OK; the failing result of a FlushAll.
    virtual HRESULT flush_Rest(const ZanDicTraceScope& trace);

protected:
    void drop_Links() override;
    std::unique_ptr<ZanDicRareFields> new_RareFields() const override;
    /// Gives new rare fields the texts that the element has before it has such fields.
    void init_RareFields(ZanDicRareFields& fields) const;
    /// What a text of this element is that was never set: null or empty.
    ZELUnicodeString unset_Text() const;

private:
    OXMDicVISIBILITY visibility_Code() const;

    static constexpr std::int16_t kOddVisibility = INT16_MIN;

    std::int16_t _Visibility = OXMDicVISIBILITY_Public;  ///< kOddVisibility: it is among the rare fields
    ZanDicLink<ZanDicPackage> _Package;                  ///< not owning
};

#endif
