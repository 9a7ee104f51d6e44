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
/// runs. A phase belongs to its subject up to the first ".", which is the name of a package. A load that
/// waits for another ends its phase and begins it again after that.
class LoadClock final : public ZanDicProfiler {
public:
    using Duration = std::chrono::steady_clock::duration;

    void StepIn(std::string_view operation, std::string_view subject) override;
    void StepOut(std::string_view operation, std::string_view subject) override;

    /// The manager resets its counters after each load. This clock runs as long as the tool does.
    void ResetAll() override {}

    /// \returns the subjects, those first whose load ended first: a package after what it uses.
    const std::vector<std::string>& Finished() const { return _FINISHED; }

    /// \returns the time of one subject; zero for an unknown one.
    Duration Own(std::string_view subject) const;

private:
    using Records = std::map<std::string, Duration, std::less<>>;

    void ChargeCurrent();
    void FinishLast();

    Records _OWN;
    std::vector<Records::iterator> _PHASES;  ///< those that are open, the inner one last
    std::vector<std::string> _LOADS;         ///< those that run or wait, each for the one behind it
    std::vector<std::string> _FINISHED;
    std::chrono::steady_clock::time_point _Since;
};

}  // namespace tool

#endif
