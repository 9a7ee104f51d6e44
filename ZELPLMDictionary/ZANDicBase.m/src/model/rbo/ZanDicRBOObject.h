/// What all RBO kinds share: how one is made and how it is dumped.
#ifndef ZAN_DIC_RBO_OBJECT_H
#define ZAN_DIC_RBO_OBJECT_H

#include "ZanDicElement.h"
#include "ZanDicHandOut.h"
#include "ZanDicRef.h"
#include "ZanDicRegistry.h"

/// Makes an object of an RBO kind for \p owner: registers it, hands it out and then lets the owner take its
/// reference over. Deliberately the other way round than for members of classes: what is refused is released
/// and \p out untouched (ZanDicRBOMappingTest.ARootWhoseUuidIsTakenIsNotKept).
/// \param keep takes the object; its failure undoes everything.
/// \returns what \p keep gives; E_FAIL for null, when the owner is gone or the UUID is taken.
template <class Element, class Interface, class Keep>
HRESULT MakeRBOObject(const ZanDicElement& owner, const ZELString* name, const ZELDbBinary* uuid,
                      Interface** out, const Keep& keep) {
    ZanDicRegistry* const registry = ZanDicGetRegistry();
    if (name == nullptr || uuid == nullptr || out == nullptr || owner.is_Gone() || registry == nullptr) {
        return E_FAIL;
    }
    ZanDicRef<Element> made(new Element(*name, *uuid));
    made->set_Package(owner.get_Package());
    if (Failed(registry->Insert(made.Get()))) return E_FAIL;
    ZanDicRef<Interface> face;
    HRESULT rc = HandOutOwn(*made, face.Out());
    if (Succeeded(rc)) rc = keep(*made);
    if (Failed(rc)) {
        registry->Delete(made.Get());
        return E_FAIL;
    }
    made.Detach();
    *out = face.Detach();
    return rc;
}

/// The same for an owner that keeps its objects in a list, where the name must be free.
template <class Element, class Interface>
HRESULT MakeRBOMember(const ZanDicElement& owner, ZanHashList& list, const ZELString* name,
                      const ZELDbBinary* uuid, Interface** out) {
    ZanDicObj* present = nullptr;
    if (name != nullptr && Succeeded(list.Search(*name, &present))) return E_FAIL;
    return MakeRBOObject<Element>(owner, name, uuid, out, [&](Element& made) { return list.Append(&made); });
}

/// As AppendInterfaces, for the kinds that write a line where they refuse.
/// \param operation as the line names it.
HRESULT AppendRBOMembers(const ZanHashList& members, ZELListPtrIUnknown* list, std::string_view operation);

/// Writes the class's own line, the element's dump and one line per property.
void DumpRBOObject(const ZanDicElement& element, const char* caller);

#endif
