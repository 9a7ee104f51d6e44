/// Elements without a dictionary behind them: what a writer sees through the interfaces, set field by field.
///
/// Each is counted like the dictionary's own; the creator's reference is its owner's. What no writer asks for
/// answers E_FAIL.
#ifndef FAKE_ELEMENTS_H
#define FAKE_ELEMENTS_H

#include <string>
#include <utility>
#include <vector>

#include "DictionaryFixture.h"
#include "FakeIdentity.h"
#include "OXMIDicClass.h"
#include "OXMIDicInterface.h"
#include "OXMIDicMethod.h"
#include "OXMIDicParameter.h"
#include "OXMIDicRBOClass.h"
#include "OXMIDicRBOComponent.h"
#include "OXMIDicRBOMapping.h"
#include "OXMIDicRBOPathExpression.h"
#include "OXMIDicRBORoot.h"

/// Names, UUID, type, alias and free attributes, for any interface of an element.
template <class Interface>
class FakeElement : public FakeIdentity<Interface> {
public:
    using Interface::GetType;
    FakeElement(OXMDicTYPE type, const char* name, unsigned number)
        : _Type(type), _Name(name), _Uuid(TestUuid(number)) {}
    virtual ~FakeElement() {
        for (IUnknown* const child : _CHILDREN) child->Release();
    }

    ZELUnicodeString alias;
    std::vector<std::pair<const char*, const char*>> free;

    /// Takes over the creator's reference.
    template <class Child>
    Child& Own(Child* child) {
        _CHILDREN.push_back(child);
        return *child;
    }

    HRESULT QueryInterface(const ZELInterfaceId& id, void** out) override {
        if (id == Interface::ClassId()) {
            *out = static_cast<Interface*>(this);
        } else if (id == OXMIDicElement::ClassId()) {
            *out = static_cast<OXMIDicElement*>(this);
        } else {
            return E_NOINTERFACE;
        }
        AddRef();
        return S_OK;
    }
    std::uint32_t AddRef() override { return ++_Count; }
    std::uint32_t Release() override {
        const std::uint32_t count = --_Count;
        if (count == 0) delete this;
        return count;
    }

    HRESULT GetName(ZELString* name) override { return *name = ZELString(_Name), S_OK; }
    HRESULT GetUuid(ZELDbBinary* uuid) override { return *uuid = _Uuid, S_OK; }
    HRESULT GetType(OXMDicTYPE* type) override { return *type = _Type, S_OK; }
    HRESULT GetAllOtherAttributes(ZELListValZELUnicodeString& names,
                                  ZELListValZELUnicodeString& values) override {
        for (const auto& [name, value] : free) {
            names.Append(name);
            values.Append(value);
        }
        return S_OK;
    }
    HRESULT GetAlias(ZELUnicodeString* out) override { return *out = alias, S_OK; }

    HRESULT SetAlias(const ZELUnicodeString*) override { return E_FAIL; }
    HRESULT SetExpositionLevel(const ZELUnicodeString*) override { return E_FAIL; }
    HRESULT SetVisibility(OXMDicVISIBILITY) override { return E_FAIL; }
    HRESULT GetExpositionLevel(ZELUnicodeString*) override { return E_FAIL; }
    HRESULT GetVisibility(OXMDicVISIBILITY*) override { return E_FAIL; }
    HRESULT GetPackage(OXMIDicPackage**) override { return E_FAIL; }
    HRESULT GetPackageName(ZELString*) override { return E_FAIL; }
    HRESULT BelongsTo(OXMIDicElement**) override { return E_FAIL; }
    HRESULT GetSuperPackage(OXMIDicPackage**) override { return E_FAIL; }
    HRESULT FlushAll() override { return E_FAIL; }

protected:
    /// Appends the children with a reference each.
    HRESULT List(ZELListPtrIUnknown* list) {
        for (IUnknown* const child : _CHILDREN) {
            child->AddRef();
            list->Append(child);
        }
        return S_OK;
    }
    /// Hands out what may be null.
    template <class Target>
    static HRESULT HandOut(Target* target, Target** out, HRESULT otherwise) {
        if (target == nullptr) return otherwise;
        target->AddRef();
        *out = target;
        return S_OK;
    }

    std::vector<IUnknown*> _CHILDREN;

private:
    OXMDicTYPE _Type;
    std::string _Name;
    ZELDbBinary _Uuid;
    std::uint32_t _Count = 1;
};

/// An element of a kind with nothing of its own.
struct FakePlain final : FakeElement<OXMIDicElement> {
    using FakeElement::FakeElement;
};

