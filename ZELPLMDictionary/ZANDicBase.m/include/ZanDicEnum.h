#ifndef ZAN_DIC_ENUM_H
#define ZAN_DIC_ENUM_H

#include "ZanDicElement.h"
#include "ZanHashList.h"

/// An enumeration: owns its enumerators, in the order of creation.
///
/// An enumerator that is removed from the list stays registered and lives as long as the enumeration.
/// A null pointer as an argument gives E_FAIL and makes nothing, where nothing else is said. One thread.
class ZANDICBASE_API ZanDicEnum : public ZanDicElement {
public:
    ZanDicEnum(const ZELString& name, const ZELDbBinary& uuid);
    ZanDicEnum(const ZanDicEnum&) = delete;
    ZanDicEnum& operator=(const ZanDicEnum&) = delete;
    ~ZanDicEnum() override;

    static ZELMetaClass& ClassMeta();
    static const char* ClassName() { return ClassMeta().Name(); }
    ZELMetaClass& MetaObject() const override { return ClassMeta(); }
    _type get_type() const override { return _type_Enum; }

    /// \param[out] enumerator carries one reference; also written when only the registration failed, and
    /// the enumerator is in the list then. \returns the result of the registration; E_FAIL when the name is
    /// taken or the enumeration is gone, and nothing is made.
    HRESULT CreateEnumerator(const ZELString* name, const ZELDbBinary* uuid, OXMIDicEnumerator** enumerator);

    /// Obsolete: always writes a notice. \returns E_FAIL.
    HRESULT CreateEnumerator(const ZELString* name, OXMIDicEnumerator** enumerator);

    /// Makes an enumerator with a random UUID. \returns that of SetValue when one was made, whatever its
    /// registration gave; else E_FAIL.
    HRESULT CreateEnumValue(const ZELString* name, int value);

    /// \returns S_OK; E_FAIL, out arguments untouched, when there is none of that name.
    HRESULT GetEnumerator(const ZELString* name, OXMIDicEnumerator** enumerator) const;
    HRESULT GetEnumValue(const ZELString* name, int* value) const;

    /// Appends the names; a null list is accepted. \returns S_OK.
    HRESULT GetEnumValues(ZELListValZELString* names) const;

    /// Appends interfaces, one reference each. \returns the last query's result, S_OK for none; E_FAIL for a
    /// null list.
    HRESULT GetEnumerators(ZELListPtrIUnknown* enumerators) const;

    /// Takes an enumerator out of the list, no more. \returns S_OK; E_FAIL when there is none of that name.
    HRESULT RemoveEnumerator(const ZELString* name);
    HRESULT RemoveEnumValue(const ZELString* name);

    HRESULT FlushAll() override;

    // What follows is for the library itself.

    ZanDicOwnedList owned_List() override;
    void take_Owned(ZanDicTaken& owned) override;
    void expect_Members(int count) override { _ENUMERATORS.reserve(_ENUMERATORS.Size() + count); }

protected:
    void drop_Links() override;

private:
    ZanHashList _ENUMERATORS;                            ///< this enumeration owns one reference to each
    ZanHashList _REMOVED{29, ZanHashListKind::Unnamed};  ///< and to each that was removed from the list
};

#endif
