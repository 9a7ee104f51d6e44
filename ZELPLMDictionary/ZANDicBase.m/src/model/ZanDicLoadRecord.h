/// What the reader tells and asks of packages beside their interfaces: from which document each came, and how
/// much is going to be loaded.
#ifndef ZAN_DIC_LOAD_RECORD_H
#define ZAN_DIC_LOAD_RECORD_H

#include <cstdint>

#include "OXMDicTypes.h"
#include "ZELResult.h"
#include "ZELString.h"

class IUnknown;
class OXMIDicPackage;

/// Notes the name that was asked for, which the document may not bear itself, and the content kind. The
/// record goes with the package.
void ZanDicNoteLoad(OXMIDicPackage& package, const ZELString& askedName, OXMDicCONTENT content);

/// Finds a package by the name that was asked for when it was loaded.
/// \param[out] package written on success only. \returns S_OK; E_FAIL when there is none.
HRESULT ZanDicFindLoad(const ZELString& askedName, OXMIDicPackage** package);

/// Makes room in the registry for \p count objects more. A hint: they need not come.
void ZanDicExpectObjects(int count);

/// Makes room in a package, a class or an enumeration for \p count members more. A hint, as above.
void ZanDicExpectMembers(IUnknown& owner, int count);

/// What a lookup of a UUID, and a link to what it finds, will touch, fetched into the cache step by step:
/// each step needs what the one before has fetched. \param key of the UUID.
void ZanDicPrefetchPlace(std::uint32_t key);   ///< in the registry
void ZanDicPrefetchObject(std::uint32_t key);  ///< the object found there
void ZanDicPrefetchLinks(std::uint32_t key);   ///< its adapters and what its links go through

#endif
