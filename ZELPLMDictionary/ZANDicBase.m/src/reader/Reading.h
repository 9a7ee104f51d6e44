/// What the passes over one document share, and what the first notes for the others.
#ifndef READING_H
#define READING_H

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "FaultReport.h"
#include "OXMIDicExtension.h"
#include "OXMIDicMgr.h"
#include "OXMIDicPackage.h"
#include "OXMIDicPrimitive.h"
#include "TextCache.h"
#include "ZELDbBinary.h"
#include "ZELVBTXMLNode.h"
#include "ZanDicHold.h"
#include "ZanDicRef.h"

/// \returns "Package::Class::attribute" as far as the object has these.
std::string QualifiedName(OXMIDicElementH& object);

/// Makes \p object the other party of a fault.
void SetOther(Fault& fault, OXMIDicElementH& object);

struct UuidHash {
    std::size_t operator()(const ZELDbBinary& uuid) const { return uuid.ComputeHashKey(); }
};

/// The UUIDs that a load which goes on after faults could not give to an element, each with the number of the
/// fault. References to them follow from that. One for a whole load, prerequisites included.
class LeftOut {
public:
    void Add(const ZELDbBinary& uuid, int cause) { _UUIDS.try_emplace(uuid, cause); }

    /// Adds the UUIDs of a tag and of all tags inside it.
    void AddAll(const ZELVBTXMLNode& node, int cause);

    bool Has(const ZELDbBinary& uuid) const { return !_UUIDS.empty() && _UUIDS.contains(uuid); }

    /// \returns the number of the fault for which the UUID is left out; 0 when it is not.
    int CauseOf(const ZELDbBinary& uuid) const {
        if (_UUIDS.empty()) return 0;
        const auto found = _UUIDS.find(uuid);
        return found != _UUIDS.end() ? found->second : 0;
    }

private:
    std::unordered_map<ZELDbBinary, int, UuidHash> _UUIDS;
};

/// The reference attributes of one tag, by number in the document: what the second pass resolves.
class ReferenceNotes {
public:
    static constexpr std::uint32_t kNone = 0xFFFFFFFF;
    static constexpr std::size_t kSlots = 4;

    /// Notes an attribute; the first of a name counts.
    void Note(std::size_t slot, const ZELVBTXMLAttribute& attribute) {
        if (_INDEXES[slot] == kNone) _INDEXES[slot] = attribute.Index();
    }

    ZELVBTXMLAttribute At(std::size_t slot, const ZELVBTXMLDocument& document) const {
        return _INDEXES[slot] == kNone ? ZELVBTXMLAttribute() : document.AttributeAt(_INDEXES[slot]);
    }

    bool HasAny() const { return *this != ReferenceNotes(); }

    bool operator==(const ReferenceNotes&) const = default;

private:
    std::array<std::uint32_t, kSlots> _INDEXES{kNone, kNone, kNone, kNone};
};

/// The slots of ReferenceNotes by tag.
namespace slot {
inline constexpr std::size_t kTarget = 0;  ///< Simple, Relationship, Inverse
inline constexpr std::size_t kCategories = 1;
inline constexpr std::size_t kScopes = 2;     ///< Relationship
inline constexpr std::size_t kInverseOf = 3;  ///< Inverse
inline constexpr std::size_t kUniques = 0;    ///< Unique
inline constexpr std::size_t kSuper = 0;      ///< Class, Instance, Extension
inline constexpr std::size_t kReference = 1;
inline constexpr std::size_t kCommands = 2;
inline constexpr std::size_t kExtended = 3;  ///< Extension
}  // namespace slot

/// A member of a class that has references.
struct MemberNote {
    ZanDicHold member;
    OXMDicTYPE type;
    std::uint32_t node;
    ReferenceNotes references;
    std::uint32_t key;  ///< of the UUID in the first slot, where it is one
};

/// An object of a mapping: a root, a component or a path expression. An object is followed by what is inside.
struct RBONote {
    OXMDicTYPE type;
    std::uint32_t node;
    std::size_t end = 0;                    ///< place of the first note that is not inside
    ZanDicRef<OXMIDicElement> object = {};  ///< as the interface of its type; null when it was not made
    ZELVBTXMLAttribute reference = {};      ///< the one reference that it may have
};

