/// What no writer asks an object's identity for, answered with E_FAIL: the base of the fakes.
#ifndef FAKE_IDENTITY_H
#define FAKE_IDENTITY_H

#include "OXMIDicElementH.h"

/// \p Interface, with what of `OXMIDicElementH` a writer does not ask for.
template <class Interface>
class FakeIdentity : public Interface {
public:
    HRESULT SetName(const ZELString*) override { return E_FAIL; }
    HRESULT SetUuid(const ZELDbBinary*) override { return E_FAIL; }
    HRESULT GenUuid() override { return E_FAIL; }
    HRESULT SetOtherAttribute(const ZELUnicodeString&, const ZELUnicodeString&) override { return E_FAIL; }
    HRESULT GetOtherAttribute(const ZELUnicodeString&, ZELUnicodeString&) override { return E_FAIL; }
    HRESULT AddCategory(const OXMIDicCategory*) override { return E_FAIL; }
    HRESULT RemoveCategory(const OXMIDicCategory*) override { return E_FAIL; }
    HRESULT IsCategory(const ZELString*, unsigned char*) override { return E_FAIL; }
    HRESULT GetCategories(ZELListPtrIUnknown*) override { return E_FAIL; }
    HRESULT GetLostLinks(int*) override { return E_FAIL; }
};

#endif
