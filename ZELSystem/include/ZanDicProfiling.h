#ifndef ZANDICPROFILING_H
#define ZANDICPROFILING_H

#include <string>
#include <string_view>

#include "ZELExport.h"

/// Is told when a phase begins and ends, in nested pairs. A phase is named by its operation and its subject.
class ZELSYSTEM_API ZanDicProfiler {
public:
    /// A phase begins: \p operation works on \p subject. Must not throw.
    virtual void StepIn(std::string_view operation, std::string_view subject) = 0;

    /// The phase of the same two names ends. Must not throw.
    virtual void StepOut(std::string_view operation, std::string_view subject) = 0;

    /// All counters start again from nothing. Must not throw.
    virtual void ResetAll() = 0;

protected:
    ~ZanDicProfiler() = default;
};

/// Tells \p profiler, which the caller keeps alive until another is set; null, as at the start, for none.
/// One thread.
/// \returns the profiler set before, or null.
ZELSYSTEM_API ZanDicProfiler* ZanDicSetProfiler(ZanDicProfiler* profiler) noexcept;

/// Where the libraries say which phase they are in. Does nothing unless a profiler is set.
class ZELSYSTEM_API ZanDicProfiling {
public:
    static void StepIn(std::string_view operation, std::string_view subject);
    static void StepOut(std::string_view operation, std::string_view subject);
    static void ResetAll();

    /// \returns the name of a phase: the operation, a blank and the subject in brackets.
    static std::string PhaseName(std::string_view operation, std::string_view subject);
};

#endif
