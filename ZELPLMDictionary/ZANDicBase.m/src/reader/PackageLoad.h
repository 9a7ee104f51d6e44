/// The load of one package, in steps that can wait for the load of another.
#ifndef PACKAGE_LOAD_H
#define PACKAGE_LOAD_H

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "FaultReport.h"
#include "OXMDicTypes.h"
#include "OXMIDicMgr.h"
#include "Reading.h"
#include "ZELHash.h"
#include "ZELString.h"
#include "ZELVBTXMLNode.h"
#include "ZanDicRef.h"

class PackageLoad;
class TuningReading;

/// What the loads of one call share: the package asked for and those that it needs.
struct LoadRun {
    OXMIDicMgr& manager;
    const char* dirNames;
    FaultReport faults = {};
    LeftOut leftOut = {};
    LeftOut untargeted = {};  ///< attributes whose target was at fault
    /// What is known of packages that failed, by file: when observers ask to go on, another package may need
    /// one again, which is not read a second time.
    struct Failure {
        int cause;
        int unknownCause;
    };
    std::unordered_map<std::string, Failure, ZELTextHash> failed = {};
    /// The loads that are not over, by the name asked for and by the document's own.
    std::unordered_map<std::string, PackageLoad*, ZELTextHash> inProgress = {};
    /// Those of them that made their package, in order of creation.
    std::vector<PackageLoad*> created = {};

    ZELShortageWatch shortage = {};

    /// \returns the load in progress of that name; null when there is none.
    PackageLoad* Find(std::string_view name) const;
};

/// How far a load is. All members of a ring end a phase before one begins the next.
enum class LoadPhase : std::uint8_t {
    Read,       ///< the package is made and its elements are filled
    Used,       ///< its used packages are noted
    Scoped,     ///< its scope packages are loaded and noted
    Completed,  ///< its references are set
    Extended,   ///< its scopes that had to wait are set
    Checked,
};

/// A package that another needs first, and where it says so.
struct PackageRequest {
    ZELString name;  ///< with or without content word
    OXMDicCONTENT content;
    const FaultDocument* document = nullptr;  ///< null when a caller asks
    ZELVBTXMLNode node = {};
    ZELVBTXMLAttribute attribute = {};
};

/// Reads one document: finds it, creates its package, fills and completes the elements, checks the
/// classes, and takes the package out again when something failed.
///
/// A package that needs others stands still while these are loaded, so that a chain of packages takes
/// no depth of calls: whoever drives the load calls Advance, loads what Request asks for, tells the
/// result by Deliver and advances again. Packages that need each other form a ring: a load that meets one
/// in progress goes no further than its own reading, and the driver leads all members through the
/// other phases together (PackageLoadStack).
class PackageLoad {
public:
    /// \param order how many loads are in progress before this one.
    PackageLoad(LoadRun& run, PackageRequest request, std::size_t order);
    ~PackageLoad();
    PackageLoad(const PackageLoad&) = delete;
    PackageLoad& operator=(const PackageLoad&) = delete;

    /// Goes on until the end of \p phase. \returns whether it got there, or cannot get there now;
    /// otherwise another package is needed.
    bool Advance(LoadPhase phase);
    bool HasReached(LoadPhase phase) const;

    /// The package that is needed.
    const PackageRequest& Request() const { return _Needed; }

    /// Tells that the call for the needed package returned.
    void Deliver(const PackageLoad& inner);

    /// The first load in progress that this one leads to, by order; its own when it leads to none before it.
    std::size_t Low() const { return _Low; }
    void Join(const PackageLoad& other) { _Low = std::min(_Low, other._Low); }

    /// Number of loads that were in progress before it.
    std::size_t Order() const { return _Order; }

    /// Whether Finish or Fail was called.
    bool IsOver() const { return _IsOver; }
    /// Whether the package was made.
    bool IsCreated() const { return _Reading != nullptr; }
    /// Number of loads that had made their package when this one began: members of its ring come behind.
    std::size_t FirstMember() const { return _FirstMember; }
    /// S_OK unless something failed so far.
    HRESULT Result() const { return _Result; }
    /// Number of the fault that failed it, directly or through what it needs; 0: none was told.
    int FirstFailure() const { return _Place.firstFailure; }
    /// Number of the fault for which it is not known what a package that it needs has; 0: none.
    int UnknownCause() const { return _UnknownCause; }
    void SetUnknownCause(int cause);

