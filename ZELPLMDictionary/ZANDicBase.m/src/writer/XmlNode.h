/// The element that is being written, for the rows that write its attributes.
#ifndef XML_NODE_H
#define XML_NODE_H

#include <optional>
#include <string>
#include <string_view>

#include "OXMDicTypes.h"
#include "WriterTexts.h"
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

    /// \returns the number that the attribute behind \p element, which is that of the node, stores.
    int Stored(const IUnknown& element, StoredMode mode) {
        if (!_Stored) _Stored.emplace(element);
        return _Stored->Mode(mode);
    }

    std::string_view Tag() const { return _Tag; }
    const ZanDicTraceScope& Trace() const { return _Trace; }
    ZELVBTXMLWriter& Document() { return _Document; }

    /// The primitive that types a simple attribute, noted by the row that writes the type.
    OXMDicPRIMITIVEType primitive = OXMDicPRIMITIVEType_UNDEFINED;
    /// Whether what types a simple attribute is a primitive.
    bool hasPrimitive = false;

private:
    ZELVBTXMLWriter& _Document;
    std::string& _Scratch;
    const ZanDicTraceScope& _Trace;
    std::string_view _Tag;
    const ZELString& _Name;
    std::optional<StoredAttribute> _Stored;  ///< known once it was asked for
};

#endif
