#include "LoadClock.h"

#include <algorithm>

namespace tool {

void LoadClock::StepIn(std::string_view, std::string_view subject) {
    ChargeCurrent();
    const std::string package(subject.substr(0, subject.find('.')));
    _PHASES.push_back(_OWN.try_emplace(package).first);

    // A load that goes on has got what it waited for.
    if (std::find(_LOADS.begin(), _LOADS.end(), package) == _LOADS.end()) _LOADS.push_back(package);
    while (_LOADS.back() != package) FinishLast();
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
    if (!_PHASES.empty()) _PHASES.back()->second += now - _Since;
    _Since = now;
}

void LoadClock::FinishLast() {
    const bool isFirst = std::find(_FINISHED.begin(), _FINISHED.end(), _LOADS.back()) == _FINISHED.end();
    if (isFirst) _FINISHED.push_back(_LOADS.back());
    _LOADS.pop_back();
}

LoadClock::Duration LoadClock::Own(std::string_view subject) const {
    const auto found = _OWN.find(subject);
    return found != _OWN.end() ? found->second : Duration{};
}

}  // namespace tool
