#ifndef ZANDIC_TOOL_SESSION_H
#define ZANDIC_TOOL_SESSION_H

#include <algorithm>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "Faults.h"
#include "LoadClock.h"
#include "Options.h"
#include "Progress.h"
#include "zandic.hpp"

namespace tool {

/// Which documents of the path.
enum class PathDocuments {
    Metadata,  ///< those of the content word "metadata"
    All,       ///< those of packages, of every content word
};

/// One run of the tool over the dictionary: sets the four doors, loads packages, gathers what went wrong.
/// One at a time.
class Session {
public:
    /// Lets the options decide what is traced and where to.
    explicit Session(const Options& options);
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    /// Prepares the dictionary. \returns whether it worked; else the fault is noted.
    bool Open();

    const zandic::Dictionary& Dictionary() const { return _Dictionary; }

    /// \returns the package that was loaded under the name \p asked; null when there is none.
    zandic::Handle<OXMIDicPackage> Package(std::string_view asked) const {
        return _Dictionary.Package(_Observer.NameIn(asked));
    }

    /// \returns the name, without a content word, under which a loaded package was looked for on the path.
    std::string AskedFor(std::string_view package) const;

    /// One load that was tried: the package's name and what it took by itself.
    struct LoadOf {
        std::string package;
        LoadCost own;
    };

    /// \returns the loads, those first that ended first: a package after what it uses.
    std::vector<LoadOf> LoadCosts() const;

    /// Says what is done from now on, and with how many packages: for those who wait.
    void Expect(std::string_view doing, std::size_t packages) {
        if (_Progress) _Progress->Expect(doing, static_cast<int>(packages));
    }

    /// One of the expected packages is done.
    void Done() {
        if (_Progress) _Progress->Done();
    }

    /// Lets the loads from now on be measured in memory, too.
    void MeasureMemory() { _Clock.MeasureMemory(); }

    /// \returns the directories that are searched, separated by ":"; empty when there are none.
    const std::string& Path() const { return _Path; }

    /// Loads the package unless that was tried before.
    /// \returns whether it is there; else the fault is noted, on the first try.
    bool Load(const std::string& name);

    /// Loads package documents of the path, in the order of their names. One that does not load is a warning,
    /// and costs exit status 1.
    /// \returns the names that were tried.
    std::vector<std::string> LoadPath(PathDocuments documents);

    /// Note what could not be done, and what must not be asked for.
    void Refuse(std::string subject, std::string text);
    void Refuse(const Fault& fault) { Note(fault, ExitStatus::Refused); }
    void RejectUse(std::string subject, std::string text);

    /// Makes the exit status at least as bad; whoever calls says why.
    void Raise(ExitStatus status) { _Status = std::max(_Status, status); }

    /// Notes what the user should know though it was done.
    void Warn(std::string_view subject, std::string_view text);

    /// Notes a remark on what was done.
    void Remark(std::string_view text) { Tell("zandic: " + std::string(text)); }

    /// Costs exit status 1 without a line: the output says why.
    void Fail() { _Status = std::max(_Status, ExitStatus::Refused); }

    /// \returns whether all went well so far.
    bool IsClean() const { return _Status == ExitStatus::Done; }

    /// Unloads everything, then writes a line for each fault: the last lines of the process.
    ExitStatus Close();

private:
    void Note(const Fault& fault, ExitStatus status, Gravity gravity = Gravity::Error);
    bool LoadAs(const std::string& name, Gravity gravity);
    void Tell(std::string line);

    zandic::Dictionary _Dictionary;
    FaultObserver _Observer;
    LoadClock _Clock;
    std::optional<Progress> _Progress;  ///< none where nobody would see it
    std::string _Path;
    std::string _TraceMethods;
    std::set<std::string, std::less<>> _LOADED;   ///< names asked for that are there
    std::set<std::string, std::less<>> _REFUSED;  ///< names asked for that are not
    std::vector<std::string> _LINES;              ///< one for each fault and warning
    std::set<std::string, std::less<>> _TOLD;     ///< the same
    ExitStatus _Status = ExitStatus::Done;
};

}  // namespace tool

#endif
