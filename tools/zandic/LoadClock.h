#ifndef ZANDIC_TOOL_LOAD_CLOCK_H
#define ZANDIC_TOOL_LOAD_CLOCK_H

#include <chrono>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "ZanDicProfiling.h"

namespace tool {

/// Measures the load of each package by itself: while a phase stands inside another, only the inner one
/// runs. A phase belongs to its subject up to the first ".", which is the name of a package.
class LoadClock final : public ZanDicProfiler {
public:
    using Duration = std::chrono::steady_clock::duration;

    void StepIn(std::string_view operation, std::string_view subject) override;
    void StepOut(std::string_view operation, std::string_view subject) override;

    /// The manager resets its counters after each load. This clock runs as long as the tool does.
    void ResetAll() override {}

    /// \returns the subjects, those first whose last phase ended first: a package after what it uses.
    std::vector<std::string> Finished() const;

    /// \returns the time of one subject; zero for an unknown one.
    Duration Own(std::string_view subject) const;

private:
    struct Record {
        Duration own{};
        int finished = 0;  ///< number of the phase that ended last
    };

    void ChargeCurrent();

    std::map<std::string, Record, std::less<>> _RECORDS;
    std::vector<Record*> _PHASES;  ///< those that are open, the inner one last
    std::chrono::steady_clock::time_point _Since;
    int _Ended = 0;
};

}  // namespace tool

#endif
