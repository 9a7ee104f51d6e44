// Super class, subclasses, and what a class inherits. Hierarchies are as deep as documents make them, so
// every walk is a loop.
#include <memory>
#include <vector>

#include "OXMIDicClass.h"
#include "OXMIDicInterface.h"
#include "ZanDicAllAttributes.h"
#include "ZanDicAttribute.h"
#include "ZanDicClass.h"
#include "ZanDicHandOut.h"
#include "ZanDicImplementation.h"
#include "ZanDicRef.h"
#include "ZanDicRegistry.h"
#include "ZanDicTrace.h"
#include "ZanDicValues.h"

/// Visits the classes whose super class this one is; a flushed class may list others that have moved away.
template <class Visit>
void ZanDicClass::for_EachSubClass(const Visit& visit) const {
    const int size = _invSuperClass.Size();
    for (int position = 1; position <= size; ++position) {
        ZanDicClass* const subClass = _invSuperClass[position];
        if (subClass->_SuperClass.Get() == this) visit(*subClass);
    }
}

/// Whether \p superClass is neither this class nor below it. Looks up from \p superClass and down from this
/// class by turns, and knows the answer when either way ends: in a chain that grows at one end one of them
/// is short.
bool ZanDicClass::is_AbleToBeUnder(const ZanDicClass& superClass) const {
    struct Step {
        const ZanDicClass* superClass;
        int next;  ///< position of the subclass to go down to
    };
    std::vector<Step> way{{this, 1}};
    const ZanDicClass* above = &superClass;
    while (above != nullptr && !way.empty()) {
        if (above == this) return false;
        above = above->_SuperClass.Get();
        Step& step = way.back();
        const ZanDicClass* const below = step.superClass->_invSuperClass[step.next++];
        if (below == nullptr) {
            way.pop_back();
        } else if (below->_SuperClass.Get() == step.superClass) {
            if (below == &superClass) return false;
            way.push_back({below, 1});
        }
    }
    return true;
}

HRESULT ZanDicClass::SetSuperClass(const OXMIDicClass* superClass) {
    const ZanDicTraceScope trace("ZanDicClass::SetSuperClass");
    return set_SuperClass(superClass, trace, "*** ERROR *** Could not get implementation from OXMIDicClass");
}

HRESULT ZanDicClass::SetSuperInterface(const OXMIDicInterface* superInterface) {
    const ZanDicTraceScope trace("ZanDicClass::SetSuperInterface");
    return set_SuperClass(superInterface, trace,
                          "*** ERROR *** Could not get implementation from OXMIDicInterface");
}

HRESULT ZanDicClass::set_SuperClass(const IUnknown* superClass, const ZanDicTraceScope& trace,
                                    std::string_view foreign) {
    if (superClass == nullptr) return E_FAIL;
    auto* const newSuper = LiveImplementationOf<ZanDicClass>(superClass);
    if (newSuper == nullptr) {
        trace.Error(foreign);
        return E_FAIL;
    }
    if (is_Gone()) return E_FAIL;
    if (Type() == OXMDicTYPE_Class && newSuper->Type() == OXMDicTYPE_Extension) return E_FAIL;
    if (!is_AbleToBeUnder(*newSuper)) return E_FAIL;

    // What needs memory comes first: from here on nothing fails.
    const ZanDicLink<ZanDicClass> self(this);
    const ZanDicLink<ZanDicClass> above(newSuper);
    newSuper->_invSuperClass.expect(1);
    if (_SuperClass) _SuperClass->_invSuperClass.Remove(*this);
    newSuper->_invSuperClass.Remove(*this);  // listed still when that class was flushed
    newSuper->_invSuperClass.Append(*this);
    _SuperClass = above;
    _ALLATTRIBUTES.reset();
    ZanDicHierarchy::Changed();
    ZanDicHierarchy::AnswerMade();
    return S_OK;
}

HRESULT ZanDicClass::GetSuperClass(OXMIDicClass** superClass) const {
    if (superClass == nullptr) return E_FAIL;
    return _SuperClass ? HandOutAs(*_SuperClass, superClass) : S_FALSE;
}

