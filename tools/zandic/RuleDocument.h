/// What the rules share: the document that they look at, who owns what in it, what its references mean, and
/// how a finding gets its place and its name.
#ifndef ZANDIC_TOOL_RULE_DOCUMENT_H
#define ZANDIC_TOOL_RULE_DOCUMENT_H

#include <cstdint>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "DocumentRules.h"
#include "OXMIDicElement.h"

namespace tool {

/// What a reference points at. Cheap to copy.
struct Party {
    ZELDbBinary uuid;
    ZELVBTXMLNode node;                      ///< its tag, in this document or in one that did not load
    zandic::Handle<OXMIDicElementH> object;  ///< of a loaded package; null when there is a node
    const std::string* package = nullptr;    ///< of another document; null for this one's
    const DocumentPlaces* places = nullptr;  ///< of the node when it is of another document

    /// Whether anything was found.
    explicit operator bool() const { return node || object; }
    bool IsHere() const { return package == nullptr; }
};

/// One document under the rules. Made for one pass over it; the checked document outlives it. One thread.
class RuleDocument {
public:
    RuleDocument(const CheckedDocument& checked, Findings& findings);

    const CheckedDocument& Checked() const { return _Checked; }
    const ZELVBTXMLDocument& Document() const { return _Checked.places.Document(); }

    /// The tag Package; no element when the document has none.
    const ZELVBTXMLNode& Package() const { return _Package; }
    std::string_view PackageName() const { return _PackageName; }

    // Who owns what.

    /// Says in which element another stands. Said of every element that a rule may name, owners first.
    void SetOwner(std::uint32_t element, std::uint32_t owner) { _OWNERS[element] = owner; }
    ZELVBTXMLNode Owner(const ZELVBTXMLNode& node) const {
        return Document().ElementAt(_OWNERS[node.Index()]);
    }

    /// \returns "Class::attribute": names from the package on, without it; the package's name for itself.
    std::string Name(const ZELVBTXMLNode& node) const;

    /// \returns "Package::Class::attribute".
    std::string QualifiedName(const ZELVBTXMLNode& node) const;

    // What the reader says of it.

    /// Whether the reader left out the element, or one that it is inside of, after a fault.
    bool IsLeftOut(const ZELVBTXMLNode& node) const;

    /// Whether the reader has told something of the attribute; then the rules say no more of its value.
    bool IsTold(const ZELVBTXMLAttribute& attribute) const;

    // What references mean.

    /// \returns what the UUID means: an element of this document, of a loaded package, or of the document
    /// of a package that this one names and that did not load.
    Party Find(const ZELDbBinary& uuid);
    Party Find(std::string_view uuidText);

    std::string NameOf(const Party& party) const;
    std::string QualifiedNameOf(const Party& party) const;
    /// The tag that makes such an object.
    std::string_view TagOf(const Party& party) const;

    // Findings.

    /// Adds a finding at the "<" of a tag, or at the name of an attribute of it.
    /// \returns the finding, valid until the next; null when the reader left out the element.
    Finding* Tell(std::string_view code, const ZELVBTXMLNode& node, std::string text);
    Finding* Tell(std::string_view code, const ZELVBTXMLNode& node, const ZELVBTXMLAttribute& attribute,
                  std::string text);

    /// Adds a note to a finding, which may be null.
    void Note(Finding* finding, const Party& party, std::string text) const;
    void Note(Finding* finding, const ZELVBTXMLNode& node, std::string text) const;
    void Note(Finding* finding, const ZELVBTXMLAttribute& attribute, std::string text) const;

private:
    struct UuidHash {
        std::size_t operator()(const ZELDbBinary& uuid) const { return uuid.ComputeHashKey(); }
    };
    /// A place that the reader spoke of, in order of places.
    struct Told {
        ZanDicPlace place;
        bool isError;
        std::string_view code;
    };

    Finding* add(std::string_view code, const ZELVBTXMLNode& node, ZanDicPlace place, std::string text);
    Party find_Elsewhere(const ZELDbBinary& uuid);
    void note_Unloaded();
    bool is_LeftOut(const ZELVBTXMLNode& node) const;
    template <class Accept>
    bool is_Told(ZanDicPlace place, Accept accept) const;

    const CheckedDocument& _Checked;
    Findings& _Findings;
    ZELVBTXMLNode _Package;
    std::string _PackageName;
    std::vector<std::uint32_t> _OWNERS;  ///< by element
    std::vector<Told> _TOLD;
    std::set<std::string, std::less<>> _PACKAGES;                 ///< names that parties point to
    std::unordered_map<ZELDbBinary, Party, UuidHash> _ELSEWHERE;  ///< what was found outside
    std::vector<std::pair<const std::string*, const DocumentPlaces*>> _UNLOADED;
};

/// \returns the tag Package of a document: its root, or the root's first child that is one; else none.
ZELVBTXMLNode FindPackageTag(const ZELVBTXMLDocument& document);

/// \returns the attribute `Name` of a tag; empty when there is none.
std::string_view NameAttribute(const ZELVBTXMLNode& node);

/// \returns the name of the package in an item of `UseNames`, which may have a content word behind it.
std::string_view BeforeDot(std::string_view item);

/// \returns the name under which the package in a file is asked for.
std::string_view StemOf(std::string_view file);

/// \returns a text in double quotes.
std::string Quoted(std::string_view text);

/// Calls \p visit(item) for each item of a list of names or UUIDs.
template <class Visit>
void ForEachItem(std::string_view list, Visit&& visit) {
    while (true) {
        const std::size_t begin = list.find_first_not_of(' ');
        if (begin == std::string_view::npos) return;
        const std::size_t end = std::min(list.find(' ', begin), list.size());
        visit(list.substr(begin, end - begin));
        list.remove_prefix(end);
    }
}

}  // namespace tool

#endif