    /// Closes and opens the phase told to a profiler.
    void Pause();
    void Resume();

    /// The end of a load that succeeded: the tuning document, whose blocks somebody else computes before
    /// EndTuning tells how that went, then the rest.
    void ReadTuning();
    TuningReading* Tuning() const { return _Tuning.get(); }
    void EndTuning();
    void Finish();
    /// The end of one that did not: takes the package out.
    /// \param cause number of the fault that failed its ring, if it has none itself.
    void Fail(int cause = 0);
    /// The end of one for which there is no memory: takes the package out, and tells no more than that it
    /// failed.
    void Abandon();

private:
    enum class StepResult { Next, Waits, NeedsPackage, Finished };
    using Step = StepResult (PackageLoad::*)();
    struct StepRow {
        Step step;
        LoadPhase phase;
    };
    static const StepRow kSteps[];

    // steps, in order
    StepResult open_Document();
    StepResult read_Identity();
    StepResult load_UsedPackages();
    StepResult create_Package();
    StepResult add_UsedPackagesAtOnce();
    StepResult fill_Elements();
    StepResult add_UsedPackages();
    StepResult load_ScopePackages();
    StepResult add_Commands();
    StepResult complete_Elements();
    StepResult complete_PutOff();
    StepResult check_Classes();

    bool split_Name();
    bool find_Document();
    bool parse_Document();
    bool find_PackageNode();
    void read_Uuid();
    void read_Name();
    void read_Domain();
    std::vector<ZELString> read_Names(std::string_view attributeName, bool isPackageNameOnly);
    bool is_Self(std::string_view packageName) const;
    StepResult need_Package(std::string_view attributeName, const ZELString& name);
    bool add_Package(std::string_view attributeName, const ZELString& name, bool isScope);
    void remove_Package();
    void drop_Package();
    ZanDicRef<OXMIDicPackage> loaded_Package(const ZELString& name) const;
    bool is_ThereAlready(const ZELString& name);
    bool find_Failure();
    void tell_Failed(std::string_view attributeName, std::string_view name, int cause);
    void tell_Document(const std::string& file, HRESULT rc, std::unique_ptr<ZELVBTXMLDocument>& tree) const;
    void enter_Name(const ZELString& name);
    void leave_Names();

    /// Notes a failing result. \returns whether to go on.
    bool goes_On(HRESULT rc) { return _Run.faults.GoesOn(rc, _Result); }
    StepResult next_After(HRESULT rc) { return goes_On(rc) ? StepResult::Next : StepResult::Finished; }
    Fault package_Fault(ZanDicDiagnosticCode code) const;
    Fault request_Fault(ZanDicDiagnosticCode code) const;

    LoadRun& _Run;
    PackageRequest _Request;
    PackageRequest _Needed;
    FaultDocument _Place;
    ZELString _AskedName;  ///< the request's, without content word
    ZELString _Extension;
    ZELString _Name;  ///< the document's own
    ZELDbBinary _Uuid;
    ZELString _Domain;
    std::unique_ptr<ZELVBTXMLDocument> _Document;
    ZELVBTXMLNode _Node;  ///< of the package
    std::unique_ptr<Reading> _Reading;
    std::unique_ptr<TuningReading> _Tuning;                ///< between ReadTuning and EndTuning
    std::vector<ZELString> _NAMES;                         ///< packages that the current step needs
    std::vector<std::string> _ENTERED;                     ///< names of this load that are in progress
    std::unordered_set<std::string, ZELTextHash> _FAILED;  ///< needed packages that could not be loaded
    std::size_t _NextName = 0;
    std::size_t _Order;
    std::size_t _Low;
    std::size_t _FirstMember;
    std::size_t _Step = 0;
    bool _IsEnded = false;  ///< no further step is run
    bool _IsOver = false;
    bool _IsMet = false;          ///< the package turned out to be in progress
    bool _IsNameTaken = false;    ///< it is there already, from another document
    bool _IsFound = false;        ///< there is a document, which this load read
    bool _IsKnownToFail = false;  ///< it was read before
    int _UnknownCause = 0;
    bool _IsRunning = false;        ///< its phase is open
    bool _HasUsedPackages = false;  ///< they are noted
    bool _IsScopeOpen = false;      ///< the last scope package that was loaded is not noted yet
    HRESULT _Result = 0;
};

#endif