HRESULT ZanDicClass::GetSuperClasses(ZELListPtrIUnknown* superClasses) const {
    if (superClasses == nullptr) return E_FAIL;
    for (const ZanDicClass* above = _SuperClass.Get(); above != nullptr; above = above->_SuperClass.Get()) {
        AppendInterface(*above, superClasses);
    }
    // Deliberate: what the root answers (ZanDicClassHierarchyTest.GetSuperClassesAlwaysEndsWithOne).
    return S_FALSE;
}

HRESULT ZanDicClass::GetSubClasses(ZELListPtrIUnknown* subClasses) const {
    if (subClasses == nullptr) return E_FAIL;
    const int size = _invSuperClass.Size();
    for (int position = 1; position <= size; ++position) {
        AppendInterface(*_invSuperClass[position], subClasses);
    }
    return S_OK;
}

HRESULT ZanDicClass::GetSuperName(ZELString* name) const {
    if (name == nullptr) return E_FAIL;
    return _SuperClass ? _SuperClass->GetName(name) : S_FALSE;
}

HRESULT ZanDicClass::GetSuperInterface(OXMIDicInterface** superInterface) const {
    if (superInterface == nullptr) return E_FAIL;
    return _SuperClass ? HandOutAs(*_SuperClass, superInterface) : S_FALSE;
}

HRESULT ZanDicClass::GetSuperInterfaces(ZELListPtrIUnknown* superInterfaces) const {
    if (superInterfaces == nullptr) return E_FAIL;
    for (const ZanDicClass* above = _SuperClass.Get(); above != nullptr; above = above->_SuperClass.Get()) {
        ZanDicRef<OXMIDicInterface> face;
        if (Failed(HandOutAs(*above, face.Out()))) continue;
        superInterfaces->Append(face.Get());
        face.Detach();
    }
    // Deliberate: as GetSuperClasses.
    return S_FALSE;
}

void ZanDicClass::drop_Hierarchy() {
    if (_SuperClass) _SuperClass->_invSuperClass.Remove(*this);
    _SuperClass.Reset();
    // Deliberate: the list of subclasses stays (ZanDicClassTest.FlushAllKeepsTheListOfSubClasses).
    for_EachSubClass([](ZanDicClass& subClass) { subClass._SuperClass.Lose(); });
    ZanDicHierarchy::Changed();
}

HRESULT ZanDicClass::compute_AllAttributes() {
    const std::uint64_t state = ZanDicHierarchy::State();
    std::vector<ZanDicClass*> way;
    ZanDicClass* above = this;
    for (; above != nullptr && above->_FreshAt != state; above = above->_SuperClass.Get()) {
        way.push_back(above);
    }
    ZanDicAllAttributes::Descent descent(above != nullptr ? above->_ALLATTRIBUTES : nullptr, way.size());
    for (auto next = way.rbegin(); next != way.rend(); ++next) {
        (*next)->_ALLATTRIBUTES = descent.Next((*next)->_ATTRIBUTES);
        (*next)->_FreshAt = state;
    }
    ZanDicHierarchy::AnswerMade();
    return S_OK;
}

void ZanDicClass::forget_AllAttributes() {
    ZanDicHierarchy::Changed();
    _ALLATTRIBUTES.reset();
    if (_ForgottenAt == ZanDicHierarchy::Answers()) return;
    std::vector<ZanDicClass*> below{this};
    while (!below.empty()) {
        ZanDicClass& forgetting = *below.back();
        below.pop_back();
        forgetting._ALLATTRIBUTES.reset();
        forgetting.for_EachSubClass([&below](ZanDicClass& subClass) { below.push_back(&subClass); });
    }
    _ForgottenAt = ZanDicHierarchy::Answers();
}

