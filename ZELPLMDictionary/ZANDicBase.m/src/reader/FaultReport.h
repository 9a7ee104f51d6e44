/// The one place that faults of documents go through: each becomes a diagnostic, is told to the observer
/// and is written as trace lines made from the same value.
#ifndef FAULT_REPORT_H
#define FAULT_REPORT_H

#include <string>
#include <string_view>
#include <vector>

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
    std::string detail = {};              ///< what the reason of the code leaves open
    std::string file = {};                ///< when it is not the document that is being read
    ZanDicPlace place = {};               ///< where there is no tag to point at
    std::vector<FaultLine> lines = {};    ///< none when somebody else wrote them
};

/// The document that is being read, as diagnostics name it.
struct FaultDocument {
    std::string file;
    std::string package;
};

/// Tells faults and knows whether to go on after them. One for a whole load, prerequisites included.
/// One thread.
class FaultReport {
public:
    /// Says which document is being read from now on; it must live until another is entered.
    void Enter(const FaultDocument& document) { _Document = &document; }

    /// Tells the observer and writes the lines. \returns E_FAIL for an error, S_OK for a warning.
    HRESULT Report(const Fault& fault);

    /// Whether anybody would learn of a warning of that line. Asked before a frequent one is made.
    static bool IsWanted(const ZanDicTraceScope& operation, TraceLevel level) {
        return ZanDicGetDiagnosticObserver() != nullptr || operation.On(level);
    }

    /// Whether an error happened after which nobody asked to go on.
    bool IsStopped() const { return _Stopped; }

    /// Notes a failing \p rc in \p result. \returns whether to go on.
    bool GoesOn(HRESULT rc, HRESULT& result) const {
        if (Succeeded(rc)) return true;
        result = rc;
        return !_Stopped;
    }

private:
    const FaultDocument* _Document = nullptr;
    bool _Stopped = false;
};

/// \returns what is wrong, in one plain sentence without full stop.
std::string PlainReason(const Fault& fault);

#endif
