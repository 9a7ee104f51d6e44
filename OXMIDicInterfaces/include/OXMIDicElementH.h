#ifndef OXMI_DIC_ELEMENT_H_H
#define OXMI_DIC_ELEMENT_H_H

#include "IUnknown.h"
#include "OXMDicTypes.h"
#include "OXMIDicIdentifiers.h"
#include "ZELDbBinary.h"
#include "ZELListPtr.h"
#include "ZELListVal.h"
#include "ZELString.h"
#include "ZELUnicodeString.h"

/// What every dictionary object has: identity, free attributes and categories.
///
/// Pointers that a call fills carry one reference, the caller's to release; lists given by the caller
/// are appended to, one reference an entry. Out arguments stay untouched on failure unless stated.
/// One thread.
class OXMIDicElementH : public IUnknown {
public:
    static constexpr ZELInterfaceId ClassId() { return IID_OXMIDicElementH; }

    /// Copies the name out. \returns S_OK.
    virtual HRESULT GetName(ZELString* name) = 0;

    /// Renames the object. Lists that hold it keep it under the name that it had when it was added.
    /// \returns S_OK.
    virtual HRESULT SetName(const ZELString* name) = 0;

    /// Copies the UUID out; it is empty for an object that has none. \returns S_OK.
    virtual HRESULT GetUuid(ZELDbBinary* uuid) = 0;

    /// Gives the object another UUID and registers it under that.
    /// \returns E_FAIL in every case, also when it worked: the result says nothing. When the UUID is
    /// taken, the object keeps it but is registered no more.
    virtual HRESULT SetUuid(const ZELDbBinary* uuid) = 0;

    /// Gives the object a new random UUID; a registered object stays registered. \returns S_OK.
    virtual HRESULT GenUuid() = 0;

    /// \param[out] type the kind of the object. \returns S_OK.
    virtual HRESULT GetType(OXMDicTYPE* type) = 0;

    /// Sets a free attribute; blanks at both ends of \p name and \p value are dropped. A known name
    /// keeps its place and gets the new value. \returns S_OK; E_FAIL when the name is null or empty.
    virtual HRESULT SetOtherAttribute(const ZELUnicodeString& name, const ZELUnicodeString& value) = 0;

    /// Copies the value of a free attribute out. \p name is taken as it is, blanks included.
    /// \param[out] value emptied first, also on failure.
    /// \returns S_OK; E_FAIL when the name is null, empty or not present.
    virtual HRESULT GetOtherAttribute(const ZELUnicodeString& name, ZELUnicodeString& value) = 0;

    /// Copies all free attributes out, in the order in which they were first set. \returns S_OK.
    virtual HRESULT GetAllOtherAttributes(ZELListValZELUnicodeString& names,
                                          ZELListValZELUnicodeString& values) = 0;

    /// Attaches a category. \returns S_OK; S_FALSE when one of that name is attached already;
    /// E_FAIL for null or an object of another library.
    virtual HRESULT AddCategory(const OXMIDicCategory* category) = 0;

    /// Detaches the category that bears the name of \p category.
    /// \returns S_OK; E_FAIL for null, when none of that name is attached, or when none ever was.
    virtual HRESULT RemoveCategory(const OXMIDicCategory* category) = 0;

    /// \param[out] isCategory 1 when a category of that name is attached, else 0.
    /// \returns S_OK; E_FAIL, with \p isCategory untouched, when the object never had a category.
    virtual HRESULT IsCategory(const ZELString* name, unsigned char* isCategory) = 0;

    /// Appends the attached categories (`OXMIDicCategory`), in the order of attachment.
    /// \returns S_OK; E_INVALIDARG for a null list; E_FAIL when the object never had a category.
    virtual HRESULT GetCategories(ZELListPtrIUnknown* categories) = 0;

    /// For callers who unload packages that others use.
    /// \param[out] count how many links of this object were set and have lost their object since: it was
    /// taken out of the dictionary, or is no more. Such a link reads as never set. An object that is gone
    /// itself has no links.
    /// \returns S_OK; E_FAIL for null.
    virtual HRESULT GetLostLinks(int* count) = 0;

protected:
    ~OXMIDicElementH() = default;
};

#endif
