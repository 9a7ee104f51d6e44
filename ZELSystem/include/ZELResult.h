#ifndef ZELRESULT_H
#define ZELRESULT_H

#include <cstdint>

/// Result of an operation: negative for a failure, else a success of some kind.
using HRESULT = std::int32_t;

inline constexpr HRESULT S_OK = 0;                                    ///< done
inline constexpr HRESULT S_FALSE = 1;                                 ///< nothing to do, or nothing found
inline constexpr HRESULT E_FAIL = static_cast<HRESULT>(0x80004005U);  ///< refused
inline constexpr HRESULT E_INVALIDARG = static_cast<HRESULT>(0x80070057U);  ///< an output is missing
inline constexpr HRESULT E_NOINTERFACE =
    static_cast<HRESULT>(0x80004002U);  ///< the object lacks the interface

/// \returns whether \p rc is a failure.
constexpr bool Failed(HRESULT rc) noexcept { return rc < 0; }

/// \returns whether \p rc is a success, S_FALSE included.
constexpr bool Succeeded(HRESULT rc) noexcept { return rc >= 0; }

#endif
