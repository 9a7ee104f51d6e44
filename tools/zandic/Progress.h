#ifndef ZANDIC_TOOL_PROGRESS_H
#define ZANDIC_TOOL_PROGRESS_H

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <string>
#include <string_view>
#include <thread>

#include "ZanDicProfiling.h"

namespace tool {

/// How far a run is.
struct ProgressState {
    std::string doing;    ///< as in "loading"
    std::string subject;  ///< the package
    int done = 0;         ///< how many of what was asked for
    int total = 0;        ///< how many were asked for
    int tick = 0;         ///< grows with every look: what has no known end moves
    std::chrono::seconds elapsed{0};
};

/// \returns one line for a terminal of \p width columns: "loading Items [#####...............] 1 of 4, 3 s".
std::string ProgressText(const ProgressState& state, std::size_t width);

/// Tells on a terminal how far the loads and saves of a run are, once they take longer than a second: one
/// line that is drawn anew, and is gone at the end of each. It listens to the profiling of the dictionary and
/// passes on what it hears.
///
/// A thread of its own draws, since the dictionary works meanwhile; it reads nothing of the dictionary's.
class Progress final : public ZanDicProfiler {
public:
    using Draw = std::function<void(std::string_view line)>;

    /// \param next is told all that this is told; outlives this.
    /// \param draw shows a line in place of the one before; an empty one takes it away. Called by another
    /// thread, never by two at once.
    /// \param delay after the first step before anything is drawn.
    Progress(ZanDicProfiler& next, Draw draw,
             std::chrono::milliseconds delay = std::chrono::milliseconds(1000));
    ~Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    void StepIn(std::string_view operation, std::string_view subject) override;
    void StepOut(std::string_view operation, std::string_view subject) override;
    void ResetAll() override { _Next.ResetAll(); }

    /// Says what the steps from now on are part of, as in "loading", and how many there will be.
    void Expect(std::string_view doing, int total);

    /// One of those that were expected is done.
    void Done();

private:
    void Run();

    ZanDicProfiler& _Next;
    Draw _Draw;
    std::chrono::milliseconds _Delay;
    std::mutex _Mutex;  ///< of all that follows
    std::condition_variable _Changed;
    std::chrono::steady_clock::time_point _Since;
    ProgressState _State;
    int _Depth = 0;  ///< steps that are open
    bool _IsDrawn = false;
    bool _IsOver = false;
    std::thread _Thread;
};

}  // namespace tool

#endif
