#include "LoadClock.h"

#include <algorithm>

namespace tool {

void LoadClock::StepIn(std::string_view, std::string_view subject) {
    ChargeCurrent();
    _PHASES.push_back(&_RECORDS[std::string(subject.substr(0, subject.find('.')))]);
}

void LoadClock::StepOut(std::string_view, std::string_view) {
    if (_PHASES.empty()) return;
    ChargeCurrent();
    _PHASES.back()->finished = ++_Ended;
    _PHASES.pop_back();
}

void LoadClock::ChargeCurrent() {
    const auto now = std::chrono::steady_clock::now();
    if (!_PHASES.empty()) _PHASES.back()->own += now - _Since;
    _Since = now;
}

std::vector<std::string> LoadClock::Finished() const {
    std::vector<std::string> subjects;
    for (const auto& [subject, record] : _RECORDS) subjects.push_back(subject);
    std::sort(subjects.begin(), subjects.end(), [this](const std::string& a, const std::string& b) {
        return _RECORDS.at(a).finished < _RECORDS.at(b).finished;
    });
    return subjects;
}

LoadClock::Duration LoadClock::Own(std::string_view subject) const {
    const auto found = _RECORDS.find(subject);
    return found != _RECORDS.end() ? found->second.own : Duration{};
}

}  // namespace tool
