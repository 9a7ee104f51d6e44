#include "ZanDicLoadRecord.h"

#include "OXMIDicPackage.h"
#include "ZanDicImplementation.h"
#include "ZanDicPackage.h"
#include "ZanDicRegistry.h"

void ZanDicNoteLoad(OXMIDicPackage& package, const ZELString& askedName, OXMDicCONTENT content) {
    auto* const object = LiveImplementationOf<ZanDicPackage>(&package);
    ZanDicRegistry* const registry = ZanDicFindRegistry();
    if (object == nullptr || registry == nullptr) return;
    object->set_Content(content);
    registry->note_Load(askedName, *object);
}

HRESULT ZanDicFindLoad(const ZELString& askedName, OXMIDicPackage** package) {
    ZanDicRegistry* const registry = ZanDicFindRegistry();
    const ZanDicPackage* const found = registry != nullptr ? registry->find_Load(askedName) : nullptr;
    void* face = nullptr;
    if (found == nullptr || Failed(found->bind_Interface(OXMDicTYPE_Package, &face))) return E_FAIL;
    *package = static_cast<OXMIDicPackage*>(face);
    return S_OK;
}

void ZanDicExpectObjects(int count) {
    if (ZanDicRegistry* const registry = ZanDicFindRegistry()) registry->expect_Objs(count);
}

void ZanDicExpectMembers(IUnknown& owner, int count) {
    if (auto* const object = LiveImplementationOf<ZanDicObj>(&owner)) object->expect_Members(count);
}

void ZanDicPrefetchPlace(std::uint32_t key) {
    if (const ZanDicRegistry* const registry = ZanDicFindRegistry()) registry->prefetch_Uuid(key);
}

void ZanDicPrefetchObject(std::uint32_t key) {
    const ZanDicRegistry* const registry = ZanDicFindRegistry();
    const ZanDicObj* const object = registry != nullptr ? registry->guess_Obj(key) : nullptr;
    if (object != nullptr) ZanDicObj::prefetch_Obj(object);
}

void ZanDicPrefetchLinks(std::uint32_t key) {
    const ZanDicRegistry* const registry = ZanDicFindRegistry();
    const ZanDicObj* const object = registry != nullptr ? registry->guess_Obj(key) : nullptr;
    if (object != nullptr) object->prefetch_Links();
}