HRESULT ZanDicClass::GetAllElements(ZELListPtrIUnknown* attributes) {
    ZanDicAllAttributes::List listed = ZanDicAllAttributes::ListAlive(_ALLATTRIBUTES);
    if (listed.empty() && !_SuperClass) {
        // Deliberate: a root computes nothing (ZanDicClassHierarchyTest.ARootAnswersFromItsOwnAttributes).
        for (int position = 1; position <= _ATTRIBUTES.Size(); ++position) {
            listed.push_back(static_cast<ZanDicAttribute*>(_ATTRIBUTES[position]));
        }
    } else if (listed.empty()) {
        compute_AllAttributes();
        listed = ZanDicAllAttributes::ListAlive(_ALLATTRIBUTES);
    }
    if (attributes != nullptr && attributes->Size() == 0)
        attributes->Reserve(static_cast<int>(listed.size()));
    HRESULT rc = S_OK;
    for (const ZanDicAttribute* attribute : listed) rc = AppendInterface(*attribute, attributes);
    return rc;
}

HRESULT ZanDicClass::GetInjectivesPointingOnMe(ZELListPtrIUnknown& relationships) const {
    ZanDicRegistry* const registry = ZanDicGetRegistry();
    if (registry == nullptr) return E_FAIL;
    if (!registry->has_Relations()) return S_OK;
    const auto append = [&](const ZanDicClass& target) {
        return registry->owns_Uuid(target) ? registry->get_Relations(target.Uuid(), relationships) : S_OK;
    };
    for (const ZanDicClass* above = _SuperClass.Get(); above != nullptr; above = above->_SuperClass.Get()) {
        if (const HRESULT rc = append(*above); Failed(rc)) return rc;
    }
    return is_Gone() ? S_OK : append(*this);
}

/// The relationships that point here follow the class to its new UUID, unless either is another object's.
template <class Change>
HRESULT ZanDicClass::change_Uuid(const Change& change) {
    ZanDicRegistry* const registry = is_Gone() ? nullptr : ZanDicGetRegistry();
    const ZELDbBinary before = Uuid();
    const bool owned = registry != nullptr && registry->owns_Uuid(*this);
    const HRESULT rc = change();
    if (!owned) return rc;
    if (registry->owns_Uuid(*this)) {
        registry->move_Relations(before, Uuid());
    } else {
        registry->forget_Relations(before);
    }
    return rc;
}

HRESULT ZanDicClass::SetUuid(const ZELDbBinary* uuid) {
    return change_Uuid([&] { return ZanDicElement::SetUuid(uuid); });
}

HRESULT ZanDicClass::GenUuid() {
    return change_Uuid([&] { return ZanDicElement::GenUuid(); });
}

void ZanDicClass::forget_Relations() noexcept {
    ZanDicRegistry* const registry = ZanDicFindRegistry();
    if (registry != nullptr && registry->owns_Uuid(*this)) registry->forget_Relations(Uuid());
}

HRESULT ZanDicClass::SetExtensible(unsigned char extensible) {
    _Extensible = extensible;
    _ExtensibleSet = true;
    return S_OK;
}

HRESULT ZanDicClass::GetExtensible(unsigned char* extensible) const {
    if (extensible == nullptr) return E_FAIL;
    *extensible = 0;
    for (const ZanDicClass* owner = this; owner != nullptr; owner = owner->_SuperClass.Get()) {
        if (!owner->_ExtensibleSet) continue;
        *extensible = owner->_Extensible;
        return owner == this ? S_OK : S_FALSE;
    }
    return S_FALSE;
}

HRESULT ZanDicClass::GetClassExtensible(unsigned char* extensible) const {
    if (extensible == nullptr) return E_FAIL;
    *extensible = _ExtensibleSet ? _Extensible : 0;
    return _ExtensibleSet ? S_OK : S_FALSE;
}

HRESULT ZanDicClass::SetKVADerivable(int derivable) {
    _KVADerivable = derivable;
    return S_OK;
}

HRESULT ZanDicClass::GetKVADerivable(int* derivable) const {
    if (derivable == nullptr) return E_FAIL;
    const ZanDicClass* owner = this;
    while (owner->_KVADerivable == OXMDicKVADERIVABLE_Inherited && owner->_SuperClass) {
        owner = owner->_SuperClass.Get();
    }
    return owner->GetClassKVADerivable(derivable);
}

HRESULT ZanDicClass::GetClassKVADerivable(int* derivable) const {
    if (derivable == nullptr) return E_FAIL;
    *derivable = _KVADerivable;
    return _KVADerivable == OXMDicKVADERIVABLE_Inherited ? S_FALSE : S_OK;
}
