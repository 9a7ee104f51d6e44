/// The one place that faults of documents go through: each becomes a diagnostic, is told to the observer
/// and is written as trace lines made from the same value.
#ifndef FAULT_REPORT_H
#define FAULT_REPORT_H

#include <string>
#include <string_view>
#include <vector>

#include "ZELMemory.h"
#include "ZELResult.h"
#include "ZELVBTXMLNode.h"
#include "ZanDicDiagnostic.h"
#include "ZanDicTrace.h"

/// One line of a fault: who says it, and what, without the operation's name and the full stop.
struct FaultLine {
    const ZanDicTraceScope& operation;
    std::string message;
    TraceLevel level = TraceLevel::Error;
};

/// What is wrong, as the handler that found it knows it. Texts are empty where they do not apply.
struct Fault {
    ZanDicDiagnosticCode code;
    ZanDicSeverity severity = ZanDicSeverity::Error;
    ZELVBTXMLNode node = {};              ///< the tag concerned
    ZELVBTXMLAttribute attribute = {};    ///< the attribute concerned: name, value and place
    std::string_view attributeName = {};  ///< when the attribute itself is missing
    std::string element = {};             ///< the element's name; "Class::member" for a member
    std::string otherParty = {};          ///< qualified name
    ZELDbBinary otherUuid = {};
    std::string otherPackage = {};
    int cause = 0;                      ///< number of the fault from which this one follows
    std::string detail = {};            ///< what the reason of the code leaves open
    std::string file = {};              ///< when it is not the document that is being read
    ZanDicPlace place = {};             ///< where there is no tag to point at
    std::vector<FaultLine> lines = {};  ///< none when somebody else wrote them
    /// Whole lines for standard error, written whatever the trace settings.
    std::vector<std::string> errorLines = {};
    /// A warning for the load that fails a document of its own, as an error does.
    bool asksToGoOn = false;
};

/// The document that is being read, as diagnostics name it.
struct FaultDocument {
    std::string file;
    std::string package;
    int firstFailure = 0;  ///< number of the first fault that failed it, or failed what it needs
};

/// Tells faults and knows whether to go on after them. One for a whole load, prerequisites included.
/// One thread.
class FaultReport {
public:
    FaultReport() = default;
    /// Faults of a document that is read beside a load: they are numbered among those of \p load, which
    /// outlives this. Null: there is no load.
    explicit FaultReport(const FaultReport* load) {
        if (load != nullptr) _LastNumber = load->_LastNumber;
    }
    FaultReport(const FaultReport&) = delete;
    FaultReport& operator=(const FaultReport&) = delete;

    /// Says which document is being read from now on; it must live until another is entered.
    void Enter(FaultDocument& document) { _Document = &document; }

    /// Tells the observer and writes the lines. Throws std::bad_alloc instead when memory has run out since
    /// this was made: what looks like a fault may be no more than that. \returns E_FAIL for an error, and for
    /// a warning that fails its document; S_OK for another warning.
    HRESULT Report(const Fault& fault);

    /// Whether anybody would learn of a warning of that line. Asked before a frequent one is made.
    static bool IsWanted(const ZanDicTraceScope& operation, TraceLevel level) {
        return ZanDicGetDiagnosticObserver() != nullptr || operation.On(level);
    }

    /// Tells the observer, if it is thorough, a fault that follows from the one of number \p cause; it has no
    /// lines. \returns E_FAIL.
    HRESULT ReportConsequence(Fault fault, int cause);

    /// Whether there is an observer that is thorough.
    static bool IsThorough() {
        const ZanDicDiagnosticObserver* const observer = ZanDicGetDiagnosticObserver();
        return observer != nullptr && observer->IsThorough();
    }

    /// Number of the last fault that the observer was told; 0 before the first.
    int LastNumber() const { return *_LastNumber; }

    /// Whether an error happened after which nobody asked to go on.
    bool IsStopped() const { return _Stopped; }

    /// Notes a failing \p rc in \p result. \returns whether to go on.
    bool GoesOn(HRESULT rc, HRESULT& result) const {
        if (Succeeded(rc)) return true;
        result = rc;
        return !_Stopped;
    }

private:
    ZELShortageWatch _Shortage;
    FaultDocument* _Document = nullptr;
    int _OwnLastNumber = 0;
    int* _LastNumber = &_OwnLastNumber;  ///< shared with what is read beside
    bool _Stopped = false;
};

/// \returns what is wrong, in one plain sentence without full stop.
std::string PlainReason(const Fault& fault);

#endif
