#ifndef ZANDIC_TOOL_PROFILING_SCOPE_H
#define ZANDIC_TOOL_PROFILING_SCOPE_H

#include <string>
#include <string_view>

#include "ZanDicProfiling.h"

namespace tool {

/// While one lives, the tool is in a phase of its own.
class ProfilingScope {
public:
    ProfilingScope(std::string_view operation, std::string_view subject)
        : _Operation(operation), _Subject(subject) {
        ZanDicProfiling::StepIn(_Operation, _Subject);
    }
    ~ProfilingScope() { ZanDicProfiling::StepOut(_Operation, _Subject); }
    ProfilingScope(const ProfilingScope&) = delete;
    ProfilingScope& operator=(const ProfilingScope&) = delete;

private:
    std::string _Operation;
    std::string _Subject;
};

}  // namespace tool

#endif
