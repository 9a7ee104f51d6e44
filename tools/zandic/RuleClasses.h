/// The rules about how classes are related: inverses that only one side knows, and what cycles are looked for
/// in.
#ifndef ZANDIC_TOOL_RULE_CLASSES_H
#define ZANDIC_TOOL_RULE_CLASSES_H

#include <cstdint>
#include <string>
#include <vector>

#include "RuleElement.h"

namespace tool {

/// Gathers classes and their relationships, then looks at them as a whole. All is linear in what was
/// gathered, and nothing recurs: chains are as deep as the document says.
class ClassRules {
public:
    explicit ClassRules(RuleDocument& document)
        : _Document(document), _CLASS_OF(document.Document().ElementCount(), kNone) {}

    void AddClass(const RuleElement& element);

    /// Adds a relationship or an inverse of the class that was added last.
    void AddMember(const RuleElement& element);

    void Finish();

private:
    static constexpr std::uint32_t kNone = 0xFFFFFFFF;

    struct Class {
        std::uint32_t element;
        std::uint32_t
            superElement;  ///< the tag of the super class in this document; kNone: elsewhere, or none
        Party superElsewhere;
        std::uint32_t super;  ///< number of the super class; kNone: none here
        std::uint32_t firstMember;
        bool isExtension;
        std::uint32_t root = kNone;  ///< the top of its super classes in this document
        std::uint32_t begin = 0;     ///< itself and its heirs in a walk over the hierarchy; 0: in a ring
        std::uint32_t end = 0;
    };

    struct Member {
        std::uint32_t element;
        std::uint32_t owner;          ///< number of its class
        std::uint32_t targetElement;  ///< of a target in this document; else kNone
        std::uint32_t outward;        ///< of a needed target elsewhere: number; else kNone
        bool isMandatory;             ///< and needs an object of the target
    };

    struct Inverse {
        ZELVBTXMLNode node;
        Party target;
        Party relationship;
        ZELVBTXMLAttribute targetRef;
        ZELVBTXMLAttribute inverseOf;
    };

    std::uint32_t class_At(std::uint32_t element) const {
        return element != kNone ? _CLASS_OF[element] : kNone;
    }
    std::uint32_t end_OfMembers(std::uint32_t classNumber) const;

    void number_Hierarchy();
    void drop_Redefined();

    void check_Inverse(const Inverse& inverse);
    bool are_Related(const Party& first, const Party& second) const;
    bool are_RelatedHere(std::uint32_t first, std::uint32_t second) const;
    Party owner_Of(const Party& member);
    Party target_Of(const Party& relationship);

    Party here(std::uint32_t element) const;
    void check_Cycles();

    RuleDocument& _Document;
    std::vector<std::uint32_t> _CLASS_OF;  ///< number of the class by element
    std::vector<Class> _CLASSES;
    std::vector<Member> _MEMBERS;  ///< relationships, by class
    std::vector<Party> _OUTWARD;   ///< classes elsewhere that relationships here need
    std::vector<Inverse> _INVERSES;
    std::vector<std::uint32_t> _WALK;  ///< numbers of classes, heirs behind their super class
};

}  // namespace tool

#endif
