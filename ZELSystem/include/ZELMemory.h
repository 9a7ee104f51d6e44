#ifndef ZELMEMORY_H
#define ZELMEMORY_H

#include <cstddef>
#include <cstdint>

#include "ZELExport.h"
#include "ZELResult.h"

/// What comes of memory that runs out: an operation with a result answers E_FAIL, and whoever called it from
/// within a larger one can tell that from any other refusal; an operation that cannot say so ends the
/// process. One thread.

/// Notes that an operation ends with E_FAIL for want of memory. \returns E_FAIL.
ZELSYSTEM_API HRESULT ZELNoteShortage() noexcept;

/// \returns how often that was noted.
ZELSYSTEM_API std::uint32_t ZELShortageCount() noexcept;

/// Ends the process: \p operation has no result to say it with. A fatal error with the text "Out of memory".
[[noreturn]] ZELSYSTEM_API void ZELOutOfMemory(const char* operation) noexcept;

/// Tells, of what is made up of many operations, whether one of them failed for want of memory: what such a
/// one left out looks like something that is not there.
class ZELSYSTEM_API ZELShortageWatch {
public:
    ZELShortageWatch() noexcept : _Before(ZELShortageCount()) {}

    /// \returns whether memory has run out since this was made.
    bool Happened() const noexcept { return ZELShortageCount() != _Before; }

    /// Throws std::bad_alloc if it has.
    void Check() const {
        if (Happened()) [[unlikely]]
            throw_Shortage();
    }

private:
    [[noreturn]] static void throw_Shortage();

    std::uint32_t _Before;
};

/// The calls by which the platform takes blocks that do not come from the language's allocator: chunks of
/// pools, tables, documents and what is read of files. Each gives null when there is no memory.
///
/// Programs have no use for it. Tests derive from it to make one call fail. One thread.
class ZELSYSTEM_API ZELMemoryCalls {
public:
    /// \param alignment a power of two; \p bytes is a multiple of it where it is more than that of any
    /// object.
    virtual void* Allocate(std::size_t bytes, std::size_t alignment);
    /// \param block null, or one of these calls; still there when the call fails.
    virtual void* Reallocate(void* block, std::size_t bytes);

protected:
    ~ZELMemoryCalls() = default;
};

/// Lets \p calls stand for the system's from now on; the caller keeps them alive until others are set. Null
/// stands for the system's own. \returns the calls set before; null when they were the system's.
ZELSYSTEM_API ZELMemoryCalls* ZELSetMemoryCalls(ZELMemoryCalls* calls) noexcept;

#endif
