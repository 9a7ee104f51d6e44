#ifndef IUNKNOWN_H
#define IUNKNOWN_H

#include <cstdint>

#include "ZELExport.h"
#include "ZELInterfaceId.h"
#include "ZELResult.h"

/// What every interface begins with: references and the way to the object's other interfaces.
///
/// A caller holds an interface for as long as it owns a reference to it, and gives the reference back
/// with Release. The order of the operations never changes: programs are built against it.
/// One thread.
class ZELSYSTEM_API IUnknown {
public:
    /// Asks the object behind this interface for another of its interfaces.
    /// \param[out] out written on success only, with one reference that the caller owns.
    /// \returns S_OK; E_NOINTERFACE when the object lacks \p id; E_INVALIDARG when \p out is null;
    ///          E_FAIL when memory is short.
    virtual HRESULT QueryInterface(const ZELInterfaceId& id, void** out) = 0;

    /// Takes one more reference. \returns the new count.
    virtual std::uint32_t AddRef() = 0;

    /// Gives one reference back; the interface must not be used after the last.
    /// \returns the new count.
    virtual std::uint32_t Release() = 0;

    /// \returns the identifier of this interface. Each interface has one of its own.
    static constexpr ZELInterfaceId ClassId() noexcept {
        return {0x5a454c2d556e6b00ULL, 0x9d41c35be82f7701ULL};
    }

protected:
    ~IUnknown() = default;
};

#endif
