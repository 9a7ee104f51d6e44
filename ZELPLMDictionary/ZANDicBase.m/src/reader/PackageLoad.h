/// The load of one package, in steps that can wait for the load of another.
#ifndef PACKAGE_LOAD_H
#define PACKAGE_LOAD_H

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "FaultReport.h"
#include "OXMDicTypes.h"
#include "OXMIDicMgr.h"
#include "Reading.h"
#include "ZELString.h"
#include "ZELVBTXMLNode.h"

/// What the loads of one call share: the package asked for and those that it needs.
struct LoadRun {
    OXMIDicMgr& manager;
    const char* dirNames;
    FaultReport faults;
    LeftOut leftOut;
    std::unordered_map<std::string, int> namesInProgress;  ///< how many open loads bear each name
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
/// result by Deliver and advances again.
class PackageLoad {
public:
    PackageLoad(LoadRun& run, PackageRequest request);
    ~PackageLoad();
    PackageLoad(const PackageLoad&) = delete;
    PackageLoad& operator=(const PackageLoad&) = delete;

    /// Goes on with the load. \returns whether it is over; otherwise another package is needed.
    bool Advance();

    /// The package that is needed.
    const PackageRequest& Request() const { return _Needed; }

    /// Tells how the load of the needed package ended.
    void Deliver(HRESULT rc);

    /// Ends the load as failed, whatever it is doing, and takes its package out.
    void Abandon();

    HRESULT Result() const { return _Result; }

private:
    enum class StepResult { Next, Again, NeedsPackage, Finished };
    using Step = StepResult (PackageLoad::*)();
    static const Step kSteps[];

    // steps, in order
    StepResult open_Document();
    StepResult read_Identity();
    StepResult load_UsedPackages();
    StepResult create_Package();
    StepResult add_UsedPackages();
    StepResult fill_Elements();
    StepResult load_ScopePackages();
    StepResult add_Commands();
    StepResult complete_Elements();
    StepResult check_Classes();

    bool split_Name();
    bool find_Document();
    bool parse_Document();
    bool find_PackageNode();
    void read_Uuid();
    void read_Name();
    void read_Domain();
    std::vector<ZELString> read_Names(std::string_view attributeName, bool isPackageNameOnly);
    bool check_Need(const ZELString& name);
    bool is_Self(std::string_view packageName) const;
    StepResult need_Package(std::string_view attributeName, const ZELString& name);
    bool add_Package(std::string_view attributeName, const ZELString& name, bool isScope);
    HRESULT complete_Element(const ElementNote& note);
    HRESULT check_Element(const ElementNote& note);
    void read_Tuning();
    void finish();
    void remove_Package();
    bool is_Loaded(const ZELString& name);
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
    std::vector<ZELString> _NAMES;      ///< packages that the current step needs
    std::vector<std::string> _ENTERED;  ///< names of this load that are in progress
    std::vector<ZELString> _FAILED;     ///< needed packages that could not be loaded
    std::size_t _NextName = 0;
    std::size_t _Step = 0;
    bool _IsWaiting = false;
    bool _IsPassedOver = false;  ///< the package turned out to be loaded already
    bool _IsOver = false;
    HRESULT _Result = 0;
};

#endif
