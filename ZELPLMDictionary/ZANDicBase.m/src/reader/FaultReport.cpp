#include "FaultReport.h"

#include <algorithm>
#include <iterator>

#include "ZELLineSink.h"

namespace {

/// The plain sentence of each code; a word in braces stands for a part of the fault.
struct ReasonRow {
    ZanDicDiagnosticCode code;
    std::string_view pattern;
};

using enum ZanDicDiagnosticCode;

/// The element in quotes, with a blank in front; nothing of one without a name.
constexpr std::string_view kNamed = "named";

constexpr ReasonRow kReasons[] = {
    {FileNotFound, "there is no document {detail}"},
    {InvalidFileExtension, "\"{detail}\" is no content word"},
    {InvalidPackageName, "\"{detail}\" cannot be the name of a package"},
    {DocumentNotReadable, "{detail}"},
    {NoPackageTag, "there is no Package element"},
    {PackageNameDiffers, "the document names its package \"{value}\", not \"{detail}\" as its file does"},
    {InvalidDomain, "\"{value}\" is no domain"},
    {PrerequisiteFailed, "package \"{detail}\" of {attribute} is not loaded"},
    {PackageNotCreated, "package \"{element}\" could not be created"},
    {TuningFailed, "{detail}"},
    {MissingAttribute, "attribute {attribute} of {tag}{named} is missing"},
    {InvalidValue, "\"{value}\" is no valid value of {attribute}"},
    {InvalidNumber, "\"{value}\" is no proper number; {detail}"},
    {UnknownWord, "\"{value}\" is no word of {attribute}; {detail}"},
    {UnknownAttribute, "{tag} has no attribute {attribute}; it is kept as a free attribute"},
    {UnknownTag, "tag {tag}{named} is unknown here and skipped"},
    {DeprecatedTag, "tag {tag}{named} is not supported any more"},
    {UnsupportedTag, "tag {tag}{named} is not supported"},
    {RepeatedAttribute,
     "attribute {attribute} of {tag} \"{element}\" is given more than once; the last one counts"},
    {NotCreated, "{tag}{named} could not be created"},
    {DuplicateName, "the name of {tag} \"{element}\" is taken already"},
    {DuplicateUuid, "UUID {value} of {tag} \"{element}\" belongs to {other} already"},
    {ReferenceNotFound, "{attribute} of \"{element}\": no object has the UUID {detail}"},
    {ReferenceOfWrongKind, "{attribute} of \"{element}\": {other} is no {detail}"},
    {CrossDomainReference, "{attribute} of \"{element}\": {other} is in another domain"},
    {ReferenceRefused, "{attribute} of \"{element}\": {other} is refused: {detail}"},
    {InvalidRedefinition, "\"{element}\" does not redefine what it inherits: {detail}"},
    {InvalidBlock, "attribute blocks of \"{element}\": {detail}"},
};
static_assert(std::size(kReasons) == kZanDicDiagnosticCodeCount);

std::string_view AttributeName(const Fault& fault) {
    return fault.attribute ? fault.attribute.Name() : fault.attributeName;
}

std::string_view AttributeValue(const Fault& fault) {
    return fault.attribute ? fault.attribute.Value() : std::string_view();
}

std::string_view TagName(const Fault& fault) { return fault.node ? fault.node.getTag() : std::string_view(); }

std::string_view PartOf(const Fault& fault, std::string_view part) {
    if (part == "tag") return TagName(fault);
    if (part == "element") return fault.element;
    if (part == "attribute") return AttributeName(fault);
    if (part == "value") return AttributeValue(fault);
    if (part == "other") return fault.otherParty;
    return fault.detail;
}

/// The whole line as it is written: a message that begins with a dash brings its own separator.
std::string WholeLine(const FaultLine& line) {
    std::string text(line.operation.Operation());
    if (!line.message.starts_with('-')) text += "- ";
    text += line.message;
    text += '.';
    return text;
}

/// A fault as the observer sees it.
class ReportedFault final : public ZanDicDiagnostic {
public:
    ReportedFault(const Fault& fault, const FaultDocument* document, int number)
        : _Fault(fault), _Document(document), _Number(number), _Reason(PlainReason(fault)) {
        for (const FaultLine& line : fault.lines) {
            if (!_TraceText.empty()) _TraceText += '\n';
            _TraceText += WholeLine(line);
        }
        for (const std::string& line : fault.errorLines) {
            if (!_TraceText.empty()) _TraceText += '\n';
            _TraceText += line;
        }
    }

