#include "Progress.h"

#include <fmt/format.h>

#include <algorithm>
#include <utility>

#include "Sheet.h"

namespace tool {
namespace {

constexpr std::chrono::milliseconds kTick{100};
constexpr std::size_t kBarWidth = 20;
constexpr int kPieceWidth = 4;  // of what runs to and fro

/// \returns the bar: filled as far as things are, or with a piece that runs to and fro where that is unknown.
std::string Bar(const ProgressState& state) {
    std::string bar(kBarWidth, '.');
    if (state.total > 1) {
        const int done = std::clamp(state.done, 0, state.total);
        const auto filled =
            static_cast<std::size_t>(done) * kBarWidth / static_cast<std::size_t>(state.total);
        std::fill_n(bar.begin(), filled, '#');
        return bar;
    }
    constexpr int kWay = static_cast<int>(kBarWidth) - kPieceWidth;
    const int place = state.tick % (2 * kWay);
    std::fill_n(bar.begin() + (place <= kWay ? place : 2 * kWay - place), kPieceWidth, '#');
    return bar;
}

}  // namespace

std::string ProgressText(const ProgressState& state, std::size_t width) {
    const std::string count = state.total > 1 ? fmt::format(" {} of {},", state.done, state.total) : "";
    const std::string end = fmt::format(" [{}]{} {} s", Bar(state), count, state.elapsed.count());
    std::string begin = Printable(fmt::format("{} {}", state.doing, state.subject));
    const std::size_t room = width > WidthOf(end) ? width - WidthOf(end) : 0;
    if (WidthOf(begin) > room) begin = Beginning(begin, room);
    return begin + end;
}

Progress::Progress(ZanDicProfiler& next, Draw draw, std::chrono::milliseconds delay)
    : _Next(next), _Draw(std::move(draw)), _Delay(delay) {}

Progress::~Progress() {
    {
        const std::lock_guard lock(_Mutex);
        _IsOver = true;
    }
    _Changed.notify_one();
    if (_Thread.joinable()) _Thread.join();
}

void Progress::StepIn(std::string_view operation, std::string_view subject) {
    _Next.StepIn(operation, subject);
    const std::lock_guard lock(_Mutex);
    ++_Depth;
    _State.subject = subject;
    if (_Thread.joinable()) return;
    _Since = std::chrono::steady_clock::now();
    _Thread = std::thread([this] { Run(); });
}

void Progress::StepOut(std::string_view operation, std::string_view subject) {
    _Next.StepOut(operation, subject);
    const std::lock_guard lock(_Mutex);
    if (--_Depth == 0 && std::exchange(_IsDrawn, false)) _Draw("");
}

void Progress::Expect(std::string_view doing, int total) {
    const std::lock_guard lock(_Mutex);
    _State.doing = doing;
    _State.total = total;
    _State.done = 0;
}

void Progress::Done() {
    const std::lock_guard lock(_Mutex);
    ++_State.done;
}

void Progress::Run() {
    constexpr std::size_t kWidth = Sheet::kWidth - 1;  // the last column would begin another line
    std::unique_lock lock(_Mutex);
    while (!_IsOver) {
        _Changed.wait_for(lock, kTick, [this] { return _IsOver; });
        const auto elapsed = std::chrono::steady_clock::now() - _Since;
        if (_IsOver || _Depth == 0 || elapsed < _Delay) continue;
        ++_State.tick;
        _State.elapsed = std::chrono::duration_cast<std::chrono::seconds>(elapsed);
        _IsDrawn = true;
        _Draw(ProgressText(_State, kWidth));
    }
}

}  // namespace tool