/// A child of the package that later passes meet again.
struct ElementNote {
    std::uint32_t node;
    OXMDicTYPE type = OXMDicTYPE_UNDEFINED;  ///< of a tag that nothing is made of: undefined
    ZanDicRef<OXMIDicElement> element = ZanDicRef<OXMIDicElement>();  ///< as the interface of its type
    ReferenceNotes references = {};
    std::size_t firstMember = 0;  ///< in the notes of members, or of objects when it is a mapping
    std::size_t endMember = 0;
    ZELVBTXMLAttribute reference = {};  ///< of a mapping: the class that it applies to
    bool hasRelationships = false;      ///< it is to be checked once its super class is known

    /// The element as the interface of its type.
    template <class Face>
    Face& As() const {
        return static_cast<Face&>(*element);
    }
};

/// What is left of an extension's scopes once one of them was not extensible yet.
struct PutOffScopes {
    std::uint32_t node;
    OXMIDicExtension* extension;  ///< held by the element's note
    ZELVBTXMLAttribute attribute;
    std::size_t firstItem;  ///< number of items before the first that is left
};

/// The state of the passes over one document.
struct Reading {
    Reading(OXMIDicMgr& theManager, FaultReport& theFaults, LeftOut& theLeftOut, LeftOut& theUntargeted,
            const ZELVBTXMLDocument& theDocument)
        : manager(theManager),
          faults(theFaults),
          leftOut(theLeftOut),
          untargeted(theUntargeted),
          document(theDocument) {}

    /// \returns the name of a tag's element as diagnostics give it: behind those of its owners. Of a deep
    /// nest the middle is left out.
    std::string ElementName(const ZELVBTXMLNode& node) const;

    /// \returns the manager's primitive of that kind; null when it has none.
    OXMIDicPrimitive* Primitive(int kind);

    /// \returns the number of the fault for which a UUID is not there; 0 when nothing is known of it.
    int CauseOf(const ZELDbBinary& uuid) const {
        const int cause = leftOut.CauseOf(uuid);
        return cause != 0 ? cause : unknownCause;
    }

    /// Whether the package would find \p object if it were loaded alone: in itself, or in what it uses,
    /// directly or through others. What is in no package counts as found.
    bool Reaches(OXMIDicElementH& object);

    OXMIDicMgr& manager;
    FaultReport& faults;
    LeftOut& leftOut;
    LeftOut& untargeted;  ///< attributes whose target was at fault, of all packages
    const ZELVBTXMLDocument& document;
    ZanDicRef<OXMIDicPackage> package;  ///< the one that this load made; null before
    std::vector<std::string_view>
        owners;  ///< names of the elements inside which is read, the outermost first
    TextCache texts;
    ReferenceNotes references;           ///< of the tag that is being filled
    ZELVBTXMLAttribute persistent;       ///< of the class that is being filled
    ZELVBTXMLAttribute storedReference;  ///< of the RBO object that is being filled
    std::vector<ElementNote> elements;
    std::vector<MemberNote> members;
    std::vector<RBONote> objects;      ///< of all mappings
    std::vector<PutOffScopes> putOff;  ///< in the order of the document
    /// Number of the fault for which it is not known what a package that this one needs has: whatever a
    /// reference does not find follows from that. 0: none.
    int unknownCause = 0;
    bool isThorough = false;  ///< an observer wants to know all

private:
    void note_Reach();

    std::array<ZanDicRef<OXMIDicPrimitive>, 10> _PRIMITIVES;  ///< by kind
    std::unordered_set<ZELDbBinary, UuidHash> _REACH;         ///< packages; found when first asked for
};

/// \returns the value of the first `Name`; empty when there is none.
std::string_view NameOf(const ZELVBTXMLNode& node);

/// Sets the type of an attribute or parameter to a primitive. \returns the setter's result; E_FAIL when there
/// is no such primitive.
template <class Element>
HRESULT SetPrimitiveType(Reading& reading, Element& element, int kind) {
    OXMIDicPrimitive* const primitive = reading.Primitive(kind);
    return primitive != nullptr ? element.SetType(primitive) : E_FAIL;
}

/// A fault of a tag.
Fault FaultOf(const Reading& reading, ZanDicDiagnosticCode code, const ZELVBTXMLNode& node);

/// Leaves out the element of a tag, with all that is inside, for the fault told last.
void LeaveOut(Reading& reading, const ZELVBTXMLNode& node);

/// The answer of a factory that failed, as a fault: what it handed out tells whether the UUID is taken.
/// \param namesake who has the name already; null when nobody has.
/// \param message the line for an element that was not made; an element that was made and not
/// registered has its lines from the registry.
HRESULT ReportNotCreated(Reading& reading, const ZanDicTraceScope& trace, const ZELVBTXMLNode& node,
                         bool isHandedOut, OXMIDicElementH* namesake, std::string message);

#endif
