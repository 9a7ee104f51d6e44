/// The element that is being written, for the rows that write its attributes.
#ifndef XML_NODE_H
#define XML_NODE_H

#include <string>
#include <string_view>

#include "OXMDicTypes.h"
#include "UuidCharacters.h"
#include "WriterTexts.h"
#include "XmlFragment.h"
#include "ZELDbBinary.h"
#include "ZELString.h"
#include "ZELVBTXMLWriter.h"
#include "ZanDicStored.h"
#include "ZanDicTrace.h"

/// Adds attributes to the element just begun and words the warnings about them. Lives for one element.
class XmlNode {
public:
    /// Begins the element. \param tag static storage. \param scratch reused by all nodes of a document.
    XmlNode(ZELVBTXMLWriter& document, std::string& scratch, const ZanDicTraceScope& trace,
            std::string_view tag, const ZELString& name);

    /// Adds a text, escaped; warns when characters of it had to be replaced.
    void Text(std::string_view word, std::string_view value);
    /// Adds a word of the vocabulary; nothing when it is empty.
    void Word(std::string_view word, std::string_view value) {
        if (!value.empty()) _Document.PlainAttribute(word, value);
    }
    void Flag(std::string_view word, unsigned char flag);
    void Number(std::string_view word, int number);
    /// Adds the text of a UUID; nothing when it has no bytes.
    void Uuid(std::string_view word, const ZELDbBinary& uuid);

    /// Collects the items of a list attribute; List adds the attribute unless there was none.
    void BeginList() { _Scratch.clear(); }
    void ListItem(std::string_view item) {
        if (!_Scratch.empty()) _Scratch += ' ';
        _Scratch += item;
    }
    void ListItem(const ZELDbBinary& uuid);
    void List(std::string_view word) {
        if (!_Scratch.empty()) Text(word, _Scratch);
    }

    /// Writes one warning line for each link of that name that \p element has lost.
    void WarnLost(const IUnknown& element, ZanDicObj::LinkName link, std::string_view word,
                  std::string_view reason = writer::kLostLink);
    /// Writes a warning line about an attribute. \param more may be empty.
    void Warn(std::string_view word, std::string_view reason, std::string_view more = {});

    // The same for attributes whose names are known when the program is compiled: cheaper.

    template <const std::string_view& word>
    void Text(std::string_view value) {
        const long replacedBefore = _Document.Replaced();
        Put(kAttributeBegin<word>);
        _Document.EndValue(value);
        if (_Document.Replaced() != replacedBefore) [[unlikely]]
            WarnReplaced(word);
    }
    /// Nothing for a code without word.
    template <const std::string_view& word, const auto& Words>
    void Code(int code) {
        if (code >= 0 && code < fragment::kMostCodes) {
            Put(kAttributeOfCode<word, Words>[static_cast<std::size_t>(code)]);
        }
    }
    template <const std::string_view& word>
    void Flag(bool flag) {
        Put(kAttributeOfFlag<word>[flag ? 1 : 0]);
    }
    template <const std::string_view& word>
    void Uuid(const ZELDbBinary& uuid) {
        if (uuid.IsEmpty()) return;
        Put(kAttributeBegin<word>);
        UuidCharacters characters(uuid.Data());
        characters.text[UuidCharacters::kLength] = '"';
        _Document.Ready(characters.text, UuidCharacters::kLength + 1);
    }

    /// Writes \p count warning lines about links that were lost.
    void WarnLost(int count, std::string_view word) {
        for (; count > 0; --count) Warn(word, writer::kLostLink);
    }

    std::string_view Tag() const { return _Tag; }
    const ZanDicTraceScope& Trace() const { return _Trace; }
    ZELVBTXMLWriter& Document() { return _Document; }

    /// Whether what types a simple attribute is a primitive.
    bool hasPrimitive = false;

private:
    template <std::size_t capacity>
    void Put(const XmlFragment<capacity>& piece) {
        _Document.Ready(piece.text, piece.size);
    }
    void WarnReplaced(std::string_view word);

    ZELVBTXMLWriter& _Document;
    std::string& _Scratch;
    const ZanDicTraceScope& _Trace;
    std::string_view _Tag;
    const ZELString& _Name;
};

#endif