struct FakeInterface final : FakeElement<OXMIDicInterface> {
    FakeInterface(const char* name, unsigned number) : FakeElement(OXMDicTYPE_Interface, name, number) {}
    OXMIDicInterface* superInterface = nullptr;
    HRESULT superResult = S_FALSE;  ///< without one

    HRESULT GetMethods(ZELListPtrIUnknown* methods) override { return List(methods); }
    HRESULT GetSuperInterface(OXMIDicInterface** out) override {
        return HandOut(superInterface, out, superResult);
    }
    HRESULT CreateMethod(const ZELString*, const ZELDbBinary*, OXMIDicMethod**) override { return E_FAIL; }
    HRESULT CreateMethod(const ZELString*, OXMIDicMethod**) override { return E_FAIL; }
    HRESULT RemoveMethod(const ZELString*) override { return E_FAIL; }
    HRESULT GetMethod(const ZELString*, OXMIDicMethod**) override { return E_FAIL; }
    HRESULT GetClassMethod(const ZELString*, OXMIDicMethod**) override { return E_FAIL; }
    HRESULT GetAllMethods(ZELListPtrIUnknown*) override { return E_FAIL; }
    HRESULT SetSuperInterface(const OXMIDicInterface*) override { return E_FAIL; }
    HRESULT GetSuperInterfaces(ZELListPtrIUnknown*) override { return E_FAIL; }
};

struct FakeMethod final : FakeElement<OXMIDicMethod> {
    FakeMethod(const char* name, unsigned number) : FakeElement(OXMDicTYPE_Method, name, number) {}

    HRESULT GetParameters(ZELListPtrIUnknown* parameters) override { return List(parameters); }
    HRESULT CreateParameter(const ZELString*, const ZELDbBinary*, OXMIDicParameter**) override {
        return E_FAIL;
    }
    HRESULT CreateParameter(const ZELString*, OXMIDicParameter**) override { return E_FAIL; }
    HRESULT GetParameter(const ZELString*, OXMIDicParameter**) override { return E_FAIL; }
    HRESULT RemoveParameter(const ZELString*) override { return E_FAIL; }
};

struct FakeParameter final : FakeElement<OXMIDicParameter> {
    FakeParameter(const char* name, unsigned number) : FakeElement(OXMDicTYPE_Parameter, name, number) {}
    using FakeElement::GetType;
    OXMIDicElement* type = nullptr;
    int kind = 0;
    ZELUnicodeString defaultValue;

    HRESULT GetType(OXMIDicElement** out) override { return HandOut(type, out, S_FALSE); }
    HRESULT GetKind(OXMDicKIND* out) override { return *out = static_cast<OXMDicKIND>(kind), S_OK; }
    HRESULT GetDefault(ZELUnicodeString* out) override { return *out = defaultValue, S_OK; }
    HRESULT SetType(const OXMIDicElement*) override { return E_FAIL; }
    HRESULT SetKind(OXMDicKIND) override { return E_FAIL; }
    HRESULT SetDefault(const ZELUnicodeString*) override { return E_FAIL; }
};

struct FakeRBOClass final : FakeElement<OXMIDicRBOClass> {
    FakeRBOClass(const char* name, unsigned number) : FakeElement(OXMDicTYPE_RBOClass, name, number) {}
};

struct FakeRBOMapping final : FakeElement<OXMIDicRBOMapping> {
    FakeRBOMapping(const char* name, unsigned number) : FakeElement(OXMDicTYPE_RBOMapping, name, number) {}
    OXMIDicRBOClass* rboClass = nullptr;
    ZELDbBinary storedRef;
    ZELUnicodeString storedName;

    HRESULT GetApplyToRBOClass(OXMIDicRBOClass** out) override { return HandOut(rboClass, out, E_FAIL); }
    HRESULT GetApplyToRBOClassRef(ZELDbBinary* uuid) override { return *uuid = storedRef, S_OK; }
    HRESULT GetApplyToRBOClassName(ZELUnicodeString* name) override { return *name = storedName, S_OK; }
    HRESULT GetElements(ZELListPtrIUnknown* roots) override { return List(roots); }
    HRESULT SetApplyToRBOClass(const OXMIDicRBOClass*) override { return E_FAIL; }
    HRESULT SetApplyToRBOClassRef(const ZELDbBinary*) override { return E_FAIL; }
    HRESULT SetApplyToRBOClassName(const ZELUnicodeString*) override { return E_FAIL; }
    HRESULT CreateRBORoot(const ZELString*, const ZELDbBinary*, OXMIDicRBORoot**) override { return E_FAIL; }
};