    ZanDicSeverity Severity() const override { return _Fault.severity; }
    ZanDicDiagnosticCode Code() const override { return _Fault.code; }
    std::string_view File() const override {
        if (!_Fault.file.empty() || _Document == nullptr) return _Fault.file;
        return _Document->file;
    }
    std::string_view Package() const override {
        return _Document != nullptr ? std::string_view(_Document->package) : std::string_view();
    }
    std::string_view Tag() const override { return TagName(_Fault); }
    std::string_view Element() const override { return _Fault.element; }
    std::string_view Attribute() const override { return AttributeName(_Fault); }
    std::string_view Value() const override { return AttributeValue(_Fault); }
    std::string_view Reason() const override { return _Reason; }
    std::string_view OtherParty() const override { return _Fault.otherParty; }
    std::string_view TraceText() const override { return _TraceText; }
    bool Traced() const override {
        if (!_Fault.errorLines.empty()) return true;
        return std::any_of(_Fault.lines.begin(), _Fault.lines.end(),
                           [](const FaultLine& line) { return line.operation.On(line.level); });
    }
    ZanDicPlace Place() const override {
        if (!_Fault.attribute && !_Fault.node) return _Fault.place;
        const ZELVBTXMLPosition position =
            _Fault.attribute ? _Fault.attribute.Position() : _Fault.node.Position();
        return {position.line, position.column};
    }
    ZELDbBinary OtherUuid() const override { return _Fault.otherUuid; }
    std::string_view OtherPackage() const override { return _Fault.otherPackage; }
    int Number() const override { return _Number; }
    int Cause() const override { return _Fault.cause; }

private:
    const Fault& _Fault;
    const FaultDocument* _Document;
    int _Number;
    std::string _Reason;
    std::string _TraceText;
};

}  // namespace

std::string PlainReason(const Fault& fault) {
    std::string_view pattern = kReasons[static_cast<std::size_t>(fault.code)].pattern;
    std::string reason;
    for (std::size_t open = pattern.find('{'); open != std::string_view::npos; open = pattern.find('{')) {
        const std::size_t close = pattern.find('}', open);
        reason += pattern.substr(0, open);
        const std::string_view part = pattern.substr(open + 1, close - open - 1);
        if (part != kNamed) {
            reason += PartOf(fault, part);
        } else if (!fault.element.empty()) {
            reason.append(" \"").append(fault.element).append("\"");
        }
        pattern.remove_prefix(close + 1);
    }
    reason += pattern;
    return reason;
}

HRESULT FaultReport::Report(const Fault& fault) {
    _Shortage.Check();
    const bool isError = fault.severity == ZanDicSeverity::Error;
    const bool isFailure = isError || fault.asksToGoOn;
    bool goesOn = false;
    if (ZanDicDiagnosticObserver* const observer = ZanDicGetDiagnosticObserver(); observer != nullptr) {
        goesOn = observer->OnDiagnostic(ReportedFault(fault, _Document, ++*_LastNumber));
        if (isFailure && _Document != nullptr && _Document->firstFailure == 0) {
            _Document->firstFailure = fault.cause != 0 ? fault.cause : LastNumber();
        }
    }
    const ZELLineSeverity severity = isError ? ZELLineSeverity::Error : ZELLineSeverity::Warning;
    for (const FaultLine& line : fault.lines) {
        if (!line.operation.On(line.level)) continue;
        ZELWriteLine({WholeLine(line), ZELLineStream::Output, severity, true});
    }
    for (const std::string& line : fault.errorLines) ZanDicWriteError(line);
    if (!isFailure) return S_OK;
    if (!goesOn) _Stopped = true;
    return E_FAIL;
}

HRESULT FaultReport::ReportConsequence(Fault fault, int cause) {
    if (!IsThorough()) return E_FAIL;
    fault.cause = cause;
    return Report(fault);
}
