/// How the holder comes by the manager without knowing its class: the manager's room supplies a factory
/// when the library is loaded.
#ifndef ZAN_DIC_MANAGER_FACTORY_H
#define ZAN_DIC_MANAGER_FACTORY_H

#include "ZanDicRegistry.h"

class ZanDicObj;
class ZanDictionary;

/// The manager as the holder keeps it. All three are the same object.
struct ZanDicManagerParts {
    ZanDicObj* object = nullptr;  ///< one reference, the holder's; null when it could not be made
    ZanDictionary* dictionary = nullptr;
    ZanDicRegistry* registry = nullptr;
};

using ZanDicManagerFactory = ZanDicManagerParts (*)();

void ZanDicSetManagerFactory(ZanDicManagerFactory factory);

/// Said by the manager when it goes.
void ZanDicForgetRegistry(const ZanDicRegistry& registry) noexcept;

#endif
