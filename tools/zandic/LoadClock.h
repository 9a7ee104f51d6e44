#ifndef ZANDIC_TOOL_LOAD_CLOCK_H
#define ZANDIC_TOOL_LOAD_CLOCK_H

#include <chrono>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "ZanDicProfiling.h"

namespace tool {

/// What a load took.
struct LoadCost {
    std::chrono::steady_clock::duration time{};
    std::int64_t bytes = 0;  ///< of the heap that stay taken; 0 where nobody measures

    double Milliseconds() const { return std::chrono::duration<double, std::milli>(time).count(); }

    LoadCost& operator+=(const LoadCost& other) {
        time += other.time;
        bytes += other.bytes;
        return *this;
    }
};

/// Measures the load of each package by itself: while a phase stands inside another, only the inner one
/// runs. A phase belongs to its subject up to the first ".", which is the name of a package. A load that
/// waits for another ends its phase and begins it again after that.
class LoadClock final : public ZanDicProfiler {
public:
    /// Counts the bytes of the heap as well, from now on.
    void MeasureMemory() { _MeasuresMemory = true; }

    void StepIn(std::string_view operation, std::string_view subject) override;
    void StepOut(std::string_view operation, std::string_view subject) override;

    /// The manager resets its counters after each load. This clock runs as long as the tool does.
    void ResetAll() override {}

    /// \returns the subjects, those first whose load ended first: a package after what it uses.
    const std::vector<std::string>& Finished() const { return _FINISHED; }

    /// \returns what one subject took; nothing for an unknown one.
    LoadCost Own(std::string_view subject) const;

private:
    struct Record {
        LoadCost cost;
        bool isOpen = false;      ///< among `_LOADS`
        bool isFinished = false;  ///< among `_FINISHED`
    };
    using Records = std::map<std::string, Record, std::less<>>;

    void ChargeCurrent();
    void FinishLast();

    Records _OWN;
    std::vector<Records::iterator> _PHASES;  ///< those that are open, the inner one last
    std::vector<Records::iterator> _LOADS;   ///< those that run or wait, each for the one behind it
    std::vector<std::string> _FINISHED;
    std::chrono::steady_clock::time_point _Since;
    std::int64_t _BytesSince = 0;
    bool _MeasuresMemory = false;
};

}  // namespace tool

#endif
