#include "XmlNode.h"

#include <charconv>

#include "WriterTexts.h"
#include "ZANDicWords.h"

XmlNode::XmlNode(ZELVBTXMLWriter& document, std::string& scratch, const ZanDicTraceScope& trace,
                 std::string_view tag, const ZELString& name)
    : _Document(document), _Scratch(scratch), _Trace(trace), _Tag(tag), _Name(name) {
    _Document.Begin(tag);
}

void XmlNode::Text(std::string_view word, std::string_view value) {
    const long replacedBefore = _Document.Replaced();
    _Document.Attribute(word, value);
    if (_Document.Replaced() != replacedBefore) WarnReplaced(word);
}

void XmlNode::WarnReplaced(std::string_view word) { Warn(word, writer::kReplaced); }

void XmlNode::Flag(std::string_view word, unsigned char flag) {
    _Document.PlainAttribute(word, flag == 1 ? ZANDicFormat::value::kYes : ZANDicFormat::value::kNo);
}

void XmlNode::Number(std::string_view word, int number) {
    char digits[12];
    const char* const end = std::to_chars(digits, digits + sizeof digits, number).ptr;
    _Document.PlainAttribute(word, {digits, static_cast<std::size_t>(end - digits)});
}

void XmlNode::Uuid(std::string_view word, const ZELDbBinary& uuid) {
    if (!uuid.IsEmpty()) _Document.PlainAttribute(word, UuidCharacters(uuid.Data()).View());
}

void XmlNode::ListItem(const ZELDbBinary& uuid) {
    if (!uuid.IsEmpty()) ListItem(UuidCharacters(uuid.Data()).View());
}

void XmlNode::WarnLost(const IUnknown& element, ZanDicObj::LinkName link, std::string_view word,
                       std::string_view reason) {
    for (int count = LostLinksOf(element, link); count > 0; --count) Warn(word, reason);
}

void XmlNode::Warn(std::string_view word, std::string_view reason, std::string_view more) {
    if (auto line = _Trace.Warning()) {
        line << writer::kWarning << _Tag << " " << _Name << writer::kAttribute << word << reason << more;
    }
}