/// What roots and components share.
template <class Interface>
struct FakeRBONode : FakeElement<Interface> {
    using FakeElement<Interface>::FakeElement;
    OXMIDicClass* baseClass = nullptr;
    ZELDbBinary storedRef;
    ZELUnicodeString storedName;

    HRESULT GetBaseClass(OXMIDicClass** out) override { return this->HandOut(baseClass, out, E_FAIL); }
    HRESULT GetBaseClassRef(ZELDbBinary* uuid) override { return *uuid = storedRef, S_OK; }
    HRESULT GetBaseClassName(ZELUnicodeString* name) override { return *name = storedName, S_OK; }
    HRESULT GetElements(ZELListPtrIUnknown* components) override { return this->List(components); }
    HRESULT SetBaseClass(const OXMIDicClass*) override { return E_FAIL; }
    HRESULT SetBaseClassRef(const ZELDbBinary*) override { return E_FAIL; }
    HRESULT SetBaseClassName(const ZELUnicodeString*) override { return E_FAIL; }
    HRESULT CreateRBOComponent(const ZELString*, const ZELDbBinary*, OXMIDicRBOComponent**) override {
        return E_FAIL;
    }
};

struct FakeRBORoot final : FakeRBONode<OXMIDicRBORoot> {
    FakeRBORoot(const char* name, unsigned number) : FakeRBONode(OXMDicTYPE_RBORoot, name, number) {}
};

struct FakeRBOPath final : FakeElement<OXMIDicRBOPathExpression> {
    FakeRBOPath(const char* name, unsigned number)
        : FakeElement(OXMDicTYPE_RBOPathExpression, name, number) {}
    OXMIDicElement* target = nullptr;
    ZELDbBinary storedRef;
    ZELUnicodeString storedName;
    ZELUnicodeString pathType;
    ZELUnicodeString subType;

    HRESULT GetTarget(OXMIDicElement** out) override { return HandOut(target, out, E_FAIL); }
    HRESULT GetTargetRef(ZELDbBinary* uuid) override { return *uuid = storedRef, S_OK; }
    HRESULT GetTargetName(ZELUnicodeString* name) override { return *name = storedName, S_OK; }
    HRESULT GetPathExprType(ZELUnicodeString* out) override { return Text(pathType, out); }
    HRESULT GetPathExprSubType(ZELUnicodeString* out) override { return Text(subType, out); }
    HRESULT SetTarget(const OXMIDicElement*) override { return E_FAIL; }
    HRESULT SetTargetRef(const ZELDbBinary*) override { return E_FAIL; }
    HRESULT SetTargetName(const ZELUnicodeString*) override { return E_FAIL; }
    HRESULT SetPathExprType(const ZELUnicodeString*) override { return E_FAIL; }
    HRESULT SetPathExprSubType(const ZELUnicodeString*) override { return E_FAIL; }

private:
    static HRESULT Text(const ZELUnicodeString& text, ZELUnicodeString* out) {
        if (text.IsEmpty()) return E_FAIL;
        return *out = text, S_OK;
    }
};

struct FakeRBOComponent final : FakeRBONode<OXMIDicRBOComponent> {
    FakeRBOComponent(const char* name, unsigned number)
        : FakeRBONode(OXMDicTYPE_RBOComponent, name, number) {}
    ~FakeRBOComponent() override {
        if (path != nullptr) path->Release();
    }
    FakeRBOPath* path = nullptr;        ///< one reference held
    FakeRBOComponent* links = nullptr;  ///< listed behind the children, but not owned
    ZELUnicodeString rule;

    HRESULT GetElements(ZELListPtrIUnknown* components) override {
        const HRESULT rc = List(components);
        if (links != nullptr) {
            links->AddRef();
            components->Append(links);
        }
        return rc;
    }

    HRESULT GetRBOPathExpression(OXMIDicRBOPathExpression** out) override {
        return HandOut(static_cast<OXMIDicRBOPathExpression*>(path), out, E_FAIL);
    }
    HRESULT GetValidityRule(ZELUnicodeString* out) override {
        *out = rule;
        return rule.IsEmpty() ? S_FALSE : S_OK;
    }
    HRESULT CreateRBOPathExpression(const ZELString*, const ZELDbBinary*,
                                    OXMIDicRBOPathExpression**) override {
        return E_FAIL;
    }
    HRESULT SetValidityRule(const ZELUnicodeString*) override { return E_FAIL; }
};

#endif
