#include "FillWords.h"

using namespace ZANDicFormat;

namespace fill {

std::string Assignment(const Given& given) { return Joined({given.attribute.Name(), "=", given.Value()}); }

void Warn(ZanDicDiagnosticCode code, const Given& given, TraceLevel level, std::string_view message,
          std::string_view detail) {
    if (!FaultReport::IsWanted(given.trace, level)) return;
    Fault fault = FaultOf(given.reading, code, given.node);
    fault.severity = ZanDicSeverity::Warning;
    fault.attribute = given.attribute;
    fault.detail = detail;
    fault.lines.push_back({given.trace, Joined({message, Assignment(given)}), level});
    given.reading.faults.Report(fault);
}

void WarnOfRepeat(const Given& given, bool isReference) {
    const std::string_view name = given.attribute.Name();
    Fault fault = FaultOf(given.reading, ZanDicDiagnosticCode::RepeatedAttribute, given.node);
    fault.severity = ZanDicSeverity::Warning;
    fault.attribute = given.attribute;
    fault.lines.push_back({given.trace, isReference ? Joined({name, text::kReferencedTwice})
                                                    : Joined({text::kRepeated, name, text::kOverriding})});
    given.reading.faults.Report(fault);
}

HRESULT ReportMissing(Reading& reading, const ZanDicTraceScope& trace, const ZELVBTXMLNode& node,
                      std::string_view attribute) {
    Fault fault = FaultOf(reading, ZanDicDiagnosticCode::MissingAttribute, node);
    fault.attributeName = attribute;
    std::string message = Joined({text::kCouldNotFindAttribute, attribute, text::kFor, node.getTag()});
    if (const std::string_view name = NameOf(node); !name.empty()) message += Joined({" ", name});
    fault.lines.push_back({trace, std::move(message)});
    return reading.faults.Report(fault);
}

HRESULT CheckIdentity(Reading& reading, const ZanDicTraceScope& trace, const ZELVBTXMLNode& node) {
    HRESULT result = S_OK;
    if (NameOf(node).empty() &&
        !reading.faults.GoesOn(ReportMissing(reading, trace, node, word::kName), result)) {
        return result;
    }
    if (!node.getAttribute(word::kUuid)) {
        reading.faults.GoesOn(ReportMissing(reading, trace, node, word::kUuid), result);
    }
    if (Failed(result)) LeaveOut(reading, node);
    return result;
}

void ReportUnknownTag(Reading& reading, const ZanDicTraceScope& trace, const ZELVBTXMLNode& node,
                      std::string_view message) {
    Fault fault = FaultOf(reading, ZanDicDiagnosticCode::UnknownTag, node);
    fault.severity = ZanDicSeverity::Warning;
    fault.lines.push_back({trace, Joined({message, node.getTag(), "[", NameOf(node), text::kSkippingTag})});
    reading.faults.Report(fault);
}

}  // namespace fill
