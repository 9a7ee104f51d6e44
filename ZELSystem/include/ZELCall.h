#ifndef ZELCALL_H
#define ZELCALL_H

#include <exception>
#include <type_traits>

#include "ZELMemory.h"
#include "ZELOneThread.h"
#include "ZELResult.h"

/// Runs what an operation does that callers reach: no exception leaves it.
///
/// Memory that runs out, and a text longer than there may be, is E_FAIL where the operation gives a result
/// and the end of the process where it cannot say so. In a build for debugging the caller's thread is tested
/// first. Costs nothing while nothing is thrown. \param undo run before E_FAIL is given, when something was
/// thrown; must not throw. \param operation its name, for the fatal errors: by default that of the function
/// that calls this. \returns what \p body returns.
template <class Body, class Undo>
std::invoke_result_t<Body> ZELCall(const Body& body, const Undo& undo,
                                   const char* operation = __builtin_FUNCTION()) noexcept {
    ZELCheckThread(operation);
    try {
        return body();
    } catch (const std::exception&) {
        if constexpr (std::is_same_v<std::invoke_result_t<Body>, HRESULT>) {
            undo();
            return ZELNoteShortage();
        } else {
            ZELOutOfMemory(operation);
        }
    }
}

/// The same where nothing is to be undone.
template <class Body>
std::invoke_result_t<Body> ZELCall(const Body& body, const char* operation = __builtin_FUNCTION()) noexcept {
    return ZELCall(
        body, [] {}, operation);
}

#endif
