/// Names of the members that do not know their owner: unique keys, enumerators, methods, parameters and
/// what lies below a mapping.
#ifndef ZANDIC_TOOL_MEMBER_NAMES_H
#define ZANDIC_TOOL_MEMBER_NAMES_H

#include <cstddef>
#include <string>
#include <unordered_map>
#include <vector>

#include "OXMIDicRBOMapping.h"
#include "ZELDbBinary.h"
#include "zandic.hpp"

namespace tool {

/// Every such member of the loaded packages with its owner, found by walking them once. It holds names and
/// UUIDs only, and knows of what was loaded when it was made.
class MemberNames {
public:
    explicit MemberNames(const zandic::Dictionary& dictionary);

    /// Appends the name that runs through all owners, "Package::Mapping::Root::Component".
    /// \returns whether \p uuid is that of a member.
    bool AppendName(const ZELDbBinary& uuid, std::string& name) const;

    /// \returns the UUID of the owner; empty for what is no member.
    ZELDbBinary OwnerOf(const ZELDbBinary& uuid) const;

private:
    static constexpr std::size_t kNone = static_cast<std::size_t>(-1);
    struct Entry {
        ZELString name;
        ZELDbBinary uuid;
        std::size_t owner;  ///< index of its entry; kNone for a package
    };
    struct Hash {
        std::size_t operator()(const ZELDbBinary& uuid) const { return uuid.ComputeHashKey(); }
    };

    std::size_t Add(OXMIDicElementH& object, std::size_t owner);
    template <class Object, class Getter>
    void AddAll(Object& object, Getter getter, std::size_t owner);
    void AddMembers(OXMIDicElement& element, std::size_t owner);
    void AddMapping(OXMIDicRBOMapping& mapping, std::size_t owner);

    std::vector<Entry> _ENTRIES;
    std::unordered_map<ZELDbBinary, std::size_t, Hash> _PLACES;  ///< of members, by UUID
};

/// \returns the names of the process, made when they are asked for first: once everything is loaded.
const MemberNames& Members();

/// Lets the names be made anew when they are asked for next: something else is loaded now.
void ForgetMembers();

}  // namespace tool

#endif
