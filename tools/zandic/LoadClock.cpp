#include "LoadClock.h"

#include <malloc.h>

#include <utility>

namespace tool {
namespace {

/// \returns how many bytes of the heap are taken.
std::int64_t BytesTaken() {
    const struct mallinfo2 heap = mallinfo2();
    return static_cast<std::int64_t>(heap.uordblks + heap.hblkhd);
}

}  // namespace

void LoadClock::StepIn(std::string_view, std::string_view subject) {
    ChargeCurrent();
    const std::string package(subject.substr(0, subject.find('.')));
    const Records::iterator record = _OWN.try_emplace(package).first;
    _PHASES.push_back(record);

    // A load that goes on has got what it waited for.
    if (!std::exchange(record->second.isOpen, true)) _LOADS.push_back(record);
    while (_LOADS.back() != record) FinishLast();
}

void LoadClock::StepOut(std::string_view, std::string_view) {
    if (_PHASES.empty()) return;
    ChargeCurrent();
    _PHASES.pop_back();
    if (!_PHASES.empty()) return;
    while (!_LOADS.empty()) FinishLast();
}

void LoadClock::ChargeCurrent() {
    const auto now = std::chrono::steady_clock::now();
    const std::int64_t bytes = _MeasuresMemory ? BytesTaken() : 0;
    if (!_PHASES.empty()) _PHASES.back()->second.cost += {now - _Since, bytes - _BytesSince};
    // What measuring takes is nobody's.
    _Since = _MeasuresMemory ? std::chrono::steady_clock::now() : now;
    _BytesSince = bytes;
}

void LoadClock::FinishLast() {
    const Records::iterator record = _LOADS.back();
    record->second.isOpen = false;
    if (!std::exchange(record->second.isFinished, true)) _FINISHED.push_back(record->first);
    _LOADS.pop_back();
}

LoadCost LoadClock::Own(std::string_view subject) const {
    const auto found = _OWN.find(subject);
    return found != _OWN.end() ? found->second.cost : LoadCost{};
}

}  // namespace tool
